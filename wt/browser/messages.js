// SPDX-License-Identifier: MIT
// What is to be told to the session: events, changed values, the focus, the selection in a text field.

import { flush } from './connection.js';
import { behaviours, stateOf, whenGone } from './page.js';

let events = [];
const changedValues = new Set();
let focusTold = 0;
let flushTimer = 0;

/// Tells the session of an event on an element. `data` as in PROTOCOL.md.
export function tell(el, name, data) {
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
export function focusedId() {
  let el = document.activeElement;
  while (el && el !== document.body && !stateOf(el)) el = el.parentElement;
  return !el || el === document.body ? 0 : stateOf(el).id;
}
document.addEventListener('focusin', () => flushSoon(100));
document.addEventListener('focusout', () => flushSoon(100));

whenGone.push(el => changedValues.delete(el));

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

/// What is to be told by now, as members of a message; null if there is nothing.
export function takeNews() {
  flushTimer = 0;
  const focus = focusedId();
  if (!events.length && !changedValues.size && focus === focusTold) return null;
  const news = {};
  if (changedValues.size) {
    news.v = {};
    for (const el of changedValues) news.v[stateOf(el).id] = valueOf(el);
    changedValues.clear();
  }
  if (focus !== focusTold) news.f = focusTold = focus;
  if (events.length) {
    events.unshift(...changedSelection());
    news.e = events;
    events = [];
  }
  return news;
}

export const isFlushDue = () => flushTimer !== 0;
/// The server knows already where the focus is.
export function noteFocusTold() { focusTold = focusedId(); }
