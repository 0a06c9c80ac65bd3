// Prints the whole structure of a model.
#include <kelifc/kelifc.h>

#include <cstdio>

using KelIFC::ComPtr, KelIFC::Get, KelIFC::Items;

void Print(const ComPtr<IGeoPoint>& point) {
  const auto [x, y, z] = KelIFC::GetXYZ(point);
  std::printf(" (%g %g %g)", x, y, z);
}
void Print(const ComPtr<IGeoFace>& face) {
  std::printf("\n  face");
  for (const LONG number : Items(face, &IGeoFace::get_Numbers)) std::printf(" %d", int(number));
}
void Print(const char* kind, const ComPtr<IGeoObject>& element) {
  std::printf(
      "\n%s \"%s\" of section \"%s\" in storey %d:", kind,
      Get(element, &IGeoObject::get_Name).c_str(),
      Get(element, &IGeoObject::get_SectionName).c_str(),
      KelIFC::TryGet(element, &IGeoObject::get_StoreyNumber).value_or(KelIFC::kNoStoreyNumber));
  if (const auto polyline = element.As<IGeoPolyline>())
    for (const auto& point : Items(polyline, &IGeoPolyline::get_Points)) Print(point);
}

int main(int argc, char** argv) try {
  if (argc < 2) return 2;
  const auto [server, all] = KelIFC::OpenModel(argv[1]);
  std::printf("Structure of %s", argv[1]);
  for (const auto& storey : Items(all, &IGeoStructure::get_Storeys)) {
    std::printf("\nStorey %d \"%s\" at %g", Get(storey, &IGeoStorey::get_Number),
                Get(storey, &IGeoStorey::get_Name).c_str(), Get(storey, &IGeoStorey::get_Level));
  }
  for (const auto& column : Items(all, &IGeoStructure::get_Columns)) Print("Column", column);
  for (const auto& beam : Items(all, &IGeoStructure::get_Beams)) {
    Print("Beam", beam);
    const auto boundary = Get(beam, &IGeoBeam::get_BRep);
    for (const auto& point : Items(boundary, &IGeoBRep::get_Points)) Print(point);
    for (const auto& face : Items(boundary, &IGeoBRep::get_Faces)) Print(face);
  }
  for (const auto& wall : Items(all, &IGeoStructure::get_Walls)) {
    Print("Wall", wall);
    for (const auto& window : Items(wall, &IGeoWall::get_Windows)) Print("  Window", window);
    for (const auto& door : Items(wall, &IGeoWall::get_Doors)) Print("  Door", door);
  }
  for (const auto& plate : Items(all, &IGeoStructure::get_Plates)) {
    Print("Plate", plate);
    for (const auto& hole : Items(plate, &IGeoPlate::get_Holes)) Print("  Hole", hole);
  }
  for (const auto& foot : Items(all, &IGeoStructure::get_Foots)) {
    Print("Foot", foot);
    Print(foot.As<IGeoPoint>());
  }
  // Sections are made while elements are converted, so they come last.
  for (const auto& section : Items(all, &IGeoStructure::get_Sections)) {
    std::printf("\nSection \"%s\" of kind %d", Get(section, &IGeoSection::get_Name).c_str(),
                int(Get(section, &IGeoSection::get_Kind)));
  }
  std::printf("\n");
} catch (const KelIFC::StatusError& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
