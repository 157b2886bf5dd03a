// SPDX-License-Identifier: MIT
// The events tab: events arise, are read, acknowledged, cleared and downloaded, by one administrator and by two.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { after, afterEach, before, beforeEach, test } from 'node:test';
import {
  assertAccessible, assertNoProblems, assertWellFormed, eventually, logIn, openBrowser, openPage, rows, shoot, tab, texts,
} from './person.mjs';
import { startRig } from './rig.mjs';

let browser, rig, page, pages;
before(async () => { browser = await openBrowser(); });
after(() => browser?.close());
beforeEach(async () => {
  rig = await startRig();
  pages = [];
  page = await openEvents();
});
afterEach(async () => {
  for (const one of pages) await one.context().close();
  await rig.end();
  for (const one of pages) assertNoProblems(one);
});

async function openEvents(options = {}) {
  const opened = await openPage(browser, options);
  pages.push(opened);
  await logIn(opened, rig.url);
  await tab(opened, 'Events').click();
  await list(opened, 'Unacknowledged Events').waitFor();
  return opened;
}

const panel = (at, title) => at.locator('.nevo-context-panel', { has: at.locator('.nevo-context-panel-title', { hasText: title }) });
const list = (at, title) => panel(at, title).locator('.Wt-tableview');
const waiting = at => list(at, 'Unacknowledged Events');
const history = at => list(at, 'Event History');
const count = async view => Number(await view.getAttribute('aria-rowcount')) - 1;
/// The button of an action; the head of its section may have the same name.
const button = (at, name) => at.locator('.nevo-nav-accordion-action-button').getByText(name, { exact: true });
const messages = async view => (await texts(view)).map(row => row.at(-1));
const details = at => at.locator('.nevo-attribute-table-read-only-cell').allTextContents();
const selectedRows = view => view.locator('.Wt-tv-row[aria-selected=true]').count();
const unacknowledged = async () => (await rig.ctl('list', 'unacknowledgedAlerts')).split(/\s+/).filter(Boolean).map(Number);
const lastEventIs = (at, text) => eventually(async () => (await messages(waiting(at)))[0], first => first?.includes(text));

/// Raises events and waits until the page shows the last one of them on top.
async function raise(...kinds) {
  for (const kind of kinds) await rig.ctl('alert', kind);
  const total = (await unacknowledged()).length;
  await eventually(() => count(waiting(page)), shown => shown === total);
}

/// A row's click, with the key that adds it to the selection if it is not the first.
async function select(view, ...places) {
  for (const [i, place] of places.entries()) await rows(view).nth(place).click(i > 0 ? { modifiers: ['Control'] } : {});
  await eventually(() => selectedRows(view), selected => selected === places.length);
}

test('an event shows in both lists within one refresh, and its details when it is selected', async () => {
  await raise('FanFault');
  await lastEventIs(page, 'Fan');
  await eventually(async () => (await messages(history(page)))[0], first => first.includes('Fan'));
  await select(waiting(page), 0);
  const [date, type, eid, message] = (await texts(waiting(page)))[0];
  assert.deepEqual(await eventually(() => details(page), all => all[3] === message), [type, date, eid, message]);
});

test('a selection in one list takes that of the other away', async () => {
  await raise('FanFault', 'FanFault');
  await select(waiting(page), 0);
  await eventually(() => button(page, 'Acknowledge').isEnabled(), enabled => enabled);
  await select(history(page), 1);
  await eventually(() => selectedRows(waiting(page)), selected => selected === 0);
  await eventually(() => button(page, 'Acknowledge').isDisabled(), disabled => disabled);
});

test('one event, two and then all are acknowledged, and the history keeps them', async () => {
  await raise('FanFault', 'FanFault', 'FanFault', 'FanFault');
  const total = await count(waiting(page));
  const past = await count(history(page));
  await select(waiting(page), 1);
  await button(page, 'Acknowledge').click();
  await eventually(() => count(waiting(page)), now => now === total - 1);
  await select(waiting(page), 0, 2);
  await eventually(() => details(page), all => all.every(text => text === ''));
  await button(page, 'Acknowledge').click();
  await eventually(() => count(waiting(page)), now => now === total - 3);
  await button(page, 'Acknowledge All').click();
  await eventually(() => count(waiting(page)), now => now === 0);
  await eventually(() => button(page, 'Acknowledge All').isDisabled(), disabled => disabled);
  await eventually(() => button(page, 'Acknowledge').isDisabled(), disabled => disabled);
  assert.deepEqual(await unacknowledged(), []);
  assert.equal(await count(history(page)), past);
});

test('the history is cleared after a question, which can be told not to come again', async () => {
  await raise('FanFault');
  const dialog = page.locator('.Wt-dialog', { hasText: 'Confirm Clear' });
  await button(page, 'Clear').click();
  await dialog.waitFor();
  await assertAccessible(page, 'the question before clearing');
  await dialog.getByRole('button', { name: 'Cancel' }).click();
  await dialog.waitFor({ state: 'detached' });
  assert.ok(await count(history(page)) > 0);

  const stillWaiting = await count(waiting(page));
  await button(page, 'Clear').click();
  await dialog.getByRole('checkbox').check();
  await dialog.getByRole('button', { name: 'Clear' }).click();
  await eventually(() => count(history(page)), now => now === 0);
  assert.equal(await count(waiting(page)), stillWaiting);

  await raise('FanFault');
  await eventually(() => count(history(page)), now => now > 0);
  await button(page, 'Clear').click();
  await eventually(() => count(history(page)), now => now === 0);
  assert.equal(await dialog.count(), 0);
});

/// The file that the store's history makes, by the records as the control command shows them.
async function expectedFile() {
  const words = { info: 'Information', warning: 'Warning', error: 'Error' };
  const two = number => String(number).padStart(2, '0');
  let file = '';
  for (const index of (await rig.ctl('list', 'historicalAlerts')).split(/\s+/).filter(Boolean)) {
    const value = async name => (await rig.ctl('get', 'historicalAlerts', index, name)).replace(/\n$/, '');
    const at = new Date(Number(await value('date')) * 1000);
    const date = `${at.getFullYear()}-${at.getMonth() + 1}-${at.getDate()} ${two(at.getHours())}:${two(at.getMinutes())}:${two(at.getSeconds())}`;
    const message = Buffer.from(await value('alertMsg')).subarray(0, 400).toString().replaceAll('"', "'");
    file += `"${date}","${words[await value('severity')]}","${await value('originatorEid')}","${message}"\n`;
  }
  return file;
}

test("the download is the store's history, byte by byte", async () => {
  await raise('FanFault', 'FanFault');
  const [download] = await Promise.all([page.waitForEvent('download'), button(page, 'Save').click()]);
  assert.equal(download.suggestedFilename(), 'event-history.csv');
  const file = readFileSync(await download.path(), 'utf8');
  assert.ok(file.split('\n').length > 2);
  assert.equal(file, await expectedFile());
});

test('the download of a session is not there for a browser without it', async () => {
  await raise('FanFault');
  const [download] = await Promise.all([page.waitForEvent('download'), button(page, 'Save').click()]);
  const stranger = await openPage(browser);
  pages.push(stranger);
  const url = new URL(download.url());
  for (const name of ['wtd', 'resource', 'rand']) {
    const guessed = new URL(url);
    guessed.searchParams.set(name, 'x');
    const answer = await stranger.request.get(guessed.href);
    assert.equal(answer.status(), 404, name);
    assert.equal(await answer.text(), '');
  }
  await page.getByText('Log out').click();
  await page.getByRole('button', { name: 'Log In' }).waitFor();
  assert.equal((await stranger.request.get(url.href)).status(), 404, 'after the log out');
});

test('two administrators act on the same event, and each sees what the other did', async () => {
  const other = await openEvents();
  await raise('FanFault', 'FanFault');
  await eventually(async () => [await count(waiting(page)), await count(waiting(other))], ([mine, his]) => mine === his && mine > 2);
  const total = await count(waiting(page));
  await select(waiting(page), 0);
  await select(waiting(other), 0);
  await Promise.all([button(page, 'Acknowledge').click(), button(other, 'Acknowledge').click()]);
  for (const at of [page, other]) {
    await eventually(() => count(waiting(at)), now => now === total - 1);
    assert.equal(await at.locator('.Wt-dialog').count(), 0);
  }
  await button(page, 'Acknowledge All').click();
  await eventually(() => count(waiting(other)), now => now === 0);
  await eventually(() => button(other, 'Acknowledge All').isDisabled(), disabled => disabled);
});

test('a refresh keeps what is scrolled to and makes no row anew but that of the event that came', async () => {
  await raise(...Array(20).fill('FanFault'));
  await rig.ctl('alert', 'DeviceReportedInfo', '0B2711-C88940', 'Desk 12', 'the last before the marks');
  await lastEventIs(page, 'the last before the marks');
  const inSight = await rows(history(page)).count();
  await history(page).locator('.Wt-tv-body').evaluate(body => { body.scrollTop = 200; });
  // The rows around those in sight come a moment later.
  await eventually(() => rows(history(page)).count(), now => now > inSight);
  await page.evaluate(() => { for (const row of document.querySelectorAll('.Wt-tv-row')) row.marked = true; });
  const before = await count(waiting(page));
  await rows(waiting(page)).first().click();
  await button(page, 'Acknowledge').click();
  await eventually(() => count(waiting(page)), now => now === before - 1);
  assert.equal(await history(page).locator('.Wt-tv-body').evaluate(body => body.scrollTop), 200);
  const fresh = await history(page).evaluate(view => [...view.querySelectorAll('.Wt-tv-row')].filter(row => !row.marked).length);
  // The event that was acknowledged has come on top of the history.
  assert.ok(fresh <= 1, `${fresh} rows made anew`);
});

for (const colorScheme of ['light', 'dark']) {
  test(`the tab is whole and readable at every size, ${colorScheme}`, async () => {
    await raise('FanFault', 'PowerSupplyFault', 'TemperatureFault', 'FanFaultCleared');
    await rig.ctl('alert', 'DeviceReportedInfo', '0B2711-C88940', 'Desk 12', 'a message that goes on and on '.repeat(15));
    await lastEventIs(page, 'on and on');
    await page.emulateMedia({ colorScheme });
    await select(waiting(page), 0);
    await eventually(() => details(page), all => all[3] !== '');
    await assertAccessible(page, 'the events tab');
    for (const [width, height] of [[800, 600], [1280, 800], [2560, 1440]]) {
      await page.setViewportSize({ width, height });
      await page.evaluate(() => new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done))));
      await shoot(page, `events-unknown-${colorScheme}-${width}x${height}`);
      await assertWellFormed(page, `the events tab at ${width}x${height}`);
    }
  });
}
