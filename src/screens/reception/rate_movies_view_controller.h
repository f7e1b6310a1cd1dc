#pragma once

#include <cstdint>
#include <string>

#include "film/catalogue.h"
#include "screens/stage.h"

namespace tb {

// The player's review of a title by others. The energy is already spent when the screen opens.
class RateMoviesViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice stars();
  void generate(Stage& stage);
  void submit(Stage& stage);

  const CatalogueTitle* title_ = nullptr;
  std::int64_t rating_ = 0;  // stars; 0 until chosen
  std::string review_;
};

// Spends the energy and opens the screen, or shows that there is not enough.
void openReview(Stage& stage);

}  // namespace tb
