#pragma once

// The new-career form. It cannot be closed without completing it.

#include <cstdint>
#include <string>

#include "core/career_start.h"
#include "screens/stage.h"

namespace tb {

class EnterPlayerDetailsViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
  [[nodiscard]] std::string closeLabel() const override { return ""; }
  [[nodiscard]] TabsHere tabsHere() const override { return TabsHere::none; }

 private:
  [[nodiscard]] view::Choice genders();
  void chooseGender(bool isMale);
  [[nodiscard]] view::Choice waysBack();
  [[nodiscard]] view::Choice headshots(const Game& game);
  void confirm(Stage& stage);

  NewCareerForm form_;
};

}  // namespace tb
