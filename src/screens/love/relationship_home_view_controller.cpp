#include "screens/love/relationship_home_view_controller.h"

#include <utility>

#include "core/calendar.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "life/break_up.h"
#include "life/engagement.h"
#include "life/partner.h"
#include "life/relationship_care.h"
#include "screens/love/engagement_ring_view_controller.h"
#include "screens/love/latch_dating_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/love/partner_profile_view_controller.h"
#include "screens/love/wedding_venue_view_controller.h"
#include "screens/parts.h"
#include "wealth/net_worth.h"

namespace tb {

using namespace view;

namespace {

// --- Actions ---

void tellCare(Stage& stage, Care care) {
  if (care.refusal) return stage.show(std::move(care.refusal));
  stage.say(care.points == 0 ? "It did not help this time"
                             : tb::format("Relationship {:+}", static_cast<std::int64_t>(care.points)));
}

void work(Stage& stage) { tellCare(stage, workOnRelationship(stage.game())); }
void watch(Stage& stage) { tellCare(stage, metflixWith(stage.game())); }

void leaveForLatch(Stage& stage) {
  stage.close();
  stage.open<LatchDatingViewController>();
}

void askMoney(Stage& stage) {
  MoneyAnswer answer = askForMoney(stage.game());
  if (answer.refusal) return stage.show(std::move(answer.refusal));
  if (!answer.separation) return stage.say("+" + cash(stage.game().locale, answer.amount));
  leaveForLatch(stage);
  tellSeparation(stage, answer.separation);
}

void tryBaby(Stage& stage) {
  BabyTry tried = tryForBaby(stage.game());
  if (tried.refusal) return stage.show(std::move(tried.refusal));
  if (!tried.isOnTheWay) return stage.say("Not this time");
  const Matches& partner = *currentPartner(stage.game().world);
  stage.play(glow("EXPECTING", "You and " + partner.name, portraitOf(partner)));
}

void propose(Stage& stage) {
  if (Refusal refusal = proposeGate(stage.game().world)) return stage.show(std::move(refusal));
  if (currentPartner(stage.game().world)->relationshipState == bond::dating) {
    stage.open<EngagementRingViewController>();
  } else {
    stage.open<WeddingVenueViewController>();
  }
}

void endIt(Stage& stage) {
  Game& game = stage.game();
  const Matches partner = *currentPartner(game.world);
  Notice told =
      partner.relationshipState == bond::married ? divorce(game, divorceShare(game.world)) : breakUp(game);
  leaveForLatch(stage);
  tellSeparation(stage, Separation{.notice = std::move(told), .partner = partner});
}

void askToEnd(Stage& stage) {
  if (Refusal refusal = breakUpRefusal(stage.game().world)) return stage.show(std::move(refusal));
  updateNetWorth(stage.game());
  stage.ask(breakUpQuestion(stage.game()),
            {{.label = "Stay", .weight = Button::Weight::primary},
             {.label = "Yes", .press = endIt, .weight = Button::Weight::destructive}});
}

// --- Parts of the page ---

Card together(const WorldState& world, const Matches& partner) {
  Card card{.title = partner.name,
            .subtitle = togetherWords(world, partner),
            .picture = {portraitOf(partner)},
            .nodes = {meterNode(partner)}};
  if (partner.timeToBirth >= 0) {
    card.nodes.push_back(Text{.text = "PREGNANT", .style = Text::Style::large, .tone = Tone::accent});
  }
  return card;
}

std::string meterWords(const Matches& partner) {
  const double decay = static_cast<double>(partner.maintenance) / 100 + (isPregnant(partner) ? 1 : 0);
  return tb::format("Without care it falls, by {:.1f} twice a week. Below 0, {} leaves.", decay,
                    partner.name);
}

Section nextStep(const WorldState& world, const Matches& partner) {
  const bool isEngaged = partner.relationshipState == bond::engaged;
  return {.heading = isEngaged ? "THE WEDDING" : "THE QUESTION",
          .nodes = {Button{.label = isEngaged ? "PLAN THE WEDDING" : "PROPOSE",
                           .press = propose,
                           .refusal = briefOf(proposeGate(world))},
                    caption(tb::format("Takes time together, and a relationship of {:.0f}.",
                                       readyMeter(partner)))}};
}

Section care(const Game& game, const Matches& partner) {
  const WorldState& world = game.world;
  Section section{.heading = "TOGETHER"};
  const auto add = [&](Button button, std::string brings) {
    section.nodes.push_back(std::move(button));
    section.nodes.push_back(caption(std::move(brings)));
  };
  add({.label = "WORK ON RELATIONSHIP",
       .press = work,
       .price = energyPrice(workEnergy),
       .refusal = briefOf(workRefusal(world))},
      "Brings 1 to 4 points, three times in four.");
  add({.label = "METFLIX WITH " + upperCase(partner.name),
       .press = watch,
       .price = energyPrice(metflixEnergy),
       .refusal = briefOf(metflixRefusal(world))},
      "Brings 2 to 8 points.");
  add({.label = "I NEED MONEY",
       .press = askMoney,
       .price = energyPrice(world.askForMoneyEnergyCost),
       .refusal = briefOf(moneyRefusal(world))},
      tb::format("Brings {} to {}. Two times in three it costs 5 to 15 points.",
                 wholeMoney(game.locale, partner.weeklyEarnings * 0.1),
                 wholeMoney(game.locale, partner.weeklyEarnings * 0.3)));
  if (canTryForBaby(world)) {
    add({.label = "TRY FOR A BABY",
         .press = tryBaby,
         .price = energyPrice(babyEnergy),
         .refusal = briefOf(babyRefusal(world))},
        "Works one time in four. A child takes 3 to 10 energy every week.");
  }
  return section;
}

std::string storyOf(const Child& child) {
  return child.relationshipTracker.empty() ? "" : "\n" + child.relationshipTracker.front();
}

Row childRow(const Game& game, const Child& child) {
  return {.label = child.name,
          .value = tb::format("{:+}", -child.weeklyEnergyCost),
          .detail = tb::format("{} • Born {}{}", child.relationship,
                               numericDate(child.birthWeek, child.birthYear), storyOf(child)),
          .picture = {childPicture(game.world, child)}};
}

// The children, and the pictures of the great days.
std::vector<Node> family(const Game& game) {
  const WorldState& world = game.world;
  Section section{.heading = "FAMILY"};
  for (const Child& child : world.saveAllChildList) section.nodes.push_back(childRow(game, child));
  const auto add = [&](const std::string& image, const char* words) {
    if (image.empty()) return;
    section.nodes.push_back(Picture{.kind = PictureKind::photo, .name = image, .description = words});
  };
  add(world.saveRingImage, "The engagement ring");
  add(world.saveWeddingImage, "The wedding");
  if (section.nodes.empty()) return {};
  return {std::move(section)};
}

Section history(const WorldState& world) {
  return {.heading = "YOUR STORY",
          .nodes = {PagedList{.key = "story",
                              .size = world.relationshipTracker.size(),
                              .nodeAt = [&world](std::size_t index) -> Node {
                                return Text{.text = world.relationshipTracker[index]};
                              },
                              .whenEmpty = "Nothing has been written down yet.",
                              .pageLength = 10}}};
}

Button endButton(const WorldState& world, const Matches& partner) {
  return {.label = partner.relationshipState == bond::married ? "DIVORCE" : "BREAK UP",
          .press = askToEnd,
          .price = energyPrice(breakUpEnergy),
          .refusal = briefOf(breakUpRefusal(world)),
          .weight = Button::Weight::destructive};
}

}  // namespace

void RelationshipHomeViewController::load(Stage& stage) { updateNetWorth(stage.game()); }

Page RelationshipHomeViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const Matches* const partner = currentPartner(world);
  Page page{.title = "Relationship"};
  if (partner == nullptr) {
    page.nodes = {leadingTo<LatchDatingViewController>("Latch", "You are single. There are others.")};
    return page;
  }
  page.nodes = {
      together(world, *partner), caption(meterWords(*partner)),
      leadingTo<PartnerProfileViewController>("About " + partner->name, "Work, figures, how you met")};
  if (partner->relationshipState != bond::married) page.nodes.push_back(nextStep(world, *partner));
  page.nodes.push_back(care(game, *partner));
  page.nodes.append_range(family(game));
  page.nodes.push_back(history(world));
  page.nodes.push_back(endButton(world, *partner));
  return page;
}

}  // namespace tb
