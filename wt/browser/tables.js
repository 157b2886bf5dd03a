// SPDX-License-Identifier: MIT
// Lists: scrolling, columns, and what the user does in them.

import { modifiers, mouseData } from './events.js';
import { followPointer, sizeStep } from './layouts.js';
import { tell } from './messages.js';
import { behaviours, commands, properties, stateOf } from './page.js';

properties.row = (el, value) => {
  el.style.top = `calc(var(--wt-row)*${+value})`;
  el.setAttribute('aria-rowindex', +value + 2);
};

const columnOf = cell => +cell.dataset.column;
const listKeys = new Set(['ArrowUp', 'ArrowDown', 'PageUp', 'PageDown', 'Home', 'End', ' ']);

/// A list: scrolling, columns, and what the user does in it, told by row and column.
behaviours.table = {
  attach(el) {
    const [head, body] = el.children;
    const report = () => {
      if (el.wtScrollTo && body.clientHeight) {
        const wanted = el.wtScrollTo;
        el.wtScrollTo = null;
        commands.tableScroll(el, ...wanted);
      }
      head.scrollLeft = body.scrollLeft;
      const now = body.scrollTop + ',' + body.clientHeight;
      if (!body.clientHeight || now === el.wtScroll) return;
      el.wtScroll = now;
      tell(el, 'table:scroll', { a: [Math.round(body.scrollTop), body.clientHeight] });
    };
    let waiting = 0;
    const reportSoon = () => { waiting ||= setTimeout(() => { waiting = 0; report(); }, 60); };
    body.addEventListener('scroll', reportSoon, { passive: true });
    el.wtBodySize = new ResizeObserver(report);
    el.wtBodySize.observe(body);

    for (const [type, name] of [['mousedown', 'down'], ['mouseup', 'up'], ['click', 'click'], ['dblclick', 'dblclick']]) {
      body.addEventListener(type, e => {
        if (el.getAttribute('aria-disabled')) return;
        if (type === 'mousedown' && e.target === body && onScrollBar(body, e)) return;
        if (type === 'mousedown' && e.shiftKey) e.preventDefault();
        tell(el, 'table:' + name, { ...mouseData(el, e), a: placeOf(el, e.target) });
      });
    }
    body.addEventListener('change', e => {
      const [row, column] = placeOf(el, e.target);
      tell(el, 'table:check', { a: [row, column, e.target.checked ? 1 : 0] });
    });
    body.addEventListener('keydown', e => {
      const all = e.key.toLowerCase() === 'a' && (e.ctrlKey || e.metaKey) && !e.altKey;
      if (!(all || listKeys.has(e.key)) || e.target !== body || !stateOf(el).behaviours.table.select) return;
      e.preventDefault();
      tell(el, 'table:key', { a: [e.keyCode, modifiers(e) ?? 0] });
    });
    body.addEventListener('mouseover', e => {
      const cell = e.target.closest('.Wt-tv-c');
      if (!cell || cell.title && !cell.wtTip) return;
      cell.wtTip = cell.scrollWidth > cell.clientWidth;
      if (cell.wtTip) cell.title = cell.textContent;
      else cell.removeAttribute('title');
    });
    headBehaviour(el, head);
  },
  detach(el) { el.wtBodySize?.disconnect(); },
};

/// True if the pointer is on a scroll bar of the element.
function onScrollBar(el, { clientX, clientY }) {
  const { left, top } = el.getBoundingClientRect();
  return clientX >= left + el.clientLeft + el.clientWidth || clientY >= top + el.clientTop + el.clientHeight;
}

/// Row and column numbers of a cell, -1 where there is none.
function placeOf(el, target) {
  const cell = target.closest('.Wt-tv-c'), row = cell?.parentElement;
  if (!row?.matches('.Wt-tv-row')) return [-1, -1];
  const headCell = el.children[0].firstChild.children[[...row.children].indexOf(cell)];
  return [row.getAttribute('aria-rowindex') - 2, columnOf(headCell)];
}

function headBehaviour(el, head) {
  const sort = cell => cell.hasAttribute('aria-sort') && tell(el, 'table:sort', { a: [columnOf(cell)] });
  const resizeTo = (cell, width) => tell(el, 'table:resize', { a: [columnOf(cell), Math.max(16, Math.round(width))] });
  head.addEventListener('click', e => {
    const cell = e.target.closest('.Wt-tv-c');
    if (cell && !e.target.matches('.Wt-tv-rh')) sort(cell);
  });
  head.addEventListener('keydown', e => {
    const cell = e.target.closest('.Wt-tv-c');
    if (!cell) return;
    const by = { ArrowLeft: -sizeStep, ArrowRight: sizeStep }[e.key];
    if (e.key === 'Enter' || e.key === ' ') sort(cell);
    else if (e.altKey && by && !cell.matches('.Wt-tv-no-rh')) resizeTo(cell, cell.getBoundingClientRect().width - 7 + by);
    else return;
    e.preventDefault();
  });
  head.addEventListener('pointerdown', e => {
    if (!e.target.matches('.Wt-tv-rh')) return;
    const cell = e.target.parentElement;
    const place = [...cell.parentElement.children].indexOf(cell);
    const tracks = el.style.getPropertyValue('--wt-columns').split(' ');
    const start = parseInt(tracks[place]);
    let width = start;
    followPointer(e.target, e, dx => {
      width = Math.max(23, start + dx);
      tracks[place] = width + 'px';
      el.style.setProperty('--wt-columns', tracks.join(' '));
    }, () => width !== start && resizeTo(cell, width - 7));
  });
}

/// Brings a row into sight; hints as the API numbers them: as little as needed, at the top, bottom, middle.
commands.tableScroll = (el, row, hint) => {
  const body = el.children[1];
  if (!body?.clientHeight) {
    el.wtScrollTo = [row, hint];
    return;
  }
  const height = parseFloat(el.style.getPropertyValue('--wt-row')), top = row * height, room = body.clientHeight;
  const at = [
    top < body.scrollTop ? top : top + height > body.scrollTop + room ? top + height - room : body.scrollTop,
    top, top + height - room, top + (height - room) / 2,
  ][hint];
  body.scrollTop = at;
};
