#include "screens/life/lifestyle_weekly_energy_options_view_controller.h"

#include <algorithm>
#include <span>
#include <utility>

#include "banks/lifestyle_banks.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "core/weekly_option.h"
#include "life/one_time_options.h"
#include "life/weekly_options.h"
#include "screens/life/energy_tracker_view_controller.h"
#include "screens/life/subscription.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

template <class Option>
const std::string& wordsFor(Bank words, std::span<const Option> options, const Option& option) {
  return rowsOf(words)[static_cast<std::size_t>(&option - options.data())];
}

// --- Weekly ---

// What it gives and, while it is paid for, takes; what it is like; what it needs or opens. A need that is not
// met says how it is.
std::string detailOf(const Game& game, const WeeklyOption& option) {
  std::vector<std::string> lines;
  if (option.energyBoost != 0) lines.push_back(tb::format("{:+} energy", option.energyBoost));
  if (hasWeeklyOption(game.world, option.id)) {
    lines.push_back(tb::format("{} a week", wholeMoney(game.locale, option.cost)));
  }
  lines.push_back(wordsFor(bank::lifestyleTaglines, weeklyOptions(), option));
  if (!isMet(game.world, option.need)) {
    lines.push_back(rowsOf(bank::lifestyleRequirements)[static_cast<std::size_t>(option.need) - 1]);
  } else if (!option.requirement.empty()) {
    lines.emplace_back(option.requirement);
  }
  std::string detail;
  for (const std::string& line : lines) detail += (detail.empty() ? "" : "\n") + line;
  return detail;
}

Row weeklyRow(const Game& game, const WeeklyOption& option) {
  return {.label = std::string(option.title),
          .detail = detailOf(game, option),
          .tone = hasWeeklyOption(game.world, option.id) ? Tone::accent : Tone::plain,
          .action = {subscriptionButton(game, option.id)}};
}

// A section per category, in the order of their cheapest options.
std::vector<Node> weeklySections(const Game& game) {
  std::vector<Section> sections;
  for (const WeeklyOption& option : weeklyOptions()) {
    const std::string heading = upperCase(option.category);
    auto section = std::ranges::find(sections, heading, &Section::heading);
    if (section == sections.end()) section = sections.insert(section, Section{.heading = heading});
    section->nodes.push_back(weeklyRow(game, option));
  }
  std::vector<Node> nodes;
  for (Section& section : sections) nodes.push_back(std::move(section));
  return nodes;
}

double weeklyPayment(const WorldState& world) {
  double sum = 0;
  for (const WeeklyLineItem& item : world.saveAllWeeklyLineItems) {
    if (item.category == WeeklyLineItem::lifestyleCategory) sum += item.amount;
  }
  return sum;
}

// --- Once ---

void claim(Stage& stage, const OneTimeOption& option) {
  if (Refusal refusal = claimOneTimeOption(stage.game(), option)) return stage.show(std::move(refusal));
  stage.say(wordsFor(bank::oneTimeClaims, oneTimeOptions(), option));
}

void askToClaim(Stage& stage, const OneTimeOption& option) {
  const WorldState& world = stage.game().world;
  if (Refusal refusal = oneTimeRefusal(world, option)) return stage.show(std::move(refusal));
  const double cost = cashTakenBy(option);
  const bool isInDebt = cost > 0 && world.totalCashAvailable < cost;
  stage.ask(
      Notice{.title = "🎟 Claim This? 🎟",
             .message = tb::format("\n{}{}", option.description,
                                   isInDebt ? "\n\nYour cash doesn't cover it: you would be in debt." : "")},
      {{.label = "Claim",
        .press = [&option](Stage& asked) { claim(asked, option); },
        .weight = Button::Weight::primary},
       {.label = "Not Now"}});
}

Button claimButton(const Game& game, const OneTimeOption& option) {
  Button button{.label = "Claim",
                .press = [&option](Stage& stage) { askToClaim(stage, option); },
                .name = tb::format("Claim {}", option.title)};
  if (isClaimed(game.world, option)) {
    button.label = "Claimed";
    button.name = tb::format("Claimed {}", option.title);
    button.weight = Button::Weight::done;
    return button;
  }
  if (option.cost > 0) button.price = moneyPrice(game.locale, option.cost);
  button.refusal = briefOf(oneTimeRefusal(game.world, option));
  return button;
}

Section onceSection(const Game& game) {
  Section section{.heading = "ONCE IN A CAREER"};
  for (const OneTimeOption& option : oneTimeOptions()) {
    section.nodes.push_back(Row{.label = std::string(option.title),
                                .detail = tb::format("{}\n{}", option.description,
                                                     wordsFor(bank::oneTimeHints, oneTimeOptions(), option)),
                                .action = {claimButton(game, option)}});
  }
  return section;
}

}  // namespace

Page LifestyleWeeklyEnergyOptionsViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "Energy", .subtitle = "Small comforts, paid every week, that let you do more in it"};
  page.nodes = {energyMeter(world), trackerRow(world),
                Row{.label = "Your subscriptions",
                    .value = tb::format("{} a week", wholeMoney(game.locale, weeklyPayment(world)))}};
  page.nodes.append_range(weeklySections(game));
  page.nodes.push_back(onceSection(game));
  return page;
}

}  // namespace tb
