#include "tools/schemac/kinds.h"

#include <gtest/gtest.h>

#include <set>

namespace schemac {
namespace {

constexpr Kind kLast = Kind::kInstance;

TEST(Kinds, HaveOneWordEach) {
  std::set<std::string_view> words;
  for (int i = 0; i <= static_cast<int>(kLast); ++i) {
    const KindInfo& info = InfoOf(static_cast<Kind>(i));
    EXPECT_EQ(static_cast<int>(info.kind), i);
    EXPECT_EQ(FindKind(info.word), &info);
    EXPECT_TRUE(words.insert(info.word).second) << info.word;
  }
}

TEST(Kinds, AreFoundByTheWholeWordOnly) {
  EXPECT_EQ(FindKind("stri"), nullptr);
  EXPECT_EQ(FindKind("strings"), nullptr);
  EXPECT_EQ(FindKind(""), nullptr);
}

TEST(Kinds, ThatHoldANamedTypeRequireItsName) {
  for (int i = 0; i <= static_cast<int>(kLast); ++i) {
    const KindInfo& info = InfoOf(static_cast<Kind>(i));
    EXPECT_TRUE(!info.holdsNamedType || info.takesName) << info.word;
    EXPECT_TRUE(!info.namesEnumeration || info.takesName) << info.word;
    EXPECT_TRUE(!info.isDroppable || !info.type.empty()) << info.word;
  }
}

TEST(ValueType, DependsOnWhetherTheReleaseHasLabels) {
  EXPECT_EQ(ValueType(InfoOf(Kind::kLabel), 2), "STRING");
  EXPECT_EQ(ValueType(InfoOf(Kind::kLabel), 3), "IfcLabel");
  EXPECT_EQ(ValueType(InfoOf(Kind::kReal), 3), "REAL");
}

}  // namespace
}  // namespace schemac
