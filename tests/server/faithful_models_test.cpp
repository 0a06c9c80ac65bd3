#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/ifc_server.h"

#include "tests/paths.h"
#include "tests/server/load_text.h"
#include "tests/server/temp_file.h"

// Faithful saves of whole models: the examples, and real models if there are any.

namespace KelIFC {
namespace {

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::vector<fs::path> ModelFiles() {
  std::vector<fs::path> files;
  const char* const data = std::getenv("KELIFC_TEST_DATA");
  for (const fs::path& folder : {fs::path(kExamplesDir), fs::path(data == nullptr ? "" : data)}) {
    if (folder.empty()) continue;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.path().extension() == ".ifc") files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// What follows FILE_NAME, which a save changes.
std::string AfterName(const std::string& text) {
  const std::size_t begin = text.find("FILE_SCHEMA");
  return begin == std::string::npos ? "no schema" : text.substr(begin);
}

/// The first line of `a` that is not the same in `b`; "" if there is none. The texts themselves are
/// too long for a message.
std::string FirstDifference(const std::string& a, const std::string& b) {
  const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  if (inA == a.end() && inB == b.end()) return "";
  const auto lineOf = [](const std::string& text, std::string::const_iterator at) {
    const auto offset = static_cast<std::size_t>(at - text.begin());
    const std::size_t begin = text.rfind('\n', offset) + 1;
    return text.substr(begin, std::min<std::size_t>(200, text.find('\n', offset) - begin));
  };
  return lineOf(a, inA) + " became " + lineOf(b, inB);
}

class FaithfulModels : public testing::TestWithParam<fs::path> {
 protected:
  void SetUp() override {
    ASSERT_EQ(server.LoadIfc(GetParam().string().c_str(), OptionsFor(STEP_DIALECT_ISO)), 0);
    text = ReadAll(GetParam());
  }

  // The file that a save writes, from its schema on.
  std::string Save() {
    const TempFile target;
    SaveOptions options;
    options.faithful = true;
    EXPECT_EQ(server.SaveIfc(target.GetPath(), options), SAVE_RESULT_SAVED);
    return AfterName(ReadAll(target.GetPath()));
  }

  // The source with another text in the place of a statement, from its schema on.
  std::string WithStatement(std::size_t number, const std::string& statement) const {
    const StatementPlace place = server.GetStatementPlace(number);
    std::string changed = text;
    return AfterName(
        changed.replace(static_cast<std::size_t>(place.offset), place.length, statement));
  }

  IfcServer server;
  std::string text;
};

TEST_P(FaithfulModels, AreCopiedIfNothingChanges) {
  EXPECT_EQ(FirstDifference(AfterName(text), Save()), "");
}

TEST_P(FaithfulModels, HaveOneOtherStatementIfOneAttributeChanges) {
  for (const std::size_t number : NumbersOf(server)) {
    auto* const point = dynamic_cast<IfcCartesianPoint*>(server.GetItem(number));
    if (point == nullptr || point->GetDim() < 1) continue;
    point->SetCoordinates(1, REAL(point->GetCoordinates()[1] + 1.0));
    const std::string statement =
        "#" + std::to_string(number) + "=" + RecordOf(server, number) + ");";
    EXPECT_EQ(FirstDifference(WithStatement(number, statement), Save()), "");
    return;
  }
  FAIL() << "the model has no point";
}

TEST_P(FaithfulModels, LoseOneStatementIfOneInstanceIsDeleted) {
  const std::vector<std::size_t> numbers = NumbersOf(server);
  const std::size_t number = numbers[numbers.size() / 2];
  ASSERT_NE(server.GetSourceLine(number), 0U);
  const std::string expected = WithStatement(number, "");
  server.DeleteItem(server.GetItem(number));
  EXPECT_EQ(FirstDifference(expected, Save()), "");
}

INSTANTIATE_TEST_SUITE_P(Files, FaithfulModels, testing::ValuesIn(ModelFiles()),
                         [](const auto& info) {
                           std::string name = info.param.stem().string();
                           std::replace_if(
                               name.begin(), name.end(),
                               [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                           return name + "_" + std::to_string(info.index);
                         });

}  // namespace
}  // namespace KelIFC
