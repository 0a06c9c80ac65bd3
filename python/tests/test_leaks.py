"""Memory: what Python drops is freed."""

from __future__ import annotations

import gc
import os

from conftest import step_file

import kelifc

ROUNDS = 1000


def resident_bytes() -> int:
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def open_and_drop(content: bytes) -> None:
    model = kelifc.open(content)
    instances = list(model)
    instances[0].Coordinates = (1, 2)
    model.by_guid(model.add("IfcColumn", Name="x").GlobalId).info(recursive=True)
    building = model.building()
    assert building.to_json() and building.elements is not None
    assert model.structure().walls is not None
    try:
        model.add("IfcColumn", Name=1)
    except TypeError:
        pass


def test_a_thousand_rounds_do_not_use_more_memory() -> None:
    statements = [f"#{n}=IFCCARTESIANPOINT(({n}.,2.,3.));" for n in range(1, 400)]
    content = step_file(*statements)
    for _ in range(100):
        open_and_drop(content)
    gc.collect()
    before = resident_bytes()
    for _ in range(ROUNDS):
        open_and_drop(content)
    gc.collect()
    # One model takes about 100 KB, so a leak of each round would need 100 MB.
    assert resident_bytes() - before < 8 * 1024 * 1024
