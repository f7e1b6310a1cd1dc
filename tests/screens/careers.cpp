#include "tests/screens/careers.h"

#include <algorithm>
#include <cmath>
#include <format>

#include "career/class_table.h"
#include "core/calendar.h"
#include "core/weekly_option.h"
#include "core/welcome_mail.h"
#include "film/awards.h"
#include "film/markets.h"
#include "film/networks.h"
#include "tests/journeys/device.h"

namespace tb::test {

namespace {

constexpr std::int64_t commission = 10;  // percent

// Builds a career. A title's figures are derived from its id, so that titles differ.
class Career {
 public:
  Career(WorldState& world, std::int64_t week) : world_(world) {
    world.myName = "Ada Quinn";
    world.aboutDescription = "Two left feet, one good side.";
    world.isMale = false;
    world.birthYear = 2005;
    world.weekNumberForTracking = week;
    world.weekNumber = (week - 1) % weeksPerYear + 1;
    world.yearNumber = yearOf(week);
    world.ageCount = world.yearNumber - world.birthYear - 3;
    world.filmId = 500;
    world.chirpId = 40;
    for (std::int64_t entry = 0; entry < std::min<std::int64_t>(week, 48); ++entry) {
      const double wave = std::sin(static_cast<double>(entry));
      world.trackRealEstateIndex.push_back(1 + wave / 8);
      world.saveWeeklyEarnings.push_back(std::round(static_cast<double>(week) * (40 + 90 * wave)));
      world.activityTracker.push_back(std::format("Line {} of the log", entry));
      if (entry < 36) world.trackFans.push_back((entry + 1) * week * 11);
    }
    world.activityTracker.push_front("DECEMBER 25, 2026");
    world.totalFans = week * 1'234;
  }

  // A project that is released in `ahead` weeks (negative: was released).
  Audition project(std::int64_t type, std::int64_t stage, std::int64_t ahead) {
    next_ += 1;
    constexpr std::array names = {"Feature", "Series", "Commercial", "Student Film", "Short Film"};
    Audition work = bookedLead(next_, type, std::format("{} {}", names[index(type)], next_));
    work.imageString = std::format("poster_{}.png", next_);
    work.description = std::format("What {} is about.", work.title);
    work.roleDescription = std::format("June Abara has her reasons in {}.", work.title);
    work.genres =
        next_ % 2 == 0 ? std::vector<std::string>{"Drama"} : std::vector<std::string>{"Western", "Comedy"};
    work.role = next_ % 3 == 0 ? "Support" : "Lead";
    work.isUnion = world_.isSAG;
    work.source = "The Backstage";
    work.writerName = "Noor Hale";
    work.funnelStage = stage;
    work.weekReleased = world_.weekNumberForTracking + ahead;
    work.weekToWork = work.weekReleased - 10;
    work.weekAudition = work.weekToWork - 4;
    work.weekSubmitted = work.weekAudition - 3;
    work.submittedYear = yearOf(work.weekSubmitted);
    work.residual = 0.015;
    work.payment = 1'000 + 370 * amount(7);
    work.budget = 1e6 * amount(11);
    work.rehearsalRating = amount(13);
    work.performanceRating = amount(17);
    work.hypeRating = amount(19);
    if (type == filmType::commercial) {
      work.royalty = 0;
      work.buyout = 420;
    }
    return work;
  }
  void add(const Audition& project) { world_.saveAllAuditionList.push_back(project); }

  // Adds a wrapped project with its film and pay and, if released, its scores and box office.
  void addWrapped(const Audition& project) {
    add(project);
    Film film{.filmId = project.filmId,
              .imageString = project.imageString,
              .typeOfFilm = project.typeOfFilm,
              .role = project.role,
              .isPrincipal = project.isPrincipal,
              .title = project.title,
              .movieDescription = project.description,
              .cast = {world_.myName},
              .genres = project.genres,
              .characterName = project.characterName,
              .ageRating = "PG-13",
              .lengthMinutes = 80 + figure(23),
              .numberOfEpisodes = project.numberOfEpisodesActed,
              .parentSeriesId = project.parentSeriesFilmId,
              .directorName = project.directorName,
              .writerName = project.writerName,
              .yearReleased = yearOf(project.weekToWork),
              .weekReleased = project.weekReleased,
              .budget = project.budget,
              .currentPopularity = project.hypeRating,
              .lastWeekPopularity = project.hypeRating,
              .payment = project.payment,
              .residualRate = project.residual,
              .royaltyRate = project.royalty,
              .sourceId = project.sourceId,
              .parentId = project.parentSeriesFilmId,
              .seasonNumber = project.seasonNumber,
              .didAct = project.didAct,
              .equityPercentage = project.equityPercentage,
              .equityDollarsInvested = project.equityDollarsInvested};
    const std::int64_t age = world_.weekNumberForTracking - project.weekReleased;
    if (project.typeOfFilm == filmType::series) {
      const std::size_t network = static_cast<std::size_t>(next_) % networks.size();
      film.debutNetwork = networks[network];
      film.debutImageString = networkLogos[network];
    }
    if (age > 0) release(project, film, age);
    pay(project, project.weekToWork + 1, project.payment * 0.97, project.buyout, 0);
    world_.saveAllFilmList.push_front(std::move(film));
  }

  // Adds bids of two networks. If `left` is above 0, the higher one has a deal with that many weeks left.
  // `hadOneBefore` adds an ended deal.
  void syndicate(const Audition& project, std::int64_t left, bool hadOneBefore) {
    Syndication title{.filmId = project.filmId,
                      .filmName = project.title,
                      .filmType = project.typeOfFilm,
                      .filmReleased = project.weekReleased,
                      .networkNames = {"Metflix", "Fulu"},
                      .networkOffers = {100'000 * figure(29), 90'000 * figure(29)},
                      .networkYears = {2, 1},
                      .networkImages = {"imbdMetflix.png", "imbdFulu.png"}};
    if (left > 0) {
      title.didAcceptOffer = true;
      title.networkIndexWon = 0;
      title.weeksRemaining = left;
      title.weekStarted = world_.weekNumberForTracking + left - 2 * weeksPerYear;
      payShare(project, title.weekStarted, static_cast<double>(title.networkOffers[0]), "Metflix");
      pay(project, title.weekStarted + 12, 0, 0, project.payment * project.residual);
    }
    if (hadOneBefore) {
      title.networkNameSigned = {"Pear TV"};
      title.networkOfferSigned = {77'000 * figure(31)};
      title.networkYearSigned = {1};
    }
    world_.saveAllSyndication.push_back(std::move(title));
  }

  static std::int64_t yearOf(std::int64_t week) { return 2026 + (week - 1) / weeksPerYear; }

 private:
  static std::size_t index(std::int64_t number) { return static_cast<std::size_t>(number); }
  // A figure from 10 to 99, derived from the latest title and `salt`.
  [[nodiscard]] std::int64_t figure(std::int64_t salt) const { return 10 + next_ * salt % 90; }
  [[nodiscard]] double amount(std::int64_t salt) const { return static_cast<double>(figure(salt)); }

  void release(const Audition& project, Film& film, std::int64_t age) {
    film.imbdRating = 2 + amount(37) / 12.5;
    film.numImbdRatings = 1'000 * figure(41);
    film.imbdMetascore = figure(43);
    film.numMetascoreRatings = figure(47);
    film.featuredReviews = {std::format("{} is worth the ticket.", project.title)};
    film.currentPopularity = amount(53);
    film.lastWeekPopularity = amount(59);
    if (project.typeOfFilm == filmType::feature) openInMarkets(project, film, age);
    if (project.typeOfFilm == filmType::series) air(project, age);
    if (project.typeOfFilm == filmType::commercial) pay(project, project.weekReleased + 4, 0, 0, 15);
  }

  void openInMarkets(const Audition& project, Film& film, std::int64_t age) {
    constexpr double smallestShare = 0.03;  // does not open abroad
    double gross = 0;
    for (const Market& market : markets) {
      if (market.share < smallestShare) continue;
      BoxOffice takings{.filmId = project.filmId,
                        .countryId = market.countryId,
                        .countryName = std::string(market.name),
                        .title = project.title,
                        .year = yearOf(project.weekReleased),
                        .weekNumberForTracking = project.weekReleased,
                        .openingWeekend = project.budget * market.share * project.hypeRating / 60};
      takings.totalGross = takings.openingWeekend;
      for (std::int64_t week = 1; week <= std::min<std::int64_t>(age - 1, 7); ++week) {
        takings.boxOfficeWeeklyEarnings.push_back(takings.openingWeekend / static_cast<double>(week + 1));
        takings.weeksTracked.push_back(project.weekReleased + week);
        takings.totalGross += takings.boxOfficeWeeklyEarnings.back();
      }
      gross += takings.totalGross;
      world_.saveAllBoxOfficeList.push_back(std::move(takings));
    }
    if (age < 8) return;
    film.boxOfficeGross = gross;
    payShare(project, project.weekReleased + 8, gross, "");
  }

  void air(const Audition& project, std::int64_t age) {
    Ratings season{.filmId = project.filmId,
                   .parentSeriesId = project.parentSeriesFilmId,
                   .seasonNumber = std::max<std::int64_t>(project.seasonNumber, 1),
                   .title = project.title,
                   .year = yearOf(project.weekReleased),
                   .weekNumberForTracking = project.weekReleased,
                   .adRates = 0.5 + amount(61) / 50};
    for (std::int64_t week = 0; week < std::min(age, project.numberOfEpisodesTotal); ++week) {
      season.premiereViews.push_back(static_cast<double>(10'000 * figure(67 + week)));
      season.hoursWatched.push_back(5'000 * figure(71 + week));
      season.weeksTracked.push_back(project.weekReleased + week);
    }
    world_.saveAllRatings.push_back(std::move(season));
  }

  void pay(const Audition& project, std::int64_t week, double session, double buyout, double residual) {
    world_.saveAllWeeklyEarnings.push_back({.filmId = project.filmId,
                                            .filmTitle = project.title,
                                            .filmType = project.typeOfFilm,
                                            .sessionEarned = session,
                                            .buyoutEarned = buyout,
                                            .residualsEarned = residual,
                                            .yearNumber = yearOf(week - 1),
                                            .weekNumberForTracking = week});
  }

  // Adds payouts of a stake, for syndication if there is a network.
  void payShare(const Audition& project, std::int64_t week, double gross, const std::string& network) {
    const std::int64_t source = network.empty() ? payoutSource::boxOffice : payoutSource::syndication;
    if (project.royalty > 0) {
      const double share = gross * project.royalty / 100;
      world_.saveAllRoyaltyPayouts.push_back({.id = project.filmId + 100,
                                              .filmId = project.filmId,
                                              .title = project.title,
                                              .yearNumber = yearOf(week - 1),
                                              .weekNumberForTracking = week,
                                              .payout = share * (100 - commission) / 100,
                                              .typeOfPayment = source,
                                              .agentEarnings = share * commission / 100,
                                              .totalDealGross = gross,
                                              .syndicationName = network});
    }
    if (project.equityPercentage > 0) {
      world_.saveAllEquityPayouts.push_back({.id = project.filmId + 100,
                                             .filmId = project.filmId,
                                             .yearNumber = yearOf(week - 1),
                                             .weekNumberForTracking = week,
                                             .payOut = gross * project.equityPercentage / 100,
                                             .typeOfPayment = source});
    }
  }

  WorldState& world_;
  std::int64_t next_ = 0;
};

void takeClass(WorldState& world, std::int64_t id, std::int64_t left) {
  const JulliardClass& taken = *classWithId(id);
  world.saveAllCompletedClasses.push_back({.classId = id,
                                           .energyCost = 15,
                                           .weeksTotal = 12,
                                           .weeksRemaining = left,
                                           .experience = static_cast<double>(taken.percentage),
                                           .level = taken.classLevel,
                                           .cost = 1'500,
                                           .yearStarted = world.yearNumber});
}

void setTalent(WorldState& world, std::int64_t points) {
  world.talentTrait1 = points;
  world.talentTrait2 = points + 1;
  world.talentTrait3 = points + 2;
  world.talentTrait4 = points + 3;
  world.talentTrait5 = points + 4;
  world.talentTraitCost1 = points + 5;
  world.talentTraitCost3 = points + 6;
  world.experience = static_cast<double>(points) * 31.4;
  world.showreelScore = points + 7;
}

void joinTheGuild(WorldState& world, std::int64_t year, double duesPaid) {
  world.isSAG = 1;
  world.memberSince = year;
  world.workDuesPaidSAG = duesPaid;
  world.saveAllWeeklyLineItems.push_back(
      {.category = 1, .title = "Guild dues", .amount = 12, .year = year, .typeOfExpense = 1});
}

void signAgent(WorldState& world) {
  world.agentCommission = commission / 100.0;
  world.agentFanBonus = 1.3;
  world.saveAllTalentAgents = {{.id = 5,
                                .name = "Rosa Vance",
                                .agency = "Vance & Daughters",
                                .image = "sw7.png",
                                .commissionPercentage = commission / 100.0,
                                .residualBonus = 0.8,
                                .royaltyBonus = 1.1,
                                .negotiationBonus = 12,
                                .rating = 70,
                                .fanBonus = 1.3,
                                .maxBudget = 24'000'000,
                                .weekSigned = world.weekNumberForTracking - 44,
                                .contractYears = 2,
                                .weekContractEnds = world.weekNumberForTracking + 60,
                                .penaltyForBreakingContract = 140'000,
                                .isSigned = 1,
                                .weekToSendAudition = 7,
                                .bookings = 6,
                                .totalAgentEarnings = 48'200}};
}

void write(WorldState& world, std::int64_t id, std::int64_t typeOfDeal, const std::string& title,
           std::int64_t connectingId = -1) {
  const std::int64_t week = world.weekNumberForTracking - 30 + id;
  world.saveAllEmailList.push_back({.id = id,
                                    .typeOfDeal = typeOfDeal,
                                    .title = title,
                                    .message = std::format("{} Let us talk.", title),
                                    .connectingId = connectingId,
                                    .weekNumber = (week - 1) % weeksPerYear + 1,
                                    .yearNumber = Career::yearOf(week),
                                    .weekNumberForTracking = week});
}

// Offers of every kind that has a screen, the newest last.
void writeOffers(WorldState& world) {
  world.saveAllTalentAgents.push_front({.id = 6,
                                        .name = "Piet Halloran",
                                        .agency = "The Ottoline Agency",
                                        .image = "sm3.png",
                                        .commissionPercentage = 0.09,
                                        .residualBonus = 0.7,
                                        .negotiationBonus = 15,
                                        .rating = 81,
                                        .fanBonus = 1.25,
                                        .maxBudget = 30'000'000,
                                        .contractYears = 3,
                                        .penaltyForBreakingContract = 210'000,
                                        .weekToSendAudition = 6});
  write(world, 21, deal::agent, "Representation starts here", 6);
  write(world, 22, deal::investment, "A film needs a backer");
  write(world, 27, deal::royalty, "A role with points", 5);
  write(world, 29, deal::franchise, "A saga needs a lead");
}

// A full inbox, with kinds of mail that lead nowhere yet.
void fillInbox(WorldState& world) {
  for (std::int64_t id = 1; id <= 14; ++id) {
    write(world, id, id % 2 == 0 ? deal::investment : deal::royalty, std::format("Offer {}", id), 5);
  }
  write(world, 15, deal::sharkBox, "A round for your venture");
  write(world, 16, deal::message, "A note from a fan");
  writeOffers(world);
}

void speak(WorldState& world) {
  for (const Film& film : world.saveAllFilmList) {
    if (film.filmId % 4 != 0) continue;
    world.saveAllQuotes.push_back({.filmId = film.filmId,
                                   .filmName = film.title,
                                   .character = film.characterName,
                                   .quote = std::format("I cried twice making {}.", film.title),
                                   .question = "What was it like?"});
    world.saveAllMovieReviews.push_back({.title = std::format("Rival {}", film.filmId),
                                         .review = "I have seen worse and said better of it.",
                                         .rating = film.filmId % 10 + 1,
                                         .weekNumber = 3,
                                         .yearNumber = world.yearNumber,
                                         .weekNumberForTracking = world.weekNumberForTracking - 2});
  }
}

// Adds a chart of ten whose titles moved in every way, with a film of the player's in second place. Without
// an opening of the charts, which would be random.
void fillCharts(WorldState& world) {
  for (auto* chart : {&world.saveAllTopTenList, &world.saveAllTopTenSeriesList}) {
    for (std::int64_t place = 1; place <= 10; ++place) {
      chart->push_back({.filmId = TopTen::firstInventedId + place,
                        .title = std::format("Streamed {}", place),
                        .director = "Ingrid Sol",
                        .totalViews = 90'000'000 * place,
                        .totalWeeklyViews = 41'000'000 - place,
                        .duration = 90 + place,
                        .rankLastWeek = place % 4 == 0 ? 0 : place + place % 3 - 1,
                        .rankThisWeek = place,
                        .weeksOnChart = place % 4 == 0 ? 1 : 2 * place,
                        .peakPosition = place,
                        .yearDebut = world.yearNumber,
                        .weekNumber = 2,
                        .weeksAtOne = place == 1 ? 1 : 0,
                        .currentPopularity = static_cast<double>(100 - place),
                        .lastWeekPopularity = static_cast<double>(96 + place),
                        .imageString = "streamed.png",
                        .description = "Somebody comes home."});
    }
  }
  world.saveBestsellerRankings = 1;
  const auto own = std::ranges::find(world.saveAllFilmList, filmType::feature, &Film::typeOfFilm);
  if (own == world.saveAllFilmList.end()) return;
  TopTen& second = world.saveAllTopTenList.edit(1);
  second.filmId = own->filmId;
  second.title = own->title;
  second.totalViews = second.totalWeeklyViews = 0;
  TopTen former = second;
  former.peakPosition = 4;
  world.saveAllSavedTopTenList = {former};
}

void nominate(WorldState& world, std::int64_t id, std::int64_t option, std::int64_t year,
              std::int64_t isWinner) {
  const auto film = std::ranges::find(world.saveAllFilmList,
                                      option < 7 ? filmType::feature : filmType::series, &Film::typeOfFilm);
  const AwardOption& row = awardOptions()[static_cast<std::size_t>(option)];
  world.saveAllMovieAwards.push_back({.id = id,
                                      .awardOptionId = option,
                                      .filmId = film->filmId,
                                      .filmType = film->typeOfFilm,
                                      .filmTitle = film->title,
                                      .nameOfAward = std::string(row.awardName),
                                      .awardShow = std::string(row.awardShow),
                                      .yearAwarded = year,
                                      .name = isActing(row) ? world.myName : film->directorName,
                                      .isWinner = isWinner,
                                      .otherNomineeNames = {"Ines Vale", "Bo Lind", "Tove Hart"},
                                      .otherNomineeFilm = {"Low Light", "The Ferry", "Ninth Bell"},
                                      .description = "For what was done."});
}

// Adds posts of the player and of others, one of them pinned.
void chirp(WorldState& world) {
  for (std::int64_t id = 31; id <= 36; ++id) {
    const bool isOwn = id % 3 != 0;
    world.saveAllChirpList.push_back({.id = id,
                                      .artistId = isOwn ? 0 : -1,
                                      .chirpName = isOwn ? world.myName : "Box Office Jojo",
                                      .message = std::format("Post {} for @everybody", id),
                                      .isPinned = id == 32 ? 1 : 0,
                                      .weekNumberForTracking = world.weekNumberForTracking - 36 + id,
                                      .yearNumber = world.yearNumber,
                                      .commentCount = id,
                                      .reChirpCount = 10 * id,
                                      .likeCount = 1'000 * id,
                                      .news = isOwn ? 0 : -1,
                                      .imageString = isOwn ? "" : "boxOfficeJojo.png",
                                      .typeOfAccount = isOwn ? 0 : 6});
  }
}

void subscribe(WorldState& world, std::int64_t option, const std::string& title, double cost) {
  world.saveAllWeeklyLineItems.push_back({.category = WeeklyLineItem::lifestyleCategory,
                                          .title = title,
                                          .amount = cost,
                                          .year = world.yearNumber,
                                          .typeOfExpense = option});
}

// Opens The Cameo and Patron, with their sales.
void earnFromFame(WorldState& world) {
  subscribe(world, weeklyOption::theCameo, "The Cameo", 100);
  subscribe(world, weeklyOption::moviePass, "Movie Pass", 29);
  for (std::int64_t ago = 3; ago >= 0; --ago) {
    world.saveAllCameos.push_back({.weekNumberForTracking = world.weekNumberForTracking - ago,
                                   .yearNumber = world.yearNumber,
                                   .numberOfPurchases = 20 + ago,
                                   .totalPriceEarned = 25.0 * static_cast<double>(20 + ago),
                                   .averageRating = 4.6});
    world.trackPatronEarnings.push_back(310.5 - static_cast<double>(ago));
  }
  world.numberOfCameoReviews = 9;
  world.totalPatronEarnings = 8'120.75;
}

// Adds a home, a flat that is let, a car and cards, so that the net worth differs from the cash.
void ownThings(WorldState& world) {
  world.saveAllPropertyList = {
      {.propertyTitle = "Bay Villa", .pricePaid = 900'000, .realEstateIndex = 0.9, .isPrimary = 1},
      {.propertyTitle = "Attic Flat", .pricePaid = 210'000, .weeklyRent = 640}};
  world.saveAllTransportationOwnedList = {
      {.title = "Old Convertible", .pricePaid = 34'000, .yearPurchased = world.yearNumber - 3}};
  world.trackCardPortfolio = {1'200, 1'450};
}

// Adds a project in every state, with types in rotation.
void addOneInEveryState(Career& career) {
  career.add(career.project(filmType::feature, funnel::submitted, 20));
  career.add(career.project(filmType::shortFilm, funnel::closed, 18));
  career.add(career.project(filmType::series, funnel::invited, 16));
  career.add(career.project(filmType::feature, funnel::invited, 9));  // lost
  career.add(career.project(filmType::series, funnel::booked, 14));
  career.add(career.project(filmType::commercial, funnel::booked, 11));
  career.addWrapped(career.project(filmType::feature, funnel::wrapped, 5));
  career.addWrapped(career.project(filmType::feature, funnel::wrapped, 0));  // released this week
  career.addWrapped(career.project(filmType::feature, funnel::wrapped, -3));
  career.addWrapped(career.project(filmType::series, funnel::wrapped, -4));
  career.addWrapped(career.project(filmType::commercial, funnel::wrapped, -6));
  career.addWrapped(career.project(filmType::studentFilm, funnel::wrapped, -9));
  career.addWrapped(career.project(filmType::shortFilm, funnel::wrapped, -12));
}

Audition ownFilm(Career& career, std::int64_t stage, std::int64_t ahead) {
  Audition film = career.project(filmType::feature, stage, ahead);
  film.isPrincipal = rolePart::ownProduction;
  film.didAct = 0;
  film.royalty = 0;
  film.equityPercentage = 12.5;
  film.equityDollarsInvested = 60'000;
  return film;
}

Audition investment(Career& career, std::int64_t stage, std::int64_t ahead) {
  Audition film = ownFilm(career, stage, ahead);
  film.isPrincipal = rolePart::background;
  film.role.clear();
  return film;
}

// Adds two released seasons of a series and a third one, whose pay can be negotiated.
void addReturningSeries(Career& career) {
  constexpr std::int64_t untilTheWrap = 14;
  Audition first = career.project(filmType::series, funnel::wrapped, -90);
  first.seasonNumber = 1;
  first.royalty = 0;
  career.addWrapped(first);
  Audition second = career.project(filmType::series, funnel::wrapped, -30);
  Audition third = career.project(filmType::series, funnel::booked, untilTheWrap + 10);
  for (std::int64_t number = 2; Audition * season : {&second, &third}) {
    season->title = first.title;
    season->royalty = 0;
    season->seasonNumber = number++;
    season->parentSeriesFilmId = first.filmId;
  }
  career.addWrapped(second);
  career.add(third);
}

// Adds two seasons of a series.
void addSeasons(Career& career, std::int64_t ahead) {
  Audition first = career.project(filmType::series, funnel::wrapped, ahead);
  first.seasonNumber = 1;
  first.parentSeriesFilmId = first.filmId;
  Audition second = career.project(filmType::series, funnel::wrapped, ahead + weeksPerYear);
  second.title = first.title;
  second.seasonNumber = 2;
  second.parentSeriesFilmId = first.filmId;
  career.addWrapped(first);
  career.addWrapped(second);
}

Matches match(const WorldState& world, const std::string& name, std::int64_t state) {
  return {.matchId = std::ssize(world.saveAllMatchesList) + 1,
          .name = name,
          .matchImage = std::format("woman ({}).png", 7 + world.saveAllMatchesList.size()),
          .matchPrompt = "My simple pleasures",
          .matchPromptResponse = "Rain on a car roof",
          .matchComment = "Which car?",
          .occupation = "Pilot",
          .weekMatched = world.weekNumberForTracking - 2,
          .energyBonus = 6,
          .relationshipStatus = 62.5,
          .age = 31,
          .chemistry = 24,
          .beauty = 71,
          .intelligence = 88,
          .personality = 42,
          .maintenance = 37,
          .weeklyEarnings = 2'512.5,
          .igFollowers = 12'400,
          .interests = {"hiking", "hot yoga"},
          .pickupLineResponse = "Any car. It is about the rain.",
          .relationshipState = state,
          .timeToPropose = 60};
}

// A single beginner's matches, of whom one says no and one is over.
void meet(WorldState& world) {
  world.saveAllMatchesList.push_back(match(world, "Mia", bond::matched));
  world.saveAllMatchesList.push_back(match(world, "Noor", bond::matched));
  world.saveAllMatchesList.edit(1).interested = 1;
  Matches former = match(world, "Zoe", bond::ended);
  former.weekStartedDating = 2;
  former.weekEndedDating = 6;
  former.breakupLine = "You only ever rehearse with me";
  world.saveAllMatchesList.push_back(former);
  world.rejectionCount = 1;
  world.slideIntoDmsCount = 2;
}

// A partner of two years, and a match beside them.
void love(WorldState& world, std::int64_t state, double meter) {
  Matches partner = match(world, "Mia", state);
  partner.weekStartedDating = world.weekNumberForTracking - 104;
  partner.relationshipStatus = meter;
  world.saveAllMatchesList.push_back(partner);
  world.saveAllMatchesList.push_back(match(world, "Noor", bond::matched));
  world.relationshipTracker = {"Mia: \"I noticed.\"", "Gossip: the two were seen at a bus stop."};
}

}  // namespace

void beginner(WorldState& world) {
  Career career(world, 9);
  setTalent(world, 2);
  world.totalCashAvailable = 812;
  world.totalEnergyAvailable = 64;
  world.weeklyJobTitle = "Set Runner";
  world.weeklyJobIncome = 410;
  world.weeklyEnergyCost = 11;
  world.weeklyJobContractRemaining = 3;
  world.yearToDatePaycheck = 3'280;
  takeClass(world, 1, 4);
  takeClass(world, 6, 0);
  career.add(career.project(filmType::studentFilm, funnel::submitted, 17));
  career.add(career.project(filmType::shortFilm, funnel::invited, 15));
  career.add(career.project(filmType::commercial, funnel::closed, 12));
  sendWelcomeMail(world);
  fillCharts(world);
  meet(world);
}

void working(WorldState& world) {
  Career career(world, 4 * weeksPerYear + 20);
  setTalent(world, 34);
  joinTheGuild(world, 2028, 4'321);
  signAgent(world);
  world.totalCashAvailable = 84'250;
  world.totalEnergyAvailable = 71;
  world.saveNetworth = 90'000;
  world.saveLastYTDPaycheck = 5'120;
  world.saveBribePrice = 2'000;
  addOneInEveryState(career);
  career.add(ownFilm(career, funnel::booked, 12));
  addReturningSeries(career);
  career.add(investment(career, funnel::booked, 15));
  career.addWrapped(investment(career, funnel::wrapped, -14));
  writeOffers(world);
  for (const std::int64_t id : {1, 2, 18, 19}) takeClass(world, id, 0);
  takeClass(world, 20, 7);
  speak(world);
  chirp(world);
  fillCharts(world);
  world.saveStarRankingMeter = {100'000, 91'230};
  love(world, bond::dating, 91);
  subscribe(world, weeklyOption::metflix, "Metflix", 16);
}

void star(WorldState& world) {
  Career career(world, 29 * weeksPerYear + 30);
  setTalent(world, 88);
  joinTheGuild(world, 2029, 750'300);
  signAgent(world);
  world.totalCashAvailable = -48'250.5;
  world.totalEnergyMax = 85;
  world.totalEnergyAvailable = 82;
  world.saveAgeLoss = -35;
  world.childEnergyCost = 4;
  world.saveNetworth = 71'000'000;
  world.saveBoxOffice = 2'400'000'000;
  world.yearToDatePaycheck = 800;
  world.saveLastYTDPaycheck = 6'400;
  addOneInEveryState(career);
  for (std::int64_t year = 1; year <= 8; ++year) {
    const std::int64_t ahead = -year * weeksPerYear;
    Audition film = career.project(filmType::feature, funnel::wrapped, ahead - 7);
    career.addWrapped(film);
    if (year % 3 == 0) career.syndicate(film, year % 2 == 0 ? 31 : 0, year % 4 == 0);
    career.addWrapped(career.project(filmType::commercial, funnel::wrapped, ahead - 16));
    if (year % 4 == 0) career.addWrapped(ownFilm(career, funnel::wrapped, ahead - 25));
    if (year % 5 == 0) addSeasons(career, ahead - weeksPerYear);
  }
  for (std::int64_t id = 1; id <= 46; ++id) takeClass(world, id, 0);
  fillInbox(world);
  nominate(world, 3, 2, world.yearNumber - 1, 1);
  nominate(world, 6, 4, world.yearNumber - 1, 0);
  nominate(world, 9, 3, world.yearNumber, 1);
  nominate(world, 12, 5, world.yearNumber, 0);
  nominate(world, 16, 11, world.yearNumber, 0);
  chirp(world);
  fillCharts(world);
  earnFromFame(world);
  world.saveStarRankingMeter = {420, 310, 95};
  world.saveAllTalentAgents.edit(1).weekContractEnds = world.weekNumberForTracking - 3;
  speak(world);
  ownThings(world);
  love(world, bond::engaged, 80.5);
  world.saveRingImage = "ring4.png";
  world.relationalFameImpact = 1.5;
}

}  // namespace tb::test
