#include "kelifc/core/statement_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kelifc/core/other.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<ATTRIBUTE_KIND> KindsOf(const StatementView& view) {
  std::vector<ATTRIBUTE_KIND> kinds;
  for (std::size_t i = 1; i <= view.GetCount(); ++i) kinds.push_back(view.GetKind(i));
  return kinds;
}
std::vector<ATTRIBUTE_KIND> KindsOf(const std::string& text) {
  return KindsOf(StatementView(text));
}

std::vector<std::string> SourcesOf(const std::string& text) {
  const StatementView view(text);
  std::vector<std::string> sources;
  for (std::size_t i = 1; i <= view.GetCount(); ++i) sources.emplace_back(view.GetSource(i));
  return sources;
}

TEST(StatementView, TellsTheKindOfEachAttribute) {
  EXPECT_THAT(KindsOf("'a',#12,$,*,7,-1.5,2.E-3,.ELEMENT.,\"0101\",(1,2),IFCLABEL('x'),()"),
              ElementsAre(ATTRIBUTE_TEXT, ATTRIBUTE_REFERENCE, ATTRIBUTE_UNSET, ATTRIBUTE_DERIVED,
                          ATTRIBUTE_INTEGER, ATTRIBUTE_REAL, ATTRIBUTE_REAL, ATTRIBUTE_ENUMERATION,
                          ATTRIBUTE_BINARY, ATTRIBUTE_LIST, ATTRIBUTE_TYPED, ATTRIBUTE_LIST));
}

TEST(StatementView, GivesTheValues) {
  const StatementView view("'it\\'s (a), b',#12,7,-1.5,2.E-3,.T.,\"0101\"");
  EXPECT_EQ(view.GetText(1), "it's (a), b");
  EXPECT_EQ(view.GetReference(2), 12U);
  EXPECT_EQ(view.GetNumber(3), 7);
  EXPECT_EQ(view.GetNumber(4), -1.5);
  EXPECT_EQ(view.GetNumber(5), 0.002);
  EXPECT_EQ(view.GetText(6), "T");
  EXPECT_EQ(view.GetText(7), "0101");
}

TEST(StatementView, GivesNothingForAnotherKind) {
  const StatementView view("'a',#12,7");
  for (const std::size_t position : {0, 4, 1000}) {
    EXPECT_EQ(view.GetKind(position), ATTRIBUTE_NONE);
    EXPECT_EQ(view.GetReference(position), 0U);
    EXPECT_EQ(view.GetNumber(position), 0);
    EXPECT_EQ(view.GetText(position), "");
    EXPECT_EQ(view.GetList(position).GetCount(), 0U);
    EXPECT_EQ(view.GetTypeName(position), "");
    EXPECT_EQ(view.GetSource(position), "");
  }
  EXPECT_EQ(view.GetReference(3), 0U);
  EXPECT_EQ(view.GetNumber(1), 0);
  EXPECT_EQ(view.GetText(2), "");
  EXPECT_EQ(view.GetList(1).GetCount(), 0U);
  EXPECT_EQ(view.GetTypeName(1), "");
}

TEST(StatementView, GivesListsInLists) {
  const StatementView view("((1,2),(3)),#4");
  ASSERT_EQ(view.GetCount(), 2U);
  const StatementView rows = view.GetList(1);
  ASSERT_EQ(rows.GetCount(), 2U);
  EXPECT_EQ(rows.GetSource(1), "(1,2)");
  EXPECT_EQ(rows.GetList(1).GetNumber(2), 2);
  EXPECT_EQ(rows.GetList(2).GetNumber(1), 3);
  EXPECT_EQ(view.GetReference(2), 4U);
}

TEST(StatementView, GivesTypedValues) {
  const StatementView view("IFCLABEL ('x'),!MINE(#1,2)");
  EXPECT_EQ(view.GetTypeName(1), "IFCLABEL");
  EXPECT_EQ(view.GetList(1).GetText(1), "x");
  EXPECT_EQ(view.GetTypeName(2), "!MINE");
  EXPECT_EQ(view.GetList(2).GetReference(1), 1U);
}

TEST(StatementView, GivesThePartsOfAnInstanceOfSeveralTypes) {
  const StatementView view("A()B(1)C('x')");
  ASSERT_EQ(view.GetCount(), 3U);
  EXPECT_EQ(view.GetTypeName(3), "C");
  EXPECT_EQ(view.GetList(1).GetCount(), 0U);
  EXPECT_EQ(view.GetList(3).GetText(1), "x");
}

TEST(StatementView, StaysReadableWhenTheStatementIsGone) {
  StatementView list;
  {
    const StatementView view("(1,'abc')");
    list = view.GetList(1);
  }
  EXPECT_EQ(list.GetText(2), "abc");
}

TEST(StatementView, HasAPositionForEachComma) {
  EXPECT_THAT(KindsOf("1,,2"), ElementsAre(ATTRIBUTE_INTEGER, ATTRIBUTE_NONE, ATTRIBUTE_INTEGER));
  EXPECT_THAT(KindsOf(","), ElementsAre(ATTRIBUTE_NONE, ATTRIBUTE_NONE));
  EXPECT_THAT(KindsOf("1,"), ElementsAre(ATTRIBUTE_INTEGER, ATTRIBUTE_NONE));
  EXPECT_EQ(StatementView("(,)").GetList(1).GetCount(), 2U);
  EXPECT_EQ(StatementView("( )").GetList(1).GetCount(), 0U);
  EXPECT_THAT(KindsOf(""), IsEmpty());
  EXPECT_THAT(KindsOf(" "), IsEmpty());
}

TEST(StatementView, SkipsBlanks) {
  EXPECT_THAT(SourcesOf(" 'a b' , 1 ,( 2 , 3 )\t, .X. "),
              ElementsAre("'a b'", "1", "( 2 , 3 )", ".X."));
}

TEST(StatementView, LeavesOutASecondValueWithoutAComma) {
  EXPECT_THAT(SourcesOf("'it''s',1 (2)"), ElementsAre("'it'", "1"));
  EXPECT_THAT(SourcesOf("'x'A(1),A(1)'x',3"), ElementsAre("'x'", "A(1)", "3"));
}

TEST(StatementView, HasNoKindForWhatIsNoValue) {
  EXPECT_THAT(KindsOf("abc,#,1.2x,.T,\"01,+,@"),
              ElementsAre(ATTRIBUTE_NONE, ATTRIBUTE_NONE, ATTRIBUTE_NONE, ATTRIBUTE_NONE,
                          ATTRIBUTE_NONE, ATTRIBUTE_NONE, ATTRIBUTE_NONE));
}

TEST(StatementView, ClosesWhatIsOpenAtTheEnd) {
  EXPECT_EQ(StatementView("(1,(2").GetList(1).GetList(2).GetNumber(1), 2);
  EXPECT_THAT(SourcesOf("1)),2"), ElementsAre("1", "2"));
  EXPECT_THAT(KindsOf("1,'ab"), ElementsAre(ATTRIBUTE_INTEGER, ATTRIBUTE_NONE));
}

// Recursion, or a walk over the text for each list, would not come to an end here.
TEST(StatementView, ReadsDeepAndLongStatements) {
  constexpr std::size_t kMany = 1000000;
  const std::string deep = std::string(kMany, '(') + "7" + std::string(kMany, ')');
  StatementView view(deep);
  for (std::size_t i = 0; i < kMany; ++i) view = view.GetList(1);
  EXPECT_EQ(view.GetNumber(1), 7);
  EXPECT_EQ(StatementView(std::string(kMany, ',')).GetCount(), kMany + 1);
  EXPECT_EQ(StatementView(std::string(kMany, '\'')).GetCount(), 1U);
  EXPECT_EQ(StatementView(std::string(kMany, '"')).GetCount(), 1U);
}

TEST(StatementView, IsWhatAnUnknownEntityHolds) {
  IfcOther other;
  EXPECT_EQ(other.GetAttributes().GetCount(), 0U);
  other.Parse("IFCFOO('a',(#1,#2),IFCLABEL('b'))");
  const StatementView view = other.GetAttributes();
  EXPECT_EQ(view.GetText(1), "a");
  EXPECT_EQ(view.GetList(2).GetReference(2), 2U);
  EXPECT_EQ(view.GetList(3).GetText(1), "b");
}

}  // namespace
}  // namespace KelIFC
