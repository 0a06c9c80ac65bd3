#include "kelifc/geo/sections.h"

#include <gtest/gtest.h>

#include "kelifc/geo/section.h"
#include "kelifc/platform/com_object.h"

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

/// Creates circles with these names.
ComPtr<IGeoSections> MakeSections(std::initializer_list<const wchar_t*> names) {
  auto sections = CreateOwn<CoGeoSections>();
  for (const wchar_t* name : names) {
    auto section = Create<IGeoSection>(CLSID_CoGeoSectionC);
    section->put_Name(Bstr(name).Get());
    static_cast<CoGeoSections&>(*sections).Append(std::move(section));
  }
  return sections;
}

VARIANT Name(const Bstr& text) {
  VARIANT variant = {};
  variant.vt = VT_BSTR;
  variant.bstrVal = text.Get();
  return variant;
}

VARIANT Number(LONG number) {
  VARIANT variant = {};
  variant.vt = VT_I4;
  variant.lVal = number;
  return variant;
}

/// Returns the position of the section that an index finds, or 0.
int Find(IGeoSections& sections, const VARIANT& index) {
  ComPtr<IGeoSection> found;
  if (FAILED(sections.Item(index, found.Put()))) return 0;
  for (LONG i = 1;; ++i) {
    ComPtr<IGeoSection> section;
    if (FAILED(sections.ItemByIndex(i, section.Put()))) return 0;
    if (section.Get() == found.Get()) return static_cast<int>(i);
  }
}

class Sections : public HostTest {};

TEST_F(Sections, AreFoundByTheirExactName) {
  const auto sections = MakeSections({L"IFC_C_20", L"IFC_C_10", L"IFC_C_10"});
  EXPECT_EQ(Find(*sections, Name(Bstr(L"IFC_C_10"))), 2);
  EXPECT_EQ(Find(*sections, Name(Bstr(L"IFC_C_20"))), 1);
}

TEST_F(Sections, AreNotFoundByOtherNames) {
  const auto sections = MakeSections({L"IFC_C_10"});
  for (const wchar_t* name : {L"ifc_c_10", L"IFC_C_1", L"IFC_C_100", L""}) {
    const Bstr text(name);
    auto* out = reinterpret_cast<IGeoSection*>(this);
    EXPECT_EQ(sections->Item(Name(text), &out), E_FAIL);
    EXPECT_EQ(out, nullptr);
  }
}

TEST_F(Sections, AreFoundByTheirNumber) {
  const auto sections = MakeSections({L"a", L"b"});
  EXPECT_EQ(Find(*sections, Number(1)), 1);
  EXPECT_EQ(Find(*sections, Number(2)), 2);
}

TEST_F(Sections, TreatATextThatSpellsANumberAsAName) {
  const auto sections = MakeSections({L"a", L"b"});
  EXPECT_EQ(Find(*sections, Name(Bstr(L"1"))), 0);
}

TEST_F(Sections, ConvertOtherIndicesToNumbers) {
  const auto sections = MakeSections({L"a", L"b"});
  VARIANT index = {};
  index.vt = VT_R8;
  index.dblVal = 1.6;
  EXPECT_EQ(Find(*sections, index), 2);
  index = {};
  index.vt = VT_I2;
  index.iVal = 1;
  EXPECT_EQ(Find(*sections, index), 1);
}

TEST_F(Sections, RefuseIndicesThatCannotBeConverted) {
  const auto sections = MakeSections({L"a"});
  VARIANT index = {};
  index.vt = VT_DISPATCH;
  auto* out = reinterpret_cast<IGeoSection*>(this);
  VARIANT number = {};
  const HRESULT refusal = VariantChangeType(&number, &index, 0, VT_I4);
  EXPECT_LT(refusal, 0);
  EXPECT_EQ(sections->Item(index, &out), refusal);
  EXPECT_EQ(out, nullptr);
  index.vt = VT_R8;
  index.dblVal = 1e300;
  EXPECT_EQ(sections->Item(index, &out), DISP_E_OVERFLOW);
}

TEST_F(Sections, TreatBadNumbersAsItemByIndexDoes) {
  const auto sections = MakeSections({L"a"});
  auto* const before = reinterpret_cast<IGeoSection*>(this);
  IGeoSection* out = before;
  EXPECT_EQ(sections->Item(Number(2), &out), E_FAIL);
  EXPECT_EQ(out, before);
  EXPECT_EQ(sections->Item(VARIANT{}, &out), E_INVALIDARG);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(sections->ItemByIndex(2, &out), E_FAIL);
  EXPECT_EQ(sections->Item(Number(1), nullptr), E_POINTER);
  EXPECT_EQ(sections->Item(Name(Bstr(L"a")), nullptr), E_POINTER);
  EXPECT_EQ(sections->ItemByIndex(1, nullptr), E_POINTER);
}

TEST_F(Sections, AreFoundByANewNameOnly) {
  const auto sections = MakeSections({L"old"});
  ComPtr<IGeoSection> section;
  ASSERT_EQ(sections->ItemByIndex(1, section.Put()), S_OK);
  section->put_Name(Bstr(L"new").Get());
  EXPECT_EQ(Find(*sections, Name(Bstr(L"new"))), 1);
  EXPECT_EQ(Find(*sections, Name(Bstr(L"old"))), 0);
}

TEST_F(Sections, AreFoundByTheEmptyTextIfTheyHaveNoName) {
  const auto sections = MakeSections({L"a", L""});
  EXPECT_EQ(Find(*sections, Name(Bstr(L""))), 2);
  VARIANT null = {};
  null.vt = VT_BSTR;
  EXPECT_EQ(Find(*sections, null), 2);
}

TEST_F(Sections, ReserveTheOtherOperations) {
  const auto sections = MakeSections({});
  EXPECT_EQ(CountOf(*sections), 0);
  EXPECT_EQ(sections->Reserved4(), E_NOTIMPL);
  EXPECT_EQ(sections->Reserved5(), E_NOTIMPL);
  EXPECT_EQ(sections->Reserved6(0, nullptr, nullptr), E_NOTIMPL);
  EXPECT_EQ(sections->Reserved7(nullptr, nullptr, nullptr), E_NOTIMPL);
  EXPECT_EQ(sections->Reserved8(nullptr), E_NOTIMPL);
}

/// A section that fails to return its name.
class NamelessSection : public CoGeoSectionC {
 public:
  HRESULT get_Name(BSTR*) override { return E_OUTOFMEMORY; }

 protected:
  ~NamelessSection() = default;
};

TEST_F(Sections, ReturnTheFailureOfASectionToReturnItsName) {
  const auto sections = MakeSections({L"first"});
  ComPtr<IGeoSection> nameless;
  MakeObject<NamelessSection>(IidOf<IGeoSection>(), reinterpret_cast<void**>(nameless.Put()));
  static_cast<CoGeoSections&>(*sections).Append(nameless);
  auto* out = reinterpret_cast<IGeoSection*>(this);
  EXPECT_EQ(sections->Item(Name(Bstr(L"second")), &out), E_OUTOFMEMORY);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(Find(*sections, Name(Bstr(L"first"))), 1);
}

}  // namespace
}  // namespace KelIFC
