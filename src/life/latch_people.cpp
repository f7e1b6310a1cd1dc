#include "life/latch_people.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "banks/latch_profiles_banks.h"
#include "banks/latch_prompts_banks.h"
#include "banks/names_banks.h"
#include "core/bands.h"
#include "core/format.h"

namespace tb {

namespace {

// --- Work ---

struct Occupation {
  std::string_view name;
  double weeklyEarnings;  // dollars, before a tenth more or less
};

constexpr std::array<Occupation, 44> occupations = {{
    {.name = "Bartender", .weeklyEarnings = 400},
    {.name = "Retail", .weeklyEarnings = 400},
    {.name = "Sales", .weeklyEarnings = 500},
    {.name = "Construction", .weeklyEarnings = 500},
    {.name = "Server", .weeklyEarnings = 500},
    {.name = "Marketing", .weeklyEarnings = 600},
    {.name = "Police Officer", .weeklyEarnings = 1100},
    {.name = "Firefighter", .weeklyEarnings = 1100},
    {.name = "Nurse", .weeklyEarnings = 1500},
    {.name = "Accountant", .weeklyEarnings = 1200},
    {.name = "Electrician", .weeklyEarnings = 1200},
    {.name = "Recruiter", .weeklyEarnings = 750},
    {.name = "Product Manager", .weeklyEarnings = 2000},
    {.name = "Artist", .weeklyEarnings = 300},
    {.name = "Data Engineer", .weeklyEarnings = 2500},
    {.name = "Software Developer", .weeklyEarnings = 2500},
    {.name = "Dance Instructor", .weeklyEarnings = 400},
    {.name = "Influencer", .weeklyEarnings = 3500},
    {.name = "Banker", .weeklyEarnings = 2000},
    {.name = "Teacher", .weeklyEarnings = 1000},
    {.name = "Professor", .weeklyEarnings = 1400},
    {.name = "Entrepreneur", .weeklyEarnings = 800},
    {.name = "Paralegal", .weeklyEarnings = 500},
    {.name = "Flight Attendant", .weeklyEarnings = 2000},
    {.name = "Fitness Instructor", .weeklyEarnings = 750},
    {.name = "Musician", .weeklyEarnings = 250},
    {.name = "Model", .weeklyEarnings = 3500},
    {.name = "Cell Phone Repair", .weeklyEarnings = 600},
    {.name = "Pilot", .weeklyEarnings = 2500},
    {.name = "Founder", .weeklyEarnings = 1500},
    {.name = "Engineer", .weeklyEarnings = 2000},
    {.name = "Doctor", .weeklyEarnings = 5000},
    {.name = "Paramedic", .weeklyEarnings = 1000},
    {.name = "College Student", .weeklyEarnings = 200},
    {.name = "Personal Trainer", .weeklyEarnings = 1000},
    {.name = "Financial Advisor", .weeklyEarnings = 1250},
    {.name = "Insurance Agent", .weeklyEarnings = 1500},
    {.name = "Realtor", .weeklyEarnings = 1500},
    {.name = "Interior Designer", .weeklyEarnings = 1250},
    {.name = "Physical Therapist", .weeklyEarnings = 1750},
    {.name = "Speech Pathologist", .weeklyEarnings = 1500},
    {.name = "Pharmacist", .weeklyEarnings = 2500},
    {.name = "Dental Hygienist", .weeklyEarnings = 1400},
    {.name = "Dentist", .weeklyEarnings = 3000},
}};

// --- Figures ---

struct FollowerBand {
  std::int64_t upTo;  // of a roll of RandomRange(101)
  std::int64_t most;  // followers
};
constexpr std::array<FollowerBand, 4> followerBands = {{
    {.upTo = 50, .most = 8'000},
    {.upTo = 75, .most = 25'000},
    {.upTo = 90, .most = 100'000},
    {.upTo = 100, .most = 500'000},
}};
constexpr std::int64_t fewestFollowers = 50;

// What a partner's maintenance adds to the energy that being together brings. Deliberately not monotonic.
struct MaintenanceBand {
  std::int64_t upTo;
  std::int64_t energy;  // points per week
};
constexpr std::array<MaintenanceBand, 10> maintenanceBands = {{
    {.upTo = 9, .energy = 2},
    {.upTo = 19, .energy = 1},
    {.upTo = 29, .energy = 3},
    {.upTo = 39, .energy = 2},
    {.upTo = 49, .energy = 4},
    {.upTo = 59, .energy = 3},
    {.upTo = 69, .energy = -1},
    {.upTo = 79, .energy = -2},
    {.upTo = 89, .energy = -3},
    {.upTo = std::numeric_limits<std::int64_t>::max(), .energy = -4},
}};

constexpr std::int64_t youngest = 18;
constexpr std::int64_t ages = 23;
constexpr std::int64_t leastScore = 5;
constexpr std::int64_t scores = 96;
constexpr int interestRounds = 16;

// The answers to each prompt of bank::matchPrompts.
constexpr std::array<Bank, 19> answers = {
    bank::promptAnswers1,  bank::promptAnswers2,  bank::promptAnswers3,  bank::promptAnswers4,
    bank::promptAnswers5,  bank::promptAnswers6,  bank::promptAnswers7,  bank::promptAnswers8,
    bank::promptAnswers9,  bank::promptAnswers10, bank::promptAnswers11, bank::promptAnswers12,
    bank::promptAnswers13, bank::promptAnswers14, bank::promptAnswers15, bank::promptAnswers16,
    bank::promptAnswers17, bank::promptAnswers18, bank::promptAnswers19};

std::int64_t drawChemistry(Game& game) {
  const std::int64_t most = std::max<std::int64_t>(game.world.talentTrait2 + leastScore, leastScore);
  return RandomRange(game.random, most - leastScore + 1) + leastScore;
}

std::int64_t drawFollowers(RandomSource& random) {
  const std::int64_t most = bandOf(followerBands, RandomRange(random, 101))->most;
  return fewestFollowers + RandomRange(random, most - fewestFollowers + 1);
}

std::int64_t energyOf(const Matches& person) {
  const auto base = std::max<std::int64_t>(static_cast<std::int64_t>(2 * person.chemistry / 10), 1);
  return std::max<std::int64_t>(base + bandOf(maintenanceBands, person.maintenance)->energy, 0);
}

// The draw ends with an interest of two or more words, so most people have one to three.
std::vector<std::string> drawInterests(RandomSource& random) {
  std::vector<std::string> interests;
  for (int round = 0; round < interestRounds; ++round) {
    const std::string& drawn = drawRow(random, bank::interests);
    if (std::ranges::contains(interests, drawn)) continue;
    interests.push_back(drawn);
    if (drawn.contains(' ')) break;
  }
  return interests;
}

bool drawIsWoman(Game& game) {
  switch (game.world.saveGenderPreference) {
    case preference::women:
      return true;
    case preference::men:
      return false;
    default:
      return RandomRange(game.random, 2) == 1;
  }
}

void drawIdentity(Game& game, Matches& person) {
  constexpr std::int64_t menPictures = 45;
  constexpr std::int64_t womenPictures = 121;
  const bool isWoman = drawIsWoman(game);
  const std::int64_t picture = 1 + RandomRange(game.random, isWoman ? womenPictures : menPictures);
  person.matchImage = tb::format("{} ({}).png", isWoman ? "woman" : "man", picture);
  game.world.latchTagline = drawRow(game.random, isWoman ? bank::femaleTagLines : bank::maleTaglines);
  person.name = drawRow(game.random, isWoman ? bank::femaleFirstNames : bank::maleFirstNames);
}

void drawPrompt(RandomSource& random, Matches& person) {
  const auto prompts = rowsOf(bank::matchPrompts);
  const auto drawn = static_cast<std::size_t>(RandomRange(random, std::ssize(prompts)));
  person.matchPrompt = prompts[drawn];
  person.matchPromptResponse = drawRow(random, answers[drawn]);
}

}  // namespace

void generateCandidate(Game& game) {
  Matches person;
  person.age = youngest + RandomRange(game.random, ages);
  person.chemistry = static_cast<double>(drawChemistry(game));
  person.igFollowers = drawFollowers(game.random);
  const Occupation& work = RandomElement(game.random, std::span<const Occupation>(occupations));
  person.occupation = work.name;
  for (std::int64_t Matches::* score :
       {&Matches::beauty, &Matches::intelligence, &Matches::personality, &Matches::maintenance}) {
    person.*score = leastScore + RandomRange(game.random, scores);
  }
  person.energyBonus = energyOf(person);
  person.interests = drawInterests(game.random);
  drawIdentity(game, person);
  drawPrompt(game.random, person);
  person.weeklyEarnings = work.weeklyEarnings * RandomUnit(game.random, 0.9, 1.1);
  game.world.latchCard = {std::move(person)};
}

}  // namespace tb
