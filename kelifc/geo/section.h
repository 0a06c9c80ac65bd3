#ifndef KELIFC_GEO_SECTION_H_
#define KELIFC_GEO_SECTION_H_

#include <cstdint>
#include <string>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geo/section_index.h"

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

/// How often hosts have changed sizes of sections, in the whole process: what was worked out of
/// sizes holds while this stays the same.
std::uint64_t SectionChanges();

/// Writes a size of a section on behalf of a host.
HRESULT PutSize(double value, double* size);

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

/// A rectangle; sizes in metres.
class CoGeoSectionR : public SectionObject<CoGeoSectionRBase> {
 public:
  HRESULT get_Width(double* out) override { return GetField(a, out); }
  HRESULT put_Width(double value) override { return PutSize(value, &a); }
  HRESULT get_Height(double* out) override { return GetField(b, out); }
  HRESULT put_Height(double value) override { return PutSize(value, &b); }

  SectionSizes GetSizes() const { return SectionSizes(kind, a, b); }
  void SetSizes(const SectionSizes& sizes) {
    kind = sizes.kind;
    a = sizes.values[0];
    b = sizes.values[1];
  }

  double a = 0.0;  ///< width
  double b = 0.0;  ///< height

 protected:
  ~CoGeoSectionR() = default;
};

/// A circle; sizes in metres.
class CoGeoSectionC : public SectionObject<CoGeoSectionCBase> {
 public:
  HRESULT get_Diameter(double* out) override { return GetField(diameter, out); }
  HRESULT put_Diameter(double value) override { return PutSize(value, &diameter); }

  SectionSizes GetSizes() const { return SectionSizes(kind, diameter); }
  void SetSizes(const SectionSizes& sizes) {
    kind = sizes.kind;
    diameter = sizes.values[0];
  }

  double diameter = 0.0;

 protected:
  ~CoGeoSectionC() = default;
};

/// A T with the flange on top; sizes in metres.
class CoGeoSectionT : public SectionObject<CoGeoSectionTBase> {
 public:
  HRESULT get_Height(double* out) override { return GetField(b, out); }
  HRESULT put_Height(double value) override { return PutSize(value, &b); }
  HRESULT get_FlangeThickness(double* out) override { return GetField(d, out); }
  HRESULT put_FlangeThickness(double value) override { return PutSize(value, &d); }
  HRESULT get_WebWidth(double* out) override { return GetField(a, out); }
  HRESULT put_WebWidth(double value) override { return PutSize(value, &a); }
  HRESULT get_FlangeWidth(double* out) override { return GetField(c, out); }
  HRESULT put_FlangeWidth(double value) override { return PutSize(value, &c); }

  SectionSizes GetSizes() const { return SectionSizes(kind, a, b, c, d); }
  void SetSizes(const SectionSizes& sizes) {
    kind = sizes.kind;
    a = sizes.values[0];
    b = sizes.values[1];
    c = sizes.values[2];
    d = sizes.values[3];
  }

  double a = 0.0;  ///< web width
  double b = 0.0;  ///< height
  double c = 0.0;  ///< flange width
  double d = 0.0;  ///< flange thickness

 protected:
  ~CoGeoSectionT() = default;
};

/// A polygon. Its shape is not kept.
class CoGeoSectionProfile : public SectionObject<CoGeoSectionProfileBase> {
 protected:
  ~CoGeoSectionProfile() = default;
};

/// A thickness, in metres.
class CoGeoSectionThick : public SectionObject<CoGeoSectionThickBase> {
 public:
  HRESULT get_Thickness(double* out) override { return GetField(thickness, out); }
  HRESULT put_Thickness(double value) override { return PutSize(value, &thickness); }

  SectionSizes GetSizes() const { return SectionSizes(kind, thickness); }
  void SetSizes(const SectionSizes& sizes) {
    kind = sizes.kind;
    thickness = sizes.values[0];
  }

  double thickness = 0.0;

 protected:
  ~CoGeoSectionThick() = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTION_H_
