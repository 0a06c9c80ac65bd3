"""Writes models of release 2x3 whose bodies are known."""

HEADER = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION(('ViewDefinition [CoordinationView]'),'2;1');
FILE_NAME('made.ifc','2020-01-01T00:00:00',('made'),('made'),'made','made','');
FILE_SCHEMA(('IFC2X3'));
ENDSEC;
DATA;
"""

CHARACTERS = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$"

UNITS = {  # metres in one unit
    "mm": 0.001, "cm": 0.01, "m": 1.0, "inch": 0.0254, "foot": 0.3048,
}
ANGLES = {"radian": 1.0, "degree": 0.017453292519943295, "grad": 0.015707963267948967}


def guid(number):
    text = ""
    for _ in range(22):
        text = CHARACTERS[number % 64] + text
        number //= 64
    return "'%s'" % text


class Text:
    """A value that is written as it is."""

    def __init__(self, text):
        self.text = text


class Ref(int):
    pass


def written(value):
    if value is None:
        return "$"
    if isinstance(value, Text):
        return value.text
    if isinstance(value, Ref):
        return "#%d" % value
    if isinstance(value, bool):
        return ".T." if value else ".F."
    if isinstance(value, float):
        text = repr(value)
        if "e" in text and "." not in text:
            text = text.replace("e", ".e")
        return text.upper()
    if isinstance(value, int):
        return str(value)
    if isinstance(value, str):
        return "'%s'" % value
    return "(%s)" % ",".join(written(v) for v in value)


class Model:
    def __init__(self, unit="mm", angle="radian", site=(0.0, 0.0, 0.0)):
        self.lines = []
        self.metre = 1.0 / UNITS[unit]
        self.radian = 1.0 / ANGLES[angle]
        self.products = []
        units = [self.length_unit(unit), self.angle_unit(angle)]
        self.context = self.add("IFCGEOMETRICREPRESENTATIONCONTEXT", None, "Model", 3, 1e-5,
                                self.placement(), None)
        owner = self.owner()
        self.history = owner
        self.project = self.add("IFCPROJECT", Text(guid(1)), owner, "made", None, None, None, None,
                                [self.context], self.add("IFCUNITASSIGNMENT", units))
        self.site_place = self.local(None, self.placement(site))
        self.storey_place = self.local(self.site_place, self.placement())
        self.storey = self.add("IFCBUILDINGSTOREY", Text(guid(2)), owner, "storey", None, None,
                               self.storey_place, None, None, Text(".ELEMENT."), 0.0)
        self.add("IFCRELAGGREGATES", Text(guid(3)), owner, None, None, self.project, [self.storey])

    def add(self, entity, *values):
        self.lines.append("%s(%s)" % (entity, ",".join(written(v) for v in values)))
        return Ref(len(self.lines))

    def text(self):
        data = "".join("#%d=%s;\n" % (i + 1, line) for i, line in enumerate(self.lines))
        return HEADER + data + "ENDSEC;\nEND-ISO-10303-21;\n"

    def owner(self):
        person = self.add("IFCPERSON", None, "made", None, None, None, None, None, None)
        company = self.add("IFCORGANIZATION", None, "made", None, None, None)
        both = self.add("IFCPERSONANDORGANIZATION", person, company, None)
        application = self.add("IFCAPPLICATION", company, "1", "made", "made")
        return self.add("IFCOWNERHISTORY", both, application, None, Text(".NOCHANGE."), None, None,
                        None, 0)

    def length_unit(self, unit):
        prefixes = {"mm": ".MILLI.", "cm": ".CENTI.", "m": "$"}
        if unit in prefixes:
            return self.add("IFCSIUNIT", Text("*"), Text(".LENGTHUNIT."), Text(prefixes[unit]),
                            Text(".METRE."))
        base = self.add("IFCSIUNIT", Text("*"), Text(".LENGTHUNIT."), None, Text(".METRE."))
        return self.conversion(unit, "LENGTH", UNITS[unit], base, 1)

    def angle_unit(self, angle):
        base = self.add("IFCSIUNIT", Text("*"), Text(".PLANEANGLEUNIT."), None, Text(".RADIAN."))
        if angle == "radian":
            return base
        return self.conversion(angle, "PLANEANGLE", ANGLES[angle], base, 0)

    def conversion(self, name, kind, factor, base, exponent):
        measure = "IFCLENGTHMEASURE" if kind == "LENGTH" else "IFCPLANEANGLEMEASURE"
        value = self.add("IFCMEASUREWITHUNIT", Text("%s(%r)" % (measure, factor)), base)
        dimensions = self.add("IFCDIMENSIONALEXPONENTS", exponent, 0, 0, 0, 0, 0, 0)
        return self.add("IFCCONVERSIONBASEDUNIT", dimensions, Text(".%sUNIT." % kind),
                        name.upper(), value)

    # Lengths are given in metres and written in the unit of the model.

    def point(self, p):
        return self.add("IFCCARTESIANPOINT", [float(c) * self.metre for c in p])

    def direction(self, v):
        return self.add("IFCDIRECTION", [float(c) for c in v])

    def placement(self, origin=(0.0, 0.0, 0.0), z=None, x=None):
        return self.add("IFCAXIS2PLACEMENT3D", self.point(origin),
                        None if z is None else self.direction(z),
                        None if x is None else self.direction(x))

    def frame(self, frame):
        return self.placement(frame.origin, frame.axes[2], frame.axes[0])

    def local(self, parent, placement):
        return self.add("IFCLOCALPLACEMENT", parent, placement)

    def polyline(self, points, is_closed=True):
        refs = [self.point(p) for p in points]
        return self.add("IFCPOLYLINE", refs + refs[:1] if is_closed else refs)

    def profile(self, outer, holes=()):
        curve = outer if isinstance(outer, Ref) else self.polyline(outer)
        if not holes:
            return self.add("IFCARBITRARYCLOSEDPROFILEDEF", Text(".AREA."), None, curve)
        return self.add("IFCARBITRARYPROFILEDEFWITHVOIDS", Text(".AREA."), None, curve,
                        [h if isinstance(h, Ref) else self.polyline(h) for h in holes])

    def extrusion(self, profile, depth, direction=(0, 0, 1), place=None):
        return self.add("IFCEXTRUDEDAREASOLID", profile, place or self.placement(),
                        self.direction(direction), depth * self.metre)

    def shell(self, solid, entity="IFCCLOSEDSHELL", shares=True, distort=None):
        refs = {}

        def vertex(i):
            p = solid.points[i]
            if not shares:
                return self.point(distort(p) if distort else p)
            if i not in refs:
                refs[i] = self.point(p)
            return refs[i]
        faces = []
        for face in solid.faces:
            bounds = []
            for k, loop in enumerate(face):
                polygon = self.add("IFCPOLYLOOP", [vertex(i) for i in loop])
                bounds.append(self.add("IFCFACEOUTERBOUND" if k == 0 else "IFCFACEBOUND", polygon,
                                       True))
            faces.append(self.add("IFCFACE", bounds))
        return self.add(entity, faces)

    def brep(self, solid, **options):
        return self.add("IFCFACETEDBREP", self.shell(solid, **options))

    def half_space(self, point, z, agreement=False, x=None):
        plane = self.add("IFCPLANE", self.placement(point, z, x))
        return self.add("IFCHALFSPACESOLID", plane, agreement)

    def clipped(self, first, second):
        return self.add("IFCBOOLEANCLIPPINGRESULT", Text(".DIFFERENCE."), first, second)

    def boolean(self, operation, first, second):
        return self.add("IFCBOOLEANRESULT", Text(".%s." % operation), first, second)

    def mapped(self, items, kind, origin=None, target=None):
        shape = self.add("IFCSHAPEREPRESENTATION", self.context, "Body", kind, items)
        source = self.add("IFCREPRESENTATIONMAP", origin or self.placement(), shape)
        target = target or self.add("IFCCARTESIANTRANSFORMATIONOPERATOR3D", None, None,
                                    self.point((0, 0, 0)), None, None)
        return self.add("IFCMAPPEDITEM", source, target)

    def element(self, entity, name, items, kind="SolidModel", frame=None):
        if isinstance(items, Ref):
            items = [items]
        place = self.local(self.storey_place, self.frame(frame) if frame else self.placement())
        shape = self.add("IFCSHAPEREPRESENTATION", self.context, "Body", kind, items)
        definition = self.add("IFCPRODUCTDEFINITIONSHAPE", None, None, [shape])
        extra = {"IFCSLAB": [Text(".FLOOR.")], "IFCFOOTING": [Text(".PAD_FOOTING.")],
                 "IFCPILE": [Text(".BORED."), None], "IFCSTAIRFLIGHT": [None] * 4,
                 "IFCBUILDINGELEMENTPROXY": [None]}
        product = self.add(entity, Text(guid(1000 + len(self.lines))), self.history, name, None,
                           None, place, definition, None, *extra.get(entity, []))
        self.products.append(product)
        return product

    def void(self, element, item, frame=None):
        place = self.local(self.storey_place, self.frame(frame) if frame else self.placement())
        shape = self.add("IFCSHAPEREPRESENTATION", self.context, "Body", "SweptSolid", [item])
        definition = self.add("IFCPRODUCTDEFINITIONSHAPE", None, None, [shape])
        opening = self.add("IFCOPENINGELEMENT", Text(guid(1000 + len(self.lines))), self.history,
                           "opening", None, None, place, definition, None)
        self.add("IFCRELVOIDSELEMENT", Text(guid(1000 + len(self.lines))), self.history, None, None,
                 element, opening)
        return opening

    def contain(self):
        self.add("IFCRELCONTAINEDINSPATIALSTRUCTURE", Text(guid(4)), self.history, None, None,
                 self.products, self.storey)
