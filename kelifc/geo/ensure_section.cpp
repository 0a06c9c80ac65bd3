#include <utility>

#include "kelifc/geo/creation.h"
#include "kelifc/geo/geo_object.h"
#include "kelifc/geo/section_name.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/structure.h"
#include "kelifc/geometry/polygon2.h"

namespace KelIFC {

namespace {

/// Of the box of a polygon, in metres.
constexpr double kPolygonTolerance = 0.001;

/// Appends a section and gives it to the element.
template <class Section>
HRESULT AddSection(CoGeoSections& sections, CoGeoObject& element, Section** made) {
  ComPtr<OwnInterface<Section>> object;
  const HRESULT status =
      CoCreateInstance(Section::kClsid, nullptr, CLSCTX_ALL, IidOf<OwnInterface<Section>>(),
                       reinterpret_cast<void**>(object.Put()));
  if (FAILED(status)) return status;
  *made = static_cast<Section*>(object.Get());
  sections.Append(object.template As<IGeoSection>());
  element.sectionIndex = sections.Items().size() - 1;
  return status;
}

/// Gives the element the first section of these sizes, a new one if there is none.
template <class Section>
HRESULT EnsureSection(CoGeoStructure& structure, CoGeoObject& element, const SectionSizes& sizes) {
  return Guard([&] {
    ComPtr<IGeoSections> collection;
    HRESULT status = structure.get_Sections(collection.Put());
    if (FAILED(status)) return status;
    auto& sections = static_cast<CoGeoSections&>(*collection);
    if (const std::optional<std::size_t> found = sections.Find(sizes)) {
      element.sectionIndex = *found;
      return S_OK;
    }
    Section* section = nullptr;
    status = AddSection(sections, element, &section);
    if (FAILED(status)) return status;
    section->SetSizes(sizes);
    section->name = SectionName(sizes);
    sections.IndexLast(sizes);
    return S_OK;
  });
}

}  // namespace

HRESULT CoGeoStructure::EnsureSectionR(CoGeoObject& element, double a, double b) {
  return EnsureSection<CoGeoSectionR>(*this, element, SectionSizes(SECTION_R, a, b));
}

HRESULT CoGeoStructure::EnsureSectionC(CoGeoObject& element, double diameter) {
  return EnsureSection<CoGeoSectionC>(*this, element, SectionSizes(SECTION_C, diameter));
}

HRESULT CoGeoStructure::EnsureSectionT(CoGeoObject& element, double a, double b, double c,
                                       double d) {
  return EnsureSection<CoGeoSectionT>(*this, element, SectionSizes(SECTION_T, a, b, c, d));
}

HRESULT CoGeoStructure::EnsureSectionThick(CoGeoObject& element, double thickness) {
  return EnsureSection<CoGeoSectionThick>(*this, element, SectionSizes(SECTION_THICK, thickness));
}

HRESULT CoGeoStructure::AddSectionProfile(CoGeoObject& element, const Mvector<Point2>& polygon) {
  return Guard([&] {
    ComPtr<IGeoSections> collection;
    HRESULT status = get_Sections(collection.Put());
    if (FAILED(status)) return status;
    CoGeoSectionProfile* section = nullptr;
    status = AddSection(static_cast<CoGeoSections&>(*collection), element, &section);
    if (FAILED(status)) return status;
    section->kind = SECTION_PROFILE;
    section->name = ProfileName(polygon.size(), Polygon2(polygon, kPolygonTolerance).BoundingBox());
    return S_OK;
  });
}

}  // namespace KelIFC
