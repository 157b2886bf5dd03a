// SPDX-License-Identifier: MIT
// Lists: scrolling, columns, and what the user does in them.

import { modifiers, mouseData } from './events.js';
import { followPointer, sizeStep } from './layouts.js';
import { tell } from './messages.js';
import { behaviours, commands, configOf, nameOf, properties, stateOf, whenApplied } from './page.js';

const lists = new Set(); // elements of all lists on the page

/// The number of a list's first row that exists.
properties.first = (el, value) => { el.wtFirst = +value; };

/// Rows stand below each other from the first one's number on.
function placeRows(list) {
  const contents = list.children[1].firstChild;
  const { select } = configOf(list, 'table');
  const striped = list.classList.contains('Wt-striped');
  let number = contents.wtFirst ?? 0;
  for (const row of contents.children) {
    if (row.wtNumber !== number) {
      row.wtNumber = number;
      row.style.top = `calc(var(--wt-row)*${number})`;
      row.setAttribute('aria-rowindex', number + 2);
    }
    row.classList.toggle('Wt-odd', striped && number % 2 === 1);
    if (!row.id) {
      row.id = 'wt-r' + stateOf(row).id;
      row.tabIndex = -1;
    }
    if (select && !row.hasAttribute('aria-selected')) row.setAttribute('aria-selected', 'false');
    ++number;
  }
}

/// A list without a name of its own is named by the heading before it.
function nameList(list) {
  if (list.hasAttribute('aria-label') || list.hasAttribute('aria-labelledby')) return;
  for (let around = list.parentElement; around && around !== document.body; around = around.parentElement) {
    const before = [...around.querySelectorAll('h1,h2,h3,h4,[role=heading],label')]
      .findLast(words => words.compareDocumentPosition(list) & Node.DOCUMENT_POSITION_FOLLOWING && words.textContent.trim());
    if (before) return list.setAttribute('aria-labelledby', nameOf(before));
  }
}

whenApplied.push(() => lists.forEach(placeRows));

const columnOf = cell => +cell.dataset.column;
const listKeys = new Set(['ArrowUp', 'ArrowDown', 'PageUp', 'PageDown', 'Home', 'End', ' ']);

/// A list: scrolling, columns, and what the user does in it, told by row and column.
behaviours.table = {
  attach(el) {
    const [head, body] = el.children;
    lists.add(el);
    queueMicrotask(() => nameList(el));
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
        if (el.getAttribute('aria-disabled') || !configOf(el, 'table').tell.includes(name)) return;
        if (type === 'mousedown' && e.target === body && onScrollBar(body, e)) return;
        // A range is being chosen, or something done with the row: no text is to be marked.
        if (type === 'mousedown' && (e.shiftKey || e.detail > 1)) {
          e.preventDefault();
          el.focus({ preventScroll: true });
        }
        tell(el, 'table:' + name, { ...mouseData(el, e), a: placeOf(el, e.target) });
      });
    }
    body.addEventListener('change', e => {
      const [row, column] = placeOf(el, e.target);
      tell(el, 'table:check', { a: [row, column, e.target.checked ? 1 : 0] });
    });
    // The keyboard is the list's: a press on a row gives the focus to the list.
    body.addEventListener('focusin', e => e.target.matches('.Wt-tv-row') && el.focus({ preventScroll: true }));
    el.addEventListener('keydown', e => {
      const all = e.key.toLowerCase() === 'a' && (e.ctrlKey || e.metaKey) && !e.altKey;
      if (!(all || listKeys.has(e.key)) || e.target !== el || isTyped(el, e)) return;
      e.preventDefault();
      if (!configOf(el, 'table').select) return scrollByKey(body, e.key);
      tell(el, 'table:key', { a: [e.keyCode, modifiers(e) ?? 0] });
    });
    el.addEventListener('keypress', e => {
      // A blank that is typed does not scroll.
      if (e.key === ' ' && e.target === el) e.preventDefault();
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
  detach(el) {
    lists.delete(el);
    el.wtBodySize?.disconnect();
  },
};

/// A blank is a character where somebody listens for what is typed; with Control it selects all the same.
function isTyped(list, e) {
  if (e.key !== ' ' || e.ctrlKey || e.metaKey) return false;
  for (let el = list; el; el = el.parentElement) if (stateOf(el)?.listeners.keypress) return true;
  return false;
}

/// In a list without a selection the keys scroll.
function scrollByKey(body, key) {
  const line = body.firstChild.firstChild?.offsetHeight ?? 0, page = body.clientHeight, all = body.scrollHeight;
  body.scrollTop += { ArrowUp: -line, ArrowDown: line, PageUp: -page, PageDown: page, Home: -all, End: all }[key] ?? 0;
}

/// True if the pointer is on a scroll bar of the element.
function onScrollBar(el, { clientX, clientY }) {
  const { left, top } = el.getBoundingClientRect();
  return clientX >= left + el.clientLeft + el.clientWidth || clientY >= top + el.clientTop + el.clientHeight;
}

/// The number of the row's element and the column's own: the row may be another one's by the time that the server hears
/// of it, but the element is not. 0 and -1 where there is no cell.
function placeOf(el, target) {
  const cell = target.closest('.Wt-tv-c'), row = cell?.parentElement;
  if (!row?.matches('.Wt-tv-row')) return [0, -1];
  const headCell = el.children[0].firstChild.children[[...row.children].indexOf(cell)];
  return [stateOf(row).id, columnOf(headCell)];
}

/// The text of a row as a line that a table elsewhere takes.
const lineOf = row => [...row.children].map(cell => cell.textContent.replace(/\s+/g, ' ').trim()).join('\t');

/// Marked rows of text, or else the selected rows of the list that has the focus, are copied as lines of columns.
document.addEventListener('copy', e => {
  const marked = getSelection();
  if (marked.isCollapsed && !lists.has(document.activeElement)) return;
  const list = marked.isCollapsed ? document.activeElement : [...lists].find(el => el.contains(marked.anchorNode));
  const all = [...list?.querySelectorAll('.Wt-tv-row') ?? []];
  const rows = all.filter(row => (marked.isCollapsed ? row.matches('[aria-selected=true]') : marked.containsNode(row, true)));
  if (!rows.length || (!marked.isCollapsed && rows.length < 2)) return;
  rows.sort((one, other) => one.wtNumber - other.wtNumber);
  e.clipboardData.setData('text/plain', rows.map(row => lineOf(row) + '\n').join(''));
  e.preventDefault();
});

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
