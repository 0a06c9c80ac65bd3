#!/usr/bin/env python3
"""Writes a building model of release 2x3 of any size, the same one for the same size.

    python3 bench/make_model.py --megabytes 200 OUT.ifc

The model is a stack of storeys with walls, columns, slabs and doors. Each element has a placement,
a body (an extruded polyline, or faces), and a property set, in about the proportions of models that
are exchanged in practice: two thirds of the statements are points, loops and faces.
"""

import argparse
import random

ELEMENTS_PER_STOREY = 400
BASE64 = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$"

HEADER = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION(('ViewDefinition [CoordinationView]'),'2;1');
FILE_NAME('model.ifc','2020-01-01T12:00:00',(''),(''),'make_model','','');
FILE_SCHEMA(('IFC2X3'));
ENDSEC;
DATA;
"""

FOOTER = "ENDSEC;\nEND-ISO-10303-21;\n"


def number(value):
    """A real number as the format has it: always with a point, never with an exponent."""
    text = f"{value:.6f}".rstrip("0")
    return text


def refs(numbers):
    return "(" + ",".join(f"#{n}" for n in numbers) + ")"


class Model:
    """Gathers statements and hands out their numbers."""

    def __init__(self, out, size):
        self.out = out
        self.size = size
        self.written = out.write(HEADER)
        self.lines = []
        self.last = 0
        self.random = random.Random(2003)

    def add(self, text):
        # Now and then a number is left out, as in models that were edited.
        self.last += 1 if self.random.random() < 0.97 else 3
        self.lines.append(f"#{self.last}={text};\n")
        return self.last

    def flush(self):
        text = "".join(self.lines)
        self.lines.clear()
        self.written += self.out.write(text)

    def is_full(self):
        return self.written + len(FOOTER) >= self.size

    def guid(self):
        bits = self.random.getrandbits(128)
        digits = [BASE64[bits >> 126]]
        digits += [BASE64[(bits >> shift) & 63] for shift in range(120, -1, -6)]
        return "".join(digits)

    def root(self, name):
        return f"'{self.guid()}',#{self.owner},{name}"

    def point(self, *coordinates):
        return self.add(f"IFCCARTESIANPOINT(({','.join(number(c) for c in coordinates)}))")

    def direction(self, *ratios):
        return self.add(f"IFCDIRECTION(({','.join(number(r) for r in ratios)}))")

    def placement(self, parent, x, y, z):
        origin = self.point(x, y, z)
        turn = self.direction(self.random.choice((1.0, -1.0)), 0.0, 0.0)
        axes = self.add(f"IFCAXIS2PLACEMENT3D(#{origin},#{self.up},#{turn})")
        return self.add(f"IFCLOCALPLACEMENT({parent},#{axes})")

    def begin(self):
        person = self.add("IFCPERSON($,'Builder',$,$,$,$,$,$)")
        company = self.add("IFCORGANIZATION($,'Office',$,$,$)")
        both = self.add(f"IFCPERSONANDORGANIZATION(#{person},#{company},$)")
        tool = self.add(f"IFCAPPLICATION(#{company},'1','Model maker','maker')")
        self.owner = self.add(f"IFCOWNERHISTORY(#{both},#{tool},$,.ADDED.,$,$,$,1577836800)")
        units = [self.add("IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)"),
                 self.add("IFCSIUNIT(*,.AREAUNIT.,$,.SQUARE_METRE.)"),
                 self.add("IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.)")]
        assignment = self.add(f"IFCUNITASSIGNMENT({refs(units)})")
        self.origin = self.point(0.0, 0.0, 0.0)
        self.up = self.direction(0.0, 0.0, 1.0)
        self.along = self.direction(1.0, 0.0, 0.0)
        self.axes = self.add(f"IFCAXIS2PLACEMENT3D(#{self.origin},#{self.up},#{self.along})")
        self.context = self.add(
            f"IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-5,#{self.axes},$)")
        self.material = self.add("IFCMATERIAL('Concrete C30/37')")
        project = self.add(f"IFCPROJECT({self.root(chr(39) + 'Model' + chr(39))},$,$,$,$,"
                           f"{refs([self.context])},#{assignment})")
        site_place = self.placement("$", 0.0, 0.0, 0.0)
        site = self.add(f"IFCSITE({self.root('$')},$,$,#{site_place},$,$,.ELEMENT.,$,$,$,$,$)")
        self.building_place = self.placement(f"#{site_place}", 0.0, 0.0, 0.0)
        self.building = self.add(f"IFCBUILDING({self.root('$')},$,$,#{self.building_place},$,$,"
                                 ".ELEMENT.,$,$,$)")
        self.add(f"IFCRELAGGREGATES({self.root('$')},$,#{project},{refs([site])})")
        self.add(f"IFCRELAGGREGATES({self.root('$')},$,#{site},{refs([self.building])})")

    def extrusion(self, width, depth, height):
        corners = [self.point(0.0, 0.0), self.point(width, 0.0), self.point(width, depth),
                   self.point(0.0, depth)]
        line = self.add(f"IFCPOLYLINE({refs(corners + corners[:1])})")
        profile = self.add(f"IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$,#{line})")
        solid = self.add(f"IFCEXTRUDEDAREASOLID(#{profile},#{self.axes},#{self.up},"
                         f"{number(height)})")
        return self.add(f"IFCSHAPEREPRESENTATION(#{self.context},'Body','SweptSolid',"
                        f"{refs([solid])})")

    def face(self, corners):
        loop = self.add(f"IFCPOLYLOOP({refs(corners)})")
        bound = self.add(f"IFCFACEOUTERBOUND(#{loop},.T.)")
        return self.add(f"IFCFACE({refs([bound])})")

    def brep(self, width, depth, height):
        """A prism over a polygon with many corners."""
        count = 16
        rings = []
        for level in (0.0, height):
            rings.append([self.point(width * (0.5 + 0.5 * self.random.random()),
                                     depth * i / count, level) for i in range(count)])
        faces = [self.face(rings[0]), self.face(rings[1])]
        for i in range(count):
            j = (i + 1) % count
            faces.append(self.face([rings[0][i], rings[0][j], rings[1][j], rings[1][i]]))
        shell = self.add(f"IFCCLOSEDSHELL({refs(faces)})")
        solid = self.add(f"IFCFACETEDBREP(#{shell})")
        return self.add(f"IFCSHAPEREPRESENTATION(#{self.context},'Body','Brep',{refs([solid])})")

    def properties(self, element, name):
        values = [("Reference", f"IFCIDENTIFIER('{name}')"),
                  ("LoadBearing", f"IFCBOOLEAN(.{self.random.choice('TF')}.)"),
                  ("IsExternal", f"IFCBOOLEAN(.{self.random.choice('TF')}.)"),
                  ("FireRating", f"IFCLABEL('F{self.random.choice((30, 60, 90))}')"),
                  ("ThermalTransmittance", f"IFCREAL({number(self.random.random())})")]
        singles = [self.add(f"IFCPROPERTYSINGLEVALUE('{label}',$,{value},$)")
                   for label, value in values]
        own = self.add(f"IFCPROPERTYSET({self.root(chr(39) + 'Pset_Common' + chr(39))},$,"
                       f"{refs(singles)})")
        self.add(f"IFCRELDEFINESBYPROPERTIES({self.root('$')},$,{refs([element])},#{own})")

    def element(self, entity, tail, place, index):
        x, y = self.random.uniform(0, 50000), self.random.uniform(0, 30000)
        own_place = self.placement(f"#{place}", x, y, 0.0)
        sizes = (self.random.uniform(200, 8000), self.random.uniform(100, 500), 2750.0)
        body = self.brep(*sizes) if index % 3 == 0 else self.extrusion(*sizes)
        shape = self.add(f"IFCPRODUCTDEFINITIONSHAPE($,$,{refs([body])})")
        name = f"{entity[3:].capitalize()}-{index:06d}"
        number_ = self.add(f"{entity}({self.root(chr(39) + name + chr(39))},$,$,#{own_place},"
                           f"#{shape},'{index}'{tail})")
        self.properties(number_, name)
        return number_

    def storey(self, index):
        place = self.placement(f"#{self.building_place}", 0.0, 0.0, 3000.0 * index)
        level = self.add(f"IFCBUILDINGSTOREY({self.root(chr(39) + 'Level ' + str(index) + chr(39))}"
                         f",$,$,#{place},$,$,.ELEMENT.,{number(3000.0 * index)})")
        elements = []
        kinds = (("IFCWALLSTANDARDCASE", ""), ("IFCCOLUMN", ""), ("IFCSLAB", ",.FLOOR."),
                 ("IFCBEAM", ""))
        for i in range(ELEMENTS_PER_STOREY):
            entity, tail = kinds[i % len(kinds)]
            elements.append(self.element(entity, tail, place, index * ELEMENTS_PER_STOREY + i))
            self.flush()
            if self.is_full():
                break
        self.add(f"IFCRELCONTAINEDINSPATIALSTRUCTURE({self.root('$')},$,{refs(elements)},"
                 f"#{level})")
        self.add(f"IFCRELASSOCIATESMATERIAL({self.root('$')},$,{refs(elements)},"
                 f"#{self.material})")
        return level

    def fill(self):
        self.begin()
        storeys = []
        while not self.is_full():
            storeys.append(self.storey(len(storeys)))
        self.add(f"IFCRELAGGREGATES({self.root('$')},$,#{self.building},{refs(storeys)})")
        self.flush()
        self.out.write(FOOTER)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--megabytes", type=float, default=10, help="size of the file, about")
    parser.add_argument("output", metavar="OUT.ifc")
    arguments = parser.parse_args()
    with open(arguments.output, "w", encoding="ascii", newline="\n") as out:
        Model(out, arguments.megabytes * 1e6).fill()


if __name__ == "__main__":
    main()
