#include "kelifc/import/model/read_units.h"

#include <cstddef>

#include "kelifc/import/model/all_releases.h"

namespace KelIFC {

namespace {

template <class UnitEnum>
bool IsLengthUnit(UnitEnum type) {
  return type == UnitEnum::IfcUnitEnum_LENGTHUNIT;
}

template <class Release>
UnitFacts ReadSiUnit(const IfcUnit* unit) {
  const auto* si = dynamic_cast<const typename Release::IfcSiUnit*>(unit);
  if (si == nullptr) return {};
  return {IsLengthUnit(si->GetUnitType()), si->GetPrefixCoefficient(), 0.0};
}

template <class Release>
UnitFacts ReadUnit(const IfcUnit* unit) {
  const auto* converted = dynamic_cast<const typename Release::IfcConversionBasedUnit*>(unit);
  if (converted == nullptr) return ReadSiUnit<Release>(unit);
  const auto* measure = converted->GetConversionFactor();
  if (measure == nullptr) return {};
  UnitFacts facts = ReadSiUnit<Release>(measure->GetUnitComponent());
  const auto* value = dynamic_cast<const REAL*>(measure->GetValueComponent());
  if (value != nullptr) facts.factor = *value;
  return facts;
}

}  // namespace

template <class Release>
std::vector<UnitFacts> ReadUnits(const typename Release::IfcProject* project) {
  std::vector<UnitFacts> facts;
  const IfcUnitAssignment* assignment = project == nullptr ? nullptr : project->GetUnitsInContext();
  if (assignment == nullptr) return facts;
  const auto units = assignment->GetUnits();
  for (std::size_t i = 1; i <= units.GetSize(); ++i) {
    facts.push_back(ReadUnit<Release>(units.GetItem(i)));
  }
  return facts;
}

template std::vector<UnitFacts> ReadUnits<Release2x>(const Release2x::IfcProject* project);
template std::vector<UnitFacts> ReadUnits<Release2x2>(const Release2x2::IfcProject* project);
template std::vector<UnitFacts> ReadUnits<Release2x3>(const Release2x3::IfcProject* project);

}  // namespace KelIFC
