#include "tests/read_file.h"

#include <fstream>
#include <iterator>

namespace KelIFC {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace KelIFC
