// SPDX-License-Identifier: MIT
// Lists of thousands: typing in them finds a record. A switch with 2,500 devices of each kind.
import assert from 'node:assert/strict';
import { after, afterEach, before, beforeEach, test } from 'node:test';
import {
  assertAccessible, assertNoProblems, eventually, logIn, openBrowser, openPage, rows, shoot, tab, texts,
} from './person.mjs';
import { startRig } from './rig.mjs';

let browser, rig, page;
before(async () => {
  browser = await openBrowser();
  rig = await startRig({ fleet: 2500 });
});
after(async () => {
  await browser?.close();
  await rig?.end();
});
const panel = (at, title) => at.locator('.nevo-context-panel:visible', {
  has: at.locator('.nevo-context-panel-title, .nevo-context-panel-title-button-collapsing', { hasText: new RegExp(`^${title}`) }),
}).first();
const list = (at, title) => panel(at, title).locator('.Wt-tableview');

beforeEach(async () => {
  page = await openPage(browser);
  await logIn(page, rig.url);
  await tab(page, 'Sessions').click();
  await list(page, 'Sessions').waitFor();
});
afterEach(async () => {
  assertNoProblems(page);
  await page.context().close();
});

const dialog = () => page.locator('.Wt-dialog', { has: page.locator('.titlebar', { hasText: 'Connect KVM Session' }) });
const choices = which => dialog().locator('.Wt-tableview').nth(which);
const mark = which => dialog().locator('.nevo-list-filter').nth(which);
const count = async table => Number(await table.getAttribute('aria-rowcount')) - 1;

async function openDialog() {
  await page.getByRole('button', { name: 'Connect', exact: true }).click();
  await dialog().waitFor();
  await eventually(() => count(choices(0)), now => now > 0);
  await rows(choices(0)).first().click();
  await eventually(() => count(choices(1)), now => now > 1000);
}

test('a receiver among thousands is found by typing, picked and connected', async () => {
  await openDialog();
  const all = await count(choices(1));
  const [eid, name] = (await texts(choices(1))).at(3);
  const words = `${name.toUpperCase()} ${eid.slice(-6).toLowerCase()}`;
  await choices(1).focus();
  await page.keyboard.type(words);
  await eventually(() => mark(1).innerText(), said => said.includes(` of ${all.toLocaleString('en')}`) && said.startsWith(words));
  const left = await eventually(() => count(choices(1)), now => now < 10);
  assert.ok(left >= 1);
  assert.equal(await choices(1).locator('.Wt-tv-row[aria-selected=true]').count(), 0, 'typing has selected a row');
  assert.equal(await count(choices(0)) > 0, true);
  await shoot(page, 'connect-filtered-1280x800');
  await assertAccessible(page, 'a filtered list');
  await rows(choices(1)).first().click();
  await eventually(() => count(choices(2)), now => now > 0);
  await choices(2).focus();
  await page.keyboard.press('ArrowDown');
  await eventually(() => choices(2).locator('.Wt-tv-row[aria-selected=true]').count(), now => now === 1);
  await page.keyboard.press('Enter');
  await page.getByText('Session has been successfully connected.').waitFor();
  await page.getByRole('button', { name: 'Close' }).click();
  await eventually(() => texts(list(page, 'Sessions')), shown => shown.some(row => row[1] === name));
});

test('Escape takes the filter away first and closes the dialog then', async () => {
  await openDialog();
  const all = await count(choices(1));
  await choices(1).focus();
  await page.keyboard.type('1 2 3');
  await eventually(() => count(choices(1)), now => now < all);
  await page.keyboard.press('Backspace');
  await eventually(() => mark(1).innerText(), said => said.startsWith('1 2 —'));
  await page.keyboard.press('Escape');
  await eventually(() => count(choices(1)), now => now === all);
  assert.equal(await dialog().count(), 1);
  await page.keyboard.press('Escape');
  await dialog().waitFor({ state: 'detached' });
});

test('the mark stands on the list and moves nothing', async () => {
  await openDialog();
  const places = () => dialog().evaluate(el => [...el.querySelectorAll('.Wt-tableview, button')]
    .filter(one => !one.closest('.nevo-list-filter')).map(one => JSON.stringify(one.getBoundingClientRect())));
  const before = await places();
  await choices(1).focus();
  await page.keyboard.type('1');
  await mark(1).locator('button').waitFor();
  assert.deepEqual(await places(), before);
  const [box, around] = [await mark(1).boundingBox(), await choices(1).boundingBox()];
  assert.ok(box.x > around.x && box.x + box.width < around.x + around.width, 'beside the list');
  assert.ok(box.y > around.y && box.y + box.height < around.y + around.height, 'above or below the list');
  await mark(1).locator('button').click();
  await eventually(() => mark(1).innerText(), said => said.trim() === '');
});

test('a panel has a button for those who do not know', async () => {
  await panel(page, 'Sessions').getByRole('button', { name: 'Find rows' }).click();
  await panel(page, 'Sessions').getByText('Type to find rows.').waitFor();
  await page.keyboard.type('nobody of that name');
  await eventually(() => count(list(page, 'Sessions')), now => now === 0);
  await page.keyboard.press('Escape');
  await eventually(() => count(list(page, 'Sessions')), now => now > 0);
});

test('the button of a panel that folds does not fold it', async () => {
  await tab(page, 'Dashboard').click();
  const sessions = panel(page, 'User Sessions');
  await sessions.getByRole('button', { name: 'Find rows' }).click();
  await sessions.getByText('Type to find rows.').waitFor();
  assert.equal(await list(page, 'User Sessions').isVisible(), true);
});

test('the lists of the dialog have the sizes and grounds that they should, in small windows as well', async () => {
  for (const [width, height] of [[1280, 800], [800, 600]]) {
    await page.setViewportSize({ width, height });
    await openDialog();
    const sizes = await dialog().evaluate(el => [...el.querySelectorAll('.Wt-tableview')].map(view => {
      const { width: w, height: h } = view.getBoundingClientRect();
      return [w, h, getComputedStyle(view.parentElement).paddingLeft];
    }));
    assert.deepEqual(sizes, [[178, 200, '8px'], [300, 200, '8px'], [300, 200, '8px']], `${width} pixels`);
    const grounds = await choices(1).evaluate(view =>
      [...view.querySelectorAll('.Wt-tv-row')].slice(2, 4).map(row => getComputedStyle(row).backgroundColor));
    assert.notEqual(grounds[0], grounds[1]);
    await page.keyboard.press('Escape');
    await dialog().waitFor({ state: 'detached' });
  }
});

for (const colorScheme of ['light', 'dark']) {
  test(`filtered lists look right, ${colorScheme}`, async () => {
    await page.emulateMedia({ colorScheme });
    for (const [width, height] of [[1280, 800], [800, 600]]) {
      await page.setViewportSize({ width, height });
      const size = `${colorScheme}-${width}x${height}`;
      await list(page, 'Sessions').focus();
      await page.keyboard.type('desk');
      await panel(page, 'Sessions').locator('.nevo-list-filter button').waitFor();
      await shoot(page, `sessions-filtered-${size}`);
      await page.keyboard.press('Escape');
      await openDialog();
      await choices(1).focus();
      await page.keyboard.type('desk 3');
      await mark(1).locator('button').waitFor();
      await shoot(page, `connect-filtered-${size}`);
      await dialog().getByRole('button', { name: 'Cancel' }).click();
      await tab(page, 'Events').click();
      await list(page, 'Event History').focus();
      await page.keyboard.type('a');
      await panel(page, 'Event History').locator('.nevo-list-filter button').waitFor();
      await shoot(page, `events-filtered-${size}`);
      await page.keyboard.press('Escape');
      await tab(page, 'Dashboard').click();
      await list(page, 'User Sessions').focus();
      await page.keyboard.type('a');
      await panel(page, 'User Sessions').locator('.nevo-list-filter button').waitFor();
      await shoot(page, `dashboard-filtered-${size}`);
      await page.keyboard.press('Escape');
      await tab(page, 'Sessions').click();
    }
  });
}
