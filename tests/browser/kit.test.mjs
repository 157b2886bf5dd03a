// SPDX-License-Identifier: MIT
// The bound widgets, as a person edits live records with them: one, or several at once.
import assert from 'node:assert/strict';
import { execFile, spawn } from 'node:child_process';
import { cpSync, existsSync, mkdirSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { promisify } from 'node:util';
import { assertAccessible, assertNoProblems, eventually, openBrowser, openPage, shoot } from './person.mjs';
import { freePort, listening } from './ports.mjs';
import { openRelay } from './relay.mjs';

const root = fileURLToPath(new URL('../..', import.meta.url));
const build = process.env.NEVO_BUILD ?? join(root, 'build/release');
const program = join(build, 'tests/kit_demo');
const folder = mkdtempSync(join(tmpdir(), 'kit-'));
const store = join(folder, 'store');
let browser, server, relay, simulator, url, output = '';

before(async () => {
  assert.ok(existsSync(program), `There is no demonstration at ${program}; build it first.`);
  mkdirSync(join(folder, 'resources'));
  for (const part of ['themes', 'msgs-general.xml'])
    cpSync(join(root, 'resources', part), join(folder, 'resources', part), { recursive: true });
  simulator = spawn(join(build, 'zel/zelsim'), ['--socket', store, '--database', ':memory:', '--settings', folder,
    '--icons', folder, '--liveliness', '0', '--password-rounds', '1000'], { stdio: ['ignore', 'pipe', 'inherit'] });
  await new Promise((resolve, reject) => {
    simulator.stdout.on('data', text => String(text).includes('ready') && resolve());
    simulator.once('error', reject).once('exit', () => reject(new Error('The simulated switch has ended.')));
  });
  relay = await openRelay(join(folder, 'relay'), store);
  const port = await freePort();
  server = spawn(program, [`--docroot=${folder}`, '--http-address=127.0.0.1', `--http-port=${port}`, '--accesslog=-'],
    { env: { ...process.env, NEVO_STORE_SOCKET: join(folder, 'relay') } });
  for (const stream of [server.stdout, server.stderr]) stream.on('data', text => { output += text; });
  await listening(port, () => server.exitCode === null);
  url = `http://127.0.0.1:${port}/`;
  browser = await openBrowser();
});

after(async () => {
  await browser?.close();
  const alive = server?.exitCode === null;
  server?.kill();
  await relay?.end();
  simulator?.kill();
  rmSync(folder, { recursive: true, force: true });
  assert.ok(alive, `The demonstration died.\n${output}`);
});

async function ctl(...words) {
  const { stdout } = await promisify(execFile)(join(build, 'zel/zelctl'), words.map(String),
    { env: { ...process.env, NEVO_STORE_SOCKET: store } });
  return stdout.replace(/\n$/, '');
}

/// The receivers that the page edits, as every test finds them.
const receivers = {
  1: { name: 'Desk 1', notes: 'first', sessionInactivityTimeout: 10, audioControl: 'enabled', usbLogLevel: 'info', location: 'fe80::1' },
  2: { name: 'Desk 2', notes: 'other', sessionInactivityTimeout: 10, audioControl: 'disabled', usbLogLevel: 'info', location: 'fe80::1' },
  3: { name: 'Desk 3', notes: 'other', sessionInactivityTimeout: 20, audioControl: 'enabled', usbLogLevel: 'debug', location: 'fe80::3' },
};

/// Runs `act` with a fresh page over fresh records.
function onKit(act, options = {}) {
  return async () => {
    for (const [index, parameters] of Object.entries(receivers))
      for (const [name, value] of Object.entries(parameters)) await ctl('set', 'rx', index, name, value);
    const page = await openPage(browser, options);
    try {
      await page.goto(url);
      await page.getByText('End of the kit').waitFor();
      relay.forget();
      await act(page);
      assertNoProblems(page, /^Applying inline style|404 \(Not Found\)$/);
    } finally {
      await page.context().close();
    }
  };
}

const section = (page, name) => page.getByRole('region', { name, exact: true });
/// A field by its class and parameter: the one that reads by itself, or the one of the table that is read at once.
const field = (page, label, atOnce = false, area = 'Receivers') =>
  section(page, area).getByLabel(label, { exact: true }).nth(atOnce ? 1 : 0);
const save = (page, area = 'Receivers') => section(page, area).getByRole('button', { name: 'Save' });
const cancel = (page, area = 'Receivers') => section(page, area).getByRole('button', { name: 'Cancel' });
const record = (page, number) => page.getByRole('checkbox', { name: `Record ${number}`, exact: true });
const value = locator => locator.inputValue();
const becomes = (read, wanted, milliseconds) => eventually(read, seen => seen === wanted, milliseconds);

const line = 'WLineEditZel name', area = 'WTextAreaZel notes', number = 'WLineEditUInt32Zel sessionInactivityTimeout';
const box = 'WCheckBoxZel audioControl', combo = 'WComboBoxZel usbLogLevel', link = 'WAnchorZel location';
/// A link is named by its own text; it stands beside its label.
const linkBeside = (page, label, atOnce = false) =>
  section(page, 'Receivers').getByRole('row', { name: label }).nth(atOnce ? 1 : 0).locator('a').first();
const chosen = locator => locator.evaluate(select => select.options[select.selectedIndex].textContent);

// ---- reading

test('every widget shows its value of one record, read by itself or at once', onKit(async page => {
  for (const atOnce of [false, true]) {
    await becomes(() => value(field(page, line, atOnce)), 'Desk 1');
    assert.equal(await value(field(page, area, atOnce)), 'first');
    assert.equal(await value(field(page, number, atOnce)), '10');
    assert.equal(await field(page, box, atOnce).isChecked(), true);
    assert.equal(await chosen(field(page, combo, atOnce)), 'Information');
    assert.equal(await field(page, 'WTextZel eid', atOnce).textContent(), await ctl('get', 'rx', 1, 'eid'));
    assert.equal(await field(page, 'WUInt32Zel sharingInactivityTimeout', atOnce).textContent(), '2');
    assert.equal(await linkBeside(page, link, atOnce).textContent(), 'fe80::1');
    assert.equal(await linkBeside(page, link, atOnce).getAttribute('href'), 'https://[fe80::1]');
    assert.equal(await linkBeside(page, link, atOnce).getAttribute('target'), '_blank');
  }
  await assertAccessible(page, 'the kit');
  await shoot(page, 'kit');
}));

test('of several records the values show on which they agree, and blanks where they differ', onKit(async page => {
  await record(page, 2).check();
  for (const atOnce of [false, true]) {
    await becomes(() => value(field(page, line, atOnce)), '');
    assert.equal(await value(field(page, area, atOnce)), '');
    assert.equal(await value(field(page, number, atOnce)), '10');
    assert.equal(await chosen(field(page, combo, atOnce)), 'Information');
    assert.equal(await linkBeside(page, link, atOnce).textContent(), 'fe80::1');
  }
  assert.equal(await field(page, box).evaluate(input => input.indeterminate), true);
  assert.equal(await field(page, box, true).evaluate(input => input.indeterminate), false);
  assert.equal(await field(page, box, true).isChecked(), false);
  assert.ok(await save(page).isDisabled());
  await record(page, 3).check();
  await becomes(() => value(field(page, number)), '');
  for (const atOnce of [false, true]) {
    assert.equal(await chosen(field(page, combo, atOnce)), '');
    assert.equal(await field(page, combo, atOnce).locator('option').count(), 4);
  }
  await shoot(page, 'kit-several');
  await record(page, 3).uncheck();
  await becomes(() => value(field(page, number)), '10');
  assert.equal(await field(page, combo).locator('option').count(), 3);
}));

test('a table that is read at once asks for all records in one request', onKit(async page => {
  await record(page, 2).check();
  await record(page, 3).check();
  await becomes(() => value(field(page, number, true)), '');
  await field(page, line).focus(); // no refresh meanwhile
  const asked = relay.requests.filter(({ resource, query }) => resource === 'rx' && query);
  const atOnce = asked.filter(({ select }) => !select);
  assert.deepEqual(atOnce.at(-1).query, { index: [1, 2, 3] });
  const own = asked.filter(({ select, query }) => select?.[0] === 'name' && query.index === 3);
  assert.deepEqual(own, [], 'no record is read behind the first that differs');
}));

// ---- typing

test('typing is noticed without leaving the field', onKit(async page => {
  await becomes(() => value(field(page, line)), 'Desk 1');
  for (const label of [line, area, number]) {
    await field(page, label).click();
    await page.keyboard.press('End');
    await page.keyboard.type('7');
    await becomes(() => save(page).isEnabled(), true);
    assert.ok(await field(page, label).evaluate(element => element === document.activeElement));
    await cancel(page).click();
    await becomes(() => save(page).isDisabled(), true);
  }
}));

test('a refresh never disturbs typing', onKit(async page => {
  await becomes(() => value(field(page, line)), 'Desk 1');
  await field(page, line).click();
  await page.keyboard.press('End');
  let typed = 'Desk 1';
  for (let round = 0; round < 5; ++round) {
    await ctl('set', 'rx', 1, 'name', `Changed ${round}`);
    await page.keyboard.type(` ${round}`, { delay: 250 });
    typed += ` ${round}`;
    assert.equal(await value(field(page, line)), typed);
  }
  await field(page, area).focus();
  await ctl('set', 'rx', 1, 'sessionInactivityTimeout', 77);
  await page.locator('h1').click();
  // The rest of the page follows the store; the edit stays.
  await becomes(() => value(field(page, number)), '77');
  assert.equal(await value(field(page, line)), typed);
}));

test('a refresh shows what others have written', onKit(async page => {
  await becomes(() => value(field(page, line)), 'Desk 1');
  await ctl('set', 'rx', 1, 'name', 'Renamed');
  await ctl('set', 'rx', 1, 'usbLogLevel', 'debug');
  for (const atOnce of [false, true]) {
    await becomes(() => value(field(page, line, atOnce)), 'Renamed');
    await becomes(() => chosen(field(page, combo, atOnce)), 'Events');
  }
  assert.ok(await save(page).isDisabled());
}));

// ---- saving

test('Save sends exactly what was changed, of one record', onKit(async page => {
  await becomes(() => value(field(page, line)), 'Desk 1');
  await field(page, line).fill('New name');
  await field(page, number).fill('30');
  await becomes(() => save(page).isEnabled(), true);
  relay.forget();
  await save(page).click();
  await becomes(() => save(page).isDisabled(), true);
  assert.deepEqual(relay.writes(), [{ resource: 'rx', index: 1, name: 'New name', sessionInactivityTimeout: 30 }]);
  assert.equal(await ctl('get', 'rx', 1, 'name'), 'New name');
  await becomes(() => value(field(page, line, true)), 'New name');
}));

test('Save sends every kind of value, from the table that is read at once as well', onKit(async page => {
  for (const atOnce of [false, true]) {
    await becomes(() => value(field(page, line, atOnce)), atOnce ? 'by itself' : 'Desk 1');
    await field(page, line, atOnce).fill(atOnce ? 'at once' : 'by itself');
    await field(page, area, atOnce).fill(`two\nlines ${atOnce}`);
    await field(page, number, atOnce).fill(atOnce ? '6' : '5');
    await field(page, box, atOnce).setChecked(atOnce);
    await field(page, combo, atOnce).selectOption(atOnce ? 'None' : 'Events');
    await page.locator('h1').click();
    await becomes(() => save(page).isEnabled(), true);
    relay.forget();
    await save(page).click();
    await becomes(() => save(page).isDisabled(), true);
    const { name, audioControl, usbLogLevel, notes, sessionInactivityTimeout, index, ...rest } = relay.writes()[0];
    assert.deepEqual([relay.writes().length, index, name, audioControl, usbLogLevel, rest],
      [1, 1, atOnce ? 'at once' : 'by itself', atOnce, atOnce ? 'none' : 'debug', { resource: 'rx' }]);
    assert.deepEqual([notes, sessionInactivityTimeout], [`two\nlines ${atOnce}`, atOnce ? 6 : 5]);
  }
}));

test('Save sends the same to each of several records, and nothing of the fields that were left blank', onKit(async page => {
  await record(page, 2).check();
  await record(page, 3).check();
  await becomes(() => value(field(page, line)), '');
  await field(page, area).fill('the same');
  await field(page, box).check();
  await page.locator('h1').click();
  await becomes(() => save(page).isEnabled(), true);
  relay.forget();
  await save(page).click();
  await becomes(() => save(page).isDisabled(), true);
  assert.deepEqual(relay.writes(), [1, 2, 3].map(index => ({ resource: 'rx', index, notes: 'the same', audioControl: true })));
  await becomes(() => value(field(page, area)), 'the same');
  assert.equal(await value(field(page, line)), '');
  for (const index of [1, 2, 3]) assert.equal(await ctl('get', 'rx', index, 'name'), `Desk ${index}`);
}));

test('a combo left on its blank item is not sent', onKit(async page => {
  await record(page, 3).check();
  await becomes(() => chosen(field(page, combo)), '');
  await field(page, combo).selectOption('None');
  await field(page, combo).selectOption('');
  await field(page, area).fill('the same');
  await page.locator('h1').click();
  await becomes(() => save(page).isEnabled(), true);
  relay.forget();
  await save(page).click();
  await becomes(() => save(page).isDisabled(), true);
  assert.deepEqual(relay.writes(), [1, 3].map(index => ({ resource: 'rx', index, notes: 'the same' })));
}));

test('Save of a part with one record sends one request without an index', onKit(async page => {
  await field(page, 'WLineEditZel nevoCustomHelpLink', false, 'System').fill('https://help.example/');
  await becomes(() => save(page, 'System').isEnabled(), true);
  relay.forget();
  await save(page, 'System').click();
  await becomes(() => save(page, 'System').isDisabled(), true);
  assert.deepEqual(relay.writes(), [{ resource: 'systemGlobals', nevoCustomHelpLink: 'https://help.example/' }]);
}));

// ---- cancelling

test('Cancel restores what the store holds and sends nothing', onKit(async page => {
  await becomes(() => value(field(page, line)), 'Desk 1');
  await field(page, line).fill('never saved');
  await field(page, area).fill('nor this');
  await field(page, box).uncheck();
  await field(page, combo).selectOption('Events');
  await field(page, number).fill('99');
  await becomes(() => cancel(page).isEnabled(), true);
  await page.locator('h1').click();
  relay.forget();
  await cancel(page).click();
  await becomes(() => value(field(page, line)), 'Desk 1');
  assert.equal(await value(field(page, area)), 'first');
  assert.equal(await field(page, box).isChecked(), true);
  assert.equal(await chosen(field(page, combo)), 'Information');
  assert.equal(await value(field(page, number)), '10');
  assert.ok(await save(page).isDisabled());
  assert.ok(await cancel(page).isDisabled());
  assert.deepEqual(relay.writes(), []);
}));

// ---- the typed fields and choices

/// What every test of them finds: the same in records 1 to 3.
const standard = {
  rx: { modeAllowed: 'share_mode', autoConnectMode: 'share_mode', audioControl: 'enabled', usbMode: 'all_devices', usbLogLevel: 'none',
    autoLoginUserIndex: 2, autoConnectTxEid: '', description: '' },
  tx: { wakeOnLanMacAddress: '', location: '10.0.0.1', description: '::1', notes: 'host.example', iconIndex: 1, trafficSetting: 'usb_priority' },
  swx: { location: 'en', description: 'none', notes: 'none' },
};
const fill = text => locator => locator.fill(text);
const select = option => locator => locator.selectOption(option);
const selectKey = (which, option) => locator => locator.locator('select').nth(which).selectOption(option);
/// Section, field, what a person does, and the parameters that are sent for it.
const edits = [
  ['Choices of receivers', 'WAccessMode modeAllowed', select('Private only'), { modeAllowed: 'private_mode' }],
  ['Choices of receivers', 'WAutoConnMode autoConnectMode', select('Private'), { autoConnectMode: 'private_mode' }],
  ['Choices of receivers', 'WEnableDisable audioControl', select('Disabled'), { audioControl: 'disabled' }],
  ['Choices of receivers', 'WUsbMode usbMode', select('Keyboard and mouse only'), { usbMode: 'keyboard_mouse_only' }],
  ['Choices of receivers', 'WUsbLogLevel usbLogLevel', select({ index: 2 }), { usbLogLevel: 'debug' }],
  ['Choices of receivers', 'WUsr autoLoginUserIndex', select('hlindqvist'), { autoLoginUserIndex: 3 }],
  ['Choices of receivers', 'WTargetAny autoConnectTxEid', select({ index: 1 }), async () => ({ autoConnectTxEid: await ctl('get', 'tx', 2, 'eid') })],
  ['Choices of receivers', 'WComboBoxZelDynamic description', select('Switch default'), { description: 'Switch default' }],
  ['Targets', 'WTarget autoConnectTxEid', select({ index: 2 }), async () => ({ autoConnectTxEid: await ctl('get', 'tx', 3, 'eid') })],
  ['Transmitters', 'WMacAddr wakeOnLanMacAddress', fill('00:11:22:33:44:55'), { wakeOnLanMacAddress: '00:11:22:33:44:55' }],
  ['Transmitters', 'WIpV4Addr location', fill('192.168.0.9'), { location: '192.168.0.9' }],
  ['Transmitters', 'WIpV6Addr description', fill('fe80::9'), { description: 'fe80::9' }],
  ['Transmitters', 'WHostAddr notes', fill('other.example'), { notes: 'other.example' }],
  ['Transmitters', 'WKeyCode iconIndex', fill('9'), { iconIndex: 9 }],
  ['Transmitters', 'WTrafficPriority trafficSetting', select('Video'), { trafficSetting: 'video_priority' }],
  ['Switches', 'WLanguage location', select('German'), { location: 'de' }],
  ['Switches', 'WOsdHotkeyFunc description', select('Enumerate mouse'), { description: 'enumerate_mouse' }],
  ['Switches', 'WWakeOnConnect notes', select('Send mouse activity'), { notes: 'mouse_move' }],
  ['Network', 'WIpV4ConfigMethod ipv4ConfMethod', select('Zeroconf'), { network: { ipv4: { ipv4ConfMethod: 'zeroconf' } } }],
  ['Network', 'WIpV6ConfigMethod ipv6ConfMethod', select({ index: 1 }), { network: { ipv6: { ipv6ConfMethod: 'dhcp_info_only' } } }],
  ['Users', 'WOsdActivateHotkey hotKey', select('Alt + Alt'), { keySettings: { osdHotKey: { hotKey: 'alt_alt' } } }],
  ['Users', 'WOsdActivateHotkeyCustom customKeys', selectKey(1, '5 - B'),
    { keySettings: { osdHotKey: { customKeys: { sequence: 'BQA=', length: 1 } } } }],
];
const resources = { 'Choices of receivers': 'rx', Targets: 'rx', Transmitters: 'tx', Switches: 'swx', Network: 'swx', Users: 'user' };

for (const several of [false, true])
  test(`each typed field and choice sends its parameter alone to ${several ? 'each of several records' : 'one record'}`, onKit(async page => {
    for (const [resource, parameters] of Object.entries(standard))
      for (const index of [1, 2, 3])
        for (const [name, value] of Object.entries(parameters)) await ctl('set', resource, index, name, value);
    const indexes = several ? [1, 2, 3] : [1];
    for (const index of indexes.slice(1)) await record(page, index).check();
    await becomes(() => value(field(page, 'WIpV4Addr location', false, 'Transmitters')), '10.0.0.1');
    await becomes(() => chosen(field(page, 'WLanguage location', false, 'Switches')), 'English');
    await becomes(() => chosen(field(page, 'WAccessMode modeAllowed', false, 'Choices of receivers')), 'Shared only');
    for (const [area, label, act, expected] of edits) {
      await act(field(page, label, false, area));
      await page.locator('h1').click();
      await eventually(() => save(page, area).isEnabled(), enabled => enabled);
      relay.forget();
      await save(page, area).click();
      await eventually(() => save(page, area).isDisabled(), disabled => disabled);
      const parameters = typeof expected === 'function' ? await expected() : expected;
      assert.deepEqual(relay.writes(), indexes.map(index => ({ resource: resources[area], index, ...parameters })), label);
    }
    await shoot(page, `kit-typed-${indexes.length}`);
  }));

test('a field with a rule keeps Save off while it is broken', onKit(async page => {
  await ctl('set', 'systemGlobals', 0, 'masterSwitchEid', 'AAAAAA-000001');
  const area = 'Addresses of the system', eid = field(page, 'WEid masterSwitchEid', false, area);
  await becomes(() => value(eid), 'AAAAAA-000001');
  await eid.fill('AAAAAA-00000');
  await becomes(() => cancel(page, area).isEnabled(), true);
  assert.ok(await save(page, area).isDisabled());
  await eid.fill('BBBBBB-000002');
  await becomes(() => save(page, area).isEnabled(), true);
  relay.forget();
  await save(page, area).click();
  await becomes(() => save(page, area).isDisabled(), true);
  assert.deepEqual(relay.writes(), [{ resource: 'systemGlobals', masterSwitchEid: 'BBBBBB-000002' }]);
}));

test('what is only shown is there: times, resolutions, roles', onKit(async page => {
  await becomes(() => chosen(field(page, 'WCascadeMode mode', false, 'Switches')), 'Switch is a cascade master');
  assert.match(await field(page, 'WNtpTime currentSysTime', false, 'Switches').textContent(), /^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d UTC$/);
  assert.equal(await field(page, 'WNtpStatus ntpStatus', false, 'Switches').textContent(), 'Inactive');
  assert.match(await field(page, 'WVideoResolution', false, 'Choices of receivers').textContent(), /^\d+ x \d+$/);
  assert.match(await field(page, 'WUInt32Zel scaled', false, 'Choices of receivers').textContent(), /^\d+\.\d$/);
  assert.equal(await field(page, 'WKeyCodeSelector', false, 'Addresses of the system').locator('option').count(), 252);
}));
