#include "kelifc/building/build/element_key.h"

#include "kelifc/building/solid/key_writer.h"

namespace KelIFC::building {
namespace {

void AddLayers(const MaterialFacts& material, KeyWriter& key) {
  key.Add(static_cast<std::size_t>(material.usage.axis));
  key.Add(material.usage.isPositive);
  key.Add(material.usage.hasUsage);
  key.Add(material.layers.size());
  for (const LayerFacts& layer : material.layers) key.Add(layer.thickness);
}

}  // namespace

bool MakeElementKey(const ProductFacts& product, ElementRole role, std::string& key) {
  KeyWriter writer(key);
  writer.Add(static_cast<std::size_t>(role));
  writer.Add(product.placement);
  writer.Add(product.axis.has_value());
  if (product.axis) writer.Add(*product.axis);
  AddLayers(product.material, writer);
  writer.Add(product.items.size());
  for (const SolidPointer& item : product.items) {
    if (!writer.IsUsable()) return false;
    writer.Add(item);
  }
  return writer.IsUsable();
}

}  // namespace KelIFC::building
