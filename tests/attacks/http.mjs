// SPDX-License-Identifier: MIT
// Attacks with requests: what is no proper one, what asks for more than browsers may have, and what leads elsewhere.
import { existsSync, mkdirSync, readdirSync, writeFileSync } from 'node:fs';
import { networkInterfaces, hostname } from 'node:os';
import { join } from 'node:path';
import { ask, get, Line, openSocket } from './wire.mjs';

const post = (fields, body) => `POST /?wtd=stranger&request=resource&resource=o1&rand=1 HTTP/1.1\r\nHost: localhost\r\n`
  + `Content-Type: application/octet-stream\r\n${fields}\r\n${body}`;

export const attacks = {
  'unknown-coding': {
    says: 'a transfer coding that the server does not know is refused, and what follows is not taken for a request',
    async run({ port, check }) {
      for (const coding of ['identity', 'gzip', 'xchunked', '"chunked"', 'chunked, identity', 'gzip, chunked']) {
        const { statuses, closed } = await ask(port, `POST / HTTP/1.1\r\nHost: localhost\r\nTransfer-Encoding: ${coding}\r\n\r\n`
          + 'GET / HTTP/1.1\r\nHost: localhost\r\n\r\n');
        check(statuses.length === 1 && [400, 501].includes(statuses[0]) && closed, `${coding}: ${statuses}`);
      }
    },
  },

  'broken-requests': {
    says: 'requests that are none are refused, each with one answer and a close',
    async run({ port, check }) {
      const host = 'Host: localhost\r\n';
      for (const request of [
        `POST / HTTP/1.1\r\n${host}Content-Length: 3\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n`,
        `POST / HTTP/1.1\r\n${host}Content-Length: 3\r\nContent-Length: 4\r\n\r\nabcd`,
        `POST / HTTP/1.1\r\n${host}Transfer-Encoding: chunked\r\n\r\nzz\r\nab\r\n`,
        'GET / HTTP/1.1\r\n\r\n', `GET / HTTP/1.1\r\n${host}${host}\r\n`, `GET / HTTP/1.1\r\n${host}a b\r\n\r\n`,
        `GET / HTTP/1.1\r\n${host}X: ${'y'.repeat(20000)}\r\n\r\n`, `GET http://\r\n\r\n`, '\0\0\0\0\r\n\r\n',
      ]) {
        const { statuses, closed } = await ask(port, request, { wait: 600 });
        check(statuses.length <= 1 && !(statuses[0] < 400) && closed, `${JSON.stringify(request.slice(0, 60))}: ${statuses}`);
      }
    },
  },

  'other-files': {
    says: 'no path leads out of the folder of files',
    async run({ port, rig, check }) {
      writeFileSync(join(rig.folder, 'secret.txt'), 'secret of the switch');
      const ups = ['../', '..%2f', '%2e%2e/', '..%5c', '..\\', '%2e%2e%2f', '....//', '..;/', '%252e%252e%252f', './../', '..%00/'];
      for (const up of ups)
        for (const path of [`/${up}secret.txt`, `/resources/${up}${up}secret.txt`, `/${up}${up}${up}${up}etc/passwd`]) {
          const { statuses, text } = await get(port, path);
          check(statuses.every(status => status >= 400) && !/secret of|root:/.test(text), `${path}: ${statuses}`);
        }
    },
  },

  'foreign-host': {
    says: 'a name that is not the switch\'s own gets no page and no connection; each of its own gets both',
    async run({ port, check }) {
      for (const host of ['evil.example', `evil.example:${port}`, 'localhost.evil.example', 'localhost:1:2', '[::1', '.', '127.0.0.1.evil.example']) {
        const page = await get(port, '/', { host });
        check(page.statuses[0] >= 400 && page.statuses[0] < 500, `page at ${host}: ${page.statuses}`);
        const socket = await openSocket(port, { host });
        check(socket.status >= 400, `connection at ${host}: ${socket.status}`);
        socket.end();
      }
      const addresses = Object.values(networkInterfaces()).flat()
        .map(({ address, family }) => family === 'IPv6' ? `[${address.split('%')[0]}]` : address);
      for (const host of [...addresses, 'localhost', 'LOCALHOST', hostname(), `${hostname()}.local`, 'switch.test', 'kvm.switch.test']) {
        const page = await get(port, '/', { host });
        check(page.statuses[0] === 200, `page at ${host}: ${page.statuses}`);
        const socket = await openSocket(port, { host: `${host}:${port}` });
        check(socket.status === 101, `connection at ${host}: ${socket.status}`);
        socket.end();
      }
    },
  },

  'strange-body': {
    says: 'no body is taken in before its session and resource are known, and strangers take no place of an upload',
    async run({ port, rig, check }) {
      const spool = () => readdirSync(rig.spool, { recursive: true }).filter(name => name.includes('upload-')).length;
      const drips = await Promise.all(Array.from({ length: 20 }, async () => {
        const line = await Line.open(port);
        await line.send(post('Content-Length: 100000\r\n', 'x'.repeat(1000)));
        return line;
      }));
      await Promise.all(drips.map(line => line.waitFor(() => line.got.length > 0, 3000)));
      check(spool() === 0, `${spool()} files of strangers`);
      check(drips.every(line => / (403|404) /.test(line.text())), `answers: ${[...new Set(drips.map(line => line.text().slice(9, 12)))]}`);
      for (const line of drips) line.end();
      const announced = await ask(port, post('Content-Length: 10\r\nExpect: 100-continue\r\n', ''), { wait: 800 });
      check(!announced.statuses.includes(100) && announced.statuses[0] >= 400, `asked first: ${announced.statuses}`);
      const endless = await ask(port, post('Transfer-Encoding: chunked\r\n', `ffff\r\n${'x'.repeat(65535)}\r\n`), { wait: 800 });
      check(endless.statuses[0] >= 400 && spool() === 0, `without a length: ${endless.statuses}`);
    },
  },

  'left-files': {
    says: 'files of uploads that a killed server left are removed when it starts again, others are not',
    async run({ rig, check }) {
      const left = join(rig.spool, 'uploads-aBc123'), other = join(rig.spool, 'uploads-of-mine');
      await rig.killServer();
      for (const folder of [left, other]) {
        mkdirSync(folder, { mode: 0o700 });
        writeFileSync(join(folder, 'upload-1'), 'x');
      }
      await rig.startServer();
      check(!existsSync(left), 'the left file is still there');
      check(existsSync(other), 'a file of another kind is gone');
    },
  },

  'slow-heads': {
    slow: true,
    says: 'heads and handshakes that never end are cut after ten seconds',
    async run({ port, check }) {
      const began = performance.now();
      const lines = await Promise.all(['GET / HTTP/1.1\r\nHost: lo', '', 'GET / HTTP/1.1\r\nX'].map(async start => {
        const line = await Line.open(port);
        await line.send(start);
        return line;
      }));
      await Promise.all(lines.map(line => line.waitFor(() => false, 14000)));
      check(lines.every(line => line.closed), `open after ${Math.round(performance.now() - began)} ms`);
    },
  },
};
