#include "tools/kelifc/output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "tools/kelifc/failure.h"

namespace command {
namespace {

/// Keeps line ends as they are, so that the output has the same bytes on every system.
void KeepLineEnds(std::FILE* stream) {
#ifdef _WIN32
  _setmode(_fileno(stream), _O_BINARY);
#else
  static_cast<void>(stream);
#endif
}

}  // namespace

void WriteOutput(const std::string& path, std::string_view text) {
  const std::string name = path.empty() ? "standard output" : path;
  std::FILE* file = path.empty() ? stdout : std::fopen(path.c_str(), "wb");
  if (file == nullptr) throw Failure(Status::kFile, name, std::strerror(errno));

  KeepLineEnds(file);
  // The message names the first error. Closing the file flushes it, so closing can fail as well.
  int error = 0;
  if (std::fwrite(text.data(), 1, text.size(), file) != text.size()) error = errno;
  const int closed = path.empty() ? std::fflush(file) : std::fclose(file);
  if (closed != 0 && error == 0) error = errno;
  if (error != 0) throw Failure(Status::kFile, name, std::strerror(error));
}

}  // namespace command
