#!/usr/bin/env python3
"""Writes a building model of a given size.

    python3 bench/make_model.py --megabytes 200 --release 2x2 --shuffled OUT.ifc

The same options always give the same file. The model is a stack of storeys with walls, doors in
the walls, columns, beams, slabs, footings and fittings. Each element has a placement, a body and a
property set. The proportions are about those of real models: more than half of the statements are
points, loops and faces. Most of these belong to fittings, which the library does not convert; of
the columns and beams, one in ten has a body of faces.

Instance numbers ascend with a few gaps, or are shuffled over the whole file.
"""

import argparse
import math
import random
import re

ELEMENTS_PER_STOREY = 400
BYTES_PER_STATEMENT = 50  # a lower bound, so that shuffled numbers are unique
SCHEMAS = {"2x2": "IFC2X2_FINAL", "2x3": "IFC2X3"}
REFERENCE = re.compile(r"#(\d+)")
BASE64 = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$"

HEADER = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION(('ViewDefinition [CoordinationView]'),'2;1');
FILE_NAME('model.ifc','2020-01-01T12:00:00',(''),(''),'make_model','','');
FILE_SCHEMA(('{schema}'));
ENDSEC;
DATA;
"""

FOOTER = "ENDSEC;\nEND-ISO-10303-21;\n"


def number(value):
    """Returns a real number in the syntax of the format: with a point and without an exponent."""
    text = f"{value:.6f}".rstrip("0")
    return text


def refs(numbers):
    return "(" + ",".join(f"#{n}" for n in numbers) + ")"


def prime_above(number):
    """Returns the least prime above a number."""
    while True:
        number += 1
        if all(number % divisor for divisor in range(2, math.isqrt(number) + 1)):
            return number


# Entity, text of the attributes after those of all elements, and width, depth and height in mm.
KINDS = (("IFCWALLSTANDARDCASE", "", 5000.0, 240.0, 2750.0),
         ("IFCCOLUMN", "", 300.0, 300.0, 2750.0),
         ("IFCBUILDINGELEMENTPROXY", ",$", 800.0, 600.0, 900.0),
         ("IFCSLAB", ",.FLOOR.", 6000.0, 4000.0, 200.0),
         ("IFCBEAM", "", 200.0, 400.0, 5000.0),
         ("IFCBUILDINGELEMENTPROXY", ",$", 500.0, 500.0, 450.0),
         ("IFCWALLSTANDARDCASE", "", 4000.0, 115.0, 2750.0),
         ("IFCFOOTING", ",.PAD_FOOTING.", 1500.0, 1500.0, 600.0))

SCALES = (0.5, 0.75, 1.0, 1.25, 1.5)  # factors of the width; so elements share sections


class Model:
    """Writes statements and assigns their numbers."""

    def __init__(self, out, size, release, shuffled):
        self.out = out
        self.size = size
        self.prime = prime_above(size // BYTES_PER_STATEMENT) if shuffled else 0
        self.written = out.write(HEADER.replace("{schema}", SCHEMAS[release]))
        self.lines = []
        self.last = 0
        self.random = random.Random(2003)

    def add(self, text):
        # A few numbers are skipped, as in models that were edited.
        self.last += 1 if self.random.random() < 0.97 else 3
        self.lines.append(f"#{self.last}={text};\n")
        return self.last

    def flush(self):
        text = "".join(self.lines)
        self.lines.clear()
        if self.prime:
            text = REFERENCE.sub(self.shuffled, text)
        self.written += self.out.write(text)

    def shuffled(self, reference):
        """Maps a number to another one: multiplication modulo a prime is a permutation."""
        return f"#{int(reference.group(1)) * 7368787 % self.prime}"

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
        """Adds a body of faces: a prism over a polygon of 16 corners, which is not convex."""
        count = 16
        corners = []
        for i in range(count):
            angle = 2.0 * math.pi * i / count
            radius = 0.25 + 0.25 * self.random.random()
            corners.append((width * (0.5 + radius * math.cos(angle)),
                            depth * (0.5 + radius * math.sin(angle))))
        rings = [[self.point(x, y, level) for x, y in corners] for level in (0.0, height)]
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

    def body(self, kind, index, sizes):
        if kind == "IFCBUILDINGELEMENTPROXY" or (kind in ("IFCCOLUMN", "IFCBEAM") and
                                                 index % 10 == 0):
            return self.brep(*sizes)
        return self.extrusion(*sizes)

    def element(self, kind, tail, place, sizes, index):
        """Adds an element and returns the numbers of the element and of its placement."""
        x, y = self.random.uniform(0, 50000), self.random.uniform(0, 30000)
        own_place = self.placement(f"#{place}", x, y, 0.0)
        body = self.body(kind, index, sizes)
        shape = self.add(f"IFCPRODUCTDEFINITIONSHAPE($,$,{refs([body])})")
        name = f"{kind[3:].capitalize()}-{index:06d}"
        number_ = self.add(f"{kind}({self.root(chr(39) + name + chr(39))},$,$,#{own_place},"
                           f"#{shape},'{index}'{tail})")
        self.properties(number_, name)
        return number_, own_place

    def door(self, wall, place, index):
        """Adds an opening in a wall and the door that fills it. Returns the number of the door."""
        opening, own_place = self.element("IFCOPENINGELEMENT", "", place, (1010.0, 400.0, 2135.0),
                                          index)
        self.add(f"IFCRELVOIDSELEMENT({self.root('$')},$,#{wall},#{opening})")
        door, _ = self.element("IFCDOOR", ",2135.,1010.", own_place, (1010.0, 50.0, 2135.0), index)
        self.add(f"IFCRELFILLSELEMENT({self.root('$')},$,#{opening},#{door})")
        return door

    def storey(self, index):
        place = self.placement(f"#{self.building_place}", 0.0, 0.0, 3000.0 * index)
        level = self.add(f"IFCBUILDINGSTOREY({self.root(chr(39) + 'Level ' + str(index) + chr(39))}"
                         f",$,$,#{place},$,$,.ELEMENT.,{number(3000.0 * index)})")
        elements = []
        for i in range(ELEMENTS_PER_STOREY):
            number_ = index * ELEMENTS_PER_STOREY + i
            kind, tail, width, depth, height = KINDS[i % len(KINDS)]
            scale = self.random.choice(SCALES)
            element, own_place = self.element(kind, tail, place, (scale * width, depth, height),
                                              number_)
            elements.append(element)
            if kind == "IFCWALLSTANDARDCASE" and i % 3 == 0:
                elements.append(self.door(element, own_place, number_))
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
    parser.add_argument("--megabytes", type=float, default=10, help="approximate size of the file")
    parser.add_argument("--release", choices=sorted(SCHEMAS), default="2x3",
                        help="release of the schema")
    parser.add_argument("--shuffled", action="store_true", help="shuffle the instance numbers")
    parser.add_argument("output", metavar="OUT.ifc")
    arguments = parser.parse_args()
    with open(arguments.output, "w", encoding="ascii", newline="\n") as out:
        Model(out, int(arguments.megabytes * 1e6), arguments.release, arguments.shuffled).fill()


if __name__ == "__main__":
    main()
