// SPDX-License-Identifier: MIT
// What the user does with mouse and keyboard, as the server wants to hear it.

import { clean, tell } from './messages.js';
import { listening, stateOf } from './page.js';

const point = (x, y) => (x || y ? [Math.round(x), Math.round(y)] : undefined);
export const modifiers = e => (e.shiftKey && 1) | (e.ctrlKey && 2) | (e.altKey && 4) | (e.metaKey && 8) || undefined;

/// Where the mouse button went down.
let pressedAt = [0, 0];
document.addEventListener('mousedown', e => { pressedAt = [e.clientX, e.clientY]; }, true);

/// What a mouse event tells: see PROTOCOL.md.
export function mouseData(el, e) {
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
  const key = clean(e.key ?? '');
  const text = [...key].length === 1 ? key : undefined;
  const code = e.keyCode >= 96 && e.keyCode <= 105 ? e.keyCode - 48 : e.keyCode;
  return { k: code || undefined, c: text?.codePointAt(0), t: text, m: modifiers(e) };
}

/// Events that are not the browser's own: the browser's event, and whether it is one.
const derived = {
  enter: ['keydown', e => e.key === 'Enter' && !e.isComposing],
  escape: ['keydown', e => e.key === 'Escape'],
  drag: ['mousemove', e => e.buttons !== 0],
};

listening.set = (el, name, value) => {
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
};
