#include "shells/console/targets.h"

#include <format>
#include <utility>

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
      return Ink::quiet;
    case Button::Weight::destructive:
      return Ink::warning;
  }
  std::unreachable();
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
  const std::string words = tab.icon.empty() ? tab.label : tab.icon + " " + tab.label;
  runs.push_back(tab.current ? Run{"<" + words + ">", Ink::strong} : Run{words});
  return runs;
}

Runs buttonRuns(Targets& targets, const Button& button) {
  const std::string mark =
      button.offReason.empty() ? targets.add(button.handle, {.label = button.label}) : std::string(offMark);
  Runs runs;
  if (!mark.empty()) runs.push_back({mark + " ", Ink::accent});
  runs.push_back({button.label, button.offReason.empty() ? inkOf(button.weight) : Ink::quiet});
  if (!button.price.empty()) runs.push_back({" " + button.price, Ink::strong});
  if (!button.offReason.empty()) runs.push_back({" (" + button.offReason + ")", Ink::quiet});
  return runs;
}

void drawButton(Canvas& canvas, Targets& targets, const Button& button) {
  const bool off = !button.offReason.empty();
  const std::string mark = off ? std::string(offMark) : targets.add(button.handle, {.label = button.label});
  canvas.leader(button.label, button.price, off ? Ink::quiet : inkOf(button.weight), Ink::strong, mark);
  if (off) canvas.nested("  ", [&] { canvas.text(button.offReason, Ink::quiet); });
}

}  // namespace tb::console
