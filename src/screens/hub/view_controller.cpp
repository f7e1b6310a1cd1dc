#include "screens/hub/view_controller.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/way_back.h"
#include "screens/backstage/backstage_view_controller.h"
#include "screens/career_start/enter_player_details_view_controller.h"
#include "screens/career_start/settings_view_controller.h"
#include "screens/hub/tabs.h"
#include "screens/parts.h"
#include "screens/week/weekly_summary_view_controller.h"
#include "wealth/net_worth.h"
#include "week/end_week.h"

namespace tb {

void ViewController::load(Stage& stage) { refreshHub(stage.game(), HubRefresh::launch); }

void ViewController::appear(Stage& stage) {
  if (stage.game().world.enterPlayerDetails == 0) {
    current_ = Tab::home;
    stage.open<EnterPlayerDetailsViewController>();
  } else {
    show(stage, current_);
  }
}

// Opening the wealth tab updates the net worth and its best value.
void ViewController::show(Stage& stage, Tab tab) {
  current_ = tab;
  if (tab == Tab::wealth) updateNetWorth(stage.game());
}

// After the review the hub is scrolled to its top.
void ViewController::endWeekButton(Stage& stage) {
  stage.leaveToFirst([](Stage& hub) {
    hub.renewFirst();
    keepWayBack(hub.game());
    endWeek(hub.game());
    hub.open<WeeklySummaryViewController>();
  });
}

void ViewController::goBack(Stage& stage) {
  if (current_ != Tab::home) show(stage, Tab::home);
}

view::Tab ViewController::tab(Tab which, const char* label, view::Icon icon) {
  return {.label = label, .icon = icon, .current = current_ == which, .press = [this, which](Stage& stage) {
            stage.leaveToFirst([this, which](Stage& hub) { show(hub, which); });
          }};
}

std::vector<view::Tab> ViewController::tabs() {
  using enum view::Icon;
  return {tab(Tab::home, "Home", home), tab(Tab::work, "Work", work), tab(Tab::social, "Social", social),
          tab(Tab::life, "Life", life), tab(Tab::wealth, "Wealth", wealth)};
}

void ViewController::addFrame(const Game& game, TabsHere here, view::Page& page) {
  if (here == TabsHere::none) return;
  page.tabs = tabs();
  if (page.figures.empty()) page.figures = headFigures(game);
  for (view::Tab& tab : page.tabs) tab.isOff = here == TabsHere::later;
  if (here == TabsHere::inReach && page.main.empty()) {
    page.main = {{.label = "End Week", .press = endWeekButton, .weight = view::Button::Weight::primary}};
  }
}

view::Page ViewController::view(const Game& game) {
  const WorldState& world = game.world;
  view::Page page{.title = world.myName,
                  .subtitle = dateHeading(game.locale, world.weekNumber, world.yearNumber, "\n"),
                  .head = current_ == Tab::home ? view::Page::Head::full : view::Page::Head::line};
  page.icons = {
      {.label = "The Backstage",
       .icon = view::Icon::backstage,
       .press = [](Stage& stage) { stage.open<BackstageViewController>(); }},
      {.label = "Settings",
       .icon = view::Icon::settings,
       .press = [](Stage& stage) { stage.open<SettingsViewController>(); }},
  };
  addFrame(game, TabsHere::inReach, page);
  page.heading = std::ranges::find(page.tabs, true, &view::Tab::current)->label;
  switch (current_) {
    case Tab::home:
      page.nodes = homeTab(game);
      break;
    case Tab::work:
      page.nodes = workTab(game);
      break;
    case Tab::social:
      page.nodes = socialTab(game);
      break;
    case Tab::life:
      page.nodes = lifeTab(game);
      break;
    case Tab::wealth:
      page.nodes = wealthTab(game);
      break;
  }
  return page;
}

}  // namespace tb
