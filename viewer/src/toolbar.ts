// The tools above the 3D view.

import type { ViewName } from './camera';
import { announce, make, makeButton, makeSelect } from './dom';
import { encodeView } from './link';
import { kFacetKeys } from './model';
import { sectionRange } from './section';
import type { Display, PageState, SectionAxis, Store, Theme } from './state';
import { number } from './format';
import { strings } from './strings';
import type { View } from './view';

/** The steps in which a section moves, in metres. */
const kSteps = [0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1, 2, 5, 10];
const kLargestStep = 100;
const kMostSteps = 500;

export const kDisplays: readonly Display[] = ['solids', 'axes', 'both'];
export const kViews: readonly ViewName[] = ['top', 'front', 'side', 'iso'];

function group(label: string, ...children: Node[]): HTMLElement {
  return make('div', { class: 'group', attributes: { role: 'group', 'aria-label': label } },
    ...children);
}

function toggle(text: string, click: () => void): HTMLButtonElement {
  return makeButton(text, click, { attributes: { 'aria-pressed': 'false' } });
}

function press(button: HTMLButtonElement, isPressed: boolean): void {
  button.setAttribute('aria-pressed', String(isPressed));
}

export function look(view: View, name: ViewName): void {
  view.camera.look(name, view.visibleBox());
  announce(strings.viewChanged(strings[name]));
}

function viewTools(view: View): HTMLElement {
  const perspective = toggle(strings.perspective, () =>
    view.camera.set({ isPerspective: !view.camera.state.isPerspective }));
  view.onFrame(() => press(perspective, view.camera.state.isPerspective));
  return group(strings.views,
    makeButton(strings.fit, () => view.camera.fit(view.visibleBox())),
    ...kViews.map((name) => makeButton(strings[name], () => look(view, name))), perspective);
}

function displayTools(store: Store): HTMLElement {
  const buttons = kDisplays.map((display) =>
    [display, toggle(strings.displays[display], () => store.set({ display }))] as const);
  const update = () => buttons.forEach(([display, button]) =>
    press(button, store.state.display === display));
  store.listen((changed) => changed.has('display') && update());
  update();
  const tools = group(strings.display, ...buttons.map(([, button]) => button));
  tools.classList.add('segments');
  return tools;
}

function colourTools(store: Store): HTMLElement {
  const values = [
    ...kFacetKeys.map((key) => [key, strings.facets[key]] as const),
    ['none', strings.colourNone] as const,
  ];
  const { root, select } = makeSelect('colour', strings.colourBy, values, (value) =>
    store.set({ colourBy: value as PageState['colourBy'] }));
  const update = () => (select.value = store.state.colourBy);
  store.listen((changed) => changed.has('colourBy') && update());
  update();
  return root;
}

/** The choice of the section, and the tools that are shown on the view while there is one. */
function sectionTools(store: Store): { choice: HTMLElement; tools: HTMLElement } {
  const { root, select } = makeSelect('section', strings.section,
    Object.entries(strings.sectionAxes), (value) => {
      const axis = value as SectionAxis;
      const [low, high] = sectionRange(axis, store.model);
      store.set({ section: { axis, position: (low + high) / 2, isFlipped: false } });
    });
  const slider = make('input', {
    attributes: { type: 'range', 'aria-label': strings.sectionPosition, id: 'section-position' },
    on: {
      input: () => store.set({
        section: { ...store.state.section, position: Number(slider.value) },
      }),
    },
  });
  const text = make('output', { attributes: { for: 'section-position' } });
  const flip = toggle(strings.sectionFlip, () => {
    const section = store.state.section;
    store.set({ section: { ...section, isFlipped: !section.isFlipped } });
  });
  flip.setAttribute('aria-label', strings.sectionFlipLabel);
  const more = make('div', {
    class: 'section-tools', attributes: { role: 'group', 'aria-label': strings.section },
  }, slider, text, flip);
  const update = () => {
    const { axis, position, isFlipped } = store.state.section;
    select.value = axis;
    more.hidden = axis === 'none';
    if (axis === 'none') return;
    const [low, high] = sectionRange(axis, store.model);
    const step = kSteps.find((size) => size * kMostSteps >= high - low) ?? kLargestStep;
    slider.step = String(step);
    slider.min = (Math.floor(low / step) * step).toFixed(2);
    slider.max = (Math.ceil(high / step) * step).toFixed(2);
    slider.value = String(position);
    text.textContent = strings.sectionAt(axis, number(position, 2));
    slider.setAttribute('aria-valuetext', text.textContent);
    press(flip, isFlipped);
  };
  store.listen((changed) => changed.has('section') && update());
  update();
  return { choice: root, tools: more };
}

function measureTool(store: Store): HTMLElement {
  const button = toggle(strings.measure, () =>
    store.set({ isMeasuring: !store.state.isMeasuring }));
  store.listen((changed) => {
    if (changed.has('isMeasuring')) press(button, store.state.isMeasuring);
  });
  return button;
}

function linkTool(store: Store, view: View | null): HTMLElement {
  return makeButton(strings.link, async () => {
    const address = `${location.href.split('#')[0]}#${encodeView(store, view)}`;
    try {
      await navigator.clipboard.writeText(address);
      announce(strings.linkCopied);
    } catch {
      announce(strings.linkNotCopied);
    }
  }, { attributes: { 'aria-label': strings.linkLabel } });
}

function themeTool(store: Store): HTMLElement {
  const { root, select } = makeSelect('theme', strings.theme, Object.entries(strings.themes),
    (value) => store.set({ theme: value as Theme }));
  select.value = store.state.theme;
  return root;
}

/** The dialog with the keys. */
export function makeHelp(): HTMLDialogElement {
  const rows = strings.helpRows.map(([key, action]) =>
    make('tr', {}, make('th', { text: key, attributes: { scope: 'row' } }),
      make('td', { text: action })));
  const head = make('tr', {},
    make('th', { text: strings.helpKey, attributes: { scope: 'col' } }),
    make('th', { text: strings.helpAction, attributes: { scope: 'col' } }));
  const dialog = make('dialog', { attributes: { 'aria-labelledby': 'help-title' } },
    make('h2', { text: strings.helpTitle, attributes: { id: 'help-title' } }),
    make('p', { text: strings.helpNote }),
    make('table', {}, make('thead', {}, head), make('tbody', {}, ...rows)));
  dialog.append(makeButton(strings.close, () => dialog.close()));
  return dialog;
}

/** Makes the tools of the view, and puts those of the section on the stage. Without a view, the
 *  tools that need one are left out. */
export function makeToolbar(store: Store, view: View | null, stage: HTMLElement): HTMLElement {
  const tools = [colourTools(store)];
  if (view) {
    const section = sectionTools(store);
    stage.append(section.tools);
    tools.unshift(viewTools(view), displayTools(store));
    tools.push(section.choice, measureTool(store));
  }
  return make('div', {
    class: 'toolbar', attributes: { role: 'group', 'aria-label': strings.toolbar },
  }, ...tools);
}

/** Makes the tools of the page. */
export function makePageTools(
  store: Store, view: View | null, help: HTMLDialogElement,
): HTMLElement {
  return make('div', {
    class: 'toolbar page-tools', attributes: { role: 'group', 'aria-label': strings.pageTools },
  }, linkTool(store, view), themeTool(store), makeButton(strings.help, () => help.showModal()));
}
