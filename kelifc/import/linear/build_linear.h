#ifndef KELIFC_IMPORT_LINEAR_BUILD_LINEAR_H_
#define KELIFC_IMPORT_LINEAR_BUILD_LINEAR_H_

#include <string>
#include <utility>

#include "kelifc/import/element/element_maker.h"
#include "kelifc/import/linear/convert_item.h"
#include "kelifc/import/linear/linear_facts.h"

namespace KelIFC {

/// What stands behind the name of an item's object when the product has no name of its own, such as
/// "(2/3)(2)(3)" for the third of several items of the second map.
std::string NameSuffix(const MemberPartFacts& part, const MemberItemFacts& item);

/// Makes columns or beams, which are read alike, of an open maker: one object for each item that is
/// understood, in their order. An item that is not understood leaves no object, and the others
/// carry on. An object that cannot be made is left out.
template <class Maker>
class MemberBuilder {
 public:
  explicit MemberBuilder(Maker& maker) : maker(maker) {}

  void ConvertLinearMember(const MemberFacts& facts) {
    for (const MemberPartFacts& part : facts.parts) ConvertRepresentation(facts, part);
  }

 private:
  void ConvertRepresentation(const MemberFacts& facts, const MemberPartFacts& part) {
    for (MemberItemFacts& item : part.representation->items) {
      typename Maker::Made* element = nullptr;
      if (FAILED(maker.Make(facts.identity, &element, NameSuffix(part, item)))) continue;
      MemberShape shape;
      if (ConvertItem(item, part.isShared, part.outer, facts.chain, maker.Structure(), *element,
                      shape)) {
        element->points = std::move(shape.points);
        element->boundary = std::move(shape.boundary);
      } else {
        maker.TakeBack();
      }
    }
  }

  Maker& maker;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_LINEAR_BUILD_LINEAR_H_
