#include "screens/wealth/angel_investing_view_controller.h"

#include <algorithm>
#include <utility>

#include "banks/angel_banks.h"
#include "banks/draw.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/offers/offer_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/wealth/angel_investment_list_view_controller.h"
#include "screens/work/project_words.h"
#include "social/inbox.h"

namespace tb {

using namespace view;

namespace {

std::string teamName(const Audition& film) { return film.directorName; }

std::string firstGenre(const Audition& film) { return film.genres.empty() ? "Drama" : film.genres.front(); }

std::string projectWords(const Audition& film) {
  const char* const kind = film.typeOfFilm == filmType::series ? "TV series" : "feature film";
  return tb::format(
      "{} is a {} ({}), directed and produced by {} and written by {}. We are looking for investment in "
      "exchange "
      "for equity.",
      film.title, kind, firstGenre(film), film.directorName, film.writerName);
}

// What the team says, one bubble each.
std::vector<std::string> drawPitch(Game& game, const Audition& film) {
  const std::string team = fill(drawFreshRow(game, bank::angelTeam),
                                {{"director", film.directorName}, {"writer", film.writerName}});
  return {projectWords(film) + " " + team, std::string(drawFreshRow(game, bank::angelPitch)),
          fill(drawFreshRow(game, bank::angelMoney), {{"budget", bigMoney(game.locale, film.budget)}})};
}

std::string percentWords(std::int64_t percent) { return tb::format("{}%", percent); }

Section theProject(const Audition& film) {
  return {.heading = "THE PROJECT",
          .nodes = {Text{.text = film.description}, Row{.label = "Director", .value = film.directorName},
                    Row{.label = "Writer", .value = film.writerName},
                    Row{.label = "Genre", .value = joinedWithAnd(film.genres)},
                    Row{.label = "Casting begins",
                        .value = "in " + counted(film.weekAudition - film.weekSubmitted, "week")}}};
}

// What the percentage would pay if this title did as well as the performer's own have done.
Section suchTitles(const Game& game, const Audition& film, const InvestmentTalks& talks) {
  const bool isSeries = film.typeOfFilm == filmType::series;
  const PastTakings past = pastTakings(game.world, film.typeOfFilm);
  Section section{.heading = isSeries ? "WHAT YOUR SERIES BROUGHT" : "WHAT YOUR FILMS BROUGHT"};
  if (past.titles == 0) {
    section.nodes.push_back(caption(isSeries ? "None of your series has sold its reruns yet."
                                             : "None of your films has finished its run yet."));
    return section;
  }
  const double payout = past.perDollar * talks.totalPayment();
  section.nodes = {
      Row{.label = isSeries ? "Reruns sold, per dollar of budget" : "Box office per dollar of budget",
          .value = currency(game.locale, past.perDollar, 2),
          .detail = tb::format(
              "Mean of {}", isSeries ? tb::format("{} series", past.titles) : counted(past.titles, "film"))},
      Row{.label = tb::format("{} at that rate", percentWords(talks.equityPercentage)),
          .value = bigMoney(game.locale, payout),
          .detail = tb::format("for {}", bigMoney(game.locale, talks.totalPayment())),
          .tone = payout > talks.totalPayment() ? Tone::good : Tone::warning}};
  return section;
}

}  // namespace

void AngelInvestingViewController::load(Stage& stage) {
  Game& game = stage.game();
  const std::int64_t email = game.world.passEmailId;
  makeOpportunity(game, email);
  const Audition* const film = opportunity(game.world, email);
  if (film == nullptr) return;
  talks_ = beginInvestmentTalks(game.world, email);
  pitch_ = drawPitch(game, *film);
}

void AngelInvestingViewController::say(Game& game) {
  talk_.push_back(
      fill(drawFreshRow(game, bank::angelAsk), {{"percent", percentWords(talks_->equityPercentage)}}));
}

void AngelInvestingViewController::offer(Stage& stage) {
  InvestmentAnswer answer = offerInvestment(stage.game(), *talks_);
  stage.show(std::move(answer.notice));
  if (answer.isFinal) return stage.close();
  if (answer.reply.empty()) return;
  say(stage.game());
  talk_.push_back(std::move(answer.reply));
}

Section AngelInvestingViewController::bargain(const Game& game, const Audition& film) {
  const InvestmentTalks& talks = *talks_;
  Section section{.heading = "YOUR OFFER"};
  for (std::size_t line = 0; line < talk_.size(); ++line) {
    const bool mine = line % 2 == 0;
    section.nodes.push_back(
        Bubble{.speaker = mine ? game.world.myName : teamName(film), .text = talk_[line], .mine = mine});
  }
  section.nodes.append_range(std::vector<Node>{
      Tiles{{{.label = "Your stake",
              .value = percentWords(talks.equityPercentage),
              .detail = tb::format("{} offered", percentWords(talks.baseEquityPercentage))},
             {.label = "Your money", .value = bigMoney(game.locale, talks.totalPayment())}}},
      chanceMeter(static_cast<double>(talks.chanceOfNegotiation()), talks.negotiationBonus),
      Buttons{{{.label = "Smaller stake",
                .press = [this](Stage&) { changeEquity(*talks_, -1); },
                .offReason = talks.equityPercentage > minEquity ? "" : "There is no smaller stake"},
               {.label = "Larger stake",
                .press = [this](Stage&) { changeEquity(*talks_, 1); },
                .offReason = talks.equityPercentage < maxEquity ? "" : "They keep the other half"}}}});
  return section;
}

Page AngelInvestingViewController::view(const Game& game) {
  const Audition* const film = talks_ ? opportunity(game.world, talks_->emailId) : nullptr;
  if (film == nullptr) return offerIsGone("Investment");
  Page page{
      .title = film->title,
      .subtitle = tb::format("{} • {}", typeName(film->typeOfFilm), bigMoney(game.locale, film->budget)),
      .nodes = {posterOf(game.world, *film)}};
  for (const std::string& line : pitch_) {
    page.nodes.push_back(Bubble{.speaker = teamName(*film), .text = line});
  }
  page.nodes.append_range(std::vector<Node>{bargain(game, *film), suchTitles(game, *film, *talks_),
                                            theProject(*film),
                                            leadingTo<AngelInvestmentListViewController>("Your investments"),
                                            declineButton("Turn it down", talks_->emailId)});
  page.main = {{.label = "OFFER",
                .press = [this](Stage& stage) { offer(stage); },
                .price = energyPrice(investmentEnergy),
                .refusal = briefOf(investmentRefusal(game.world, *talks_)),
                .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
