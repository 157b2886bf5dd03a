// SPDX-License-Identifier: MIT
// Fields: names for who cannot see them, the verdict on what is typed, check boxes of three states.

import { whenTold } from './connection.js';
import { isComposing, isUntold } from './messages.js';
import { attributes, behaviours, configOf, dress, handle, handlers, nameOf, properties, stateOf, unhandle, whenApplied, whenMade } from './page.js';

/// The state between comes with the property that the two others have.
properties.checked = (el, value) => {
  el.indeterminate = value === '-';
  el.checked = value === '1';
};

/// Texts that the server set while an input method was at work in their fields.
const heldTexts = new Map();

/// The caret stays where it is when the server changes the text around it, and a text that an input method makes up is
/// not cut off: what the server wants counts then unless something came of it.
properties.value = (el, value) => {
  const text = value ?? '';
  if (el.tagName === 'SELECT') el.selectedIndex = value === null ? -1 : +value;
  else if (el.value === text) return;
  else if (isComposing(el)) heldTexts.set(el, [text, el.value]);
  else if (el !== document.activeElement || typeof el.selectionStart !== 'number') el.value = text;
  else {
    const { selectionStart, selectionEnd, selectionDirection } = el;
    el.value = text;
    el.setSelectionRange(selectionStart, selectionEnd, selectionDirection);
  }
};

document.addEventListener('compositionend', ({ target }) => {
  const [text, former] = heldTexts.get(target) ?? [];
  heldTexts.delete(target);
  if (text !== undefined && target.value === former) target.value = text;
});

/// The server's verdict on a text (WValidator and its kin), with the same rules; undefined where only the server knows.
function isValid(text, rule) {
  if (text === '') return !rule.m;
  if (rule.lo !== undefined) return /^[-+]?[0-9]+$/.test(text) && +text >= rule.lo && +text <= rule.hi;
  if (rule.re === undefined) return undefined;
  try {
    return new RegExp(`^(?:${rule.re})$`, rule.i ? 'i' : '').test(text);
  } catch {
    return undefined;
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

/// Whether a field is marked as wrong is the server's business: the program has reasons of its own. Only while the
/// server has not heard yet of what is typed does the page show its own verdict, if that has become another.
function judge(el) {
  const state = stateOf(el);
  const valid = isValid(textToJudge(el), configOf(el, 'valid'));
  if (valid === undefined) state.verdict = undefined;
  else if (state.verdict !== undefined || valid !== state.formerlyValid) state.verdict = !valid;
  showVerdict(el);
}

function showVerdict(el) {
  const { verdict, invalid } = stateOf(el);
  dress(el);
  if (verdict ?? invalid === 'true') el.setAttribute('aria-invalid', 'true');
  else el.removeAttribute('aria-invalid');
}

attributes['aria-invalid'] = (el, value) => {
  stateOf(el).invalid = value;
  showVerdict(el);
};

whenTold.push(told => {
  for (const el of told) {
    const state = stateOf(el);
    if (state?.verdict === undefined || isUntold(el)) continue;
    state.verdict = undefined;
    showVerdict(el);
  }
});

behaviours.valid = {
  attach(el) {
    handle(el, 'valid', {
      input() { judge(el); },
      beforeinput(e) {
        stateOf(el).formerlyValid = isValid(textToJudge(el), configOf(el, 'valid'));
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
