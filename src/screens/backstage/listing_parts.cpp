#include "screens/backstage/listing_parts.h"

#include <format>

#include "career/submission.h"
#include "screens/parts.h"
#include "screens/work/project_words.h"

namespace tb {

namespace {

void submit(Stage& stage, const CastingListing& listing) {
  if (Refusal refusal = submitToCastingListing(stage.game(), listing)) return stage.show(std::move(refusal));
  stage.show(Notice{
      .title = "🎬 Sent 🎬",
      .message = std::format("\nYour headshot and showreel are on their way to {}.", listing.movie->title)});
  stage.worldChanged();
}

}  // namespace

std::string listingSummary(const CastingListing& listing) {
  return std::format("{} • {} • {}", typeName(listing.movie->type), listing.role,
                     guildWords(listing.isUnion));
}

view::Button submitButton(const CastingListing& listing) {
  return {.label = "Submit",
          .press = [listing](Stage& stage) { submit(stage, listing); },
          .price = energyPrice(submissionEnergy),
          .weight = view::Button::Weight::primary};
}

}  // namespace tb
