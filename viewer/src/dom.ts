// Builds elements of the page. Texts are set as text only, never as markup.

type Child = Node | string | null;

interface Options {
  class?: string;
  text?: string;
  attributes?: Record<string, string>;
  on?: Record<string, (event: any) => void>;
}

function apply(element: Element, options: Options, children: Child[]): void {
  if (options.class) element.setAttribute('class', options.class);
  if (options.text !== undefined) element.textContent = options.text;
  for (const [name, value] of Object.entries(options.attributes ?? {})) {
    element.setAttribute(name, value);
  }
  for (const [name, listener] of Object.entries(options.on ?? {})) {
    element.addEventListener(name, listener);
  }
  for (const child of children) if (child !== null) element.append(child);
}

export function make<K extends keyof HTMLElementTagNameMap>(
  tag: K, options: Options = {}, ...children: Child[]
): HTMLElementTagNameMap[K] {
  const element = document.createElement(tag);
  apply(element, options, children);
  return element;
}

export function makeSvg<K extends keyof SVGElementTagNameMap>(
  tag: K, options: Options = {}, ...children: Child[]
): SVGElementTagNameMap[K] {
  const element = document.createElementNS('http://www.w3.org/2000/svg', tag);
  apply(element, options, children);
  return element;
}

export function makeButton(text: string, click: () => void, options: Options = {}) {
  return make('button', {
    ...options, text, attributes: { type: 'button', ...options.attributes }, on: { click },
  });
}

export function makeSelect(
  id: string, label: string, values: readonly (readonly [string, string])[],
  change: (value: string) => void,
): { root: HTMLElement; select: HTMLSelectElement } {
  const select = make('select', {
    attributes: { id, 'aria-label': label }, on: { change: () => change(select.value) },
  });
  for (const [value, text] of values) {
    select.append(make('option', { text, attributes: { value } }));
  }
  const root = make('span', { class: 'field' },
    make('label', { text: label, attributes: { for: id } }), select);
  return { root, select };
}

const announcer = make('div', {
  class: 'hidden-text', attributes: { role: 'status', 'aria-live': 'polite', id: 'status' },
});

/** Places the region that reads messages aloud. */
export function placeAnnouncer(parent: HTMLElement): void {
  parent.append(announcer);
}

/** Lets screen readers read a message. */
export function announce(text: string): void {
  announcer.textContent = text;
}
