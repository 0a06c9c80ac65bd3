#include "fuzz/step_mutator.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "fuzz/step_text.h"

// The mutator of the fuzzer itself, which changes single bytes. The fuzzer calls the two functions
// at the end of this file instead.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace fuzz {
namespace {

using Statements = std::vector<std::string>;

constexpr std::array<std::string_view, 48> kOddValues = {"$",
                                                         "*",
                                                         "",
                                                         "()",
                                                         "(())",
                                                         "'",
                                                         "''",
                                                         "'\\",
                                                         ".T.",
                                                         ".F.",
                                                         ".U.",
                                                         ".NOTDEFINED.",
                                                         ".",
                                                         "..",
                                                         "0",
                                                         "0.",
                                                         "-0.",
                                                         "1",
                                                         "-1",
                                                         "1.",
                                                         "1.E308",
                                                         "-1.E308",
                                                         "1.E-308",
                                                         "1.E999",
                                                         "1E",
                                                         "0.001",
                                                         "1000000000000.",
                                                         "2147483648",
                                                         "-2147483649",
                                                         "9223372036854775807",
                                                         "18446744073709551615",
                                                         "18446744073709551616",
                                                         "NAN",
                                                         "INF",
                                                         "#",
                                                         "#0",
                                                         "#-1",
                                                         "\"",
                                                         "\"0FF\"",
                                                         "IFCLABEL(",
                                                         "'it''s'",
                                                         "'\\X2\\00E9\\X0\\'",
                                                         "'\\X4\\0001F600\\X0\\'",
                                                         "'\\X2\\D83D'",
                                                         "'\\PB\\\\S\\i'",
                                                         "'\\S\\'",
                                                         "'\\X\\e4'",
                                                         "'\xC3\xA4\xE4'"};

std::size_t Below(std::size_t count, Random& random) { return random() % count; }

std::string& Pick(Statements& statements, Random& random) {
  return statements[Below(statements.size(), random)];
}

void Replace(std::string& statement, Span span, const std::string& text) {
  statement.replace(span.begin, span.end - span.begin, text);
}

std::string TextOf(const std::string& statement, Span span) {
  return statement.substr(span.begin, span.end - span.begin);
}

/// Returns one of the spans, nothing if there are none.
std::optional<Span> PickSpan(const std::vector<Span>& spans, Random& random) {
  if (spans.empty()) return std::nullopt;
  return spans[Below(spans.size(), random)];
}

/// Replaces a reference or an argument by one of another statement; `find` says which of the two.
template <std::vector<Span> (*find)(std::string_view)>
void Copy(Statements& statements, Random& random) {
  std::string& to = Pick(statements, random);
  const std::string from = Pick(statements, random);
  const auto target = PickSpan(find(to), random);
  const auto source = PickSpan(find(from), random);
  if (target && source) Replace(to, *target, TextOf(from, *source));
}

void ReferToItself(Statements& statements, Random& random) {
  std::string& statement = Pick(statements, random);
  const auto spans = FindReferences(statement);
  if (spans.size() < 2) return;
  const std::string own = TextOf(statement, spans[0]);
  Replace(statement, spans[1 + Below(spans.size() - 1, random)], own);
}

void Drop(Statements& statements, Random& random) {
  statements.erase(statements.begin() +
                   static_cast<std::ptrdiff_t>(Below(statements.size(), random)));
}

void Repeat(Statements& statements, Random& random) {
  const std::string statement = Pick(statements, random);
  statements.insert(
      statements.begin() + static_cast<std::ptrdiff_t>(Below(statements.size(), random)),
      1 + Below(3, random), statement);
}

void Move(Statements& statements, Random& random) {
  std::swap(Pick(statements, random), Pick(statements, random));
}

void Cut(Statements& statements, Random& random) {
  std::string& statement = Pick(statements, random);
  if (statement.empty()) return;
  const std::size_t at = Below(statement.size(), random);
  statement.erase(at, random() % 2 == 0 ? std::string::npos : 1 + Below(8, random));
  if (random() % 4 != 0) statement += ";\n";
}

void ReplaceArgument(Statements& statements, Random& random) {
  std::string& statement = Pick(statements, random);
  const auto span = PickSpan(FindArguments(statement), random);
  if (!span) return;
  Replace(statement, *span, std::string(kOddValues[Below(kOddValues.size(), random)]));
}

/// Replaces an argument by the record of another statement.
void Nest(Statements& statements, Random& random) {
  std::string& to = Pick(statements, random);
  const std::string from = Pick(statements, random);
  const auto target = PickSpan(FindArguments(to), random);
  if (target) Replace(to, *target, TextOf(from, FindRightSide(from)));
}

void WrapArgument(Statements& statements, Random& random) {
  std::string& statement = Pick(statements, random);
  const auto span = PickSpan(FindArguments(statement), random);
  if (!span) return;
  const std::size_t depth = 1 + Below(40, random);
  Replace(statement, *span,
          std::string(depth, '(') + TextOf(statement, *span) + std::string(depth, ')'));
}

/// Writes an argument, or an element of a list, twice.
void RepeatArgument(Statements& statements, Random& random) {
  std::string& statement = Pick(statements, random);
  const auto span = PickSpan(FindArguments(statement), random);
  if (!span) return;
  const std::string text = TextOf(statement, *span);
  Replace(statement, *span, text + "," + text);
}

void Rename(Statements& statements, Random& random) {
  std::string& to = Pick(statements, random);
  const std::string from = Pick(statements, random);
  const auto nameOf = [](const std::string& statement) {
    const Span right = FindRightSide(statement);
    return Span{right.begin, std::clamp(statement.find('(', right.begin), right.begin, right.end)};
  };
  Replace(to, nameOf(to), TextOf(from, nameOf(from)));
}

using Change = void (*)(Statements&, Random&);
constexpr std::array<Change, 16> kChanges = {Copy<FindReferences>,
                                             Copy<FindReferences>,
                                             Copy<FindReferences>,
                                             ReferToItself,
                                             Drop,
                                             Repeat,
                                             Move,
                                             Cut,
                                             ReplaceArgument,
                                             ReplaceArgument,
                                             ReplaceArgument,
                                             Copy<FindArguments>,
                                             Nest,
                                             WrapArgument,
                                             RepeatArgument,
                                             Rename};

}  // namespace

std::string MutateModel(std::string_view text, Random& random) {
  Statements statements = SplitStatements(text);
  for (std::size_t i = 1 + Below(3, random); i > 0 && !statements.empty(); --i) {
    kChanges[Below(kChanges.size(), random)](statements, random);
  }
  return JoinStatements(statements);
}

std::string CrossModels(std::string_view text, std::string_view other, Random& random) {
  Statements statements = SplitStatements(text);
  const Statements guests = SplitStatements(other);
  if (statements.empty() || guests.empty()) return std::string(text);
  const std::size_t first = Below(guests.size(), random);
  const std::size_t count = 1 + Below(std::min<std::size_t>(guests.size() - first, 12), random);
  const auto from = guests.begin() + static_cast<std::ptrdiff_t>(first);
  statements.insert(
      statements.begin() + static_cast<std::ptrdiff_t>(Below(statements.size(), random)), from,
      from + static_cast<std::ptrdiff_t>(count));
  return JoinStatements(statements);
}

namespace {

/// Copies the text into the fuzzer's buffer and returns the copied size. A text that is too long is
/// cut off.
std::size_t Deliver(const std::string& text, std::uint8_t* data, std::size_t maxSize) {
  const std::size_t size = std::min(text.size(), maxSize);
  std::copy_n(text.begin(), size, data);
  return size;
}

std::string_view ViewOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace
}  // namespace fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
  fuzz::Random random(seed);
  if (random() % 4 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  return fuzz::Deliver(fuzz::MutateModel(fuzz::ViewOf(data, size), random), data, maxSize);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* one, std::size_t oneSize,
                                                 const std::uint8_t* other, std::size_t otherSize,
                                                 std::uint8_t* out, std::size_t maxOutSize,
                                                 unsigned seed) {
  fuzz::Random random(seed);
  return fuzz::Deliver(
      fuzz::CrossModels(fuzz::ViewOf(one, oneSize), fuzz::ViewOf(other, otherSize), random), out,
      maxOutSize);
}
