#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// The guild: what it asks of those who want in, or the card of a member.
class ActorsGuildViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t eligibility_ = 0;  // principal roles booked when the screen opened
};

}  // namespace tb
