#pragma once

#include <string>

#include "screens/stage.h"

namespace tb {

// A new match, who waits for the first line. Without one the match is lost.
class RelationshipMatchViewController : public Screen {
 public:
  explicit RelationshipMatchViewController(Matches match) : match_(std::move(match)) {}
  [[nodiscard]] view::Page view(const Game& game) override;
  [[nodiscard]] std::optional<Leaving> beforeLeaving() const override;

 private:
  void send(Stage& stage);

  Matches match_;
  std::string line_;
  bool is_sent_ = false;
};

}  // namespace tb
