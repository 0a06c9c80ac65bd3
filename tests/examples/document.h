#ifndef TESTS_EXAMPLES_DOCUMENT_H_
#define TESTS_EXAMPLES_DOCUMENT_H_

#include <string>
#include <vector>

namespace document_test {

/// The text of a file of the source tree, named from its root. Fails the test if it is missing.
std::string ReadSource(const std::string& path);

/// The texts between ``` lines of a Markdown page, of those that the opening line marks with
/// `language`. Each text ends with a line end.
std::vector<std::string> BlocksOf(const std::string& page, const std::string& language);

/// The lines of a text, without leading blanks and without line ends.
std::vector<std::string> LinesOf(const std::string& text);

}  // namespace document_test

#endif  // TESTS_EXAMPLES_DOCUMENT_H_
