#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// A film's box office by week and by market.
class ImbdBoxOfficeDetailViewController : public Screen {
 public:
  explicit ImbdBoxOfficeDetailViewController(std::int64_t filmId) : film_id_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t film_id_;
};

// Opens the screen, or shows a notice that the title was never in theaters.
void openBoxOfficeDetail(Stage& stage, std::int64_t filmId);

}  // namespace tb
