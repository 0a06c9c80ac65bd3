"""Inverse attributes."""

from __future__ import annotations

import pytest
from conftest import step_file

import kelifc

GUID = "'0123456789ABCDEFGHIJ_$'"
WALL = f"IFCWALL({GUID},$,$,$,$,$,$,$);"


def contained(number: int, structure: int, *elements: int) -> str:
    names = ",".join(f"#{element}" for element in elements)
    return (f"#{number}=IFCRELCONTAINEDINSPATIALSTRUCTURE({GUID},$,$,$,({names}),#{structure});")


@pytest.fixture
def model() -> kelifc.Model:
    """A whole and its part, an opening, and a storey. The numbers are in no order."""
    return kelifc.open(step_file(
        f"#1={WALL}", f"#2={WALL}", f"#3=IFCOPENINGELEMENT({GUID},$,$,$,$,$,$,$);",
        f"#4=IFCBUILDINGSTOREY({GUID},$,$,$,$,$,$,$,.ELEMENT.,0.);",
        f"#30=IFCRELAGGREGATES({GUID},$,$,$,#1,(#2));",
        f"#20=IFCRELVOIDSELEMENT({GUID},$,$,$,#1,#3);",
        contained(90, 4, 1, 2), contained(80, 4, 2)))


def ids(instances: tuple[kelifc.Instance, ...]) -> list[int]:
    return [instance.id() for instance in instances]


def test_they_are_the_instances_that_refer(model: kelifc.Model) -> None:
    assert ids(model[1].HasOpenings) == [20]
    assert ids(model[3].VoidsElements) == [20]
    assert isinstance(model[1].HasOpenings, tuple)
    assert model[2].HasOpenings == ()
    assert model[1].HasOpenings[0].RelatedOpeningElement == model[3]


def test_a_whole_and_its_parts_are_told_apart(model: kelifc.Model) -> None:
    assert ids(model[1].IsDecomposedBy) == [30] and model[1].Decomposes == ()
    assert ids(model[2].Decomposes) == [30] and model[2].IsDecomposedBy == ()


def test_they_are_in_the_order_of_the_file(model: kelifc.Model) -> None:
    assert ids(model[4].ContainsElements) == [90, 80]
    assert ids(model[2].ContainedInStructure) == [90, 80]
    assert ids(tuple(model.referrers(model[4]))) == [80, 90]
    new = model.add("IfcRelContainedInSpatialStructure", RelatingStructure=model[4])
    assert ids(model[4].ContainsElements) == [90, 80, new.id()]


def test_they_follow_changes(model: kelifc.Model) -> None:
    model[20].RelatingBuildingElement = model[2]
    assert model[1].HasOpenings == () and ids(model[2].HasOpenings) == [20]
    model.remove(model[90])
    assert model[1].ContainedInStructure == ()
    model[80].RelatedElements = [model[1], model[1]]
    assert ids(model[1].ContainedInStructure) == [80]
    model[1].Name = "a text refers to nothing"
    assert ids(model[2].HasOpenings) == [20]


def test_they_cannot_be_set(model: kelifc.Model) -> None:
    with pytest.raises(AttributeError, match="HasOpenings is an inverse attribute"):
        model[1].HasOpenings = ()
    with pytest.raises(AttributeError, match="inverse"):
        model.add("IfcWall", HasOpenings=())


def test_other_names_are_refused(model: kelifc.Model) -> None:
    for name in ("HasHoles", "hasOpenings", "HASOPENINGS", "HasFillings"):
        with pytest.raises(AttributeError, match=f"IfcWall has no attribute '{name}'|no attribute"):
            getattr(model[1], name)


def test_they_are_listed_but_not_part_of_the_information(model: kelifc.Model) -> None:
    names = model[1].inverse_names
    assert {"HasOpenings", "IsDefinedBy", "ContainedInStructure", "Decomposes"} <= set(names)
    assert set(names) <= set(dir(model[1]))
    assert not set(names) & set(model[1].attribute_names)
    assert not set(names) & set(model[1].get_info(recursive=True))


def test_the_oldest_releases_have_their_own() -> None:
    model = kelifc.Model("IFC20_LONGFORM")
    storey, wall = model.add("IfcBuildingStorey"), model.add("IfcWall")
    relation = model.add("IfcRelContains", RelatingObject=storey, RelatedObjects=[wall])
    assert storey.inverse_names == ("Contains", "IsContainedBy")
    assert storey.Contains == (relation,) and wall.IsContainedBy == (relation,)
    assert storey.IsContainedBy == wall.Contains == ()


def test_raw_text_has_none() -> None:
    model = kelifc.open(step_file("#1=IFCWHAT(1);"))
    assert model[1].inverse_names == ()
    with pytest.raises(AttributeError, match="by position"):
        model[1].HasOpenings
