// Builds the page from the data that it holds.

import { readBuilding } from './data';
import { Details } from './details';
import { announce, make, makeButton, placeAnnouncer } from './dom';
import { ElementList, labelOf, makeLosses } from './elements';
import { makeFilters } from './filters';
import { count, plainText, shortText } from './format';
import { placeHook } from './hook';
import { Controls } from './controls';
import { makeLegend } from './legend';
import { followAddress, restoreView } from './link';
import { Measure } from './measure';
import { Model, type Box } from './model';
import { Store } from './state';
import { strings } from './strings';
import { preparePrint } from './print';
import { makeTabs } from './tabs';
import { kDisplays, kViews, look, makeHelp, makePageTools, makeToolbar } from './toolbar';
import { View } from './view';

const kHoverMilliseconds = 40;
const kTipGap = 14;

function boxOf(model: Model, element: number): Box {
  return model.boxOf((i) => i === element);
}

function zoomToSelection(store: Store, view: View): void {
  const { selected } = store.state;
  view.camera.fit(selected >= 0 ? boxOf(store.model, selected) : view.visibleBox());
}

/** Connects gestures and keys with what they do. */
function connectView(
  store: Store, view: View, list: ElementList, measure: Measure, help: HTMLDialogElement,
  tip: HTMLElement,
): void {
  let hoverTimer = 0;
  let hovered = -1;
  const showTip = (element: number, x: number, y: number) => {
    tip.hidden = element < 0;
    if (element >= 0) {
      tip.textContent = labelOf(store.model, element);
      const { canvas } = view;
      tip.style.left = `${Math.max(0, Math.min(x + kTipGap, canvas.clientWidth - tip.offsetWidth))}px`;
      const isLow = y + kTipGap + tip.offsetHeight > canvas.clientHeight;
      tip.style.top = `${isLow ? y - kTipGap - tip.offsetHeight : y + kTipGap}px`;
    }
    if (element !== hovered) view.setHovered((hovered = element));
  };
  const click = (x: number, y: number) => {
    if (store.state.isMeasuring) measure.pick(x, y);
    else store.set({ selected: view.picker.pick(x, y)?.element ?? -1 });
  };
  const next = () => kDisplays[(kDisplays.indexOf(store.state.display) + 1) % kDisplays.length];
  const keys: Record<string, () => void> = {
    Enter: () => click(view.camera.width / 2, view.camera.heightInPixels / 2),
    Escape: () => store.set(store.state.isMeasuring ? { isMeasuring: false } : { selected: -1 }),
    f: () => zoomToSelection(store, view),
    p: () => view.camera.set({ isPerspective: !view.camera.state.isPerspective }),
    d: () => store.set({ display: next() }),
    m: () => store.set({ isMeasuring: !store.state.isMeasuring }),
    h: () => help.showModal(),
    '[': () => list.step(-1),
    ']': () => list.step(1),
  };
  kViews.forEach((name, i) => (keys[String(i + 1)] = () => look(view, name)));
  new Controls(view.canvas, view.camera, {
    pivot: (x, y) => view.picker.pick(x, y)?.point,
    click,
    doubleClick: (x, y) => {
      const hit = view.picker.pick(x, y);
      if (hit && !store.state.isMeasuring) view.camera.fit(boxOf(store.model, hit.element));
    },
    hover: (x, y) => {
      clearTimeout(hoverTimer);
      hoverTimer = window.setTimeout(() => {
        if (store.state.isMeasuring) measure.hover(x, y);
        showTip(store.state.isMeasuring ? -1 : view.picker.pick(x, y)?.element ?? -1, x, y);
      }, kHoverMilliseconds);
    },
    leave: () => {
      clearTimeout(hoverTimer);
      showTip(-1, 0, 0);
    },
    key: (event) => {
      const action = keys[event.key.length === 1 ? event.key.toLowerCase() : event.key];
      action?.();
      return action !== undefined;
    },
  });
}

function makeHead(model: Model, pageTools: HTMLElement, toolbar: HTMLElement): HTMLElement {
  const { source, schema, application } = model.description;
  const facts = [schema, application].map(plainText).filter(Boolean).join(' · ');
  const panelButton = makeButton(strings.panel, () => {
    const isHidden = document.documentElement.classList.toggle('no-panel');
    panelButton.setAttribute('aria-expanded', String(!isHidden));
  }, { class: 'panel-button', attributes: { 'aria-expanded': 'true', 'aria-controls': 'panel' } });
  if (matchMedia('(max-width: 45rem)').matches) panelButton.click();
  const name = shortText(plainText(source).split(/[\\/]/).pop() ?? '', 80);
  return make('header', {},
    make('div', { class: 'title' }, panelButton,
      make('h1', { text: name || strings.product, attributes: { title: name } }),
      make('p', { class: 'note', text: shortText(facts, 100) }),
      pageTools),
    toolbar);
}

function applyTheme(store: Store, view: View | null): void {
  const { theme } = store.state;
  const isDark = theme === 'dark'
    || (theme === 'auto' && matchMedia('(prefers-color-scheme: dark)').matches);
  document.documentElement.dataset.theme = isDark ? 'dark' : 'light';
  view?.applyTheme();
}

function makeView(root: HTMLElement, model: Model, store: Store): View | null {
  try {
    return new View(root, model, store);
  } catch (error) {
    console.warn(String(error));
    root.append(make('p', { class: 'message', text: strings.noWebGl }));
    return null;
  }
}

function show(model: Model): void {
  const store = new Store(model);
  applyTheme(store, null);
  const stage = make('main', { class: 'stage', attributes: { 'aria-label': strings.viewRegion } });
  const page = document.getElementById('page')!;
  page.replaceChildren(stage);
  const view = makeView(stage, model, store);
  const list = new ElementList(model, store);
  const help = makeHelp();
  const losses = model.description.losses.length;
  const panel = makeTabs(store, [
    { tab: 'filters', title: strings.filters, content: makeFilters(model, store) },
    { tab: 'elements', title: `${strings.elements} (${count(model.count)})`, content: list.root },
    { tab: 'losses', title: `${strings.losses} (${count(losses)})`, content: makeLosses(model) },
  ]);
  const details = new Details(model, store, list, () => view && zoomToSelection(store, view));
  const head = makeHead(model, makePageTools(store, view, help), makeToolbar(store, view, stage));
  page.replaceChildren(head, panel, stage, details.root, help);
  placeAnnouncer(page);
  stage.append(makeLegend(model, store));
  if (view) {
    const measure = new Measure(view, store, model.description.origin);
    const tip = make('div', { class: 'tip', attributes: { 'aria-hidden': 'true' } });
    tip.hidden = true;
    const cross = make('div', { class: 'cross', attributes: { 'aria-hidden': 'true' } });
    stage.append(measure.overlay, measure.panel, tip, cross);
    connectView(store, view, list, measure, help, tip);
    view.resize();
    view.camera.fit(view.visibleBox(), false);
    view.canvas.addEventListener('webglcontextlost', () => announce(strings.lostContext));
  }
  store.listen((changed) => changed.has('theme') && applyTheme(store, view));
  matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () =>
    applyTheme(store, view));
  if (view) preparePrint(stage, view);
  restoreView(location.hash, store, view);
  followAddress(store, view);
  placeHook(store, view);
}

async function start(): Promise<void> {
  const page = document.getElementById('page')!;
  page.replaceChildren(make('p', { class: 'message', text: strings.loading }));
  try {
    const holder = document.getElementById('building');
    if (!holder) throw new Error(strings.noData);
    const model = new Model(await readBuilding(holder));
    document.title = strings.pageTitle(shortText(plainText(model.description.source), 80));
    show(model);
  } catch (error) {
    const why = error instanceof Error ? error.message : String(error);
    page.replaceChildren(make('p', {
      class: 'message', text: strings.failed(why), attributes: { role: 'alert' },
    }));
    console.error(error);
  }
}

void start();
