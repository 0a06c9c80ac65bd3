#include "kelifc/server/ifc_server.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "kelifc/core/other.h"
#include "kelifc/core/text/write_tolerance.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/schema/ifc2x3.h"

#include "tests/server/probe.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;

constexpr std::size_t kMinusOne = 0xFFFFFFFFFFFFFFFF;

TEST(IfcServer, StartsEmptyAndWithoutRelease) {
  IfcServer server;
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_NONE);
  EXPECT_EQ(server.GetEps(), 0.001);
  EXPECT_FALSE(server.GetSupportsFillings());
  EXPECT_TRUE(server.GetItems().empty());
  EXPECT_EQ(server.GetNumberCount(), 0u);
  EXPECT_EQ(server.GetNextNumber(0), 0u);
  EXPECT_EQ(server.GetFileSchema(), "");
  EXPECT_EQ(server.GetItem(std::size_t{1}), nullptr);
  EXPECT_EQ(server.GetItem(std::size_t{0}), nullptr);
  EXPECT_EQ(server.GetItem(_GUID{}), nullptr);
}

TEST(IfcServer, NumbersAddedInstancesFromOne) {
  IfcServer server;
  auto* first = new Probe;
  EXPECT_EQ(server.AddItem(first), 1u);
  EXPECT_EQ(server.AddItem(new Probe), 2u);
  EXPECT_EQ(server.GetItem(std::size_t{1}), first);
  EXPECT_EQ(first->GetServer(), &server);
}

TEST(IfcServer, NumbersAnAddedInstanceAboveTheHighest) {
  IfcServer server;
  server.InsertItem(500, new Probe);
  server.InsertItem(3, new Probe);
  EXPECT_EQ(server.AddItem(new Probe), 501u);
}

TEST(IfcServer, UsesAFreedNumberAgainOnlyIfItWasTheHighest) {
  IfcServer server;
  auto* low = new Probe;
  auto* high = new Probe;
  server.AddItem(low);
  server.AddItem(new Probe);
  server.AddItem(high);
  server.DeleteItem(low);
  EXPECT_EQ(server.AddItem(new Probe), 4u);
  server.DeleteItem(server.GetItem(std::size_t{4}));
  server.DeleteItem(high);
  EXPECT_EQ(server.AddItem(new Probe), 3u);
}

TEST(IfcServer, AssignsANumberAndASlotToANullInstance) {
  IfcServer server;
  EXPECT_EQ(server.AddItem(nullptr), 1u);
  EXPECT_EQ(server.GetItems().size(), 1u);
  EXPECT_EQ(server.GetItem(std::size_t{1}), nullptr);
  EXPECT_EQ(server.GetNumberCount(), 1u);
}

TEST(IfcServer, UsesTheLowestFreeNumberIfTheHighestCannotRise) {
  IfcServer server;
  server.InsertItem(1, new Probe);
  server.InsertItem(3, new Probe);
  server.InsertItem(kMinusOne, new Probe);
  EXPECT_EQ(server.AddItem(new Probe), 2u);
  EXPECT_EQ(server.AddItem(new Probe), 4u);
}

TEST(IfcServer, ContinuesAfterANegativeNumberUntilItOverflows) {
  IfcServer server;
  server.InsertItem(kMinusOne - 1, new Probe);
  EXPECT_EQ(server.AddItem(new Probe), kMinusOne);
  EXPECT_EQ(server.AddItem(new Probe), 1u);
}

TEST(IfcServer, LeavesAnInstanceWithNumberZeroToTheCaller) {
  IfcServer server;
  Probe probe;
  server.InsertItem(0, &probe);
  server.InsertItem(7, nullptr);
  EXPECT_TRUE(server.GetItems().empty());
  EXPECT_EQ(probe.GetServer(), nullptr);
}

TEST(IfcServer, MovesANumberThatIsInsertedAgain) {
  IfcServer server;
  auto* earlier = new Probe;
  auto* later = new Probe;
  server.InsertItem(7, earlier);
  server.InsertItem(7, later);
  EXPECT_EQ(server.GetItem(std::size_t{7}), later);
  EXPECT_EQ(server.Find(later), 7u);
  EXPECT_EQ(server.Find(earlier), 0u);
  EXPECT_EQ(server.GetItems().size(), 2u);
  EXPECT_EQ(server.GetNumberCount(), 1u);
  EXPECT_EQ(server.DeleteItem(earlier), 0u);
}

TEST(IfcServer, MovesANumberAlsoAfterTheFirstSearch) {
  IfcServer server;
  auto* earlier = new Probe;
  auto* later = new Probe;
  server.InsertItem(7, earlier);
  EXPECT_EQ(server.Find(earlier), 7u);
  server.InsertItem(7, later);
  EXPECT_EQ(server.Find(later), 7u);
  EXPECT_EQ(server.Find(earlier), 0u);
}

TEST(IfcServer, FindsNothingOfAnotherServer) {
  IfcServer server, other;
  auto* probe = new Probe;
  other.AddItem(probe);
  EXPECT_EQ(server.Find(probe), 0u);
  EXPECT_EQ(server.DeleteItem(probe), 0u);
}

TEST(IfcServer, ReturnsTheNumberOfADeletedInstanceOnce) {
  Probe::Ends ends;
  IfcServer server;
  auto* probe = new Probe("gone", &ends);
  server.InsertItem(12, probe);
  EXPECT_EQ(server.DeleteItem(probe), 12u);
  EXPECT_THAT(ends, ElementsAre("gone"));
  EXPECT_EQ(server.DeleteItem(probe), 0u);
  EXPECT_EQ(server.Find(probe), 0u);
  EXPECT_EQ(server.GetItem(std::size_t{12}), nullptr);
  EXPECT_THAT(server.GetItems(), ElementsAre(nullptr));
}

TEST(IfcServer, MatchesTheFirstNullSlotWithANullInstance) {
  IfcServer server;
  EXPECT_EQ(server.Find(nullptr), 0u);
  EXPECT_EQ(server.DeleteItem(nullptr), 0u);
  auto* probe = new Probe;
  server.AddItem(probe);
  server.AddItem(nullptr);
  server.AddItem(nullptr);
  EXPECT_EQ(server.Find(nullptr), 2u);
  EXPECT_EQ(server.DeleteItem(nullptr), 2u);
  EXPECT_EQ(server.DeleteItem(nullptr), 0u);
  EXPECT_EQ(server.GetNumberCount(), 2u);
  server.DeleteItem(probe);
  EXPECT_EQ(server.Find(nullptr), 0u);
}

TEST(IfcServer, DestroysInReverseOrderOnReset) {
  Probe::Ends ends;
  IfcServer server;
  server.InsertItem(9, new Probe("a", &ends));
  server.InsertItem(4, new Probe("b", &ends));
  server.AddItem(nullptr);
  server.InsertItem(9, new Probe("c", &ends));
  server.Reset();
  EXPECT_THAT(ends, ElementsAre("c", "b", "a"));
  EXPECT_TRUE(server.GetItems().empty());
  EXPECT_EQ(server.GetNumberCount(), 0u);
  EXPECT_EQ(server.AddItem(new Probe), 1u);
}

TEST(IfcServer, DestroysItsInstancesInItsDestructor) {
  Probe::Ends ends;
  {
    IfcServer server;
    server.AddItem(new Probe("a", &ends));
    server.AddItem(new Probe("b", &ends));
  }
  EXPECT_THAT(ends, ElementsAre("b", "a"));
}

TEST(IfcServer, KeepsReleaseAndSwitchesOnReset) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X2);
  server.SetSupportsFillings(true);
  const double before = server.SetEps(0.5);
  server.Reset();
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_2X2);
  EXPECT_TRUE(server.GetSupportsFillings());
  EXPECT_EQ(server.GetEps(), 0.5);
  server.SetEps(before);
}

TEST(IfcServer, DestroysAnInstanceThatWasRegisteredTwiceOnce) {
  Probe::Ends ends;
  IfcServer server;
  auto* probe = new Probe("a", &ends);
  EXPECT_EQ(server.AddItem(probe), 1u);
  EXPECT_EQ(server.AddItem(probe), 2u);
  EXPECT_EQ(server.Find(probe), 1u);
  server.Reset();
  EXPECT_THAT(ends, ElementsAre("a"));
}

TEST(IfcServer, LeavesNoSlotOfADeletedInstance) {
  Probe::Ends ends;
  IfcServer server;
  auto* probe = new Probe("a", &ends);
  server.AddItem(probe);
  server.AddItem(new Probe);
  server.AddItem(probe);
  EXPECT_EQ(server.DeleteItem(probe), 1u);
  EXPECT_THAT(ends, ElementsAre("a"));
  EXPECT_EQ(server.GetItem(std::size_t{3}), nullptr);
  EXPECT_EQ(server.DeleteItem(probe), 0u);
}

TEST(IfcServer, FindsNothingThroughTheConstOverload) {
  IfcServer server;
  server.AddItem(new Probe);
  EXPECT_EQ(std::as_const(server).GetItem(std::size_t{1}), nullptr);
}

TEST(IfcServer, VisitsItsNumbersInAscendingOrder) {
  IfcServer server;
  for (const std::size_t number : {5, 3, 9}) server.InsertItem(number, new Probe);
  std::vector<std::size_t> numbers;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    numbers.push_back(n);
  }
  EXPECT_THAT(numbers, ElementsAre(3, 5, 9));
}

TEST(IfcServer, SetsTheToleranceOfTheProcessAndReturnsItsOwn) {
  IfcServer first, second;
  EXPECT_EQ(first.SetEps(0.25), 0.001);
  EXPECT_EQ(first.GetEps(), 0.25);
  EXPECT_EQ(second.GetEps(), 0.001);
  EXPECT_EQ(GetWriteTolerance(), 0.25);
  EXPECT_EQ(first.SetEps(0.001), 0.25);
}

TEST(IfcServer, CanBeCopiedWhileItIsEmpty) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X);
  server.SetSupportsFillings(true);
  IfcServer copy(server);
  EXPECT_EQ(copy.GetRelease(), IFC_RELEASE_2X);
  IfcServer assigned;
  assigned = server;
  EXPECT_TRUE(assigned.GetSupportsFillings());
  EXPECT_EQ(assigned.AddItem(new Probe), 1u);
  EXPECT_TRUE(server.GetItems().empty());
}

TEST(IfcServer, OrdersIdentifiersByNumbersAndThenByUnsignedBytes) {
  const GuidLess less;
  const _GUID low = {1, 9, 9, {9}};
  const _GUID high = {2, 0, 0, {0}};
  EXPECT_TRUE(less(low, high));
  EXPECT_FALSE(less(high, low));
  EXPECT_FALSE(less(low, low));
  EXPECT_TRUE(less({1, 1, 2, {0}}, {1, 2, 1, {0}}));
  EXPECT_TRUE(less({1, 1, 1, {9}}, {1, 1, 2, {0}}));
  EXPECT_TRUE(less({1, 1, 1, {0, 0x7F}}, {1, 1, 1, {0, 0x80}}));
}

TEST(IfcServer, RecordsThePositionsOfProducts) {
  IfcServer server;
  server.AddItem(new Probe);
  auto* const window = new KelIFC2x3::IfcWindow;
  server.AddItem(window);
  server.AddItem(new KelIFC2x::IfcDirection(1.0, 0.0));
  server.AddItem(nullptr);
  server.AddItem(new KelIFC2x::IfcWindow);
  server.AddItem(new KelIFC2x2::IfcOpeningElement);
  EXPECT_THAT(server.GetProductPositions(), ElementsAre(1u, 4u, 5u));
  server.DeleteItem(window);
  EXPECT_THAT(server.GetProductPositions(), ElementsAre(1u, 4u, 5u));
  EXPECT_EQ(server.GetItems()[1], nullptr);
  server.Reset();
  EXPECT_TRUE(server.GetProductPositions().empty());
}

TEST(IfcServer, ListsRootsAndRawTextInTheOrderOfTheRegistry) {
  IfcServer server;
  server.AddItem(new KelIFC2x3::IfcDirection(1.0, 0.0));
  server.AddItem(new KelIFC2x3::IfcProject);
  auto* const raw = new IfcOther;
  server.AddItem(raw);
  server.AddItem(new KelIFC2x3::IfcColumn);
  EXPECT_THAT(server.GetRootPositions(), ElementsAre(1u, 2u, 3u));
  server.DeleteItem(raw);
  EXPECT_THAT(server.GetRootPositions(), ElementsAre(1u, 2u, 3u));
  server.Reset();
  EXPECT_TRUE(server.GetRootPositions().empty());
}

TEST(IfcServer, ReturnsTheNumbersOfAllPositions) {
  IfcServer server;
  auto* const replaced = new KelIFC2x3::IfcColumn;
  auto* const deleted = new KelIFC2x3::IfcColumn;
  server.InsertItem(7, replaced);
  server.InsertItem(3, deleted);
  server.InsertItem(7, new KelIFC2x3::IfcColumn);
  server.DeleteItem(deleted);
  EXPECT_THAT(server.GetNumbersByPosition(), ElementsAre(0u, 0u, 7u));
}

TEST(IfcServer, ReturnsTheFirstNumberOfAnInstanceThatWasRegisteredTwice) {
  IfcServer server;
  auto* const twice = new KelIFC2x3::IfcColumn;
  server.InsertItem(7, twice);
  server.InsertItem(3, twice);
  EXPECT_EQ(server.Find(twice), 7u);
  EXPECT_THAT(server.GetNumbersByPosition(), ElementsAre(7u, 7u));
}

}  // namespace
}  // namespace KelIFC
