#include "kelifc/core/lists/parse_members.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/position_index.h"
#include "kelifc/core/lists/parenthesised.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/number_text.h"
#include "kelifc/core/text/reference_text.h"
#include "kelifc/core/value.h"

namespace KelIFC {

namespace {

// Parses a list in its usual form, which is short: references with a comma, and perhaps a blank,
// between them. Returns the position after the parenthesis. Returns null for any other list, and
// then `items` does not change.
template <class Items>
const char* ReadPlainList(const char* text, IfcUnknown* owner, Items& items) {
  constexpr std::size_t kMostNumbers = 64;
  std::array<std::uint32_t, kMostNumbers> numbers;
  std::size_t count = 0;
  if (*text != '(') return nullptr;
  const char* at = text;
  do {
    ++at;
    if (*at == ' ') ++at;
    if (count == kMostNumbers) return nullptr;
    at = ReadPlainReference(at, numbers[count++]);
    if (at == nullptr) return nullptr;
  } while (*at == ',');
  if (*at != ')') return nullptr;
  items.Reserve(count);
  for (std::size_t i = 0; i < count; ++i) items.Append(owner, std::size_t{numbers[i]});
  return at + 1;
}

// Parses `#n` and unset elements without a copy of the text. The text has no further parenthesis,
// so no parser of numbers reads beyond its end. Returns the position of the first other element, or
// null after the last element.
template <class Items>
const char* ReadNumbers(const detail::Parenthesised& inner, IfcUnknown* owner, Items& items) {
  const char* cursor = inner.begin;
  while (cursor != nullptr) {
    const char* first = detail::SkipBlanks(cursor);
    if (*first == '#' && ascii::IsDigit(first[1])) {
      const std::int64_t number = ReadInteger(first + 1, &first);
      items.Append(owner, static_cast<std::size_t>(number));
    } else if (*first != '$' && *first != '*') {
      return cursor;
    }
    cursor = detail::BehindCommaBefore(first, inner.end);
  }
  return nullptr;
}

// Parses elements of every kind from a copy of the text, so that parsing stops at its end. An
// element that does not move the cursor ends the list.
template <class Items>
void ReadElements(const std::string& text, IfcUnknown* owner, Items& items) {
  int entities = 0;
  std::size_t allowance = kEntityTextFactor * text.size() + kEntityTextAllowance;
  const char* cursor = text.c_str();
  while (cursor != nullptr) {
    MEMBER element(owner);
    const char* next = element.Parse(cursor);
    const IfcUnknown* value = element.GetInlineValue();
    // A typed value scans only its own text.
    if (value != nullptr && !IsTypedValue(value)) {
      const auto rest = static_cast<std::size_t>(text.c_str() + text.size() - cursor);
      if (++entities > kMaximumEntitiesInList || rest > allowance) return;
      allowance -= rest;
    }
    if (element.GetExists()) items.Append(element);
    if (next == cursor) return;
    cursor = next;
  }
}

template <class Items>
void DropUnusedSpace(Items& items) {
  if (items.GetSize() < items.GetCapacity() / 2) items.ShrinkToFit();
}

}  // namespace

template <class Header>
const char* ParseMembers(const char* text, IfcUnknown* owner,
                         detail::Sequence<MEMBER, Header>& items) {
  items.Clear();
  if (const char* const end = ReadPlainList(text, owner, items)) {
    DropUnusedSpace(items);
    return detail::BehindNextComma(end);
  }
  detail::Parenthesised inner;
  if (!detail::FindParenthesised(text, inner)) return text;
  if (inner.begin != inner.end) {
    // An element has at least two characters.
    const auto length = static_cast<std::size_t>(inner.end - inner.begin);
    items.Reserve(std::min(inner.CountCommas(inner.begin), length / 2) + 1);
    const char* rest = inner.isNested ? inner.begin : ReadNumbers(inner, owner, items);
    if (rest != nullptr) ReadElements(std::string(rest, inner.end), owner, items);
    DropUnusedSpace(items);
  }
  return inner.BehindNextComma();
}

template const char* ParseMembers(const char*, IfcUnknown*,
                                  detail::Sequence<MEMBER, detail::NoHeader>&);
template const char* ParseMembers(const char*, IfcUnknown*,
                                  detail::Sequence<MEMBER, detail::PositionIndex>&);

}  // namespace KelIFC
