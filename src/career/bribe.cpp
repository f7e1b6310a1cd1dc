#include "career/bribe.h"

#include <string_view>

#include "core/bands.h"
#include "core/find.h"
#include "core/format.h"
#include "core/house_notices.h"

namespace tb {

namespace {

constexpr std::int64_t weakestBribe = 10;
constexpr std::int64_t strengths = 90;

// Phrases for the strength above the minimum. Each ends with a period, and the sentence adds another, on
// purpose.
struct PhraseBand {
  std::int64_t upTo;
  std::string_view phrase;
};
constexpr std::array<PhraseBand, 4> phrases = {{
    {.upTo = 10, .phrase = "you’ve got a small boost in your corner."},
    {.upTo = 40, .phrase = "you’ve moved up the list in a meaningful way."},
    {.upTo = 60, .phrase = "you’re looking like a strong contender now."},
    {.upTo = strengths - 1, .phrase = "at this point, the audition is basically locked in."},
}};

}  // namespace

bool isBribeOffered(const Audition& project) {
  return project.funnelStage == funnel::submitted && project.didBribe == 0;
}

Refusal bribeRefusal(const WorldState& world) {
  if (world.totalCashAvailable >= static_cast<double>(world.saveBribePrice)) return {};
  return notEnoughCash("You don't have enough cash to bribe the Casting Director.");
}

std::optional<Notice> bribeCastingDirector(Game& game, std::int64_t filmId) {
  WorldState& world = game.world;
  const auto index = find(world.saveAllAuditionList, &Audition::filmId, filmId);
  if (!index || !isBribeOffered(world.saveAllAuditionList[*index])) return {};
  if (Refusal refusal = bribeRefusal(world)) return refusal;

  world.totalCashAvailable -= static_cast<double>(world.saveBribePrice);
  world.saveBribePrice *= 2;
  const std::int64_t strength = RandomRange(game.random, strengths);
  world.saveAllAuditionList.edit(*index).didBribe = strength + weakestBribe;
  return Notice{
      .title = "🤝 BRIBED 🤝",
      .message = tb::format("You bribed the Casting Director and {}.\n\nThis does not mean you automatically "
                            "earn the role, just the chance to audition.",
                            bandOf(phrases, strength)->phrase)};
}

}  // namespace tb
