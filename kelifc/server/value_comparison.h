#ifndef KELIFC_SERVER_VALUE_COMPARISON_H_
#define KELIFC_SERVER_VALUE_COMPARISON_H_

#include <cstddef>
#include <type_traits>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/binary.h"
#include "kelifc/core/boolean.h"
#include "kelifc/core/coordinates.h"
#include "kelifc/core/enum.h"
#include "kelifc/core/integer.h"
#include "kelifc/core/logical.h"
#include "kelifc/core/member.h"
#include "kelifc/core/real.h"
#include "kelifc/core/string.h"
#include "kelifc/core/text_attribute.h"
#include "kelifc/server/same_values.h"

namespace KelIFC {

/// Compares values and instances, as HaveSameValues in same_values.h defines it. The comparisons of
/// the classes apply it to each attribute.
class ValueComparison {
 public:
  bool HaveSameValues(const IfcUnknown& a, const IfcUnknown& b) const;

  bool operator()(const STRING& a, const STRING& b) const;
  bool operator()(const TextAttribute& a, const TextAttribute& b) const;
  bool operator()(const ENUM& a, const ENUM& b) const;
  bool operator()(const REAL& a, const REAL& b) const;
  bool operator()(const INTEGER& a, const INTEGER& b) const;
  bool operator()(const BOOLEAN& a, const BOOLEAN& b) const;
  bool operator()(const LOGICAL& a, const LOGICAL& b) const;
  bool operator()(const COORDINATES& a, const COORDINATES& b) const;

  /// Inline values are compared by HaveSameValues.
  bool operator()(const MEMBER& a, const MEMBER& b) const;

  template <class Enum, std::enable_if_t<std::is_enum_v<Enum>, int> = 0>
  bool operator()(Enum a, Enum b) const {
    return a == b;
  }

  template <class T, class Header>
  bool operator()(const Aggregate<T, Header>& a, const Aggregate<T, Header>& b) const {
    if (a.GetExists() != b.GetExists() || a.GetSize() != b.GetSize()) return false;
    for (std::size_t i = 1; i <= a.GetSize(); ++i) {
      if (!(*this)(a.GetItem(i), b.GetItem(i))) return false;
    }
    return true;
  }

  template <std::size_t N>
  bool operator()(const BINARY<N>& a, const BINARY<N>& b) const {
    struct Bits : BINARY<N> {
      static const auto& Of(const BINARY<N>& binary) { return binary.*(&Bits::flags); }
    };
    return a.GetExists() == b.GetExists() && Bits::Of(a) == Bits::Of(b);
  }
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_VALUE_COMPARISON_H_
