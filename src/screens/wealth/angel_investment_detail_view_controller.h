#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// A released title that the player invested in: what it took in and what it paid.
class AngelInvestmentDetailViewController : public Screen {
 public:
  explicit AngelInvestmentDetailViewController(std::int64_t filmId) : film_id_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t film_id_;
};

}  // namespace tb
