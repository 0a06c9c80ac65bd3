#!/usr/bin/env python3
"""Writes a large model that consists of copies of a real one.

    python3 bench/amplify_model.py --megabytes 200 MODEL.ifc OUT.ifc

The project and all that it refers to (units, contexts) are written once. All other statements are
written once for each copy, with other instance numbers and other global identifiers. The same
arguments always make the same file. All copies have the same coordinates, so they overlap.
"""

import argparse
import hashlib
import os
import re

BASE64 = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$"

# A comment, a text in quotes, the end of a statement, or what is between these.
TOKEN = re.compile(r"/\*.*?\*/|'(?:[^']|'')*'|;|[^';/]+|/", re.DOTALL)
STATEMENT = re.compile(r"#\s*(\d+)\s*=\s*(.*)", re.DOTALL)
TEXT = re.compile(r"('(?:[^']|'')*')")
REFERENCE = re.compile(r"#(\d+)")
GLOBAL_ID = re.compile(r"'[0-3][0-9A-Za-z_$]{21}'")


def split_statements(data):
    """Returns the statements of a DATA section by their numbers, without comments and line ends."""
    statements = {}
    pieces = []
    for token in TOKEN.findall(data):
        if token == ";":
            numbered = STATEMENT.match("".join(pieces).strip())
            if numbered:
                statements[int(numbered[1])] = numbered[2].rstrip()
            pieces.clear()
        elif token.startswith("'"):
            pieces.append(token)
        elif not token.startswith("/*"):
            pieces.append(re.sub(r"[\r\n]", "", token))
    return statements


def references(statement):
    """Returns the numbers of the instances that a statement refers to."""
    return [int(number) for part in TEXT.split(statement)[::2] for number in REFERENCE.findall(part)]


def project_numbers(statements):
    """Returns the numbers of the projects and of all instances that they refer to."""
    found = set()
    waiting = [number for number, statement in statements.items()
               if statement.upper().startswith("IFCPROJECT(")]
    while waiting:
        number = waiting.pop()
        if number in statements and number not in found:
            found.add(number)
            waiting += references(statements[number])
    return found


def global_id(original, copy):
    """Returns the global identifier, in quotes, of the copy of a rooted instance."""
    bits = int.from_bytes(hashlib.md5(f"{original}{copy}".encode()).digest(), "big")
    return "'" + "".join(BASE64[bits >> shift & 63] for shift in range(126, -1, -6)) + "'"


class Copier:
    """Makes the text of each copy of the statements."""

    def __init__(self, statements):
        self.once = project_numbers(statements)
        self.step = max(statements) + 1
        # The parts with odd indices are texts in quotes.
        self.parts = [(number, TEXT.split(statement)) for number, statement in statements.items()]

    def renumber(self, text, copy):
        def shifted(reference):
            number = int(reference[1])
            return f"#{number if number in self.once else number + copy * self.step}"
        return REFERENCE.sub(shifted, text)

    def make(self, copy):
        lines = []
        for number, parts in self.parts:
            if copy and number in self.once:
                continue
            parts = [part if i % 2 else self.renumber(part, copy) for i, part in enumerate(parts)]
            # The identifier of a rooted instance is its first attribute.
            if copy and len(parts) > 1 and parts[0].endswith("(") and GLOBAL_ID.fullmatch(parts[1]):
                parts[1] = global_id(parts[1], copy)
            own = number if number in self.once else number + copy * self.step
            lines.append(f"#{own}={''.join(parts)};\n")
        return "".join(lines)


def amplify(source, target, size):
    """Writes copies of a model until the file has `size` bytes."""
    with open(source, encoding="latin1", newline="") as file:
        text = file.read()
    begin = text.index("DATA;") + len("DATA;")
    end = text.rindex("ENDSEC;")
    copier = Copier(split_statements(text[begin:end]))
    with open(target, "w", encoding="latin1", newline="\n") as out:
        written = out.write(text[:begin].replace("\r", "") + "\n")
        copy = 0
        while copy == 0 or written < size:
            written += out.write(copier.make(copy))
            copy += 1
        out.write("ENDSEC;\nEND-ISO-10303-21;\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--megabytes", type=float, default=200, help="least size of the file")
    parser.add_argument("model", metavar="MODEL.ifc")
    parser.add_argument("output", metavar="OUT.ifc")
    arguments = parser.parse_args()
    amplify(arguments.model, arguments.output, int(arguments.megabytes * 1e6))
    print(f"{os.path.getsize(arguments.output) / 1e6:.1f} MB")


if __name__ == "__main__":
    main()
