#include "kelifc/server/statements.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {
namespace {

std::int16_t Register(IfcServer& server, std::string statement) {
  return RegisterStatement(&server, statement.data());
}

std::int16_t Parse(IfcServer& server, std::string statement) {
  return ParseStatement(&server, statement.data());
}

TEST(Statements, AreRejectedUntilTheHeadWasRead) {
  IfcServer server;
  EXPECT_EQ(Register(server, "HEADER"), 1);
  EXPECT_EQ(Register(server, ""), 1);
  EXPECT_EQ(Register(server, "Iso-10303-21"), 0);
  EXPECT_EQ(Register(server, "HEADER"), 0);
}

TEST(Statements, EndTheScanAtAnUnknownSchema) {
  IfcServer server;
  Register(server, "ISO-10303-21");
  EXPECT_EQ(Register(server, "FILE_SCHEMA(('IFC4'))"), 2);
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_NONE);
  EXPECT_EQ(server.GetFileSchema(), "IFC4");
}

TEST(Statements, EndTheScanAtASchemaWithoutText) {
  IfcServer server;
  Register(server, "ISO-10303-21");
  EXPECT_EQ(Register(server, "FILE_SCHEMA($)"), 2);
}

TEST(Statements, MakeNoInstanceOfASharedNameInTheHeader) {
  IfcServer server;
  Register(server, "ISO-10303-21");
  EXPECT_EQ(Register(server, "IFCCARTESIANPOINT((1.))"), 0);
  EXPECT_TRUE(server.GetItems().empty());
}

TEST(Statements, RegisterFirstAndParseThen) {
  IfcServer server;
  Register(server, "ISO-10303-21");
  EXPECT_EQ(Register(server, "FILE_SCHEMA(('IFC2X'),('IFC2X3'))"), 2);
  IfcServer other;
  Register(other, "ISO-10303-21");
  EXPECT_EQ(Register(other, "FILE_SCHEMA(('IFC2X_FINAL'))"), 0);
  EXPECT_EQ(Register(other, "#4=IFCCARTESIANPOINT((1.,2.))"), 0);
  std::ostringstream empty, full;
  other.GetItem(std::size_t{4})->Write(empty);
  EXPECT_EQ(empty.str(), "IFCCARTESIANPOINT(()");
  EXPECT_EQ(Parse(other, "#4=IFCCARTESIANPOINT((1.,2.))"), 0);
  other.GetItem(std::size_t{4})->Write(full);
  EXPECT_EQ(full.str(), "IFCCARTESIANPOINT((1.,2.)");
}

TEST(Statements, ParseOnlyWhatIsRegistered) {
  IfcServer server;
  for (const char* statement : {"", "DATA", "#4=IFCCARTESIANPOINT((1.))", "=X", "#0=X", "4=X"}) {
    EXPECT_EQ(Parse(server, statement), 0);
  }
  EXPECT_TRUE(server.GetItems().empty());
}

TEST(ScanFile, RunsBothPassesOverAStream) {
  const std::string text = "ISO-10303-21;FILE_SCHEMA(('IFC2X3'));#1=IFCFOO(1);";
  IfcServer server;
  std::istringstream first(text), second(text);
  ScanFile(first, &server, true);
  ScanFile(second, &server, false);
  std::ostringstream out;
  server.GetItem(std::size_t{1})->Write(out);
  EXPECT_EQ(out.str(), "IFCFOO(1");
}

TEST(ScanFile, StopsAtARejectedStatement) {
  IfcServer server;
  std::istringstream in("HEADER;ISO-10303-21;FILE_SCHEMA(('IFC2X3'));");
  ScanFile(in, &server, true);
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_NONE);
}

}  // namespace
}  // namespace KelIFC
