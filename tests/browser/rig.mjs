// SPDX-License-Identifier: MIT
// A whole system for one test file: a simulated switch and the web server, on ports and folders of their own.
import { execFile, execFileSync, spawn } from 'node:child_process';
import { cpSync, existsSync, mkdirSync, mkdtempSync, readFileSync, rmSync, symlinkSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { createInterface } from 'node:readline';
import { fileURLToPath } from 'node:url';
import { promisify } from 'node:util';
import { freePort, listening, openLine } from './ports.mjs';

const root = fileURLToPath(new URL('../..', import.meta.url));
const build = process.env.NEVO_BUILD ?? join(root, 'build/release');
export const version = /project\(nevo VERSION ([\d.]+)/.exec(readFileSync(join(root, 'CMakeLists.txt'), 'utf8'))[1];

/// Certificate, key and parameters for `folder`. The key is small, for speed.
function makeTls(folder) {
  const key = join(folder, 'key.pem'), certificate = join(folder, 'certificate.pem'), dh = join(folder, 'dh.pem');
  const openssl = (...args) => execFileSync('openssl', args, { stdio: 'pipe' });
  openssl('req', '-x509', '-newkey', 'ec', '-pkeyopt', 'ec_paramgen_curve:prime256v1', '-nodes', '-days', '2',
    '-subj', '/CN=localhost', '-addext', 'subjectAltName=DNS:localhost', '-keyout', key, '-out', certificate);
  execFileSync('chmod', ['600', key]);
  openssl('genpkey', '-genparam', '-algorithm', 'DH', '-pkeyopt', 'group:ffdhe2048', '-out', dh);
  return [`--ssl-certificate=${certificate}`, `--ssl-private-key=${key}`, `--ssl-tmp-dh=${dh}`];
}

class Rig {
  folder = mkdtempSync(join(tmpdir(), 'nevo-'));
  output = '';   // what the server wrote
  server = null;
  store = null;
  starts = 0;    // how often the server was started
  isDown = false; // the switch restarts
  restart = Promise.resolve();

  constructor(options) {
    this.options = { brand: 'unknown', liveliness: 0, seed: 1, fleet: 0, store: [], attributes: {}, line: false, server: [], environment: {}, ...options };
    this.environment = {
      ...process.env,
      NEVO_STORE_SOCKET: join(this.folder, 'store'),
      NEVO_ATTRIBUTES: join(this.folder, 'attributes'),
      NEVO_SETTINGS_DIR: join(this.folder, 'settings'),
      NEVO_LOG_STDERR: '1',
      ...this.options.environment,
    };
  }

  async start({ store = true } = {}) {
    const { brand, attributes } = this.options;
    const all = {
      'switch.oem.short': brand, 'firmware.appversion': version, 'vendor.website': 'https://vendor.example/', ...attributes,
    };
    writeFileSync(this.environment.NEVO_ATTRIBUTES, Object.entries(all).map(([key, value]) => `${key}=${value}\n`).join(''));
    mkdirSync(join(this.folder, 'www/resources'), { recursive: true });
    for (const part of ['themes', 'msgs-general.xml'])
      cpSync(join(root, 'resources', part), join(this.folder, 'www/resources', part), { recursive: true });
    // Icons are files of the switch and parts of pages under the same path, so they lie below the document root.
    const settings = this.environment.NEVO_SETTINGS_DIR;
    mkdirSync(join(this.folder, 'www', settings, 'icons'), { recursive: true });
    mkdirSync(settings);
    symlinkSync(join(this.folder, 'www', settings, 'icons'), join(settings, 'icons'));
    this.tls = makeTls(this.folder);
    this.port = await freePort();
    if (store) await this.startStore();
    await this.startServer();
    this.line = this.options.line ? await openLine(this.port) : null;
    const port = this.line ? this.line.port : this.port;
    this.url = `https://localhost:${port}/`;
    this.plainUrl = `http://localhost:${port}/`;
    return this;
  }

  async startStore() {
    const { brand, liveliness, seed, fleet } = this.options;
    const args = ['--socket', this.environment.NEVO_STORE_SOCKET, '--database', join(this.folder, 'switch.db'),
      '--oem', brand,
      '--liveliness', liveliness, '--seed', seed, '--password-rounds', 1000, ...(fleet ? ['--fleet', fleet] : []), ...this.options.store];
    const child = this.store = spawn(join(build, 'zel/zelsim'), args.map(String), { stdio: ['ignore', 'pipe', 'inherit'], env: this.environment });
    await new Promise((resolve, reject) => {
      createInterface({ input: child.stdout }).on('line', word => {
        if (word === 'ready') resolve();
        this.#follow(word);
      });
      child.once('error', reject).once('exit', () => reject(new Error('The simulated switch has ended.')));
    });
  }

  /// The web server goes down and comes up with its switch.
  #follow(word) {
    if (word === 'restarts') {
      this.isDown = true;
      this.restart = this.restart.then(() => this.stopServer());
    } else if (this.isDown) {
      this.isDown = false;
      this.restart = this.restart.then(() => this.startServer()).catch(() => {});
    }
  }

  /// Ends the simulated switch as a power cut would.
  async killStore() { await this.#end('store', 'SIGKILL'); }

  async startServer() {
    ++this.starts;
    const address = '127.0.0.1';
    const child = this.server = spawn(join(build, 'app/nevo'), [`--docroot=${join(this.folder, 'www')}`,
      `--http-address=${address}`, `--http-port=${this.port}`, `--https-address=${address}`, `--https-port=${this.port}`,
      ...this.tls, '--threads=4', '--accesslog=-', ...this.options.server], { stdio: ['ignore', 'pipe', 'pipe'], env: this.environment });
    for (const stream of [child.stdout, child.stderr]) stream.on('data', text => { this.output += text; });
    let alive = true;
    child.once('exit', status => {
      alive = false;
      // As whatever supervises it on a switch does.
      if (status === 1 && this.server === child) this.startServer().catch(() => {});
    });
    try {
      await listening(this.port, () => alive);
    } catch (error) {
      throw new Error(`${error.message}\n${this.output}`);
    }
  }

  async stopServer() { await this.#end('server', 'SIGTERM'); }
  async killServer() { await this.#end('server', 'SIGKILL'); }

  async #end(name, signal) {
    const child = this[name];
    this[name] = null;
    if (!child || child.exitCode !== null || child.signalCode !== null) return;
    const gone = new Promise(resolve => child.once('exit', resolve));
    child.kill(signal);
    await gone;
  }

  /// Runs a control command on the switch; what it printed.
  async ctl(...words) {
    const { stdout } = await promisify(execFile)(join(build, 'zel/zelctl'), words.map(String), { env: this.environment });
    return stdout;
  }

  /// Whether the server process lived and answered for itself until now.
  get serverIsAlive() { return this.server !== null && this.server.exitCode === null && this.server.signalCode === null; }

  async end() {
    await this.restart;
    const died = this.server && !this.serverIsAlive ? `${this.server.signalCode ?? `status ${this.server.exitCode}`}` : '';
    await this.#end('server', 'SIGTERM');
    await this.#end('store', 'SIGTERM');
    await this.line?.end();
    rmSync(this.folder, { recursive: true, force: true });
    if (died) throw new Error(`The server died (${died}).\n${this.output}`);
  }
}

/// Starts a system. Options: brand, liveliness, seed, fleet, store (more words for the switch's command line),
/// server (more words for the web server's), environment (of both), attributes, and line: true for one that can be cut.
export async function startRig(options = {}, how = {}) {
  if (!existsSync(join(build, 'app/nevo'))) throw new Error(`There is no server in ${build}; build it first.`);
  const rig = new Rig(options);
  try {
    return await rig.start(how);
  } catch (error) {
    await rig.end().catch(() => {});
    throw error;
  }
}
