#pragma once

#include <string>

#include "film/promotion.h"
#include "screens/stage.h"

namespace tb {

// The promotion interview for the project at `selectedAuditionIndex`. The energy is already spent when the
// screen opens.
class PromoteFilmViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
  [[nodiscard]] std::optional<Leaving> beforeLeaving() const override;

 private:
  void post(Stage& stage);

  std::size_t audition_ = 0;
  Interview interview_;
  std::string answer_;
};

}  // namespace tb
