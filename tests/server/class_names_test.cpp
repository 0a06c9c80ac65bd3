#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/core/other.h"
#include "kelifc/core/unknown.h"
#include "kelifc/core/value.h"
#include "kelifc/server/entity_name.h"
#include "kelifc/server/ifc_server.h"

#include "tests/server/probe.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;

using Instance = std::unique_ptr<IfcUnknown>;

constexpr IFC_RELEASE kReleases[] = {IFC_RELEASE_151, IFC_RELEASE_20, IFC_RELEASE_2X,
                                     IFC_RELEASE_2X2, IFC_RELEASE_2X3};

Instance Make(IFC_RELEASE release, const char* name) {
  IfcServer server;
  server.SetRelease(release);
  return Instance(server.ParseClass(name, nullptr));
}

std::string NameOf(const Instance& instance) {
  return instance == nullptr ? "" : instance->GetStepName();
}

TEST(ClassNames, KnowTheSharedNamesInEveryRelease) {
  const std::pair<const char*, const char*> kShared[] = {
      {"FILE_SCHEMA", "StepFileSchema"},          {"IFCBOUNDINGBOX", "IfcBoundingBox"},
      {"IFCCARTESIANPOINT", "IfcCartesianPoint"}, {"IFCLENGTHMEASURE", "IfcLengthMeasure"},
      {"IFCRATIOMEASURE", "IfcLengthMeasure"},    {"IFCPOSITIVELENGTHMEASURE", "IfcLengthMeasure"},
      {"IFCPARAMETERVALUE", "IfcParameterValue"}, {"IFCUNITASSIGNMENT", "IfcUnitAssignment"},
  };
  for (const auto& [name, className] : kShared) {
    EXPECT_EQ(NameOf(Make(IFC_RELEASE_NONE, name)), className);
    for (const IFC_RELEASE release : kReleases) EXPECT_EQ(NameOf(Make(release, name)), className);
  }
}

TEST(ClassNames, IgnoreTheCaseOfLetters) {
  EXPECT_EQ(NameOf(Make(IFC_RELEASE_NONE, "ifcCartesianpoint")), "IfcCartesianPoint");
}

TEST(ClassNames, WriteAMergedMeasureUnderTheNameOfItsClass) {
  const Instance ratio = Make(IFC_RELEASE_2X3, "IFCRATIOMEASURE(0.5)");
  auto* value = dynamic_cast<IfcValue*>(ratio.get());
  ASSERT_NE(value, nullptr);
  value->ParseBody("IFCRATIOMEASURE(0.5)");
  std::ostringstream out;
  value->WriteWithName(out);
  EXPECT_EQ(out.str(), "IFCLENGTHMEASURE(0.5)");
}

TEST(ClassNames, ReturnNullForAnUnknownNameInTheOlderReleases) {
  for (const IFC_RELEASE release :
       {IFC_RELEASE_NONE, IFC_RELEASE_151, IFC_RELEASE_20, IFC_RELEASE_2X}) {
    EXPECT_EQ(Make(release, "IFCFOO"), nullptr);
  }
}

TEST(ClassNames, ReturnAnIfcOtherForAnUnknownNameInTheNewerReleases) {
  for (const IFC_RELEASE release : {IFC_RELEASE_2X2, IFC_RELEASE_2X3}) {
    const Instance instance = Make(release, "IfcFoo");
    EXPECT_EQ(NameOf(instance), "IfcUnknown");
    const auto* other = dynamic_cast<const IfcOther*>(instance.get());
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(other->GetStepEntityName(), "IfcFoo");
    EXPECT_EQ(other->GetServer(), nullptr);
  }
}

TEST(ClassNames, AcceptANameOfAnyLength) {
  const std::string name(100000, 'A');
  const Instance instance = Make(IFC_RELEASE_2X3, (name + "(1)").c_str());
  ASSERT_NE(instance, nullptr);
  EXPECT_TRUE(dynamic_cast<const IfcOther&>(*instance).GetStepEntityName() == name);
}

// Returns true if a release has a class of its own with a name.
bool Has(IFC_RELEASE release, const char* name) {
  const Instance instance = Make(release, name);
  return instance != nullptr && dynamic_cast<const IfcOther*>(instance.get()) == nullptr;
}

TEST(ClassNames, FollowTheRelease) {
  const struct {
    const char* name;
    bool has[5];
  } kNames[] = {
      {"IFCCOLUMN", {true, true, true, true, true}},
      {"IFCFLOOR", {true, false, false, false, false}},
      {"IFCSLAB", {false, true, true, true, true}},
      {"IFCWALLSTANDARDCASE", {false, false, true, true, true}},
      {"IFCPROPERTYSET", {true, false, false, true, true}},
      {"IFCPILE", {false, false, false, true, true}},
      {"IFCCURTAINWALL", {false, false, false, false, true}},
  };
  for (const auto& [name, has] : kNames) {
    for (int i = 0; i < 5; ++i) EXPECT_EQ(Has(kReleases[i], name), has[i]) << name << " " << i;
  }
  EXPECT_EQ(NameOf(Make(IFC_RELEASE_2X3, "ifcwall")), "IfcWall");
}

TEST(ClassNames, ReturnNullForANullName) {
  IfcServer server;
  EXPECT_EQ(server.InstantiateClass(nullptr), nullptr);
  EXPECT_EQ(server.InstantiateClass151(nullptr), nullptr);
  EXPECT_EQ(server.InstantiateClass20(nullptr), nullptr);
  EXPECT_EQ(server.InstantiateClass2x(nullptr), nullptr);
  EXPECT_EQ(server.InstantiateClass2x2(nullptr), nullptr);
  EXPECT_EQ(server.InstantiateClass2x3(nullptr), nullptr);
  EXPECT_EQ(server.CreateItem(nullptr), nullptr);
  EXPECT_EQ(server.ParseClass(nullptr, nullptr), nullptr);
}

// Makes an instance for each name, and records which operation was called.
class AskedServer : public IfcServer {
 public:
  IfcUnknown* InstantiateClass(const char*) override { return Note("core"); }
  std::vector<std::string> asked;

 protected:
  IfcUnknown* Note(const char* operation) {
    asked.push_back(operation);
    return new Probe(operation);
  }
};

class AllAskedServer : public AskedServer {
 public:
  IfcUnknown* InstantiateClass151(const char*) override { return Note("151"); }
  IfcUnknown* InstantiateClass20(const char*) override { return Note("20"); }
  IfcUnknown* InstantiateClass2x(const char*) override { return Note("2x"); }
  IfcUnknown* InstantiateClass2x2(const char*) override { return Note("2x2"); }
  IfcUnknown* InstantiateClass2x3(const char*) override { return Note("2x3"); }
};

TEST(ClassNames, CallAnOverriddenCoreTableFirstInEachRelease) {
  AskedServer server;
  for (const IFC_RELEASE release : kReleases) {
    server.SetRelease(release);
    const Instance instance(server.ParseClass("IFCWALL", nullptr));
    EXPECT_NE(dynamic_cast<Probe*>(instance.get()), nullptr);
  }
  EXPECT_THAT(server.asked, ElementsAre("core", "core", "core", "core", "core"));
}

TEST(ClassNames, CallTheOperationOfTheRelease) {
  AllAskedServer server;
  for (const int release : {0, 1, 2, 3, 4, 5, 6, -1}) {
    server.SetRelease(static_cast<IFC_RELEASE>(release));
    server.CreateItem("X");
  }
  EXPECT_THAT(server.asked, ElementsAre("core", "151", "20", "2x", "2x2", "2x3", "core", "core"));
}

// A server that overrides an operation makes instances by these operations.
class OwnServer : public IfcServer {
 public:
  IfcUnknown* InstantiateClass(const char* name) override {
    return IfcServer::InstantiateClass(name);
  }
};

TEST(ClassNames, AreTheSameInAServerThatOverridesOperations) {
  const std::string longName(EntityName::kLongest + 1, 'A');
  for (const IFC_RELEASE release : kReleases) {
    OwnServer server;
    server.SetRelease(release);
    for (const std::string& name : {std::string("IFCWALL(1)"), std::string("IfcColumn (1)"),
                                    std::string("ifccartesianpoint((1.))"), std::string("IFCFLOOR"),
                                    std::string("IFCFOO(2)"), longName, std::string("")}) {
      const Instance expected(server.ParseClass(name.c_str(), nullptr));
      const Instance instance = Make(release, name.c_str());
      EXPECT_EQ(NameOf(instance), NameOf(expected)) << name;
      const auto* other = dynamic_cast<const IfcOther*>(instance.get());
      if (other == nullptr) continue;
      EXPECT_EQ(other->GetStepEntityName(),
                dynamic_cast<const IfcOther&>(*expected).GetStepEntityName());
    }
  }
}

TEST(ClassNames, RegisterWhatIsCreated) {
  IfcServer server;
  IfcUnknown* point = server.CreateItem("IFCCARTESIANPOINT");
  ASSERT_NE(point, nullptr);
  EXPECT_EQ(server.Find(point), 1u);
  EXPECT_EQ(point->GetServer(), &server);
  EXPECT_EQ(server.CreateItem("IFCFOO"), nullptr);
  EXPECT_EQ(server.GetNumberCount(), 1u);
}

TEST(ParseClass, ReturnsThePositionAfterTheName) {
  IfcServer server;
  const char* text = "  IFCCARTESIANPOINT \t((1.))";
  const char* end = nullptr;
  const Instance point(server.ParseClass(text, &end));
  EXPECT_EQ(NameOf(point), "IfcCartesianPoint");
  EXPECT_EQ(end, text + 19);
  EXPECT_EQ(point->GetServer(), nullptr);
  EXPECT_TRUE(server.GetItems().empty());
}

TEST(ParseClass, ReadsTheEntireTextAsANameWithoutAParenthesis) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  for (const std::string text : {"(A(1)B(2))", "IFCFOO ", "#5,'x'", ""}) {
    const char* end = nullptr;
    const Instance instance(server.ParseClass(text.c_str(), &end));
    EXPECT_EQ(dynamic_cast<const IfcOther&>(*instance).GetStepEntityName(), text);
    EXPECT_EQ(end, text.c_str() + text.size());
  }
}

TEST(ParseClass, ReturnsThePositionAlsoForAnUnknownName) {
  IfcServer server;
  const char* text = "IFCFOO(1)";
  const char* end = nullptr;
  EXPECT_EQ(server.ParseClass(text, &end), nullptr);
  EXPECT_EQ(end, text + 6);
}

TEST(ParseClass, SkipsNothingButBlanks) {
  IfcServer server;
  EXPECT_EQ(server.ParseClass(" .IFCCARTESIANPOINT(1)", nullptr), nullptr);
  const Instance point(server.ParseClass("\v\f\r\n IFCCARTESIANPOINT\n(1)", nullptr));
  EXPECT_NE(point, nullptr);
}

}  // namespace
}  // namespace KelIFC
