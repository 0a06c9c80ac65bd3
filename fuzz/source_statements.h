#ifndef FUZZ_SOURCE_STATEMENTS_H_
#define FUZZ_SOURCE_STATEMENTS_H_

#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// Returns the statements of a file in the dialect of ISO 10303-21 that follow FILE_SCHEMA, without
/// comments and line ends. Statements without an end are left out.
std::vector<std::string> StatementsAfterSchema(std::string_view text);

}  // namespace fuzz

#endif  // FUZZ_SOURCE_STATEMENTS_H_
