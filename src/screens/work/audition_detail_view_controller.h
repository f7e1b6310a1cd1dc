#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// One project before its release: what it is, how far it has come, and what the performer can still do for
// it.
class AuditionDetailViewController : public Screen {
 public:
  explicit AuditionDetailViewController(std::int64_t filmId) : filmId_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t filmId_;
};

}  // namespace tb
