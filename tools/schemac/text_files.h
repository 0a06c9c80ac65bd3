#ifndef KELIFC_TOOLS_SCHEMAC_TEXT_FILES_H_
#define KELIFC_TOOLS_SCHEMAC_TEXT_FILES_H_

#include <filesystem>
#include <string>

namespace schemac {

/// Returns the whole text of a file. Throws std::runtime_error with the path if the file cannot be
/// read.
std::string ReadTextFile(const std::filesystem::path& path);

/// Writes a file and creates its folders. A file that already has the text keeps its time, so that
/// its dependents are not built again. Throws std::runtime_error with the path if the file cannot
/// be written.
void WriteIfChanged(const std::filesystem::path& path, const std::string& text);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_TEXT_FILES_H_
