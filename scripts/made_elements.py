"""The elements of made models: the same solids written in all the ways that a file can use."""

import math

from idealised_solid import add, scale
from made_geometry import (Frame, Solid, c_shape, circle, fillet, i_shape, l_shape, loft, prism,
                           rectangle, rotation, rounded_rectangle, t_shape, u_shape, z_shape)


class Made:
    """A solid with what its reading has to be."""

    def __init__(self, name, entity, solid, kind, prism=None, **expected):
        self.name = name
        self.entity = entity
        self.solid = solid  # the boundary, in coordinates of the element
        self.kind = kind  # "member", "surface" or "any"
        self.prism = prism  # (outer, holes, depth) if it is an extrusion along z
        self.is_exact = expected.pop("exact", True)
        self.length = expected.pop("length", None)
        self.thickness = expected.pop("thickness", None)


def straight(name, entity, kind, outer, depth, holes=(), **expected):
    solid = prism(outer, list(holes), depth)
    if kind == "member":
        expected.setdefault("length", depth)
    if kind == "surface":
        expected.setdefault("thickness", depth)
    return Made(name, entity, solid, kind, (outer, list(holes), depth), **expected)


def prisms():
    yield straight("beam rectangle", "IFCBEAM", "member", rectangle(.2, .4), 5.0)
    yield straight("beam I", "IFCBEAM", "member", i_shape(.3, .15, .0071, .0107), 6.0)
    yield straight("beam I fillets", "IFCBEAM", "member", i_shape(.3, .3, .011, .019, .027, 4), 4.0)
    yield straight("beam I 9 chords", "IFCBEAM", "member", i_shape(.2, .1, .0056, .0085, .012, 9),
                   3.0)
    yield straight("beam L", "IFCMEMBER", "member", l_shape(.1, .08, .008), 2.5)
    yield straight("beam U", "IFCMEMBER", "member", u_shape(.2, .075, .0085, .0115), 2.0)
    yield straight("beam T", "IFCBEAM", "member", t_shape(.15, .12, .01, .012), 2.2)
    yield straight("beam Z", "IFCMEMBER", "member", z_shape(.2, .07, .004, .004), 4.0)
    yield straight("purlin C", "IFCMEMBER", "member", c_shape(.2, .07, .002, .02), 5.0)
    yield straight("tube", "IFCBEAM", "member", rectangle(.1, .1), 3.0, [rectangle(.09, .09)])
    yield straight("tube rounded", "IFCCOLUMN", "member", rounded_rectangle(.1, .2, .015, 4), 3.0,
                   [rounded_rectangle(.09, .19, .01, 4)])
    for chords in (8, 12, 24, 36, 100):
        yield straight("column round %d" % chords, "IFCCOLUMN", "member", circle(.2, chords), 3.2)
        yield straight("pipe %d" % chords, "IFCCOLUMN", "member", circle(.1, chords), 2.8,
                       [circle(.092, chords)])
    yield straight("column hexagon", "IFCCOLUMN", "member", circle(.2, 6), 3.0)
    yield straight("column L", "IFCCOLUMN", "member", l_shape(.6, .6, .2), 3.0)
    yield straight("column cross", "IFCCOLUMN", "member",
                   [(-.1, -.3), (.1, -.3), (.1, -.1), (.3, -.1), (.3, .1), (.1, .1), (.1, .3),
                    (-.1, .3), (-.1, .1), (-.3, .1), (-.3, -.1), (-.1, -.1)], 3.0)
    yield straight("column short", "IFCCOLUMN", "member", rectangle(.4, .4), .5)
    yield straight("beam trapezoid", "IFCBEAM", "member",
                   [(-.1, 0), (.1, 0), (.25, .5), (-.25, .5)], 8.0)
    yield straight("hollow core", "IFCSLAB", "any", rectangle(1.2, .2), 6.0,
                   [[(x + k * .19, y) for x, y in circle(.07, 16)] for k in range(-2, 3)],
                   thickness=.2, exact=None)
    yield straight("slab", "IFCSLAB", "surface", rectangle(6, 4), .2)
    yield straight("slab L", "IFCSLAB", "surface", l_shape(8, 6, 3), .25)
    yield straight("slab hole", "IFCSLAB", "surface", rectangle(6, 5), .2,
                   [[(x + 1, y) for x, y in rectangle(1, 2)]])
    yield straight("slab round holes", "IFCSLAB", "surface", rectangle(6, 5), .2,
                   [[(x + 1, y) for x, y in circle(.3, 16)],
                    [(x - 1.5, y) for x, y in circle(.1, 8)]])
    yield straight("slab round", "IFCSLAB", "surface", circle(3, 48), .3)
    yield straight("slab rounded", "IFCSLAB", "surface", rounded_rectangle(6, 4, 1, 8), .2)
    yield straight("plate", "IFCPLATE", "surface", rectangle(.3, .2), .012)
    yield straight("plate holes", "IFCPLATE", "surface", rectangle(.3, .2), .02,
                   [[(x + sx * .1, y + sy * .06) for x, y in circle(.011, 12)]
                    for sx in (-1, 1) for sy in (-1, 1)])
    yield straight("gusset", "IFCPLATE", "surface",
                   [(0, 0), (.3, 0), (.3, .1), (.1, .25), (0, .25)], .01)
    yield straight("pad", "IFCFOOTING", "surface", rectangle(1.5, 1.2), .5)
    yield straight("strip", "IFCFOOTING", "member", rectangle(.6, .5), 7.0)
    yield straight("pile", "IFCPILE", "member", circle(.3, 24), 12.0)
    yield straight("wall plan", "IFCWALL", "surface", rectangle(5, .2), 2.8, thickness=.2)
    yield straight("wall plan bevelled", "IFCWALL", "surface",
                   [(0, 0), (5, 0), (4.8, .2), (.2, .2)], 2.8, thickness=.2)
    yield straight("wall gable", "IFCWALL", "surface",
                   [(0, 0), (6, 0), (6, 2.5), (3, 4.5), (0, 2.5)], .24)
    yield straight("wall windows", "IFCWALL", "surface", rectangle(6, 3), .24,
                   [[(x + 1.5, y) for x, y in rectangle(1, 1.2)],
                    [(x - 1.5, y) for x, y in rectangle(1, 1.2)]])
    yield straight("wall door", "IFCWALL", "surface",
                   [(0, 0), (2, 0), (2, 2.1), (3, 2.1), (3, 0), (5, 0), (5, 2.8), (0, 2.8)], .2)
    yield straight("wall short", "IFCWALL", "any", rectangle(.3, .2), 2.8, thickness=None)
    yield straight("wall arc", "IFCWALL", "any",
                   fillet((0, 0), 5.1, 0, 1.5, 24) + fillet((0, 0), 4.9, 1.5, 0, 24), 2.8)


def mitre(slope, at=0.0):
    return lambda x, y: at + slope * y


def cut_prisms():
    rect, ish = rectangle(.1, .2), i_shape(.3, .15, .0071, .0107)
    yield Made("rafter mitred", "IFCMEMBER",
               prism(rect, [], 4.0, bottom=mitre(1.0), top=mitre(-.5)), "member")
    yield Made("beam mitred I", "IFCBEAM", prism(ish, [], 4.0, bottom=mitre(1.0), top=mitre(1.0)),
               "member")
    yield Made("tube mitred", "IFCMEMBER", prism(rectangle(.1, .1), [rectangle(.09, .09)], 3.0,
                                                 bottom=mitre(1.0), top=mitre(-1.0)), "member")
    yield Made("pipe mitred", "IFCMEMBER", prism(circle(.06, 24), [circle(.055, 24)], 3.0,
                                                 bottom=mitre(.7), top=mitre(-.3)), "member")
    yield Made("post mitred both ways", "IFCCOLUMN",
               prism(rect, [], 3.0, top=lambda x, y: .3 * x + .4 * y), "member")
    # a rafter that two planes cut at one end, and a bird's mouth: the side view is extruded
    yield straight("rafter plumb", "IFCMEMBER", "member",
                   [(0, 0), (4, 0), (4.1, .1), (4, .2), (0, .2)], .08, length=None)
    yield straight("rafter mouth", "IFCMEMBER", "member",
                   [(0, 0), (1, 0), (1.05, .05), (1.1, 0), (4, 0), (4, .2), (0, .2)], .08,
                   length=None)
    yield straight("beam notch", "IFCBEAM", "member",
                   [(0, 0), (5, 0), (5, .3), (4.85, .3), (4.85, .4), (0, .4)], .2, length=5.0)
    yield straight("beam half joint", "IFCBEAM", "member",
                   [(0, .3), (.3, .3), (.3, 0), (7.7, 0), (7.7, .3), (8, .3), (8, .6), (0, .6)], .3,
                   length=8.0)
    yield straight("beam holes", "IFCBEAM", "member", rectangle(6, .5), .2,
                   [[(x + 1, y) for x, y in circle(.1, 24)],
                    [(x - 1, y) for x, y in circle(.1, 24)]],
                   length=6.0)
    yield straight("frame", "IFCMEMBER", "any", rectangle(1.2, 2.4), .1, [rectangle(1.0, 2.2)],
                   exact=None)
    yield straight("folded plate", "IFCPLATE", "member", [(0, 0), (.3, 0), (.3, .2), (.29, .2),
                                                          (.29, .01), (0, .01)], 2.0)
    yield straight("folded wide", "IFCSLAB", "any", [(0, 0), (3, 0), (6, 1), (6, 1.2), (3, .2),
                                                     (0, .2)], 5.0)
    steps = [(0, 0)]
    for i in range(12):
        steps += [(i * .28, (i + 1) * .17), ((i + 1) * .28, (i + 1) * .17)]
    steps += [(12 * .28, 12 * .17 - .2), (.1, 0)]
    yield straight("stair", "IFCSTAIRFLIGHT", "any", steps[::-1], 1.2)
    yield straight("stair soffit", "IFCSTAIRFLIGHT", "any", steps[::-1], .9)
    yield straight("footing stepped", "IFCFOOTING", "member",
                   [(-.6, 0), (.6, 0), (.6, .3), (.3, .3), (.3, .6), (-.3, .6), (-.3, .3),
                    (-.6, .3)], 5.0)
    yield Made("beam tapered", "IFCBEAM",
               loft([[[(x, y, 0.0) for x, y in rectangle(.2, .4)]],
                     [[(x, y, 5.0) for x, y in rectangle(.2, .8)]]]), "member")
    yield Made("beam tapered I", "IFCBEAM",
               loft([[[(x, y, 0.0) for x, y in i_shape(.3, .15, .007, .011)]],
                     [[(x, y, 5.0) for x, y in i_shape(.5, .15, .007, .011)]]]), "member")
    yield Made("beam tapered one side", "IFCBEAM",
               loft([[[(x, y + .2, 0.0) for x, y in rectangle(.2, .4)]],
                     [[(x, y + .4, 5.0) for x, y in rectangle(.2, .8)]]]), "member")
    yield Made("column conical", "IFCCOLUMN",
               loft([[[(x, y, 0.0) for x, y in circle(.3, 24)]],
                     [[(x, y, 3.0) for x, y in circle(.2, 24)]]]), "member")
    yield Made("pile tip", "IFCPILE",
               loft([[[(x, y, 0.0) for x, y in circle(.02, 24)]],
                     [[(x, y, .5) for x, y in circle(.2, 24)]],
                     [[(x, y, 10.0) for x, y in circle(.2, 24)]]]), "member", exact=None)
    yield Made("slab sloped top", "IFCSLAB", prism(rectangle(6, 4), [], .2,
                                                   top=lambda x, y: .01 * x), "any", exact=None)
    yield Made("slab bevelled rim", "IFCSLAB",
               loft([[[(x, y, 0.0) for x, y in rectangle(6, 4)]],
                     [[(x, y, .2) for x, y in rectangle(5.9, 3.9)]]]), "surface", exact=None)
    yield Made("pad sloped", "IFCFOOTING",
               loft([[[(x, y, 0.0) for x, y in rectangle(2, 2)]],
                     [[(x, y, .3) for x, y in rectangle(2, 2)]],
                     [[(x, y, .5) for x, y in rectangle(.6, .6)]]]), "any", exact=None)
    yield Made("wall roof plane", "IFCWALL",
               prism(rectangle(5, .2), [], 3.0, top=lambda x, y: .2 * x), "surface", thickness=.2)
    yield Made("wall roof across", "IFCWALL",
               prism(rectangle(5, .2), [], 3.0, top=lambda x, y: .5 * y), "surface", thickness=.2)
    yield Made("wall roof skew", "IFCWALL",
               prism(rectangle(5, .2), [], 3.0, top=lambda x, y: .5 * y + .3 * x), "surface",
               thickness=.2)
    yield Made("curved beam", "IFCBEAM", swept(rectangle(.2, .4), 6.0, 1.2, 24), "any", exact=None)
    yield Made("curved pipe", "IFCMEMBER", swept(circle(.05, 16), 2.0, 1.5, 24), "any", exact=None)
    yield Made("arch tapered I", "IFCBEAM", swept(sideways(ish), 8.0, 1.2, 48, growth=1.0), "member")
    yield Made("arch tapered tube", "IFCBEAM", swept(circle(.1, 16), 8.0, 1.2, 48, growth=1.0),
               "member")
    yield Made("arch level ends", "IFCBEAM", level_arch(sideways(ish), 6.0, .8, 60), "member")


def sideways(outline):
    """An outline whose depth lies in the plane of an arch."""
    return [(y, x) for x, y in outline]


def swept(outline, radius, angle, chords, growth=0.0):
    """An outline along an arc. Its size grows by a part of it from the start to the end."""
    sections = []
    for i in range(chords + 1):
        a = angle * i / chords
        size = 1.0 + growth * i / chords
        x = (math.cos(a), math.sin(a), 0.0)
        sections.append([[add(scale(x, radius + px * size), (0, 0, py * size))
                          for px, py in outline]])
    return outwards(loft(sections))


def level_arch(outline, radius, half, chords):
    """An arch between two springings at the same level, which cut it horizontally."""
    sections = []
    for i in range(chords + 1):
        section = []
        for px, py in outline:
            r = radius + px
            a = math.acos(radius * math.cos(half) / r) * (2 * i / chords - 1)
            section.append((r * math.sin(a), py, r * math.cos(a)))
        sections.append([section])
    return outwards(loft(sections))


def outwards(solid):
    return solid if solid.volume() > 0 else solid.reversed()


# The ways to write a solid. Each takes the model, the made element and a random source and returns
# the items of the body, and the kind of representation.

def as_extrusion(model, made, source):
    outer, holes, depth = made.prism
    return [model.extrusion(model.profile(outer, holes), depth)], "SweptSolid"


def as_clockwise_extrusion(model, made, source):
    outer, holes, depth = made.prism
    profile = model.profile(outer[::-1], [h[::-1] for h in holes])
    return [model.extrusion(profile, depth)], "SweptSolid"


def as_downward_extrusion(model, made, source):
    outer, holes, depth = made.prism
    place = model.placement((0, 0, depth))
    return [model.extrusion(model.profile(outer, holes), depth, (0, 0, -1), place)], "SweptSolid"


def as_turned_extrusion(model, made, source):
    outer, holes, depth = made.prism
    turn = source.uniform(0, 6)
    axes = rotation((0, 0, 1), turn)
    back = Frame((.3, -.7, 0), axes)
    flat = [[tuple(back.inverse((x, y, 0))[:2]) for x, y in loop] for loop in [outer, *holes]]
    return [model.extrusion(model.profile(flat[0], flat[1:]), depth, place=model.frame(back))], \
        "SweptSolid"


def as_brep(model, made, source):
    return [model.brep(made.solid)], "Brep"


def as_brep_reversed(model, made, source):
    return [model.brep(made.solid.reversed())], "Brep"


def as_brep_triangles(model, made, source):
    return [model.brep(made.solid.triangulated())], "Brep"


def as_brep_own_points(model, made, source):
    return [model.brep(made.solid, shares=False)], "Brep"


def as_brep_rounded(model, made, source):
    solid = made.solid.triangulated().moved(lambda p: [round(c, 6) for c in p])
    return [model.brep(solid, shares=False)], "Brep"


def distorted(size):
    def write(model, made, source):
        def distort(p):
            return [c + source.uniform(-0.28, 0.28) * size for c in p]
        solid = made.solid.triangulated()
        return [model.brep(solid, shares=False, distort=distort)], "Brep"
    return write


def as_brep_flipped(model, made, source):
    """Some of the faces look inwards."""
    solid = made.solid.triangulated()
    solid.faces = [[loop[::-1] for loop in f] if source.random() < .3 else f for f in solid.faces]
    return [model.brep(solid)], "Brep"


def as_brep_split_edges(model, made, source):
    """Each edge has a point in the middle, of which only one of its two faces knows."""
    solid = Solid(made.solid.points, made.solid.faces)
    for face in solid.faces:
        if source.random() < .5:
            continue
        loop = face[0]
        longer = []
        for a, b in zip(loop, loop[1:] + loop[:1]):
            longer += [a, len(solid.points)]
            solid.points.append(scale(add(solid.points[a], solid.points[b]), .5))
        face[0] = longer
    return [model.brep(solid)], "Brep"


def as_surface_model(model, made, source):
    faces = model.shell(made.solid, "IFCCONNECTEDFACESET")
    return [model.add("IFCFACEBASEDSURFACEMODEL", [faces])], "SurfaceModel"


def as_shell_model(model, made, source):
    shell = model.shell(made.solid.triangulated(), "IFCOPENSHELL")
    return [model.add("IFCSHELLBASEDSURFACEMODEL", [shell])], "SurfaceModel"


def as_mapped(model, made, source):
    """A map of a map, scaled to a quarter and back by the targets."""
    small = made.solid.moved(lambda p: scale(p, .25))
    inner = model.mapped([model.brep(small)], "Brep", None, operator(model, Frame(), 2.0))
    return [model.mapped([inner], "MappedRepresentation", None, operator(model, Frame(), 2.0))], \
        "MappedRepresentation"


def as_mirrored_map(model, made, source):
    mirrored = made.solid.moved(lambda p: [-p[0], p[1], p[2]]).reversed()
    target = model.add("IFCCARTESIANTRANSFORMATIONOPERATOR3D", model.direction((-1, 0, 0)),
                       model.direction((0, 1, 0)), model.point((0, 0, 0)), None,
                       model.direction((0, 0, 1)))
    return [model.mapped([model.brep(mirrored)], "Brep", None, target)], "MappedRepresentation"


def as_mirrored_extrusion(model, made, source):
    outer, holes, depth = made.prism
    flat = [[(-x, y) for x, y in loop] for loop in [outer, *holes]]
    item = model.extrusion(model.profile(flat[0], flat[1:]), depth)
    target = model.add("IFCCARTESIANTRANSFORMATIONOPERATOR3D", model.direction((-1, 0, 0)),
                       model.direction((0, 1, 0)), model.point((0, 0, 0)), None,
                       model.direction((0, 0, 1)))
    return [model.mapped([item], "SweptSolid", None, target)], "MappedRepresentation"


def as_stretched_map(model, made, source):
    """An extrusion of depth 1 whose map stretches it."""
    outer, holes, depth = made.prism
    item = model.extrusion(model.profile(outer, holes), 1.0)
    target = model.add("IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM", model.direction((1, 0, 0)),
                       model.direction((0, 1, 0)), model.point((0, 0, 0)), 1.0,
                       model.direction((0, 0, 1)), 1.0, depth)
    return [model.mapped([item], "SweptSolid", None, target)], "MappedRepresentation"


def operator(model, frame, factor):
    return model.add("IFCCARTESIANTRANSFORMATIONOPERATOR3D", model.direction(frame.axes[0]),
                     model.direction(frame.axes[1]), model.point(frame.origin), factor,
                     model.direction(frame.axes[2]))


def as_clipped(model, made, source):
    outer, holes, depth = made.prism
    longer = model.extrusion(model.profile(outer, holes), depth + 2.0, place=model.placement(
        (0, 0, -1)))
    one = model.clipped(longer, model.half_space((0, 0, 0), (0, 0, 1), True))
    return [model.clipped(one, model.half_space((3, 1, depth), (0, 0, 1), False))], "Clipping"


def as_bounded_clipped(model, made, source):
    outer, holes, depth = made.prism
    longer = model.extrusion(model.profile(outer, holes), depth + 2.0)
    plane = model.add("IFCPLANE", model.placement((0, 0, depth)))
    size = 20
    half = model.add("IFCPOLYGONALBOUNDEDHALFSPACE", plane, False, model.placement(
        (0, 0, depth - 5)), model.polyline(rectangle(size, size)))
    return [model.clipped(longer, half)], "Clipping"


def as_minus_solid(model, made, source):
    outer, holes, depth = made.prism
    longer = model.extrusion(model.profile(outer, holes), depth + 2.0)
    block = model.extrusion(model.profile(rectangle(30, 30)), 10.0,
                            place=model.placement((0, 0, depth)))
    return [model.boolean("DIFFERENCE", longer, block)], "CSG"


def as_pieces(model, made, source):
    """Three extrusions, one after the other."""
    outer, holes, depth = made.prism
    items, at = [], 0.0
    for part in (.2, .5, .3):
        items.append(model.extrusion(model.profile(outer, holes), depth * part,
                                     place=model.placement((0, 0, at))))
        at += depth * part
    return items, "SweptSolid"


def as_brep_pieces(model, made, source):
    """Two breps that meet in a face; one is triangulated, so the faces differ."""
    outer, holes, depth = made.prism
    low, high = prism(outer, holes, depth * .4), prism(outer, holes, depth * .6)
    high = high.moved(lambda p: [p[0], p[1], p[2] + depth * .4])
    return [model.brep(low), model.brep(high.triangulated())], "Brep"


def as_overlapping(model, made, source):
    """Two extrusions that overlap."""
    outer, holes, depth = made.prism
    profile = model.profile(outer, holes)
    return [model.extrusion(profile, depth * .6),
            model.extrusion(profile, depth * .6, place=model.placement((0, 0, depth * .4)))], \
        "SweptSolid"


def as_two_shells(model, made, source):
    """The faces in two open shells."""
    n = len(made.solid.faces) // 2
    first = Solid(made.solid.points, made.solid.faces[:n])
    second = Solid(made.solid.points, made.solid.faces[n:])
    return [model.add("IFCSHELLBASEDSURFACEMODEL", [model.shell(first, "IFCOPENSHELL"),
                                                    model.shell(second, "IFCOPENSHELL")])], \
        "SurfaceModel"


def as_surface_models(model, made, source):
    """A surface model for each face."""
    items = []
    for face in made.solid.faces:
        faces = model.shell(Solid(made.solid.points, [face]), "IFCCONNECTEDFACESET")
        items.append(model.add("IFCFACEBASEDSURFACEMODEL", [faces]))
    return items, "SurfaceModel"


OF_SOLIDS = {
    "brep": as_brep, "brep reversed": as_brep_reversed, "brep triangles": as_brep_triangles,
    "brep own points": as_brep_own_points, "brep rounded": as_brep_rounded,
    "brep 1e-6": distorted(1e-6), "brep 1e-5": distorted(1e-5), "brep 1e-4": distorted(1e-4),
    "brep flipped": as_brep_flipped, "brep split edges": as_brep_split_edges,
    "surface model": as_surface_model, "shell model": as_shell_model, "mapped": as_mapped,
    "mirrored map": as_mirrored_map, "two shells": as_two_shells,
    "surface models": as_surface_models,
}
OF_PRISMS = {
    "extrusion": as_extrusion, "clockwise": as_clockwise_extrusion,
    "downward": as_downward_extrusion, "turned": as_turned_extrusion, "clipped": as_clipped,
    "bounded": as_bounded_clipped, "minus": as_minus_solid, "pieces": as_pieces,
    "brep pieces": as_brep_pieces, "overlapping": as_overlapping,
    "mirrored extrusion": as_mirrored_extrusion, "stretched": as_stretched_map,
}
