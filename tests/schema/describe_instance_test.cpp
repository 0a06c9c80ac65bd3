#include <memory>
#include <string>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/other.h"
#include "kelifc/schema/attribute_table.h"

#include "tests/schema/model.h"

namespace KelIFC {
namespace {

constexpr IFC_RELEASE kReleases[] = {IFC_RELEASE_151, IFC_RELEASE_20, IFC_RELEASE_2X,
                                     IFC_RELEASE_2X2, IFC_RELEASE_2X3};

TEST(DescribeInstance, FindsTheClassOfEachInstanceThatAFileCanMake) {
  for (const IFC_RELEASE release : kReleases) {
    IfcServer server;
    server.SetRelease(release);
    for (const EntityDescription* entity : AllEntities(release)) {
      if (!entity->isInFile || entity->form != EntityForm::kEntity) continue;
      const std::string text = std::string(entity->name) + "()";
      const std::unique_ptr<IfcUnknown> instance(server.ParseClass(text.c_str(), nullptr));
      ASSERT_NE(instance, nullptr) << entity->name;
      instance->SetServer(&server);
      EXPECT_EQ(DescribeInstance(*instance), entity) << entity->name;
    }
  }
}

TEST(DescribeInstance, FindsValueTypes) {
  const KelIFC2x3::IfcLabel label("text");
  EXPECT_EQ(DescribeInstance(label), FindEntity(IFC_RELEASE_2X3, "IfcLabel"));
  const KelIFC2x2::IfcLabel older("text");
  EXPECT_EQ(DescribeInstance(older), FindEntity(IFC_RELEASE_2X2, "IfcLabel"));
  EXPECT_EQ(DescribeInstance(IfcLengthMeasure(1)), FindEntity(IFC_RELEASE_2X3, "IfcLengthMeasure"));
}

TEST(DescribeInstance, TakesTheReleaseOfTheModelForAClassOfAllReleases) {
  IfcCartesianPoint point;
  const EntityDescription* const newest = FindEntity(IFC_RELEASE_2X3, "IfcCartesianPoint");
  EXPECT_EQ(DescribeInstance(point), newest);
  IfcServer server;
  point.SetServer(&server);
  EXPECT_EQ(DescribeInstance(point), newest);
  server.SetRelease(IFC_RELEASE_20);
  EXPECT_EQ(DescribeInstance(point), FindEntity(IFC_RELEASE_20, "IfcCartesianPoint"));
  point.SetServer(nullptr);
}

TEST(DescribeInstance, ReturnsNullForRawTextAndForAClassOfTheHost) {
  EXPECT_EQ(DescribeInstance(IfcOther()), nullptr);
  class HostPoint : public IfcCartesianPoint {};
  EXPECT_EQ(DescribeInstance(HostPoint()), nullptr);
}

}  // namespace
}  // namespace KelIFC
