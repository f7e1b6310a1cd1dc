#include "screens/offers/email_inbox_view_controller.h"

#include <algorithm>
#include <array>
#include <utility>

#include "career/agent_offer.h"
#include "career/email_offers.h"
#include "career/proven_roles.h"
#include "core/calendar.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/signed_agent.h"
#include "core/text.h"
#include "screens/offers/franchise_detail_view_controller.h"
#include "screens/offers/offer_parts.h"
#include "screens/offers/talent_agent_detail_view_controller.h"
#include "screens/parts.h"
#include "screens/wealth/angel_investing_view_controller.h"
#include "screens/work/royalty_view_controller.h"
#include "social/inbox.h"

namespace tb {

using namespace view;

namespace {

struct MailKind {
  std::int64_t typeOfDeal;
  const char* tag;
  const char* subTag;  // empty for none
};
constexpr std::array<MailKind, 8> mailKinds = {{
    {.typeOfDeal = deal::agent, .tag = "AGENT", .subTag = "TALENT AGENT"},
    {.typeOfDeal = deal::investment, .tag = "INVEST", .subTag = "INVESTMENT"},
    {.typeOfDeal = deal::royalty, .tag = "ROYALTY", .subTag = "BOOKING INQUIRY"},
    {.typeOfDeal = deal::franchise, .tag = "FRANCHISE", .subTag = "MULTI-FILM"},
    {.typeOfDeal = deal::fundraise, .tag = "FUNDRAISE", .subTag = ""},
    {.typeOfDeal = deal::buyout, .tag = "BUYOUT", .subTag = ""},
    {.typeOfDeal = deal::sharkBox, .tag = "SHARK BOX", .subTag = "FOLLOW-ON ROUND"},
    {.typeOfDeal = deal::message, .tag = "FAN MAIL", .subTag = ""},
}};

// With a line break; empty for the first mail.
std::string tagsOf(const Email& email) {
  for (const MailKind& kind : mailKinds) {
    if (kind.typeOfDeal != email.typeOfDeal) continue;
    const std::string_view subTag = kind.subTag;
    return subTag.empty() ? tb::format("{}\n", kind.tag) : tb::format("{} • {}\n", kind.tag, subTag);
  }
  return "";
}

void party(Stage& stage) {
  claimGift(stage.game());
  stage.say("A gift well received");
}

void offerGift(Stage& stage) {
  stage.ask(
      Notice{.title = "🎁 CLAIMED 🎁",
             .message = tb::format("Thanks for trying out my new game! {} has been added to your account!",
                                   wholeMoney(stage.game().locale, giftAmount))},
      {{.label = "Party Time! 🥳", .press = party, .weight = Button::Weight::primary}});
}

// Offers of deals that the game does not have yet only show their text.
void openDeal(Stage& stage, const Email& email) {
  switch (email.typeOfDeal) {
    case deal::agent:
      return stage.open<TalentAgentDetailViewController>();
    case deal::investment:
      return stage.open<AngelInvestingViewController>();
    case deal::royalty:
      return stage.open<RoyaltyViewController>();
    case deal::franchise:
      return stage.open<FranchiseDetailViewController>();
    default:
      if (isGift(email)) offerGift(stage);
  }
}

void askToEmptyTrash(Stage& stage) {
  stage.ask(
      Notice{.title = "🗑️ EMPTY TRASH 🗑️", .message = "Are you sure you want to delete all your emails?"},
      {{.label = "Keep", .weight = Button::Weight::primary},
       {.label = "Delete all",
        .press = [](Stage& asked) { emptyTrash(asked.game()); },
        .weight = Button::Weight::destructive}});
}

// --- Who writes ---

Row writerRow(const char* writers, std::size_t roles, std::size_t wanted, const char* others, bool areMet) {
  const bool isOpen = roles >= wanted && areMet;
  return {.label = writers,
          .value = tb::format("{} of {}", std::min(roles, wanted), wanted),
          .detail = others,
          .step = isOpen ? Row::Step::taken : Row::Step::open};
}

// What each kind of offer takes, and how far the performer is.
Fold writers(const WorldState& world) {
  const std::size_t roles = provenRoles(world).size();
  const bool hasAgent = currentAgent(world) != nullptr;
  return {.key = "writers",
          .label = "Who writes to you",
          .nodes = {caption("Counted in booked principal roles"),
                    writerRow("Talent agents", roles, agentRoles, "for members of the Actor's Guild",
                              world.isSAG == 1),
                    writerRow("Producers in need of an investor", roles, investorRoles, "", true),
                    writerRow("Producers with a share instead of pay", roles, stakeRoles,
                              "through your agent", hasAgent),
                    writerRow("Studios with a saga", roles, sagaRoles, "through your agent, for the famous",
                              hasAgent && world.saveFameLevel >= sagaFame)}};
}

// The oldest e-mail is the first one to lapse.
Section capacity(const WorldState& world) {
  const List<Email>& emails = world.saveAllEmailList;
  Section section{.nodes = {Meter{.label = "Kept",
                                  .value = static_cast<double>(emails.size()),
                                  .maximum = static_cast<double>(inboxCapacity),
                                  .text = tb::format("{} of {}", emails.size(), inboxCapacity)}}};
  if (isInboxFull(world)) {
    section.nodes.push_back(Text{
        .text =
            tb::format("The inbox is full. The next email replaces the oldest one: {}", emails.front().title),
        .tone = Tone::warning});
  }
  return section;
}

}  // namespace

void EmailInboxViewController::open(Stage& stage, std::size_t index) {
  const Email email = stage.game().world.saveAllEmailList[index];
  most_recent_ = email;
  if (Refusal refusal = openEmail(stage.game(), index)) return stage.show(std::move(refusal));
  openDeal(stage, email);
}

Node EmailInboxViewController::emailRow(const WorldState& world, std::size_t index) {
  const Email& email = world.saveAllEmailList[index];
  const auto press = [this, index](Stage& stage) { open(stage, index); };
  Row row{.label = email.title,
          .detail = tagsOf(email) + numericDate(email.weekNumber, email.yearNumber),
          .picture = senderOf(world, email),
          .tone = email.weekNumberForTracking >= world.weekNumberForTracking - 1 ? Tone::accent : Tone::plain,
          .press = press};
  if (email.typeOfDeal == deal::help) {
    row.action = {{.label = isGift(email) ? "GIFT" : "HELP",
                   .press = press,
                   .name = tb::format("{}: {}", isGift(email) ? "Gift" : "Help", email.title)}};
  }
  return row;
}

Page EmailInboxViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const std::size_t count = world.saveAllEmailList.size();
  Page page{.title = "Inbox",
            .subtitle =
                "Check your inbox for new emails regarding offers, talent agents, royalty deals and "
                "franchise opportunities."};
  if (most_recent_) {
    page.nodes.push_back(
        Section{.heading = "MOST RECENT",
                .nodes = {Text{.text = upperCase(most_recent_->title) + "\n" + most_recent_->message}}});
  }
  page.nodes.push_back(PagedList{
      .key = "emails",
      .size = count,
      .nodeAt = [this, &world, count](std::size_t place) { return emailRow(world, count - 1 - place); },
      .whenEmpty = "Your inbox is empty."});
  page.nodes.push_back(writers(world));
  if (count == 0) return page;
  page.nodes.push_back(capacity(world));
  page.nodes.push_back(
      Button{.label = "Empty trash", .press = askToEmptyTrash, .weight = Button::Weight::destructive});
  return page;
}

}  // namespace tb
