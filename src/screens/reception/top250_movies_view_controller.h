#pragma once

#include <cstdint>

#include "film/top_titles.h"
#include "screens/stage.h"

namespace tb {

enum class TopList : std::uint8_t { movies, shows };

// The all-time lists of films and series; the player's titles open their pages.
class Top250MoviesViewController : public Screen {
 public:
  explicit Top250MoviesViewController(TopList shown = TopList::movies) : shown_(shown) {}
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice choice();

  TopTitles lists_;
  TopList shown_;
};

}  // namespace tb
