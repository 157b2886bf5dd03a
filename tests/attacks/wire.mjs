// SPDX-License-Identifier: MIT
// What an attacker has: bytes on sockets. Raw connections, requests, WebSocket frames, right and wrong ones, and a page
// of the system that is driven without a browser.
import { randomBytes } from 'node:crypto';
import { connect as connectTcp } from 'node:net';
import { setTimeout as pause } from 'node:timers/promises';
import { connect as connectTls } from 'node:tls';

/// Waits until `test` is true, for so many milliseconds at most; whether it came true.
export async function until(test, milliseconds, step = 20) {
  for (const end = performance.now() + milliseconds; performance.now() < end; await pause(step))
    if (await test()) return true;
  return Boolean(await test());
}

/// One connection. `got` is what came, `closed` whether it is over.
export class Line {
  got = Buffer.alloc(0);
  closed = false;
  reads = true;

  /// from: the address that this end has, such as 127.0.0.2; clear: without TLS.
  static open(port, { from, clear = false } = {}) {
    return new Promise(resolve => {
      const line = new Line();
      const socket = connectTcp({ port, host: '127.0.0.1', localAddress: from });
      socket.setNoDelay(true);
      line.socket = clear ? socket : connectTls({ socket, rejectUnauthorized: false, servername: 'localhost' });
      line.socket.on('data', bytes => line.take(bytes));
      for (const end of [socket, line.socket])
        for (const event of ['error', 'end', 'close'])
          end.on(event, () => { line.closed = true; line.changed?.(); resolve(line); });
      line.socket.once(clear ? 'connect' : 'secureConnect', () => resolve(line));
    });
  }

  take(bytes) {
    this.got = Buffer.concat([this.got, bytes]);
    this.changed?.();
  }

  /// Sends; resolves when the system has taken it.
  send(bytes) {
    return new Promise(resolve => this.closed ? resolve() : this.socket.write(bytes, () => resolve()));
  }

  /// Reads no more, so that what the peer says piles up at its end.
  deafen() { this.socket.pause(); }
  end() { this.socket.destroy(); }

  waitFor(test, milliseconds = 5000) { return until(() => this.closed || test(this), milliseconds); }
  text() { return this.got.toString('latin1'); }
}

/// Sends one request as it stands and gives the status of each answer, [] if there is none.
export async function ask(port, request, { wait = 1500, ...how } = {}) {
  const line = await Line.open(port, how);
  await line.send(request);
  await line.waitFor(() => false, wait);
  line.end();
  return { statuses: [...line.text().matchAll(/HTTP\/1\.1 (\d{3}) /g)].map(found => Number(found[1])),
    text: line.text(), closed: line.closed };
}

/// A simple GET whose connection closes after the answer.
export const get = (port, path, { host = 'localhost', fields = '', ...how } = {}) =>
  ask(port, `GET ${path} HTTP/1.1\r\nHost: ${host}\r\n${fields}Connection: close\r\n\r\n`, { wait: 5000, ...how });

/// A frame as a browser sends it. `announced` may lie about the length; `masked` and `final` may be wrong as well.
export function frame(payload, { opcode = 1, final = true, announced } = {}) {
  const body = Buffer.from(payload);
  const length = announced ?? body.length;
  const mask = randomBytes(4);
  const head = length < 126 ? Buffer.from([0, 0x80 | length])
    : length < 65536 ? Buffer.from([0, 0xfe, length >> 8, length & 255])
      : Buffer.concat([Buffer.from([0, 0xff]), (size => { size.writeBigUInt64BE(BigInt(length)); return size; })(Buffer.alloc(8))]);
  head[0] = (final ? 0x80 : 0) | opcode;
  for (let i = 0; i < body.length; ++i) body[i] ^= mask[i & 3];
  return Buffer.concat([head, mask, body]);
}

/// Opens a WebSocket without greeting. `status` is 101 where that worked, 0 where nothing was answered.
export async function openSocket(port, { host = `localhost:${port}`, origin, ...how } = {}) {
  const line = await Line.open(port, how);
  await line.send(`GET /?request=ws HTTP/1.1\r\nHost: ${host}\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n`
    + `Sec-WebSocket-Key: ${randomBytes(16).toString('base64')}\r\nSec-WebSocket-Version: 13\r\n`
    + `Origin: ${origin ?? `${how.clear ? 'http' : 'https'}://${host}`}\r\n\r\n`);
  await line.waitFor(() => line.got.includes('\r\n\r\n'));
  const end = line.got.indexOf('\r\n\r\n');
  line.status = Number(/^HTTP\/1\.1 (\d{3})/.exec(line.text())?.[1] ?? 0);
  line.got = end < 0 ? line.got : line.got.subarray(end + 4);
  return line;
}

export const hello = JSON.stringify({ hello: { query: '', tz: 0, w: 1280, h: 800, lang: 'en' } });

/// A page as its script would drive it: opens, greets, keeps the numbers, knows the elements that it was told of.
export class Page {
  elements = new Map();   // number -> {tag, settings, parent}
  messages = [];
  sent = 0;
  seen = 0;
  acknowledges = true;
  bytes = 0;

  /// Null where no connection could be had. The page is greeted, and may still be refused: see `token`, `busy`.
  static async open(port, how = {}) {
    const page = new Page();
    page.line = await openSocket(port, how);
    if (page.line.status !== 101) { page.line.end(); return null; }
    page.line.changed = () => page.#takeFrames();
    await page.line.send(frame(how.greeting ?? hello));
    page.#takeFrames();
    return page;
  }

  /// The same, once it has been drawn or refused.
  static async drawn(port, how) {
    const page = await Page.open(port, how);
    await page?.waitFor(() => page.elements.size > 0 || page.busy);
    return page;
  }

  get closed() { return this.line.closed; }
  end() { this.line.end(); }
  waitFor(test, milliseconds = 8000) { return until(() => test() || this.closed, milliseconds, 2).then(() => Boolean(test())); }

  #takeFrames() {
    for (;;) {
      const got = this.line.got;
      if (got.length < 2) return;
      const short = got[1] & 127;
      const headSize = short === 126 ? 4 : short === 127 ? 10 : 2;
      if (got.length < headSize) return;
      const length = short === 126 ? got.readUInt16BE(2) : short === 127 ? Number(got.readBigUInt64BE(2)) : short;
      if (got.length < headSize + length) return;
      const payload = got.subarray(headSize, headSize + length);
      this.line.got = got.subarray(headSize + length);
      this.bytes += length;
      if ((got[0] & 15) === 1) this.#take(payload.toString());
      else if ((got[0] & 15) === 9) this.line.send(frame(payload, { opcode: 10 }));
      else if ((got[0] & 15) === 8) this.closeCode = length >= 2 ? payload.readUInt16BE(0) : 1005;
    }
  }

  #take(text) {
    const message = JSON.parse(text);
    if (message.token) this.token = message.token;
    if (message.busy) this.busy = message.busy;
    if (message.quit) this.quit = message.quit;
    if (message.reload) this.reload = true;
    if (message.n > this.seen) this.seen = message.n;
    this.lastText = text;
    for (const [kind, ...rest] of message.o ?? []) this.#operation(kind, rest);
    this.messages.push(message);
    if (message.o) ++this.updates;
  }

  updates = 0;

  #operation(kind, rest) {
    if (kind === 'c') this.#grow(rest[2], rest[0]);
    else if (kind === 's') Object.assign(this.elements.get(rest[0])?.settings ?? {}, rest[1]);
    else if (kind === 'm' && this.elements.has(rest[0])) this.elements.get(rest[0]).parent = rest[1];
    else if (kind === 'r') this.#remove(rest[0]);
  }

  #grow([id, tag, settings, ...children], parent) {
    this.elements.set(id, { id, tag, settings: { ...settings }, parent });
    for (const child of children) this.#grow(child, id);
  }

  #remove(id) {
    this.elements.delete(id);
    for (const element of [...this.elements.values()]) if (element.parent === id) this.#remove(element.id);
  }

  find(test) { return [...this.elements.values()].find(test); }
  /// The last element of that tag, so the one on top, that says the text itself or in an element within it.
  saying(tag, text) {
    let found = null;
    for (const element of this.elements.values()) {
      if (!Object.values(element.settings).includes(text)) continue;
      for (let at = element; at; at = this.elements.get(at.parent)) if (at.tag === tag) { found = at; break; }
    }
    return found;
  }
  says(text) { return Boolean(this.find(element => Object.values(element.settings).some(value => String(value).includes(text)))); }

  /// Sends the next message; resolves when the system has taken it.
  tell(rest) {
    const message = { n: ++this.sent, ...(this.acknowledges ? { a: this.seen } : { a: 0 }), ...rest };
    return this.line.send(frame(JSON.stringify(message)));
  }

  /// Sends events and waits until they are answered; milliseconds, or null if they were not.
  async act(events, rest = {}, milliseconds = 8000) {
    const began = performance.now();
    const number = this.sent + 1;
    const before = this.messages.length;
    await this.tell({ ...rest, e: events });
    const answered = await this.waitFor(() => this.messages.slice(before).some(message => message.a >= number), milliseconds);
    return answered ? performance.now() - began : null;
  }

  click(element, rest) { return this.act([[element.id, 'click', { b: 1 }]], rest); }

  get fields() { return [...this.elements.values()].filter(element => element.tag === 'input'); }
  get password() { return this.fields.find(field => JSON.stringify(field.settings).includes('password')); }
  get userName() { return this.fields.find(field => field !== this.password && field.id < this.password?.id); }

  /// Fills the login form in and presses "Log In". The form must be shown.
  tryLogin(name, password) {
    return this.click(this.saying('button', 'Log In'), { v: { [this.userName.id]: name, [this.password.id]: password } });
  }

  /// Whether somebody came in.
  async logIn(name = 'operator', password = 'operator-1') {
    await this.waitFor(() => this.password && this.saying('button', 'Log In'));
    await this.tryLogin(name, password);
    return this.waitFor(() => this.says('Dashboard') && !this.password);
  }
}
