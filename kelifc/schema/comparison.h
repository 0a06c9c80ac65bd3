#ifndef KELIFC_SCHEMA_COMPARISON_H_
#define KELIFC_SCHEMA_COMPARISON_H_

#include <typeindex>
#include <unordered_map>

#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/server/value_comparison.h"

// How the instances of each class are compared. The classes keep their attributes protected, so
// `Fields` derives from a class to name them. It is never instantiated.

namespace KelIFC {

/// Compares two instances of one class.
using CompareInstances = bool (*)(const IfcUnknown& a, const IfcUnknown& b,
                                  const ValueComparison& same);

/// The comparisons of a release, by class.
using ComparisonTable = std::unordered_map<std::type_index, CompareInstances>;

const ComparisonTable& GetComparisons151();
const ComparisonTable& GetComparisons20();
const ComparisonTable& GetComparisons2x();
const ComparisonTable& GetComparisons2x2();
const ComparisonTable& GetComparisons2x3();

/// Compares the attributes of a class and of its bases. The general form is for classes without
/// attributes.
template <class T>
struct Fields {
  static bool AreSame(const T& /*a*/, const T& /*b*/, const ValueComparison& /*same*/) {
    return true;
  }
};

template <>
struct Fields<IfcCartesianPoint> : IfcCartesianPoint {
  static bool AreSame(const IfcCartesianPoint& a, const IfcCartesianPoint& b,
                      const ValueComparison& same) {
    return same(a.Coordinates(), b.Coordinates());
  }
};

template <>
struct Fields<IfcBoundingBox> : IfcBoundingBox {
  static bool AreSame(const IfcBoundingBox& a, const IfcBoundingBox& b,
                      const ValueComparison& same) {
    return same(a.*(&Fields::corner), b.*(&Fields::corner)) &&
           same(a.*(&Fields::xDim), b.*(&Fields::xDim)) &&
           same(a.*(&Fields::yDim), b.*(&Fields::yDim)) &&
           same(a.*(&Fields::zDim), b.*(&Fields::zDim));
  }
};

template <>
struct Fields<IfcUnitAssignment> : IfcUnitAssignment {
  static bool AreSame(const IfcUnitAssignment& a, const IfcUnitAssignment& b,
                      const ValueComparison& same) {
    return same(a.*(&Fields::units), b.*(&Fields::units));
  }
};

template <>
struct Fields<IfcLengthMeasure> {
  static bool AreSame(const REAL& a, const REAL& b, const ValueComparison& same) {
    return same(a, b);
  }
};

template <>
struct Fields<IfcParameterValue> : Fields<IfcLengthMeasure> {};

/// Compares two instances, which must be instances of T.
template <class T>
bool CompareAs(const IfcUnknown& a, const IfcUnknown& b, const ValueComparison& same) {
  return Fields<T>::AreSame(static_cast<const T&>(a), static_cast<const T&>(b), same);
}

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_COMPARISON_H_
