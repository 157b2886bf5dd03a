// SPDX-License-Identifier: MIT
// Where the focus stands, and where the server wants it.

import { isFlushDue, noteFocusTold } from './messages.js';
import { commands, pageCommands, root, whenApplied } from './page.js';

/// What was to have the focus last; a page that waits for its style sheet cannot give it yet.
let focusWanted = null;
/// What gets the focus once the present operations are done: until then a dialog that goes may still hold it.
let focusNext = null;
commands.focus = el => { focusWanted = focusNext = el; };

function giveFocus() {
  const el = focusNext;
  focusNext = null;
  if (!el?.isConnected) return;
  const quiet = !isFlushDue();
  el.focus();
  // The server knows already.
  if (quiet && document.activeElement === el) noteFocusTold();
}

commands.blur = el => el.blur();

// What dialogs do about the focus when they come and go is done by then.
whenApplied.push(() => focusNext && queueMicrotask(giveFocus));

/// A style sheet of the application.
pageCommands.style = url => {
  const link = document.createElement('link');
  link.rel = 'stylesheet';
  link.href = url;
  // Nothing flashes up without its style, but nothing waits for ever for a style that does not come either.
  root.classList.add('Wt-unstyled');
  const styled = () => {
    root.classList.remove('Wt-unstyled');
    if (document.activeElement === document.body) focusWanted?.focus();
  };
  link.onload = link.onerror = styled;
  setTimeout(styled, 4000);
  document.head.append(link);
};

export const focusable = 'a[href],button,input,select,textarea,[tabindex]';

export function focusablesIn(el, selector = focusable) {
  return [...el.querySelectorAll(selector)].filter(canFocus);
}

export function canFocus(el) {
  return !el.disabled && el.tabIndex >= 0 && !el.closest('[inert]') && el.getClientRects().length > 0;
}
