#include "kelifc/building/read/path.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace KelIFC::building {
namespace {

constexpr std::size_t kMostChords = 4096;

double Distance(const Point3& a, const Point3& b) { return Length(b - a); }

Point3 Between(const Point3& a, const Point3& b, double fraction) { return a + fraction * (b - a); }

// Calls `visit` with each edge and its point between the ends, null for a straight one.
template <class Visit>
void VisitEdges(const Path& path, Visit visit) {
  std::size_t arc = 0;
  for (std::size_t edge = 0; edge + 1 < path.points.size(); ++edge) {
    const bool isArc = arc < path.arcs.size() && path.arcs[arc].first == edge;
    visit(edge, isArc ? &path.arcs[arc].second : nullptr);
    if (isArc) ++arc;
  }
}

// Adds the part of an edge between two fractions to a path that ends where the part begins.
void AddPart(Path& part, const Path& path, std::size_t edge, const Point3* through, double from,
             double to) {
  const Point3& a = path.points[edge];
  const Point3& b = path.points[edge + 1];
  const double width = (to - from) * path.widths[edge];
  if (through == nullptr) {
    if (part.points.empty()) part.AddPoint(Between(a, b, from), 0.0);
    part.AddPoint(to >= 1.0 ? b : Between(a, b, to), width);
    return;
  }
  const ArcOfPoints arc(a, *through, b);
  if (part.points.empty()) part.AddPoint(arc.At(from), 0.0);
  part.AddArc(arc.At(0.5 * (from + to)), arc.At(to), width);
}

}  // namespace

ArcOfPoints::ArcOfPoints(const Point3& start, const Point3& through, const Point3& end)
    : begin(start), finish(end) {
  const Vector3 a = through - start;
  const Vector3 b = end - start;
  const Vector3 normal = Cross(a, b);
  const double square = Dot(normal, normal);
  if (!(square > 1e-24 * Dot(a, a) * Dot(b, b))) return;
  const Vector3 toCentre =
      (Dot(a, a) * Cross(b, normal) + Dot(b, b) * Cross(normal, a)) / (2.0 * square);
  centre = start + toCentre;
  x = -toCentre;
  radius = Length(x);
  y = Cross(normal / std::sqrt(square), x);
  const Vector3 last = end - centre;
  sweep = std::atan2(Dot(last, y), Dot(last, x));
  if (sweep <= 0.0) sweep += 2.0 * std::numbers::pi;
  if (!std::isfinite(radius) || !std::isfinite(sweep)) sweep = 0.0;
}

Point3 ArcOfPoints::At(double fraction) const {
  if (fraction <= 0.0) return begin;
  if (fraction >= 1.0) return finish;
  if (!IsArc()) return Between(begin, finish, fraction);
  return centre + std::cos(fraction * sweep) * x + std::sin(fraction * sweep) * y;
}

std::size_t ChordsOf(double radius, double sweep) {
  if (!(radius > 0.0) || !std::isfinite(radius)) return 1;
  const double step = 2.0 * std::acos(std::max(0.0, 1.0 - kChordError / radius));
  const double count = std::ceil(std::abs(sweep) / std::min(step, std::numbers::pi / 4.0) - 1e-9);
  return static_cast<std::size_t>(std::clamp(count, 1.0, static_cast<double>(kMostChords)));
}

void Reverse(Path& path) {
  std::reverse(path.points.begin(), path.points.end());
  std::reverse(path.widths.begin(), path.widths.end());
  std::reverse(path.arcs.begin(), path.arcs.end());
  for (auto& [edge, through] : path.arcs) edge = path.points.size() - 2 - edge;
}

void Append(Path& path, const Path& next) {
  if (next.points.empty()) return;
  const bool isGap =
      path.points.empty() || Distance(path.points.back(), next.points.front()) > kJoinTolerance;
  if (isGap) path.AddPoint(next.points.front(), 0.0);
  const std::size_t first = path.points.size() - 1;
  path.points.insert(path.points.end(), next.points.begin() + 1, next.points.end());
  path.widths.insert(path.widths.end(), next.widths.begin(), next.widths.end());
  for (const auto& [edge, through] : next.arcs) path.arcs.emplace_back(edge + first, through);
}

Path Join(std::vector<Path> segments) {
  const auto fits = [](const Point3& a, const Point3& b) {
    return Distance(a, b) <= kJoinTolerance;
  };
  Path path;
  bool isFirst = true;
  for (Path& segment : segments) {
    if (segment.points.empty()) continue;
    if (!path.points.empty() && !fits(path.points.back(), segment.points.front())) {
      const bool fitsFront = isFirst && (fits(path.points.front(), segment.points.front()) ||
                                         fits(path.points.front(), segment.points.back()));
      if (fitsFront && !fits(path.points.back(), segment.points.back())) Reverse(path);
      if (!fits(path.points.back(), segment.points.front()) &&
          fits(path.points.back(), segment.points.back())) {
        Reverse(segment);
      }
      isFirst = false;
    } else if (!path.points.empty()) {
      isFirst = false;
    }
    Append(path, segment);
    segment = Path();
  }
  return path;
}

double WidthOf(const Path& path) {
  double sum = 0.0;
  for (const double width : path.widths) sum += width;
  return sum;
}

std::optional<Path> Cut(const Path& path, double begin, double end) {
  const bool isReversed = end < begin;
  if (isReversed) std::swap(begin, end);
  Path part;
  double at = 0.0;
  VisitEdges(path, [&](std::size_t edge, const Point3* through) {
    const double width = path.widths[edge];
    const double from = at;
    at += width;
    if (!(width > 0.0)) {
      if (!part.points.empty() && from < end) part.AddPoint(path.points[edge + 1], 0.0);
      return;
    }
    const double first = std::clamp((begin - from) / width, 0.0, 1.0);
    const double last = std::clamp((end - from) / width, 0.0, 1.0);
    if (last - first > 1e-12) AddPart(part, path, edge, through, first, last);
  });
  if (part.points.size() < 2) return std::nullopt;
  if (isReversed) Reverse(part);
  return part;
}

double NearestParameter(const Path& path, const Point3& point) {
  double best = std::numeric_limits<double>::infinity();
  double parameter = 0.0;
  double at = 0.0;
  VisitEdges(path, [&](std::size_t edge, const Point3* through) {
    const Point3& a = path.points[edge];
    const Point3& b = path.points[edge + 1];
    const std::size_t pieces = through == nullptr ? 1 : 64;
    const ArcOfPoints arc(a, through == nullptr ? a : *through, b);
    for (std::size_t i = 0; i < pieces; ++i) {
      const double count = static_cast<double>(pieces);
      const Point3 p = arc.At(static_cast<double>(i) / count);
      const Point3 q = arc.At(static_cast<double>(i + 1) / count);
      const double square = Dot(q - p, q - p);
      const double t = square > 0.0 ? std::clamp(Dot(point - p, q - p) / square, 0.0, 1.0) : 0.0;
      const double distance = Distance(Between(p, q, t), point);
      if (!(distance < best)) continue;
      best = distance;
      parameter = at + path.widths[edge] * (static_cast<double>(i) + t) / count;
    }
    at += path.widths[edge];
  });
  return parameter;
}

std::vector<Point3> Flatten(const Path& path) {
  std::vector<Point3> points;
  if (!path.points.empty()) points.push_back(path.points.front());
  VisitEdges(path, [&](std::size_t edge, const Point3* through) {
    const Point3& end = path.points[edge + 1];
    if (through != nullptr) {
      const ArcOfPoints arc(path.points[edge], *through, end);
      const std::size_t count = arc.IsArc() ? ChordsOf(arc.Radius(), arc.Sweep()) : 1;
      for (std::size_t i = 1; i < count; ++i) {
        points.push_back(arc.At(static_cast<double>(i) / static_cast<double>(count)));
      }
    }
    points.push_back(end);
  });
  return points;
}

bool IsClosed(const Path& path) {
  return path.points.size() > 2 &&
         Distance(path.points.front(), path.points.back()) <= kJoinTolerance;
}

SpaceCurve ToSpaceCurve(Path path) {
  SpaceCurve curve;
  curve.isClosed = IsClosed(path);
  if (curve.isClosed) path.points.pop_back();
  curve.points = std::move(path.points);
  curve.arcs = std::move(path.arcs);
  return curve;
}

std::optional<Contour> ToContour(Path path) {
  if (IsClosed(path)) path.points.pop_back();
  if (path.points.size() < 2 || (path.points.size() == 2 && path.arcs.empty())) return std::nullopt;
  Contour contour;
  contour.points.reserve(path.points.size());
  for (const Point3& p : path.points) contour.points.emplace_back(p.x, p.y);
  for (const auto& [edge, p] : path.arcs) contour.arcs.push_back({edge, Point2(p.x, p.y)});
  return contour;
}

}  // namespace KelIFC::building
