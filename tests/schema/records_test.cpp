#include "tests/schema/records.h"

#include "tests/schema/model.h"

namespace KelIFC {
namespace {

struct ReleaseRecords {
  IFC_RELEASE release;
  const std::vector<SampleRecord>& (*records)();
  std::size_t atLeast;
};

class Records : public testing::TestWithParam<ReleaseRecords> {
 public:
  Records() { server.SetRelease(GetParam().release); }

  /// Returns the text that a new instance of the class writes after it has read a record.
  std::string Write(const SampleRecord& record, const std::string& positions) {
    const std::string text = record.name + "(" + positions + ")";
    const std::unique_ptr<IfcUnknown> instance(server.ParseClass(text.c_str(), nullptr));
    if (instance == nullptr) return "no instance";
    instance->SetServer(&server);
    instance->Parse(text.c_str());
    const std::string written = Text(*instance);
    return written.substr(record.name.size() + 1, written.size() - record.name.size() - 2);
  }

  const std::vector<SampleRecord>& All() const { return GetParam().records(); }

  IfcServer server;
};

TEST_P(Records, ExistForNearlyEveryClass) { EXPECT_GE(All().size(), GetParam().atLeast); }

TEST_P(Records, KeepWhatTheirClassStores) {
  for (const auto& record : All()) {
    EXPECT_EQ(Write(record, record.read), record.written) << record.name;
  }
}

TEST_P(Records, OfUnsetPositionsStayUnset) {
  for (const auto& record : All()) {
    EXPECT_EQ(Write(record, record.unset), record.emptied) << record.name;
  }
}

TEST_P(Records, IgnoreTextAfterTheLastPosition) {
  for (const auto& record : All()) {
    const std::string surplus = record.read.empty() ? "1,2" : record.read + ",1,(2),'3'";
    EXPECT_EQ(Write(record, surplus), record.written) << record.name;
  }
}

TEST_P(Records, ThatEndEarlyLeaveTheRestUnset) {
  for (const auto& record : All()) {
    for (auto comma = record.unset.rfind(','); comma != std::string::npos && comma > 0;
         comma = record.unset.rfind(',', comma - 1)) {
      EXPECT_EQ(Write(record, record.unset.substr(0, comma)), record.emptied) << record.name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(OfRelease, Records,
                         testing::Values(ReleaseRecords{IFC_RELEASE_151, &SampleRecords151, 10},
                                         ReleaseRecords{IFC_RELEASE_20, &SampleRecords20, 9},
                                         ReleaseRecords{IFC_RELEASE_2X, &SampleRecords2x, 70},
                                         ReleaseRecords{IFC_RELEASE_2X2, &SampleRecords2x2, 100},
                                         ReleaseRecords{IFC_RELEASE_2X3, &SampleRecords2x3, 110}),
                         [](const auto& info) {
                           return "Of" + std::to_string(static_cast<int>(info.param.release));
                         });

}  // namespace
}  // namespace KelIFC
