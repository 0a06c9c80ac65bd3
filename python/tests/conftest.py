"""What the tests share."""

from __future__ import annotations

from pathlib import Path

import pytest

import kelifc

ROOT = Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples"

HEAD = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('','',(''),(''),'','','');
FILE_SCHEMA(('{schema}'));
ENDSEC;
DATA;
"""
END = "ENDSEC;\nEND-ISO-10303-21;\n"


def step_file(*statements: str, schema: str = "IFC2X3") -> bytes:
    """A file with these statements."""
    text = HEAD.format(schema=schema) + "".join(line + "\n" for line in statements) + END
    return text.encode()


@pytest.fixture
def house_path() -> str:
    return str(EXAMPLES / "house.ifc")


@pytest.fixture
def house(house_path: str) -> kelifc.Model:
    return kelifc.open(house_path)


@pytest.fixture
def building(house: kelifc.Model) -> kelifc.Building:
    return house.building(meshes="all")
