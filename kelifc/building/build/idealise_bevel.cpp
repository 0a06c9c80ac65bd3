#include "kelifc/building/build/idealise_bevel.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace KelIFC::building::idealising {
namespace {

// Larger outlines are not aligned, since that takes the square of the number of points.
constexpr std::size_t kMostAligned = 256;

// Edges that move by less from face to face are square, in metres.
constexpr double kSquareEdge = 1e-4;

Vector2 OutwardOf(const Outline& outline, std::size_t edge) {
  Vector2 along = outline[(edge + 1) % outline.size()] - outline[edge];
  Normalise(along);
  return {along.y, -along.x};
}

// How far each edge of a section has to move outwards to reach that of another one.
bool AddShifts(const Outline& middle, const Outline& near, std::vector<double>& shifts) {
  for (std::size_t i = 0; i < middle.size(); ++i) {
    const std::size_t next = (i + 1) % middle.size();
    const Vector2 outward = OutwardOf(middle, i);
    const double first = Dot(near[i] - middle[i], outward);
    const double second = Dot(near[next] - middle[next], outward);
    if (std::fabs(first - second) > kSquareEdge) return false;
    shifts[i] = std::max(shifts[i], first);
  }
  return true;
}

// How far each edge of the section in the middle has to move to contain those at the faces and
// beside the middle, where a rim may have its tip.
bool FindShifts(Boundary& boundary, const PlaneFrame& plane, const Outline& middle,
                const Span& span, double beside, std::vector<double>& shifts) {
  for (const double place : {beside, 0.5 - beside, 0.5 + beside, 1.0 - beside}) {
    std::optional<Section> near = SectionAt(boundary, plane, span.from + place * span.Length());
    if (!near || near->regionCount != 1 || !Align(middle, near->region.outer)) return false;
    if (!AddShifts(middle, near->region.outer, shifts)) return false;
  }
  return true;
}

// Moves the edges of an outline and cuts them with each other.
std::optional<Outline> MoveEdges(const Outline& outline, const std::vector<double>& shifts) {
  constexpr double kLeastTurn = 1e-3;
  Outline moved;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const std::size_t before = (i + outline.size() - 1) % outline.size();
    const Vector2 m = OutwardOf(outline, before);
    const Vector2 n = OutwardOf(outline, i);
    const double turn = Cross(m, n);
    if (std::fabs(turn) < kLeastTurn) {
      if (std::fabs(shifts[before] - shifts[i]) > kSquareEdge) return std::nullopt;
      moved.push_back(outline[i] + n * shifts[i]);
      continue;
    }
    // The point v with v m = shift before and v n = shift of this edge.
    const Vector2 v{(shifts[before] * n.y - shifts[i] * m.y) / turn,
                    (shifts[i] * m.x - shifts[before] * n.x) / turn};
    moved.push_back(outline[i] + v);
  }
  return moved;
}

}  // namespace

bool Align(const Outline& model, Outline& loop) {
  const std::size_t count = model.size();
  if (loop.size() != count || count > kMostAligned) return false;
  std::size_t best = 0;
  double least = 1e300;
  for (std::size_t shift = 0; shift < count; ++shift) {
    double sum = 0.0;
    for (std::size_t i = 0; i < count && sum < least; ++i) {
      const Vector2 v = loop[(i + shift) % count] - model[i];
      sum += Dot(v, v);
    }
    if (sum < least) {
      least = sum;
      best = shift;
    }
  }
  std::rotate(loop.begin(), loop.begin() + static_cast<std::ptrdiff_t>(best), loop.end());
  return true;
}

bool Align(const FlatRegion& model, FlatRegion& region) {
  if (model.holes.size() != region.holes.size() || !Align(model.outer, region.outer)) return false;
  for (std::size_t i = 0; i < model.holes.size(); ++i) {
    if (!Align(model.holes[i], region.holes[i])) return false;
  }
  return true;
}

std::optional<Outline> OutlineAroundBevels(Boundary& boundary, const PlaneFrame& plane,
                                           const Section& section, const Span& span,
                                           double beside) {
  std::vector<double> shifts(section.region.outer.size(), 0.0);
  if (!FindShifts(boundary, plane, section.region.outer, span, beside, shifts) ||
      *std::max_element(shifts.begin(), shifts.end()) < kSquareEdge) {
    return std::nullopt;
  }
  return MoveEdges(section.region.outer, shifts);
}

}  // namespace KelIFC::building::idealising
