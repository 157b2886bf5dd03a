// SPDX-License-Identifier: MIT
// The first page behind the login: what it shows, that it lives, and what a person can do to it.
import assert from 'node:assert/strict';
import { after, before, beforeEach, afterEach, test } from 'node:test';
import { assertNoProblems, eventually, list, logIn, openBrowser, openPage, panel, rows, texts } from './person.mjs';
import { startRig } from './rig.mjs';

let browser, rig, page;
before(async () => {
  browser = await openBrowser();
  rig = await startRig({ fleet: 60, liveliness: 0 });
  for (let i = 0; i < 30; ++i) await rig.ctl('alert', 'FanFault');
});
after(async () => {
  await browser?.close();
  await rig?.end();
});
beforeEach(async () => {
  page = await openPage(browser);
  await logIn(page, rig.url);
});
afterEach(async () => {
  const { context, problems } = { context: page.context(), problems: page };
  await context.close();
  assertNoProblems(problems);
});

const sessions = () => list(page, 'User Sessions');
const events = () => list(page, 'Events');
const scrollTop = view => view.locator('.Wt-tv-body').evaluate(body => body.scrollTop);
const head = (view, name) => view.locator('.Wt-header .Wt-tv-c', { hasText: name });
const width = async locator => Math.round((await locator.boundingBox()).width);
const height = async locator => Math.round((await locator.boundingBox()).height);

/// Waits until the durations have moved on `times` times: so often was the page refreshed.
async function refreshed(times = 1) {
  for (let i = 0; i < times; ++i) {
    const seen = (await texts(sessions())).map(row => row[4]).join();
    await eventually(async () => (await texts(sessions())).map(row => row[4]).join(), now => now !== seen, 9000);
  }
}

test('sessions of the switch are listed with their durations, which run', async () => {
  const shown = await eventually(() => texts(sessions()), all => all.length > 0);
  for (const [user, receiver, , , duration] of shown) {
    assert.notEqual(user, '');
    assert.notEqual(receiver, '');
    assert.match(duration, /^(\d+:)*\d+:\d\d$/);
  }
  await refreshed(2);
});

test('an event shows by itself soon after it arose, on top', async () => {
  await eventually(() => texts(events()), all => all.length > 0);
  const message = `Something that has never happened before ${Date.now()}`;
  await rig.ctl('alert', 'DeviceReportedInfo', '0B2711-C88940', 'Desk 12', message);
  const now = await eventually(() => texts(events()), all => all[0]?.[3]?.includes(message));
  assert.ok(now[0][3].includes(message), now[0].join());
});

test('a refresh keeps what is scrolled to and what is selected', async () => {
  await eventually(() => rows(sessions()).count(), count => count > 0);
  await rows(sessions()).first().click();
  await eventually(() => sessions().locator('.Wt-tv-row[aria-selected=true]').count(), count => count === 1);
  const chosen = await sessions().locator('.Wt-tv-row[aria-selected=true]').evaluate(row => row.children[1].textContent);
  await events().locator('.Wt-tv-body').evaluate(body => { body.scrollTop = 300; });
  await refreshed(2);
  assert.equal(await scrollTop(events()), 300);
  assert.equal(await sessions().locator('.Wt-tv-row[aria-selected=true]').evaluate(row => row.children[1].textContent), chosen);
});

test('a refresh makes no row anew that is still there', async () => {
  await eventually(() => rows(sessions()).count(), count => count > 0);
  await page.evaluate(() => { for (const row of document.querySelectorAll('.Wt-tv-row')) row.marked = true; });
  await refreshed(2);
  const fresh = await page.evaluate(() => [...document.querySelectorAll('.Wt-tv-row')].filter(row => !row.marked).length);
  assert.equal(fresh, 0);
});

test('a long list holds only the rows in sight, and scrolling brings the others', async () => {
  await eventually(() => rows(events()).count(), count => count > 0);
  const total = Number(await events().getAttribute('aria-rowcount')) - 1;
  assert.ok(await rows(events()).count() <= total);
  await events().locator('.Wt-tv-body').evaluate(body => { body.scrollTop = body.scrollHeight; });
  await events().locator(`.Wt-tv-row[aria-rowindex="${total + 1}"]`).waitFor();
});

test('a click on the title folds a panel to its title, another opens it', async () => {
  const before = await height(panel(page, 'User Sessions'));
  const title = panel(page, 'User Sessions').locator('.nevo-context-panel-title-button-collapsing');
  await title.click();
  await eventually(() => height(panel(page, 'User Sessions')), now => now <= 30);
  await sessions().waitFor({ state: 'hidden' });
  await title.click();
  await sessions().waitFor();
  await eventually(() => height(panel(page, 'User Sessions')), now => Math.abs(now - before) <= 4);
});

test('a column is as wide as one drags it, through refreshes', async () => {
  const cell = head(sessions(), 'Receiver');
  const before = await width(cell);
  const handle = await cell.locator('.Wt-tv-rh').boundingBox();
  await page.mouse.move(handle.x + 3, handle.y + 5);
  await page.mouse.down();
  await page.mouse.move(handle.x + 43, handle.y + 5, { steps: 4 });
  await page.mouse.up();
  await eventually(() => width(cell), now => Math.abs(now - before - 40) <= 3);
  await refreshed();
  assert.ok(Math.abs(await width(cell) - before - 40) <= 3);
});

test('a click on a head sorts, a second one the other way round', async () => {
  await eventually(() => rows(sessions()).count(), count => count > 1);
  const column = async () => (await texts(sessions())).map(row => row[1]);
  await head(sessions(), 'Receiver').click();
  await eventually(() => head(sessions(), 'Receiver').getAttribute('aria-sort'), sort => sort === 'ascending');
  const up = await column();
  await head(sessions(), 'Receiver').click();
  await eventually(() => head(sessions(), 'Receiver').getAttribute('aria-sort'), sort => sort === 'descending');
  const down = await eventually(column, now => now[0] !== up[0]);
  assert.notDeepEqual(down, up);
});

test('the border between the lists moves by mouse and by arrow keys', async () => {
  const border = page.locator('.Wt-hrh2').first();
  const before = await height(panel(page, 'User Sessions'));
  const place = await border.boundingBox();
  await page.mouse.move(place.x + place.width / 2, place.y + 3);
  await page.mouse.down();
  await page.mouse.move(place.x + place.width / 2, place.y + 63, { steps: 6 });
  await page.mouse.up();
  const dragged = await eventually(() => height(panel(page, 'User Sessions')), now => Math.abs(now - before - 60) <= 6);
  await border.focus();
  await page.keyboard.press('ArrowUp');
  await eventually(() => height(panel(page, 'User Sessions')), now => now < dragged);
});

test('arrow keys walk through a list', async () => {
  await eventually(() => rows(events()).count(), count => count > 2);
  const selected = () => events().locator('.Wt-tv-row[aria-selected=true]').evaluateAll(all => all.map(row => row.getAttribute('aria-rowindex')));
  await rows(events()).first().click();
  const [first] = await eventually(selected, all => all.length === 1);
  await events().focus();
  await page.keyboard.press('ArrowDown');
  await eventually(selected, all => all.length === 1 && Number(all[0]) === Number(first) + 1);
});

test('Tab reaches the tabs, the lists and the log out, and the focus can be seen', async () => {
  const reached = new Set();
  await page.locator('body').focus().catch(() => {});
  for (let i = 0; i < 40; ++i) {
    await page.keyboard.press('Tab');
    const at = await page.evaluate(() => {
      const el = document.activeElement;
      if (el === document.body) return null;
      const style = getComputedStyle(el);
      return { what: el.closest('.Wt-tabs') ? 'tabs' : el.closest('.Wt-tableview') ? 'list' : el.textContent.trim(),
        seen: style.outlineStyle !== 'none' && parseFloat(style.outlineWidth) >= 1 || style.boxShadow !== 'none' };
    });
    if (!at) continue;
    reached.add(at.what);
    assert.ok(at.seen, `the focus on ${at.what} can't be seen`);
  }
  for (const what of ['tabs', 'list', 'Log out']) assert.ok(reached.has(what), `${what} is out of reach: ${[...reached]}`);
});

test('fifty quick clicks are all understood', async () => {
  await eventually(() => rows(events()).count(), count => count > 3);
  for (let i = 0; i < 50; ++i) await rows(events()).nth(i % 3).click({ noWaitAfter: true });
  await eventually(() => events().locator('.Wt-tv-row[aria-selected=true]').count(), count => count === 1);
  await refreshed();
});
