// SPDX-License-Identifier: MIT
// Layouts: the sizes that they give, and the borders in them that can be moved.

import { tell } from './messages.js';
import { behaviours, texts } from './page.js';

const sizes = new WeakMap();
const handSized = new WeakSet(); // elements whose own height a border's handle has changed, which is not told yet
const sizeObserver = new ResizeObserver(entries => {
  for (const { target, contentRect, borderBoxSize: [border] } of entries) {
    if (!target.isConnected || !target.getClientRects().length) continue;
    // Told is what the element's own width and height would have to be to stay as it is.
    const whole = getComputedStyle(target).boxSizing === 'border-box';
    const w = Math.round(whole ? border.inlineSize : contentRect.width);
    const h = Math.round(whole ? border.blockSize : contentRect.height);
    const told = sizes.get(target);
    if (told && told[0] === w && told[1] === h) continue;
    sizes.set(target, [w, h]);
    tell(target, 'size', { a: handSized.delete(target) ? [w, h, 1] : [w, h] });
  }
});
behaviours.size = {
  attach(el) { sizeObserver.observe(el, { box: getComputedStyle(el).boxSizing }); },
  detach(el) {
    sizeObserver.unobserve(el);
  },
};

/// Follows the pointer from a press on `el` until it is let go: move(dx, dy), then done().
export function followPointer(el, e, move, done) {
  el.setPointerCapture(e.pointerId);
  const { clientX, clientY } = e;
  const moved = m => move(m.clientX - clientX, m.clientY - clientY);
  const end = () => {
    el.removeEventListener('pointermove', moved);
    el.removeEventListener('pointerup', end);
    el.removeEventListener('pointercancel', end);
    done?.();
  };
  el.addEventListener('pointermove', moved);
  el.addEventListener('pointerup', end);
  el.addEventListener('pointercancel', end);
  e.preventDefault();
}

/// The elements whose size a handle between two cells changes: in a box the one before it, in a grid its row's or
/// column's.
function resizedBy(handle, vertical) {
  const parent = handle.parentElement;
  if (getComputedStyle(parent).display !== 'grid') return [handle.previousElementSibling];
  const line = vertical ? 'gridRowStart' : 'gridColumnStart';
  return [...parent.children].filter(el => el !== handle && !el.matches('.Wt-hrh2,.Wt-vrh2') && el.style[line] === handle.style[line]);
}

const leastSize = 24; // pixels
export const sizeStep = 16;

/// A border that is moved by mouse and keyboard; "y" between rows, "x" between columns.
behaviours.split = {
  attach(el, axis) {
    const vertical = axis === 'y';
    const side = vertical ? 'height' : 'width';
    const told = size => {
      const room = el.parentElement.getBoundingClientRect()[side];
      const values = { valuemin: leastSize, valuemax: Math.max(room, size), valuenow: size };
      for (const name in values) el.setAttribute('aria-' + name, Math.round(values[name]));
    };
    if (!el.hasAttribute('aria-label')) el.setAttribute('aria-label', texts.split);
    const resize = (targets, sizes, by) => targets.forEach((target, i) => {
      const size = Math.max(leastSize, sizes[i] + by);
      if (getComputedStyle(target.parentElement).display === 'flex') target.style.flex = `0 0 ${size}px`;
      else {
        target.style[side] = size + 'px';
        if (vertical) handSized.add(target);
      }
      told(size);
    });
    const start = () => {
      const targets = resizedBy(el, vertical).filter(Boolean);
      return [targets, targets.map(target => target.getBoundingClientRect()[side])];
    };
    told(start()[1][0] ?? 0);
    el.onpointerdown = e => {
      const [targets, sizes] = start();
      el.classList.add(vertical ? 'Wt-vsh2' : 'Wt-hsh2');
      followPointer(el, e, (dx, dy) => resize(targets, sizes, vertical ? dy : dx), () => el.classList.remove('Wt-vsh2', 'Wt-hsh2'));
    };
    el.onkeydown = e => {
      const by = { ArrowUp: -1, ArrowLeft: -1, ArrowDown: 1, ArrowRight: 1 }[e.key];
      if (!by) return;
      e.preventDefault();
      resize(...start(), by * sizeStep);
    };
  },
};
