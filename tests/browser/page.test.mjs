// SPDX-License-Identifier: MIT
// What the page's script does by itself: on a bad line, with odd texts, in old browsers, for the keyboard and the ear.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { startGallery } from './gallery.mjs';
import { eventually, openBrowser, openPage } from './person.mjs';

const scripts = fileURLToPath(new URL('../../wt/browser/', import.meta.url));
let browser, gallery;

before(async () => {
  gallery = await startGallery();
  browser = await openBrowser();
});
after(async () => {
  await browser?.close();
  await gallery?.end();
});

/// Runs `act` with a fresh gallery page and its line, which is mended behind it.
function onPage(act, { prepare = async () => {}, ...options } = {}) {
  return async () => {
    const page = await openPage(browser, options);
    try {
      await prepare(page);
      await page.goto(gallery.url);
      await act(page, gallery.line);
    } finally {
      gallery.line.heal();
      gallery.line.delay = 0;
      await page.context().close();
    }
  };
}

const shown = page => page.getByText('End of the gallery').waitFor();
const field = (page, name) => page.getByLabel(name, { exact: true });
const tells = (page, name, text) =>
  page.getByRole('region', { name, exact: true }).locator('.gallery-told').filter({ hasText: text }).waitFor();
const pressed = async page => {
  await page.getByRole('button', { name: 'Press me' }).click();
  await tells(page, 'Push buttons', 'clicked plain button');
};

// ---- the line

test('a break of the line takes neither the focus nor what is typed meanwhile', onPage(async (page, line) => {
  await shown(page);
  await field(page, 'Plain').fill('before ');
  line.cut();
  for (const key of 'and meanwhile') await page.keyboard.press(key, { delay: 30 });
  line.heal();
  await page.keyboard.press('!');
  await field(page, 'Plain').press('Enter');
  await tells(page, 'Line edits', 'changed to before and meanwhile!');
  assert.equal(await field(page, 'Plain').inputValue(), 'before and meanwhile!');
  assert.equal(await page.locator('.Wt-offline').count(), 0);
}));

test('after a long break the focus is where it was', onPage(async (page, line) => {
  await shown(page);
  await field(page, 'Plain').fill('0123456789');
  await page.evaluate(() => document.activeElement.setSelectionRange(2, 5));
  line.cut();
  await page.locator('.Wt-offline').waitFor();
  line.heal();
  await page.locator('.Wt-offline').waitFor({ state: 'detached' });
  await page.keyboard.type('x');
  assert.equal(await field(page, 'Plain').inputValue(), '01x56789');
}));

test('a dead line is noticed and mended by the page itself within ten seconds', onPage(async (page, line) => {
  await shown(page);
  await pressed(page);
  const opened = page.waitForEvent('websocket', { timeout: 11000 });
  line.silence();
  await opened;
  await page.getByRole('button', { name: 'Save' }).click();
  await tells(page, 'Push buttons', 'clicked default button');
}));

test('a page that was sent to a download finds its way back after a break', onPage(async (page, line) => {
  await shown(page);
  const download = page.waitForEvent('download');
  await page.getByRole('button', { name: 'Fetch the note' }).click();
  assert.equal((await download).suggestedFilename(), 'note.txt');
  line.cut();
  await page.locator('.Wt-offline').waitFor();
  line.heal();
  await page.locator('.Wt-offline').waitFor({ state: 'detached' });
  await pressed(page);
}));

test('who cannot have a WebSocket at all is told so', onPage(async page => {
  await page.locator('.Wt-offline').filter({ hasText: 'No connection to the server can be made' }).waitFor({ timeout: 15000 });
}, { prepare: page => page.routeWebSocket(/./, socket => socket.close()) }));

test('a browser that is too old is told so', onPage(async page => {
  await page.getByText('This browser is too old').waitFor();
}, { prepare: page => page.addInitScript(() => { delete HTMLElement.prototype.inert; }) }));

// ---- fields

test('a mark that the program has set stays while one types', onPage(async page => {
  await shown(page);
  await field(page, 'Say again').pressSequentially('aga', { delay: 150 });
  await page.waitForTimeout(600); // the answers have come
  assert.match(await field(page, 'Say again').getAttribute('class'), /Wt-invalid/);
  await field(page, 'Say again').pressSequentially('in', { delay: 150 });
  await eventually(() => field(page, 'Say again').getAttribute('class'), names => !/Wt-invalid/.test(names));
}));

test('the caret stays where it is when the program changes the text around it', onPage(async page => {
  await shown(page);
  await field(page, 'Capitals').fill('WORLD');
  await field(page, 'Capitals').press('Home');
  for (const key of 'hello ') {
    await page.keyboard.press(key);
    await page.waitForTimeout(150);
  }
  await eventually(() => field(page, 'Capitals').inputValue(), text => text === 'HELLO WORLD');
}));

test('a text that an input method makes up is not cut off by the program', onPage(async page => {
  await shown(page);
  await field(page, 'Capitals').focus();
  const session = await page.context().newCDPSession(page);
  for (const text of ['n', 'ni', 'に', 'にほん'])
    await session.send('Input.imeSetComposition', { text, selectionStart: text.length, selectionEnd: text.length });
  await page.waitForTimeout(500);
  await session.send('Input.insertText', { text: '日本' });
  await page.keyboard.press('Enter');
  await tells(page, 'Line edits', 'changed to 日本');
  assert.equal(await field(page, 'Capitals').inputValue(), '日本');
}));

test('odd characters in fields and keys do no harm', onPage(async page => {
  await shown(page);
  await field(page, 'Plain').evaluate(el => {
    el.value = 'a\0b\ud83dc';
    el.dispatchEvent(new Event('input', { bubbles: true }));
    el.dispatchEvent(new Event('change', { bubbles: true }));
  });
  await field(page, 'Say again').evaluate(el => el.dispatchEvent(new KeyboardEvent('keyup', { key: '\ud83d', bubbles: true })));
  await tells(page, 'Line edits', 'changed to abc');
  await pressed(page);
}));

test('a text that is too long for a message is refused in words', onPage(async page => {
  await shown(page);
  const area = page.getByLabel('Plain area');
  await area.fill('short');
  await area.focus();
  await page.evaluate(() => document.execCommand('insertText', false, 'x'.repeat(1000000)));
  await page.getByRole('alert').filter({ hasText: 'too long' }).waitFor();
  assert.equal(await area.inputValue(), 'short');
  await pressed(page);
}));

test('what is marked in a text area is known without a key or click on the page', onPage(async page => {
  await shown(page);
  const area = page.getByLabel('Plain area');
  await area.focus();
  const frames = [];
  const session = await page.context().newCDPSession(page);
  await session.send('Network.enable');
  session.on('Network.webSocketFrameSent', ({ response }) => frames.push(response.payloadData));
  await area.evaluate(el => el.setSelectionRange(1, 4));
  await eventually(() => frames.join(''), text => /"sel",\{"a":\[1,4\]\}/.test(text));
}));

// ---- lists

const grid = (page, name) => page.getByRole('grid', { name, exact: true });

test('a list tells who reads by ear where the keyboard stands', onPage(async page => {
  await shown(page);
  const list = grid(page, 'single selection');
  await list.getByRole('gridcell', { name: 'Port 0003', exact: true }).click();
  await page.keyboard.press('ArrowDown');
  const current = () => list.evaluate(el => document.getElementById(el.getAttribute('aria-activedescendant'))?.firstChild.textContent);
  await eventually(current, text => text === 'Port 0004');
  assert.equal(await page.evaluate(() => document.activeElement.getAttribute('role')), 'grid');
  assert.equal(await list.getAttribute('aria-rowcount'), '5001');
  const row = list.getByRole('row', { name: 'Port 0004' });
  assert.equal(await row.getAttribute('aria-rowindex'), '6');
  assert.equal(await row.getAttribute('aria-selected'), 'true');
  assert.equal(await list.getByRole('row', { name: 'Port 0005' }).getAttribute('aria-selected'), 'false');
}));

test('selected rows are copied as lines of columns', onPage(async page => {
  await shown(page);
  const list = grid(page, 'extended selection');
  await list.getByRole('gridcell', { name: 'Port 0002', exact: true }).click();
  await page.keyboard.press('Shift+ArrowDown');
  await tells(page, 'Lists', 'selected Port 0002 Port 0003');
  await page.evaluate(() => document.addEventListener('copy', e => { window.copied = e.clipboardData.getData('text/plain'); }));
  await page.keyboard.press('Control+c');
  assert.equal(await page.evaluate(() => window.copied), 'Port 0002\tState 4998\nPort 0003\tState 4997\n');
}));

test('a click that nobody listens for is not told, and one press is one message', onPage(async page => {
  await shown(page);
  const frames = [];
  const session = await page.context().newCDPSession(page);
  await session.send('Network.enable');
  session.on('Network.webSocketFrameSent', ({ response }) => frames.push(response.payloadData));
  await grid(page, 'single selection').getByRole('gridcell', { name: 'Port 0003', exact: true }).click();
  await tells(page, 'Lists', 'selected Port 0003');
  assert.equal(frames.filter(text => text.includes('table:')).length, 1, frames.join('\n'));
}));

// ---- the sources

test('the modules run as they are written, too', onPage(async page => {
  await shown(page);
  await pressed(page);
  await grid(page, 'single selection').getByRole('gridcell', { name: 'Port 0003', exact: true }).click();
  await tells(page, 'Lists', 'selected Port 0003');
}, {
  async prepare(page) {
    const serve = name => ({ contentType: 'text/javascript', body: readFileSync(scripts + name, 'utf8') });
    await page.route(/[?]request=script/, route => route.fulfill(serve('main.js')));
    await page.route(/[/](?<name>[a-z]+[.]js)$/, route => route.fulfill(serve(new URL(route.request().url()).pathname.slice(1))));
  },
}));

test('a page that nobody sees says so, and says when it is seen again', onPage(async page => {
  await shown(page);
  const frames = [];
  const session = await page.context().newCDPSession(page);
  await session.send('Network.enable');
  session.on('Network.webSocketFrameSent', ({ response }) => frames.push(response.payloadData));
  const turn = hidden => page.evaluate(away => {
    Object.defineProperty(document, 'hidden', { value: away, configurable: true });
    document.dispatchEvent(new Event('visibilitychange'));
  }, hidden);
  await turn(true);
  await eventually(() => frames.join(''), text => text.includes('{"vis":0}'));
  await turn(false);
  await eventually(() => frames.join(''), text => text.includes('{"vis":1}'));
  await pressed(page);
}));
