#include "kelifc/building/read/curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "kelifc/building/read/bezier.h"
#include "kelifc/building/read/offset.h"
#include "kelifc/building/read/placements.h"

namespace KelIFC::building {
namespace {

constexpr double kFullTurn = 2.0 * std::numbers::pi;

// A turn that differs from a full one or from none by less than this, in radians, is that.
constexpr double kTurnTolerance = 1e-9;

class CurveReader {
 public:
  CurveReader(ReadContext& reading, Unreadable& fault) : context(reading), why(fault) {}

  std::optional<Path> Read(const Instance& curve, std::size_t depth);

 private:
  // One end of a trimmed curve.
  struct Trim {
    std::optional<Point3> point;
    std::optional<double> parameter;
  };

  // A circle or an ellipse.
  struct Conic {
    Transform3 axes;
    double rx = 0.0;
    double ry = 0.0;
  };

  std::nullopt_t Fail(LossReason reason, const Instance& at) {
    why = {reason, at.Number()};
    return std::nullopt;
  }

  std::optional<Path> ReadPolyline(const Instance& curve);
  std::optional<Path> ReadComposite(const Instance& curve, std::size_t depth);
  std::optional<Path> ReadBezier(const Instance& curve);
  std::optional<Path> ReadOffset(const Instance& curve, std::size_t depth);
  std::optional<Path> ReadTrimmed(const Instance& curve, std::size_t depth);
  std::optional<Path> TrimLine(const Instance& line, const Trim& first, const Trim& last);
  std::optional<Path> TrimConic(const Instance& conic, const Trim& first, const Trim& last,
                                bool isForward);
  std::optional<Path> TrimPath(const Path& path, const Trim& first, const Trim& last) const;
  std::optional<Trim> ReadTrim(const Instance& curve, Attribute attribute, bool prefersPoint);
  std::optional<Conic> ReadConic(const Instance& curve);
  std::optional<std::vector<Point3>> ReadPoints(const Instance& curve);
  Path ArcOf(const Conic& conic, double start, double sweep) const;

  ReadContext& context;
  Unreadable& why;
};

bool IsConic(const Instance& curve) {
  return curve.GetEntity() == Entity::kCircle || curve.GetEntity() == Entity::kEllipse;
}

std::optional<Path> CurveReader::Read(const Instance& curve, std::size_t depth) {
  if (depth == 0 || !context.Spend(1)) return Fail(LossReason::kLimit, curve);
  switch (curve.GetEntity()) {
    case Entity::kPolyline:
      return ReadPolyline(curve);
    case Entity::kCompositeCurve:
    case Entity::kCompositeCurve2D:
      return ReadComposite(curve, depth - 1);
    case Entity::kTrimmedCurve:
      return ReadTrimmed(curve, depth - 1);
    case Entity::kCircle:
    case Entity::kEllipse: {
      const std::optional<Conic> conic = ReadConic(curve);
      return conic ? std::optional<Path>(ArcOf(*conic, 0.0, kFullTurn)) : std::nullopt;
    }
    case Entity::kBezierCurve:
    case Entity::kRationalBezierCurve:
      return ReadBezier(curve);
    case Entity::kOffsetCurve2D:
      return ReadOffset(curve, depth - 1);
    default:
      return Fail(LossReason::kUnsupportedItem, curve);
  }
}

std::optional<std::vector<Point3>> CurveReader::ReadPoints(const Instance& curve) {
  const Value list = curve.Get(Attribute::kPoints);
  const std::size_t count = list.Size();
  if (count < 2) return Fail(LossReason::kDegenerate, curve);
  if (count > context.options.maxBodyPoints || !context.Spend(count)) {
    return Fail(LossReason::kLimit, curve);
  }
  std::vector<Point3> points;
  points.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const Instance at = list[i].Target();
    if (!at) return Fail(LossReason::kDangling, curve);
    const std::optional<Point3> point = ReadPoint(context, at, why);
    if (!point) return std::nullopt;
    points.push_back(*point);
  }
  return points;
}

std::optional<Path> CurveReader::ReadPolyline(const Instance& curve) {
  std::optional<std::vector<Point3>> points = ReadPoints(curve);
  if (!points) return std::nullopt;
  Path path;
  path.points = std::move(*points);
  path.widths.assign(path.points.size() - 1, 1.0);
  return path;
}

std::optional<Path> CurveReader::ReadComposite(const Instance& curve, std::size_t depth) {
  const Value list = curve.Get(Attribute::kSegments);
  std::vector<Path> segments;
  std::size_t count = 0;
  for (std::size_t i = 0; i < list.Size(); ++i) {
    const Instance segment = list[i].Target();
    if (!segment) return Fail(LossReason::kDangling, curve);
    const Instance parent = Follow(segment, Attribute::kCurve, why);
    if (!parent) return std::nullopt;
    std::optional<Path> path = Read(parent, depth);
    if (!path) return std::nullopt;
    count += path->points.size();
    // The points of a nested curve are copied once for each level.
    if (count > context.options.maxBodyPoints || !context.Spend(path->points.size())) {
      return Fail(LossReason::kLimit, curve);
    }
    if (!segment.Get(Attribute::kSameSense).Truth(true)) Reverse(*path);
    segments.push_back(std::move(*path));
  }
  Path path = Join(std::move(segments));
  if (path.points.size() < 2) return Fail(LossReason::kDegenerate, curve);
  return path;
}

std::optional<Path> CurveReader::ReadBezier(const Instance& curve) {
  const std::optional<std::vector<Point3>> points = ReadPoints(curve);
  if (!points) return std::nullopt;
  const Value list = curve.Get(Attribute::kWeights);
  std::vector<double> weights;
  for (std::size_t i = 0; i < list.Size() && i < points->size(); ++i) {
    weights.push_back(list[i].Number(1.0));
  }
  const double degree = curve.Get(Attribute::kDegree).Number(0.0);
  std::optional<Path> path = FlattenBezier(*points, weights, degree);
  if (!path) return Fail(LossReason::kUnsupportedItem, curve);
  if (!context.Spend(path->points.size())) return Fail(LossReason::kLimit, curve);
  return path;
}

std::optional<Path> CurveReader::ReadOffset(const Instance& curve, std::size_t depth) {
  const Instance basis = Follow(curve, Attribute::kCurve, why);
  if (!basis) return std::nullopt;
  const std::optional<Path> path = Read(basis, depth);
  if (!path) return std::nullopt;
  const double distance = curve.Get(Attribute::kDistance).Number(0.0) * context.units.length.metres;
  if (!std::isfinite(distance)) return Fail(LossReason::kNotFinite, curve);
  const std::vector<Point2> points =
      OffsetLine(PlanePoints(Flatten(*path)), distance, IsClosed(*path));
  Path result;
  for (const Point2& p : points) result.AddPoint({p.x, p.y, 0.0}, 1.0);
  if (IsClosed(*path) && !points.empty()) result.AddPoint(result.points.front(), 1.0);
  if (result.points.size() < 2) return Fail(LossReason::kDegenerate, curve);
  return result;
}

std::optional<CurveReader::Conic> CurveReader::ReadConic(const Instance& curve) {
  const Instance position = Follow(curve, Attribute::kPosition, why);
  if (!position) return std::nullopt;
  const std::optional<Transform3> axes = ReadAxes(context, position, why);
  if (!axes) return std::nullopt;
  const double scale = context.units.length.metres;
  const bool isCircle = curve.GetEntity() == Entity::kCircle;
  Conic conic{*axes};
  conic.rx = scale * curve.Get(isCircle ? Attribute::kRadius : Attribute::kSemiAxis1).Number(0.0);
  conic.ry = isCircle ? conic.rx : scale * curve.Get(Attribute::kSemiAxis2).Number(0.0);
  if (!std::isfinite(conic.rx) || !std::isfinite(conic.ry)) {
    return Fail(LossReason::kNotFinite, curve);
  }
  if (!(conic.rx > 0.0) || !(conic.ry > 0.0)) return Fail(LossReason::kDegenerate, curve);
  return conic;
}

// A circle becomes arcs of at most half a turn, an ellipse chords.
Path CurveReader::ArcOf(const Conic& conic, double start, double sweep) const {
  const bool isCircle = conic.rx == conic.ry;
  const double turn = std::abs(sweep);
  const double halfTurns = std::ceil(turn / std::numbers::pi - kTurnTolerance);
  const std::size_t count = isCircle ? static_cast<std::size_t>(std::max(1.0, halfTurns))
                                     : ChordsOf(std::max(conic.rx, conic.ry), sweep);
  const auto at = [&](double steps) {
    const double angle = start + sweep * steps / static_cast<double>(count);
    return conic.axes(Point3(conic.rx * std::cos(angle), conic.ry * std::sin(angle), 0.0));
  };
  const double width = turn / static_cast<double>(count) / context.units.radians;
  Path path;
  path.AddPoint(at(0.0), 0.0);
  for (std::size_t i = 0; i < count; ++i) {
    const double step = static_cast<double>(i);
    const bool isWhole = i + 1 == count && turn >= kFullTurn - kTurnTolerance;
    const Point3 end = isWhole ? path.points.front() : at(step + 1.0);
    if (isCircle) {
      path.AddArc(at(step + 0.5), end, width);
    } else {
      path.AddPoint(end, width);
    }
  }
  return path;
}

// The trim as a point or as a parameter, the preferred one if both are there.
std::optional<CurveReader::Trim> CurveReader::ReadTrim(const Instance& curve, Attribute attribute,
                                                       bool prefersPoint) {
  const Value list = curve.Get(attribute);
  Trim trim;
  const auto take = [&](const Value& value) {
    if (value.IsNumber()) {
      trim.parameter = value.Number(0.0);
      return true;
    }
    if (value.TargetNumber() == 0) return true;
    const Instance target = value.Target();
    if (!target) {
      why = {LossReason::kDangling, curve.Number()};
      return false;
    }
    trim.point = ReadPoint(context, target, why);
    return trim.point.has_value();
  };
  if (list.Size() == 0 && !take(list)) return std::nullopt;
  for (std::size_t i = 0; i < list.Size() && i < 2; ++i) {
    if (!take(list[i])) return std::nullopt;
  }
  if (!trim.point && !trim.parameter) return Fail(LossReason::kDegenerate, curve);
  if (trim.parameter && !std::isfinite(*trim.parameter)) {
    return Fail(LossReason::kNotFinite, curve);
  }
  if (trim.point && trim.parameter) {
    if (prefersPoint) {
      trim.parameter.reset();
    } else {
      trim.point.reset();
    }
  }
  return trim;
}

std::optional<Path> CurveReader::ReadTrimmed(const Instance& curve, std::size_t depth) {
  const Instance basis = Follow(curve, Attribute::kCurve, why);
  if (!basis) return std::nullopt;
  const std::string master = curve.Get(Attribute::kMasterRepresentation).Enumerator();
  const bool prefersPoint = master != "PARAMETER";
  const std::optional<Trim> first = ReadTrim(curve, Attribute::kTrim1, prefersPoint);
  if (!first) return std::nullopt;
  const std::optional<Trim> last = ReadTrim(curve, Attribute::kTrim2, prefersPoint);
  if (!last) return std::nullopt;
  const bool isForward = curve.Get(Attribute::kSameSense).Truth(true);
  if (basis.GetEntity() == Entity::kLine) return TrimLine(basis, *first, *last);
  if (IsConic(basis)) return TrimConic(basis, *first, *last, isForward);
  const std::optional<Path> path = Read(basis, depth);
  if (!path) return std::nullopt;
  std::optional<Path> part = TrimPath(*path, *first, *last);
  if (!part) return Fail(LossReason::kDegenerate, curve);
  return part;
}

std::optional<Path> CurveReader::TrimLine(const Instance& line, const Trim& first,
                                          const Trim& last) {
  Point3 origin;
  Vector3 step;
  if (first.parameter || last.parameter) {
    const Instance location = Follow(line, Attribute::kLocation, why);
    if (!location) return std::nullopt;
    const std::optional<Point3> point = ReadPoint(context, location, why);
    if (!point) return std::nullopt;
    const Instance vector = Follow(line, Attribute::kDirection, why);
    if (!vector) return std::nullopt;
    const std::optional<Vector3> direction =
        ReadDirection(vector.Get(Attribute::kOrientation).Target());
    if (!direction) return Fail(LossReason::kDegenerate, line);
    origin = *point;
    step = vector.Get(Attribute::kMagnitude).Number(1.0) * context.units.length.metres * *direction;
  }
  const auto at = [&](const Trim& trim) {
    return trim.point ? *trim.point : origin + *trim.parameter * step;
  };
  Path path;
  path.AddPoint(at(first), 0.0);
  const bool hasParameters = first.parameter && last.parameter;
  path.AddPoint(at(last), hasParameters ? std::abs(*last.parameter - *first.parameter) : 1.0);
  if (!IsReadable(path.points[0]) || !IsReadable(path.points[1])) {
    return Fail(LossReason::kNotFinite, line);
  }
  return path;
}

std::optional<Path> CurveReader::TrimConic(const Instance& curve, const Trim& first,
                                           const Trim& last, bool isForward) {
  const std::optional<Conic> conic = ReadConic(curve);
  if (!conic) return std::nullopt;
  const auto angleOf = [&](const Trim& trim) {
    if (!trim.point) return *trim.parameter * context.units.radians;
    const Vector3 v = *trim.point - conic->axes.origin;
    return std::atan2(Dot(v, conic->axes.y) / conic->ry, Dot(v, conic->axes.x) / conic->rx);
  };
  const double start = angleOf(first);
  double sweep = std::remainder(angleOf(last) - start, kFullTurn);
  if (!std::isfinite(sweep)) return Fail(LossReason::kNotFinite, curve);
  if (std::abs(sweep) <= kTurnTolerance) sweep = 0.0;
  if (isForward && sweep <= 0.0) sweep += kFullTurn;
  if (!isForward && sweep >= 0.0) sweep -= kFullTurn;
  return ArcOf(*conic, start, sweep);
}

std::optional<Path> CurveReader::TrimPath(const Path& path, const Trim& first,
                                          const Trim& last) const {
  const auto at = [&](const Trim& trim) {
    return trim.point ? NearestParameter(path, *trim.point) : *trim.parameter;
  };
  return Cut(path, at(first), at(last));
}

}  // namespace

std::optional<Path> ReadCurve(ReadContext& context, const Instance& curve, Unreadable& why) {
  return CurveReader(context, why).Read(curve, kMaxCurveDepth);
}

std::optional<Contour> ReadContour(ReadContext& context, const Instance& curve, Unreadable& why) {
  std::optional<Path> path = ReadCurve(context, curve, why);
  if (!path) return std::nullopt;
  std::optional<Contour> contour = ToContour(std::move(*path));
  if (!contour) why = {LossReason::kDegenerate, curve.Number()};
  return contour;
}

std::optional<SpaceCurve> ReadDirectrix(ReadContext& context, const Instance& solid,
                                        Unreadable& why) {
  const Instance curve = Follow(solid, Attribute::kDirectrix, why);
  if (!curve) return std::nullopt;
  const std::optional<Path> path = ReadCurve(context, curve, why);
  if (!path) return std::nullopt;
  const double whole = WidthOf(*path);
  const double begin = solid.Get(Attribute::kStartParam).Number(0.0);
  const double end = solid.Get(Attribute::kEndParam).Number(whole);
  const bool isWhole = begin == 0.0 && (end == 1.0 || std::abs(end - whole) <= 1e-6 * whole);
  if (isWhole || begin == end) return ToSpaceCurve(*path);
  std::optional<Path> part = Cut(*path, begin, end);
  if (part) return ToSpaceCurve(std::move(*part));
  why = {LossReason::kDegenerate, solid.Number()};
  return std::nullopt;
}

}  // namespace KelIFC::building
