// SPDX-License-Identifier: MIT
// From the address to the page behind the login, and out again.
import assert from 'node:assert/strict';
import { request } from 'node:http';
import { after, before, test } from 'node:test';
import {
  assertNoProblems, dashboardShown, eventually, fillLogin, logIn, loginForm, newcomer, openBrowser, openPage, operator, tab,
} from './person.mjs';
import { startRig } from './rig.mjs';

let browser;
before(async () => { browser = await openBrowser(); });
after(() => browser?.close());

/// Runs `act` with a page before a switch of its own.
function onSwitch(options, act) {
  return async () => {
    const rig = await startRig(options);
    const page = await openPage(browser);
    try {
      await act({ rig, page });
      assertNoProblems(page);
    } finally {
      await page.context().close();
      await rig.end();
    }
  };
}

const logInButton = page => page.getByRole('button', { name: 'Log In' });
const box = (page, title) => page.locator('.Wt-dialog', { hasText: title });

async function tryToLogIn(page, who) {
  await fillLogin(page, who);
  await logInButton(page).click();
}

async function closeBox(page, title) {
  await box(page, title).getByRole('button', { name: 'Ok' }).click();
  await box(page, title).waitFor({ state: 'detached' });
  await loginForm(page).waitFor();
}

test('a plain address leads to the secure page on the same port', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.plainUrl);
  await page.waitForURL(rig.url);
  await loginForm(page).waitFor();
}));

test('the page may run no script but its own and be framed by nobody', onSwitch({}, async ({ rig, page }) => {
  const response = await page.goto(rig.url);
  const headers = response.headers();
  const policy = headers['content-security-policy'] ?? '';
  const scripts = /(?:script-src|default-src)([^;]*)/.exec(policy)?.[1] ?? '*';
  assert.doesNotMatch(scripts, /unsafe-inline|unsafe-eval|\*/);
  assert.match(policy, /frame-ancestors 'none'/);
  assert.equal(headers['x-content-type-options'], 'nosniff');
  assert.equal(headers['referrer-policy'], 'no-referrer');
  assert.match(headers['cache-control'] ?? '', /no-store/);
  await loginForm(page).waitFor();
  assert.equal(page.url(), rig.url);
  assert.deepEqual(await page.context().cookies(), []);
}));

test('a request for another host is not led astray', onSwitch({}, async ({ rig }) => {
  const location = await new Promise((resolve, reject) => {
    request({ port: rig.port, host: '127.0.0.1', path: '//evil.example/', headers: { host: `localhost:${rig.port}` } },
      response => { response.resume(); resolve(response.headers.location ?? ''); }).once('error', reject).end();
  });
  assert.doesNotMatch(location, /^(https?:)?\/\/evil/);
}));

test('a wrong password is refused, the right one opens the dashboard', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.url);
  await tryToLogIn(page, { name: operator.name, password: 'Operator-1' });
  await box(page, 'Authentication failure').waitFor();
  assert.match(await box(page, 'Authentication failure').innerText(), /Incorrect username, password, or privileges\./);
  await closeBox(page, 'Authentication failure');
  assert.equal(await page.getByRole('textbox', { name: 'Username' }).inputValue(), '');
  assert.equal(await page.getByRole('textbox', { name: 'Password' }).inputValue(), '');
  await tryToLogIn(page, operator);
  await dashboardShown(page);
  await page.getByText('user: operator').waitFor();
}));

test('an account without the right to administer is refused', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.url);
  await tryToLogIn(page, { name: 'rokafor', password: 'dispatch-3' });
  await box(page, 'Authentication failure').waitFor();
}));

test('after five failures the right password is not even tried', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.url);
  for (let failure = 1; failure <= 5; ++failure) {
    await tryToLogIn(page, { name: operator.name, password: `guess ${failure}` });
    await box(page, 'Authentication failure').waitFor();
    await closeBox(page, 'Authentication failure');
  }
  await tryToLogIn(page, operator);
  await box(page, 'Authentication lockout').waitFor();
  assert.match(await box(page, 'Authentication lockout').innerText(), /You are locked out for 5 minutes\./);
  assert.equal((await rig.ctl('list', 'adminSession')).trim(), '');
}));

test('an account whose password was never set chooses one first', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.url);
  await tryToLogIn(page, newcomer);
  const dialog = box(page, 'Set Password');
  const set = dialog.getByRole('button', { name: 'Set Password' });
  const [first, second] = [dialog.locator('input').nth(0), dialog.locator('input').nth(1)];
  await set.waitFor();
  assert.ok(await set.isDisabled());
  await first.pressSequentially('new-secret');
  await second.pressSequentially('new-secre');
  assert.ok(await set.isDisabled());
  await second.pressSequentially('t');
  await eventually(() => set.isEnabled(), enabled => enabled);
  await first.pressSequentially(' x');
  await second.pressSequentially(' x');
  await eventually(() => set.isEnabled(), enabled => !enabled);
  await first.fill('new-secret');
  await second.fill('new-secret');
  await eventually(() => set.isEnabled(), enabled => enabled);
  await set.click();
  await dashboardShown(page);
  assert.match(await rig.ctl('get', 'user', 1, 'passwordIsInitialized'), /is_true/);

  const again = await openPage(browser);
  await logIn(again, rig.url, { name: newcomer.name, password: 'new-secret' });
  await again.context().close();
}));

test('a banner shows its text as it stands, markup included, and leads to the login', onSwitch({}, async ({ rig, page }) => {
  const text = '<b>Authorised</b> use only. <img src=x onerror="document.title=\'hacked\'"> %s %n &amp; 😀 שלום';
  await rig.ctl('set', 'systemGlobals', 0, 'nevoBannerText', text);
  await rig.ctl('set', 'systemGlobals', 0, 'nevoBannerEnable', 'enabled');
  await page.goto(rig.url);
  const banner = page.locator('.nevo-banner-text');
  await banner.waitFor();
  assert.equal((await banner.textContent()).trim(), text);
  assert.equal(await banner.locator('b, img').count(), 0);
  assert.ok(await page.getByRole('button', { name: 'Proceed to log in' }).evaluate(el => el === document.activeElement));
  await page.keyboard.press('Enter');
  await loginForm(page).waitFor();
  assert.doesNotMatch(await page.title(), /hacked/);
}));

test('a switch whose name holds markup shows the name', onSwitch({}, async ({ rig, page }) => {
  await rig.ctl('set', 'swx', 1, 'name', '<i>Rack</i>&lt;');
  await logIn(page, rig.url);
  await page.getByText('logged in to <i>Rack</i>&lt;').waitFor();
}));

test('help for a forgotten password is one click away and leads back', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.url);
  await page.getByText('Forgot my password').click();
  await box(page, 'Forgot Password').waitFor();
  await page.keyboard.press('Escape');
  await box(page, 'Forgot Password').waitFor({ state: 'detached' });
  await loginForm(page).waitFor();
}));

test('the keyboard alone goes through the front door', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.url);
  await loginForm(page).waitFor();
  await eventually(() => page.getByRole('textbox', { name: 'Username' }).evaluate(el => el === document.activeElement), focused => focused);
  await page.keyboard.type(operator.name);
  await page.keyboard.press('Tab');
  await page.keyboard.type(operator.password);
  await page.keyboard.press('Enter');
  await dashboardShown(page);
}));

test('Tab stays within the login dialog', onSwitch({}, async ({ rig, page }) => {
  await page.goto(rig.url);
  await loginForm(page).waitFor();
  for (let i = 0; i < 12; ++i) {
    await page.keyboard.press('Tab');
    const inside = await page.evaluate(() => document.activeElement === document.body ||
      !!document.activeElement.closest('.Wt-dialog'));
    assert.ok(inside, `after ${i + 1} Tabs`);
  }
}));

test('logging out ends the session in the store and shows the login again', onSwitch({}, async ({ rig, page }) => {
  await logIn(page, rig.url);
  assert.notEqual((await rig.ctl('list', 'adminSession')).trim(), '');
  await page.getByText('Log out').click();
  await loginForm(page).waitFor();
  assert.equal(await tab(page, 'Dashboard').count(), 0);
  assert.equal((await rig.ctl('list', 'adminSession')).trim(), '');
}));

test('two people in two browsers do not see each other', onSwitch({}, async ({ rig, page }) => {
  await logIn(page, rig.url);
  const other = await openPage(browser);
  await other.goto(rig.url);
  await loginForm(other).waitFor();
  await page.getByText('Log out').click();
  await loginForm(page).waitFor();
  await tryToLogIn(other, operator);
  await dashboardShown(other);
  await other.context().close();
}));
