// SPDX-License-Identifier: MIT
// The browser's runtime: keeps a page as its session on the server wants it, and tells the session what the user does.
//
// The server sends operations, which are data (wt/dom/Document.h says which); nothing of what it sends is ever
// evaluated or parsed as markup. wt/session/PROTOCOL.md has the messages.

// ---- base style --------------------------------------------------------------------------------------------------

const sheet = new CSSStyleSheet();
sheet.replaceSync(`
[hidden]{display:none!important}
html.Wt-unstyled body{visibility:hidden}
table{border-collapse:collapse;border:0;border-spacing:0}
div,td,th,img{margin:0;padding:0;border:0}
td,th{vertical-align:top;text-align:left}
.Wt-cell:has(>[hidden]:only-child){display:none}
[data-li~=g]{min-width:0;min-height:0}
[data-li~=w]{width:auto!important}
[data-li~=h]{height:auto!important}
.Wt-hrh2,.Wt-vrh2{position:relative;z-index:1;touch-action:none}
.Wt-hrh2{flex:0 0 6px;height:6px;align-self:end;transform:translateY(100%);cursor:row-resize}
.Wt-vrh2{flex:0 0 6px;width:6px;justify-self:end;transform:translateX(100%);cursor:col-resize}
.Wt-tableview{display:flex;flex-direction:column;min-height:0;position:relative;overflow:hidden}
.Wt-header{flex:none;overflow:hidden}
.Wt-headerdiv,.Wt-tv-row{display:grid;grid-template-columns:var(--wt-columns);width:max-content;min-width:100%;box-sizing:border-box}
.Wt-header .Wt-tv-c{position:relative}
.Wt-tv-rh{position:absolute;top:0;bottom:0;right:0;width:7px;cursor:col-resize;touch-action:none}
.Wt-tv-body{flex:1 1 0;min-height:0;overflow:auto;position:relative}
.Wt-tv-contents{position:relative;min-width:100%}
.Wt-tv-row{position:absolute;left:0;height:var(--wt-row)}
.Wt-tv-c{overflow:hidden;text-overflow:ellipsis;white-space:nowrap}
.Wt-right{text-align:right}.Wt-center{text-align:center}
.Wt-align-center>:is(div,table,ul){margin-left:auto;margin-right:auto}
.Wt-align-right>:is(div,table,ul){margin-left:auto}
@layer wt{
.Wt-loading{position:fixed;inset:0 0 auto;height:3px;z-index:1000;background:Highlight;opacity:0;animation:wt-loading .8s .3s infinite alternate}
.Wt-offline{position:fixed;inset:0;z-index:1001;display:grid;place-items:center;background:#000a;color:#fff;font:18px sans-serif}
.Wt-tooltip{position:fixed;pointer-events:none;z-index:1002;margin:0;max-width:360px;padding:4px 8px;border:1px solid;background:Canvas;color:CanvasText}
}
@keyframes wt-loading{from{opacity:.3}to{opacity:1}}
`);
document.adoptedStyleSheets = [sheet];

// ---- sentences of the runtime ------------------------------------------------------------------------------------

/// The application may have its own.
const texts = {
  lost: 'The connection to the server is lost. Trying to reconnect…',
  ended: 'This session has ended. Reload the page to begin a new one.',
  move: 'Move with the arrow keys',
  resize: 'Resize with the arrow keys',
};

// ---- page --------------------------------------------------------------------------------------------------------

const root = document.documentElement;
const elements = new Map([[1, document.body]]);
const states = new WeakMap([[document.body, { id: 1, listeners: {}, behaviours: {}, base: '' }]]);
const stateOf = el => states.get(el);
const reduced = matchMedia('(prefers-reduced-motion: reduce)');

/// Behaviours of elements, by name: { attach(el, config), update(el, config, former), detach(el) }.
const behaviours = {};
/// Commands to elements, by name: (el, ...arguments).
const commands = {};
/// Script properties that are flags.
const flags = new Set(['checked', 'disabled', 'indeterminate', 'readOnly']);
/// Tags that stand for a tag with a class and a role.
const aliases = { '~r': ['div', 'Wt-tv-row', 'row'], '~c': ['div', 'Wt-tv-c', 'gridcell'] };
/// What elements of a tag are from the start.
const defaults = { button: { type: 'button' }, input: { size: 10 }, textarea: { rows: 5 } };
/// Script properties that the runtime gives a meaning of its own, by name: (el, value or null).
const properties = {};

let attaching = [];

const fields = 'input,select,textarea';
let unnamed = []; // new fields, which may lack a name

function make([id, tag, settings, ...children]) {
  const alias = aliases[tag];
  const el = document.createElement(alias ? alias[0] : tag);
  const state = { id, listeners: {}, behaviours: {}, base: alias ? alias[1] : '' };
  states.set(el, state);
  elements.set(id, el);
  if (alias) {
    el.className = alias[1];
    el.setAttribute('role', alias[2]);
  }
  Object.assign(el, defaults[tag]);
  if (el.matches(fields)) unnamed.push(el);
  for (const child of children) el.append(make(child));
  for (const key in settings) change(el, key, settings[key]);
  return el;
}

function forget(el) {
  const state = stateOf(el);
  if (!state) return;
  for (const name in state.behaviours) behaviours[name]?.detach?.(el);
  elements.delete(state.id);
  changedValues.delete(el);
  for (const child of el.children) forget(child);
}

function change(el, key, value) {
  const name = key.slice(1);
  switch (key[0]) {
    case '*': value === null ? el.style.removeProperty(name) : el.style.setProperty(name, value); break;
    case '.': property(el, name, value); break;
    case '@': listen(el, name, value); break;
    case '!': behave(el, name, value); break;
    case '#': el.textContent = value ?? ''; break;
    case '<': el.replaceChildren(...(value === null ? [] : JSON.parse(value).map(rich))); break;
    default: attribute(el, key, value);
  }
}

function property(el, name, value) {
  if (properties[name]) properties[name](el, value);
  else if (flags.has(name)) el[name] = value === '1';
  else if (el.tagName === 'SELECT' && name === 'value') el.selectedIndex = value === null ? -1 : +value;
  else if (el[name] !== (value ?? '')) el[name] = value ?? '';
}

function attribute(el, name, value) {
  if (/^on|^srcdoc$|^style$/i.test(name) || (/^(href|src|action)$/i.test(name) && unsafe(value))) return;
  if (name === 'class') {
    const { base } = stateOf(el);
    el.className = base && value ? base + ' ' + value : value ?? base;
  } else if (name === 'hidden') hide(el, value !== null);
  else if (value === null) el.removeAttribute(name);
  else el.setAttribute(name, value);
}

/// True for addresses that would run something.
function unsafe(url) {
  return /^(javascript|vbscript|data(?!:image\/(png|gif|jpeg|webp);)):/i.test((url ?? '').replace(/[\0-\x20]/g, ''));
}

/// A node of rich text, which the server has filtered: a text, or [tag, {attribute: value}, node...].
function rich(node) {
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

function apply(list) {
  for (const [code, ...args] of list) {
    operations[code]?.(...args);
    if (code === 'c' || code === 's') settle();
  }
  nameFields();
  // What dialogs do about the focus when they come and go is done by then.
  if (focusNext) queueMicrotask(giveFocus);
}

/// Starts the behaviours of elements that have come into the page.
function settle() {
  const started = attaching;
  attaching = [];
  for (const start of started) start();
}

const pageCommands = {
  title(text) { document.title = text; },
  lang(text) { root.lang = text; },
  htmlClass(names) {
    const unstyled = root.classList.contains('Wt-unstyled');
    root.className = names;
    root.classList.toggle('Wt-unstyled', unstyled);
  },
  texts(given) { Object.assign(texts, given); },
  redirect(url) { go(url); },
  style(url) {
    const link = document.createElement('link');
    link.rel = 'stylesheet';
    link.href = url;
    // Nothing flashes up without its style, but nothing waits for ever for a style that does not come either.
    root.classList.add('Wt-unstyled');
    const styled = () => {
      root.classList.remove('Wt-unstyled');
      if (document.activeElement === document.body) focusWanted?.focus();
    };
    link.onload = link.onerror = styled;
    setTimeout(styled, 4000);
    document.head.append(link);
  },
};

function go(url) {
  const target = new URL(url, location.href);
  if (!/^https?:$/.test(target.protocol)) return;
  leaving = true;
  if (target.href === location.href || url === '?') location.reload();
  else location.assign(target);
}

/// The ways in which an element comes and goes, as WAnimation numbers them.
const slides = { 1: 'translateX(-100%)', 2: 'translateX(100%)', 3: 'translateY(100%)', 4: 'translateY(-100%)', 5: 'scale(.2)' };
const easings = ['ease', 'linear', 'ease-in', 'ease-out', 'ease-in-out', 'ease'];
const leavings = new WeakMap(); // elements that are to be hidden in a moment: how

/// Animates an element that has just been shown, or (going) is about to be hidden.
commands.anim = (el, going, effects, easing, duration) => {
  if (reduced.matches || !el.animate) return;
  const away = {};
  if (slides[effects & 255]) away.transform = slides[effects & 255];
  if (effects & 256) away.opacity = 0;
  const options = { duration, easing: easings[easing] };
  if (going) leavings.set(el, [away, options]);
  else el.animate([away, {}], options);
};

/// Sets or takes away the attribute "hidden", after the animation that was ordered.
function hide(el, hidden) {
  const leaving = leavings.get(el);
  leavings.delete(el);
  const state = stateOf(el);
  state.leaving?.cancel();
  state.leaving = null;
  el.hidden = hidden;
  if (!hidden || !leaving) return;
  el.hidden = false;
  const [away, options] = leaving;
  const animation = state.leaving = el.animate([{}, away], options);
  animation.onfinish = () => {
    if (state.leaving !== animation) return;
    state.leaving = null;
    el.hidden = true;
  };
}

/// What was to have the focus last; a page that waits for its style sheet cannot give it yet.
let focusWanted = null;
/// What gets the focus once the present operations are done: until then a dialog that goes may still hold it.
let focusNext = null;
commands.focus = el => { focusWanted = focusNext = el; };

function giveFocus() {
  const el = focusNext;
  focusNext = null;
  if (!el?.isConnected) return;
  const quiet = !flushTimer;
  el.focus();
  // The server knows already.
  if (quiet && document.activeElement === el) focusTold = focusedId();
}

commands.blur = el => el.blur();
commands.select = (el, from, to) => el.setSelectionRange?.(from, to);

// ---- what the user does ------------------------------------------------------------------------------------------

const point = (x, y) => (x || y ? [Math.round(x), Math.round(y)] : undefined);
const modifiers = e => (e.shiftKey && 1) | (e.ctrlKey && 2) | (e.altKey && 4) | (e.metaKey && 8) || undefined;

/// Where the mouse button went down.
let pressedAt = [0, 0];
document.addEventListener('mousedown', e => { pressedAt = [e.clientX, e.clientY]; }, true);

/// What a mouse event tells: see PROTOCOL.md.
function mouseData(el, e) {
  const box = el.getBoundingClientRect();
  return {
    b: e.type === 'mousemove' || e.type === 'mouseenter' || e.type === 'mouseleave' ? undefined : [1, 2, 4][e.button],
    m: modifiers(e),
    d: point(e.pageX, e.pageY),
    w: point(e.clientX, e.clientY),
    s: point(e.screenX, e.screenY),
    o: point(e.clientX - box.left, e.clientY - box.top),
    g: e.buttons || e.type === 'mouseup' ? point(e.clientX - pressedAt[0], e.clientY - pressedAt[1]) : undefined,
    l: e.type === 'wheel' ? -Math.sign(e.deltaY) || undefined : undefined,
  };
}

function keyData(e) {
  const text = e.key?.length === 1 || (e.key && [...e.key].length === 1) ? e.key : undefined;
  const code = e.keyCode >= 96 && e.keyCode <= 105 ? e.keyCode - 48 : e.keyCode;
  return { k: code || undefined, c: text?.codePointAt(0), t: text, m: modifiers(e) };
}

/// Events that are not the browser's own: the browser's event, and whether it is one.
const derived = {
  enter: ['keydown', e => e.key === 'Enter' && !e.isComposing],
  escape: ['keydown', e => e.key === 'Escape'],
  drag: ['mousemove', e => e.buttons !== 0],
};

function listen(el, name, value) {
  const { listeners } = stateOf(el);
  // A label hears of its input: the focus, which does not bubble by itself, and one of the two clicks.
  const label = el.tagName === 'LABEL';
  const [type, matches] = derived[name] ?? [(label && { focus: 'focusin', blur: 'focusout' }[name]) || name];
  if (listeners[name]) {
    el.removeEventListener(type, listeners[name]);
    delete listeners[name];
  }
  if (value === null) return;
  const prevent = value.includes('p'), stop = value.includes('s');
  const listener = listeners[name] = e => {
    if (matches && !matches(e)) return;
    if (label && name === 'click' && e.target.tagName !== 'INPUT') return;
    if (prevent) e.preventDefault();
    if (stop) e.stopPropagation();
    if (el.disabled) return;
    tell(el, name, e instanceof KeyboardEvent ? (matches ? undefined : keyData(e)) : e instanceof MouseEvent ? mouseData(el, e) : undefined);
  };
  el.addEventListener(type, listener, { passive: !prevent && type === 'wheel' });
}

let events = [];
const changedValues = new Set();
let focusTold = 0;
let flushTimer = 0;

/// Tells the session of an event on an element. `data` as in PROTOCOL.md.
function tell(el, name, data) {
  const id = stateOf(el)?.id;
  if (!id) return;
  events.push(data ? [id, name, data] : [id, name]);
  flushSoon(0);
}

/// Something is to be told: at once, or with what follows within some milliseconds.
function flushSoon(delay) {
  if (flushTimer && delay) return;
  clearTimeout(flushTimer);
  if (delay) flushTimer = setTimeout(flush, delay);
  else {
    flushTimer = -1;
    queueMicrotask(() => flushTimer === -1 && flush());
  }
}

function valueOf(el) {
  if (el.type === 'checkbox' || el.type === 'radio') return el.indeterminate ? '-' : el.checked ? '1' : '0';
  return el.tagName === 'SELECT' ? String(el.selectedIndex) : el.value;
}

for (const type of ['input', 'change']) {
  document.addEventListener(type, e => {
    if (!stateOf(e.target) || e.target.type === 'file') return;
    changedValues.add(e.target);
    flushSoon(250);
  }, true);
}

/// The number of the focused element, or of what it is a part of; 0 for none.
function focusedId() {
  let el = document.activeElement;
  while (el && el !== document.body && !stateOf(el)) el = el.parentElement;
  return !el || el === document.body ? 0 : stateOf(el).id;
}
document.addEventListener('focusin', () => flushSoon(100));
document.addEventListener('focusout', () => flushSoon(100));

// ---- connection --------------------------------------------------------------------------------------------------

const resendAfter = [300, 700, 1500, 3000, 5000];
const ackAfterUpdates = 20;

let socket = null;
let token = '';
let ready = false;      // messages may be sent
let leaving = false;
let ended = '';         // why the session is over
let attempts = 0;
let retry = 0;
let sent = 0;           // number of the last message to the server
let outbox = [];        // messages that the server has not acknowledged: [number, object]
let seen = 0;           // number of the last update
let seenTold = 0;

function flush() {
  flushTimer = 0;
  const focus = focusedId();
  if (!events.length && !changedValues.size && focus === focusTold) return;
  const message = { n: ++sent };
  if (changedValues.size) {
    message.v = {};
    for (const el of changedValues) message.v[stateOf(el).id] = valueOf(el);
    changedValues.clear();
  }
  if (focus !== focusTold) message.f = focusTold = focus;
  if (events.length) {
    events.unshift(...changedSelection());
    message.e = events;
    events = [];
  }
  outbox.push([message.n, message]);
  if (ready) send(message);
  busy(true);
}

function send(message) {
  message.a = seenTold = seen;
  socket.send(JSON.stringify(message));
}

function acknowledged(number) {
  while (outbox.length && outbox[0][0] <= number) outbox.shift();
  if (!outbox.length) busy(false);
}

const receivers = {
  token(message) {
    token = message.token;
    ready = true;
    for (const [, waiting] of outbox) send(waiting);
  },
  resumed(message) {
    acknowledged(message.resumed);
    ready = true;
    for (const [, waiting] of outbox) send(waiting);
    overlay(false);
  },
  reload() {
    leaving = true;
    // A server that sends every page away again is not to be asked without pause.
    setTimeout(() => location.reload(), performance.now() < 5000 ? 3000 : 0);
  },
  quit({ quit }) {
    ended = quit.text || texts.ended;
    token = '';
    busy(false);
    if (quit.url !== undefined) go(quit.url);
    else if (quit.now) overlay(true, ended);
    else for (const type of ['click', 'keydown']) document.addEventListener(type, () => overlay(true, ended), { once: true });
  },
  busy({ busy: text }) {
    ended = text;
    overlay(true, text);
  },
};

function receive(message) {
  attempts = 0;
  for (const kind in receivers) if (kind in message) return receivers[kind](message);
  if (message.a !== undefined) acknowledged(message.a);
  if (message.n === undefined || message.n <= seen) return;
  seen = message.n;
  if (message.o) apply(message.o);
  if (seen - seenTold >= ackAfterUpdates && ready) {
    seenTold = seen;
    socket.send(JSON.stringify({ a: seen }));
  }
}

function connect() {
  const url = new URL('?request=ws', location.href);
  url.protocol = url.protocol.replace('http', 'ws');
  url.hash = '';
  socket = new WebSocket(url);
  socket.onopen = () => socket.send(JSON.stringify(token ? { resume: token, a: seenTold = seen } : { hello: {
    query: location.search.slice(1),
    tz: -new Date().getTimezoneOffset(),
    w: screen.width,
    h: screen.height,
    lang: navigator.language,
  } }));
  socket.onmessage = e => receive(JSON.parse(e.data));
  socket.onclose = () => {
    ready = false;
    if (leaving || ended) return;
    overlay(true, texts.lost);
    clearTimeout(retry);
    retry = setTimeout(connect, resendAfter[Math.min(attempts++, resendAfter.length - 1)]);
  };
}

addEventListener('pagehide', () => {
  leaving = true;
  socket?.close(4000);
});
addEventListener('pageshow', e => { if (e.persisted) location.reload(); });
addEventListener('online', () => {
  if (socket?.readyState !== WebSocket.CLOSED || ended || leaving) return;
  clearTimeout(retry);
  connect();
});

// ---- waiting and absence -----------------------------------------------------------------------------------------

let bar = null;
let veil = null;

/// A thin bar at the top while an answer is due; the style sheet shows it after a moment only.
function busy(on) {
  if (on === !!bar) return;
  root.setAttribute('aria-busy', on);
  if (on) {
    bar = document.createElement('div');
    bar.className = 'Wt-loading';
    document.body.append(bar);
  } else {
    bar.remove();
    bar = null;
  }
}

/// Dims the page under a sentence.
function overlay(on, text) {
  veil?.remove();
  veil = null;
  for (const el of document.body.children) el.inert = on && el !== bar;
  if (!on) return;
  veil = document.createElement('div');
  veil.className = 'Wt-offline';
  veil.setAttribute('role', 'alert');
  const sentence = document.createElement('div');
  sentence.textContent = text;
  veil.append(sentence);
  document.body.append(veil);
}

// ---- sizes that layouts give -------------------------------------------------------------------------------------

const sizes = new WeakMap();
const sizeObserver = new ResizeObserver(entries => {
  for (const { target, contentRect, borderBoxSize: [border] } of entries) {
    if (!target.isConnected || !target.getClientRects().length) continue;
    // Told is what the element's own width and height would have to be to stay as it is.
    const whole = getComputedStyle(target).boxSizing === 'border-box';
    const w = Math.round(whole ? border.inlineSize : contentRect.width);
    const h = Math.round(whole ? border.blockSize : contentRect.height);
    const told = sizes.get(target);
    if (told && told[0] === w && told[1] === h) continue;
    sizes.set(target, [w, h]);
    tell(target, 'size', { a: [w, h] });
  }
});
behaviours.size = {
  attach(el) { sizeObserver.observe(el, { box: getComputedStyle(el).boxSizing }); },
  detach(el) {
    sizeObserver.unobserve(el);
  },
};

// ---- tool tips ---------------------------------------------------------------------------------------------------

let tip = null; // the shown one: { el, of }

/// Shows nodes as the tool tip of an element.
function showTip(of, nodes) {
  hideTip();
  const el = document.createElement('div');
  el.className = 'Wt-tooltip';
  el.id = 'wt-tip';
  el.setAttribute('role', 'tooltip');
  el.append(...nodes);
  document.body.append(el);
  of.setAttribute('aria-describedby', el.id);
  const box = of.getBoundingClientRect();
  const below = box.bottom + 6 + el.offsetHeight < innerHeight;
  el.style.left = Math.max(4, Math.min(box.left, innerWidth - el.offsetWidth - 4)) + 'px';
  el.style.top = Math.max(4, below ? box.bottom + 6 : box.top - el.offsetHeight - 6) + 'px';
  tip = { el, of };
}

function hideTip() {
  tip?.el.remove();
  tip?.of.removeAttribute('aria-describedby');
  tip = null;
}

/// A tool tip of rich text.
behaviours.tip = {
  attach(el) {
    const { signal } = (stateOf(el).tip = new AbortController());
    let waiting = 0;
    el.addEventListener('mouseenter', () => {
      waiting = setTimeout(() => el.isConnected && showTip(el, stateOf(el).behaviours.tip.map(rich)), 500);
    }, { signal });
    el.addEventListener('mouseleave', () => {
      clearTimeout(waiting);
      if (tip?.of === el) hideTip();
    }, { signal });
  },
  detach(el) {
    stateOf(el).tip?.abort();
    if (tip?.of === el) hideTip();
  },
};

// Who comes by keyboard gets the tips too: those of rich text, and those that the browser shows to mice only.
document.addEventListener('focusin', ({ target }) => {
  hideTip();
  if (!target.matches(':focus-visible')) return;
  const of = target.closest('[title]') ?? target;
  const config = stateOf(target)?.behaviours.tip;
  if (config) showTip(target, config.map(rich));
  else if (of.title) showTip(of, [of.title]);
});
document.addEventListener('focusout', hideTip);
document.addEventListener('input', hideTip); // what it said of the former text may be wrong by now
document.addEventListener('keydown', e => { if (e.key === 'Escape') hideTip(); }, true);

// ==== behaviours of form widgets, dialogs and tabs ================================================================

// In a layer, so that any style sheet of the application has the last word.
const formSheet = new CSSStyleSheet();
formSheet.replaceSync(`@layer wt{
.Wt-cell-middle{vertical-align:middle}.Wt-cell-bottom{vertical-align:bottom}.Wt-cell-baseline{vertical-align:baseline}
.Wt-tabwidget{display:flex;flex-direction:column;min-width:0;min-height:0}
.Wt-tabwidget>.Wt-stack{flex:1 1 auto;min-height:0}
.Wt-tabs{display:flex;flex-wrap:wrap;margin:0;padding:0;list-style:none}
.Wt-tabs a{display:block;padding:4px 12px;cursor:pointer}
.Wt-tabs>.itemselected>a{font-weight:600;text-decoration:underline}
.Wt-progressbar{display:inline-block;position:relative;width:150px;height:20px;border:1px solid;overflow:hidden}
.Wt-pgb-bar{height:100%;background:#9cf}
.Wt-pgb-label{position:absolute;inset:0;text-align:center}
.Wt-dialogcover{position:fixed;inset:0;z-index:100;background:#0006}
.Wt-dialogcover:has(~.Wt-dialogcover){background:none}
.Wt-dialog{position:fixed;z-index:100;inset:0;width:fit-content;height:fit-content;margin:auto;max-width:calc(100vw - 16px);max-height:calc(100vh - 16px);border:1px solid;background:Canvas;color:CanvasText;overflow:auto}
.Wt-dialog:focus{outline:none}
.Wt-tv-body:focus-visible .Wt-current{outline:1px dotted;outline-offset:-1px}
.Wt-dialog-grip{position:absolute;left:0;top:0;width:16px;height:16px;line-height:16px;text-align:center;touch-action:none;cursor:move}
.Wt-dialog-grip:not(.Wt-resize,:focus-visible){opacity:0;pointer-events:none}
.Wt-dialog-grip::before{content:"✥"}
.Wt-resize{left:auto;top:auto;right:0;bottom:0;cursor:nwse-resize}
.Wt-resize::before{content:"◢"}
.dialog-layout{display:flex;flex-direction:column;height:100%;max-height:inherit}
.dialog-layout>.body{flex:1 1 auto;min-height:0;overflow:auto}
.titlebar h4{margin:0}
.movable>.titlebar{cursor:move}
.closeicon{float:right;cursor:pointer}
.closeicon::before{content:"×"}
input.Wt-invalid,textarea.Wt-invalid,select.Wt-invalid{outline:2px solid #b00020}
.Wt-progressbar[hidden]{display:none}
}`);
document.adoptedStyleSheets.push(formSheet);

const focusable = 'a[href],button,input,select,textarea,[tabindex]';

function focusablesIn(el, selector = focusable) {
  return [...el.querySelectorAll(selector)].filter(canFocus);
}

function canFocus(el) {
  return !el.disabled && el.tabIndex >= 0 && !el.closest('[inert]') && el.getClientRects().length > 0;
}

let namesGiven = 0;
/// The id of an element that an attribute is to name.
const nameOf = el => (el.id ||= 'wt-' + ++namesGiven);

const handlers = new WeakMap(); // by element: what ends the listeners of each of its behaviours

/// Listeners that live as long as the behaviour `name` of the element.
function handle(el, name, listeners) {
  if (!handlers.has(el)) handlers.set(el, {});
  const { signal } = (handlers.get(el)[name] = new AbortController());
  for (const type in listeners) el.addEventListener(type, listeners[type], { signal });
}

const unhandle = name => el => handlers.get(el)?.[name]?.abort();
const configOf = (el, name) => stateOf(el).behaviours[name];

// ---- fields

/// The state between comes with the property that the two others have.
properties.checked = (el, value) => {
  el.indeterminate = value === '-';
  el.checked = value === '1';
};

/// The server's verdict on a text (WValidator and its kin), with the same rules.
function isValid(text, rule) {
  if (text === '') return !rule.m;
  if (rule.lo !== undefined) return /^[-+]?[0-9]{1,12}$/.test(text) && +text >= rule.lo && +text <= rule.hi;
  if (rule.re === undefined) return true;
  try {
    return new RegExp(`^(?:${rule.re})$`, rule.i ? 'i' : '').test(text);
  } catch {
    return true; // Only the server can tell.
  }
}

/// The nearest cell with words, and without fields, before the one that the field stands in.
function cellBefore(field) {
  for (let cell = field.closest('td,th'); cell; cell = cell.parentElement.closest('td,th')) {
    for (let before = cell.previousElementSibling; before; before = before.previousElementSibling)
      if (before.textContent.trim() && !before.querySelector(fields + ',button')) return before;
  }
  return null;
}

/// Who cannot see that a field stands beside its words is told so.
function nameFields() {
  const made = unnamed;
  unnamed = [];
  for (const el of made) {
    if (!el.isConnected || el.labels?.length || el.hasAttribute('aria-label') || el.hasAttribute('aria-labelledby')) continue;
    const words = cellBefore(el);
    if (words) el.setAttribute('aria-labelledby', nameOf(words));
  }
}

const textToJudge = el => (el.tagName === 'SELECT' ? el.selectedOptions[0]?.text ?? '' : el.value);

function judge(el) {
  const bad = !isValid(textToJudge(el), configOf(el, 'valid'));
  el.classList.toggle('Wt-invalid', bad);
  if (bad) el.setAttribute('aria-invalid', 'true');
  else el.removeAttribute('aria-invalid');
}

behaviours.valid = {
  attach(el) {
    handle(el, 'valid', {
      input() { judge(el); },
      beforeinput(e) {
        const typed = e.inputType === 'insertText' && e.data;
        if (typed && configOf(el, 'valid').lo !== undefined && /[^-+0-9]/.test(typed)) e.preventDefault();
      },
    });
  },
  detach: unhandle('valid'),
};

const selectionsTold = new WeakMap();

/// What to tell of the selection in the focused text field, if it has changed.
function changedSelection() {
  const el = document.activeElement;
  if (!el || stateOf(el)?.behaviours.sel === undefined || el.selectionStart === null) return [];
  const now = [el.selectionStart, el.selectionEnd];
  if (String(selectionsTold.get(el) ?? [0, 0]) === String(now)) return [];
  selectionsTold.set(el, now);
  return [[stateOf(el).id, 'sel', { a: now }]];
}
behaviours.sel = {};

/// A check box that a click takes through all three states: off, between, on.
behaviours.tri = {
  attach(el) {
    let before = null;
    const remember = () => { before = { checked: el.checked, between: el.indeterminate }; };
    const { signal } = (handlers.get(el) ?? handlers.set(el, {}).get(el)).tri = new AbortController();
    for (const type of ['pointerdown', 'keydown']) (el.parentElement ?? el).addEventListener(type, remember, { capture: true, signal });
    el.addEventListener('click', () => {
      const was = before ?? { checked: !el.checked, between: false };
      before = null;
      el.indeterminate = !was.checked && !was.between;
      el.checked = was.between;
    }, { signal });
  },
  detach: unhandle('tri'),
};

// ---- buttons of all kinds

/// A button that leads somewhere: u address, t target, d whether to download.
behaviours.link = {
  attach(el) {
    handle(el, 'link', {
      click() {
        const { u, t, d } = configOf(el, 'link');
        if (unsafe(u)) return;
        const a = document.createElement('a');
        a.href = u;
        a.rel = 'noopener noreferrer';
        if (t) a.target = t;
        if (d) a.download = '';
        a.click();
      },
    });
  },
  detach: unhandle('link'),
};

/// The words that stand nearest to an element that has none of its own.
function wordsAround(el) {
  for (let around = el.parentElement; around && around !== document.body; around = around.parentElement) {
    const text = around.textContent.trim();
    if (text) return text.slice(0, 80);
  }
  return '';
}

/// Something that is no button but is pressed like one, r its role. A press by keyboard goes up like a mouse's.
behaviours.press = {
  attach(el, { r }) {
    el.tabIndex = 0;
    el.setAttribute('role', r);
    if (!el.alt && !el.textContent.trim() && !el.querySelector('img[alt]:not([alt=""])') && !el.hasAttribute('aria-label')) {
      el.setAttribute('aria-label', wordsAround(el) || '…');
    }
    handle(el, 'press', {
      keydown(e) {
        if ((e.key !== 'Enter' && e.key !== ' ') || e.target !== el) return;
        e.preventDefault();
        for (const type of ['mousedown', 'mouseup', 'click']) el.dispatchEvent(new MouseEvent(type, { bubbles: true, cancelable: true, view: window }));
      },
    });
  },
  detach(el) {
    unhandle('press')(el);
    el.removeAttribute('tabindex');
    el.removeAttribute('role');
  },
};

// ---- tabs

const usable = tab => tab.getAttribute('aria-disabled') !== 'true' && tab.getClientRects().length > 0;

/// Names the shown page by its tab, and the tab's page, for who cannot see them.
function nameTabs(strip) {
  const tab = strip.querySelector('[role=tab][aria-selected=true]');
  const page = [...strip.parentElement?.lastElementChild.children ?? []].find(el => !el.hidden);
  if (!tab || !page) return;
  for (const other of strip.querySelectorAll('[aria-controls]')) other.removeAttribute('aria-controls');
  page.setAttribute('aria-labelledby', nameOf(tab));
  tab.setAttribute('aria-controls', nameOf(page));
}

/// A strip of tabs: one of them is a stop of the Tab key, the arrows choose among them.
behaviours.tabs = {
  attach(el) {
    const go = tab => {
      tab?.focus();
      tab?.click();
    };
    handle(el, 'tabs', {
      keydown(e) {
        const all = [...el.querySelectorAll('[role=tab]')].filter(usable);
        const at = all.indexOf(e.target);
        if (at < 0 || e.altKey || e.ctrlKey || e.metaKey) return;
        const forward = getComputedStyle(el).direction === 'rtl' ? -1 : 1;
        const by = { ArrowRight: forward, ArrowLeft: -forward, ArrowDown: 1, ArrowUp: -1 }[e.key];
        if (by) go(all[(at + by + all.length) % all.length]);
        else if (e.key === 'Home') go(all[0]);
        else if (e.key === 'End') go(all.at(-1));
        else if (e.key === 'Enter' || e.key === ' ') e.target.click();
        else return;
        e.preventDefault();
      },
    });
    const watch = new MutationObserver(() => nameTabs(el));
    watch.observe(el, { subtree: true, attributes: true, attributeFilter: ['aria-selected'] });
    handlers.get(el).tabs.signal.addEventListener('abort', () => watch.disconnect());
    queueMicrotask(() => nameTabs(el));
  },
  detach: unhandle('tabs'),
};

// ---- dialogs: m modal, e Escape rejects, v movable by the title bar, r resizable at the lower right corner

const dialogs = []; // shown ones, the topmost last: { el, opener }

const topModal = () => dialogs.findLast(dialog => configOf(dialog.el, 'dialog').m);

/// What lies below the topmost modal dialog can be neither reached nor read out.
function coverPage() {
  const top = topModal();
  const siblings = top ? [...top.el.parentElement.children] : [];
  const covered = new Set(siblings.slice(0, siblings.indexOf(top?.el)));
  for (const el of document.querySelectorAll('[data-wt-covered]')) {
    if (covered.delete(el)) continue;
    el.inert = false;
    delete el.dataset.wtCovered;
  }
  for (const el of covered) {
    el.inert = true;
    el.dataset.wtCovered = '';
  }
}

function enterDialog({ el }) {
  if (!el.isConnected || el.contains(document.activeElement)) return;
  (focusablesIn(el, fields)[0] ?? el).focus({ preventScroll: true });
}

/// The focus goes back to where it came from, unless somebody else has it by now.
function leaveDialog({ el, opener }) {
  const now = document.activeElement;
  if (now && now !== document.body && !el.contains(now)) return;
  if (opener?.isConnected && canFocus(opener)) opener.focus({ preventScroll: true });
  else if (topModal()) enterDialog(topModal());
}

function nameDialog(el) {
  const bar = el.querySelector('.titlebar');
  const label = bar?.textContent.trim() ? bar : el.querySelector('.body');
  if (label) el.setAttribute('aria-labelledby', nameOf(label));
}

function turnAround(el, e) {
  const stops = focusablesIn(el);
  const now = document.activeElement;
  const edge = e.shiftKey ? stops[0] : stops.at(-1);
  if (el.contains(now) && now !== el && now !== edge) return;
  if (now === el && !e.shiftKey && stops.length) return;
  e.preventDefault();
  (e.shiftKey ? stops.at(-1) : stops[0])?.focus();
}

document.addEventListener('keydown', e => {
  const top = dialogs.at(-1);
  if (!top || e.defaultPrevented || e.isComposing) return;
  const { e: escapes, m: modal } = configOf(top.el, 'dialog');
  if (e.key === 'Escape' && escapes) {
    e.preventDefault();
    tell(top.el, 'dialog:escape');
  } else if (e.key === 'Tab' && modal) {
    turnAround(top.el, e);
  } else if (e.key === 'Enter' && top.el.contains(e.target) && e.target.matches('input:not([type=checkbox]),select')) {
    focusablesIn(top.el, 'button.Wt-btn-default')[0]?.click();
  }
});

/// Puts a dialog that was at `box` elsewhere, with its title bar in sight.
function moveDialog(el, box, dx, dy) {
  const left = Math.min(Math.max(box.left + dx, 48 - box.width), innerWidth - 48);
  const top = Math.min(Math.max(box.top + dy, 0), innerHeight - 24);
  Object.assign(el.style, { left: left + 'px', top: top + 'px', right: 'auto', bottom: 'auto', margin: '0' });
}

/// Its upper left corner stays where it is.
function resizeDialog(el, box, dx, dy) {
  moveDialog(el, box, 0, 0);
  const width = Math.max(96, Math.min(box.width + dx, innerWidth - box.left));
  const height = Math.max(64, Math.min(box.height + dy, innerHeight - box.top));
  Object.assign(el.style, { boxSizing: 'border-box', width: width + 'px', height: height + 'px' });
}

function dragDialog(el, at, e, act) {
  const box = el.getBoundingClientRect();
  followPointer(at, e, (dx, dy) => act(el, box, dx, dy));
}

function pressDialog(el, e) {
  const bar = e.target.closest('.titlebar');
  if (e.button !== 0) return;
  if (e.target.matches('.Wt-resize')) dragDialog(el, e.target, e, resizeDialog);
  else if (configOf(el, 'dialog').v && bar && !bar.contains(e.target.closest(focusable))) dragDialog(el, bar, e, moveDialog);
}

/// A handle for the arrow keys, made when there is a use for it; the last stops of the Tab key.
function gripDialog(el, wanted, name, label, act) {
  const grip = el.querySelector(`:scope>.${name}`);
  if (wanted === !!grip) return;
  if (grip) return grip.remove();
  const made = document.createElement('div');
  made.className = 'Wt-dialog-grip ' + name;
  made.tabIndex = 0;
  made.setAttribute('role', 'button');
  made.setAttribute('aria-label', label);
  made.addEventListener('keydown', e => {
    const by = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] }[e.key];
    if (!by) return;
    e.preventDefault();
    act(el, el.getBoundingClientRect(), by[0] * sizeStep, by[1] * sizeStep);
  });
  el.append(made);
}

function gripsOf(el) {
  const { v, r } = configOf(el, 'dialog');
  const bar = el.querySelector('.titlebar');
  gripDialog(el, !!v && !!bar && !bar.hidden, 'Wt-move', texts.move, moveDialog);
  gripDialog(el, !!r, 'Wt-resize', texts.resize, resizeDialog);
}

behaviours.dialog = {
  attach(el) {
    const dialog = { el, opener: document.activeElement };
    dialogs.push(dialog);
    el.tabIndex = -1;
    nameDialog(el);
    gripsOf(el);
    handle(el, 'dialog', { pointerdown(e) { pressDialog(el, e); } });
    queueMicrotask(() => {
      coverPage();
      enterDialog(dialog);
    });
  },
  update(el) {
    gripsOf(el);
    queueMicrotask(coverPage);
  },
  detach(el) {
    unhandle('dialog')(el);
    const [gone] = dialogs.splice(dialogs.findIndex(dialog => dialog.el === el), 1);
    queueMicrotask(() => {
      coverPage();
      leaveDialog(gone);
    });
  },
};

// ---- uploads

const transfers = new WeakMap();

/// Sends the chosen file, apart from the connection that events take. The server knows of the end by itself, but for
/// what never reaches it.
commands.upload = (el, url, largest) => {
  const file = el.querySelector('input[type=file]').files[0];
  if (!file) return tell(el, 'upload:empty');
  if (file.size > largest) return tell(el, 'upload:toolarge', { a: [file.size] });
  const form = new FormData();
  form.append('file', file, file.name);
  const request = new XMLHttpRequest();
  transfers.set(el, request);
  request.open('POST', url);
  request.onloadend = () => {
    transfers.delete(el);
    if (request.status === 413) tell(el, 'upload:toolarge', { a: [file.size] });
    else if (request.status !== 200) tell(el, 'upload:failed');
  };
  request.send(form);
};

behaviours.upload = {
  attach(el) { handle(el, 'upload', { submit(e) { e.preventDefault(); } }); },
  detach(el) {
    unhandle('upload')(el);
    transfers.get(el)?.abort();
  },
};


// ==== behaviours of layouts and table views =======================================================================

/// Follows the pointer from a press on `el` until it is let go: move(dx, dy), then done().
function followPointer(el, e, move, done) {
  el.setPointerCapture(e.pointerId);
  const { clientX, clientY } = e;
  const moved = m => move(m.clientX - clientX, m.clientY - clientY);
  const end = () => {
    el.removeEventListener('pointermove', moved);
    el.removeEventListener('pointerup', end);
    el.removeEventListener('pointercancel', end);
    done?.();
  };
  el.addEventListener('pointermove', moved);
  el.addEventListener('pointerup', end);
  el.addEventListener('pointercancel', end);
  e.preventDefault();
}

/// The elements whose size a handle between two cells changes: in a box the one before it, in a grid its row's or
/// column's.
function resizedBy(handle, vertical) {
  const parent = handle.parentElement;
  if (getComputedStyle(parent).display !== 'grid') return [handle.previousElementSibling];
  const line = vertical ? 'gridRowStart' : 'gridColumnStart';
  return [...parent.children].filter(el => el !== handle && !el.matches('.Wt-hrh2,.Wt-vrh2') && el.style[line] === handle.style[line]);
}

const leastSize = 24; // pixels
const sizeStep = 16;

/// A border that is moved by mouse and keyboard; "y" between rows, "x" between columns.
behaviours.split = {
  attach(el, axis) {
    const vertical = axis === 'y';
    const side = vertical ? 'height' : 'width';
    const told = size => el.setAttribute('aria-valuenow', Math.round(size));
    const resize = (targets, sizes, by) => targets.forEach((target, i) => {
      const size = Math.max(leastSize, sizes[i] + by);
      if (getComputedStyle(target.parentElement).display === 'flex') target.style.flex = `0 0 ${size}px`;
      else target.style[side] = size + 'px';
      told(size);
    });
    const start = () => {
      const targets = resizedBy(el, vertical).filter(Boolean);
      return [targets, targets.map(target => target.getBoundingClientRect()[side])];
    };
    told(start()[1][0] ?? 0);
    el.onpointerdown = e => {
      const [targets, sizes] = start();
      el.classList.add(vertical ? 'Wt-vsh2' : 'Wt-hsh2');
      followPointer(el, e, (dx, dy) => resize(targets, sizes, vertical ? dy : dx), () => el.classList.remove('Wt-vsh2', 'Wt-hsh2'));
    };
    el.onkeydown = e => {
      const by = { ArrowUp: -1, ArrowLeft: -1, ArrowDown: 1, ArrowRight: 1 }[e.key];
      if (!by) return;
      e.preventDefault();
      resize(...start(), by * sizeStep);
    };
  },
};

properties.row = (el, value) => {
  el.style.top = `calc(var(--wt-row)*${+value})`;
  el.setAttribute('aria-rowindex', +value + 2);
};

const columnOf = cell => +cell.dataset.column;
const listKeys = new Set(['ArrowUp', 'ArrowDown', 'PageUp', 'PageDown', 'Home', 'End', ' ']);

/// A list: scrolling, columns, and what the user does in it, told by row and column.
behaviours.table = {
  attach(el) {
    const [head, body] = el.children;
    const report = () => {
      if (el.wtScrollTo && body.clientHeight) {
        const wanted = el.wtScrollTo;
        el.wtScrollTo = null;
        commands.tableScroll(el, ...wanted);
      }
      head.scrollLeft = body.scrollLeft;
      const now = body.scrollTop + ',' + body.clientHeight;
      if (!body.clientHeight || now === el.wtScroll) return;
      el.wtScroll = now;
      tell(el, 'table:scroll', { a: [Math.round(body.scrollTop), body.clientHeight] });
    };
    let waiting = 0;
    const reportSoon = () => { waiting ||= setTimeout(() => { waiting = 0; report(); }, 60); };
    body.addEventListener('scroll', reportSoon, { passive: true });
    el.wtBodySize = new ResizeObserver(report);
    el.wtBodySize.observe(body);

    for (const [type, name] of [['mousedown', 'down'], ['mouseup', 'up'], ['click', 'click'], ['dblclick', 'dblclick']]) {
      body.addEventListener(type, e => {
        if (el.getAttribute('aria-disabled')) return;
        if (type === 'mousedown' && e.target === body && onScrollBar(body, e)) return;
        if (type === 'mousedown' && e.shiftKey) e.preventDefault();
        tell(el, 'table:' + name, { ...mouseData(el, e), a: placeOf(el, e.target) });
      });
    }
    body.addEventListener('change', e => {
      const [row, column] = placeOf(el, e.target);
      tell(el, 'table:check', { a: [row, column, e.target.checked ? 1 : 0] });
    });
    body.addEventListener('keydown', e => {
      const all = e.key.toLowerCase() === 'a' && (e.ctrlKey || e.metaKey) && !e.altKey;
      if (!(all || listKeys.has(e.key)) || e.target !== body || !stateOf(el).behaviours.table.select) return;
      e.preventDefault();
      tell(el, 'table:key', { a: [e.keyCode, modifiers(e) ?? 0] });
    });
    body.addEventListener('mouseover', e => {
      const cell = e.target.closest('.Wt-tv-c');
      if (!cell || cell.title && !cell.wtTip) return;
      cell.wtTip = cell.scrollWidth > cell.clientWidth;
      if (cell.wtTip) cell.title = cell.textContent;
      else cell.removeAttribute('title');
    });
    headBehaviour(el, head);
  },
  detach(el) { el.wtBodySize?.disconnect(); },
};

/// True if the pointer is on a scroll bar of the element.
function onScrollBar(el, { clientX, clientY }) {
  const { left, top } = el.getBoundingClientRect();
  return clientX >= left + el.clientLeft + el.clientWidth || clientY >= top + el.clientTop + el.clientHeight;
}

/// Row and column numbers of a cell, -1 where there is none.
function placeOf(el, target) {
  const cell = target.closest('.Wt-tv-c'), row = cell?.parentElement;
  if (!row?.matches('.Wt-tv-row')) return [-1, -1];
  const headCell = el.children[0].firstChild.children[[...row.children].indexOf(cell)];
  return [row.getAttribute('aria-rowindex') - 2, columnOf(headCell)];
}

function headBehaviour(el, head) {
  const sort = cell => cell.hasAttribute('aria-sort') && tell(el, 'table:sort', { a: [columnOf(cell)] });
  const resizeTo = (cell, width) => tell(el, 'table:resize', { a: [columnOf(cell), Math.max(16, Math.round(width))] });
  head.addEventListener('click', e => {
    const cell = e.target.closest('.Wt-tv-c');
    if (cell && !e.target.matches('.Wt-tv-rh')) sort(cell);
  });
  head.addEventListener('keydown', e => {
    const cell = e.target.closest('.Wt-tv-c');
    if (!cell) return;
    const by = { ArrowLeft: -sizeStep, ArrowRight: sizeStep }[e.key];
    if (e.key === 'Enter' || e.key === ' ') sort(cell);
    else if (e.altKey && by && !cell.matches('.Wt-tv-no-rh')) resizeTo(cell, cell.getBoundingClientRect().width - 7 + by);
    else return;
    e.preventDefault();
  });
  head.addEventListener('pointerdown', e => {
    if (!e.target.matches('.Wt-tv-rh')) return;
    const cell = e.target.parentElement;
    const place = [...cell.parentElement.children].indexOf(cell);
    const tracks = el.style.getPropertyValue('--wt-columns').split(' ');
    const start = parseInt(tracks[place]);
    let width = start;
    followPointer(e.target, e, dx => {
      width = Math.max(23, start + dx);
      tracks[place] = width + 'px';
      el.style.setProperty('--wt-columns', tracks.join(' '));
    }, () => width !== start && resizeTo(cell, width - 7));
  });
}

/// Brings a row into sight; hints as the API numbers them: as little as needed, at the top, bottom, middle.
commands.tableScroll = (el, row, hint) => {
  const body = el.children[1];
  if (!body?.clientHeight) {
    el.wtScrollTo = [row, hint];
    return;
  }
  const height = parseFloat(el.style.getPropertyValue('--wt-row')), top = row * height, room = body.clientHeight;
  const at = [
    top < body.scrollTop ? top : top + height > body.scrollTop + room ? top + height - room : body.scrollTop,
    top, top + height - room, top + (height - room) / 2,
  ][hint];
  body.scrollTop = at;
};

/// The picture of the browser's tab comes last: nothing waits for it.
addEventListener('load', () => setTimeout(() => {
  const icon = document.querySelector('link[rel=icon][data-href]');
  if (icon) icon.href = icon.dataset.href;
}, 3000));

connect();
