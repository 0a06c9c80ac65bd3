#include "kelifc/building/build/idealise_loft.h"

namespace KelIFC::building::idealising {
namespace {

void AddCap(Mesh& mesh, const std::vector<std::size_t>& sizes, std::size_t first, bool isReversed) {
  mesh.BeginFace();
  std::vector<Mesh::Index> loop;
  for (const std::size_t size : sizes) {
    loop.resize(size);
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t at = isReversed ? size - 1 - i : i;
      loop[i] = static_cast<Mesh::Index>(first + at);
    }
    mesh.AddLoop(loop);
    first += size;
  }
}

// The faces between two stations. Where sides are not plane they are cut into triangles.
void AddSides(Mesh& mesh, const std::vector<std::size_t>& sizes, std::size_t from, std::size_t to,
              bool inTriangles) {
  for (const std::size_t size : sizes) {
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t next = (i + 1) % size;
      const auto a = static_cast<Mesh::Index>(from + i);
      const auto b = static_cast<Mesh::Index>(from + next);
      const auto c = static_cast<Mesh::Index>(to + next);
      const auto d = static_cast<Mesh::Index>(to + i);
      const Mesh::Index corners[] = {a, b, c, d, a};
      mesh.BeginFace();
      mesh.AddLoop(corners, inTriangles ? 3 : 4);
      if (!inTriangles) continue;
      mesh.BeginFace();
      mesh.AddLoop(corners + 2, 3);
    }
    from += size;
    to += size;
  }
}

}  // namespace

std::vector<std::size_t> LoopSizesOf(const BuildingProfile& profile) {
  std::vector<std::size_t> sizes{profile.outline.size()};
  for (const Outline& hole : profile.holes) sizes.push_back(hole.size());
  return sizes;
}

Mesh Loft(const std::vector<std::size_t>& sizes, const std::vector<Station>& stations,
          bool inTriangles) {
  Mesh mesh;
  if (stations.size() < 2 || stations[0].size() < 3) return mesh;
  const std::size_t count = stations[0].size();
  for (const Station& station : stations) {
    mesh.points.insert(mesh.points.end(), station.begin(), station.end());
  }
  AddCap(mesh, sizes, 0, true);
  for (std::size_t k = 0; k + 1 < stations.size(); ++k) {
    AddSides(mesh, sizes, k * count, (k + 1) * count, inTriangles);
  }
  AddCap(mesh, sizes, (stations.size() - 1) * count, false);
  return mesh;
}

Station PlaceSection(const BuildingProfile& profile, const Vector2& offset,
                     const PlaneFrame& frame) {
  Station station;
  const auto add = [&](const Outline& loop) {
    for (const Point2& p : loop) {
      station.push_back(Lift(frame, {p.x - offset.x, p.y - offset.y}));
    }
  };
  add(profile.outline);
  for (const Outline& hole : profile.holes) add(hole);
  return station;
}

}  // namespace KelIFC::building::idealising
