// SPDX-License-Identifier: MIT
// How elements come and go, moving if the user wants that.

import { attributes, commands, reduced, stateOf } from './page.js';

/// The ways in which an element comes and goes, as WAnimation numbers them.
const slides = { 1: 'translateX(-100%)', 2: 'translateX(100%)', 3: 'translateY(100%)', 4: 'translateY(-100%)', 5: 'scale(.2)' };
const easings = ['ease', 'linear', 'ease-in', 'ease-out', 'ease-in-out', 'ease'];
const leavings = new WeakMap(); // elements that are to be hidden in a moment: how

/// Animates an element that has just been shown, or (going) is about to be hidden.
commands.anim = (el, going, effects, easing, duration) => {
  if (reduced.matches || !el.animate) return;
  const away = {};
  if (slides[effects & 255]) away.transform = slides[effects & 255];
  if (effects & 256) away.opacity = 0;
  const options = { duration, easing: easings[easing] };
  if (going) leavings.set(el, [away, options]);
  else el.animate([away, {}], options);
};

/// Sets or takes away the attribute "hidden", after the animation that was ordered.
attributes.hidden = (el, value) => {
  const hidden = value !== null;
  const leaving = leavings.get(el);
  leavings.delete(el);
  const state = stateOf(el);
  state.leaving?.cancel();
  state.leaving = null;
  el.hidden = hidden;
  if (!hidden || !leaving) return;
  el.hidden = false;
  const [away, options] = leaving;
  const animation = state.leaving = el.animate([{}, away], options);
  animation.onfinish = () => {
    if (state.leaving !== animation) return;
    state.leaving = null;
    el.hidden = true;
  };
};
