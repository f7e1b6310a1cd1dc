#include "screens/week/weekly_summary_view_controller.h"

#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/film/new_release_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/metflix/movie_award_view_controller.h"
#include "screens/parts.h"
#include "screens/week/front_page_nodes.h"
#include "week/end_week.h"
#include "week/review_prompt.h"

namespace tb {

using namespace view;

namespace {

StatTile balanceTile(const Game& game, const Analytics& item) {
  return {
      .label = upperCase(item.title),
      .value = item.isCurrency == 1 ? shortMoney(game.locale, item.moneyEarned) : shortCount(item.unitsSold),
      .detail = item.subtitle};
}

Section balance(const Game& game, const WeekBalance& balance) {
  const double net = balance.income - balance.expenses;
  const std::string amount = wholeMoney(game.locale, net);
  return {.heading = "INCOME • EXPENSES",
          .nodes = {Balance{.label = "Net of the week",
                            .net = net > 0 ? "+" + amount : amount,
                            .tone = net > 0   ? Tone::good
                                    : net < 0 ? Tone::warning
                                              : Tone::plain,
                            .income = wholeMoney(game.locale, balance.income),
                            .expenses = wholeMoney(game.locale, balance.expenses)}}};
}

// The week's income by source, and the remaining energy.
Section figures(const Game& game) {
  Section section;
  Tiles tiles;
  for (const Analytics& item : game.world.weekBalanceItems) tiles.tiles.push_back(balanceTile(game, item));
  if (!tiles.tiles.empty()) section.nodes.push_back(std::move(tiles));
  section.nodes.push_back(energyMeter(game.world));
  return section;
}

void askForReview(Stage& stage) {
  const auto answer = [](Stage& asked) {
    answerReviewPrompt(asked.game());
    asked.say("Thank you: 5 more energy every week");
  };
  stage.ask(
      Notice{.title = "⭐️ How's the Show? ⭐️",
             .message = "\nYou're more than halfway through the year. If you're enjoying your career, a "
                        "kind word to a friend keeps the lights on. Either way, here's +5 weekly energy "
                        "as thanks."},
      {{.label = "Happily", .press = answer, .weight = Button::Weight::primary},
       {.label = "Not Today", .press = answer}});
}

}  // namespace

void WeeklySummaryViewController::load(Stage& stage) {
  summary_ = openSummary(stage.game());
  playHeadline(stage, summary_.frontPage);
  tellSeparation(stage, summary_.separation);
}

// What phase C brings stands above the week's other news.
void WeeklySummaryViewController::showLateNews(Stage& stage) {
  for (Story& story : takeLateStories(stage.game())) {
    playStory(stage, story);
    summary_.hasNews = true;
    summary_.frontPage.rows.insert(summary_.frontPage.rows.begin(), std::move(story));
  }
}

void WeeklySummaryViewController::appear(Stage& stage) {
  if (isReviewPromptDue(stage.game().world)) askForReview(stage);
  tellSeparation(stage, returnToSummary(stage.game()));
  showLateNews(stage);
}

void WeeklySummaryViewController::leave(Stage& stage) { closeSummary(stage.game()); }

Button WeeklySummaryViewController::releaseButton() {
  return {.label = "New Release",
          .press =
              [this](Stage& stage) {
                summary_.offersRelease = false;
                stage.open<NewReleaseViewController>();
              },
          .weight = Button::Weight::primary};
}

Button WeeklySummaryViewController::awardButton() {
  return {.label = "OSKAR NOMINATIONS",
          .press =
              [this](Stage& stage) {
                summary_.offersAwards = false;
                stage.open<MovieAwardViewController>(stage.game().world.yearNumber);
              },
          .weight = Button::Weight::primary};
}

// The headline with its button, then the other news. A tip has no heading.
Section WeeklySummaryViewController::feed(const Game& game) {
  Section section{.heading = summary_.hasNews ? "FEED" : ""};
  for (const Story& story : summary_.frontPage.headline) {
    section.nodes.push_back(headlineNode(game, story, true));
  }
  if (summary_.offersAwards) section.nodes.push_back(awardButton());
  if (summary_.offersRelease) section.nodes.push_back(releaseButton());
  for (Node& row : rowNodes(game, summary_.frontPage)) section.nodes.push_back(std::move(row));
  if (!summary_.hasNews) section.nodes.push_back(Text{.text = summary_.feed.front(), .tone = Tone::quiet});
  return section;
}

Page WeeklySummaryViewController::view(const Game& game) {
  Page page{.title = "REVIEW",
            .subtitle = tb::format("Week {} of {}", summary_.week, summary_.year),
            .head = Page::Head::line};
  page.nodes.push_back(balance(game, summary_.balance));
  page.nodes.push_back(feed(game));
  page.nodes.push_back(figures(game));
  // The close button is where End Week was, under the player's thumb.
  page.main = {
      {.label = "Carry on", .press = [](Stage& stage) { stage.close(); }, .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
