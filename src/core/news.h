#pragma once

// What a line of the week is about. Every line of `WeekFeed` has its News beside it, in memory only, so that
// the review can show a booking as a booking without reading the sentence.

#include <cstdint>

namespace tb {

enum class NewsKind : std::uint8_t {
  // The casting funnel
  invitation,  // to an audition
  offer,       // a role was won at an audition
  refusal,     // a role was lost at an audition
  silence,     // a submission that nobody answers any more
  wrap,        // of a project that the performer is in, has made or has put money into
  // What becomes of a title
  opening,   // in theaters, or a first screening
  premiere,  // of a season
  renewal,   // a further season or film is ordered
  cancellation,
  chartEntry,
  nomination,
  award,
  // Money
  payday,       // residuals, royalties, shares, a first payment
  syndication,  // a network buys the reruns
  // The trade
  guild,
  agent,
  classDone,
  jobEnded,
  mail,
  // Private life
  match,
  wedding,
  birth,
  breakup,
  // Business
  company,
};

// There is no news of no kind: a line can't be added without saying what it is about.
struct News {
  News(NewsKind kind, std::int64_t filmId = 0, double amount = 0)
      : kind(kind), filmId(filmId), amount(amount) {}

  NewsKind kind;
  std::int64_t filmId;  // of the project; 0 for none, since projects count from 1
  double amount;        // dollars that came in, negative for a loss; 0 where no money is meant
  bool operator==(const News&) const = default;
};

}  // namespace tb
