#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "screens/stage.h"

namespace tb {

// The award nominations of a year and their winners, envelope by envelope, and the player's statues.
class MovieAwardViewController : public Screen {
 public:
  // Shows this year, or the latest one with nominations.
  MovieAwardViewController() = default;
  explicit MovieAwardViewController(std::int64_t year) : year_(year) {}
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice years(const WorldState& world);
  [[nodiscard]] view::Section show(const Game& game, const std::string& awardShow, const char* heading);
  [[nodiscard]] view::Card nomination(const Game& game, const Award& award);
  void reveal(Stage& stage, std::int64_t id);

  std::optional<std::int64_t> year_;
  // What was said when the latest envelope was opened, and its award.
  std::string said_;
  std::int64_t said_of_ = 0;
};

}  // namespace tb
