#include "kelifc/platform/memory_file.h"

#ifdef __linux__
#include <sys/mman.h>
#include <unistd.h>

#include <utility>
#endif

namespace KelIFC {

#ifdef __linux__

MemoryFile::MemoryFile() : descriptor(memfd_create("kelifc", MFD_CLOEXEC)) {
  if (descriptor < 0) return;
  std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  if (access(link.c_str(), R_OK | W_OK) == 0) path = std::move(link);
}

MemoryFile::~MemoryFile() {
  if (descriptor >= 0) close(descriptor);
}

#else

MemoryFile::MemoryFile() = default;
MemoryFile::~MemoryFile() = default;

#endif

}  // namespace KelIFC
