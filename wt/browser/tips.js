// SPDX-License-Identifier: MIT
// Tool tips of rich text, and tool tips for who comes by keyboard.

import { behaviours, rich, stateOf } from './page.js';

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

/// Says something of an element, to everybody, until it is left or changed.
export function say(of, sentence) {
  // After the input that it is about, which ends a tip.
  setTimeout(() => {
    showTip(of, [sentence]);
    tip.el.setAttribute('role', 'alert');
  });
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
