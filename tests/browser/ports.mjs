// SPDX-License-Identifier: MIT
// Ports of this machine: free ones, waiting for a server, and a line between browser and server that a test can cut.
import { connect, createServer } from 'node:net';
import { setTimeout as pause } from 'node:timers/promises';

/// A port that nothing listens on at this moment.
export async function freePort() {
  const server = createServer();
  await new Promise((resolve, reject) => server.once('error', reject).listen(0, '127.0.0.1', resolve));
  const { port } = server.address();
  await new Promise(resolve => server.close(resolve));
  return port;
}

/// Waits until something listens on the port. `alive` says whether that may still happen.
export async function listening(port, alive, milliseconds = 20000) {
  for (const end = Date.now() + milliseconds; Date.now() < end; await pause(30)) {
    if (!alive()) throw new Error('The server has ended before it listened.');
    const there = await new Promise(resolve => {
      const socket = connect(port, '127.0.0.1', () => { socket.destroy(); resolve(true); });
      socket.once('error', () => resolve(false));
    });
    if (there) return;
  }
  throw new Error(`Nothing listens on port ${port}.`);
}

/// Passes what one socket says to the other, so many milliseconds later and in order, and its end behind that.
function passOn(one, other, delay) {
  let last = Promise.resolve();
  one.on('data', bytes => {
    const due = pause(delay());
    last = last.then(() => due).then(() => other.destroyed || other.write(bytes));
  });
  one.on('close', () => last.then(() => other.end()));
}

/// A line to `target`, a port: cut() breaks what is open and takes nothing new, heal() mends it, silence() swallows what
/// open connections say. `delay`, to be set, is the time in milliseconds that everything takes on its way.
export async function openLine(target) {
  const open = new Set();
  let whole = true;
  const line = { delay: 0 };
  const server = createServer(near => {
    if (!whole) return near.destroy();
    const far = connect(target, '127.0.0.1');
    for (const [one, other] of [[near, far], [far, near]]) {
      open.add(one);
      one.on('error', () => {});
      one.on('close', () => open.delete(one));
      passOn(one, other, () => line.delay);
    }
  });
  await new Promise(resolve => server.listen(0, '127.0.0.1', resolve));
  return Object.assign(line, {
    port: server.address().port,
    cut() { whole = false; for (const socket of open) socket.destroy(); },
    heal() { whole = true; },
    silence() { for (const socket of open) socket.removeAllListeners('data').removeAllListeners('close').resume(); },
    async end() { this.cut(); await new Promise(resolve => server.close(resolve)); },
  });
}
