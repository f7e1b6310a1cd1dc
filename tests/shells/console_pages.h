#pragma once

// Pages for the console's tests, and what they look like as plain text.

#include <memory>
#include <string>
#include <vector>

#include "screens/layout.h"
#include "screens/stage.h"
#include "shells/console/painter.h"
#include "tests/scratch_game.h"

namespace tb::test {

class BlankScreen : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game&) override { return {}; }
};

// A page as a shell gets it: lists cut, numbers given.
inline view::Page laidOut(view::Page page) {
  ScratchGame scratch;
  Stage stage(scratch.game);
  stage.open(std::make_unique<BlankScreen>());
  return layOut(std::move(page), stage).page;
}

inline std::string textOf(const std::vector<console::Line>& lines) {
  std::string text;
  for (const console::Line& line : lines) text += console::printed(line, false) + "\n";
  return text;
}

// Head, body, dialog and foot, one after the other.
inline std::string textOf(const console::PaintedPage& page) {
  return textOf(page.head) + textOf(page.body) + textOf(page.dialog) + textOf(page.foot);
}

inline const Operation nothing = [](Stage&) {};

// A page with every kind of node.
view::Page gallery();

}  // namespace tb::test
