#pragma once

#include "screens/stage.h"

namespace tb {

// Sets the price of a fan video.
class TheCameoPriceViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  double price_ = 0;  // dollars, as chosen so far
};

}  // namespace tb
