#ifndef KELIFC_BUILDING_MESH_H_
#define KELIFC_BUILDING_MESH_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// A boundary of plane faces. All faces share one list of points; a face is an outer loop and the
/// loops of its holes; a loop is a list of indices of points, the first one not repeated. The outer
/// loop is counter-clockwise if one looks at the face from outside, the holes are clockwise.
///
/// The loops of all faces are in one array, so that a mesh of a million faces takes four
/// allocations.
class Mesh {
 public:
  using Index = std::uint32_t;

  /// The indices of the points of a loop. It is valid until the mesh changes.
  struct Loop {
    const Index* first = nullptr;
    std::size_t count = 0;

    const Index* begin() const { return first; }
    const Index* end() const { return first + count; }
    std::size_t size() const { return count; }
    Index operator[](std::size_t i) const { return first[i]; }
  };

  std::vector<Point3> points;

  /// Begins a new face. The loops that follow belong to it; the first is its outer loop.
  void BeginFace() { faceStarts.push_back(static_cast<Index>(loopStarts.size())); }

  /// Adds a loop to the face that was begun last. All indices must be smaller than the number of
  /// points.
  void AddLoop(const Index* first, std::size_t count) {
    loopStarts.push_back(static_cast<Index>(indices.size()));
    indices.insert(indices.end(), first, first + count);
  }
  void AddLoop(const std::vector<Index>& loop) { AddLoop(loop.data(), loop.size()); }

  /// Adds a face without holes.
  void AddFace(const std::vector<Index>& loop) {
    BeginFace();
    AddLoop(loop);
  }

  std::size_t FaceCount() const { return faceStarts.size(); }
  std::size_t LoopCount() const { return loopStarts.size(); }

  /// The number of loops of a face: 1 and the number of its holes.
  std::size_t LoopCount(std::size_t face) const {
    const std::size_t end = face + 1 < faceStarts.size() ? faceStarts[face + 1] : loopStarts.size();
    return end - faceStarts[face];
  }

  /// A loop of a face; loop 0 is the outer one.
  Loop LoopOf(std::size_t face, std::size_t loop) const {
    const std::size_t at = faceStarts[face] + loop;
    const std::size_t end = at + 1 < loopStarts.size() ? loopStarts[at + 1] : indices.size();
    return {indices.data() + loopStarts[at], end - loopStarts[at]};
  }

  bool IsEmpty() const { return faceStarts.empty(); }

 private:
  std::vector<Index> indices;
  std::vector<Index> loopStarts;  // in indices
  std::vector<Index> faceStarts;  // in loopStarts
};

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_MESH_H_
