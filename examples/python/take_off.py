"""Prints a take-off: number, length and volume of the elements by class and storey."""

import sys

import kelifc


def main(path: str) -> None:
    building = kelifc.open(path).building(meshes="none")
    frame = building.to_dataframe("elements")
    frame["storey"] = frame["storey"].map({storey.id: storey.name for storey in building.storeys})
    groups = frame.groupby(["storey", "class"], dropna=False)
    take_off = groups.agg(
        count=("id", "size"), length=("length", "sum"), volume=("volume", "sum")
    ).round(3)
    print(take_off.to_string())


if __name__ == "__main__":
    main(sys.argv[1])
