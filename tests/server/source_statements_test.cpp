#include "kelifc/server/source_statements.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "kelifc/schema/attribute_value.h"
#include "kelifc/server/ifc_server.h"

#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

std::string ModelOf(const std::string& data) {
  return "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;\n" + data +
         "\nENDSEC;END-ISO-10303-21;";
}

class SourceStatement : public testing::Test {
 protected:
  void Load(const std::string& data, STEP_DIALECT dialect = STEP_DIALECT_ISO) {
    const std::string text = ModelOf(data);
    LoadOptions options;
    options.dialect = dialect;
    ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  }

  IfcServer server;
  SourceStatements statements{server};
};

TEST_F(SourceStatement, HaveTheAttributesOfTheSource) {
  Load("#1=IFCPILE('g',$,'a;b',$,$,$,$,'t',.FRICTION.,.BORED.);#2=IFCPILE('h');");
  const StatementView pile = statements.Read(1, "IFCPILE");
  EXPECT_EQ(pile.GetCount(), 10U);
  EXPECT_EQ(pile.GetText(3), "a;b");
  EXPECT_EQ(pile.GetText(9), "FRICTION");
  EXPECT_EQ(statements.Read(2, "IFCPILE").GetText(1), "h");
  EXPECT_EQ(statements.Read(1, "IFCPILE").GetCount(), 10U);
}

TEST_F(SourceStatement, CanHaveBlanksAndCommentsBetweenTokensAndLowerCase) {
  Load("/* first */ # 01 /*=*/ = ifcPile ( 'g' , /* ( */ $,\n'/*b''*/',\n.Friction. ) ;");
  const StatementView pile = statements.Read(1, "IFCPILE");
  ASSERT_EQ(pile.GetCount(), 4U);
  EXPECT_EQ(pile.GetText(3), "/*b'*/");
  EXPECT_EQ(pile.GetText(4), "FRICTION");
}

TEST_F(SourceStatement, OfAnotherEntityAreNotRead) {
  Load("#1=IFCPILE('g');");
  EXPECT_EQ(statements.Read(1, "IFCPIL").GetCount(), 0U);
  EXPECT_EQ(statements.Read(1, "IFCBEAM").GetCount(), 0U);
  EXPECT_EQ(statements.Read(1, "IFCPILECAP").GetCount(), 0U);
}

TEST_F(SourceStatement, OfUnknownNumbersHaveNoAttributes) {
  Load("#1=IFCPILE('g');");
  EXPECT_EQ(statements.Read(0, "IFCPILE").GetCount(), 0U);
  EXPECT_EQ(statements.Read(2, "IFCPILE").GetCount(), 0U);
}

TEST_F(SourceStatement, OfAModelWithoutASourceHaveNoAttributes) {
  Load("#1=IFCPILE('g');", STEP_DIALECT_CLASSIC);
  EXPECT_EQ(statements.Read(1, "IFCPILE").GetCount(), 0U);
  IfcServer empty;
  EXPECT_EQ(SourceStatements(empty).Read(1, "IFCPILE").GetCount(), 0U);
}

TEST_F(SourceStatement, ThatAreVeryLongAreNotRead) {
  Load("#1=IFCPILE('" + std::string(70'000, 'x') + "');#2=IFCPILE('h');");
  EXPECT_EQ(statements.Read(1, "IFCPILE").GetCount(), 0U);
  EXPECT_EQ(statements.Read(2, "IFCPILE").GetCount(), 1U);
}

TEST_F(SourceStatement, OfASourceThatChangedAreNotTakenForOthers) {
  const TempFile file;
  const std::string data = "#1=IFCPILE('g',$);#2=IFCPILE('h',$);";
  std::ofstream(file.GetPath(), std::ios::binary) << ModelOf(data);
  LoadOptions options;
  options.dialect = STEP_DIALECT_ISO;
  ASSERT_EQ(server.LoadIfc(file.GetPath(), options), 0);
  std::ofstream(file.GetPath(), std::ios::binary) << ModelOf("#3=IFCBEAM('g');");
  EXPECT_EQ(statements.Read(1, "IFCPILE").GetCount(), 0U);
  EXPECT_EQ(statements.Read(2, "IFCPILE").GetCount(), 0U);
}

TEST_F(SourceStatement, KnowTheIdentifiersThatTheLoadHasMade) {
  Load("#1=IFCBEAM('1xS3BCk291UvhgP2dvNMKI',$,$,$,$,$,$,$);#2=IFCBEAM('short',$,$,$,$,$,$,$);");
  const auto idOf = [&](std::size_t number) {
    return std::string(InstanceView(*server.GetItem(number))[0].AsText());
  };
  EXPECT_FALSE(statements.IsMadeId(1, idOf(1)));
  EXPECT_TRUE(statements.IsMadeId(2, idOf(2)));
  EXPECT_FALSE(statements.IsMadeId(2, idOf(1)));  // a host has set it since
}

}  // namespace
}  // namespace KelIFC
