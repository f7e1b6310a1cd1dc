#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// A project after its release: box office or viewers per week, and earlier seasons or films.
class PostReleaseAuditionViewController : public Screen {
 public:
  explicit PostReleaseAuditionViewController(std::int64_t filmId) : film_id_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t film_id_;
};

}  // namespace tb
