// SPDX-License-Identifier: MIT
// Fields: names for who cannot see them, the verdict on what is typed, check boxes of three states.

import { behaviours, configOf, handle, handlers, nameOf, properties, unhandle, whenApplied, whenMade } from './page.js';

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

const fields = 'input,select,textarea';
let unnamed = []; // new fields, which may lack a name
whenMade.push(el => el.matches(fields) && unnamed.push(el));

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

whenApplied.push(nameFields);
