#pragma once

#include <vector>

#include "film/box_office_tables.h"
#include "screens/stage.h"

namespace tb {

// Films in theaters, and rankings by gross: all time, and the player's.
class BoxOfficeViewController : public Screen {
 public:
  void appear(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section theaters(const Game& game) const;
  [[nodiscard]] view::Section ranking(const Game& game);

  std::vector<InTheaters> in_theaters_;
  std::vector<BoxOfficeWeekends> all_time_;
  std::vector<BoxOfficeWeekends> own_;
  bool shows_own_ = false;
};

}  // namespace tb
