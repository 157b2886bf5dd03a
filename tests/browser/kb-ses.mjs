import { openBrowser, openPage, logIn, tab } from './person.mjs';
import { startRig } from './rig.mjs';
const browser = await openBrowser(); const rig = await startRig({});
try {
    const page = await openPage(browser);
    await logIn(page, rig.url); await tab(page, 'Sessions').click();
    await page.getByRole('button',{name:'Connect',exact:true}).click(); await page.waitForTimeout(500);
    const act=()=>page.evaluate(()=>{const e=document.activeElement;return e.tagName+'.'+e.className+' '+e.textContent.slice(0,30)+' dlg='+!!e.closest('.Wt-dialog')+' dis='+e.disabled});
    for (let i=0;i<14;i++){ await page.keyboard.press('Tab'); const a=await act(); console.log(a); if(a.includes('Wt-tv-body')) {await page.keyboard.press('ArrowDown'); await page.waitForTimeout(500);} if(a.includes('Connect')) {await page.keyboard.press('Enter'); await page.waitForTimeout(600); console.log('after', await act(), await page.locator('.Wt-dialog').allInnerTexts()); await page.screenshot({path:'/tmp/sesshots/kb.png'}); break;} }
} finally { await browser.close(); await rig.end(); }
