#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/core/global_id.h"
#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/statements.h"

#include "tests/server/temp_file.h"

// Files that were made to do harm, or to take long. Each of them loads and is saved, with a defined
// result. If a cost grew with the square of the file, these tests would take hours.

namespace KelIFC {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr std::size_t kMany = 100000;
constexpr char kHead[] = "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;\n";

std::string Repeat(const std::string& text, std::size_t count) {
  std::string repeated;
  repeated.reserve(text.size() * count);
  for (std::size_t i = 0; i < count; ++i) repeated += text;
  return repeated;
}

/// Parses the statements of a 2x3 file, as a load does in its two passes.
void Scan(IfcServer& server, const std::string& data) {
  for (const bool firstPass : {true, false}) {
    std::istringstream in(kHead + data);
    ScanFile(in, &server, firstPass);
  }
}

/// Returns the instance with a number as a save writes it, up to the last parenthesis.
std::string TextOf(IfcServer& server, std::size_t number) {
  const IfcUnknown* instance = server.GetItem(number);
  if (instance == nullptr) return "none";
  std::ostringstream text;
  instance->Write(text);
  return text.str();
}

/// Entities with an attribute of each kind; `@` marks the position of the attribute.
const char* const kAttributes[] = {
    "IFCCARTESIANPOINT(@)",                         // coordinates
    "IFCDIRECTION((0.,@))",                         // a member of a list of numbers
    "IFCPOLYLINE(@)",                               // references
    "IFCPOLYLINE((#1,@))",                          // a member of a list of references
    "IFCWALL('g',#1,@,$,$,$,$,$)",                  // a text
    "IFCWALL('g',@,'n',$,$,$,$,$)",                 // a reference
    "IFCPROPERTYSINGLEVALUE('n',$,@,$)",            // an inline value
    "IFCPROPERTYSINGLEVALUE('n',$,IFCLABEL(@),$)",  // the text in an inline value
    "IFCPROPERTYENUMERATEDVALUE('n',$,(@),$)",      // a list of values
    "IFCTRIMMEDCURVE(#1,(@),(@),.T.,.PARAMETER.)",  // values and references mixed
    "IFCSIUNIT(*,@,.MILLI.,.METRE.)",               // an enumeration
    "IFCUNITASSIGNMENT((@))",                       // a set
    "IFCBOUNDINGBOX(#1,@,1.,1.)",                   // a number
    "IFCPERSON($,'a','b',@,$,$,$,$)",               // a list of texts
    "IFCSITE('g',$,$,$,$,$,$,$,$,@,@,$,$,$)",       // angles
    "IFCSOMETHINGELSE(@)",                          // an unknown entity
    "@",
};

class HostileValue : public testing::TestWithParam<const char*> {
 protected:
  /// Returns the statement with a value at the position of the attribute. The text after it must
  /// still be read.
  static void Read(const std::string& value) {
    std::string statement = GetParam();
    for (std::size_t at = statement.find('@'); at != std::string::npos;
         at = statement.find('@', at + value.size())) {
      statement.replace(at, 1, value);
    }
    IfcServer server;
    Scan(server, "#1=" + statement + ";\n#2=IFCDIRECTION((3.));");
    EXPECT_EQ(TextOf(server, 2), "IFCDIRECTION((3.)");
    std::ostringstream out;
    if (IfcUnknown* instance = server.GetItem(std::size_t{1})) instance->Write(out);
    EXPECT_LE(out.str().size(), 10 * statement.size() + 1000);
  }
};

TEST_P(HostileValue, MayBeNestedDeeply) {
  Read(Repeat("(", kMany) + "1." + Repeat(")", kMany));
  Read(Repeat("(1.,", kMany) + Repeat(")", kMany));
  Read(Repeat("(),", kMany));
  Read(Repeat("(", kMany));
  Read(Repeat(")", kMany));
}

TEST_P(HostileValue, MayBeManyNestedInlineValues) {
  Read(Repeat("IFCLABEL(", kMany) + "'x'" + Repeat(")", kMany));
  Read(Repeat("IFCLABEL('x'),", kMany));
  Read(Repeat("IFCWALL(", kMany) + Repeat(")", kMany));
  Read(Repeat("IFCPARAMETERVALUE(", kMany));
}

TEST_P(HostileValue, MayBeALongRowOfAnything) {
  for (const char* item :
       {"$,",    "*,",       "#1,",   "#,", ",", ".T.,", "''", "''''", "\"", "\\", "\\\\",
        "\\X\\", "\\X2\\00", "\\S\\", "1,", "-", "e",    "a",  " ",    "\t", "=",  "#1="}) {
    SCOPED_TRACE(item);
    Read(Repeat(item, kMany));
  }
}

TEST_P(HostileValue, MayHaveAThousandDigits) {
  const std::string digits = Repeat("9", 1000);
  for (const std::string& number :
       {digits, "-" + digits, digits + "." + digits, "0." + Repeat("0", 1000) + "1", "1.E" + digits,
        "1.E-" + digits, Repeat("0", 1000) + "7", "#" + digits, "#-" + digits,
        "#" + Repeat("0", 1000) + "1", "(" + digits + "," + digits + ")"}) {
    Read(number);
  }
}

TEST_P(HostileValue, MayReferToMissingNumbers) {
  for (const char* reference :
       {"#18446744073709551615", "#18446744073709551616", "#9223372036854775808",
        "#9223372036854775807", "#4294967295", "#4294967296", "#2147483648", "#-1",
        "#-9223372036854775808", "#-9223372036854775809", "#0", "#-0", "#+1", "# 1", "##1", "#1#1",
        "#1.5", "#x"}) {
    SCOPED_TRACE(reference);
    Read(reference);
    Read(std::string("(") + reference + "," + reference + ")");
  }
}

std::string NameOfAttribute(const testing::TestParamInfo<const char*>& info) {
  std::string name = std::to_string(info.index) + "_";
  for (const char c : std::string(info.param)) {
    if (c >= 'A' && c <= 'Z') name += c;
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Attributes, HostileValue, testing::ValuesIn(kAttributes), NameOfAttribute);

/// Calls a function with each text that differs from another text by one added or changed byte.
void ForEachByteInPlace(const std::string& text,
                        const std::function<void(const std::string&)>& act) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string changed = text;
      changed[at] = static_cast<char>(byte);
      act(changed);
      changed.insert(at, 1, text[at]);
      act(changed);
    }
  }
}

TEST(HostileBytes, MayBeAnywhereInAModel) {
  const std::string data =
      "#1=IFCWALL('0YvctVUKr0kugbFTf53O9L',#2,'\\X\\E4''s',$,$,#3,$,'t');\n"
      "#3=IFCTRIMMEDCURVE(#7,(IFCPARAMETERVALUE(0.),#7),(#7),.T.,.CARTESIAN.);/* c */\n"
      "#7=IFCCARTESIANPOINT((0.,-1.E-5));#9=IFCFOO(1,('a'));\n";
  ForEachByteInPlace(data, [](const std::string& changed) {
    IfcServer server;
    Scan(server, changed + "#20=IFCDIRECTION((3.));");
    std::ostringstream out;
    for (IfcUnknown* instance : server.GetItems()) {
      if (instance != nullptr) instance->Write(out);
    }
    ASSERT_LT(out.str().size(), 2000u) << changed;
  });
}

TEST(HostileBytes, MayBeAnywhereInAHeader) {
  const std::string head = "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;";
  std::size_t read = 0;
  ForEachByteInPlace(head, [&](const std::string& changed) {
    IfcServer server;
    std::istringstream in(changed + "#1=IFCDIRECTION((3.));");
    ScanFile(in, &server, true);
    if (server.GetNumberCount() == 1) ++read;
  });
  EXPECT_GT(read, 0u);
}

TEST(HostileFile, MayBeOneStatementOfAHundredMegabytes) {
  constexpr std::size_t kSize = 100000000;
  const std::string text(kSize, 'x');
  {
    const TempFile file(kHead + ("#1=IFCDIRECTION((3.));#2=IFCORGANIZATION($,'" + text + "');"));
    IfcServer server;
    ASSERT_EQ(server.LoadIfcFile(file.GetPath()), 0);
    EXPECT_EQ(TextOf(server, 2).size(), kSize + sizeof "IFCORGANIZATION($,'',$,$,$" - 1);
  }
  const TempFile file(kHead + ("#1=IFCDIRECTION((3.));#2=IFCPERSON(" + text));
  IfcServer server;
  ASSERT_EQ(server.LoadIfcFile(file.GetPath()), 0);
  EXPECT_EQ(server.GetItems().size(), 1u);
}

TEST(HostileFile, MayBeAListOfMillionsOfReferences) {
  IfcServer server;
  Scan(server, "#1=IFCPOLYLINE((" + Repeat("#123456,", 10000000) + "#2));");
  EXPECT_THAT(TextOf(server, 1).substr(0, 40), StartsWith("IFCPOLYLINE((#123456, #123456, "));
}

TEST(HostileFile, MayHaveAMillionStatementsWithoutASemicolon) {
  constexpr std::size_t kStatements = 1000000;
  const std::string statements = Repeat("#1=IFCWALL('g',$,'n',$,$,$,$,$)\n", kStatements);
  {  // without a head it is no model
    const TempFile file(statements);
    IfcServer server;
    EXPECT_EQ(server.LoadIfcFile(file.GetPath()), 2);
  }
  IfcServer lost;
  Scan(lost, statements);
  EXPECT_TRUE(lost.GetItems().empty());
  IfcServer first;
  Scan(first, statements + ";");
  EXPECT_EQ(first.GetItems().size(), 1u);
  EXPECT_THAT(TextOf(first, 1), EndsWith("',$,'n',$,$,$,$,$"));
}

TEST(HostileFile, MayHaveAMillionEmptyStatements) {
  IfcServer server;
  Scan(server, Repeat(";", 1000000) + Repeat("#1=;", 250000) + Repeat("#1;", 250000) +
                   Repeat("=;", 250000) + "#1=IFCDIRECTION((3.));");
  EXPECT_EQ(TextOf(server, 1), "IFCDIRECTION((3.)");
}

TEST(HostileFile, MayHaveAMillionStatementsOfOneNumber) {
  IfcServer server;
  Scan(server, Repeat("#1=IFCDIRECTION((3.));", 1000000));
  EXPECT_EQ(server.GetItems().size(), 1000000u);
  EXPECT_EQ(server.GetNumberCount(), 1u);
  EXPECT_EQ(TextOf(server, 1), "IFCDIRECTION((3.)");
}

TEST(HostileFile, MayOpenCommentsAndTextsWithoutEnd) {
  for (const char* open :
       {"/*", "/* x ", "'", "''", "\"", "/*/", "*/", "/*'\n", "'/*\n", "\\'", "\\\n"}) {
    SCOPED_TRACE(open);
    IfcServer server;
    Scan(server, "#1=IFCDIRECTION((3.));" + Repeat(open, 1000000));
    EXPECT_EQ(TextOf(server, 1), "IFCDIRECTION((3.)");
  }
}

TEST(HostileFile, MayNumberItsInstancesFromOneEndToTheOther) {
  constexpr std::int64_t kLowest = -2147483648;
  constexpr std::int64_t kStep = 4294967295 / static_cast<std::int64_t>(kMany);
  std::string data;
  for (std::int64_t i = 0; i < static_cast<std::int64_t>(kMany); ++i) {
    data += "#" + std::to_string(kLowest + i * kStep) + "=IFCDIRECTION((3.));";
  }
  IfcServer server;
  Scan(server, data + "#-1=IFCDIRECTION((4.));#18446744073709551615=IFCDIRECTION((5.));");
  EXPECT_EQ(server.GetNumberCount(), kMany + 2);
  EXPECT_EQ(TextOf(server, static_cast<std::size_t>(kLowest)), "IFCDIRECTION((3.)");
  EXPECT_EQ(TextOf(server, SIZE_MAX), "IFCDIRECTION((4.)");
  EXPECT_EQ(TextOf(server, 2147483647), "IFCDIRECTION((5.)");  // as far as numbers of a file go
  EXPECT_NE(server.CreateItem("IFCWALL"), nullptr);
}

TEST(HostileFile, MayGiveAllInstancesOneGlobalIdentifier) {
  std::string data;
  for (std::size_t i = 1; i <= kMany; ++i) {
    data += "#" + std::to_string(i) + "=IFCWALL('0YvctVUKr0kugbFTf53O9L',$,'" + std::to_string(i) +
            "',$,$,$,$,$);";
  }
  IfcServer server;
  Scan(server, data);
  _GUID guid = {};
  ASSERT_TRUE(DecodeGlobalId64("0YvctVUKr0kugbFTf53O9L", guid));
  EXPECT_EQ(server.Find(server.GetItem(guid)), 1u);
}

TEST(HostileFile, MayRelateEverythingToItself) {
  std::string data;
  for (std::size_t i = 1; i <= 300; ++i) {
    const std::string ref = "#" + std::to_string(i);
    data +=
        ref + "=IFCRELAGGREGATES('g',$,$,$," + ref + ",(" + Repeat(ref + ",", 299) + ref + "));";
  }
  IfcServer server;
  Scan(server, data);
  EXPECT_THAT(TextOf(server, 300), HasSubstr("(#300, #300"));
}

}  // namespace
}  // namespace KelIFC
