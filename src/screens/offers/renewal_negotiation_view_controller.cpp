#include "screens/offers/renewal_negotiation_view_controller.h"

#include <cmath>
#include <utility>

#include "banks/draw.h"
#include "banks/negotiation_banks.h"
#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "screens/offers/offer_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

const Audition* selectedProject(const WorldState& world) {
  const std::int64_t index = world.selectedAuditionIndex;
  if (index < 0 || index >= std::ssize(world.saveAllAuditionList)) return nullptr;
  return &world.saveAllAuditionList[static_cast<std::size_t>(index)];
}

std::string amountWords(const Locale& locale, bool isRoyalty, double amount) {
  return isRoyalty ? tb::format("{:.2f}%", amount) : wholeMoney(locale, amount);
}

double payOf(const Audition& project, bool isRoyalty) {
  return isRoyalty ? project.royalty : project.payment;
}

std::string offerWords(const Game& game, const Audition& project, const RenewalTalks& talks) {
  const Audition* const previous = previousInstalment(game.world, project);
  if (previous == nullptr) {
    return tb::format("You are being offered {}.",
                      amountWords(game.locale, talks.isRoyalty, talks.offered()));
  }
  const char* const last = project.typeOfFilm == filmType::series ? "last season" : "the last film";
  const double change = talks.offered() - payOf(*previous, talks.isRoyalty);
  return tb::format("You are being offered a {} {} from {}",
                    amountWords(game.locale, talks.isRoyalty, std::abs(change)),
                    change < 0 ? "decrease" : "increase", last);
}

std::string argumentWords(const Audition& project, const std::string& argument) {
  if (project.typeOfFilm != filmType::series) {
    return tb::format("I'm excited about film {} and the continued success of the saga. {}",
                      project.seasonNumber, argument);
  }
  return tb::format("I'm excited about Season {} and the continued success of the show. {}",
                    project.seasonNumber, argument);
}

// --- Earlier seasons ---

std::string instalmentName(const Audition& project) {
  return tb::format("{} {}", project.typeOfFilm == filmType::series ? "Season" : "Film",
                    project.seasonNumber);
}

Row instalmentRow(const Locale& locale, const Audition& project, bool isRoyalty) {
  return {.label = instalmentName(project),
          .value = amountWords(locale, isRoyalty, payOf(project, isRoyalty)),
          .detail = project.didNegotiate == 1 ? "Negotiated" : "As offered"};
}

// The pay of the earlier seasons, latest first.
Section payHistory(const Game& game, const Audition& project, bool isRoyalty) {
  Section section{.heading = "PAY SO FAR"};
  const Audition* earlier = previousInstalment(game.world, project);
  while (earlier != nullptr) {
    section.nodes.push_back(instalmentRow(game.locale, *earlier, isRoyalty));
    earlier = previousInstalment(game.world, *earlier);
  }
  if (section.nodes.empty()) section.nodes.push_back(caption("There is no earlier deal on file."));
  return section;
}

// What makes the chance lower than it would be for a show that holds its audience.
std::string audienceWords(const Audition& project, double ratio) {
  const char* const what = project.typeOfFilm == filmType::series ? "The last season" : "The last film";
  const char* const did = project.typeOfFilm == filmType::series ? "lost viewers" : "took in less";
  return tb::format("{} {}: {:.0f}% of the one before it. That weakens your case.", what, did, ratio * 100);
}

}  // namespace

void openNegotiation(Stage& stage, std::int64_t filmId) {
  openRenewalNegotiation(stage.game(), filmId);
  stage.open<RenewalNegotiationViewController>();
}

void RenewalNegotiationViewController::load(Stage& stage) {
  Game& game = stage.game();
  const Audition* const project = selectedProject(game.world);
  if (project == nullptr || !isNegotiationOffered(game.world, *project)) return;
  talks_ = beginRenewalTalks(game.world, *project);
  argument_ = drawFreshRow(game, bank::reasonsYouDeserveMorePayBecauseShowIsSuccessful, subjectOf(*project));
}

void RenewalNegotiationViewController::negotiate(Stage& stage) {
  RenewalAnswer answer = negotiateRenewal(stage.game(), *talks_);
  stage.show(std::move(answer.notice));
  if (answer.isFinal) stage.close();
}

Section RenewalNegotiationViewController::askSection(const Game& game) {
  const RenewalTalks& talks = *talks_;
  const std::string won = talks.paymentCount == 0 ? "" : tb::format("+{}%", 10 * talks.paymentCount);
  return {
      .heading = "YOUR ASK",
      .nodes = {
          Tiles{{{.label = "They offer", .value = amountWords(game.locale, talks.isRoyalty, talks.offered())},
                 {.label = "You ask",
                  .value = amountWords(game.locale, talks.isRoyalty, talks.total),
                  .detail = won,
                  .tone = talks.paymentCount > 0 ? Tone::good : Tone::plain}}},
          chanceMeter(talks.chanceOfNegotiation, talks.negotiationBonus),
          Buttons{
              {{.label = "Ask for less",
                .press = [this](Stage&) { lowerAsk(*talks_); },
                .offReason = talks.paymentCount > 0 ? "" : "This is what they offer"},
               {.label = "Ask for more",
                .press = [this](Stage&) { raiseAsk(*talks_); },
                .offReason = talks.paymentCount < maxRenewalSteps ? "" : "This is twice what they offer"}}}}};
}

Page RenewalNegotiationViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const auto index =
      talks_ ? find(world.saveAllAuditionList, &Audition::filmId, talks_->filmId) : std::nullopt;
  if (!index) return {.title = "Negotiation", .nodes = {caption("There is nothing to negotiate here.")}};
  const Audition& project = world.saveAllAuditionList[*index];
  Page page{.title = project.title, .subtitle = instalmentName(project)};
  page.nodes = {posterOf(world, project),
                Bubble{.speaker = project.directorName, .text = offerWords(game, project, *talks_)},
                Bubble{.speaker = world.myName, .text = argumentWords(project, argument_), .mine = true}};
  if (const double ratio = successRatio(world, project); ratio < 1) {
    page.nodes.push_back(Text{.text = audienceWords(project, ratio), .tone = Tone::warning});
  }
  page.nodes.append_range(std::vector<Node>{askSection(game), payHistory(game, project, talks_->isRoyalty)});
  page.main = {{.label = "Negotiate",
                .press = [this](Stage& stage) { negotiate(stage); },
                .price = energyPrice(renewalNegotiationEnergy),
                .refusal = briefOf(renewalRefusal(world)),
                .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
