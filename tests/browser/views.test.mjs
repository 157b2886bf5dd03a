// SPDX-License-Identifier: MIT
// Layouts and lists, by mouse and by keyboard, on the gallery's page.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { cpSync, existsSync, mkdirSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { assertNoProblems, eventually, openBrowser, openPage } from './person.mjs';
import { freePort, listening } from './ports.mjs';

const root = fileURLToPath(new URL('../..', import.meta.url));
const program = join(process.env.NEVO_BUILD ?? join(root, 'build/release'), 'wt/wt_gallery');
const folder = mkdtempSync(join(tmpdir(), 'views-'));
let browser, server, url, output = '';

before(async () => {
  assert.ok(existsSync(program), `There is no gallery at ${program}; build it first.`);
  mkdirSync(join(folder, 'resources'));
  cpSync(join(root, 'resources/themes'), join(folder, 'resources/themes'), { recursive: true });
  const port = await freePort();
  server = spawn(program, [`--docroot=${folder}`, '--http-address=127.0.0.1', `--http-port=${port}`, '--accesslog=-']);
  for (const stream of [server.stdout, server.stderr]) stream.on('data', text => { output += text; });
  await listening(port, () => server.exitCode === null);
  url = `http://127.0.0.1:${port}/`;
  browser = await openBrowser();
});

after(async () => {
  await browser?.close();
  const alive = server?.exitCode === null;
  server?.kill();
  rmSync(folder, { recursive: true, force: true });
  assert.ok(alive, `The gallery died.\n${output}`);
});

/// Runs `act` with a fresh gallery page.
function onGallery(act) {
  return async () => {
    const page = await openPage(browser);
    try {
      await page.goto(url);
      await page.getByText('End of the gallery').waitFor();
      await act(page);
      assertNoProblems(page);
    } finally {
      await page.context().close();
    }
  };
}

const list = (page, name) => page.getByRole('grid', { name, exact: true });
const cell = (view, text) => view.getByRole('gridcell', { name: text, exact: true });
const head = (view, name) => view.getByRole('columnheader', { name });
const keyboard = (view, key) => view.press(key);
const scrolled = view => view.locator('.Wt-tv-body').evaluate(body => body.scrollTop);
const scrollTo = (view, top) => view.locator('.Wt-tv-body').evaluate((body, y) => { body.scrollTop = y; }, top);
/// Waits until the section tells that text as what happened last.
const tells = (page, section, text) =>
  page.getByRole('region', { name: section, exact: true }).locator('.gallery-told').filter({ hasText: text }).waitFor();

/// Drags from the middle of an element.
async function drag(page, what, dx, dy) {
  await what.scrollIntoViewIfNeeded();
  const { x, y, width, height } = await what.boundingBox();
  await page.mouse.move(x + width / 2, y + height / 2);
  await page.mouse.down();
  await page.mouse.move(x + width / 2 + dx / 2, y + height / 2 + dy / 2);
  await page.mouse.move(x + width / 2 + dx, y + height / 2 + dy);
  await page.mouse.up();
}

/// A splitter: the handle, and the side of what it resizes.
for (const [name, orientation, side, keys] of [['Left', 'vertical', 'width', ['ArrowRight', 'ArrowLeft']],
  ['Upper', 'horizontal', 'height', ['ArrowDown', 'ArrowUp']]]) {
  test(`a ${orientation} border moves by mouse and by keyboard, and the server hears of the size`, onGallery(async page => {
    const handle = page.locator(`[role=separator][aria-orientation=${orientation}]`).first();
    const target = page.locator('.gallery-sized', { hasText: name });
    const size = async () => Math.round((await target.boundingBox())[side]);
    const start = await size();
    await drag(page, handle, orientation === 'vertical' ? 60 : 0, orientation === 'vertical' ? 0 : 30);
    const moved = start + (orientation === 'vertical' ? 60 : 30);
    assert.equal(await size(), moved);
    await tells(page, 'Layouts', new RegExp(orientation === 'vertical' ? `${name} is ${moved} by` : `${name} is \\d+ by ${moved}`));
    await handle.press(keys[0]);
    assert.equal(await size(), moved + 16);
    await handle.press(keys[1]);
    await handle.press(keys[1]);
    assert.equal(await size(), moved - 16);
    assert.equal(await handle.getAttribute('aria-valuenow'), String(moved - 16));
  }));
}

test('a column is resized by dragging its border and by Alt and an arrow key', onGallery(async page => {
  const view = list(page, 'single selection');
  const name = head(view, 'Name');
  const width = async () => Math.round((await name.boundingBox()).width);
  assert.equal(await width(), 157);
  await drag(page, name.locator('.Wt-tv-rh'), 40, 0);
  await tells(page, 'Lists', 'single selection: column 0 is 190px');
  assert.equal(await width(), 197);
  assert.equal(Math.round((await cell(view, 'Port 0000').boundingBox()).width), 197);
  await name.press('Alt+ArrowLeft');
  await tells(page, 'Lists', 'single selection: column 0 is 174px');
  assert.equal(await width(), 181);
  assert.equal(await name.getAttribute('aria-sort'), 'none', 'resizing does not sort');
}));

test('a list is sorted by a click and by Enter on a heading', onGallery(async page => {
  const view = list(page, 'single selection');
  await head(view, 'Name').click();
  await eventually(() => head(view, 'Name').getAttribute('aria-sort'), value => value === 'ascending');
  await head(view, 'Name').press('Enter');
  await eventually(() => head(view, 'Name').getAttribute('aria-sort'), value => value === 'descending');
  await cell(view, 'Port 4999').waitFor();
  await head(view, 'State').press('Enter');
  await eventually(() => head(view, 'State').getAttribute('aria-sort'), value => value === 'ascending');
  assert.equal(await head(view, 'Name').getAttribute('aria-sort'), 'none');
}));

test('a row is selected by a click, taken back with Ctrl, and moved by keys', onGallery(async page => {
  const view = list(page, 'single selection');
  await cell(view, 'Port 0003').click();
  await tells(page, 'Lists', 'single selection: selected Port 0003');
  await view.locator('.Wt-tv-row.Wt-selected', { hasText: 'Port 0003' }).waitFor();
  await keyboard(view, 'ArrowDown');
  await tells(page, 'Lists', 'single selection: selected Port 0004');
  await keyboard(view, 'End');
  await tells(page, 'Lists', 'single selection: selected Port 4999');
  await eventually(() => cell(view, 'Port 4999').isVisible(), visible => visible);
  assert.ok(await scrolled(view) > 90000, 'the row has been brought into sight');
  await keyboard(view, 'PageUp');
  await keyboard(view, 'Home');
  await tells(page, 'Lists', 'single selection: selected Port 0000');
  await eventually(() => scrolled(view), top => top === 0);
  await cell(view, 'Port 0000').click({ modifiers: ['Control'] });
  await tells(page, 'Lists', 'single selection: selected nothing');
}));

test('several rows are selected with Ctrl and Shift', onGallery(async page => {
  const view = list(page, 'extended selection');
  await cell(view, 'Port 0002').click();
  await cell(view, 'Port 0004').click({ modifiers: ['Control'] });
  await tells(page, 'Lists', 'extended selection: selected Port 0002 Port 0004');
  await cell(view, 'Port 0005').click({ modifiers: ['Shift'] });
  await tells(page, 'Lists', 'extended selection: selected Port 0002 Port 0003 Port 0004 Port 0005');
  assert.equal(await page.evaluate(() => getSelection().toString()), '', 'no text is marked');
  await cell(view, 'Port 0001').click();
  await keyboard(view, 'Shift+ArrowDown');
  await tells(page, 'Lists', /extended selection: selected Port 0001 Port 0002$/);
}));

test('a list without selection is scrolled by keys', onGallery(async page => {
  const view = list(page, 'no selection');
  await view.focus();
  await keyboard(view, 'PageDown');
  await eventually(() => scrolled(view), top => top > 0);
}));

test('five thousand rows scroll to the end and back, with those in sight only', onGallery(async page => {
  const view = list(page, 'single selection');
  await cell(view, 'Port 0000').waitFor();
  for (const [top, row] of [[50000, 'Port 2500'], [1e6, 'Port 4999'], [0, 'Port 0000']]) {
    await scrollTo(view, top);
    await eventually(() => cell(view, row).isVisible(), visible => visible);
    assert.ok(await view.locator('.Wt-tv-row').count() < 60);
  }
}));

test('the program scrolls to a row', onGallery(async page => {
  const view = list(page, 'single selection');
  await page.getByRole('button', { name: 'Scroll to 2500' }).click();
  await eventually(() => cell(view, 'Port 2500').isVisible(), visible => visible);
  const [body, row] = await Promise.all([view.locator('.Wt-tv-body').boundingBox(), cell(view, 'Port 2500').boundingBox()]);
  assert.ok(Math.abs(row.y - body.y) < 2, 'at the top');
}));

test('a text that is cut off shows whole in its tool tip, one that fits has none', onGallery(async page => {
  const view = list(page, 'single selection');
  const long = view.getByRole('gridcell', { name: /^A text that is longer/ });
  await long.hover();
  assert.match(await long.getAttribute('title'), /besides$/);
  await cell(view, 'Port 0000').hover();
  assert.equal(await cell(view, 'Port 0000').getAttribute('title'), null);
}));

test('a list keeps its place and its rows over a rebuild', onGallery(async page => {
  const view = list(page, 'single selection');
  await scrollTo(view, 40000);
  const row = cell(view, 'Port 2001');
  await eventually(() => row.isVisible(), visible => visible);
  const before = await row.elementHandle();
  await page.getByRole('button', { name: 'Rebuild the lists' }).click();
  await tells(page, 'Lists', 'rebuilt');
  assert.equal(await scrolled(view), 40000);
  assert.ok(await before.evaluate(el => el.isConnected), 'the row is the same element');
}));
