"""Tables of a building as data frames of pandas, which is needed only here."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any, Callable

if TYPE_CHECKING:
    import pandas as pd

    from kelifc._kelifc import Building, Element


def make_frame(building: Building, table: str) -> pd.DataFrame:
    """Returns a table of a building. Raises ValueError for a name that TABLES does not have."""
    try:
        import pandas
    except ImportError as error:
        raise ImportError("to_dataframe needs the package pandas") from error
    if table not in TABLES:
        raise ValueError(f"no table '{table}'; the tables are: {' '.join(TABLES)}")
    columns, rows = TABLES[table]
    return pandas.DataFrame.from_records(rows(building), columns=columns)


def _name_at(items: Any, index: int | None) -> str | None:
    return None if index is None else str(items[index].name)


def _element_row(building: Building, storeys: dict[int, str], element: Element) -> tuple[Any, ...]:
    member, surface = element.member, element.surface
    profile = building.profiles[member.profile] if member else None
    area = profile.area if profile else surface.area if surface else None
    return (
        element.id,
        element.class_name,
        element.guid,
        element.name,
        element.tag,
        element.type,
        element.kind,
        storeys.get(element.storey or 0),
        _name_at(building.materials, element.material),
        profile.name if profile else None,
        profile.designation if profile else None,
        element.length,
        area,
        surface.thickness if surface else None,
        element.volume,
        element.deviation,
        element.is_approximate,
        element.part_of,
    )


def _elements(building: Building) -> list[tuple[Any, ...]]:
    storeys = {storey.id: storey.name for storey in building.storeys}
    return [_element_row(building, storeys, element) for element in building.elements]


def _storeys(building: Building) -> list[tuple[Any, ...]]:
    return [
        (s.id, s.guid, s.name, s.elevation if s.has_elevation else None, s.height)
        for s in building.storeys
    ]


def _materials(building: Building) -> list[tuple[Any, ...]]:
    return [(index, material.name) for index, material in enumerate(building.materials)]


def _profiles(building: Building) -> list[tuple[Any, ...]]:
    return [
        (index, p.name, p.shape, p.designation, p.area, p.iy, p.iz, p.iyz)
        for index, p in enumerate(building.profiles)
    ]


def _openings(building: Building) -> list[tuple[Any, ...]]:
    return [
        (opening.id, opening.guid, opening.kind, opening.fill, element.id, opening.depth)
        for element in building.elements
        for opening in element.openings
    ]


def _losses(building: Building) -> list[tuple[Any, ...]]:
    return [
        (loss.id, loss.class_name, loss.guid, loss.name, loss.reason, loss.at, loss.line)
        for loss in building.losses
    ]


#: The columns and the rows of each table. Lengths are in metres, areas in square metres, volumes in
#: cubic metres.
TABLES: dict[str, tuple[list[str], Callable[[Building], list[tuple[Any, ...]]]]] = {
    "elements": (
        ["id", "class", "guid", "name", "tag", "type", "kind", "storey", "material", "profile"]
        + ["designation", "length", "area", "thickness", "volume", "deviation", "approximate"]
        + ["part_of"],
        _elements,
    ),
    "storeys": (["id", "guid", "name", "elevation", "height"], _storeys),
    "materials": (["index", "name"], _materials),
    "profiles": (
        ["index", "name", "shape", "designation", "area", "iy", "iz", "iyz"],
        _profiles,
    ),
    "openings": (["id", "guid", "kind", "fill", "element", "depth"], _openings),
    "losses": (["id", "class", "guid", "name", "reason", "at", "line"], _losses),
}
