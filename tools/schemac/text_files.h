#ifndef KELIFC_TOOLS_SCHEMAC_TEXT_FILES_H_
#define KELIFC_TOOLS_SCHEMAC_TEXT_FILES_H_

#include <filesystem>
#include <string>

namespace schemac {

/// The whole text of a file. Throws std::runtime_error that names one that cannot be read.
std::string ReadTextFile(const std::filesystem::path& path);

/// Writes a file, and the folders above it. One that has the text already keeps its time, so that
/// what depends on it is not built again. Throws std::runtime_error that names one that cannot be
/// written.
void WriteIfChanged(const std::filesystem::path& path, const std::string& text);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_TEXT_FILES_H_
