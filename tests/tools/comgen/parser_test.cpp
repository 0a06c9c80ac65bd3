#include "tools/comgen/parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/comgen/describe.h"

namespace comgen {
namespace {

using testing::HasSubstr;

/// Returns the only interface of a body.
Interface ReadInterface(const std::string& lines) {
  return Describe("interface IThing " + kId1 + " -- A thing.\n" + lines).interfaces.front();
}

std::vector<std::string> NamesOf(const Interface& interface) {
  std::vector<std::string> names;
  for (const Operation& operation : interface.operations) names.push_back(operation.name);
  return names;
}

std::string RefusedLine(const std::string& line) {
  return Refusal("interface IThing " + kId1 + " -- A thing.\n" + line);
}

TEST(ComgenParser, ReadsTheLibrary) {
  const Description description = Describe("");
  EXPECT_EQ(description.library.name, "LIB");
  EXPECT_EQ(description.library.identifier, "00000000-0000-0000-0000-000000000001");
  EXPECT_EQ(description.library.doc, "A library.");
}

TEST(ComgenParser, ReadsAnInterface) {
  const Description description =
      Describe("interface IBase " + kId1 + " -- A base.\ninterface IThing : IBase " + kId2 +
               " -- A thing,\n      -- with more to tell.\n");
  ASSERT_EQ(description.interfaces.size(), 2U);
  const Interface& interface = description.interfaces[1];
  EXPECT_EQ(interface.name, "IThing");
  EXPECT_EQ(interface.base, "IBase");
  EXPECT_EQ(interface.identifier, "22222222-2222-2222-2222-22222222BBBB");
  EXPECT_EQ(interface.doc, "A thing, with more to tell.");
}

TEST(ComgenParser, ReadsProperties) {
  const Interface interface = ReadInterface(
      "  get Name: string -- Its name.\n"
      "  put Size: double -- Sets its size.\n"
      "  getput BRep: long -- A number.\n");
  EXPECT_EQ(NamesOf(interface),
            (std::vector<std::string>{"get_Name", "put_Size", "get_BRep", "put_BRep"}));
  const auto& operations = interface.operations;
  EXPECT_EQ(operations[0].role, Operation::Role::kGet);
  EXPECT_EQ(operations[0].arguments.at(0).name, "name");
  EXPECT_EQ(operations[0].arguments.at(0).type.kind, Kind::kString);
  EXPECT_TRUE(operations[0].arguments.at(0).isOut);
  EXPECT_EQ(operations[0].doc, "Its name.");
  EXPECT_EQ(operations[1].role, Operation::Role::kPut);
  EXPECT_FALSE(operations[1].arguments.at(0).isOut);
  EXPECT_EQ(operations[2].doc, "A number.");
  EXPECT_EQ(operations[3].doc, "Sets the value.");
}

TEST(ComgenParser, NamesTheArgumentOfAPropertyAfterIt) {
  const Interface interface = ReadInterface(
      "  get Name: string -- .\n  get GUID: string -- .\n  get BRep: long -- .\n"
      "  get X: double -- .\n  get IsOpen: bool -- .\n");
  std::vector<std::string> names;
  for (const Operation& operation : interface.operations) {
    names.push_back(operation.arguments.at(0).name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"name", "guid", "bRep", "x", "isOpen"}));
}

TEST(ComgenParser, ReadsOperationsWithArguments) {
  const Interface interface = ReadInterface(
      "  Find(index: variant, flag: bool, out item: IThing) -- Finds.\n  Go() -- Goes.\n");
  ASSERT_EQ(interface.operations.size(), 2U);
  const Operation& find = interface.operations[0];
  EXPECT_EQ(find.role, Operation::Role::kMethod);
  ASSERT_EQ(find.arguments.size(), 3U);
  EXPECT_EQ(find.arguments[0].type.kind, Kind::kVariant);
  EXPECT_FALSE(find.arguments[1].isOut);
  EXPECT_TRUE(find.arguments[2].isOut);
  EXPECT_EQ(find.arguments[2].name, "item");
  EXPECT_EQ(find.arguments[2].type.interface, "IThing");
  EXPECT_TRUE(interface.operations[1].arguments.empty());
}

TEST(ComgenParser, ReadsReservedOperationsWithAndWithoutACount) {
  const Interface interface =
      ReadInterface("  reserved (pointer)\n  reserved 3 (long, short)\n  reserved 2 ()\n");
  EXPECT_EQ(NamesOf(interface), (std::vector<std::string>{"Reserved1", "Reserved2", "Reserved3",
                                                          "Reserved4", "Reserved5", "Reserved6"}));
  EXPECT_EQ(interface.operations[1].arguments.size(), 2U);
  EXPECT_EQ(interface.operations[5].arguments.size(), 0U);
}

TEST(ComgenParser, DistinguishesAnOperationFromAKeyword) {
  EXPECT_EQ(NamesOf(ReadInterface("  getter() -- .\n  reservedPlace() -- .\n  putter() -- .\n")),
            (std::vector<std::string>{"getter", "reservedPlace", "putter"}));
}

TEST(ComgenParser, BeginsACollectionWithItsThreeOperations) {
  const Description description = Describe(
      "interface IThing " + kId1 + " -- .\ncollection IThings of IThing " + kId2 +
      " -- Things.\n  reserved (pointer)\ncollection INumbers of long " + kId3 + " -- Numbers.\n");
  EXPECT_EQ(NamesOf(description.interfaces[1]),
            (std::vector<std::string>{"_NewEnum", "Item", "Count", "Reserved4"}));
  const Operation& item = description.interfaces[2].operations[1];
  EXPECT_EQ(item.arguments.at(1).type.kind, Kind::kLong);
  EXPECT_TRUE(item.arguments.at(1).isOut);
  EXPECT_THAT(description.interfaces[1].operations[1].doc, HasSubstr("The caller releases it."));
  EXPECT_THAT(item.doc, testing::Not(HasSubstr("The caller releases it.")));
}

TEST(ComgenParser, ReadsAClass) {
  const Description description =
      Describe("interface IThing " + kId1 + " -- .\n  get Name: string -- .\ninterface IOther " +
               kId2 + " -- .\nclass CoThing \"Lib.Thing.1\" " + kId3 +
               " : IThing, IOther\n  header lib/thing.h\n  reserved IThing.get_Name\n"
               "  reserved IOther\n");
  ASSERT_EQ(description.classes.size(), 1U);
  const Class& type = description.classes.front();
  EXPECT_EQ(type.name, "CoThing");
  EXPECT_EQ(type.progId, "Lib.Thing.1");
  EXPECT_EQ(type.identifier, "33333333-3333-3333-3333-33333333CCCC");
  EXPECT_EQ(type.interfaces, (std::vector<std::string>{"IThing", "IOther"}));
  EXPECT_EQ(type.header, "lib/thing.h");
  ASSERT_EQ(type.omissions.size(), 2U);
  EXPECT_EQ(type.omissions[0].interface, "IThing");
  EXPECT_EQ(type.omissions[0].operation, "get_Name");
  EXPECT_EQ(type.omissions[1].operation, "");
}

TEST(ComgenParser, ReportsThePlaceOfAnError) {
  EXPECT_EQ(Refusal("type IThing\n"),
            "f.objects:2:1: error: expected 'library', 'interface', 'collection' or 'class'");
  EXPECT_EQ(RefusedLine("  get Name: string more\n"),
            "f.objects:3:20: error: expected the end of the line");
}

TEST(ComgenParser, RefusesLinesWithoutAnEntry) {
  EXPECT_THAT(Refusal("  get Name: string -- .\n"),
              HasSubstr("expected an interface or a class before this line"));
}

TEST(ComgenParser, RefusesTextThatIsNotAnIdentifier) {
  for (const char* identifier :
       {"{}", "{11111111-1111-1111-1111-1111111111}", "{11111111-1111-1111-1111-11111111aaaa}",
        "{11111111-1111-1111-1111-11111111AAAAA}", "{11111111x1111-1111-1111-11111111AAAA}"}) {
    EXPECT_THAT(Refusal("interface IThing " + std::string(identifier) + " -- .\n"),
                HasSubstr("f.objects:2:19: error: expected an identifier in upper case"))
        << identifier;
  }
  EXPECT_THAT(Refusal("interface IThing 1111 -- .\n"), HasSubstr("expected '{'"));
}

TEST(ComgenParser, RefusesInterfacesWithoutAComment) {
  EXPECT_THAT(Refusal("interface IThing " + kId1 + "\n"), HasSubstr("a doc comment is missing"));
}

TEST(ComgenParser, RefusesIncompleteLines) {
  EXPECT_THAT(RefusedLine("  get\n"), HasSubstr("expected a name"));
  EXPECT_THAT(RefusedLine("  get Name\n"), HasSubstr("expected ':'"));
  EXPECT_THAT(RefusedLine("  get Name:\n"), HasSubstr("expected a kind"));
  EXPECT_THAT(RefusedLine("  Go\n"), HasSubstr("expected '('"));
  EXPECT_THAT(RefusedLine("  Go(a: long\n"), HasSubstr("expected ')'"));
  EXPECT_THAT(RefusedLine("  Go(out)\n"), HasSubstr("expected an argument"));
  EXPECT_THAT(RefusedLine("  reserved\n"), HasSubstr("expected a count or arguments"));
  EXPECT_THAT(Refusal("class CoThing Lib.Thing.1 " + kId1 + " : IThing\n"),
              HasSubstr("expected '\"'"));
  EXPECT_THAT(Refusal("collection IThings " + kId1 + " -- .\n"), HasSubstr("expected 'of'"));
}

TEST(ComgenParser, RefusesBadCounts) {
  for (const char* count : {"0", "100", "x", "-1", "99999999999999999999"}) {
    EXPECT_THAT(RefusedLine("  reserved " + std::string(count) + " (pointer)\n"),
                HasSubstr("f.objects:3:12: error: expected a count from 1 to 99"))
        << count;
  }
}

TEST(ComgenParser, RefusesUnknownLinesOfAClass) {
  EXPECT_THAT(Refusal("interface IThing " + kId1 + " -- .\nclass CoThing \"Lib.Thing.1\" " + kId2 +
                      " : IThing\n  get Name: string\n"),
              HasSubstr("f.objects:4:3: error: expected 'reserved'"));
}

}  // namespace
}  // namespace comgen
