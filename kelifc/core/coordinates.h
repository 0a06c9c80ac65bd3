#ifndef KELIFC_CORE_COORDINATES_H_
#define KELIFC_CORE_COORDINATES_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "kelifc/core/real.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

namespace detail {
struct Parenthesised;
}

/// The numbers of a point or a direction; each of them may be unset. Positions count from 1. Up to
/// three numbers stand in the object itself, since nearly every point has no more.
class KELIFC_API COORDINATES {
 public:
  COORDINATES() : heap(nullptr) {}
  COORDINATES(const COORDINATES& other);
  COORDINATES& operator=(const COORDINATES& other);
  virtual ~COORDINATES() {
    if (capacity > kInside) delete[] heap;
  }

  /// Adds a number and gives its position.
  std::size_t Add(REAL number);
  /// The number at a position; unset for a position out of range.
  REAL operator[](std::size_t position) const { return GetItem(position); }
  REAL GetItem(std::size_t position) const;
  /// Replaces a number; a position out of range changes nothing.
  void SetItem(std::size_t position, REAL number);
  std::size_t GetSize() const { return size; }
  /// Copies the first numbers; an unset one, and one out of range, is 0.
  void GetNumbers(double* numbers, std::size_t count) const;
  /// Makes room for `count` numbers in all.
  void Reserve(std::size_t count);
  /// Cuts from the end, or adds unset numbers.
  void Resize(std::size_t count);

  /// Reads the numbers between the first parenthesis and its counterpart, or the end of the text.
  /// Unset ones are left out, and text that is no number gives 0. Without a parenthesis there are
  /// none and the cursor does not move.
  const char* Parse(const char* text);
  /// Writes the numbers in parentheses, each as REAL does.
  std::ostream& Write(std::ostream& out) const;

 private:
  static constexpr std::uint32_t kInside = 3;

  double* Begin() { return capacity > kInside ? heap : inside; }
  const double* Begin() const { return capacity > kInside ? heap : inside; }
  void Append(double stored);
  void ReadNumbers(const detail::Parenthesised& inner);
  void ReadElements(const std::string& text);

  // An unset number is stored as one particular nan, which no number that is set is stored as.
  union {
    double inside[kInside];
    double* heap;
  };
  std::uint32_t size = 0;
  std::uint32_t capacity = kInside;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_COORDINATES_H_
