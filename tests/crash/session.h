#pragma once

// One launch of something that plays, on any store. What it does depends on nothing but what the store held
// at the launch and the numbers of the actions since: so the same session can be played twice, once in a
// process that is killed and once in memory, and what the two stores hold can be compared.

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

  // One player action, made durable before this returns.
  virtual void act(std::uint64_t number) = 0;
};

// What a launch itself writes is durable when it returns.
using Launch = std::unique_ptr<Session> (*)(StorePort& port);

// The real game: a career played by pressing, typing and sliding whatever the page offers.
std::unique_ptr<Session> playGame(StorePort& port);

// The hardest case for a store: every action writes scalars, changes lists at both ends and in the middle,
// empties and replaces some, and now and then puts another career in the place of this one.
std::unique_ptr<Session> keepBooks(StorePort& port);

}  // namespace tb::crash
