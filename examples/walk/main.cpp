// Prints the whole structure of a model.
#include <kelifc/kelifc.h>

#include <cstdio>

using KelIFC::ComPtr, KelIFC::Get, KelIFC::Items;

void Print(const ComPtr<IGeoPoint>& point) {
  const auto [x, y, z] = KelIFC::GetXYZ(point);
  std::printf(" (%g %g %g)", x, y, z);
}
void Print(const ComPtr<IGeoBRep>& boundary) {
  for (const auto& point : Items(boundary, &IGeoBRep::get_Points)) Print(point);
  for (const auto& face : Items(boundary, &IGeoBRep::get_Faces)) {
    std::printf("\n  face");
    for (const LONG number : Items(face, &IGeoFace::get_Numbers)) std::printf(" %d", int(number));
  }
}
void Print(const char* indent, const KelIFC::NamedElement& element) {
  const auto& [kind, object] = element;
  const auto storey = KelIFC::TryGet(object, &IGeoObject::get_StoreyNumber);
  std::printf("\n%s%s \"%s\" of section \"%s\" in storey %d:", indent, kind,
              Get(object, &IGeoObject::get_Name).c_str(),
              Get(object, &IGeoObject::get_SectionName).c_str(),
              storey.value_or(KelIFC::kNoStoreyNumber));
  if (const auto polyline = object.As<IGeoPolyline>()) {
    for (const auto& point : Items(polyline, &IGeoPolyline::get_Points)) Print(point);
  } else {
    Print(object.As<IGeoPoint>());
  }
  if (const auto beam = object.As<IGeoBeam>()) Print(Get(beam, &IGeoBeam::get_BRep));
  for (const auto& opening : KelIFC::GetOpenings(object)) Print("  ", opening);
}

int main(int argc, char** argv) try {
  if (argc < 2) return 2;
  const auto [server, all] = KelIFC::OpenModel(argv[1]);
  std::printf("Structure of %s", argv[1]);
  for (const auto& storey : Items(all, &IGeoStructure::get_Storeys))
    std::printf("\nStorey %d \"%s\" at %g", Get(storey, &IGeoStorey::get_Number),
                Get(storey, &IGeoStorey::get_Name).c_str(), Get(storey, &IGeoStorey::get_Level));
  for (const auto& element : KelIFC::GetElements(all)) Print("", element);
  // Sections are made while elements are converted, so they come last.
  for (const auto& section : Items(all, &IGeoStructure::get_Sections))
    std::printf("\nSection \"%s\" of kind %d", Get(section, &IGeoSection::get_Name).c_str(),
                int(Get(section, &IGeoSection::get_Kind)));
  std::printf("\n");
} catch (const KelIFC::StatusError& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
