#pragma once

// What the game needs of the page around it: a place for what is saved, and chance.

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "core/random.h"
#include "core/save_store.h"

namespace tb {

// The pieces come in once, when the store is opened; each commit goes out as one message, which the page puts
// into one transaction before the player's next action can begin. The page learns only later whether the
// browser took it: it keeps what was not taken, adds it to the next commit, and tells App::savingFailed.
class HostPort : public StorePort {
 public:
  explicit HostPort(std::vector<StoredPiece> pieces) : pieces_(std::move(pieces)) {}

  std::vector<StoredPiece> load() override { return std::move(pieces_); }
  std::expected<void, std::string> commit(std::span<const StoreChange> changes) override;

 private:
  std::vector<StoredPiece> pieces_;
};

// The browser's secure generator, asked for many words at a time: crossing the boundary costs more than the
// words do.
class HostRandom : public RandomSource {
 public:
  std::uint64_t next() override;

 private:
  std::array<std::uint64_t, 32> words_ = {};  // 256 bytes: the most that one request gives
  std::size_t used_ = words_.size();
};

}  // namespace tb
