#include "screens/backstage/listing_parts.h"

#include <format>

#include "career/submission.h"
#include "core/audition_list.h"
#include "screens/parts.h"
#include "screens/work/project_words.h"

namespace tb {

namespace {

void submit(Stage& stage, const CastingListing& listing) {
  if (Refusal refusal = submitToCastingListing(stage.game(), listing)) return stage.show(std::move(refusal));
  stage.show(Notice{
      .title = "🎬 Sent 🎬",
      .message = std::format("\nYour headshot and showreel are on their way to {}.", listing.movie->title)});
}

}  // namespace

std::string listingSummary(const CastingListing& listing) {
  return std::format("{} • {} • {}", typeName(listing.movie->type), listing.role,
                     guildWords(listing.isUnion));
}

view::Button submitButton(const WorldState& world, const CastingListing& listing) {
  view::Button button{.label = "Submit", .press = [listing](Stage& stage) { submit(stage, listing); }};
  if (isSubmitted(world, listing)) return button;
  button.price = energyPrice(submissionEnergy);
  button.weight = view::Button::Weight::primary;
  return button;
}

bool isSubmitted(const WorldState& world, const CastingListing& listing) {
  return auditionIndex(world, listing.filmId).has_value();
}

view::Text submittedCaption() {
  view::Text words = caption("✓ You submitted for this role.");
  words.tone = view::Tone::good;
  return words;
}

}  // namespace tb
