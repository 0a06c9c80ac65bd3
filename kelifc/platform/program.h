#ifndef KELIFC_PLATFORM_PROGRAM_H_
#define KELIFC_PLATFORM_PROGRAM_H_

#include <cstdio>
#include <filesystem>
#include <string_view>

namespace KelIFC {

// What a program on top of the library asks the system for. The functions are linked into programs
// and are no part of the library.

/// Returns true if the stream is connected to a terminal.
bool IsTerminal(std::FILE* stream);

/// Makes the stream pass every byte unchanged from now on. Without it Windows translates line ends
/// and ends an input at the byte 0x1A.
void SetBinary(std::FILE* stream);

/// Returns the path of a file name that the command line gave. On Windows such a name is in the
/// system's ANSI code page.
std::filesystem::path PathOfArgument(std::string_view name);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_PROGRAM_H_
