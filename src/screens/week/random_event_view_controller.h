#pragma once

#include <string>

#include "life/public_relations.h"
#include "screens/stage.h"

namespace tb {

// A public relations dilemma. It can be left once an option is chosen.
class RandomEventViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
  [[nodiscard]] std::string closeLabel() const override { return result_.empty() ? "" : "Close"; }
  [[nodiscard]] TabsHere tabsHere() const override { return TabsHere::later; }

 private:
  void choose(Stage& stage, EventChoice choice);
  [[nodiscard]] view::Card optionCard(const Game& game, EventChoice choice);
  [[nodiscard]] std::vector<view::Node> options(const Game& game);
  [[nodiscard]] view::Headline resultHeadline() const;

  EventScenario scenario_;
  EventChoice choice_ = EventChoice::a;
  std::string result_;  // empty until an option is chosen
};

}  // namespace tb
