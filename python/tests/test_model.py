"""Models and their instances."""

from __future__ import annotations

import copy
import gc
import pickle

import pytest
from conftest import step_file

import kelifc

WALL = "#5=IFCWALL('0123456789ABCDEFGHIJ_$',$,'W\\X2\\00E4\\X0\\nd',$,$,#4,$,$);"
PLACED = ("#1=IFCCARTESIANPOINT((1.,2.,3.));", "#3=IFCAXIS2PLACEMENT3D(#1,$,$);",
          "#4=IFCLOCALPLACEMENT($,#3);", WALL)


@pytest.fixture
def model() -> kelifc.Model:
    return kelifc.open(step_file(
        *PLACED, "#6=IFCSLAB('1123456789ABCDEFGHIJ_$',$,'s',$,$,$,$,$,.FLOOR.);",
        "#7=IFCPROPERTYSINGLEVALUE('p',$,IFCLABEL('text'),$);", "#8=IFCNEWTHING('a',#5,(1,2.5),.T.);",
        "#9=IFCWALLSTANDARDCASE('2123456789ABCDEFGHIJ_$',$,'std',$,$,$,$,$);"))


def test_instances_are_found(model: kelifc.Model) -> None:
    assert model[5] == model.by_id(5) == model.by_guid("0123456789ABCDEFGHIJ_$")
    assert model["0123456789ABCDEFGHIJ_$"].id() == 5
    assert [instance.id() for instance in model] == [1, 3, 4, 5, 6, 7, 8, 9]
    for missing in (2, 0, 10**6):
        with pytest.raises(KeyError):
            model[missing]
    with pytest.raises(KeyError):
        model.by_guid("nothing")


def test_instances_are_found_by_type(model: kelifc.Model) -> None:
    assert [w.id() for w in model.by_type("IfcWall")] == [5, 9]
    assert [w.id() for w in model.by_type("ifcwall", subtypes=False)] == [5]
    assert [w.id() for w in model.by_type("IfcWall", include_subtypes=False)] == [5]
    assert [w.id() for w in model.by_type("IfcBuildingElement")] == [5, 6, 9]
    assert [r.id() for r in model.by_type("IfcNewThing")] == [8]
    assert model.by_type("IfcColumn") == []
    with pytest.raises(ValueError, match="IfcWal"):
        model.by_type("IfcWal")


def test_attributes_have_the_values_of_the_file(model: kelifc.Model) -> None:
    wall = model[5]
    assert wall.Name == "Wänd" and wall.Description is None
    assert wall.ObjectPlacement == model[4]
    assert wall.ObjectPlacement.RelativePlacement.Location.Coordinates == (1.0, 2.0, 3.0)
    assert model[6].PredefinedType == "FLOOR"
    assert model[7].NominalValue == kelifc.TypedValue("IfcLabel", "text")
    assert wall[2] == "Wänd" and wall[-1] is None and len(wall) == 8
    with pytest.raises(AttributeError, match="IfcWall has no attribute 'Nam'"):
        wall.Nam
    with pytest.raises(IndexError):
        wall[8]
    assert "Name" in dir(wall) and "info" in dir(wall)


def test_raw_entities_have_attributes_by_position(model: kelifc.Model) -> None:
    raw = model[8]
    assert raw.is_a() == "IFCNEWTHING" and raw.is_a("IfcNewThing")
    assert list(raw) == ["a", model[5], (1, 2.5), "T"]
    raw[0] = "it's"
    raw[3] = False
    raw[2] = [1, (2, "x"), model[6]]
    assert repr(raw) == "#8=IFCNEWTHING('it''s',#5,(1,(2,'x'),#6),.F.);"
    with pytest.raises(AttributeError, match="position"):
        raw.Name


def test_attributes_are_set(model: kelifc.Model) -> None:
    wall = model[5]
    wall.Name = "O'Hara \\ ü 漢\n"
    assert wall.Name == "O'Hara \\ ü 漢\n"
    wall.Name = None
    assert wall.Name is None
    wall.Name = "x"
    del wall.Name
    assert wall.Name is None
    wall[2] = "y"
    assert wall.Name == "y"
    model[1].Coordinates = [0.1 + 0.2, -1e-300, 12345678901234567890.0]
    assert model[1].Coordinates == (0.1 + 0.2, -1e-300, 12345678901234567890.0)
    model[6].PredefinedType = "ROOF"
    assert model[6].PredefinedType == "ROOF"
    model[7].NominalValue = kelifc.TypedValue("IfcInteger", 7)
    assert model[7].NominalValue.value == 7
    wall.ObjectPlacement = None
    assert wall.ObjectPlacement is None


def test_numpy_values_can_be_set(model: kelifc.Model) -> None:
    np = pytest.importorskip("numpy")
    model[1].Coordinates = np.array([1.5, 2.5, 3.5])
    assert model[1].Coordinates == (1.5, 2.5, 3.5)
    model[1].Coordinates = [np.float32(0.5), np.int64(2), 0]
    assert model[1].Coordinates == (0.5, 2.0, 0.0)


@pytest.mark.parametrize("name, value, error", [
    ("Name", 5, TypeError), ("Name", ["a"], TypeError), ("Name", "a\0b", ValueError),
    ("Name", "\ud800", ValueError), ("Name", object(), TypeError), ("ObjectPlacement", "a", TypeError),
    ("ObjectPlacement", 4, TypeError), ("Nam", 1, AttributeError), ("name", 1, AttributeError)])
def test_a_value_that_does_not_fit_changes_nothing(
    model: kelifc.Model, name: str, value: object, error: type[Exception]
) -> None:
    before = repr(model[5])
    with pytest.raises(error):
        setattr(model[5], name, value)
    assert repr(model[5]) == before


def test_messages_name_the_instance_and_the_attribute(model: kelifc.Model) -> None:
    with pytest.raises(TypeError, match=r"#5=IfcWall.ObjectPlacement: expected IfcObjectPlacement, not"):
        model[5].ObjectPlacement = model[1]
    with pytest.raises(ValueError, match="finite"):
        model[1].Coordinates = (float("nan"), 0, 0)
    with pytest.raises(ValueError, match="PredefinedType"):
        model[6].PredefinedType = "NOT_A_TYPE"
    nested: list[object] = []
    nested.append(nested)
    with pytest.raises(ValueError, match="deeply"):
        model[1].Coordinates = nested


def test_instances_of_another_model_are_refused(model: kelifc.Model) -> None:
    other = kelifc.open(step_file(*PLACED))
    with pytest.raises(ValueError, match="another model"):
        model[5].ObjectPlacement = other[4]
    with pytest.raises(ValueError, match="another model"):
        model.remove(other[4])


def test_info_is_a_dictionary(model: kelifc.Model) -> None:
    info = model[5].info()
    assert list(info)[:4] == ["id", "type", "GlobalId", "OwnerHistory"]
    assert info["id"] == 5 and info["type"] == "IfcWall" and info["ObjectPlacement"] == model[4]
    deep = model[5].get_info(recursive=True)
    assert deep["ObjectPlacement"]["RelativePlacement"]["Location"]["Coordinates"] == (1.0, 2.0, 3.0)


def test_recursive_info_of_a_cycle_and_of_a_long_chain_ends() -> None:
    count = 20_000
    chain = [f"#{n}=IFCLOCALPLACEMENT(#{n % count + 1},$);" for n in range(1, count + 1)]
    info = kelifc.open(step_file(*chain))[1].info(recursive=True)
    assert info["PlacementRelTo"]["id"] == 2
    assert info["PlacementRelTo"]["PlacementRelTo"]["id"] == 3


def test_kinds_are_asked(model: kelifc.Model) -> None:
    wall = model[9]
    assert wall.is_a() == "IfcWallStandardCase"
    assert wall.is_a("IfcWall") and wall.is_a("IfcElement") and not wall.is_a("IfcSlab")
    with pytest.raises(ValueError):
        wall.is_a("IfcNobody")


def test_instances_are_added_and_removed(model: kelifc.Model) -> None:
    count = len(model)
    point = model.add("IfcCartesianPoint", Coordinates=[1, 2, 3])
    same = model.create_entity("IfcDirection", (0, 0, 1))
    assert point.Coordinates == (1.0, 2.0, 3.0) and same.DirectionRatios == (0.0, 0.0, 1.0)
    column = model.add("IfcColumn", Name="C1")
    assert len(column.GlobalId) == 22 and model.by_guid(column.GlobalId) == column
    assert len(model) == count + 3
    for arguments in (("IfcNobody",), ("IfcBuildingElement",)):
        with pytest.raises(ValueError):
            model.add(*arguments)
    with pytest.raises(TypeError):
        model.add("IfcColumn", Name=1)
    with pytest.raises(AttributeError):
        model.add("IfcColumn", name="a")
    assert len(model) == count + 3
    model.remove(column)
    assert len(model) == count + 2


def test_a_removed_instance_raises_reference_error(model: kelifc.Model) -> None:
    wall, placement = model[5], model[4]
    model.remove(placement)
    assert wall.ObjectPlacement is None
    uses = [lambda: placement.PlacementRelTo, lambda: placement[0], lambda: repr(placement),
            lambda: placement.info(), lambda: placement.is_a("IfcWall"), lambda: len(placement),
            lambda: setattr(placement, "PlacementRelTo", None), lambda: model.remove(placement),
            lambda: setattr(wall, "ObjectPlacement", placement)]
    for use in uses:
        with pytest.raises(ReferenceError, match="#4"):
            use()
    assert placement == placement and placement.id() == 4


def test_a_number_that_is_used_again_is_another_instance(model: kelifc.Model) -> None:
    first = model.add("IfcCartesianPoint", Coordinates=(1, 1))
    model.remove(first)
    second = model.add("IfcCartesianPoint", Coordinates=(2, 2))
    assert second.Coordinates == (2.0, 2.0)
    assert first != second
    with pytest.raises(ReferenceError):
        first.Coordinates


def test_a_cleared_model_is_empty_and_can_be_filled(model: kelifc.Model) -> None:
    wall = model[5]
    iterator = iter(model)
    next(iterator)
    model.clear()
    assert len(model) == 0 and list(model) == [] and model.schema == "IFC2X3"
    assert list(iterator) == []
    with pytest.raises(ReferenceError):
        wall.Name
    assert model.add("IfcWall", Name="new").Name == "new"


def test_a_model_may_change_while_it_is_iterated(model: kelifc.Model) -> None:
    seen = []
    for instance in model:
        seen.append(instance.id())
        if instance.id() == 5:
            model.remove(model[6])
        if len(seen) == 2:
            model.add("IfcDirection")
    assert 6 not in seen and seen[-1] == 10


def test_guids_are_found_after_changes(model: kelifc.Model) -> None:
    old = model[5].GlobalId
    new = "3" + old[1:]
    assert model.by_guid(old).id() == 5
    model[5].GlobalId = new
    assert model.by_guid(new).id() == 5
    with pytest.raises(KeyError):
        model.by_guid(old)


def test_the_text_of_a_model_is_its_schema_and_its_size(model: kelifc.Model) -> None:
    assert repr(model) == f"<Model IFC2X3, {len(model)} instances>"


def test_referrers_follow_changes(model: kelifc.Model) -> None:
    assert [i.id() for i in model.referrers(model[4])] == [5]
    model[6].ObjectPlacement = model[4]
    assert [i.id() for i in model.referrers(model[4])] == [5, 6]
    model.remove(model[5])
    assert [i.id() for i in model.referrers(model[4])] == [6]


def test_an_instance_keeps_its_model_alive() -> None:
    wall = kelifc.open(step_file(*PLACED))[5]
    gc.collect()
    assert wall.Name == "Wänd" and wall.model[4].is_a("IfcLocalPlacement")


def test_models_and_instances_refuse_to_be_pickled(model: kelifc.Model) -> None:
    for thing in (model, model[5]):
        for refuse in (pickle.dumps, copy.copy, copy.deepcopy):
            with pytest.raises(TypeError, match="cannot be pickled"):
                refuse(thing)


def test_instances_are_keys(model: kelifc.Model) -> None:
    assert len({model[5], model[5], model[6]}) == 2
    assert model[5] != 5 and (model[5] == kelifc.open(step_file(*PLACED))[5]) is False


def test_the_classic_dialect_has_its_own_characters() -> None:
    model = kelifc.open(step_file("#1=IFCWALL($,$,'\\X\\E4 \\'',$,$,$,$,$);"), dialect="classic")
    assert model[1].Name == "ä '"
    model[1].Name = "ü\\"
    assert model[1].Name == "ü\\"
    for bad in ("漢", "a\nb"):
        with pytest.raises(ValueError):
            model[1].Name = bad


def test_an_empty_model_has_a_release() -> None:
    for schema in ("IFC2X3", "IFC2X2_FINAL", "IFC2X_FINAL"):
        model = kelifc.Model(schema)
        assert len(model) == 0 and model.dialect == "iso" and model.schema == schema
        assert repr(model.add("IfcWall", Name="a")).startswith("#1=IFCWALL('")
    for schema in ("IFC4", "", "a'b"):
        with pytest.raises(ValueError):
            kelifc.Model(schema)


def test_bad_texts_do_not_raise() -> None:
    content = step_file("#1=IFCWALL($,$,'\xff\xfe',$,$,$,$,$);").replace(b"\xc3\xbf", b"\xff")
    name = kelifc.open(content)[1].Name
    name.encode()


def test_inline_instances_are_typed_values() -> None:
    model = kelifc.open(step_file("#1=IFCAXIS2PLACEMENT3D(IFCCARTESIANPOINT((1.,2.)),$,$);"))
    location = model[1].Location
    assert location is None or location.value == ((1.0, 2.0),)
