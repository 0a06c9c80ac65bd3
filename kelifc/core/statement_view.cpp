#include "kelifc/core/statement_view.h"

#include <cstring>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/number_text.h"
#include "kelifc/core/text/quoting.h"

namespace KelIFC {

using Offset = std::uint32_t;

struct StatementView::Attribute {
  Offset begin = 0;  // in the text
  Offset end = 0;
  Offset first = 0;  // of the elements, in the attributes
  Offset count = 0;
  ATTRIBUTE_KIND kind = ATTRIBUTE_NONE;
};

/// The elements of a list stand side by side, and the lists one after the other.
struct StatementView::Statement {
  std::string text;
  std::vector<Attribute> attributes;
};

namespace {

bool BeginsName(char c) { return ascii::IsLetter(c) || c == '_' || c == '!'; }
bool IsNumberCharacter(char c) {
  return ascii::IsDigit(c) || c == '.' || c == '+' || c == '-' || c == 'E' || c == 'e';
}

std::string_view TrimEnd(std::string_view text) {
  while (!text.empty() && detail::IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace

/// Reads a statement without recursion. The elements of lists that are still open are on one stack.
class StatementView::Reader {
 public:
  explicit Reader(Statement& target)
      : statement(target), at(target.text.c_str()), end(target.text.c_str() + target.text.size()) {}

  /// Returns the place of the attributes of the statement itself.
  std::pair<std::size_t, std::size_t> Run() {
    open.push_back({});
    while (SkipBlanks()) TakeToken();
    while (open.size() > 1) Close();
    EndElement(open.back().hasComma);
    const std::size_t first = statement.attributes.size();
    statement.attributes.insert(statement.attributes.end(), elements.begin(), elements.end());
    return {first, elements.size()};
  }

 private:
  // A list or a typed value whose end was not read yet.
  struct List {
    Attribute attribute;
    std::size_t firstElement = 0;  // on the stack of elements
    bool hasComma = false;
    bool hasElement = false;  // since the last comma
    bool isTyped = false;     // the last element is a typed value
  };

  bool SkipBlanks() {
    while (at != end && detail::IsBlank(*at)) ++at;
    return at != end;
  }

  Offset OffsetOf(const char* position) const {
    return static_cast<Offset>(position - statement.text.c_str());
  }

  void TakeToken() {
    if (*at == ',') {
      EndElement(true);
      open.back().hasComma = true;
      ++at;
    } else if (*at == ')') {
      ++at;
      if (open.size() > 1) Close();
    } else if (*at == '(') {
      Open(ATTRIBUTE_LIST, at);
    } else {
      TakeValue();
    }
  }

  // Adds an element without a value if there is a position for one.
  void EndElement(bool isPosition) {
    List& list = open.back();
    if (isPosition && !list.hasElement)
      elements.push_back({OffsetOf(at), OffsetOf(at), 0, 0, ATTRIBUTE_NONE});
    list.hasElement = list.isTyped = false;
  }

  void Open(ATTRIBUTE_KIND kind, const char* begin) {
    List list;
    list.attribute.begin = OffsetOf(begin);
    list.attribute.kind = kind;
    list.firstElement = elements.size();
    open.push_back(list);
    ++at;
  }

  // Moves the elements of the last list to their place.
  void Close() {
    EndElement(open.back().hasComma);
    List list = open.back();
    open.pop_back();
    const auto begin = elements.begin() + static_cast<std::ptrdiff_t>(list.firstElement);
    list.attribute.first = static_cast<Offset>(statement.attributes.size());
    list.attribute.count = static_cast<Offset>(elements.end() - begin);
    list.attribute.end = OffsetOf(at);
    statement.attributes.insert(statement.attributes.end(), begin, elements.end());
    elements.erase(begin, elements.end());
    Add(list.attribute);
  }

  void Add(const Attribute& attribute) {
    List& list = open.back();
    const bool isTyped = attribute.kind == ATTRIBUTE_TYPED;
    const bool isKept = !list.hasElement || (isTyped && list.isTyped);
    if (isKept) elements.push_back(attribute);
    list.hasElement = true;
    list.isTyped = isTyped && isKept;
  }

  void TakeValue() {
    const char* const begin = at;
    const ATTRIBUTE_KIND kind = SkipValue();
    if (kind == ATTRIBUTE_TYPED) {
      Open(kind, begin);
    } else {
      Add({OffsetOf(begin), OffsetOf(at), 0, 0, kind});
    }
  }

  // Steps over a value; over the name of a typed one, up to its parenthesis.
  ATTRIBUTE_KIND SkipValue() {
    switch (*at++) {
      case '$':
        return ATTRIBUTE_UNSET;
      case '*':
        return ATTRIBUTE_DERIVED;
      case '#':
        return SkipDigits();
      case kQuote:
        return SkipText();
      case '.':
        return SkipTo('.') ? ATTRIBUTE_ENUMERATION : ATTRIBUTE_NONE;
      case '"':
        return SkipTo('"') ? ATTRIBUTE_BINARY : ATTRIBUTE_NONE;
      default:
        --at;
        return SkipWord();
    }
  }

  ATTRIBUTE_KIND SkipDigits() {
    const char* const digits = at;
    while (ascii::IsDigit(*at)) ++at;
    return at == digits ? ATTRIBUTE_NONE : ATTRIBUTE_REFERENCE;
  }

  ATTRIBUTE_KIND SkipText() {
    decoded.clear();
    const char* const closing = DecodeQuoted(at - 1, decoded);
    at = closing == nullptr ? end : closing + 1;
    return closing == nullptr ? ATTRIBUTE_NONE : ATTRIBUTE_TEXT;
  }

  // Steps over a mark, if one follows before the end of the value.
  bool SkipTo(char mark) {
    const char* const found = at + std::strcspn(at, mark == '.' ? ".,()'" : "\",()'");
    at = found;
    if (*found != mark) return false;
    ++at;
    return true;
  }

  // Steps over a number, the name of a typed value, or anything up to the next mark.
  ATTRIBUTE_KIND SkipWord() {
    const char* const begin = at;
    at += std::strcspn(at, ",()'\"");
    const std::string_view word(begin, static_cast<std::size_t>(at - begin));
    if (at == begin) ++at;
    if (*at == '(' && BeginsName(*begin)) return ATTRIBUTE_TYPED;
    bool isReal = false;
    bool hasDigit = false;
    for (const char c : word) {
      if (detail::IsBlank(c)) continue;
      if (!IsNumberCharacter(c)) return ATTRIBUTE_NONE;
      hasDigit = hasDigit || ascii::IsDigit(c);
      isReal = isReal || c == '.' || c == 'E' || c == 'e';
    }
    return !hasDigit ? ATTRIBUTE_NONE : isReal ? ATTRIBUTE_REAL : ATTRIBUTE_INTEGER;
  }

  Statement& statement;
  const char* at;
  const char* const end;
  std::vector<List> open;
  std::vector<Attribute> elements;
  std::string decoded;
};

StatementView::StatementView(std::string_view attributes) {
  if (attributes.empty() || attributes.size() > std::numeric_limits<Offset>::max()) return;
  auto read = std::make_shared<Statement>();
  read->text = attributes.substr(0, attributes.find('\0'));
  std::tie(first, count) = Reader(*read).Run();
  statement = std::move(read);
}

const StatementView::Attribute* StatementView::Find(std::size_t position) const {
  if (position == 0 || position > count) return nullptr;
  return &statement->attributes[first + position - 1];
}

const StatementView::Attribute* StatementView::Find(std::size_t position,
                                                    ATTRIBUTE_KIND kind) const {
  const Attribute* found = Find(position);
  return found != nullptr && found->kind == kind ? found : nullptr;
}

ATTRIBUTE_KIND StatementView::GetKind(std::size_t position) const {
  const Attribute* found = Find(position);
  return found == nullptr ? ATTRIBUTE_NONE : found->kind;
}

std::string_view StatementView::GetSource(std::size_t position) const {
  const Attribute* found = Find(position);
  if (found == nullptr) return {};
  return TrimEnd(std::string_view(statement->text).substr(found->begin, found->end - found->begin));
}

std::size_t StatementView::GetReference(std::size_t position) const {
  const Attribute* found = Find(position, ATTRIBUTE_REFERENCE);
  if (found == nullptr) return 0;
  const char* end = nullptr;
  return static_cast<std::size_t>(
      std::int64_t{ReadInteger(&statement->text[found->begin + 1], &end)});
}

double StatementView::GetNumber(std::size_t position) const {
  const ATTRIBUTE_KIND kind = GetKind(position);
  if (kind != ATTRIBUTE_INTEGER && kind != ATTRIBUTE_REAL) return 0;
  const char* end = nullptr;
  return ReadReal(&statement->text[Find(position)->begin], &end);
}

std::string StatementView::GetText(std::size_t position) const {
  const std::string_view source = GetSource(position);
  std::string text;
  switch (GetKind(position)) {
    case ATTRIBUTE_TEXT:
      DecodeQuoted(source.data(), text);
      return text;
    case ATTRIBUTE_ENUMERATION:
    case ATTRIBUTE_BINARY:
      return text.assign(source.substr(1, source.size() - 2));
    default:
      return text;
  }
}

StatementView StatementView::GetList(std::size_t position) const {
  const Attribute* found = Find(position);
  StatementView list;
  if (found == nullptr || found->count == 0) return list;
  list.statement = statement;
  list.first = found->first;
  list.count = found->count;
  return list;
}

std::string_view StatementView::GetTypeName(std::size_t position) const {
  if (Find(position, ATTRIBUTE_TYPED) == nullptr) return {};
  const std::string_view source = GetSource(position);
  return TrimEnd(source.substr(0, source.find('(')));
}

}  // namespace KelIFC
