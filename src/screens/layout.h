#pragma once

// Layout of a page: cuts lists to the visible page and assigns handles to everything that can be used.

#include <cstddef>
#include <vector>

#include "screens/stage.h"
#include "screens/view.h"

namespace tb {

struct LaidOutPage {
  view::Page page;  // without PagedList nodes; handles are numbered from 1, top to bottom
  // By handle - 1: the operation, exactly one of the three.
  struct Use {
    Operation press;
    TextOperation type;
    NumberOperation slide;
  };
  std::vector<Use> uses;
};

// While a dialog is open, only its answers have handles; everything else has handle 0.
[[nodiscard]] LaidOutPage layOut(view::Page page, const Stage& stage);

}  // namespace tb
