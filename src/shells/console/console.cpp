#include "shells/console/console.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <format>
#include <span>
#include <utility>

#include "core/text.h"
#include "shells/console/text.h"

namespace tb::console {

namespace {

constexpr std::string_view prompt = "> ";
constexpr std::string_view firstHint = "Type a number and Enter. ? tells more, q leaves.";
constexpr std::string_view help =
    "Type 3 to use what stands under [3]. A field takes 3 and its text, a slider 3 and a number.\n"
    "Enter alone shows the page again, and the rest of a long one.\n"
    "b goes back, q leaves; all that you did is saved.\n"
    "What has [-] before it is off, and the line below it tells why.";
constexpr std::string_view clearWord = "-";
constexpr double repaintEvery = 1;   // seconds, while a countdown is running
constexpr int minScrolledLines = 3;  // lines of a long page shown in a small window
constexpr std::size_t overlap = 1;   // lines that stay visible when scrolling
constexpr std::size_t maxNumberLength = 9;

struct Command {
  std::optional<view::Handle> number;
  std::string words;  // the text after the number, or the whole line
};

Command commandIn(const std::string& line) {
  const std::size_t digits = std::min(line.find_first_not_of("0123456789"), line.size());
  const bool isNumber =
      digits > 0 && digits <= maxNumberLength && (digits == line.size() || line[digits] == ' ');
  if (!isNumber) return {.words = line};
  view::Handle number = 0;
  std::from_chars(line.data(), line.data() + digits, number);
  return {.number = number, .words = trimmed(std::string_view(line).substr(digits))};
}

// Parses a decimal number such as -12.5, without the other forms that strtod accepts.
std::optional<double> numberIn(const std::string& words) {
  if (words.empty() || words.find_first_not_of("+-.0123456789") != std::string::npos) return {};
  char* end = nullptr;
  const double number = std::strtod(words.c_str(), &end);
  if (end != words.c_str() + words.size() || !std::isfinite(number)) return {};
  return number;
}

std::string joined(std::span<const Line> lines, bool colours) {
  std::string text;
  for (const Line& line : lines) text += printed(line, colours) + "\n";
  return text;
}

// Identifies the scrolled content: a new page, tab or dialog starts at its top.
std::string scrolledPlace(const view::Page& page, bool dialogAlone) {
  if (dialogAlone) return page.dialog.front().title;
  const auto tab = std::ranges::find(page.tabs, true, &view::Tab::current);
  return tab == page.tabs.end() ? page.title : page.title + "\n" + tab->label;
}

std::vector<Line> flushLines(std::string_view text, int columns) {
  if (text.empty()) return {};
  std::vector<Line> lines;
  for (std::string& part : wrapped(text, columns)) {
    lines.push_back({.runs = {{std::move(part), Ink::quiet}}, .flush = true});
  }
  return lines;
}

}  // namespace

void Console::play() {
  hint_ = firstHint;
  paintAgain();
  show();
  for (;;) {
    const bool counts = page_.counting && port_.shape().rows > 0;
    const Input input = port_.read(prompt, counts ? std::optional(repaintEvery) : std::nullopt);
    if (input.what == Input::What::end || !obey(input)) return;
    paintAgain();
    show();
  }
}

// --- Commands ---

bool Console::obey(const Input& input) {
  const auto seen = page_.targets;
  letTimePass(input.seconds);
  if (input.what == Input::What::nothing) return true;

  hint_.clear();
  const bool warned = std::exchange(warned_, false);
  const Command command = commandIn(trimmed(cleaned(input.line)));
  if (command.number) {
    const auto target = seen.find(*command.number);
    if (target == seen.end()) {
      hint_ = std::format("There is no [{}] to use here.", *command.number);
      return true;
    }
    if (!stillThere(target->first, target->second)) return true;
    return use(target->first, command.words);
  }
  if (command.words == "q" || command.words == "Q") return !leave(warned);
  if (command.words.empty()) {
    scrollOn();
  } else if (command.words == "b" || command.words == "B") {
    goBack();
  } else if (command.words == "?") {
    hint_ = help;
  } else {
    hint_ = "That is not an option. " + std::string(firstHint);
  }
  return true;
}

// Asks once when leaving loses something. Returns whether the player leaves.
bool Console::leave(bool warned) {
  if (warned || app_.unsavedBecause().empty()) return true;
  warned_ = true;
  hint_ = "What you did last is not saved. q again leaves without it.";
  return false;
}

bool Console::use(view::Handle handle, const std::string& words) {
  const Target target = page_.targets.at(handle);
  switch (target.kind) {
    case Target::Kind::field:
      return type(handle, target, words);
    case Target::Kind::slider:
      return slide(handle, target, words);
    case Target::Kind::button:
      break;
  }
  if (words.empty()) {
    app_.press(handle);
  } else {
    hint_ = std::format("[{}] takes no text: type {} alone.", handle, handle);
  }
  return true;
}

bool Console::type(view::Handle handle, const Target& field, std::string words) {
  if (words.empty()) {
    const std::optional<std::string> said =
        field.severalLines ? askForSeveralLines(field)
                           : ask(std::format("{} (Enter keeps it, {} clears it): ", field.label, clearWord));
    if (!said) return false;
    if (said->empty() || !stillThere(handle, field)) return true;
    words = *said;
  }
  if (words == clearWord) words.clear();
  std::string kept = firstCharacters(words, field.maximumLength);
  if (kept.size() < words.size()) hint_ = std::format("Cut to {} characters.", field.maximumLength);
  app_.type(handle, kept);
  return true;
}

bool Console::slide(view::Handle handle, const Target& slider, std::string words) {
  if (words.empty()) {
    const std::optional<std::string> said = ask(std::format("{} ({}): ", slider.label, slider.range));
    if (!said) return false;
    if (said->empty() || !stillThere(handle, slider)) return true;
    words = *said;
  }
  if (const std::optional<double> value = numberIn(words)) {
    app_.slide(handle, *value);
  } else {
    hint_ = std::format("{} takes a number: {}.", slider.label, slider.range);
  }
  return true;
}

void Console::goBack() {
  if (!page_.dialog.empty()) {
    hint_ = "This has to be answered first.";
  } else if (const view::Page& page = app_.view();
             page.close.empty() && (page.tabs.empty() || page.tabs.front().current)) {
    hint_ = "You can't go back from here.";
  } else {
    app_.back();
  }
}

// --- Questions ---

// Nothing at the end of the input.
std::optional<std::string> Console::ask(const std::string& question) {
  const std::string cleanQuestion = cleaned(question);
  for (;;) {
    const Input input = port_.read(cleanQuestion, {});
    if (input.what == Input::What::end) return {};
    letTimePass(input.seconds);
    if (input.what == Input::What::line) {
      std::string said = cleaned(input.line);
      std::ranges::replace(said, '\n', ' ');
      return trimmed(said);
    }
  }
}

std::optional<std::string> Console::askForSeveralLines(const Target& field) {
  std::string question = std::format("{} (an empty line ends it, {} clears it)\n: ", field.label, clearWord);
  std::string text;
  for (;;) {
    const std::optional<std::string> line = ask(question);
    if (!line) return {};
    if (line->empty()) return text;
    if (text.empty() && *line == clearWord) return line;
    text += (text.empty() ? "" : "\n") + *line;
    question = ": ";
  }
}

// --- Time ---

void Console::letTimePass(double seconds) {
  if (!page_.counting) return;
  app_.tick(seconds);
  paintAgain();
}

// During a countdown the page can change while the player types. A number then refers to the item that had it
// when the player read it; false when that is gone.
bool Console::stillThere(view::Handle handle, const Target& target) {
  const auto now = page_.targets.find(handle);
  const bool same = now != page_.targets.end() && now->second == target;
  if (!same) hint_ = "The page has changed. Choose again.";
  return same;
}

// --- Output ---

void Console::paintAgain() {
  const ConsolePort::Shape shape = port_.shape();
  page_ = paint(app_.view(), {.columns = shape.columns, .blocks = shape.blocks});
  for (const view::PassingLine& passing : app_.view().passing) {
    if (std::exchange(passed_, passing.number) == passing.number) continue;
    hint_ = hint_.empty() ? passing.text : passing.text + "\n" + hint_;
  }
}

void Console::show() {
  const ConsolePort::Shape shape = port_.shape();
  if (shape.rows > 0) return port_.show(window(shape));
  Canvas end({.columns = shape.columns, .blocks = shape.blocks});
  end.rule();
  std::string text = "\n" + joined(page_.head, shape.colours) + joined(page_.body, shape.colours);
  if (!page_.dialog.empty()) text += "\n" + joined(page_.dialog, shape.colours);
  text += joined(end.take(), shape.colours);
  if (page_.dialog.empty()) text += joined(page_.foot, shape.colours);
  port_.show(text + joined(hintLines(shape.columns), shape.colours));
}

// The hint, after a warning for as long as nothing can be saved.
std::vector<Line> Console::hintLines(int columns) const {
  if (app_.unsavedBecause().empty()) return flushLines(hint_, columns);
  const std::string warning = "Not saved: " + app_.unsavedBecause();
  return flushLines(hint_.empty() ? warning : warning + "\n" + hint_, columns);
}

// The visible part of the page, with the title and the tabs always visible. A dialog covers the end of the
// body, or all of it if it is long.
std::string Console::window(const ConsolePort::Shape& shape) {
  const std::vector<Line> hint = hintLines(shape.columns);
  const std::vector<Line> foot = page_.dialog.empty() ? page_.foot : std::vector<Line>{};
  constexpr int ruleAndPrompt = 2;
  const int fixed = static_cast<int>(page_.head.size() + foot.size() + hint.size()) + ruleAndPrompt;
  const int room = std::max(minScrolledLines, shape.rows - fixed);
  const int dialog = static_cast<int>(page_.dialog.size());
  const bool dialogAlone = dialog > room - minScrolledLines - 1;
  const bool over = dialog > 0 && !dialogAlone;
  const std::vector<Line>& scrolled = dialog > 0 && dialogAlone ? page_.dialog : page_.body;

  const std::string place = scrolledPlace(app_.view(), dialog > 0 && dialogAlone);
  if (std::exchange(place_, place) != place) first_ = 0;
  length_ = scrolled.size();
  shown_ = static_cast<std::size_t>(over ? room - dialog - 1 : room);
  if (first_ + shown_ > scrolled.size()) first_ = scrolled.size() - std::min(scrolled.size(), shown_);
  const std::size_t end = std::min(first_ + shown_, scrolled.size());

  std::string text = joined(page_.head, shape.colours);
  text += joined(std::span(scrolled).subspan(first_, end - first_), shape.colours);
  text += std::string(shown_ - (end - first_), '\n');
  if (over) text += "\n" + joined(page_.dialog, shape.colours);
  Canvas canvas({.columns = shape.columns, .blocks = shape.blocks});
  const bool all = scrolled.size() <= shown_;
  canvas.rule(all ? ""
                  : std::format("lines {} to {} of {}, Enter for {}", first_ + 1, end, scrolled.size(),
                                end < scrolled.size() ? "more" : "the top"));
  text += joined(canvas.take(), shape.colours);
  return text + joined(foot, shape.colours) + joined(hint, shape.colours);
}

void Console::scrollOn() {
  const bool more = first_ + shown_ < length_;
  first_ = more ? first_ + std::max(shown_, overlap + 1) - overlap : 0;
}

}  // namespace tb::console
