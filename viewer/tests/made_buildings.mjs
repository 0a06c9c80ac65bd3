// Buildings that the tests of the page use.
import { circle, iSection, memberMatrix, prism, rectangle } from './make_page.mjs';

export const house = {
  column: 1000, beam: 2000, slab: 3000, wall: 4000, body: 5000, hostile: 6000,
};

export const hostileNames = [
  '<script>window.wasHit = 1</script>',
  '<img src=x onerror="window.wasHit = 1">',
  '</script><svg onload="window.wasHit = 1">',
  '=HYPERLINK("http://example.invalid")',
  'bell \u0007 escape \u001b[31m override \u202e end',
  'x'.repeat(10000),
];

function profileOf(name, shape, parameters, outline, area, holes = []) {
  return {
    name, shape, parameters, outline, holes, area, iy: 8e-6, iz: 2e-6, iyz: 0, designation: null,
  };
}

class Maker {
  constructor() {
    this.elements = [];
    this.meshes = [];
    this.profiles = [];
  }

  profile(name, shape, parameters, outline, area, isSmooth = false) {
    this.profiles.push(profileOf(name, shape, parameters, outline, area));
    this.meshes.push(prism(outline, [], isSmooth));
    return { profile: this.profiles.length - 1, mesh: this.meshes.length - 1, area };
  }

  member(section, start, end, y, values) {
    const length = Math.hypot(...end.map((c, i) => c - start[i]));
    const { profile, mesh, area } = section;
    this.elements.push({
      kind: 0, profile, mesh, length, volume: area * length,
      matrix: memberMatrix(start, end, y), loops: [{ points: [start, end], isClosed: false }],
      ...values,
    });
  }

  /** A horizontal plate with a mesh of its own. */
  slab(outline, holes, z, thickness, values) {
    this.meshes.push(prism(outline, holes));
    const ring = (points) => ({ points: points.map(([x, y]) => [x, y, z]), isClosed: true });
    this.elements.push({
      kind: 1, mesh: this.meshes.length - 1, thickness, area: 1, volume: thickness,
      // The mesh lies in the plane of y and z: x becomes upwards.
      matrix: [0, 0, thickness, 1, 0, 0, 0, 1, 0, 0, 0, z - thickness / 2],
      loops: [outline, ...holes].map(ring), ...values,
    });
  }
}

function addFrame(maker, sections, storey, z) {
  for (const x of [0, 6, 12]) {
    for (const y of [0, 8]) {
      maker.member(sections.column, [x, y, z], [x, y, z + 3], [1, 0, 0], {
        id: house.column + maker.elements.length, class: 0, name: `C ${x}/${y}`, storey,
        storeyByHeight: storey, material: 0,
        guid: `0column${String(maker.elements.length).padStart(15, '0')}`,
      });
    }
    maker.member(sections.beam, [x, 0, z + 3.2], [x, 8, z + 3.2], [1, 0, 0], {
      id: house.beam + maker.elements.length, class: 1, name: `B ${x}`, storey, material: 1,
      storeyByHeight: storey,
    });
  }
}

/** Two storeys with columns, beams, slabs, a wall, an approximate body and hostile names. */
export function makeHouse() {
  const maker = new Maker();
  const sections = {
    column: maker.profile('C 300', 'rectangle', { h: 0.3, b: 0.3 }, rectangle(0.3, 0.3), 0.09),
    beam: maker.profile('I 400', 'I', { h: 0.4, b: 0.3, tw: 0.02, tf: 0.03 },
      iSection(0.4, 0.3, 0.02, 0.03), 0.0248),
    pile: maker.profile('', 'circle', { d: 0.5 }, circle(0.5, 40), 0.196, true),
  };
  [0, 3.6].forEach((z, storey) => {
    addFrame(maker, sections, storey, z);
    maker.slab([[-0.5, -0.5], [12.5, -0.5], [12.5, 8.5], [-0.5, 8.5]],
      [[[7, 3], [7, 5], [9, 5], [9, 3]]], z + 3.5, 0.2,
      { id: house.slab + storey, class: 2, name: `Slab ${storey}`, storey, material: 0 });
  });
  maker.meshes.push(prism(rectangle(0.24, 3)));
  maker.elements.push({
    id: house.wall, class: 3, name: 'Wall', kind: 1, mesh: maker.meshes.length - 1,
    thickness: 0.24, area: 36, volume: 8.64, storey: 0, material: 0,
    matrix: memberMatrix([0, 8, 1.5], [12, 8, 1.5], [0, 1, 0]),
    loops: [
      { points: [[0, 8, 0], [12, 8, 0], [12, 8, 3], [0, 8, 3]], isClosed: true },
      { points: [[5, 8, 0.5], [6, 8, 0.5], [6, 8, 1.5], [5, 8, 1.5]], isOpening: true },
    ],
  });
  maker.member(sections.pile, [3, 4, -3], [3, 4, 0], [1, 0, 0],
    { id: house.body, class: 4, name: 'Pile', kind: 2, profile: null, length: null, loops: [],
      approximate: 1, deviation: 0.012, volumeRatio: null });
  hostileNames.forEach((name, i) => {
    maker.member(sections.column, [2 * i, -4, 0], [2 * i, -4, 1], [1, 0, 0],
      { id: house.hostile + i, class: 5, name, tag: name, storey: 1, material: 2 });
  });
  return {
    source: 'house.ifc', application: 'Test <b>application</b>',
    box: [[-0.5, -4.15, -3], [12.5, 8.5, 7.2]],
    storeys: [
      { id: 10, guid: null, name: 'Ground floor', elevation: 0, height: 3.6 },
      { id: 11, guid: null, name: '<b>First</b> floor', elevation: 3.6, height: null },
    ],
    materials: [{ name: 'Concrete' }, { name: 'Steel' }, { name: '<i>odd</i>' }],
    classes: ['IfcColumn', 'IfcBeam', 'IfcSlab', 'IfcWall', 'IfcPile', 'IfcMember'],
    openings: [{ element: 0, id: 77, kind: 'door', fill: null }],
    losses: hostileNames.map((name, i) => ({
      id: 9000 + i, line: 10 + i, class: 'IfcPlate', guid: null, name, reason: 'degenerate',
      at: null,
    })),
    ...maker,
  };
}

/** A grid of members and plates: `count` elements. Profiles are shared, plates are not. */
export function makeGrid(count) {
  const maker = new Maker();
  const sections = Array.from({ length: 60 }, (_, i) => {
    const size = 0.2 + 0.005 * i;
    const sizes = { h: size, b: size };
    if (i % 3 === 2) {
      return maker.profile(`C ${i}`, 'circle', { d: size }, circle(size, 40), size * size, true);
    }
    return i % 3
      ? maker.profile(`R ${i}`, 'rectangle', sizes, rectangle(size, size), size * size)
      : maker.profile(`I ${i}`, 'I', sizes, iSection(size, size, 0.01, 0.02), 0.01);
  });
  const side = Math.ceil(Math.sqrt(count / 10));
  for (let i = 0; i < count; ++i) {
    const storey = i % 10;
    const cell = Math.floor(i / 10);
    const [x, y, z] = [4 * (cell % side), 4 * Math.floor(cell / side), 3.5 * storey];
    const values = { id: 100 + i, name: `E ${i}`, storey, material: i % 5 };
    const section = sections[i % 60];
    if (i % 7 === 0) {
      maker.slab([[x, y], [x + 3.8, y], [x + 3.8, y + 3.8], [x, y + 3.8]], [], z, 0.2,
        { ...values, class: 2 });
    } else if (i % 2) {
      maker.member(section, [x, y, z], [x, y, z + 3.2], [1, 0, 0], { ...values, class: 0 });
    } else {
      maker.member(section, [x, y, z + 3], [x + 3.7, y, z + 3], [0, 1, 0], { ...values, class: 1 });
    }
  }
  return {
    source: 'grid.ifc', box: [[0, 0, 0], [4 * side, 4 * side, 35]],
    storeys: Array.from({ length: 10 }, (_, i) =>
      ({ id: 1 + i, guid: null, name: `Level ${i}`, elevation: 3.5 * i, height: 3.5 })),
    materials: Array.from({ length: 5 }, (_, i) => ({ name: `Material ${i}` })),
    classes: ['IfcColumn', 'IfcBeam', 'IfcSlab'], ...maker,
  };
}
