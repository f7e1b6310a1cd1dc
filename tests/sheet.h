#pragma once

// What rules do, case by case, on a sheet that is held against a file in tests/golden: figures over a range
// of inputs, and what changed in the state.

#include <functional>
#include <string>

#include "core/game.h"

namespace tb::test {

class Sheet {
 public:
  using Prepare = std::function<void(WorldState&)>;
  using Rule = std::function<void(Game&)>;

  explicit Sheet(std::string name) : name_(std::move(name)) {}
  Sheet(const Sheet&) = delete;
  Sheet& operator=(const Sheet&) = delete;
  ~Sheet();

  // A line of its own.
  void line(const std::string& text) { text_ += text + "\n"; }

  // What the rule changes in a new state that was prepared so. Chance is the same for the same `seed`.
  void changes(const std::string& what, const Prepare& prepare, const Rule& rule, std::uint64_t seed = 1);

  // The text that `read` makes of that state and of chance.
  void text(const std::string& what, const Prepare& prepare, const std::function<std::string(Game&)>& read,
            std::uint64_t seed = 1);

 private:
  std::string name_;
  std::string text_;
};

}  // namespace tb::test
