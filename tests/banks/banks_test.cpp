#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <ranges>
#include <set>
#include <sstream>

#include "banks/agents_banks.h"
#include "banks/all_time_banks.h"
#include "banks/angel_banks.h"
#include "banks/audition_banks.h"
#include "banks/awards_banks.h"
#include "banks/bankable_banks.h"
#include "banks/box_office_banks.h"
#include "banks/cameo_banks.h"
#include "banks/chirp_banks.h"
#include "banks/critics_banks.h"
#include "banks/dilemmas_banks.h"
#include "banks/draw.h"
#include "banks/earnings_banks.h"
#include "banks/events_banks.h"
#include "banks/fame_banks.h"
#include "banks/film_banks.h"
#include "banks/jobs_banks.h"
#include "banks/latch_profiles_banks.h"
#include "banks/latch_prompts_banks.h"
#include "banks/latch_talk_banks.h"
#include "banks/lifestyle_banks.h"
#include "banks/names_banks.h"
#include "banks/negotiation_banks.h"
#include "banks/offers_banks.h"
#include "banks/rate_movies_banks.h"
#include "banks/relationship_questions_banks.h"
#include "banks/relationships_banks.h"
#include "banks/review_summary_banks.h"
#include "banks/syndication_banks.h"
#include "banks/talent_banks.h"
#include "banks/texts.h"
#include "banks/titles_banks.h"
#include "banks/user_reviews_banks.h"
#include "banks/week_banks.h"

namespace tb {
namespace {

struct BankRow {
  Bank bank;
  std::string_view name;
  std::size_t count;
  std::string_view placeholders;
};

#define BANK_ROW(name, count, placeholders) {bank::name, #name, count, placeholders},
constexpr BankRow allBanks[] = {  // clang-format off
    AGENTS_BANKS(BANK_ROW)
    ALL_TIME_BANKS(BANK_ROW)
    ANGEL_BANKS(BANK_ROW)
    AUDITION_BANKS(BANK_ROW)
    AWARDS_BANKS(BANK_ROW)
    BANKABLE_BANKS(BANK_ROW)
    BOX_OFFICE_BANKS(BANK_ROW)
    CAMEO_BANKS(BANK_ROW)
    CHIRP_BANKS(BANK_ROW)
    CRITICS_BANKS(BANK_ROW)
    DILEMMAS_BANKS(BANK_ROW)
    EARNINGS_BANKS(BANK_ROW)
    EVENTS_BANKS(BANK_ROW)
    FAME_BANKS(BANK_ROW)
    FILM_BANKS(BANK_ROW)
    JOBS_BANKS(BANK_ROW)
    LATCH_PROFILES_BANKS(BANK_ROW)
    LATCH_PROMPTS_BANKS(BANK_ROW)
    LATCH_TALK_BANKS(BANK_ROW)
    LIFESTYLE_BANKS(BANK_ROW)
    NAMES_BANKS(BANK_ROW)
    NEGOTIATION_BANKS(BANK_ROW)
    OFFERS_BANKS(BANK_ROW)
    RATE_MOVIES_BANKS(BANK_ROW)
    RELATIONSHIP_QUESTIONS_BANKS(BANK_ROW)
    RELATIONSHIPS_BANKS(BANK_ROW)
    REVIEW_SUMMARY_BANKS(BANK_ROW)
    SYNDICATION_BANKS(BANK_ROW)
    TALENT_BANKS(BANK_ROW)
    TITLES_BANKS(BANK_ROW)
    USER_REVIEWS_BANKS(BANK_ROW)
    WEEK_BANKS(BANK_ROW)
};  // clang-format on

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::vector<std::string> placeholdersOf(const std::string& row) {
  std::vector<std::string> found;
  for (std::size_t open = row.find('{'); open != std::string::npos; open = row.find('{', open + 1)) {
    found.push_back(row.substr(open + 1, row.find('}', open) - open - 1));
  }
  return found;
}

// True when two rows have the same number of words and differ in at most one.
bool differInOneWord(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  constexpr std::size_t shortestSentence = 4;
  if (a.size() != b.size() || a.size() < shortestSentence) return false;
  std::size_t different = 0;
  for (std::size_t place = 0; place < a.size(); ++place) different += a[place] != b[place] ? 1 : 0;
  return different <= 1;
}

TEST(Banks, HaveTheDeclaredNumberOfRows) {
  std::set<std::string_view> listed;
  for (const BankRow& row : allBanks) {
    EXPECT_EQ(rowsOf(row.bank).size(), row.count) << row.name;
    listed.insert(row.name);
  }
  for (const auto& [name, rows] : readBanks(texts())) EXPECT_TRUE(listed.contains(name)) << name;
}

TEST(Banks, UseOnlyDeclaredPlaceholders) {
  for (const BankRow& bank : allBanks) {
    const std::vector<std::string> allowed = wordsOf(std::string(bank.placeholders));
    for (const std::string& row : rowsOf(bank.bank)) {
      for (const std::string& placeholder : placeholdersOf(row)) {
        EXPECT_TRUE(std::ranges::contains(allowed, placeholder)) << bank.name << ": " << row;
      }
      EXPECT_EQ(std::ranges::count(row, '{'), std::ranges::count(row, '}')) << bank.name << ": " << row;
      EXPECT_FALSE(row.starts_with(' ') || row.ends_with(' ') || row.ends_with('\r'))
          << bank.name << ": " << row;
    }
  }
}

TEST(Banks, HaveNoSimilarRows) {
  for (const BankRow& bank : allBanks) {
    std::set<std::string> seen;
    std::vector<std::vector<std::string>> sentences;
    for (const std::string& row : rowsOf(bank.bank)) {
      EXPECT_TRUE(seen.insert(row).second) << bank.name << ": " << row;
      const std::vector<std::string> words = wordsOf(row);
      for (const auto& other : sentences) {
        EXPECT_FALSE(differInOneWord(words, other)) << bank.name << ": " << row;
      }
      sentences.push_back(words);
    }
  }
}

// Each bank has enough rows for a beginner to fill a page of five.
TEST(Banks, HaveValidMarksAndEnoughRowsForBeginners) {
  constexpr std::ptrdiff_t onAPage = 5;
  for (const BankRow& bank : allBanks) {
    std::ptrdiff_t marked = 0;
    for (const std::string& row : rowsOf(bank.bank)) {
      EXPECT_FALSE(markedRow(row).text.starts_with('@')) << bank.name << ": " << row;
      marked += markedRow(row).needs != 0 ? 1 : 0;
    }
    const bool isTable = bank.placeholders == "name";
    if (!isTable && marked > 0) EXPECT_GE(std::ssize(rowsOf(bank.bank)) - marked, onAPage) << bank.name;
  }
}

// The length of a row in bytes, without marks and placeholders.
std::size_t ownWords(const std::string& row) {
  std::size_t length = 0;
  bool inside = false;
  for (const char c : markedRow(row).text) {
    inside = inside || c == '{';
    length += inside ? 0 : 1;
    inside = inside && c != '}';
  }
  return length;
}

// Log lines repeat often, so a quarter of each bank is short.
TEST(Banks, HaveShortRowsInLogBanks) {
  constexpr std::size_t shortRow = 50;
  for (const Bank bank : {bank::submission,
                          bank::silence,
                          bank::invitation,
                          bank::investmentWrap,
                          bank::payday,
                          bank::withdrawal,
                          bank::seriesCancellation,
                          bank::seriesRenewal,
                          bank::sagaRenewal,
                          bank::sagaEnding,
                          bank::premiere,
                          bank::closing,
                          bank::residualPaidBank,
                          bank::equityPaidBank,
                          bank::royaltyPaidBank,
                          bank::royaltySignedBank,
                          bank::syndicationDealBank,
                          bank::showreelScene,
                          bank::classSignUp,
                          bank::localTheater,
                          bank::scriptReading,
                          bank::sideHustle,
                          bank::streetMime,
                          bank::publicImage}) {
    const auto plain =
        std::ranges::count_if(rowsOf(bank), [](const std::string& row) { return ownWords(row) <= shortRow; });
    EXPECT_GE(plain * 4, std::ssize(rowsOf(bank))) << rowsOf(bank).front();
  }
}

// No drawn name is a well-known living person's.
TEST(InventedNames, AvoidWellKnownPeople) {
  // Each of these surnames with some first name of the banks is a well-known person.
  for (const std::string_view surname :
       {"Andersson", "Becker", "Nguyen", "Tran", "Cardoso", "Marchetti", "Richter", "Espinoza", "Agarwal",
        "Rosendahl", "Jadhav", "Almeida", "Abbott"}) {
    EXPECT_FALSE(std::ranges::contains(rowsOf(bank::lastNameBank), surname)) << surname;
  }
  constexpr char people[] = {
#embed "well_known_people.txt"
  };
  for (const auto line : std::views::split(std::string_view(people, sizeof people), '\n')) {
    const std::string_view name(line.begin(), line.end());
    if (name.empty()) continue;  // after the last line
    const std::string_view first = name.substr(0, name.find(' '));
    const std::string_view last = name.substr(first.size() + 1);
    const bool isFirstName =
        std::ranges::any_of(std::array{bank::firstNames, bank::maleFirstNames, bank::femaleFirstNames},
                            [&](Bank bank) { return std::ranges::contains(rowsOf(bank), first); });
    EXPECT_FALSE(isFirstName && std::ranges::contains(rowsOf(bank::lastNameBank), last)) << name;
  }
}

}  // namespace
}  // namespace tb
