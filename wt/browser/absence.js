// SPDX-License-Identifier: MIT
// What shows while an answer is due, and while there is no connection.

const aWhile = 300; // milliseconds after which waiting is worth a word

let bar = null;
let veil = null;
let waiting = 0;       // timer, until who reads by ear is told that the page is busy
let interrupted = null; // what had the focus when the page was dimmed: [element, selection]

const domRoot = () => document.querySelector('.Wt-domRoot');

/// A thin bar at the top while an answer is due; the style sheet shows it after a moment only.
export function busy(on) {
  if (on === !!bar) return;
  clearTimeout(waiting);
  if (on) {
    bar = document.createElement('div');
    bar.className = 'Wt-loading';
    document.body.append(bar);
    waiting = setTimeout(() => domRoot()?.setAttribute('aria-busy', 'true'), aWhile);
  } else {
    bar.remove();
    bar = null;
    domRoot()?.removeAttribute('aria-busy');
  }
}

const isText = el => el?.matches?.('input,textarea') && typeof el.selectionStart === 'number';

/// Dims the page under a sentence, and gives the focus back to where it was when the page is itself again.
export function overlay(on, text) {
  const focused = document.activeElement;
  if (on && !veil) interrupted = [focused, isText(focused) && [focused.selectionStart, focused.selectionEnd, focused.selectionDirection]];
  if (!on && !veil) return;
  if (on && veil?.textContent === text) return;
  veil?.remove();
  veil = null;
  for (const el of document.body.children) if (el !== bar) dim(el, on);
  if (!on) return resume();
  veil = document.createElement('div');
  veil.className = 'Wt-offline';
  veil.setAttribute('role', 'alert');
  const sentence = document.createElement('div');
  sentence.textContent = text;
  veil.append(sentence);
  document.body.append(veil);
}

/// What a dialog keeps from the user stays so.
function dim(el, on) {
  el.inert = on || el.dataset.wtCovered !== undefined;
}

function resume() {
  const [el, selection] = interrupted ?? [];
  interrupted = null;
  if (!el?.isConnected || document.activeElement !== document.body) return;
  el.focus({ preventScroll: true });
  if (selection) el.setSelectionRange(...selection);
}
