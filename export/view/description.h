#ifndef EXPORT_VIEW_DESCRIPTION_H_
#define EXPORT_VIEW_DESCRIPTION_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kelifc/building/building.h"

namespace KelIFC::exporting {

/// An array of the container, as its description names it.
struct ArrayPlace {
  std::string_view name;   ///< such as "positions"
  std::string_view type;   ///< "float32" or "uint32"
  std::size_t offset = 0;  ///< in bytes, from the end of the description
  std::size_t count = 0;   ///< of numbers
};

/// What the description of a container is made of.
struct DescribedBuilding {
  const Building& building;
  const std::string& source;              ///< the path of the model, as the user gave it
  Point3 origin;                          ///< coordinates of the arrays are relative to it
  const std::vector<ArrayPlace>& arrays;  ///< in the order of the container
};

/// The description of a container: a JSON object in UTF-8. viewer/data.md defines its members.
std::string DescriptionOf(const DescribedBuilding& described);

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_DESCRIPTION_H_
