#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "tests/paths.h"

namespace KelIFC {
namespace {

using Folders = std::vector<std::string>;

/// Returns the folders of the files that the sources of a folder include, such as "import/model".
Folders IncludedBy(const std::filesystem::path& folder) {
  static const std::regex kInclude("#include \"kelifc/(.*)/[^/]*\"");
  Folders included;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path());
    std::smatch match;
    for (std::string line; std::getline(file, line);) {
      if (std::regex_match(line, match, kInclude)) included.push_back(match[1]);
    }
  }
  return included;
}

/// Returns whether a folder is one of the layers, or is inside of one.
bool IsIn(const Folders& layers, const std::string& folder) {
  return std::any_of(layers.begin(), layers.end(), [&](const std::string& layer) {
    return folder == layer || folder.rfind(layer + "/", 0) == 0;
  });
}

Folders Join(Folders folders, const Folders& others) {
  folders.insert(folders.end(), others.begin(), others.end());
  return folders;
}

TEST(ImportLayers, IncludeOnlyWhatIsBelow) {
  const Folders base = {"platform", "core", "geometry", "server", "schema"};
  const Folders model = Join(base, {"import/model"});
  const Folders shape = Join(model, {"import/shape"});
  const Folders element = Join(model, {"import/element", "geo"});
  const Folders opening = Join(Join(shape, element), {"import/opening"});
  std::map<std::string, Folders> allowed = {
      {"model", model}, {"shape", shape}, {"element", element}, {"opening", opening}};
  const std::filesystem::path root = std::string(kSourceDir) + "/kelifc/import";
  for (const auto& entry : std::filesystem::directory_iterator(root)) {
    if (!entry.is_directory()) continue;
    const std::string name = entry.path().filename().string();
    const auto product = allowed.try_emplace(name, Join(opening, {"import/" + name}));
    const Folders included = IncludedBy(entry.path());
    EXPECT_FALSE(included.empty()) << name;
    for (const std::string& folder : included) {
      EXPECT_TRUE(IsIn(product.first->second, folder)) << name << " includes " << folder;
    }
  }
}

}  // namespace
}  // namespace KelIFC
