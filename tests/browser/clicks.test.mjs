// SPDX-License-Identifier: MIT
// What is pressed in a list whose rows move is what was under the pointer, however slow line and server are.
// CLICKS=1000 node --test clicks.test.mjs: so many of each kind.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { startGallery } from './gallery.mjs';
import { openBrowser, openPage } from './person.mjs';

const clicks = Number(process.env.CLICKS ?? 12);
const delays = [0, 200, 50, 400, 120]; // milliseconds, each way
let browser, gallery, line, page;

before(async () => {
  gallery = await startGallery();
  line = gallery.line;
  browser = await openBrowser();
  page = await openPage(browser);
  await page.goto(gallery.url);
  await page.getByText('End of the gallery').waitFor();
  await page.getByRole('button', { name: 'Let rows move' }).click();
  await page.getByRole('grid', { name: 'moving rows' }).scrollIntoViewIfNeeded();
  await page.evaluate(watchList);
});

after(async () => {
  await browser?.close();
  await gallery?.end();
});

/// In the page: notes the record under each press of the mouse, and all that the server tells of the lists.
function watchList() {
  const list = document.querySelector('[aria-label="moving rows"]');
  const record = row => row?.firstChild.textContent ?? '';
  window.pressed = [];
  list.addEventListener('mousedown', e => window.pressed.push(record(e.target.closest('.Wt-tv-row'))), true);
  const told = document.querySelector('[aria-label=Lists] .gallery-told');
  window.told = [];
  new MutationObserver(() => window.told.push(told.textContent)).observe(told, { childList: true, characterData: true, subtree: true });
  window.chosen = () => [...list.querySelectorAll('[aria-selected=true]')].map(record);
  window.records = () => [...list.querySelectorAll('.Wt-tv-row')].sort((one, other) => one.ariaRowIndex - other.ariaRowIndex).map(record);
}

/// Where to press: a row in sight by its place, and a part of it.
async function spot(place, part = '.Wt-tv-c') {
  return page.evaluate(([n, selector]) => {
    const body = document.querySelector('[aria-label="moving rows"] .Wt-tv-body').getBoundingClientRect();
    const rows = [...document.querySelectorAll('[aria-label="moving rows"] .Wt-tv-row')]
      .filter(row => row.querySelector(selector) && row.getBoundingClientRect().top >= body.top && row.getBoundingClientRect().bottom <= body.bottom)
      .sort((one, other) => one.ariaRowIndex - other.ariaRowIndex);
    const box = rows[n % rows.length].querySelector(selector).getBoundingClientRect();
    return [box.x + Math.min(30, box.width / 2), box.y + box.height / 2];
  }, [place, part]);
}

const forget = () => page.evaluate(() => { window.pressed = []; window.told = []; });
const seen = () => page.evaluate(() => ({ pressed: window.pressed, told: window.told, chosen: window.chosen(), records: window.records() }));

/// Presses, and waits until the server has told of it, or the time is over in which it would have. Returns what was
/// pressed, what was told, and whether the record is still there.
async function press(times, act, isTold = now => now.told.length || (now.chosen.length === 1 && now.chosen[0] === now.pressed.at(-1))) {
  line.delay = delays[times % delays.length];
  await forget();
  await act();
  let now;
  for (const end = Date.now() + 2 * line.delay + 1800; Date.now() < end; await page.waitForTimeout(20)) {
    now = await seen();
    if (isTold(now)) break;
  }
  const record = now.pressed.at(-1);
  return { ...now, record, there: now.records.includes(record) };
}

const kinds = {
  'a click selects the record under the pointer': async times => {
    const [x, y] = await spot(times);
    const { record, told, chosen, there } = await press(times, () => page.mouse.click(x, y));
    const selections = told.filter(text => text.startsWith('moving rows: selected') && !text.endsWith('nothing'));
    assert.ok(selections.every(text => text === `moving rows: selected ${record}`), `${record} was pressed: ${told}`);
    assert.ok(!there || chosen.includes(record), `${record} is there and was pressed, but ${chosen} is selected`);
    return chosen.length;
  },
  'a double click is on the record under the pointer': async times => {
    const [x, y] = await spot(times);
    const { record, told } = await press(times, () => page.mouse.dblclick(x, y));
    await page.waitForTimeout(2 * line.delay + 400);
    const all = [...told, ...(await seen()).told].filter(text => text.startsWith('double click on') && !text.endsWith('nothing'));
    assert.ok(all.every(text => text === `double click on ${record}`), `${record} was pressed: ${all}`);
    return all.length;
  },
  'a box is ticked for the record that it stands in': async times => {
    const [x, y] = await spot(times, 'input:not(:checked)');
    // The row is selected as well, which may be told first.
    const { told, pressed } = await press(times, () => page.mouse.click(x, y), now => now.told.some(text => text.startsWith('ticked')));
    const ticks = told.filter(text => text.startsWith('ticked'));
    assert.ok(ticks.every(text => text === `ticked ${pressed[0]}`), `${pressed[0]} was pressed: ${told}`);
    return told.length;
  },
  'a range ends at the record under the pointer': async times => {
    const [x, y] = await spot(times);
    const first = await press(times, () => page.mouse.click(x, y));
    const [x2, y2] = await spot(times + 3);
    const { record, told } = await press(times, async () => {
      await page.keyboard.down('Shift');
      await page.mouse.click(x2, y2);
      await page.keyboard.up('Shift');
    });
    for (const text of told.filter(some => some.startsWith('moving rows: selected Record'))) {
      const names = text.slice('moving rows: selected '.length).match(/Record \d+/g);
      const ends = [names[0], names.at(-1)];
      assert.ok(ends.includes(record), `${record} was pressed, and ${first.record} before: ${text}`);
    }
    return told.length;
  },
};

for (const [name, once] of Object.entries(kinds)) {
  test(name, async () => {
    let effects = 0;
    for (let times = 0; times < clicks; ++times) effects += await once(times);
    assert.ok(effects > clicks / 2, `${effects} of ${clicks} had an effect`);
  });
}
