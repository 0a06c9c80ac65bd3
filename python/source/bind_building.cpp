#include <string>

#include "python/source/bindings.h"
#include "python/source/define_class.h"
#include "python/source/difference_fields.h"
#include "python/source/errors.h"
#include "python/source/whole_building_fields.h"
#include "tools/kelifc/diff_format.h"
#include "tools/kelifc/elements_format.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"

namespace KelIFC::python {

py::object ToPython<IFC_RELEASE>::Of(IFC_RELEASE release, const Owner& /*owner*/) {
  return py::str(command::ReleaseText(release));
}

namespace {

/// The faces of a mesh: for each face the arrays of the indices of its loops. The first is the
/// outer one.
py::tuple FacesOf(const View<Mesh>& view) {
  const Mesh& mesh = *view.item;
  py::tuple faces(mesh.FaceCount());
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    py::tuple loops(mesh.LoopCount(face));
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      const Mesh::Loop indices = mesh.LoopOf(face, loop);
      loops[loop] =
          py::array_t<Mesh::Index>(static_cast<py::ssize_t>(indices.count), indices.first);
    }
    faces[face] = loops;
  }
  return faces;
}

void BindMesh(py::module_& module) {
  py::class_<View<Mesh>> type(
      module, "Mesh",
      "A boundary of plane faces. Seen from outside, outer loops are counter-clockwise and holes "
      "are clockwise.",
      py::is_final());
  type.def_property_readonly(
      "points", [](const View<Mesh>& self) { return MakePython(self.item->points, self.owner); },
      "The points of all loops: an array of shape (n, 3), in metres.");
  type.def_property_readonly(
      "faces", &FacesOf,
      "For each face its loops, each an array of indices of points. The first "
      "loop is the outer one, the others are holes.");
  py::dict annotations;
  annotations["points"] = "NDArray[np.float64]";
  annotations["faces"] = "tuple[tuple[NDArray[np.uint32], ...], ...]";
  type.attr("__annotations__") = annotations;
  type.def(
      "__len__", [](const View<Mesh>& self) { return self.item->FaceCount(); },
      "__len__() -> int\n\nReturns the number of faces.");
}

void BindElement(py::module_& module) {
  auto type = DefineClassAndList<BuildingElement>(module);
  type.def_property_readonly(
      "length",
      [](const View<BuildingElement>& self) {
        return MakePython(LengthOf(*self.item), self.owner);
      },
      "The length as a take-off states it, in metres: of a member that of its axis, of a wall its "
      "horizontal extent; otherwise None.");
  type.attr("__annotations__")["length"] = "float | None";
  auto member = py::reinterpret_borrow<py::class_<View<MemberAxis>>>(module.attr("Member"));
  member.def_property_readonly(
      "length", [](const View<MemberAxis>& self) { return LengthOf(*self.item); },
      "The length of the axis, in metres.");
  member.attr("__annotations__")["length"] = "float";
  auto surface = py::reinterpret_borrow<py::class_<View<SurfaceRegion>>>(module.attr("Surface"));
  surface.def_property_readonly(
      "area", [](const View<SurfaceRegion>& self) { return AreaOf(*self.item); },
      "The area without the holes, in square metres. Openings are not subtracted.");
  surface.def_property_readonly(
      "perimeter", [](const View<SurfaceRegion>& self) { return PerimeterOf(*self.item); },
      "The length of the outline and of all holes, in metres.");
  surface.attr("__annotations__")["area"] = "float";
  surface.attr("__annotations__")["perimeter"] = "float";
}

py::str ElementsJson(const View<Building>& self, const std::string& file, bool bodies) {
  std::string text;
  {
    const py::gil_scoped_release released;
    command::Output output(text);
    command::WriteElementsJson(output, file, *self.item, bodies);
    output.Close();
  }
  return ToText(text);
}

/// The first bytes of a pickled building. The form changes with the version of the library.
constexpr std::string_view kPickleHead = "kelifc " KELIFC_VERSION " 1\n";

py::bytes PickleBuilding(const View<Building>& self) {
  return py::bytes(std::string(kPickleHead) + Pack(*self.item));
}

View<Building> UnpickleBuilding(const py::bytes& state) {
  const std::string_view bytes = state;
  if (bytes.substr(0, kPickleHead.size()) != kPickleHead) {
    Raise(PyExc_ValueError, "the building was pickled by another version of kelifc");
  }
  const auto building = std::make_shared<Building>();
  Unpacker unpacker(bytes.substr(kPickleHead.size()));
  unpacker.Take(*building);
  if (!unpacker.IsAtEnd()) Raise(PyExc_ValueError, "the pickled data is damaged");
  return {building, building.get()};
}

View<BuildingDifference> Diff(const View<Building>& oldBuilding, const View<Building>& newBuilding,
                              const ComparisonOptions& options) {
  const py::gil_scoped_release released;
  const auto difference =
      std::make_shared<BuildingDifference>(Compare(*oldBuilding.item, *newBuilding.item, options));
  return {difference, difference.get()};
}

constexpr const char* kDiffDoc =
    "diff(old: Building, new: Building, *, least_move: float = 0.001, least_rotation: float = "
    "0.001, least_lengthening: float = 0.001, largest_match_distance: float = 0.5) -> Difference\n"
    "\n"
    "Compares the elements of two revisions of a building. Elements with the same GlobalId match;\n"
    "the others match by class, place and size. Smaller moves (metres), rotations (radians) and\n"
    "differences of lengths (metres) do not count. Elements farther apart than\n"
    "largest_match_distance (metres) do not match.";

void BindDifference(py::module_& module) {
  DefineClassAndList<ElementChange>(module);
  DefineClass<BuildingDifference>(module).def(
      "to_json",
      [](const View<BuildingDifference>& self) {
        std::string text;
        command::Output output(text);
        command::WriteDifferenceJson(output, *self.item);
        output.Close();
        return ToText(text);
      },
      "to_json() -> str\n\nReturns what `kelifc diff --json` prints. Rotations are in degrees.");
  module.def(
      "diff",
      [](const View<Building>& oldBuilding, const View<Building>& newBuilding, double move,
         double rotation, double lengthening, double distance) {
        return Diff(oldBuilding, newBuilding, {move, rotation, lengthening, distance});
      },
      py::arg("old"), py::arg("new"), py::kw_only(), py::arg("least_move") = 1e-3,
      py::arg("least_rotation") = 1e-3, py::arg("least_lengthening") = 1e-3,
      py::arg("largest_match_distance") = 0.5, kDiffDoc);
}

}  // namespace

void BindBuilding(py::module_& module) {
  DefineClassAndList<BuildingStorey>(module);
  DefineClassAndList<BuildingMaterial>(module);
  DefineClassAndList<BuildingProfile>(module);
  DefineClass<EndPlane>(module);
  DefineClass<MemberAxis>(module);
  DefineClassAndList<OutlineArc>(module);
  DefineClassAndList<MaterialLayer>(module);
  DefineClass<WallSweep>(module);
  DefineClass<SurfaceRegion>(module);
  DefineClassAndList<BuildingOpening>(module);
  BindMesh(module);
  DefineClass<BuildingBody>(module);
  BindElement(module);
  DefineClassAndList<BuildingLoss>(module);
  DefineClassAndList<BuildingWhole>(module);
  DefineClass<BuildingTotals>(module);
  DefineClass<BuildingLengthUnit>(module);
  auto type = DefineClass<Building>(module);
  type.def("to_json", &ElementsJson, py::arg("file") = "", py::arg("bodies") = false,
           "to_json(file: str = '', bodies: bool = False) -> str\n"
           "\n"
           "Returns what `kelifc elements --json` prints. `file` is the path that it names. With\n"
           "bodies, elements have the boundaries that the building kept.");
  type.def(
      "to_dataframe",
      [](const py::object& self, const std::string& table) {
        return py::module_::import("kelifc.frames").attr("make_frame")(self, table);
      },
      py::arg("table") = "elements",
      "to_dataframe(table: str = 'elements') -> pd.DataFrame\n"
      "\n"
      "Returns a table as a data frame of pandas. tables() lists the tables with their\n"
      "columns and units.");
  type.def(py::pickle(&PickleBuilding, &UnpickleBuilding));
  BindDifference(module);
}

}  // namespace KelIFC::python
