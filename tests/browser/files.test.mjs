// SPDX-License-Identifier: MIT
// Files that the switch and the interface share.
import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { get } from 'node:https';
import { join } from 'node:path';
import { test } from 'node:test';
import { startRig } from './rig.mjs';

const fetchBytes = (port, path) => new Promise((resolve, reject) => {
  get({ port, host: '127.0.0.1', path, rejectUnauthorized: false }, response => {
    const parts = [];
    response.on('data', part => parts.push(part)).on('end', () => resolve({ status: response.statusCode, bytes: Buffer.concat(parts) }));
  }).on('error', reject);
});

test('an icon of the switch has the address that its file has, also after it was replaced; archives have none', async () => {
  const rig = await startRig();
  try {
    const settings = rig.environment.NEVO_SETTINGS_DIR;
    const icon = join(settings, 'icons/unknown/icon07.png');
    const shown = await fetchBytes(rig.port, icon);
    assert.equal(shown.status, 200);
    assert.equal(shown.bytes.subarray(1, 4).toString(), 'PNG');
    assert.deepEqual(shown.bytes, readFileSync(icon));
    writeFileSync(join(settings, 'icons/unknown/icon17.png'), 'replaced');
    assert.equal((await fetchBytes(rig.port, join(settings, 'icons/unknown/icon17.png'))).bytes.toString(), 'replaced');
    writeFileSync(join(settings, 'settings.tar.gz'), 'secret');
    assert.notEqual((await fetchBytes(rig.port, join(settings, 'settings.tar.gz'))).status, 200);
  } finally {
    await rig.end();
  }
});
