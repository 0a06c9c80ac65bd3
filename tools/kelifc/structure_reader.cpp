#include "tools/kelifc/structure_reader.h"

#include <cstdint>
#include <initializer_list>
#include <optional>

#include "kelifc/kelifc.h"

#include "tools/kelifc/structure_collections.h"

namespace command {
namespace {

using KelIFC::ComPtr;
using KelIFC::Get;
using KelIFC::Items;
using KelIFC::Query;

/// The results of `read` for the items of a collection, in their order.
template <class Collection, class Read>
auto ReadAll(const KelIFC::ItemRange<Collection>& items, Read read) {
  std::vector<decltype(read(*items.begin()))> all;
  all.reserve(items.size());
  for (const auto& item : items) all.push_back(read(item));
  return all;
}

Point ReadPoint(const ComPtr<IGeoPoint>& point) { return KelIFC::GetXYZ(point); }

std::optional<int> ReadStoreyNumber(const ComPtr<IGeoObject>& object) {
  const auto number = KelIFC::TryGet(object, &IGeoObject::get_StoreyNumber);
  if (!number || *number == KelIFC::kNoStoreyNumber) return std::nullopt;
  return *number;
}

/// Reads an element without its points.
template <class Interface>
Element ReadIdentity(const ComPtr<Interface>& object) {
  return {Get(object, &Interface::get_Name),
          Get(object, &Interface::get_GUID),
          Get(object, &Interface::get_SectionName),
          ReadStoreyNumber(object),
          {}};
}

template <class Interface>
Element ReadElement(const ComPtr<Interface>& object) {
  Element element = ReadIdentity(object);
  const auto polyline = Query<IGeoPolyline>(object);
  element.points = ReadAll(Items(polyline, &IGeoPolyline::get_Points), ReadPoint);
  return element;
}

std::vector<long> ReadFace(const ComPtr<IGeoFace>& face) {
  const auto numbers = Items(face, &IGeoFace::get_Numbers);
  return {numbers.begin(), numbers.end()};
}

/// A size of a section: its name in the output, and the operation that returns it.
template <class Interface>
struct Size {
  const char* name;
  HRESULT (Interface::*getter)(double*);
};

template <class Interface>
void ReadSizes(const ComPtr<IGeoSection>& object, std::initializer_list<Size<Interface>> sizes,
               Section& section) {
  const auto own = Query<Interface>(object);
  for (const auto& [name, getter] : sizes) section.sizes.emplace_back(name, Get(own, getter));
}

}  // namespace

Storey ReadStorey(const ComPtr<IGeoStorey>& object) {
  return {Get(object, &IGeoStorey::get_Number), Get(object, &IGeoStorey::get_Name),
          Get(object, &IGeoStorey::get_Level), Get(object, &IGeoStorey::get_Height)};
}

Element ReadColumn(const ComPtr<IGeoColumn>& object) { return ReadElement(object); }

Beam ReadBeam(const ComPtr<IGeoBeam>& object) {
  Beam beam{ReadElement(object), {}};
  const auto boundary = Get(object, &IGeoBeam::get_BRep);
  beam.boundary.points = ReadAll(Items(boundary, &IGeoBRep::get_Points), ReadPoint);
  beam.boundary.faces = ReadAll(Items(boundary, &IGeoBRep::get_Faces), ReadFace);
  return beam;
}

Wall ReadWall(const ComPtr<IGeoWall>& object) {
  Wall wall{ReadElement(object), false, {}, {}};
  wall.closed = Get(Query<IGeoPolyline>(object), &IGeoPolyline::get_Closed) != VARIANT_FALSE;
  wall.windows = ReadAll(Items(object, &IGeoWall::get_Windows), ReadElement<IGeoWindow>);
  wall.doors = ReadAll(Items(object, &IGeoWall::get_Doors), ReadElement<IGeoDoor>);
  return wall;
}

Plate ReadPlate(const ComPtr<IGeoPlate>& object) {
  Plate plate{ReadElement(object), {}};
  plate.holes = ReadAll(Items(object, &IGeoPlate::get_Holes), ReadElement<IGeoHole>);
  return plate;
}

Foot ReadFoot(const ComPtr<IGeoFoot>& object) {
  Foot foot{ReadIdentity(object)};
  foot.points.push_back(ReadPoint(Query<IGeoPoint>(object)));
  return foot;
}

Section ReadSection(const ComPtr<IGeoSection>& object) {
  Section section{Get(object, &IGeoSection::get_Name), Get(object, &IGeoSection::get_Kind), {}};
  switch (section.kind) {
    case KelIFC::SECTION_R:
      ReadSizes<IGeoSectionR>(
          object, {{"width", &IGeoSectionR::get_Width}, {"height", &IGeoSectionR::get_Height}},
          section);
      break;
    case KelIFC::SECTION_C:
      ReadSizes<IGeoSectionC>(object, {{"diameter", &IGeoSectionC::get_Diameter}}, section);
      break;
    case KelIFC::SECTION_T:
      ReadSizes<IGeoSectionT>(object,
                              {{"height", &IGeoSectionT::get_Height},
                               {"flangeThickness", &IGeoSectionT::get_FlangeThickness},
                               {"webWidth", &IGeoSectionT::get_WebWidth},
                               {"flangeWidth", &IGeoSectionT::get_FlangeWidth}},
                              section);
      break;
    case KelIFC::SECTION_THICK:
      ReadSizes<IGeoSectionThick>(object, {{"thickness", &IGeoSectionThick::get_Thickness}},
                                  section);
      break;
    default:
      break;
  }
  return section;
}

void ConvertCollections(const ComPtr<IGeoStructure>& structure,
                        const KelIFC::ProgressHandler& progress) {
  std::uint64_t count = 0;
  VisitCollections([&count](auto&&...) { ++count; });
  std::uint64_t done = 0;
  const auto reach = [&] {
    if (progress && !progress(done, count)) throw KelIFC::ReadingCancelled();
  };
  VisitCollections([&](auto&& /*key*/, auto getter, auto&&...) {
    reach();
    Get(structure, getter);
    ++done;
  });
  reach();
}

Structure ReadStructure(const ComPtr<IGeoStructure>& structure) {
  Structure all;
  VisitCollections([&](auto&& /*key*/, auto getter, auto readItem, auto list) {
    all.*list = ReadAll(Items(structure, getter), readItem);
  });
  return all;
}

}  // namespace command
