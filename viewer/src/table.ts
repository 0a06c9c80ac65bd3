// A table of any number of rows, of which only those in sight are in the document.

import { make, makeButton } from './dom';

export interface TableColumn {
  key: string;
  title: string;
  isNumber?: boolean;
  text: (row: number) => string;
  /** What rows are sorted by; without it, the text. */
  order?: (row: number) => number | string;
}

export interface TableOptions {
  label: string;
  columns: TableColumn[];
  /** Called when the user chooses a row. Without it, rows cannot be chosen. */
  choose?: (row: number) => void;
}

const kRowHeight = 30;
const kOverscan = 8;

export class VirtualTable {
  readonly root: HTMLElement;
  private readonly sizer = make('div', { class: 'table-sizer' });
  private readonly table = make('table');
  private readonly body = make('tbody');
  private readonly heads: HTMLTableCellElement[];
  private rows: number[] = [];
  private sorted: number[] = [];
  private positions: Map<number, number> | null = null;
  private sortColumn: TableColumn | null = null;
  private isDescending = false;
  private current = -1;
  private shown = '';

  constructor(private readonly options: TableOptions) {
    this.heads = options.columns.map((column) => this.makeHead(column));
    const head = make('tr', { attributes: { 'aria-rowindex': '1' } }, ...this.heads);
    this.table.setAttribute('aria-label', options.label);
    this.table.setAttribute('aria-colcount', String(options.columns.length));
    this.table.append(make('thead', {}, head), this.body);
    this.sizer.append(this.table);
    this.root = make('div', {
      class: 'table-scroll',
      attributes: { tabindex: '0', role: 'region', 'aria-label': options.label },
      on: {
        scroll: () => this.show(),
        keydown: (event: KeyboardEvent) => this.key(event),
      },
    }, this.sizer);
    new ResizeObserver(() => this.show()).observe(this.root);
  }

  /** The rows in the order in which they are shown. */
  get order(): readonly number[] {
    return this.sorted;
  }

  /** The place of a row in `order`; -1 if it is not there. */
  positionOf(row: number): number {
    this.positions ??= new Map(this.sorted.map((r, i) => [r, i]));
    return this.positions.get(row) ?? -1;
  }

  setRows(rows: number[]): void {
    this.rows = rows;
    this.sort();
  }

  /** Marks a row as the current one, and scrolls to it. */
  setCurrent(row: number): void {
    this.current = row;
    const position = this.positionOf(row);
    if (position >= 0) {
      const top = position * kRowHeight;
      const visible = this.root.clientHeight - 2 * kRowHeight;
      if (top < this.root.scrollTop || top > this.root.scrollTop + visible) {
        this.root.scrollTop = Math.max(0, top - visible / 2);
      }
    }
    this.show(true);
  }

  private makeHead(column: TableColumn): HTMLTableCellElement {
    return make('th', { class: column.isNumber ? 'number' : '', attributes: { scope: 'col' } },
      makeButton(column.title, () => this.sortBy(column)));
  }

  private sortBy(column: TableColumn): void {
    this.isDescending = this.sortColumn === column && !this.isDescending;
    this.sortColumn = column;
    this.heads.forEach((head, i) => {
      if (this.options.columns[i] !== column) head.removeAttribute('aria-sort');
      else head.setAttribute('aria-sort', this.isDescending ? 'descending' : 'ascending');
    });
    this.sort();
  }

  private sort(): void {
    const column = this.sortColumn;
    this.sorted = [...this.rows];
    if (column) {
      const sign = this.isDescending ? -1 : 1;
      const keys = new Map(this.rows.map((row) => [row, (column.order ?? column.text)(row)]));
      this.sorted.sort((a, b) => sign * compare(keys.get(a)!, keys.get(b)!) || a - b);
    }
    this.positions = null;
    this.table.setAttribute('aria-rowcount', String(this.sorted.length + 1));
    this.sizer.style.height = `${(this.sorted.length + 1) * kRowHeight}px`;
    this.show(true);
  }

  private show(isForced = false): void {
    const first = Math.max(0, Math.floor(this.root.scrollTop / kRowHeight) - kOverscan);
    const count = Math.ceil(this.root.clientHeight / kRowHeight) + 2 * kOverscan;
    const last = Math.min(this.sorted.length, first + count);
    const shown = `${first} ${last}`;
    if (shown === this.shown && !isForced) return;
    this.shown = shown;
    this.table.style.transform = '';
    this.table.style.top = `${first * kRowHeight}px`;
    const focus = this.focusedRow();
    const rows = [];
    for (let i = first; i < last; ++i) rows.push(this.makeRow(this.sorted[i], i));
    this.body.replaceChildren(...rows);
    if (focus !== null) {
      this.body.querySelector<HTMLElement>(`tr[aria-rowindex="${focus}"] button`)?.focus({
        preventScroll: true,
      });
    }
  }

  private focusedRow(): string | null {
    const active = document.activeElement;
    if (!active || !this.body.contains(active)) return null;
    return active.closest('tr')?.getAttribute('aria-rowindex') ?? null;
  }

  private makeRow(row: number, position: number): HTMLTableRowElement {
    const { columns, choose } = this.options;
    const cells = columns.map((column, i) => {
      const text = column.text(row);
      if (i === 0 && choose) {
        return make('th', { class: column.isNumber ? 'number' : '', attributes: { scope: 'row' } },
          makeButton(text, () => choose(row), { class: 'row-button' }));
      }
      return make('td', { class: column.isNumber ? 'number' : '', text });
    });
    const element = make('tr', { attributes: { 'aria-rowindex': String(position + 2) } }, ...cells);
    if (row === this.current) element.setAttribute('aria-current', 'true');
    if (choose) {
      element.addEventListener('click', (event) => {
        if (!(event.target as Element).closest('button')) choose(row);
      });
    }
    return element;
  }

  private key(event: KeyboardEvent): void {
    const step = { ArrowDown: 1, ArrowUp: -1 }[event.key];
    if (!step || !this.options.choose || !this.sorted.length) return;
    event.preventDefault();
    const position = this.positionOf(this.current);
    const next = Math.min(this.sorted.length - 1, Math.max(0, position + step));
    this.options.choose(this.sorted[next]);
  }
}

function compare(a: number | string, b: number | string): number {
  if (typeof a === 'number' && typeof b === 'number') return a - b;
  return String(a) < String(b) ? -1 : String(a) > String(b) ? 1 : 0;
}
