#include "kelifc/import/linear/build_linear.h"

namespace KelIFC {

std::string NameSuffix(const MemberPartFacts& part, const MemberItemFacts& item) {
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
