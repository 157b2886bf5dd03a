// SPDX-License-Identifier: MIT
// The gallery's page on a port of its own, behind a line that can be cut and slowed down.
import { spawn } from 'node:child_process';
import { cpSync, mkdirSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { freePort, listening, openLine } from './ports.mjs';

const root = fileURLToPath(new URL('../..', import.meta.url));
const program = join(process.env.NEVO_BUILD ?? join(root, 'build/release'), 'wt/wt_gallery');

export async function startGallery() {
  const folder = mkdtempSync(join(tmpdir(), 'gallery-'));
  mkdirSync(join(folder, 'resources'));
  cpSync(join(root, 'resources/themes'), join(folder, 'resources/themes'), { recursive: true });
  const port = await freePort();
  const server = spawn(program, [`--docroot=${folder}`, '--http-address=127.0.0.1', `--http-port=${port}`, '--accesslog=-']);
  await listening(port, () => server.exitCode === null);
  const line = await openLine(port);
  return {
    line,
    url: `http://127.0.0.1:${line.port}/`,
    async end() {
      const alive = server.exitCode === null;
      await line.end();
      server.kill();
      rmSync(folder, { recursive: true, force: true });
      if (!alive) throw new Error('The gallery died.');
    },
  };
}
