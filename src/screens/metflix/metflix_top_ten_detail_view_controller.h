#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// One of the two charts.
using ChartList = List<TopTen> WorldState::*;

// A chart's entry: its places, its views and the title.
class MetflixTopTenDetailViewController : public Screen {
 public:
  MetflixTopTenDetailViewController(ChartList list, std::int64_t filmId) : list_(list), film_id_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  ChartList list_;
  std::int64_t film_id_;
};

}  // namespace tb
