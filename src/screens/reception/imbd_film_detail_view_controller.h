#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "film/user_reviews.h"
#include "screens/stage.h"

namespace tb {

// The page of a title: its scores, its audience and its people, and the ways to all else that is known of it.
// What the audience writes is drawn as the page opens.
class ImbdFilmDetailViewController : public Screen {
 public:
  explicit ImbdFilmDetailViewController(std::int64_t filmId) : film_id_(filmId) {}
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section audience() const;

  std::int64_t film_id_;
  std::optional<std::size_t> place_;  // among the best of all time
  StarHistogram histogram_{};
  std::vector<Reviews> reviews_;
  std::string summary_;
};

// Opens the page of a film of the player's; does nothing when there is none with this id.
void openTitlePage(Stage& stage, std::int64_t filmId);

}  // namespace tb
