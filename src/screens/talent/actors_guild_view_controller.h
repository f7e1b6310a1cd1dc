#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// The guild: requirements for joining, or the member card.
class ActorsGuildViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t eligibility_ = 0;  // principal roles booked, as of opening the screen
};

}  // namespace tb
