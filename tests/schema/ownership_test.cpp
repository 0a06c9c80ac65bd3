#include "tests/schema/model.h"

// Tests who owns an instance after a host has passed it to an operation that embeds instances.

namespace KelIFC {
namespace {

/// An instance of a class that counts its destroyed instances.
template <class Base>
class Counted : public Base {
 public:
  using Base::Base;
  ~Counted() override { ++destroyed; }
  inline static int destroyed = 0;
};

using Parameter = Counted<IfcParameterValue>;
using Point = Counted<IfcCartesianPoint>;
using Measure = Counted<IfcLengthMeasure>;
using Number = Counted<KelIFC2x3::IfcReal>;

/// A model of one release, and functions that pass its instances to operations.
template <class R>
class Ownership : public testing::Test {
 protected:
  using Direction = Counted<typename R::IfcDirection>;
  using Vector = typename R::IfcVector;
  using Curve = typename R::IfcTrimmedCurve;

  Ownership() {
    server.SetRelease(R::kRelease);
    other.SetRelease(R::kRelease);
    Direction::destroyed = Parameter::destroyed = Point::destroyed = Measure::destroyed = 0;
    Number::destroyed = 0;
  }

  static Direction* MakeDirection() { return new Direction(REAL(3.0), REAL(4.0)); }

  template <class Type>
  static Type* Add(IfcServer& model, Type* instance) {
    model.AddItem(instance);
    return instance;
  }

  /// Checks that the model holds the instance and destroys it only once.
  template <class Type>
  void ExpectHeldOnce(const Type* instance) {
    ASSERT_EQ(Type::destroyed, 0);
    EXPECT_EQ(instance->GetServer(), &server);
    EXPECT_NE(server.Find(instance), 0U);
    server.Reset();
    EXPECT_EQ(Type::destroyed, 1);
  }

  IfcServer server;
  IfcServer other;
};
using AllReleases = testing::Types<Release151, Release20, Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Ownership, AllReleases);

template <class R>
class OldestOwnership : public Ownership<R> {};
using OldestReleases = testing::Types<Release151, Release20>;
TYPED_TEST_SUITE(OldestOwnership, OldestReleases);

template <class R>
class NewerOwnership : public Ownership<R> {};
using NewerReleases = testing::Types<Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(NewerOwnership, NewerReleases);

TYPED_TEST(Ownership, ModelKeepsTheDirectionOfAVectorThatIsMadeWithAServer) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  {
    const typename TestFixture::Vector vector(&this->server, direction, IfcLengthMeasure(2.0));
    EXPECT_EQ(vector.GetOrientation(), direction);
    EXPECT_EQ(static_cast<int>(vector.GetDim()), 2);
  }
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, ModelKeepsTheDirectionOfAVectorThatIsMadeWithoutAServer) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  {
    const typename TestFixture::Vector vector(direction, IfcLengthMeasure(2.0));
    EXPECT_EQ(vector.GetServer(), nullptr);
    EXPECT_EQ(vector.GetOrientation(), direction);
    EXPECT_EQ(static_cast<int>(vector.GetDim()), 2);
  }
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, ModelKeepsTheDirectionOfAVectorThatIsDeleted) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  auto* first = this->Add(this->server, new typename TestFixture::Vector(&this->server, direction,
                                                                         IfcLengthMeasure(2.0)));
  auto* second =
      this->Add(this->server, new typename TestFixture::Vector(direction, IfcLengthMeasure(2.0)));
  EXPECT_EQ(second->GetOrientation(), direction);
  this->server.DeleteItem(first);
  this->server.DeleteItem(second);
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, ModelKeepsTheDirectionOfAVectorThatIsReset) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  this->Add(this->server, new typename TestFixture::Vector(direction, IfcLengthMeasure(2.0)));
  this->Add(this->server, new typename TestFixture::Vector)->SetOrientation(direction);
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, ModelKeepsTheDirectionOfAVectorThatIsReadAgain) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  auto* vector = this->Add(this->server, new typename TestFixture::Vector);
  auto* stranger = new typename TestFixture::Vector(direction, IfcLengthMeasure(2.0));
  vector->SetOrientation(direction);
  for (auto* each : {vector, stranger}) {
    each->Parse("IFCVECTOR($,1.)");
    EXPECT_EQ(each->GetOrientation(), nullptr);
  }
  delete stranger;
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, ModelKeepsTheDirectionOfAVectorThatGetsAnotherDirection) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  auto* vector = this->Add(this->server, new typename TestFixture::Vector);
  vector->SetOrientation(direction);
  vector->SetOrientation(direction);
  EXPECT_EQ(vector->GetOrientation(), direction);
  vector->SetOrientation(nullptr);
  EXPECT_EQ(vector->GetOrientation(), nullptr);
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, ModelKeepsTheDirectionOfAVectorAndOfItsCopies) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  typename TestFixture::Vector source(&this->server, direction, IfcLengthMeasure(2.0));
  typename TestFixture::Vector stranger(direction, IfcLengthMeasure(2.0));
  for (const auto* each : {&source, &stranger}) {
    typename TestFixture::Vector copy(*each);
    EXPECT_EQ(copy.GetOrientation(), direction);
    typename TestFixture::Vector assigned;
    assigned = copy;
    EXPECT_EQ(assigned.GetOrientation(), direction);
  }
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, VectorWithoutAModelLosesADirectionThatItsModelDeletes) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  const typename TestFixture::Vector vector(direction, IfcLengthMeasure(2.0));
  this->server.DeleteItem(direction);
  EXPECT_EQ(vector.GetOrientation(), nullptr);
  EXPECT_EQ(static_cast<int>(vector.GetDim()), 0);
}

TYPED_TEST(Ownership, AnotherModelKeepsTheDirectionOfAVector) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  auto* vector = this->Add(this->other, new typename TestFixture::Vector);
  vector->SetOrientation(direction);
  EXPECT_EQ(vector->GetOrientation(), direction);
  this->other.Reset();
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, VectorOwnsADirectionThatNoModelHolds) {
  auto* vector = this->Add(this->server, new typename TestFixture::Vector);
  auto* first = this->MakeDirection();
  vector->SetOrientation(first);
  EXPECT_EQ(vector->GetOrientation(), first);
  EXPECT_EQ(first->GetServer(), &this->server);
  vector->SetOrientation(first);
  ASSERT_EQ(TestFixture::Direction::destroyed, 0) << "it was passed twice";
  EXPECT_EQ(vector->GetOrientation(), first);
  vector->SetOrientation(this->MakeDirection());
  EXPECT_EQ(TestFixture::Direction::destroyed, 1);
  this->server.Reset();
  EXPECT_EQ(TestFixture::Direction::destroyed, 2);
}

TYPED_TEST(Ownership, VectorLeavesADirectionToAModelThatHoldsItLater) {
  auto* direction = this->MakeDirection();
  auto* vector = this->Add(this->server, new typename TestFixture::Vector);
  vector->SetOrientation(direction);
  this->server.AddItem(direction);
  vector->SetOrientation(direction);
  EXPECT_EQ(vector->GetOrientation(), direction);
  this->server.DeleteItem(vector);
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, CopyOfAVectorSetsItsOwnDirection) {
  auto* direction = this->Add(this->server, this->MakeDirection());
  auto source = std::make_unique<typename TestFixture::Vector>();
  source->SetServer(&this->server);
  typename TestFixture::Vector copy(*source);
  source.reset();
  copy.SetOrientation(direction);
  EXPECT_EQ(copy.GetOrientation(), direction);
  this->ExpectHeldOnce(direction);
}

TYPED_TEST(Ownership, ModelKeepsAPointThatIsAddedToATrim) {
  auto* point = this->Add(this->server, new Point(REAL(1.0), REAL(2.0)));
  auto* curve = this->Add(this->server, new typename TestFixture::Curve);
  curve->AddTrim1(point);
  curve->AddTrim1(point);
  EXPECT_EQ(curve->GetTrim1().GetSize(), 1U);
  EXPECT_EQ(Text(*curve), "IFCTRIMMEDCURVE($,(#1),(),$,.PARAMETER.)");
  this->server.DeleteItem(curve);
  this->ExpectHeldOnce(point);
}

TYPED_TEST(Ownership, ModelKeepsAPointThatIsAddedToACurveWithoutAModel) {
  auto* point = this->Add(this->server, new Point(REAL(1.0), REAL(2.0)));
  auto curve = std::make_unique<typename TestFixture::Curve>();
  curve->AddTrim2(point);
  curve->SetServer(&this->other);
  EXPECT_EQ(curve->GetCartesianTrim2(), point);
  curve.reset();
  this->ExpectHeldOnce(point);
}

TYPED_TEST(Ownership, ModelKeepsAParameterThatIsAddedToATrim) {
  auto* parameter = this->Add(this->server, new Parameter(0.5));
  auto* curve = this->Add(this->server, new typename TestFixture::Curve);
  curve->AddTrim1(parameter);
  curve->AddTrim2(parameter);
  EXPECT_EQ(curve->GetParameterTrim1(), parameter);
  EXPECT_EQ(curve->GetParameterTrim2(), parameter);
  EXPECT_EQ(Text(*curve),
            "IFCTRIMMEDCURVE($,(IFCPARAMETERVALUE(0.5)),(IFCPARAMETERVALUE(0.5)),$,.PARAMETER.)");
  this->server.DeleteItem(curve);
  this->ExpectHeldOnce(parameter);
}

TYPED_TEST(Ownership, TrimOwnsAParameterOnceIfItIsAddedTwice) {
  auto* curve = this->Add(this->server, new typename TestFixture::Curve);
  auto* parameter = new Parameter(0.5);
  curve->AddTrim1(parameter);
  curve->AddTrim1(parameter);
  ASSERT_EQ(Parameter::destroyed, 0);
  EXPECT_EQ(curve->GetParameterTrim1(), parameter);
  this->server.DeleteItem(curve);
  EXPECT_EQ(Parameter::destroyed, 1);
}

TYPED_TEST(Ownership, TrimDestroysASecondInlineValue) {
  auto* curve = this->Add(this->server, new typename TestFixture::Curve);
  auto* parameter = new Parameter(0.5);
  curve->AddTrim1(parameter);
  curve->AddTrim1(new Parameter(0.75));
  EXPECT_EQ(Parameter::destroyed, 1);
  EXPECT_EQ(curve->GetParameterTrim1(), parameter);
}

TYPED_TEST(OldestOwnership, ModelKeepsAPointThatIsAddedToALineAsItsOwn) {
  auto* point = this->Add(this->server, new Point(REAL(1.0), REAL(2.0)));
  auto* line = this->Add(this->server, new typename TypeParam::IfcPolyLine);
  line->AddOwnPoint(point);
  line->AddOwnPoint(new Point(REAL(3.0), REAL(4.0)));
  EXPECT_EQ(line->GetPoints()[1], point);
  EXPECT_EQ(line->GetPoints().GetSize(), 2U);
  this->server.DeleteItem(line);
  EXPECT_EQ(Point::destroyed, 1);
  Point::destroyed = 0;
  this->ExpectHeldOnce(point);
}

TYPED_TEST(NewerOwnership, ModelKeepsTheValueOfAMeasure) {
  auto* value = this->Add(this->server, new Measure(2.5));
  auto* measure = this->Add(this->server, new typename TypeParam::IfcMeasureWithUnit);
  measure->SetValueComponent(value);
  measure->SetValueComponent(value);
  EXPECT_EQ(measure->GetValueComponent(), value);
  EXPECT_EQ(Text(*measure), "IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(2.5),$)");
  this->server.DeleteItem(measure);
  this->ExpectHeldOnce(value);
}

TYPED_TEST(NewerOwnership, MeasureOwnsAValueThatNoModelHolds) {
  auto* measure = this->Add(this->server, new typename TypeParam::IfcMeasureWithUnit);
  auto* value = new Measure(2.5);
  measure->SetValueComponent(value);
  measure->SetValueComponent(value);
  EXPECT_EQ(measure->GetValueComponent(), value);
  this->server.DeleteItem(measure);
  EXPECT_EQ(Measure::destroyed, 1);
}

using NewestOwnership = Ownership<Release2x3>;

TEST_F(NewestOwnership, ModelKeepsTheValueOfAProperty) {
  auto* value = Add(server, new Number(2.5));
  auto* property = Add(server, new KelIFC2x3::IfcPropertySingleValue);
  property->SetNominalValue(value);
  EXPECT_EQ(Text(*property), "IFCPROPERTYSINGLEVALUE($,$,IFCREAL(2.5),$)");
  server.DeleteItem(property);
  ExpectHeldOnce(value);
}

TEST_F(NewestOwnership, ModelKeepsTheParameterOfADisk) {
  auto* value = Add(server, new Number(2.5));
  auto* solid = Add(server, new KelIFC2x3::IfcSweptDiskSolid);
  solid->SetStartParam(value);
  solid->SetEndParam(value);
  EXPECT_EQ(Text(*solid), "IFCSWEPTDISKSOLID($,$,$,0.,0.)");
  ExpectHeldOnce(value);
}

TEST_F(NewestOwnership, DiskDestroysAParameterThatNoModelHolds) {
  KelIFC2x3::IfcSweptDiskSolid solid;
  solid.SetStartParam(new Number(2.5));
  EXPECT_EQ(Number::destroyed, 1);
}

}  // namespace
}  // namespace KelIFC
