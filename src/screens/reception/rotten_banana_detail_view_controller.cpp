#include "screens/reception/rotten_banana_detail_view_controller.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/find.h"
#include "core/format.h"
#include "film/film_record.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

struct Badge {
  std::string_view image;
  std::string_view name;
};

constexpr std::array<Badge, 6> badges = {{
    {.image = "certifiedFreshBanana.png", .name = "🍌 Certified Fresh"},
    {.image = "bananaOnly.png", .name = "🍌 Ripe"},
    {.image = "spoiledBanana.png", .name = "🍌 Spoiled"},
    {.image = "verifiedHot.png", .name = "🍿 Verified Hot"},
    {.image = "popcornOnly.png", .name = "🍿 Popped"},
    {.image = "rottenPopcorn.png", .name = "🍿 Rotten"},
}};

Card scoreCard(const std::string& who, double score, std::string_view badge, const std::string& count) {
  const auto known = std::ranges::find(badges, badge, &Badge::image);
  return {.title = std::string(known->name),
          .picture = {{.kind = PictureKind::icon, .name = std::string(badge)}},
          .nodes = {Tiles{{{.label = who,
                            .value = tb::format("{}%", wholePercent(score)),
                            .detail = count,
                            .band = scoreBand(score)}}}}};
}

std::string dated(const DateLabel& date) { return date.month + " " + date.dayAndYear; }

Card criticCard(const Review& review) {
  constexpr int starsOfCritics = 4;
  Card card{.title = review.name,
            .subtitle = dated(review.date),
            .picture = {{.kind = PictureKind::avatar, .name = review.image}},
            .nodes = {Stars{.label = review.newsOutlet, .value = review.stars, .outOf = starsOfCritics}}};
  if (!review.review.empty()) {
    card.nodes.push_back(Text{.text = review.review, .style = Text::Style::quotation});
  }
  return card;
}

Card audienceCard(const AudienceReview& review) {
  return {.title = review.name,
          .nodes = {Stars{.label = dated(review.date), .value = static_cast<double>(review.stars)},
                    Text{.text = review.review}}};
}

template <class Written, class Draw>
Section cards(std::string heading, const std::vector<Written>& reviews, Draw draw) {
  Section section{.heading = std::move(heading)};
  for (const Written& review : reviews) section.nodes.push_back(draw(review));
  return section;
}

}  // namespace

void RottenBananaDetailViewController::load(Stage& stage) {
  Game& game = stage.game();
  const Film& film = game.world.saveAllFilmList[*find(game.world.saveAllFilmList, &Film::filmId, film_id_)];
  if (!isOut(game.world, film)) return;
  scores_ = bananaScores(film);
  consensus_ = drawConsensus(game, film, scores_.critic);
  critics_ = drawCriticCards(game, film, scores_.critic);
  audience_ = drawAudienceCards(game, film, scores_.audience);
}

Page RottenBananaDetailViewController::view(const Game& game) {
  const Film& film = game.world.saveAllFilmList[*find(game.world.saveAllFilmList, &Film::filmId, film_id_)];
  Page page{
      .title = titleWithSeason(film), .subtitle = "RottenBanana", .nodes = {posterOf(game.world, film)}};
  if (consensus_.empty()) {
    page.nodes.push_back(caption("Critics and audiences are waiting for its release."));
    return page;
  }
  page.nodes.append_range(std::vector<Node>{
      scoreCard("Critics", scores_.critic, scores_.criticBadge, criticCount(game.locale, film)),
      scoreCard("Audience", scores_.audience, scores_.audienceBadge, audienceCount(game.locale, film)),
      Section{.heading = "CRITICS CONSENSUS", .nodes = {Text{.text = consensus_}}},
      cards("CRITIC REVIEWS", critics_, criticCard), cards("AUDIENCE REVIEWS", audience_, audienceCard)});
  return page;
}

}  // namespace tb
