#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/ifc_server.h"

#include "tests/faults/failing_allocation.h"
#include "tests/faults/small_model.h"
#include "tests/read_file.h"
#include "tests/server/temp_file.h"

// A save that runs out of memory fails and leaves the old file, or it writes the whole model.

namespace KelIFC {
namespace {

namespace fs = std::filesystem;

constexpr char kOld[] = "the file that was there before";

/// A folder of the running test, which is removed at its end.
class FaultyReplacement : public testing::TestWithParam<bool> {
 protected:
  FaultyReplacement() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string("kelifc_faults_") + test->name();
    std::replace(name.begin(), name.end(), '/', '_');
    folder = fs::path(testing::TempDir()) / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    target = (folder / "out.ifc").string();
    options.faithful = GetParam();
  }
  ~FaultyReplacement() override { fs::remove_all(folder); }

  // Loads a model and changes it, so that a save copies, rewrites and adds statements.
  void Load() {
    LoadOptions iso;
    iso.dialect = STEP_DIALECT_ISO;
    const std::string text = SmallModel();
    ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), iso), 0);
    auto* const point = dynamic_cast<IfcCartesianPoint*>(server.GetItem(std::size_t{7}));
    ASSERT_NE(point, nullptr);
    point->SetCoordinates(1, REAL(5.0));
    server.AddItem(new IfcCartesianPoint(2, 3));
    server.SetErrorHandler([](const std::string&) {});
  }

  // The file without its header, which has the time.
  std::string Data() const {
    const std::string text = ReadFile(target);
    const std::size_t begin = text.find("DATA;");
    return begin == std::string::npos ? text : text.substr(begin);
  }

  std::size_t CountFiles() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

  // Saves over an old file. The allocation `nth` fails. Returns true if the save claims success.
  bool SaveWithFailure(std::size_t nth, Shortage shortage) {
    std::ofstream(target, std::ios::binary) << kOld;
    const FailingAllocation failing(nth, shortage);
    try {
      return server.SaveIfc(target.c_str(), options) == SAVE_RESULT_SAVED;
    } catch (const std::bad_alloc&) {
      return false;
    }
  }

  fs::path folder;
  std::string target;
  SaveOptions options;
  IfcServer server;
};

TEST_P(FaultyReplacement, KeepsTheOldFileOrWritesTheWholeModel) {
  Load();
  ASSERT_EQ(server.SaveIfc(target.c_str(), options), SAVE_RESULT_SAVED);
  const std::string whole = Data();
  ASSERT_NE(whole.find("#7=IFCCARTESIANPOINT((5.,0.,0.));"), std::string::npos);
  for (const Shortage shortage : {Shortage::kOne, Shortage::kFrom}) {
    std::size_t failed = 0;
    for (std::size_t nth = 1; nth < 100000; ++nth) {
      const bool isSaved = SaveWithFailure(nth, shortage);
      const bool isReached = FailingAllocation::GetCount() >= nth;
      if (!isSaved) ++failed;
      ASSERT_EQ(Data(), isSaved ? whole : kOld) << nth;
      ASSERT_EQ(CountFiles(), 1u) << nth;
      if (!isReached) break;
    }
    EXPECT_GT(failed, 10u);
  }
}

TEST_P(FaultyReplacement, FreesAllMemory) {
  Load();
  SweepFailures([&] {
    try {
      server.SaveIfc(target.c_str(), options);
    } catch (const std::bad_alloc&) {
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Ways, FaultyReplacement, testing::Bool(),
                         [](const auto& info) { return info.param ? "Faithful" : "Written"; });

}  // namespace
}  // namespace KelIFC
