// Loads a model through the object model's interfaces and walks its whole structure.
#include <kelifc/kelifc.h>

#include <cstdio>
#include <string>

using KelIFC::ComPtr;

/// Reads a number or a text; zero or "" if the operation fails.
template <class Object, class Base, class Value>
Value Read(Object& object, HRESULT (Base::*get)(Value*)) {
  Value value = {};
  (object.*get)(&value);
  return value;
}
template <class Object, class Base>
std::string Text(Object& object, HRESULT (Base::*get)(BSTR*)) {
  KelIFC::Bstr text;
  (object.*get)(text.Put());
  return KelIFC::NarrowText(text.Get());
}

/// Hands each item of a collection to `use`; Item or ItemByIndex ends behind the last one.
template <class Object, class Base, class Collection, class Item, class Use>
void ForEach(Object& object, HRESULT (Base::*get)(Collection**),
             HRESULT (Collection::*at)(LONG, Item**), Use use) {
  ComPtr<Collection> all;
  if (FAILED((object.*get)(all.Put()))) return;
  ComPtr<Item> item;
  for (LONG i = 1; SUCCEEDED(((*all).*at)(i, item.Put())); ++i) use(*item);
}

void PrintPoint(IGeoPoint& point) {
  double x = 0.0, y = 0.0, z = 0.0;
  if (SUCCEEDED(point.GetXYZ(&x, &y, &z))) std::printf(" (%g %g %g)", x, y, z);
}
void PrintFace(IGeoFace& face) {
  ComPtr<IGeoNumbers> numbers;
  LONG number = 0;
  if (FAILED(face.get_Numbers(numbers.Put()))) return;
  for (LONG i = 1; SUCCEEDED(numbers->Item(i, &number)); ++i)
    std::printf(i == 1 ? "\n  face %d" : ", %d", static_cast<int>(number));
}

/// Prints what all elements have, and then where this one is.
void PrintElement(const char* kind, IGeoObject& element) {
  std::printf("%s \"%s\" of section \"%s\" in storey %d:", kind,
              Text(element, &IGeoObject::get_Name).c_str(),
              Text(element, &IGeoObject::get_SectionName).c_str(),
              Read(element, &IGeoObject::get_StoreyNumber));
  const ComPtr<IGeoObject> self(&element);
  if (const auto point = self.As<IGeoPoint>()) PrintPoint(*point);
  if (const auto line = self.As<IGeoPolyline>())
    ForEach(*line, &IGeoPolyline::get_Points, &IGeoPoints::Item, PrintPoint);
  if (const auto beam = self.As<IGeoBeam>()) {
    ComPtr<IGeoBRep> boundary;
    if (FAILED(beam->get_BRep(boundary.Put()))) return;
    ForEach(*boundary, &IGeoBRep::get_Points, &IGeoPoints::Item, PrintPoint);
    ForEach(*boundary, &IGeoBRep::get_Faces, &IGeoFaces::Item, PrintFace);
  }
  std::printf("\n");
}

void PrintStructure(IGeoStructure& all) {
  const auto print = [](const char* kind) {
    return [kind](IGeoObject& element) { PrintElement(kind, element); };
  };
  ForEach(all, &IGeoStructure::get_Storeys, &IGeoStoreys::Item, [](IGeoStorey& storey) {
    std::printf("Storey %d \"%s\" at %g\n", Read(storey, &IGeoStorey::get_Number),
                Text(storey, &IGeoStorey::get_Name).c_str(), Read(storey, &IGeoStorey::get_Level));
  });
  ForEach(all, &IGeoStructure::get_Columns, &IGeoColumns::Item, print("Column"));
  ForEach(all, &IGeoStructure::get_Beams, &IGeoBeams::Item, print("Beam"));
  ForEach(all, &IGeoStructure::get_Walls, &IGeoWalls::Item, [&](IGeoWall& wall) {
    PrintElement("Wall", wall);
    ForEach(wall, &IGeoWall::get_Windows, &IGeoWindows::Item, print("  Window"));
    ForEach(wall, &IGeoWall::get_Doors, &IGeoDoors::Item, print("  Door"));
  });
  ForEach(all, &IGeoStructure::get_Plates, &IGeoPlates::Item, [&](IGeoPlate& plate) {
    PrintElement("Plate", plate);
    ForEach(plate, &IGeoPlate::get_Holes, &IGeoHoles::Item, print("  Hole"));
  });
  ForEach(all, &IGeoStructure::get_Foots, &IGeoFoots::Item, print("Foot"));
  // The conversions above have made the sections, so these come last.
  ForEach(all, &IGeoStructure::get_Sections, &IGeoSections::ItemByIndex, [](IGeoSection& section) {
    std::printf("Section \"%s\" of kind %d\n", Text(section, &IGeoSection::get_Name).c_str(),
                static_cast<int>(Read(section, &IGeoSection::get_Kind)));
  });
}

int main(int argc, char** argv) {
  ComPtr<IIFCServer> server;
  ComPtr<IGeoStructure> structure;
  CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, KelIFC::IidOf<IIFCServer>(),
                   reinterpret_cast<void**>(server.Put()));
  if (argc < 2 || !server) return 2;
  if (FAILED(server->Load(KelIFC::Bstr(KelIFC::WidePath(argv[1])).Get()))) return 1;
  if (FAILED(server->get_Structure(structure.Put()))) return 1;
  PrintStructure(*structure);
}
