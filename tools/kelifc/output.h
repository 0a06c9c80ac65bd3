#ifndef TOOLS_KELIFC_OUTPUT_H_
#define TOOLS_KELIFC_OUTPUT_H_

#include <string>
#include <string_view>

namespace command {

/// Writes `text` to the file at `path`, or to standard output if `path` is empty. Throws Failure
/// with Status::kFile if the text is not written completely, for example because the disk is full.
void WriteOutput(const std::string& path, std::string_view text);

}  // namespace command

#endif  // TOOLS_KELIFC_OUTPUT_H_
