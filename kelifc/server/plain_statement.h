#ifndef KELIFC_SERVER_PLAIN_STATEMENT_H_
#define KELIFC_SERVER_PLAIN_STATEMENT_H_

#include <vector>

namespace KelIFC {

/// Returns the `;` that ends the statement at the begin of the text [at, end), if the statement is
/// plain: it has no line end and no NUL, no slash outside of strings, and no backslash in a string.
/// Such a statement is the same in both dialects: all that matters are the `;` and the quotes.
/// Returns null for any other statement, and if the text ends before the statement. Reads nothing
/// outside of the text.
///
/// Tests 64 characters at a time if the processor has the instructions for it.
const char* FindPlainEnd(const char* at, const char* end);

/// Returns the same, one character at a time.
const char* FindPlainEndBytewise(const char* at, const char* end);

/// A function that does what FindPlainEnd does.
using PlainEndFinder = const char* (*)(const char* at, const char* end);

/// Returns all such functions that the processor can run, the fastest one first. The last one is
/// FindPlainEndBytewise.
std::vector<PlainEndFinder> GetPlainEndFinders();

}  // namespace KelIFC

#endif  // KELIFC_SERVER_PLAIN_STATEMENT_H_
