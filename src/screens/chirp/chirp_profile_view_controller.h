#pragma once

#include <vector>

#include "screens/stage.h"

namespace tb {

// Chirp: the feed, or the performer's profile with their own posts.
class ChirpProfileViewController : public Screen {
 public:
  void load(Stage& stage) override;
  void appear(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice choice();
  [[nodiscard]] std::vector<view::Node> feedNodes(const Game& game);
  void drawFeed(Stage& stage);

  std::vector<Chirp> feed_;
  bool shows_profile_ = false;
  std::size_t kept_ = 0;  // posts that were kept when the feed was drawn
};

}  // namespace tb
