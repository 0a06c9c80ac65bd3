#!/usr/bin/env python3
"""Writes the model of a frame with columns, beams and slabs, to try the page with.

    python3 viewer/tests/make_frame.py --storeys 15 --bays 29 OUT.ifc

A storey with n bays in each direction has (n + 1)^2 columns, 2 n (n + 1) beams and n^2 slabs, so 15
storeys of 29 bays have 52,215 elements. With --hostile, the names are texts that must not act as
markup, as scripts, as formulas or as control sequences. The same options give the same file.
"""

import argparse

BAY = 6000  # all lengths are in millimetres
HEIGHT = 3500
SLAB = 200
BASE64 = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$"

# As the file spells them: a backslash is doubled, and X2 codes have four hexadecimal digits.
HOSTILE_NAMES = (
    "<script>window.hacked=1</script>",
    "</script><script>window.hacked=1</script><!--",
    "<img src=x onerror=window.hacked=1>",
    '"><svg onload=window.hacked=1>',
    "javascript:window.hacked=1",
    "=HYPERLINK(\"http://example.invalid\")",
    "+1+cmd|calc",
    "@SUM(A1)",
    "{{constructor.constructor()}}",
    "%3Cscript%3E",
    "&lt;b&gt;&amp;",
    "\\X2\\001B\\X0\\[31mred\\X2\\0007\\X0\\",
    "\\X2\\202E\\X0\\reversed",
    "\\X2\\0000\\X0\\zero",
    "__proto__",
    "constructor",
    "long " + "x" * 9995,
)

HEAD = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION(('A frame, in millimetres'),'2;1');
FILE_NAME('frame.ifc','2020-01-01T00:00:00',(''),(''),'','','');
FILE_SCHEMA(('IFC2X3'));
ENDSEC;
DATA;
#1=IFCPERSON('jd','Doe','Jo',$,$,$,$,$);
#2=IFCORGANIZATION($,'KelIFC',$,$,$);
#3=IFCPERSONANDORGANIZATION(#1,#2,$);
#4=IFCAPPLICATION(#2,'1.0','make_frame','FRAME');
#5=IFCOWNERHISTORY(#3,#4,$,.ADDED.,$,$,$,0);
#6=IFCCARTESIANPOINT((0.,0.,0.));
#7=IFCDIRECTION((0.,0.,1.));
#8=IFCDIRECTION((1.,0.,0.));
#9=IFCDIRECTION((0.,1.,0.));
#10=IFCAXIS2PLACEMENT3D(#6,#7,#8);
#11=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-5,#10,$);
#12=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);
#13=IFCUNITASSIGNMENT((#12));
#14=IFCPROJECT('0000000000000000000014',#5,'Frame',$,$,$,$,(#11),#13);
#15=IFCLOCALPLACEMENT($,#10);
#16=IFCBUILDING('0000000000000000000016',#5,'Frame',$,$,#15,$,$,.ELEMENT.,$,$,$);
#17=IFCRELAGGREGATES('0000000000000000000017',#5,$,$,#14,(#16));
#18=IFCCARTESIANPOINT((0.,0.));
#19=IFCAXIS2PLACEMENT2D(#18,$);
#20=IFCISHAPEPROFILEDEF(.AREA.,'HEB300',#19,300.,300.,11.,19.,27.);
#21=IFCISHAPEPROFILEDEF(.AREA.,'IPE400',#19,180.,400.,8.6,13.5,21.);
#22=IFCRECTANGLEPROFILEDEF(.AREA.,$,#19,{bay}.,{bay}.);
#23=IFCEXTRUDEDAREASOLID(#20,#10,#7,{column}.);
#24=IFCEXTRUDEDAREASOLID(#21,#10,#7,{bay}.);
#25=IFCEXTRUDEDAREASOLID(#22,#10,#7,{slab}.);
#26=IFCSHAPEREPRESENTATION(#11,'Body','SweptSolid',(#23));
#27=IFCSHAPEREPRESENTATION(#11,'Body','SweptSolid',(#24));
#28=IFCSHAPEREPRESENTATION(#11,'Body','SweptSolid',(#25));
#29=IFCMATERIAL('Steel S355');
#30=IFCMATERIAL('Concrete C30/37');
"""


class Frame:
    def __init__(self, out, is_hostile):
        self.out = out
        self.is_hostile = is_hostile
        self.number = 100
        self.count = 0
        self.members = {"#29": [], "#30": []}  # elements by material
        out.write(HEAD.format(bay=BAY, column=HEIGHT - SLAB, slab=SLAB))

    def add(self, text):
        self.number += 1
        self.out.write(f"#{self.number}={text};\n")
        return f"#{self.number}"

    def guid(self):
        number, text = self.number + 1, ""
        for _ in range(22):
            text = BASE64[number % 64] + text
            number //= 64
        return text

    def name(self, plain):
        self.count += 1
        return HOSTILE_NAMES[self.count % len(HOSTILE_NAMES)] if self.is_hostile else plain

    def placement(self, parent, point, axes="#7,#8"):
        at = self.add("IFCCARTESIANPOINT(({0}.,{1}.,{2}.))".format(*point))
        return self.add(f"IFCLOCALPLACEMENT({parent},{self.add(f'IFCAXIS2PLACEMENT3D({at},{axes})')})")

    def element(self, entity, name, placement, representation, material):
        shape = self.add(f"IFCPRODUCTDEFINITIONSHAPE($,$,({representation}))")
        last = ",.FLOOR." if entity == "IFCSLAB" else ""
        element = self.add(f"{entity}('{self.guid()}',#5,'{self.name(name)}',$,$,{placement},"
                           f"{shape},'T{self.count}'{last})")
        self.members[material].append(element)
        return element

    def storey(self, index, bays):
        level = index * HEIGHT
        parent = self.placement("#15", (0, 0, level))
        storey = self.add(f"IFCBUILDINGSTOREY('{self.guid()}',#5,'{self.name(f'Storey {index}')}',"
                          f"$,$,{parent},$,$,.ELEMENT.,{level}.)")
        top = HEIGHT - SLAB
        elements = []
        for x in range(bays + 1):
            for y in range(bays + 1):
                at = self.placement(parent, (x * BAY, y * BAY, 0))
                elements.append(self.element("IFCCOLUMN", f"C {index} {x}/{y}", at, "#26", "#29"))
                # The profile's x axis is horizontal: the third axis is the beam's.
                for dx, dy, axes in ((1, 0, "#8,#9"), (0, 1, "#9,#8")):
                    if x + dx > bays or y + dy > bays:
                        continue
                    at = self.placement(parent, (x * BAY, y * BAY, top - 200), axes)
                    elements.append(self.element("IFCBEAM", f"B {index} {x}/{y}", at, "#27", "#29"))
                if x < bays and y < bays:
                    middle = (x * BAY + BAY // 2, y * BAY + BAY // 2, top)
                    at = self.placement(parent, middle)
                    elements.append(self.element("IFCSLAB", f"S {index} {x}/{y}", at, "#28", "#30"))
        self.add(f"IFCRELCONTAINEDINSPATIALSTRUCTURE('{self.guid()}',#5,$,$,"
                 f"({','.join(elements)}),{storey})")
        return storey

    def finish(self, storeys):
        self.add(f"IFCRELAGGREGATES('{self.guid()}',#5,$,$,#16,({','.join(storeys)}))")
        for material, elements in self.members.items():
            self.add(f"IFCRELASSOCIATESMATERIAL('{self.guid()}',#5,$,$,({','.join(elements)}),"
                     f"{material})")
        # This column has no shape, so it is a loss.
        self.add(f"IFCCOLUMN('{self.guid()}',#5,'{self.name('Without a shape')}',$,$,#15,$,$)")
        self.out.write("ENDSEC;\nEND-ISO-10303-21;\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--storeys", type=int, default=3)
    parser.add_argument("--bays", type=int, default=4)
    parser.add_argument("--hostile", action="store_true")
    parser.add_argument("output")
    options = parser.parse_args()
    with open(options.output, "w", encoding="ascii") as out:
        frame = Frame(out, options.hostile)
        frame.finish([frame.storey(i, options.bays) for i in range(options.storeys)])


if __name__ == "__main__":
    main()
