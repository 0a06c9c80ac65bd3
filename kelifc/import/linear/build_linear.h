#ifndef KELIFC_IMPORT_LINEAR_BUILD_LINEAR_H_
#define KELIFC_IMPORT_LINEAR_BUILD_LINEAR_H_

#include <utility>

#include "kelifc/import/element/element_maker.h"
#include "kelifc/import/linear/convert_item.h"
#include "kelifc/import/linear/linear_facts.h"
#include "kelifc/import/linear/name_suffix.h"

namespace KelIFC {

/// Whether an element of this class keeps the boundary of a faceted solid.
template <class Element>
inline constexpr bool kHasBoundary = requires(Element& element) {
  element.boundary;
};

/// Makes the elements of linear products. `Maker` is an ElementMaker of columns or beams that was
/// opened; it must outlive the builder.
template <class Maker>
class LinearBuilder {
 public:
  explicit LinearBuilder(Maker& maker) : maker(maker) {}

  /// Makes one element for each item of the product, in the order of the items. An item is skipped
  /// if its shape is not supported or its element cannot be created.
  void Convert(const LinearFacts& facts) {
    for (const LinearPartFacts& part : facts.parts) ConvertRepresentation(facts, part);
  }

 private:
  void ConvertRepresentation(const LinearFacts& facts, const LinearPartFacts& part) {
    for (const LinearItemFacts& item : part.representation->items) {
      typename Maker::Made* element = nullptr;
      if (FAILED(maker.Make(facts.identity, &element, NameSuffix(part, item)))) continue;
      LinearShape shape;
      if (ConvertItem(item, part.isShared, part.outer, facts.chain, maker.Structure(), *element,
                      shape)) {
        element->points = std::move(shape.points);
        if constexpr (kHasBoundary<typename Maker::Made>) {
          element->boundary = std::move(shape.boundary);
        }
      } else {
        maker.TakeBack();
      }
    }
  }

  Maker& maker;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_LINEAR_BUILD_LINEAR_H_
