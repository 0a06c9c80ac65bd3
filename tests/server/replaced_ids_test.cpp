#include "kelifc/server/replaced_ids.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace KelIFC {
namespace {

TEST(ReplacedIds, AreNewForEachIdentifier) {
  const std::string first = IdReplacement::Make();
  EXPECT_EQ(first.size(), 22u);
  EXPECT_NE(first, IdReplacement::Make());
}

TEST(ReplacedIds, AreNotedByTheStatement) {
  ReplacedIds ids;
  std::size_t number = 7;
  {
    const IdRecorder recorder(ids, number);
    const std::string first = IdReplacement::Make();
    const std::string second = IdReplacement::Make();
    EXPECT_EQ(ids[7], (std::vector<std::string>{first, second}));
    number = 9;
    const std::string third = IdReplacement::Make();
    EXPECT_EQ(ids[9], std::vector<std::string>{third});
  }
  IdReplacement::Make();
  EXPECT_EQ(ids.size(), 2u);
}

TEST(ReplacedIds, AreTheSameInAReplay) {
  const ReplacedIds ids = {{7, {"one", "two"}}};
  for (int i = 0; i < 2; ++i) {
    const IdReplay replay(ids, 7);
    EXPECT_EQ(IdReplacement::Make(), "one");
    {
      const IdReplay inner(ids, 8);
      EXPECT_EQ(IdReplacement::Make().size(), 22u);
    }
    EXPECT_EQ(IdReplacement::Make(), "two");
    EXPECT_EQ(IdReplacement::Make().size(), 22u);
  }
}

}  // namespace
}  // namespace KelIFC
