// SPDX-License-Identifier: MIT
// The header's links, and the dialog in which users turn their warnings on and off.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import {
  assertAccessible, assertNoProblems, assertWellFormed, eventually, logIn, loginForm, openBrowser, openPage, operator, shoot,
} from './person.mjs';
import { startRig } from './rig.mjs';

let browser;
before(async () => { browser = await openBrowser(); });
after(() => browser?.close());

const labels = [
  'Warn When Logging out with Unsaved Changes', 'Warn When Deleting User', 'Warn When Forcing a User Logout',
  'Warn When Disconnecting a Session', 'Warn When Deleting Monitor', 'Warn When Clearing Event History',
  'Warn When Restoring Device Factory Defaults', 'Warn When Removing Device(s)', 'Warn When Removing Offline Device(s)',
  'Warn When Rebooting Device(s)',
];
const dialog = page => page.locator('.Wt-dialog', { hasText: 'Preferences' });
const setting = (page, label) => page.getByRole('combobox', { name: label, exact: true });
const shown = (page, label) => setting(page, label).evaluate(combo => combo.selectedOptions[0]?.text);
const button = (page, name) => dialog(page).getByRole('button', { name });
const link = (page, name) => page.locator('.nevo-header-rhs').getByRole('button', { name });

async function open(page) {
  await link(page, 'Preferences').click();
  await dialog(page).waitFor();
}
async function closed(page) {
  await dialog(page).waitFor({ state: 'detached' });
}

/// The record of the user whom the tests log in as.
async function own(rig, parameter) {
  for (let index = 1; index < 20; ++index) {
    const name = (await rig.ctl('get', 'user', index, 'name').catch(() => '')).trim();
    if (name === operator.name) return (await rig.ctl('get', 'user', index, parameter)).trim();
  }
  return assert.fail(`There is no user ${operator.name}`);
}

/// A test on a switch and a page of its own, behind the login.
const onSwitch = (options, run) => async t => {
  const rig = await startRig({ liveliness: 0, ...options.rig });
  const page = await openPage(browser, options.page);
  try {
    await logIn(page, rig.url);
    await run({ rig, page, t });
    assertNoProblems(page);
  } finally {
    await page.context().close();
    await rig.end();
  }
};

test('preferences that are saved are there when the dialog opens again, and in the next session', onSwitch({}, async ({ rig, page }) => {
  await open(page);
  for (const label of labels) assert.equal(await shown(page, label), 'Enabled', label);
  assert.ok(await button(page, 'Save').isDisabled());
  await setting(page, 'Warn When Deleting User').selectOption('Disabled');
  await setting(page, 'Warn When Rebooting Device(s)').selectOption('Disabled');
  await eventually(() => button(page, 'Save').isEnabled(), yes => yes);
  await button(page, 'Save').click();
  await closed(page);
  assert.match(await own(rig, 'enableDeleteUserWarning'), /disabled/);
  assert.match(await own(rig, 'enableResetDevicesWarning'), /disabled/);
  assert.match(await own(rig, 'enableDeleteMonitorWarning'), /enabled/);

  const expected = label => ['Warn When Deleting User', 'Warn When Rebooting Device(s)'].includes(label) ? 'Disabled' : 'Enabled';
  await open(page);
  for (const label of labels) assert.equal(await shown(page, label), expected(label), label);
  await button(page, 'Cancel').click();
  await closed(page);
  await link(page, 'Log out').click();
  await loginForm(page).waitFor();
  await logIn(page, rig.url);
  await open(page);
  for (const label of labels) assert.equal(await shown(page, label), expected(label), label);
}));

test('Cancel and Escape leave the preferences as they were', onSwitch({}, async ({ rig, page }) => {
  await open(page);
  await setting(page, 'Warn When Deleting User').selectOption('Disabled');
  await button(page, 'Cancel').click();
  await closed(page);
  await open(page);
  assert.equal(await shown(page, 'Warn When Deleting User'), 'Enabled');
  await setting(page, 'Warn When Deleting User').selectOption('Disabled');
  await page.keyboard.press('Escape');
  await closed(page);
  assert.match(await own(rig, 'enableDeleteUserWarning'), /enabled/);
}));

test('the keyboard alone opens, changes and saves the preferences', onSwitch({}, async ({ rig, page }) => {
  await link(page, 'Preferences').focus();
  await page.keyboard.press('Enter');
  await dialog(page).waitFor();
  const focused = () => page.evaluate(() => document.activeElement?.getAttribute('aria-label') ?? document.activeElement?.textContent);
  await eventually(focused, what => what === labels[0]);
  await page.keyboard.press('Tab');
  assert.equal(await focused(), labels[1]);
  await page.keyboard.press('ArrowDown');
  await eventually(() => button(page, 'Save').isEnabled(), yes => yes);
  const met = [];
  for (let i = 0; i < 10; ++i) {
    await page.keyboard.press('Tab');
    met.push(await focused());
  }
  assert.deepEqual(met, [...labels.slice(2), 'Cancel', 'Save']);
  await page.keyboard.press('Tab');
  assert.ok(await dialog(page).evaluate(box => box.contains(document.activeElement)), 'the focus stays in the dialog');
  await button(page, 'Save').focus();
  await page.keyboard.press('Enter');
  await closed(page);
  assert.match(await own(rig, 'enableDeleteUserWarning'), /disabled/);
}));

test('somebody with nothing unsaved logs out without a question', onSwitch({}, async ({ page }) => {
  await link(page, 'Log out').click();
  await loginForm(page).waitFor();
}));

for (const brand of ['halden', 'greyfen', 'unknown']) {
  for (const colorScheme of ['light', 'dark']) {
    test(`the preferences of brand ${brand}, ${colorScheme}`, onSwitch({ rig: { brand }, page: { colorScheme } }, async ({ page }) => {
      await open(page);
      await setting(page, 'Warn When Deleting User').selectOption('Disabled');
      await eventually(() => button(page, 'Save').isEnabled(), yes => yes);
      const icon = dialog(page).locator('.titlebar img');
      assert.match(await icon.getAttribute('src'), new RegExp(`themes/${brand}/preferences\\.png$`));
      await eventually(() => icon.evaluate(image => image.naturalWidth), width => width > 0);
      await assertAccessible(page, 'the preferences');
      for (const [width, height] of [[1280, 800], [800, 600]]) {
        await page.setViewportSize({ width, height });
        await assertWellFormed(page, `the preferences at ${width}`);
        await shoot(page, `preferences-${brand}-${colorScheme}-${width}`);
      }
    }));
  }
}
