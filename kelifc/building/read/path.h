#ifndef KELIFC_BUILDING_READ_PATH_H_
#define KELIFC_BUILDING_READ_PATH_H_

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "kelifc/building/facts/contour.h"
#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/facts/transform3.h"

namespace KelIFC::building {

/// A curve from its first point to its last one. Both are equal if it is closed. Edge i goes from
/// point i to point i + 1.
struct Path {
  std::vector<Point3> points;
  std::vector<std::pair<std::size_t, Point3>> arcs;  ///< edge, point of the arc; by rising edge
  std::vector<double> widths;  ///< by edge: how much the parameter of the curve increases

  void AddPoint(const Point3& point, double width) {
    if (!points.empty()) widths.push_back(width);
    points.push_back(point);
  }
  void AddArc(const Point3& through, const Point3& end, double width) {
    arcs.emplace_back(points.size() - 1, through);
    AddPoint(end, width);
  }
};

/// Ends of curves that are nearer than this, in metres, are joined. Files round their coordinates.
constexpr double kJoinTolerance = 1e-4;

/// An arc in space, from its three points.
class ArcOfPoints {
 public:
  ArcOfPoints(const Point3& start, const Point3& through, const Point3& end);

  /// False if the points are on a line or equal: then the arc is straight.
  bool IsArc() const { return sweep > 0.0; }
  double Radius() const { return radius; }

  /// In radians, between 0 and a full turn.
  double Sweep() const { return sweep; }

  /// A point of the arc; 0 is the start and 1 the end.
  Point3 At(double fraction) const;

 private:
  Point3 begin;
  Point3 finish;
  Point3 centre;
  Vector3 x;  // from the centre to the start
  Vector3 y;  // square to x in the plane of the arc, in the direction of the sweep
  double radius = 0.0;
  double sweep = 0.0;
};

/// How many chords an arc needs for the error kChordError; at least 1.
std::size_t ChordsOf(double radius, double sweep);

void Reverse(Path& path);

/// Adds a path at the end of another one. A gap is closed by a straight edge.
void Append(Path& path, const Path& next);

/// Joins segments. A segment that only fits the other way round is reversed.
Path Join(std::vector<Path> segments);

/// The part between two parameters, which count from the start of the path. The part runs backwards
/// if `end` is less than `begin`. None if it has no length.
std::optional<Path> Cut(const Path& path, double begin, double end);

/// The sum of the widths.
double WidthOf(const Path& path);

/// The parameter of the point of the path that is nearest to a point.
double NearestParameter(const Path& path, const Point3& point);

/// The points of a path, arcs cut into chords.
std::vector<Point3> Flatten(const Path& path);

/// True if the ends meet and there is something between them.
bool IsClosed(const Path& path);

SpaceCurve ToSpaceCurve(Path path);

/// The path as a closed contour in the plane of x and y. Open ends are connected by an edge. None
/// if fewer than three points, or two with an arc, are left.
std::optional<Contour> ToContour(Path path);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_PATH_H_
