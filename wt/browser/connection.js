// SPDX-License-Identifier: MIT
// The connection to the session, which outlives its WebSocket: both sides send again what the other may have missed.

import { busy, overlay } from './absence.js';
import { takeNews } from './messages.js';
import { apply, pageCommands, texts } from './page.js';

/// Called when the session has handled the message that told the values of these fields: (fields).
export const whenTold = [];

const resendAfter = [300, 700, 1500, 3000, 5000];
const ackAfterUpdates = 20;
const patience = 2000;     // milliseconds without a connection before the page says so
const quietAfter = 5000;   // milliseconds without a word from the server, after which it is asked for one
const dueAfter = 4000;     // milliseconds in which it is to answer
const answerWithin = 30000; // the same for the first answer on a connection: the session may be at work

let socket = null;
let token = '';
let ready = false;      // messages may be sent
let leaving = false;
let ended = '';         // why the session is over
let attempts = 0;
let retry = 0;
let sent = 0;           // number of the last message to the server
let outbox = [];        // messages that the server has not acknowledged: [number, object, fields whose values it tells]
let seen = 0;           // number of the last update
let seenTold = 0;
let heardAt = 0;        // when the server said something last
let dueSince = 0;       // since when an answer is due; 0 if none is
let isSeen = true;   // whether the session believes that somebody sees the page; each connection begins so
let absence = 0;        // timer, until the page says that it has no connection

export function flush() {
  const news = takeNews();
  if (!news) return;
  enqueue(...news);
  busy(true);
}

function enqueue(news, fields) {
  const message = { n: ++sent, ...news };
  outbox.push([message.n, message, fields]);
  dueSince ||= Date.now();
  if (ready) send(message);
}

function send(message) {
  message.a = seenTold = seen;
  socket.send(JSON.stringify(message));
}

function acknowledged(number) {
  while (outbox.length && outbox[0][0] <= number) {
    const [, , fields] = outbox.shift();
    for (const told of whenTold) told(fields);
  }
  dueSince = outbox.length ? Date.now() : 0;
  if (!outbox.length) busy(false);
}

/// A page that nobody sees, in a tab in the background, needs no news.
function tellVisibility() {
  if (!ready || isSeen === !document.hidden) return;
  isSeen = !document.hidden;
  socket.send(JSON.stringify({ vis: isSeen ? 1 : 0 }));
}

function beReady() {
  ready = true;
  isSeen = true;
  tellVisibility();
  for (const [, waiting] of outbox) send(waiting);
}

const receivers = {
  token(message) {
    token = message.token;
    beReady();
  },
  resumed(message) {
    acknowledged(message.resumed);
    beReady();
    clearTimeout(absence);
    absence = 0;
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
  heardAt = Date.now();
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
  // Whether the page is left shows when it goes: the target may be a file that is only downloaded.
  if (target.href === location.href || url === '?') location.reload();
  else location.assign(target);
}

const greeting = () => ({
  query: location.search.slice(1),
  tz: -new Date().getTimezoneOffset(),
  w: screen.width,
  h: screen.height,
  lang: navigator.language,
});

export function connect() {
  const url = new URL('?request=ws', location.href);
  url.protocol = url.protocol.replace('http', 'ws');
  url.hash = '';
  clearTimeout(retry);
  ready = false;
  const mine = socket = new WebSocket(url);
  mine.onopen = () => mine.send(JSON.stringify(token ? { resume: token, a: seenTold = seen } : { hello: greeting() }));
  setTimeout(() => mine === socket && !ready && lost(), answerWithin);
  mine.onmessage = e => mine === socket && receive(JSON.parse(e.data));
  mine.onclose = () => mine === socket && lost();
  // A line that swallows everything does not even refuse.
  setTimeout(() => mine === socket && mine.readyState === WebSocket.CONNECTING && lost(), dueAfter);
}

/// There is no connection. It is tried for again, and the page says so unless that succeeds soon.
function lost() {
  ready = false;
  if (leaving || ended) return;
  const mine = socket;
  socket = null;
  mine?.close();
  const sentence = token || attempts < 2 ? texts.lost : texts.refused;
  if (document.querySelector('.Wt-offline')) overlay(true, sentence);
  else absence ||= setTimeout(() => overlay(true, texts.lost), patience);
  clearTimeout(retry);
  retry = setTimeout(connect, resendAfter[Math.min(attempts++, resendAfter.length - 1)]);
}

/// A connection may be dead without a word: after a laptop slept, or where a router forgot it. A second one shows.
function tryAnother() {
  if (ended || leaving || !token) return;
  const old = socket;
  dueSince = 0;
  connect();
  old?.close();
}

setInterval(() => {
  if (!ready || document.hidden) return;
  const now = Date.now();
  if (dueSince && now - Math.max(dueSince, heardAt) > dueAfter) tryAnother();
  else if (!outbox.length && now - heardAt > quietAfter) enqueue({}, []);
}, 500);

addEventListener('pagehide', () => {
  leaving = true;
  ready = false;
  socket?.close(4000);
});
addEventListener('pageshow', e => { if (e.persisted) location.reload(); });
for (const [target, type] of [[window, 'online'], [document, 'visibilitychange']]) {
  target.addEventListener(type, () => {
    tellVisibility();
    if (document.hidden || leaving || ended) return;
    if (!socket) connect();
    else if (ready && Date.now() - heardAt > quietAfter) enqueue({}, []);
  });
}
