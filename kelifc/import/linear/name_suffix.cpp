#include "kelifc/import/linear/name_suffix.h"

#include <cstddef>

namespace KelIFC {

std::string NameSuffix(const LinearPartFacts& part, const LinearItemFacts& item) {
  const std::string map = std::to_string(part.mappingIndex);
  const std::string number = std::to_string(item.number);
  const bool isMapped = part.mappingIndex != 0;
  const std::size_t count = part.representation->itemCount;
  std::string suffix;
  if (isMapped && count >= 2) suffix += "(" + map + "/" + number + ")";
  if (isMapped) suffix += "(" + map + ")";
  if (count > 1) suffix += "(" + number + ")";
  return suffix;
}

}  // namespace KelIFC
