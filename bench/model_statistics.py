#!/usr/bin/env python3
"""Prints what models consist of, as the rows of a table in Markdown with one column for each model.

    python3 bench/model_statistics.py MODEL.ifc...

docs/performance.md shows it for real models and for the model that make_model.py makes. The length
of a text is without its quotes, and global identifiers do not count as texts.
"""

import os
import re
import sys

from amplify_model import GLOBAL_ID, REFERENCE, TEXT, split_statements

SHARES = (
    ("points", ("IFCCARTESIANPOINT",)),
    ("faces, their bounds and loops", ("IFCFACE", "IFCFACEBOUND", "IFCFACEOUTERBOUND",
                                       "IFCPOLYLOOP")),
    ("properties", ("IFCPROPERTYSINGLEVALUE",)),
    ("sets of properties and their relationships", ("IFCPROPERTYSET",
                                                    "IFCRELDEFINESBYPROPERTIES")),
    ("placements", ("IFCAXIS2PLACEMENT2D", "IFCAXIS2PLACEMENT3D", "IFCLOCALPLACEMENT")))
REAL = re.compile(r"(?<![#\w.])-?\d+\.\d*(?:E[-+]?\d+)?")
LEAST_LONG = 14  # characters of a number with all digits of a double


def percent(part, whole):
    return f"{100 * part / whole:.0f} %" if whole else ""


def describe(path):
    """Returns pairs of what is counted and the count."""
    with open(path, encoding="latin1", newline="") as file:
        text = file.read()
    data = text[text.index("DATA;") + len("DATA;"):text.rindex("ENDSEC;")]
    statements = list(split_statements(data).values())
    entities = [statement.partition("(")[0].strip().upper() for statement in statements]
    texts, plain = [], []
    for statement in statements:
        parts = TEXT.split(statement)
        texts += [len(part) - 2 for part in parts[1::2] if not GLOBAL_ID.fullmatch(part)]
        plain.append("''".join(parts[::2]))
    reals = [len(real) for statement in plain for real in REAL.findall(statement)]
    references = sum(len(REFERENCE.findall(statement)) for statement in plain)
    count = len(statements)
    products = entities.count("IFCPRODUCTDEFINITIONSHAPE")
    yield "bytes for each statement", f"{len(data) / count:.0f}"
    yield "statements for each shape of a product", f"{count / max(products, 1):.0f}"
    for name, members in SHARES:
        yield name, percent(sum(entities.count(member) for member in members), count)
    yield "references for each statement", f"{references / count:.1f}"
    yield "texts for each statement", f"{len(texts) / count:.1f}"
    yield "mean length of a text", f"{sum(texts) / max(len(texts), 1):.0f}"
    yield "texts of 16 characters and more", percent(sum(n >= 16 for n in texts), len(texts))
    yield "real numbers for each statement", f"{len(reals) / count:.1f}"
    yield (f"real numbers of {LEAST_LONG} characters and more",
           percent(sum(n >= LEAST_LONG for n in reals), len(reals)))


def main():
    paths = sys.argv[1:]
    if not paths:
        sys.exit(__doc__)
    print("| |" + "".join(f" {os.path.splitext(os.path.basename(path))[0]} |" for path in paths))
    print("|---|" + "---:|" * len(paths))
    for rows in zip(*map(describe, paths)):
        print(f"| {rows[0][0]} | " + " | ".join(value for _, value in rows) + " |")


if __name__ == "__main__":
    main()
