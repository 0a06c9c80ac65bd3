"""Lists the walls that no storey contains."""

import sys

import kelifc


def main(path: str) -> None:
    model = kelifc.open(path)
    contained = set()
    for relation in model.by_type("IfcRelContainedInSpatialStructure"):
        if relation.RelatingStructure.is_a("IfcBuildingStorey"):
            contained.update(relation.RelatedElements)
    lost = [wall for wall in model.by_type("IfcWall") if wall not in contained]
    for wall in lost:
        print(f"#{wall.id()} {wall.GlobalId} {wall.Name}")
    print(f"{len(lost)} of {len(model.by_type('IfcWall'))} walls are in no storey")


if __name__ == "__main__":
    main(sys.argv[1])
