#pragma once

// A screen, a layout and plain text for console tests.

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

// Lays out a page.
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

// The text of head, body, dialog and foot.
inline std::string textOf(const console::PaintedPage& page) {
  return textOf(page.head) + textOf(page.body) + textOf(page.dialog) + textOf(page.foot);
}

inline const Operation nothing = [](Stage&) {};

}  // namespace tb::test
