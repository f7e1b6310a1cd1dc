#include "film/review_summary.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "banks/draw.h"
#include "banks/review_summary_banks.h"
#include "core/bands.h"
#include "core/descending.h"
#include "core/format.h"
#include "core/text.h"

namespace tb {

namespace {

// --- Topics of reviews ---

using Words = std::span<const std::string_view>;

struct Topic {
  std::string_view name;
  Words keywords;
};

constexpr auto performances =
    std::to_array<std::string_view>({"acting", "performance", "cast", "actor", "chemistry", "range",
                                     "carried", "ate", "served", "snapped", "aura"});
constexpr auto visuals =
    std::to_array<std::string_view>({"cinematography", "visual", "shot", "shots", "look", "pretty",
                                     "gorgeous", "aesthetic", "frames", "wallpaper"});
constexpr auto soundtrack = std::to_array<std::string_view>({"soundtrack", "music", "score", "song", "bop"});
constexpr auto story = std::to_array<std::string_view>(
    {"story", "writing", "script", "plot", "twist", "ending", "world-building", "lore"});
constexpr auto goodPacing =
    std::to_array<std::string_view>({"pacing", "tight", "moves", "fast", "smooth", "locked in"});
constexpr std::array<Topic, 5> praiseTopics = {{{.name = "performances", .keywords = performances},
                                                {.name = "visuals", .keywords = visuals},
                                                {.name = "soundtrack", .keywords = soundtrack},
                                                {.name = "story", .keywords = story},
                                                {.name = "pacing", .keywords = goodPacing}}};

constexpr auto badPacing =
    std::to_array<std::string_view>({"drag", "dragging", "slow", "boring", "slog", "buffering", "rushed"});
constexpr auto writing = std::to_array<std::string_view>(
    {"script", "writing", "dialogue", "cringe", "corny", "predictable", "lazy", "first draft", "yapping"});
constexpr auto plot = std::to_array<std::string_view>(
    {"plot hole", "plot holes", "confusing", "incoherent", "messy", "doesn't make sense", "no sense"});
constexpr auto tone =
    std::to_array<std::string_view>({"tone", "all over the place", "identity crisis", "inconsistent"});
constexpr auto cgi = std::to_array<std::string_view>({"cgi", "vfx", "effects", "green screen"});
constexpr std::array<Topic, 5> complaintTopics = {{{.name = "pacing", .keywords = badPacing},
                                                   {.name = "writing", .keywords = writing},
                                                   {.name = "plot", .keywords = plot},
                                                   {.name = "tone", .keywords = tone},
                                                   {.name = "cgi", .keywords = cgi}}};

constexpr auto slang = std::to_array<std::string_view>(
    {"fr",   "ngl",       "lowkey",    "highkey", "no cap",  "cap", "cooked",  "ate",     "slay",    "mid",
     "vibe", "locked in", "rent free", "npc",     "yapping", "bop", "serving", "snapped", "fumbled", "w"});
constexpr auto praise = std::to_array<std::string_view>(
    {"love", "loved", "great", "amazing", "incredible", "masterpiece", "phenomenal", "excellent", "solid",
     "fun", "fire", "peak", "iconic", "beautiful", "clean", "hits"});
constexpr auto blame =
    std::to_array<std::string_view>({"hate", "hated", "bad", "terrible", "awful", "boring", "cringe", "messy",
                                     "confusing", "lazy", "flop", "trash", "waste", "pain", "mid"});

constexpr std::size_t topicsNamed = 2;        // of praise and of blame each
constexpr std::int64_t casualSlangWords = 2;  // slang words; with this many or more the reviews are casual

// --- Sentences ---

struct SummaryBanks {
  Bank verdict;
  Bank balance;
  Bank consensus;
  Bank advice;
};

// By the number of praising words minus the number of blaming words.
struct Mood {
  std::int64_t upTo;
  std::string_view label;
  SummaryBanks casual;
  SummaryBanks formal;
};

constexpr std::array<Mood, 5> moods = {{
    {.upTo = -3,
     .label = "very negative",
     .casual = {bank::verdictCasualVeryNegative, bank::balanceCasualVeryNegative,
                bank::consensusCasualVeryNegative, bank::adviceCasualVeryNegative},
     .formal = {bank::verdictFormalVeryNegative, bank::balanceFormalVeryNegative,
                bank::consensusFormalVeryNegative, bank::adviceFormalVeryNegative}},
    {.upTo = -1,
     .label = "mixed-to-negative",
     .casual = {bank::verdictCasualMixedToNegative, bank::balanceCasualMixedToNegative,
                bank::consensusCasualMixedToNegative, bank::adviceCasualMixedToNegative},
     .formal = {bank::verdictFormalMixedToNegative, bank::balanceFormalMixedToNegative,
                bank::consensusFormalMixedToNegative, bank::adviceFormalMixedToNegative}},
    {.upTo = 0,
     .label = "mixed",
     .casual = {bank::verdictCasualMixed, bank::balanceCasualMixed, bank::consensusCasualMixed,
                bank::adviceCasualMixed},
     .formal = {bank::verdictFormalMixed, bank::balanceFormalMixed, bank::consensusFormalMixed,
                bank::adviceFormalMixed}},
    {.upTo = 2,
     .label = "positive",
     .casual = {bank::verdictCasualPositive, bank::balanceCasualPositive, bank::consensusCasualPositive,
                bank::adviceCasualPositive},
     .formal = {bank::verdictFormalPositive, bank::balanceFormalPositive, bank::consensusFormalPositive,
                bank::adviceFormalPositive}},
    {.upTo = std::numeric_limits<std::int64_t>::max(),
     .label = "very positive",
     .casual = {bank::verdictCasualVeryPositive, bank::balanceCasualVeryPositive,
                bank::consensusCasualVeryPositive, bank::adviceCasualVeryPositive},
     .formal = {bank::verdictFormalVeryPositive, bank::balanceFormalVeryPositive,
                bank::consensusFormalVeryPositive, bank::adviceFormalVeryPositive}},
}};

// --- Reading ---

// All reviews concatenated in lower case, with a separator so that words do not merge.
std::string joined(std::span<const std::string> reviews) {
  std::string text;
  for (const std::string& review : reviews) {
    const std::string trimmedReview = trimmed(review);
    if (!trimmedReview.empty()) text += lowerCase(trimmedReview) + "\n";
  }
  return text;
}

bool isLetterAt(std::string_view text, std::size_t place) {
  if (place >= text.size()) return false;
  const char c = text[place];
  const bool isAccented = static_cast<unsigned char>(c) >= 0x80;  // part of a non-ASCII character
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || isAccented;
}

// True when the text contains the word as a whole word.
bool hasWord(std::string_view text, std::string_view word) {
  for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
    const bool beginsWord = at == 0 || !isLetterAt(text, at - 1);
    if (beginsWord && !isLetterAt(text, at + word.size())) return true;
  }
  return false;
}

// The number of different words that occur.
std::int64_t wordsIn(const std::string& text, Words keywords) {
  return std::ranges::count_if(keywords, [&](std::string_view word) { return hasWord(text, word); });
}

// The topics that occur, most frequent first, or `otherwise`.
std::string topicsIn(const std::string& text, std::span<const Topic> topics, std::string_view otherwise) {
  std::vector<Topic> found(topics.begin(), topics.end());
  const auto discussed = [&](const Topic& topic) { return wordsIn(text, topic.keywords); };
  std::erase_if(found, [&](const Topic& topic) { return discussed(topic) == 0; });
  sortDescending(found, discussed);
  if (found.size() > topicsNamed) found.resize(topicsNamed);
  std::vector<std::string> names;
  for (const Topic& topic : found) names.emplace_back(topic.name);
  return names.empty() ? std::string(otherwise) : joinedWithAnd(names);
}

}  // namespace

std::string summarizeReviews(Game& game, std::span<const std::string> reviews,
                             const std::optional<std::string>& title) {
  const std::string text = joined(reviews);
  if (text.empty()) return "Not enough reviews to generate a summary yet.";

  const bool isCasual = wordsIn(text, slang) >= casualSlangWords;
  const Mood& mood = *bandOf(moods, wordsIn(text, praise) - wordsIn(text, blame));
  const SummaryBanks& banks = isCasual ? mood.casual : mood.formal;

  const std::string subject = title ? "\"" + *title + "\"" : "this film";
  const std::string good = topicsIn(text, praiseTopics, isCasual ? "some moments" : "a few highlights");
  const std::string bad =
      topicsIn(text, complaintTopics, isCasual ? "a couple rough spots" : "a few rough edges");

  const std::string verdict = fill(drawFreshRow(game, banks.verdict), {{"subject", subject}});
  const std::string balance = fill(drawFreshRow(game, banks.balance), {{"good", good}, {"bad", bad}});
  const std::string consensus = fill(drawFreshRow(game, banks.consensus), {{"label", mood.label}});
  const std::string_view advice = drawFreshRow(game, banks.advice);
  return tb::format("{} {} {} {}", verdict, balance, consensus, advice);
}

}  // namespace tb
