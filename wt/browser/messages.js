// SPDX-License-Identifier: MIT
// What is to be told to the session: events, changed values, the focus, the selection in a text field.

import { flush } from './connection.js';
import { behaviours, stateOf, texts, whenGone } from './page.js';
import { say } from './tips.js';

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

/// A text that can be sent: without what no message can hold, a zero and halves of characters.
export const clean = text => text.replace(/\0|[\ud800-\udbff](?![\udc00-\udfff])|(?<![\ud800-\udbff])[\udc00-\udfff]/g, '');

function valueOf(el) {
  if (el.type === 'checkbox' || el.type === 'radio') return el.indeterminate ? '-' : el.checked ? '1' : '0';
  return el.tagName === 'SELECT' ? String(el.selectedIndex) : clean(el.value);
}

/// What a message can carry of texts, in bytes; the server takes no message over 512 KiB.
const mostBytes = 400000;
const encoder = new TextEncoder();
const bytesOf = text => (text.length * 6 < mostBytes ? 0 : encoder.encode(JSON.stringify(text)).length);

let composing = null; // the field in which an input method makes up a text
const formerTexts = new WeakMap(); // what fields held that could be sent

document.addEventListener('focusin', e => formerTexts.set(e.target, e.target.value));

/// Takes back an input that makes a text too long to be sent.
function refused(el) {
  if (typeof el.value !== 'string' || bytesOf(el.value) < mostBytes) return false;
  const former = formerTexts.get(el) ?? '';
  el.value = bytesOf(former) < mostBytes ? former : '';
  say(el, texts.long);
  return true;
}

/// A changed value is told in a moment, of long texts in a longer one.
function noteChange(el) {
  if (!stateOf(el) || el.type === 'file' || el === composing || refused(el)) return;
  formerTexts.set(el, el.value);
  changedValues.add(el);
  flushSoon(el.value?.length > 5000 ? 1000 : 250);
}

for (const type of ['input', 'change']) document.addEventListener(type, e => noteChange(e.target), true);
document.addEventListener('compositionstart', e => { composing = e.target; }, true);
document.addEventListener('compositionend', e => {
  composing = null;
  noteChange(e.target);
}, true);

export const isComposing = el => el === composing;
/// Whether the session has yet to be told of what the field holds.
export const isUntold = el => changedValues.has(el);

/// The number of the focused element, or of what it is a part of; 0 for none.
export function focusedId() {
  let el = document.activeElement;
  while (el && el !== document.body && !stateOf(el)) el = el.parentElement;
  return !el || el === document.body ? 0 : stateOf(el).id;
}
document.addEventListener('focusin', () => flushSoon(100));
document.addEventListener('focusout', () => flushSoon(100));

whenGone.push(el => {
  changedValues.delete(el);
  if (el === composing) composing = null;
});

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
document.addEventListener('selectionchange', () => stateOf(document.activeElement)?.behaviours.sel !== undefined && flushSoon(100));

/// The values that go with the next message: as many as it can carry. The others follow at once.
function takeValues() {
  const values = {}, taken = [];
  let bytes = 0;
  for (const el of changedValues) {
    const value = valueOf(el);
    bytes += bytesOf(value) || value.length * 6;
    if (taken.length && bytes > mostBytes) {
      flushSoon(1);
      break;
    }
    values[stateOf(el).id] = value;
    taken.push(el);
  }
  for (const el of taken) changedValues.delete(el);
  return [values, taken];
}

/// What is to be told by now: members of a message, and the fields whose values are among them. Null if there is nothing.
export function takeNews() {
  flushTimer = 0;
  const focus = focusedId();
  events.unshift(...changedSelection());
  if (!events.length && !changedValues.size && focus === focusTold) return null;
  const [values, fields] = takeValues();
  const news = {};
  if (fields.length) news.v = values;
  if (focus !== focusTold) news.f = focusTold = focus;
  // What the events are about may be among the values that have to wait.
  if (events.length && !changedValues.size) {
    news.e = events;
    events = [];
  }
  return [news, fields];
}

export const isFlushDue = () => flushTimer !== 0;
/// The server knows already where the focus is.
export function noteFocusTold() { focusTold = focusedId(); }
