#include "screens/offers/franchise_detail_view_controller.h"

#include <string>
#include <utility>
#include <vector>

#include "career/franchise_offer.h"
#include "core/format.h"
#include "core/news.h"
#include "core/number_style.h"
#include "core/text.h"
#include "film/catalogue.h"
#include "screens/moments.h"
#include "screens/offers/offer_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/project_words.h"
#include "social/inbox.h"

namespace tb {

using namespace view;

namespace {

std::vector<const MovieFranchise*> filmsOf(std::int64_t sagaId) {
  std::vector<const MovieFranchise*> films;
  for (const MovieFranchise& film : movieFranchises()) {
    if (film.id == sagaId) films.push_back(&film);
  }
  return films;
}

Row filmRow(const MovieFranchise& film) {
  return {.label = film.title,
          .value = tb::format("Film {}", film.movieNumber),
          .detail = film.shortSummary,
          .picture = {posterOf(film)}};
}

// Later films are ordered one by one, as long as the audience comes.
Section saga(const Audition& offer) {
  Section section{.heading = "THE SAGA"};
  for (const MovieFranchise* const film : filmsOf(offer.franchiseId)) section.nodes.push_back(filmRow(*film));
  section.nodes.push_back(caption("Each film is ordered when the one before it has found its audience."));
  return section;
}

Section theDeal(const Game& game, const Audition& offer) {
  return {.heading = "THE FIRST FILM",
          .nodes = {Row{.label = "Director", .value = offer.directorName},
                    Row{.label = "Genre", .value = joinedWithAnd(offer.genres)},
                    Row{.label = "Budget", .value = bigMoney(game.locale, offer.budget)},
                    Row{.label = "Pay",
                        .value = payWords(game.locale, {.fee = offer.payment, .residual = offer.residual})}}};
}

}  // namespace

void FranchiseDetailViewController::load(Stage& stage) {
  email_ = stage.game().world.passEmailId;
  drawFranchiseOffer(stage.game(), email_);
}

void FranchiseDetailViewController::accept(Stage& stage) {
  const std::string line = acceptFranchise(stage.game(), email_);
  if (line.empty()) return;
  const WorldState& world = stage.game().world;
  stage.play(momentOf(NewsKind::offer, line, {posterOf(world, world.saveAllAuditionList.back())}));
  stage.say(line);
  stage.close();
}

Page FranchiseDetailViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const Audition* const offer = franchiseOffer(world, email_);
  if (offer == nullptr) return offerIsGone("Franchise");
  Page page{.title = offer->title,
            .subtitle = tb::format("A saga of {}", counted(std::ssize(filmsOf(offer->franchiseId)), "film"))};
  page.nodes = {posterOf(world, *offer),
                Bubble{.speaker = "The studio", .text = emailWith(world, email_)->message},
                Text{.text = offer->description},
                roleSection(*offer),
                theDeal(game, *offer),
                saga(*offer),
                declineButton("Pass on it", email_)};
  page.main = {{.label = "Take the lead",
                .press = [this](Stage& stage) { accept(stage); },
                .name = "Take the lead in " + offer->title,
                .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
