#include "screens/work/job_board_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

Section presentJob(const Game& game) {
  const WorldState& world = game.world;
  return {.heading = "YOUR JOB",
          .nodes = {Row{.label = world.weeklyJobTitle,
                        .value = tb::format("{} a week", wholeMoney(game.locale, world.weeklyJobIncome)),
                        .detail = tb::format("{} • -{} energy each week", jobWeeksLeft(world),
                                             world.weeklyEnergyCost)}}};
}

}  // namespace

void JobBoardViewController::load(Stage& stage) { board_ = openJobBoard(stage.game()); }

void JobBoardViewController::accept(Stage& stage, const JobOffer& offer) {
  if (Refusal refusal = acceptJob(stage.game(), offer)) return stage.show(std::move(refusal));
  stage.say(tb::format("You start as a {} for {} weeks.", offer.job.jobTitle, offer.contractWeeks));
}

Card JobBoardViewController::offerCard(const Game& game, const JobOffer& offer) {
  return {.title = std::string(offer.job.jobTitle),
          .subtitle = tb::format("{} Week Contract", offer.contractWeeks),
          .nodes = {Text{.text = std::string(offer.job.jobDescription)},
                    Row{.label = "Pay", .value = wholeMoney(game.locale, offer.job.jobPay) + " a week"},
                    Row{.label = "Energy", .value = tb::format("-{} each week", offer.job.energyCost)},
                    Button{.label = "Accept",
                           .press = [this, offer](Stage& stage) { accept(stage, offer); },
                           .refusal = briefOf(jobRefusal(game.world)),
                           .name = tb::format("Accept {}", offer.job.jobTitle),
                           .weight = Button::Weight::primary}}};
}

Section JobBoardViewController::board(const Game& game) {
  if (board_.empty()) {
    return {
        .heading = "NO OFFERS",
        .nodes = {Text{.text = "NO JOBS AVAILABLE"}, caption("Another day, another board. Look in again.")}};
  }
  Section section{.heading = "OFFERS"};
  for (const JobOffer& offer : board_) section.nodes.push_back(offerCard(game, offer));
  return section;
}

Page JobBoardViewController::view(const Game& game) {
  Page page{.title = "Job Board", .subtitle = "Work that pays while you wait for the call"};
  if (!game.world.weeklyJobTitle.empty()) page.nodes.push_back(presentJob(game));
  page.nodes.push_back(board(game));
  return page;
}

}  // namespace tb
