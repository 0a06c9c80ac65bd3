#ifndef KELIFC_IMPORT_SHAPE_READ_PLACEMENTS_H_
#define KELIFC_IMPORT_SHAPE_READ_PLACEMENTS_H_

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// Reads chains of placements. Each placement that others are relative to is read once and kept,
/// because most products of a model share them. So the model must not change during the reader's
/// life.
template <class Release>
class PlacementReader {
 public:
  /// `scale` is the factor from the length unit of the file to metres.
  explicit PlacementReader(double scale) : scale(scale) {}

  /// Returns the chain of a placement. The reader owns it, and the next call overwrites it.
  ///
  /// The chain ends before a placement that is null, not local, or already in the chain: a cycle is
  /// followed once. A placement in the plane has no transform and is skipped. A chain of more than
  /// kLongestChain placements is collapsed into one transform; so is a cycle of that length. This
  /// limits the cost of each product, however long the chains in the file are.
  const PlacementChain& Read(const typename Release::IfcObjectPlacement* placement);

  static constexpr std::size_t kLongestChain = 64;

 private:
  using Local = typename Release::IfcLocalPlacement;

  struct Link {
    bool hasFrame = false;
    Isometry3 frame;
    const Local* next = nullptr;
    std::size_t lastWalk = 0;  // the number of the last walk that visited this link
    bool hasWhole = false;
    Isometry3 whole;  // the product of all transforms of the chain that begins here
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
