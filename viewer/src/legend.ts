// The legend of the colours.

import { coloursOf, cssOf } from './colours';
import { make } from './dom';
import { count, shortText } from './format';
import type { Model } from './model';
import type { Store } from './state';
import { strings } from './strings';

const kMostEntries = 14;

function entry(swatchClass: string, colour: string, text: string, counter = ''): HTMLElement {
  const swatch = make('span', { class: swatchClass, attributes: { 'aria-hidden': 'true' } });
  if (colour) swatch.style.backgroundColor = colour;
  return make('li', {}, swatch, make('span', { class: 'option-name', text }),
    make('span', { class: 'count', text: counter }));
}

/** Makes the legend of the facet by which elements are coloured. */
export function makeLegend(model: Model, store: Store): HTMLElement {
  const list = make('ul');
  const summary = make('summary');
  const root = make('details', { class: 'legend' }, summary, list);
  root.open = matchMedia('(min-width: 45rem)').matches;
  const update = () => {
    const { colourBy } = store.state;
    const entries: HTMLElement[] = [];
    summary.textContent = strings.legend;
    if (colourBy !== 'none') {
      const facet = model.facet(colourBy);
      const colours = coloursOf(facet);
      const counts = new Uint32Array(facet.labels.length);
      for (let i = 0; i < model.count; ++i) if (store.visible[i]) ++counts[facet.values[i]];
      const labels = Array.from(facet.labels.keys()).filter((label) => counts[label] > 0);
      if (colourBy !== 'storey') labels.sort((a, b) => counts[b] - counts[a] || a - b);
      for (const label of labels.slice(0, kMostEntries)) {
        entries.push(entry('swatch', cssOf(colours[label]), shortText(facet.labels[label], 60),
          count(counts[label])));
      }
      if (labels.length > kMostEntries) {
        const text = strings.legendMore(count(labels.length - kMostEntries));
        entries.push(make('li', { class: 'note', text }));
      }
      summary.textContent = `${strings.legend}: ${facet.title}`;
    }
    if (model.description.totals.approximate) {
      entries.push(entry('swatch hatched', '', strings.approximateMark));
    }
    list.replaceChildren(...entries);
    root.hidden = entries.length === 0;
  };
  store.listen((changed) => {
    if (changed.has('hidden') || changed.has('colourBy')) update();
  });
  update();
  return root;
}
