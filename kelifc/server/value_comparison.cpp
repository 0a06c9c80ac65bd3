#include "kelifc/server/value_comparison.h"

#include <bit>
#include <cstdint>
#include <string>

#include "kelifc/core/unknown.h"

namespace KelIFC {
namespace {

const std::string& TextOf(const std::string& text) { return text; }

}  // namespace

bool HaveSameValues(const IfcUnknown& a, const IfcUnknown& b) {
  return ValueComparison().HaveSameValues(a, b);
}

bool ValueComparison::operator()(const STRING& a, const STRING& b) const {
  return a.GetExists() == b.GetExists() && TextOf(a) == TextOf(b);
}

bool ValueComparison::operator()(const TextAttribute& a, const TextAttribute& b) const {
  return a.GetExists() == b.GetExists() && a.GetText() == b.GetText();
}

bool ValueComparison::operator()(const ENUM& a, const ENUM& b) const {
  return a.GetExists() == b.GetExists() && TextOf(a) == TextOf(b);
}

bool ValueComparison::operator()(const REAL& a, const REAL& b) const {
  return a.GetExists() == b.GetExists() && std::bit_cast<std::uint64_t>(static_cast<double>(a)) ==
                                               std::bit_cast<std::uint64_t>(static_cast<double>(b));
}

bool ValueComparison::operator()(const INTEGER& a, const INTEGER& b) const {
  return a.GetExists() == b.GetExists() && static_cast<int>(a) == static_cast<int>(b);
}

bool ValueComparison::operator()(const BOOLEAN& a, const BOOLEAN& b) const {
  return a.GetExists() == b.GetExists() && static_cast<bool>(a) == static_cast<bool>(b);
}

bool ValueComparison::operator()(const LOGICAL& a, const LOGICAL& b) const {
  return a.GetExists() == b.GetExists() &&
         static_cast<LOGICAL_VALUE>(a) == static_cast<LOGICAL_VALUE>(b);
}

bool ValueComparison::operator()(const COORDINATES& a, const COORDINATES& b) const {
  if (a.GetSize() != b.GetSize()) return false;
  for (std::size_t i = 1; i <= a.GetSize(); ++i) {
    if (!(*this)(a.GetItem(i), b.GetItem(i))) return false;
  }
  return true;
}

bool ValueComparison::operator()(const MEMBER& a, const MEMBER& b) const {
  if (a.GetExists() != b.GetExists()) return false;
  const IfcUnknown* const first = a.GetInlineValue();
  const IfcUnknown* const second = b.GetInlineValue();
  if ((first == nullptr) != (second == nullptr)) return false;
  if (first != nullptr && !HaveSameValues(*first, *second)) return false;
  return static_cast<std::size_t>(a) == static_cast<std::size_t>(b);
}

}  // namespace KelIFC
