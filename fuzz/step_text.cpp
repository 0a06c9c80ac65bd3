#include "fuzz/step_text.h"

#include <algorithm>

namespace fuzz {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Returns the position after the string that begins at `at`; the end of the text if the string
/// does not end.
std::size_t AfterString(std::string_view text, std::size_t at) {
  const std::size_t close = text.find('\'', at + 1);
  return close == std::string_view::npos ? text.size() : close + 1;
}

}  // namespace

std::vector<std::string> SplitStatements(std::string_view text) {
  std::vector<std::string> statements;
  std::size_t begin = 0;
  for (std::size_t at = 0; at < text.size();) {
    if (text[at] == '\'') {
      at = AfterString(text, at);
    } else if (text[at++] == ';') {
      while (at < text.size() && (text[at] == '\n' || text[at] == '\r')) ++at;
      statements.emplace_back(text.substr(begin, at - begin));
      begin = at;
    }
  }
  if (begin < text.size()) statements.emplace_back(text.substr(begin));
  return statements;
}

std::string JoinStatements(const std::vector<std::string>& statements) {
  std::string text;
  for (const std::string& statement : statements) text += statement;
  return text;
}

std::vector<Span> FindReferences(std::string_view statement) {
  std::vector<Span> spans;
  for (std::size_t at = 0; at < statement.size();) {
    if (statement[at] == '\'') {
      at = AfterString(statement, at);
    } else if (statement[at++] == '#') {
      const std::size_t begin = at;
      while (at < statement.size() && IsDigit(statement[at])) ++at;
      if (at > begin) spans.push_back({begin, at});
    }
  }
  return spans;
}

std::vector<Span> FindArguments(std::string_view statement) {
  std::vector<Span> spans;
  std::vector<std::size_t> open;  // the begin of the current argument at each depth
  for (std::size_t at = 0; at < statement.size();) {
    const char c = statement[at];
    if (c == '\'') {
      at = AfterString(statement, at);
      continue;
    }
    if ((c == ',' || c == ')') && !open.empty()) {
      spans.push_back({open.back(), at});
      open.back() = at + 1;
    }
    if (c == '(') open.push_back(at + 1);
    if (c == ')' && !open.empty()) open.pop_back();
    ++at;
  }
  return spans;
}

std::size_t CountAttributes(std::string_view record) {
  std::size_t depth = 0;
  std::size_t count = 1;
  for (std::size_t at = 0; at < record.size();) {
    if (record[at] == '\'') {
      at = AfterString(record, at);
      continue;
    }
    const char c = record[at++];
    if (c == '(') ++depth;
    if (c == ',' && depth == 1) ++count;
    if (c == ')' && (depth == 0 || --depth == 0)) return at == record.size() ? count : 0;
  }
  return 0;
}

Span FindRightSide(std::string_view statement) {
  const std::size_t sign = statement.find('=');
  const std::size_t begin = sign == std::string_view::npos ? 0 : sign + 1;
  const std::size_t end = std::min(statement.rfind(';'), statement.size());
  return {begin, std::max(begin, end)};
}

}  // namespace fuzz
