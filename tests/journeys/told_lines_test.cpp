// What a career tells over three years: a player who reads every line is not told the same one again soon.

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "banks/audition_banks.h"
#include "banks/box_office_banks.h"
#include "banks/earnings_banks.h"
#include "banks/film_banks.h"
#include "banks/syndication_banks.h"
#include "banks/talent_banks.h"
#include "banks/week_banks.h"
#include "career/boosts.h"
#include "career/casting_board.h"
#include "career/classes.h"
#include "career/guild.h"
#include "career/submission.h"
#include "tests/memory_port.h"
#include "tests/seeded_random.h"
#include "week/end_week.h"

namespace tb {
namespace {

constexpr int weeksPlayed = 150;
constexpr int weeksRemembered = 10;
constexpr int submissionsAWeek = 2;

// The rows of a bank, as what stands between their placeholders.
struct KnownRow {
  std::string row;
  std::vector<std::string> pieces;
};

std::vector<std::string> piecesOf(std::string_view row) {
  std::vector<std::string> pieces(1);
  bool inside = false;
  for (const char c : row) {
    if (c == '{') pieces.emplace_back();
    inside = c == '{' || (inside && c != '}');
    if (!inside && c != '}') pieces.back() += c;
  }
  return pieces;
}

// Knows the row of a bank by the line that was made of it.
class Reader {
 public:
  explicit Reader(std::initializer_list<Bank> banks) {
    for (const Bank bank : banks) {
      for (const std::string& row : rowsOf(bank)) rows_.push_back({.row = row, .pieces = piecesOf(row)});
    }
  }

  // The row that the line was made of; empty for a line that is no bank's.
  [[nodiscard]] std::string rowOf(const std::string& line) const {
    const KnownRow* best = nullptr;
    for (const KnownRow& known : rows_) {
      if (fits(line, known.pieces) && (best == nullptr || known.row.size() > best->row.size())) best = &known;
    }
    return best == nullptr ? "" : best->row;
  }

 private:
  static bool fits(const std::string& line, const std::vector<std::string>& pieces) {
    if (!line.starts_with(pieces.front()) || !line.ends_with(pieces.back())) return false;
    std::size_t place = 0;
    for (const std::string& piece : pieces) {
      place = line.find(piece, place);
      if (place == std::string::npos) return false;
      place += piece.size();
    }
    return true;
  }

  std::vector<KnownRow> rows_;
};

// A performer who sends out two headshots a week, rehearses with the energy that is left, takes a class
// when there is cash for one, and joins the guild as soon as it opens.
class Performer {
 public:
  explicit Performer(std::uint64_t seed) : chance_(seed) {
    WorldState& world = game_.world;
    world.totalCashAvailable = 2'000;
    world.myName = "Ada Quinn";
    world.enterPlayerDetails = 1;
    world.showreelScore = 60;
    world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 =
        50;
  }

  // Lives a week and says what it told: the feed, and what is new in the log.
  std::vector<std::string> liveWeek() {
    const std::size_t before = game_.world.activityTracker.size();
    work();
    endWeek(game_);
    std::vector<std::string> told = openSummary(game_).feed;
    closeSummary(game_);
    refreshHub(game_, HubRefresh::worldChanged);
    const TextList& log = game_.world.activityTracker;
    for (std::size_t index = 0; index < log.size() - before; ++index) {
      // What stands in both lists is one line.
      if (!std::ranges::contains(told, log[index])) told.push_back(log[index]);
    }
    return told;
  }

  [[nodiscard]] std::size_t films() const { return game_.world.saveAllFilmList.size(); }

 private:
  void work() {
    int sent = 0;
    for (const CastingListing& listing : openCastingNetwork(game_)) {
      if (sent < submissionsAWeek && !submitToCastingListing(game_, listing)) sent += 1;
    }
    for (std::size_t index = 0; index < game_.world.saveAllAuditionList.size(); ++index) {
      const auto boost = boostOf(game_.world, game_.world.saveAllAuditionList[index]);
      if (boost && boost->kind == BoostKind::rehearse) static_cast<void>(buyBoost(game_, index));
    }
    static_cast<void>(joinGuild(game_));
    for (const ClassOption& option : openClasses(game_)) {
      if (option.cost < game_.world.totalCashAvailable / 2) {
        static_cast<void>(signUpForClass(game_, option));
        break;
      }
    }
  }

  test::MemoryPort port_;
  SaveStore store_{port_};
  test::SeededRandom chance_;
  Game game_{.store = store_, .random = chance_};
};

// How many of the weeks held a line told within the ten weeks before, or twice in one week.
int weeksThatRepeat(Performer& performer, const Reader& reader, std::vector<std::string>& repeated) {
  std::map<std::string, int> lastTold;
  int repeating = 0;
  for (int week = 0; week < weeksPlayed; ++week) {
    bool repeats = false;
    for (const std::string& line : performer.liveWeek()) {
      const std::string row = reader.rowOf(line);
      if (row.empty()) continue;
      const auto last = lastTold.find(row);
      if (last != lastTold.end() && week - last->second <= weeksRemembered) {
        repeats = true;
        repeated.push_back(row);
      }
      lastTold[row] = week;
    }
    repeating += repeats ? 1 : 0;
  }
  return repeating;
}

TEST(ToldLines, FewWeeksRepeatALineOfTheTenBefore) {
  const Reader reader{
      bank::weeklyTips,     bank::showreelScene,      bank::classSignUp,       bank::submission,
      bank::silence,        bank::invitation,         bank::investmentWrap,    bank::payday,
      bank::withdrawal,     bank::seriesCancellation, bank::seriesRenewal,     bank::sagaRenewal,
      bank::sagaEnding,     bank::premiere,           bank::closing,           bank::residualPaidBank,
      bank::equityPaidBank, bank::royaltyPaidBank,    bank::royaltySignedBank, bank::syndicationDealBank};
  Performer performer(1);
  std::vector<std::string> repeated;
  EXPECT_LE(weeksThatRepeat(performer, reader, repeated), 10) << testing::PrintToString(repeated);
  EXPECT_GT(performer.films(), 10U);
}

}  // namespace
}  // namespace tb
