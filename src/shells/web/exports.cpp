// The functions that the page calls; web/src/runtime/game.ts is their other side.
//
// Texts and bytes come in through `incoming`: the page asks for room, writes them there, and calls the
// function that reads them. They go out through `answer`, whose length the function returns. Both stay good
// until the next call.
//
// A trap anywhere leaves this instance in pieces: the page never calls it again, and starts a new one from
// what was saved.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "banks/texts.h"
#include "screens/app.h"
#include "shells/system_clock.h"
#include "shells/web/host.h"
#include "shells/web/message.h"
#include "shells/web/page_json.h"
#include "shells/web/save_file.h"

#define EXPORT(name) extern "C" __attribute__((export_name(#name)))

namespace {

struct OpenGame {
  explicit OpenGame(std::vector<tb::StoredPiece> pieces) : port(std::move(pieces)), store(port) {}

  tb::HostPort port;
  tb::SaveStore store;
  tb::HostRandom random;
  std::optional<tb::App> app;
};

tb::Bytes incoming;
tb::Bytes answer;
std::optional<OpenGame> game;

std::string incomingText() { return {reinterpret_cast<const char*>(incoming.data()), incoming.size()}; }

std::size_t answerWith(std::span<const std::byte> bytes) {
  answer.assign(bytes.begin(), bytes.end());
  return answer.size();
}

std::size_t answerWith(const std::string& text) { return answerWith(std::as_bytes(std::span(text))); }

}  // namespace

EXPORT(incoming) std::byte* roomForIncoming(std::size_t size) {
  incoming.resize(size);
  return incoming.data();
}

EXPORT(answer) const std::byte* answerAddress() { return answer.data(); }

// Incoming: the stored pieces. Everything else comes after this.
EXPORT(open_store) void openStore() { game.emplace(tb::readPieces(incoming)); }

// Incoming: the texts. Once; only the page that a new career begins with goes without them.
EXPORT(hand_in_texts) void handInTexts() { tb::handInTexts(incomingText()); }

// Incoming: the locale. Loads the career, or opens the form of a new one.
EXPORT(start) void start() {
  game->app.emplace(game->store, game->random, tb::readLocale(incoming), tb::systemClock);
}

// The page on show, as JSON. The functions below it change what is on show.
EXPORT(view) std::size_t viewPage() { return answerWith(tb::pageJson(game->app->view())); }

EXPORT(press) void press(std::int32_t handle) { game->app->press(handle); }
EXPORT(type) void type(std::int32_t handle) { game->app->type(handle, incomingText()); }
EXPORT(slide) void slide(std::int32_t handle, double value) { game->app->slide(handle, value); }
EXPORT(tick) void tick(double seconds) { game->app->tick(seconds); }
EXPORT(back) void back() { game->app->back(); }
EXPORT(saving_failed) void savingFailed() { game->app->savingFailed(incomingText()); }

// These two need the store alone, so that they work for a career that does not start.
EXPORT(export_store) std::size_t exportStore() { return answerWith(tb::exportedSave(game->store)); }

// Incoming: a file. Answers with why it was refused; with nothing when it was taken and committed.
EXPORT(import_store) std::size_t importStore() {
  const std::string refusal = tb::importSave(game->store, incoming);
  if (refusal.empty()) static_cast<void>(game->store.commit());
  return answerWith(refusal);
}
