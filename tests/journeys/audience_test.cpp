// The audience over years: fans and their carry, feeds, charts, awards, and what fame pays.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "banks/fame_banks.h"
#include "core/weekly_option.h"
#include "film/metflix_chart.h"
#include "life/weekly_options.h"
#include "screens/audience/fame_detail_view_controller.h"
#include "social/chirp_feed.h"
#include "social/fame.h"
#include "social/fans.h"
#include "tests/journeys/device.h"
#include "tests/screens/careers.h"
#include "tests/scripted_random.h"
#include "week/end_week.h"

namespace tb {
namespace {

using test::SeededRandom;

void giveTalent(WorldState& world, std::int64_t points) {
  world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 =
      points;
}

// Puts the performer's short film, which comes out in that week, into an otherwise empty career of week 5.
void addShortFilm(WorldState& world, std::int64_t weekReleased, double budget) {
  world.weekNumber = world.weekNumberForTracking = 5;
  Audition lead = test::bookedLead(1, filmType::shortFilm, "Small Hours");
  lead.funnelStage = funnel::wrapped;
  lead.weekToWork = 1;
  lead.weekReleased = weekReleased;
  lead.budget = budget;
  world.saveAllAuditionList = {lead};
  world.saveAllFilmList = {
      {.filmId = 1, .typeOfFilm = filmType::shortFilm, .isPrincipal = 1, .title = "Small Hours"}};
}

// --- The carry ---

// A performer who never loses fans, so that each week's gain is known.
TEST(AudienceJourney, TitlesPayTheirFansAgainUntilTheGameIsClosed) {
  SeededRandom random(5);
  test::Device device(random);
  device.begin([](WorldState& world) {
    addShortFilm(world, 6, 1e9);
    world.totalEnergyAvailable = 100;
    giveTalent(world, 100);
  });
  device.playWeeks(2);
  const std::int64_t carry = device.world().fanGainCarry;
  ASSERT_GT(carry, 200);  // more than a week's drift
  const auto gainOfWeek = [&] {
    const std::int64_t before = device.world().totalFans;
    device.playWeeks();
    return device.world().totalFans - before;
  };
  for (int week = 0; week < 6; ++week) {
    const bool swings = device.world().weekNumber % 4 == 0;
    const std::int64_t gain = gainOfWeek();
    if (!swings) EXPECT_NEAR(static_cast<double>(gain), static_cast<double>(carry), 101);
    EXPECT_EQ(device.world().fanGainCarry, carry);
  }
  const std::int64_t fans = device.world().totalFans;
  device.launch();
  EXPECT_EQ(device.world().totalFans, fans);
  EXPECT_EQ(device.world().fanGainCarry, 0);
  if (device.world().weekNumber % 4 != 0) EXPECT_LE(gainOfWeek(), 100);
}

// --- A decade ---

// With the lowest draws fans come every week, as few as their number allows, and no swing moves them.
TEST(AudienceJourney, ADecadeOfTheLowestDraws) {
  const auto leastDrift = [](std::int64_t fans) {
    return fans <= 100 ? 1 : fans <= 1'000 ? 2 : fans <= 10'001 ? 5 : 10;
  };
  test::ScriptedRandom random(test::Unscripted::low);
  test::Device device(random);
  device.begin([](WorldState& world) {
    addShortFilm(world, 110, 1e6);
    world.myName = "Ada Quinn";
    const auto lead = [&](std::int64_t id, const char* title, std::int64_t metascore) {
      world.saveAllFilmList.push_back({.filmId = id,
                                       .role = "Lead",
                                       .isPrincipal = 1,
                                       .title = title,
                                       .yearReleased = 2026,
                                       .imbdRating = 7,
                                       .imbdMetascore = metascore});
    };
    lead(2, "Saltwater", 100);
    lead(3, "Puddle", 84);
  });
  std::int64_t highestCarry = 0;
  for (int week = 0; week < 520; ++week) {
    if (week == 260) device.launch();
    const std::int64_t before = device.world().totalFans;
    device.playWeeks();
    const WorldState& world = device.world();
    const std::int64_t carried = before + world.fanGainCarry;
    ASSERT_EQ(world.totalFans, carried + leastDrift(carried)) << week;
    ASSERT_GE(world.fanGainCarry, week < 260 ? highestCarry : 0) << week;
    if (week >= 260) ASSERT_EQ(world.fanGainCarry, 0) << week;
    highestCarry = std::max(highestCarry, world.fanGainCarry);
    for (const auto* chart : {&world.saveAllTopTenList, &world.saveAllTopTenSeriesList}) {
      ASSERT_GE(chart->size(), 9u);
      ASSERT_LE(chart->size(), 11u);
    }
  }
  EXPECT_GT(highestCarry, 0);
  ASSERT_FALSE(device.world().saveAllMovieAwards.empty());
  for (const Award& award : device.world().saveAllMovieAwards) {
    EXPECT_EQ(award.filmTitle, "Saltwater");
    EXPECT_EQ(award.yearAwarded, 2027);
  }
}

// --- Fame pays ---

TEST(AudienceJourney, FameOpensTheCameoAndPatron) {
  SeededRandom random(8);
  test::Device device(random);
  device.begin([](WorldState& world) {
    world.totalFans = 9'999;
    world.totalCashAvailable = 128;
    world.totalEnergyAvailable = 100;
    world.publicImage = 100;
    giveTalent(world, 100);
    for (int review = 0; review < 9; ++review)
      world.saveAllMovieReviews.push_back({.title = "Old", .rating = 5});
  });
  test::Player& player = device.player();
  player.follow({"Social", "The Cameo"});
  player.expectSees({"TO OPEN"});
  player.follow({"Sign up for The Cameo", "Subscribe"});
  player.follow({"Home", "Social", "Patron"});
  player.press("Sign up for Movie Pass");
  player.expectTold("💰 Not Enough Cash 💰");
  EXPECT_EQ(device.world().totalCashAvailable, 28);
  EXPECT_TRUE(hasWeeklyOption(device.world(), weeklyOption::theCameo));
  EXPECT_FALSE(hasWeeklyOption(device.world(), weeklyOption::moviePass));

  // The price: twice the fair one sells a lot less.
  player.follow({"Home", "Social", "The Cameo"});
  EXPECT_TRUE(player.sees("10,000 fans"));
  player.press("Price");
  player.slide("Price of a video", 50);
  player.expectSees({"× 0.32 | 32% of the buyers at the fair price"});
  player.slide("Price of a video", 20);
  player.press("Set the price");
  EXPECT_EQ(device.world().setCameoPrice, 20);
  EXPECT_NEAR(device.world().cameoDemandIndex, std::pow(25 / 20.0, 0.35), 1e-12);

  // Nine weeks of sales to the cent, once there are enough fans.
  double taken = 0;
  for (int week = 0; week < 9; ++week) {
    const std::size_t before = device.world().saveAllCameos.size();
    device.endWeek();
    const List<Cameos>& sold = device.world().saveAllCameos;
    if (sold.size() > before) {
      const double buyers = sold.back().totalPriceEarned / 20 / device.world().cameoDemandIndex;
      EXPECT_NEAR(buyers, std::round(buyers), 1e-9);
      EXPECT_EQ(device.world().weekBalanceItems[0].title, "CAMEO");
      taken += sold.back().totalPriceEarned;
    }
    EXPECT_EQ(sold.size() > before, device.world().totalFans >= 10'000);
    player.press("Close");
  }
  EXPECT_GT(taken, 0);

  // A tenth review, and Patron pays by fans, fame and interest.
  device.playWeeks(2);
  player.follow({"Social", "Patron"});
  player.follow({"Sign up for Movie Pass", "Subscribe"});
  player.expectSees({"📝 Not Enough Reviews 📝"});
  player.press("Review a movie");
  player.follow({"7 ★", "❇️ Write it for me", "Submit"});
  const std::int64_t reviews = std::ssize(device.world().saveAllMovieReviews);
  ASSERT_EQ(reviews, 10);
  double paid = 0;
  for (std::int64_t weeks = 1; weeks <= 3; ++weeks) {
    const auto fame = static_cast<double>(device.world().saveFameLevel);
    device.playWeeks();
    const double fans = static_cast<double>(device.world().totalFans);
    const double interest = (200.0 - static_cast<double>(weeks)) / 200;
    EXPECT_DOUBLE_EQ(device.world().trackPatronEarnings.back(), fans * 0.0005 * (fame / 100) * 5 * interest);
    paid += device.world().trackPatronEarnings.back();
  }
  EXPECT_DOUBLE_EQ(device.world().totalPatronEarnings, paid);
  player.follow({"Social", "Patron", "Analytics"});
  player.expectSees({"Weekly income"});
}

// --- The award evening ---

TEST(AudienceJourney, AnAwardEvening) {
  SeededRandom random(3);
  test::Device device(random);
  device.begin([](WorldState& world) {
    world.weekNumber = world.weekNumberForTracking = 3;
    world.myName = "Ada Quinn";
    world.isMale = false;
    world.totalEnergyAvailable = 100;
    world.saveAllFilmList = {{.filmId = 1,
                              .role = "Lead",
                              .isPrincipal = 1,
                              .title = "Saltwater",
                              .directorName = "Dee Rector",
                              .writerName = "Wren Iter",
                              .yearReleased = 2025,
                              .imbdRating = 9.8,
                              .imbdMetascore = 100}};
  });
  test::Player& player = device.player();
  device.endWeek();
  const std::size_t nominations = device.world().saveAllMovieAwards.size();
  ASSERT_GT(nominations, 2u);
  player.press("OSKAR NOMINATIONS");
  player.expectSees({" OSKARS NOMINATIONS ANNOUNCED", "NOMINEES", "Nothing to dust yet."});
  EXPECT_FALSE(player.sees("Winner"));
  std::size_t won = 0;
  for (const Award& award : device.world().saveAllMovieAwards) {
    player.press("Open the envelope: " + award.nameOfAward);
    ASSERT_EQ(player.page().moment.size(), 1u);
    EXPECT_EQ(player.page().moment.front().line.contains("Saltwater"), award.isWinner == 1);
    won += award.isWinner == 1 ? 1 : 0;
  }
  ASSERT_GT(won, 0u);
  EXPECT_FALSE(player.sees("Nothing to dust yet."));
  player.press("Back");
  EXPECT_FALSE(player.sees("OSKAR NOMINATIONS"));
  player.press("Close");
  player.follow({"Work", "Awards"});
  EXPECT_FALSE(player.sees("Open the envelope"));
}

// --- Chirp ---

TEST(AudienceJourney, PostsStandAmongTheCrowd) {
  SeededRandom random(4);
  test::Device device(random);
  device.begin([](WorldState& world) {
    world.myName = "Ada Quinn";
    world.totalEnergyAvailable = 10;
  });
  test::Player& player = device.player();
  player.follow({"Social", "Chirp"});
  player.press("Write a chirp");
  player.press("Post");
  player.expectTold("🐥 Chirp Needed 🐥");
  player.type("What's Happening?", "Hello from the back row");
  player.press("Post");
  EXPECT_EQ(player.title(), "Chirp");
  EXPECT_TRUE(player.sees("Hello from the back row"));
  player.press("Hello from the back row");
  player.expectSees({"REPLIES"});
  player.follow({"Back", "Profile", "Pin to your profile"});
  player.expectSees({"Pinned Chirp | Ada Quinn | now"});
  player.follow({"Delete Chirp", "Delete Chirp"});
  EXPECT_TRUE(device.world().saveAllChirpList.empty());
  EXPECT_EQ(device.world().totalEnergyAvailable, 5);
}

// Feeds of an unknown, a working actor and a star.
TEST(AudienceFeeds, ReadDifferentlyByFame) {
  const auto messages = [](const std::function<void(WorldState&)>& prepare, std::size_t count) {
    test::MemoryPort port;
    SaveStore store(port);
    SeededRandom random(9);
    Game game{.store = store, .random = random};
    prepare(game.world);
    std::vector<std::string> lines;
    while (lines.size() < count) {
      const std::vector<Chirp> feed = buildFeed(game);
      for (std::size_t post = 1; post < feed.size(); ++post) {
        EXPECT_GE(feed[post - 1].timestamp.seconds, feed[post].timestamp.seconds);
      }
      for (const Chirp& post : feed) {
        EXPECT_FALSE(post.message.empty() || post.chirpName.empty());
        EXPECT_FALSE(post.message.contains('{') || post.message.contains("@set")) << post.message;
        if (post.artistId != 0 && post.id > 9'000) lines.push_back(post.message);
      }
    }
    return lines;
  };
  const auto naming = [](const std::vector<std::string>& lines, std::string_view name) {
    return std::ranges::count_if(lines, [name](const std::string& line) { return line.contains(name); });
  };
  constexpr std::size_t lines = 200;
  const auto stranger = [](WorldState& world) {
    test::beginner(world);
    world.totalFans = 12;
  };
  const std::vector<std::string> unknown = messages(stranger, lines);
  const std::vector<std::string> working = messages(test::working, lines);
  const std::vector<std::string> star = messages(test::star, lines);
  EXPECT_EQ(naming(unknown, "Ada Quinn"), 0);
  EXPECT_GT(naming(working, "Ada Quinn"), 15);
  EXPECT_GT(naming(star, "Ada Quinn"), 15);
  EXPECT_EQ(naming(unknown, "Feature "), 0);
  EXPECT_GT(naming(star, "Feature "), 5);
  for (const auto& feed : {unknown, working, star}) {
    EXPECT_GT(std::set(feed.begin(), feed.end()).size(), feed.size() * 7 / 10);
  }
}

// --- Many careers ---

// The texts of the fame page.
void addSentences(const Game& game, std::string& seen) {
  for (const view::Node& node : FameDetailViewController().view(game).nodes) {
    const auto* const section = std::get_if<view::Section>(&node.node);
    if (section == nullptr) continue;
    for (const view::Node& line : section->nodes) {
      if (const auto* const text = std::get_if<view::Text>(&line.node)) seen += text->text + "\n";
    }
  }
}

// 20 careers of ten years, from unknown to famous, with titles of every quality.
TEST(ManyAudiences, StayWithinTheirBounds) {
  std::string sentences;
  std::set<std::string_view> letters;
  std::map<bool, int> onTheChart;
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    test::MemoryPort port;
    SaveStore store(port);
    SeededRandom random(seed);
    Game game{.store = store, .random = random};
    WorldState& world = game.world;
    world.enterPlayerDetails = 1;
    world.myName = "Ada Quinn";
    world.agentFanBonus = 1;
    world.totalFans = static_cast<std::int64_t>(std::pow(10, static_cast<double>(seed % 12)));
    world.experience =
        seed <= 10 ? 10.0 * static_cast<double>(seed - 1) : 3'000.0 * static_cast<double>(seed);
    world.publicImage = 5 * static_cast<std::int64_t>(seed);
    giveTalent(world, 1 + 5 * static_cast<std::int64_t>(seed));
    for (std::uint64_t nomination = 0; seed <= 10 && nomination < 4 * seed; ++nomination)
      world.saveAllMovieAwards.push_back({.yearAwarded = 2020, .name = world.myName});
    for (int week = 0; week < 520; ++week) {
      if (week % 26 == 0) {
        const std::int64_t id = 1 + week;
        const double share = static_cast<double>(seed) / 20;
        world.saveAllFilmList.push_front({.filmId = id,
                                          .typeOfFilm = week % 52 == 0 ? filmType::feature : filmType::series,
                                          .role = "Lead",
                                          .isPrincipal = 1,
                                          .title = "Title " + std::to_string(id),
                                          .genres = {"Drama"},
                                          .yearReleased = world.yearNumber,
                                          .weekReleased = world.weekNumberForTracking,
                                          .budget = 1e7,
                                          .boxOfficeGross = 5e7 * share,
                                          .imbdRating = 10 * share,
                                          .imbdMetascore = static_cast<std::int64_t>(100 * share),
                                          .currentPopularity = 100 * share});
      }
      endWeek(game);
      (void)openSummary(game);
      closeSummary(game);
      refreshHub(game, HubRefresh::worldChanged);
      ASSERT_GE(world.totalFans, 0);
      ASSERT_LE(world.trackFans.size(), trackedFans);
      ASSERT_GE(world.saveFameLevel, 0);
      for (const auto* chart : {&world.saveAllTopTenList, &world.saveAllTopTenSeriesList}) {
        ASSERT_GE(chart->size(), 9u);
        ASSERT_LE(chart->size(), 11u);
        ASSERT_TRUE(std::ranges::is_sorted(*chart, std::greater<>(), &TopTen::currentPopularity));
        onTheChart[std::ranges::any_of(*chart, std::not_fn(isInvented))] += 1;
      }
      if (week % 26 == 0) addSentences(game, sentences);
      letters.insert(fameLetter(world.saveFameLevel));
    }
    for (const Award& award : world.saveAllMovieAwards) {
      if (award.yearAwarded == 2020) continue;
      EXPECT_GE(seed, 17u) << "a nomination for a metascore below 85";
      EXPECT_EQ(award.otherNomineeNames.size(), 3u);
    }
    EXPECT_EQ(world.saveStarRankingMeter.size(), 52u);
  }
  for (const Bank& bank : {bank::publicImageSentences, bank::fansSentences, bank::experienceTitles,
                           bank::talentSentences, bank::awardsSentences}) {
    for (const std::string& row : rowsOf(bank)) EXPECT_TRUE(sentences.contains(row)) << row;
  }
  EXPECT_GE(letters.size(), 9u);
  EXPECT_GT(onTheChart[true], 0);
  EXPECT_GT(onTheChart[false], 0);
}

}  // namespace
}  // namespace tb
