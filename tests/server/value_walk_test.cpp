#include "kelifc/server/value_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace KelIFC {
namespace {

using testing::ElementsAre;

std::vector<FoundValue> ValuesOf(const std::string& text, STEP_DIALECT dialect) {
  ValueWalk walk(text.c_str(), text.c_str() + text.size(), dialect);
  std::vector<FoundValue> values;
  for (FoundValue value; walk.Next(value);) values.push_back(value);
  return values;
}

std::vector<ValueForm> FormsOf(const std::string& text,
                               STEP_DIALECT dialect = STEP_DIALECT_CLASSIC) {
  std::vector<ValueForm> forms;
  for (const FoundValue& value : ValuesOf(text, dialect)) forms.push_back(value.form);
  return forms;
}

TEST(ValueWalk, TellsTheFormOfEachValue) {
  EXPECT_THAT(FormsOf("IFCX($, *,'a',-15,1.,+1E5,.5,.T.,\"0F\",#8)"),
              ElementsAre(ValueForm::kOmitted, ValueForm::kOmitted, ValueForm::kText,
                          ValueForm::kInteger, ValueForm::kReal, ValueForm::kReal, ValueForm::kReal,
                          ValueForm::kEnumeration, ValueForm::kBinary, ValueForm::kReference));
}

TEST(ValueWalk, FindsAListBeforeItsElements) {
  const auto values = ValuesOf("IFCX(1,(#2,(#3)),4)", STEP_DIALECT_CLASSIC);
  ASSERT_EQ(values.size(), 6U);
  EXPECT_EQ(values[1].form, ValueForm::kList);
  EXPECT_EQ(values[2].number, 2U);
  EXPECT_EQ(values[2].depth, 2U);
  EXPECT_EQ(values[4].number, 3U);
  EXPECT_EQ(values[4].depth, 3U);
  EXPECT_EQ(values[4].attribute, 2U);
  EXPECT_EQ(values[5].attribute, 3U);
  EXPECT_EQ(values[5].depth, 1U);
}

TEST(ValueWalk, FindsATypedValueBeforeWhatIsInIt) {
  EXPECT_THAT(
      FormsOf("IFCX(IFCLABEL('a'),!MINE(1))"),
      ElementsAre(ValueForm::kTyped, ValueForm::kText, ValueForm::kTyped, ValueForm::kInteger));
}

TEST(ValueWalk, HasNoFormForWhatIsNoValue) {
  EXPECT_THAT(FormsOf("IFCX((),,#,-,?)"),
              ElementsAre(ValueForm::kList, ValueForm::kNone, ValueForm::kNone, ValueForm::kNone,
                          ValueForm::kNone, ValueForm::kNone));
}

TEST(ValueWalk, SkipsStringsOfBothDialects) {
  EXPECT_THAT(FormsOf("IFCX('a\\',(#1',2)", STEP_DIALECT_CLASSIC),
              ElementsAre(ValueForm::kText, ValueForm::kInteger));
  EXPECT_THAT(FormsOf("IFCX('a'',(#1',2)", STEP_DIALECT_ISO),
              ElementsAre(ValueForm::kText, ValueForm::kInteger));
}

TEST(ValueWalk, EndsInAStringWithoutEnd) {
  EXPECT_THAT(FormsOf("IFCX(1,'a,2)"), ElementsAre(ValueForm::kInteger, ValueForm::kText));
}

}  // namespace
}  // namespace KelIFC
