#pragma once

// A store port in memory, with commits that can be made to fail.

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/save_store.h"

namespace tb::test {

class MemoryPort : public StorePort {
 public:
  // The `nth` commit from now on fails, counting from 1.
  MemoryPort& failCommit(int nth) {
    failures_.insert(commits + nth);
    return *this;
  }
  // Every commit fails until further notice.
  void failAll(bool fail) { fails_all_ = fail; }

  std::vector<StoredPiece> load() override {
    std::vector<StoredPiece> all;
    for (const auto& [place, piece] : pieces) all.push_back(piece);
    return all;
  }

  std::expected<void, std::string> commit(std::span<const StoreChange> changes) override {
    commits += 1;
    if (fails_all_ || failures_.contains(commits)) return std::unexpected("The disk is full.");
    lastCommit.assign(changes.begin(), changes.end());
    for (const StoreChange& change : changes) apply(change);
    return {};
  }

  std::map<std::pair<std::string, std::int64_t>, StoredPiece> pieces;
  std::vector<StoredPiece> keptAside;
  std::vector<StoreChange> lastCommit;  // the last successful one
  int commits = 0;

 private:
  void apply(const StoreChange& change) {
    using enum StoreChange::Kind;
    const StoredPiece& stored = change.stored;
    switch (change.kind) {
      case put:
        pieces[{stored.key, stored.piece}] = stored;
        break;
      case drop:
        pieces.erase({stored.key, stored.piece});
        break;
      case dropKey:
        std::erase_if(pieces, [&](const auto& entry) { return entry.first.first == stored.key; });
        break;
      case dropAll:
        pieces.clear();
        break;
      case keepAside:
        if (!std::ranges::contains(keptAside, stored)) keptAside.push_back(stored);
    }
  }

  std::set<int> failures_;
  bool fails_all_ = false;
};

}  // namespace tb::test
