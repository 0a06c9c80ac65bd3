#include "tools/kelifc/object_model.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include "tools/kelifc/text.h"

namespace command {

void Check(HRESULT status) {
  if (status >= 0) return;
  char text[64];
  std::snprintf(text, sizeof text, "the object model gave status 0x%08X",
                static_cast<unsigned>(static_cast<std::uint32_t>(status)));
  throw std::runtime_error(text);
}

std::string TakeText(BSTR text) {
  const std::unique_ptr<OLECHAR, void (*)(BSTR)> owner(text,
                                                       [](BSTR taken) { SysFreeString(taken); });
  return text == nullptr ? "" : Utf8FromWide({text, SysStringLen(text)});
}

}  // namespace command
