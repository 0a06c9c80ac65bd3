#include <gtest/gtest.h>

#include <cstddef>

#include "kelifc/core/boolean.h"
#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/coordinates.h"
#include "kelifc/core/integer.h"
#include "kelifc/core/inverse_set.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/list_of_members.h"
#include "kelifc/core/logical.h"
#include "kelifc/core/other.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/set_of_members.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/core/string.h"
#include "kelifc/core/text_attribute.h"
#include "kelifc/core/unit_assignment.h"

// The tests of sizes exist because a model consists of millions of these objects. The tests of the
// positions of base classes and of the order of virtual operations exist because hosts are compiled
// against them. They check the Itanium ABI.

#if defined(__x86_64__) && !defined(_WIN32)

#include "tests/schema/slot_order.h"

namespace KelIFC {
namespace {

TEST(Layout, KeepsValuesCompact) {
  EXPECT_EQ(sizeof(REAL), 24U);
  EXPECT_EQ(sizeof(INTEGER), 16U);
  EXPECT_EQ(sizeof(BOOLEAN), 16U);
  EXPECT_EQ(sizeof(LOGICAL), 16U);
  EXPECT_EQ(sizeof(STRING), sizeof(std::string) + 16U);
  EXPECT_EQ(sizeof(MEMBER), 16U);
  EXPECT_EQ(sizeof(TextAttribute), 8U);
  EXPECT_EQ(sizeof(InverseSet), 8U);
  EXPECT_EQ(sizeof(LIST<MEMBER>), 24U);
  EXPECT_EQ(sizeof(SET<MEMBER>), 24U);
  EXPECT_EQ(sizeof(LIST_OF_MEMBERS), 32U);
  EXPECT_EQ(sizeof(SET_OF_MEMBERS), 32U);
  EXPECT_EQ(sizeof(COORDINATES), 40U);
}

TEST(Layout, KeepsInstancesCompact) {
  EXPECT_EQ(sizeof(IfcUnitAssignment), 48U);
  EXPECT_EQ(sizeof(IfcLengthMeasure), 40U);
  EXPECT_EQ(sizeof(IfcCartesianPoint), 72U);
}

/// Returns the offset of the `Base` of an instance.
template <class Base, class Type>
std::ptrdiff_t PlaceOf(const Type& instance) {
  return reinterpret_cast<const char*>(static_cast<const Base*>(&instance)) -
         reinterpret_cast<const char*>(&instance);
}

/// The offsets of the bases, in the given order, rise from 0.
template <class... Bases, class Type>
void ExpectBases(const Type& instance) {
  std::ptrdiff_t last = -1;
  for (const std::ptrdiff_t place : {PlaceOf<Bases>(instance)...}) {
    if (last < 0) {
      EXPECT_EQ(place, 0);
    }
    EXPECT_GT(place, last);
    last = place;
  }
}

class Solid : public IfcSolidModel {
 public:
  Solid() = default;
  ~Solid() override = default;
  const char* Parse(const char* text) override { return IfcUnknown::Parse(text); }
};

TEST(Layout, PlacesBasesInTheirOrder) {
  ExpectBases<IfcValue, REAL>(IfcLengthMeasure());
  ExpectBases<REAL, IfcTrimmingSelect, IfcUnknown>(IfcParameterValue());
  ExpectBases<IfcGeometricRepresentationItem, IfcBooleanOperand>(Solid());
  ExpectBases<IfcPoint, IfcGeometricSetSelect, IfcTrimmingSelect>(IfcCartesianPoint());
  ExpectBases<IfcUnknown>(IfcOther());
  ExpectBases<IfcUnknown>(StepFileSchema());
  ExpectBases<IfcUnknown>(IfcUnitAssignment());
  ExpectBases<IfcRepresentationItem>(IfcBoundingBox());
}

constexpr std::ptrdiff_t kSlot = sizeof(void*);

TEST(Layout, OrdersTheOperationsOfEveryInstance) {
  EXPECT_EQ(SlotOf(&IfcUnknown::GetStepName), 0);
  // The destructor has two slots.
  EXPECT_EQ(SlotOf(&IfcUnknown::Parse), 3 * kSlot);
  ExpectRising(
      {SlotOf(&IfcUnknown::Parse), SlotOf(&IfcUnknown::Write), SlotOf(&IfcUnknown::ParseDef),
       SlotOf(static_cast<IfcServer* (IfcUnknown::*)()>(&IfcUnknown::GetServer)),
       SlotOf(static_cast<const IfcServer* (IfcUnknown::*)() const>(&IfcUnknown::GetServer)),
       SlotOf(&IfcUnknown::SetServer)});
}

constexpr std::ptrdiff_t kBehindUnknown = 9 * kSlot;

TEST(Layout, OrdersTheOperationsOfTexts) {
  ExpectRising({SlotOf(&STRING::Parse), SlotOf(&STRING::Write)});
  EXPECT_EQ(SlotOf(&STRING::Parse), 2 * kSlot) << "behind the destructor";
  EXPECT_EQ(SlotOf(&REAL::Write), -1) << "other values have no virtual operations";
}

TEST(Layout, OrdersTheOperationsOfValues) {
  EXPECT_EQ(SlotOf(&IfcValue::WriteWithName), kBehindUnknown);
  ExpectRising({SlotOf(&IfcValue::WriteWithName), SlotOf(&IfcValue::ParseBody)});
}

/// Makes the protected operation public.
class OpenPoint : public IfcCartesianPoint {
 public:
  static std::ptrdiff_t SlotOfProtectedDim() { return SlotOf(&OpenPoint::_GetDim); }
};

TEST(Layout, OrdersTheOperationsOfPoints) {
  EXPECT_EQ(SlotOf(&IfcCartesianPoint::GetCoordinates), kBehindUnknown);
  ExpectRising({SlotOf(&IfcCartesianPoint::GetCoordinates), OpenPoint::SlotOfProtectedDim(),
                SlotOf(&IfcCartesianPoint::GetDim), SlotOf(&IfcCartesianPoint::SetCoordinates)});
}

TEST(Layout, OrdersTheOperationsOfTheOtherClasses) {
  EXPECT_EQ(SlotOf(&IfcSolidModel::GetDim), kBehindUnknown);
  EXPECT_EQ(SlotOf(&IfcUnitAssignment::GetUnits), kBehindUnknown);
  ExpectRising({SlotOf(&IfcUnitAssignment::GetUnits), SlotOf(&IfcUnitAssignment::AddUnit)});
  EXPECT_EQ(SlotOf(&IfcBoundingBox::GetCorner), kBehindUnknown);
  ExpectRising({SlotOf(&IfcBoundingBox::GetCorner), SlotOf(&IfcBoundingBox::GetXDim),
                SlotOf(&IfcBoundingBox::GetYDim), SlotOf(&IfcBoundingBox::GetZDim),
                SlotOf(&IfcBoundingBox::GetDim), SlotOf(&IfcBoundingBox::SetCorner),
                SlotOf(&IfcBoundingBox::SetXDim), SlotOf(&IfcBoundingBox::SetYDim),
                SlotOf(&IfcBoundingBox::SetZDim)});
}

TEST(Layout, NamesTheAbstractClasses) {
  EXPECT_STREQ(IfcRepresentationItem::GetItemName(), "IfcRepresentationItem");
  EXPECT_STREQ(IfcGeometricRepresentationItem::GetItemName(), "IfcGeometricRepresentationItem");
  EXPECT_STREQ(IfcSurface::GetItemName(), "IfcSurface");
  EXPECT_STREQ(IfcSolidModel::GetItemName(), "IfcSolidModel");
  EXPECT_STREQ(IfcPoint::GetItemName(), "IfcPoint");
  EXPECT_STREQ(IfcMaterialSelect::GetItemName(), "IfcMaterialSelect");
  EXPECT_STREQ(IfcActorSelect::GetItemName(), "IfcActorSelect");
  EXPECT_STREQ(Solid().GetStepName(), "IfcSolidModel");
  EXPECT_EQ(Solid().GetDim(), 3);
}

}  // namespace
}  // namespace KelIFC

#endif
