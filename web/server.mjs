// A local static file server with compression, for playing and for tests.

import { createReadStream } from "node:fs";
import { readFile, stat } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, normalize, sep } from "node:path";
import { promisify } from "node:util";
import { brotliCompress, constants, gzip } from "node:zlib";

const types = {
  ".css": "text/css; charset=utf-8",
  ".html": "text/html; charset=utf-8",
  ".js": "text/javascript; charset=utf-8",
  ".png": "image/png",
  ".svg": "image/svg+xml",
  ".txt": "text/plain; charset=utf-8",
  ".wasm": "application/wasm",
  ".webmanifest": "application/manifest+json",
  ".woff2": "font/woff2",
};
export const serverName = "Top Billing";
const alreadySmall = new Set([".png", ".woff2"]);

const encoders = {
  br: (content) => promisify(brotliCompress)(content, { params: { [constants.BROTLI_PARAM_QUALITY]: 9 } }),
  gzip: (content) => promisify(gzip)(content, { level: 9 }),
};

// Files with a hash in their name never change. All others are revalidated, so that a new version is found at
// once.
function cacheControl(name) {
  return /-[0-9a-f]{10}\.\w+$/.test(name) ? "public, max-age=31536000, immutable" : "no-store";
}

class Site {
  #folder;
  #sent; // callback with the size of each response
  #compressed = new Map(); // by encoding, name and time of change

  constructor(folder, sent) {
    this.#folder = folder;
    this.#sent = sent;
  }

  async answer(request, response) {
    if (request.method !== "GET" && request.method !== "HEAD") return refuse(response, 405);
    const file = this.#fileOf(request.url ?? "/");
    const found = file && (await stat(file).catch(() => undefined));
    if (!found?.isFile()) return refuse(response, 404);

    const ending = extname(file);
    const headers = {
      "Content-Type": types[ending] ?? "application/octet-stream",
      "Cache-Control": cacheControl(file),
      "X-Content-Type-Options": "nosniff",
      Server: serverName,
      Vary: "Accept-Encoding",
    };
    const encoding = alreadySmall.has(ending) ? undefined : wantedEncoding(request);
    if (!encoding) {
      response.writeHead(200, { ...headers, "Content-Length": found.size });
      if (request.method === "HEAD") return response.end();
      this.#sent(found.size);
      return createReadStream(file).pipe(response);
    }
    const content = await this.#compress(encoding, file, found.mtimeMs);
    response.writeHead(200, {
      ...headers,
      "Content-Encoding": encoding,
      "Content-Length": content.length,
    });
    if (request.method === "HEAD") return response.end();
    this.#sent(content.length);
    return response.end(content);
  }

  // The file of an address; none when it is outside the folder.
  #fileOf(url) {
    let path;
    try {
      path = decodeURIComponent(new URL(url, "http://localhost").pathname);
    } catch {
      return undefined;
    }
    const file = normalize(join(this.#folder, path.endsWith("/") ? `${path}index.html` : path));
    return file.startsWith(this.#folder + sep) ? file : undefined;
  }

  #compress(encoding, file, changed) {
    const name = `${encoding} ${changed} ${file}`;
    if (!this.#compressed.has(name)) this.#compressed.set(name, compressed(encoding, file));
    return this.#compressed.get(name);
  }
}

// The precompressed file, or compressed now.
async function compressed(encoding, file) {
  const made = () => readFile(file).then(encoders[encoding]);
  return encoding === "br" ? readFile(`${file}.br`).catch(made) : made();
}

// The best encoding that the browser accepts: gzip for "gzip, br;q=0".
function wantedEncoding(request) {
  const listed = String(request.headers["accept-encoding"] ?? "").split(",");
  const accepted = listed.filter((part) => !/;\s*q=0(\.0*)?\s*$/.test(part)).map((part) => part.split(";")[0].trim());
  return Object.keys(encoders).find((encoding) => accepted.includes(encoding));
}

function refuse(response, status) {
  response.writeHead(status, { "Content-Type": "text/plain" });
  response.end(status === 404 ? "Not found\n" : "Not allowed\n");
}

// Serves the folder on the port; 0 means any free port. Resolves to the address and a function to stop, once it
// is listening. Rejects with EADDRINUSE when the port is taken: on another port browsers keep another career.
// `sent` is called with the size of each response body in bytes.
export function serve(folder, port, sent = () => undefined) {
  const site = new Site(normalize(folder), sent);
  const server = createServer((request, response) => {
    site.answer(request, response).catch(() => refuse(response, 500));
  });
  return new Promise((resolve, reject) => {
    server.on("error", reject);
    server.on("listening", () => {
      resolve({
        address: `http://localhost:${server.address().port}/`,
        stop: () =>
          new Promise((stopped) => {
            server.close(stopped);
            server.closeAllConnections();
          }),
      });
    });
    server.listen(port, "127.0.0.1");
  });
}
