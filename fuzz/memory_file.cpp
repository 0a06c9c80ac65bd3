#include "fuzz/memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace fuzz {

MemoryFile::MemoryFile() : descriptor(memfd_create("model.ifc", 0)) {
  if (descriptor < 0) std::abort();
  path = "/proc/self/fd/" + std::to_string(descriptor);
}

MemoryFile::~MemoryFile() { close(descriptor); }

void MemoryFile::Write(std::string_view text) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!file.flush()) std::abort();
}

std::string MemoryFile::Read() const {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace fuzz
