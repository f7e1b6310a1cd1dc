#pragma once

// The slots and backups of native programs: files in folders beside the store.

#include <filesystem>
#include <map>
#include <utility>

#include "core/documents.h"

namespace tb {

class DocumentFolder : public Documents {
 public:
  explicit DocumentFolder(std::filesystem::path base) : base_(std::move(base)) {}

  [[nodiscard]] std::optional<std::vector<DocumentSummary>> list(std::string_view folder) const override;
  void read(std::string_view folder, const std::string& name, Then then) override;
  std::expected<void, DocumentFailure> write(std::string_view folder, const std::string& name,
                                             Bytes content) override;
  std::expected<void, std::string> remove(std::string_view folder, const std::string& name) override;

 private:
  [[nodiscard]] DocumentSummary summaryOf(const std::filesystem::path& file, DocumentSummary facts) const;

  std::filesystem::path base_;
  mutable std::map<std::filesystem::path, DocumentSummary> seen_;  // a page lists the same files many times
};

}  // namespace tb
