#pragma once

#include <string>
#include <vector>

#include "screens/stage.h"

namespace tb {

// The Cameo: its sales and orders, and the price.
class TheCameoViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::vector<std::string> orders_;  // of fans, drawn when the screen opens
};

}  // namespace tb
