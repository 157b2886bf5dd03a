// SPDX-License-Identifier: MIT
// A browser that lacks what the page needs is told so, in place of a blank window.

const needs = [
  () => 'adoptedStyleSheets' in document,
  () => 'inert' in HTMLElement.prototype,
  () => Array.prototype.findLast,
  () => CSS.supports('selector(:has(a))'),
];

if (!needs.every(has => has())) {
  document.body.textContent = 'This browser is too old for this page. A current version of any browser shows it.';
  throw new Error('The browser is too old.');
}
