// SPDX-License-Identifier: MIT
// What shows while an answer is due, and while there is no connection.

import { root } from './page.js';

let bar = null;
let veil = null;

/// A thin bar at the top while an answer is due; the style sheet shows it after a moment only.
export function busy(on) {
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
export function overlay(on, text) {
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
