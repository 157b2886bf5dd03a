// SPDX-License-Identifier: MIT
// Strips of tabs.

import { behaviours, handle, handlers, nameOf, unhandle } from './page.js';

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
