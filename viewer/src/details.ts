// The panel with the data of the selected element.

import { announce, make, makeButton, makeSvg } from './dom';
import { labelOf, nameOf, type ElementList } from './elements';
import { count, number, plainText, shortText, sizeInMillimetres, withUnit } from './format';
import { profileLabel, type Model } from './model';
import type { Profile } from './data';
import type { Store } from './state';
import { strings } from './strings';

type Field = [string, string | Node];

function path(points: readonly (readonly number[])[]): string {
  if (points.length === 0) return '';
  // The y axis of a drawing on the screen points down.
  return `M${points.map(([y, z]) => `${y} ${-z}`).join('L')}Z`;
}

/** Draws the outline of a profile with its axes and its overall sizes. */
function drawProfile(profile: Profile, label: string): SVGSVGElement | null {
  if (profile.outline.length < 3) return null;
  const ys = profile.outline.map((p) => p[0]);
  const zs = profile.outline.map((p) => -p[1]);
  const least = (values: number[]) => values.reduce((a, b) => Math.min(a, b), Infinity);
  const most = (values: number[]) => values.reduce((a, b) => Math.max(a, b), -Infinity);
  const [left, right, top, bottom] = [least(ys), most(ys), least(zs), most(zs)];
  const size = Math.max(right - left, bottom - top);
  if (!(size > 0)) return null;
  const margin = 0.2 * size;
  const line = (x1: number, y1: number, x2: number, y2: number, name: string) =>
    makeSvg('line', {
      class: name, attributes: { x1: `${x1}`, y1: `${y1}`, x2: `${x2}`, y2: `${y2}` },
    });
  const text = (x: number, y: number, value: string, turn = '') =>
    makeSvg('text', {
      text: value,
      attributes: {
        x: `${x}`, y: `${y}`, 'font-size': `${0.075 * size}`, 'text-anchor': 'middle',
        ...(turn ? { transform: turn } : {}),
      },
    });
  // The chords of a circle do not reach its full height.
  const width = profile.parameters.d || right - left;
  const height = profile.parameters.d || bottom - top;
  const at = 0.08 * size;
  const [middleY, middleZ] = [(left + right) / 2, (top + bottom) / 2];
  const [cx, cy] = [right + 1.9 * at, middleZ];
  const box = [left - margin, top - margin, right - left + 2 * margin, bottom - top + 2 * margin];
  return makeSvg('svg', {
    class: 'profile',
    attributes: {
      viewBox: box.join(' '), role: 'img', 'aria-label': strings.profileDrawing(label),
    },
  },
  makeSvg('path', {
    class: 'profile-area',
    attributes: {
      d: [profile.outline, ...profile.holes].map(path).join(''), 'fill-rule': 'evenodd',
    },
  }),
  line(left - at / 2, 0, right + at / 2, 0, 'profile-axis'),
  line(0, top - at / 2, 0, bottom + at / 2, 'profile-axis'),
  line(left, bottom + at, right, bottom + at, 'profile-size'),
  line(right + at, top, right + at, bottom, 'profile-size'),
  text(middleY, bottom + 2.1 * at, sizeInMillimetres(width)),
  text(cx, cy, sizeInMillimetres(height), `rotate(-90 ${cx} ${cy})`));
}

function parameterFields(profile: Profile): Field[] {
  return Object.entries(profile.parameters).map(([name, value]) => {
    const text = name === 'slope'
      ? `${number((value * 180) / Math.PI, 2)}°` : `${sizeInMillimetres(value)} mm`;
    return [strings.parameters[name] ?? plainText(name), text];
  });
}

export class Details {
  readonly root: HTMLElement;
  private readonly body = make('div', { class: 'details-body' });
  private readonly title = make('h2');
  private readonly place = make('p', { class: 'note' });

  constructor(
    private readonly model: Model, private readonly store: Store,
    private readonly list: ElementList, zoomTo: () => void,
  ) {
    const close = makeButton('×', () => store.set({ selected: -1 }), {
      class: 'close', attributes: { 'aria-label': strings.close },
    });
    const steps = make('div', {
      class: 'steps', attributes: { role: 'group', 'aria-label': strings.neighbours },
    },
    makeButton(strings.previous, () => list.step(-1)), makeButton(strings.next, () => list.step(1)),
    makeButton(strings.zoomTo, zoomTo));
    this.root = make('aside', {
      class: 'details', attributes: { 'aria-label': strings.details },
    }, make('div', { class: 'details-head' }, this.title, close), steps, this.place, this.body);
    store.listen((changed) => {
      if (changed.has('selected')) this.update(true);
      else if (changed.has('hidden') || changed.has('search')) this.showPlace();
    });
    this.update(false);
  }

  private update(isAnnounced: boolean): void {
    const element = this.store.state.selected;
    this.root.hidden = element < 0;
    if (isAnnounced) {
      announce(element < 0 ? strings.cleared : strings.selected(labelOf(this.model, element)));
    }
    if (element < 0) return;
    this.title.textContent = nameOf(this.model, element) || strings.unnamed;
    this.body.replaceChildren(...this.sections(element));
    this.body.scrollTop = 0;
    this.showPlace();
  }

  private showPlace(): void {
    const { selected } = this.store.state;
    if (selected < 0) return;
    const position = this.list.table.positionOf(selected);
    this.place.textContent = position < 0 ? strings.notInList
      : strings.position(count(position + 1), count(this.list.table.order.length));
  }

  private sections(element: number): Node[] {
    const { profile, profileEnd } = this.model.elements;
    const nodes: Node[] = [this.fields(this.identity(element)), this.fields(this.sizes(element))];
    const [start, end] = [profile[element], profileEnd[element]];
    if (start !== null) nodes.push(...this.profile(strings.fields.profile, start));
    if (end !== null && end !== start) nodes.push(...this.profile(strings.fields.profileEnd, end));
    return nodes;
  }

  private fields(fields: Field[]): HTMLElement {
    const list = make('dl', { class: 'fields' });
    for (const [name, value] of fields) {
      if (value === '' || value === '–') continue;
      list.append(make('dt', { text: name }), make('dd', {}, value));
    }
    return list;
  }

  private identity(element: number): Field[] {
    const { elements: e, description: d } = this.model;
    const names = strings.fields;
    const [storey, byHeight] = [e.storey[element], e.storeyByHeight[element]];
    const storeyText = (index: number | null) =>
      index === null ? '' : this.model.facet('storey').labels[index];
    const type = e.type[element];
    const material = e.material[element];
    const whole = e.partOf[element];
    return [
      [names.class, plainText(d.classes[e.class[element]])],
      [names.type, type === null ? '' : plainText(d.types[type])],
      [names.id, `#${e.id[element]}`],
      [names.guid, plainText(e.guid[element])],
      [names.tag, plainText(e.tag[element])],
      [names.storey, storeyText(storey)],
      [names.storeyByHeight, byHeight === storey ? '' : storeyText(byHeight)],
      [names.material, material === null ? '' : plainText(d.materials[material].name)],
      [names.partOf, whole === null ? '' : this.linkTo(whole)],
      [names.openings, this.openings(element)],
    ];
  }

  private sizes(element: number): Field[] {
    const { elements: e, description: d } = this.model;
    const names = strings.fields;
    const thickness = e.thickness[element];
    return [
      [names.kind, strings.kinds[e.kind[element]]],
      [names.source, plainText(d.sources[e.source[element]])],
      [names.length, withUnit(e.length[element], 'm')],
      [names.area, withUnit(e.area[element], 'm²')],
      [names.thickness, thickness === null ? '' : `${sizeInMillimetres(thickness)} mm`],
      [names.volume, withUnit(e.volume[element], 'm³', 4)],
      [names.exactness, this.exactness(element)],
      [names.deviation, withUnit(e.deviation[element] * 1000, 'mm', 2)],
      [names.volumeRatio, number(e.volumeRatio[element], 4)],
      [names.cutouts, e.cutouts[element] ? String(e.cutouts[element]) : ''],
    ];
  }

  private exactness(element: number): HTMLElement {
    const isApproximate = this.model.elements.approximate[element] === 1;
    return make('span', {
      class: isApproximate ? 'mark approximate' : 'mark',
      text: isApproximate ? strings.approximate : strings.exact,
    });
  }

  private linkTo(element: number): HTMLElement {
    return makeButton(shortText(nameOf(this.model, element) || strings.unnamed, 60),
      () => this.store.set({ selected: element }), { class: 'link' });
  }

  private openings(element: number): string {
    return this.model.description.openings
      .filter((opening) => opening.element === element)
      .map((opening) => strings.opening(plainText(opening.kind), opening.id))
      .join(', ');
  }

  private profile(title: string, index: number): Node[] {
    const profile = this.model.description.profiles[index];
    const label = profileLabel(this.model, index);
    const drawing = drawProfile(profile, shortText(label));
    const names = strings.fields;
    return [
      make('h3', { text: `${title}: ${label}` }),
      ...(drawing ? [drawing] : []),
      this.fields([
        [names.shape, strings.shape(plainText(profile.shape))],
        [names.designation, plainText(profile.designation)],
        [names.profileName, plainText(profile.name)],
        [names.profileArea, `${number(profile.area * 1e4, 2)} cm²`],
        [names.profileIy, `${number(profile.iy * 1e8, 1)} cm⁴`],
        [names.profileIz, `${number(profile.iz * 1e8, 1)} cm⁴`],
        ...parameterFields(profile),
      ]),
    ];
  }
}
