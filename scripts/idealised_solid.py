"""The geometry of an element of `kelifc elements --json --bodies`, computed from the JSON alone.

This is a second computation, in other words than those of the library: the idealised solid is a set
of vertices and a function from a point to its distance outside of the solid.
"""

import math

CHORD_ERROR = 1e-4


def add(a, b):
    return [x + y for x, y in zip(a, b)]


def sub(a, b):
    return [x - y for x, y in zip(a, b)]


def scale(a, factor):
    return [x * factor for x in a]


def dot(a, b):
    return sum(x * y for x, y in zip(a, b))


def cross(a, b):
    return [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]]


def length(a):
    return math.sqrt(dot(a, a))


def unit(a):
    size = length(a)
    return scale(a, 1 / size) if size else list(a)


def box_of(points):
    return [[f(p[i] for p in points) for i in range(3)] for f in (min, max)]


def plane_area(loop):
    return 0.5 * sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(loop, loop[1:] + loop[:1]))


def distance_to_segment(p, a, b):
    d = sub(b, a)
    along = dot(d, d)
    t = 0.0 if along == 0 else min(1.0, max(0.0, dot(sub(p, a), d) / along))
    return length(sub(p, add(a, scale(d, t))))


def is_inside(p, loops):
    """By the even-odd rule."""
    inside = False
    for loop in loops:
        for a, b in zip(loop, loop[1:] + loop[:1]):
            if (a[1] > p[1]) != (b[1] > p[1]):
                if p[0] < a[0] + (p[1] - a[1]) * (b[0] - a[0]) / (b[1] - a[1]):
                    inside = not inside
    return inside


def outside_of_loops(p, loops):
    if is_inside(p, loops):
        return 0.0
    return min(distance_to_segment(p, a, b)
               for loop in loops for a, b in zip(loop, loop[1:] + loop[:1]))


class Arc:
    """A circular arc in space through three points."""

    def __init__(self, start, through, end):
        u, v = sub(through, start), sub(end, start)
        normal = cross(u, v)
        square = dot(normal, normal)
        offset = scale(add(scale(cross(v, normal), dot(u, u)), scale(cross(normal, u), dot(v, v))),
                       0.5 / square)
        self.centre = add(start, offset)
        self.radius = length(offset)
        self.normal = unit(normal)
        self.x = scale(offset, -1 / self.radius)
        self.y = cross(self.normal, self.x)
        self.angle = self.angle_of(end)

    def angle_of(self, p):
        d = sub(p, self.centre)
        return math.atan2(dot(d, self.y), dot(d, self.x)) % (2 * math.pi)

    def turned(self, v, angle):
        """A vector turned about the normal of the arc."""
        n = self.normal
        along = scale(n, dot(n, v))
        rest = sub(v, along)
        return add(along, add(scale(rest, math.cos(angle)), scale(cross(n, rest), math.sin(angle))))

    def at(self, angle):
        return add(self.centre, add(scale(self.x, self.radius * math.cos(angle)),
                                    scale(self.y, self.radius * math.sin(angle))))

    def points(self):
        step = 2 * math.acos(max(-1.0, 1 - CHORD_ERROR / max(self.radius, CHORD_ERROR)))
        count = max(2, math.ceil(self.angle / step))
        return [self.at(self.angle * i / count) for i in range(count + 1)]


class LineMember:
    """A profile along a line, cut square or by planes."""

    def __init__(self, element, profiles):
        profile = profiles[element["profile"]]
        self.loops = [profile["outline"]] + profile["holes"]
        end = element["profileEnd"]
        last = profile if end is None else profiles[end]
        self.is_tapered = end is not None
        self.end_loops = [last["outline"]] + last["holes"] if self.is_tapered else self.loops
        start, stop = element["axis"]
        self.x = unit(sub(stop, start))
        self.y = element["y"]
        self.z = cross(self.x, self.y)
        self.start = self.to_centroid(start, element["offset"])
        self.span = length(sub(stop, start))
        self.planes = [plane or {"point": p, "normal": scale(self.x, sign)}
                       for plane, p, sign in zip(element["ends"], (start, stop), (-1, 1))]
        self.areas = profile["area"], last["area"]

    def to_centroid(self, p, offset):
        return sub(p, add(scale(self.y, offset[0]), scale(self.z, offset[1])))

    def cut(self, y, z, plane):
        """The point where the line through profile coordinates meets the plane of an end."""
        p = add(self.start, add(scale(self.y, y), scale(self.z, z)))
        slope = dot(self.x, plane["normal"])
        along = dot(sub(plane["point"], p), plane["normal"]) / slope
        return add(p, scale(self.x, along))

    def vertices(self):
        return [self.cut(y, z, plane)
                for loops, plane in zip((self.loops, self.end_loops), self.planes)
                for loop in loops for y, z in loop]

    def volume(self):
        span = dot(sub(self.cut(0, 0, self.planes[1]), self.cut(0, 0, self.planes[0])), self.x)
        first, last = self.areas
        if not self.is_tapered:
            return span * first
        middle = [abs(plane_area(loop)) for loop in self.loops_at(0.5 * self.span)]
        return span * (first + 4 * (middle[0] - sum(middle[1:])) + last) / 6

    def loops_at(self, along):
        return blended(self.loops, self.end_loops, min(1.0, max(0.0, along / self.span)))

    def outside(self, p):
        d = sub(p, self.start)
        across = outside_of_loops([dot(d, self.y), dot(d, self.z)],
                                  self.loops_at(dot(d, self.x)))
        along = max(0.0, max(dot(sub(p, plane["point"]), plane["normal"])
                             for plane in self.planes))
        return math.hypot(across, along)


def blended(loops, end_loops, part):
    """The loops of a tapered member at a part of its length."""
    if loops is end_loops or any(len(a) != len(b) for a, b in zip(loops, end_loops)):
        return loops
    return [[[(1 - part) * p[i] + part * q[i] for i in (0, 1)] for p, q in zip(a, b)]
            for a, b in zip(loops, end_loops)]


def lofted_volume(sections):
    """The volume between sections, which are lists of loops of as many points."""
    origin, total = sections[0][0][0], 0.0

    def add_fan(loop, sign):
        nonlocal total
        first = sub(loop[0], origin)
        for a, b in zip(loop[1:], loop[2:]):
            total += sign * dot(first, cross(sub(a, origin), sub(b, origin)))
    for before, after in zip(sections, sections[1:]):
        for near, far in zip(before, after):
            for i, p in enumerate(near):
                k = (i + 1) % len(near)
                add_fan([p, near[k], far[k]], 1)
                add_fan([p, far[k], far[i]], 1)
    for loop in sections[0]:
        add_fan(loop[::-1], 1)
    for loop in sections[-1]:
        add_fan(loop, 1)
    return total / 6


class ArcMember:
    """A profile along an arc, cut square or by planes; its y axis turns with the tangent."""

    def __init__(self, element, profiles):
        self.profile = profiles[element["profile"]]
        self.loops = [self.profile["outline"]] + self.profile["holes"]
        self.end_loops = self.loops
        if element["profileEnd"] is not None:
            last = profiles[element["profileEnd"]]
            self.end_loops = [last["outline"]] + last["holes"]
        self.planes = element["ends"]
        self.is_plain = self.end_loops is self.loops and self.planes == [None, None]
        self.arc = Arc(*element["axis"])
        self.y = element["y"]
        self.offset = element["offset"]
        tangent = cross(self.arc.normal, self.arc.x)
        self.z = cross(tangent, self.y)

    def loops_at(self, angle):
        return blended(self.loops, self.end_loops, angle / self.arc.angle)

    def place(self, angle, y, z):
        return add(self.arc.at(angle),
                   add(scale(self.arc.turned(self.y, angle), y - self.offset[0]),
                       scale(self.arc.turned(self.z, angle), z - self.offset[1])))

    def end_angle(self, k, loop, i):
        """Where the line of a point of the profile meets an end, by halving an interval."""
        whole = self.arc.angle
        square, plane = (0.0, whole)[k], self.planes[k]
        if plane is None:
            return square

        def beyond(angle):
            p = self.place(angle, *self.loops_at(angle)[loop][i])
            return dot(sub(p, plane["point"]), plane["normal"]) * (1, -1)[k]
        low, high = square - whole / 2, square + whole / 2
        for _ in range(60):
            middle = (low + high) / 2
            low, high = (middle, high) if beyond(middle) > 0 else (low, middle)
        return (low + high) / 2

    def sections(self):
        count = len(self.arc.points()) - 1
        ends = [[[self.end_angle(k, loop, i) for i in range(len(points))]
                 for loop, points in enumerate(self.loops)] for k in (0, 1)]
        sections = []
        for step in range(count + 1):
            sections.append([])
            for loop, points in enumerate(self.loops):
                angles = [a + (b - a) * step / count for a, b in zip(ends[0][loop], ends[1][loop])]
                sections[-1].append([self.place(angle, *self.loops_at(angle)[loop][i])
                                     for i, angle in enumerate(angles)])
        return sections

    def vertices(self):
        return [p for section in self.sections() for loop in section for p in loop]

    def volume(self):
        """The area times the way of the centroid, unless the member is tapered or cut."""
        if not self.is_plain:
            return abs(lofted_volume(self.sections()))
        outwards = [dot(self.arc.x, self.y), dot(self.arc.x, self.z)]
        radius = self.arc.radius - dot(outwards, self.offset)
        return self.profile["area"] * self.arc.angle * radius

    def outside(self, p):
        whole = self.arc.angle
        angle = self.arc.angle_of(p)
        if angle > math.pi + whole / 2:  # nearer to the start than to the end
            angle -= 2 * math.pi
        square = [-angle, angle - whole]
        beyond = [dot(sub(p, plane["point"]), plane["normal"]) if plane else None
                  for plane in self.planes]
        at = angle
        for k, end in ((0, 0.0), (1, whole)):
            if beyond[k] is None and square[k] > 0:
                at = end
                beyond[k] = abs(dot(sub(p, self.arc.at(end)), self.tangent(end)))
        d = sub(p, self.arc.at(at))
        y, z = self.arc.turned(self.y, at), self.arc.turned(self.z, at)
        across = outside_of_loops([dot(d, y) + self.offset[0], dot(d, z) + self.offset[1]],
                                  self.loops_at(at))
        return math.hypot(across, max(0.0, beyond[0] or 0.0, beyond[1] or 0.0))

    def tangent(self, angle):
        return cross(self.arc.turned(self.y, angle), self.arc.turned(self.z, angle))


class PolylineMember:
    """A profile along a line with bends; the pieces meet in the planes that halve the angles."""

    def __init__(self, element, profiles):
        profile = profiles[element["profile"]]
        self.loops = [profile["outline"]] + profile["holes"]
        self.area = profile["area"]
        points = element["axis"]
        edges = [unit(sub(b, a)) for a, b in zip(points, points[1:])]
        normals = [unit(add(a, b)) for a, b in zip(edges, edges[1:])]
        ends = element["ends"]
        first = scale(ends[0]["normal"], -1) if ends[0] else edges[0]
        last = ends[1]["normal"] if ends[1] else edges[-1]
        cuts = list(zip(points, [first, *normals, last]))
        self.pieces = []  # (a point of the centroid line, x, y, z, the planes at both ends)
        y = element["y"]
        for i, x in enumerate(edges):
            if i > 0:
                y = self.turned(y, edges[i - 1], x)
            z = cross(x, y)
            offset = add(scale(y, element["offset"][0]), scale(z, element["offset"][1]))
            self.pieces.append((sub(points[i], offset), x, y, z, cuts[i:i + 2]))

    @staticmethod
    def turned(v, before, after):
        """A vector after the smallest turn that takes one direction to another."""
        axis = cross(before, after)
        sine = length(axis)
        if sine < 1e-12:
            return v
        axis, cosine = scale(axis, 1 / sine), dot(before, after)
        return add(add(scale(v, cosine), scale(cross(axis, v), sine)),
                   scale(axis, dot(axis, v) * (1 - cosine)))

    @staticmethod
    def along(p, x, plane):
        """How far a point is from a plane along a direction."""
        return dot(sub(plane[0], p), plane[1]) / dot(x, plane[1])

    def vertices(self):
        found = []
        for origin, x, y, z, planes in self.pieces:
            for u, v in (q for loop in self.loops for q in loop):
                p = add(origin, add(scale(y, u), scale(z, v)))
                found += [add(p, scale(x, self.along(p, x, plane))) for plane in planes]
        return found

    def volume(self):
        return self.area * sum(self.along(origin, x, planes[1]) - self.along(origin, x, planes[0])
                               for origin, x, y, z, planes in self.pieces)

    def outside(self, p):
        best = math.inf
        for origin, x, y, z, planes in self.pieces:
            d = sub(p, origin)
            across = outside_of_loops([dot(d, y), dot(d, z)], self.loops)
            beyond = [dot(sub(p, point), normal) for point, normal in planes]
            best = min(best, math.hypot(across, max(0.0, -beyond[0], beyond[1])))
        return best


class Plate:
    """A plane region with a thickness."""

    def __init__(self, element):
        self.normal = element["normal"]
        self.half = 0.5 * element["thickness"]
        self.origin = element["outline"][0]
        self.x = unit(cross([0, 1, 0] if abs(self.normal[2]) > 0.9 else [0, 0, 1], self.normal))
        self.y = cross(self.normal, self.x)
        self.loops = [self.flat_outline(element)] + [self.flat(h) for h in element["holes"]]

    def flat(self, loop):
        return [[dot(sub(p, self.origin), self.x), dot(sub(p, self.origin), self.y)] for p in loop]

    def flat_outline(self, element):
        outline, arcs = element["outline"], dict((i, p) for i, p in element["arcs"])
        points = []
        for i, p in enumerate(outline):
            after = outline[(i + 1) % len(outline)]
            points += Arc(p, arcs[i], after).points()[:-1] if i in arcs else [p]
        return self.flat(points)

    def vertices(self):
        return [add(self.origin, add(add(scale(self.x, u), scale(self.y, v)),
                                     scale(self.normal, side * self.half)))
                for side in (-1, 1) for loop in self.loops for u, v in loop]

    def volume(self):
        areas = [abs(plane_area(loop)) for loop in self.loops]
        return 2 * self.half * (areas[0] - sum(areas[1:]))

    def outside(self, p):
        d = sub(p, self.origin)
        across = outside_of_loops([dot(d, self.x), dot(d, self.y)], self.loops)
        along = max(0.0, abs(dot(d, self.normal)) - self.half)
        return math.hypot(across, along)


def curved_wall(element):
    """A curved wall is a rectangle along the curve of its lower edge."""
    sweep, half = element["sweep"], element["thickness"] / 2
    height, points = sweep["height"], sweep["points"]
    if sweep["curve"] == "arc":
        arc = Arc(*points)
        along = cross(arc.normal, arc.x)
    else:
        along = unit(sub(points[1], points[0]))
    outline = [[-half, 0], [half, 0], [half, height], [-half, height]]
    member = {"axis": points, "y": cross(sweep["direction"], along), "offset": [0, 0],
              "ends": [None, None], "profile": 0, "profileEnd": None}
    form = ArcMember if sweep["curve"] == "arc" else PolylineMember
    return form(member, [{"outline": outline, "holes": [], "area": 2 * half * height}])


def idealised(element, profiles):
    """The idealised solid; None for a body."""
    if element["kind"] == "member":
        forms = {"line": LineMember, "arc": ArcMember, "polyline": PolylineMember}
        return forms[element["curve"]](element, profiles)
    if element["kind"] == "surface":
        return Plate(element) if "outline" in element else curved_wall(element)
    return None


class Body:
    """The boundary of the body of an element."""

    def __init__(self, body):
        self.points = body["points"]
        self.faces = [[[self.points[i] for i in loop] for loop in face] for face in body["faces"]]
        self.planes = [self.plane(face) for face in self.faces]

    @staticmethod
    def plane(face):
        """A frame of the face, with its loops in the frame; None for a face without area."""
        origin, normal = face[0][0], [0.0, 0.0, 0.0]
        for a, b in zip(face[0], face[0][1:] + face[0][:1]):
            normal = add(normal, cross(sub(a, origin), sub(b, origin)))
        if length(normal) < 1e-14:
            return None
        normal = unit(normal)
        x = unit(cross([0, 1, 0] if abs(normal[2]) > 0.9 else [0, 0, 1], normal))
        y = cross(normal, x)
        loops = [[[dot(sub(p, origin), x), dot(sub(p, origin), y)] for p in loop] for loop in face]
        low = [min(p[i] for p in loops[0]) for i in (0, 1)]
        high = [max(p[i] for p in loops[0]) for i in (0, 1)]
        return origin, x, y, normal, loops, low, high

    def box(self):
        return box_of([p for face in self.faces for loop in face for p in loop])

    def volume(self):
        """By the divergence theorem, from the first point, which keeps the products small."""
        origin, total = self.points[0], 0.0
        for face in self.faces:
            for loop in face:
                first = sub(loop[0], origin)
                for a, b in zip(loop[1:], loop[2:]):
                    total += dot(first, cross(sub(a, origin), sub(b, origin)))
        return total / 6

    def distance(self, p):
        best = math.inf
        for plane in self.planes:
            if plane is None:
                continue
            origin, x, y, normal, loops, low, high = plane
            d = sub(p, origin)
            height = abs(dot(d, normal))
            if height >= best:
                continue
            q = [dot(d, x), dot(d, y)]
            beyond = [max(low[i] - q[i], q[i] - high[i], 0.0) for i in (0, 1)]
            if math.hypot(height, *beyond) >= best:
                continue
            best = min(best, math.hypot(height, outside_of_loops(q, loops)))
        return best


def deviation(solid, body):
    """The larger of the distance of the body's vertices outside of the idealised solid, and of the
    solid's vertices from the surface of the body."""
    used = {tuple(p) for face in body.faces for loop in face for p in loop}
    return max(max(solid.outside(list(p)) for p in used),
               max(body.distance(p) for p in solid.vertices()))
