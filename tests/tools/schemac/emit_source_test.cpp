#include <algorithm>

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(EmitSource, ReadsAndWritesThroughTheChain) {
  const std::string source = Resolved(
                                 "entity IfcA : IfcUnknown all\n  doc A.\n  Name string\n"
                                 "entity IfcB : IfcA all file\n  doc B.\n  drop enum .X.\n"
                                 "  redeclared Name\n  literal $\n  Size real\n")
                                 .Source();
  EXPECT_TRUE(Holds(source, "return ParseRecord(IfcUnknown::Parse(cursor), name);"));
  EXPECT_TRUE(Holds(source, "return WriteFirst(IfcUnknown::Write(out), name);"));
  EXPECT_TRUE(
      Holds(source,
            "return ParseRecord(IfcA::Parse(cursor), Dropped<ENUM>(), Redeclared(*this), size);"));
  EXPECT_TRUE(Holds(source,
                    "return WriteNext(IfcA::Write(out), Literal(\".X.\"), Literal(\"*\"), "
                    "Literal(\"$\"), size);"));
}

TEST(EmitSource, LinksInstancesAtThePositionOfTheLine) {
  const std::string source = Resolved(
                                 "entity IfcA : IfcUnknown all file\n  doc A.\n  First ref IfcA\n"
                                 "  link First as IfcA AddBack\n  Second ref IfcA\n"
                                 "  Backs set IfcA inverse\n  ops AddBack\n")
                                 .Source();
  EXPECT_TRUE(Holds(source,
                    "  cursor = ParseRecord(IfcUnknown::Parse(cursor), first);\n"
                    "  LinkBack(*this, first, &IfcA::AddBack);\n"
                    "  return ParseRecord(cursor, second);\n"));
}

TEST(EmitSource, ReadsEnumerationsWithTheirDefault) {
  const std::string body =
      "enum IfcKind\n  doc Kinds.\n  all A 0 B 1\n"
      "entity IfcA : IfcUnknown all file\n  doc A.\n  First enum IfcKind\n"
      "  Second enum IfcKind = B\n";
  EXPECT_TRUE(Holds(Resolved(body).Source(), "Enumerated(first, kIfcKindTable),"));
  EXPECT_TRUE(Holds(Resolved(body).Source(), "Enumerated(second, kIfcKindTable, IfcKind_B))"));
}

TEST(EmitSource, WritesALiteralForAnAttributeThatIsOnlyRead) {
  EXPECT_TRUE(
      Holds(Resolved("entity IfcA : IfcUnknown all file\n  doc A.\n  X list any as $\n").Source(),
            "return WriteFirst(IfcUnknown::Write(out), Literal(\"$\"));"));
}

TEST(EmitSource, CopiesTheBodiesWrittenByHand) {
  const std::string body =
      "entity IfcA : IfcUnknown all\n  doc A.\n  ops GetN: integer\n  tell GetN N.\n";
  const std::string code =
      "// entity IfcA [..2x]\nint old;\n// entity IfcA\nINTEGER IfcA::GetN() const { return 1; }\n";
  const std::string source = Resolved(body, code).Source();
  EXPECT_TRUE(Holds(source,
                    "// The bodies of IfcA, from f.inl:3.\n#line 4 \"f.inl\"\n"
                    "INTEGER IfcA::GetN() const { return 1; }\n"));
  EXPECT_FALSE(Holds(source, "int old;"));
  EXPECT_TRUE(Holds(Resolved(body, code, k2x).Source(), "#line 2 \"f.inl\"\nint old;\n"));
}

TEST(EmitSource, CountsItsOwnLinesAgainAfterABody) {
  const std::string source =
      Resolved("entity IfcA : IfcUnknown all\n  doc A.\n  ops GetN: integer\n  tell GetN N.\n",
               "// entity IfcA\nINTEGER IfcA::GetN() const { return 1; }\n")
          .Source();
  const auto directive = source.find("#line ", source.find("f.inl\"\n"));
  ASSERT_NE(directive, std::string::npos);
  const auto next = static_cast<std::size_t>(
      std::count(source.begin(), source.begin() + static_cast<std::ptrdiff_t>(directive), '\n') +
      2);
  EXPECT_EQ(source.substr(directive, source.find('\n', directive) - directive),
            "#line " + std::to_string(next) + " \"kelifc/schema/ifc2x3/f.cpp\"");
}

TEST(EmitSource, WritesTheTextOfAnEnumerationAsItIs) {
  EXPECT_TRUE(
      Holds(Resolved("entity IfcA : IfcUnknown all file\n  doc A.\n  X enumtext\n").Source(),
            "return WriteFirst(IfcUnknown::Write(out), EnumeratedText(x));"));
}

TEST(EmitSource, ReadsListsOfTextsWithTheirOwnReader) {
  const std::string source =
      Resolved("entity IfcA : IfcUnknown all file\n  doc A.\n  X labels\n", k151).Source();
  EXPECT_TRUE(Holds(source, "ParseRecord(IfcUnknown::Parse(cursor), Texts(x));"));
  EXPECT_TRUE(Holds(source, "WriteFirst(IfcUnknown::Write(out), x);"));
}

TEST(EmitSource, WritesAScientificNumberInItsOwnForm) {
  EXPECT_TRUE(
      Holds(Resolved("entity IfcA : IfcUnknown all file\n  doc A.\n  X scientific\n").Source(),
            "return WriteFirst(IfcUnknown::Write(out), Scientific(x));"));
}

TEST(EmitSource, ReadsATypeThatIsAListOfIntegers) {
  EXPECT_TRUE(Holds(
      Resolved("type IfcAngle integers all\n  doc A.\n").Source(),
      "const char* IfcAngle::Parse(const char* cursor) { return ParseIntegers(*this, cursor); }"));
}

}  // namespace
}  // namespace schemac
