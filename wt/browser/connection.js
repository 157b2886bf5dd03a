// SPDX-License-Identifier: MIT
// The connection to the session, which outlives its WebSocket: both sides send again what the other may have missed.

import { busy, overlay } from './absence.js';
import { takeNews } from './messages.js';
import { apply, pageCommands, texts } from './page.js';

const resendAfter = [300, 700, 1500, 3000, 5000];
const ackAfterUpdates = 20;

let socket = null;
let token = '';
let ready = false;      // messages may be sent
let leaving = false;
let ended = '';         // why the session is over
let attempts = 0;
let retry = 0;
let sent = 0;           // number of the last message to the server
let outbox = [];        // messages that the server has not acknowledged: [number, object]
let seen = 0;           // number of the last update
let seenTold = 0;

export function flush() {
  const news = takeNews();
  if (!news) return;
  const message = { n: ++sent, ...news };
  outbox.push([message.n, message]);
  if (ready) send(message);
  busy(true);
}

function send(message) {
  message.a = seenTold = seen;
  socket.send(JSON.stringify(message));
}

function acknowledged(number) {
  while (outbox.length && outbox[0][0] <= number) outbox.shift();
  if (!outbox.length) busy(false);
}

const receivers = {
  token(message) {
    token = message.token;
    ready = true;
    for (const [, waiting] of outbox) send(waiting);
  },
  resumed(message) {
    acknowledged(message.resumed);
    ready = true;
    for (const [, waiting] of outbox) send(waiting);
    overlay(false);
  },
  reload() {
    leaving = true;
    // A server that sends every page away again is not to be asked without pause.
    setTimeout(() => location.reload(), performance.now() < 5000 ? 3000 : 0);
  },
  quit({ quit }) {
    ended = quit.text || texts.ended;
    token = '';
    busy(false);
    if (quit.url !== undefined) go(quit.url);
    else if (quit.now) overlay(true, ended);
    else for (const type of ['click', 'keydown']) document.addEventListener(type, () => overlay(true, ended), { once: true });
  },
  busy({ busy: text }) {
    ended = text;
    overlay(true, text);
  },
};

function receive(message) {
  attempts = 0;
  for (const kind in receivers) if (kind in message) return receivers[kind](message);
  if (message.a !== undefined) acknowledged(message.a);
  if (message.n === undefined || message.n <= seen) return;
  seen = message.n;
  if (message.o) apply(message.o);
  if (seen - seenTold >= ackAfterUpdates && ready) {
    seenTold = seen;
    socket.send(JSON.stringify({ a: seen }));
  }
}

pageCommands.redirect = go;

function go(url) {
  const target = new URL(url, location.href);
  if (!/^https?:$/.test(target.protocol)) return;
  leaving = true;
  if (target.href === location.href || url === '?') location.reload();
  else location.assign(target);
}

export function connect() {
  const url = new URL('?request=ws', location.href);
  url.protocol = url.protocol.replace('http', 'ws');
  url.hash = '';
  socket = new WebSocket(url);
  socket.onopen = () => socket.send(JSON.stringify(token ? { resume: token, a: seenTold = seen } : { hello: {
    query: location.search.slice(1),
    tz: -new Date().getTimezoneOffset(),
    w: screen.width,
    h: screen.height,
    lang: navigator.language,
  } }));
  socket.onmessage = e => receive(JSON.parse(e.data));
  socket.onclose = () => {
    ready = false;
    if (leaving || ended) return;
    overlay(true, texts.lost);
    clearTimeout(retry);
    retry = setTimeout(connect, resendAfter[Math.min(attempts++, resendAfter.length - 1)]);
  };
}

addEventListener('pagehide', () => {
  leaving = true;
  socket?.close(4000);
});
addEventListener('pageshow', e => { if (e.persisted) location.reload(); });
addEventListener('online', () => {
  if (socket?.readyState !== WebSocket.CLOSED || ended || leaving) return;
  clearTimeout(retry);
  connect();
});
