// SPDX-License-Identifier: MIT
// Runs the toolkit's page (bench_page) under the driver that measured other toolkits with it, and prints the figures
// beside theirs as one JSON object. usage: node page.mjs PROGRAM DRIVER FOLDER
// FOLDER is for files of the run; it must let the driver find playwright-core.
import { execFileSync, spawn } from 'node:child_process';
import { copyFileSync, mkdirSync, readFileSync, statSync, symlinkSync, existsSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { freePort, listening } from '../tests/browser/ports.mjs';

const [program, driver, folder] = process.argv.slice(2);
const here = fileURLToPath(new URL('.', import.meta.url));
const competitors = JSON.parse(readFileSync(join(here, 'competitors.json'), 'utf8'));
const limits = {
  resident_at_start_mb: { most: 10, aim: 7 }, first_page_bytes: { most: 50 * 1024, aim: 25 * 1024 },
  open_list_bytes: { most: 25 * 1024, aim: 10 * 1024 },
  'list_20s_bytes, 500 rows': { most: 300, aim: 300 }, 'list_20s_cpu_s, 500 rows': { most: 0.03, aim: 0.01 },
  'list_20s_bytes, 10 changed': { most: 3 * 1024, aim: 2 * 1024 },
  'list_20s_bytes, 5000 rows': { most: 300, aim: 300 }, 'list_20s_cpu_s, 5000 rows': { most: 0.3, aim: 0.1 },
  'per_further_page_mb, 500 rows': { most: 1.5, aim: 0.7 }, 'per_further_page_mb, 5000 rows': { most: 10, aim: 5 },
  stripped_program_mb: { most: 5, aim: 3 },
};

mkdirSync(join(folder, 'www'), { recursive: true });
copyFileSync(driver, join(folder, 'driver.mjs'));
if (!existsSync(join(folder, 'node_modules'))) symlinkSync(join(here, '../tests/browser/node_modules'), join(folder, 'node_modules'));
const stripped = join(folder, 'stripped');
execFileSync('strip', ['-o', stripped, program]);

async function run(rows, changed) {
  const port = await freePort();
  const server = spawn(program, [`--docroot=${join(folder, 'www')}`, '--http-address=127.0.0.1', `--http-port=${port}`, '--accesslog=-'],
    { stdio: ['ignore', 'ignore', 'inherit'], env: { ...process.env, PEER_ROWS: rows, PEER_CHANGED: changed } });
  let alive = true;
  server.once('exit', () => { alive = false; });
  try {
    await listening(port, () => alive);
    const line = execFileSync(process.execPath, [join(folder, 'driver.mjs'), 'bench_page', server.pid, `http://127.0.0.1:${port}/`, '10'],
      { encoding: 'utf8', stdio: ['ignore', 'pipe', 'inherit'] });
    const o = JSON.parse(line);
    return {
      resident_at_start_mb: +(o.rss0 / 1024).toFixed(1), first_page_bytes: o.first_bytes, open_list_bytes: o.list_bytes,
      list_20s_bytes: o.idle20s_bytes, list_20s_cpu_s: o.idle20s_cpu_ticks / 100, open_form_bytes: o.settings_bytes,
      dialog_bytes: o.ask_bytes, per_further_page_mb: +(o.perSession_kB / 1024).toFixed(2),
    };
  } finally {
    if (alive) await new Promise(resolve => { server.once('exit', resolve); server.kill('SIGTERM'); });
  }
}

const results = [];
for (const [rows, changed] of [[500, 0], [500, 10], [5000, 0]])
  results.push({ rows, changed, figures: await run(rows, changed) });

const table = {};
for (const figure of Object.keys(results[0].figures))
  table[figure] = results.map(({ rows, changed, figures }) => {
    const cell = { rows, changed, ours: figures[figure] };
    competitors.columns.forEach((column, i) => {
      if (column.rows === rows && column.changed === changed) cell[column.name] = competitors.figures[figure]?.[i];
    });
    return cell;
  });
console.log(JSON.stringify({ table, stripped_program_mb: +(statSync(stripped).size / 2 ** 20).toFixed(2), limits }, null, 2));
