#include "kelifc/core/detail/text_out.h"

#include <algorithm>
#include <charconv>

namespace KelIFC::detail {

namespace {

template <class Number>
void PutDecimal(std::ostream& out, Number number) {
  char text[24];
  const auto result = std::to_chars(text, text + sizeof text, number);
  PutText(out, std::string_view(text, static_cast<std::size_t>(result.ptr - text)));
}

char ToUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

void PutNumber(std::ostream& out, std::int64_t number) { PutDecimal(out, number); }
void PutNumber(std::ostream& out, std::uint64_t number) { PutDecimal(out, number); }

void PutUpperCase(std::ostream& out, std::string_view text, char last) {
  char piece[128];
  while (text.size() >= sizeof piece) {
    std::transform(text.begin(), text.begin() + sizeof piece, piece, ToUpper);
    PutText(out, std::string_view(piece, sizeof piece));
    text.remove_prefix(sizeof piece);
  }
  *std::transform(text.begin(), text.end(), piece, ToUpper) = last;
  PutText(out, std::string_view(piece, text.size() + 1));
}

}  // namespace KelIFC::detail
