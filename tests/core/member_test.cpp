#include "kelifc/core/member.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/other.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/server/ifc_server.h"

#include "tests/core/probe.h"
#include "tests/core/text.h"

namespace KelIFC {
namespace {

/// A reference in an attribute of an instance of a 2x3 model.
class Member : public testing::Test {
 protected:
  Member() {
    server.SetRelease(IFC_RELEASE_2X3);
    server.InsertItem(1, owner);
    server.InsertItem(12, target);
  }
  void TearDown() override { EXPECT_EQ(Probe::alive, 0); }

  IfcServer server;
  IfcUnitAssignment* owner = new IfcUnitAssignment;
  IfcCartesianPoint* target = new IfcCartesianPoint(1.0, 2.0);
  MEMBER member{owner};
};

TEST_F(Member, IsUnsetAtFirst) {
  EXPECT_FALSE(member.GetExists());
  EXPECT_EQ(static_cast<std::size_t>(member), 0U);
  EXPECT_EQ(member.GetInstance(), nullptr);
  EXPECT_EQ(Text(member), "$");
  EXPECT_EQ(Text(MEMBER()), "$");
}

TEST_F(Member, ReadsANumberUpToTheComma) {
  EXPECT_EQ(RestOf(member, "#12,#13"), "#13");
  EXPECT_EQ(static_cast<std::size_t>(member), 12U);
  EXPECT_EQ(member.GetInstance(), target);
  EXPECT_EQ(Text(member), "#12");
}

TEST_F(Member, ReadsTheLastNumberOfAStatement) {
  EXPECT_EQ(RestOf(member, " #12"), "(null)");
  EXPECT_EQ(static_cast<std::size_t>(member), 12U);
}

TEST_F(Member, FindsACommaAfterAParenthesis) { EXPECT_EQ(RestOf(member, "#12),#13"), "#13"); }

TEST_F(Member, ResolvesANumberThatIsRegisteredLater) {
  member.Parse("#500");
  EXPECT_EQ(member.GetInstance(), nullptr);
  auto* later = new IfcCartesianPoint;
  server.InsertItem(500, later);
  EXPECT_EQ(member.GetInstance(), later);
  server.DeleteItem(later);
  EXPECT_EQ(member.GetInstance(), nullptr);
  EXPECT_EQ(Text(member), "#500");
}

TEST_F(Member, KeepsTheNumberZeroAsADerivedMark) {
  EXPECT_EQ(RestOf(member, "#0,5"), "5");
  EXPECT_TRUE(member.GetExists());
  EXPECT_EQ(member.GetInstance(), nullptr);
  EXPECT_EQ(Text(member), "*");
}

TEST_F(Member, ReadsAHashWithoutNumberAsZero) {
  EXPECT_EQ(RestOf(member, "#x,5"), "5");
  EXPECT_TRUE(member.GetExists());
  EXPECT_EQ(static_cast<std::size_t>(member), 0U);
}

TEST_F(Member, ReadsNumbersOf32Bits) {
  member.Parse("#2147483648");
  EXPECT_EQ(static_cast<std::size_t>(member), 2147483647U);
  member.Parse("# +7");
  EXPECT_EQ(static_cast<std::size_t>(member), 7U);
}

TEST_F(Member, WidensANegativeNumberWithItsSign) {
  member.Parse("#-1");
  EXPECT_EQ(static_cast<std::size_t>(member), std::numeric_limits<std::size_t>::max());
  EXPECT_EQ(Text(member), "#18446744073709551615");
}

TEST_F(Member, BecomesUnsetByOmittedValues) {
  for (const char* text : {"$,5", " * ,5"}) {
    member.Parse("#12");
    EXPECT_EQ(RestOf(member, text), "5");
    EXPECT_FALSE(member.GetExists());
    EXPECT_EQ(Text(member), "$");
  }
  member.Parse("#12");
  EXPECT_EQ(member.Parse(nullptr), nullptr);
  EXPECT_FALSE(member.GetExists());
}

TEST_F(Member, WorksWithoutOwnerAsAPlainNumber) {
  MEMBER number(std::size_t{7});
  EXPECT_TRUE(number.GetExists());
  EXPECT_EQ(static_cast<std::size_t>(number), 7U);
  EXPECT_EQ(number.GetInstance(), nullptr);
  EXPECT_EQ(Text(number), "#7");
}

TEST_F(Member, ReadsAnInlineValue) {
  EXPECT_EQ(RestOf(member, " IFCPARAMETERVALUE(0.5),5"), "5");
  EXPECT_TRUE(member.GetExists());
  EXPECT_EQ(static_cast<std::size_t>(member), 0U);
  const auto* value = dynamic_cast<const IfcParameterValue*>(member.GetInstance());
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(*value, 0.5);
  EXPECT_EQ(value->GetServer(), nullptr);
  EXPECT_EQ(member.GetInlineValue(), value);
  EXPECT_EQ(Text(member), "IFCPARAMETERVALUE(0.5)");
}

TEST_F(Member, ReadsTheNumberOfABareValueAsZero) {
  EXPECT_EQ(RestOf(member, "IFCLENGTHMEASURE(2.5),5"), "5");
  EXPECT_EQ(Text(member), "0.");
}

TEST_F(Member, KeepsAnUnknownInlineValueAsRawText) {
  EXPECT_EQ(RestOf(member, "IFCFOO(1,2),5"), "1,2),5");
  EXPECT_EQ(Text(member), "IFCFOO(1,2");
}

TEST_F(Member, DoesNotMoveAtAnInlineValueOfAnUnknownClass) {
  server.SetRelease(IFC_RELEASE_2X);
  EXPECT_EQ(RestOf(member, " IFCFOO(1),5"), " IFCFOO(1),5");
  EXPECT_FALSE(member.GetExists());
}

TEST_F(Member, DoesNotMoveAtAnInlineValueWithoutOwnerOrModel) {
  MEMBER ownerless;
  EXPECT_EQ(RestOf(ownerless, " IFCPARAMETERVALUE(1)"), " IFCPARAMETERVALUE(1)");
  EXPECT_FALSE(ownerless.GetExists());
  IfcCartesianPoint outside;
  MEMBER ofOutside(&outside);
  EXPECT_EQ(RestOf(ofOutside, "IFCPARAMETERVALUE(1)"), "IFCPARAMETERVALUE(1)");
  EXPECT_FALSE(ofOutside.GetExists());
}

TEST_F(Member, HoldsNoInlineValueInAnInlineValue) {
  EXPECT_EQ(RestOf(member, "IFCBOUNDINGBOX(IFCPARAMETERVALUE(3),1.),9"), "(null)");
  EXPECT_EQ(Text(member), "IFCBOUNDINGBOX($,0.,1.,9.");
}

TEST_F(Member, DestroysItsInlineValueWithItself) {
  {
    MEMBER holder;
    holder = new Probe;
    EXPECT_EQ(Probe::alive, 1);
  }
  EXPECT_EQ(Probe::alive, 0);
}

TEST_F(Member, DestroysItsInlineValueWhenItIsReplacedByANumber) {
  member = new Probe;
  member = std::size_t{5};
  EXPECT_EQ(Probe::alive, 0);
  EXPECT_EQ(Text(member), "#5");
  member = new Probe;
  member.Parse("#6");
  EXPECT_EQ(Probe::alive, 0);
}

TEST_F(Member, ReturnsAReplacedInlineValueToTheCaller) {
  auto* first = new Probe(1);
  member = first;
  member = new Probe(2);
  EXPECT_EQ(Probe::alive, 2);
  EXPECT_EQ(Text(member), "PROBE(2)");
  delete first;
  member = std::size_t{0};
}

TEST_F(Member, BecomesADerivedMarkWhenItIsAssignedNull) {
  member = static_cast<IfcUnknown*>(nullptr);
  EXPECT_TRUE(member.GetExists());
  EXPECT_EQ(Text(member), "*");
}

TEST_F(Member, BorrowsAnInstanceThatAModelHolds) {
  auto* held = new Probe(5);
  const std::size_t number = server.AddItem(held);
  {
    MEMBER holder;
    for (MEMBER* each : {&holder, &member}) {
      *each = held;
      EXPECT_TRUE(each->GetExists());
      EXPECT_EQ(static_cast<std::size_t>(*each), 0U);
      EXPECT_EQ(each->GetInstance(), held);
      EXPECT_EQ(each->GetInlineValue(), nullptr) << "it is not owned";
      EXPECT_EQ(Text(*each), "PROBE(5)");
    }
    const MEMBER copy(holder);
    EXPECT_EQ(copy.GetInstance(), held);
    EXPECT_EQ(holder.GetInstance(), nullptr);
  }
  EXPECT_EQ(Probe::alive, 1);
  EXPECT_EQ(server.GetItem(number), held);
  server.DeleteItem(held);
  EXPECT_EQ(Probe::alive, 0);
  EXPECT_EQ(member.GetInstance(), nullptr);
  EXPECT_EQ(Text(member), "*");
}

TEST_F(Member, DoesNotDestroyABorrowedInstance) {
  auto* held = new Probe(5);
  server.AddItem(held);
  for (int times = 0; times < 2; ++times) member = held;
  member = new Probe(6);
  EXPECT_EQ(Text(member), "PROBE(6)");
  member = std::size_t{0};
  member = held;
  member.Parse("#12");
  EXPECT_EQ(member.GetInstance(), target);
  EXPECT_EQ(Probe::alive, 1);
  server.Reset();
}

TEST_F(Member, EmbedsAnInstanceOfItsModelByNumber) {
  MEMBER stranger;
  member = new Probe(3);
  member.Embed(target, *owner);
  stranger.Embed(target, *owner);
  EXPECT_EQ(Probe::alive, 0) << "the value that it held is destroyed";
  EXPECT_EQ(Text(member), "#12");
  EXPECT_EQ(Text(stranger), "#12");
  EXPECT_EQ(stranger.GetInstance(), target);
}

TEST_F(Member, EmbedsAnInstanceThatNoModelHoldsAsItsOwn) {
  auto* value = new Probe(3);
  member.Embed(value, *owner);
  EXPECT_EQ(value->GetServer(), &server);
  EXPECT_EQ(member.GetInlineValue(), value);
  member.Embed(value, *owner);
  EXPECT_EQ(member.GetInlineValue(), value);
  EXPECT_EQ(Probe::alive, 1) << "it is handed over a second time";
  server.AddItem(value);
  member.Embed(value, *owner);
  EXPECT_EQ(Text(member), "#13") << "the model has taken it";
  EXPECT_EQ(Probe::alive, 1);
  server.Reset();
}

TEST_F(Member, EmbedsATypedValueOfItsModelAsABorrowedOne) {
  auto* value = new IfcParameterValue(0.5);
  server.AddItem(value);
  member.Embed(value, *owner);
  EXPECT_EQ(Text(member), "IFCPARAMETERVALUE(0.5)");
  EXPECT_EQ(member.GetInstance(), value);
  EXPECT_EQ(member.GetInlineValue(), nullptr);
}

TEST_F(Member, EmbedsAnInstanceOfAnotherModelAsABorrowedOne) {
  IfcServer other;
  auto* held = new Probe(5);
  other.AddItem(held);
  member.Embed(held, *owner);
  EXPECT_EQ(held->GetServer(), &other);
  EXPECT_EQ(member.GetInstance(), held);
  EXPECT_EQ(Text(member), "PROBE(5)");
  other.Reset();
  EXPECT_EQ(Probe::alive, 0);
  EXPECT_EQ(member.GetInstance(), nullptr);
}

TEST_F(Member, EmbedsNullAsADerivedMark) {
  member = new Probe(3);
  member.Embed(nullptr, *owner);
  EXPECT_EQ(Probe::alive, 0);
  EXPECT_TRUE(member.GetExists());
  EXPECT_EQ(Text(member), "*");
}

TEST_F(Member, MovesItsInlineValueToACopy) {
  const MEMBER* source = &member;
  member = new Probe(3);
  MEMBER copy(*source);
  EXPECT_EQ(Text(copy), "PROBE(3)");
  EXPECT_EQ(Text(member), "*");
  EXPECT_TRUE(member.GetExists());
  member = copy;
  EXPECT_EQ(Text(member), "PROBE(3)");
  EXPECT_EQ(Text(copy), "*");
  EXPECT_EQ(Probe::alive, 1);
  member = std::size_t{0};
}

TEST_F(Member, DestroysWhatItHeldWhenItIsAssigned) {
  member = new Probe(3);
  member = MEMBER(std::size_t{4});
  EXPECT_EQ(Probe::alive, 0);
  EXPECT_EQ(Text(member), "#4");
}

TEST_F(Member, CopiesTheOwnerOfTheSource) {
  MEMBER copy;
  member.Parse("#12");
  copy = member;
  EXPECT_EQ(copy.GetInstance(), target);
  copy = MEMBER(std::size_t{12});
  EXPECT_EQ(copy.GetInstance(), nullptr);
}

TEST_F(Member, StaysAsItIsWhenAssignedToItself) {
  member = new Probe(3);
  const MEMBER& same = member;
  member = same;
  EXPECT_EQ(Text(member), "PROBE(3)");
  member = std::size_t{0};
}

/// An instance that contains another reference.
class Holder : public Probe {
 public:
  MEMBER inner;
};

TEST_F(Member, CanBeAssignedAReferenceOfItsOwnInlineValue) {
  auto* holder = new Holder;
  holder->inner = new Probe(8);
  member = holder;
  member = holder->inner;
  EXPECT_EQ(Text(member), "PROBE(8)");
  EXPECT_EQ(Probe::alive, 1);
  member = std::size_t{0};
}

TEST_F(Member, RefersToAnInstanceOfTheModel) {
  member.SetReference(target);
  EXPECT_EQ(Text(member), "#12");
  EXPECT_EQ(member.GetInstance(), target);
}

TEST_F(Member, IsUnsetByAReferenceThatTheModelDoesNotHold) {
  const IfcCartesianPoint outside;
  member.Parse("#12");
  member.SetReference(&outside);
  EXPECT_FALSE(member.GetExists());
  EXPECT_EQ(Text(member), "$");
  MEMBER ownerless(std::size_t{5});
  ownerless.SetReference(target);
  EXPECT_EQ(Text(ownerless), "$");
  IfcUnitAssignment stranger;
  MEMBER ofStranger(&stranger);
  ofStranger = std::size_t{5};
  ofStranger.SetReference(target);
  EXPECT_EQ(Text(ofStranger), "$");
}

TEST_F(Member, KeepsItsInlineValueWhenAReferenceIsSet) {
  auto* value = new Probe(9);
  member = value;
  member.SetReference(target);
  EXPECT_EQ(Text(member), "#12");
  EXPECT_EQ(member.GetInstance(), value) << "the value in place comes first";
  EXPECT_EQ(Probe::alive, 1);

  member.SetReference(nullptr);
  EXPECT_EQ(Text(member), "$");
  EXPECT_EQ(member.GetInstance(), nullptr);
  EXPECT_EQ(member.GetInlineValue(), value);

  MEMBER copy(member);
  EXPECT_EQ(copy.GetInlineValue(), value);
  EXPECT_EQ(member.GetInlineValue(), nullptr);
  EXPECT_EQ(Text(member), "$");

  copy.SetReference(target);
  MEMBER another;
  another = copy;
  EXPECT_EQ(Text(another), "#12");
  EXPECT_EQ(Text(copy), "#12");
  EXPECT_EQ(another.GetInlineValue(), value);
  EXPECT_EQ(copy.GetInlineValue(), nullptr);
  another = new Probe(10);
  EXPECT_EQ(Probe::alive, 2);
  delete value;
  another = std::size_t{1};
  EXPECT_EQ(Probe::alive, 0);
}

TEST_F(Member, CarriesEveryNumberOf64Bits) {
  for (const std::uint64_t wide :
       {std::uint64_t{1} << 62, (std::uint64_t{1} << 62) - 1, std::uint64_t{1} << 63,
        (std::uint64_t{1} << 63) + 5, ~std::uint64_t{0}, ~(std::uint64_t{1} << 62)}) {
    const auto number = static_cast<std::size_t>(wide);
    MEMBER first(number);
    MEMBER second(first);
    MEMBER third;
    third = second;
    third = first;
    MEMBER fourth;
    fourth = number;
    for (const MEMBER* each : {&first, &second, &third, &fourth}) {
      EXPECT_EQ(static_cast<std::size_t>(*each), number);
      EXPECT_TRUE(each->GetExists());
      EXPECT_EQ(each->GetInlineValue(), nullptr);
      EXPECT_EQ(Text(*each), "#" + std::to_string(number));
    }
  }
}

/// References of `owner` in different parts of the memory, at different distances from the owner.
struct Scattered {
  explicit Scattered(IfcUnknown* owner)
      : stacked(owner), heaped(new MEMBER(owner)), listed(1, MEMBER(owner)) {
    resident = MEMBER(owner);
  }
  ~Scattered() { resident = MEMBER(); }
  std::vector<MEMBER*> All() { return {&stacked, heaped.get(), &listed.front(), &resident}; }

  MEMBER stacked;
  std::unique_ptr<MEMBER> heaped;
  std::vector<MEMBER> listed;
  static MEMBER resident;
};
MEMBER Scattered::resident;

TEST_F(Member, KeepsItsOwnerAtEveryPlaceInMemory) {
  Scattered places(owner);
  for (MEMBER* const each : places.All()) {
    for (MEMBER* const other : places.All()) {
      *each = std::size_t{12};
      *other = *each;
      EXPECT_EQ(other->GetInstance(), target);
      other->Parse("#3000000000,");
      EXPECT_EQ(Text(*other), "#2147483647");
      other->Parse("#-5,");
      EXPECT_EQ(static_cast<std::size_t>(*other), std::numeric_limits<std::size_t>::max() - 4);
      other->Parse("$,");
      EXPECT_EQ(Text(*other), "$");
      other->Parse("#12,");
      EXPECT_EQ(other->GetInstance(), target);
      EXPECT_EQ(MEMBER(*other).GetInstance(), target);
    }
  }
}

TEST_F(Member, MovesItsInlineValueBetweenAllPlacesInMemory) {
  Scattered places(owner);
  for (MEMBER* const each : places.All()) {
    for (MEMBER* const other : places.All()) {
      if (each == other) continue;
      auto* const value = new Probe(9);
      *each = value;
      *other = *each;
      EXPECT_EQ(other->GetInlineValue(), value);
      EXPECT_EQ(Text(*each), "*");
      *other = std::size_t{12};
      EXPECT_EQ(other->GetInstance(), target);
      EXPECT_EQ(Probe::alive, 0);
    }
  }
}

TEST_F(Member, ComparesByNumber) {
  EXPECT_TRUE(MEMBER(std::size_t{5}) == MEMBER(owner, 5));
  EXPECT_FALSE(MEMBER(std::size_t{5}) == MEMBER(std::size_t{6}));
}

}  // namespace
}  // namespace KelIFC
