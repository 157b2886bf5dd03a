// SPDX-License-Identifier: MIT
// The tab of KVM sessions: connecting, joining, disconnecting, by one administrator and by two.
import assert from 'node:assert/strict';
import { after, afterEach, before, beforeEach, test } from 'node:test';
import {
  assertAccessible, assertNoProblems, assertWellFormed, eventually, logIn, openBrowser, openPage, shoot, tab, texts,
} from './person.mjs';
import { startRig } from './rig.mjs';

const user = 'hlindqvist';
const computer = 'SCADA Primary';
const station = 'Desk 2 Dispatch', secondStation = 'Desk 4 Traffic';

let browser, rig, page;
before(async () => {
  browser = await openBrowser();
  rig = await startRig();
});
after(async () => {
  await browser?.close();
  await rig?.end();
});
beforeEach(async () => {
  await rig.ctl('set', 'user', 2, 'enableDisconnectSessionWarning', 'enabled');
  page = await openSessions();
});
afterEach(async () => {
  await page.context().close();
  assertNoProblems(page);
});

async function openSessions(options) {
  const opened = await openPage(browser, options);
  await logIn(opened, rig.url);
  await tab(opened, 'Sessions').click();
  await list(opened).waitFor();
  return opened;
}

const list = at => at.locator('.Wt-tableview:visible').first();
const shown = async at => texts(list(at));
const row = (at, receiver) => list(at).locator('.Wt-tv-row', { hasText: receiver });
const button = (at, name) => at.getByRole('button', { name, exact: true });
const dialog = (at, title) => at.locator('.Wt-dialog', { has: at.locator('.titlebar', { hasText: title }) });
const listed = (at, receiver, is = true) =>
  eventually(() => shown(at), all => all.some(one => one[1] === receiver) === is, 7000);

/// The lists of the dialog from the left.
const choices = (at, which) => dialog(at, 'Connect KVM Session').locator('.Wt-tableview').nth(which);
const choice = (at, which, name) => choices(at, which).locator('.Wt-tv-row', { hasText: name });

async function openDialog(at, mode) {
  await button(at, 'Connect').click();
  await dialog(at, 'Connect KVM Session').waitFor();
  await at.locator('.Wt-dialog select').selectOption({ label: mode });
  await choice(at, 0, user).click();
}

async function connect(at, mode, receiver, transmitter) {
  await openDialog(at, mode);
  await choice(at, 1, receiver).click();
  await choice(at, 2, transmitter).click();
  await dialog(at, 'Connect KVM Session').getByRole('button', { name: 'Connect' }).click();
}

async function connected(at) {
  await dialog(at, 'Session').getByText('Session has been successfully connected.').waitFor();
  await button(at, 'Close').click();
}

test('a shared session is connected, joined, kept from a private one, and both are disconnected', async () => {
  await connect(page, 'Shared session', station, computer);
  await connected(page);
  assert.deepEqual((await listed(page, station)).find(one => one[1] === station).slice(0, 4), [user, station, computer, 'Shared']);

  await connect(page, 'Shared session', secondStation, computer);
  await connected(page);
  await listed(page, secondStation);

  // The computer is in shared use now, so nobody gets it alone.
  await openDialog(page, 'Private session');
  await choices(page, 1).locator('.Wt-tv-row').first().click();
  await choices(page, 2).locator('.Wt-tv-row').first().waitFor();
  assert.equal(await choice(page, 2, computer).count(), 0);
  await page.keyboard.press('Escape');

  await row(page, station).click();
  await row(page, secondStation).click({ modifiers: ['Control'] });
  await page.locator('.nevo-attribute-table-read-only-cell', { hasText: computer }).waitFor();
  await button(page, 'Disconnect').click();
  const question = dialog(page, 'Confirm Session Disconnect');
  await question.getByText('Are you sure you want to disconnect the selected session(s)?').waitFor();
  await question.getByLabel('Do not show this message again.').check();
  await question.getByRole('button', { name: 'Disconnect' }).click();
  await listed(page, station, false);
  await listed(page, secondStation, false);
  await page.locator('.Wt-dialog').waitFor({ state: 'detached' });
  assert.equal((await rig.ctl('get', 'user', 2, 'enableDisconnectSessionWarning')).trim(), 'disabled');
  assert.equal(await button(page, 'Disconnect').isDisabled(), true);
});

test('with the warning turned off a session ends at one click', async () => {
  await rig.ctl('set', 'user', 2, 'enableDisconnectSessionWarning', 'disabled');
  await connect(page, 'Private session', station, computer);
  await connected(page);
  await (await listed(page, station), row(page, station)).click();
  await button(page, 'Disconnect').click();
  await listed(page, station, false);
});

test('two administrators see within a refresh what the other does', async () => {
  const other = await openSessions();
  await connect(page, 'Shared session', station, computer);
  await connected(page);
  await listed(other, station);

  // Both go for the same session: the second is told, and goes on.
  await row(page, station).click();
  await row(other, station).click();
  await button(page, 'Disconnect').click();
  await button(other, 'Disconnect').click();
  await dialog(page, 'Confirm').getByRole('button', { name: 'Disconnect' }).click();
  await dialog(other, 'Confirm').getByRole('button', { name: 'Disconnect' }).click();
  await dialog(other, 'Error').getByText('Unable to disconnect session.').waitFor();
  await button(other, 'Close').click();
  await other.locator('.Wt-dialog').waitFor({ state: 'detached' });
  await listed(page, station, false);
  await listed(other, station, false);

  await connect(other, 'Shared session', secondStation, computer);
  await connected(other);
  await listed(page, secondStation);
  await row(page, secondStation).click();
  await button(page, 'Disconnect').click();
  await dialog(page, 'Confirm').getByRole('button', { name: 'Disconnect' }).click();
  await listed(other, secondStation, false);
  await other.context().close();
  assertNoProblems(other);
});

test('a receiver that another administrator has taken meanwhile is refused in words', async () => {
  const other = await openSessions();
  await openDialog(page, 'Shared session');
  await choice(page, 1, station).click();
  await choice(page, 2, computer).click();
  await connect(other, 'Shared session', station, computer);
  await connected(other);
  await dialog(page, 'Connect KVM Session').getByRole('button', { name: 'Connect' }).click();
  await dialog(page, 'Error').getByText('Unable to create session. Rx user session already active.').waitFor();
  await button(page, 'Close').click();
  await listed(page, station);
  await other.context().close();
  assertNoProblems(other);

  await row(page, station).click();
  await button(page, 'Disconnect').click();
  await dialog(page, 'Confirm').getByRole('button', { name: 'Disconnect' }).click();
  await listed(page, station, false);
});

test('the keyboard alone connects a session', async () => {
  await button(page, 'Connect').focus();
  await page.keyboard.press('Enter');
  await dialog(page, 'Connect KVM Session').waitFor();
  assert.equal(await page.evaluate(() => document.activeElement.tagName), 'SELECT');
  for (const which of [0, 1, 2]) {
    await eventually(async () => {
      await page.keyboard.press('Tab');
      return choices(page, which).evaluate(view => view.contains(document.activeElement) && !document.activeElement.closest('.Wt-header'));
    }, there => there);
    await page.keyboard.press('ArrowDown');
    await choices(page, which).locator('[aria-selected=true]').waitFor();
  }
  await eventually(async () => {
    await page.keyboard.press('Tab');
    return page.evaluate(() => document.activeElement.textContent);
  }, text => text === 'Connect');
  await page.keyboard.press('Enter');
  await dialog(page, 'Session').getByText('Session has been successfully connected.').waitFor();
  assert.equal(await page.locator('.Wt-dialog').count(), 1);
  await page.keyboard.press('Enter');
  await eventually(() => page.locator('.Wt-dialog').count(), count => count === 0);
});

for (const colorScheme of ['light', 'dark'])
  for (const [width, height] of [[800, 600], [1280, 800], [2560, 1440]])
    test(`the screens are in order, ${colorScheme}, ${width} pixels wide`, async () => {
      const at = await openSessions({ colorScheme, viewport: { width, height } });
      const name = `sessions-${colorScheme}-${width}`;
      await assertWellFormed(at, 'the tab');
      await shoot(at, `${name}-tab`);
      await list(at).locator('.Wt-tv-row').first().click();
      await at.locator('.nevo-attribute-table-label').first().waitFor();
      await assertWellFormed(at, 'the details');
      await assertAccessible(at, 'the tab');
      await shoot(at, `${name}-details`);
      await button(at, 'Disconnect').click();
      await dialog(at, 'Confirm').waitFor();
      await shoot(at, `${name}-question`);
      await assertAccessible(at, 'the question');
      await at.keyboard.press('Escape');
      await openDialog(at, 'Shared session');
      await choices(at, 1).locator('.Wt-tv-row').first().click();
      await choices(at, 2).locator('.Wt-tv-row').first().waitFor();
      await assertWellFormed(at, 'the dialog');
      await assertAccessible(at, 'the dialog');
      await shoot(at, `${name}-dialog`);
      assertNoProblems(at);
      await at.context().close();
    });
