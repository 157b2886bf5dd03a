// SPDX-License-Identifier: MIT
// Attacks of visitors: pages that nobody logged in on, and as much of them as there may be.
import { setTimeout as pause } from 'node:timers/promises';
import { frame, Page, until } from './wire.mjs';

const many = (count, make) => Promise.all(Array.from({ length: count }, (_, i) => make(i)));
const percentile = (values, share) => [...values].sort((a, b) => a - b)[Math.min(values.length - 1, Math.floor(share * values.length))];
const ask = 'Forgot my password';

/// A page that somebody logged in on. Its clicks take the time of `clicks()`.
async function administrator(port, check) {
  const page = await Page.drawn(port, { from: '127.0.0.9' });
  check(page && await page.logIn(), 'the administrator could not log in');
  return page;
}

/// Clicks tabs until `over()`; the milliseconds of each.
async function clicks(page, over, gap = 100) {
  const times = [];
  const tabs = ['Dashboard', 'Sessions'].map(text => page.saying('li', text) ?? page.saying('a', text) ?? page.saying('button', text));
  for (let i = 0; !over(); ++i) {
    times.push(await page.click(tabs[i % 2]) ?? Infinity);
    await pause(gap);
  }
  return times;
}

/// Pages that keep `outstanding` messages of 500 key events under way.
function keyStorm(pages, outstanding) {
  let going = true;
  for (const page of pages) {
    const events = JSON.stringify(Array.from({ length: 500 }, () => [page.userName.id, 'keyup', { k: 65, c: 97, t: 'a' }]));
    (async () => {
      while (going && !page.closed) {
        const done = page.messages.at(-1)?.a ?? 0;
        if (page.sent - done < outstanding) await page.tell({ e: JSON.parse(events) });
        else await pause(10);
        if (page.messages.length > 100) page.messages.splice(0, 90);
      }
    })();
  }
  return () => { going = false; };
}

async function starve({ port, rig, check }, seconds, settleSeconds) {
  const page = await administrator(port, check);
  const before = rig.resident();
  const pages = (await many(40, () => Page.drawn(port, { from: '127.0.0.2' }))).filter(Boolean);
  check(pages.length === 40, `${pages.length} pages of 40`);
  const stop = keyStorm(pages, 300);
  const end = performance.now() + seconds * 1000;
  const times = await clicks(page, () => performance.now() > end);
  stop();
  check(percentile(times, 0.99) < 100, `p99 of ${times.length} clicks ${Math.round(percentile(times, 0.99))} ms`);
  pages.forEach(one => one.end());
  const settled = () => rig.resident() - before < 20;
  check(await until(settled, settleSeconds * 1000, 500), `${Math.round(rig.resident() - before)} MB kept`);
  check(!page.closed && await page.click(page.saying('button', 'Dashboard') ?? page.find(() => true)) !== null, 'the administrator is out');
}

export const attacks = {
  'starve': {
    slow: true, // its limit is a time, which a busy machine does not keep
    says: '40 pages that send 500 key events a message delay nobody, and leave no memory behind',
    run: context => starve(context, 6, 20),
  },
  'starve-long': {
    slow: true,
    says: 'the same for a minute',
    run: context => starve(context, 60, 60),
  },

  'abandoned-pages': {
    says: '500 pages whose connections are dropped at once lock nobody out for longer than 15 seconds',
    async run({ port, check }) {
      await many(10, async i => {
        for (let left = 50; left > 0; --left) (await Page.open(port, { from: `127.0.0.${i % 2 + 2}` }))?.end();
      });
      const began = performance.now();
      let page = null;
      await until(async () => {
        page = await Page.drawn(port, { from: '127.0.0.7' });
        return page?.password;
      }, 15000, 500);
      check(page?.password && await page.logIn(), `nobody gets in after ${Math.round(performance.now() - began)} ms`);
    },
  },

  'all-pages': {
    says: 'pages without a login, connected and all from one address, leave room for others',
    options: { config: '<session-management><dedicated-process><max-num-sessions>60</max-num-sessions></dedicated-process></session-management>' },
    async run({ port, check }) {
      const pages = await many(80, () => Page.open(port, { from: '127.0.0.2' }));
      await pause(500);
      for (const from of ['127.0.0.3', '127.0.0.4']) {
        const page = await Page.drawn(port, { from });
        check(page?.password && await page.logIn(), `no login for ${from}: ${page?.busy}`);
      }
      pages.forEach(page => page?.end());
    },
  },

  'password-guesses': {
    says: 'of 60 passwords at once on 60 pages at most five reach the store',
    async run({ port, check }) {
      const pages = (await many(60, () => Page.drawn(port))).filter(page => page?.password);
      check(pages.length === 60, `${pages.length} pages of 60`);
      await Promise.all(pages.map((page, i) => page.tryLogin('operator', `wrong-${i}`)));
      // Those that come while five are under way wait for their outcome.
      await Promise.all(pages.map(page => page.waitFor(() => page.says('Authentication failure') || page.says('Authentication lockout'), 10000)));
      const told = text => pages.filter(page => page.says(text)).length;
      check(told('Authentication failure') <= 5, `${told('Authentication failure')} reached the store`);
      check(told('Authentication failure') + told('Authentication lockout') === 60, 'not all were answered');
    },
  },

  'reset': {
    says: 'a storm of wrong passwords brings no page to "Reset", which would end the server',
    options: { store: ['--password-rounds', '60000'] },
    async run({ port, rig, check }) {
      const pages = (await many(400, () => Page.drawn(port))).filter(page => page?.password);
      const tries = Promise.all(pages.map(page => page.tryLogin('operator', 'wrong')));
      await pause(100);
      const late = await many(5, () => Page.drawn(port, { from: '127.0.0.7' }));
      await Promise.all(late.map(page => page?.waitFor(() => page.password || page.says('Reset'), 10000)));
      check(late.every(page => page?.password && !page.says('Reset')), 'a late page does not show the login');
      await tries;
      check(pages.every(page => !page.says('Reset')) && rig.serverIsAlive && rig.starts === 1, 'Reset is offered');
    },
  },

  'log-flood': {
    says: 'events for what is not there, and their names, fill no log',
    async run({ port, rig, check }) {
      const page = await Page.drawn(port);
      const before = rig.output.length;
      const name = 'x'.repeat(200);
      for (let i = 0; i < 20 && !page.closed; ++i)
        await page.act(Array.from({ length: 500 }, () => [99999, name, {}]), {}, 2000);
      const other = await Page.drawn(port);
      await other.act([[1, 'y'.repeat(300000), {}]], {}, 2000);
      await pause(300);
      check(rig.output.length - before < 20000, `${rig.output.length - before} bytes`);
    },
  },

  'unacknowledged': {
    says: 'updates that 20 pages never acknowledge cost less than 30 MB',
    async run({ port, rig, check }) {
      const pages = (await many(20, () => Page.drawn(port))).filter(page => page?.password);
      const before = rig.resident();
      let most = 0;
      const end = performance.now() + 6000;
      await Promise.all(pages.map(async page => {
        page.acknowledges = false;
        while (!page.closed && performance.now() < end) {
          const button = page.saying('button', page.says('administrator') && page.saying('button', 'Ok') ? 'Ok' : ask) ?? page.saying('button', 'Ok');
          if (!button || await page.click(button) === null) break;
          most = Math.max(most, rig.resident() - before);
        }
      }));
      check(most < 30, `${Math.round(most)} MB more`);
      pages.forEach(page => page.end());
    },
  },

  'false-resume': {
    says: 'a page that has seen what was never sent is told so and closed',
    async run({ port, check }) {
      const page = await Page.drawn(port);
      const again = await Page.open(port, { greeting: JSON.stringify({ resume: page.token, a: 4000 }) });
      await again.waitFor(() => again.closed, 5000);
      check(again.closed || again.reload, 'nothing comes, for ever');
    },
  },

  'tampering': {
    says: 'messages out of order, replayed, nested or none at all end their own page only',
    async run({ port, rig, check }) {
      const other = await Page.drawn(port);
      const deep = '['.repeat(5000) + ']'.repeat(5000);
      for (const message of ['{"n":3}', '{"n":-1}', '{"n":1e99}', '{"n":1,"n":2}', '{"n":1,"e":[[1]]}', `{"n":1,"e":${deep}}`,
        '{"n":1,"v":{"x":1}}', 'null', '{"n":1,"e":[[5,"click",{"b":NaN}]]}', '{"n":1,"a":99999}', '{"hello":{}}', '{"resume":"x","a":0}']) {
        const page = await Page.drawn(port);
        await page.line.send(frame(message));
        check(await page.waitFor(() => page.closed || page.quit || page.reload, 4000), `${message.slice(0, 40)} is accepted`);
        page.end();
      }
      check(rig.serverIsAlive && await other.act([]) !== null, 'others are hit');
    },
  },

  'long-name': {
    says: 'a user name longer than its field does not reach the store',
    async run({ port, check }) {
      const page = await Page.drawn(port);
      await page.waitFor(() => page.password);
      await page.tryLogin('x'.repeat(100000), 'y'.repeat(100000));
      check(!page.says('x'.repeat(1000)), 'it comes back');
    },
  },

  'names-by-time': {
    says: 'the time of an answer does not tell which names there are',
    options: { store: ['--password-rounds', '60000'] },
    async run({ port, check }) {
      const best = {};
      for (const name of ['nobody', 'operator', 'training']) {
        const page = await Page.drawn(port);
        await page.waitFor(() => page.password);
        best[name] = await page.tryLogin(name, 'wrong') ?? Infinity;
        page.end();
      }
      const text = JSON.stringify(best, (_, value) => typeof value === 'number' ? Math.round(value) : value);
      check(best.nobody > 0.5 * best.operator && best.nobody > 0.5 * best.training, text);
    },
  },
};
