"""Models of what is known beside the solids: profiles of all classes, openings, decompositions, and
products that are lost for each reason."""

import math

from made_geometry import Frame, c_shape, rectangle, rotation
from made_models import Ref, Text, guid

CORNER = 1 - math.pi / 4  # the area between a square of side 1 and the quarter circle in it
DEPTH = 2.5


class Expected:
    """What the reading of a product has to be. Values that are None are not compared."""

    def __init__(self, name, kind=None, volume=None, shape=None, lost=None, **expected):
        self.name = name
        self.kind = kind
        self.volume = volume
        self.shape = shape
        self.lost = lost  # the reason, for a product that is no element
        self.openings = expected.pop("openings", None)
        self.part_of = expected.pop("part_of", None)
        self.is_decomposed = expected.pop("decomposed", False)

    def faults_of(self, element, profiles):
        found = {"kind": element["kind"], "openings": len(element["openings"]),
                 "part_of": element["partOf"]}
        if element["kind"] == "member":
            found["shape"] = profiles[element["profile"]]["shape"]
        faults = ["%s is %s, not %s" % (key, found.get(key), getattr(self, key))
                  for key in ("kind", "shape", "openings", "part_of")
                  if getattr(self, key) not in (None, found.get(key))]
        if self.volume and abs(element["volume"] / self.volume - 1) > 2e-3:
            faults.append("volume is %.6g, not %.6g" % (element["volume"], self.volume))
        if element["approximate"]:
            faults.append("approximate")
        return faults


# Name, entity, sizes in metres, area, shape. None is an unset size.
SHAPES = [
    ("rectangle", "RECTANGLE", (.3, .2), .3 * .2, "rectangle"),
    ("rounded rectangle", "ROUNDEDRECTANGLE", (.3, .2, .02), .3 * .2 - 4 * CORNER * .02 ** 2,
     "rounded-rectangle"),
    ("hollow rectangle", "RECTANGLEHOLLOW", (.3, .2, .01, .01, .02),
     .3 * .2 - .28 * .18 + 4 * CORNER * (.01 ** 2 - .02 ** 2), "hollow-rectangle"),
    ("trapezium", "TRAPEZIUM", (.3, .1, .2, .05), .2 * .2, "trapezium"),
    ("circle", "CIRCLE", (.1,), math.pi * .1 ** 2, "circle"),
    ("hollow circle", "CIRCLEHOLLOW", (.1, .01), math.pi * (.1 ** 2 - .09 ** 2), "hollow-circle"),
    ("ellipse", "ELLIPSE", (.2, .1), math.pi * .2 * .1, "ellipse"),
    ("I", "ISHAPE", (.21, .22, .0095, .016, .018),
     2 * .21 * .016 + .188 * .0095 + 4 * CORNER * .018 ** 2, "I"),
    ("asymmetric I", "ASYMMETRICISHAPE", (.22, .3, .01, .02, .018, .16, .012, .01, None),
     .22 * .02 + .16 * .012 + .268 * .01 + 2 * CORNER * (.018 ** 2 + .01 ** 2), "asymmetric-I"),
    ("L", "LSHAPE", (.1, .08, .01, .012, .006, None, None, None),
     .17 * .01 + CORNER * (.012 ** 2 - 2 * .006 ** 2), "L"),
    ("L with equal legs", "LSHAPE", (.1, None, .01, None, None, None, None, None), .19 * .01, "L"),
    ("U", "USHAPE", (.2, .075, .0085, .0115, .0115, .006, None, None),
     .2 * .0085 + 2 * .0665 * .0115 + 2 * CORNER * (.0115 ** 2 - .006 ** 2), "U"),
    ("T", "TSHAPE", (.1, .08, .009, .011, .011, None, None, None, None, None),
     .08 * .011 + .089 * .009 + 2 * CORNER * .011 ** 2, "T"),
    ("C", "CSHAPE", (.2, .07, .002, .02, None, None), .2 * .002 + 2 * (.068 + .018) * .002, "C"),
    ("Z", "ZSHAPE", (.2, .07, .004, .005, None, None), .2 * .004 + 2 * .066 * .005, "Z"),
]


def add_shape(model, entity, sizes):
    place = model.add("IFCAXIS2PLACEMENT2D", model.point((.4, -.3)), model.direction((.6, .8)))
    lengths = [None if size is None else size * model.metre for size in sizes]
    return model.add("IFC%sPROFILEDEF" % entity, Text(".AREA."), "N", place, *lengths)


def derived(model, profile):
    """A profile that is mirrored and twice as large."""
    operator = model.add("IFCCARTESIANTRANSFORMATIONOPERATOR2D", model.direction((-1, 0)),
                         model.direction((0, 1)), model.point((0, 0)), 2.0)
    return model.add("IFCDERIVEDPROFILEDEF", Text(".AREA."), "N", profile, operator, None)


def other_profiles(model):
    """Profiles without sizes: name, profile, area, shape."""
    yield "arbitrary C", model.profile(c_shape(.2, .07, .002, .02)), .000744, "C"
    yield "voids", model.profile(rectangle(.3, .3), [rectangle(.2, .2)]), .05, "hollow-rectangle"
    line = model.polyline([(0, 0), (.2, 0), (.2, .1)], False)
    yield "centre line", model.add("IFCCENTERLINEPROFILEDEF", Text(".AREA."), None, line,
                                   .01 * model.metre), .003, None
    halves = [model.profile([(x, 0), (x + .1, 0), (x + .1, .3), (x, .3)]) for x in (0, .1)]
    yield "composite", model.add("IFCCOMPOSITEPROFILEDEF", Text(".AREA."), None, halves, None), \
        .06, "rectangle"
    small = add_shape(model, "LSHAPE", (.1, .08, .01, None, None, None, None, None))
    yield "derived", derived(model, small), 4 * .17 * .01, "L"


def add_profiles(model, add):
    for name, entity, sizes, area, shape in SHAPES:
        add(Expected("profile " + name, "member", area * DEPTH, shape),
            [model.extrusion(add_shape(model, entity, sizes), DEPTH)])
    for name, profile, area, shape in other_profiles(model):
        add(Expected("profile " + name, "member", area * DEPTH, shape),
            [model.extrusion(profile, DEPTH)])
    mirrored = model.add("IFCCARTESIANTRANSFORMATIONOPERATOR3D", model.direction((-1, 0, 0)),
                         model.direction((0, 1, 0)), model.point((0, 0, 0)), None,
                         model.direction((0, 0, 1)))
    angle = model.extrusion(add_shape(model, "LSHAPE", SHAPES[9][2]), DEPTH)
    add(Expected("mirrored map", "member", SHAPES[9][3] * DEPTH, "arbitrary"),
        [model.mapped([angle], "SweptSolid", None, mirrored)])


def add_openings(model, add):
    wall = model.extrusion(model.profile(rectangle(5, .2)), 3.0)
    product, frame = add(Expected("wall with openings", "surface", 3.0, openings=2), [wall],
                         "IFCWALL")
    for x, hole in ((-1, rectangle(1, .5)), (1, rectangle(.8, .5))):
        item = model.extrusion(model.profile([(u + x, v) for u, v in hole]), 1.2)
        model.void(product, item, Frame(frame((0, 0, 1)), frame.axes))


def add_wholes(model, add):
    beam = model.extrusion(model.profile(rectangle(.1, .2)), 3.0)
    for entity, extra, is_product in (("IFCSLAB", [Text(".FLOOR.")], True),
                                      ("IFCSTAIR", [Text(".NOTDEFINED.")], False),
                                      ("IFCELEMENTASSEMBLY", [None, Text(".TRUSS.")], False)):
        parts = [add(Expected("part of " + entity, "member", .06), [beam], "IFCBEAM")[0]
                 for _ in range(3)]
        place = model.local(model.storey_place, model.placement())
        whole = model.add(entity, Text(guid(1000 + len(model.lines))), model.history, entity, None,
                          None, place, None, None, *extra)
        aggregate(model, whole, parts)
        if is_product:
            add.note(whole, Expected(entity, decomposed=True))
    whole, _ = add(Expected("whole with items", "member", .06), [beam], "IFCBEAM")
    part, _ = add(Expected("its part", "member", .06, part_of=int(whole)), [beam], "IFCMEMBER")
    aggregate(model, whole, [part])


def aggregate(model, whole, parts):
    model.add("IFCRELAGGREGATES", Text(guid(1000 + len(model.lines))), model.history, None, None,
              whole, parts)


def add_losses(model, add):
    def lose(reason, items, **options):
        add(Expected("lost " + reason, lost=reason), items, **options)
    square = model.profile(rectangle(.2, .2))
    lose("no-items", [])
    place = model.local(model.storey_place, model.placement())
    shapeless = model.add("IFCCOLUMN", Text(guid(1000 + len(model.lines))), model.history, "column",
                          None, None, place, None, None)
    add.note(shapeless, Expected("lost no-representation", lost="no-representation"))
    bow_tie = [(0, 0), (1, 1), (1, 0), (0, 1)]
    lose("self-intersecting", [model.extrusion(model.profile(bow_tie), 1.0)])
    lose("unsupported-item", [model.add("IFCGEOMETRICSET", [model.polyline(rectangle(1, 1))])])
    line = model.polyline([(0, 0), (1, 0)], False)
    lose("unsupported-profile",
         [model.extrusion(model.add("IFCARBITRARYOPENPROFILEDEF", Text(".CURVE."), None, line), 1)])
    lose("dangling", [Ref(99999999)])
    lose("cycle", [model.boolean("UNION", Ref(len(model.lines) + 1), Ref(len(model.lines) + 1))])
    lose("degenerate", [model.extrusion(square, 0.0)])
    lose("degenerate", [model.extrusion(model.profile([(0, 0), (1, 0), (2, 0)]), 1.0)])
    far = model.add("IFCAXIS2PLACEMENT3D", model.add(
        "IFCCARTESIANPOINT", [Text("1.E400"), 0.0, 0.0]), None, None)
    lose("not-finite", [model.extrusion(square, 1.0, place=far)])


class Adder:
    """Adds products to a model side by side, each turned in its own way, and keeps what is known."""

    def __init__(self, model):
        self.model = model
        self.expected = {}

    def note(self, product, expected):
        self.expected[int(product)] = expected

    def __call__(self, expected, items, entity="IFCCOLUMN"):
        count = len(self.expected)
        frame = Frame((8.0 * (count % 8), 8.0 * (count // 8), 0), rotation((0, 0, 1), .3 * count))
        product = self.model.element(entity, expected.name, items, frame=frame)
        self.note(product, expected)
        return product, frame


def write(model):
    """Fills a model; returns what is expected of its products, by instance number."""
    add = Adder(model)
    for part in (add_profiles, add_openings, add_wholes, add_losses):
        part(model, add)
    model.contain()
    return add.expected


def faults_of(building, expected):
    """All differences, as pairs of an instance number and a text."""
    elements = {element["id"]: element for element in building["elements"]}
    losses = {loss["id"]: loss["reason"] for loss in building["losses"]}
    for number, known in expected.items():
        element, reason = elements.get(number), losses.get(number)
        if reason != known.lost:
            yield number, "%s: lost for %s, not for %s" % (known.name, reason, known.lost)
        elif (element is None) != bool(known.lost or known.is_decomposed):
            yield number, "%s: element %s" % (known.name, element)
        elif element is not None:
            for fault in known.faults_of(element, building["profiles"]):
                yield number, "%s: %s" % (known.name, fault)
    totals = building["totals"]
    known = {"products": len(expected), "lost": sum(bool(e.lost) for e in expected.values()),
             "decomposed": sum(e.is_decomposed for e in expected.values())}
    for key, value in known.items():
        if totals[key] != value:
            yield 0, "%s are %d, not %d" % (key, totals[key], value)
