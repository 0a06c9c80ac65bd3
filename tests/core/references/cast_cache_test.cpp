#include "kelifc/core/references/cast_cache.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/other.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/core/unit_assignment.h"

#include "tests/core/probe.h"

namespace KelIFC {
namespace {

std::vector<std::unique_ptr<IfcUnknown>> MakeInstances() {
  std::vector<std::unique_ptr<IfcUnknown>> instances;
  for (int round = 0; round < 2; ++round) {
    instances.emplace_back(new IfcCartesianPoint);
    instances.emplace_back(new IfcBoundingBox);
    instances.emplace_back(new IfcLengthMeasure);
    instances.emplace_back(new IfcParameterValue);
    instances.emplace_back(new IfcUnitAssignment);
    instances.emplace_back(new IfcOther);
    instances.emplace_back(new StepFileSchema);
  }
  return instances;
}

template <class T>
void ExpectAsDynamicCast() {
  CastCache<T> cache;
  CastCache<const T> constCache;
  for (const auto& instance : MakeInstances()) {
    EXPECT_EQ(cache.Cast(instance.get()), dynamic_cast<T*>(instance.get()));
    EXPECT_EQ(constCache.Cast(instance.get()), dynamic_cast<const T*>(instance.get()));
  }
}

TEST(CastCache, ReturnsTheSameAsTheCast) {
  ExpectAsDynamicCast<IfcCartesianPoint>();
  ExpectAsDynamicCast<IfcRepresentationItem>();
  ExpectAsDynamicCast<IfcTrimmingSelect>();
  ExpectAsDynamicCast<IfcGeometricSetSelect>();
  ExpectAsDynamicCast<IfcParameterValue>();
  ExpectAsDynamicCast<REAL>();
  ExpectAsDynamicCast<IfcUnknown>();
  ExpectAsDynamicCast<IfcUnit>();
}

TEST(CastCache, ReturnsNullForNull) { EXPECT_EQ(CastCache<IfcUnknown>().Cast(nullptr), nullptr); }

/// One of many classes.
template <int N>
class Kind : public Probe {};
template <int N>
class MarkedKind : public IfcUnit, public Probe {};

template <int... N>
void AddKinds(std::vector<std::unique_ptr<IfcUnknown>>& instances,
              std::integer_sequence<int, N...> /*numbers*/) {
  (instances.emplace_back(new Kind<N>), ...);
  (instances.emplace_back(new MarkedKind<N>), ...);
}

TEST(CastCache, HoldsAnyNumberOfClasses) {
  std::vector<std::unique_ptr<IfcUnknown>> instances;
  AddKinds(instances, std::make_integer_sequence<int, 200>());
  CastCache<IfcUnit> cache;
  for (int round = 0; round < 2; ++round) {
    for (const auto& instance : instances) {
      ASSERT_EQ(cache.Cast(instance.get()), dynamic_cast<IfcUnit*>(instance.get()));
    }
  }
}

}  // namespace
}  // namespace KelIFC
