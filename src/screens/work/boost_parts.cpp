#include "screens/work/boost_parts.h"

#include <array>

#include "core/find.h"
#include "core/format.h"
#include "screens/film/promote_film_view_controller.h"
#include "screens/parts.h"

namespace tb {

namespace {

// By BoostKind.
struct Words {
  const char* full;
  const char* brief;
  const char* spoken;  // for screen readers, followed by the title
};
constexpr std::array<Words, 3> boostWords = {{
    {.full = "REHEARSE", .brief = "Rehearse", .spoken = "Rehearse for"},
    {.full = "WORK ON YOUR PERFORMANCE", .brief = "Work on it", .spoken = "Work on your performance in"},
    {.full = "PROMOTE", .brief = "Promote", .spoken = "Promote"},
}};

// Buttons identify the project by its id, because indexes can change before a press.
void boost(Stage& stage, std::int64_t filmId, BoostKind kind) {
  if (!find(stage.game().world.saveAllAuditionList, &Audition::filmId, filmId)) return;
  if (Refusal refusal = buyBoost(stage.game(), filmId)) return stage.show(std::move(refusal));
  if (kind == BoostKind::promote) stage.open<PromoteFilmViewController>();
}

}  // namespace

view::Button boostButton(const WorldState& world, const Boost& offered, const Audition& project,
                         BoostWords words) {
  const Words& said = boostWords[static_cast<std::size_t>(offered.kind)];
  return {.label = words == BoostWords::full ? said.full : said.brief,
          .press = [id = project.filmId, kind = offered.kind](Stage& stage) { boost(stage, id, kind); },
          .price = energyPrice(offered.energyPrice),
          .refusal = briefOf(boostRefusal(world, offered)),
          .name = tb::format("{} {}", said.spoken, project.title),
          .weight = view::Button::Weight::primary};
}

}  // namespace tb
