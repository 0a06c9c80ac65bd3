#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/comgen/describe.h"

namespace comgen {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string kThing = "interface IThing " + kId1 +
                           " -- A thing.\n"
                           "  get Name: string -- Its name.\n"
                           "  reserved 2 (pointer, long)\n"
                           "  Find(index: variant, out item: IThing) -- Finds.\n";
const std::string kMore = "interface IMore : IThing " + kId2 + " -- More.\n  reserved (short)\n";
const std::string kPlain = "interface IPlain " + kId3 + " -- Plain.\n  Go(flag: bool) -- Goes.\n";
const std::string kClass = "class CoMore \"Lib.More.1\" " + kId4 + " : IMore, IThing, IPlain\n";

TEST(EmitInterfaces, WritesAStructWithItsOperationsInOrder) {
  EXPECT_THAT(Emitted(EmitInterfaces, kThing), HasSubstr(R"(
/// A thing.
struct KELIFC_INTERFACE IThing : IDispatch {
  static constexpr IID kIid = {
      0x11111111, 0x1111, 0x1111, {0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0xAA, 0xAA}};

  /// Its name.
  virtual HRESULT get_Name(BSTR* name) = 0;

  virtual HRESULT Reserved2(void*, LONG) = 0;
  virtual HRESULT Reserved3(void*, LONG) = 0;

  /// Finds.
  virtual HRESULT Find(VARIANT index, IThing** item) = 0;

 protected:
  ~IThing() = default;
};
)"));
}

TEST(EmitInterfaces, DerivesFromTheBase) {
  EXPECT_THAT(Emitted(EmitInterfaces, kThing + kMore),
              HasSubstr("struct KELIFC_INTERFACE IMore : IThing {\n"));
}

TEST(EmitInterfaces, DeclaresAllInterfacesAheadOfTheFirst) {
  EXPECT_THAT(Emitted(EmitInterfaces, kThing + kPlain),
              HasSubstr("struct IPlain;\nstruct IThing;\n\n"));
}

TEST(EmitInterfaces, WritesEachKindOfArgument) {
  const std::string header = Emitted(
      EmitInterfaces, "interface IThing " + kId1 +
                          " -- .\n  In(a: long, b: short, c: double, d: bool, e: string, f: "
                          "unknown) -- .\n  Out(out a: long, out b: unknown) -- .\n");
  EXPECT_THAT(header,
              HasSubstr("In(LONG a, SHORT b, double c, VARIANT_BOOL d, BSTR e, IUnknown* f)"));
  EXPECT_THAT(header, HasSubstr("Out(LONG* a, IUnknown** b)"));
}

TEST(EmitInterfaces, WritesTheIdentifiersOfLibraryAndClasses) {
  const std::string header = Emitted(EmitInterfaces, kThing + kMore + kPlain + kClass);
  EXPECT_THAT(header, HasSubstr("inline constexpr GUID LIBID_LIB = {\n    0x00000000, "));
  EXPECT_THAT(header, HasSubstr("/// Lib.More.1\ninline constexpr CLSID CLSID_CoMore = {\n"
                                "    0x44444444, 0x4444, 0x4444, {0x44, "));
}

TEST(EmitInterfaces, SaysWhereItComesFrom) {
  EXPECT_THAT(Emitted(EmitInterfaces, kThing),
              testing::StartsWith("// Made by comgen from f.objects; change the description"));
}

TEST(EmitBases, AnswersReservedOperations) {
  EXPECT_THAT(Emitted(EmitBases, kThing), HasSubstr(R"(
class ThingReserved : public IThing {
 public:
  HRESULT Reserved2(void*, LONG) override { return E_NOTIMPL; }
  HRESULT Reserved3(void*, LONG) override { return E_NOTIMPL; }

 protected:
)"));
}

TEST(EmitBases, WritesATemplateWhereOthersDeriveFromTheInterface) {
  const std::string bases = Emitted(EmitBases, kThing + kMore);
  EXPECT_THAT(bases, HasSubstr("template <class Interface>\n"
                               "class ThingReserved : public Interface {\n"));
  EXPECT_THAT(bases, HasSubstr("class MoreReserved : public ThingReserved<IMore> {\n"));
}

TEST(EmitBases, NeedsNoBaseWithoutReservedOperations) {
  EXPECT_THAT(Emitted(EmitBases, kPlain), Not(HasSubstr("PlainReserved")));
}

TEST(EmitBases, PutsTheInterfacesOfAClassTogether) {
  EXPECT_THAT(Emitted(EmitBases, kThing + kMore + kPlain + kClass), HasSubstr(R"(
class CoMoreBase : public Dual<MoreReserved, IPlain> {
 public:
  using Interfaces = DualInterfaces<IMore, IThing, IPlain>;
  static constexpr CLSID kClsid = CLSID_CoMore;
  static constexpr const OLECHAR* kProgId = L"Lib.More.1";

 protected:
)"));
}

TEST(EmitBases, UsesTheTemplateForAClassOfTheBaseItself) {
  EXPECT_THAT(
      Emitted(EmitBases, kThing + kMore + "class CoThing \"Lib.Thing.1\" " + kId4 + " : IThing\n"),
      HasSubstr("class CoThingBase : public Dual<ThingReserved<IThing>> {"));
}

TEST(EmitBases, AnswersWhatAClassLeavesOut) {
  const std::string one =
      Emitted(EmitBases, kThing + kMore + kPlain + kClass + "  reserved IThing.get_Name\n");
  EXPECT_THAT(one, HasSubstr("  // Not offered by this class.\n"
                             "  HRESULT get_Name(BSTR*) override { return E_NOTIMPL; }\n\n"));
  const std::string all =
      Emitted(EmitBases, kThing + kMore + kPlain + kClass + "  reserved IThing\n");
  EXPECT_THAT(all,
              HasSubstr("  // Not offered by this class.\n"
                        "  HRESULT get_Name(BSTR*) override { return E_NOTIMPL; }\n"
                        "  HRESULT Find(VARIANT, IThing**) override { return E_NOTIMPL; }\n\n"));
}

TEST(EmitClassTable, HoldsTheClassesThatHaveAHeader) {
  const std::string table =
      Emitted(EmitClassTable, kThing + kMore + kPlain + kClass + "  header lib/more.h\n" +
                                  "class CoThing \"Lib.Thing.1\" "
                                  "{55555555-5555-5555-5555-55555555EEEE} : IThing\n");
  EXPECT_THAT(table, HasSubstr("#include \"lib/more.h\"\n"));
  EXPECT_THAT(table, HasSubstr("    {CoMore::kClsid, CoMore::kProgId, MakeObject<CoMore>},\n};\n"));
  EXPECT_THAT(table, Not(HasSubstr("CoThing")));
}

TEST(EmitOrderTest, ListsTheOperationsOfTheBaseFirst) {
  EXPECT_THAT(Emitted(EmitOrderTest, kThing + kMore), HasSubstr(R"(
TEST(OperationOrder, OfIMoreIsAsDescribed) {
  ExpectOrder({
      SlotOf(&IMore::get_Name),
      SlotOf(&IMore::Reserved2),
      SlotOf(&IMore::Reserved3),
      SlotOf(&IMore::Find),
      SlotOf(&IMore::Reserved5),
  });
}
)"));
}

TEST(EmitOrderTest, LeavesOutInterfacesWithoutOperations) {
  EXPECT_THAT(Emitted(EmitOrderTest, "interface INone " + kId1 + " -- .\n"),
              Not(HasSubstr("INone")));
}

}  // namespace
}  // namespace comgen
