#pragma once

// A player: finds things on the page by what is written on them, and uses them.

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

#include "screens/app.h"

namespace tb::test {

class Player {
 public:
  explicit Player(App& app) : app_(app) {}

  // Uses the button, row, card, option, tab or icon with this label, or with this name for a screen reader.
  // Fails the test when there is none, or when it is off.
  void press(const std::string& label);
  void follow(std::initializer_list<std::string> labels);  // one after the other
  // Writes into the field, or moves the slider, with this label.
  void type(const std::string& label, const std::string& text);
  void slide(const std::string& label, double value);

  // Everything that can be read on the page, line by line, the dialog first.
  [[nodiscard]] std::vector<std::string> words() const;
  [[nodiscard]] bool sees(const std::string& text) const;
  [[nodiscard]] std::string title() const { return app_.view().title; }
  // The page as it is laid out; good until the next use of anything.
  [[nodiscard]] const view::Page& page() const { return app_.view(); }
  void expectSees(std::initializer_list<std::string> texts) const;
  // The title of the notice over the page; empty when there is none.
  [[nodiscard]] std::string notice() const;
  // The passing line of what was done just now; empty when there is none.
  [[nodiscard]] std::string said() const;
  // That notice is over the page, and is answered with OK.
  void expectTold(const std::string& title);

  // The handles of all that can be pressed, typed into or slid now.
  struct Usable {
    std::string label;
    view::Handle handle;
    enum class Kind : std::uint8_t { press, type, slide } kind;
    double minimum = 0;
    double maximum = 0;
    std::string name = {};  // for a screen reader, where it is not the label
  };
  [[nodiscard]] std::vector<Usable> usable() const;

 private:
  [[nodiscard]] view::Handle find(const std::string& label, Usable::Kind kind) const;

  App& app_;
};

}  // namespace tb::test
