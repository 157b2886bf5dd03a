// SPDX-License-Identifier: MIT
// Figures of the whole system in a real browser, printed as one JSON object.
import { readFileSync } from 'node:fs';
import { setTimeout as pause } from 'node:timers/promises';
import { dashboardShown, eventually, list, logIn, loginForm, openBrowser, openPage, rows, texts } from '../tests/browser/person.mjs';
import { startRig } from '../tests/browser/rig.mjs';

const limits = {
  first_page_bytes: 60 * 1024, first_page_requests: 6, refresh_bytes_per_cell: 60, unchanged_refresh_bytes: 0,
  resident_at_start_mb: 12, resident_per_dashboard_mb: 1.2,
};
const refreshMs = 5000;
const residentMb = pid => Number(/VmRSS:\s+(\d+)/.exec(readFileSync(`/proc/${pid}/status`, 'utf8'))[1]) / 1024;

/// Counts what goes over the network for a page, from now on.
async function count(page) {
  const net = { bytes: 0, requests: 0, received: [] };
  const devtools = await page.context().newCDPSession(page);
  await devtools.send('Network.enable');
  devtools.on('Network.loadingFinished', e => { net.bytes += e.encodedDataLength; });
  devtools.on('Network.requestWillBeSent', e => { if (!e.request.url.startsWith('data:')) ++net.requests; });
  devtools.on('Network.webSocketCreated', () => { ++net.requests; });
  devtools.on('Network.webSocketFrameReceived', ({ response }) => {
    const bytes = Buffer.byteLength(response.payloadData);
    net.bytes += bytes;
    net.received.push({ at: performance.now(), bytes });
  });
  devtools.on('Network.webSocketFrameSent', ({ response }) => { net.bytes += Buffer.byteLength(response.payloadData); });
  return net;
}

async function firstPage(browser, rig) {
  const page = await openPage(browser);
  const net = await count(page);
  const start = performance.now();
  await page.goto(rig.url);
  await loginForm(page).waitFor();
  const ms = performance.now() - start;
  await page.waitForLoadState('networkidle');
  await pause(500);
  const figures = { first_page_bytes: net.bytes, first_page_requests: net.requests, first_page_ms: Math.round(ms) };
  await page.context().close();
  return figures;
}

const cells = async page => [...await texts(list(page, 'User Sessions')), ...await texts(list(page, 'Events'))].map(row => row.join('\t'));

/// How many cells differ between two readings of the lists, whose rows keep their places.
function changedCells(before, after) {
  let changed = 0;
  for (let row = 0; row < after.length; ++row) {
    const [old, now] = [before[row]?.split('\t') ?? [], after[row].split('\t')];
    changed += now.filter((text, column) => text !== old[column]).length;
  }
  return changed;
}

/// Bytes of the refreshes during some time, and the cells that they changed.
async function refreshes(page, net, times) {
  const before = await cells(page);
  let [bytes, changed, frames, last] = [0, 0, 0, before];
  for (let i = 0; i < times; ++i) {
    const from = net.received.length;
    await eventually(() => net.received.length, now => now > from, 3 * refreshMs).catch(() => {});
    await pause(400);
    const now = await cells(page);
    for (const frame of net.received.slice(from)) { bytes += frame.bytes; ++frames; }
    changed += changedCells(last, now);
    last = now;
  }
  return { bytes: bytes / times, cells: changed / times, frames };
}

async function dashboard(browser, rig) {
  const page = await openPage(browser);
  await logIn(page, rig.url);
  await eventually(() => rows(list(page, 'User Sessions')).count(), rowsNow => rowsNow > 0);
  await pause(6000);
  const net = await count(page);
  const durations = await refreshes(page, net, 3);

  // Without sessions no duration runs, so that nothing at all changes.
  const sessions = (await rig.ctl('list', 'userSession')).trim().split('\n').filter(Boolean);
  for (const session of sessions) await rig.ctl('offline', 'rx', /\d+/.exec(await rig.ctl('get', 'userSession', session, 'rxIndex'))[0]);
  await eventually(() => rows(list(page, 'User Sessions')).count(), rowsNow => rowsNow === 0, 30000).catch(() => {});
  await pause(6000);
  const from = net.received.length;
  await pause(3 * refreshMs + 500);
  const idle = net.received.slice(from).reduce((sum, frame) => sum + frame.bytes, 0);
  await page.context().close();
  return {
    refresh_bytes: Math.round(durations.bytes), refresh_changed_cells: durations.cells,
    refresh_bytes_per_cell: durations.cells ? Math.round(Math.max(0, durations.bytes - 100) / durations.cells) : null,
    unchanged_refresh_bytes: Math.round(idle / 3),
  };
}

async function memory(browser, rig) {
  const start = residentMb(rig.server.pid);
  const first = await openPage(browser);
  await logIn(first, rig.url);
  await pause(1000);
  const one = residentMb(rig.server.pid);
  const more = 10;
  for (let i = 0; i < more; ++i) {
    const page = await openPage(browser);
    await logIn(page, rig.url);
    await dashboardShown(page);
  }
  await pause(1000);
  return {
    resident_at_start_mb: +start.toFixed(1), resident_with_dashboard_mb: +one.toFixed(1),
    resident_per_dashboard_mb: +((residentMb(rig.server.pid) - one) / more).toFixed(2),
  };
}

const browser = await openBrowser();
const figures = {};
try {
  for (const measure of [memory, firstPage, dashboard]) {
    const rig = await startRig({ liveliness: 0 });
    try {
      Object.assign(figures, await measure(browser, rig));
    } finally {
      await rig.end();
    }
  }
} finally {
  await browser.close();
}
console.log(JSON.stringify({ figures, limits }, null, 2));
