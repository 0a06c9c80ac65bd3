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
        self.end_loops = [last["outline"]] + last["holes"]
        self.is_tapered = end is not None
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
        if not self.is_tapered or any(len(a) != len(b)
                                      for a, b in zip(self.loops, self.end_loops)):
            return self.loops
        t = min(1.0, max(0.0, along / self.span))
        return [[[(1 - t) * p[i] + t * q[i] for i in (0, 1)] for p, q in zip(a, b)]
                for a, b in zip(self.loops, self.end_loops)]

    def outside(self, p):
        d = sub(p, self.start)
        across = outside_of_loops([dot(d, self.y), dot(d, self.z)],
                                  self.loops_at(dot(d, self.x)))
        along = max(0.0, max(dot(sub(p, plane["point"]), plane["normal"])
                             for plane in self.planes))
        return math.hypot(across, along)


class ArcMember:
    """A profile along an arc; its y axis turns with the tangent."""

    def __init__(self, element, profiles):
        self.profile = profiles[element["profile"]]
        self.loops = [self.profile["outline"]] + self.profile["holes"]
        self.arc = Arc(*element["axis"])
        self.y = element["y"]
        self.offset = element["offset"]
        tangent = cross(self.arc.normal, self.arc.x)
        self.z = cross(tangent, self.y)

    def place(self, angle, y, z):
        return add(self.arc.at(angle),
                   add(scale(self.arc.turned(self.y, angle), y - self.offset[0]),
                       scale(self.arc.turned(self.z, angle), z - self.offset[1])))

    def vertices(self):
        count = len(self.arc.points()) - 1
        return [self.place(self.arc.angle * i / count, y, z)
                for i in range(count + 1) for loop in self.loops for y, z in loop]

    def volume(self):
        """The area times the way of the centroid."""
        outwards = [dot(self.arc.x, self.y), dot(self.arc.x, self.z)]
        radius = self.arc.radius - dot(outwards, self.offset)
        return self.profile["area"] * self.arc.angle * radius

    def outside(self, p):
        angle = self.arc.angle_of(p)
        past = angle - self.arc.angle
        if past > 0:
            angle = 0.0 if 2 * math.pi - angle < past else self.arc.angle
        d = sub(p, self.arc.at(angle))
        y, z = self.arc.turned(self.y, angle), self.arc.turned(self.z, angle)
        across = outside_of_loops([dot(d, y) + self.offset[0], dot(d, z) + self.offset[1]],
                                  self.loops)
        along = abs(dot(d, cross(y, z))) if past > 0 else 0.0
        return math.hypot(across, along)


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


def idealised(element, profiles):
    """The idealised solid; None for a body and for a curve that this file does not compute."""
    if element["kind"] == "member" and element["curve"] == "line":
        return LineMember(element, profiles)
    if element["kind"] == "member" and element["curve"] == "arc":
        return ArcMember(element, profiles)
    if element["kind"] == "surface" and "outline" in element:
        return Plate(element)
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
