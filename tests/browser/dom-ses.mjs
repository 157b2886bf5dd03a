import { openBrowser, openPage, logIn, tab } from './person.mjs';
import { startRig } from './rig.mjs';
const browser = await openBrowser(); const rig = await startRig({ fleet: 60, brand: 'halden' });
try {
    const page = await openPage(browser);
    await logIn(page, rig.url); await tab(page, 'Sessions').click();
await page.waitForTimeout(500);
    console.log(await page.evaluate(() => { const dump=(e,d)=>{ if(d>11) return ''; const r=e.getBoundingClientRect(); const cs=getComputedStyle(e); let s=' '.repeat(d)+e.tagName+'.'+e.className+' ['+e.getAttribute('style')+'] '+[r.x,r.y,r.width,r.height].map(Math.round)+' '+cs.display+' '+cs.position+'\n'; if(e.classList.contains('Wt-tableview')||e.classList.contains('Wt-tabs')) return s; for(const c of e.children) s+=dump(c,d+1); return s;};
      return dump(document.querySelector('.nevo-main-container'),0); }));
} finally { await browser.close(); await rig.end(); }
