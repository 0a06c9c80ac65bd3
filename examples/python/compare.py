"""Lists what differs between two revisions of a model."""

import sys

import kelifc


def main(old_path: str, new_path: str) -> None:
    old = kelifc.open(old_path).building(meshes="none")
    new = kelifc.open(new_path).building(meshes="none")
    difference = kelifc.diff(old, new)
    names = {element.id: element.name for element in new.elements}
    print(f"{len(difference.added)} added, {len(difference.removed)} removed, ", end="")
    print(f"{len(difference.changed)} changed, {difference.same} the same")
    for change in difference.changed:
        print(f"{names[change.new_id]}: moved {change.moved:.3f} m", change.profile or "")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
