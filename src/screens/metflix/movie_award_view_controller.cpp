#include "screens/metflix/movie_award_view_controller.h"

#include <algorithm>
#include <array>
#include <utility>

#include "banks/awards_banks.h"
#include "banks/draw.h"
#include "core/find.h"
#include "core/format.h"
#include "core/text.h"
#include "film/awards.h"
#include "screens/headshot.h"
#include "screens/parts.h"
#include "screens/poster.h"

namespace tb {

using namespace view;

namespace {

constexpr std::size_t yearsShown = 6;

struct Nominee {
  std::string name;
  std::string title;
  bool isPlayers = false;  // of the player's title
  bool wins = false;
};

// The four nominees, in an order that does not tell who is the player's.
std::vector<Nominee> nomineesOf(const Award& award) {
  std::vector<Nominee> nominees;
  const auto winner =
      static_cast<std::size_t>(award.id) % std::max<std::size_t>(award.otherNomineeNames.size(), 1);
  for (std::size_t rival = 0; rival < award.otherNomineeNames.size(); ++rival) {
    nominees.push_back({.name = award.otherNomineeNames[rival],
                        .title = award.otherNomineeFilm[rival],
                        .wins = award.isWinner == 0 && rival == winner});
  }
  const auto place = static_cast<std::ptrdiff_t>(award.id / 3 % (std::ssize(nominees) + 1));
  nominees.insert(
      nominees.begin() + place,
      {.name = award.name, .title = award.filmTitle, .isPlayers = true, .wins = award.isWinner == 1});
  return nominees;
}

std::string winnerOf(const Award& award) {
  const std::vector<Nominee> nominees = nomineesOf(award);
  const auto winner = std::ranges::find(nominees, true, &Nominee::wins);
  return winner == nominees.end() ? "" : tb::format("{}, {}", winner->name, winner->title);
}

std::vector<Picture> pictureOf(const Game& game, const Award& award, const Nominee& nominee) {
  if (nominee.isPlayers && nominee.name == game.world.myName) return {performerPicture(game.world)};
  if (nominee.isPlayers) return {posterOfFilm(game.world, award.filmId, "")};
  return {{.kind = PictureKind::avatar,
           .name = tb::format("{} {}", game.world.isMale ? "man" : "woman", nominee.name)}};
}

Row nomineeRow(const Game& game, const Award& award, const Nominee& nominee, bool isRevealed) {
  Row row{.label = nominee.name,
          .detail = nominee.title,
          .picture = pictureOf(game, award, nominee),
          .tone = nominee.isPlayers ? Tone::accent : Tone::plain};
  if (!isRevealed) return row;
  row.tone = nominee.wins ? Tone::good : Tone::quiet;
  if (nominee.wins) row.value = "🏆 Winner";
  return row;
}

const AwardOption& optionOf(const Award& award) {
  const auto options = awardOptions();
  return options[static_cast<std::size_t>(
      std::clamp<std::int64_t>(award.awardOptionId, 0, std::ssize(options) - 1))];
}

std::string drawWordsFor(Game& game, const Award& award) {
  if (award.isWinner == 0) {
    return fill(drawFreshRow(game, bank::awardLosses), {{"name", award.name}});
  }
  if (!isActing(optionOf(award))) return tb::format("{} takes it home for {}.", award.name, award.filmTitle);
  return "“" + fill(drawFreshRow(game, bank::awardSpeeches), {{"title", award.filmTitle}}) + "”";
}

// The revealed wins, latest first.
std::vector<Node> shelf(const WorldState& world) {
  std::vector<Node> statues;
  for (std::size_t index = world.saveAllMovieAwards.size(); index-- > 0;) {
    const Award& award = world.saveAllMovieAwards[index];
    if (award.isWinner == 0 || !isRevealed(world, award)) continue;
    statues.push_back(
        Row{.label = award.nameOfAward,
            .detail = tb::format("{} • {} {}", award.filmTitle, award.awardShow, award.yearAwarded),
            .picture = {{.kind = PictureKind::icon, .name = "trophy " + award.awardShow}}});
  }
  return statues;
}

Section shelfSection(const WorldState& world) {
  const std::vector<Node> statues = shelf(world);
  return {.heading = "YOUR SHELF",
          .nodes = {PagedList{.key = "shelf",
                              .size = statues.size(),
                              .nodeAt = [statues](std::size_t index) { return statues[index]; },
                              .whenEmpty = "Nothing to dust yet.",
                              .pageLength = 10}}};
}

// Years with nominations, latest first.
std::vector<std::int64_t> nominationYears(const WorldState& world) {
  std::vector<std::int64_t> found;
  for (std::size_t index = world.saveAllMovieAwards.size(); index-- > 0;) {
    const std::int64_t year = world.saveAllMovieAwards[index].yearAwarded;
    if (!std::ranges::contains(found, year)) found.push_back(year);
  }
  return found;
}

Page nothingYet(const WorldState& world) {
  return {.title = "Awards",
          .nodes = {Text{.text = "No title of yours has been nominated yet."},
                    caption("The Cademy Awards for films are decided in the third week of the year, the Emme "
                            "Awards for drama series in the seventh. Titles of the year before count, with a "
                            "metascore of 85 and more."),
                    shelfSection(world)}};
}

}  // namespace

void MovieAwardViewController::load(Stage& stage) {
  const std::vector<std::int64_t> years = nominationYears(stage.game().world);
  if (!year_ && !years.empty()) year_ = years.front();
}

void MovieAwardViewController::reveal(Stage& stage, std::int64_t id) {
  Game& game = stage.game();
  const auto index = find(game.world.saveAllMovieAwards, &Award::id, id);
  if (!index) return;
  const Award& award = game.world.saveAllMovieAwards[*index];
  openEnvelope(game, id);
  stage.play({.scene = Moment::Scene::envelope,
              .title = std::string(drawFreshRow(game, bank::envelopeMoments)),
              .line = winnerOf(award)});
  said_ = drawWordsFor(game, award);
  said_of_ = id;
}

Card MovieAwardViewController::nomination(const Game& game, const Award& award) {
  const bool isOpen = isRevealed(game.world, award);
  Card card{.title = award.nameOfAward,
            .subtitle = award.description,
            .picture = {posterOfFilm(game.world, award.filmId, "")}};
  for (const Nominee& nominee : nomineesOf(award)) {
    card.nodes.push_back(nomineeRow(game, award, nominee, isOpen));
  }
  if (said_of_ == award.id && !said_.empty()) {
    card.nodes.push_back(Text{.text = said_,
                              .style = award.isWinner == 1 ? Text::Style::quotation : Text::Style::body,
                              .tone = award.isWinner == 1 ? Tone::good : Tone::quiet});
  }
  if (!isOpen) {
    card.nodes.push_back(Button{.label = "Open the envelope",
                                .press = [this, id = award.id](Stage& stage) { reveal(stage, id); },
                                .name = tb::format("Open the envelope: {}", award.nameOfAward),
                                .weight = Button::Weight::primary});
  }
  return card;
}

Section MovieAwardViewController::show(const Game& game, const std::string& awardShow, const char* heading) {
  Section section{.heading = heading};
  for (const Award& award : game.world.saveAllMovieAwards) {
    if (award.yearAwarded != *year_ || award.awardShow != awardShow) continue;
    if (section.nodes.empty()) {
      section.nodes.push_back(Text{.text = "NOMINEES", .style = Text::Style::heading});
    }
    section.nodes.push_back(nomination(game, award));
  }
  return section;
}

Choice MovieAwardViewController::years(const WorldState& world) {
  Choice choice{.label = "Year"};
  for (const std::int64_t year : nominationYears(world)) {
    if (choice.options.size() == yearsShown) break;
    choice.options.push_back({.label = std::to_string(year),
                              .chosen = year == year_,
                              .press = [this, year](Stage&) { year_ = year; }});
  }
  return choice;
}

Page MovieAwardViewController::view(const Game& game) {
  const WorldState& world = game.world;
  if (!year_) return nothingYet(world);
  Page page{.title = "Awards", .subtitle = tb::format("The season of {}", *year_)};
  if (nominationYears(world).size() > 1) page.nodes.push_back(years(world));
  for (auto [awardShow, heading] : {std::pair{"Cademy Awards", " OSKARS NOMINATIONS ANNOUNCED"},
                                    std::pair{"Emme Awards", " EMME NOMINATIONS ANNOUNCED"}}) {
    Section section = show(game, awardShow, heading);
    if (!section.nodes.empty()) page.nodes.push_back(std::move(section));
  }
  page.nodes.push_back(shelfSection(world));
  return page;
}

}  // namespace tb
