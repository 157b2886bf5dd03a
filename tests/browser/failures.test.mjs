// SPDX-License-Identifier: MIT
// What goes wrong around a page that somebody is watching.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { setTimeout as pause } from 'node:timers/promises';
import {
  assertNoProblems, dashboardShown, eventually, fillLogin, list, logIn, loginForm, openBrowser, openPage, operator, tab, texts,
} from './person.mjs';
import { startRig } from './rig.mjs';

let browser;
before(async () => { browser = await openBrowser(); });
after(() => browser?.close());

const lineIsDown = /ERR_CONNECTION|ERR_EMPTY|ERR_INTERNET|ERR_SOCKET|WebSocket/;

async function withPage(options, how, act) {
  const rig = await startRig(options, how);
  const page = await openPage(browser);
  try {
    await act({ rig, page });
    assertNoProblems(page, lineIsDown);
  } finally {
    await page.context().close();
    await rig.end();
  }
}

const overlay = page => page.locator('.Wt-offline');
const sessionTexts = page => texts(list(page, 'User Sessions'));
const eventCount = async page => Number(await list(page, 'Events').getAttribute('aria-rowcount')) - 1;

test('a connection that is lost for ten seconds is said soon and taken up where it was', () =>
  withPage({ line: true }, {}, async ({ rig, page }) => {
    await logIn(page, rig.url);
    await page.evaluate(() => { window.samePage = true; });
    const before = await eventCount(page);
    rig.line.cut();
    await overlay(page).waitFor({ timeout: 6000 });
    assert.match(await overlay(page).innerText(), /connection/i);
    const [folded] = [page.locator('.nevo-context-panel-title-button-collapsing').first()];
    assert.ok(await folded.isVisible());
    await rig.ctl('alert', 'FanFault');
    await pause(10000);
    rig.line.heal();
    await overlay(page).waitFor({ state: 'detached', timeout: 8000 });
    await eventually(() => eventCount(page), count => count === before + 1);
    assert.ok(await page.evaluate(() => window.samePage), 'the page was loaded anew');
    const rows = await sessionTexts(page);
    await eventually(() => sessionTexts(page), now => now.map(String).join() !== rows.map(String).join());
  }));

test('what was typed while the line was down arrives, once', () => withPage({ line: true }, {}, async ({ rig, page }) => {
  await page.goto(rig.url);
  await loginForm(page).waitFor();
  rig.line.cut();
  await overlay(page).waitFor({ timeout: 6000 });
  rig.line.heal();
  await overlay(page).waitFor({ state: 'detached', timeout: 8000 });
  await fillLogin(page, operator);
  await page.evaluate(() => { window.before = true; });
  await page.getByRole('button', { name: 'Log In' }).evaluate(button => button.click());
  rig.line.cut();
  await pause(300);
  rig.line.heal();
  await dashboardShown(page);
  assert.equal((await rig.ctl('list', 'adminSession')).trim().split('\n').length, 1);
}));

test('a page that is off line comes back when the browser is on line again', () => withPage({ line: true }, {}, async ({ rig, page }) => {
  await logIn(page, rig.url);
  rig.line.cut();
  await overlay(page).waitFor({ timeout: 6000 });
  await page.context().setOffline(true);
  rig.line.heal();
  await pause(1000);
  assert.ok(await overlay(page).isVisible());
  await page.context().setOffline(false);
  await overlay(page).waitFor({ state: 'detached', timeout: 8000 });
}));

test('the store killed and started again empties the lists and fills them again', () => withPage({}, {}, async ({ rig, page }) => {
  await logIn(page, rig.url);
  const before = (await eventually(() => sessionTexts(page), all => all.length > 0)).map(row => row[0]).sort();
  await rig.killStore();
  await eventually(() => sessionTexts(page), all => all.length === 0);
  assert.ok(await tab(page, 'Dashboard').isVisible());
  await rig.startStore();
  await eventually(() => sessionTexts(page), all => all.length === before.length, 20000);
  assert.deepEqual((await sessionTexts(page)).map(row => row[0]).sort(), before);
  assert.ok(rig.serverIsAlive);
}));

test('a store that is silent, slow or cut off in the middle leaves the page alive', () => withPage({}, {}, async ({ rig, page }) => {
  await logIn(page, rig.url);
  await eventually(() => sessionTexts(page), all => all.length > 0);
  await rig.ctl('cut', 3);
  await rig.ctl('slow', 200);
  await pause(6000);
  await rig.ctl('slow', 'off');
  await eventually(() => sessionTexts(page), all => all.length > 0, 20000);
}));

test('without a store the page tries five times, then asks; Retry leads to the login once there is one', () =>
  withPage({}, { store: false }, async ({ rig, page }) => {
    await page.goto(rig.url);
    await page.getByText('Attempting to establish a connection').waitFor();
    const error = page.locator('.Wt-dialog', { hasText: 'Error communicating with the internal database server.' });
    await error.waitFor({ timeout: 20000 });
    await rig.startStore();
    await error.getByRole('button', { name: 'Retry' }).click();
    await loginForm(page).waitFor();
  }));

test('Reset ends the server with status 1, and the page finds the new one', () => withPage({}, { store: false }, async ({ rig, page }) => {
  await page.goto(rig.url);
  const error = page.locator('.Wt-dialog', { hasText: 'Error communicating with the internal database server.' });
  await error.waitFor({ timeout: 20000 });
  await rig.startStore();
  await error.getByRole('button', { name: 'Reset' }).click();
  await eventually(() => rig.starts, starts => starts === 2, 20000);
  await loginForm(page).waitFor({ timeout: 20000 });
}));

test('a server that was started again has the page load itself anew', () => withPage({}, {}, async ({ rig, page }) => {
  await logIn(page, rig.url);
  await rig.stopServer();
  await overlay(page).waitFor();
  await rig.startServer();
  await loginForm(page).waitFor({ timeout: 20000 });
}));

test('a switch that goes under a manager logs its administrators out', () => withPage({}, {}, async ({ rig, page }) => {
  await logIn(page, rig.url);
  await rig.ctl('set', 'systemGlobals', 0, 'managedSetting', 'verified');
  await loginForm(page).waitFor({ timeout: 25000 });
  await fillLogin(page, operator);
  await page.getByRole('button', { name: 'Log In' }).click();
  await tab(page, 'Managed').waitFor();
}));
