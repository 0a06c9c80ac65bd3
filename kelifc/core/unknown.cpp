#include "kelifc/core/unknown.h"

#include <cstring>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"

namespace KelIFC {

IfcUnknown::~IfcUnknown() = default;

void* IfcUnknown::operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return detail::AllocateBlock(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

const char* IfcUnknown::GetItemName() { return "IfcUnknown"; }
const char* IfcUnknown::GetStepName() const { return IfcUnknown::GetItemName(); }

const char* IfcUnknown::Parse(const char* text) {
  if (text == nullptr) return nullptr;
  const char* open = std::strchr(text, '(');
  return open == nullptr ? nullptr : open + 1;
}

std::ostream& IfcUnknown::Write(std::ostream& out) const {
  detail::PutUpperCase(out, GetStepName(), '(');
  return out;
}

const char* IfcUnknown::ParseDef(const char* text) {
  if (text == nullptr) return nullptr;
  text = detail::SkipBlanks(text);
  return *text == '*' ? detail::BehindNextComma(text + 1) : text;
}

IfcServer* IfcUnknown::GetServer() { return server; }
const IfcServer* IfcUnknown::GetServer() const { return server; }
void IfcUnknown::SetServer(IfcServer* model) { server = model; }

}  // namespace KelIFC
