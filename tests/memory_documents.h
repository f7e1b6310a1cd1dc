#pragma once

// Documents in memory, which can fail, and which can be read later as in the page.

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/documents.h"

namespace tb::test {

class MemoryDocuments : public Documents {
 public:
  [[nodiscard]] std::optional<std::vector<DocumentSummary>> list(std::string_view folder) const override {
    if (isUnreadable) return std::nullopt;
    std::vector<DocumentSummary> all;
    for (const auto& [path, content] : files) {
      if (path.first != folder) continue;
      all.push_back({.name = path.second,
                     .size = static_cast<std::int64_t>(content.size()),
                     .changed = {},
                     .head = documentHead(content)});
    }
    return all;
  }

  void read(std::string_view folder, const std::string& name, Then then) override {
    const auto file = files.find({std::string(folder), name});
    auto content = file == files.end() ? std::nullopt : std::optional(file->second);
    const auto answer = [then = std::move(then), content] { then(content); };
    if (answersLater) {
      waiting.push_back(answer);
    } else {
      answer();
    }
  }

  std::expected<void, DocumentFailure> write(std::string_view folder, const std::string& name,
                                             Bytes content) override {
    if (isFull) return std::unexpected(DocumentFailure{.reason = "No space left"});
    files[{std::string(folder), name}] = std::move(content);
    changes += 1;
    return {};
  }

  std::expected<void, std::string> remove(std::string_view folder, const std::string& name) override {
    files.erase({std::string(folder), name});
    changes += 1;
    return {};
  }

  std::map<std::pair<std::string, std::string>, Bytes> files;  // by folder and name
  std::vector<std::function<void()>> waiting;                  // answers to come
  int changes = 0;
  bool isFull = false;
  bool isUnreadable = false;
  bool answersLater = false;
};

}  // namespace tb::test
