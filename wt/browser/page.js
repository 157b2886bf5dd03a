// SPDX-License-Identifier: MIT
// The page as its session on the server wants it: elements, their settings, and the operations that change them.
//
// The server sends operations, which are data (wt/dom/Document.h says which); nothing of what it sends is ever
// evaluated or parsed as markup. wt/session/PROTOCOL.md has the messages.

/// Sentences of the runtime; the application may have its own.
export const texts = {
  lost: 'The connection to the server is lost. Trying to reconnect…',
  refused: 'No connection to the server can be made. Perhaps something on the way does not let WebSockets pass.',
  long: 'This text is too long and was not taken.',
  split: 'Border, moved with the arrow keys',
  ended: 'This session has ended. Reload the page to begin a new one.',
  move: 'Move with the arrow keys',
  resize: 'Resize with the arrow keys',
};

export const root = document.documentElement;
export const elements = new Map([[1, document.body]]);
const states = new WeakMap([[document.body, { id: 1, listeners: {}, behaviours: {}, base: '' }]]);
export const stateOf = el => states.get(el);
export const reduced = matchMedia('(prefers-reduced-motion: reduce)');

/// Behaviours of elements, by name: { attach(el, config), update(el, config, former), detach(el) }.
export const behaviours = {};
/// Commands to elements, by name: (el, ...arguments).
export const commands = {};
/// Script properties that are flags.
const flags = new Set(['checked', 'disabled', 'indeterminate']);
/// Tags that stand for a tag with a class and a role.
const aliases = { '~r': ['div', 'Wt-tv-row', 'row'], '~c': ['div', 'Wt-tv-c', 'gridcell'] };
/// What elements of a tag are from the start.
const defaults = { button: { type: 'button' }, input: { size: 10 }, textarea: { rows: 5 } };
/// Script properties that the runtime gives a meaning of its own, by name: (el, value or null).
export const properties = {};

/// Attributes that the runtime gives a meaning of its own, by name: (el, value or null).
export const attributes = {};
/// What begins and ends to listen on elements: set(el, name, flags or null).
export const listening = {};
/// Others who keep something for elements are called when an element was made and when it goes: (el).
export const whenMade = [];
export const whenGone = [];
/// Called when all operations of an update are done.
export const whenApplied = [];

let attaching = [];

function make([id, tag, settings, ...children]) {
  const alias = aliases[tag];
  const el = document.createElement(alias ? alias[0] : tag);
  const state = { id, listeners: {}, behaviours: {}, base: alias ? alias[1] : '' };
  states.set(el, state);
  elements.set(id, el);
  if (alias) {
    el.className = alias[1];
    el.setAttribute('role', alias[2]);
    // A name is read from its own side, and cut at its own end.
    if (tag === '~c') el.dir = 'auto';
  }
  Object.assign(el, defaults[tag]);
  for (const noted of whenMade) noted(el);
  for (const child of children) el.append(make(child));
  for (const key in settings) change(el, key, settings[key]);
  return el;
}

function forget(el) {
  const state = stateOf(el);
  if (!state) return;
  for (const name in state.behaviours) behaviours[name]?.detach?.(el);
  elements.delete(state.id);
  for (const noted of whenGone) noted(el);
  for (const child of el.children) forget(child);
}

function change(el, key, value) {
  const name = key.slice(1);
  switch (key[0]) {
    case '*': value === null ? el.style.removeProperty(name) : el.style.setProperty(name, value); break;
    case '.': property(el, name, value); break;
    case '@': listening.set(el, name, value); break;
    case '!': behave(el, name, value); break;
    case '#': el.textContent = value ?? ''; break;
    case '<': el.replaceChildren(...(value === null ? [] : JSON.parse(value).map(rich))); break;
    default: attribute(el, key, value);
  }
}

function property(el, name, value) {
  if (properties[name]) properties[name](el, value);
  else if (flags.has(name)) el[name] = value === '1';
  else if (el[name] !== (value ?? '')) el[name] = value ?? '';
}

/// Shows the classes that the server has given. A verdict of the page itself on what is being typed counts more than
/// the server's until the server has judged too.
export function dress(el) {
  const { base, given, verdict } = stateOf(el);
  el.className = base && given ? base + ' ' + given : given ?? base;
  if (verdict !== undefined) el.classList.toggle('Wt-invalid', verdict);
}

function attribute(el, name, value) {
  if (/^on|^srcdoc$|^style$/i.test(name) || (/^(href|src|action)$/i.test(name) && unsafe(value))) return;
  if (name === 'class') {
    stateOf(el).given = value;
    dress(el);
  } else if (attributes[name]) attributes[name](el, value);
  else if (value === null) el.removeAttribute(name);
  else el.setAttribute(name, value);
}

/// True for addresses that would run something.
export function unsafe(url) {
  return /^(javascript|vbscript|data(?!:image\/(png|gif|jpeg|webp);)):/i.test((url ?? '').replace(/[\0-\x20]/g, ''));
}

/// A node of rich text, which the server has filtered: a text, or [tag, {attribute: value}, node...].
export function rich(node) {
  if (typeof node === 'string') return document.createTextNode(node);
  const [tag, attributes, ...children] = node;
  const el = document.createElement(/^(script|style|iframe|object|embed|link|meta|base)$/i.test(tag) ? 'span' : tag);
  for (const name in attributes) {
    if (name === 'style') el.style.cssText = attributes[name];
    else if (!/^on|^srcdoc$/i.test(name) && !unsafe(attributes[name])) el.setAttribute(name, attributes[name]);
  }
  el.append(...children.map(rich));
  return el;
}

function behave(el, name, value) {
  const state = stateOf(el);
  const behaviour = behaviours[name];
  if (!behaviour) return;
  if (value === null) {
    delete state.behaviours[name];
    behaviour.detach?.(el);
    return;
  }
  const former = state.behaviours[name];
  const config = state.behaviours[name] = JSON.parse(value);
  if (former === undefined) attaching.push(() => el.isConnected && behaviour.attach?.(el, config));
  else behaviour.update?.(el, config, former);
}

const operations = {
  c(parent, before, tree) { elements.get(parent)?.insertBefore(make(tree), elements.get(before) ?? null); },
  s(id, settings) {
    const el = elements.get(id);
    if (el) for (const key in settings) change(el, key, settings[key]);
  },
  m(id, parent, before) {
    const el = elements.get(id);
    if (!el) return;
    const focused = el.contains(document.activeElement) ? document.activeElement : null;
    elements.get(parent)?.insertBefore(el, elements.get(before) ?? null);
    focused?.focus({ preventScroll: true });
  },
  r(id) {
    const el = elements.get(id);
    if (!el) return;
    forget(el);
    el.remove();
  },
  x(id, name, ...args) {
    const el = elements.get(id);
    if (el) commands[name]?.(el, ...args);
  },
  d(name, ...args) { pageCommands[name]?.(...args); },
};

export function apply(list) {
  for (const [code, ...args] of list) {
    operations[code]?.(...args);
    if (code === 'c' || code === 's') settle();
  }
  for (const done of whenApplied) done();
}

/// Starts the behaviours of elements that have come into the page.
function settle() {
  const started = attaching;
  attaching = [];
  for (const start of started) start();
}

export const pageCommands = {
  title(text) { document.title = text; },
  lang(text) { root.lang = text; },
  htmlClass(names) {
    const unstyled = root.classList.contains('Wt-unstyled');
    root.className = names;
    root.classList.toggle('Wt-unstyled', unstyled);
  },
  texts(given) { Object.assign(texts, given); },
};

let namesGiven = 0;
/// The id of an element that an attribute is to name.
export const nameOf = el => (el.id ||= 'wt-' + ++namesGiven);

export const handlers = new WeakMap(); // by element: what ends the listeners of each of its behaviours

/// Listeners that live as long as the behaviour `name` of the element.
export function handle(el, name, listeners) {
  if (!handlers.has(el)) handlers.set(el, {});
  const { signal } = (handlers.get(el)[name] = new AbortController());
  for (const type in listeners) el.addEventListener(type, listeners[type], { signal });
}

export const unhandle = name => el => handlers.get(el)?.[name]?.abort();
export const configOf = (el, name) => stateOf(el).behaviours[name];
