// SPDX-License-Identifier: MIT
// Dialogs. Their configuration: m modal, e Escape rejects, v movable by the title bar, r resizable at the lower right
// corner.

import { canFocus, focusable, focusablesIn } from './focus.js';
import { followPointer, sizeStep } from './layouts.js';
import { tell } from './messages.js';
import { behaviours, configOf, handle, nameOf, texts, unhandle } from './page.js';

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
  (focusablesIn(el, 'input,select,textarea')[0] ?? el).focus({ preventScroll: true });
}

/// The focus goes back to where it came from, unless somebody else has it by now.
function leaveDialog({ el, opener }) {
  const now = document.activeElement;
  if (now && now !== document.body && !el.contains(now)) return;
  // Of a strip of tabs only the chosen one can have the focus, which may be another one by now.
  const back = opener?.matches('[role=tab]') ? opener.closest('[role=tablist]')?.querySelector('[aria-selected=true]') : opener;
  if (back?.isConnected && canFocus(back)) back.focus({ preventScroll: true });
  else if (topModal()) enterDialog(topModal());
}

/// The first words in the dialog's body that are neither on a button nor a field's.
function firstWords(el) {
  const apart = 'button,label,select,textarea,.Wt-btn';
  return [...el.querySelectorAll('.body *')].find(inner => !inner.closest(apart) && inner.getClientRects().length &&
    [...inner.childNodes].some(node => node.nodeType === Node.TEXT_NODE && node.data.trim()));
}

/// A dialog's name is its title; what it says or asks is read out with it. One without a title is named by its words. A
/// form has no such words: its fields speak for themselves.
function nameDialog(el) {
  const bar = el.querySelector('.titlebar');
  const titled = bar?.textContent.trim();
  const words = firstWords(el);
  // A modal dialog is all that there is of the page; another one stands below the page's first heading.
  bar?.querySelector('h4')?.setAttribute('aria-level', configOf(el, 'dialog').m ? '1' : '2');
  if (!el.hasAttribute('aria-label')) {
    const label = titled ? bar : words ?? el.querySelector('.body');
    if (label) el.setAttribute('aria-labelledby', nameOf(label));
  }
  const form = el.querySelector('.body :is(input:not([type=checkbox]),select,textarea,[role=grid])');
  if (words && !form && titled && !el.hasAttribute('aria-describedby')) el.setAttribute('aria-describedby', nameOf(words));
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
