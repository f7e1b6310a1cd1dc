#include "screens/backstage/backstage_detail_view_controller.h"

#include "core/number_style.h"
#include "core/text.h"
#include "screens/backstage/listing_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

Section theRole(const CastingListing& listing) {
  Section section{
      .heading = "THE ROLE",
      .nodes = {Row{.label = listing.characterName, .value = listing.role},
                Text{.text = fill(listing.movie->longSummaryTemplate, {{"name", listing.characterName}})}}};
  if (listing.numberOfEpisodesActed > 0) {
    section.nodes.push_back(Row{.label = "Episodes", .value = std::to_string(listing.numberOfEpisodesActed)});
  }
  return section;
}

Section projectSection(const Game& game, const CastingListing& listing) {
  return {.heading = "THE PROJECT",
          .nodes = {Row{.label = "Director", .value = listing.directorName},
                    Row{.label = "Genre", .value = joinedWithAnd(listing.movie->genre)},
                    Row{.label = "Budget", .value = bigMoney(game.locale, listing.budget)},
                    Row{.label = "Pay", .value = listingPay(game, listing)},
                    Row{.label = "Audition", .value = whenIs(game.world, listing.weekAudition)},
                    Row{.label = "Wrap", .value = whenIs(game.world, listing.weekToWork)}}};
}

}  // namespace

Page BackstageDetailViewController::view(const Game& game) {
  Page page{.title = listing_.movie->title, .subtitle = listingSummary(listing_)};
  page.nodes = {posterOf(*listing_.movie), Text{.text = listing_.movie->shortSummary}, theRole(listing_),
                projectSection(game, listing_)};
  page.main = {submitButton(game.world, listing_)};
  return page;
}

}  // namespace tb
