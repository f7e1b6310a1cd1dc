#include "shells/web/host.h"

#include <unistd.h>

#include "core/stop.h"
#include "shells/system_clock.h"
#include "shells/web/message.h"

// The only imports besides those of WASI.
#define IMPORT(name) extern "C" __attribute__((import_module("game"), import_name(#name)))

IMPORT(commit) void commitToPage(const std::byte* message, std::size_t size);
IMPORT(put_document) void putDocumentInPage(const std::byte* message, std::size_t size);
IMPORT(remove_document) void removeDocumentInPage(const std::byte* message, std::size_t size);
IMPORT(read_document)
void readDocumentInPage(std::uint32_t number, const std::byte* message, std::size_t size);

namespace tb {

std::expected<void, std::string> HostPort::commit(std::span<const StoreChange> changes) {
  const Bytes message = writeChanges(changes);
  commitToPage(message.data(), message.size());
  return {};
}

HostDocuments::HostDocuments(std::vector<std::pair<std::string, DocumentSummary>> known) {
  for (auto& [folder, summary] : known) {
    std::string name = summary.name;
    known_.emplace(std::pair(std::move(folder), std::move(name)), std::move(summary));
  }
}

std::optional<std::vector<DocumentSummary>> HostDocuments::list(std::string_view folder) const {
  std::vector<DocumentSummary> all;
  for (const auto& [place, summary] : known_) {
    if (place.first == folder) all.push_back(summary);
  }
  return all;
}

void HostDocuments::read(std::string_view folder, const std::string& name, Then then) {
  readers_[++reads_] = std::move(then);
  const Bytes message = writeDocumentPlace(folder, name);
  readDocumentInPage(reads_, message.data(), message.size());
}

void HostDocuments::forget(std::span<const std::byte> place) {
  MessageReader reader(place);
  const std::string folder = reader.text();
  known_.erase({folder, reader.text()});
}

Documents::Then HostDocuments::takeReader(std::uint32_t number) {
  auto reader = readers_.extract(number);
  return reader.empty() ? Then([](const std::optional<Bytes>&) {}) : std::move(reader.mapped());
}

std::expected<void, DocumentFailure> HostDocuments::write(std::string_view folder, const std::string& name,
                                                          Bytes content) {
  DocumentSummary& summary = known_[{std::string(folder), name}];
  summary = {.name = name,
             .size = static_cast<std::int64_t>(content.size()),
             .changed = systemClock(),
             .head = documentHead(content)};
  const Bytes message = writeDocument(folder, summary, content);
  putDocumentInPage(message.data(), message.size());
  return {};
}

std::expected<void, std::string> HostDocuments::remove(std::string_view folder, const std::string& name) {
  if (known_.erase({std::string(folder), name}) == 0) return {};
  const Bytes message = writeDocumentPlace(folder, name);
  removeDocumentInPage(message.data(), message.size());
  return {};
}

std::uint64_t HostRandom::next() {
  if (used_ == words_.size()) {
    if (getentropy(words_.data(), sizeof words_) != 0) stopTheGame("the browser gives no random numbers");
    used_ = 0;
  }
  return words_[used_++];
}

}  // namespace tb
