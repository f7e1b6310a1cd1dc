#include "screens/talent/actors_guild_view_controller.h"

#include <algorithm>

#include "career/guild.h"
#include "core/format.h"
#include "core/number_style.h"
#include "screens/moments.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

void join(Stage& stage) {
  stage.show(joinGuild(stage.game()));
  if (stage.game().world.isSAG == 1) {
    stage.play(momentOf(NewsKind::guild, "Welcome to the Actor's Guild"));
  }
}

Card membersCard(const Game& game) {
  const WorldState& world = game.world;
  return {
      .title = world.myName,
      .subtitle = tb::format("Member since {}", world.memberSince),
      .nodes = {
          Text{.text = "Member in good standing. You contribute 3% of earnings up to $750,000 to the guild, "
                       "with access to union-only opportunities."},
          Row{.label = "Dues paid on your work", .value = cash(game.locale, world.workDuesPaidSAG)}}};
}

Section wayIn(const Game& game, std::int64_t eligibility) {
  return {
      .heading = "JOIN THE GUILD",
      .nodes = {Text{.text = "The guild takes in performers with two booked principal roles. Members work on "
                             "union productions, with better pay and residuals."},
                Meter{.label = "Principal roles booked",
                      .value = static_cast<double>(eligibility),
                      .maximum = static_cast<double>(rolesForEligibility),
                      .text = tb::format("{} of {}", std::min(eligibility, rolesForEligibility),
                                         rolesForEligibility)},
                Button{.label = "Join",
                       .press = join,
                       .price = moneyPrice(game.locale, guildInitiationFee),
                       .refusal = briefOf(guildRefusal(game.world)),
                       .name = "Join the Actor's Guild",
                       .weight = Button::Weight::primary}}};
}

}  // namespace

void ActorsGuildViewController::load(Stage& stage) { eligibility_ = guildEligibility(stage.game().world); }

Page ActorsGuildViewController::view(const Game& game) {
  Page page{.title = "Actor's Guild"};
  if (game.world.isSAG == 1) {
    page.nodes = {membersCard(game)};
  } else {
    page.nodes = {wayIn(game, eligibility_)};
  }
  return page;
}

}  // namespace tb
