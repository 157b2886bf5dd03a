// SPDX-License-Identifier: MIT
// The command that a newcomer types first.
import assert from 'node:assert/strict';
import { execFileSync, spawn } from 'node:child_process';
import { mkdtempSync, rmSync, statSync } from 'node:fs';
import { get } from 'node:https';
import { createServer } from 'node:net';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { freePort } from './ports.mjs';
import { eventually } from './person.mjs';

const command = fileURLToPath(new URL('../../run', import.meta.url));
let state;
const running = new Set();
afterEach(async () => {
  for (const it of running) it.child.kill('SIGTERM');
  for (const it of running) await it.ended;
});
before(() => { state = mkdtempSync(join(tmpdir(), 'nevo-run-')); });
after(() => rmSync(state, { recursive: true, force: true }));

/// Starts ./run; `text` grows with what it prints, `ended` gives its status.
function run(...args) {
  const child = spawn(command, args.map(String), { stdio: ['ignore', 'pipe', 'pipe'], env: { ...process.env, NEVO_STATE: state } });
  const it = { child, text: '' };
  for (const stream of [child.stdout, child.stderr]) stream.on('data', data => { it.text += data; });
  it.ended = new Promise(resolve => child.once('exit', (status, signal) => resolve(status ?? signal))).finally(() => running.delete(it));
  running.add(it);
  return it;
}

const started = it => eventually(() => it.text, text => text.includes('The interface is at'), 60000);

/// Process numbers of the two programs that a ./run started, by name.
function programs(it) {
  const lines = execFileSync('ps', ['-o', 'pid=,args=', '--ppid', String(it.child.pid)], { encoding: 'utf8' }).trim().split('\n');
  const of = name => Number(lines.find(line => line.includes(name))?.trim().split(/\s+/)[0]);
  return { server: of('app/nevo'), store: of('zel/zelsim') };
}

const lives = pid => {
  try { return process.kill(pid, 0); } catch { return false; }
};

const fetchStatus = (port, path) => new Promise((resolve, reject) => {
  get({ host: '127.0.0.1', port, path, rejectUnauthorized: false }, response => {
    response.resume();
    resolve(response.statusCode);
  }).once('error', reject);
});

test('an unknown option, brand or number is told', async () => {
  for (const [args, told] of [[['--colour', 'red'], '--colour'], [['--brand', 'acme'], 'acme'], [['--port', 'many'], 'many'],
    [['--fleet'], '--fleet'], [['--port=0'], '0'], [['--role', 'king'], 'king']]) {
    const it = run(...args);
    assert.equal(await it.ended, 2);
    assert.ok(it.text.includes(told), it.text);
  }
});

test('--help tells the options', async () => {
  const it = run('--help');
  assert.equal(await it.ended, 0);
  for (const option of ['--brand', '--port', '--fleet', '--liveliness', '--fresh']) assert.ok(it.text.includes(option));
});

test('a port that is in use is told', async () => {
  const other = createServer();
  await new Promise(resolve => other.listen(0, '127.0.0.1', resolve));
  const { port } = other.address();
  const it = run('--port', port);
  assert.equal(await it.ended, 1);
  assert.ok(it.text.includes(`port ${port} is in use`), it.text);
  await new Promise(resolve => other.close(resolve));
});

test('one command brings up the system, Ctrl-C ends all of it, and the second start is quick', async () => {
  const port = await freePort();
  for (const [args, most] of [[['--brand', 'halden', '--liveliness', 0], 60000], [['--brand', 'greyfen'], 5000]]) {
    const began = performance.now();
    const it = run('--port', port, ...args);
    await started(it);
    const took = performance.now() - began;
    assert.ok(took < most, `${took} ms`);
    assert.match(it.text, new RegExp(`https://localhost:${port}/`));
    assert.match(it.text, /admin, password admin/);
    assert.match(it.text, /operator, password operator-1/);
    assert.equal(await fetchStatus(port, '/'), 200);
    const { server, store } = programs(it);
    assert.ok(lives(server) && lives(store));
    it.child.kill('SIGINT');
    assert.equal(await it.ended, 0);
    await eventually(() => lives(server) || lives(store), either => !either);
  }
  assert.equal(statSync(join(state, 'tls/key.pem')).mode & 0o777, 0o600);
});

test('neither the key nor the state of the switch can be fetched', async () => {
  const port = await freePort();
  const it = run('--port', port);
  await started(it);
  for (const path of ['/.run/tls/key.pem', '/tls/key.pem', '/../tls/key.pem', '/%2e%2e/tls/key.pem', '/resources/../../tls/key.pem', '/run'])
    assert.notEqual(await fetchStatus(port, path), 200, path);
  it.child.kill('SIGTERM');
  assert.equal(await it.ended, 0);
});

test('the server goes down and comes up with its switch', async () => {
  const port = await freePort();
  const it = run('--port', port);
  await started(it);
  const first = programs(it);
  const environment = { ...process.env, NEVO_STORE_SOCKET: /NEVO_STORE_SOCKET=(\S+)/.exec(it.text)[1] };
  execFileSync(fileURLToPath(new URL('../../build/release/zel/zelctl', import.meta.url)), ['reset', 'swx', '1'], { env: environment });
  await eventually(() => lives(first.server), alive => !alive);
  await eventually(() => programs(it).server, now => now > 0);
  await eventually(() => fetchStatus(port, '/').catch(() => 0), status => status === 200);
  assert.equal(programs(it).store, first.store);
  it.child.kill('SIGINT');
  assert.equal(await it.ended, 0);
});

test('a server or a store that ends by accident is started again', async () => {
  const port = await freePort();
  const it = run('--port', port);
  await started(it);
  const first = programs(it);
  process.kill(first.server, 'SIGKILL');
  await eventually(() => programs(it).server, now => now > 0 && now !== first.server);
  await eventually(() => fetchStatus(port, '/').catch(() => 0), status => status === 200);
  process.kill(first.store, 'SIGKILL');
  await eventually(() => programs(it).store, now => now > 0 && now !== first.store);
  it.child.kill('SIGINT');
  assert.equal(await it.ended, 0);
});
