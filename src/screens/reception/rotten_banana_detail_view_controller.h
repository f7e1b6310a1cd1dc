#pragma once

#include <string>
#include <utility>
#include <vector>

#include "film/banana_reviews.h"
#include "film/banana_scores.h"
#include "screens/stage.h"

namespace tb {

// What critics and audiences make of a title, in percent and in their own words. A title is looked up by its
// name, so the page of a series is that of its newest season. The texts are drawn as the page opens.
class RottenBananaDetailViewController : public Screen {
 public:
  explicit RottenBananaDetailViewController(std::string title) : title_(std::move(title)) {}
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::string title_;
  BananaScores scores_;
  std::string consensus_;
  std::vector<Review> critics_;
  std::vector<AudienceReview> audience_;
};

}  // namespace tb
