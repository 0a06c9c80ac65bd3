#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/ifc_server.h"

#include "tests/model_files.h"
#include "tests/paths.h"
#include "tests/read_file.h"
#include "tests/server/load_text.h"
#include "tests/server/temp_file.h"

// Faithful saves of whole models: the examples, and real models if there are any.

namespace KelIFC {
namespace {

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

class FaithfulModels : public testing::TestWithParam<std::filesystem::path> {
 protected:
  void SetUp() override {
    ASSERT_EQ(server.LoadIfc(GetParam().string().c_str(), OptionsFor(STEP_DIALECT_ISO)), 0);
    text = ReadFile(GetParam());
  }

  // The file that a save writes, from its schema on.
  std::string Save() {
    const TempFile target;
    SaveOptions options;
    options.faithful = true;
    EXPECT_EQ(server.SaveIfc(target.GetPath(), options), SAVE_RESULT_SAVED);
    return AfterName(ReadFile(target.GetPath()));
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

INSTANTIATE_TEST_SUITE_P(Files, FaithfulModels, testing::ValuesIn(ExamplesAndRealModels()),
                         TestNameOf);

}  // namespace
}  // namespace KelIFC
