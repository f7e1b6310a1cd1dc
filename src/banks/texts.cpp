#include "banks/texts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/stop.h"

namespace tb {

#ifdef __wasm__

namespace {

std::string currentTexts;

}  // namespace

void setTexts(std::string texts) { currentTexts = std::move(texts); }

std::string_view texts() {
  if (currentTexts.empty()) stopTheGame("the texts are used before they were set");
  return currentTexts;
}

#else

namespace {

constexpr char agentsFile[] = {
#embed "banks/agents.txt"
};
constexpr char allTimeFile[] = {
#embed "banks/all_time.txt"
};
constexpr char angelFile[] = {
#embed "banks/angel.txt"
};
constexpr char auditionFile[] = {
#embed "banks/audition.txt"
};
constexpr char awardsFile[] = {
#embed "banks/awards.txt"
};
constexpr char bankableFile[] = {
#embed "banks/bankable.txt"
};
constexpr char boxOfficeFile[] = {
#embed "banks/box_office.txt"
};
constexpr char cameoFile[] = {
#embed "banks/cameo.txt"
};
constexpr char chirpFile[] = {
#embed "banks/chirp.txt"
};
constexpr char criticsFile[] = {
#embed "banks/critics.txt"
};
constexpr char dilemmasFile[] = {
#embed "banks/dilemmas.txt"
};
constexpr char earningsFile[] = {
#embed "banks/earnings.txt"
};
constexpr char eventsFile[] = {
#embed "banks/events.txt"
};
constexpr char fameFile[] = {
#embed "banks/fame.txt"
};
constexpr char filmFile[] = {
#embed "banks/film.txt"
};
constexpr char jobsFile[] = {
#embed "banks/jobs.txt"
};
constexpr char latchProfilesFile[] = {
#embed "banks/latch_profiles.txt"
};
constexpr char latchPromptsFile[] = {
#embed "banks/latch_prompts.txt"
};
constexpr char latchTalkFile[] = {
#embed "banks/latch_talk.txt"
};
constexpr char lifestyleFile[] = {
#embed "banks/lifestyle.txt"
};
constexpr char namesFile[] = {
#embed "banks/names.txt"
};
constexpr char negotiationFile[] = {
#embed "banks/negotiation.txt"
};
constexpr char offersFile[] = {
#embed "banks/offers.txt"
};
constexpr char rateMoviesFile[] = {
#embed "banks/rate_movies.txt"
};
constexpr char relationshipQuestionsFile[] = {
#embed "banks/relationship_questions.txt"
};
constexpr char relationshipsFile[] = {
#embed "banks/relationships.txt"
};
constexpr char reviewSummaryFile[] = {
#embed "banks/review_summary.txt"
};
constexpr char syndicationFile[] = {
#embed "banks/syndication.txt"
};
constexpr char talentFile[] = {
#embed "banks/talent.txt"
};
constexpr char titlesFile[] = {
#embed "banks/titles.txt"
};
constexpr char userReviewsFile[] = {
#embed "banks/user_reviews.txt"
};
constexpr char weekFile[] = {
#embed "banks/week.txt"
};

constexpr auto files = std::to_array<std::string_view>({
    {agentsFile, sizeof agentsFile},
    {allTimeFile, sizeof allTimeFile},
    {angelFile, sizeof angelFile},
    {auditionFile, sizeof auditionFile},
    {awardsFile, sizeof awardsFile},
    {bankableFile, sizeof bankableFile},
    {boxOfficeFile, sizeof boxOfficeFile},
    {cameoFile, sizeof cameoFile},
    {chirpFile, sizeof chirpFile},
    {criticsFile, sizeof criticsFile},
    {dilemmasFile, sizeof dilemmasFile},
    {earningsFile, sizeof earningsFile},
    {eventsFile, sizeof eventsFile},
    {fameFile, sizeof fameFile},
    {filmFile, sizeof filmFile},
    {jobsFile, sizeof jobsFile},
    {latchProfilesFile, sizeof latchProfilesFile},
    {latchPromptsFile, sizeof latchPromptsFile},
    {latchTalkFile, sizeof latchTalkFile},
    {lifestyleFile, sizeof lifestyleFile},
    {namesFile, sizeof namesFile},
    {negotiationFile, sizeof negotiationFile},
    {offersFile, sizeof offersFile},
    {rateMoviesFile, sizeof rateMoviesFile},
    {relationshipQuestionsFile, sizeof relationshipQuestionsFile},
    {relationshipsFile, sizeof relationshipsFile},
    {reviewSummaryFile, sizeof reviewSummaryFile},
    {syndicationFile, sizeof syndicationFile},
    {talentFile, sizeof talentFile},
    {titlesFile, sizeof titlesFile},
    {userReviewsFile, sizeof userReviewsFile},
    {weekFile, sizeof weekFile},
});

std::string allFiles() {
  std::string all;
  for (const std::string_view file : files) all += file;
  return all;
}

}  // namespace

std::string_view texts() {
  static const std::string all = allFiles();
  return all;
}

#endif

namespace {

std::string unescaped(std::string_view row) {
  constexpr std::string_view lineBreak = "\\n";
  std::string text;
  for (auto at = row.find(lineBreak); at != std::string_view::npos; at = row.find(lineBreak)) {
    text += row.substr(0, at);
    text += '\n';
    row.remove_prefix(at + lineBreak.size());
  }
  text += row;
  return text;
}

}  // namespace

Banks readBanks(std::string_view texts) {
  Banks banks;
  std::vector<std::string>* bank = nullptr;
  while (!texts.empty()) {
    const std::size_t end = std::min(texts.find('\n'), texts.size());
    const std::string_view line = texts.substr(0, end);
    texts.remove_prefix(std::min(end + 1, texts.size()));
    if (line.empty() || line.starts_with('#')) continue;
    if (line.starts_with('[')) {
      bank = &banks[line.substr(1, line.size() - 2)];
    } else if (bank != nullptr) {
      bank->push_back(unescaped(line));
    }
  }
  return banks;
}

}  // namespace tb
