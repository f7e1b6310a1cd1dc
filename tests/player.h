#pragma once

// A player who uses items of the page by their labels. After each use, memory and store are compared.

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

  // Presses the button, row, card, option, tab or icon with this label or screen-reader name. Fails the test
  // when there is none or it is off.
  void press(const std::string& label);
  void follow(std::initializer_list<std::string> labels);  // presses in order
  // Types into the field, or moves the slider, with this label.
  void type(const std::string& label, const std::string& text);
  void slide(const std::string& label, double value);

  // A line for each struct of the page that says something: its texts, and what differs from a new struct.
  // What can be pressed is in square brackets, words of the vocabulary are in angle brackets.
  [[nodiscard]] std::vector<std::string> words() const;
  [[nodiscard]] bool sees(const std::string& text) const;
  [[nodiscard]] std::string title() const { return app_.view().title; }
  // The laid-out page; valid until the next use.
  [[nodiscard]] const view::Page& page() const { return app_.view(); }
  void expectSees(std::initializer_list<std::string> texts) const;
  // The title of the open notice; empty when there is none.
  [[nodiscard]] std::string notice() const;
  // The passing line; empty when there is none.
  [[nodiscard]] std::string said() const;
  // Expects the notice and answers it with OK.
  void expectTold(const std::string& title);

  // Answers the story about the performer, if the week's summary opened one, with a free option.
  void answerStory();

  // An item that can be pressed, typed into or slid.
  struct Usable {
    std::string label = {};
    view::Handle handle = 0;
    enum class Kind : std::uint8_t { press, type, slide } kind = Kind::press;
    double minimum = 0;
    double maximum = 0;
    bool onPage = false;        // false: a tab, an icon, the back button or an answer
    int item = 0;               // number of the card or list item that contains it, from 1
    std::string likeness = {};  // equal for items that differ only in names and figures; empty outside items
    std::string name = {};      // screen-reader name, if it differs from the label
  };
  [[nodiscard]] std::vector<Usable> usable() const;

  // Uses an item from usable().
  void press(const Usable& usable);
  void type(const Usable& usable, const std::string& text);
  void slide(const Usable& usable, double value);

 private:
  [[nodiscard]] Usable find(const std::string& label, Usable::Kind kind) const;

  App& app_;
  std::shared_ptr<StoredWorld> stored_;
};

}  // namespace tb::test
