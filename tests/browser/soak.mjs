// SPDX-License-Identifier: MIT
// An administrator who clicks at random through the Sessions and the Events tab of a server that was built with the
// address sanitizer, for a long time. Prints the server's resident size each minute and a judgement at the end.
//
//   node soak.mjs [--minutes 30] [--seed 1] [--verbose]        NEVO_BUILD: the build's folder (build/asan)
//
// It fails (status 1) when
// - a sanitizer reports anything, while the server runs or at its end, or the server ends by itself;
// - the page reports an error, lacks a text, or leaves the administrator with nothing to act on for half a minute;
// - the server grows. Freed memory waits in the sanitizer's quarantine and is found again in pieces, so that single
//   readings tell little. Read every two seconds, a minute counts with its median; the growth is the median slope
//   between all pairs of minutes behind the first five, times those minutes; and it may come to no more than
//   2 percent of the size after the first five minutes. A run of less than ten minutes doesn't judge this.
// What is allowed to fill up is full before: the history of events has as many as the switch keeps.
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { fileURLToPath } from 'node:url';
import { parseArgs } from 'node:util';

const { values: options } = parseArgs({ options: {
  minutes: { type: 'string', default: '30' }, seed: { type: 'string', default: '1' }, verbose: { type: 'boolean' },
} });
const minutes = Number(options.minutes);
const seed = Number(options.seed);
if (!(minutes > 0) || !Number.isInteger(seed)) {
  console.error('usage: node soak.mjs [--minutes MINUTES] [--seed NUMBER] [--verbose]');
  process.exit(2);
}
// A small quarantine still catches what is used right after it was freed, and leaves the size to be read. A trace
// of one call for each allocation keeps the sanitizer's own store of them from growing for long.
process.env.NEVO_BUILD ??= fileURLToPath(new URL('../../build/asan', import.meta.url));
process.env.ASAN_OPTIONS = 'quarantine_size_mb=4:thread_local_quarantine_size_kb=64:malloc_context_size=1:detect_leaks=1:'
  + 'detect_stack_use_after_return=0:strict_string_checks=1:allocator_release_to_os_interval_ms=1000';
process.env.UBSAN_OPTIONS = 'print_stacktrace=1:halt_on_error=1';
const { fillLogin, loginForm, openBrowser, openPage, operator, tab } = await import('./person.mjs');
const { startRig } = await import('./rig.mjs');

const warmUpMinutes = 5, fewestMinutes = 10, mostGrowth = 0.02;
const longestStuckMs = 30000;
const downloads = mkdtempSync(join(tmpdir(), 'soak-'));

// ---- Chance, the same for the same seed

let state = seed >>> 0;
function random() {
  state = (state + 0x6d2b79f5) >>> 0;
  let t = Math.imul(state ^ (state >>> 15), state | 1);
  t ^= t + Math.imul(t ^ (t >>> 7), t | 61);
  return ((t ^ (t >>> 14)) >>> 0) / 4294967296;
}
const below = count => Math.floor(random() * count);
const oneOf = list => list[below(list.length)];

// ---- What the administrator can do. Whatever is clicked may be gone by then: the page lives.

const modifiers = [[], [], [], ['Control'], ['Shift']];
const sizes = [[1280, 800], [1024, 640], [1600, 900], [820, 700], [1280, 800]];
const keys = ['ArrowDown', 'ArrowUp', 'PageDown', 'PageUp', 'Home', 'End', 'Space', 'Shift+ArrowDown', 'Control+a'];
const warnings = ['enableDisconnectSessionWarning', 'enableClearEventHistoryWarning', 'enableLogoutUserWarning'];
const soon = { timeout: 1500 };

const topDialog = page => page.locator('.Wt-dialog:visible').last();
const views = page => page.locator('.Wt-tableview:visible');

async function clickOneOf(locator, how = {}) {
  const count = await locator.count();
  if (count === 0) return false;
  await locator.nth(below(count)).click({ ...soon, ...how });
  return true;
}

async function showTab(page) {
  await tab(page, oneOf(['Sessions', 'Sessions', 'Events', 'Events', 'Dashboard'])).click(soon);
}
async function selectRow(page) {
  await clickOneOf(page.locator('.Wt-tableview:visible .Wt-tv-row'), { modifiers: oneOf(modifiers), position: { x: 40, y: 8 } });
}
async function sort(page) {
  await clickOneOf(page.locator('.Wt-tableview:visible [role=columnheader]'), { position: { x: 20, y: 10 } });
}
async function act(page) {
  await clickOneOf(page.locator('button:visible:enabled'));
}
async function download(page) {
  const link = page.locator('a:visible', { hasText: /^Save$/ });
  if (await link.count() === 0) return;
  const [file] = await Promise.all([page.waitForEvent('download', { timeout: 20000 }), link.first().click(soon)]);
  const path = join(downloads, 'history.csv');
  await file.saveAs(path);
  await file.delete();
  const lines = readFileSync(path, 'utf8').split('\n').slice(0, -1);
  const broken = lines.find(line => !/^"[^"]*","[^"]*","[^"]*","[^"]*"$/.test(line));
  if (broken !== undefined) throw new Finding(`The download has the line ${broken}`);
}
async function scroll(page) {
  const lists = page.locator('.Wt-tableview:visible .Wt-tv-body');
  const count = await lists.count();
  if (count > 0)
    await lists.nth(below(count)).evaluate((body, share) => { body.scrollTop = body.scrollHeight * share; }, random(), soon);
}
async function useKeys(page) {
  const lists = views(page);
  const count = await lists.count();
  if (count === 0) return;
  await lists.nth(below(count)).focus(soon);
  for (let i = below(5); i >= 0; --i) await page.keyboard.press(oneOf(keys));
}
async function resize(page) {
  const [width, height] = oneOf(sizes);
  await page.setViewportSize({ width, height });
}
async function drag(page) {
  const handles = page.locator('.Wt-hrh2:visible, .Wt-vrh2:visible');
  const count = await handles.count();
  const box = count > 0 ? await handles.nth(below(count)).boundingBox(soon) : null;
  if (!box) return;
  await page.mouse.move(box.x + box.width / 2, box.y + box.height / 2);
  await page.mouse.down();
  await page.mouse.move(box.x + (random() - 0.5) * 200, box.y + (random() - 0.5) * 200, { steps: 4 });
  await page.mouse.up();
}
async function fold(page) {
  await clickOneOf(page.locator('.nevo-context-panel-title-button-collapsing img:visible, .nevo-nav-accordion-title:visible'));
}
async function rest() {
  await pause(below(7000));
}
async function reload(page) {
  await page.reload();
}
async function logOut(page) {
  await page.locator('.nevo-logout-button:visible').click(soon);
}

// The higher the weight, the more often.
const actions = [
  [4, showTab], [14, selectRow], [4, sort], [9, act], [1, download], [4, scroll], [4, useKeys], [2, resize], [2, drag],
  [2, fold], [2, rest], [0.6, reload], [0.6, logOut],
];
const wholeWeight = actions.reduce((sum, [weight]) => sum + weight, 0);
function chooseAction() {
  let point = random() * wholeWeight;
  return actions.find(([weight]) => (point -= weight) < 0)[1];
}

async function actInDialog(page) {
  const dialog = topDialog(page);
  const chance = random();
  if (chance < 0.12) await page.keyboard.press('Escape');
  else if (chance < 0.4 && await clickOneOf(dialog.locator('.Wt-tv-row, tbody tr[aria-selected], tr:visible td'))) return;
  else if (chance < 0.5 && await clickOneOf(dialog.locator('input[type=checkbox]:visible'))) return;
  else if (chance < 0.58 && await dialog.locator('select:visible').count() > 0) {
    const select = dialog.locator('select:visible').first();
    await select.selectOption({ index: below(await select.locator('option').count()) }, soon);
  } else if (!await clickOneOf(dialog.locator('button:visible:enabled'))) await page.keyboard.press('Escape');
}

/// Walks through the dialog for a new session as somebody who means it.
async function connectSession(page) {
  await tab(page, 'Sessions').click(soon);
  const cell = page.getByRole('button', { name: 'Connect', exact: true });
  if (!await cell.first().isVisible()) await page.getByText('Connect Session', { exact: true }).click(soon);
  await cell.first().click(soon);
  const dialog = topDialog(page);
  await dialog.waitFor({ timeout: 5000 });
  const lists = dialog.locator('.Wt-tableview, table[role=grid], [role=listbox], [role=grid]');
  for (let i = 0; i < 3; ++i) {
    const rowsOf = lists.nth(i).locator('.Wt-tv-row, [role=row]:not(:has([role=columnheader])), [role=option]');
    await rowsOf.first().waitFor({ timeout: 3000 });
    await clickOneOf(rowsOf);
    await pause(150);
  }
  await dialog.getByRole('button', { name: 'Connect' }).click(soon);
}

// ---- What goes wrong

class Finding extends Error {}

const isPlaywrights = error => !(error instanceof Finding);
const reports = /AddressSanitizer|LeakSanitizer|UndefinedBehaviorSanitizer|runtime error:|Assertion .* failed|terminate called/;

function checkServer(rig) {
  if (reports.test(rig.output)) throw new Finding('A sanitizer has something to say.');
  if (!rig.serverIsAlive) throw new Finding('The server has ended.');
  if (rig.starts > 1) throw new Finding('The server had to be started again.');
  // Only reports are of interest; the log of half an hour is not to be kept.
  if (rig.output.length > 4e6) rig.output = rig.output.slice(-1e6);
}

async function checkPage(page) {
  const problems = page.problems.filter(text => !/net::ERR_|Failed to load resource/.test(text));
  if (problems.length > 0) throw new Finding(`The page complains: ${problems[0]}`);
  const text = await page.evaluate(() => document.body.innerText).catch(() => '');
  const missing = /\[RS\w+\]\S*|\?\?\S+\?\?/.exec(text);
  if (missing) throw new Finding(`A text is missing: ${missing[0]}`);
}

// ---- The memory

function residentMb(pid) {
  return Number(/VmRSS:\s+(\d+)/.exec(readFileSync(`/proc/${pid}/status`, 'utf8'))[1]) / 1024;
}
function median(values) {
  const sorted = [...values].sort((a, b) => a - b);
  return sorted[Math.floor(sorted.length / 2)];
}
/// How much the size grew over the minutes, by the median of the slopes between all pairs of them.
function growth(sizesByMinute) {
  const slopes = [];
  for (let i = 0; i < sizesByMinute.length; ++i)
    for (let k = i + 1; k < sizesByMinute.length; ++k) slopes.push((sizesByMinute[k] - sizesByMinute[i]) / (k - i));
  return median(slopes) * (sizesByMinute.length - 1);
}

// ---- The run

const done = {};
function note(action, failed) {
  const one = done[action] ??= { times: 0, missed: 0 };
  ++one.times;
  if (failed) ++one.missed;
  if (options.verbose) console.log(`  ${action}${failed ? `: ${failed.message.split('\n')[0]}` : ''}`);
}

async function attempt(name, page, action) {
  try {
    await action(page);
    note(name);
  } catch (error) {
    if (!isPlaywrights(error)) throw error;
    note(name, error);
  }
}

/// One step of the administrator. False if there was nothing to act on.
async function step(page) {
  const dialogs = await page.locator('.Wt-dialog:visible').count().catch(() => 0);
  // A refused login shows a message over the form.
  if (dialogs === 1 && await loginForm(page).isVisible().catch(() => false)) {
    await attempt('log in', page, async () => {
      await fillLogin(page, random() < 0.05 ? { ...operator, password: 'wrong' } : operator);
      await page.getByRole('button', { name: 'Log In' }).click(soon);
      await pause(300);
    });
    return true;
  }
  if (dialogs > 0) {
    await attempt('dialog', page, actInDialog);
    return true;
  }
  if (!await tab(page, 'Dashboard').isVisible().catch(() => false)) {
    await pause(300);
    return false;
  }
  const action = random() < 0.03 ? connectSession : chooseAction();
  await attempt(action.name, page, action);
  return true;
}

async function restoreWarnings(rig) {
  // Whoever ticked "don't show again" gets the questions back.
  for (const warning of warnings) await rig.ctl('set', 'user', 2, warning, 'enabled');
}

async function run(rig, page, sizesByMinute) {
  const begin = Date.now();
  let readings = [], lastReading = 0, lastActive = Date.now(), count = 0;
  for (let minute = 1; minute <= minutes;) {
    const now = Date.now();
    if (now - lastReading >= 2000) {
      lastReading = now;
      checkServer(rig);
      readings.push(residentMb(rig.server.pid));
    }
    if (now >= begin + minute * 60000) {
      sizesByMinute.push(median(readings));
      console.log(`minute ${minute}: ${count} actions, ${sizesByMinute.at(-1).toFixed(1)} MB resident`);
      readings = [];
      ++minute;
      await restoreWarnings(rig);
    }
    if (await step(page)) lastActive = Date.now();
    else if (Date.now() - lastActive > longestStuckMs) throw new Finding('The page shows nothing to act on.');
    if (++count % 20 === 0) await checkPage(page);
    await pause(below(120));
  }
}

function judge(sizesByMinute) {
  if (sizesByMinute.length < fewestMinutes) {
    console.log(`Growth is judged from ${fewestMinutes} minutes on.`);
    return;
  }
  const settled = sizesByMinute.slice(warmUpMinutes);
  const grown = growth(settled);
  const allowed = settled[0] * mostGrowth;
  console.log(`After the first ${warmUpMinutes} minutes the server grew by ${grown.toFixed(2)} MB `
    + `of ${settled[0].toFixed(1)} MB; ${allowed.toFixed(2)} MB are allowed.`);
  if (grown > allowed) throw new Finding('The server grows.');
}

async function soak() {
  const rig = await startRig({ liveliness: 20, seed, store: ['--alerts', '2000'] });
  const browser = await openBrowser();
  const sizesByMinute = [];
  let ended = false;
  try {
    const page = await openPage(browser, { acceptDownloads: true });
    await page.goto(rig.url);
    await run(rig, page, sizesByMinute);
    await browser.close();
    // The end of the process is where leaks are told.
    await rig.stopServer();
    ended = true;
    if (reports.test(rig.output)) throw new Finding('A sanitizer has something to say at the end.');
    judge(sizesByMinute);
  } catch (error) {
    const at = rig.output.search(reports);
    if (at >= 0) console.error(rig.output.slice(Math.max(at - 200, 0), at + 8000));
    else if (error instanceof Finding && !ended) console.error(rig.output.slice(-2000));
    throw error;
  } finally {
    await browser.close().catch(() => {});
    await rig.end().catch(() => {});
    rmSync(downloads, { recursive: true, force: true });
  }
}

try {
  console.log(`seed ${seed}, ${minutes} minutes`);
  await soak();
  console.log(Object.entries(done).map(([name, { times, missed }]) => `${name} ${times - missed}/${times}`).join(', '));
  console.log('Nothing found.');
} catch (error) {
  console.log(Object.entries(done).map(([name, { times, missed }]) => `${name} ${times - missed}/${times}`).join(', '));
  console.error(error instanceof Finding ? `FOUND: ${error.message}` : error);
  process.exitCode = 1;
}
