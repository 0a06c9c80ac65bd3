#include "export/saf/write_member.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "kelifc/building/measures.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr double kMillimetres = 1000.0;
constexpr double kSmallestSine = 1e-6;  // between the axis and a y direction that can be used

// The type of a member by its class and its predefined type.
struct TypeRow {
  std::string_view className;
  std::string_view type;  // empty: any
  std::string_view written;
};

constexpr auto kTypes = std::to_array<TypeRow>({
    {"IfcColumn", "", "Column"},
    {"IfcPile", "", "Column"},
    {"IfcBeam", "", "Beam"},
    {"IfcMember", "BRACE", "Wall bracing"},
    {"IfcMember", "CHORD", "Truss chord"},
    {"IfcMember", "POST", "Column"},
    {"IfcMember", "PURLIN", "Purlin"},
    {"IfcMember", "RAFTER", "Rafter"},
    {"IfcMember", "STRUT", "Truss diagonal"},
    {"IfcMember", "STUD", "Column"},
});

std::string_view TypeOf(const BuildingElement& element) {
  for (const TypeRow& row : kTypes) {
    if (row.className != element.className) continue;
    if (row.type.empty() || row.type == element.type) return row.written;
  }
  return "General";
}

// The axis as nodes and the forms of its segments.
struct Axis {
  std::vector<NodeList::Index> nodes;
  std::string segments;
  std::string_view shape;
};

// Adds the nodes of an axis. An axis that is too short for the tolerance has fewer than two.
Axis AxisOf(NodeList& list, const MemberAxis& member) {
  Axis axis;
  for (const Point3& point : member.points) {
    const NodeList::Index node = list.Add(point);
    if (axis.nodes.empty() || axis.nodes.back() != node) axis.nodes.push_back(node);
  }
  const std::size_t count = axis.nodes.size();
  if (member.curve == CurveForm::kArc && count == 3 && axis.nodes[0] != axis.nodes[2]) {
    axis.segments = axis.shape = "Circular Arc";
    return axis;
  }
  axis.shape = count == 2 ? "Line" : "Polyline";
  for (std::size_t i = 1; i < count; ++i) axis.segments += i == 1 ? "Line" : "; Line";
  return axis;
}

// The direction of y. If that of the member cannot be used, a horizontal one.
Vector3 DirectionOfY(const MemberAxis& member, const Vector3& x) {
  Vector3 y = member.y;
  Normalise(y);
  if (IsUsable({y.x, y.y, y.z}) && Length(Cross(x, y)) > kSmallestSine) return y;
  y = Cross(Vector3(0.0, 0.0, 1.0), x);
  if (!(Length(y) > kSmallestSine)) y = {0.0, 1.0, 0.0};
  Normalise(y);
  return y;
}

void SetEccentricities(Table& table, const MemberAxis& member) {
  // The centroid is the origin of the profile, and the axis lies at `offset`.
  const auto towardsCentroid = [](double offset) {
    return std::isfinite(offset) ? -offset * kMillimetres : 0.0;
  };
  for (const std::string kind : {"Structural", "Analysis"}) {
    for (const std::string end : {"Beg", "End"}) {
      const std::string place = " Eccentricity of " + end + " Node [mm]";
      table.Set(kind + " Y" + place, towardsCentroid(member.offset.x));
      table.Set(kind + " Z" + place, towardsCentroid(member.offset.y));
    }
  }
}

// Writes the change of the profile and returns its name. Empty if there is none.
std::string WriteVarying(SafWriter& writer, const BuildingElement& element, const std::string& name,
                         const std::string& section) {
  const MemberAxis& member = *element.member;
  if (!member.endProfile) return {};
  Table& table = writer.workbook["StructuralCurveMemberVarying"];
  const std::string end = writer.sections.NameOf(*member.endProfile, element.material);
  if (end.empty() || !table.HasRoomFor(1)) {
    writer.omissions.Add("end profiles of tapered members");
    return {};
  }
  table.BeginRow();
  table.Set("Name", name);
  table.Set("Cross sections 1", section + "; " + end);
  table.Set("Span 1", 1.0);
  table.Set("Alignment 1", "Centre");
  table.Set("Id", writer.ids.Take("varying/" + name));
  return name;
}

void WriteRow(SafWriter& writer, const BuildingElement& element, const Axis& axis,
              const std::string& section) {
  const MemberAxis& member = *element.member;
  const std::string name = writer.TakeName(element);
  const std::string varying = WriteVarying(writer, element, name, section);
  Vector3 x = writer.nodes[axis.nodes[1]] - writer.nodes[axis.nodes[0]];
  Normalise(x);
  const Vector3 y = DirectionOfY(member, x);

  Table& table = writer.workbook["StructuralCurveMember"];
  table.BeginRow();
  table.Set("Name", name);
  table.Set("Type", TypeOf(element));
  table.Set("Cross section", section);
  table.Set("Arbitrary definition", varying);
  table.Set("Nodes", NodeList::NamesOf(axis.nodes));
  table.Set("Segments", axis.segments);
  table.Set("Length [m]", LengthOf(member));
  table.Set("Geometrical shape", axis.shape);
  table.Set("LCS", "y by vector");
  table.Set("LCS Rotation [deg]", 0.0);
  table.Set("Coordinate X [m]", y.x);
  table.Set("Coordinate Y [m]", y.y);
  table.Set("Coordinate Z [m]", y.z);
  table.Set("System line", "Centre");
  SetEccentricities(table, member);
  table.Set("Layer", writer.LayerOf(element));
  table.Set("Behaviour in analysis", "Standard");
  table.Set("Id", writer.TakeId(element, name));
}

}  // namespace

Obstacle WriteMember(SafWriter& writer, const BuildingElement& element) {
  if (!element.member || element.member->points.size() < 2) return kNoIdealisation;
  const MemberAxis& member = *element.member;
  if (member.points.size() > kMostNodes) return kTooManyPoints;
  if (!std::all_of(member.points.begin(), member.points.end(), IsUsable)) return kOutOfRange;
  if (!writer.workbook["StructuralCurveMember"].HasRoomFor(1)) return kSheetFull;

  const std::size_t nodes = writer.nodes.GetCount();
  const Axis axis = AxisOf(writer.nodes, member);
  Obstacle obstacle;
  if (axis.nodes.size() < 2) obstacle = kTooSmall;
  if (writer.nodes.GetCount() > Table::kMostRows) obstacle = kSheetFull;
  std::string section;
  if (obstacle.empty()) section = writer.sections.NameOf(member.profile, element.material);
  if (obstacle.empty() && section.empty()) obstacle = kNoCrossSection;
  if (!obstacle.empty()) {
    writer.nodes.Truncate(nodes);
    return obstacle;
  }
  WriteRow(writer, element, axis, section);
  for (const auto& end : member.ends) writer.omissions.Add("inclined member ends", end ? 1 : 0);
  writer.omissions.Add("openings of members and bodies", element.openings.size());
  return {};
}

}  // namespace KelIFC::exporting::saf
