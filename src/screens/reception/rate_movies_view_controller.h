#pragma once

#include <cstdint>
#include <string>

#include "film/catalogue.h"
#include "screens/stage.h"

namespace tb {

// An evening with somebody else's title, and what the player has to say about it. The energy is already paid
// when it opens.
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

// Takes the energy and opens it, or says that there is not enough.
void openReview(Stage& stage);

}  // namespace tb
