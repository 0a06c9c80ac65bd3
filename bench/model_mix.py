"""What the models that make_model.py writes consist of.

The counts and proportions are about those of real models. docs/performance.md compares them, and
model_statistics.py counts them in any model.
"""

import collections

# A kind of element. `tail` is the text of the attributes after those of all elements. `width`,
# `depth` and `height` are in millimetres. `body` is the form of the body: an extruded rectangle, an
# extruded outline in the shape of an L or an I, an extruded rectangle that a plane cuts, shells of
# faces, or a representation that several elements share. An element with an axis has a line as its
# second representation. `layered` elements have layers as their material.
Kind = collections.namedtuple("Kind", "entity name tail width depth height body axis layered")

KINDS = (
    Kind("IFCWALLSTANDARDCASE", "Exterior wall, concrete and insulation", "",
         5000.0, 240.0, 2750.0, "rectangle", True, True),
    Kind("IFCCOLUMN", "Column, reinforced concrete", "",
         300.0, 300.0, 2750.0, "rectangle", False, False),
    Kind("IFCBUILDINGELEMENTPROXY", "Handrail with balusters", ",$",
         800.0, 600.0, 900.0, "faces", False, False),
    Kind("IFCSLAB", "Floor slab, reinforced concrete", ",.FLOOR.",
         6000.0, 4000.0, 200.0, "L", False, True),
    Kind("IFCBEAM", "Beam, structural steel S235", "",
         200.0, 400.0, 5000.0, "I", True, False),
    Kind("IFCBUILDINGELEMENTPROXY", "Table with four chairs", ",$",
         500.0, 500.0, 450.0, "shared", False, False),
    Kind("IFCWALLSTANDARDCASE", "Interior wall, limestone", "",
         4000.0, 115.0, 2750.0, "cut", True, True),
    Kind("IFCFOOTING", "Pad", ",.PAD_FOOTING.",
         1500.0, 1500.0, 600.0, "L", False, False))
OPENING = Kind("IFCOPENINGELEMENT", "Opening", "",
               1010.0, 400.0, 2135.0, "rectangle", False, False)
DOOR = Kind("IFCDOOR", "Single door with frame", ",2135.,1010.",
            1010.0, 50.0, 2135.0, "shared", False, False)

ELEMENTS_PER_STOREY = 400
FACETED = 10  # one column or beam of so many has a shell of faces, whatever its kind says
SHARED_BODIES = 12  # in each storey
SHELLS = (1, 3, 5)  # a body of faces has one of these numbers of shells
SHELL_CORNERS = (4, 4, 8, 16)  # a shell is a prism over a polygon with so many corners
LEAST_TRIANGULATED = 16  # the sides of a prism with so many corners are triangles

# Factors of the sizes of an element. They are few, so that elements share sections. Sizes in inches
# make numbers with many digits.
SCALES = (0.6096, 0.762, 1.0, 1.0668, 1.3716)
LONG_NUMBERS = 0.9  # the proportion of placements that were not rounded to millimetres

# The sets of properties of an element: their names, and the number of properties of each that no
# other set has. Each set also refers to some properties that the sets of a storey share.
PROPERTY_SETS = (("Pset_Common", 3), ("Dimensions", 3), ("Constraints", 2),
                 ("PSet_Identity Data", 1), ("PSet_Phasing and Workflow", 1))
SHARED_PROPERTIES = 40  # in each storey
SHARED_PER_SET = (1, 2, 3, 4)  # a set refers to one of these numbers of shared properties

# Names of properties and their values. `{text}` is one of TEXTS, `{name}` the name of the element,
# `{number}` a number with many digits and `{flag}` T or F.
PROPERTIES = (
    ("Length", "IFCLENGTHMEASURE({number})"), ("Comments", "IFCTEXT('{text}')"),
    ("Offset from Storey", "IFCLENGTHMEASURE({number})"), ("Type", "IFCLABEL('{text}')"),
    ("Volume", "IFCVOLUMEMEASURE({number})"), ("Phase Created", "IFCLABEL('{text}')"),
    ("Area", "IFCAREAMEASURE({number})"), ("Reference", "IFCIDENTIFIER('{name}')"),
    ("Unconnected Height", "IFCLENGTHMEASURE({number})"), ("LoadBearing", "IFCBOOLEAN(.{flag}.)"),
    ("Base Constraint", "IFCLABEL('{text}')"), ("Width", "IFCPOSITIVELENGTHMEASURE({number})"),
    ("Structural Usage of Element", "IFCLABEL('{text}')"), ("Mark", "IFCINTEGER({index})"),
    ("ThermalTransmittance", "IFCREAL({number})"), ("Workset", "IFCLABEL('{text}')"))
TEXTS = ("None", "Level 1", "Concrete C30/37", "New construction", "By contractor", "Bearing",
         "Fire resistance class F90, tested", "Finish face: exterior, see sheet A-301 for details")

LAYERS = (("Concrete C30/37", 200.0), ("Mineral wool", 40.0), ("Gypsum plaster", 12.5))
STYLES = 12
