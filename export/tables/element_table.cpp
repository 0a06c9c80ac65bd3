// The table of the elements.

#include "kelifc/building/measures.h"

#include "export/tables/table_list.h"
#include "export/tables/table_maker.h"

namespace KelIFC::exporting {
namespace {

using Item = BuildingElement;
using Maker = TableMaker<Item>;
using Real = std::optional<double>;
using Index = std::optional<std::size_t>;

const WallSweep* SweepOf(const Item& element) {
  return element.surface && element.surface->sweep ? &*element.surface->sweep : nullptr;
}

const SurfaceRegion* PlaneSurfaceOf(const Item& element) {
  return element.surface && !element.surface->sweep ? &*element.surface : nullptr;
}

std::string_view CurveOf(const Item& element) {
  if (element.member) return TextOf(element.member->curve);
  const WallSweep* const sweep = SweepOf(element);
  return sweep == nullptr ? "" : TextOf(sweep->curve);
}

std::optional<Point3> BoxCorner(const Item& element, Point3 BuildingBox::*corner) {
  if (element.box.IsEmpty()) return std::nullopt;
  return element.box.*corner;
}

void AddIdentity(Maker& maker) {
  maker.Integer("id", "instance number of the product", &Item::id)
      .Text("class", "entity, such as IfcColumn", &Item::className)
      .Text("guid", "GlobalId: the 22 characters of the file; it need not be unique", &Item::guid)
      .Text("name", "name of the product", &Item::name)
      .Text("tag", "identifier that the writing application uses", &Item::tag)
      .Text("type", "predefined type, such as BASESLAB", &Item::type)
      .Id("storey", "storey that contains the element", &Item::storey, "storeys")
      .Id("storeyByHeight", "storey in which the element is by its height", &Item::storeyByHeight,
          "storeys")
      .Id("partOf", "element that this one is a part of; take-offs leave out parts", &Item::partOf,
          "elements")
      .Integer("material", "material; the first of a list, or that of the thickest layer",
               &Item::material, "materials");
}

void AddExactness(Maker& maker) {
  maker.Text("kind", "member, surface or body", [](const Item& e) { return TextOf(e.kind); })
      .Text("source", "what the body was made from, such as extrusion",
            [](const Item& e) { return TextOf(e.source); })
      .Integer("mapped", "number of nested mapped items that lead to the body", &Item::mappedDepth)
      .Real("deviation", "m", "largest distance between the idealised solid and the body",
            &Item::deviation)
      .Real("volumeRatio", "", "volume of the idealised solid divided by that of the body",
            &Item::volumeRatio)
      .Boolean("approximate", "whether the idealised solid differs much from the body",
               &Item::isApproximate)
      .Integer("cutouts", "number of copes, notches and holes that the idealised solid lacks",
               &Item::cutouts);
}

void AddMeasures(Maker& maker) {
  maker
      .Real("length", "m",
            "length of the axis of a member or of the base line of a curved wall; horizontal "
            "extent of a plane wall",
            [](const Item& e) { return LengthOf(e); })
      .Real("area", "m2", "area of a surface without its holes; openings are not subtracted",
            [](const Item& e) { return e.surface ? Real(AreaOf(*e.surface)) : Real(); })
      .Real("perimeter", "m", "length of the outline and the holes of a surface",
            [](const Item& e) { return e.surface ? Real(PerimeterOf(*e.surface)) : Real(); })
      .Real("thickness", "m", "thickness of a surface",
            [](const Item& e) { return e.surface ? Real(e.surface->thickness) : Real(); })
      .Real("volume", "m3", "volume of the idealised solid; of a body its own", &Item::volume)
      .Real("bodyVolume", "m3", "volume of the body as it was read, openings not subtracted",
            [](const Item& e) { return e.body.volume; })
      .Boolean("bodyClosed", "whether the boundary of the body has no gaps",
               [](const Item& e) { return e.body.isClosed; })
      .Space<Point3>({"minX", "minY", "minZ"}, "m", "lowest corner of the box of the solid",
                     [](const Item& e) { return BoxCorner(e, &BuildingBox::min); })
      .Space<Point3>({"maxX", "maxY", "maxZ"}, "m", "highest corner of the box of the solid",
                     [](const Item& e) { return BoxCorner(e, &BuildingBox::max); });
}

void AddMember(Maker& maker) {
  const auto OffsetOf = [](double Vector2::*coordinate) {
    return [coordinate](const Item& e) {
      return e.member ? Real(e.member->offset.*coordinate) : Real();
    };
  };
  maker.Text("curve", "form of the axis of a member or of the base line of a curved wall", &CurveOf)
      .Integer(
          "profile", "profile of a member",
          [](const Item& e) { return e.member ? Index(e.member->profile) : Index(); }, "profiles")
      .Integer(
          "profileEnd", "profile at the end of a tapered member",
          [](const Item& e) { return e.member ? e.member->endProfile : Index(); }, "profiles")
      .Space<Vector3>({"yX", "yY", "yZ"}, "", "unit vector of the profile's y at the start",
                      [](const Item& e) -> std::optional<Vector3> {
                        if (!e.member) return std::nullopt;
                        return e.member->y;
                      })
      .Real("offsetY", "m", "y of the axis in the coordinates of the profile",
            OffsetOf(&Vector2::x))
      .Real("offsetZ", "m", "z of the axis in the coordinates of the profile",
            OffsetOf(&Vector2::y));
}

void AddSurface(Maker& maker) {
  maker
      .Space<Vector3>({"normalX", "normalY", "normalZ"}, "", "unit normal of a plane surface",
                      [](const Item& e) -> std::optional<Vector3> {
                        const SurfaceRegion* const surface = PlaneSurfaceOf(e);
                        if (surface == nullptr) return std::nullopt;
                        return surface->normal;
                      })
      .Real("reference", "m",
            "distance along the normal from the reference plane of the file to the middle plane",
            [](const Item& e) -> Real {
              const SurfaceRegion* const surface = PlaneSurfaceOf(e);
              if (surface == nullptr) return std::nullopt;
              return surface->reference;
            })
      .Space<Vector3>({"directionX", "directionY", "directionZ"}, "",
                      "unit vector from the lower to the upper edge of a curved wall",
                      [](const Item& e) -> std::optional<Vector3> {
                        const WallSweep* const sweep = SweepOf(e);
                        if (sweep == nullptr) return std::nullopt;
                        return sweep->direction;
                      })
      .Real("height", "m", "extent of a curved wall along its direction",
            [](const Item& e) -> Real {
              const WallSweep* const sweep = SweepOf(e);
              if (sweep == nullptr) return std::nullopt;
              return sweep->height;
            });
}

}  // namespace

BuildingTable ElementTable() {
  Maker maker("elements", 1,
              "An element. Columns of members are null for surfaces and bodies, and so on.");
  AddIdentity(maker);
  AddExactness(maker);
  AddMeasures(maker);
  AddMember(maker);
  AddSurface(maker);
  return maker.Make(
      [](const TableSource& source, const std::function<void(const Item&)>& function) {
        for (const Item& element : source.building.elements) function(element);
      });
}

}  // namespace KelIFC::exporting
