#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(EmitSource, ReadsAndWritesThroughTheChain) {
  const std::string source = Resolved(
                                 "entity IfcA : IfcUnknown all\n  doc A.\n  Name string\n"
                                 "entity IfcB : IfcA all file\n  doc B.\n  drop enum .X.\n"
                                 "  redeclared\n  literal $\n  Size real\n")
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

TEST(EmitSource, LinksAtThePlaceOfTheLine) {
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

TEST(EmitSource, WritesALiteralForWhatIsReadOnly) {
  EXPECT_TRUE(
      Holds(Resolved("entity IfcA : IfcUnknown all file\n  doc A.\n  X list any as $\n").Source(),
            "return WriteFirst(IfcUnknown::Write(out), Literal(\"$\"));"));
}

TEST(EmitSource, IncludesTheBodiesWrittenByHand) {
  const std::string body =
      "entity IfcA : IfcUnknown all file\n  doc A.\n  [151] bodies one two\n  custom Parse\n";
  EXPECT_TRUE(Holds(Resolved(body).Source(), "#include \"kelifc/schema/f/ifca.inl\""));
  EXPECT_TRUE(Holds(Resolved(body, k151).Source(), "#include \"kelifc/schema/f/two.inl\""));
  EXPECT_FALSE(Holds(Resolved(body, k151).Source(), "ifca.inl"));
}

TEST(EmitSource, WritesTheTextOfAnEnumerationAsItIs) {
  EXPECT_TRUE(
      Holds(Resolved("entity IfcA : IfcUnknown all file\n  doc A.\n  X enumtext\n").Source(),
            "return WriteFirst(IfcUnknown::Write(out), EnumeratedText(x));"));
}

TEST(EmitSource, ReadsListsOfTextsWithAReaderOfTheirOwn) {
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
