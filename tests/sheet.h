#pragma once

// A sheet of cases that is compared with a file in tests/golden: values for inputs, and changes of the state.

#include <functional>
#include <string>

#include "core/game.h"
#include "core/notice.h"

namespace tb::test {

class Sheet {
 public:
  using Prepare = std::function<void(WorldState&)>;
  using Rule = std::function<void(Game&)>;
  using Action = std::function<Refusal(Game&)>;

  explicit Sheet(std::string name) : name_(std::move(name)) {}
  Sheet(const Sheet&) = delete;
  Sheet& operator=(const Sheet&) = delete;
  ~Sheet();

  // Adds a line.
  void line(const std::string& text) { text_ += text + "\n"; }

  // Adds the changes that the rule makes to a prepared new state, with a generator seeded by `seed`.
  void changes(const std::string& what, const Prepare& prepare, const Rule& rule, std::uint64_t seed = 1);

  // The same for an action of the player: adds its notice if it is refused.
  void action(const std::string& what, const Prepare& prepare, const Action& act, std::uint64_t seed = 1);

  // Adds the text that `read` returns for the prepared state.
  void text(const std::string& what, const Prepare& prepare, const std::function<std::string(Game&)>& read,
            std::uint64_t seed = 1);

 private:
  std::string name_;
  std::string text_;
};

}  // namespace tb::test
