#pragma once

// The services of the page: storage and random numbers.

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "core/random.h"
#include "core/save_store.h"

namespace tb {

// Gets the pieces once, when the store is opened. Each commit is sent as one message, which the page puts
// into one transaction before the next action. If the browser rejects it later, the page adds the changes to
// the next commit and calls App::savingFailed.
class HostPort : public StorePort {
 public:
  explicit HostPort(std::vector<StoredPiece> pieces) : pieces_(std::move(pieces)) {}

  std::vector<StoredPiece> load() override { return std::move(pieces_); }
  std::expected<void, std::string> commit(std::span<const StoreChange> changes) override;

 private:
  std::vector<StoredPiece> pieces_;
};

// Random words from the browser's secure generator. Fetches many words at a time, because a call to the page
// costs more than the words.
class HostRandom : public RandomSource {
 public:
  std::uint64_t next() override;

 private:
  std::array<std::uint64_t, 32> words_ = {};  // 256 bytes, the maximum of a request
  std::size_t used_ = words_.size();
};

}  // namespace tb
