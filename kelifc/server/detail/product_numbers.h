#ifndef KELIFC_SERVER_DETAIL_PRODUCT_NUMBERS_H_
#define KELIFC_SERVER_DETAIL_PRODUCT_NUMBERS_H_

#include <cstddef>
#include <cstdint>
#include <vector>

namespace KelIFC {
class IfcUnknown;
}

namespace KelIFC::detail {

class NumberIndex;

/// The numbers of the products of a registry. A conversion asks for the numbers of products only,
/// and few instances are products. So this table is much smaller than InstanceIndex, which has all
/// instances.
///
/// The table serves a registry that does not change. After the first change it is empty and is not
/// built again, because a host could change the registry between any two look-ups.
class ProductNumbers {
 public:
  /// True if Build makes sense: the table was never built.
  bool IsNew() const { return state == State::kNew; }

  /// Builds the table of a registry. `positions` are the slots of products, and `ids` the numbers
  /// with which these were registered. `numbers` says which of these are still in use. No instance
  /// may be in two slots.
  void Build(IfcUnknown* const* slots, const std::vector<std::uint32_t>& positions,
             const std::vector<std::uint64_t>& ids, const NumberIndex& numbers);

  /// Returns the number of an instance. Returns 0 if it is not in the table: then it can still have
  /// a number. The pointer is compared only and can be dangling.
  std::uint64_t Find(const IfcUnknown* instance) const;

  /// Removes the table, before the registry changes.
  void Drop() {
    if (state != State::kBuilt) return;
    rows = {};
    state = State::kDropped;
  }

 private:
  enum class State : std::uint8_t { kNew, kBuilt, kDropped };
  struct Row {
    const IfcUnknown* product;
    std::uint64_t number;
  };

  State state = State::kNew;
  std::vector<Row> rows;  // by rising address
};

}  // namespace KelIFC::detail

#endif  // KELIFC_SERVER_DETAIL_PRODUCT_NUMBERS_H_
