#pragma once

// A deterministic session on a store. It depends only on the store's content at launch and on the action
// numbers, so it can be repeated in memory and compared.

#include <cstdint>
#include <memory>

#include "core/save_store.h"

namespace tb::crash {

class Session {
 public:
  Session() = default;
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  virtual ~Session() = default;

  // One action, durable when it returns.
  virtual void act(std::uint64_t number) = 0;
};

// Opens a session. Its writes are durable when it returns.
using Launch = std::unique_ptr<Session> (*)(StorePort& port);

// The game itself, played by random presses, texts and slides.
std::unique_ptr<Session> playGame(StorePort& port);

// A stress test for the store: every action writes scalars, changes lists at both ends and in the middle,
// clears and replaces some, and sometimes replaces the whole career.
std::unique_ptr<Session> playBookkeeping(StorePort& port);

}  // namespace tb::crash
