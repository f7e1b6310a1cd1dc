#pragma once

// The services of the page: storage and random numbers.

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "core/documents.h"
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

// Slots and backups in the page's storage. Their summaries are here; a content is fetched when it is read,
// and comes later. Writing succeeds here as a commit does: the page stores a document before the commits
// after it, and repeats what the browser rejected together with them.
class HostDocuments : public Documents {
 public:
  explicit HostDocuments(std::vector<std::pair<std::string, DocumentSummary>> known);

  [[nodiscard]] std::optional<std::vector<DocumentSummary>> list(std::string_view folder) const override;
  void read(std::string_view folder, const std::string& name, Then then) override;
  std::expected<void, DocumentFailure> write(std::string_view folder, const std::string& name,
                                             Bytes content) override;
  std::expected<void, std::string> remove(std::string_view folder, const std::string& name) override;

  // The page has no such document, after all. `place` is a message with its folder and name.
  void forget(std::span<const std::byte> place);

  // The continuation of a read, which runs once.
  [[nodiscard]] Then takeReader(std::uint32_t number);

 private:
  std::map<std::pair<std::string, std::string>, DocumentSummary> known_;  // by folder and name
  std::map<std::uint32_t, Then> readers_;
  std::uint32_t reads_ = 0;
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
