#pragma once

#include <memory>
#include <utility>

#include "screens/stage.h"
#include "screens/talent/showreel_view_controller.h"

namespace tb {

// Selection of footage for a reel.
class ShowreelFootageViewController : public Screen {
 public:
  explicit ShowreelFootageViewController(std::shared_ptr<ChosenFootage> chosen)
      : chosen_(std::move(chosen)) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Row footageRow(const WorldState& world, const Audition& work);
  void choose(Stage& stage, std::int64_t filmId);
  void build(Stage& stage);

  std::shared_ptr<ChosenFootage> chosen_;
};

}  // namespace tb
