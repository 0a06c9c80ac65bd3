#ifndef FUZZ_STEP_TEXT_H_
#define FUZZ_STEP_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// A stretch of a text.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// Cuts a file into statements, each with its `;` and the line end behind it. Joined again they are
/// the same text.
std::vector<std::string> SplitStatements(std::string_view text);

std::string JoinStatements(const std::vector<std::string>& statements);

/// The digits of the references of a statement; its own number, the first of them, too.
std::vector<Span> FindReferences(std::string_view statement);

/// The arguments of a statement, those within inner parentheses as well as the lists they are in.
std::vector<Span> FindArguments(std::string_view statement);

/// How many attributes a record `NAME(...)` has; 0 for what does not end with its parenthesis.
std::size_t CountAttributes(std::string_view record);

/// What stands behind the `=`, without the `;`. All of it where there is no `=`.
Span FindRightSide(std::string_view statement);

}  // namespace fuzz

#endif  // FUZZ_STEP_TEXT_H_
