// SPDX-License-Identifier: MIT
// Attacks with connections: many, silent, half said, and such as never read.
import { readFileSync } from 'node:fs';
import { setTimeout as pause } from 'node:timers/promises';
import { frame, get, hello, Line, openSocket, Page, until } from './wire.mjs';

const many = (count, make) => Promise.all(Array.from({ length: count }, (_, i) => make(i)));

export const attacks = {
  'silent-sockets': {
    says: 'a connection that does not greet goes within ten seconds, whatever else it says',
    async run({ port, check }) {
      const lines = await many(30, () => openSocket(port));
      check(lines.every(line => line.status === 101), 'not all could be opened');
      const greeting = frame(hello);
      let at = 0;
      const drip = setInterval(() => {
        lines.forEach((line, i) => {
          if (i % 3 === 1) line.send(frame('', { opcode: 10 }));
          if (i % 3 === 2) line.send(greeting.subarray(at, at + 1));
        });
        ++at;
      }, 700);
      const gone = await until(() => lines.every(line => line.closed), 10000);
      clearInterval(drip);
      check(gone, `${lines.filter(line => !line.closed).length} of 30 still open after 10 s`);
      lines.forEach(line => line.end());
    },
  },

  'all-connections': {
    says: 'connections that do not greet make room for one that does, from the same address and from others',
    options: { config: '<max-connections>120</max-connections><max-connections-per-address>60</max-connections-per-address>' },
    async run({ port, check }) {
      const administrator = await Page.drawn(port);
      const held = [...await many(70, () => openSocket(port, { from: '127.0.0.2' })),
        ...await many(70, () => openSocket(port, { from: '127.0.0.3' })), ...await many(40, () => Line.open(port, { from: '127.0.0.4' }))];
      for (const from of ['127.0.0.2', '127.0.0.5', '127.0.0.1']) {
        check((await get(port, '/', { from })).statuses[0] === 200, `no page for ${from}`);
        const page = await Page.drawn(port, { from });
        check(page?.password, `no login for ${from}`);
        page?.end();
      }
      check(administrator.password && !administrator.closed, 'a page that greeted was closed');
      held.forEach(line => line.end());
      administrator.end();
    },
  },

  'one-address': {
    says: 'one address never has all connections, greeted ones neither',
    options: { config: '<max-connections>120</max-connections><max-connections-per-address>119</max-connections-per-address>' },
    async run({ port, check }) {
      const pages = await many(119, () => Page.open(port, { from: '127.0.0.2' }));
      await pause(300);
      for (const from of ['127.0.0.3', '127.0.0.4', '127.0.0.5']) {
        const page = await Page.drawn(port, { from });
        check(page?.password, `no login for ${from}`);
      }
      pages.forEach(page => page?.end());
    },
  },

  'half-frames': {
    says: 'a long frame before the greeting is refused by its head: 300 of half a megabyte cost less than 10 MB',
    async run({ port, rig, check }) {
      const lines = await many(300, () => openSocket(port));
      const before = rig.resident();
      await Promise.all(lines.map(line => line.send(frame(Buffer.alloc(500000, 120), { announced: 511000 }))));
      await until(() => lines.every(line => line.closed), 4000);
      check(rig.resident() - before < 10, `${Math.round(rig.resident() - before)} MB more`);
      check(lines.every(line => line.closed), `${lines.filter(line => !line.closed).length} still open`);
      lines.forEach(line => line.end());
    },
  },

  'half-messages': {
    says: 'many pieces of a message before the greeting are no way round that',
    async run({ port, rig, check }) {
      const lines = await many(200, () => openSocket(port));
      const before = rig.resident();
      await Promise.all(lines.map(async line => {
        for (let i = 0; i < 20; ++i) await line.send(frame(Buffer.alloc(16000, 120), { opcode: i ? 0 : 1, final: false }));
      }));
      await until(() => lines.every(line => line.closed), 4000);
      check(rig.resident() - before < 10, `${Math.round(rig.resident() - before)} MB more`);
      lines.forEach(line => line.end());
    },
  },

  'unread-pongs': {
    says: 'pings of 40 peers that read no answer cost less than 10 MB',
    async run({ port, rig, check }) {
      const lines = await many(40, () => openSocket(port));
      lines.forEach(line => line.deafen());
      const before = rig.resident();
      const pings = Buffer.concat(Array.from({ length: 1000 }, () => frame(Buffer.alloc(125, 1), { opcode: 9 })));
      let most = 0;
      const until4s = performance.now() + 4000;
      await Promise.all(lines.map(async line => {
        while (performance.now() < until4s && !line.closed) {
          await Promise.race([line.send(pings), pause(500)]);
          most = Math.max(most, rig.resident() - before);
        }
      }));
      check(most < 10, `${Math.round(most)} MB more`);
      lines.forEach(line => line.end());
    },
  },

  'clear-session': {
    says: 'the shared port gives no session in the clear',
    async run({ port, check }) {
      const line = await openSocket(port, { clear: true });
      check(line.status >= 400 || (line.status >= 300 && /location: https/i.test(line.text())), `answered ${line.status}`);
      line.end();
      const page = await get(port, '/', { clear: true, host: `localhost:${port}` });
      check(page.statuses[0] === 307 && page.text.includes(`Location: https://localhost:${port}/`), `page: ${page.statuses}`);
    },
  },

  'broken-frames': {
    says: 'frames that break the rules end their connection, before and after the greeting',
    async run({ port, rig, check }) {
      const unmasked = Buffer.from([0x81, 2, 0x68, 0x69]);
      const broken = [unmasked, frame('x', { opcode: 2 }), frame('x', { opcode: 3 }), frame('x', { opcode: 0 }),
        frame('x'.repeat(126), { opcode: 9 }), frame('x', { opcode: 9, final: false }), frame(Buffer.from([0xc3, 0x28])),
        frame('', { announced: 0x7fffffffff }), frame('[]'), frame('{"n":7}'), Buffer.from([0xf1, 0x80, 0, 0, 0, 0])];
      await Promise.all(broken.flatMap(bytes => [false, true].map(async greets => {
        const line = await openSocket(port);
        if (greets) await line.send(frame(hello));
        await line.send(bytes);
        check(await line.waitFor(() => false, 9000), `${bytes.subarray(0, 2).toString('hex')} ${greets ? 'after' : 'before'} the greeting`);
        line.end();
      })));
      check(rig.serverIsAlive, 'the server ended');
    },
  },

  'threads-and-files': {
    says: 'connections that come and go leave no descriptor and no thread behind',
    async run({ port, rig, check }) {
      await get(port, '/');
      const count = () => rig.descriptors();
      const before = count();
      for (let i = 0; i < 5; ++i) (await many(60, () => openSocket(port))).forEach(line => line.end());
      await until(() => count() <= before + 2, 5000);
      check(count() <= before + 2, `${count() - before} descriptors more`);
      check(Number(/Threads:\s+(\d+)/.exec(readFileSync(`/proc/${rig.server.pid}/status`, 'utf8'))[1]) < 12, 'threads');
    },
  },
};
