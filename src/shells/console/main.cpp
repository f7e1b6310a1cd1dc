// Top Billing in a terminal or a pipe.

#include <cstdio>
#include <expected>
#include <filesystem>
#include <getopt.h>
#include <optional>
#include <print>
#include <string>
#include <system_error>

#include "core/way_back.h"
#include "screens/app.h"
#include "shells/console/console.h"
#include "shells/console/stop_notice.h"
#include "shells/console/terminal.h"
#include "shells/native/bring_in.h"
#include "shells/native/document_folder.h"
#include "shells/native/system_locale.h"
#include "shells/native/system_random.h"
#include "shells/sqlite/save_folder.h"
#include "shells/sqlite/sqlite_port.h"
#include "shells/system_clock.h"

namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUse = 2;

constexpr const char* usage =
    "Usage: top-billing [--data-dir DIR] [--bring-in FILE | --export FILE | --last-week]\n"
    "\n"
    "An acting career, one week at a time. Type the number before what you want to\n"
    "use, and Enter; ? tells more, q leaves. Everything is saved as you play.\n"
    "\n"
    "  --data-dir DIR  keeps the career in DIR (else in $XDG_DATA_HOME/top-billing,\n"
    "                  or ~/.local/share/top-billing)\n"
    "  --bring-in FILE puts the career in FILE, which the game exported, into play;\n"
    "                  the one in play stays among the backups\n"
    "  --export FILE   writes the career to FILE\n"
    "  --last-week     takes the last week back, for a career at which the game stops\n"
    "  --help          shows this\n"
    "  --version       shows the version\n"
    "\n"
    "NO_COLOR in the environment leaves colours out. In a pipe, and where TERM is\n"
    "\"dumb\", the pages just follow each other as plain text.";

struct Options {
  std::optional<std::filesystem::path> folder;
  std::optional<std::filesystem::path> bringIn;
  std::optional<std::filesystem::path> exportTo;
  bool lastWeek = false;
  std::optional<int> exitCode;  // set for --help, --version and invalid options
};

Options readOptions(int count, char** words) {
  constexpr option known[] = {{"data-dir", required_argument, nullptr, 'd'},
                              {"bring-in", required_argument, nullptr, 'b'},
                              {"export", required_argument, nullptr, 'e'},
                              {"last-week", no_argument, nullptr, 'l'},
                              {"help", no_argument, nullptr, 'h'},
                              {"version", no_argument, nullptr, 'v'},
                              {nullptr, 0, nullptr, 0}};
  Options options;
  for (int found = 0; (found = getopt_long(count, words, "", known, nullptr)) != -1;) {
    switch (found) {
      case 'd':
        options.folder = optarg;
        break;
      case 'b':
        options.bringIn = optarg;
        break;
      case 'e':
        options.exportTo = optarg;
        break;
      case 'l':
        options.lastWeek = true;
        break;
      case 'h':
        std::println("{}", usage);
        return {.exitCode = success};
      case 'v':
        std::println("Top Billing {}", BILLING_VERSION);
        return {.exitCode = success};
      default:
        std::println(stderr, "{}", usage);
        return {.exitCode = wrongUse};
    }
  }
  if (optind < count) {
    std::println(stderr, "What is \"{}\"?\n{}", words[optind], usage);
    return {.exitCode = wrongUse};
  }
  return options;
}

std::expected<std::filesystem::path, tb::OpenFailure> folderFor(const Options& options) {
  if (!options.folder) return tb::saveFolder();
  // If this fails, opening the folder reports the reason.
  std::error_code ignored;
  std::filesystem::create_directories(*options.folder, ignored);
  return *options.folder;
}

int report(const std::expected<void, std::string>& done) {
  if (!done) std::println(stderr, "{}", done.error());
  return done ? success : failure;
}

// Asks before it replaces the career.
int bringIn(tb::SqlitePort& port, const std::filesystem::path& folder, const std::filesystem::path& from) {
  tb::SaveStore store(port);
  tb::SystemRandom random;
  tb::DocumentFolder documents(folder);
  const auto file = tb::readCareerFile(from);
  if (!file) return report(std::unexpected(file.error()));
  const auto question = tb::questionAbout(*file, store, random);
  if (!question) return report(std::unexpected(question.error()));
  std::print("{} (y/n) ", *question);
  std::fflush(stdout);
  if (const int answer = std::getchar(); answer != 'y' && answer != 'Y') {
    std::println("Nothing was changed.");
    return success;
  }
  const auto done = tb::bringIn(*file, store, documents, tb::systemClock());
  if (done) std::println("It is in play now.");
  return report(done);
}

int backToLastWeek(tb::SqlitePort& port) {
  tb::SaveStore store(port);
  const auto week = tb::lastWeek(store);
  const auto done = tb::backToLastWeek(store);
  if (done && week) std::println("Your career is back in week {} of {}.", week->week, week->year);
  return report(done);
}

int play(tb::SqlitePort& port, const std::filesystem::path& folder) {
  tb::SaveStore store(port);
  tb::SystemRandom random;
  tb::DocumentFolder documents(folder);
  tb::App app(store, random, tb::systemLocale(), tb::systemClock, &documents);
  if (port.notice()) app.tell(*port.notice());
  {
    tb::console::Terminal terminal;
    tb::console::Console(app, terminal).play();
  }
  if (!store.hasUncommitted()) return success;
  std::println(stderr,
               "What you did last could not be saved. Your career is as it was when saving last worked.");
  return failure;
}

}  // namespace

int main(int count, char** words) {
  const Options options = readOptions(count, words);
  if (options.exitCode) return *options.exitCode;
  const auto folder = folderFor(options);
  const auto port = folder.and_then(tb::SqlitePort::open);
  if (!port) {
    std::println(stderr, "{}", port.error().message);
    return failure;
  }
  if (options.exportTo) return report(tb::writeCareerFile(tb::SaveStore(**port), *options.exportTo));
  if (options.bringIn) return bringIn(**port, *folder, *options.bringIn);
  if (options.lastWeek) return backToLastWeek(**port);
  tb::console::announceStops(*folder);
  return play(**port, *folder);
}
