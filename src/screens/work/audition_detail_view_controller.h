#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// A project before its release: description, progress and available actions.
class AuditionDetailViewController : public Screen {
 public:
  explicit AuditionDetailViewController(std::int64_t filmId) : film_id_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t film_id_;
};

}  // namespace tb
