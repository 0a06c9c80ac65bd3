// The list of elements with its search, and the table of losses.

import { announce, make } from './dom';
import { count, number, plainText, shortText } from './format';
import { type Model, profileLabel } from './model';
import type { Store } from './state';
import { strings } from './strings';
import { VirtualTable, type TableColumn } from './table';

/** What an element is called: its name, or its tag. */
export function nameOf(model: Model, element: number): string {
  return plainText(model.elements.name[element] || model.elements.tag[element]);
}

export function labelOf(model: Model, element: number): string {
  const { elements, description } = model;
  return strings.elementLabel(shortText(nameOf(model, element)),
    plainText(description.classes[elements.class[element]]), elements.id[element]);
}

function sectionText(model: Model, element: number): string {
  const { profile, thickness } = model.elements;
  const index = profile[element];
  if (index !== null) return profileLabel(model, index);
  const t = thickness[element];
  return t === null ? '–' : `t = ${number(t * 1000, 0)} mm`;
}

function sizeText(model: Model, element: number): string {
  const { length, area } = model.elements;
  if (length[element] !== null) return `${number(length[element])} m`;
  return area[element] !== null ? `${number(area[element], 2)} m²` : '–';
}

function elementColumns(model: Model): TableColumn[] {
  const { elements } = model;
  const label = (key: 'class' | 'storey' | 'exactness') => (row: number) => {
    const facet = model.facet(key);
    return shortText(facet.labels[facet.values[row]]);
  };
  return [
    {
      key: 'id', title: strings.columns.id, isNumber: true, text: (row) => String(elements.id[row]),
      order: (row) => elements.id[row],
    },
    { key: 'name', title: strings.columns.name, text: (row) => shortText(nameOf(model, row)) },
    { key: 'class', title: strings.columns.class, text: label('class') },
    {
      key: 'storey', title: strings.columns.storey, text: label('storey'),
      order: (row) => model.facet('storey').values[row],
    },
    {
      key: 'section', title: strings.columns.section,
      text: (row) => shortText(sectionText(model, row)),
    },
    {
      key: 'size', title: strings.columns.size, isNumber: true, text: (row) => sizeText(model, row),
      order: (row) => elements.length[row] ?? elements.area[row] ?? 0,
    },
    { key: 'exactness', title: strings.columns.exactness, text: label('exactness') },
  ];
}

/** The tab with the list of the visible elements that match the search. */
export class ElementList {
  readonly root: HTMLElement;
  readonly table: VirtualTable;
  private readonly found = make('p', { class: 'note' });
  private readonly input: HTMLInputElement;
  private readonly texts: string[];

  constructor(private readonly model: Model, private readonly store: Store) {
    const { id, name, guid, tag } = model.elements;
    this.texts = id.map((number, i) =>
      [number, name[i], guid[i], tag[i]].map((text) => text ?? '').join('\n').toLowerCase());
    this.table = new VirtualTable({
      label: strings.elementTable, columns: elementColumns(model),
      choose: (row) => store.set({ selected: row }),
    });
    this.input = make('input', {
      attributes: { type: 'search', id: 'search', autocomplete: 'off', spellcheck: 'false' },
      on: {
        input: () => store.set({ search: this.input.value }),
        keydown: (event: KeyboardEvent) => this.key(event),
      },
    });
    this.root = make('div', { class: 'list' },
      make('div', { class: 'search' },
        make('label', { text: strings.search, attributes: { for: 'search' } }), this.input),
      this.found, this.table.root);
    store.listen((changed) => {
      if (changed.has('hidden') || changed.has('search')) this.update();
      if (changed.has('selected')) this.table.setCurrent(store.state.selected);
    });
    this.update();
  }

  /** Selects the element before or after the selected one in the list. */
  step(by: number): void {
    const { order } = this.table;
    if (!order.length) return;
    const position = this.table.positionOf(this.store.state.selected);
    const next = position < 0 ? 0 : Math.min(order.length - 1, Math.max(0, position + by));
    this.store.set({ selected: order[next] });
  }

  private key(event: KeyboardEvent): void {
    if (event.key !== 'Enter' || !this.table.order.length) return;
    this.store.set({ selected: this.table.order[0] });
  }

  private update(): void {
    const words = this.store.state.search.trim().toLowerCase();
    if (this.input.value !== this.store.state.search) this.input.value = this.store.state.search;
    const rows: number[] = [];
    for (let i = 0; i < this.model.count; ++i) {
      if (this.store.visible[i] && (!words || this.texts[i].includes(words))) rows.push(i);
    }
    this.table.setRows(rows);
    this.found.textContent = strings.found(count(rows.length));
    if (words) announce(this.found.textContent);
  }
}

/** The tab with the products that could not be read. */
export function makeLosses(model: Model): HTMLElement {
  const { losses, totals } = model.description;
  const text = losses.length
    ? strings.lossSummary(count(totals.lost), count(totals.products)) : strings.noLosses;
  const notes = [make('p', { class: 'note', text })];
  if (totals.approximate) {
    const approximate = strings.approximateSummary(count(totals.approximate));
    notes.push(make('p', { class: 'note', text: approximate }));
  }
  const root = make('div', { class: 'list' }, ...notes);
  if (!losses.length) return root;
  const columns: TableColumn[] = [
    {
      key: 'id', title: strings.columns.id, isNumber: true, text: (i) => String(losses[i].id),
      order: (i) => losses[i].id,
    },
    { key: 'class', title: strings.columns.class, text: (i) => plainText(losses[i].class) },
    {
      key: 'name', title: strings.columns.name,
      text: (i) => shortText(plainText(losses[i].name)),
    },
    { key: 'reason', title: strings.columns.reason, text: (i) => strings.reason(losses[i].reason) },
    {
      key: 'line', title: strings.columns.line, isNumber: true, order: (i) => losses[i].line,
      text: (i) => (losses[i].line ? String(losses[i].line) : '–'),
    },
    {
      key: 'at', title: strings.columns.at, isNumber: true, order: (i) => losses[i].at ?? 0,
      text: (i) => (losses[i].at ? `#${losses[i].at}` : '–'),
    },
    { key: 'guid', title: strings.columns.guid, text: (i) => shortText(plainText(losses[i].guid)) },
  ];
  const table = new VirtualTable({ label: strings.lossTable, columns });
  table.setRows(losses.map((_, i) => i));
  root.append(table.root);
  return root;
}
