#ifndef KELIFC_BUILDING_READ_PRODUCTS_H_
#define KELIFC_BUILDING_READ_PRODUCTS_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/facts/product_facts.h"
#include "kelifc/building/read/decomposition.h"
#include "kelifc/building/read/items.h"
#include "kelifc/building/read/placements.h"
#include "kelifc/building/read/representations.h"

namespace KelIFC::building {

/// Reads the products of a model.
class ProductReader {
 public:
  ProductReader(ReadContext& reading, const Relations& related, Decomposition& parts,
                PlacementReader& places)
      : context(reading),
        relations(related),
        decomposition(parts),
        placements(places),
        items(reading) {}

  ProductFacts Read(const Instance& product);

 private:
  void ReadIdentity(const Instance& product, ProductFacts& facts);
  bool ReadPlacement(const Instance& product, Transform3& placement, Unreadable& why);
  std::vector<SolidPointer> ReadBody(const Instance& product, Unreadable& why);
  void ReadAxis(const Instance& product, ProductFacts& facts);
  void ReadMaterials(ProductFacts& facts);
  void ReadOpenings(ProductFacts& facts);

  ReadContext& context;
  const Relations& relations;
  Decomposition& decomposition;
  PlacementReader& placements;
  ItemReader items;
  RepresentationChooser chooser;
  NumberMap<MaterialFacts> materials;  // by definition
  NumberMap<bool> used;                // representations
  NumberMap<bool> withoutAxis;         // curves that are no axis
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_PRODUCTS_H_
