#include "core/week_history.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <ranges>
#include <span>

#include "core/debug_log.h"
#include "core/property_list_writer.h"
#include "core/save_store.h"

namespace tb {

namespace {

// A piece of a journal is a flat array: for each place its key, piece number, shape and bytes. No bytes stand
// for no piece; a stored piece is never empty.
constexpr std::size_t valuesOfPlace = 4;

std::string keyOf(std::string_view prefix, std::int64_t number) {
  return std::string(prefix) + std::to_string(number);
}

std::int64_t nextNumber(const std::vector<std::int64_t>& numbers) {
  return numbers.empty() ? 1 : numbers.back() + 1;
}

}  // namespace

void WeekHistory::load() {
  for (Journals* const journals : {&back_, &forward_}) {
    for (const std::string& key : store_.keys(Shape::journal, journals->prefix)) {
      const std::string_view digits = std::string_view(key).substr(journals->prefix.size());
      std::int64_t number = 0;
      std::from_chars(digits.data(), digits.data() + digits.size(), number);
      journals->numbers.push_back(number);
    }
    std::ranges::sort(journals->numbers);
  }
}

void WeekHistory::beginWeek() {
  record();
  removeAll(forward_);
  open(back_);
  if (weeksBack() > maxWeeks) remove(back_, 0);
}

// What was written before in this action belongs to the week that is taken back.
bool WeekHistory::go(Journals& from, Journals& to) {
  record();
  if (from.numbers.empty()) return false;
  auto pieces = read(from);
  if (!pieces) {
    debugLog("A journal of a week is damaged. No week can be taken back.");
    forget();
    return false;
  }
  remove(from, from.numbers.size() - 1);
  open(to);
  restore(*std::move(pieces));
  add(to);
  noted_.clear();
  return true;
}

void WeekHistory::forget() {
  removeAll(back_);
  removeAll(forward_);
  noted_.clear();
}

void WeekHistory::reset() {
  for (Journals* const journals : {&back_, &forward_}) {
    journals->numbers.clear();
    journals->has.reset();
  }
  noted_.clear();
}

void WeekHistory::note(std::string_view key, Shape shape, std::int64_t piece, std::optional<Bytes> before) {
  if (shape == Shape::journal || (back_.numbers.empty() && forward_.numbers.empty())) return;
  noted_.try_emplace({std::string(key), piece}, Before{.shape = shape, .bytes = std::move(before)});
}

void WeekHistory::record() {
  add(back_);
  add(forward_);
  noted_.clear();
}

void WeekHistory::open(Journals& journals) {
  journals.numbers.push_back(nextNumber(journals.numbers));
  journals.has.emplace();
}

void WeekHistory::remove(Journals& journals, std::size_t index) {
  const auto at = journals.numbers.begin() + static_cast<std::ptrdiff_t>(index);
  if (std::next(at) == journals.numbers.end()) journals.has.reset();
  store_.remove(keyOf(journals.prefix, *at));
  journals.numbers.erase(at);
}

void WeekHistory::removeAll(Journals& journals) {
  while (!journals.numbers.empty()) remove(journals, journals.numbers.size() - 1);
}

// Adds what was noted to the open journal, but for the places that it has. Stores a new journal even when it
// is empty.
void WeekHistory::add(Journals& journals) {
  if (journals.numbers.empty()) return;
  const std::string key = keyOf(journals.prefix, journals.numbers.back());
  const SaveStore::Entry* const stored = store_.entry(key);
  if (stored != nullptr && noted_.empty()) return;
  if (!journals.has) {
    journals.has.emplace();
    for (auto& [place, before] : read(journals).value_or(Pieces{})) journals.has->insert(place);
  }
  plist::Writer writer;
  for (const auto& [place, before] : noted_) {
    if (!journals.has->insert(place).second) continue;
    writer.putAside(writer.text(place.first));
    writer.putAside(writer.integer(place.second));
    writer.putAside(writer.integer(static_cast<std::int64_t>(before.shape)));
    writer.putAside(
        writer.data(before.bytes ? std::span<const std::byte>(*before.bytes) : std::span<const std::byte>()));
  }
  if (stored != nullptr && writer.mark() == 0) return;
  const std::int64_t piece = stored == nullptr ? 0 : stored->pieces.rbegin()->first + 1;
  std::vector<SaveStore::PieceWrite> writes;
  writes.push_back({.piece = piece, .bytes = writer.finish(writer.array(0))});
  store_.putPieces(key, Shape::journal, false, std::move(writes));
}

// The places of the open journal; nothing when it is damaged.
std::optional<WeekHistory::Pieces> WeekHistory::read(const Journals& journals) const {
  Pieces pieces;
  const SaveStore::Entry* const stored = store_.entry(keyOf(journals.prefix, journals.numbers.back()));
  if (stored == nullptr) return pieces;
  for (const Bytes& bytes : stored->pieces | std::views::values) {
    const auto piece = plist::read(bytes);
    const auto* const values = piece ? piece->as<plist::Array>() : nullptr;
    if (values == nullptr || values->size() % valuesOfPlace != 0) return std::nullopt;
    for (std::size_t at = 0; at < values->size(); at += valuesOfPlace) {
      const auto* const key = (*values)[at].as<std::string>();
      const auto* const number = (*values)[at + 1].as<std::int64_t>();
      const auto* const shape = (*values)[at + 2].as<std::int64_t>();
      const auto* const before = (*values)[at + 3].as<plist::Data>();
      if (key == nullptr || number == nullptr || shape == nullptr || before == nullptr) return std::nullopt;
      if (*shape < 0 || *shape >= static_cast<std::int64_t>(Shape::journal)) return std::nullopt;
      pieces.try_emplace(
          {*key, *number},
          Before{.shape = static_cast<Shape>(*shape),
                 .bytes = before->bytes.empty() ? std::nullopt : std::optional(before->bytes)});
    }
  }
  return pieces;
}

std::optional<plist::Value> WeekHistory::valueIn(const Journals& journals, std::string_view key) const {
  if (journals.numbers.empty()) return std::nullopt;
  const auto pieces = read(journals);
  if (!pieces) return std::nullopt;
  const auto place = pieces->find({std::string(key), 0});
  if (place == pieces->end()) return store_.value(key);
  if (!place->second.bytes) return std::nullopt;
  auto value = plist::read(*place->second.bytes);
  return value ? std::optional(*std::move(value)) : std::nullopt;
}

// All pieces of a key had the same shape: that of those which there were.
void WeekHistory::restore(Pieces pieces) {
  for (auto at = pieces.begin(); at != pieces.end();) {
    const std::string& key = at->first.first;
    const SaveStore::Entry* const stored = store_.entry(key);
    Shape shape = stored != nullptr ? stored->shape : at->second.shape;
    std::vector<SaveStore::PieceWrite> writes;
    for (; at != pieces.end() && at->first.first == key; ++at) {
      if (at->second.bytes) shape = at->second.shape;
      writes.push_back({.piece = at->first.second, .bytes = std::move(at->second.bytes)});
    }
    store_.putPieces(key, shape, false, std::move(writes));
  }
}

}  // namespace tb
