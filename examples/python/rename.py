"""Renames the columns of a model to names of one form, and saves what changed to a copy."""

import sys

import kelifc


def main(path: str, target: str) -> None:
    model = kelifc.open(path)
    for number, column in enumerate(model.by_type("IfcColumn"), start=1):
        old = column.Name
        column.Name = f"C{number:03}"
        print(f"{old} -> {column.Name}")
    model.save(target, faithful=True)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
