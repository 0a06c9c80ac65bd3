#include "kelifc/building/read/units.h"

#include <cmath>
#include <numbers>
#include <optional>
#include <string>
#include <string_view>

#include "kelifc/core/text/ascii.h"

namespace KelIFC::building {
namespace {

// Units can be defined by each other; more levels than this are not followed.
constexpr int kMaxUnitDepth = 8;

struct NamedFactor {
  std::string_view name;
  double factor;
};

constexpr NamedFactor kPrefixes[] = {
    {"EXA", 1e18},  {"PETA", 1e15},  {"TERA", 1e12},   {"GIGA", 1e9},
    {"MEGA", 1e6},  {"KILO", 1e3},   {"HECTO", 1e2},   {"DECA", 1e1},
    {"DECI", 1e-1}, {"CENTI", 1e-2}, {"MILLI", 1e-3},  {"MICRO", 1e-6},
    {"NANO", 1e-9}, {"PICO", 1e-12}, {"FEMTO", 1e-15}, {"ATTO", 1e-18},
};

// The exact factors of conversion-based units. Many files round the factor of a degree to a few
// digits; the exact one replaces a factor that differs by less than 0.1 %.
constexpr NamedFactor kConversions[] = {
    {"DEGREE", std::numbers::pi / 180.0},
    {"DEGREES", std::numbers::pi / 180.0},
    {"DEG", std::numbers::pi / 180.0},
    {"GRAD", std::numbers::pi / 200.0},
    {"GON", std::numbers::pi / 200.0},
    {"INCH", 0.0254},
    {"FOOT", 0.3048},
    {"FEET", 0.3048},
    {"YARD", 0.9144},
    {"MILE", 1609.344},
};

template <std::size_t Count>
std::optional<double> FactorOf(const NamedFactor (&table)[Count], std::string_view name) {
  for (const NamedFactor& row : table) {
    if (row.name == name) return row.factor;
  }
  return std::nullopt;
}

bool IsFactor(double factor) { return std::isfinite(factor) && factor > 0.0; }

std::string NameOf(const Instance& unit) {
  if (unit.GetEntity() != Entity::kSiUnit) {
    return ascii::ToUpperCase(unit.Get(Attribute::kName).Text());
  }
  return unit.Get(Attribute::kPrefix).Enumerator() + unit.Get(Attribute::kName).Enumerator();
}

std::optional<double> FactorOf(const Instance& unit, int depth) {
  if (unit.GetEntity() == Entity::kSiUnit) {
    const Value prefix = unit.Get(Attribute::kPrefix);
    return prefix.IsSet() ? FactorOf(kPrefixes, prefix.Enumerator()) : std::optional<double>(1.0);
  }
  if (unit.GetEntity() != Entity::kConversionBasedUnit) return std::nullopt;
  const std::optional<double> exact = FactorOf(kConversions, NameOf(unit));
  const Instance measure = unit.Get(Attribute::kConversionFactor).Target();
  if (!measure || depth == 0) return exact;
  const std::optional<double> base = FactorOf(measure.Get(Attribute::kUnit).Target(), depth - 1);
  const double stated = measure.Get(Attribute::kValue).Number(0.0) * base.value_or(1.0);
  if (!IsFactor(stated)) return exact;
  return exact && std::abs(stated - *exact) < 1e-3 * *exact ? exact : stated;
}

}  // namespace

Units ReadUnits(const Instance& project) {
  Units units;
  const Value list = project.Get(Attribute::kUnitsInContext).Target().Get(Attribute::kUnits);
  for (std::size_t i = 0; i < list.Size(); ++i) {
    const Instance unit = list[i].Target();
    const std::string type = unit.Get(Attribute::kUnitType).Enumerator();
    if (type != "LENGTHUNIT" && type != "PLANEANGLEUNIT") continue;
    const double factor = FactorOf(unit, kMaxUnitDepth).value_or(0.0);
    if (!IsFactor(factor)) continue;
    if (type == "LENGTHUNIT") {
      units.length = {NameOf(unit), factor};
    } else {
      units.radians = factor;
    }
  }
  return units;
}

}  // namespace KelIFC::building
