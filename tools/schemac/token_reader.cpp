#include "tools/schemac/token_reader.h"

namespace schemac {

namespace {

bool IsNameCharacter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

}  // namespace

void TokenReader::SkipBlanks() {
  while (at < line.text.size() && line.text[at] == ' ') ++at;
}

bool TokenReader::AtEnd() {
  SkipBlanks();
  return at == line.text.size();
}

std::string TokenReader::Word(std::string_view what) {
  if (AtEnd()) Fail("expected " + std::string(what));
  const auto begin = at;
  while (at < line.text.size() && line.text[at] != ' ') ++at;
  return line.text.substr(begin, at - begin);
}

std::string TokenReader::Name(std::string_view what) {
  SkipBlanks();
  const auto begin = at;
  while (at < line.text.size() && IsNameCharacter(line.text[at])) ++at;
  if (at == begin) Fail("expected " + std::string(what));
  return line.text.substr(begin, at - begin);
}

bool TokenReader::Take(std::string_view text) {
  SkipBlanks();
  if (line.text.compare(at, text.size(), text) != 0) return false;
  const auto end = at + text.size();
  const bool cutsName =
      IsNameCharacter(text.back()) && end < line.text.size() && IsNameCharacter(line.text[end]);
  if (cutsName) return false;
  at = end;
  return true;
}

void TokenReader::Expect(std::string_view text) {
  if (!Take(text)) Fail("expected '" + std::string(text) + "'");
}

std::string TokenReader::Until(std::string_view stops) {
  SkipBlanks();
  const auto begin = at;
  int depth = 0;
  while (at < line.text.size()) {
    const char c = line.text[at];
    if (depth == 0 && stops.find(c) != std::string_view::npos) break;
    if (c == '(') ++depth;
    if (c == ')') --depth;
    ++at;
  }
  auto end = at;
  while (end > begin && line.text[end - 1] == ' ') --end;
  return line.text.substr(begin, end - begin);
}

Place TokenReader::Here() {
  SkipBlanks();
  Place place = line.place;
  std::size_t begin = 0;
  for (const auto& continuation : line.continuations) {
    if (continuation.offset > at) break;
    place = continuation.place;
    begin = continuation.offset;
  }
  place.column += static_cast<int>(at - begin);
  return place;
}

void TokenReader::Fail(const std::string& message) { throw DescriptionError(Here(), message); }

}  // namespace schemac
