#include "shells/web/message.h"

#include <bit>
#include <cstring>

#include "shells/system_clock.h"

namespace tb {

namespace {

constexpr double millisecondsPerSecond = 1000;

}  // namespace

static_assert(std::endian::native == std::endian::little,
              "numbers cross the boundary as they stand in memory");

void MessageWriter::number(std::uint32_t value) {
  const auto raw = std::as_bytes(std::span(&value, 1));
  message_.insert(message_.end(), raw.begin(), raw.end());
}

void MessageWriter::wideNumber(std::int64_t value) {
  const auto raw = std::as_bytes(std::span(&value, 1));
  message_.insert(message_.end(), raw.begin(), raw.end());
}

void MessageWriter::bytes(std::span<const std::byte> value) {
  number(static_cast<std::uint32_t>(value.size()));
  message_.insert(message_.end(), value.begin(), value.end());
}

void MessageWriter::text(std::string_view value) { bytes(std::as_bytes(std::span(value))); }

std::span<const std::byte> MessageReader::take(std::size_t size) {
  if (size > rest_.size()) {
    fail();
    rest_ = {};
    return {};
  }
  const auto taken = rest_.first(size);
  rest_ = rest_.subspan(size);
  return taken;
}

std::uint32_t MessageReader::number() {
  std::uint32_t value = 0;
  const auto taken = take(sizeof value);
  if (!taken.empty()) std::memcpy(&value, taken.data(), sizeof value);
  return value;
}

std::int64_t MessageReader::wideNumber() {
  std::int64_t value = 0;
  const auto taken = take(sizeof value);
  if (!taken.empty()) std::memcpy(&value, taken.data(), sizeof value);
  return value;
}

Bytes MessageReader::bytes() {
  const auto taken = take(number());
  return {taken.begin(), taken.end()};
}

std::string MessageReader::text() {
  const auto taken = take(number());
  return {reinterpret_cast<const char*>(taken.data()), taken.size()};
}

std::optional<std::vector<StoredPiece>> readPieces(std::span<const std::byte> message) {
  MessageReader reader(message);
  std::vector<StoredPiece> pieces;
  for (std::uint32_t left = reader.number(); left > 0 && !reader.isBad(); --left) {
    StoredPiece& piece = pieces.emplace_back();
    piece.key = reader.text();
    const std::uint32_t shape = reader.number();
    if (shape > static_cast<std::uint32_t>(Shape::journal)) reader.fail();
    piece.shape = static_cast<Shape>(shape);
    piece.piece = reader.wideNumber();
    piece.bytes = reader.bytes();
  }
  if (reader.isBad()) return std::nullopt;
  return pieces;
}

Bytes writeChanges(std::span<const StoreChange> changes) {
  MessageWriter writer;
  writer.number(static_cast<std::uint32_t>(changes.size()));
  for (const StoreChange& change : changes) {
    writer.number(static_cast<std::uint32_t>(change.kind));
    writer.text(change.stored.key);
    writer.number(static_cast<std::uint32_t>(change.stored.shape));
    writer.wideNumber(change.stored.piece);
    writer.bytes(change.stored.bytes);
  }
  return writer.message();
}

Bytes writeDocumentPlace(std::string_view folder, std::string_view name) {
  MessageWriter writer;
  writer.text(folder);
  writer.text(name);
  return writer.message();
}

Bytes writeDocument(std::string_view folder, const DocumentSummary& summary,
                    std::span<const std::byte> content) {
  MessageWriter writer;
  writer.text(folder);
  writer.text(summary.name);
  writer.wideNumber(summary.size);
  writer.wideNumber(static_cast<std::int64_t>((summary.changed.seconds + dateEpoch) * millisecondsPerSecond));
  writer.bytes(summary.head ? plist::write(plist::Value{*summary.head}) : Bytes{});
  writer.bytes(content);
  return writer.message();
}

std::optional<std::vector<std::pair<std::string, DocumentSummary>>> readDocuments(
    std::span<const std::byte> message) {
  MessageReader reader(message);
  std::vector<std::pair<std::string, DocumentSummary>> documents;
  for (std::uint32_t left = reader.number(); left > 0 && !reader.isBad(); --left) {
    auto& [folder, summary] = documents.emplace_back();
    folder = reader.text();
    summary.name = reader.text();
    summary.size = reader.wideNumber();
    summary.changed.seconds = static_cast<double>(reader.wideNumber()) / millisecondsPerSecond - dateEpoch;
    summary.head = documentHead(reader.bytes());
  }
  if (reader.isBad()) return std::nullopt;
  return documents;
}

std::optional<Locale> readLocale(std::span<const std::byte> message) {
  MessageReader reader(message);
  Locale locale;
  locale.currencySymbol = reader.text();
  locale.currencyBeforeAmount = reader.text() == "1";
  locale.currencyGap = reader.text();
  locale.decimalPoint = reader.text();
  locale.groupSeparator = reader.text();
  locale.minusSign = reader.text();
  for (std::string& month : locale.months) month = reader.text();
  for (std::string& month : locale.monthCapitals) month = reader.text();
  if (reader.isBad()) return std::nullopt;
  return locale;
}

}  // namespace tb
