#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "film/banana_reviews.h"
#include "film/banana_scores.h"
#include "screens/stage.h"

namespace tb {

// The critics' and the audience's percentages and reviews of a film. The texts are drawn when the page opens.
class RottenBananaDetailViewController : public Screen {
 public:
  explicit RottenBananaDetailViewController(std::int64_t filmId) : film_id_(filmId) {}
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t film_id_;
  BananaScores scores_;
  std::string consensus_;
  std::vector<Review> critics_;
  std::vector<AudienceReview> audience_;
};

}  // namespace tb
