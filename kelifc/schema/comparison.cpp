#include "kelifc/schema/comparison.h"

#include <typeinfo>

#include "kelifc/core/other.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/server/text_stream.h"

namespace KelIFC {
namespace {

// An instance of raw text writes all its data. If memory runs out while it is written, the two
// instances count as different.
bool CompareRaw(const IfcUnknown& a, const IfcUnknown& b, const ValueComparison& /*same*/) {
  TextStream first;
  TextStream second;
  a.Write(first);
  b.Write(second);
  return first && second && first.GetText() == second.GetText();
}

// A statement of a model can have the name of this class.
bool CompareSchemas(const IfcUnknown& a, const IfcUnknown& b, const ValueComparison& same) {
  return same(static_cast<const StepFileSchema&>(a).GetProtocol(),
              static_cast<const StepFileSchema&>(b).GetProtocol());
}

const ComparisonTable& GetCoreComparisons() {
  static const ComparisonTable table = {
      {typeid(IfcOther), CompareRaw},
      {typeid(StepFileSchema), CompareSchemas},
      {typeid(IfcCartesianPoint), CompareAs<IfcCartesianPoint>},
      {typeid(IfcBoundingBox), CompareAs<IfcBoundingBox>},
      {typeid(IfcUnitAssignment), CompareAs<IfcUnitAssignment>},
      {typeid(IfcLengthMeasure), CompareAs<IfcLengthMeasure>},
      {typeid(IfcParameterValue), CompareAs<IfcParameterValue>},
  };
  return table;
}

constexpr const ComparisonTable& (*kTables[])() = {GetCoreComparisons, GetComparisons2x3,
                                                   GetComparisons2x2,  GetComparisons2x,
                                                   GetComparisons20,   GetComparisons151};

}  // namespace

bool ValueComparison::HaveSameValues(const IfcUnknown& a, const IfcUnknown& b) const {
  const std::type_index type = typeid(a);
  if (type != std::type_index(typeid(b))) return false;
  for (const auto& getTable : kTables) {
    const ComparisonTable& table = getTable();
    const auto found = table.find(type);
    if (found != table.end()) return found->second(a, b, *this);
  }
  return false;
}

}  // namespace KelIFC
