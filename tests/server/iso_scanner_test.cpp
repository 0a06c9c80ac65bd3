#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/core/text/iso_text.h"
#include "kelifc/server/scanner.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Statements = std::vector<std::string>;

Statements Scan(const std::string& text, std::size_t blockSize = ScanBuffer::kBlockSize,
                LoadFindings* findings = nullptr) {
  std::istringstream input(text);
  IsoScanner scanner(input, blockSize);
  scanner.SetFindings(findings);
  Statements statements;
  while (const char* statement = scanner.Next()) {
    statements.emplace_back(statement);
    EXPECT_EQ(statements.back().size(), scanner.GetLength());
  }
  EXPECT_EQ(scanner.Next(), nullptr);
  return statements;
}

/// The places of the statements that have no end.
std::vector<SourcePlace> PlacesWithoutEnd(const std::string& text) {
  LoadFindings findings;
  Scan(text, 3, &findings);
  return findings.GetPlaces(LoadFinding::kStatementWithoutEnd);
}

TEST(IsoScanner, JoinsTheLinesOfAStatement) {
  EXPECT_THAT(Scan("#1 = IFCFOO (1,\n2) ;"), ElementsAre("#1 = IFCFOO (1,2) "));
  EXPECT_THAT(Scan("A\r\nB;C\rD;E\n\r\n\nF;"), ElementsAre("AB", "CD", "EF"));
}

TEST(IsoScanner, SkipsTheBlanksAheadOfAStatement) {
  EXPECT_THAT(Scan(" \t\n  A B ; \n C;"), ElementsAre("A B ", "C"));
  EXPECT_THAT(Scan(" ; /* x */ ;"), ElementsAre("", ""));
}

TEST(IsoScanner, SkipsAByteOrderMark) {
  EXPECT_THAT(Scan("\xEF\xBB\xBFISO-10303-21;A;"), ElementsAre("ISO-10303-21", "A"));
  EXPECT_THAT(Scan("\xEF\xBB\xBFISO;A;", 1), ElementsAre("ISO", "A"));
  EXPECT_THAT(Scan("\xEF\xBB"), IsEmpty());
}

TEST(IsoScanner, SkipsCommentsOverManyLines) {
  EXPECT_THAT(Scan("/* a;\n 'b\n*/A/**/B/* * / */;"), ElementsAre("AB"));
  EXPECT_THAT(Scan("/*a*/ #1=X(); /*b*/\n#2=Y();"), ElementsAre("#1=X()", "#2=Y()"));
  EXPECT_THAT(Scan("/***/A;/*/;*/B;"), ElementsAre("A", "B"));
  EXPECT_THAT(Scan("A /;B;"), ElementsAre("A /", "B"));
}

TEST(IsoScanner, SeesNoCommentInAString) {
  EXPECT_THAT(Scan("A('/* x */');B('*/');"), ElementsAre("A('/* x */')", "B('*/')"));
}

TEST(IsoScanner, KeepsASemicolonInAString) {
  EXPECT_THAT(Scan("A('a;b');B('it''s;');"), ElementsAre("A('a;b')", "B('it''s;')"));
}

TEST(IsoScanner, LosesLineEndsInStringsAndEscapes) {
  EXPECT_THAT(Scan("A('x\r\ny');B('\\X2\\00\nE4\\X\n0\\');"),
              ElementsAre("A('xy')", "B('\\X2\\00E4\\X0\\')"));
  EXPECT_THAT(Scan("A('\\\nS\n\\\n'x;');B;", 2), ElementsAre("A('\\S\\'x;')", "B"));
}

TEST(IsoScanner, EndsAStringAtAQuoteAfterABackslash) {
  EXPECT_THAT(Scan("A('caf\\X2\\00E9\\X0\\');B;"), ElementsAre("A('caf\\X2\\00E9\\X0\\')", "B"));
  EXPECT_THAT(Scan("A('c:\\');B;"), ElementsAre("A('c:\\')", "B"));
  EXPECT_THAT(Scan("A('c:\\\\');B;"), ElementsAre("A('c:\\\\')", "B"));
  EXPECT_THAT(Scan("A('\\S');B;"), ElementsAre("A('\\S')", "B"));
}

TEST(IsoScanner, KnowsTheQuoteOfAShift) {
  EXPECT_THAT(Scan("A('\\S\\'');B;"), ElementsAre("A('\\S\\'')", "B"));
  EXPECT_THAT(Scan("A('\\S\\',1);B;"), ElementsAre("A('\\S\\',1)", "B"));
  EXPECT_THAT(Scan("A('\\S\\''' ,1);B;"), ElementsAre("A('\\S\\''' ,1)", "B"));
  EXPECT_THAT(Scan("A('\\S\\' 5;');B;"), ElementsAre("A('\\S\\' 5;')", "B"));
  EXPECT_THAT(Scan("A('\\S\\\\');B;"), ElementsAre("A('\\S\\\\')", "B"));
  EXPECT_THAT(Scan("A('\\\\S\\');B;"), ElementsAre("A('\\\\S\\')", "B"));
  EXPECT_THAT(Scan("A('\\X0\\\\S\\'5;');B;"), ElementsAre("A('\\X0\\\\S\\'5;')", "B"));
  EXPECT_THAT(Scan("A('\\PA\\\\S\\'5;');B;"), ElementsAre("A('\\PA\\\\S\\'5;')", "B"));
}

TEST(IsoScanner, LosesNulBytes) {
  EXPECT_THAT(Scan(std::string("A\0B('\0x');/\0* */;", 18)), ElementsAre("AB('x')", "/* */"));
}

TEST(IsoScanner, HandsOutNothingOfAnEmptyInput) {
  EXPECT_THAT(Scan(""), IsEmpty());
  EXPECT_THAT(Scan("\n\n /* */"), IsEmpty());
  EXPECT_THAT(PlacesWithoutEnd("\n /* */ \n"), IsEmpty());
}

TEST(IsoScanner, GivesUpAStatementWhoseStringDoesNotEnd) {
  LoadFindings findings;
  EXPECT_THAT(Scan("A;\n #1=X('it's');\n#2=Y('a');\n#3=Z();", 64, &findings),
              ElementsAre("A", "#2=Y('a')", "#3=Z()"));
  EXPECT_THAT(findings.GetPlaces(LoadFinding::kStatementWithoutEnd),
              ElementsAre(SourcePlace{2, 2}));
}

TEST(IsoScanner, TakesALineThatBeginsWithANumberInAnyForm) {
  for (const char* line : {"#2=Y()", "#002=Y()", "  #2 = Y()", "\t#2\t=Y()"}) {
    const Statements statements = Scan(std::string("#1=X(';\n'") + ";\n" + line + ";");
    EXPECT_EQ(statements.size(), 2U) << line;
    EXPECT_EQ(Scan(std::string("#1=X(';\n") + line + ";").size(), 1U) << line;
  }
}

TEST(IsoScanner, KeepsAStringOverLinesThatBeginWithAnythingElse) {
  for (const char* line : {"#2", "#2 x=", "#=Y", "# 2=Y", "x#2=Y", "2=Y", "#2Y=", ""}) {
    const std::string text = std::string("#1=X('a") + line + "')";
    EXPECT_THAT(Scan(std::string("#1=X('a\n") + line + "');"), ElementsAre(text));
  }
}

TEST(IsoScanner, EndsAStatementWithoutASemicolonAtTheNextOne) {
  LoadFindings findings;
  EXPECT_THAT(Scan("DATA\n#1=X(\n#5)\n\n #2=Y();", 2, &findings),
              ElementsAre("DATA", "#1=X(#5)", "#2=Y()"));
  EXPECT_THAT(findings.GetPlaces(LoadFinding::kStatementWithoutEnd),
              ElementsAre(SourcePlace{1, 1}, SourcePlace{2, 1}));
}

TEST(IsoScanner, TakesALineThatBeginsWithAKeywordOfTheStructure) {
  LoadFindings findings;
  EXPECT_THAT(
      Scan("HEADER;\nFILE_NAME('O'Brien','');\nfile_schema (('X'));\nENDSEC\n data;", 5, &findings),
      ElementsAre("HEADER", "file_schema (('X'))", "ENDSEC", "data"));
  EXPECT_THAT(findings.GetPlaces(LoadFinding::kStatementWithoutEnd),
              ElementsAre(SourcePlace{2, 1}, SourcePlace{4, 1}));
  EXPECT_THAT(Scan("#1=X('a\nDATA');"), ElementsAre("#1=X('aDATA')"));
  EXPECT_THAT(Scan("#1=X('a\nDATABASE;');"), ElementsAre("#1=X('aDATABASE;')"));
}

TEST(IsoScanner, SeesNoStatementInAComment) {
  EXPECT_THAT(Scan("#1=X(/*\n#2=Y();\n*/3);"), ElementsAre("#1=X(3)"));
}

TEST(IsoScanner, ReportsWhatHasNoEndInTheFile) {
  EXPECT_THAT(PlacesWithoutEnd("A;\n  B"), ElementsAre(SourcePlace{2, 3}));
  EXPECT_THAT(PlacesWithoutEnd("A;\nB('x"), ElementsAre(SourcePlace{2, 1}));
  EXPECT_THAT(PlacesWithoutEnd("A;\n\n /* x\n\n"), ElementsAre(SourcePlace{3, 2}));
  EXPECT_THAT(PlacesWithoutEnd("A;\n"), IsEmpty());
  EXPECT_THAT(Scan("A;B('x"), ElementsAre("A"));
}

TEST(IsoScanner, TellsWhereEachCharacterStands) {
  const std::string text = "/* c\nc */ AB; CD\r\n  E/* d\n */F\n'gh\ni\n';\n\n   K;";
  std::istringstream input(text);
  IsoScanner scanner(input, 4);
  const auto placesOf = [&](const char* characters) {
    std::vector<SourcePlace> places;
    const std::string statement = scanner.Next();
    for (const char* c = characters; *c != '\0'; ++c) {
      places.push_back(scanner.GetPlace(statement.find(*c)));
    }
    return places;
  };
  using P = SourcePlace;
  EXPECT_THAT(placesOf("AB"), ElementsAre(P{2, 6}, P{2, 7}));
  EXPECT_THAT(placesOf("CDEFghi"),
              ElementsAre(P{2, 10}, P{2, 11}, P{3, 3}, P{4, 4}, P{5, 2}, P{5, 3}, P{6, 1}));
  EXPECT_THAT(placesOf("K"), ElementsAre(P{9, 4}));
}

TEST(IsoScanner, TellsTheLastKnownPlaceInAStatementOfVeryManyLines) {
  constexpr std::size_t kLines = ScanBuffer::kMostPieces + 100;
  std::string text;
  for (std::size_t i = 0; i < kLines; ++i) text += "x\n";
  std::istringstream input(text + ";");
  IsoScanner scanner(input);
  scanner.Next();
  EXPECT_EQ(scanner.GetPlace(ScanBuffer::kMostPieces - 1).line, ScanBuffer::kMostPieces);
  const SourcePlace last = scanner.GetPlace(kLines - 1);
  EXPECT_EQ(last, (SourcePlace{ScanBuffer::kMostPieces + 1, 1}));
}

TEST(IsoScanner, CountsLinesThatEndInAReturnOnly) {
  std::istringstream input("A;\rB;\r\nC;\n\rD;");
  IsoScanner scanner(input);
  std::vector<std::uint64_t> lines;
  while (scanner.Next() != nullptr) lines.push_back(scanner.GetPlace().line);
  EXPECT_THAT(lines, ElementsAre(1, 2, 3, 5));
}

TEST(IsoScanner, EndsAtAStatementBeyondItsLimit) {
  std::istringstream input("A;/*" + std::string(1000, ' ') + "*/B;" + std::string(1000, 'x') +
                           ";C;");
  LoadFindings findings;
  IsoScanner scanner(input, 16);
  scanner.SetFindings(&findings);
  scanner.SetLimit(100);
  EXPECT_STREQ(scanner.Next(), "A");
  EXPECT_STREQ(scanner.Next(), "B");
  EXPECT_FALSE(scanner.IsBeyondLimit());
  EXPECT_EQ(scanner.Next(), nullptr);
  EXPECT_TRUE(scanner.IsBeyondLimit());
  EXPECT_EQ(findings.GetCount(LoadFinding::kStatementWithoutEnd), 0U);
}

/// The rules of the scanner one character at a time. Where a string ends is asked of the decoder,
/// which has to agree with the scanner about it.
class PlainScanner {
 public:
  explicit PlainScanner(const std::string& raw) {
    for (const char c : raw) {
      if (c != '\n' && c != '\r' && c != '\0') text += c;
    }
  }

  Statements Scan() {
    while (at < text.size()) {
      if (text[at] == '\'') {
        TakeString();
      } else if (text.compare(at, 2, "/*") == 0) {
        const std::size_t close = text.find("*/", at + 2);
        at = close == std::string::npos ? text.size() : close + 2;
      } else if (text[at] == ';') {
        statements.push_back(
            statement.substr(std::min(statement.size(), statement.find_first_not_of(' '))));
        statement.clear();
        ++at;
      } else {
        statement += text[at++];
      }
    }
    return statements;
  }

 private:
  void TakeString() {
    const char* const end = text.data() + text.size();
    const char* const closing = DecodeIsoString(text.data() + at + 1, end, decoded, nullptr);
    const std::size_t next =
        closing == nullptr ? text.size() : static_cast<std::size_t>(closing - text.data()) + 1;
    statement += text.substr(at, next - at);
    at = next;
  }

  std::string text;
  std::size_t at = 0;
  std::string statement;
  std::string decoded;
  Statements statements;
};

class RandomIsoText : public testing::TestWithParam<std::size_t> {};

TEST_P(RandomIsoText, ScansAsThePlainScannerDoes) {
  const std::vector<std::string> pieces = {
      "'",      "'",      "\\",     "\\S\\", "\\S\\'",
      "\\X2\\", "\\X0\\", "\\PA\\", "\\X\\", "S",
      "X",      "0",      ";",      ";",     ",",
      ")",      " ",      "/*",     "*/",    "a",
      "\n",     "\r\n",   "P",      "A",     std::string(1, '\0')};
  std::mt19937 random(4321u + static_cast<unsigned>(GetParam()));
  for (int round = 0; round < 6000; ++round) {
    std::string text;
    for (std::size_t length = random() % 60; length > 0; --length) {
      text += pieces[random() % pieces.size()];
    }
    // Nothing may stand between the two characters of a comment's marks.
    if (text.find(std::string("/\0", 2)) != std::string::npos ||
        text.find(std::string("*\0", 2)) != std::string::npos || text.find("*\n") < text.size() ||
        text.find("/\n") < text.size() || text.find("*\r") < text.size() ||
        text.find("/\r") < text.size()) {
      continue;
    }
    ASSERT_EQ(Scan(text, GetParam()), PlainScanner(text).Scan()) << testing::PrintToString(text);
  }
}

INSTANTIATE_TEST_SUITE_P(BlockSizes, RandomIsoText,
                         testing::Values(1, 2, 3, 7, 64, ScanBuffer::kBlockSize));

}  // namespace
}  // namespace KelIFC
