#include "export/view/element_columns.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kelifc/building/measures.h"

#include "export/view/text_index.h"

namespace KelIFC::exporting {
namespace {

// The positions of instances in a list, by their instance numbers. 0 is no instance.
class Positions {
 public:
  template <class Instance>
  explicit Positions(const std::vector<Instance>& instances) {
    positions.reserve(instances.size());
    for (std::size_t i = 0; i < instances.size(); i++) positions.try_emplace(instances[i].id, i);
  }

  BuildingIndex Find(std::size_t id) const {
    const auto at = id == 0 ? positions.end() : positions.find(id);
    return at == positions.end() ? BuildingIndex() : BuildingIndex(at->second);
  }

 private:
  std::unordered_map<std::size_t, std::size_t> positions;
};

// Writes the columns of one building.
class Columns {
 public:
  Columns(JsonText& json, const Building& building)
      : json(json), building(building), storeys(building.storeys), elements(building.elements) {}

  void Write() {
    IndexTexts();
    WriteTexts("classes", classes);
    WriteTexts("types", types);
    WriteTexts("sources", sources);
    json.Key("elements");
    json.BeginObject();
    json.Member("count", building.elements.size());
    WriteIdentity();
    WriteReferences();
    WriteExactness();
    WriteSizes();
    json.EndObject();
  }

 private:
  // `value` returns what the column holds for an element.
  template <class Get>
  void Column(std::string_view name, Get value) {
    json.ListMember(name, building.elements, [&](JsonText& text, const BuildingElement& element) {
      text.Value(value(element));
    });
  }

  void IndexTexts() {
    for (const BuildingElement& element : building.elements) {
      classes.Add(element.className);
      if (!element.type.empty()) types.Add(element.type);
      sources.Add(TextOf(element.source));
    }
  }

  void WriteTexts(std::string_view name, const TextIndex& texts) {
    json.ListMember(name, texts.GetTexts(),
                    [](JsonText& text, std::string_view entry) { text.Value(entry); });
  }

  void WriteIdentity() {
    Column("id", [](const BuildingElement& e) { return e.id; });
    Column("class", [this](const BuildingElement& e) { return classes.Add(e.className); });
    Column("type", [this](const BuildingElement& e) {
      return e.type.empty() ? BuildingIndex() : BuildingIndex(types.Add(e.type));
    });
    Column("source", [this](const BuildingElement& e) { return sources.Add(TextOf(e.source)); });
    Column("guid", [](const BuildingElement& e) { return std::string_view(e.guid); });
    Column("name", [](const BuildingElement& e) { return std::string_view(e.name); });
    Column("tag", [](const BuildingElement& e) { return std::string_view(e.tag); });
  }

  void WriteReferences() {
    Column("storey", [this](const BuildingElement& e) { return storeys.Find(e.storey); });
    Column("storeyByHeight",
           [this](const BuildingElement& e) { return storeys.Find(e.storeyByHeight); });
    Column("partOf", [this](const BuildingElement& e) { return elements.Find(e.partOf); });
    Column("material", [](const BuildingElement& e) { return e.material; });
    Column("profile", [](const BuildingElement& e) {
      return e.member ? BuildingIndex(e.member->profile) : BuildingIndex();
    });
    Column("profileEnd", [](const BuildingElement& e) {
      return e.member ? e.member->endProfile : BuildingIndex();
    });
  }

  void WriteExactness() {
    Column("kind", [](const BuildingElement& e) { return static_cast<std::size_t>(e.kind); });
    Column("approximate",
           [](const BuildingElement& e) { return static_cast<std::size_t>(e.isApproximate); });
    Column("deviation", [](const BuildingElement& e) { return e.deviation; });
    Column("volumeRatio", [](const BuildingElement& e) { return e.volumeRatio; });
    Column("cutouts", [](const BuildingElement& e) { return e.cutouts; });
  }

  void WriteSizes() {
    using Size = std::optional<double>;
    Column("length",
           [](const BuildingElement& e) { return e.member ? Size(LengthOf(*e.member)) : Size(); });
    Column("area",
           [](const BuildingElement& e) { return e.surface ? Size(AreaOf(*e.surface)) : Size(); });
    Column("thickness", [](const BuildingElement& e) {
      return e.surface ? Size(e.surface->thickness) : Size();
    });
    Column("volume", [](const BuildingElement& e) { return e.volume; });
  }

  JsonText& json;
  const Building& building;
  const Positions storeys;
  const Positions elements;
  TextIndex classes;
  TextIndex types;
  TextIndex sources;
};

}  // namespace

void WriteElementColumns(JsonText& json, const Building& building) {
  Columns(json, building).Write();
}

}  // namespace KelIFC::exporting
