#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "film/user_reviews.h"
#include "screens/stage.h"

namespace tb {

// The page of a title: scores, audience, cast and crew, and links to its other screens. The audience's
// reviews are drawn when the page opens.
class ImbdFilmDetailViewController : public Screen {
 public:
  explicit ImbdFilmDetailViewController(std::int64_t filmId) : film_id_(filmId) {}
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section audience() const;

  std::int64_t film_id_;
  std::optional<std::size_t> place_;  // rank on the all-time lists
  StarHistogram histogram_{};
  std::vector<Reviews> reviews_;
  std::string summary_;
};

// Opens the page of a film of the player's; does nothing when there is no film with this id.
void openTitlePage(Stage& stage, std::int64_t filmId);

}  // namespace tb
