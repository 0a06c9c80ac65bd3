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

/// From now on, the first Ctrl-C does not end the program: IsInterrupted returns true after it, and
/// system calls that wait for input end. The second one ends the program. Does nothing in a program
/// that was started with Ctrl-C ignored.
void CatchInterrupts();

/// Returns true after a Ctrl-C that was caught. Any thread can call it.
bool IsInterrupted();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_PROGRAM_H_
