#ifndef KELIFC_BUILDING_BUILD_ELEMENT_MAKER_H_
#define KELIFC_BUILDING_BUILD_ELEMENT_MAKER_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/build/body_maker.h"
#include "kelifc/building/build/first_use.h"
#include "kelifc/building/build/idealise.h"
#include "kelifc/building/build/made_profiles.h"
#include "kelifc/building/build/reading_cache.h"
#include "kelifc/building/building.h"
#include "kelifc/building/facts/product_facts.h"

namespace KelIFC::building {

/// Makes the geometry of the elements of a model: bodies, idealisations and the list of profiles.
/// Products that are equal but for their names are made once.
class ElementMaker {
 public:
  /// `options` must outlive this object.
  explicit ElementMaker(const ReadingOptions& someOptions)
      : options(someOptions), bodies(someOptions) {}

  /// Announces one call of Make, and the bodies of the openings of the product.
  void Announce(const ProductFacts& product);

  /// Sets everything of `element` that depends on the shape of the product. Names, openings and
  /// materials are left to the caller. The material of each layer of a surface is its place in the
  /// layers of the product. Returns why the element cannot be made, if so.
  std::optional<Unreadable> Make(const ProductFacts& product, BuildingElement& element);

  /// The bodies of openings are made with the limits of the model, too.
  BodyMaker& Bodies() { return bodies; }

  /// The profiles of all elements, in the order of their first use.
  std::vector<BuildingProfile> TakeProfiles() { return profiles.Take(); }

 private:
  /// An element, as it is before the caller adds what belongs to one product only.
  struct Made {
    BuildingElement element;
    std::size_t points = 0;  ///< of the body
  };

  std::optional<Unreadable> MakeNew(const ProductFacts& product, ElementRole role, Made& made);
  void AddIdealisation(Idealisation ideal, BuildingElement& element);
  void AddBody(EvaluatedBody body, BuildingElement& element) const;
  std::size_t ProfileIndex(BuildingProfile profile, bool isTapered);

  const ReadingOptions& options;
  BodyMaker bodies;
  MadeProfiles madeProfiles;
  idealising::ReadingCache madeReadings;
  KeyedCache<Made> madeElements;
  FirstUse<BuildingProfile> profiles;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_ELEMENT_MAKER_H_
