#include "tests/model_files.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "tests/paths.h"

namespace KelIFC {
namespace {

namespace fs = std::filesystem;

void AddModels(std::vector<fs::path>& models, const fs::path& folder) {
  if (folder.empty()) return;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".ifc") models.push_back(entry.path());
  }
  std::sort(models.begin(), models.end());
}

}  // namespace

std::vector<fs::path> RealModels() {
  std::vector<fs::path> models;
  const char* const folder = std::getenv("KELIFC_TEST_DATA");
  AddModels(models, folder == nullptr ? "" : folder);
  return models;
}

std::vector<fs::path> ExamplesAndRealModels() {
  std::vector<fs::path> models = RealModels();
  AddModels(models, kExamplesDir);
  return models;
}

std::string TestNameOf(const testing::TestParamInfo<fs::path>& info) {
  std::string name = info.param.stem().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name + "_" + std::to_string(info.index);
}

}  // namespace KelIFC
