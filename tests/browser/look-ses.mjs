import { openBrowser, openPage, logIn, tab, rows, texts } from './person.mjs';
import { startRig } from './rig.mjs';
const out='/tmp/sesshots/';
const browser = await openBrowser();
const rig = await startRig({ fleet: Number(process.env.FLEET ?? 60), liveliness: 0, brand: process.env.BRAND ?? 'halden' });
const panel = (page, t) => page.locator('.nevo-context-panel', { hasText: t }).first();
const list = page => page.locator('.nevo-context-panel', { hasText: 'Duration' }).locator('.Wt-tableview:visible').last();
const sizes = { 800: 600, 1280: 800, 2560: 1440 };
try {
  for (const scheme of (process.env.SCHEMES ?? 'light,dark').split(','))
  for (const w of (process.env.WIDTHS ?? '800,1280,2560').split(',').map(Number)) {
    const page = await openPage(browser, { viewport: { width: w, height: sizes[w] }, colorScheme: scheme });
    await logIn(page, rig.url);
    await tab(page, 'Sessions').click();
    const view = page.locator('.Wt-tableview:visible');
    await view.locator('.Wt-tv-row').first().waitFor({timeout:5000}).catch(()=>{});
    await page.screenshot({ path: `${out}${scheme}-${w}-1.png` });
    await view.locator('.Wt-tv-row').first().click();
    await page.waitForTimeout(400);
    await page.screenshot({ path: `${out}${scheme}-${w}-2.png` });
    await page.getByRole('button', { name: 'Disconnect', exact: true }).click();
    await page.waitForTimeout(400);
    await page.screenshot({ path: `${out}${scheme}-${w}-3.png` });
    await page.locator('.Wt-dialog').getByRole('button', { name: 'Cancel' }).click();
    await page.getByRole('button', { name: 'Connect', exact: true }).click();
    await page.waitForTimeout(500);
    await page.screenshot({ path: `${out}${scheme}-${w}-4.png` });
    const dl = page.locator('.Wt-dialog .Wt-tableview');
    for (const i of [0,1,2]) { await dl.nth(i).locator('.Wt-tv-row').first().click(); await page.waitForTimeout(300); }
    await page.screenshot({ path: `${out}${scheme}-${w}-5.png` });
    if (page.problems.length) console.log(page.problems);
    await page.context().close();
  }
} finally { await browser.close(); await rig.end(); }
