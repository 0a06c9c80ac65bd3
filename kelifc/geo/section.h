#ifndef KELIFC_GEO_SECTION_H_
#define KELIFC_GEO_SECTION_H_

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geo/section_kind.h"

namespace KelIFC {

/// The fields of every section. They are copies, without a connection to the model.
struct CoGeoSection {
  LONG kind = SECTION_NONE;
  std::string name;
};

/// Counts how many times hosts have changed a size of a section of one collection. An index of the
/// sizes is valid while the count is unchanged. The sections share the counter with the collection,
/// so it can outlive the collection.
using SizeChanges = std::shared_ptr<std::uint64_t>;

/// The operations of IGeoSection, for each section class. `Base` is the generated base of the
/// class.
template <class Base>
class SectionObject : public Base, public CoGeoSection {
 public:
  HRESULT get_Name(BSTR* out) override { return GiveText(name, out); }
  HRESULT put_Name(BSTR text) override { return PutText(text, &name); }
  HRESULT get_Kind(LONG* out) override { return GetField(kind, out); }

 protected:
  ~SectionObject() = default;
};

/// A section with sizes, in metres. Each class returns its sizes by `Fields`, in the order of
/// SectionSizes.
template <class Base>
class SizedSection : public SectionObject<Base> {
 public:
  /// The counter of the collection. It is null in a section that a host created by itself.
  SizeChanges changes;

 protected:
  ~SizedSection() = default;

  /// Writes a size for a host and counts the change.
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

/// A polygon. Its points are not kept.
class CoGeoSectionProfile : public SectionObject<CoGeoSectionProfileBase> {
 protected:
  ~CoGeoSectionProfile() = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTION_H_
