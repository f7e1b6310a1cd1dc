#include "screens/offers/agent_terms.h"

#include <array>
#include <string>

#include "core/format.h"
#include "core/number_style.h"
#include "core/signed_agent.h"
#include "core/text.h"

namespace tb {

using namespace view;

namespace {

struct Term {
  const char* name;
  double (*value)(const TalentAgent&);
  std::string (*words)(const Locale&, const TalentAgent&);
  bool isLessBetter = false;
};

std::string points(double bonus) { return bonus > 0 ? tb::format("{:.2f}%", bonus) : "None"; }

// Without its last decimals, a bonus of 1.05 would look like none.
std::string fanWords(const Locale&, const TalentAgent& agent) {
  return agent.fanBonus > 0 ? tb::format("× {:.2f}", agent.fanBonus) : "No fans gained";
}

constexpr std::array<Term, 10> terms = {{
    {.name = "Rating",
     .value = [](const TalentAgent& agent) { return static_cast<double>(agent.rating); },
     .words = [](const Locale&, const TalentAgent& agent) { return tb::format("{} of 100", agent.rating); }},
    {.name = "Commission",
     .value = [](const TalentAgent& agent) { return agent.commissionPercentage; },
     .words =
         [](const Locale&, const TalentAgent& agent) {
           return tb::format("{:.0f}%", agent.commissionPercentage * 100);
         },
     .isLessBetter = true},
    {.name = "Sends work",
     .value = [](const TalentAgent& agent) { return static_cast<double>(agent.weekToSendAudition); },
     .words =
         [](const Locale&, const TalentAgent& agent) {
           return tb::format("every {}", counted(agent.weekToSendAudition, "week"));
         },
     .isLessBetter = true},
    {.name = "Largest budget",
     .value = [](const TalentAgent& agent) { return static_cast<double>(agent.maxBudget); },
     .words =
         [](const Locale& locale, const TalentAgent& agent) {
           return agent.maxBudget > 0 ? bigMoney(locale, static_cast<double>(agent.maxBudget))
                                      : std::string("As on the board");
         }},
    {.name = "Fans gained",
     .value = [](const TalentAgent& agent) { return agent.fanBonus; },
     .words = fanWords},
    {.name = "Residual bonus",
     .value = [](const TalentAgent& agent) { return agent.residualBonus; },
     .words = [](const Locale&, const TalentAgent& agent) { return points(agent.residualBonus); }},
    {.name = "Royalty offers up to",
     .value = [](const TalentAgent& agent) { return agent.royaltyBonus; },
     .words = [](const Locale&, const TalentAgent& agent) { return points(agent.royaltyBonus); }},
    {.name = "Negotiation bonus",
     .value = [](const TalentAgent& agent) { return static_cast<double>(agent.negotiationBonus); },
     .words = [](const Locale&,
                 const TalentAgent& agent) { return tb::format("{}%", agent.negotiationBonus); }},
    {.name = "Contract",
     .value = [](const TalentAgent&) { return 0.0; },  // long is neither good nor bad
     .words = [](const Locale&, const TalentAgent& agent) { return counted(agent.contractYears, "year"); }},
    {.name = "Release before its end",
     .value = [](const TalentAgent& agent) { return static_cast<double>(agent.penaltyForBreakingContract); },
     .words =
         [](const Locale& locale, const TalentAgent& agent) {
           return wholeMoney(locale, static_cast<double>(agent.penaltyForBreakingContract));
         },
     .isLessBetter = true},
}};

Tone toneBeside(const Term& term, const TalentAgent& offered, const TalentAgent& current) {
  const double gain = term.value(offered) - term.value(current);
  if (gain == 0) return Tone::plain;
  return gain > 0 == term.isLessBetter ? Tone::warning : Tone::good;
}

Row termRow(const Locale& locale, const Term& term, const TalentAgent& agent, const TalentAgent* current) {
  Row row{.label = term.name, .value = term.words(locale, agent)};
  if (current == nullptr) return row;
  row.detail = tb::format("{}: {}", current->name, term.words(locale, *current));
  row.tone = toneBeside(term, agent, *current);
  return row;
}

}  // namespace

Section agentTerms(const Game& game, const TalentAgent& agent) {
  const TalentAgent* current = currentAgent(game.world);
  if (current != nullptr && current->id == agent.id) current = nullptr;
  Section section{.heading = current == nullptr ? "TERMS" : "TERMS, BESIDE YOUR AGENT'S"};
  for (const Term& term : terms) section.nodes.push_back(termRow(game.locale, term, agent, current));
  return section;
}

}  // namespace tb
