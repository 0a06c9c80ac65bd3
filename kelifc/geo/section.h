#ifndef KELIFC_GEO_SECTION_H_
#define KELIFC_GEO_SECTION_H_

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/fields.h"

namespace KelIFC {

/// What a section is, as get_Kind tells it. A new object has none of them.
enum SectionKind : LONG {
  SECTION_NONE = 0,
  SECTION_R = 1,        ///< a rectangle
  SECTION_C = 2,        ///< a circle
  SECTION_T = 3,        ///< a T with the flange on top
  SECTION_PROFILE = 8,  ///< a polygon, of which only the name tells
  SECTION_THICK = 9,    ///< a thickness
};

/// The fields that all sections have. They have no connection with the model.
struct CoGeoSection {
  LONG kind = SECTION_NONE;
  std::string name;
};

/// Counts how often hosts have changed sizes of the sections of one collection: what was worked out
/// of the sizes holds while the count stays the same. It outlives the collection for as long as a
/// section does.
using SizeChanges = std::shared_ptr<std::uint64_t>;

/// The operations of IGeoSection, over the base of each section class.
template <class Base>
class SectionObject : public Base, public CoGeoSection {
 public:
  HRESULT get_Name(BSTR* out) override { return GiveText(name, out); }
  HRESULT put_Name(BSTR text) override { return PutText(text, &name); }
  HRESULT get_Kind(LONG* out) override { return GetField(kind, out); }

 protected:
  ~SectionObject() = default;
};

/// A section that has sizes, in metres. A class gives its fields by `Fields`, in the order that
/// SectionSizes has them.
template <class Base>
class SizedSection : public SectionObject<Base> {
 public:
  /// Null in a section that a host made by itself.
  SizeChanges changes;

 protected:
  ~SizedSection() = default;

  /// Writes a size on behalf of a host.
  HRESULT PutSize(double value, double* size) {
    *size = value;
    if (changes != nullptr) ++*changes;
    return S_OK;
  }
};

/// A rectangle.
class CoGeoSectionR : public SizedSection<CoGeoSectionRBase> {
 public:
  HRESULT get_Width(double* out) override { return GetField(a, out); }
  HRESULT put_Width(double value) override { return PutSize(value, &a); }
  HRESULT get_Height(double* out) override { return GetField(b, out); }
  HRESULT put_Height(double value) override { return PutSize(value, &b); }

  std::array<double*, 2> Fields() { return {&a, &b}; }

  double a = 0.0;  ///< width
  double b = 0.0;  ///< height

 protected:
  ~CoGeoSectionR() = default;
};

/// A circle.
class CoGeoSectionC : public SizedSection<CoGeoSectionCBase> {
 public:
  HRESULT get_Diameter(double* out) override { return GetField(diameter, out); }
  HRESULT put_Diameter(double value) override { return PutSize(value, &diameter); }

  std::array<double*, 1> Fields() { return {&diameter}; }

  double diameter = 0.0;

 protected:
  ~CoGeoSectionC() = default;
};

/// A T with the flange on top.
class CoGeoSectionT : public SizedSection<CoGeoSectionTBase> {
 public:
  HRESULT get_Height(double* out) override { return GetField(b, out); }
  HRESULT put_Height(double value) override { return PutSize(value, &b); }
  HRESULT get_FlangeThickness(double* out) override { return GetField(d, out); }
  HRESULT put_FlangeThickness(double value) override { return PutSize(value, &d); }
  HRESULT get_WebWidth(double* out) override { return GetField(a, out); }
  HRESULT put_WebWidth(double value) override { return PutSize(value, &a); }
  HRESULT get_FlangeWidth(double* out) override { return GetField(c, out); }
  HRESULT put_FlangeWidth(double value) override { return PutSize(value, &c); }

  std::array<double*, 4> Fields() { return {&a, &b, &c, &d}; }

  double a = 0.0;  ///< web width
  double b = 0.0;  ///< height
  double c = 0.0;  ///< flange width
  double d = 0.0;  ///< flange thickness

 protected:
  ~CoGeoSectionT() = default;
};

/// A thickness.
class CoGeoSectionThick : public SizedSection<CoGeoSectionThickBase> {
 public:
  HRESULT get_Thickness(double* out) override { return GetField(thickness, out); }
  HRESULT put_Thickness(double value) override { return PutSize(value, &thickness); }

  std::array<double*, 1> Fields() { return {&thickness}; }

  double thickness = 0.0;

 protected:
  ~CoGeoSectionThick() = default;
};

/// A polygon. Its shape is not kept.
class CoGeoSectionProfile : public SectionObject<CoGeoSectionProfileBase> {
 protected:
  ~CoGeoSectionProfile() = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTION_H_
