#include "kelifc/server/statement_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "kelifc/server/ifc_server.h"
#include "kelifc/server/scanner.h"

#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

constexpr char kHead[] = "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;";
constexpr char kEnd[] = "ENDSEC;END-ISO-10303-21;";

LoadOptions OptionsOf(STEP_DIALECT dialect) {
  LoadOptions options;
  options.dialect = dialect;
  return options;
}

/// The bytes of the statement of a number, as GetStatementPlace reports it.
std::string StatementOf(const IfcServer& server, const std::string& text, std::size_t number) {
  const StatementPlace place = server.GetStatementPlace(number);
  return text.substr(static_cast<std::size_t>(place.offset), place.length);
}

class StatementPlaceInDialect : public testing::TestWithParam<STEP_DIALECT> {};

TEST_P(StatementPlaceInDialect, IsThatOfTheStatementInTheSource) {
  const std::string text = std::string(kHead) +
                           "\n#5=IFCCARTESIANPOINT((1.,2.));  /* x */\n\n #3 = "
                           "IFCCARTESIANPOINT(\n(3.));#4=IFCDIRECTION((1.));" +
                           kEnd;
  IfcServer server;
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), OptionsOf(GetParam())), 0);
  EXPECT_EQ(server.GetSourceLine(5), 2U);
  EXPECT_EQ(StatementOf(server, text, 5), "#5=IFCCARTESIANPOINT((1.,2.));");
  EXPECT_EQ(server.GetSourceLine(4), 5U);
  EXPECT_EQ(StatementOf(server, text, 4), "#4=IFCDIRECTION((1.));");
  EXPECT_THAT(StatementOf(server, text, 3), testing::EndsWith("#3 = IFCCARTESIANPOINT(\n(3.));"));
}

TEST_P(StatementPlaceInDialect, IsTheLastOneOfARepeatedNumber) {
  const std::string text =
      std::string(kHead) + "\n#1=IFCDIRECTION((1.));\n#1=IFCDIRECTION((2.));\n" + kEnd;
  IfcServer server;
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), OptionsOf(GetParam())), 0);
  EXPECT_EQ(server.GetSourceLine(1), 3U);
  EXPECT_EQ(StatementOf(server, text, 1), "#1=IFCDIRECTION((2.));");
}

TEST_P(StatementPlaceInDialect, IsNoneForNumbersWithoutAStatement) {
  const std::string text = std::string(kHead) + "#1=IFCDIRECTION((1.));" + kEnd;
  IfcServer server;
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), OptionsOf(GetParam())), 0);
  const std::size_t added = server.AddItem(server.InstantiateClass("IFCDIRECTION"));
  EXPECT_EQ(server.GetSourceLine(added), 0U);
  EXPECT_EQ(server.GetSourceLine(77), 0U);
  EXPECT_EQ(server.GetSourceLine(0), 0U);
  server.DeleteItem(server.GetItem(std::size_t{1}));
  EXPECT_EQ(server.GetSourceLine(1), 0U);
  server.Reset();
  EXPECT_EQ(server.GetStatementPlace(1).length, 0U);
}

INSTANTIATE_TEST_SUITE_P(Dialects, StatementPlaceInDialect,
                         testing::Values(STEP_DIALECT_CLASSIC, STEP_DIALECT_ISO));

TEST(StatementPlace, IsNotKeptByTheLoadWithoutOptions) {
  const TempFile file(std::string(kHead) + "#1=IFCDIRECTION((1.));" + kEnd);
  IfcServer server;
  ASSERT_EQ(server.LoadIfcFile(file.GetPath()), 0);
  EXPECT_EQ(server.GetSourceLine(1), 0U);
}

TEST(ScanBuffer, ReportsTheOffsetsOfAStatementForAnyBlockSize) {
  const std::string text = "A;\n  \n/*c*/ #1=X(\n2);;  /*d*/B\n;";
  for (std::size_t size = 1; size < text.size() + 2; ++size) {
    std::istringstream input(text);
    IsoScanner scanner(input, size);
    std::string begins;
    std::uint64_t end = 0;
    while (scanner.Next() != nullptr) {
      begins += text[static_cast<std::size_t>(scanner.GetBeginOffset())];
      end = scanner.GetEndOffset();
      EXPECT_EQ(text[static_cast<std::size_t>(end) - 1], ';');
    }
    EXPECT_EQ(begins, "A#;B") << "blocks of " << size;
    EXPECT_EQ(end, text.size());
  }
}

}  // namespace
}  // namespace KelIFC
