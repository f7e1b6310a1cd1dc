#pragma once

#include <optional>
#include <string>

#include "career/renewal_negotiation.h"
#include "screens/stage.h"

namespace tb {

// The negotiation of the project at `selectedAuditionIndex`: the offer, the ask, and the attempt.
class RenewalNegotiationViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section askSection(const Game& game);
  void negotiate(Stage& stage);

  std::optional<RenewalTalks> talks_;
  std::string argument_;  // the performer's
};

// Opens the negotiation of the project with this id.
void openNegotiation(Stage& stage, std::int64_t filmId);

}  // namespace tb
