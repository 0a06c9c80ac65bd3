#include "kelifc/core/enum.h"

#include "kelifc/core/text/enumerator.h"

namespace KelIFC {

const char* ENUM::Parse(const char* text) {
  const EnumText read = ReadEnumText(text);
  assign(read.text);
  exists = read.exists;
  return read.next;
}

}  // namespace KelIFC
