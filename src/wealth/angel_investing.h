#pragma once

// Investments in films by others. A producer's e-mail offers a share of a film; the player bargains over the
// percentage and pays that part of the budget at once. The film then runs like any other and pays its share.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t investmentEnergy = 25;
inline constexpr std::int64_t minEquity = 1;  // percent
inline constexpr std::int64_t maxEquity = 50;

// --- The opportunity ---

// The film that an e-mail offers, with its first percentage as `equityPercentage`; null when the e-mail is
// gone, and before makeOpportunity(). Its weeks count from `weekSubmitted`, the week of the draw.
[[nodiscard]] const Audition* opportunity(const WorldState& world, std::int64_t emailId);

// Draws the film of an e-mail when it is first opened: its budget is from 500,000 dollars up to 200 million
// more for the most famous. Does nothing when it is already drawn or the e-mail is gone.
void makeOpportunity(Game& game, std::int64_t emailId);

// --- The bargain ---

struct InvestmentTalks {
  std::int64_t emailId = 0;
  double filmBudget = 0;  // dollars
  std::int64_t baseEquityPercentage = 0;
  std::int64_t equityPercentage = 0;
  std::int64_t chanceOfNegotiationChange = 10;  // per percent above the base
  std::int64_t negotiationBonus = 0;            // of the signed agent

  // The chance in percent that the team accepts, without the agent's bonus: 100 up to the base percentage,
  // below 0 far above it.
  [[nodiscard]] std::int64_t chanceOfNegotiation() const;
  // What the percentage costs, in dollars.
  [[nodiscard]] double totalPayment() const;
};

// Begins at the percentage that is offered. opportunity() must not be null.
[[nodiscard]] InvestmentTalks beginInvestmentTalks(const WorldState& world, std::int64_t emailId);

// Changes the percentage by `step`, within minEquity and maxEquity.
void changeEquity(InvestmentTalks& talks, std::int64_t step);

// Why the offer cannot succeed now: not enough energy, or not enough cash for the percentage.
[[nodiscard]] Refusal investmentRefusal(const WorldState& world, const InvestmentTalks& talks);

struct InvestmentAnswer {
  Notice notice;
  std::string reply = {};  // of a team that declined; it stays open to another offer
  bool isFinal = false;    // the film is financed and the e-mail is gone
};

// Offers to invest. A team that declines stays open to another offer, which costs energy again. Too little
// cash is noticed only after the team agreed, and costs no energy. opportunity() must not be null.
[[nodiscard]] InvestmentAnswer offerInvestment(Game& game, const InvestmentTalks& talks);

// --- The investments ---

[[nodiscard]] bool isInvestment(const Audition& project);

// A financed film or series as a row of the list.
struct InvestmentDetails {
  std::int64_t filmId = 0;
  std::int64_t ask = 0;  // dollars invested
  std::string title;
  std::int64_t rating = 0;  // metascore; 0 before the release
  std::string subtitle;     // the stake
  std::int64_t type = 0;    // filmType
};

struct Investments {
  std::vector<InvestmentDetails> rows;  // newest first
  double invested = 0;                  // dollars, in all
  std::int64_t onTheMarket = 0;         // titles whose box office is over
  double gain = 0;                      // of those, dollars; negative for a loss
};
[[nodiscard]] Investments listInvestments(const WorldState& world);

// What an investment has paid so far, in dollars.
struct InvestmentReturns {
  double boxOffice = 0;
  double syndication = 0;
};
[[nodiscard]] InvestmentReturns returnsOf(const WorldState& world, std::int64_t filmId);

// What the performer's own titles of a type took in by dollar of their budgets.
struct PastTakings {
  std::int64_t titles = 0;
  double perDollar = 0;  // mean; 0 without titles
};
[[nodiscard]] PastTakings pastTakings(const WorldState& world, std::int64_t typeOfFilm);

}  // namespace tb
