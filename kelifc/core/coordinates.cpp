#include "kelifc/core/coordinates.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>
#include <string>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/lists/parenthesised.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/number_text.h"

namespace KelIFC {

namespace {

// A quiet NaN that no arithmetic returns.
constexpr std::uint64_t kUnsetBits = 0x7FFC'556E'7365'7400;

bool IsUnset(double stored) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &stored, sizeof bits);
  return bits == kUnsetBits;
}

double MakeUnset() {
  double stored = 0.0;
  std::memcpy(&stored, &kUnsetBits, sizeof stored);
  return stored;
}

double StoredOf(const REAL& number) {
  if (!number.GetExists()) return MakeUnset();
  return IsUnset(number) ? std::numeric_limits<double>::quiet_NaN() : double{number};
}

// The numbers of a point or a direction.
struct PlainNumbers {
  static constexpr std::size_t kMost = 3;

  // Parses numbers in their usual form: at most kMost decimal numbers in parentheses, with nothing
  // but commas between them. Returns the position after the parenthesis, or null for any other
  // text.
  const char* Read(const char* text) {
    if (*text != '(') return nullptr;
    const char* at = text;
    do {
      ++at;
      const char first = at[*at == '-' ? 1 : 0];
      const bool isDecimal = ascii::IsDigit(first) || first == '.';
      if (!isDecimal || count == kMost) return nullptr;
      values[count++] = ReadReal(at, &at);
    } while (*at == ',');
    return *at == ')' ? at + 1 : nullptr;
  }

  std::array<double, kMost> values;
  std::size_t count = 0;
};

REAL NumberOf(double stored) { return IsUnset(stored) ? REAL() : REAL(stored); }

}  // namespace

COORDINATES::COORDINATES(const COORDINATES& other) : COORDINATES() { *this = other; }

COORDINATES& COORDINATES::operator=(const COORDINATES& other) {
  if (this == &other) return *this;
  Reserve(other.size);
  std::copy_n(other.Begin(), other.size, Begin());
  size = other.size;
  return *this;
}

void COORDINATES::Reserve(std::size_t count) {
  if (count <= capacity) return;
  if (count > std::numeric_limits<std::uint32_t>::max()) throw std::bad_array_new_length();
  auto* larger = new double[count];
  std::copy_n(Begin(), size, larger);
  if (capacity > kInside) delete[] heap;
  heap = larger;
  capacity = static_cast<std::uint32_t>(count);
}

void COORDINATES::Append(double stored) {
  if (size == capacity) Reserve(2 * std::size_t{capacity});
  Begin()[size++] = stored;
}

std::size_t COORDINATES::Add(REAL number) {
  Append(StoredOf(number));
  return size;
}

REAL COORDINATES::GetItem(std::size_t position) const {
  return position - 1 < size ? NumberOf(Begin()[position - 1]) : REAL();
}

void COORDINATES::GetNumbers(double* numbers, std::size_t count) const {
  const double* const stored = Begin();
  for (std::size_t i = 0; i < count; ++i) {
    numbers[i] = i < size && !IsUnset(stored[i]) ? stored[i] : 0.0;
  }
}

void COORDINATES::SetItem(std::size_t position, REAL number) {
  if (position - 1 < size) Begin()[position - 1] = StoredOf(number);
}

void COORDINATES::Resize(std::size_t count) {
  Reserve(count);
  while (size < count) Append(MakeUnset());
  size = static_cast<std::uint32_t>(count);
}

// Parses numbers without a copy of the text. The text has no further parenthesis, so no parser of
// numbers reads beyond its end.
void COORDINATES::ReadNumbers(const detail::Parenthesised& inner) {
  const char* cursor = inner.begin;
  while (cursor != nullptr) {
    const char* first = detail::SkipBlanks(cursor);
    if (*first != '$' && *first != '*') {
      if (size == kInside) Reserve(kInside + 1 + inner.CountCommas(cursor));
      Append(StoredOf(ReadReal(cursor, &first)));
    }
    cursor = detail::BehindCommaBefore(first, inner.end);
  }
}

// Parses numbers from a copy of the text, so that parsing stops at its end.
void COORDINATES::ReadElements(const std::string& text) {
  REAL number;
  for (const char* cursor = text.c_str(); cursor != nullptr;) {
    cursor = number.Parse(cursor);
    if (number.GetExists()) Append(StoredOf(number));
  }
}

const char* COORDINATES::Parse(const char* text) {
  size = 0;
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  PlainNumbers plain;
  if (const char* const end = plain.Read(text)) {
    for (std::size_t i = 0; i < plain.count; ++i) Append(plain.values[i]);
    return detail::BehindNextComma(end);
  }
  detail::Parenthesised inner;
  if (!detail::FindParenthesised(text, inner)) return text;
  if (inner.isNested) {
    ReadElements(std::string(inner.begin, inner.end));
  } else if (inner.begin != inner.end) {
    ReadNumbers(inner);
  }
  return inner.BehindNextComma();
}

std::ostream& COORDINATES::Write(std::ostream& out) const {
  detail::PutChar(out, '(');
  for (std::uint32_t i = 0; i < size; ++i) {
    if (i != 0) detail::PutChar(out, ',');
    NumberOf(Begin()[i]).Write(out);
  }
  detail::PutChar(out, ')');
  return out;
}

}  // namespace KelIFC
