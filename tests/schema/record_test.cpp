#include "kelifc/schema/record.h"

#include "kelifc/core/enum.h"
#include "kelifc/core/integer.h"

#include "tests/schema/model.h"

namespace KelIFC {
namespace {

enum Kind : std::int32_t { kFirst = 1, kSecond = 2 };
constexpr EnumTextRow kKinds[] = {{"FIRST", 1}, {"SECOND", 2}};

TEST(ParseRecord, ReadsPartsInOrder) {
  INTEGER first;
  Kind kind = kFirst;
  INTEGER last;
  EXPECT_EQ(ParseRecord("7,.X.,.SECOND.,9", first, Dropped<ENUM>(), Enumerated(kind, kKinds), last),
            nullptr);
  EXPECT_EQ(static_cast<int>(first), 7);
  EXPECT_EQ(kind, kSecond);
  EXPECT_EQ(static_cast<int>(last), 9);
}

TEST(ParseRecord, LeavesPartsUnsetAfterTheEnd) {
  INTEGER first(5);
  Kind kind = kSecond;
  EXPECT_EQ(ParseRecord(nullptr, first, Enumerated(kind, kKinds, kFirst)), nullptr);
  EXPECT_FALSE(first.GetExists());
  EXPECT_EQ(kind, kFirst);
}

TEST(WriteRecord, WritesCommasBetweenPartsAndBeforeThePartsOfADerivedClass) {
  std::ostringstream out;
  WriteNext(WriteFirst(out, INTEGER(1), Literal("*")), INTEGER(), Enumerated(kSecond, kKinds));
  EXPECT_EQ(out.str(), "1,*,$,.SECOND.");
}

TEST(GlobalId64, IsReplacedIfItCannotBeDecoded) {
  TextAttribute text;
  EXPECT_STREQ(ParseRecord("'short',rest", GlobalId64(text)), "rest");
  EXPECT_EQ(text.GetText().size(), 22u);
  ParseRecord("'0123456789ABCDEFGHIJ_$'", GlobalId64(text));
  EXPECT_EQ(text.GetText(), "0123456789ABCDEFGHIJ_$");
}

TEST(GlobalId85, IsWrittenAsANewIdentifierIfItIsEmpty) {
  const TextAttribute empty;
  std::ostringstream out;
  WriteFirst(out, GlobalId85(empty));
  EXPECT_EQ(out.str().size(), 22u) << out.str();
}

TEST(Scientific, HasOneDigitAndAnUpperCaseExponent) {
  for (const auto& [value, text] : std::vector<std::pair<double, std::string>>{
           {0.00001, "1.0E-05"}, {0.0, "0.0E+00"}, {12345.0, "1.2E+04"}, {-1e-120, "-1.0E-120"}}) {
    std::ostringstream out;
    Scientific(REAL(value)).Write(out);
    EXPECT_EQ(out.str(), text);
  }
}

}  // namespace
}  // namespace KelIFC
