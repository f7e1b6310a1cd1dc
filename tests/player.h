#pragma once

// A player: finds things on the page by what is written on them, and uses them. After each use the test fails
// where memory and store differ, so no action of a test goes unsaved.

#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "screens/app.h"

namespace tb::test {

class StoredWorld;

class Player {
 public:
  explicit Player(App& app);

  // Uses the button, row, card, option, tab or icon with this label, or with this name for a screen reader.
  // Fails the test when there is none, or when it is off.
  void press(const std::string& label);
  void follow(std::initializer_list<std::string> labels);  // one after the other
  // Writes into the field, or moves the slider, with this label.
  void type(const std::string& label, const std::string& text);
  void slide(const std::string& label, double value);

  // Everything that can be read on the page, line by line, the dialog first. What a shell shows by color or
  // weight stands behind it in angle brackets, what can be pressed in square ones.
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
    bool onPage = false;    // false: a tab, an icon, a way back or an answer, which stand around the page
    int item = 0;           // the card or list item that it stands in, from 1
    std::string likeness;   // the same for items that differ in names and figures only; empty outside items
    std::string name = {};  // for a screen reader, where it is not the label
  };
  [[nodiscard]] std::vector<Usable> usable() const;

  // Uses what was found by usable().
  void press(const Usable& usable);
  void type(const Usable& usable, const std::string& text);
  void slide(const Usable& usable, double value);

 private:
  [[nodiscard]] Usable find(const std::string& label, Usable::Kind kind) const;

  App& app_;
  std::shared_ptr<StoredWorld> stored_;
};

}  // namespace tb::test
