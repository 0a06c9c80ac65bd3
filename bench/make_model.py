#!/usr/bin/env python3
"""Writes a building model of a given size.

    python3 bench/make_model.py --megabytes 200 --release 2x2 --shuffled OUT.ifc

The same options always give the same file. The model is a stack of storeys with walls, doors in
the walls, columns, beams, slabs, footings and fittings. Each element has a placement, a body, a
style and several property sets. model_mix.py says how many there are of each, and how long their
texts and numbers are; the proportions are about those of real models.

Instance numbers ascend with a few gaps, or are shuffled over the whole file.
"""

import argparse
import math
import random
import re

from model_mix import (DOOR, ELEMENTS_PER_STOREY, FACETED, KINDS, LAYERS, LEAST_TRIANGULATED,
                       LONG_NUMBERS, OPENING, PROPERTIES, PROPERTY_SETS, SCALES, SHARED_BODIES,
                       SHARED_PER_SET, SHARED_PROPERTIES, SHELL_CORNERS, SHELLS, STYLES, TEXTS)

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

# The corners of outlines, as fractions of width and depth.
OUTLINES = {
    "L": ((0, 0), (1, 0), (1, 0.5), (0.5, 0.5), (0.5, 1), (0, 1)),
    "I": ((0, 0), (1, 0), (1, 0.04), (0.53, 0.04), (0.53, 0.96), (1, 0.96),
          (1, 1), (0, 1), (0, 0.96), (0.47, 0.96), (0.47, 0.04), (0, 0.04))}

FOOTER = "ENDSEC;\nEND-ISO-10303-21;\n"


def number(value):
    """Returns a real number in the syntax of the format, with all digits that it needs."""
    mantissa, _, exponent = repr(float(value)).partition("e")
    mantissa = mantissa.removesuffix("0") if mantissa.endswith(".0") else mantissa
    if not exponent:
        return mantissa
    return f"{mantissa if '.' in mantissa else mantissa + '.'}E{exponent}"


def refs(numbers):
    return "(" + ",".join(f"#{n}" for n in numbers) + ")"


def prime_above(candidate):
    """Returns the least prime above a number."""
    while True:
        candidate += 1
        if all(candidate % divisor for divisor in range(2, math.isqrt(candidate) + 1)):
            return candidate


class Statements:
    """Writes statements and assigns their numbers."""

    def __init__(self, out, size, release, shuffled):
        self.out = out
        self.size = size
        self.prime = prime_above(size // BYTES_PER_STATEMENT) if shuffled else 0
        self.written = out.write(HEADER.replace("{schema}", SCHEMAS[release]))
        self.lines = []
        self.last = 0
        self.owner = 0
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

    def add_root(self, entity, name, rest):
        """Adds an instance with a global identifier. The name can be empty."""
        name = f"'{name}'" if name else "$"
        return self.add(f"{entity}('{self.guid()}',#{self.owner},{name},{rest})")

    def coordinate(self, low, high):
        """Returns a random length. Most lengths in real models are not rounded."""
        length = self.random.uniform(low, high)
        return length if self.random.random() < LONG_NUMBERS else round(length)


class Shapes(Statements):
    """Adds placements and bodies."""

    def begin_shapes(self):
        self.origin = self.point(0.0, 0.0, 0.0)
        self.up = self.direction(0.0, 0.0, 1.0)
        self.along = self.direction(1.0, 0.0, 0.0)
        self.flat_axes = self.add(f"IFCAXIS2PLACEMENT2D(#{self.point(0.0, 0.0)},$)")
        self.axes = self.add(f"IFCAXIS2PLACEMENT3D(#{self.origin},#{self.up},#{self.along})")
        self.context = self.add(
            f"IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-5,#{self.axes},$)")
        style = "IFCPRESENTATIONSTYLEASSIGNMENT((IFCNULLSTYLE(.NULL.)))"
        self.styles = [self.add(style) for _ in range(STYLES)]
        self.bodies = []

    def point(self, *coordinates):
        return self.add(f"IFCCARTESIANPOINT(({','.join(number(c) for c in coordinates)}))")

    def direction(self, *ratios):
        return self.add(f"IFCDIRECTION(({','.join(number(r) for r in ratios)}))")

    def turned_axes(self, origin):
        """Adds a coordinate system. Half of them are not turned, some by any angle."""
        kind = self.random.random()
        if kind < 0.5:
            return self.add(f"IFCAXIS2PLACEMENT3D(#{origin},$,$)")
        turn = self.along
        if kind < 0.75:
            angle = self.random.uniform(0, math.tau)
            turn = self.direction(math.cos(angle), math.sin(angle), 0.0)
        return self.add(f"IFCAXIS2PLACEMENT3D(#{origin},#{self.up},#{turn})")

    def placement(self, parent, x, y, z):
        axes = self.turned_axes(self.point(x, y, z))
        return self.add(f"IFCLOCALPLACEMENT({parent},#{axes})")

    def representation(self, name, form, items):
        return self.add(f"IFCSHAPEREPRESENTATION(#{self.context},'{name}','{form}',{refs(items)})")

    def polyline(self, points):
        numbers = [self.point(*point) for point in points]
        if points[0] == points[-1]:
            numbers[-1] = numbers[0]
        return self.add(f"IFCPOLYLINE({refs(numbers)})")

    def rectangle(self, width, depth):
        centre = self.add(f"IFCAXIS2PLACEMENT2D(#{self.point(width / 2, depth / 2)},$)")
        return self.add(f"IFCRECTANGLEPROFILEDEF(.AREA.,$,#{centre},{number(width)},"
                        f"{number(depth)})")

    def outline(self, form, width, depth):
        corners = [(x * width, y * depth) for x, y in OUTLINES[form]]
        line = self.polyline(corners + corners[:1])
        return self.add(f"IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$,#{line})")

    def extrusion(self, profile, height):
        axes = self.add(f"IFCAXIS2PLACEMENT3D(#{self.point(0.0, 0.0, 0.0)},$,$)")
        return self.add(f"IFCEXTRUDEDAREASOLID(#{profile},#{axes},#{self.up},{number(height)})")

    def cut(self, solid, height):
        """Cuts the top of a solid by a plane."""
        axes = self.add(f"IFCAXIS2PLACEMENT3D(#{self.point(0.0, 0.0, 0.9 * height)},$,$)")
        half = self.add(f"IFCHALFSPACESOLID(#{self.add(f'IFCPLANE(#{axes})')},.F.)")
        return self.add(f"IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.,#{solid},#{half})")

    def face(self, *corners):
        loop = self.add(f"IFCPOLYLOOP({refs(corners)})")
        bound = self.add(f"IFCFACEOUTERBOUND(#{loop},.T.)")
        return self.add(f"IFCFACE({refs([bound])})")

    def brep(self, count, x, width, depth, height):
        """Adds a body of faces: a prism over a regular polygon, which begins at x."""
        angles = [math.tau * i / count for i in range(count)]
        bottom, top = ([self.point(x + width * (0.5 + 0.5 * math.cos(angle)),
                                   depth * (0.5 + 0.5 * math.sin(angle)), level)
                        for angle in angles] for level in (0.0, height))
        faces = [self.face(*reversed(bottom)), self.face(*top)]
        for i in range(count):
            j = (i + 1) % count
            if count < LEAST_TRIANGULATED:
                faces.append(self.face(bottom[i], bottom[j], top[j], top[i]))
            else:
                faces.append(self.face(bottom[i], bottom[j], top[j]))
                faces.append(self.face(bottom[i], top[j], top[i]))
        return self.add(f"IFCFACETEDBREP(#{self.add(f'IFCCLOSEDSHELL({refs(faces)})')})")

    def breps(self, count, sizes):
        """Adds a representation of several bodies of faces beside each other."""
        width, depth, height = sizes
        items = [self.brep(self.random.choice(SHELL_CORNERS), 1.25 * i * width,
                           width, depth, height) for i in range(count)]
        return self.representation("Body", "Brep", items)

    def share_bodies(self, sizes):
        """Adds the bodies that elements of the next storey share."""
        self.bodies = [self.add(f"IFCREPRESENTATIONMAP(#{self.axes},#{self.breps(1, sizes)})")
                       for _ in range(SHARED_BODIES)]

    def body(self, form, sizes):
        width, depth, height = sizes
        if form in ("faces", "shell"):
            return self.breps(1 if form == "shell" else self.random.choice(SHELLS), sizes)
        if form == "shared":
            to = self.add(f"IFCCARTESIANTRANSFORMATIONOPERATOR3D($,$,#{self.origin},1.,$)")
            item = self.add(f"IFCMAPPEDITEM(#{self.random.choice(self.bodies)},#{to})")
            return self.representation("Body", "MappedRepresentation", [item])
        profile = (self.outline(form, width, depth) if form in OUTLINES
                   else self.rectangle(width, depth))
        solid = self.extrusion(profile, height)
        if form == "cut":
            solid = self.cut(solid, height)
        self.add(f"IFCSTYLEDITEM(#{solid},{refs([self.random.choice(self.styles)])},$)")
        return self.representation("Body", "Clipping" if form == "cut" else "SweptSolid", [solid])

    def shape(self, kind, form, sizes):
        items = [self.body(form, sizes)]
        if kind.axis:
            line = self.polyline([(0.0, sizes[1] / 2), (sizes[0], sizes[1] / 2)])
            items.insert(0, self.representation("Axis", "Curve2D", [line]))
        return self.add(f"IFCPRODUCTDEFINITIONSHAPE($,$,{refs(items)})")


class Model(Shapes):
    """Adds elements in storeys."""

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
        self.begin_shapes()
        self.materials = [self.add(f"IFCMATERIAL('{name}')") for name, _ in LAYERS]
        layers = [self.add(f"IFCMATERIALLAYER(#{material},{number(thickness)},$)")
                  for material, (_, thickness) in zip(self.materials, LAYERS)]
        self.layers = self.add(f"IFCMATERIALLAYERSET({refs(layers)},'Wall in layers')")
        project = self.add_root("IFCPROJECT", "Model",
                                f"$,$,$,$,{refs([self.context])},#{assignment}")
        site_place = self.placement("$", 0.0, 0.0, 0.0)
        site = self.add_root("IFCSITE", "", f"$,$,#{site_place},$,$,.ELEMENT.,$,$,$,$,$")
        self.building_place = self.placement(f"#{site_place}", 0.0, 0.0, 0.0)
        self.building = self.add_root("IFCBUILDING", "",
                                      f"$,$,#{self.building_place},$,$,.ELEMENT.,$,$,$")
        self.add_root("IFCRELAGGREGATES", "", f"$,#{project},{refs([site])}")
        self.add_root("IFCRELAGGREGATES", "", f"$,#{site},{refs([self.building])}")

    def add_property(self, name, index):
        label, value = self.random.choice(PROPERTIES)
        value = value.format(name=name, index=index, text=self.random.choice(TEXTS),
                             number=number(self.coordinate(0, 4000)),
                             flag=self.random.choice("TF"))
        return self.add(f"IFCPROPERTYSINGLEVALUE('{label}',$,{value},$)")

    def add_properties(self, element, name, index):
        for label, own in PROPERTY_SETS:
            members = [self.add_property(name, index) for _ in range(own)]
            members += self.random.sample(self.shared, self.random.choice(SHARED_PER_SET))
            properties = self.add_root("IFCPROPERTYSET", label, f"$,{refs(members)}")
            self.add_root("IFCRELDEFINESBYPROPERTIES", "", f"$,{refs([element])},#{properties}")

    def element(self, kind, place, scale, index):
        """Adds an element and returns the numbers of the element and of its placement."""
        z = self.coordinate(0, 500) if kind.body == "shared" else 0.0
        own_place = self.placement(f"#{place}", self.coordinate(0, 50000),
                                   self.coordinate(0, 30000), z)
        faceted = kind.entity in ("IFCCOLUMN", "IFCBEAM") and index % FACETED == 0
        sizes = (scale * kind.width, scale * kind.depth, kind.height)
        shape = self.shape(kind, "shell" if faceted else kind.body, sizes)
        about = f"{kind.name}, {sizes[0]:.0f} x {sizes[1]:.0f} mm"
        number_ = self.add_root(kind.entity, f"{about}:{index:06d}",
                                f"$,'{about}',#{own_place},#{shape},'{index:06d}'{kind.tail}")
        if kind.layered:
            use = self.add(f"IFCMATERIALLAYERSETUSAGE(#{self.layers},.AXIS2.,.POSITIVE.,"
                           f"{number(-sizes[1] / 2)})")
            self.add_root("IFCRELASSOCIATESMATERIAL", "", f"$,{refs([number_])},#{use}")
        self.add_properties(number_, kind.name, index)
        return number_, own_place

    def door(self, wall, place, index):
        """Adds an opening in a wall and the door that fills it. Returns the number of the door."""
        opening, own_place = self.element(OPENING, place, 1.0, index)
        self.add_root("IFCRELVOIDSELEMENT", "", f"$,#{wall},#{opening}")
        door, _ = self.element(DOOR, own_place, 1.0, index)
        self.add_root("IFCRELFILLSELEMENT", "", f"$,#{opening},#{door}")
        return door

    def connect(self, before, wall):
        """Connects a wall with the one before it, if there is one. Returns the wall."""
        if before:
            self.add_root("IFCRELCONNECTSPATHELEMENTS", "",
                          f"$,$,#{before},#{wall},(),(),.ATSTART.,.ATEND.")
        return wall

    def elements(self, place, first):
        """Adds the elements of a storey. Returns the numbers of all, and of those without layers."""
        found, plain, last_wall = [], [], 0
        for index in range(first, first + ELEMENTS_PER_STOREY):
            kind = KINDS[index % len(KINDS)]
            element, own_place = self.element(kind, place, self.random.choice(SCALES), index)
            found.append(element)
            if not kind.layered:
                plain.append(element)
            if kind.entity == "IFCWALLSTANDARDCASE":
                last_wall = self.connect(last_wall, element)
                if index % 3 == 0:
                    found.append(self.door(element, own_place, index))
            self.flush()
            if self.is_full():
                break
        return found, plain

    def storey(self, index):
        place = self.placement(f"#{self.building_place}", 0.0, 0.0, 3000.0 * index)
        level = self.add_root("IFCBUILDINGSTOREY", f"Level {index}",
                              f"$,$,#{place},$,$,.ELEMENT.,{number(3000.0 * index)}")
        self.share_bodies((600.0, 600.0, 900.0))
        self.shared = [self.add_property("Shared", i) for i in range(SHARED_PROPERTIES)]
        found, plain = self.elements(place, index * ELEMENTS_PER_STOREY)
        self.add_root("IFCRELCONTAINEDINSPATIALSTRUCTURE", "", f"$,{refs(found)},#{level}")
        self.add_root("IFCRELASSOCIATESMATERIAL", "",
                      f"$,{refs(plain or found)},#{self.materials[0]}")
        return level

    def fill(self):
        self.begin()
        storeys = []
        while not self.is_full():
            storeys.append(self.storey(len(storeys)))
        self.add_root("IFCRELAGGREGATES", "", f"$,#{self.building},{refs(storeys)}")
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
