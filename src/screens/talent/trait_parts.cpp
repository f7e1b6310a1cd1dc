#include "screens/talent/trait_parts.h"

#include "core/format.h"
#include "screens/parts.h"

namespace tb {

view::Button trainButton(const WorldState& world, std::size_t index) {
  const Trait& trait = traits[index];
  const bool isFull = world.*trait.points >= maxTrait;
  const std::int64_t next = nextValue(world, trait);
  return {.label = tb::format("Train to {}", next),
          .press = [k = static_cast<int>(index) + 1](Stage& stage) { stage.show(buyTrait(stage.game(), k)); },
          .price = energyPrice(world.*trait.price),
          .offReason = isFull ? "Maxed out" : "",
          .refusal = briefOf(traitRefusal(world, trait)),
          .name = tb::format("Train {} to {}", spokenName(trait), next)};
}

}  // namespace tb
