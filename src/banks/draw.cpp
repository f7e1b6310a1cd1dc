#include "banks/draw.h"

#include <algorithm>
#include <array>

#include "core/signed_agent.h"

namespace tb {

namespace {

constexpr std::size_t maxRecent = 20;  // rows per bank
constexpr std::int64_t minFansForFame = 1'000;

enum Need : std::uint8_t { agent = 1, set = 2, fame = 4, job = 8, booked = 16, principal = 32 };

struct Mark {
  std::string_view word;
  Need need;
};
constexpr std::array<Mark, 5> marks = {{{.word = "@agent ", .need = agent},
                                        {.word = "@set ", .need = set},
                                        {.word = "@fame ", .need = fame},
                                        {.word = "@job ", .need = job},
                                        {.word = "@booked ", .need = booked}}};

bool hasWrappedRole(const WorldState& world) {
  return std::ranges::contains(world.saveAllFilmList, 1, &Film::didAct);
}

bool holds(const WorldState& world, const Subject& subject, Need need) {
  switch (need) {
    case agent:
      return signedAgent(world).has_value();
    case set:
      return hasWrappedRole(world);
    case fame:
      return world.totalFans >= minFansForFame;
    case job:
      return world.weeklyJobContractRemaining >= 1;
    case booked:
      return subject.isBooked;
    case principal:
      return subject.isPrincipal;
  }
  return false;
}

bool isTrue(const WorldState& world, const Subject& subject, const MarkedRow& row) {
  return std::ranges::all_of(std::array{agent, set, fame, job, booked, principal}, [&](Need need) {
    return (row.needs & need) == 0 || holds(world, subject, need);
  });
}

template <class IsTrueRow>
std::size_t replacementRow(std::size_t drawn, std::size_t rows, const std::vector<std::size_t>& recent,
                           IsTrueRow isTrueRow) {
  for (std::size_t step = 0; step < rows; ++step) {
    const std::size_t row = (drawn + step) % rows;
    if (!std::ranges::contains(recent, row) && isTrueRow(row)) return row;
  }
  const auto oldest = std::ranges::find_if(recent, isTrueRow);
  return oldest == recent.end() ? drawn : *oldest;
}

template <class Work>
Subject subjectOfWork(const Work& work) {
  return {.isPrincipal = work.isPrincipal == rolePart::principal && work.didAct == 1};
}

}  // namespace

Subject subjectOf(const Audition& project) {
  Subject subject = subjectOfWork(project);
  subject.isBooked = project.funnelStage >= funnel::booked;
  return subject;
}

Subject subjectOf(const Film& film) {
  Subject subject = subjectOfWork(film);
  subject.isBooked = true;
  return subject;
}

MarkedRow markedRow(std::string_view row) {
  MarkedRow marked{.text = row};
  for (bool found = true; found;) {
    found = false;
    for (const auto& [word, need] : marks) {
      if (!marked.text.starts_with(word)) continue;
      marked.text.remove_prefix(word.size());
      marked.needs |= need;
      found = true;
    }
  }
  if (row.contains("{name}")) marked.needs |= principal;
  return marked;
}

std::string_view drawFreshRow(Game& game, Bank bank, const Subject& subject) {
  const std::span<const std::string> rows = rowsOf(bank);
  const auto drawn = static_cast<std::size_t>(RandomRange(game.random, std::ssize(rows)));
  const auto isTrueRow = [&](std::size_t row) { return isTrue(game.world, subject, markedRow(rows[row])); };
  const std::size_t row = replacementRow(drawn, rows.size(), game.recentRows.of(bank.name), isTrueRow);
  game.recentRows.add(bank.name, row, std::min(rows.size() / 2, maxRecent));
  return markedRow(rows[row]).text;
}

}  // namespace tb
