#ifndef FUZZ_STEP_TEXT_H_
#define FUZZ_STEP_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// A part of a text: the indices of its first character and of the one after its last.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// Splits a file into statements. Each includes its `;` and the line ends after it, so that
/// JoinStatements restores the text.
std::vector<std::string> SplitStatements(std::string_view text);

std::string JoinStatements(const std::vector<std::string>& statements);

/// Returns the digits of all references in a statement. The first one is its own number.
std::vector<Span> FindReferences(std::string_view statement);

/// Returns all arguments of a statement: lists, and the arguments inside lists and inline values.
std::vector<Span> FindArguments(std::string_view statement);

/// Returns the number of attributes of a record `NAME(...)`; 0 if the text does not end with the
/// closing parenthesis.
std::size_t CountAttributes(std::string_view record);

/// Returns what is between the `=` and the last `;`. If there is no `=`, the begin is 0.
Span FindRightSide(std::string_view statement);

}  // namespace fuzz

#endif  // FUZZ_STEP_TEXT_H_
