#include "tools/schemac/text_files.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace schemac {

std::string ReadTextFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path.string() + ": error: cannot be read");
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void WriteIfChanged(const std::filesystem::path& path, const std::string& text) {
  if (std::filesystem::exists(path) && ReadTextFile(path) == text) return;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error(path.string() + ": error: cannot be written");
}

}  // namespace schemac
