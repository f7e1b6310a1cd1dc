#pragma once

// The weekly summary. It opens when a week ends and is not available after it closes.

#include <cstddef>

#include "screens/stage.h"
#include "week/summary.h"

namespace tb {

class WeeklySummaryViewController : public Screen {
 public:
  void load(Stage& stage) override;
  void appear(Stage& stage) override;
  void leave(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
  [[nodiscard]] std::string closeLabel() const override { return "Close"; }
  // The summary has to be closed first.
  [[nodiscard]] TabsHere tabsHere() const override { return TabsHere::later; }

 private:
  void showLateNews(Stage& stage);
  [[nodiscard]] view::Button releaseButton();
  [[nodiscard]] view::Button awardButton();
  void use(Stage& stage, std::size_t place);
  [[nodiscard]] view::Section events(const Game& game);
  [[nodiscard]] std::vector<view::Node> feed(const Game& game);

  WeekSummary summary_;
};

}  // namespace tb
