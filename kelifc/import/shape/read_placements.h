#ifndef KELIFC_IMPORT_SHAPE_READ_PLACEMENTS_H_
#define KELIFC_IMPORT_SHAPE_READ_PLACEMENTS_H_

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// Reads chains of placements. The products of a model share most of them, so each placement that
/// others are relative to is read once. The model must not change meanwhile.
template <class Release>
class PlacementReader {
 public:
  /// `scale` is the factor from lengths of the file to metres.
  explicit PlacementReader(double scale) : scale(scale) {}

  /// The chain of a placement, valid until the next call. It ends at a placement that is missing or
  /// not local, and at one that it has met already. A placement in the plane has no frame and is
  /// left out. A chain of more than kLongestChain placements comes as one frame that does the same,
  /// so that no file makes the chains of all its products cost more than a fixed number of steps
  /// each.
  const PlacementChain& Read(const typename Release::IfcObjectPlacement* placement);

  static constexpr std::size_t kLongestChain = 64;

 private:
  using Local = typename Release::IfcLocalPlacement;

  struct Link {
    bool hasFrame = false;
    Isometry3 frame;
    const Local* next = nullptr;
    std::size_t lastWalk = 0;  // the walk that met this link last
    bool hasWhole = false;
    Isometry3 whole;  // the chain that begins here, as one frame
  };

  using Path = std::vector<Link*>;

  Link ReadLink(const Local& placement) const;
  Link* LinkOf(const Local* placement);
  Isometry3 WholeOf(const Local* placement);
  static void CloseRing(const Path& path, std::size_t first);

  double scale;
  std::unordered_map<const Local*, Link> links;
  std::size_t walk = 0;
  PlacementChain chain;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_READ_PLACEMENTS_H_
