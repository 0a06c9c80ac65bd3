#include "kelifc/import/shape/read_placements.h"

#include <algorithm>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/shape/read_values.h"

namespace KelIFC {

namespace {

/// Returns the transform that applies `first` and then `second`.
Isometry3 Compose(const Isometry3& first, const Isometry3& second) {
  Isometry3 both;
  both.xAxis = second.Apply(first.xAxis);
  both.yAxis = second.Apply(first.yAxis);
  both.zAxis = second.Apply(first.zAxis);
  both.translation = second.Apply(first.translation);
  return both;
}

}  // namespace

template <class Release>
typename PlacementReader<Release>::Link PlacementReader<Release>::ReadLink(
    const Local& placement) const {
  Link link;
  const auto* relative =
      CachedCast<typename Release::IfcAxis2Placement3D>(placement.GetRelativePlacement());
  if (relative != nullptr) {
    link.hasFrame = true;
    link.frame = FrameOf(relative, scale);
  }
  link.next = CachedCast<Local>(placement.GetPlacementRelTo());
  return link;
}

template <class Release>
typename PlacementReader<Release>::Link* PlacementReader<Release>::LinkOf(const Local* placement) {
  const auto [entry, isNew] = links.try_emplace(placement);
  if (isNew) entry->second = ReadLink(*placement);
  return &entry->second;
}

template <class Release>
const PlacementChain& PlacementReader<Release>::Read(
    const typename Release::IfcObjectPlacement* placement) {
  chain.clear();
  const auto* own = CachedCast<Local>(placement);
  if (own == nullptr) return chain;
  // It is not kept in `links`: other products rarely share a product's own placement.
  const Link first = ReadLink(*own);
  if (first.hasFrame) chain.push_back(first.frame);
  ++walk;
  std::size_t length = 1;
  for (const Local* at = first.next; at != nullptr && at != own;) {
    Link* const link = LinkOf(at);
    if (link->lastWalk == walk) break;
    if (++length > kLongestChain) {
      chain.assign(1, WholeOf(own));
      break;
    }
    link->lastWalk = walk;
    if (link->hasFrame) chain.push_back(link->frame);
    at = link->next;
  }
  return chain;
}

/// Sets `whole` of the links of a cycle, which are those of `path` from index `first` on. The chain
/// of each of these links goes round the cycle once.
template <class Release>
void PlacementReader<Release>::CloseRing(const Path& path, std::size_t first) {
  Isometry3 toEnd;
  for (std::size_t i = path.size(); i-- > first;) {
    if (path[i]->hasFrame) toEnd = Compose(path[i]->frame, toEnd);
    path[i]->whole = toEnd;
    path[i]->hasWhole = true;
  }
  Isometry3 fromStart;
  for (std::size_t i = first; i < path.size(); ++i) {
    path[i]->whole = Compose(path[i]->whole, fromStart);
    if (path[i]->hasFrame) fromStart = Compose(fromStart, path[i]->frame);
  }
}

template <class Release>
Isometry3 PlacementReader<Release>::WholeOf(const Local* placement) {
  ++walk;
  Path path;
  const Local* at = placement;
  Link* met = nullptr;
  while (at != nullptr && met == nullptr) {
    Link* const link = LinkOf(at);
    if (link->hasWhole || link->lastWalk == walk) {
      met = link;
    } else {
      link->lastWalk = walk;
      path.push_back(link);
      at = link->next;
    }
  }
  std::size_t open = path.size();
  if (met != nullptr && !met->hasWhole) {
    open = static_cast<std::size_t>(std::find(path.begin(), path.end(), met) - path.begin());
    CloseRing(path, open);
  }
  Isometry3 whole = met == nullptr ? Isometry3() : met->whole;
  while (open-- > 0) {
    Link& link = *path[open];
    if (link.hasFrame) whole = Compose(link.frame, whole);
    link.whole = whole;
    link.hasWhole = true;
  }
  return whole;
}

template class PlacementReader<Release2x>;
template class PlacementReader<Release2x2>;
template class PlacementReader<Release2x3>;

}  // namespace KelIFC
