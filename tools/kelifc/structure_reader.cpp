#include "tools/kelifc/structure_reader.h"

#include <optional>

#include "tools/kelifc/object_model.h"

namespace command {
namespace {

using KelIFC::ComPtr;

// The number of a storey, or of an element's storey, where there is none.
constexpr SHORT kNoStorey = 32767;

// Kinds of sections; a profile has no sizes.
constexpr LONG kRectangle = 1;
constexpr LONG kCircle = 2;
constexpr LONG kT = 3;
constexpr LONG kThick = 9;

Storey ReadStorey(IGeoStorey& storey) {
  return {Get(storey, &IGeoStorey::get_Number), GetText(storey, &IGeoStorey::get_Name),
          Get(storey, &IGeoStorey::get_Level), Get(storey, &IGeoStorey::get_Height)};
}

Point ReadPoint(IGeoPoint& point) {
  Point place{};
  Check(point.GetXYZ(&place[0], &place[1], &place[2]));
  return place;
}

std::optional<int> ReadStoreyNumber(IGeoObject& object) {
  SHORT number = kNoStorey;
  if (FAILED(object.get_StoreyNumber(&number)) || number == kNoStorey) return std::nullopt;
  return number;
}

/// What an element's own interface tells, without its points.
template <class Interface>
Element ReadIdentity(Interface& object) {
  Element element;
  element.name = GetText(object, &Interface::get_Name);
  element.guid = GetText(object, &Interface::get_GUID);
  element.section = GetText(object, &Interface::get_SectionName);
  element.storey = ReadStoreyNumber(object);
  return element;
}

template <class Interface>
Element ReadElement(Interface& object) {
  Element element = ReadIdentity(object);
  const ComPtr<IGeoPolyline> polyline = Query<IGeoPolyline>(object);
  element.points = ReadAll(*polyline, &IGeoPolyline::get_Points, &IGeoPoints::Item, ReadPoint);
  return element;
}

std::vector<long> ReadFace(IGeoFace& face) {
  const ComPtr<IGeoNumbers> numbers = GetObject(face, &IGeoFace::get_Numbers);
  const LONG count = Get(*numbers, &IGeoNumbers::Count);
  std::vector<long> all;
  for (LONG i = 1; i <= count; ++i) {
    LONG number = 0;
    Check(numbers->Item(i, &number));
    all.push_back(number);
  }
  return all;
}

Beam ReadBeam(IGeoBeam& object) {
  Beam beam{ReadElement(object), {}};
  const ComPtr<IGeoBRep> boundary = GetObject(object, &IGeoBeam::get_BRep);
  beam.boundary.points = ReadAll(*boundary, &IGeoBRep::get_Points, &IGeoPoints::Item, ReadPoint);
  beam.boundary.faces = ReadAll(*boundary, &IGeoBRep::get_Faces, &IGeoFaces::Item, ReadFace);
  return beam;
}

Wall ReadWall(IGeoWall& object) {
  Wall wall{ReadElement(object), false, {}, {}};
  wall.closed = Get(*Query<IGeoPolyline>(object), &IGeoPolyline::get_Closed) != VARIANT_FALSE;
  wall.windows =
      ReadAll(object, &IGeoWall::get_Windows, &IGeoWindows::Item, ReadElement<IGeoWindow>);
  wall.doors = ReadAll(object, &IGeoWall::get_Doors, &IGeoDoors::Item, ReadElement<IGeoDoor>);
  return wall;
}

Plate ReadPlate(IGeoPlate& object) {
  Plate plate{ReadElement(object), {}};
  plate.holes = ReadAll(object, &IGeoPlate::get_Holes, &IGeoHoles::Item, ReadElement<IGeoHole>);
  return plate;
}

Foot ReadFoot(IGeoFoot& object) {
  Foot foot{ReadIdentity(object)};
  foot.points.push_back(ReadPoint(*Query<IGeoPoint>(object)));
  return foot;
}

/// Adds the dimensions that one section interface gives, named as in the output.
template <class Interface>
struct Size {
  const char* name;
  HRESULT (Interface::*getter)(double*);
};

template <class Interface>
void ReadSizes(IGeoSection& object, std::initializer_list<Size<Interface>> sizes,
               Section& section) {
  const ComPtr<Interface> own = Query<Interface>(object);
  for (const auto& [name, getter] : sizes) section.sizes.emplace_back(name, Get(*own, getter));
}

Section ReadSection(IGeoSection& object) {
  Section section{GetText(object, &IGeoSection::get_Name), Get(object, &IGeoSection::get_Kind), {}};
  switch (section.kind) {
    case kRectangle:
      ReadSizes<IGeoSectionR>(
          object, {{"width", &IGeoSectionR::get_Width}, {"height", &IGeoSectionR::get_Height}},
          section);
      break;
    case kCircle:
      ReadSizes<IGeoSectionC>(object, {{"diameter", &IGeoSectionC::get_Diameter}}, section);
      break;
    case kT:
      ReadSizes<IGeoSectionT>(object,
                              {{"height", &IGeoSectionT::get_Height},
                               {"flangeThickness", &IGeoSectionT::get_FlangeThickness},
                               {"webWidth", &IGeoSectionT::get_WebWidth},
                               {"flangeWidth", &IGeoSectionT::get_FlangeWidth}},
                              section);
      break;
    case kThick:
      ReadSizes<IGeoSectionThick>(object, {{"thickness", &IGeoSectionThick::get_Thickness}},
                                  section);
      break;
    default:
      break;
  }
  return section;
}

}  // namespace

Structure ReadStructure(IGeoStructure& structure) {
  Structure read;
  read.storeys = ReadAll(structure, &IGeoStructure::get_Storeys, &IGeoStoreys::Item, ReadStorey);
  read.columns =
      ReadAll(structure, &IGeoStructure::get_Columns, &IGeoColumns::Item, ReadElement<IGeoColumn>);
  read.beams = ReadAll(structure, &IGeoStructure::get_Beams, &IGeoBeams::Item, ReadBeam);
  read.walls = ReadAll(structure, &IGeoStructure::get_Walls, &IGeoWalls::Item, ReadWall);
  read.plates = ReadAll(structure, &IGeoStructure::get_Plates, &IGeoPlates::Item, ReadPlate);
  read.foots = ReadAll(structure, &IGeoStructure::get_Foots, &IGeoFoots::Item, ReadFoot);
  read.sections =
      ReadAll(structure, &IGeoStructure::get_Sections, &IGeoSections::ItemByIndex, ReadSection);
  return read;
}

}  // namespace command
