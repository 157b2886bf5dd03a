// SPDX-License-Identifier: MIT
// Attacks on a release build of the server with its simulated switch, on this machine only: prints one line for each
// with its verdict, and last how many held.
//
//   node attack.mjs [NAME...] [--all] [--list]         NEVO_BUILD: the build's folder (build/release)
//
// Without names those that together take less than a minute; --all takes the long ones, too. Each attack has a server
// and a switch of its own, and is bounded in count and time.
import { mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync, mkdirSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { parseArgs } from 'node:util';
import { startRig } from '../browser/rig.mjs';
import { attacks as http } from './http.mjs';
import { attacks as load } from './load.mjs';
import { attacks as pages } from './pages.mjs';
import { attacks as sockets } from './sockets.mjs';

const longestMs = 60000, longestSlowMs = 240000;
const attacks = { ...http, ...sockets, ...pages, ...load };
const { values: options, positionals: names } = parseArgs({ allowPositionals: true, options: {
  all: { type: 'boolean' }, list: { type: 'boolean' },
} });
const unknown = names.filter(name => !attacks[name]);
if (unknown.length) {
  console.error(`There is no attack "${unknown[0]}"; see --list.`);
  process.exit(2);
}
if (options.list) {
  for (const [name, attack] of Object.entries(attacks)) console.log(`${name.padEnd(20)} ${attack.says}${attack.slow ? ' (long)' : ''}`);
  process.exit(0);
}

/// A system for one attack, with what the attacks want to know of it.
async function system({ config, store, ...rest } = {}) {
  const folder = mkdtempSync(join(tmpdir(), 'attack-'));
  const spool = join(folder, 'spool');
  mkdirSync(spool);
  const words = ['--servername=switch.test,kvm.switch.test'];
  if (config) {
    writeFileSync(join(folder, 'wt_config.xml'),
      `<server><application-settings location="*">${config}</application-settings></server>`);
    words.push(`--config=${join(folder, 'wt_config.xml')}`);
  }
  const rig = await startRig({ store: store ?? [], server: words, environment: { TMPDIR: spool }, ...rest });
  const status = (name, of) => Number(new RegExp(`${name}:\\s+(\\d+)`).exec(readFileSync(`/proc/${of.pid}/status`, 'utf8'))[1]);
  return Object.assign(rig, {
    spool,
    resident: () => status('VmRSS', rig.server) / 1024,
    descriptors: () => readdirSync(`/proc/${rig.server.pid}/fd`).length,
    async finish() {
      await rig.end();
      rmSync(folder, { recursive: true, force: true });
    },
  });
}

async function verdict(name, { run, options: wanted, slow }) {
  const faults = [];
  const check = (holds, fault) => { if (!holds) faults.push(fault); };
  const rig = await system(wanted);
  const late = new Promise(resolve => setTimeout(resolve, slow ? longestSlowMs : longestMs, 'late').unref());
  try {
    if (await Promise.race([run({ rig, port: rig.port, check }), late]) === 'late') faults.push('it did not end');
    check(rig.serverIsAlive, 'the server ended');
  } catch (error) {
    faults.push(error.stack ?? String(error));
  }
  await rig.finish().catch(error => faults.push(error.message));
  return faults;
}

const chosen = names.length ? names : Object.keys(attacks).filter(name => options.all || !attacks[name].slow);
let held = 0;
for (const name of chosen) {
  const began = performance.now();
  const faults = await verdict(name, attacks[name]);
  held += faults.length === 0;
  const seconds = ((performance.now() - began) / 1000).toFixed(1);
  console.log(`${faults.length ? 'THROUGH' : 'held   '} ${name.padEnd(20)} ${seconds.padStart(5)} s  ${attacks[name].says}`);
  for (const fault of faults.slice(0, 6)) console.log(`        ${fault}`);
  if (faults.length > 6) console.log(`        and ${faults.length - 6} more`);
}
console.log(`${held} held, ${chosen.length - held} got through`);
process.exit(held === chosen.length ? 0 : 1);
