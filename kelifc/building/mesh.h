#ifndef KELIFC_BUILDING_MESH_H_
#define KELIFC_BUILDING_MESH_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// A boundary of plane faces. All faces share one list of points. A face is an outer loop and the
/// loops of its holes. A loop is a list of indices of points; the first one is not repeated. Seen
/// from outside, the outer loop is counter-clockwise and the holes are clockwise.
///
/// The loops of all faces are in one array, so a mesh of a million faces needs only four arrays.
class Mesh {
 public:
  /// The index of a point in `points`.
  using Index = std::uint32_t;

  /// The indices of the points of a loop. The mesh owns them; they are valid until it changes.
  struct Loop {
    const Index* first = nullptr;  ///< the first index; null in a default-constructed loop
    std::size_t count = 0;         ///< the number of indices

    /// The first index.
    const Index* begin() const { return first; }
    /// The place after the last index.
    const Index* end() const { return first + count; }
    /// The number of indices.
    std::size_t size() const { return count; }
    /// The index at a position, which must be less than size().
    Index operator[](std::size_t i) const { return first[i]; }
  };

  /// The points of all loops, in metres. Some may belong to no loop.
  std::vector<Point3> points;

  /// Begins a new face. The loops that follow belong to it; the first is its outer loop.
  void BeginFace() { faceStarts.push_back(static_cast<Index>(loopStarts.size())); }

  /// Adds a loop to the face that was begun last and copies its indices. BeginFace must have been
  /// called. Each index must be less than the number of points when the mesh is used.
  void AddLoop(const Index* first, std::size_t count) {
    loopStarts.push_back(static_cast<Index>(indices.size()));
    indices.insert(indices.end(), first, first + count);
  }

  /// Adds a loop to the face that was begun last, as the function above does.
  void AddLoop(const std::vector<Index>& loop) { AddLoop(loop.data(), loop.size()); }

  /// Adds a face without holes.
  void AddFace(const std::vector<Index>& loop) {
    BeginFace();
    AddLoop(loop);
  }

  /// The number of faces.
  std::size_t FaceCount() const { return faceStarts.size(); }

  /// The number of the loops of all faces.
  std::size_t LoopCount() const { return loopStarts.size(); }

  /// The number of loops of a face: the number of its holes plus 1. `face` must be less than
  /// FaceCount().
  std::size_t LoopCount(std::size_t face) const {
    const std::size_t end = face + 1 < faceStarts.size() ? faceStarts[face + 1] : loopStarts.size();
    return end - faceStarts[face];
  }

  /// A loop of a face. Loop 0 is the outer one. `face` must be less than FaceCount(), and `loop`
  /// less than LoopCount(face).
  Loop LoopOf(std::size_t face, std::size_t loop) const {
    const std::size_t at = faceStarts[face] + loop;
    const std::size_t end = at + 1 < loopStarts.size() ? loopStarts[at + 1] : indices.size();
    return {indices.data() + loopStarts[at], end - loopStarts[at]};
  }

  /// True if there are no faces.
  bool IsEmpty() const { return faceStarts.empty(); }

 private:
  std::vector<Index> indices;
  std::vector<Index> loopStarts;  // positions in indices
  std::vector<Index> faceStarts;  // positions in loopStarts
};

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_MESH_H_
