"""Outlines, solids and transforms for models that are made to be read again.

A solid is a list of points and a list of faces; a face is a list of loops of indices, the outer one
first. Outer loops run counter-clockwise seen from outside. Lengths are in metres.
"""

import math

from idealised_solid import add, cross, dot, scale, sub, unit


def rectangle(width, height):
    x, y = width / 2, height / 2
    return [(-x, -y), (x, -y), (x, y), (-x, y)]


def circle(radius, chords, start=0.0):
    return [(radius * math.cos(start + 2 * math.pi * i / chords),
             radius * math.sin(start + 2 * math.pi * i / chords)) for i in range(chords)]


def fillet(centre, radius, first, last, chords):
    """Points of an arc, its ends included."""
    return [(centre[0] + radius * math.cos(first + (last - first) * i / chords),
             centre[1] + radius * math.sin(first + (last - first) * i / chords))
            for i in range(chords + 1)]


def i_shape(depth, width, web, flange, radius=0.0, chords=6):
    x, y = width / 2, depth / 2
    if radius == 0.0:
        return [(-x, -y), (x, -y), (x, flange - y), (web / 2, flange - y), (web / 2, y - flange),
                (x, y - flange), (x, y), (-x, y), (-x, y - flange), (-web / 2, y - flange),
                (-web / 2, flange - y), (-x, flange - y)]
    s, f = web / 2 + radius, y - flange - radius
    half = math.pi / 2
    points = [(-x, -y), (x, -y), (x, flange - y)]
    points += fillet((s, -f), radius, 3 * half, 2 * half, chords)
    points += fillet((s, f), radius, 2 * half, half, chords)
    points += [(x, y - flange), (x, y), (-x, y), (-x, y - flange)]
    points += fillet((-s, f), radius, half, 0.0, chords)
    points += fillet((-s, -f), radius, 0.0, -half, chords)
    return points + [(-x, flange - y)]


def l_shape(depth, width, thickness):
    return [(0, 0), (width, 0), (width, thickness), (thickness, thickness), (thickness, depth),
            (0, depth)]


def u_shape(depth, width, web, flange):
    return [(0, 0), (width, 0), (width, flange), (web, flange), (web, depth - flange),
            (width, depth - flange), (width, depth), (0, depth)]


def t_shape(depth, width, web, flange):
    return [(-web / 2, 0), (web / 2, 0), (web / 2, depth - flange), (width / 2, depth - flange),
            (width / 2, depth), (-width / 2, depth), (-width / 2, depth - flange),
            (-web / 2, depth - flange)]


def z_shape(depth, width, web, flange):
    x, y = web / 2, depth / 2
    return [(-x, -y), (width, -y), (width, flange - y), (x, flange - y), (x, y), (-width, y),
            (-width, y - flange), (-x, y - flange)]


def c_shape(depth, width, wall, lip):
    return [(0, 0), (width, 0), (width, lip), (width - wall, lip), (width - wall, wall),
            (wall, wall), (wall, depth - wall), (width - wall, depth - wall),
            (width - wall, depth - lip), (width, depth - lip), (width, depth), (0, depth)]


def rounded_rectangle(width, height, radius, chords):
    x, y, half = width / 2 - radius, height / 2 - radius, math.pi / 2
    points = []
    for i, (sx, sy) in enumerate([(1, -1), (1, 1), (-1, 1), (-1, -1)]):
        points += fillet((sx * x, sy * y), radius, (i - 1) * half, i * half, chords)
    return points


def area(loop):
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(loop, loop[1:] + loop[:1])) / 2


class Solid:
    def __init__(self, points, faces):
        self.points = [list(map(float, p)) for p in points]
        self.faces = [[list(loop) for loop in face] for face in faces]

    def volume(self):
        total = 0.0
        for face in self.faces:
            for loop in face:
                a = self.points[loop[0]]
                for i in range(1, len(loop) - 1):
                    total += dot(a, cross(self.points[loop[i]], self.points[loop[i + 1]]))
        return total / 6

    def moved(self, function):
        return Solid([function(p) for p in self.points], self.faces)

    def reversed(self):
        return Solid(self.points, [[loop[::-1] for loop in face] for face in self.faces])

    def joined(self, other):
        n = len(self.points)
        return Solid(self.points + other.points, self.faces + [
            [[i + n for i in loop] for loop in face] for face in other.faces])

    def triangulated(self):
        faces = []
        for face in self.faces:
            faces += [[t] for t in triangles(self.points, face)]
        return Solid(self.points, faces)


def loft(sections):
    """A solid through sections: lists of loops of 3-D points, equal in number, ends included."""
    points, faces, starts = [], [], []
    for loops in sections:
        starts.append([])
        for loop in loops:
            starts[-1].append(len(points))
            points += loop
    count = [len(loop) for loop in sections[0]]
    faces.append([[starts[0][k] + i for i in reversed(range(n))] for k, n in enumerate(count)])
    for below, above in zip(starts, starts[1:]):
        for k, n in enumerate(count):
            for i in range(n):
                j = (i + 1) % n
                faces.append([[below[k] + i, below[k] + j, above[k] + j, above[k] + i]])
    faces.append([[starts[-1][k] + i for i in range(n)] for k, n in enumerate(count)])
    return Solid(points, faces)


def prism(outer, holes, depth, direction=(0, 0, 1), bottom=None, top=None):
    """An extrusion of an outline in x and y. `bottom` and `top` map a point of the outline to z."""
    loops = [outer if area(outer) > 0 else outer[::-1]]
    loops += [hole if area(hole) < 0 else hole[::-1] for hole in holes]
    low = [[(x, y, bottom(x, y) if bottom else 0.0) for x, y in loop] for loop in loops]
    shift = scale(direction, depth)
    high = [[add((x, y, top(x, y) if top else 0.0), shift) for x, y in loop] for loop in loops]
    return loft([low, high])


def triangles(points, face):
    """Cuts a face with holes into triangles by joining the holes and cutting ears."""
    normal = [0.0, 0.0, 0.0]
    loop = face[0]
    for a, b in zip(loop, loop[1:] + loop[:1]):
        normal = add(normal, cross(points[a], points[b]))
    normal = unit(normal)
    x = unit(sub(points[loop[1]], points[loop[0]]))
    y = cross(normal, x)
    flat = {i: (dot(points[i], x), dot(points[i], y)) for l in face for i in l}

    def turn(a, b, c):
        (ax, ay), (bx, by), (cx, cy) = flat[a], flat[b], flat[c]
        return (bx - ax) * (cy - ay) - (by - ay) * (cx - ax)

    def crosses(a, b, c, d):
        return (turn(a, b, c) > 0) != (turn(a, b, d) > 0) and (turn(c, d, a) > 0) != (
            turn(c, d, b) > 0)

    ring = list(face[0])
    left = [list(l) for l in face[1:]]
    while left:
        hole = max(left, key=lambda l: max(flat[i][0] for i in l))
        left.remove(hole)
        start = max(range(len(hole)), key=lambda k: flat[hole[k]][0])
        edges = [(l[k], l[(k + 1) % len(l)]) for l in [ring, hole] + left for k in range(len(l))]
        h = hole[start]
        order = sorted(range(len(ring)), key=lambda k: (flat[ring[k]][0] - flat[h][0]) ** 2 +
                       (flat[ring[k]][1] - flat[h][1]) ** 2)
        for k in order:
            r = ring[k]
            if not any(crosses(h, r, a, b) for a, b in edges if len({h, r, a, b}) == 4):
                break
        ring = ring[:k + 1] + hole[start:] + hole[:start + 1] + ring[k:]
    result = []
    while len(ring) > 3:
        for k in range(len(ring)):
            a, b, c = ring[k - 1], ring[k], ring[(k + 1) % len(ring)]
            if turn(a, b, c) <= 1e-12:
                continue
            others = [i for i in ring if i not in (a, b, c)]
            if all(not (turn(a, b, i) >= 0 and turn(b, c, i) >= 0 and turn(c, a, i) >= 0)
                   for i in others):
                result.append([a, b, c])
                del ring[k]
                break
        else:  # only flat corners are left
            result.append([ring[-1], ring[0], ring[1]])
            del ring[0]
    return result + [ring]


def rotation(axis, angle):
    """The three columns of a rotation matrix."""
    axis = unit(axis)
    c, s = math.cos(angle), math.sin(angle)

    def turned(v):
        return add(add(scale(v, c), scale(cross(axis, v), s)), scale(axis, dot(axis, v) * (1 - c)))
    return [turned(v) for v in ((1, 0, 0), (0, 1, 0), (0, 0, 1))]


class Frame:
    """A right-handed placement: an origin and three axes."""

    def __init__(self, origin=(0, 0, 0), axes=((1, 0, 0), (0, 1, 0), (0, 0, 1))):
        self.origin = list(origin)
        self.axes = [list(a) for a in axes]

    def direction(self, v):
        return [sum(v[k] * self.axes[k][i] for k in range(3)) for i in range(3)]

    def __call__(self, p):
        return add(self.origin, self.direction(p))

    def inverse(self, p):
        v = sub(p, self.origin)
        return [dot(v, a) for a in self.axes]
