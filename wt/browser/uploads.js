// SPDX-License-Identifier: MIT
// Uploads of files.

import { tell } from './messages.js';
import { behaviours, commands, handle, unhandle } from './page.js';

const transfers = new WeakMap();

/// Sends the chosen file, apart from the connection that events take. The server knows of the end by itself, but for
/// what never reaches it.
commands.upload = (el, url, largest) => {
  const file = el.querySelector('input[type=file]').files[0];
  if (!file) return tell(el, 'upload:empty');
  if (file.size > largest) return tell(el, 'upload:toolarge', { a: [file.size] });
  const form = new FormData();
  form.append('file', file, file.name);
  const request = new XMLHttpRequest();
  transfers.set(el, request);
  request.open('POST', url);
  request.onloadend = () => {
    transfers.delete(el);
    if (request.status === 413) tell(el, 'upload:toolarge', { a: [file.size] });
    else if (request.status !== 200) tell(el, 'upload:failed');
  };
  request.send(form);
};

behaviours.upload = {
  attach(el) { handle(el, 'upload', { submit(e) { e.preventDefault(); } }); },
  detach(el) {
    unhandle('upload')(el);
    transfers.get(el)?.abort();
  },
};
