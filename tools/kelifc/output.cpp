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

void Output::Write(std::string_view text) {
  constexpr std::size_t kBlock = std::size_t{1} << 16;
  buffer += text;
  if (buffer.size() >= kBlock) Flush();
}

void Output::Flush() {
  if (target != nullptr) {
    *target += buffer;
    buffer.clear();
    return;
  }
  ThrowIfInterrupted();
  if (std::fwrite(buffer.data(), 1, buffer.size(), file) != buffer.size()) {
    throw Failure(Status::kFile, name, std::strerror(errno));
  }
  buffer.clear();
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
