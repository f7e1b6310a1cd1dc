#pragma once

// The hub: five tabs and the End Week button. The first screen; opens the new-career form when it is due.

#include "screens/stage.h"

namespace tb {

class ViewController : public Screen {
 public:
  enum class Tab : std::uint8_t { home, work, social, life, wealth };

  void load(Stage& stage) override;
  void appear(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
  [[nodiscard]] std::string closeLabel() const override { return ""; }
  void goBack(Stage& stage) override;
  // Adds tabs, End Week, cash and energy to the screens over the hub.
  void addFrame(const Game& game, TabsHere tabs, view::Page& page) override;

  // The End Week button: runs the week and opens its summary.
  static void endWeekButton(Stage& stage);

 private:
  void show(Stage& stage, Tab tab);
  [[nodiscard]] std::vector<view::Tab> tabs();
  [[nodiscard]] view::Tab tab(Tab which, const char* label, view::Icon icon);

  Tab current_ = Tab::home;
};

}  // namespace tb
