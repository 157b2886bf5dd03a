// SPDX-License-Identifier: MIT
// Three hundred administrators at work while all of the attacks that cost the server something run beside them.
import { setTimeout as pause } from 'node:timers/promises';
import { frame, hello, openSocket, Page } from './wire.mjs';

const administrators = 300, seconds = 30;

async function logIn(port) {
  const page = await Page.drawn(port, { from: '127.0.0.9' });
  page.messages.length = 0;
  return page && await page.logIn() ? page : null;
}

export const attacks = {
  'load': {
    slow: true,
    says: '300 administrators, a tenth of them acting each second, wait less than 250 ms (p99) while attacks run',
    options: { config: '<max-num-sessions>500</max-num-sessions>' },
    async run({ rig, port, check }) {
      const pages = [];
      for (let i = 0; i < administrators; i += 10)
        pages.push(...await Promise.all(Array.from({ length: 10 }, () => logIn(port))));
      const there = pages.filter(Boolean);
      check(there.length === administrators, `${there.length} of ${administrators} logged in`);
      let going = true;
      const storm = (async () => {
        const key = page => Array.from({ length: 500 }, () => [page.userName.id, 'keyup', { k: 65, c: 97, t: 'a' }]);
        const strangers = (await Promise.all(Array.from({ length: 10 }, () => Page.drawn(port, { from: '127.0.0.2' })))).filter(page => page?.password);
        await Promise.all([...strangers.map(async page => {
          while (going && !page.closed) {
            if (page.sent - (page.messages.at(-1)?.a ?? 0) < 100) await page.tell({ e: key(page) });
            else await pause(5);
            page.messages.splice(0, page.messages.length - 1);
          }
        }), (async () => {
          while (going) {
            const lines = await Promise.all(Array.from({ length: 20 }, () => openSocket(port, { from: '127.0.0.3' })));
            lines.forEach(line => line.send(frame(hello).subarray(0, 5)));
            await pause(500);
            lines.forEach(line => line.end());
          }
        })()]);
      })();
      const times = [];
      const acting = [];
      for (let i = 0; i < seconds * there.length / 10; ++i) {
        const page = there[(i * 7) % there.length];
        const tab = page.saying('li', i & 1 ? 'Dashboard' : 'Sessions') ?? page.saying('a', 'Dashboard');
        acting.push(page.click(tab).then(time => { times.push(time ?? Infinity); page.messages.length = 0; }));
        await pause(10000 / there.length);
      }
      await Promise.all(acting);
      going = false;
      times.sort((a, b) => a - b);
      const at = share => Math.round(times[Math.min(times.length - 1, Math.floor(times.length * share))]);
      console.log(`        ${times.length} clicks: p50 ${at(0.5)} ms, p99 ${at(0.99)} ms, most ${at(1)} ms; ${Math.round(rig.resident())} MB`);
      check(at(0.99) < 250, `p99 ${at(0.99)} ms`);
      await storm;
      there.forEach(page => page.end());
    },
  },
};
