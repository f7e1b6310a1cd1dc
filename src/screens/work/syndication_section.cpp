#include "screens/work/syndication_section.h"

#include <algorithm>
#include <string>

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

Row networkRow(const Game& game, const std::string& network, std::int64_t price, std::string detail) {
  return {.label = network,
          .value = bigMoney(game.locale, static_cast<double>(price)),
          .detail = std::move(detail)};
}

Row inForce(const Game& game, const Syndication& title) {
  const auto won = static_cast<std::size_t>(title.networkIndexWon);
  Row row = networkRow(game, title.networkNames[won], title.networkOffers[won],
                       tb::format("On the air, {} left of {}", counted(title.weeksRemaining, "week"),
                                  counted(title.networkYears[won], "year")));
  row.picture = {{.kind = PictureKind::logo, .name = title.networkImages[won]}};
  row.tone = Tone::accent;
  return row;
}

std::vector<Node> bids(const Game& game, const Syndication& title) {
  std::vector<Node> nodes;
  for (std::size_t bid = 0; bid < title.networkNames.size(); ++bid) {
    Row row = networkRow(game, title.networkNames[bid], title.networkOffers[bid],
                         "Bids for " + counted(title.networkYears[bid], "year"));
    row.picture = {{.kind = PictureKind::logo, .name = title.networkImages[bid]}};
    nodes.emplace_back(std::move(row));
  }
  if (nodes.size() == 1)
    nodes.emplace_back(caption("One bidder makes no sale. The title waits for a second."));
  return nodes;
}

}  // namespace

std::optional<Section> syndicationSection(const Game& game, std::int64_t filmId) {
  const auto& titles = game.world.saveAllSyndication;
  const auto index = find(titles, &Syndication::filmId, filmId);
  if (!index) return std::nullopt;
  const Syndication& title = titles[*index];
  Section section{.heading = "SYNDICATION"};
  const bool isWon = title.networkIndexWon >= 0 && title.networkIndexWon < std::ssize(title.networkNames);
  if (title.didAcceptOffer && isWon) {
    section.nodes.emplace_back(inForce(game, title));
  } else {
    section.nodes = bids(game, title);
  }
  for (std::size_t deal = title.networkNameSigned.size(); deal-- > 0;) {
    section.nodes.emplace_back(
        networkRow(game, title.networkNameSigned[deal], title.networkOfferSigned[deal],
                   tb::format("Ran for {}", counted(title.networkYearSigned[deal], "year"))));
  }
  return section;
}

}  // namespace tb
