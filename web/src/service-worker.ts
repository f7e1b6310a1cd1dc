// Caches the game for offline play. The build fills in FILES and VERSION, a hash of them. Each version has
// its own cache, which is filled completely or not at all and deleted when the next version is active.

export {}; // makes this file a module

declare const self: ServiceWorkerGlobalScope;
declare const VERSION: string;
declare const FILES: readonly string[];

// An origin can host the game at several paths.
const cachePrefix = `top-billing ${self.registration.scope} `;
const cacheName = cachePrefix + VERSION;
const entry = "./";

// Files with a hash in their name never change, so the HTTP cache can be used. Other files must be fetched
// from the network.
async function keepEverything(): Promise<void> {
  const cache = await caches.open(cacheName);
  const hashed = /-[0-9a-f]{10}\.\w+$/;
  await cache.addAll(
    [entry, ...FILES].map((file) => new Request(file, { cache: hashed.test(file) ? "default" : "reload" })),
  );
}

async function dropOtherVersions(): Promise<void> {
  const names = await caches.keys();
  const others = names.filter((name) => name.startsWith(cachePrefix) && name !== cacheName);
  await Promise.all(others.map((name) => caches.delete(name)));
  await self.clients.claim();
}

async function answer(request: Request): Promise<Response> {
  const cache = await caches.open(cacheName);
  const wanted = request.mode === "navigate" ? entry : request;
  return (await cache.match(wanted, { ignoreSearch: true })) ?? fetch(request);
}

self.addEventListener("install", (event) => event.waitUntil(keepEverything()));
self.addEventListener("activate", (event) => event.waitUntil(dropOtherVersions()));
self.addEventListener("fetch", (event) => {
  if (event.request.method === "GET" && event.request.url.startsWith(self.registration.scope)) {
    event.respondWith(answer(event.request));
  }
});
self.addEventListener("message", (event) => {
  if (event.data === "take over") void self.skipWaiting();
});
