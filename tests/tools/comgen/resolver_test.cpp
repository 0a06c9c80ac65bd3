#include "tools/comgen/resolver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/comgen/describe.h"

namespace comgen {
namespace {

using testing::HasSubstr;

std::string Thing(const std::string& lines = "") {
  return "interface IThing " + kId1 + " -- A thing.\n" + lines;
}

std::string Other(const std::string& lines = "") {
  return "interface IOther " + kId2 + " -- Another.\n" + lines;
}

std::string CoThing(const std::string& interfaces, const std::string& lines = "") {
  return "class CoThing \"Lib.Thing.1\" " + kId3 + " : " + interfaces + "\n" + lines;
}

TEST(ComgenResolver, NumbersReservedOperationsAfterThoseOfTheBase) {
  const Description description = Describe(
      Thing("  get Name: string -- .\n  reserved (pointer)\n") + "interface IMore : IThing " +
      kId2 + " -- .\n  reserved (pointer)\n  get Size: long -- .\n  reserved ()\n");
  std::vector<std::string> names;
  for (const Operation* operation : description.AllOperations(description.interfaces[1])) {
    names.push_back(operation->name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"get_Name", "Reserved2", "Reserved3", "get_Size",
                                             "Reserved5"}));
}

TEST(ComgenResolver, LetsAClassDeriveFromItsMostDerivedInterfaces) {
  const Description description = Describe(Thing() + Other() + "interface IMore : IThing " + kId4 +
                                           " -- .\n" + CoThing("IMore, IThing, IOther"));
  std::vector<std::string> roots;
  for (const Interface* root : description.Roots(description.classes.front())) {
    roots.push_back(root->name);
  }
  EXPECT_EQ(roots, (std::vector<std::string>{"IMore", "IOther"}));
}

TEST(ComgenResolver, RequiresALibrary) {
  Description description = ParseDescription("f.objects", Thing());
  try {
    Resolve(description);
    FAIL() << "accepted";
  } catch (const schemac::DescriptionError& error) {
    EXPECT_STREQ(error.what(), "f.objects:1:1: error: there is no library");
  }
}

TEST(ComgenResolver, RefusesDuplicateNames) {
  EXPECT_THAT(Refusal(Thing() + "interface IThing " + kId2 + " -- .\n"),
              HasSubstr("f.objects:3:1: error: the name 'IThing' is defined twice"));
  EXPECT_THAT(Refusal(Thing() + "class IThing \"Lib.Thing.1\" " + kId2 + " : IThing\n"),
              HasSubstr("the name 'IThing' is defined twice"));
}

TEST(ComgenResolver, RefusesDuplicateIdentifiers) {
  EXPECT_THAT(Refusal(Thing() + "interface IOther " + kId1 + " -- .\n"),
              HasSubstr("f.objects:3:1: error: the identifier"));
  EXPECT_THAT(Refusal("interface IThing {00000000-0000-0000-0000-000000000001} -- .\n"),
              HasSubstr("the identifier"));
  EXPECT_THAT(Refusal(Thing() + "class CoThing \"Lib.Thing.1\" " + kId1 + " : IThing\n"),
              HasSubstr("the identifier"));
}

TEST(ComgenResolver, RefusesProgramNamesThatAreDuplicateOrHaveNoVersion) {
  EXPECT_THAT(
      Refusal(Thing() + CoThing("IThing") + "class CoMore \"Lib.Thing.1\" " + kId4 + " : IThing\n"),
      HasSubstr("f.objects:4:1: error: the program name 'Lib.Thing.1' is defined twice"));
  for (const char* name : {"", "Lib", "Lib.Thing", "Lib.Thing.", "Lib..1", ".Thing.1", "a.b.c.d"}) {
    EXPECT_THAT(Refusal(Thing() + "class CoThing \"" + name + "\" " + kId3 + " : IThing\n"),
                HasSubstr("is not LIBRARY.NAME.VERSION"))
        << name;
  }
}

TEST(ComgenResolver, RefusesBasesThatAreDescribedLater) {
  EXPECT_THAT(Refusal("interface IMore : IThing " + kId2 + " -- .\n" + Thing()),
              HasSubstr("the base 'IThing' of 'IMore' is not described before it"));
  EXPECT_THAT(Refusal("interface IMore : IMore " + kId2 + " -- .\n"), HasSubstr("not described"));
}

TEST(ComgenResolver, RefusesKindsThatAreNotDescribed) {
  EXPECT_EQ(Refusal(Thing("  get Size: int -- .\n")),
            "f.objects:3:13: error: expected a kind or an interface, not 'int'");
  EXPECT_THAT(Refusal("collection IThings of IThing " + kId1 + " -- .\n"),
              HasSubstr("expected a kind or an interface, not 'IThing'"));
}

TEST(ComgenResolver, RefusesPointersOutsideReservedOperations) {
  EXPECT_THAT(Refusal(Thing("  get Size: pointer -- .\n")),
              HasSubstr("a pointer is allowed in reserved operations only"));
}

TEST(ComgenResolver, RefusesOperationsWithoutAComment) {
  EXPECT_EQ(Refusal(Thing("  get Size: long\n")), "f.objects:3:3: error: a doc comment is missing");
}

TEST(ComgenResolver, RefusesOperationsWithTheSameName) {
  EXPECT_THAT(Refusal(Thing("  Go() -- .\n  Go(a: long) -- .\n")),
              HasSubstr("f.objects:4:3: error: the operation 'Go' is defined twice"));
  EXPECT_THAT(
      Refusal(Thing("  Go() -- .\n") + "interface IMore : IThing " + kId2 + " -- .\n  Go() -- .\n"),
      HasSubstr("the operation 'Go' is defined twice"));
  EXPECT_THAT(Refusal(Thing("  Go() -- .\n") + Other("  Go() -- .\n") + CoThing("IThing, IOther")),
              HasSubstr("the operation 'Go' is defined twice"));
}

TEST(ComgenResolver, RefusesArgumentsWithTheSameName) {
  EXPECT_THAT(Refusal(Thing("  Go(a: long, a: long) -- .\n")),
              HasSubstr("the argument 'a' is defined twice"));
}

TEST(ComgenResolver, RefusesUnknownAndDuplicateInterfacesOfAClass) {
  EXPECT_THAT(Refusal(Thing() + CoThing("IThing, INone")),
              HasSubstr("there is no interface 'INone'"));
  EXPECT_THAT(Refusal(Thing() + CoThing("IThing, IThing")),
              HasSubstr("the interface 'IThing' is defined twice"));
}

TEST(ComgenResolver, RefusesAClassWhoseFirstInterfaceIsABaseOfAnother) {
  EXPECT_THAT(
      Refusal(Thing() + "interface IMore : IThing " + kId2 + " -- .\n" + CoThing("IThing, IMore")),
      HasSubstr("the first interface is a base of another one"));
}

TEST(ComgenResolver, RefusesToOmitWhatAClassDoesNotHave) {
  EXPECT_EQ(Refusal(Thing() + Other() + CoThing("IThing", "  reserved IOther\n")),
            "f.objects:5:12: error: 'CoThing' has no interface 'IOther'");
  EXPECT_THAT(Refusal(Thing() + CoThing("IThing", "  reserved IThing.get_Name\n")),
              HasSubstr("'IThing' has no operation 'get_Name'"));
}

}  // namespace
}  // namespace comgen
