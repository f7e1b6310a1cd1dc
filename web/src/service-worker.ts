// Keeps the game for play without a network. VERSION is a hash over all FILES, which the build fills in; each
// version has a cache of its own, filled as a whole or not at all, and gone once the next one is in use.

export {}; // a module: its names are its own

declare const self: ServiceWorkerGlobalScope;
declare const VERSION: string;
declare const FILES: readonly string[];

// An origin may hold the game under several paths.
const cachePrefix = `top-billing ${self.registration.scope} `;
const cacheName = cachePrefix + VERSION;
const entry = "./";

// A name with a hash in it never changes its content, so a copy that the browser has, as on the first visit, is
// as good as the network's. The few other files have to come from there, to be of this version.
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
