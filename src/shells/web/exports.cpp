// The functions that the page calls; web/src/runtime/game.ts is the caller.
//
// Input is passed in `incoming`: the page requests a buffer, fills it, and calls the function that reads it.
// Output is in `answer`, whose length the function returns. Both are valid until the next call.
//
// After a trap the instance is unusable: the page starts a new one from the saved data.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "banks/texts.h"
#include "core/format.h"
#include "core/save_backups.h"
#include "core/save_file.h"
#include "core/stop.h"
#include "core/way_back.h"
#include "screens/app.h"
#include "shells/system_clock.h"
#include "shells/web/host.h"
#include "shells/web/message.h"
#include "shells/web/page_json.h"

#define EXPORT(name) extern "C" __attribute__((export_name(#name)))

namespace {

struct OpenGame {
  explicit OpenGame(std::vector<tb::StoredPiece> pieces) : port(std::move(pieces)), store(port) {}

  tb::HostPort port;
  tb::SaveStore store;
  std::optional<tb::HostDocuments> documents;
  tb::HostRandom random;
  std::optional<tb::App> app;
};

tb::Bytes incoming;
tb::Bytes answer;
std::vector<tb::StoredPiece> stored;  // until the store is opened
std::optional<OpenGame> game;

std::string incomingText() { return {reinterpret_cast<const char*>(incoming.data()), incoming.size()}; }

std::size_t answerWith(std::span<const std::byte> bytes) {
  answer.assign(bytes.begin(), bytes.end());
  return answer.size();
}

std::size_t answerWith(const std::string& text) { return answerWith(std::as_bytes(std::span(text))); }

// A message of another form is a programming error.
template <class Content>
Content readable(std::optional<Content> content) {
  if (!content) tb::stopTheGame("the page sent a message that can't be read");
  return *std::move(content);
}

}  // namespace

EXPORT(incoming) std::byte* roomForIncoming(std::size_t size) {
  incoming.resize(size);
  return incoming.data();
}

EXPORT(answer) const std::byte* answerAddress() { return answer.data(); }

// Incoming: some of the stored pieces. Called before open_store until all are in, so that no message has to
// be as large as the whole save.
EXPORT(add_pieces) void addPieces() {
  std::ranges::move(readable(tb::readPieces(incoming)), std::back_inserter(stored));
}

// Must be called before the functions below.
EXPORT(open_store) void openStore() { game.emplace(std::exchange(stored, {})); }

// Incoming: the summaries of the slots and backups. Without this call there are none.
EXPORT(open_documents) void openDocuments() {
  game->documents.emplace(readable(tb::readDocuments(incoming)));
}

// Incoming: the texts. Called once; only the new-career form works without them.
EXPORT(set_texts) void setTexts() { tb::setTexts(incomingText()); }

// Incoming: the locale. Loads the career, or opens the new-career form.
EXPORT(start) void start() {
  game->app.emplace(game->store, game->random, readable(tb::readLocale(incoming)), tb::systemClock,
                    game->documents ? &*game->documents : nullptr);
}

// The current page as JSON.
EXPORT(view) std::size_t viewPage() { return answerWith(tb::pageJson(game->app->view())); }

EXPORT(press) void press(std::int32_t handle) { game->app->press(handle); }
EXPORT(type) void type(std::int32_t handle) { game->app->type(handle, incomingText()); }
EXPORT(slide) void slide(std::int32_t handle, double value) { game->app->slide(handle, value); }
EXPORT(tick) void tick(double seconds) { game->app->tick(seconds); }
EXPORT(back) void back() { game->app->back(); }

// Incoming: the content of a document that the game reads, or nothing if it was not found.
EXPORT(document_read) void documentRead(std::uint32_t number, std::int32_t found) {
  const tb::Documents::Then reader = game->documents->takeReader(number);
  game->app->goOn([&] { reader(found != 0 ? std::optional(std::move(incoming)) : std::nullopt); });
}

// Incoming: the place of a backup that there was no room for.
EXPORT(document_lost) void documentLost() {
  game->documents->forget(incoming);
  game->app->say("There was no room for the backup.");
}

EXPORT(saving_failed) void savingFailed() { game->app->savingFailed(incomingText()); }

// These use only the store, so that they also work for a career that fails to start.
EXPORT(back_up_store) void backUpStore() {
  tb::SaveBackupManager::backUp(*game->documents, game->store.dictionary(), tb::systemClock());
}
EXPORT(export_store) std::size_t exportStore() { return answerWith(tb::exportedSave(game->store)); }

// After a stop of the game: "week 12 of 2031", to which the store can go back, or nothing; and going there.
// Answers why that was not possible, or nothing when it was done and committed. Then a new game is opened.
EXPORT(last_week) std::size_t lastWeek() {
  const auto week = tb::lastWeek(game->store);
  return answerWith(week ? tb::format("week {} of {}", week->week, week->year) : std::string());
}
EXPORT(back_to_last_week) std::size_t backToLastWeek() {
  const auto done = tb::backToLastWeek(game->store);
  return answerWith(done ? std::string() : done.error());
}

// Incoming: a file. Answer: why it was refused, and a remark on it. One that was imported is committed.
EXPORT(import_store) std::size_t importStore() {
  const tb::ImportedSave imported = tb::importSave(game->store, incoming);
  if (imported.refusal.empty()) static_cast<void>(game->store.commit());
  tb::MessageWriter writer;
  writer.text(imported.refusal);
  writer.text(imported.remark);
  return answerWith(writer.message());
}
