#pragma once

// The kind of a line of the week. Every line of `WeekFeed` has its News in `weekFeedNews`, in memory only, so
// that the review knows what a line is about without parsing its text.

#include <cstdint>

namespace tb {

enum class NewsKind : std::uint8_t {
  // The casting funnel
  invitation,  // to an audition
  offer,       // a role was won at an audition
  refusal,     // a role was lost at an audition
  silence,     // a submission that will not be answered
  wrap,        // of a project that the performer acts in, makes or invests in
  // Titles
  opening,   // in theaters, or a first screening
  premiere,  // of a season
  renewal,   // a further season or film is ordered
  cancellation,
  chartEntry,
  award,
  // Money
  payday,       // residuals, royalties, shares, a first payment
  syndication,  // a network buys the reruns
  // The industry
  guild,
  agent,
  classDone,
  jobEnded,
  mail,
  negotiation,  // of the pay for a returning season or film
  // Private life
  match,
  wedding,
  birth,
  breakup,
  // Business
  company,
};

// Has no default kind, so every line has to say what it is about.
struct News {
  News(NewsKind kind, std::int64_t filmId = 0, double amount = 0)
      : kind(kind), filmId(filmId), amount(amount) {}

  NewsKind kind;
  std::int64_t filmId;  // of the project; 0 for none, because the ids of projects start at 1
  double amount;        // dollars received, negative for a loss; 0 when the line is not about money
  bool operator==(const News&) const = default;
};

}  // namespace tb
