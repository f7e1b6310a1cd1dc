#pragma once

// Laying a page out: lists are cut to what is on show, and everything that can be used gets its handle.

#include <cstddef>
#include <vector>

#include "screens/stage.h"
#include "screens/view.h"

namespace tb {

struct LaidOutPage {
  view::Page page;  // holds no PagedList; handles count from 1, from top to bottom
  // By handle - 1: what using it does. A handle has one of the three.
  struct Use {
    Operation press;
    TextOperation type;
    NumberOperation slide;
  };
  std::vector<Use> uses;
};

// While a dialog is up only its answers can be used: everything under it has handle 0.
[[nodiscard]] LaidOutPage layOut(view::Page page, const Stage& stage);

}  // namespace tb
