// SPDX-License-Identifier: MIT
// Every widget of the toolkit, by mouse and by keyboard, on the gallery's page.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { cpSync, existsSync, mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { assertAccessible, assertNoProblems, eventually, openBrowser, openPage, shoot } from './person.mjs';
import { freePort, listening } from './ports.mjs';

const root = fileURLToPath(new URL('../..', import.meta.url));
const program = join(process.env.NEVO_BUILD ?? join(root, 'build/release'), 'wt/wt_gallery');
const folder = mkdtempSync(join(tmpdir(), 'gallery-'));
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
function onGallery(act, { query = '', ...options } = {}) {
  return async () => {
    const page = await openPage(browser, options);
    try {
      await page.goto(url + query);
      await page.getByText('End of the gallery').waitFor();
      await act(page);
      // The accessibility checker and the taking of pictures try styles of their own, which the page forbids or lacks.
      assertNoProblems(page, /^Applying inline style|404 \(Not Found\)$/);
    } finally {
      await page.context().close();
    }
  };
}

const section = (page, name) => page.getByRole('region', { name, exact: true });
const row = (page, name) => page.locator('.gallery-row').filter({ has: page.locator('.gallery-name').getByText(name, { exact: true }) });
/// Waits until the section tells that text as what happened last.
const tells = (page, name, text) => section(page, name).locator('.gallery-told').filter({ hasText: text }).waitFor();
const focused = page => page.evaluate(() => document.activeElement.textContent || document.activeElement.getAttribute('aria-label') || document.activeElement.tagName);

// ---- the page as a whole

for (const colorScheme of ['light', 'dark'])
  for (const theme of ['halden', 'greyfen', 'unknown'])
    test(`nothing of the gallery keeps people out: ${theme}, ${colorScheme}`, onGallery(async page => {
      await assertAccessible(page, `the gallery, ${theme}, ${colorScheme}`);
      await shoot(page, `gallery-${theme}-${colorScheme}`);
    }, { query: `?theme=${theme}`, colorScheme }));

test('texts with markup are shown as they stand and run nothing', onGallery(async page => {
  page.on('dialog', () => assert.fail('a script of a text has run'));
  await page.getByRole('button', { name: '<b onclick=' }).waitFor();
  assert.equal(await page.locator('b', { hasText: 'not bold' }).count(), 0);
}));

// ---- buttons

test('buttons are pressed by mouse, Enter and the space bar', onGallery(async page => {
  const button = page.getByRole('button', { name: 'Press me' });
  await button.click();
  await tells(page, 'Push buttons', 'clicked plain button');
  await page.getByRole('button', { name: 'Save' }).press('Enter');
  await tells(page, 'Push buttons', 'clicked default button');
  await button.press(' ');
  await tells(page, 'Push buttons', 'clicked plain button');
  assert.ok(await page.getByRole('button', { name: 'Not now' }).isDisabled());
}));

test('a button with a link leads there and is clicked all the same', onGallery(async page => {
  await page.getByRole('button', { name: 'Go to the end' }).click();
  await tells(page, 'Push buttons', 'clicked button with link');
  assert.equal(new URL(page.url()).hash, '#end');
}));

// ---- fields

test('a field tells of its new text when it is left or Enter is pressed', onGallery(async page => {
  const field = page.getByLabel('Plain', { exact: true });
  await field.fill('new text');
  await field.press('Tab');
  await tells(page, 'Line edits', 'changed to new text');
  await field.press('Enter');
  await tells(page, 'Line edits', 'enter in Plain');
}));

test('a label puts the focus into its field', onGallery(async page => {
  await section(page, 'Line edits').locator('label', { hasText: /^Hint$/ }).click();
  assert.equal(await page.evaluate(() => document.activeElement.placeholder), 'For example 10.0.0.1');
}));

test('a field is marked while one types, before it is left', onGallery(async page => {
  const field = page.getByLabel('Lower case only');
  assert.equal(await field.getAttribute('aria-invalid'), null);
  await field.pressSequentially('A');
  assert.equal(await field.getAttribute('aria-invalid'), 'true');
  assert.match(await field.getAttribute('class'), /Wt-invalid/);
  await field.press('Backspace');
  assert.equal(await field.getAttribute('aria-invalid'), null);
  // What the server thinks of it must not differ from what the browser showed at once.
  await field.fill('STILL BAD');
  await field.press('Tab');
  await tells(page, 'Line edits', 'changed to STILL BAD');
  assert.match(await field.getAttribute('class'), /Wt-invalid/);
}));

test('an invalid and an empty mandatory field are marked from the start', onGallery(async page => {
  for (const name of ['Invalid', 'Mandatory'])
    assert.equal(await page.getByLabel(name, { exact: true }).getAttribute('aria-invalid'), 'true', name);
}));

test('a field for numbers takes no letters', onGallery(async page => {
  const field = page.getByLabel('One to ten');
  await field.fill('');
  await field.pressSequentially('1a1');
  assert.equal(await field.inputValue(), '11');
  assert.equal(await field.getAttribute('aria-invalid'), 'true');
  await field.press('Backspace');
  assert.equal(await field.getAttribute('aria-invalid'), null);
}));

test('a field holds no more characters than it was given', onGallery(async page => {
  const field = page.getByLabel('At most five');
  await field.press('End');
  await field.pressSequentially('678');
  assert.equal(await field.inputValue(), '12345');
}));

test('fields show passwords hidden, and fixed and disabled texts unchanged', onGallery(async page => {
  assert.equal(await page.getByLabel('Password').getAttribute('type'), 'password');
  assert.equal(await page.getByLabel('Read only', { exact: true }).isEditable(), false);
  assert.ok(await page.getByLabel('Disabled', { exact: true }).isDisabled());
  assert.equal(await page.getByLabel('Emoji').inputValue(), '👩‍💻 café ☕ 日本語');
}));

test('the selection of a text area is known', onGallery(async page => {
  const area = page.getByLabel('Plain area');
  await area.focus();
  await area.press('Control+Home');
  for (let i = 0; i < 5; ++i) await area.press('Shift+ArrowRight');
  await tells(page, 'Text areas', 'selected first');
  await page.getByRole('button', { name: 'Selected text' }).click();
  await tells(page, 'Text areas', 'nothing selected');
}));

// ---- check boxes and combos

test('check boxes change by mouse, by their text and by the space bar', onGallery(async page => {
  const box = row(page, 'unchecked box').getByRole('checkbox');
  await box.click();
  await tells(page, 'Check boxes', 'unchecked box is checked');
  await row(page, 'unchecked box').getByText('Off').click();
  await tells(page, 'Check boxes', 'unchecked box is unchecked');
  await box.press(' ');
  await tells(page, 'Check boxes', 'unchecked box is checked');
  assert.ok(await row(page, 'disabled box').getByRole('checkbox').isDisabled());
}));

test('a partly checked box leaves that state by a click', onGallery(async page => {
  const box = row(page, 'partial box').getByRole('checkbox');
  assert.ok(await box.evaluate(el => el.indeterminate));
  await box.click();
  await tells(page, 'Check boxes', 'partial box is checked');
  assert.equal(await box.evaluate(el => el.indeterminate), false);
  await box.click();
  await tells(page, 'Check boxes', 'partial box is unchecked');
}));

test('a box of three states goes through all of them, by mouse and keyboard', onGallery(async page => {
  const box = row(page, 'three-state box').getByRole('checkbox');
  for (const state of ['partial', 'checked', 'unchecked']) {
    await box.click();
    await tells(page, 'Check boxes', `three-state box is ${state}`);
  }
  for (const state of ['partial', 'checked', 'unchecked']) {
    await box.press(' ');
    await tells(page, 'Check boxes', `three-state box is ${state}`);
  }
  await row(page, 'three-state box').getByText('One of three').click();
  await tells(page, 'Check boxes', 'three-state box is partial');
}));

test('combos are chosen from by mouse and keyboard', onGallery(async page => {
  const combo = page.getByLabel('Plain combo');
  await combo.selectOption('Choice 2');
  await tells(page, 'Combo boxes', 'chosen Choice 2');
  await combo.focus();
  await combo.press('ArrowDown');
  await tells(page, 'Combo boxes', 'chosen Choice 3');
  assert.ok(await page.getByLabel('Disabled combo').isDisabled());
  assert.equal(await page.getByLabel('Nothing chosen').evaluate(el => el.selectedIndex), -1);
  assert.equal(await page.getByLabel('Empty combo').evaluate(el => el.options.length), 0);
}));

// ---- links and icons

test('links lead where they say, and what only is clicked works by keyboard', onGallery(async page => {
  const away = page.getByRole('link', { name: 'New window' });
  assert.equal(await away.getAttribute('target'), '_blank');
  assert.match(await away.getAttribute('rel'), /noopener/);
  assert.equal(await page.locator('a', { hasText: 'Disabled link' }).evaluate(el => el.hasAttribute('href')), false);
  const act = page.getByRole('button', { name: 'Just a click' });
  await act.click();
  await tells(page, 'Texts, images and links', 'clicked the link');
  await act.press('Enter');
  await tells(page, 'Texts, images and links', 'clicked the link');
}));

test('an icon pair switches by mouse and keyboard, and keeps the focus', onGallery(async page => {
  await page.getByRole('button', { name: 'Fold switching pair' }).click();
  await tells(page, 'Icon pairs', 'folded switching pair');
  const other = page.getByRole('button', { name: 'Unfold switching pair' });
  await other.press('Enter');
  await tells(page, 'Icon pairs', 'unfolded switching pair');
  await eventually(() => page.evaluate(() => document.activeElement.alt), alt => alt === 'Fold switching pair');
  await page.keyboard.press(' ');
  await tells(page, 'Icon pairs', 'folded switching pair');
  await page.getByRole('img', { name: 'Fold plain pair' }).click();
  await tells(page, 'Icon pairs', 'click reached the row of plain pair');
}));

// ---- progress, tables, tabs, stacks

test('a progress bar shows how far it has come', onGallery(async page => {
  const bar = page.getByRole('progressbar', { name: 'Moving' });
  await page.getByRole('button', { name: 'Ten more' }).click();
  await bar.getByText('10 %').waitFor();
  assert.equal(await bar.getAttribute('aria-valuenow'), '10');
}));

test('a table has heads, spans and rows that are added', onGallery(async page => {
  const table = page.getByRole('table');
  assert.equal(await table.getByRole('columnheader').count(), 3);
  assert.equal(await table.getByRole('textbox', { name: 'Setting 2' }).inputValue(), 'value 2');
  await page.getByRole('button', { name: 'Add a row' }).click();
  await table.getByText('Row 4').waitFor();
  assert.equal(await table.locator('td[rowspan="2"]').count(), 1);
}));

test('tabs are chosen by mouse and by the arrow keys, and hidden and disabled ones passed over', onGallery(async page => {
  const tab = name => page.getByRole('tab', { name });
  const shown = name => page.getByRole('tabpanel', { name }).getByText(`Contents of ${name}`).waitFor();
  await shown('First');
  await tab('Second').click();
  await tells(page, 'Tabs', 'tab 1');
  await shown('Second');
  await tab('Second').press('ArrowRight');
  await tells(page, 'Tabs', 'tab 4');
  assert.equal(await focused(page), 'Last *');
  await page.keyboard.press('ArrowRight');
  await tells(page, 'Tabs', 'tab 0');
  await page.keyboard.press('End');
  await tells(page, 'Tabs', 'tab 4');
  await page.keyboard.press('Home');
  await tells(page, 'Tabs', 'tab 0');
  await page.keyboard.press('Tab');
  assert.equal(await focused(page), 'Field of First');
  await page.keyboard.press('Shift+Tab');
  assert.equal(await focused(page), 'First');
  await tab('Off').click({ force: true });
  assert.equal(await tab('First').getAttribute('aria-selected'), 'true');
  assert.equal(await page.getByRole('tab', { name: 'Hidden' }).count(), 0);
}));

test('a stack shows one page at a time', onGallery(async page => {
  await page.getByText('page one').waitFor();
  await page.getByRole('button', { name: 'Next page' }).click();
  await page.getByText('page two').waitFor();
  assert.equal(await page.getByText('page one').isVisible(), false);
}));

// ---- dialogs

const openModal = page => page.getByRole('button', { name: 'Modal dialog' }).click();
const modal = page => page.getByRole('dialog', { name: 'Name it' });

test('a modal dialog takes the focus, keeps it, and gives it back', onGallery(async page => {
  await openModal(page);
  await modal(page).waitFor();
  await eventually(() => focused(page), text => text === 'Name');
  for (let i = 0; i < 7; ++i) {
    await page.keyboard.press(i < 5 ? 'Tab' : 'Shift+Tab');
    assert.ok(await modal(page).evaluate(el => el.contains(document.activeElement)), `after ${i + 1} steps`);
  }
  await assertAccessible(page, 'a modal dialog');
  await shoot(page, 'gallery-dialog');
  await modal(page).getByLabel('Name').fill('Ada');
  await modal(page).getByLabel('Name').press('Enter');
  await tells(page, 'Dialogs', 'accepted Ada');
  await eventually(() => focused(page), text => text === 'Modal dialog');
}));

test('a modal dialog keeps the page below from mouse and keyboard', onGallery(async page => {
  await openModal(page);
  await modal(page).waitFor();
  assert.ok(await page.locator('button', { hasText: 'Press me' }).evaluate(el => el.closest('[inert]') !== null));
  await modal(page).getByRole('button', { name: 'Cancel' }).click();
  await tells(page, 'Dialogs', 'rejected');
  await page.getByRole('button', { name: 'Press me' }).click();
  await tells(page, 'Push buttons', 'clicked plain button');
}));

test('Escape ends the topmost dialog only', onGallery(async page => {
  await openModal(page);
  await modal(page).getByRole('button', { name: 'Another dialog' }).click();
  const inner = page.getByRole('dialog', { name: 'Inner dialog' });
  await inner.waitFor();
  assert.equal(await focused(page), 'Back');
  await page.keyboard.press('Escape');
  await inner.waitFor({ state: 'hidden' });
  assert.ok(await modal(page).isVisible());
  await eventually(() => focused(page), text => text === 'Another dialog');
  await page.keyboard.press('Escape');
  await tells(page, 'Dialogs', 'rejected');
}));

test('a dialog stands in the middle until it is moved by its title bar', onGallery(async page => {
  await openModal(page);
  await modal(page).waitFor();
  const before = await modal(page).boundingBox();
  assert.ok(Math.abs(before.x + before.width / 2 - 640) < 2, 'in the middle');
  assert.ok(before.width <= 402, 'not wider than it may be');
  const bar = await modal(page).locator('.titlebar').boundingBox();
  await page.mouse.move(bar.x + 30, bar.y + 8);
  await page.mouse.down();
  await page.mouse.move(bar.x + 130, bar.y + 58, { steps: 4 });
  await page.mouse.up();
  const moved = await modal(page).boundingBox();
  assert.deepEqual([Math.round(moved.x - before.x), Math.round(moved.y - before.y)], [100, 50]);
  assert.deepEqual([moved.width, moved.height], [before.width, before.height]);
}));

test('a dialog is moved and resized by keyboard', onGallery(async page => {
  await page.getByRole('button', { name: 'Free dialog' }).click();
  const free = page.getByRole('dialog', { name: 'Free dialog' });
  const before = await free.boundingBox();
  await page.keyboard.press('Tab');
  await free.getByRole('button', { name: 'Move with the arrow keys' }).focus();
  for (const key of ['ArrowLeft', 'ArrowLeft', 'ArrowUp', 'ArrowRight']) await page.keyboard.press(key);
  const moved = await free.boundingBox();
  assert.deepEqual(moved, { ...before, x: before.x - 16, y: before.y - 16 });
  await free.getByRole('button', { name: 'Resize with the arrow keys' }).focus();
  for (const key of ['ArrowRight', 'ArrowDown', 'ArrowDown', 'ArrowLeft', 'ArrowRight']) await page.keyboard.press(key);
  assert.deepEqual(await free.boundingBox(), { ...moved, width: before.width + 16, height: before.height + 32 });
  await assertAccessible(page, 'a dialog with handles');
  for (let i = 0; i < 40; ++i) await page.keyboard.press('ArrowLeft');
  assert.ok((await free.boundingBox()).width >= 96);
}));

test('a dialog is resized by its corner, and stays where it is', onGallery(async page => {
  await page.getByRole('button', { name: 'Free dialog' }).click();
  const free = page.getByRole('dialog', { name: 'Free dialog' });
  const before = await free.boundingBox();
  await page.mouse.move(before.x + before.width - 6, before.y + before.height - 6);
  await page.mouse.down();
  await page.mouse.move(before.x + before.width + 34, before.y + before.height + 14, { steps: 3 });
  await page.mouse.up();
  assert.deepEqual(await free.boundingBox(), { ...before, width: before.width + 40, height: before.height + 20 });
}));

test('a dialog that cannot be moved or resized has no handles', onGallery(async page => {
  await page.getByRole('button', { name: 'Bare dialog' }).click();
  await page.getByRole('dialog', { name: 'Without a title bar.' }).waitFor();
  assert.equal(await page.locator('.Wt-dialog-grip').count(), 0);
}));

test('a dialog that is not modal leaves the page usable and can be closed', onGallery(async page => {
  await page.getByRole('button', { name: 'Free dialog' }).click();
  const free = page.getByRole('dialog', { name: 'Free dialog' });
  await free.waitFor();
  await free.getByRole('button', { name: 'In the footer' }).waitFor();
  await page.getByRole('button', { name: 'Press me' }).click();
  await tells(page, 'Push buttons', 'clicked plain button');
  await free.getByRole('button', { name: 'Close' }).press('Enter');
  await tells(page, 'Dialogs', 'free dialog rejected');
}));

test('a dialog without a title bar is named by its words', onGallery(async page => {
  await page.getByRole('button', { name: 'Bare dialog' }).click();
  await page.getByRole('dialog', { name: 'Without a title bar.' }).waitFor();
  await eventually(() => focused(page), text => text === 'Proceed');
  await page.keyboard.press('Enter');
  await tells(page, 'Dialogs', 'bare dialog gone');
}));

// ---- uploads

const upload = page => page.getByLabel('File to send').and(page.locator('input'));

test('a chosen file is sent, with its name', onGallery(async page => {
  assert.ok(await page.getByRole('button', { name: 'Send file' }).isDisabled());
  const file = join(folder, 'résumé.txt');
  writeFileSync(file, 'x'.repeat(50000));
  await upload(page).setInputFiles(file);
  await tells(page, 'File uploads', 'file chosen');
  await page.getByRole('button', { name: 'Send file' }).click();
  await tells(page, 'File uploads', 'uploaded résumé.txt');
  assert.ok(await upload(page).isVisible());
}));

test('a file over the limit is refused', onGallery(async page => {
  const file = join(folder, 'large.bin');
  writeFileSync(file, Buffer.alloc(400000));
  await upload(page).setInputFiles(file);
  await page.getByRole('button', { name: 'Send file' }).click();
  await tells(page, 'File uploads', 'file too large');
}));
