// The panel with tabs.

import { make, makeButton } from './dom';
import type { Store, Tab } from './state';
import { strings } from './strings';

export interface TabContent {
  tab: Tab;
  title: string;
  content: HTMLElement;
}

/** Makes the panel. Arrow keys move between the tabs, as readers of screens expect. */
export function makeTabs(store: Store, contents: TabContent[]): HTMLElement {
  const tabs = contents.map(({ tab, title }) =>
    makeButton(title, () => store.set({ tab }), {
      attributes: { role: 'tab', id: `tab-${tab}`, 'aria-controls': `panel-${tab}` },
    }));
  const panels = contents.map(({ tab, content }) =>
    make('div', {
      class: 'tab-panel',
      attributes: { role: 'tabpanel', id: `panel-${tab}`, 'aria-labelledby': `tab-${tab}` },
    }, content));
  const update = () => contents.forEach(({ tab }, i) => {
    const isCurrent = store.state.tab === tab;
    tabs[i].setAttribute('aria-selected', String(isCurrent));
    tabs[i].tabIndex = isCurrent ? 0 : -1;
    panels[i].hidden = !isCurrent;
  });
  const move = (event: KeyboardEvent) => {
    const at = tabs.indexOf(document.activeElement as HTMLButtonElement);
    const last = tabs.length - 1;
    const next = { ArrowRight: at + 1, ArrowLeft: at - 1, Home: 0, End: last }[event.key];
    if (at < 0 || next === undefined) return;
    event.preventDefault();
    const index = (next + tabs.length) % tabs.length;
    store.set({ tab: contents[index].tab });
    tabs[index].focus();
  };
  store.listen((changed) => changed.has('tab') && update());
  update();
  const list = make('div', {
    class: 'tabs', attributes: { role: 'tablist', 'aria-label': strings.panelTabs },
    on: { keydown: move },
  }, ...tabs);
  return make('aside', {
    class: 'panel', attributes: { id: 'panel', 'aria-label': strings.panel },
  }, list, ...panels);
}
