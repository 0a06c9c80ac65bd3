#ifndef KELIFC_TESTS_READ_FILE_H_
#define KELIFC_TESTS_READ_FILE_H_

#include <filesystem>
#include <string>

namespace KelIFC {

/// Returns the bytes of a file. They are empty if the file cannot be read.
std::string ReadFile(const std::filesystem::path& path);

}  // namespace KelIFC

#endif  // KELIFC_TESTS_READ_FILE_H_
