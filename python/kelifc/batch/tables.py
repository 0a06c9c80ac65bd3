"""The tables of a collection: their columns with the types of SQLite."""

from __future__ import annotations

import kelifc

Columns = dict[str, str]

MODELS: Columns = {
    "path": "TEXT",
    "size": "INTEGER",
    "hash": "TEXT",
    "status": "TEXT",
    "message": "TEXT",
    "release": "TEXT",
    "schema": "TEXT",
    "application": "TEXT",
    "project": "TEXT",
    "lengthUnit": "TEXT",
    "statements": "INTEGER",
    "instances": "INTEGER",
    "raw": "INTEGER",
    "dropped": "INTEGER",
    "findings": "INTEGER",
    "storeys": "INTEGER",
    "openings": "INTEGER",
    "products": "INTEGER",
    "members": "INTEGER",
    "surfaces": "INTEGER",
    "bodies": "INTEGER",
    "decomposed": "INTEGER",
    "lost": "INTEGER",
    "approximate": "INTEGER",
    "lossReasons": "TEXT",
    "folder": "TEXT",
    "seconds": "REAL",
    "peakMemory": "INTEGER",
}

# How many products of a class were read, and as what.
CLASS_COUNTS = ("members", "surfaces", "bodies", "decomposed", "lost", "approximate")
CLASSES: Columns = {
    "model": "TEXT",
    "class": "TEXT",
    "products": "INTEGER",
    **dict.fromkeys(CLASS_COUNTS, "INTEGER"),
}

EXPORTS: Columns = {
    "model": "TEXT",
    "format": "TEXT",
    "path": "TEXT",
    "elements": "INTEGER",
    "omissions": "TEXT",
    "message": "TEXT",
}

_TYPES = {"str": "TEXT", "int": "INTEGER", "float": "REAL", "bool": "INTEGER"}


def _columns_of(table: str) -> Columns:
    return {name: _TYPES[kind] for name, (kind, _) in kelifc.tables()[table].items()}


# The numbers of profiles, materials and storeys differ from model to model, so queries over all
# models need the names.
ELEMENT_NAMES = ("storeyName", "materialName", "profileName", "designation")
ELEMENT_ROWS = (*_columns_of("elements"), *ELEMENT_NAMES)
ELEMENTS: Columns = {
    "model": "TEXT",
    **_columns_of("elements"),
    **dict.fromkeys(ELEMENT_NAMES, "TEXT"),
}

LOSS_ROWS = tuple(_columns_of("losses"))
LOSSES: Columns = {"model": "TEXT", **_columns_of("losses")}

TABLES: dict[str, Columns] = {
    "models": MODELS,
    "classes": CLASSES,
    "losses": LOSSES,
    "exports": EXPORTS,
    "elements": ELEMENTS,
}
