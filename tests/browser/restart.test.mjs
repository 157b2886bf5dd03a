// SPDX-License-Identifier: MIT
// The switch restarts, and the web server with it.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { assertNoProblems, eventually, fillLogin, logIn, loginForm, newcomer, openBrowser, openPage, operator, dashboardShown } from './person.mjs';
import { startRig } from './rig.mjs';

let browser;
before(async () => { browser = await openBrowser(); });
after(() => browser?.close());

const lineIsDown = /ERR_CONNECTION|ERR_EMPTY|ERR_INTERNET|ERR_SOCKET|WebSocket/;

/// Somebody is logged in while the switch is reset with `word`; then `act` goes on at the front door.
async function restart(word, act) {
  const rig = await startRig();
  const page = await openPage(browser);
  try {
    await logIn(page, rig.url);
    await rig.ctl('reset', 'swx', 1, word);
    await page.locator('.Wt-offline').waitFor({ timeout: 10000 });
    assert.equal(await loginForm(page).count(), 0);
    await loginForm(page).waitFor({ timeout: 30000 });
    assert.equal(rig.starts, 2);
    await act({ rig, page });
    assertNoProblems(page, lineIsDown);
  } finally {
    await page.context().close();
    await rig.end();
  }
}

test('a page sees its switch go, and comes to the front door when it is back', () => restart('cold_reboot', async ({ rig, page }) => {
  assert.equal((await rig.ctl('list', 'adminSession')).trim(), '');
  await fillLogin(page, operator);
  await page.getByRole('button', { name: 'Log In' }).click();
  await dashboardShown(page);
}));

test('after a full default the front door takes the account of a new switch, and asks for a password of its own', () =>
  restart('factory_default', async ({ rig, page }) => {
    await fillLogin(page, newcomer);
    await page.getByRole('button', { name: 'Log In' }).click();
    await page.locator('.Wt-dialog', { hasText: 'Set Password' }).waitFor();
    await eventually(() => rig.ctl('get', 'user', 1, 'passwordIsInitialized'), word => word.trim() === 'is_false');
  }));
