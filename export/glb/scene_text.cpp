#include "export/glb/scene_text.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "export/glb/class_colours.h"
#include "export/glb/json_text.h"
#include "export/glb/quaternion.h"
#include "kelifc/building/element_enums.h"
#include "kelifc/building/measures.h"

namespace KelIFC::exporting {
namespace {

// The numbers of the format.
constexpr std::size_t kFloat = 5126;
constexpr std::size_t kUnsignedInt = 5125;
constexpr std::size_t kUnsignedShort = 5123;
constexpr std::size_t kVertexBuffer = 34962;
constexpr std::size_t kIndexBuffer = 34963;

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
    Text("version", "2.0");
    Text("generator", "KelIFC");
    text.EndObject();
    text.Key("scene");
    text.Integer(0);
    text.Key("scenes");
    text.BeginArray();
    text.BeginObject();
    WriteChildren(0, 1);
    text.EndObject();
    text.EndArray();
  }

  void WriteNodes() {
    text.Key("nodes");
    text.BeginArray();
    WriteRoot();
    std::size_t next = 1 + children.size();
    for (std::size_t group = 0; group < children.size(); ++group) {
      WriteGroup(group, next);
      next += children[group].size();
    }
    for (const std::vector<std::size_t>& group : children) {
      for (const std::size_t element : group) WriteElement(element);
    }
    text.EndArray();
  }

  void WriteChildren(std::size_t first, std::size_t count, std::string_view key = "nodes") {
    if (count == 0) return;
    text.Key(key);
    text.BeginArray();
    for (std::size_t i = 0; i < count; ++i) text.Integer(first + i);
    text.EndArray();
  }

  /// The model has z upwards, and the format y.
  void WriteRoot() {
    text.BeginObject();
    Text("name", options.source.empty() ? "building" : options.source);
    text.Key("matrix");
    text.RoundedArray({1, 0, 0, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1});
    WriteChildren(1, children.size(), "children");
    text.Key("extras");
    text.BeginObject();
    Text("schema", building.schema);
    Text("application", building.application);
    text.Key("origin");
    text.RoundedArray({Origin().x, Origin().y, Origin().z});
    text.EndObject();
    text.EndObject();
  }

  void WriteGroup(std::size_t group, std::size_t firstChild) {
    text.BeginObject();
    const bool isStorey = group < building.storeys.size();
    Text("name", isStorey ? building.storeys[group].name : "without a storey");
    WriteChildren(firstChild, children[group].size(), "children");
    if (isStorey) {
      const BuildingStorey& storey = building.storeys[group];
      text.Key("extras");
      text.BeginObject();
      text.Key("id");
      text.Integer(storey.id);
      Text("guid", storey.guid);
      Text("name", storey.name);
      if (storey.hasElevation) Value("elevation", storey.elevation);
      text.EndObject();
    }
    text.EndObject();
  }

  void WriteElement(std::size_t i) {
    const BuildingElement& element = building.elements[i];
    text.BeginObject();
    Text("name", element.name.empty() ? element.className + " " + std::to_string(element.id)
                                      : element.name);
    text.Key("mesh");
    text.Integer(meshOf[i]);
    WritePlacement(model.elementMatrix[i]);
    text.Key("extras");
    WriteExtras(element);
    text.EndObject();
  }

  void WritePlacement(const DisplayMatrix& matrix) {
    const Vector3 place = matrix.origin - Origin();
    text.Key("translation");
    text.RoundedArray({place.x, place.y, place.z});
    const double length = Length(matrix.x);
    const Quaternion turn = QuaternionOf(matrix.x / length, matrix.y, matrix.z);
    if (turn.w != 1.0) {
      text.Key("rotation");
      text.RoundedArray({turn.x, turn.y, turn.z, turn.w});
    }
    if (length != 1.0) {
      text.Key("scale");
      text.RoundedArray({length, 1.0, 1.0});
    }
  }

  void WriteExtras(const BuildingElement& element) {
    text.BeginObject();
    text.Key("id");
    text.Integer(element.id);
    Text("class", element.className);
    Text("guid", element.guid);
    Text("name", element.name);
    Text("kind", TextOf(element.kind));
    if (element.member) WriteProfile(element.member->profile);
    if (element.material && *element.material < building.materials.size()) {
      Text("material", building.materials[*element.material].name);
    }
    if (element.storey != 0) {
      text.Key("storey");
      text.Integer(element.storey);
    }
    if (const std::optional<double> length = LengthOf(element)) Value("length", *length);
    if (element.surface) {
      Value("area", AreaOf(*element.surface));
      Value("thickness", element.surface->thickness);
    }
    Value("volume", element.volume);
    Value("deviation", element.deviation);
    text.Key("approximate");
    text.Bool(element.isApproximate);
    text.EndObject();
  }

  void WriteProfile(std::size_t index) {
    if (index >= building.profiles.size()) return;
    const BuildingProfile& profile = building.profiles[index];
    Text("profile", profile.name.empty() ? profile.designation : profile.name);
  }

  void WriteMaterials() {
    text.Key("materials");
    text.BeginArray();
    for (const auto& [className, isClosed] : materials) {
      const LinearColour colour = ColourOfClass(className);
      text.BeginObject();
      Text("name", className);
      text.Key("pbrMetallicRoughness");
      text.BeginObject();
      text.Key("baseColorFactor");
      text.RoundedArray({colour.red, colour.green, colour.blue, 1.0});
      Value("metallicFactor", 0.0);
      Value("roughnessFactor", 0.8);
      text.EndObject();
      if (!isClosed) {
        text.Key("doubleSided");
        text.Bool(true);
      }
      text.EndObject();
    }
    text.EndArray();
  }

  /// Normals are left out: the format then asks for flat shading, as plane faces need it.
  void WriteMeshes() {
    text.Key("meshes");
    text.BeginArray();
    for (const auto& [mesh, material] : meshes) {
      text.BeginObject();
      text.Key("primitives");
      text.BeginArray();
      text.BeginObject();
      text.Key("attributes");
      text.BeginObject();
      Count("POSITION", std::size_t{2} * mesh);
      text.EndObject();
      Count("indices", std::size_t{2} * mesh + 1);
      Count("material", material);
      text.EndObject();
      text.EndArray();
      text.EndObject();
    }
    text.EndArray();
  }

  /// Two accessors for each mesh of the display model: its positions and its indices.
  void WriteAccessors() {
    text.Key("accessors");
    text.BeginArray();
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
    text.EndArray();
  }

  void BeginAccessor(std::size_t view, std::uint64_t offset, std::size_t type, std::size_t count,
                     std::string_view shape) {
    text.BeginObject();
    Count("bufferView", view);
    Count("byteOffset", static_cast<std::size_t>(offset));
    Count("componentType", type);
    Count("count", count);
    Text("type", shape);
  }

  void WriteBounds(std::string_view name, const std::array<float, 3>& bounds) {
    text.Key(name);
    text.BeginArray();
    for (const float bound : bounds) text.Number(static_cast<double>(bound));
    text.EndArray();
  }

  /// The views: the positions, the long indices, the short ones. Empty ones are left out.
  std::size_t ShortView() const { return layout.longIndexSize == 0 ? 1 : 2; }

  void WriteBuffer() {
    text.Key("bufferViews");
    text.BeginArray();
    WriteView(0, layout.positionSize, kVertexBuffer);
    if (layout.longIndexSize > 0) {
      WriteView(layout.positionSize, layout.longIndexSize, kIndexBuffer);
    }
    if (layout.shortIndexSize > 0) {
      WriteView(layout.positionSize + layout.longIndexSize, layout.shortIndexSize, kIndexBuffer);
    }
    text.EndArray();
    text.Key("buffers");
    text.BeginArray();
    text.BeginObject();
    Count("byteLength", static_cast<std::size_t>(layout.Size()));
    text.EndObject();
    text.EndArray();
  }

  void WriteView(std::uint64_t offset, std::uint64_t size, std::size_t target) {
    text.BeginObject();
    Count("buffer", 0);
    Count("byteOffset", static_cast<std::size_t>(offset));
    Count("byteLength", static_cast<std::size_t>(size));
    if (target == kVertexBuffer) Count("byteStride", 12);
    Count("target", target);
    text.EndObject();
  }

  void Text(std::string_view key, std::string_view value) {
    text.Key(key);
    text.String(value);
  }

  void Value(std::string_view key, double value) {
    text.Key(key);
    text.Number(value);
  }

  void Count(std::string_view key, std::size_t value) {
    text.Key(key);
    text.Integer(value);
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
