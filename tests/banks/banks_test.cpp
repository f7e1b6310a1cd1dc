#include "banks/banks.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ranges>
#include <set>
#include <sstream>

namespace tb {
namespace {

struct BankRow {
  Bank bank;
  std::string_view name;
  std::size_t count;
  std::string_view placeholders;
};

constexpr BankRow allBanks[] = {
#define BANK(name, count, placeholders) {Bank::name, #name, count, placeholders},
#include "banks/banks.def"
};

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

// True when two rows of the same length differ in a word at the most.
bool differInOneWord(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  constexpr std::size_t shortestSentence = 4;
  if (a.size() != b.size() || a.size() < shortestSentence) return false;
  std::size_t different = 0;
  for (std::size_t place = 0; place < a.size(); ++place) different += a[place] != b[place] ? 1 : 0;
  return different <= 1;
}

TEST(Banks, HoldAsManyRowsAsTheyPromise) {
  for (const BankRow& row : allBanks) EXPECT_EQ(rowsOf(row.bank).size(), row.count) << row.name;
}

TEST(Banks, HoldOnlyWhatTheRuleCanFillIn) {
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

TEST(Banks, NeverSayTheSameThingTwice) {
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

}  // namespace
}  // namespace tb
