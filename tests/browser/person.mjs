// SPDX-License-Identifier: MIT
// A browser, and what a person does and sees in it.
import assert from 'node:assert/strict';
import { readFileSync, mkdirSync } from 'node:fs';
import { createRequire } from 'node:module';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const results = fileURLToPath(new URL('results/', import.meta.url));
const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

export const operator = { name: 'operator', password: 'operator-1' };
export const newcomer = { name: 'admin', password: 'admin' };

export function openBrowser() {
  return chromium.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking', '--disable-component-update',
      '--disable-sync', '--force-color-profile=srgb'],
  });
}

/// A page of its own in a fresh profile. `page.problems` collects what the browser complains of.
export async function openPage(browser, options = {}) {
  const context = await browser.newContext({
    ignoreHTTPSErrors: true, viewport: { width: 1280, height: 800 }, colorScheme: 'light', reducedMotion: 'reduce', ...options,
  });
  const page = await context.newPage();
  page.setDefaultTimeout(10000);
  page.problems = [];
  page.on('pageerror', error => page.problems.push(String(error)));
  page.on('console', message => message.type() === 'error' && page.problems.push(message.text()));
  return page;
}

/// No error of a script, no forbidden or missing resource; `except` takes what a test brought about by itself.
export function assertNoProblems(page, except = /^$/) {
  assert.deepEqual(page.problems.filter(text => !except.test(text)), []);
}

export const loginForm = page => page.locator('.Wt-dialog', { has: page.getByRole('button', { name: 'Log In' }) });

export async function fillLogin(page, { name, password }) {
  await page.getByRole('textbox', { name: 'Username' }).fill(name);
  await page.getByRole('textbox', { name: 'Password' }).fill(password);
}

/// Goes to the front door and through it, to the dashboard.
export async function logIn(page, url, who = operator) {
  await page.goto(url);
  await fillLogin(page, who);
  await page.getByRole('button', { name: 'Log In' }).click();
  await dashboardShown(page);
}

export const tab = (page, name) => page.locator('.Wt-tabs a', { hasText: name });
/// A folding panel by its title, and the list in it.
export const panel = (page, title) =>
  page.locator('.nevo-context-panel', { has: page.locator('.nevo-context-panel-title-button-collapsing', { hasText: title }) });
export const list = (page, title) => panel(page, title).locator('.Wt-tableview');
export const rows = table => table.locator('.Wt-tv-row');

export async function dashboardShown(page) {
  await tab(page, 'Dashboard').waitFor();
  await list(page, 'User Sessions').waitFor();
}

/// The texts of a list as it shows them, row by row from the top.
export async function texts(table) {
  return table.evaluate(view => [...view.querySelectorAll('.Wt-tv-row')]
    .sort((a, b) => a.getAttribute('aria-rowindex') - b.getAttribute('aria-rowindex'))
    .map(row => [...row.children].map(cell => cell.textContent)));
}

/// Waits until `read()` gives something for which `holds` is true, and returns it.
export async function eventually(read, holds, milliseconds = 15000) {
  let value;
  for (const end = Date.now() + milliseconds; Date.now() < end; await new Promise(resolve => setTimeout(resolve, 100))) {
    value = await read();
    if (holds(value)) return value;
  }
  assert.fail(`Did not come about within ${milliseconds} ms; last seen: ${JSON.stringify(value)}`);
}

export async function shoot(page, name) {
  mkdirSync(results, { recursive: true });
  await page.screenshot({ path: `${results}${name}.png` });
}

/// Nothing that keeps people with disabilities out. The checker is injected past the page's own policy.
export async function assertAccessible(page, what) {
  const session = await page.context().newCDPSession(page);
  const evaluate = async expression => {
    const { result, exceptionDetails } = await session.send('Runtime.evaluate', { expression, awaitPromise: true, returnByValue: true });
    if (exceptionDetails) throw new Error(exceptionDetails.exception?.description ?? exceptionDetails.text);
    return result.value;
  };
  const known = page.problems.length;
  await evaluate(`${axe}; 0`);
  const found = await evaluate(`axe.run(document, { resultTypes: ['violations'] })
    .then(r => r.violations
      .map(v => v.id + ': ' + v.nodes.map(n => n.target.join(' ') + ' ' + (n.any[0]?.message ?? '')).join(' | ')))`);
  await session.detach();
  page.problems.length = known; // the checker's own styles are against the page's policy
  assert.deepEqual(found, [], `accessibility of ${what}`);
}

/// No text of a missing translation shows, and the page is not wider than the window.
export async function assertWellFormed(page, what) {
  const text = await page.evaluate(() => document.body.innerText);
  assert.doesNotMatch(text, /\[RS\w+\]|\?\?\S+\?\?/, `texts of ${what}`);
  const over = await page.evaluate(() => document.documentElement.scrollWidth - innerWidth);
  assert.ok(over <= 0, `${what} is ${over} pixels wider than the window`);
}
