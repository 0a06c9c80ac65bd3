#include "kelifc/server/iso_statement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace KelIFC {
namespace {

using testing::ElementsAre;

std::string Read(const std::string& text) {
  IsoStatementReader reader;
  return reader.Read(text.data(), text.data() + text.size());
}

std::string Write(const std::string& statement) {
  std::ostringstream out;
  WriteIsoStatement(out, statement);
  return out.str();
}

/// The statement in the notation of the values, and back.
void ExpectBoth(const std::string& iso, const std::string& values) {
  EXPECT_EQ(Read(iso), values);
  EXPECT_EQ(Write(values), iso);
}

TEST(IsoStatement, IsHandedOnWhereNothingChanges) {
  IsoStatementReader reader;
  for (const std::string text :
       {"IFCWALL('2O2Fr$t4X7Zf8NOew3FLOH',#2,'Basic Wall:(200 mm)',$,*,-1.5E-3,.T.,())", "",
        "IFCFOO('','T\xC3\xBCr')", "#12=IFCBAR(#1,#2)"}) {
    EXPECT_EQ(reader.Read(text.data(), text.data() + text.size()), text.data()) << text;
  }
  EXPECT_EQ(Write("IFCFOO('','(a)',#1,.T.,1.5)"), "IFCFOO('','(a)',#1,.T.,1.5)");
}

TEST(IsoStatement, LosesWhatStandsBetweenTokens) {
  EXPECT_EQ(Read(" IFCFOO (\t1. , ( #2 ,\v#3 ) , 'a b' ) "), "IFCFOO(1.,(#2,#3),'a b')");
  EXPECT_EQ(Read("IFCFOO( )"), "IFCFOO()");
  EXPECT_EQ(Read("  "), "");
}

TEST(IsoStatement, HasLettersInUpperCaseOutsideStrings) {
  EXPECT_EQ(Read("ifcWall('ifcWall',.t.,1.e-5,ifcLabel('x'))"),
            "IFCWALL('ifcWall',.T.,1.E-5,IFCLABEL('x'))");
}

TEST(IsoStatement, HasStringsAsTheValuesReadThem) {
  ExpectBoth("IFCFOO('it''s',1)", "IFCFOO('it\\'s',1)");
  ExpectBoth("IFCFOO('C:\\\\x\\\\')", "IFCFOO('C:\\\\x\\\\')");
  ExpectBoth("IFCFOO('T\\X2\\00FC\\X0\\r','\\X4\\0001F3E0\\X0\\')",
             "IFCFOO('T\xC3\xBCr','\xF0\x9F\x8F\xA0')");
  ExpectBoth("IFCFOO('a\\X\\0Ab')", "IFCFOO('a\nb')");
  EXPECT_EQ(Read("IFCFOO('T\\S\\|r','T\xFCr')"), "IFCFOO('T\xC3\xBCr','T\xC3\xBCr')");
}

TEST(IsoStatement, IsWrittenFromTheEscapesOfTheValues) {
  EXPECT_EQ(Write("IFCFOO('T\\X\\FCr','T\\X\\C3\\X\\BCr')"),
            "IFCFOO('T\\X2\\00FC\\X0\\r','T\\X2\\00FC\\X0\\r')");
  EXPECT_EQ(Write("IFCFOO('a\x7F',2)"), "IFCFOO('a\\X\\7F',2)");
}

TEST(IsoStatement, HasOneCharacterForEachBitOfABinaryValue) {
  ExpectBoth("IFCFOO(\"0FF\",\"21\",\"0\")", "IFCFOO(\"11111111\",\"01\",\"\")");
  EXPECT_EQ(Read("IFCFOO(\"9F\",1 )"), "IFCFOO(\"9F\",1)");
  EXPECT_EQ(Read("IFCFOO(\"0F , x"), "IFCFOO(\"0F,X");
  EXPECT_EQ(Write("IFCFOO(\"9F\",\"1\")"), "IFCFOO(\"9F\",\"31\")");
  EXPECT_EQ(Write("IFCFOO(\"9F"), "IFCFOO(\"9F");
}

TEST(IsoStatement, EndsAheadOfAStringWithoutEnd) {
  EXPECT_EQ(Read("IFCFOO( 1,'abc"), "IFCFOO(1,");
  EXPECT_EQ(Write("IFCFOO('a','\xC3"), "IFCFOO('a','\xC3");
}

TEST(IsoStatement, KeepsBytesThatMayNotStandOutsideStrings) {
  EXPECT_EQ(Read("IFC\xC3\xBC(!USER(1), #2)"), "IFC\xC3\xBC(!USER(1),#2)");
}

TEST(IsoStatement, ReportsWhereBadEscapesStand) {
  struct Positions : BadEscapeSink {
    void NoteBadEscape(const char* escape) override { all.push_back(escape); }
    std::vector<const char*> all;
  } positions;
  IsoStatementReader reader(&positions);
  const std::string text = "IFCFOO('a\\b', 'c', '\\X\\4')";
  EXPECT_STREQ(reader.Read(text.data(), text.data() + text.size()),
               "IFCFOO('a\xEF\xBF\xBD"
               "b','c','\xEF\xBF\xBD')");
  EXPECT_THAT(positions.all, ElementsAre(text.data() + 9, text.data() + 20));
}

TEST(IsoStatement, UsesOneReaderForManyStatements) {
  IsoStatementReader reader;
  for (int round = 0; round < 2; ++round) {
    const std::string first = "IFCFOO( 'it''s' )";
    const std::string second = "IFCBAR( 2 )";
    EXPECT_STREQ(reader.Read(first.data(), first.data() + first.size()), "IFCFOO('it\\'s')");
    EXPECT_STREQ(reader.Read(second.data(), second.data() + second.size()), "IFCBAR(2)");
  }
}

// What is written in the dialect and read again is what was there, whatever it is.
TEST(IsoStatement, ReadsBackWhatItWrites) {
  const std::vector<std::string> pieces = {
      "'a'", "'it\\'s'", "'\\\\'",   "'T\xC3\xBCr'", "''", "'\n\t'", "#12",    "(",
      ")",   ",",        "\"0101\"", ".T.",          "$",  "1.E-5",  "IFCFOO", "'(x)'"};
  std::mt19937 random(7);
  for (int round = 0; round < 5000; ++round) {
    std::string statement;
    for (std::size_t count = random() % 20; count > 0; --count) {
      statement += pieces[random() % pieces.size()];
      statement += ',';
    }
    ASSERT_EQ(Read(Write(statement)), statement);
  }
}

}  // namespace
}  // namespace KelIFC
