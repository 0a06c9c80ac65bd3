#include "kelifc/server/scanner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Statements = std::vector<std::string>;

Statements Scan(const std::string& text, std::size_t blockSize = Scanner::kBlockSize) {
  std::istringstream input(text);
  Scanner scanner(input, blockSize);
  Statements statements;
  while (const char* statement = scanner.Next()) {
    statements.emplace_back(statement);
    EXPECT_EQ(statements.back().size(), scanner.GetLength());
  }
  return statements;
}

// The rules of the scanner one character at a time, as slow and as plain as can be.
class PlainScanner {
 public:
  explicit PlainScanner(const std::string& raw) {
    for (std::size_t i = 0; i < raw.size(); ++i) {
      if (raw.compare(i, 2, "\r\n") != 0) text += raw[i];
    }
  }

  Statements Scan() {
    while (at < text.size()) {
      if (inString) {
        StepInString();
      } else {
        StepOutside();
      }
    }
    return statements;
  }

 private:
  void Append(std::size_t count) {
    for (; count > 0; --count, ++at) {
      if (text[at] != '\0') statement += text[at];
    }
  }

  void StepInString() {
    const std::string pair = text.substr(at, 2);
    if (text[at] == '\'') inString = false;
    Append(pair == "\\'" || pair == "\\\\" ? 2 : 1);
  }

  void StepOutside() {
    const std::size_t comment = GetCommentLength();
    if (comment > 0) {
      at += comment;
    } else if (text[at] == '\n') {
      ++at;
    } else if (text[at] == ';') {
      statements.push_back(statement);
      statement.clear();
      ++at;
    } else {
      inString = text[at] == '\'';
      Append(1);
    }
  }

  std::size_t GetCommentLength() const {
    if (text.compare(at, 2, "/*") != 0) return 0;
    const std::string line = text.substr(at, text.find('\n', at) - at);
    const std::size_t close = line.rfind("*/");
    return close == std::string::npos || close < 2 ? 0 : close + 2;
  }

  std::string text;
  std::size_t at = 0;
  bool inString = false;
  std::string statement;
  Statements statements;
};

TEST(Scanner, JoinsTheLinesOfAStatementAndKeepsItsBlanks) {
  EXPECT_THAT(Scan("#1 = IFCFOO (1,\n2) ;"), ElementsAre("#1 = IFCFOO (1,2) "));
  EXPECT_THAT(Scan("A\t B\n\n\n C;"), ElementsAre("A\t B C"));
}

TEST(Scanner, KeepsASemicolonInAString) {
  EXPECT_THAT(Scan("#1=IFCFOO('a;b');"), ElementsAre("#1=IFCFOO('a;b')"));
}

TEST(Scanner, KeepsAStringOpenAtAnEscapedQuote) {
  EXPECT_THAT(Scan("#1=IFCFOO('it\\'s;');"), ElementsAre("#1=IFCFOO('it\\'s;')"));
}

TEST(Scanner, ClosesAStringBehindAnEscapedBackslash) {
  EXPECT_THAT(Scan("A('x\\\\');B;"), ElementsAre("A('x\\\\')", "B"));
}

TEST(Scanner, SwallowsWhatFollowsAStringThatEndsInABackslash) {
  EXPECT_THAT(Scan("A('c:\\');B;C(' );D;"), ElementsAre("A('c:\\');B;C(' )", "D"));
}

TEST(Scanner, TakesADoubledQuoteForOneStringBehindAnother) {
  EXPECT_THAT(Scan("A('it''s;');"), ElementsAre("A('it''s;')"));
}

TEST(Scanner, LeavesNothingOfACommentOnALine) {
  EXPECT_THAT(Scan("/* x */\nA;"), ElementsAre("A"));
  EXPECT_THAT(Scan("A/**/B;"), ElementsAre("AB"));
}

TEST(Scanner, RunsACommentToTheLastCloseOfItsLine) {
  EXPECT_THAT(Scan("/*a*/ #1=X(); /*b*/\n#2=Y();"), ElementsAre("#2=Y()"));
  EXPECT_THAT(Scan("/*a*/ 'q*/B;"), ElementsAre("B"));
}

TEST(Scanner, TakesAnOpenWithoutACloseOnItsLineForText) {
  EXPECT_THAT(Scan("/* a;\nb */;"), ElementsAre("/* a", "b */"));
  EXPECT_THAT(Scan("/*/;"), ElementsAre("/*/"));
  EXPECT_THAT(Scan("/;"), ElementsAre("/"));
}

TEST(Scanner, SeesNoCommentInAString) {
  EXPECT_THAT(Scan("A('/* x */');"), ElementsAre("A('/* x */')"));
}

TEST(Scanner, KeepsALineBreakInAString) {
  EXPECT_THAT(Scan("A('x\ny');"), ElementsAre("A('x\ny')"));
  EXPECT_THAT(Scan("A('x\r\ny');"), ElementsAre("A('x\ny')"));
}

TEST(Scanner, TakesAReturnAheadOfALineFeedForPartOfTheLineEnd) {
  EXPECT_THAT(Scan("A\r\nB;\r\nC;"), ElementsAre("AB", "C"));
}

TEST(Scanner, KeepsALoneReturn) {
  EXPECT_THAT(Scan("A\rB;C\r\r\nD;"), ElementsAre("A\rB", "C\rD"));
}

TEST(Scanner, LosesNulBytes) {
  EXPECT_THAT(Scan(std::string("A\0B('\0x');", 10)), ElementsAre("AB('x')"));
}

TEST(Scanner, FormsNoMarkAcrossANulByte) {
  EXPECT_THAT(Scan(std::string("/\0* x */;", 9)), ElementsAre("/* x */"));
  EXPECT_THAT(Scan(std::string("A('\\\0');B;", 10)), ElementsAre("A('\\')", "B"));
}

TEST(Scanner, LosesTheTextBehindTheLastSemicolon) {
  EXPECT_THAT(Scan("A;B"), ElementsAre("A"));
  EXPECT_THAT(Scan("A;B('"), ElementsAre("A"));
}

TEST(Scanner, HandsOutNothingOfAnEmptyInput) {
  EXPECT_THAT(Scan(""), IsEmpty());
  EXPECT_THAT(Scan("\n\n /* */"), IsEmpty());
}

TEST(Scanner, HandsOutEmptyStatements) { EXPECT_THAT(Scan(";;\n;"), ElementsAre("", "", "")); }

TEST(Scanner, StaysAtTheEndOnceItIsThere) {
  std::istringstream input("A;");
  Scanner scanner(input);
  EXPECT_STREQ(scanner.Next(), "A");
  EXPECT_EQ(scanner.Next(), nullptr);
  EXPECT_EQ(scanner.Next(), nullptr);
  EXPECT_EQ(scanner.GetBytesRead(), 2u);
}

TEST(Scanner, TellsTheNumberThatComesNextWhereItStandsInTheBuffer) {
  std::istringstream input("A;\r\n#12=B;#7;X#1=;#;\n\n#1234567890123456789=C;  #5=D;");
  Scanner scanner(input);
  EXPECT_EQ(scanner.PeekNumber(), 0u);
  std::vector<std::uint64_t> peeked;
  while (scanner.Next() != nullptr) peeked.push_back(scanner.PeekNumber());
  // A number that is too long to be looked at whole is told as far as it goes.
  EXPECT_THAT(peeked, ElementsAre(12, 7, 0, 0, 1234567890123, 0, 0));
}

TEST(Scanner, PeeksNotBeyondWhatWasRead) {
  std::istringstream input("A;#12345=B;");
  Scanner scanner(input, 5);
  scanner.Next();
  EXPECT_EQ(scanner.PeekNumber(), 12u);
  EXPECT_STREQ(scanner.Next(), "#12345=B");
}

TEST(Scanner, LeavesTheNextStatementAloneWhenOneIsCut) {
  std::istringstream input("#1=A;#2=B;");
  Scanner scanner(input);
  char* first = scanner.Next();
  first[2] = '\0';
  first[4] = 'x';
  EXPECT_STREQ(scanner.Next(), "#2=B");
}

TEST(Scanner, ReadsNothingFromABrokenStream) {
  std::istringstream input("A;");
  input.setstate(std::ios::badbit);
  Scanner scanner(input);
  EXPECT_EQ(scanner.Next(), nullptr);
}

TEST(Scanner, EndsAtAStatementBeyondItsLimit) {
  std::istringstream input("A;" + std::string(1000, 'x') + ";B;");
  Scanner scanner(input, 16);
  scanner.SetLimit(100);
  EXPECT_STREQ(scanner.Next(), "A");
  EXPECT_EQ(scanner.Next(), nullptr);
  EXPECT_EQ(scanner.Next(), nullptr);
  EXPECT_LT(scanner.GetBytesRead(), 200u);
}

TEST(Scanner, TakesAnyLengthOnceTheLimitIsLifted) {
  const std::string longText(1000, 'x');
  std::istringstream input("A;" + longText + ";");
  Scanner scanner(input, 16);
  scanner.SetLimit(100);
  EXPECT_STREQ(scanner.Next(), "A");
  scanner.SetLimit(0);
  EXPECT_EQ(scanner.Next(), longText);
}

TEST(Scanner, HandsOutAStatementOfManyBlocks) {
  std::string text = "#1=X(";
  for (int i = 0; i < 200000; ++i) text += "#" + std::to_string(i) + ",\n";
  std::string joined = text;
  std::erase(joined, '\n');
  const Statements statements = Scan(text + ");A;", 4096);
  ASSERT_EQ(statements.size(), 2u);
  EXPECT_EQ(statements[0], joined + ")");
}

// Either of these texts takes hours if a comment is looked for more than once per line.
TEST(Scanner, LooksForACommentOncePerLine) {
  std::string opens;
  for (int i = 0; i < 2000000; ++i) opens += "/* ";
  EXPECT_TRUE(Scan(opens + ";") == Statements{opens});
  EXPECT_TRUE(Scan(opens + "*/;\n" + opens + ";") == (Statements{"", opens}));
}

class RandomText : public testing::TestWithParam<std::size_t> {};

TEST_P(RandomText, ScansAsThePlainScannerDoes) {
  const std::string alphabet("; ' / * \\ \r \n \0 # = ( ) a", 25);
  std::mt19937 random(1234u + static_cast<unsigned>(GetParam()));
  for (int round = 0; round < 4000; ++round) {
    std::string text;
    for (std::size_t length = random() % 120; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
      if (random() % 16 == 0) text += "/*";
      if (random() % 16 == 0) text += "*/";
      if (random() % 32 == 0) text += "\r\n";
    }
    ASSERT_EQ(Scan(text, GetParam()), PlainScanner(text).Scan()) << testing::PrintToString(text);
  }
}

INSTANTIATE_TEST_SUITE_P(BlockSizes, RandomText,
                         testing::Values(1, 2, 3, 7, 64, Scanner::kBlockSize));

}  // namespace
}  // namespace KelIFC
