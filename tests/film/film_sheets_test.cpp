// Golden sheets of the film rules, on both sides of each limit.

#include <format>
#include <gtest/gtest.h>

#include "film/banana_reviews.h"
#include "film/banana_scores.h"
#include "film/box_office.h"
#include "film/box_office_tables.h"
#include "film/cast_list.h"
#include "film/fan_gain.h"
#include "film/film_record.h"
#include "film/movie_reviews.h"
#include "film/new_releases.h"
#include "film/popularity_drift.h"
#include "film/promotion.h"
#include "film/released_project.h"
#include "film/score_roll.h"
#include "film/syndication_deals.h"
#include "film/syndication_offers.h"
#include "film/top_titles.h"
#include "film/user_reviews.h"
#include "tests/core/unusual_values.h"
#include "tests/film/wrapped_project.h"
#include "tests/record_text.h"
#include "tests/sheet.h"

namespace tb {
namespace {

using test::projectOf;
using test::releaseWeek;
using test::Sheet;

const auto ofNothing = [](WorldState&) {};

std::string joinedCast(const Film& film) { return test::textOf(castList(film)); }

// The start of a long text, which identifies its bank.
std::string startOf(const std::string& text) { return text.substr(0, 40); }

TEST(GoldenFilm, ScoresByTypeAndDirector) {
  Sheet sheet("film_scores");
  for (std::int64_t type = filmType::feature; type <= filmType::shortFilm; ++type) {
    for (const std::int64_t director : {0, 5, 6, 30, 31, 60, 71, 72, 75, 78, 90, 91, 95, 100, 150, 151}) {
      Audition project = projectOf(type);
      project.directorRating = director;
      sheet.text(
          std::format("type {} director {}", type, director), ofNothing,
          [&](Game& game) {
            const Scores scores = rollScores(game, project);
            return std::format("{:.4f} {} {} {} {}", scores.imbdRating, scores.imbdMetascore,
                               scores.numImbdRatings, scores.numMetascoreRatings,
                               startOf(scores.featuredReview));
          },
          static_cast<std::uint64_t>(director));
    }
  }
}

TEST(GoldenFilm, FansByBudgetAndFans) {
  Sheet sheet("film_fans");
  const auto gain = [&](double budget, std::int64_t fans, double quality, double weight) {
    sheet.text(
        std::format("budget {} fans {} quality {} weight {}", budget, fans, quality, weight),
        [&](WorldState& world) {
          world.totalFans = fans;
          world.agentFanBonus = 1'000;
        },
        [&](Game& game) { return std::to_string(titleFanGain(game, budget, quality, weight)); });
  };
  for (const double budget : {-1.0,     0.0,
                              100.0,    101.0,
                              1e3,      1'001.0,
                              10'001.0, 10'002.0,
                              1e5,      100'001.0,
                              1e6,      1'000'001.0,
                              1e7,      10'000'001.0,
                              1e8,      100'000'001.0,
                              1e9,      1'000'000'001.0,
                              6e9,      6'000'000'001.0}) {
    gain(budget, 0, 100, 1);
  }
  for (const std::int64_t digits : {100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000}) {
    gain(5e4, digits, 50, 1);
    gain(5e4, digits + 1, 50, 0.6);
  }
}

// A project with royalties and equity.
Audition promising(std::int64_t type, std::int64_t part, std::int64_t didAct) {
  Audition project = projectOf(type);
  project.isPrincipal = part;
  project.didAct = didAct;
  project.budget = 90'000;
  project.hypeRating = 60;
  project.numberOfEpisodesTotal = 4;
  project.parentSeriesFilmId = 3;
  project.seasonNumber = 2;
  project.royalty = 2;
  project.equityPercentage = part == rolePart::principal ? 0 : 10;
  return project;
}

TEST(GoldenFilm, FromTheWrapToTheEndOfTheRun) {
  Sheet sheet("film_runs");
  const auto run = [&](const std::string& what, const Audition& project, const Sheet::Prepare& prepare) {
    for (std::int64_t week = -1; week <= 9; ++week) {
      sheet.changes(
          std::format("{}, week {}", what, week),
          [&](WorldState& world) {
            test::addReleased(world, project);
            prepare(world);
            world.weekNumberForTracking = releaseWeek + week;
            if (week < 1) return;
            Film& film = world.saveAllFilmList.edit(0);
            film.imbdRating = 6.5;
            film.imbdMetascore = 61;
            film.currentPopularity = 42;
            world.saveAllRatings = {{.filmId = 7, .premiereViews = {1e6}, .hoursWatched = {900'000}}};
            for (std::int64_t before = 1; before < week; ++before) {
              world.saveAllRatings.edit(0).premiereViews.push_back(5e5);
              world.saveAllRatings.edit(0).hoursWatched.push_back(400'000);
            }
            world.saveAllBoxOfficeList = {
                {.filmId = 6, .openingWeekend = 9, .totalGross = 9},
                {.filmId = 7, .openingWeekend = 1'000, .totalGross = 1'000},
                {.filmId = 7, .countryId = 2, .openingWeekend = 500, .totalGross = 500}};
            if (project.typeOfFilm != filmType::feature) world.saveAllBoxOfficeList.clear();
            if (project.typeOfFilm != filmType::series) world.saveAllRatings.clear();
          },
          [](Game& game) {
            advanceReleasedProject(game, game.world.saveAllAuditionList[0]);
            closeBoxOffice(game);
          },
          static_cast<std::uint64_t>(week + 5));
    }
  };
  for (std::int64_t type = filmType::feature; type <= filmType::shortFilm; ++type) {
    run(std::format("a lead of type {}", type), promising(type, rolePart::principal, 1),
        [](WorldState& world) {
          world.saveAllTalentAgents = {{.id = 4, .commissionPercentage = 0.5},
                                       {.id = 5, .commissionPercentage = 0.1, .isSigned = 1}};
        });
  }
  run("an own film", promising(filmType::feature, rolePart::ownProduction, 0), ofNothing);
  run("an investment", promising(filmType::feature, rolePart::background, 0), ofNothing);
  run("an investment at a loss", promising(filmType::feature, rolePart::background, 0),
      [](WorldState& world) { world.saveAllFilmList.edit(0).budget = 1e6; });
}

TEST(GoldenFilm, OpeningsAndJojosPosts) {
  Sheet sheet("film_openings");
  for (const double budget : {0.0, 1e5, 1e6, 1e9}) {
    Audition project = projectOf(filmType::feature);
    project.budget = budget;
    project.hypeRating = 110;
    sheet.text(
        std::format("budget {}", budget), [&](WorldState& world) { test::addReleased(world, project); },
        [&](Game& game) {
          openBoxOffice(game, project);
          postBoxOfficeChirp(game);
          postBoxOfficeChirp(game);
          std::string text;
          for (const BoxOffice& market : game.world.saveAllBoxOfficeList) {
            text += std::format("{} {:.2f}, ", market.countryName, market.openingWeekend);
          }
          for (const Chirp& post : game.world.saveAllChirpList) text += test::shown(post);
          return text;
        });
  }
}

TEST(GoldenFilm, PremieresAndEpisodesByCrewAndScores) {
  Sheet sheet("film_series");
  for (const std::int64_t crew : {-3, -2, 92, 93, 215, 216, 452, 453}) {
    Audition project = projectOf(filmType::series);
    project.writerRating = crew - 50;
    sheet.changes(
        std::format("crew {}", crew), [&](WorldState& world) { test::addReleased(world, project); },
        [](Game& game) { advanceReleasedProject(game, game.world.saveAllAuditionList[0]); });
  }
  for (const double rating : {2.0, 2.001, 6.0, 6.001, 8.0, 8.001, 9.0, 10.0}) {
    const std::int64_t metascore = rating < 8 ? 40 : 90;
    Audition project = projectOf(filmType::series);
    project.numberOfEpisodesTotal = 3;
    for (const std::int64_t week : {1, 2, 3}) {
      sheet.changes(
          std::format("rated {} and {}, week {}", rating, metascore, week),
          [&](WorldState& world) {
            test::addReleased(world, project);
            Film& film = world.saveAllFilmList.edit(0);
            film.imbdRating = rating;
            film.imbdMetascore = metascore;
            film.currentPopularity = 50;
            world.weekNumberForTracking = releaseWeek + week;
            world.saveAllRatings = {
                {.filmId = 7,
                 .premiereViews = std::vector<double>(static_cast<std::size_t>(week), 1e6),
                 .hoursWatched = std::vector<std::int64_t>(static_cast<std::size_t>(week), 9)}};
          },
          [](Game& game) { advanceReleasedProject(game, game.world.saveAllAuditionList[0]); });
    }
  }
}

Film talkedAbout(std::int64_t type, double popularity) {
  return {.filmId = 7,
          .typeOfFilm = type,
          .title = "Salt Road",
          .yearReleased = 2029,
          .weekReleased = 31,
          .budget = 1e6,
          .imbdRating = 8,
          .imbdMetascore = 80,
          .currentPopularity = popularity,
          .lastWeekPopularity = 1,
          .payment = 9'000,
          .residualRate = 0.02,
          .royaltyRate = 1.5,
          .sourceId = 4};
}

TEST(GoldenFilm, PopularityDrift) {
  Sheet sheet("film_talk");
  for (std::uint64_t seed = 1; seed <= 12; ++seed) {
    for (const double popularity : {0.0, 0.05, 50.0, 99.9}) {
      sheet.changes(
          std::format("popularity {} seed {}", popularity, seed),
          [&](WorldState& world) {
            world.weekNumberForTracking = 32;
            world.saveAllFilmList = {talkedAbout(filmType::feature, popularity),
                                     talkedAbout(filmType::series, popularity)};
            for (const std::int64_t type :
                 {filmType::commercial, filmType::studentFilm, filmType::shortFilm}) {
              world.saveAllFilmList.push_back(talkedAbout(type, popularity));
            }
            world.saveAllFilmList.push_back(talkedAbout(filmType::feature, popularity));
            world.saveAllFilmList.edit(5).weekReleased = 32;
          },
          [](Game& game) { driftPopularity(game); }, seed);
    }
  }
}

TEST(GoldenFilm, BidsByPopularityAgeAndValue) {
  Sheet sheet("film_bids");
  const auto bid = [&](const std::string& what, const Film& film, const Sheet::Prepare& prepare) {
    for (const std::uint64_t seed : {3, 8, 11}) {
      sheet.changes(
          std::format("{} seed {}", what, seed),
          [&](WorldState& world) {
            world.weekNumberForTracking = 60;
            world.saveAllFilmList = {film};
            world.saveAllBoxOfficeList = {{.filmId = 7, .totalGross = 2e6}, {.filmId = 7, .totalGross = 1e6}};
            world.saveAllRatings = {{.filmId = 7, .premiereViews = {400, 600, 200}}};
            prepare(world);
          },
          [](Game& game) { drawSyndicationBids(game); }, seed);
    }
  };
  for (const double talk :
       {25.5, 26.0, 50.0, 50.5, 51.0, 65.0, 66.0, 80.0, 81.0, 95.0, 95.5, 96.0, 300.0, 300.5}) {
    bid(std::format("popularity {}", talk), talkedAbout(filmType::feature, talk), ofNothing);
  }
  for (std::int64_t type = filmType::series; type <= filmType::shortFilm; ++type) {
    bid(std::format("type {}", type), talkedAbout(type, 100), ofNothing);
  }
  Film film = talkedAbout(filmType::feature, 100);
  film.weekReleased = 32;
  bid("a week too early", film, ofNothing);
  for (const double budget : {0.0, 4e6, 4e9}) {
    film = talkedAbout(filmType::feature, 100);
    film.budget = budget;
    bid(std::format("budget {}", budget), film,
        [](WorldState& world) { world.saveAllBoxOfficeList.push_back({.filmId = 7, .totalGross = 8e9}); });
  }
  for (const bool sold : {false, true}) {
    bid(sold ? "sold" : "with a bid", talkedAbout(filmType::feature, 100), [&](WorldState& world) {
      world.saveAllSyndication = {{.filmId = 7,
                                   .networkNames = {"Fulu"},
                                   .networkOffers = {1},
                                   .networkYears = {1},
                                   .didAcceptOffer = sold}};
    });
  }
}

// A title with three bids, the first four weeks ago.
Syndication withBids() {
  return {.filmId = 7,
          .filmName = "Salt Road",
          .filmReleased = 71,
          .networkNames = {"Fulu", "Metflix", "Bisney"},
          .networkOffers = {100'000, 300'000, 200'000},
          .networkYears = {1, 3, 2},
          .networkImages = {"a", "b", "c"},
          .weekOfFirstOffer = 100,
          .payment = 10'000,
          .residualRate = 0.05};
}

void prepareDeal(WorldState& world, const Syndication& title) {
  world.yearNumber = 2031;
  world.weekNumberForTracking = 104;
  world.agentCommission = 0.1;
  world.saveAllTalentAgents = {{.id = 5, .isSigned = 1}};
  world.saveAllFilmList = {
      {.filmId = 7, .title = "Salt Road", .yearReleased = 2029, .currentPopularity = 40}};
  world.saveAllSyndication = {title};
}

TEST(GoldenFilm, DealsFromStartToEnd) {
  Sheet sheet("film_deals");
  const auto live = [&](const std::string& what, const Syndication& title, const Sheet::Prepare& prepare,
                        std::uint64_t seed = 1) {
    sheet.changes(
        what,
        [&](WorldState& world) {
          prepareDeal(world, title);
          prepare(world);
        },
        [](Game& game) { advanceSyndicationDeals(game); }, seed);
  };
  for (const std::uint64_t seed : {1, 2, 3, 4})
    live(std::format("struck, seed {}", seed), withBids(), ofNothing, seed);
  live("a week too early", withBids(), [](WorldState& world) { world.weekNumberForTracking = 103; });
  Syndication one = withBids();
  one.networkOffers = {1};
  live("one bid", one, ofNothing);
  for (const auto& [year, popularity] :
       {std::pair{2031, 40.0}, {2030, 40.0}, {2027, 94.0}, {2027, 95.0}, {2026, 40.0}}) {
    live(std::format("a title of {} at {}", year, popularity), withBids(), [&](WorldState& world) {
      world.saveAllFilmList.edit(0).yearReleased = year;
      world.saveAllFilmList.edit(0).currentPopularity = popularity;
    });
  }
  for (const std::int64_t part : {rolePart::principal, rolePart::ownProduction}) {
    live(std::format("with stakes, part {}", part), withBids(), [&](WorldState& world) {
      world.saveAllFilmList.edit(0).isPrincipal = part;
      world.saveAllFilmList.edit(0).equityPercentage = 5;
      world.saveAllFilmList.edit(0).royaltyRate = 2;
    });
  }
  Syndication running = withBids();
  running.didAcceptOffer = true;
  running.networkIndexWon = 0;
  running.weekStarted = 60;
  for (const std::int64_t left : {0, 1, 11, 12, 13, 24}) {
    running.weeksRemaining = left;
    live(std::format("{} weeks left", left), running, ofNothing);
  }
  running.weeksRemaining = 24;
  for (const std::int64_t source : {0, 5}) {
    running.sourceId = source;
    for (const double dues : {0.0, 749'999.0, 750'000.0}) {
      live(std::format("dues paid {} source {}", dues, source), running,
           [&](WorldState& world) { world.workDuesPaidSAG = dues; });
    }
  }
  for (const std::int64_t age : {30, 52, 53, 103, 104, 11 * 52}) {
    running.filmReleased = 104 - age;
    live(std::format("{} weeks after the release", age), running, ofNothing);
  }
  running.residualRate = 0;
  live("no residual", running, ofNothing);
  for (const std::int64_t hours : {99'999, 100'000, 400'000}) {
    for (const std::int64_t started : {104, 103, 70}) {
      running.weekStarted = started;
      live(std::format("{} hours, started in {}", hours, started), running, [&](WorldState& world) {
        world.saveAllRatings = {{.filmId = 7, .hoursWatched = {hours}, .weeksTracked = {50}}};
      });
    }
  }
}

TEST(GoldenFilm, FilmRecordOfAProject) {
  Sheet sheet("film_records");
  for (std::int64_t type = filmType::feature; type <= filmType::shortFilm; ++type) {
    for (const auto& [season, parent] : {std::pair{2, 1}, {1, 1}, {2, 0}}) {
      Audition project;
      test::Unusual().fill(project);
      project.typeOfFilm = type;
      project.seasonNumber = season;
      project.parentSeriesFilmId = parent;
      sheet.text(
          std::format("type {} season {} of {}", type, season, parent),
          [](WorldState& world) {
            world.myName = "Ada Quinn";
            world.saveAllFilmList = {{.filmId = 1}};
          },
          [&](Game& game) {
            addFilm(game, project);
            Film film = game.world.saveAllFilmList.front();
            std::string text = test::shown(film) + "\n  cast";
            for (const std::int64_t part : {rolePart::background, rolePart::principal}) {
              film.isPrincipal = part;
              film.didAct = 1;
              text += " (" + joinedCast(film) + ")";
            }
            film.didAct = 0;
            return text + " (" + joinedCast(film) + ")";
          },
          static_cast<std::uint64_t>(type + season));
    }
  }
}

TEST(GoldenFilm, InterviewsByTheNumberOfFans) {
  Sheet sheet("film_interviews");
  for (const std::int64_t fans :
       {0LL, 999LL, 1'000LL, 9'999LL, 10'000LL, 99'999LL, 100'000LL, 999'999LL, 1'000'000LL, 9'999'999LL,
        10'000'000LL, 99'999'999LL, 100'000'000LL, 9'999'999'999LL, 10'000'000'000LL}) {
    sheet.changes(
        std::format("{} fans", fans),
        [&](WorldState& world) {
          test::addReleased(world, projectOf(filmType::feature));
          world.totalFans = fans;
        },
        [&](Game& game) {
          const Interview interview = openInterview(game, projectOf(filmType::feature));
          sheet.line(interview.talkShow + " | " + interview.question);
          EXPECT_TRUE(promoteFilm(game, 7, interview, " \n "));
          EXPECT_FALSE(promoteFilm(game, 7, interview, "  Because.  "));
          EXPECT_TRUE(promoteFilm(game, 7, interview, "Again."));
        });
  }
}

Film reviewed(const std::string& title, double rating, std::int64_t metascore, std::int64_t ratings) {
  return {.title = title,
          .genres = {"Sci-Fi"},
          .directorName = "Mina Falk",
          .weekReleased = 10,
          .imbdRating = rating,
          .numImbdRatings = ratings,
          .imbdMetascore = metascore,
          .numMetascoreRatings = 12};
}

TEST(GoldenFilm, BananasByLetterBadgeAndPercent) {
  Sheet sheet("film_bananas");
  for (const std::string title : {"9 Lives", " Apple", "Élan", "", "Apple"}) {
    sheet.line(std::format("'{}' {} {}", title, criticNudge(title), audienceNudge(title)));
  }
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const std::string title(1, letter);
    sheet.line(std::format("{} {} {}", title, criticNudge(title), audienceNudge(title)));
  }
  for (const auto& [title, rating, metascore, ratings] : {std::tuple{"7", 9.0, 75, 500},
                                                          {"7", 9.0, 75, 499},
                                                          {"7", 8.99, 75, 80},
                                                          {"7", 9.0, 75, 79},
                                                          {"7", 6.0, 74, 900},
                                                          {"7", 5.99, 60, 900},
                                                          {"7", 5.99, 59, 900},
                                                          {"Oats", 7.0, 56, 900},
                                                          {"Zoo", 7.0, 100, 10'000},
                                                          {"Paper", 9.5, 100, 10'001}}) {
    const Film film = reviewed(title, rating, metascore, ratings);
    const BananaScores scores = bananaScores(film);
    sheet.line(std::format("{} {} {} {}: {}% {} {}, {}% {} {}", title, rating, metascore, ratings,
                           wholePercent(scores.critic), scores.criticBadge, criticCount({}, film),
                           wholePercent(scores.audience), scores.audienceBadge, audienceCount({}, film)));
  }
  const Film film = reviewed("Zoo", 7, 50, 900);
  const auto today = [](WorldState& world) {
    world.weekNumberForTracking = 12;
    world.weekNumber = 2;
    world.yearNumber = 2027;
  };
  for (const double percent : {0.0, 19.9, 20.0, 20.9, 21.0, 39.9, 40.0, 59.9, 60.0, 74.9, 75.0, 80.0, 89.9,
                               90.0, 100.9, 101.0, 118.0}) {
    sheet.text(std::format("at {}%", percent), today, [&](Game& game) {
      std::string text = drawConsensus(game, film, percent);
      for (const Review& card : drawCriticCards(game, film, percent)) {
        text += std::format("\n  critic {} {} {} {:.3f} {} {} | {}", card.image, card.name, card.newsOutlet,
                            card.stars, card.date.month, card.date.dayAndYear, startOf(card.review));
      }
      for (const AudienceReview& card : drawAudienceCards(game, film, percent)) {
        text += std::format("\n  audience {} {} {} {} | {}", card.name, card.stars, card.date.month,
                            card.date.dayAndYear, startOf(card.review));
      }
      return text;
    });
  }
}

TEST(GoldenFilm, UserReviewsAndReleaseCardsByScore) {
  Sheet sheet("film_audience");
  for (const double rating : {1.0, 2.0, 3.4, 5.5, 7.9, 9.9, 10.0}) {
    for (const std::int64_t ratings : {0, 1, 7, 20, 4'999}) {
      Film film = reviewed("Salt Road", rating, static_cast<std::int64_t>(rating * 10), ratings);
      sheet.text(std::format("rated {} by {}", rating, ratings), ofNothing, [&](Game& game) {
        const StarHistogram stars = starHistogram(film);
        std::string text = std::format("shown {} of", shownRatings(film));
        for (const std::int64_t count : stars) text += std::format(" {}", count);
        if (ratings == 0) return text;
        for (const Reviews& review : drawUserReviews(game, film, stars)) {
          text += std::format("\n  {} {} {} | {}", review.username, review.rating, review.snippet,
                              startOf(review.review));
        }
        return text;
      });
    }
  }
  for (const auto& [rating, metascore] :
       {std::pair{1.0, 20}, {1.99, 20}, {2.0, 20}, {4.0, 40}, {6.0, 60}, {8.0, 80}, {10.0, 100}}) {
    sheet.text(
        std::format("a card at {} and {}", rating, metascore),
        [&](WorldState& world) {
          world.weekNumberForTracking = 20;
          for (const std::int64_t week : {18, 19, 20}) {
            for (const std::int64_t type : {filmType::feature, filmType::series, filmType::commercial}) {
              Film film = reviewed(std::format("Out in {}", week), rating, metascore, 5);
              film.typeOfFilm = type;
              film.weekReleased = week;
              world.saveAllFilmList.push_back(film);
            }
          }
        },
        [](Game& game) {
          writeReleaseReviews(game);
          std::string text;
          for (const MetReview& card : game.world.newReleaseReviews) {
            text += std::format("\n  {} {} {} {} {} {} {} | {}", card.filmTitle, card.filmType, card.score,
                                card.season, card.starString, card.reviewerName, card.reviewerCompany,
                                startOf(card.reviewString));
          }
          return text;
        });
  }
}

TEST(GoldenFilm, TablesOfTheBoxOffice) {
  Sheet sheet("film_tables");
  WorldState world;
  world.weekNumberForTracking = 20;
  for (std::int64_t id = 1; id <= 6; ++id) {
    const double opening = id == 5 ? 50'000'000 : 49'999'995.0 + static_cast<double>(id);
    world.saveAllFilmList.push_front({.filmId = id,
                                      .typeOfFilm = filmType::feature,
                                      .title = id < 3 ? "Twice" : std::format("Film {}", id),
                                      .yearReleased = 2030,
                                      .weekReleased = 10 + id,
                                      .budget = 1e6});
    world.saveAllBoxOfficeList.push_back({.filmId = id,
                                          .countryId = 0,
                                          .openingWeekend = opening,
                                          .totalGross = 1e9 + static_cast<double>(id),
                                          .boxOfficeWeeklyEarnings = {3e6, 1e6}});
    world.saveAllBoxOfficeList.push_back(
        {.filmId = id, .countryId = 3, .openingWeekend = 7, .totalGross = 7});
  }
  for (const InTheaters& row : inTheaters(world)) {
    sheet.line(
        std::format("in theaters {} {} {} {}", row.filmId, row.title, row.weekendEarnings, row.totalGross));
  }
  const auto write = [&](const char* list, const BoxOfficeWeekends& row) {
    sheet.line(std::format("{} {} {} {} {} {} {}", list, row.filmId, row.title, row.yearReleased,
                           row.weekendEarnings, row.totalGross, row.domesticGross));
  };
  for (const BoxOfficeWeekends& row : filmsByGross(world)) write("by gross", row);
  for (const BoxOfficeWeekends& row : highestGrossing(world)) write("of all time", row);
  for (const double rating : {8.0, 8.01, 9.5, 9.65}) {
    world.saveAllFilmList.push_back({.filmId = static_cast<std::int64_t>(rating * 100),
                                     .typeOfFilm = filmType::series,
                                     .title = "Ours",
                                     .imbdRating = rating});
  }
  const TopTitles lists = topTitles(world);
  for (const std::int64_t id : {1, 3, 6, 800, 801, 950, 965, 99}) {
    const auto place = placeOf(lists, id);
    sheet.line(std::format("place of {}: {}", id, place ? std::to_string(*place) : "none"));
  }
  for (const double takings : weeklyTakings(world, 2)) sheet.line(std::format("takings {}", takings));
  sheet.line(std::format("return {} {}", returnOf(160, 1'000), returnOf(5, 0)));
}

}  // namespace
}  // namespace tb
