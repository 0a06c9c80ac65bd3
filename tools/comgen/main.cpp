// Makes the C++ side of an object model from its description:
//
//   comgen OUTPUT-FOLDER DESCRIPTION
//
// Every file that would be the same keeps its time, so that what depends on it is not built again.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "tools/comgen/emitters.h"
#include "tools/comgen/parser.h"
#include "tools/comgen/resolver.h"

namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path.string() + ": error: cannot be read");
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void WriteIfChanged(const std::filesystem::path& path, const std::string& text) {
  if (std::filesystem::exists(path) && ReadFile(path) == text) return;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error(path.string() + ": error: cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: comgen OUTPUT-FOLDER DESCRIPTION\n";
    return 64;
  }
  try {
    comgen::Description description = comgen::ParseDescription(argv[2], ReadFile(argv[2]));
    comgen::Resolve(description);
    comgen::Files files;
    comgen::EmitInterfaces(description, files);
    comgen::EmitBases(description, files);
    comgen::EmitClassTable(description, files);
    comgen::EmitOrderTest(description, files);
    for (const auto& [path, text] : files) {
      WriteIfChanged(std::filesystem::path(argv[1]) / path, text);
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
