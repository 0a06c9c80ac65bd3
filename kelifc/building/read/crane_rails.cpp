#include "kelifc/building/read/crane_rails.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "kelifc/building/read/placements.h"

namespace KelIFC::building {
namespace {

using A = Attribute;

// The form F has one width for the head and the base, and no bend of the base.
struct SizeRow {
  Attribute attribute;
  double CraneRail::*size;
};

constexpr SizeRow kSizes[] = {
    {A::kYDim, &CraneRail::height},          {A::kHeadWidth, &CraneRail::headWidth},
    {A::kHeadDepth2, &CraneRail::headAtWeb}, {A::kHeadDepth3, &CraneRail::headAtEdge},
    {A::kRadius, &CraneRail::headRadius},    {A::kWebThickness, &CraneRail::webThickness},
    {A::kBaseWidth2, &CraneRail::baseWidth}, {A::kBaseWidth4, &CraneRail::bendWidth},
};

constexpr SizeRow kBaseDepths[] = {
    {A::kBaseDepth1, &CraneRail::baseAtWeb},
    {A::kBaseDepth2, &CraneRail::baseAtBend},
    {A::kBaseDepth3, &CraneRail::baseAtEdge},
};

constexpr SizeRow kBaseDepthsWithoutBend[] = {
    {A::kBaseDepth1, &CraneRail::baseAtWeb},
    {A::kBaseDepth2, &CraneRail::baseAtEdge},
};

// A rail is thickest at its web. Some files number the depths from the edge.
void OrderFromWeb(double& atWeb, double& atEdge) {
  if (atWeb < atEdge) std::swap(atWeb, atEdge);
}

}  // namespace

CraneRail ReadCraneRail(const Instance& profile, double metres) {
  CraneRail rail;
  const auto read = [&](const SizeRow& row) {
    rail.*row.size = metres * profile.Get(row.attribute).Number(0.0);
  };
  for (const SizeRow& row : kSizes) read(row);
  if (profile.GetEntity() == Entity::kCraneRailFProfile) {
    rail.baseWidth = rail.headWidth;
    for (const SizeRow& row : kBaseDepthsWithoutBend) read(row);
  } else {
    for (const SizeRow& row : kBaseDepths) read(row);
  }
  OrderFromWeb(rail.headAtWeb, rail.headAtEdge);
  OrderFromWeb(rail.baseAtWeb, rail.baseAtEdge);
  return rail;
}

bool IsFinite(const CraneRail& rail) {
  const auto isUsable = [&rail](const SizeRow& row) {
    return std::abs(rail.*row.size) <= kLargestReadable;
  };
  return std::all_of(std::begin(kSizes), std::end(kSizes), isUsable) &&
         std::all_of(std::begin(kBaseDepths), std::end(kBaseDepths), isUsable);
}

}  // namespace KelIFC::building
