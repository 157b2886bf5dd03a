// SPDX-License-Identifier: MIT
// Buttons of all kinds.

import { behaviours, configOf, handle, unhandle, unsafe } from './page.js';

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
