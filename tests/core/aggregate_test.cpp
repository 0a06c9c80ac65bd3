#include "kelifc/core/aggregate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "kelifc/core/integer.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/member.h"
#include "kelifc/core/string.h"

#include "tests/core/probe.h"
#include "tests/core/text.h"

namespace KelIFC {
namespace {

MEMBER Number(std::size_t number) { return MEMBER(number); }

TEST(List, IsEmptyAndUnsetAtFirst) {
  const LIST<INTEGER> list;
  EXPECT_TRUE(list.GetEmpty());
  EXPECT_EQ(list.GetSize(), 0U);
  EXPECT_FALSE(list.GetExists());
  EXPECT_EQ(Text(list), "$");
}

TEST(List, MakesDefaultElements) {
  const LIST<INTEGER> list(3);
  EXPECT_TRUE(list.GetExists());
  EXPECT_EQ(Text(list), "($, $, $)");
  EXPECT_EQ(Text(LIST<INTEGER>(0)), "()");
}

TEST(List, AddsEqualElementsAgainAndReturnsPositions) {
  LIST<INTEGER> list;
  EXPECT_EQ(list.Add(5), 1U);
  EXPECT_EQ(list.Add(5), 2U);
  EXPECT_EQ(list.Add(6), 3U);
  EXPECT_TRUE(list.GetExists());
  EXPECT_EQ(Text(list), "(5, 5, 6)");
}

TEST(List, FindsTheFirstEqualElement) {
  LIST<INTEGER> list;
  for (const int number : {4, 5, 6, 5}) list.Add(number);
  EXPECT_EQ(list.Find(5), 2U);
  EXPECT_EQ(list.Find(7), 0U);
}

TEST(List, CountsPositionsFromOne) {
  LIST<STRING> list;
  list.Add(STRING(std::string("a")));
  list.Add(STRING(std::string("b")));
  const LIST<STRING>& same = list;
  EXPECT_EQ(list[1], "a");
  EXPECT_EQ(same[2], "b");
  EXPECT_EQ(same.GetItem(2), "b");
  list[2] = "c";
  EXPECT_EQ(same[2], "c");
}

TEST(List, ReturnsAnUnsetElementForAPositionOutOfRange) {
  LIST<INTEGER> list;
  list.Add(5);
  for (const std::size_t position : {std::size_t{0}, std::size_t{2}, ~std::size_t{0}}) {
    EXPECT_FALSE(list[position].GetExists());
    EXPECT_FALSE(list.GetItem(position).GetExists());
    list[position] = 9;
    EXPECT_FALSE(list[position].GetExists()) << "what was written to it is gone";
  }
  EXPECT_EQ(Text(list), "(5)");
  const LIST<const IfcUnknown*> pointers;
  EXPECT_EQ(pointers[1], nullptr);
}

TEST(List, DestroysAValueThatIsWrittenOutOfRange) {
  LIST<MEMBER> list;
  list[1] = new Probe;
  EXPECT_FALSE(list[1].GetExists());
  EXPECT_EQ(Probe::alive, 0);
}

TEST(List, StillExistsWhenItIsCleared) {
  LIST<INTEGER> list;
  list.Add(5);
  list.Clear();
  EXPECT_EQ(Text(list), "()");
  list.SetExists(false);
  EXPECT_EQ(Text(list), "$");
}

TEST(List, CopiesAndMovesItsElements) {
  LIST<INTEGER> list;
  list.Add(5);
  LIST<INTEGER> copy(list);
  copy.Add(6);
  EXPECT_EQ(Text(list), "(5)");
  list = copy;
  EXPECT_EQ(Text(list), "(5, 6)");
  const LIST<INTEGER> taken(std::move(list));
  EXPECT_EQ(Text(taken), "(5, 6)");
}

TEST(List, KeepsInlineValuesWhenItGrows) {
  {
    LIST<MEMBER> list;
    for (int i = 1; i <= 100; ++i) {
      MEMBER member;
      member = new Probe(i);
      list.Add(member);
    }
    EXPECT_EQ(Probe::alive, 100);
    EXPECT_EQ(Text(list[1]), "PROBE(1)");
    EXPECT_EQ(Text(list[100]), "PROBE(100)");
  }
  EXPECT_EQ(Probe::alive, 0);
}

TEST(List, LosesItsInlineValuesToACopy) {
  LIST<MEMBER> list;
  MEMBER member;
  member = new Probe(1);
  list.Add(member);
  list.Add(Number(4));
  const LIST<MEMBER> copy(list);
  EXPECT_EQ(Text(copy), "(PROBE(1), #4)");
  EXPECT_EQ(Text(list), "(*, #4)");
}

TEST(List, WritesMeasuresInTurn) {
  LIST<IfcLengthMeasure> list;
  list.Add(1.5);
  list.Add(IfcLengthMeasure());
  EXPECT_EQ(Text(list), "(1.5, $)");
}

TEST(Set, WritesParenthesesEvenIfUnset) {
  const SET<MEMBER> set;
  EXPECT_FALSE(set.GetExists());
  EXPECT_EQ(Text(set), "()");
}

TEST(Set, AddsAnEqualElementOnlyOnce) {
  SET<MEMBER> set;
  EXPECT_EQ(set.Add(Number(5)), 1U);
  EXPECT_EQ(set.Add(Number(6)), 2U);
  EXPECT_EQ(set.Add(Number(5)), 1U);
  EXPECT_TRUE(set.GetExists());
  EXPECT_EQ(Text(set), "(#5, #6)");
}

TEST(Set, TreatsTwoInlineValuesAsEqual) {
  SET<MEMBER> set;
  for (int i = 1; i <= 2; ++i) {
    MEMBER member;
    member = new Probe(i);
    EXPECT_EQ(set.Add(member), 1U);
  }
  EXPECT_EQ(Text(set), "(PROBE(1))");
  EXPECT_EQ(Probe::alive, 1);
}

TEST(Set, AppendsEqualElementsWithoutATest) {
  SET<MEMBER> set;
  EXPECT_EQ(set.Append(Number(5)), 1U);
  EXPECT_EQ(set.Append(Number(5)), 2U);
  EXPECT_EQ(set.Add(Number(5)), 1U);
}

/// A set that compares each element in turn, as the reference.
class SlowSet {
 public:
  std::size_t Add(std::size_t key) {
    const auto at = std::find(keys.begin(), keys.end(), key);
    if (at != keys.end()) return static_cast<std::size_t>(at - keys.begin()) + 1;
    keys.push_back(key);
    return keys.size();
  }
  std::vector<std::size_t> keys;
};

TEST(Set, FindsElementsInLargeSetsAsInSmallOnes) {
  std::mt19937 random(12);
  for (const std::size_t range : {20, 40, 1000, 100000}) {
    SET<MEMBER> set;
    SlowSet slow;
    for (int i = 0; i < 3000; ++i) {
      const std::size_t key = random() % range;
      switch (random() % 50) {
        case 0: {
          const std::size_t position = 1 + random() % (slow.keys.size() + 1);
          if (position <= slow.keys.size()) {
            set[position] = key;
            slow.keys[position - 1] = key;
          }
          break;
        }
        case 1:
          EXPECT_EQ(set.Append(Number(key)), slow.keys.size() + 1);
          slow.keys.push_back(key);
          break;
        case 2:
          set.Reserve(slow.keys.size() + random() % 100);
          break;
        default:
          ASSERT_EQ(set.Add(Number(key)), slow.Add(key));
      }
    }
    ASSERT_EQ(set.GetSize(), slow.keys.size());
    for (std::size_t i = 0; i < slow.keys.size(); ++i) {
      EXPECT_EQ(static_cast<std::size_t>(set.GetItem(i + 1)), slow.keys[i]);
    }
  }
}

TEST(Set, IsEmptyAfterItIsCleared) {
  SET<MEMBER> set;
  for (std::size_t i = 1; i <= 100; ++i) set.Add(Number(i));
  set.Clear();
  EXPECT_EQ(set.Add(Number(50)), 1U);
  EXPECT_EQ(set.Add(Number(1)), 2U);
  EXPECT_EQ(set.Add(Number(50)), 1U);
}

TEST(Set, FindsElementsInACopyOfALargeSet) {
  SET<MEMBER> set;
  for (std::size_t i = 1; i <= 100; ++i) set.Add(Number(i));
  SET<MEMBER> copy(set);
  EXPECT_EQ(copy.Add(Number(50)), 50U);
  SET<MEMBER> taken(std::move(set));
  EXPECT_EQ(taken.Add(Number(70)), 70U);
  EXPECT_EQ(taken.Add(Number(500)), 101U);
}

TEST(Set, ComparesPointersByTheirAddress) {
  std::vector<Probe> probes(100);
  SET<const Probe*> set;
  for (const Probe& probe : probes) set.Add(&probe);
  EXPECT_EQ(set.Add(&probes[40]), 41U);
  EXPECT_EQ(set.Find(&probes[99]), 100U);
  EXPECT_EQ(set.Add(nullptr), 101U);
}

TEST(Set, ComparesValuesByEquality) {
  SET<INTEGER> set;
  for (int i = 0; i < 50; ++i) set.Add(i % 10);
  EXPECT_EQ(set.GetSize(), 10U);
}

}  // namespace
}  // namespace KelIFC
