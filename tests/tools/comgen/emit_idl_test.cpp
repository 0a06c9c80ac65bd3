#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "tests/tools/comgen/describe.h"

namespace comgen {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string kThing = "interface IThing " + kId1 +
                           " -- A \"thing\".\n"
                           "  getput Name: string -- Its name.\n"
                           "  reserved (pointer, long)\n"
                           "  Read(index: long, out x: double, out y: double) -- Reads.\n"
                           "  IsOld(out isOld: bool) -- Tells.\n";
const std::string kThings = "collection IThings of IThing " + kId2 + " -- Things.\n";
const std::string kClass =
    "class CoThing \"Lib.Thing.1\" " + kId3 + " : IThing, IThings\n  header lib/thing.h\n";

TEST(EmitIdl, WritesDualInterfacesWithTheirIdentifiers) {
  const std::string idl = Emitted(EmitIdl, kThing);
  EXPECT_THAT(idl, HasSubstr("[object, uuid(11111111-1111-1111-1111-11111111AAAA), dual,"));
  EXPECT_THAT(idl, HasSubstr(R"(helpstring("A \"thing\"."))"));
  EXPECT_THAT(idl, HasSubstr("interface IThing : IDispatch {"));
  EXPECT_THAT(idl, HasSubstr("version(25.1)"));
}

TEST(EmitIdl, GivesBothOperationsOfAPropertyOneIdentifier) {
  const std::string idl = Emitted(EmitIdl, kThing);
  EXPECT_THAT(idl, HasSubstr("[id(0x101), propget, helpstring(\"Its name.\")]\n"
                             "    HRESULT Name([out, retval] BSTR* name);"));
  EXPECT_THAT(idl, HasSubstr("[id(0x101), propput, helpstring(\"Sets the value.\")]\n"
                             "    HRESULT Name([in] BSTR name);"));
}

TEST(EmitIdl, HidesReservedOperations) {
  EXPECT_THAT(Emitted(EmitIdl, kThing),
              HasSubstr("[id(0x103), hidden, restricted]\n"
                        "    HRESULT Reserved3([in] IUnknown* argument1, [in] long argument2);"));
}

TEST(EmitIdl, MakesTheOnlyOutputTheResult) {
  const std::string idl = Emitted(EmitIdl, kThing);
  EXPECT_THAT(idl, HasSubstr("Read([in] long index, [out] double* x, [out] double* y);"));
  EXPECT_THAT(idl, HasSubstr("IsOld([out, retval] VARIANT_BOOL* isOld);"));
}

TEST(EmitIdl, MarksTheOperationsByWhichScriptsEnumerate) {
  const std::string idl = Emitted(EmitIdl, kThing + kThings);
  EXPECT_THAT(idl, HasSubstr("[id(DISPID_NEWENUM), propget, restricted"));
  EXPECT_THAT(idl, HasSubstr("[id(DISPID_VALUE), propget"));
  EXPECT_THAT(idl, HasSubstr("HRESULT Count([out, retval] long* count);"));
}

TEST(EmitIdl, GivesEachOperationItsOwnIdentifier) {
  const std::string idl = Emitted(EmitIdl, kThing + kThings);
  const std::regex pattern(R"(\[id\((0x[0-9a-f]+)\), (?!propput))");
  std::set<std::string> identifiers;
  std::size_t count = 0;
  for (std::sregex_iterator at(idl.begin(), idl.end(), pattern), end; at != end; ++at) {
    identifiers.insert((*at)[1]);
    ++count;
  }
  EXPECT_EQ(identifiers.size(), count);
  EXPECT_GT(count, 3U);
}

TEST(EmitIdl, ListsTheClassesThatCanBeCreated) {
  const std::string idl = Emitted(EmitIdl, kThing + kThings + kClass);
  EXPECT_THAT(idl, HasSubstr("  coclass CoThing {\n"
                             "    [default] interface IThing;\n"
                             "    interface IThings;\n  };"));
  EXPECT_THAT(Emitted(EmitIdl, kThing), Not(HasSubstr("coclass")));
}

}  // namespace
}  // namespace comgen
