#include "shells/console/targets.h"

#include <format>
#include <utility>

#include "shells/console/icons.h"

namespace tb::console {

using namespace view;

namespace {

constexpr std::string_view offMark = "[-]";

Ink inkOf(Button::Weight weight) {
  switch (weight) {
    case Button::Weight::normal:
      return Ink::plain;
    case Button::Weight::primary:
      return Ink::strong;
    case Button::Weight::quiet:
    case Button::Weight::done:
      return Ink::quiet;
    case Button::Weight::destructive:
      return Ink::warning;
  }
  std::unreachable();
}

std::string labelOf(const Button& button) {
  return button.weight == Button::Weight::done ? button.label + " (done)" : button.label;
}

std::string priceOf(const Button& button) {
  return button.price.amount.empty() ? "" : withGlyph(button.price.icon, button.price.amount);
}

// Why the button is off, or why the rule would refuse.
const std::string& reasonOf(const Button& button) {
  return button.offReason.empty() ? button.refusal : button.offReason;
}

}  // namespace

std::string Targets::add(Handle handle, Target target) {
  if (handle == 0) return "";
  all.insert_or_assign(handle, std::move(target));
  return std::format("[{}]", handle);
}

Runs tabRuns(Targets& targets, const Tab& tab) {
  const std::string mark = targets.add(tab.handle, {.label = tab.label});
  Runs runs;
  if (!mark.empty()) runs.push_back({mark + " ", Ink::accent});
  const std::string words = withGlyph(tab.icon, tab.label);
  runs.push_back(tab.current ? Run{"<" + words + ">", Ink::strong} : Run{words});
  return runs;
}

Runs buttonRuns(Targets& targets, const Button& button) {
  const std::string mark =
      button.offReason.empty() ? targets.add(button.handle, {.label = button.label}) : std::string(offMark);
  Runs runs;
  if (!mark.empty()) runs.push_back({mark + " ", Ink::accent});
  runs.push_back({labelOf(button), button.offReason.empty() ? inkOf(button.weight) : Ink::quiet});
  if (const std::string price = priceOf(button); !price.empty()) runs.push_back({" " + price, Ink::strong});
  if (const std::string& reason = reasonOf(button); !reason.empty())
    runs.push_back({" (" + reason + ")", Ink::quiet});
  return runs;
}

void drawButton(Canvas& canvas, Targets& targets, const Button& button) {
  const bool off = !button.offReason.empty();
  const std::string mark = off ? std::string(offMark) : targets.add(button.handle, {.label = button.label});
  canvas.leader(labelOf(button), priceOf(button), off ? Ink::quiet : inkOf(button.weight), Ink::strong, mark);
  if (const std::string& reason = reasonOf(button); !reason.empty())
    canvas.nested("  ", [&] { canvas.text(reason, Ink::quiet); });
}

}  // namespace tb::console
