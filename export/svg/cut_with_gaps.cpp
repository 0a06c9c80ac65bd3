#include "export/svg/cut_with_gaps.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

namespace KelIFC::exporting::svg {
namespace {

constexpr double kLeastLength = 1e-4;          // shorter pieces of lines are not drawn, in metres
constexpr double kLeastArea = 1e-6;            // smaller regions are not filled, in square metres
constexpr std::size_t kMostGaps = 500;         // of a cut; further openings are not drawn
constexpr std::size_t kMostPairs = 4'000'000;  // of an edge of a gap and an edge of a region

// A range of the parameter along an edge, from 0 to 1.
struct Span {
  double from = 0.0;
  double to = 1.0;
};

struct Box {
  Point2 min{1e300, 1e300};
  Point2 max{-1e300, -1e300};

  void Extend(const Point2& p) {
    min = {std::min(min.x, p.x), std::min(min.y, p.y)};
    max = {std::max(max.x, p.x), std::max(max.y, p.y)};
  }
  bool Meets(const Box& other) const {
    return min.x <= other.max.x && other.min.x <= max.x && min.y <= other.max.y &&
           other.min.y <= max.y;
  }
};

Box BoxOf(const Outline& outline) {
  Box box;
  for (const Point2& p : outline) box.Extend(p);
  return box;
}

Point2 At(const Point2& a, const Point2& b, double t) { return a + (b - a) * t; }

double AreaOf(const Outline& loop) {
  double sum = 0.0;
  for (std::size_t i = 2; i < loop.size(); ++i) {
    sum += Cross(loop[i - 1] - loop[0], loop[i] - loop[0]);
  }
  return 0.5 * sum;
}

// Calls visit(a, b) for each edge of a loop.
template <typename Visit>
void ForEachEdge(const Outline& loop, Visit visit) {
  for (std::size_t i = 0; i < loop.size(); ++i) visit(loop[i], loop[(i + 1) % loop.size()]);
}

// The part of an edge inside of a convex polygon. It is empty if `from` is not less than `to`.
Span InsideOf(const Outline& convex, const Point2& a, const Point2& b) {
  Span span;
  ForEachEdge(convex, [&](const Point2& p, const Point2& q) {
    const double atA = Cross(q - p, a - p);
    const double atB = Cross(q - p, b - p);
    if (atA < 0.0 && atB < 0.0) span.to = -1.0;
    if (atA < 0.0 && atB >= 0.0) span.from = std::max(span.from, atA / (atA - atB));
    if (atA >= 0.0 && atB < 0.0) span.to = std::min(span.to, atA / (atA - atB));
  });
  return span;
}

// What is left of a loop on the left side of a line, or on its right side.
Outline Clip(const Outline& loop, const Point2& p, const Point2& q, bool isLeft) {
  Outline result;
  const double sign = isLeft ? 1.0 : -1.0;
  ForEachEdge(loop, [&](const Point2& a, const Point2& b) {
    const double atA = sign * Cross(q - p, a - p);
    const double atB = sign * Cross(q - p, b - p);
    if (atA >= 0.0) result.push_back(a);
    if ((atA > 0.0 && atB < 0.0) || (atA < 0.0 && atB > 0.0)) {
      result.push_back(At(a, b, atA / (atA - atB)));
    }
  });
  return result;
}

using Loops = std::vector<Outline>;

Loops Clip(const Loops& loops, const Point2& p, const Point2& q, bool isLeft) {
  Loops result;
  double area = 0.0;
  for (const Outline& loop : loops) {
    Outline clipped = Clip(loop, p, q, isLeft);
    const double loopArea = AreaOf(clipped);
    if (std::abs(loopArea) < kLeastArea) continue;
    area += loopArea;
    result.push_back(std::move(clipped));
  }
  return area < kLeastArea ? Loops() : result;
}

// Adds what is left of a region outside of a convex polygon: a piece for each of its edges.
void TakeOut(Loops region, const Outline& convex, std::vector<Loops>& pieces) {
  ForEachEdge(convex, [&](const Point2& p, const Point2& q) {
    if (region.empty()) return;
    Loops outside = Clip(region, p, q, false);
    region = Clip(region, p, q, true);
    if (!outside.empty()) pieces.push_back(std::move(outside));
  });
}

// A cut from which gaps are taken out.
class Interruption {
 public:
  Interruption(const std::vector<CutRegion>& cut, const std::vector<Gap>& someGaps)
      : gaps(someGaps) {
    std::size_t edges = 1;
    for (const CutRegion& region : cut) {
      Loops loops{region.outer};
      loops.insert(loops.end(), region.holes.begin(), region.holes.end());
      for (const Outline& loop : loops) edges += loop.size();
      regions.push_back(std::move(loops));
    }
    LimitGaps(edges);
    for (const Gap& gap : gaps) {
      boxes.push_back(BoxOf(gap.outline));
      result.gaps.push_back({gap.opening, {}, {}});
    }
    ends.resize(gaps.size());
  }

  CutWithGaps Make() {
    for (const Loops& region : regions) {
      for (const Outline& loop : region) AddLoop(loop);
    }
    for (std::size_t i = 0; i < gaps.size(); ++i) AddEnds(i);
    for (std::size_t i = 0; i < gaps.size(); ++i) AddMiddle(i);
    MakeFills();
    result.gaps.erase(
        std::remove_if(result.gaps.begin(), result.gaps.end(),
                       [](const GapLines& gap) { return gap.faces.empty() && gap.middle.empty(); }),
        result.gaps.end());
    return std::move(result);
  }

 private:
  void LimitGaps(std::size_t edges) {
    std::size_t pairs = 0;
    std::size_t count = 0;
    while (count < std::min(gaps.size(), kMostGaps) && pairs < kMostPairs) {
      pairs += edges * gaps[count++].outline.size();
    }
    gaps.erase(gaps.begin() + static_cast<std::ptrdiff_t>(count), gaps.end());
  }

  // The spans of an edge inside of gaps, by their starts, with the gap of each.
  std::vector<std::pair<Span, std::size_t>> SpansIn(const Point2& a, const Point2& b,
                                                    std::size_t exceptGap) const {
    std::vector<std::pair<Span, std::size_t>> spans;
    Box box;
    box.Extend(a);
    box.Extend(b);
    for (std::size_t i = 0; i < gaps.size(); ++i) {
      if (i == exceptGap || !boxes[i].Meets(box)) continue;
      const Span span = InsideOf(gaps[i].outline, a, b);
      if (span.from < span.to) spans.emplace_back(span, i);
    }
    std::sort(spans.begin(), spans.end(), [](const auto& x, const auto& y) {
      return std::pair(x.first.from, x.second) < std::pair(y.first.from, y.second);
    });
    return spans;
  }

  // The edges of a loop outside of the gaps bound the cut; inside they are faces seen in a gap.
  void AddLoop(const Outline& loop) {
    std::vector<PlanLine> pieces;
    bool isWhole = true;
    ForEachEdge(loop, [&](const Point2& a, const Point2& b) {
      const auto spans = SpansIn(a, b, gaps.size());
      isWhole = isWhole && spans.empty();
      double done = 0.0;
      for (const auto& [span, gap] : spans) {
        AddPiece(pieces, a, b, {done, span.from});
        AddPiece(result.gaps[gap].faces, a, b, {std::max(done, span.from), span.to});
        done = std::max(done, span.to);
      }
      AddPiece(pieces, a, b, {done, 1.0});
    });
    if (isWhole) {
      result.edges.push_back({loop, true});
    } else {
      result.edges.insert(result.edges.end(), pieces.begin(), pieces.end());
    }
  }

  // Adds a part of an edge. It continues the last line if it starts at the end of this line.
  static void AddPiece(std::vector<PlanLine>& lines, const Point2& a, const Point2& b,
                       const Span& span) {
    if (!((span.to - span.from) * Distance(a, b) > kLeastLength)) return;
    const Point2 start = At(a, b, span.from);
    const Point2 end = At(a, b, span.to);
    if (lines.empty() || Distance(lines.back().points.back(), start) > kLeastLength) {
      lines.push_back({{start}, false});
    }
    lines.back().points.push_back(end);
  }

  // The edges of a gap inside of the regions and outside of the other gaps.
  void AddEnds(std::size_t gap) {
    ForEachEdge(gaps[gap].outline, [&](const Point2& a, const Point2& b) {
      for (const Span& inside : SpansInRegions(a, b)) {
        const Point2 start = At(a, b, inside.from);
        const Point2 end = At(a, b, inside.to);
        double done = 0.0;
        std::vector<PlanLine> pieces;
        for (const auto& [span, other] : SpansIn(start, end, gap)) {
          AddPiece(pieces, start, end, {done, span.from});
          done = std::max(done, span.to);
        }
        AddPiece(pieces, start, end, {done, 1.0});
        if (!pieces.empty()) ends[gap].push_back(At(start, end, 0.5));
        result.edges.insert(result.edges.end(), pieces.begin(), pieces.end());
      }
    });
  }

  // The spans of an edge inside of the regions. The line of the edge goes in and out by turns.
  std::vector<Span> SpansInRegions(const Point2& a, const Point2& b) const {
    std::vector<double> crossings;
    for (const Loops& region : regions) {
      for (const Outline& loop : region) {
        ForEachEdge(loop, [&](const Point2& p, const Point2& q) {
          const double atP = Cross(b - a, p - a);
          const double atQ = Cross(b - a, q - a);
          if ((atP < 0.0) == (atQ < 0.0)) return;
          const Point2 at = At(p, q, atP / (atP - atQ));
          crossings.push_back(Dot(at - a, b - a) / Dot(b - a, b - a));
        });
      }
    }
    std::sort(crossings.begin(), crossings.end());
    std::vector<Span> spans;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      const Span span{std::max(0.0, crossings[i]), std::min(1.0, crossings[i + 1])};
      if ((span.to - span.from) * Distance(a, b) > kLeastLength) spans.push_back(span);
    }
    return spans;
  }

  void AddMiddle(std::size_t gap) {
    if (ends[gap].size() == 2) result.gaps[gap].middle = ends[gap];
  }

  void MakeFills() {
    for (Loops& region : regions) {
      std::vector<Loops> pieces{std::move(region)};
      for (std::size_t i = 0; i < gaps.size(); ++i) {
        std::vector<Loops> rest;
        for (Loops& piece : pieces) {
          if (boxes[i].Meets(BoxOf(piece.front()))) {
            TakeOut(std::move(piece), gaps[i].outline, rest);
          } else {
            rest.push_back(std::move(piece));
          }
        }
        pieces = std::move(rest);
      }
      std::move(pieces.begin(), pieces.end(), std::back_inserter(result.fills));
    }
  }

  std::vector<Gap> gaps;
  std::vector<Box> boxes;                 // of the gaps
  std::vector<Loops> regions;             // the outer loop of each first
  std::vector<std::vector<Point2>> ends;  // the middles of the ends of each gap
  CutWithGaps result;
};

}  // namespace

CutWithGaps TakeOut(const std::vector<CutRegion>& cut, const std::vector<Gap>& gaps) {
  return Interruption(cut, gaps).Make();
}

}  // namespace KelIFC::exporting::svg
