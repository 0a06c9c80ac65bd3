// The tab with the filters: a group of check boxes for each facet.

import { announce, make, makeButton } from './dom';
import { coloursOf, cssOf } from './colours';
import { count, shortText } from './format';
import { kFacetKeys, type Facet, type FacetKey, type Model } from './model';
import type { Store } from './state';
import { strings } from './strings';

const kFirstOptions = 60;

interface Option {
  label: number;
  box: HTMLInputElement;
  count: HTMLElement;
  swatch: HTMLElement;
}

class FacetGroup {
  readonly root: HTMLElement;
  private readonly options: Option[] = [];
  private readonly list = make('ul', { class: 'options' });
  private readonly labels: number[];

  constructor(private readonly facet: Facet, private readonly store: Store) {
    this.labels = Array.from(facet.labels.keys()).filter((label) => facet.counts[label] > 0);
    if (facet.key === 'profile' || facet.key === 'material') {
      this.labels.sort((a, b) => facet.counts[b] - facet.counts[a] || a - b);
    }
    if (facet.key === 'storey') this.labels.sort((a, b) => this.rank(a) - this.rank(b));
    const details = make('details', { class: 'facet' },
      make('summary', {}, make('h2', { text: facet.title })), this.makeButtons(), this.list);
    details.open = facet.key === 'storey' || facet.key === 'class';
    this.root = details;
    this.showOptions(kFirstOptions);
  }

  update(): void {
    const hidden = this.store.state.hidden[this.facet.key];
    const counts = this.store.countsOf(this.facet.key);
    const isColoured = this.store.state.colourBy === this.facet.key;
    const colours = isColoured ? coloursOf(this.facet) : [];
    for (const option of this.options) {
      option.box.checked = !hidden.has(option.label);
      option.count.textContent = strings.optionCount(
        count(counts[option.label]), count(this.facet.counts[option.label]));
      option.swatch.hidden = !isColoured;
      if (isColoured) option.swatch.style.backgroundColor = cssOf(colours[option.label]);
    }
  }

  /** Storeys are listed from the highest to the lowest, as in an elevation. */
  private rank(label: number): number {
    return label === this.facet.labels.length - 1 ? 1 : -label;
  }

  private makeButtons(): HTMLElement {
    const { key, title } = this.facet;
    return make('div', { class: 'facet-buttons' },
      makeButton(strings.all, () => this.hide([]), {
        attributes: { 'aria-label': strings.allLabel(title) },
      }),
      makeButton(strings.noneButton, () => this.hide(this.labels), {
        attributes: { 'aria-label': strings.noneLabel(title), id: `none-${key}` },
      }));
  }

  private hide(labels: number[]): void {
    this.store.setHidden(this.facet.key, new Set(labels));
  }

  private showOptions(limit: number): void {
    for (const label of this.labels.slice(this.options.length, limit)) {
      this.list.append(this.makeOption(label));
    }
    const left = this.labels.length - this.options.length;
    if (left <= 0) return;
    const more = makeButton(strings.showMore(count(left)), () => {
      more.parentElement!.remove();
      this.showOptions(Infinity);
      this.update();
    });
    this.list.append(make('li', {}, more));
  }

  private makeOption(label: number): HTMLElement {
    const { key, labels } = this.facet;
    const id = `filter-${key}-${label}`;
    const text = shortText(labels[label]);
    const box = make('input', {
      attributes: { type: 'checkbox', id },
      on: { change: () => this.toggle(label, box.checked) },
    });
    const counter = make('span', { class: 'count' });
    const swatch = make('span', { class: 'swatch', attributes: { 'aria-hidden': 'true' } });
    this.options.push({ label, box, count: counter, swatch });
    const only = makeButton(strings.only, () => this.hide(this.labels.filter((l) => l !== label)), {
      class: 'only', attributes: { 'aria-label': strings.onlyLabel(text) },
    });
    const name = make('span', { class: 'option-name', text, attributes: { title: text } });
    return make('li', {}, make('label', { attributes: { for: id } }, box, swatch, name, counter),
      only);
  }

  private toggle(label: number, isShown: boolean): void {
    const hidden = new Set(this.store.state.hidden[this.facet.key]);
    if (isShown) hidden.delete(label);
    else hidden.add(label);
    this.store.setHidden(this.facet.key, hidden);
  }
}

/** Makes the tab with the filters. */
export function makeFilters(model: Model, store: Store): HTMLElement {
  const summary = make('p', { class: 'note', attributes: { id: 'shown' } });
  const groups = kFacetKeys
    .filter((key: FacetKey) => model.count > 0 || key === 'class')
    .map((key) => new FacetGroup(model.facet(key), store));
  const update = () => {
    summary.textContent = strings.shown(count(store.visibleCount), count(model.count));
    for (const group of groups) group.update();
  };
  store.listen((changed) => {
    if (!changed.has('hidden') && !changed.has('colourBy')) return;
    update();
    if (changed.has('hidden')) announce(summary.textContent ?? '');
  });
  update();
  return make('div', { class: 'filters' },
    make('div', { class: 'filter-head' }, summary,
      makeButton(strings.reset, () => store.resetFilters())),
    ...groups.map((group) => group.root));
}
