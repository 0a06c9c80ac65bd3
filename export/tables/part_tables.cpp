// The tables of the parts of elements: layers, points and openings.

#include "kelifc/building/measures.h"

#include "export/tables/table_list.h"
#include "export/tables/table_maker.h"

namespace KelIFC::exporting {
namespace {

struct Layer {
  std::size_t element;
  std::size_t index;
  const MaterialLayer& layer;
};

struct AxisPoint {
  std::size_t element;
  std::size_t index;
  Point3 point;
  const EndPlane* plane;  // null if no plane cuts the member at this point
};

struct OutlinePoint {
  std::size_t element;
  std::string_view ring;
  std::size_t number;  // of the hole or the opening
  std::size_t index;
  Point3 point;
  const Point3* through;  // null if the edge from this point to the next one is straight
};

struct Opening {
  std::size_t element;
  std::size_t index;
  const BuildingOpening& opening;
};

template <class Item>
using Visit = std::function<void(const Item&)>;

template <class Item>
TableMaker<Item> PartMaker(std::string_view name, std::size_t keyColumns,
                           std::string_view meaning) {
  TableMaker<Item> maker(name, keyColumns, meaning);
  maker.Integer("element", "element", &Item::element, "elements");
  return maker;
}

template <class Item>
void AddPoint(TableMaker<Item>& maker) {
  maker.template Space<Point3>({"x", "y", "z"}, "m", "the point, in world coordinates",
                               &Item::point);
}

/// Calls `visit` with all items of the elements, which `forElement` finds.
template <class Item>
auto OfElements(void (*forElement)(const BuildingElement&, const Visit<Item>&)) {
  return [forElement](const TableSource& source, const Visit<Item>& visit) {
    for (const BuildingElement& element : source.building.elements) forElement(element, visit);
  };
}

void LayersOf(const BuildingElement& element, const Visit<Layer>& visit) {
  if (!element.surface) return;
  std::size_t index = 0;
  for (const MaterialLayer& layer : element.surface->layers) visit({element.id, index++, layer});
}

const EndPlane* PlaneAt(const MemberAxis& member, std::size_t point) {
  const bool isEnd = point + 1 == member.points.size();
  if (point != 0 && !isEnd) return nullptr;
  const std::optional<EndPlane>& plane = member.ends[isEnd ? 1 : 0];
  return plane ? &*plane : nullptr;
}

void AxisPointsOf(const BuildingElement& element, const Visit<AxisPoint>& visit) {
  std::size_t index = 0;
  if (element.member) {
    for (const Point3& point : element.member->points) {
      visit({element.id, index, point, PlaneAt(*element.member, index)});
      ++index;
    }
  } else if (element.surface && element.surface->sweep) {
    for (const Point3& point : element.surface->sweep->points) {
      visit({element.id, index++, point, nullptr});
    }
  }
}

void RingOf(const OutlinePoint& first, const std::vector<Point3>& ring,
            const Visit<OutlinePoint>& visit) {
  OutlinePoint item = first;
  for (item.index = 0; item.index < ring.size(); ++item.index) {
    item.point = ring[item.index];
    visit(item);
  }
}

/// The outer edge. The arcs are sorted by their edges.
void OutlineOf(std::size_t id, const SurfaceRegion& surface, const Visit<OutlinePoint>& visit) {
  auto arc = surface.arcs.begin();
  for (std::size_t i = 0; i < surface.outline.size(); ++i) {
    while (arc != surface.arcs.end() && arc->edge < i) ++arc;
    const bool isArc = arc != surface.arcs.end() && arc->edge == i;
    visit({id, "outline", 0, i, surface.outline[i], isArc ? &arc->through : nullptr});
  }
}

void OutlinePointsOf(const BuildingElement& element, const Visit<OutlinePoint>& visit) {
  if (element.surface) {
    OutlineOf(element.id, *element.surface, visit);
    std::size_t number = 0;
    for (const std::vector<Point3>& hole : element.surface->holes) {
      RingOf({element.id, "hole", number++, 0, {}, nullptr}, hole, visit);
    }
  }
  std::size_t number = 0;
  for (const BuildingOpening& opening : element.openings) {
    RingOf({element.id, "opening", number++, 0, {}, nullptr}, opening.outline, visit);
  }
}

void OpeningsOf(const BuildingElement& element, const Visit<Opening>& visit) {
  std::size_t index = 0;
  for (const BuildingOpening& opening : element.openings) visit({element.id, index++, opening});
}

/// The area of a plane ring of points, which may have any orientation.
double RingArea(const std::vector<Point3>& ring) {
  Vector3 sum;
  for (std::size_t i = 2; i < ring.size(); ++i) {
    sum = sum + Cross(ring[i - 1] - ring[0], ring[i] - ring[0]);
  }
  return 0.5 * Length(sum);
}

}  // namespace

BuildingTable LayerTable() {
  return PartMaker<Layer>("layers", 2, "A layer of a wall, a slab or a plate.")
      .Integer("layer", "number of the layer in the direction of the normal, from 0", &Layer::index)
      .Integer(
          "material", "material of the layer", [](const Layer& l) { return l.layer.material; },
          "materials")
      .Real("thickness", "m", "thickness of the layer",
            [](const Layer& l) { return l.layer.thickness; })
      .Make(OfElements<Layer>(&LayersOf));
}

BuildingTable AxisPointTable() {
  TableMaker<AxisPoint> maker = PartMaker<AxisPoint>(
      "axis_points", 2,
      "A point of the axis of a member, or of the base line of a curved wall. An arc has three: "
      "start, a point between, end.");
  maker.Integer("point", "number of the point, from 0 at the start", &AxisPoint::index);
  AddPoint(maker);
  return maker
      .Space<Point3>({"planeX", "planeY", "planeZ"}, "m",
                     "where the axis meets the plane that cuts the member at this end",
                     [](const AxisPoint& p) -> std::optional<Point3> {
                       if (p.plane == nullptr) return std::nullopt;
                       return p.plane->point;
                     })
      .Space<Vector3>({"normalX", "normalY", "normalZ"}, "",
                      "unit normal of that plane, which points out of the member",
                      [](const AxisPoint& p) -> std::optional<Vector3> {
                        if (p.plane == nullptr) return std::nullopt;
                        return p.plane->normal;
                      })
      .Make(OfElements<AxisPoint>(&AxisPointsOf));
}

BuildingTable OutlinePointTable() {
  TableMaker<OutlinePoint> maker = PartMaker<OutlinePoint>(
      "outline_points", 4,
      "A point of the outline of a surface, of one of its holes or of an opening of an element. "
      "The first point of a ring is not repeated.");
  maker.Text("ring", "outline, hole or opening", &OutlinePoint::ring)
      .Integer("number",
               "number of the hole or the opening in its element, from 0; of an outline 0",
               &OutlinePoint::number)
      .Integer("point", "number of the point in the ring, from 0", &OutlinePoint::index);
  AddPoint(maker);
  return maker
      .Space<Point3>({"throughX", "throughY", "throughZ"}, "m",
                     "a point of the arc to the next point; null if the edge is straight",
                     [](const OutlinePoint& p) -> std::optional<Point3> {
                       if (p.through == nullptr) return std::nullopt;
                       return *p.through;
                     })
      .Make(OfElements<OutlinePoint>(&OutlinePointsOf));
}

BuildingTable OpeningTable() {
  return PartMaker<Opening>("openings", 2,
                            "An opening that voids an element. An opening of two elements has two "
                            "rows.")
      .Integer("number", "number of the opening in its element, from 0", &Opening::index)
      .Id("id", "instance number of the opening", [](const Opening& o) { return o.opening.id; })
      .Text("guid", "GlobalId: the 22 characters of the file",
            [](const Opening& o) -> std::string_view { return o.opening.guid; })
      .Text("kind", "door, window or void", [](const Opening& o) { return TextOf(o.opening.kind); })
      .Id("fill", "instance number of the door or window in the opening",
          [](const Opening& o) { return o.opening.fill; })
      .Real("area", "m2", "area of the section of the opening; 0 if its body cannot be read",
            [](const Opening& o) { return RingArea(o.opening.outline); })
      .Real("depth", "m", "extent square to the section; 0 if the body cannot be read",
            [](const Opening& o) { return o.opening.depth; })
      .Make(OfElements<Opening>(&OpeningsOf));
}

}  // namespace KelIFC::exporting
