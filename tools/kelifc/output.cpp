#include "tools/kelifc/output.h"

#include <cerrno>
#include <cstring>

#include "kelifc/platform/program.h"

#include "tools/kelifc/failure.h"
#include "tools/kelifc/progress.h"

namespace command {

Output::Output(const std::string& path)
    : name(path.empty() ? "standard output" : path),
      file(path.empty() ? stdout : std::fopen(path.c_str(), "wb")),
      isStandard(path.empty()) {
  if (file == nullptr) throw Failure(Status::kFile, name, std::strerror(errno));
  KelIFC::SetBinary(file);  // the output has the same bytes on every system
}

Output::Output(std::string& text) : file(nullptr), target(&text), isStandard(false) {}

Output::~Output() {
  if (file != nullptr && !isStandard) std::fclose(file);
}

// Writes a text that does not fit into the rest of the block.
void Output::WriteBlocks(std::string_view text) {
  Flush();
  if (text.size() > kBlockSize) return Put(text);
  text.copy(block.get(), text.size());
  used = text.size();
}

void Output::Flush() {
  Put({block.get(), used});
  used = 0;
}

void Output::Put(std::string_view text) {
  if (target != nullptr) {
    *target += text;
    return;
  }
  ThrowIfInterrupted();
  if (std::fwrite(text.data(), 1, text.size(), file) != text.size()) {
    throw Failure(Status::kFile, name, std::strerror(errno));
  }
}

void Output::Close() {
  Flush();
  if (target != nullptr) return;
  std::FILE* const closed = file;
  file = nullptr;
  // Closing the file flushes it, so closing can fail as well.
  if ((isStandard ? std::fflush(closed) : std::fclose(closed)) != 0) {
    throw Failure(Status::kFile, name, std::strerror(errno));
  }
}

void WriteOutput(const std::string& path, std::string_view text) {
  Output output(path);
  output.Write(text);
  output.Close();
}

}  // namespace command
