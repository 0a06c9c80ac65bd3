// Measuring: the distance between two points, and their coordinates.

import * as THREE from 'three';
import { announce, make, makeSvg } from './dom';
import { number } from './format';
import type { Snap } from './picking';
import type { Store } from './state';
import { strings } from './strings';
import type { View } from './view';

export class Measure {
  readonly overlay: SVGSVGElement;
  readonly panel: HTMLElement;
  /** The picked points: none, one or two. */
  readonly points: Snap[] = [];
  private candidate: Snap | null = null;
  private readonly line = makeSvg('line', { class: 'measure-line' });
  private readonly marks = [0, 1].map(() => makeSvg('circle', {
    class: 'measure-point', attributes: { r: '5' },
  }));
  private readonly snapMark = makeSvg('rect', {
    class: 'measure-snap', attributes: { width: '14', height: '14' },
  });
  private readonly label = makeSvg('text', { class: 'measure-text' });

  constructor(
    private readonly view: View, private readonly store: Store,
    private readonly origin: readonly number[],
  ) {
    this.overlay = makeSvg('svg', { class: 'overlay', attributes: { 'aria-hidden': 'true' } },
      this.line, ...this.marks, this.snapMark, this.label);
    this.panel = make('section', {
      class: 'measure-panel', attributes: { 'aria-label': strings.measureTitle },
    });
    view.onFrame(() => this.place());
    store.listen((changed) => {
      if (changed.has('isMeasuring')) this.restart();
    });
    this.restart();
  }

  hover(x: number, y: number): void {
    this.candidate = this.view.picker.snap(x, y);
    this.place();
  }

  pick(x: number, y: number): void {
    const snap = this.view.picker.snap(x, y);
    if (!snap) {
      announce(strings.nothingHere);
      return;
    }
    if (this.points.length === 2) this.points.length = 0;
    this.points.push(snap);
    const picked = strings.pointPicked(
      this.points.length, strings.snaps[snap.kind], this.coordinates(snap.point));
    announce(this.points.length === 2 ? `${picked} ${strings.measured(this.distance())}` : picked);
    this.show();
    this.place();
  }

  /** The distance between the two points in metres, as text; empty without two points. */
  distance(): string {
    const [a, b] = this.points;
    return a && b ? number(a.point.distanceTo(b.point)) : '';
  }

  private restart(): void {
    this.points.length = 0;
    this.candidate = null;
    this.show();
    this.place();
  }

  private coordinates(point: THREE.Vector3): string {
    const [x, y, z] = point.toArray().map((c, i) => number(c + this.origin[i]));
    return strings.coordinates(x, y, z);
  }

  private show(): void {
    this.panel.hidden = !this.store.state.isMeasuring;
    const hints = [strings.measureFirst, strings.measureSecond, strings.measureDone];
    const rows: [string, string][] = this.points.map((snap, i) =>
      [`${strings.point(i + 1)} (${strings.snaps[snap.kind]})`, this.coordinates(snap.point)]);
    const [a, b] = this.points;
    if (a && b) {
      const difference = b.point.clone().sub(a.point).toArray().map((c) => number(c));
      rows.push([strings.distance, `${this.distance()} m`]);
      rows.push([strings.difference,
        strings.coordinates(difference[0], difference[1], difference[2])]);
    }
    const list = make('dl', { class: 'fields' });
    for (const [name, value] of rows) {
      list.append(make('dt', { text: name }), make('dd', { text: value }));
    }
    this.panel.replaceChildren(
      make('h2', { text: strings.measureTitle }), make('p', { text: hints[this.points.length] }),
      ...(rows.length ? [list] : []));
  }

  private place(): void {
    const isOn = this.store.state.isMeasuring;
    const pixels = this.points.map((snap) => this.view.camera.project(...snap.point.toArray()));
    this.marks.forEach((mark, i) => {
      const at = isOn ? pixels[i] : undefined;
      mark.toggleAttribute('hidden', !at);
      if (at) setAll(mark, { cx: at[0], cy: at[1] });
    });
    const [a, b] = pixels;
    const isLine = isOn && !!a && !!b;
    this.line.toggleAttribute('hidden', !isLine);
    this.label.toggleAttribute('hidden', !isLine);
    if (isLine) {
      setAll(this.line, { x1: a[0], y1: a[1], x2: b[0], y2: b[1] });
      setAll(this.label, { x: (a[0] + b[0]) / 2, y: (a[1] + b[1]) / 2 - 10 });
      this.label.textContent = `${this.distance()} m`;
    }
    const snap = this.candidate;
    const at = isOn && snap && snap.kind !== 'face'
      ? this.view.camera.project(...snap.point.toArray()) : null;
    this.snapMark.toggleAttribute('hidden', !at);
    if (at) setAll(this.snapMark, { x: at[0] - 7, y: at[1] - 7 });
  }
}

function setAll(element: Element, values: Record<string, number>): void {
  for (const [name, value] of Object.entries(values)) element.setAttribute(name, value.toFixed(1));
}
