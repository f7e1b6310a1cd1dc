#pragma once

#include <cstdint>
#include <optional>

#include "screens/stage.h"

namespace tb {

// The player's interview answers about one title or all titles, latest first.
class QuotesViewController : public Screen {
 public:
  QuotesViewController() = default;
  explicit QuotesViewController(std::int64_t filmId) : film_id_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::optional<std::int64_t> film_id_;
};

}  // namespace tb
