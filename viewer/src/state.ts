// The state of the page that filters, colours and tools share.

import { kFacetKeys, type FacetKey, type Model } from './model';

export type Display = 'solids' | 'axes' | 'both';
export type SectionAxis = 'none' | 'x' | 'y' | 'z';
export type Theme = 'auto' | 'light' | 'dark';
export type Tab = 'filters' | 'elements' | 'losses';

export interface Section {
  axis: SectionAxis;
  /** World coordinate along the axis, in metres. */
  position: number;
  /** True if the side with smaller coordinates is cut off. */
  isFlipped: boolean;
}

export interface PageState {
  display: Display;
  colourBy: FacetKey | 'none';
  section: Section;
  /** The labels that are filtered out, by facet. */
  hidden: Record<FacetKey, ReadonlySet<number>>;
  /** The index of the selected element; -1 if none is. */
  selected: number;
  theme: Theme;
  tab: Tab;
  isMeasuring: boolean;
  search: string;
}

type Listener = (changed: ReadonlySet<keyof PageState>) => void;

/** Makes a value for each facet. */
export function byFacet<T>(make: (key: FacetKey) => T): Record<FacetKey, T> {
  const values: Partial<Record<FacetKey, T>> = {};
  for (const key of kFacetKeys) values[key] = make(key);
  return values as Record<FacetKey, T>;
}

function noneHidden(): Record<FacetKey, ReadonlySet<number>> {
  return byFacet(() => new Set<number>());
}

export function initialState(): PageState {
  return {
    display: 'solids',
    colourBy: 'class',
    section: { axis: 'none', position: 0, isFlipped: false },
    hidden: noneHidden(),
    selected: -1,
    theme: 'auto',
    tab: 'filters',
    isMeasuring: false,
    search: '',
  };
}

/** Holds the state and calls listeners after each change. */
export class Store {
  /** 1 for each element that no filter hides. */
  readonly visible: Uint8Array;
  visibleCount = 0;
  private current = initialState();
  private readonly listeners: Listener[] = [];

  constructor(readonly model: Model) {
    this.visible = new Uint8Array(model.count);
    this.filter();
  }

  get state(): Readonly<PageState> {
    return this.current;
  }

  listen(listener: Listener): void {
    this.listeners.push(listener);
  }

  set(change: Partial<PageState>): void {
    const keys = (Object.keys(change) as (keyof PageState)[]).filter(
      (key) => change[key] !== this.current[key],
    );
    if (!keys.length) return;
    this.current = { ...this.current, ...change };
    if (keys.includes('hidden')) this.filter();
    const changed = new Set(keys);
    for (const listener of this.listeners) listener(changed);
  }

  setHidden(key: FacetKey, labels: ReadonlySet<number>): void {
    this.set({ hidden: { ...this.current.hidden, [key]: labels } });
  }

  resetFilters(): void {
    this.set({ hidden: noneHidden() });
  }

  /** The number of elements of each label of a facet that the other facets do not hide. */
  countsOf(key: FacetKey): Uint32Array {
    const facet = this.model.facet(key);
    const counts = new Uint32Array(facet.labels.length);
    const others = this.activeFilters().filter((other) => other.facet.key !== key);
    for (let i = 0; i < this.model.count; ++i) {
      if (others.every((other) => !other.labels.has(other.facet.values[i]))) {
        ++counts[facet.values[i]];
      }
    }
    return counts;
  }

  private activeFilters() {
    return kFacetKeys
      .map((key) => ({ facet: this.model.facet(key), labels: this.current.hidden[key] }))
      .filter((filter) => filter.labels.size > 0);
  }

  private filter(): void {
    const filters = this.activeFilters();
    this.visibleCount = 0;
    for (let i = 0; i < this.model.count; ++i) {
      const isVisible = filters.every((f) => !f.labels.has(f.facet.values[i]));
      this.visible[i] = isVisible ? 1 : 0;
      this.visibleCount += this.visible[i];
    }
  }
}
