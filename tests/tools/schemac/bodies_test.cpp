#include "tools/schemac/bodies.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

const std::string kTwoNumbers =
    "entity IfcA : IfcUnknown all\n  doc A.\n  ops Add(number), Add(const IfcA& other, real)\n"
    "  tell Add A.\nfunction IfcTurn(const IfcA& a): REAL   [2x..]\n  doc Turns.\n";

TEST(ParseBodies, ReadsSectionsWithTheirReleases) {
  const Description description = Describe(kTwoNumbers,
                                           "// A file comment.\n\n// entity IfcA\none\n\n"
                                           "// entity IfcA   [2x]\n// a comment\ntwo\n"
                                           "// function IfcTurn\nthree");
  ASSERT_EQ(description.bodies.size(), 3u);
  EXPECT_EQ(description.bodies[0].text, "one\n\n");
  EXPECT_EQ(description.bodies[0].place.line, 3);
  EXPECT_EQ(description.bodies[0].releases, ReleaseSet::All());
  EXPECT_EQ(description.bodies[1].text, "// a comment\ntwo\n");
  EXPECT_EQ(description.bodies[1].releases, *ReleaseSet::Read("2x"));
  EXPECT_EQ(description.bodies[2].name, "IfcTurn");
  EXPECT_EQ(description.bodies[2].releases, *ReleaseSet::Read("2x.."));
}

struct Fault {
  const char* code;
  const char* message;
};

class RefusedBodies : public testing::TestWithParam<Fault> {};

TEST_P(RefusedBodies, AreReportedWithTheirPlace) {
  try {
    Describe(kTwoNumbers, GetParam().code);
    FAIL();
  } catch (const DescriptionError& error) {
    EXPECT_EQ(error.what(), std::string("f.inl:") + GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, RefusedBodies,
    testing::Values(Fault{"int x;\n", "1:1: error: code before the first section"},
                    Fault{"// entity IfcB\n", "1:11: error: IfcB is not described"},
                    Fault{"// function IfcA\n", "1:13: error: IfcA is not described"},
                    Fault{"// function IfcTurn [151]\n",
                          "1:21: error: a release that the entry does not have"},
                    Fault{"// entity IfcA of old\n", "1:16: error: expected the end of the line"},
                    Fault{"// entity IfcA [3x]\n", "1:17: error: '3x' does not name releases"}));

TEST(AttachBodies, FindsEachOverloadByItsParameters) {
  const Resolved resolved(kTwoNumbers,
                          "// entity IfcA\n"
                          "void IfcA::Add(\n    const IfcA& other,\n    REAL value) {}\n"
                          "void IfcA::Add(std::size_t number) { Add(number); }\n"
                          "// function IfcTurn\nREAL IfcTurn(const IfcA& a) {}\n");
  const ResolvedClass& type = *resolved.model.Find("IfcA");
  EXPECT_EQ(type.operations[0].bodyPlace.line, 5);
  EXPECT_EQ(type.operations[1].bodyPlace.line, 2);
  EXPECT_EQ(type.operations[1].bodyPlace.file, "f.inl");
  EXPECT_EQ(resolved.model.functions.front().bodyPlace.line, 7);
}

/// Returns the error for the code in the newest release.
std::string RefusedCode(const std::string& body, const std::string& code) {
  try {
    const Resolved resolved(body, code);
  } catch (const DescriptionError& error) {
    return error.what();
  }
  return "";
}

TEST(AttachBodies, RequiresEachBodyInASectionOfTheRelease) {
  const std::string body =
      "entity IfcA : IfcUnknown all\n  doc A.\n  ops GetN: integer\n  tell GetN N.\n";
  const std::string code = "\nINTEGER IfcA::GetN() const { return 1; }\n";
  EXPECT_EQ(RefusedCode(body, "// entity IfcA" + code), "");
  const std::string message =
      "f.schema:4:7: error: no section of IfcA defines 'IfcA::GetN()' for release 2x3";
  EXPECT_EQ(RefusedCode(body, "// entity IfcA [..2x2]" + code), message);
  EXPECT_EQ(RefusedCode(body, "// entity IfcA\n"), message);
  EXPECT_EQ(RefusedCode(body, ""), message);
}

TEST(AttachBodies, RequiresTheBodiesOfConstructorsRecordsAndFunctions) {
  EXPECT_EQ(RefusedCode("entity IfcA : IfcUnknown all\n  doc A.\n  make (REAL x)\n", ""),
            "f.schema:4:3: error: no section of IfcA defines 'IfcA::IfcA(REAL x)' for release 2x3");
  EXPECT_EQ(RefusedCode("entity IfcA : IfcUnknown all\n  doc A.\n  custom Write\n", ""),
            "f.schema:4:3: error: no section of IfcA defines 'IfcA::Write(std::ostream& out)' for "
            "release 2x3");
  EXPECT_EQ(RefusedCode("function IfcTurn(REAL a): REAL\n  doc T.\n", ""),
            "f.schema:2:1: error: no section of IfcTurn defines 'IfcTurn(REAL a)' for release 2x3");
}

}  // namespace
}  // namespace schemac
