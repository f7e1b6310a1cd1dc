#include "career/job_board.h"

#include <array>

#include "banks/jobs_banks.h"
#include "core/format.h"
#include "core/log.h"

namespace tb {

namespace {

struct Span {
  std::int64_t low;
  std::int64_t high;
};

// A kind of job. Its description is the bank's row with the same index.
struct JobKind {
  std::string_view title;
  Span energy;     // points per week
  Span payInTens;  // tens of dollars per week
};

constexpr std::array<JobKind, 13> jobKinds = {{
    {.title = "Background Extra", .energy = {8, 14}, .payInTens = {25, 40}},
    {.title = "Stand-In", .energy = {10, 16}, .payInTens = {30, 45}},
    {.title = "Production Assistant", .energy = {14, 22}, .payInTens = {30, 45}},
    {.title = "Casting Assistant", .energy = {10, 18}, .payInTens = {30, 45}},
    {.title = "Set Runner", .energy = {12, 20}, .payInTens = {30, 45}},
    {.title = "Wardrobe Assistant", .energy = {10, 18}, .payInTens = {25, 40}},
    {.title = "Script Reader", .energy = {8, 14}, .payInTens = {25, 40}},
    {.title = "Audition Self-Tape Assistant", .energy = {8, 15}, .payInTens = {20, 35}},
    {.title = "Acting Class Assistant", .energy = {8, 14}, .payInTens = {20, 30}},
    {.title = "Talent Agency Intern", .energy = {10, 18}, .payInTens = {25, 40}},
    {.title = "Indie Film Crew", .energy = {14, 22}, .payInTens = {20, 35}},
    {.title = "Commercial Extra", .energy = {6, 12}, .payInTens = {30, 50}},
    {.title = "Social Media Content Assistant", .energy = {8, 15}, .payInTens = {25, 40}},
}};

constexpr std::int64_t maxSlots = 5;
constexpr std::int64_t minContractWeeks = 4;  // weeks
constexpr std::int64_t maxContractWeeks = 12;

std::int64_t drawFrom(RandomSource& random, Span span) { return RandomBetween(random, span.low, span.high); }

// Terms are drawn once per board, so that a job listed twice pays the same in both places.
std::vector<JobList> randomJobList(RandomSource& random) {
  const std::span<const std::string> descriptions = rowsOf(bank::jobDescription);
  std::vector<JobList> jobs;
  for (std::size_t kind = 0; kind < jobKinds.size(); ++kind) {
    const std::int64_t energy = drawFrom(random, jobKinds[kind].energy);
    const std::int64_t pay = 10 * drawFrom(random, jobKinds[kind].payInTens);
    jobs.push_back({.jobTitle = jobKinds[kind].title,
                    .jobDescription = descriptions[kind],
                    .energyCost = energy,
                    .jobPay = static_cast<double>(pay)});
  }
  return jobs;
}

}  // namespace

std::vector<JobOffer> openJobBoard(Game& game) {
  const std::vector<JobList> jobs = randomJobList(game.random);
  const std::int64_t slots = RandomRange(game.random, maxSlots + 1);
  std::vector<JobOffer> board;
  for (std::int64_t slot = 0; slot < slots; ++slot) {
    const JobList& job = RandomElement<JobList>(game.random, jobs);
    board.push_back(
        {.job = job, .contractWeeks = RandomBetween(game.random, minContractWeeks, maxContractWeeks)});
  }
  return board;
}

Refusal jobRefusal(const WorldState& world) {
  if (world.weeklyJobContractRemaining < 1) return {};
  return Notice{.title = "⏳ Contract Signed ⏳",
                .message = tb::format("\nYou already have an existing contract in place for {} more week(s).",
                                      world.weeklyJobContractRemaining),
                .brief = "You are under contract"};
}

Refusal acceptJob(Game& game, const JobOffer& offer) {
  WorldState& world = game.world;
  if (Refusal refusal = jobRefusal(world)) return refusal;
  world.weeklyJobTitle = offer.job.jobTitle;
  world.weeklyJobIncome = offer.job.jobPay;
  world.weeklyEnergyCost = offer.job.energyCost;
  world.weeklyJobContractRemaining = offer.contractWeeks;
  logActivity(world, tb::format("You accepted a temp job as a {} for {} weeks.", offer.job.jobTitle,
                                offer.contractWeeks));
  return {};
}

}  // namespace tb
