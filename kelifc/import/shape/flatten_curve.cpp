#include "kelifc/import/shape/flatten_curve.h"

#include <cstddef>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/shape/flatten_trimmed.h"
#include "kelifc/import/shape/read_values.h"

namespace KelIFC {

namespace {

Point3 InPlane(const IfcCartesianPoint* point, double scale) {
  Point2 read;
  ReadPoint2(point, scale, read);
  return Point3(read.x, read.y, 0.0);
}

Point3 PointOf(const IfcCartesianPoint* point, int dimension, double scale) {
  if (dimension == 2) return InPlane(point, scale);
  Point3 read;
  if (dimension == 3) ReadPoint3(point, scale, read);
  return read;
}

template <class Release>
void FlattenPolyLine(Mvector<Point3>& points, const typename Release::IfcPolyLine& polyLine,
                     double scale, bool dropClosing) {
  const auto corners = polyLine.GetPoints();
  if (corners.GetEmpty()) return;
  // The dimension of a polyline is that of its first point.
  const int dimension = corners[1] == nullptr ? 3 : static_cast<int>(corners[1]->GetDim());
  const std::size_t kept = corners.GetSize() - (dropClosing ? 1 : 0);
  points.reserve(kept);
  for (std::size_t i = 1; i <= kept; ++i) points.push_back(PointOf(corners[i], dimension, scale));
}

/// Leaves out the last point in the direction of the curve, because the next segment starts with
/// it.
template <class Release>
void AddPolyLineSegment(Mvector<Point3>& points, const typename Release::IfcPolyLine& polyLine,
                        bool isForward, double scale) {
  const auto corners = polyLine.GetPoints();
  const std::size_t count = corners.GetSize();
  for (std::size_t i = 1; i < count; ++i) {
    points.push_back(InPlane(corners[isForward ? i : count + 1 - i], scale));
  }
}

TrimKind TrimKindOf(IfcTrimmingPreference preference) {
  if (preference == IfcTrimmingPreference_CARTESIAN) return TrimKind::kCartesian;
  if (preference == IfcTrimmingPreference_PARAMETER) return TrimKind::kParameter;
  return TrimKind::kNone;
}

template <class Release>
void ReadCircle(const typename Release::IfcCircle& circle, double scale, TrimmedCurveFacts& facts) {
  facts.basis = BasisKind::kCircle;
  facts.radius = scale * circle.GetRadius();
  const auto* position = circle.GetPosition();
  if (position == nullptr) return;
  ReadPoint2(position->GetLocation(), scale, facts.centre);
  const auto* inPlane = CachedCast<typename Release::IfcAxis2Placement2D>(position);
  if (inPlane != nullptr) ReadDirection2(inPlane->GetRefDirection(), facts.xAxis);
}

template <class Release>
void ReadBasis(const typename Release::IfcCurve* basis, double scale, TrimmedCurveFacts& facts) {
  if (const auto* circle = CachedCast<typename Release::IfcCircle>(basis)) {
    ReadCircle<Release>(*circle, scale, facts);
  } else if (const auto* line = CachedCast<typename Release::IfcLine>(basis)) {
    facts.basis = BasisKind::kLine;
    ReadPoint2(line->GetPnt(), scale, facts.linePoint);
    ReadVector2(line->GetDir(), scale, facts.lineDirection);
  }
}

double ParameterOf(const IfcParameterValue* value) {
  return value == nullptr ? 0.0 : static_cast<double>(*value);
}

template <class Release>
TrimmedCurveFacts ReadTrimmedCurve(const typename Release::IfcTrimmedCurve& curve, double scale) {
  TrimmedCurveFacts facts;
  facts.trim = TrimKindOf(curve.GetMasterRepresentation());
  facts.isForward = curve.GetSenseAgreement();
  ReadPoint2(curve.GetCartesianTrim1(), scale, facts.start);
  ReadPoint2(curve.GetCartesianTrim2(), scale, facts.end);
  facts.startParameter = ParameterOf(curve.GetParameterTrim1());
  facts.endParameter = ParameterOf(curve.GetParameterTrim2());
  ReadBasis<Release>(curve.GetBasisCurve(), scale, facts);
  return facts;
}

template <class Release>
void AddSegment(Mvector<Point3>& points, const typename Release::IfcCompositeCurveSegment& segment,
                double tolerance, double scale, std::size_t number) {
  const auto* curve = segment.GetParentCurve();
  if (const auto* trimmed = CachedCast<typename Release::IfcTrimmedCurve>(curve)) {
    FlattenTrimmed(points, ReadTrimmedCurve<Release>(*trimmed, scale), tolerance, number);
  } else if (const auto* polyLine = CachedCast<typename Release::IfcPolyLine>(curve)) {
    AddPolyLineSegment<Release>(points, *polyLine, segment.GetSameSense(), scale);
  }
}

template <class Release>
void FlattenComposite(Mvector<Point3>& points, const typename Release::IfcCompositeCurve& curve,
                      double tolerance, double scale) {
  if (curve.GetDim() != 2) return;
  const auto segments = curve.GetSegments();
  for (std::size_t i = 1; i <= segments.GetSize(); ++i) {
    if (segments[i] != nullptr) AddSegment<Release>(points, *segments[i], tolerance, scale, i);
  }
}

}  // namespace

template <class Release>
void FlattenCurve(Mvector<Point3>& points, const typename Release::IfcCurve* curve,
                  double tolerance, double scale, bool dropClosing) {
  points.clear();
  if (const auto* polyLine = CachedCast<typename Release::IfcPolyLine>(curve)) {
    FlattenPolyLine<Release>(points, *polyLine, scale, dropClosing);
  } else if (const auto* composite = CachedCast<typename Release::IfcCompositeCurve>(curve)) {
    FlattenComposite<Release>(points, *composite, tolerance, scale);
  } else if (const auto* trimmed = CachedCast<typename Release::IfcTrimmedCurve>(curve)) {
    FlattenTrimmed(points, ReadTrimmedCurve<Release>(*trimmed, scale), tolerance, 1);
  }
}

template <class Release>
Mvector<Point2> PolyLinePoints(const typename Release::IfcPolyLine& polyLine, double scale) {
  const auto corners = polyLine.GetPoints();
  Mvector<Point2> points;
  points.resize(corners.GetSize());
  for (std::size_t i = 0; i < points.size(); ++i) ReadPoint2(corners[i + 1], scale, points[i]);
  return points;
}

template void FlattenCurve<Release2x>(Mvector<Point3>&, const Release2x::IfcCurve*, double, double,
                                      bool);
template void FlattenCurve<Release2x2>(Mvector<Point3>&, const Release2x2::IfcCurve*, double,
                                       double, bool);
template void FlattenCurve<Release2x3>(Mvector<Point3>&, const Release2x3::IfcCurve*, double,
                                       double, bool);
template Mvector<Point2> PolyLinePoints<Release2x>(const Release2x::IfcPolyLine&, double);
template Mvector<Point2> PolyLinePoints<Release2x2>(const Release2x2::IfcPolyLine&, double);
template Mvector<Point2> PolyLinePoints<Release2x3>(const Release2x3::IfcPolyLine&, double);

}  // namespace KelIFC
