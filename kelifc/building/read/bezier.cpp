#include "kelifc/building/read/bezier.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace KelIFC::building {
namespace {

constexpr std::size_t kHighestDegree = 32;
constexpr double kMostChords = 512.0;

// A point with its weight, which its coordinates are multiplied by.
struct Weighted {
  Vector3 sum;
  double weight = 1.0;
};

// One curve of the degree, from its control points on.
class Span {
 public:
  Span(const Point3* points, const double* weights, std::size_t spanDegree)
      : degree(spanDegree), start(points[0]) {
    for (std::size_t i = 0; i <= degree; ++i) {
      const double weight = weights == nullptr ? 1.0 : weights[i];
      control[i] = {weight * (points[i] - start), weight};
    }
  }

  // By de Casteljau's rule.
  Point3 At(double t) const {
    std::array<Weighted, kHighestDegree + 1> work = control;
    for (std::size_t level = degree; level > 0; --level) {
      for (std::size_t i = 0; i < level; ++i) {
        work[i].sum = (1.0 - t) * work[i].sum + t * work[i + 1].sum;
        work[i].weight = (1.0 - t) * work[i].weight + t * work[i + 1].weight;
      }
    }
    return work[0].weight > 0.0 ? start + work[0].sum / work[0].weight : start;
  }

  // From the second differences of the control points, which bound the curvature. Weights that
  // differ make the parameter uneven.
  std::size_t Chords() const {
    double largest = 0.0;
    double lightest = control[0].weight;
    double heaviest = control[0].weight;
    for (std::size_t i = 0; i <= degree; ++i) {
      lightest = std::min(lightest, control[i].weight);
      heaviest = std::max(heaviest, control[i].weight);
      if (i + 2 > degree) continue;
      const Vector3 second = control[i].sum + -2.0 * control[i + 1].sum + control[i + 2].sum;
      largest = std::max(largest, Length(second));
    }
    const double order = static_cast<double>(degree * (degree - 1));
    double count = std::sqrt(order * largest / (8.0 * kChordError));
    if (lightest > 0.0) count *= heaviest / lightest;
    if (!(count < kMostChords)) count = kMostChords;
    return static_cast<std::size_t>(std::max(1.0, std::ceil(count)));
  }

 private:
  std::array<Weighted, kHighestDegree + 1> control;
  std::size_t degree;
  Point3 start;
};

}  // namespace

std::optional<Path> FlattenBezier(const std::vector<Point3>& points,
                                  const std::vector<double>& weights, double degree) {
  if (!(degree >= 1.0) || !(degree <= static_cast<double>(kHighestDegree))) return std::nullopt;
  const auto order = static_cast<std::size_t>(degree);
  if (points.size() < order + 1 || (points.size() - 1) % order != 0) return std::nullopt;
  const bool isRational = weights.size() == points.size() &&
                          std::all_of(weights.begin(), weights.end(), [](double weight) {
                            return weight > 0.0 && std::isfinite(weight);
                          });
  Path path;
  path.AddPoint(points.front(), 0.0);
  for (std::size_t i = 0; i + order < points.size(); i += order) {
    const Span span(&points[i], isRational ? &weights[i] : nullptr, order);
    const std::size_t count = span.Chords();
    const double width = 1.0 / static_cast<double>(count);
    for (std::size_t k = 1; k < count; ++k)
      path.AddPoint(span.At(static_cast<double>(k) * width), width);
    path.AddPoint(points[i + order], width);
  }
  return path;
}

}  // namespace KelIFC::building
