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

/// The numbers of a point or a direction. Each number can be unset. Positions count from 1. The
/// object stores up to three numbers without an allocation, since nearly every point has at most
/// three.
class KELIFC_API COORDINATES {
 public:
  COORDINATES() : heap(nullptr) {}
  COORDINATES(const COORDINATES& other);
  COORDINATES& operator=(const COORDINATES& other);
  virtual ~COORDINATES() {
    if (capacity > kInside) delete[] heap;
  }

  /// Adds a number. Returns its position.
  std::size_t Add(REAL number);
  /// Returns the number at a position, or an unset number for a position out of range.
  REAL operator[](std::size_t position) const { return GetItem(position); }
  /// Does what `operator[]` does.
  REAL GetItem(std::size_t position) const;
  /// Replaces a number. A position out of range changes nothing.
  void SetItem(std::size_t position, REAL number);
  /// Returns how many numbers there are, including unset ones.
  std::size_t GetSize() const { return size; }
  /// Copies the first `count` numbers to `numbers`. An unset number and one out of range are copied
  /// as 0.
  void GetNumbers(double* numbers, std::size_t count) const;
  /// Allocates memory for `count` numbers in all.
  void Reserve(std::size_t count);
  /// Removes numbers from the end, or adds unset ones.
  void Resize(std::size_t count);

  /// Parses the numbers between the first parenthesis and its counterpart, or the end of the text.
  /// Unset numbers are left out, and non-numeric text reads as 0. Without a parenthesis the result
  /// is empty and the cursor does not move.
  const char* Parse(const char* text);
  /// Writes the numbers in parentheses, each as REAL::Write does.
  std::ostream& Write(std::ostream& out) const;

 private:
  static constexpr std::uint32_t kInside = 3;

  double* Begin() { return capacity > kInside ? heap : inside; }
  const double* Begin() const { return capacity > kInside ? heap : inside; }
  void Append(double stored);
  void ReadNumbers(const detail::Parenthesised& inner);
  void ReadElements(const std::string& text);

  // An unset number is stored as one particular NaN. No number that is set is stored as this NaN.
  union {
    double inside[kInside];
    double* heap;
  };
  std::uint32_t size = 0;
  std::uint32_t capacity = kInside;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_COORDINATES_H_
