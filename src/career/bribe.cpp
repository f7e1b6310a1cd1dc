#include "career/bribe.h"

#include <string_view>

#include "core/bands.h"
#include "core/format.h"
#include "core/house_notices.h"

namespace tb {

namespace {

constexpr std::int64_t weakestBribe = 10;
constexpr std::int64_t strengths = 90;

// How the strength above the weakest is put. The stop at the end of each phrase is followed by the sentence's
// own.
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

Notice bribeCastingDirector(Game& game, std::size_t auditionIndex) {
  WorldState& world = game.world;
  if (Refusal refusal = bribeRefusal(world)) return *std::move(refusal);

  world.totalCashAvailable -= static_cast<double>(world.saveBribePrice);
  world.saveBribePrice *= 2;
  const std::int64_t strength = RandomRange(game.random, strengths);
  world.saveAllAuditionList.edit(auditionIndex).didBribe = strength + weakestBribe;
  return {
      .title = "🤝 BRIBED 🤝",
      .message = tb::format("You bribed the Casting Director and {}.\n\nThis does not mean you automatically "
                            "earn the role, just the chance to audition.",
                            bandOf(phrases, strength)->phrase)};
}

}  // namespace tb
