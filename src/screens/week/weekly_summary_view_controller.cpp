#include "screens/week/weekly_summary_view_controller.h"

#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/film/new_release_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/love/relationship_event_view_controller.h"
#include "screens/metflix/movie_award_view_controller.h"
#include "screens/parts.h"
#include "screens/reception/rate_movies_view_controller.h"
#include "screens/week/front_page_nodes.h"
#include "screens/week/random_event_view_controller.h"
#include "screens/week/week_event_rows.h"
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
  const SummaryCalls calls = showSummary(stage.game());
  if (calls.forReview) askForReview(stage);
  tellSeparation(stage, calls.separation);
  showLateNews(stage);
  if (calls.forRandomEvent) stage.open<RandomEventViewController>();
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

// An event that opens a screen is gone at once; another one leaves its result in its place.
void WeeklySummaryViewController::use(Stage& stage, std::size_t place) {
  Game& game = stage.game();
  const WeekEvent event = summary_.events[place].event;
  if (Refusal refusal = weekEventRefusal(game.world, event)) return stage.show(std::move(refusal));
  const bool isTalk = isWithPartner(game.world, event);
  const WeekEventResult result = useWeekEvent(game, event);
  if (!result.text.empty()) {
    summary_.events[place].result = {result};
    return;
  }
  summary_.events.erase(summary_.events.begin() + static_cast<std::ptrdiff_t>(place));
  if (isTalk) return stage.open<RelationshipEventViewController>();
  stage.open<RateMoviesViewController>();
}

Section WeeklySummaryViewController::events(const Game& game) {
  Section section{.heading = "BEFORE YOU CARRY ON"};
  for (std::size_t place = 0; place < summary_.events.size(); ++place) {
    section.nodes.push_back(
        weekEventRow(game, summary_.events[place], [this, place](Stage& stage) { use(stage, place); }));
  }
  return section;
}

// The headline with its button, the events of the week, then the other news. A tip has no heading.
std::vector<Node> WeeklySummaryViewController::feed(const Game& game) {
  std::vector<Node> top;
  for (const Story& story : summary_.frontPage.headline) top.push_back(headlineNode(game, story, true));
  if (summary_.offersAwards) top.push_back(awardButton());
  if (summary_.offersRelease) top.push_back(releaseButton());
  std::vector<Node> rest = rowNodes(game, summary_.frontPage);
  if (!summary_.hasNews) rest = {Text{.text = summary_.feed.front(), .tone = Tone::quiet}};

  const std::string heading = summary_.hasNews ? "FEED" : "";
  if (summary_.events.empty()) {
    top.append_range(std::move(rest));
    return {Section{.heading = heading, .nodes = std::move(top)}};
  }
  if (top.empty()) return {events(game), Section{.heading = heading, .nodes = std::move(rest)}};
  return {Section{.heading = heading, .nodes = std::move(top)}, events(game),
          Section{.nodes = std::move(rest)}};
}

Page WeeklySummaryViewController::view(const Game& game) {
  Page page{.title = "REVIEW",
            .subtitle = tb::format("Week {} of {}", summary_.week, summary_.year),
            .head = Page::Head::line};
  page.nodes.push_back(balance(game, summary_.balance));
  page.nodes.append_range(feed(game));
  page.nodes.push_back(figures(game));
  // The close button is where End Week was, under the player's thumb.
  page.main = {
      {.label = "Carry on", .press = [](Stage& stage) { stage.close(); }, .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
