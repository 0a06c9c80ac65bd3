"""Builds a model with one column of 300 mm by 300 mm, and reads it back."""

import sys

import kelifc


def main(target: str) -> None:
    model = kelifc.Model("IFC2X3")
    add = model.add
    metre = add("IfcSIUnit", UnitType="LENGTHUNIT", Name="METRE")
    origin = add("IfcAxis2Placement3D", Location=add("IfcCartesianPoint", Coordinates=(0, 0, 0)))
    context = add("IfcGeometricRepresentationContext", WorldCoordinateSystem=origin)
    units = add("IfcUnitAssignment", Units=[metre])
    add("IfcProject", Name="One column", RepresentationContexts=[context], UnitsInContext=units)
    square = add("IfcRectangleProfileDef", XDim=0.3, YDim=0.3)
    square.Position = add(
        "IfcAxis2Placement2D", Location=add("IfcCartesianPoint", Coordinates=(0, 0))
    )
    upwards = add("IfcDirection", DirectionRatios=(0, 0, 1))
    solid = add("IfcExtrudedAreaSolid", square, origin, upwards, 3.0)
    shape = add("IfcShapeRepresentation", context, "Body", "SweptSolid", [solid])
    column = add("IfcColumn", Name="C1")
    column.ObjectPlacement = add("IfcLocalPlacement", RelativePlacement=origin)
    column.Representation = add("IfcProductDefinitionShape", Representations=[shape])
    model.save(target)
    for element in kelifc.open(target).building().elements:
        print(element.class_name, element.name, f"{element.length} m, {element.volume:.3f} m3")


if __name__ == "__main__":
    main(sys.argv[1])
