#pragma once

#include <cstdint>
#include <vector>

#include "screens/stage.h"

namespace tb {

// A post of the player's and what strangers answer. The answers are drawn when the screen opens.
class ChirpReplyThreadViewController : public Screen {
 public:
  explicit ChirpReplyThreadViewController(std::int64_t chirpId) : chirp_id_(chirpId) {}
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t chirp_id_;
  std::vector<Chirp> replies_;
};

}  // namespace tb
