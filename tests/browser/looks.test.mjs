// SPDX-License-Identifier: MIT
// Each screen in each brand: readable by everybody, whole at every size. Leaves its pictures in results/.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import {
  assertAccessible, assertNoProblems, assertWellFormed, eventually, fillLogin, list, logIn, loginForm, newcomer, openBrowser, openPage,
  operator, rows, shoot,
} from './person.mjs';
import { startRig } from './rig.mjs';

let browser;
before(async () => { browser = await openBrowser(); });
after(() => browser?.close());

const brands = { halden: 'Nortexa Corvane KVM', greyfen: 'Grey Fen Corvane KVM', unknown: 'Corvane KVM' };
const sizes = [[1280, 800], [800, 600], [2560, 1440]];
const box = (page, title) => page.locator('.Wt-dialog', { hasText: title });

/// The screens in the order in which a person meets them; each is reached from the one before.
const screens = [
  ['banner', async (page, rig) => {
    await page.goto(rig.url);
    await page.locator('.nevo-banner-text').waitFor();
  }],
  ['login', async page => {
    await page.getByRole('button', { name: 'Proceed to log in' }).click();
    await loginForm(page).waitFor();
  }],
  ['login-failure', async page => {
    await fillLogin(page, { name: operator.name, password: 'wrong' });
    await page.getByRole('button', { name: 'Log In' }).click();
    await box(page, 'Authentication failure').waitFor();
  }],
  ['set-password', async page => {
    await page.keyboard.press('Enter');
    await box(page, 'Authentication failure').waitFor({ state: 'detached' });
    await fillLogin(page, newcomer);
    await page.getByRole('button', { name: 'Log In' }).click();
    await box(page, 'Set Password').getByRole('button', { name: 'Set Password' }).waitFor();
  }],
  ['dashboard', async (page, rig) => {
    await rig.ctl('set', 'systemGlobals', 0, 'nevoBannerEnable', 'disabled');
    await logIn(page, rig.url);
    await eventually(() => rows(list(page, 'User Sessions')).count(), count => count > 0);
    await eventually(() => rows(list(page, 'Events')).count(), count => count > 2);
    await rows(list(page, 'User Sessions')).nth(1).click();
    await page.mouse.move(5, 5);
  }],
];

/// Every picture of a screen has come, and none is missing.
async function picturesLoaded(page) {
  await eventually(() => page.evaluate(() => [...document.images].filter(image => image.getClientRects().length && !image.naturalWidth)
    .map(image => image.getAttribute('src'))), missing => missing.length === 0, 5000);
}

for (const [brand, title] of Object.entries(brands)) {
  for (const colorScheme of ['light', 'dark']) {
    test(`the screens of brand ${brand}, ${colorScheme}`, async t => {
      const rig = await startRig({ brand, liveliness: 0 });
      const page = await openPage(browser, { colorScheme });
      t.after(async () => {
        await page.context().close();
        await rig.end();
      });
      await rig.ctl('set', 'systemGlobals', 0, 'nevoBannerText',
        'This system is for authorised use only.\n\nWhat you do here is recorded. By going on you agree to that.');
      await rig.ctl('set', 'systemGlobals', 0, 'nevoBannerEnable', 'enabled');
      for (const kind of ['FanFault', 'FanFault', 'FanFault']) await rig.ctl('alert', kind);
      for (const [name, reach] of screens) {
        await page.setViewportSize({ width: sizes[0][0], height: sizes[0][1] });
        await t.test(name, async () => {
          await reach(page, rig);
          assert.equal(await page.title(), title);
          await picturesLoaded(page);
          await assertAccessible(page, name);
          for (const [width, height] of sizes) {
            await page.setViewportSize({ width, height });
            await page.evaluate(() => new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done))));
            await page.waitForTimeout(250);
            await shoot(page, `${name}-${brand}-${colorScheme}-${width}x${height}`);
            await assertWellFormed(page, `${name} at ${width}x${height}`);
          }
        });
      }
      assertNoProblems(page);
    });
  }
}

test('the lost connection, said on a dimmed page', async t => {
  const rig = await startRig({ brand: 'halden', line: true });
  const page = await openPage(browser);
  t.after(async () => {
    await page.context().close();
    await rig.end();
  });
  await logIn(page, rig.url);
  rig.line.cut();
  await page.locator('.Wt-offline').waitFor();
  await assertAccessible(page, 'the lost connection');
  await shoot(page, 'lost-connection-halden-light-1280x800');
});

test('at twice the size everything is still reachable', async t => {
  const rig = await startRig({ brand: 'unknown' });
  const page = await openPage(browser, { viewport: { width: 640, height: 400 }, deviceScaleFactor: 2 });
  t.after(async () => {
    await page.context().close();
    await rig.end();
  });
  await page.goto(rig.url);
  await page.getByRole('button', { name: 'Log In' }).scrollIntoViewIfNeeded();
  await logIn(page, rig.url);
  await page.getByText('Log out').scrollIntoViewIfNeeded();
  await list(page, 'Events').scrollIntoViewIfNeeded();
  await shoot(page, 'dashboard-unknown-light-zoomed');
});
