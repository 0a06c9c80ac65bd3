#include <optional>

#include "kelifc/geo/creation.h"
#include "kelifc/geo/geo_object.h"
#include "kelifc/geo/section_name.h"
#include "kelifc/geo/sections.h"
#include "kelifc/geo/structure.h"
#include "kelifc/geometry/polygon2.h"

namespace KelIFC {

namespace {

/// The tolerance for the box of a polygon, in metres.
constexpr double kPolygonTolerance = 0.001;

/// Stores the sections of the structure and keeps them alive by `collection`.
HRESULT GetSections(CoGeoStructure& structure, ComPtr<IGeoSections>& collection,
                    CoGeoSections** sections) {
  const HRESULT status = structure.get_Sections(collection.Put());
  if (SUCCEEDED(status)) *sections = static_cast<CoGeoSections*>(collection.Get());
  return status;
}

/// Creates a section, passes it to `fill`, appends it and makes it the section of the element.
template <class Section, class Fill>
HRESULT AddSection(CoGeoSections& sections, CoGeoObject& element, Fill&& fill) {
  ComPtr<OwnInterface<Section>> object;
  const HRESULT status =
      CoCreateInstance(Section::kClsid, nullptr, CLSCTX_ALL, IidOf<OwnInterface<Section>>(),
                       reinterpret_cast<void**>(object.Put()));
  if (FAILED(status)) return status;
  fill(static_cast<Section&>(*object));
  sections.Append(object.template As<IGeoSection>());
  element.sectionIndex = sections.Items().size() - 1;
  return status;
}

/// Gives the element the first section with these sizes, or a new one.
template <class Section>
HRESULT EnsureSection(CoGeoStructure& structure, CoGeoObject& element, const SectionSizes& sizes) {
  return Guard([&] {
    ComPtr<IGeoSections> collection;
    CoGeoSections* sections = nullptr;
    HRESULT status = GetSections(structure, collection, &sections);
    if (FAILED(status)) return status;
    std::optional<std::size_t> found;
    status = sections->Find(sizes, &found);
    if (FAILED(status)) return status;
    if (found) {
      element.sectionIndex = *found;
      return S_OK;
    }
    return AddSection<Section>(*sections, element, [&](Section& made) {
      made.kind = sizes.kind;
      made.name = SectionName(sizes);
      made.changes = sections->Changes();
      std::size_t i = 0;
      for (double* const field : made.Fields()) *field = sizes.values[i++];
    });
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
    CoGeoSections* sections = nullptr;
    HRESULT status = GetSections(*this, collection, &sections);
    if (SUCCEEDED(status)) status = sections->CheckKinds();
    if (FAILED(status)) return status;
    return AddSection<CoGeoSectionProfile>(*sections, element, [&](CoGeoSectionProfile& made) {
      made.kind = SECTION_PROFILE;
      made.name = ProfileName(polygon.size(), Polygon2(polygon, kPolygonTolerance).BoundingBox());
    });
  });
}

}  // namespace KelIFC
