#ifndef KELIFC_PLATFORM_PROGRAM_H_
#define KELIFC_PLATFORM_PROGRAM_H_

#include <cstdio>
#include <filesystem>
#include <string_view>

namespace KelIFC {

// What a program that uses the library asks the system. The functions are linked into programs; the
// shared library does not contain them.

/// Returns true if the stream is connected to a terminal.
bool IsTerminal(std::FILE* stream);

/// Makes the stream pass each byte unchanged from now on. By default Windows converts line ends,
/// and an input stream ends at the byte 0x1A.
void SetBinary(std::FILE* stream);

/// Returns the path of a file name from the command line. On Windows such a name is in the system's
/// ANSI code page.
std::filesystem::path PathOfArgument(std::string_view name);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_PROGRAM_H_
