"""Buildings, structures, differences and exports."""

from __future__ import annotations

import json
import pickle
from pathlib import Path

import pytest
from conftest import EXAMPLES, step_file

import kelifc

np = pytest.importorskip("numpy")


def test_elements_have_arrays_without_copies(building: kelifc.Building) -> None:
    totals = building.totals
    assert totals.members + totals.surfaces + totals.bodies == len(building.elements)
    member = next(e.member for e in building.elements if e.member)
    assert member.points.shape == (2, 3) and member.points.dtype == np.float64
    assert np.shares_memory(member.points, member.points)
    assert not member.points.flags.writeable
    with pytest.raises(ValueError):
        member.points[0, 0] = 1.0
    surface = next(e.surface for e in building.elements if e.surface)
    assert surface.outline.shape[1] == 3 and surface.normal.shape == (3,)
    assert member.length == pytest.approx(np.linalg.norm(member.points[1] - member.points[0]))


def test_arrays_keep_their_building_alive(house: kelifc.Model) -> None:
    points = next(e.member.points for e in house.building().elements if e.member)
    total = points.sum()
    del house
    assert points.sum() == total


def test_lists_are_sequences(building: kelifc.Building) -> None:
    elements = building.elements
    assert elements[-1] == elements[len(elements) - 1]
    assert [e.id for e in elements[1:3]] == [elements[1].id, elements[2].id]
    assert list(reversed(elements))[0] == elements[-1]
    with pytest.raises(IndexError):
        elements[len(elements)]


def test_meshes_have_points_and_faces(building: kelifc.Building) -> None:
    mesh = building.elements[0].body.mesh
    assert mesh is not None and len(mesh) == len(mesh.faces)
    outer = mesh.faces[0][0]
    assert mesh.points[outer].shape == (len(outer), 3)
    lean = kelifc.open(EXAMPLES / "house.ifc").building(meshes="none")
    assert all(e.body.mesh is None for e in lean.elements)


def test_a_building_survives_a_pickle(building: kelifc.Building) -> None:
    again = pickle.loads(pickle.dumps(building))
    assert again == building and again.to_json(bodies=True) == building.to_json(bodies=True)
    with pytest.raises(Exception):
        pickle.loads(pickle.dumps(building).replace(b"kelifc 2", b"kelifc 1"))


def test_damaged_pickles_raise(building: kelifc.Building) -> None:
    state = building.__getstate__()
    for size in range(0, len(state), max(1, len(state) // 97)):
        with pytest.raises(ValueError):
            kelifc.Building.__new__(kelifc.Building).__setstate__(state[:size])


def test_json_is_that_of_the_command(building: kelifc.Building) -> None:
    data = json.loads(building.to_json(file="house.ifc"))
    assert data["file"] == "house.ifc"
    assert [e["id"] for e in data["elements"]] == [e.id for e in building.elements]
    assert data["totals"]["products"] == building.totals.products


def test_tables_become_data_frames(building: kelifc.Building) -> None:
    pytest.importorskip("pandas")
    for name, columns in kelifc.tables().items():
        frame = building.to_dataframe(name)
        assert list(frame.columns) == list(columns)
    assert len(building.to_dataframe()) == len(building.elements)
    with pytest.raises(ValueError, match="elements"):
        building.to_dataframe("nothing")


def test_every_format_writes_a_file(building: kelifc.Building, tmp_path: Path) -> None:
    shares: list[float] = []
    for name, missing in kelifc.export_formats().items():
        target = tmp_path / name
        if missing:
            with pytest.raises(kelifc.NotBuiltError):
                building.export(name, target)
            continue
        result = building.export(name, target, source="house.ifc", progress=shares.append)
        assert target.exists() and result.elements <= len(building.elements)
    with pytest.raises(ValueError, match="formats"):
        building.export("nothing", tmp_path / "x")


def test_an_export_that_fails_names_the_file(building: kelifc.Building, tmp_path: Path) -> None:
    formats = [name for name, missing in kelifc.export_formats().items() if not missing]
    if not formats:
        pytest.skip("this build has no export formats")
    (tmp_path / "file").write_text("no folder")
    for name in formats:
        with pytest.raises(kelifc.ExportError) as caught:
            building.export(name, tmp_path / "file" / "x")
        assert caught.value.path.endswith("x")


def test_differences_name_what_changed(house: kelifc.Model) -> None:
    old = house.building()
    assert kelifc.diff(old, old).same == len(old.elements)
    column = house.by_type("IfcColumn")[0]
    house.remove(column)
    new = house.building()
    difference = kelifc.diff(old, new)
    assert difference.removed == (column.id(),) and difference.added == ()
    assert json.loads(difference.to_json())


def test_the_structure_has_all_kinds(house: kelifc.Model) -> None:
    structure = house.structure()
    assert structure.release == "2x3" and structure.walls and structure.storeys
    wall = structure.walls[0]
    assert wall.points.shape[1] == 3 and wall.to_dict()["name"] == wall.name
    data = json.loads(structure.to_json("house.ifc"))
    assert [w["name"] for w in data["walls"]] == [w.name for w in structure.walls]
    assert structure == house.structure()


def test_old_releases_have_no_building() -> None:
    model = kelifc.open(step_file(schema="IFC20_LONGFORM"))
    for convert in (model.building, model.structure):
        with pytest.raises(kelifc.ConversionError, match="2.0"):
            convert()


def test_elements_of_a_structure_have_the_common_members_and_their_own(
    house: kelifc.Model,
) -> None:
    structure = house.structure()
    for elements, own in (
        (structure.columns, []), (structure.beams, ["boundary"]), (structure.foots, []),
        (structure.walls, ["closed", "windows", "doors"]), (structure.plates, ["holes"]),
    ):
        for element in elements:
            assert list(element.to_dict()) == [
                "name", "guid", "section", "storey", "points", *own]
    assert structure.columns[0].name == "Column A"
    assert structure.columns[0].points.shape == (2, 3)
