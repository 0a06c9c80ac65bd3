#include "export/glb/scene_text.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "kelifc/building/element_enums.h"
#include "kelifc/building/measures.h"

#include "export/glb/class_colours.h"
#include "export/glb/quaternion.h"
#include "export/view/json_text.h"

namespace KelIFC::exporting {
namespace {

// The numbers of the format.
constexpr std::size_t kFloat = 5126;
constexpr std::size_t kUnsignedInt = 5125;
constexpr std::size_t kUnsignedShort = 5123;
constexpr std::size_t kVertexBuffer = 34962;
constexpr std::size_t kIndexBuffer = 34963;

constexpr std::size_t kPositionStride = 12;  // bytes: three floats

constexpr double kNearZero = 10'000.0;  // metres

class SceneText {
 public:
  SceneText(const Building& someBuilding, const DisplayModel& someModel,
            const GlbLayout& someLayout, const ExportOptions& someOptions)
      : building(someBuilding), model(someModel), layout(someLayout), options(someOptions) {}

  std::string Write() {
    AssignMeshes();
    AssignStoreys();
    text.BeginObject();
    WriteHead();
    WriteNodes();
    if (!model.meshes.empty()) {
      WriteMaterials();
      WriteMeshes();
      WriteAccessors();
      WriteBuffer();
    }
    text.EndObject();
    return text.GetText();
  }

 private:
  /// A material: the class whose colour it has, and whether only outer sides can be seen.
  using MaterialKey = std::pair<std::string_view, bool>;

  /// A mesh of the scene: a mesh of the display model and a material.
  using MeshKey = std::pair<std::uint32_t, std::size_t>;

  bool HasMesh(std::size_t element) const { return model.elementMesh[element] != kNoDisplayMesh; }

  void AssignMeshes() {
    std::map<MaterialKey, std::size_t> materialNumbers;
    std::map<MeshKey, std::size_t> meshNumbers;
    meshOf.resize(building.elements.size());
    for (std::size_t i = 0; i < building.elements.size(); ++i) {
      if (!HasMesh(i)) continue;
      const std::uint32_t mesh = model.elementMesh[i];
      const MaterialKey material(building.elements[i].className, model.meshes[mesh].isClosed);
      const auto atMaterial = materialNumbers.try_emplace(material, materials.size());
      if (atMaterial.second) materials.push_back(material);
      const MeshKey key(mesh, atMaterial.first->second);
      const auto atMesh = meshNumbers.try_emplace(key, meshes.size());
      if (atMesh.second) meshes.push_back(key);
      meshOf[i] = atMesh.first->second;
    }
  }

  /// Nodes are numbered: the root, the storeys, the node for the others if there are any, the
  /// elements.
  void AssignStoreys() {
    std::unordered_map<std::size_t, std::size_t> groups;
    for (std::size_t i = 0; i < building.storeys.size(); ++i) {
      groups.try_emplace(building.storeys[i].id, i);
    }
    children.resize(building.storeys.size() + 1);
    for (std::size_t i = 0; i < building.elements.size(); ++i) {
      if (!HasMesh(i)) continue;
      const auto at = groups.find(building.elements[i].storey);
      children[at == groups.end() ? building.storeys.size() : at->second].push_back(i);
    }
    if (children.back().empty()) children.pop_back();
  }

  void WriteHead() {
    text.Key("asset");
    text.BeginObject();
    text.Member("version", "2.0");
    text.Member("generator", "KelIFC");
    text.EndObject();
    text.Member("scene", std::size_t{0});
    text.Key("scenes");
    text.BeginList();
    text.BeginObject();
    WriteChildren(0, 1);
    text.EndObject();
    text.EndList();
  }

  void WriteNodes() {
    text.Key("nodes");
    text.BeginList();
    WriteRoot();
    std::size_t next = 1 + children.size();
    for (std::size_t group = 0; group < children.size(); ++group) {
      WriteGroup(group, next);
      next += children[group].size();
    }
    for (const std::vector<std::size_t>& group : children) {
      for (const std::size_t element : group) WriteElement(element);
    }
    text.EndList();
  }

  void WriteChildren(std::size_t first, std::size_t count, std::string_view key = "nodes") {
    if (count == 0) return;
    text.Key(key);
    text.BeginList();
    for (std::size_t i = 0; i < count; ++i) text.Value(first + i);
    text.EndList();
  }

  /// The model has z upwards, and the format y.
  void WriteRoot() {
    text.BeginObject();
    text.Member("name", options.source.empty() ? "building" : options.source);
    text.Key("matrix");
    RoundedList({1, 0, 0, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1});
    WriteChildren(1, children.size(), "children");
    text.Key("extras");
    text.BeginObject();
    text.Member("schema", building.schema);
    text.Member("application", building.application);
    text.Key("origin");
    RoundedList({Origin().x, Origin().y, Origin().z});
    text.EndObject();
    text.EndObject();
  }

  void WriteGroup(std::size_t group, std::size_t firstChild) {
    text.BeginObject();
    const bool isStorey = group < building.storeys.size();
    text.Member("name", isStorey ? NameOf(building.storeys[group]) : "without a storey");
    WriteChildren(firstChild, children[group].size(), "children");
    if (isStorey) {
      const BuildingStorey& storey = building.storeys[group];
      text.Key("extras");
      text.BeginObject();
      text.Member("id", storey.id);
      text.Member("guid", storey.guid);
      text.Member("name", storey.name);
      if (storey.hasElevation) text.Member("elevation", storey.elevation);
      text.EndObject();
    }
    text.EndObject();
  }

  static std::string NameOf(const BuildingStorey& storey) {
    return storey.name.empty() ? "storey " + std::to_string(storey.id) : storey.name;
  }

  void WriteElement(std::size_t i) {
    const BuildingElement& element = building.elements[i];
    text.BeginObject();
    text.Member("name", element.name.empty() ? element.className + " " + std::to_string(element.id)
                                             : element.name);
    text.Member("mesh", meshOf[i]);
    WritePlacement(model.elementMatrix[i]);
    text.Key("extras");
    WriteExtras(element);
    text.EndObject();
  }

  void WritePlacement(const DisplayMatrix& matrix) {
    const Vector3 place = matrix.origin - Origin();
    text.Key("translation");
    RoundedList({place.x, place.y, place.z});
    const double length = Length(matrix.x);
    const Quaternion turn = QuaternionOf(matrix.x / length, matrix.y, matrix.z);
    if (turn.w != 1.0) {
      text.Key("rotation");
      RoundedList({turn.x, turn.y, turn.z, turn.w});
    }
    if (length != 1.0) {
      text.Key("scale");
      text.BeginList();
      for (const double factor : {length, 1.0, 1.0}) text.Value(factor);
      text.EndList();
    }
  }

  void WriteExtras(const BuildingElement& element) {
    text.BeginObject();
    text.Member("id", element.id);
    text.Member("class", element.className);
    text.Member("guid", element.guid);
    text.Member("name", element.name);
    text.Member("kind", TextOf(element.kind));
    if (element.member) WriteProfile(element.member->profile);
    if (element.material && *element.material < building.materials.size()) {
      text.Member("material", building.materials[*element.material].name);
    }
    if (element.storey != 0) text.Member("storey", element.storey);
    if (const std::optional<double> length = LengthOf(element)) text.Member("length", *length);
    if (element.surface) {
      text.Member("area", AreaOf(*element.surface));
      text.Member("thickness", element.surface->thickness);
    }
    text.Member("volume", element.volume);
    text.Member("deviation", element.deviation);
    text.Key("approximate");
    text.Flag(element.isApproximate);
    text.EndObject();
  }

  void WriteProfile(std::size_t index) {
    if (index >= building.profiles.size()) return;
    const BuildingProfile& profile = building.profiles[index];
    text.Member("profile", profile.name.empty() ? profile.designation : profile.name);
  }

  void WriteMaterials() {
    text.Key("materials");
    text.BeginList();
    for (const auto& [className, isClosed] : materials) {
      const LinearColour colour = ColourOfClass(className);
      text.BeginObject();
      text.Member("name", className);
      text.Key("pbrMetallicRoughness");
      text.BeginObject();
      text.Key("baseColorFactor");
      RoundedList({colour.red, colour.green, colour.blue, 1.0});
      text.Member("metallicFactor", 0.0);
      text.Member("roughnessFactor", 0.8);
      text.EndObject();
      if (!isClosed) {
        text.Key("doubleSided");
        text.Flag(true);
      }
      text.EndObject();
    }
    text.EndList();
  }

  /// Normals are left out: the format then asks for flat shading, as plane faces need it.
  void WriteMeshes() {
    text.Key("meshes");
    text.BeginList();
    for (const auto& [mesh, material] : meshes) {
      text.BeginObject();
      text.Key("primitives");
      text.BeginList();
      text.BeginObject();
      text.Key("attributes");
      text.BeginObject();
      text.Member("POSITION", std::size_t{2} * mesh);
      text.EndObject();
      text.Member("indices", std::size_t{2} * mesh + 1);
      text.Member("material", material);
      text.EndObject();
      text.EndList();
      text.EndObject();
    }
    text.EndList();
  }

  /// Two accessors for each mesh of the display model: its positions and its indices.
  void WriteAccessors() {
    text.Key("accessors");
    text.BeginList();
    for (std::size_t i = 0; i < model.meshes.size(); ++i) {
      const GlbMesh& mesh = layout.meshes[i];
      BeginAccessor(0, mesh.positionOffset, kFloat, model.meshes[i].vertexCount, "VEC3");
      WriteBounds("min", mesh.min);
      WriteBounds("max", mesh.max);
      text.EndObject();
      BeginAccessor(mesh.hasShortIndices ? ShortView() : 1, mesh.indexOffset,
                    mesh.hasShortIndices ? kUnsignedShort : kUnsignedInt,
                    std::size_t{3} * model.meshes[i].triangleCount, "SCALAR");
      text.EndObject();
    }
    text.EndList();
  }

  void BeginAccessor(std::size_t view, std::uint64_t offset, std::size_t type, std::size_t count,
                     std::string_view shape) {
    text.BeginObject();
    text.Member("bufferView", view);
    text.Member("byteOffset", static_cast<std::size_t>(offset));
    text.Member("componentType", type);
    text.Member("count", count);
    text.Member("type", shape);
  }

  void WriteBounds(std::string_view name, const std::array<float, 3>& bounds) {
    text.Key(name);
    text.BeginList();
    for (const float bound : bounds) text.Value(static_cast<double>(bound));
    text.EndList();
  }

  /// The views: the positions, the long indices, the short ones. Empty ones are left out.
  std::size_t ShortView() const { return layout.longIndexSize == 0 ? 1 : 2; }

  void WriteBuffer() {
    text.Key("bufferViews");
    text.BeginList();
    WriteView(0, layout.positionSize, kVertexBuffer);
    if (layout.longIndexSize > 0) {
      WriteView(layout.positionSize, layout.longIndexSize, kIndexBuffer);
    }
    if (layout.shortIndexSize > 0) {
      WriteView(layout.positionSize + layout.longIndexSize, layout.shortIndexSize, kIndexBuffer);
    }
    text.EndList();
    text.Key("buffers");
    text.BeginList();
    text.BeginObject();
    text.Member("byteLength", static_cast<std::size_t>(layout.Size()));
    text.EndObject();
    text.EndList();
  }

  void WriteView(std::uint64_t offset, std::uint64_t size, std::size_t target) {
    text.BeginObject();
    text.Member("buffer", std::size_t{0});
    text.Member("byteOffset", static_cast<std::size_t>(offset));
    text.Member("byteLength", static_cast<std::size_t>(size));
    if (target == kVertexBuffer) text.Member("byteStride", kPositionStride);
    text.Member("target", target);
    text.EndObject();
  }

  void RoundedList(std::initializer_list<double> values) {
    text.BeginList();
    for (const double value : values) text.Rounded(value);
    text.EndList();
  }

  Point3 Origin() const {
    const Point3& middle = model.origin;
    const bool isNear = std::abs(middle.x) <= kNearZero && std::abs(middle.y) <= kNearZero &&
                        std::abs(middle.z) <= kNearZero;
    return isNear ? Point3() : middle;
  }

  const Building& building;
  const DisplayModel& model;
  const GlbLayout& layout;
  const ExportOptions& options;
  JsonText text;
  std::vector<MaterialKey> materials;
  std::vector<MeshKey> meshes;
  std::vector<std::size_t> meshOf;                 // by element: its mesh of the scene
  std::vector<std::vector<std::size_t>> children;  // by storey, and of the others: elements
};

}  // namespace

std::string SceneTextOf(const Building& building, const DisplayModel& model,
                        const GlbLayout& layout, const ExportOptions& options) {
  return SceneText(building, model, layout, options).Write();
}

}  // namespace KelIFC::exporting
