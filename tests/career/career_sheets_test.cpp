// Golden sheets of casting, auditions, renewals and preparation over many seeds.

#include <format>
#include <gtest/gtest.h>

#include "career/audition_week.h"
#include "career/boosts.h"
#include "career/bribe.h"
#include "career/casting_board.h"
#include "career/casting_terms.h"
#include "career/classes.h"
#include "career/colleagues.h"
#include "career/job_board.h"
#include "career/job_contract.h"
#include "career/preparation.h"
#include "career/renewals.h"
#include "career/royalty_stake.h"
#include "career/schedule.h"
#include "career/submission.h"
#include "career/traits.h"
#include "career/withdrawal.h"
#include "core/talent_scores.h"
#include "film/catalogue.h"
#include "tests/core/unusual_values.h"
#include "tests/record_text.h"
#include "tests/sheet.h"

namespace tb {
namespace {

using test::Sheet;

std::string wordsOf(const CastingListing& listing) {
  return std::format("{} {} part {} union {} budget {} pay {} buyout {} residual {:.4f} episodes {}",
                     listing.filmId, listing.role, listing.isPrincipal, listing.isUnion, listing.budget,
                     listing.payment, listing.buyout, listing.residual, listing.numberOfEpisodesActed);
}

TEST(GoldenCareer, TermsByTypePartAndGuild) {
  Sheet sheet("career_terms");
  Movie movie;
  for (movie.type = filmType::feature; movie.type <= filmType::shortFilm; movie.type += 1) {
    for (const std::int64_t part : {0, 1}) {
      for (const std::int64_t isUnion : {0, 1}) {
        for (std::uint64_t seed = 1; seed <= 6; ++seed) {
          sheet.text(
              std::format("type {} seed {}", movie.type, seed),
              [](WorldState& world) { world.agentResidualBonus = 0.01; },
              [&](Game& game) {
                CastingListing listing{
                    .movie = &movie, .role = "drawn", .isPrincipal = part, .isUnion = isUnion};
                drawTerms(game, listing, drawTvRole(game));
                return wordsOf(listing);
              },
              seed);
        }
      }
    }
  }
}

TEST(GoldenCareer, CastingAndJobBoards) {
  Sheet sheet("career_boards");
  for (std::uint64_t seed = 1; seed <= 8; ++seed) {
    sheet.text(
        std::format("board {}", seed),
        [&](WorldState& world) {
          world.filmId = 40;
          world.weekNumberForTracking = 100;
          world.isSAG = seed % 2 == 0 ? 1 : 0;
          world.isMale = seed % 3 == 0;
        },
        [](Game& game) {
          std::string text;
          for (const CastingListing& listing : openCastingNetwork(game)) {
            text += std::format("\n  {}: {}, {} by {} {}, weeks {} {}", listing.movie->title,
                                wordsOf(listing), listing.characterName, listing.directorName,
                                listing.directorRating, listing.weekAudition, listing.weekToWork);
          }
          for (const JobOffer& offer : openJobBoard(game)) {
            text += std::format("\n  {} {} {} {}", offer.job.jobTitle, offer.job.energyCost, offer.job.jobPay,
                                offer.contractWeeks);
          }
          return text + std::format("\n  next {}", game.world.filmId);
        },
        seed);
  }
}

TEST(GoldenCareer, ColleaguesByTheTalentOfThePerformer) {
  Sheet sheet("career_colleagues");
  for (const std::int64_t points : {1, 20, 80}) {
    sheet.text(
        std::format("talent {}", points),
        [&](WorldState& world) {
          for (const Trait& trait : traits) world.*trait.points = points;
        },
        [](Game& game) {
          std::string text;
          for (int draw = 0; draw < 60; ++draw) {
            text += std::format(" {}/{}/{}/{}", drawDirectorRating(game), drawDirectorForm(game),
                                drawWriterRating(game), drawHypeRating(game, drawDirectorForm(game)));
          }
          return text;
        });
  }
}

CastingListing listingOf(const Movie& movie) {
  return {.filmId = 7,
          .movie = &movie,
          .role = "Recurring",
          .isPrincipal = 1,
          .isUnion = 1,
          .payment = 1482,
          .budget = 300'000,
          .weekAudition = 5,
          .weekToWork = 20,
          .residual = 0.01,
          .numberOfEpisodesActed = 4,
          .directorRating = 6,
          .directorName = "Abbas Abbott",
          .characterName = "{title} Vale"};
}

TEST(GoldenCareer, SubmissionsAndTheirDifficulty) {
  Sheet sheet("career_submissions");
  Movie movie = {.title = "Neon Horizon",
                 .shortSummary = "A courier.",
                 .genre = {"Sci-Fi", "Thriller"},
                 .longSummaryTemplate = "{name} runs.",
                 .imageString = "neonHorizon.png"};
  for (movie.type = filmType::feature; movie.type <= filmType::shortFilm; movie.type += 1) {
    for (const std::int64_t energy : {19, 20}) {
      sheet.action(
          std::format("type {} energy {}", movie.type, energy),
          [&](WorldState& world) {
            world.isSAG = 1;
            world.filmId = movie.type == filmType::feature ? 9 : 3;
            world.weekNumber = 21;
            world.yearNumber = 2030;
            world.experience = 100;
            world.totalEnergyAvailable = energy;
          },
          [&](Game& game) { return submitToCastingListing(game, listingOf(movie)); });
    }
    for (const std::int64_t part : {0, 1, 2}) {
      for (const std::int64_t isUnion : {0, 1}) {
        for (const auto& [pay, budget, episodes] :
             {std::tuple{999.9, 99'999.0, 1}, {1'999.0, 250'000.0, 4}, {5e6, 3e9, 5}}) {
          const Audition project{.typeOfFilm = movie.type,
                                 .isPrincipal = part,
                                 .isUnion = isUnion,
                                 .numberOfEpisodesActed = episodes,
                                 .payment = pay,
                                 .residual = 0.015,
                                 .budget = budget};
          sheet.line(std::format("{} {} {} {}: {} for a stranger, {} for a member", movie.type, part, isUnion,
                                 pay, auditionDifficulty(project, false), auditionDifficulty(project, true)));
        }
      }
    }
  }
}

TEST(GoldenCareer, RefusalsOfSubmissionsAndJobs) {
  Sheet sheet("career_refusals");
  const Movie movie = {.title = "Neon Horizon", .type = filmType::series};
  for (const auto& [isSAG, isUnion, sent] : {std::tuple{0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {1, 0, 1}}) {
    sheet.action(
        std::format("member {}, union {}, sent {}", isSAG, isUnion, sent),
        [&](WorldState& world) {
          world.isSAG = isSAG;
          world.totalEnergyAvailable = 19;
          if (sent == 1) world.saveAllAuditionList.push_back({.filmId = 7});
        },
        [&](Game& game) {
          return submitToCastingListing(game, {.filmId = 7, .movie = &movie, .isUnion = isUnion});
        });
  }
  for (const std::int64_t weeksLeft : {0, 1, 4}) {
    sheet.action(
        std::format("a job with {} weeks of another left", weeksLeft),
        [&](WorldState& world) {
          world.totalEnergyAvailable = 0;  // is not checked
          world.weeklyJobTitle = "Script Reader";
          world.weeklyJobContractRemaining = weeksLeft;
        },
        [](Game& game) {
          const Refusal refusal =
              acceptJob(game, {{.jobTitle = "Set Runner", .energyCost = 20, .jobPay = 410}, 5});
          advanceJobContract(game);
          return refusal;
        });
  }
}

// A project in the week of its audition and wrap. Its ratings are such that draws both succeed and fail.
Audition atStage(std::int64_t stage) {
  return {.filmId = 1,
          .typeOfFilm = filmType::shortFilm,
          .isPrincipal = 1,
          .title = "Saltwater",
          .weekAudition = stage == funnel::submitted ? 14 : 10,
          .weekToWork = stage == funnel::booked ? 10 : 20,
          .weekReleased = 30,
          .sourceId = 77,
          .funnelStage = stage,
          .rehearsalRating = 3.9,
          .auditionDifficulty = 3.9,
          .equityPercentage = 35};
}

void prepareAuditions(WorldState& world, const Audition& project, std::int64_t isSAG) {
  world.weekNumberForTracking = 10;
  world.isSAG = isSAG;
  world.showreelScore = 3;
  world.fanGainCarry = 100;
  world.saveAllAuditionList = {project};
  world.saveAllTalentAgents = {{.id = 5}, {.id = 77, .isSigned = 1}};
}

TEST(GoldenCareer, AWeekOfAuditions) {
  Sheet sheet("career_auditions");
  const auto live = [&](const std::string& what, const Audition& project, std::int64_t isSAG,
                        std::uint64_t seed) {
    sheet.changes(
        std::format("{}, member {}, seed {}", what, isSAG, seed),
        [&](WorldState& world) { prepareAuditions(world, project, isSAG); },
        [](Game& game) { resolveAuditionsForWeek(game); }, seed);
  };
  for (const std::int64_t stage : {funnel::submitted, funnel::invited}) {
    for (const std::int64_t isSAG : {0, 1}) {
      for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        live(std::format("stage {}", stage), atStage(stage), isSAG, seed);
      }
    }
  }
  for (std::uint64_t seed = 1; seed <= 6; ++seed) {
    for (const std::int64_t bribe : {50, 51}) {
      Audition project = atStage(funnel::submitted);
      project.didBribe = bribe;
      live(std::format("bribed with {}", bribe), project, 1, seed);
    }
    Audition project = atStage(funnel::submitted);
    project.isPrincipal = rolePart::background;
    live("background", project, 0, seed);
  }
  for (const std::int64_t stage : {funnel::submitted, funnel::invited, funnel::booked}) {
    for (std::int64_t type = filmType::feature; type <= filmType::shortFilm; ++type) {
      for (const auto& [part, didAct] : {std::pair{1, 1}, {1, 0}, {2, 0}}) {
        Audition project = atStage(stage);
        project.typeOfFilm = type;
        project.isPrincipal = part;
        project.didAct = didAct;
        project.seasonNumber = type == filmType::series ? 2 : -1;
        live(std::format("stage {} type {} part {} acts {}", stage, type, part, didAct), project, 1, 3);
      }
    }
    for (const std::int64_t late : {-1, 1}) {
      Audition project = atStage(stage);
      project.weekAudition = 10 + late;
      project.weekToWork = 10 + late;
      project.sourceId = 0;
      live(std::format("stage {} in {} week", stage, late), project, 1, 3);
    }
  }
}

TEST(GoldenCareer, VerdictsOnSeriesAndSagas) {
  Sheet sheet("career_renewals");
  const MovieFranchise& first = movieFranchises()[0];
  const auto judge = [&](const std::string& what, const Audition& project, double rating,
                         std::int64_t metascore, std::uint64_t seed) {
    sheet.changes(
        std::format("{} at {} and {}, seed {}", what, rating, metascore, seed),
        [&](WorldState& world) {
          world.weekNumberForTracking = 61;
          world.weekNumber = 9;
          world.yearNumber = 2027;
          world.filmId = 500;
          world.saveAllAuditionList = {project};
          world.saveAllFilmList = {{.filmId = 7, .imbdRating = rating, .imbdMetascore = metascore}};
        },
        [](Game& game) {
          renewSeries(game);
          renewSaga(game);
        },
        seed);
  };
  Audition series;
  test::Unusual().fill(series);
  series.filmId = 7;
  series.title = "Saltwater";
  series.typeOfFilm = filmType::series;
  series.isPrincipal = rolePart::principal;
  series.isContinued = 0;
  series.seasonNumber = 1;
  series.parentSeriesFilmId = series.franchise = series.franchiseId = -1;
  series.numberOfEpisodesTotal = 9;
  series.weekReleased = 50;
  series.budget = 400'000;
  series.funnelStage = funnel::wrapped;
  for (std::uint64_t seed = 1; seed <= 12; ++seed) judge("a series", series, 8, 60, seed);
  for (const double rating : {4.0, 4.005, 4.1, 5.0, 5.015, 5.02, 8.0, 8.001, 8.01, 8.02, 8.03, 300.0}) {
    for (const std::int64_t metascore : {19, 29, 60, 90, 100})
      judge("a series", series, rating, metascore, 4);
  }
  const auto changed = [&](const std::string& what, auto change) {
    Audition project = series;
    change(project);
    judge(what, project, 11.9, 60, 4);
  };
  changed("a week too early", [](Audition& a) { a.weekReleased = 51; });
  changed("not wrapped", [](Audition& a) { a.funnelStage = funnel::booked; });
  changed("background", [](Audition& a) { a.isPrincipal = 0; });
  changed("without a film", [](Audition& a) { a.filmId = 8; });
  changed("decided", [](Audition& a) { a.isContinued = 1; });
  changed("a student film", [](Audition& a) { a.typeOfFilm = filmType::studentFilm; });
  changed("a film alone", [](Audition& a) { a.typeOfFilm = filmType::feature; });
  changed("a second season", [](Audition& a) {
    a.parentSeriesFilmId = 3;
    a.seasonNumber = 2;
    a.royalty = 0;
    a.budget = 2.9e9;
  });
  for (const std::int64_t entry : {first.movieNumber, std::int64_t{99}}) {
    changed(std::format("entry {} of a saga", entry), [&](Audition& a) {
      a.typeOfFilm = filmType::feature;
      a.numberOfEpisodesActed = 0;
      a.franchise = entry;
      a.franchiseId = first.id;
    });
  }
}

TEST(GoldenCareer, BoostsBribesAndWithdrawals) {
  Sheet sheet("career_choices");
  const auto offered = [&](const std::string& what, const Audition& project) {
    WorldState world;
    world.weekNumberForTracking = 10;
    const auto boost = boostOf(world, project);
    sheet.line(std::format(
        "{}: {}, bribe {}, withdrawal {}", what,
        boost ? std::format("kind {} for {}", static_cast<int>(boost->kind), boost->energyPrice) : "none",
        isBribeOffered(project), isWithdrawalOffered(project)));
  };
  for (std::int64_t stage = funnel::closed; stage <= funnel::wrapped; ++stage) {
    for (const std::int64_t week : {9, 10, 11}) {
      for (const std::int64_t bought : {0, 1, 8, 9}) {
        offered(std::format("stage {} week {} bought {}", stage, week, bought),
                {.isPrincipal = 1,
                 .weekAudition = week,
                 .weekToWork = week,
                 .weekReleased = week,
                 .funnelStage = stage,
                 .rehearsalBoostCount = bought,
                 .performanceBoostCount = bought,
                 .promoteHypeCount = bought / 9});
      }
    }
    for (const double rating : {99.9, 100.0}) {
      offered(std::format("stage {} rated {}", stage, rating), {.weekAudition = 10,
                                                                .weekToWork = 10,
                                                                .funnelStage = stage,
                                                                .rehearsalRating = rating,
                                                                .performanceRating = rating});
    }
  }
  for (std::int64_t type = filmType::feature; type <= filmType::shortFilm; ++type) {
    for (const std::int64_t part : {0, 1, 2}) {
      offered(std::format("wrapped, type {} part {}", type, part),
              {.typeOfFilm = type, .isPrincipal = part, .weekReleased = 20, .funnelStage = funnel::wrapped});
    }
  }
  const auto prepare = [](std::int64_t stage, std::int64_t energy) {
    return [=](WorldState& world) {
      world.weekNumberForTracking = 10;
      world.totalEnergyAvailable = energy;
      world.totalCashAvailable = 999;
      world.totalFans = 1'099;
      world.saveAllAuditionList = {{.filmId = 2,
                                    .isPrincipal = 1,
                                    .title = "Saltwater",
                                    .weekAudition = 12,
                                    .weekToWork = 12,
                                    .weekReleased = 12,
                                    .funnelStage = stage}};
    };
  };
  for (std::int64_t stage = funnel::submitted; stage <= funnel::wrapped; ++stage) {
    for (const std::int64_t energy : {3, 4, 16, 17, 24, 25}) {
      sheet.action(std::format("a boost at stage {} with {}", stage, energy), prepare(stage, energy),
                   [](Game& game) { return buyBoost(game, 2); });
    }
    sheet.changes(std::format("withdrawn at stage {}", stage), prepare(stage, 0),
                  [](Game& game) { withdrawFromRole(game, 2); });
  }
  for (std::uint64_t seed = 1; seed <= 8; ++seed) {
    sheet.changes(
        std::format("bribe {}", seed), prepare(funnel::submitted, 0),
        [&](Game& game) {
          for (int attempt = 0; attempt < 2; ++attempt)
            sheet.line(bribeCastingDirector(game, 2).value_or(Notice{}).message);
        },
        seed);
  }
}

TEST(GoldenCareer, StakeNegotiations) {
  Sheet sheet("career_stakes");
  const auto prepare = [](std::int64_t energy, double royaltyBonus, std::int64_t isSigned) {
    return [=](WorldState& world) {
      world.isSAG = 1;
      world.filmId = 40;
      world.weekNumberForTracking = 20;
      world.totalEnergyAvailable = energy;
      world.saveAllTalentAgents = {{.id = 4, .royaltyBonus = 1.8},
                                   {.id = 5,
                                    .agency = "Northlight",
                                    .royaltyBonus = royaltyBonus,
                                    .negotiationBonus = 6,
                                    .isSigned = isSigned}};
      world.saveAllEmailList = {{.id = 76, .typeOfDeal = deal::royalty}, {.id = 77}};
    };
  };
  for (const auto& [mail, isSigned] : {std::pair{78, 1}, {77, 0}, {77, 1}}) {
    sheet.text(std::format("e-mail {}, agent {}", mail, isSigned), prepare(25, 1.25, isSigned),
               [&](Game& game) {
                 drawStakeOffer(game, mail);
                 return stakeOffer(game.world, mail) != nullptr ? "an offer" : "none";
               });
  }
  for (std::uint64_t seed = 1; seed <= 6; ++seed) {
    for (const std::int64_t steps : {0, 4, 10}) {
      sheet.changes(
          std::format("{} steps, seed {}", steps, seed),
          prepare(seed == 6 ? 24 : 25, seed == 5 ? 0.25 : 1.25, 1),
          [&](Game& game) {
            drawStakeOffer(game, 77);
            const Audition* const offer = stakeOffer(game.world, 77);
            sheet.line(std::format("asked {:.3f} at {} + {}", percentAsked(*offer, steps),
                                   chanceOfNegotiation(steps), negotiationBonus(game.world)));
            const StakeAnswer answer = negotiateStake(game, 77, steps);
            sheet.line(answer.notice.title + answer.notice.message + (answer.isFinal ? " final" : ""));
          },
          seed);
    }
  }
}

TEST(GoldenCareer, TalentClassesAndTheirPrices) {
  Sheet sheet("career_talent");
  for (const auto& points : {std::array{1, 1, 1, 1, 1},
                             {40, 30, 20, 10, 60},
                             {50, 50, 50, 2, 50},
                             {120, 120, 120, 120, 120},
                             {9, 9, 9, 9, 0}}) {
    for (const double experience : {0.0, 100.0, 500.0}) {
      sheet.text(
          std::format("traits {} {} experience {}", points[0], points[4], experience),
          [&](WorldState& world) {
            for (std::size_t index = 0; index < traits.size(); ++index)
              world.*traits[index].points = points[index];
            world.talentTrait6 = 900;
            world.experience = experience;
          },
          [](Game& game) {
            return std::format("level {} talent {:.2f} performance {:.2f} scene {:.2f} rehearsal {:.2f}",
                               overallTalent(game.world), talentRoll(game), performanceRoll(game, 22.5),
                               sceneRoll(game, 22.5), drawRehearsalRating(game));
          });
    }
  }
  for (const std::size_t taken : {0, 17, 18, 27, 28, 38, 39, 46, 47}) {
    sheet.text(
        std::format("{} classes", taken),
        [&](WorldState& world) {
          for (std::size_t index = 0; index < taken; ++index) {
            world.saveAllCompletedClasses.push_back({.classId = julliardClasses[index].id});
          }
        },
        [](Game& game) {
          std::string text =
              std::format("tier {} done {:.3f}", classTier(game.world), completionPercentage(game.world));
          for (const ClassOption& option : openClasses(game)) {
            text += std::format(", {} {} weeks {} {}", option.offered->title, option.weeks, option.cost,
                                option.energyCost);
          }
          return text;
        },
        taken + 1);
  }
  for (int trait = 1; trait <= 5; ++trait) {
    for (const std::int64_t energy : {1, 2, 3, 4, 130}) {
      sheet.action(
          std::format("trait {} with {}", trait, energy),
          [&](WorldState& world) {
            world.totalEnergyAvailable = energy;
            world.talentTrait3 = 100;
            world.talentTraitCost4 = 130;  // above the highest value
          },
          [&](Game& game) { return buyTrait(game, trait); }, static_cast<std::uint64_t>(energy));
    }
  }
  for (const std::int64_t year : {1, 29, 30, 52}) {
    WorldState world;
    world.weekNumber = 30;
    world.yearNumber = 2028;
    sheet.line(std::format("work in week {}: {}", year, yearOfWork(world, 52 * 3 + year)));
  }
}

}  // namespace
}  // namespace tb
