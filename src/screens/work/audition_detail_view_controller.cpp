#include "screens/work/audition_detail_view_controller.h"

#include "career/boosts.h"
#include "career/bribe.h"
#include "career/renewal_negotiation.h"
#include "career/withdrawal.h"
#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/offers/renewal_negotiation_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/boost_parts.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

// --- Description ---

Section projectSection(const Game& game, const Audition& project) {
  return {.heading = "THE PROJECT",
          .nodes = {Row{.label = "Director", .value = project.directorName},
                    Row{.label = "Writer", .value = project.writerName},
                    Row{.label = "Genre", .value = joinedWithAnd(project.genres)},
                    Row{.label = "Budget", .value = bigMoney(game.locale, project.budget)},
                    Row{.label = "Pay",
                        .value = payWords(game.locale, {.fee = project.payment,
                                                        .buyout = project.buyout,
                                                        .residual = project.residual,
                                                        .royalty = project.royalty})},
                    Row{.label = "Through", .value = project.source}}};
}

// The steps so far and, unless the project ended early, the next ones.
Section progressSection(const WorldState& world, const Audition& project) {
  Section section{.heading = "THE ROAD"};
  const auto stop = [&](const char* label, std::int64_t week) {
    if (isOver(world, project) && week >= world.weekNumberForTracking) return;
    section.nodes.push_back(Row{.label = label, .value = whenIs(world, week)});
  };
  stop("Submitted", project.weekSubmitted);
  stop("Audition", project.weekAudition);
  stop("Wrap", project.weekToWork);
  stop("Release", project.weekReleased);
  return section;
}

Text theState(const WorldState& world, const Audition& project) {
  return {.text = progressWords(world, project),
          .style = Text::Style::large,
          .tone = isOver(world, project) ? Tone::quiet : Tone::accent};
}

Section thePreparation(const Audition& project) {
  return {.heading = "YOUR PREPARATION",
          .nodes = {scoreMeter("Audition", static_cast<std::int64_t>(project.rehearsalRating)),
                    scoreMeter("Performance", static_cast<std::int64_t>(project.performanceRating))}};
}

// --- Actions ---

// Buttons identify the project by its id, because indexes can change before a press.
void bribe(Stage& stage, std::int64_t filmId) { stage.show(bribeCastingDirector(stage.game(), filmId)); }

void withdraw(Stage& stage, std::int64_t filmId) {
  withdrawFromRole(stage.game(), filmId);
  stage.close();
}

void askToWithdraw(Stage& stage, std::int64_t filmId) {
  stage.ask(
      Notice{.title = "😭 Withdraw? 😭",
             .message =
                 "Are you sure you want to withdraw from this role?\n\nIf you’re juggling roles, stepping "
                 "back early can reduce stress—but if it’s already booked and announced, you might "
                 "disappoint fans who were excited to see you."},
      {{.label = "Keep", .weight = Button::Weight::primary},
       {.label = "Yes, withdraw",
        .press = [filmId](Stage& asked) { withdraw(asked, filmId); },
        .weight = Button::Weight::destructive}});
}

void askToPutAway(Stage& stage, std::int64_t filmId) {
  stage.ask(Notice{.title = "🗄 Put Away? 🗄",
                   .message = "\nYou were not selected for this role. Putting it away takes it off your list "
                              "for good, and a few fans who had heard of it may be disappointed."},
            {{.label = "Keep", .weight = Button::Weight::primary},
             {.label = "Put away",
              .press = [filmId](Stage& asked) { withdraw(asked, filmId); },
              .weight = Button::Weight::destructive}});
}

Button bribeButton(const Game& game, const Audition& project) {
  const double price = static_cast<double>(game.world.saveBribePrice);
  return {.label = wholeMoney(game.locale, price) + " | BRIBE",
          .press = [id = project.filmId](Stage& stage) { bribe(stage, id); },
          .refusal = briefOf(bribeRefusal(game.world))};
}

Button negotiateButton(const Audition& project) {
  return {.label = "Negotiate",
          .press = [id = project.filmId](Stage& stage) { openNegotiation(stage, id); },
          .name = tb::format("Negotiate {}", titleWithSeason(project))};
}

// For a lost role the button only removes it from the list.
Button withdrawal(const WorldState& world, const Audition& project) {
  if (isOver(world, project)) {
    return {.label = "Put away",
            .press = [id = project.filmId](Stage& stage) { askToPutAway(stage, id); },
            .name = "Put away " + project.title,
            .weight = Button::Weight::quiet};
  }
  return {.label = "Withdraw",
          .press = [id = project.filmId](Stage& stage) { askToWithdraw(stage, id); },
          .name = "Withdraw from " + project.title,
          .weight = Button::Weight::destructive};
}

}  // namespace

Page AuditionDetailViewController::view(const Game& game) {
  const auto index = find(game.world.saveAllAuditionList, &Audition::filmId, film_id_);
  if (!index) return {.title = "Auditions", .nodes = {caption("This project is not on your list anymore.")}};
  const Audition& project = game.world.saveAllAuditionList[*index];
  Page page{.title = titleWithSeason(project),
            .subtitle = tb::format("{} • {}", typeName(project.typeOfFilm), guildWords(project.isUnion))};
  page.nodes = {posterOf(game.world, project), theState(game.world, project),
                Text{.text = project.description}, thePreparation(project)};
  if (const auto offered = boostOf(game.world, project)) {
    page.main = {boostButton(game.world, *offered, project, BoostWords::full)};
  }
  if (isBribeOffered(project)) page.nodes.push_back(bribeButton(game, project));
  if (isNegotiationOffered(game.world, project)) page.nodes.push_back(negotiateButton(project));
  page.nodes.append_range(std::vector<Node>{roleSection(project), projectSection(game, project),
                                            progressSection(game.world, project)});
  if (isWithdrawalOffered(project)) page.nodes.push_back(withdrawal(game.world, project));
  return page;
}

}  // namespace tb
