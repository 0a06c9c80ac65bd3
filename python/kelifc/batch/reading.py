"""Reads one model and writes what the collection needs of it."""

from __future__ import annotations

from collections import Counter
from collections.abc import Sequence
from pathlib import Path
from typing import Any

import kelifc
from kelifc.batch.options import EXPORT_NAMES
from kelifc.batch.rows import plain, write_rows
from kelifc.batch.tables import CLASS_COUNTS, ELEMENT_ROWS, LOSS_ROWS

_COUNT_OF_KIND = {"member": "members", "surface": "surfaces", "body": "bodies"}

Answer = dict[str, Any]
Table = dict[str, list[Any]]


def read_model(path: str, folder: Path, exports: Sequence[str]) -> Answer:
    """Reads the model and writes its rows and exports into the folder.

    Returns the status with a message, the row of the table of models, the counts of its classes,
    and its exports. A model that cannot be read, or not be converted, is an answer, too. Raises
    MemoryError if the memory does not suffice.
    """
    answer: Answer = {"status": "ok", "message": "", "model": {}, "classes": {}, "exports": []}
    try:
        model = kelifc.open(path)
        answer["model"] = _describe_model(model)
        building = model.building()
    except (kelifc.UnsupportedReleaseError, kelifc.ConversionError) as error:
        return {**answer, "status": "unsupported", "message": error.reason}
    except kelifc.Error as error:
        return {**answer, "status": "unreadable", "message": _reason(error)}
    del model
    answer["model"].update(_describe_building(building))
    answer["classes"] = _write_tables(building, folder)
    source = Path(path).name
    answer["exports"] = [_export(building, name, folder, source) for name in exports]
    _set_status(answer)
    return answer


def _reason(error: kelifc.Error) -> str:
    place = f"line {error.place[0]}: " if error.place else ""
    return place + error.reason


def _describe_model(model: kelifc.Model) -> dict[str, Any]:
    report = model.report
    return {
        "release": model.release,
        "schema": plain(model.schema),
        "statements": report.statements,
        "instances": len(model),
        "raw": report.raw,
        "dropped": report.dropped,
        "findings": sum(report.counts.values()),
    }


def _describe_building(building: kelifc.Building) -> dict[str, Any]:
    reasons = Counter(building.table("losses")["reason"])
    return {
        "application": plain(building.application),
        "project": plain(building.project_guid),
        "lengthUnit": plain(building.length_unit.name),
        "storeys": len(building.storeys),
        "openings": len(building.table("openings")["element"]),
        **building.totals.to_dict(),
        "lossReasons": ", ".join(f"{reason} {reasons[reason]}" for reason in sorted(reasons)),
    }


def _write_tables(building: kelifc.Building, folder: Path) -> dict[str, dict[str, int]]:
    """Writes the rows of the elements and the losses. Returns the counts of the classes."""
    elements = building.table("elements")
    elements.update(_names(building, elements))
    losses = building.table("losses")
    for name, columns, table in (
        ("elements.jsonl.gz", ELEMENT_ROWS, elements),
        ("losses.jsonl.gz", LOSS_ROWS, losses),
    ):
        write_rows(folder / name, columns, zip(*(table[column] for column in columns)))
    return _count_classes(building, elements, losses)


def _count_classes(
    building: kelifc.Building, elements: Table, losses: Table
) -> dict[str, dict[str, int]]:
    counts: dict[str, Counter[str]] = {}

    def add(name: str, what: str) -> None:
        counts.setdefault(plain(name), Counter())[what] += 1

    for name, kind, approximate in zip(
        elements["class"], elements["kind"], elements["approximate"]
    ):
        add(name, _COUNT_OF_KIND[kind])
        if approximate:
            add(name, "approximate")
    for whole in building.decomposed:
        add(whole.class_name, "decomposed")
    for name in losses["class"]:
        add(name or "", "lost")
    return {
        name: {what: counts[name][what] for what in CLASS_COUNTS} for name in sorted(counts)
    }


def _names(building: kelifc.Building, elements: Table) -> Table:
    storeys = building.table("storeys")
    profiles = building.table("profiles")
    materials = building.table("materials")
    return {
        "storeyName": _look_up(elements["storey"], storeys["id"], storeys["name"]),
        "materialName": _look_up(elements["material"], materials["id"], materials["name"]),
        "profileName": _look_up(elements["profile"], profiles["id"], profiles["name"]),
        "designation": _look_up(elements["profile"], profiles["id"], profiles["designation"]),
    }


def _look_up(keys: list[Any], ids: list[Any], names: list[Any]) -> list[Any]:
    name_of = dict(zip(ids, names))
    return [name_of.get(key) for key in keys]


def _export(building: kelifc.Building, name: str, folder: Path, source: str) -> dict[str, Any]:
    done: dict[str, Any] = {"format": name, "elements": None, "omissions": "", "message": ""}
    try:
        result = building.export(name, folder / EXPORT_NAMES[name], source=source)
    except kelifc.Error as error:
        return {**done, "message": error.reason}
    omissions = ", ".join(f"{omission.what} {omission.count}" for omission in result.omissions)
    return {**done, "elements": result.elements, "omissions": omissions}


def _set_status(answer: Answer) -> None:
    messages = []
    if answer["model"]["lost"]:
        messages.append(f"{answer['model']['lost']} products were lost")
    failed = [done for done in answer["exports"] if done["message"]]
    messages += [f"{done['format']}: {done['message']}" for done in failed]
    if messages:
        answer.update(status="losses", message="; ".join(messages))
