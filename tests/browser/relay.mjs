// SPDX-License-Identifier: MIT
// A relay between the store's socket and whoever asks the store, which notes every request that passes.
import { connect, createServer } from 'node:net';

/// Takes the frames off a stream: a length of 4 bytes, most significant first, and so many bytes of JSON.
function frameReader(onFrame) {
  let rest = Buffer.alloc(0);
  return bytes => {
    rest = Buffer.concat([rest, bytes]);
    while (rest.length >= 4 && rest.length >= 4 + rest.readUInt32BE(0)) {
      const end = 4 + rest.readUInt32BE(0);
      onFrame(JSON.parse(rest.subarray(4, end)));
      rest = rest.subarray(end);
    }
  };
}

/// Listens on the socket `path` and passes everything to and from the socket `target`.
export async function openRelay(path, target) {
  const requests = [];
  const open = new Set();
  const server = createServer(near => {
    const far = connect(target);
    const read = frameReader(({ have, ...request }) => requests.push(request));
    near.on('data', read);
    for (const [one, other] of [[near, far], [far, near]]) {
      open.add(one);
      one.on('error', () => {});
      one.on('close', () => { open.delete(one); other.destroy(); });
      one.pipe(other);
    }
  });
  await new Promise((resolve, reject) => server.once('error', reject).listen(path, resolve));
  return {
    requests,
    /// The parameters of all writes so far, in order, with their resource.
    writes: () => requests.filter(request => request.method === 'SET').map(({ resource, params }) => ({ resource, ...params })),
    forget() { requests.length = 0; },
    async end() { for (const socket of open) socket.destroy(); await new Promise(resolve => server.close(resolve)); },
  };
}
