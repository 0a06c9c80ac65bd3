// Generates the C++ code of an object model from its description:
//
//   comgen OUTPUT-FOLDER DESCRIPTION VERSION
//
// A file whose text does not change is not written, so that nothing that depends on it is built
// again.

#include <exception>
#include <filesystem>
#include <iostream>

#include "tools/comgen/emitters.h"
#include "tools/comgen/parser.h"
#include "tools/comgen/resolver.h"
#include "tools/schemac/text_files.h"

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: comgen OUTPUT-FOLDER DESCRIPTION VERSION\n";
    return 64;
  }
  try {
    comgen::Description description =
        comgen::ParseDescription(argv[2], schemac::ReadTextFile(argv[2]));
    comgen::Resolve(description);
    comgen::Files files;
    comgen::EmitInterfaces(description, files);
    comgen::EmitBases(description, files);
    comgen::EmitClassTable(description, argv[3], files);
    comgen::EmitIdl(description, argv[3], files);
    comgen::EmitOrderTest(description, files);
    for (const auto& [path, text] : files) {
      schemac::WriteIfChanged(std::filesystem::path(argv[1]) / path, text);
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
