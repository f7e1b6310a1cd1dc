#include "banks/banks.h"

#include <array>
#include <map>
#include <vector>

namespace tb {

namespace {

// The files as they stand, one line a file; a bank may stand in any of them.
constexpr char weekFile[] = {
#embed "banks/week.txt"
};
constexpr char talentFile[] = {
#embed "banks/talent.txt"
};
constexpr char namesFile[] = {
#embed "banks/names.txt"
};
constexpr char titlesFile[] = {
#embed "banks/titles.txt"
};
constexpr char jobsFile[] = {
#embed "banks/jobs.txt"
};
constexpr char auditionFile[] = {
#embed "banks/audition.txt"
};
constexpr char filmFile[] = {
#embed "banks/film.txt"
};
constexpr char boxOfficeFile[] = {
#embed "banks/box_office.txt"
};
constexpr char earningsFile[] = {
#embed "banks/earnings.txt"
};
constexpr char syndicationFile[] = {
#embed "banks/syndication.txt"
};
constexpr char criticsFile[] = {
#embed "banks/critics.txt"
};
constexpr char userReviewsFile[] = {
#embed "banks/user_reviews.txt"
};
constexpr char reviewSummaryFile[] = {
#embed "banks/review_summary.txt"
};
constexpr char rateMoviesFile[] = {
#embed "banks/rate_movies.txt"
};
constexpr char allTimeFile[] = {
#embed "banks/all_time.txt"
};
constexpr char bankableFile[] = {
#embed "banks/bankable.txt"
};

constexpr std::array<std::string_view, 16> bankFiles = {{
    {weekFile, sizeof weekFile},
    {talentFile, sizeof talentFile},
    {namesFile, sizeof namesFile},
    {titlesFile, sizeof titlesFile},
    {jobsFile, sizeof jobsFile},
    {auditionFile, sizeof auditionFile},
    {filmFile, sizeof filmFile},
    {boxOfficeFile, sizeof boxOfficeFile},
    {earningsFile, sizeof earningsFile},
    {syndicationFile, sizeof syndicationFile},
    {criticsFile, sizeof criticsFile},
    {userReviewsFile, sizeof userReviewsFile},
    {reviewSummaryFile, sizeof reviewSummaryFile},
    {rateMoviesFile, sizeof rateMoviesFile},
    {allTimeFile, sizeof allTimeFile},
    {bankableFile, sizeof bankableFile},
}};

using BankRows = std::vector<std::string>;

std::string unescaped(std::string_view row) {
  std::string text;
  for (std::size_t place = 0; place < row.size(); ++place) {
    const bool line_break = row.substr(place).starts_with("\\n");
    text += line_break ? '\n' : row[place];
    if (line_break) place += 1;
  }
  return text;
}

// A file is "[name]" and then one row a line, bank after bank; empty lines and "#" comments say nothing.
void readFile(std::string_view file, std::map<std::string_view, BankRows>& banks) {
  BankRows* bank = nullptr;
  while (!file.empty()) {
    const std::size_t end = std::min(file.find('\n'), file.size());
    const std::string_view line = file.substr(0, end);
    file.remove_prefix(std::min(end + 1, file.size()));
    if (line.empty() || line.starts_with('#')) continue;
    if (line.starts_with('[')) {
      bank = &banks[line.substr(1, line.size() - 2)];
    } else if (bank != nullptr) {
      bank->push_back(unescaped(line));
    }
  }
}

std::vector<BankRows> readBanks() {
  std::map<std::string_view, BankRows> found;
  for (const std::string_view file : bankFiles) readFile(file, found);
  return {
#define BANK(name, count, placeholders) found[#name],
#include "banks/banks.def"
  };
}

}  // namespace

std::span<const std::string> rowsOf(Bank bank) {
  static const std::vector<BankRows> banks = readBanks();
  return banks[static_cast<std::size_t>(bank)];
}

const std::string& drawRow(RandomSource& random, Bank bank) { return RandomElement(random, rowsOf(bank)); }

}  // namespace tb
