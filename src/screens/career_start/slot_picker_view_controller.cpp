#include "screens/career_start/slot_picker_view_controller.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "core/save_slots.h"
#include "core/text.h"
#include "screens/career_start/save_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

using Summary = SlotManager::SlotSummary;

Operation plays(Int index, bool acceptsDamage = false) {
  return [index, acceptsDamage](Stage& stage) {
    SlotManager::switchTo(stage.game(), index, acceptsDamage, [&stage, index](const TakenUp& slot) {
      if (!slot.damage.empty()) return askAboutDamage(stage, slot.damage, plays(index, true));
      if (!slot.isDone) stage.say("That save could not be opened. Your career is as it was.");
    });
  };
}

void askToDelete(Stage& stage, const Summary& slot) {
  const std::string message = slot.isReadable
                                  ? slot.name + " leaves this slot. A last backup of the career is kept."
                                  : "This save can't be read now. If it is damaged, no backup is made.";
  tb::askToDelete(stage, tb::format("Delete {}?", slot.isReadable ? slot.name : "this save"), message,
                  [index = slot.index](Stage& above) { SlotManager::remove(above.game(), index); });
}

Button deletion(const Summary& slot) {
  return {.label = "Delete",
          .press = [slot](Stage& stage) { askToDelete(stage, slot); },
          .name = "Delete " + slot.name,
          .weight = Button::Weight::quiet};
}

Text figures(const Game& game, const Summary& slot) {
  return {.text = tb::format("{} fans   ·   🎬 {} box office", shownCount(game.locale, slot.fans),
                             bigMoney(game.locale, static_cast<Real>(slot.boxOffice)))};
}

// When a career was last played; an active one is being played.
std::string whenPlayed(const Game& game, const Summary& slot) {
  if (!slot.lastPlayed) return "In play";
  return "Last played " + timeAgo(*slot.lastPlayed, game.clock());
}

Card fullSlot(const Game& game, const Summary& slot) {
  Card card{.title = slot.name,
            .subtitle = tb::format("{} · {}", slot.year, whenPlayed(game, slot)),
            .nodes = {figures(game, slot), caption("Net worth " + bigMoney(game.locale, slot.netWorth))}};
  if (!slot.lastPlayed) return card;
  card.nodes.push_back(Buttons{{{.label = "Play",
                                 .press = plays(slot.index),
                                 .name = "Play " + slot.name,
                                 .weight = Button::Weight::primary},
                                deletion(slot)}});
  return card;
}

Card damagedSlot(const Summary& slot) {
  return {.title = "A save that can't be read",
          .subtitle = "It may be damaged.",
          .nodes = {Buttons{{deletion(slot)}}}};
}

Node slotNode(const Game& game, const Summary& slot) {
  if (!slot.isReadable) return damagedSlot(slot);
  if (!slot.isEmpty) return fullSlot(game, slot);
  Row row{.label = "Empty — start a new career", .detail = tb::format("Slot {}", slot.index + 1)};
  if (slot.index == SlotManager::activeSlot(game.world)) {
    row.detail += " · In play";
  } else {
    row.press = plays(slot.index);
  }
  return row;
}

// A whole amount, with group separators or without; 0 for other text.
Real amountIn(const Locale& locale, const std::string& typed) {
  constexpr Real base = 10;
  constexpr Real most = 1e15;
  Real amount = 0;
  for (std::size_t at = 0; at < typed.size();) {
    const std::string_view rest = std::string_view(typed).substr(at);
    if (!locale.groupSeparator.empty() && rest.starts_with(locale.groupSeparator)) {
      at += locale.groupSeparator.size();
    } else if (rest.front() >= '0' && rest.front() <= '9' && amount < most) {
      amount = amount * base + (rest.front() - '0');
      at += 1;
    } else {
      return 0;
    }
  }
  return amount;
}

std::string whyNot(Real amount, Real source, const char* lack) {
  if (!(amount > 0)) return "Enter an amount first";
  return amount > source ? lack : "";
}

}  // namespace

bool hasOtherCareers(const Game& game) {
  const auto slots = SlotManager::summaries(game);
  return std::ranges::any_of(slots, [&game](const Summary& slot) {
    return !slot.isEmpty && slot.index != SlotManager::activeSlot(game.world);
  });
}

Section SlotPickerViewController::bank(const Game& game) {
  const Real amount = amountIn(game.locale, amount_);
  const WorldState& world = game.world;
  const auto moving = [this, amount](bool (*move)(WorldState&, Real)) {
    return [this, amount, move](Stage& stage) {
      if (move(stage.game().world, amount)) amount_.clear();
    };
  };
  return {
      .heading = "THE BANK",
      .nodes = {Text{.text = "Shared across all your saves — move cash between this save and the bank."},
                Tiles{{{.label = "In the bank", .value = bigMoney(game.locale, world.crossSaveVault)},
                       {.label = "Your cash", .value = cash(game.locale, world.totalCashAvailable)}}},
                Field{.label = "Amount",
                      .value = amount_,
                      .type = [this](Stage&, const std::string& typed) { amount_ = trimmed(typed); },
                      .hint = "Whole units of money",
                      .maximumLength = 20},
                Buttons{{{.label = "DEPOSIT",
                          .press = moving(depositInBank),
                          .offReason = whyNot(amount, world.totalCashAvailable, "More than your cash")},
                         {.label = "WITHDRAW",
                          .press = moving(withdrawFromBank),
                          .offReason = whyNot(amount, world.crossSaveVault, "More than the bank has")}}}}};
}

Page SlotPickerViewController::view(const Game& game) {
  Page page{.title = "CHOOSE A SAVE"};
  for (const Summary& slot : SlotManager::summaries(game)) page.nodes.push_back(slotNode(game, slot));
  if (game.world.enterPlayerDetails != 0) page.nodes.push_back(bank(game));
  return page;
}

}  // namespace tb
