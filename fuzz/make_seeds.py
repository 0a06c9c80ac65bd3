#!/usr/bin/env python3
"""Cuts models into seeds for the fuzzers: small models with one product each, and statements.

    make_seeds.py OUT MODEL.ifc...

Writes each small model to a file in OUT/models, and for each class up to two statements to files in
OUT/statements. The first byte of a statement file is the release, as statement_fuzz expects it.
"""

import collections
import os
import re
import sys

STATEMENT = re.compile(r"#(\d+)\s*=\s*((?:[^';]|'(?:[^']|'')*')*);")
STRING = re.compile(r"'(?:[^']|'')*'")
REFERENCE = re.compile(r"#(\d+)")
NAME = re.compile(r"[A-Z0-9]+")
SCHEMA = re.compile(r"FILE_SCHEMA\s*\(\s*\(\s*'([^']*)'")
LARGEST = 12000  # bytes of a model
PRODUCTS = re.compile(
    r"IFC(WALL|WALLSTANDARDCASE|COLUMN|BEAM|SLAB|FOOTING|DOOR|WINDOW|OPENINGELEMENT|MEMBER|PLATE|"
    r"BUILDINGSTOREY|BUILDINGELEMENT|SPACE|ROOF|STAIR|PILE)\b")
RELEASES = {"IFC151": 0, "IFC1.5.1": 0, "IFC20": 1, "IFC2.0": 1, "IFC2X": 2, "IFC2X2": 3, "IFC2X3": 4}


class Source:
    """The statements of a model, and the references between them."""

    def __init__(self, text):
        found = SCHEMA.search(text)
        self.schema = found.group(1) if found else "IFC2X3"
        self.head = text[:text.find("DATA;") + 5] + "\n"
        self.texts = {int(n): right for n, right in STATEMENT.findall(text)}
        self.targets = {n: [int(t) for t in REFERENCE.findall(STRING.sub("", right))]
                        for n, right in self.texts.items()}
        self.sources = collections.defaultdict(list)
        for n, targets in self.targets.items():
            for target in targets:
                self.sources[target].append(n)

    def around(self, product):
        """Returns the numbers of the product, its relationships and all that these refer to."""
        members = set()
        waiting = [product] + [n for n in self.sources[product]
                               if self.texts[n].startswith("IFCREL")]
        waiting += [n for n, right in self.texts.items() if right.startswith("IFCPROJECT(")]
        relationships = set(waiting[1:])
        while waiting:
            n = waiting.pop()
            if n in members or n not in self.texts:
                continue
            members.add(n)
            if len(members) > 400:
                break
            # A relationship can have many members. A few targets from both ends are enough.
            targets = self.targets[n]
            waiting += targets[-2:] + targets[:2] if n in relationships else targets
        return sorted(members)

    def model(self, members):
        lines = "".join(f"#{n}={self.texts[n]};\n" for n in members)
        return self.head + lines + "ENDSEC;\nEND-ISO-10303-21;\n"


def write(folder, name, data):
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, name), "wb") as out:
        out.write(data)


def cut(path, out, prefix):
    with open(path, encoding="latin1") as file:
        source = Source(file.read())
    classes = collections.Counter()
    for n, right in source.texts.items():
        name = NAME.match(right)
        if name is None:
            continue
        classes[name.group()] += 1
        count = classes[name.group()]
        if count <= 2 and len(right) < 1000:
            write(os.path.join(out, "statements"), f"{prefix}-{n}",
                  bytes([RELEASES.get(source.schema.upper(), 4)]) + right.encode("latin1"))
        if count in (1, 2, 5, 10, 20, 40) and PRODUCTS.match(right):
            model = source.model(source.around(n))
            if len(model) <= LARGEST:
                write(os.path.join(out, "models"), f"{prefix}-{n}", model.encode("latin1"))


def main():
    out, models = sys.argv[1], sys.argv[2:]
    for path in models:
        cut(path, out, os.path.splitext(os.path.basename(path))[0])


if __name__ == "__main__":
    main()
