#include <gtest/gtest.h>

#include <set>
#include <string>

#include "kelifc/geo/beam.h"
#include "kelifc/geo/boundary.h"
#include "kelifc/geo/building_collections.h"
#include "kelifc/geo/building_element.h"
#include "kelifc/geo/building_loss.h"
#include "kelifc/geo/building_profile.h"
#include "kelifc/geo/collections.h"
#include "kelifc/geo/column.h"
#include "kelifc/geo/foot.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/openings.h"
#include "kelifc/geo/plate.h"
#include "kelifc/geo/point.h"
#include "kelifc/geo/section.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/storeys.h"
#include "kelifc/geo/structure.h"
#include "kelifc/geo/wall.h"
#include "kelifc/platform/com_class.h"

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

template <class Class>
class EachClass : public HostTest {};

using Classes =
    testing::Types<CoIFCServer, CoGeoStructure, CoGeoStorey, CoGeoStoreys, CoGeoObjects,
                   CoGeoMaterials, CoGeoSections, CoGeoColumn, CoGeoColumns, CoGeoBeam, CoGeoBeams,
                   CoGeoFoot, CoGeoFoots, CoGeoPoint, CoGeoPoints, CoGeoPlate, CoGeoPlates,
                   CoGeoWall, CoGeoWalls, CoGeoWindow, CoGeoWindows, CoGeoDoor, CoGeoDoors,
                   CoGeoHole, CoGeoHoles, CoGeoSectionThick, CoGeoSectionProfile, CoGeoSectionR,
                   CoGeoSectionC, CoGeoSectionT, CoGeoBRep, CoGeoFace, CoGeoFaces, CoGeoNumbers,
                   CoGeoElement, CoGeoElements, CoGeoProfile, CoGeoLoss, CoGeoLosses,
                   CoGeoPointLists>;
TYPED_TEST_SUITE(EachClass, Classes);

/// Queries another interface and back, and expects the same pointer.
template <class Other, class Own>
void ExpectInterface(const ComPtr<Own>& object) {
  const auto other = object.template As<Other>();
  ASSERT_TRUE(other);
  EXPECT_EQ(other.template As<Own>().Get(), object.Get());
}

template <class Own, class... Others>
void ExpectAllInterfaces(const ComPtr<Own>& object, InterfaceList<Own, Others...>) {
  ExpectInterface<Own>(object);
  (ExpectInterface<Others>(object), ...);
}

TYPED_TEST(EachClass, HasItsInterfaces) {
  const auto object = CreateOwn<TypeParam>();
  ExpectAllInterfaces(object, typename TypeParam::Interfaces());
}

TYPED_TEST(EachClass, SharesThePointerOfItsOwnInterfaceWithDispatchAndUnknown) {
  const auto object = CreateOwn<TypeParam>();
  const void* own = object.Get();
  EXPECT_EQ(static_cast<void*>(object.template As<IDispatch>().Get()), own);
  EXPECT_EQ(static_cast<void*>(object.template As<IUnknown>().Get()), own);
}

TYPED_TEST(EachClass, HasNoOtherInterfaces) {
  const auto object = CreateOwn<TypeParam>();
  EXPECT_FALSE(object.template As<IClassFactory>());
  EXPECT_FALSE(object.template As<IErrorInfo>());
  EXPECT_FALSE(object.template As<IGeoMaterial>());
}

TYPED_TEST(EachClass, ReportsErrorsForItsOwnInterfaceOnly) {
  const auto support = CreateOwn<TypeParam>().template As<ISupportErrorInfo>();
  using Own = typename TypeParam::Interfaces::First;
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IidOf<Own>()), S_OK);
  for (const IID& other : {IidOf<IUnknown>(), IidOf<IDispatch>(), IidOf<ISupportErrorInfo>(),
                           IidOf<IGeoVersion>(), IidOf<IGeoSection>(), IID{}}) {
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(other), S_FALSE);
  }
}

TYPED_TEST(EachClass, HasNoTypeLibrary) {
  const auto object = CreateOwn<TypeParam>();
  UINT count = 7;
  EXPECT_EQ(object->GetTypeInfoCount(&count), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(count, 0U);
  EXPECT_EQ(object->GetTypeInfoCount(nullptr), E_POINTER);
  auto* info = reinterpret_cast<ITypeInfo*>(&count);
  EXPECT_EQ(object->GetTypeInfo(0, 0, &info), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(info, nullptr);
  EXPECT_EQ(object->GetTypeInfo(0, 0, nullptr), E_POINTER);
  wchar_t text[] = L"Count";
  wchar_t* names[] = {text};
  DISPID id = 0;
  EXPECT_EQ(object->GetIDsOfNames(IID{}, names, 1, 0, &id), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(object->Invoke(0, IID{}, 0, 0, nullptr, nullptr, nullptr, nullptr),
            TYPE_E_LIBNOTREGISTERED);
}

TYPED_TEST(EachClass, IsCreatedByItsProgramNames) {
#ifdef _WIN32
  GTEST_SKIP() << "the registry contains the names";
#endif
  const std::wstring name = TypeParam::kProgId;
  for (const std::wstring& progId : {name, name.substr(0, name.size() - 2)}) {
    CLSID clsid = {};
    EXPECT_EQ(CLSIDFromProgID(progId.c_str(), &clsid), S_OK);
    EXPECT_EQ(clsid, TypeParam::kClsid);
    EXPECT_TRUE(Create<typename TypeParam::Interfaces::First>(clsid));
  }
}

TYPED_TEST(EachClass, CountsAsAliveUntilItIsReleased) {
  auto object = CreateOwn<TypeParam>();
  EXPECT_EQ(LiveObjectCount(), 1);
  object.Reset();
  EXPECT_EQ(LiveObjectCount(), 0);
}

TEST(ClassTable, ContainsEachClassOnce) {
  std::set<std::wstring> names;
  for (const ComClass& type : ComClasses()) {
    EXPECT_TRUE(names.insert(type.progId).second);
    EXPECT_EQ(std::wstring(type.progId).substr(0, 7), L"KelIFC.");
  }
  EXPECT_EQ(names.size(), ComClasses().size());
  EXPECT_EQ(names.size(), 40U);
}

}  // namespace
}  // namespace KelIFC
