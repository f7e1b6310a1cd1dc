#pragma once

#include <cstddef>

#include "screens/stage.h"

namespace tb {

// Everything that the performer acts in or has applied for, in four lists.
class ActiveAuditionViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice lists();

  std::size_t list_ = 0;
};

}  // namespace tb
