#pragma once

// A deterministic session on a store and its documents. It depends only on their content at launch and on the
// action numbers, so it can be repeated in memory and compared.

#include <cstdint>
#include <memory>

#include "core/documents.h"
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
using Launch = std::unique_ptr<Session> (*)(StorePort& port, Documents& documents);

// The game itself, played by random presses, texts and slides.
std::unique_ptr<Session> playGame(StorePort& port, Documents& documents);

// A stress test for the store: every action writes scalars, changes lists at both ends and in the middle,
// clears and replaces some, and sometimes replaces the whole career, ends a week or takes one back.
std::unique_ptr<Session> playBookkeeping(StorePort& port, Documents& documents);

// Everything that concerns whole careers: weeks, weeks taken back, slots, backups and the bank.
std::unique_ptr<Session> playCareers(StorePort& port, Documents& documents);

}  // namespace tb::crash
