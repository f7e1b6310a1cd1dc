#include "screens/love/latch_match_list_view_controller.h"

#include <utility>

#include "core/format.h"
#include "life/latch.h"
#include "life/partner.h"
#include "screens/love/latch_you_matched_with_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

void openRow(Stage& stage, std::size_t row) {
  const Matches match = stage.game().world.saveAllMatchesList[row];
  const std::string partner =
      currentPartner(stage.game().world) == nullptr ? "" : currentPartner(stage.game().world)->name;
  Opened opened = openMatch(stage.game(), row);
  if (opened.isConversation) return stage.open<LatchYouMatchedWithViewController>();
  if (opened.separation) return tellSeparation(stage, opened.separation);
  if (opened.isFoundOut) {
    return tellScandal(
        stage, std::move(*opened.notice), "SCANDAL",
        tb::format("{} writes to {}. {} reads along.", stage.game().world.myName, match.name, partner),
        portraitOf(match));
  }
  if (!opened.notice) return stage.say("Nobody noticed");
  stage.show(std::move(opened.notice));
}

Row matchRow(const WorldState& world, std::size_t index) {
  const Matches& match = world.saveAllMatchesList[index];
  Row row{.label = match.name, .picture = {portraitOf(match)}};
  if (match.relationshipState == bond::matched) {
    row.value = "Matched";
    row.detail = tb::format("{}\n{}", agoWords(world, match.weekMatched), match.pickupLineResponse);
  } else if (match.relationshipState == bond::ended) {
    row.value = "Over";
    row.detail = tb::format("Together for {}, ended {}\n“{}”",
                            spanWords(match.weekEndedDating - match.weekStartedDating),
                            agoWords(world, match.weekEndedDating), match.breakupLine);
    row.tone = Tone::quiet;
  } else {
    row.value = "Official";
    row.detail = togetherWords(world, match);
    row.tone = Tone::good;
  }
  if (canOpenMatch(world, index)) row.press = [index](Stage& stage) { openRow(stage, index); };
  return row;
}

}  // namespace

Page LatchMatchListViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "Matches"};
  if (const Matches* const partner = currentPartner(world)) {
    page.nodes.push_back(Text{
        .text = tb::format("{} finds out about one message to others in two, and takes 15 to 40 points of "
                           "your relationship for it.",
                           partner->name),
        .tone = Tone::warning});
  }
  const std::size_t size = world.saveAllMatchesList.size();
  page.nodes.push_back(PagedList{
      .key = "matches",
      .size = size,
      .nodeAt = [&world, size](std::size_t index) -> Node { return matchRow(world, size - 1 - index); },
      .whenEmpty = "Nobody yet. Swipe on Latch, and say something first."});
  return page;
}

}  // namespace tb
