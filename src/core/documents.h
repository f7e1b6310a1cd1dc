#pragma once

// Whole saves beside the store: the slots and the backups. A document is a property list with the keys and
// values of a store. The shells keep documents: native programs as files, the page in the browser's storage.

#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/property_list.h"

namespace tb {

// What a list of documents shows of each, read without decoding the whole document.
struct DocumentSummary {
  std::string name;       // in its folder
  std::int64_t size = 0;  // bytes
  plist::Date changed;
  std::optional<plist::Dictionary> head;  // documentHead of its content
};

// The few values of a document that lists of slots and backups show; nothing when it is damaged.
[[nodiscard]] std::optional<plist::Dictionary> documentHead(std::span<const std::byte> document);

// Why a document could not be written.
struct DocumentFailure {
  bool isFolder = false;  // the folder could not be created
  std::string reason;
};

// What became of taking up a slot or a backup.
struct TakenUp {
  bool isDone = false;
  std::string damage = {};  // why it was not done yet: what the player should know before
};

class Documents {
 public:
  Documents() = default;
  Documents(const Documents&) = delete;
  Documents& operator=(const Documents&) = delete;
  virtual ~Documents() = default;

  // In order of their names; empty when the folder does not exist, nothing when it can't be read.
  [[nodiscard]] virtual std::optional<std::vector<DocumentSummary>> list(std::string_view folder) const = 0;

  // Calls `then` with the content, or with nothing if it can't be read: at once, or later as an action of its
  // own.
  using Then = std::function<void(std::optional<Bytes>)>;
  virtual void read(std::string_view folder, const std::string& name, Then then) = 0;

  // Creates or replaces a document, completely or not at all.
  virtual std::expected<void, DocumentFailure> write(std::string_view folder, const std::string& name,
                                                     Bytes content) = 0;

  // Returns why it could not be removed; a missing document is removed already.
  virtual std::expected<void, std::string> remove(std::string_view folder, const std::string& name) = 0;
};

}  // namespace tb
