// Generates the entity classes from their descriptions:
//
//   schemac OUTPUT-FOLDER FILE...
//
// A file NAME.schema describes entities. A file NAME.inl contains the code that is written by hand
// for entities and functions that the files before it describe. Output files that do not change
// keep their time, so that their dependents are not built again.

#include <exception>
#include <filesystem>
#include <iostream>

#include "tools/schemac/bodies.h"
#include "tools/schemac/emitters.h"
#include "tools/schemac/parser.h"
#include "tools/schemac/resolver.h"
#include "tools/schemac/text_files.h"

namespace {

schemac::Files Emit(const schemac::Description& description) {
  schemac::Files files;
  std::vector<schemac::ReleaseModel> models;
  for (std::size_t release = 0; release < schemac::kReleaseCount; ++release) {
    models.push_back(schemac::Resolve(description, release));
    schemac::AttachBodies(description, models.back());
    for (const auto& family : description.families) {
      schemac::EmitHeader(models.back(), family, files);
      schemac::EmitSource(models.back(), family, files);
    }
    schemac::EmitNames(models.back(), files);
    schemac::EmitComparisons(models.back(), files);
    schemac::EmitAttributes(models.back(), files);
    schemac::EmitRecords(models.back(), files);
    schemac::EmitRelease(description, models.back(), files);
  }
  schemac::EmitCoreEnumerations(description, files);
  schemac::EmitSlots(models, files);
  schemac::EmitReference(description, models, files);
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: schemac OUTPUT-FOLDER FILE...\n";
    return 64;
  }
  try {
    schemac::Description description;
    for (int i = 2; i < argc; ++i) {
      const bool isCode = std::filesystem::path(argv[i]).extension() == ".inl";
      const auto read = isCode ? schemac::ParseBodies : schemac::ParseDescription;
      read(argv[i], schemac::ReadTextFile(argv[i]), description);
    }
    for (const auto& [path, text] : Emit(description)) {
      schemac::WriteIfChanged(std::filesystem::path(argv[1]) / path, text);
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
