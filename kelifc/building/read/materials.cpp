#include "kelifc/building/read/materials.h"

#include <cmath>
#include <string>
#include <string_view>

namespace KelIFC::building {
namespace {

double LengthOf(const ReadContext& context, const Instance& from, Attribute attribute) {
  const double metres = from.Get(attribute).Number(0.0) * context.units.length.metres;
  return std::isfinite(metres) ? metres : 0.0;
}

LayerFacts ReadLayer(const ReadContext& context, const Instance& layer) {
  LayerFacts facts;
  const Instance material = layer.Get(Attribute::kMaterial).Target();
  facts.hasMaterial = static_cast<bool>(material);
  facts.material = material.Get(Attribute::kName).Text();
  facts.thickness = LengthOf(context, layer, Attribute::kThickness);
  return facts;
}

void ReadLayers(const ReadContext& context, const Instance& set, MaterialFacts& facts) {
  const Value layers = set.Get(Attribute::kLayers);
  for (std::size_t i = 0; i < layers.Size(); ++i) {
    if (const Instance layer = layers[i].Target()) {
      facts.layers.push_back(ReadLayer(context, layer));
    }
  }
}

// The axis of ".AXIS2." is 2.
int AxisOf(std::string_view name) {
  constexpr std::string_view kAxis = "AXIS";
  if (name.size() != kAxis.size() + 1 || name.substr(0, kAxis.size()) != kAxis) return 0;
  const int axis = name.back() - '0';
  return axis >= 1 && axis <= 3 ? axis : 0;
}

}  // namespace

MaterialFacts ReadMaterial(const ReadContext& context, const Instance& definition) {
  MaterialFacts facts;
  switch (definition.GetEntity()) {
    case Entity::kMaterial:
      facts.materials.push_back(definition.Get(Attribute::kName).Text());
      break;
    case Entity::kMaterialList: {
      const Value list = definition.Get(Attribute::kMaterials);
      for (std::size_t i = 0; i < list.Size(); ++i) {
        if (const Instance material = list[i].Target()) {
          facts.materials.push_back(material.Get(Attribute::kName).Text());
        }
      }
      break;
    }
    case Entity::kMaterialLayer:
      facts.layers.push_back(ReadLayer(context, definition));
      break;
    case Entity::kMaterialLayerSet:
      ReadLayers(context, definition, facts);
      break;
    case Entity::kMaterialLayerSetUsage:
      ReadLayers(context, definition.Get(Attribute::kLayerSet).Target(), facts);
      facts.usage.hasUsage = true;
      facts.usage.axis = AxisOf(definition.StatedEnumerator(Attribute::kLayerDirection));
      facts.usage.isPositive =
          definition.Get(Attribute::kDirectionSense).Enumerator() != "NEGATIVE";
      facts.usage.offset = LengthOf(context, definition, Attribute::kOffset);
      break;
    default:
      break;
  }
  return facts;
}

}  // namespace KelIFC::building
