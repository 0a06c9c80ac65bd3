#ifndef PYTHON_SOURCE_TO_PYTHON_H_
#define PYTHON_SOURCE_TO_PYTHON_H_

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelifc/kelifc.h"

#include "python/source/described.h"
#include "python/source/owned.h"

namespace KelIFC::python {

namespace py = pybind11;

/// A text in UTF-8 as str. A byte that is not UTF-8 becomes U+FFFD.
py::str ToText(std::string_view text);

/// An array that does not own its numbers and cannot be written. `owner` keeps the numbers alive.
py::array NumbersIn(const Owner& owner, const double* first, std::vector<py::ssize_t> shape);

/// How the values of a C++ type look in Python: `kType` is the annotation, and Of makes the Python
/// object. A structure with a description becomes a View of its class.
template <class Value, class = void>
struct ToPython {
  static std::string Type() { return kDescribed<Value>.name; }
  static py::object Of(const Value& value, const Owner& owner) {
    return py::cast(View<Value>{owner, &value});
  }
};

template <class Value>
py::object MakePython(const Value& value, const Owner& owner) {
  return ToPython<Value>::Of(value, owner);
}

template <>
struct ToPython<bool> {
  static std::string Type() { return "bool"; }
  static py::object Of(bool value, const Owner& /*owner*/) { return py::bool_(value); }
};

template <class Number>
struct ToPython<Number, std::enable_if_t<std::is_integral_v<Number>>> {
  static std::string Type() { return "int"; }
  static py::object Of(Number value, const Owner& /*owner*/) { return py::int_(value); }
};

template <>
struct ToPython<double> {
  static std::string Type() { return "float"; }
  static py::object Of(double value, const Owner& /*owner*/) { return py::float_(value); }
};

template <>
struct ToPython<std::string> {
  static std::string Type() { return "str"; }
  static py::object Of(const std::string& text, const Owner& /*owner*/) { return ToText(text); }
};

template <>
struct ToPython<const char*> {
  static std::string Type() { return "str"; }
  static py::object Of(const char* text, const Owner& /*owner*/) { return ToText(text); }
};

/// Enumerators have the texts that the command prints.
template <class Enum>
struct ToPython<Enum, std::enable_if_t<std::is_enum_v<Enum>>> {
  static std::string Type() { return "str"; }
  static py::object Of(Enum value, const Owner& /*owner*/) { return ToText(TextOf(value)); }
};

/// A point or a vector is an array.
template <class Point, std::size_t Dimension>
struct CoordinatesToPython {
  static_assert(sizeof(Point) == Dimension * sizeof(double));
  static std::string Type() { return "NDArray[np.float64]"; }
  static py::object Of(const Point& point, const Owner& owner) {
    return NumbersIn(owner, &point.x, {static_cast<py::ssize_t>(Dimension)});
  }
};

template <>
struct ToPython<Point2> : CoordinatesToPython<Point2, 2> {};
template <>
struct ToPython<Vector2> : CoordinatesToPython<Vector2, 2> {};
template <>
struct ToPython<Point3> : CoordinatesToPython<Point3, 3> {};
template <>
struct ToPython<Vector3> : CoordinatesToPython<Vector3, 3> {};

template <>
struct ToPython<std::array<double, 3>> {
  static std::string Type() { return "NDArray[np.float64]"; }
  static py::object Of(const std::array<double, 3>& point, const Owner& owner) {
    return NumbersIn(owner, point.data(), {3});
  }
};

/// A box is an array of its two corners.
template <>
struct ToPython<BuildingBox> {
  static std::string Type() { return "NDArray[np.float64] | None"; }
  static py::object Of(const BuildingBox& box, const Owner& owner) {
    static_assert(sizeof(BuildingBox) == 6 * sizeof(double));
    if (box.IsEmpty()) return py::none();
    return NumbersIn(owner, &box.min.x, {2, 3});
  }
};

/// A list of points is one array, with a row for each point. It refers to the memory of the list.
template <class Point, std::size_t Dimension>
struct PointsToPython {
  static std::string Type() { return "NDArray[np.float64]"; }
  static py::object Of(const std::vector<Point>& points, const Owner& owner) {
    static_assert(sizeof(Point) == Dimension * sizeof(double));
    return NumbersIn(
        owner, reinterpret_cast<const double*>(points.data()),
        {static_cast<py::ssize_t>(points.size()), static_cast<py::ssize_t>(Dimension)});
  }
};

template <>
struct ToPython<std::vector<Point2>> : PointsToPython<Point2, 2> {};
template <>
struct ToPython<std::vector<Point3>> : PointsToPython<Point3, 3> {};
template <>
struct ToPython<std::vector<std::array<double, 3>>> : PointsToPython<std::array<double, 3>, 3> {};

/// A list of structures is a sequence that makes its items when they are read. Another list is a
/// tuple.
template <class Item>
struct ToPython<std::vector<Item>> {
  static std::string Type() {
    if constexpr (kIsDescribed<Item>) return std::string(kDescribed<Item>.name) + "List";
    return "tuple[" + ToPython<Item>::Type() + ", ...]";
  }
  static py::object Of(const std::vector<Item>& items, const Owner& owner) {
    if constexpr (kIsDescribed<Item>) {
      return py::cast(ListView<Item>{owner, &items});
    } else {
      py::tuple all(items.size());
      for (std::size_t i = 0; i < items.size(); ++i) all[i] = MakePython(items[i], owner);
      return all;
    }
  }
};

template <class Value>
struct ToPython<std::optional<Value>> {
  static std::string Type() { return ToPython<Value>::Type() + " | None"; }
  static py::object Of(const std::optional<Value>& value, const Owner& owner) {
    if (!value) return py::none();
    return MakePython(*value, owner);
  }
};

template <class Value>
struct ToPython<std::shared_ptr<const Value>> {
  static std::string Type() { return ToPython<Value>::Type() + " | None"; }
  static py::object Of(const std::shared_ptr<const Value>& value, const Owner& /*owner*/) {
    if (!value) return py::none();
    return MakePython(*value, value);
  }
};

template <class First, class Second>
struct ToPython<std::pair<First, Second>> {
  static std::string Type() {
    return "tuple[" + ToPython<First>::Type() + ", " + ToPython<Second>::Type() + "]";
  }
  static py::object Of(const std::pair<First, Second>& pair, const Owner& owner) {
    return py::make_tuple(MakePython(pair.first, owner), MakePython(pair.second, owner));
  }
};

template <class Value>
struct ToPython<std::array<std::optional<Value>, 2>> {
  static std::string Type() {
    const std::string type = ToPython<std::optional<Value>>::Type();
    return "tuple[" + type + ", " + type + "]";
  }
  static py::object Of(const std::array<std::optional<Value>, 2>& both, const Owner& owner) {
    return py::make_tuple(MakePython(both[0], owner), MakePython(both[1], owner));
  }
};

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_TO_PYTHON_H_
