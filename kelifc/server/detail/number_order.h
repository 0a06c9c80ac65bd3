#ifndef KELIFC_SERVER_DETAIL_NUMBER_ORDER_H_
#define KELIFC_SERVER_DETAIL_NUMBER_ORDER_H_

#include <cstddef>

namespace KelIFC::detail {

/// Finds out whether the statements of a file are in the order of their numbers. If they are not,
/// each look-up of a number waits for memory unless the memory is prefetched.
class NumberOrder {
 public:
  /// Takes the number of the next statement.
  void Note(std::size_t number) {
    constexpr std::size_t kNear = 256;
    isLost = number - last > kNear;
    last = number;
  }

  /// True if the last number was far from the one before it.
  bool IsLost() const { return isLost; }

 private:
  bool isLost = false;
  std::size_t last = 0;
};

}  // namespace KelIFC::detail

#endif  // KELIFC_SERVER_DETAIL_NUMBER_ORDER_H_
