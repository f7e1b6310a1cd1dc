#include "film/promotion.h"

#include <array>

#include "banks/draw.h"
#include "banks/film_banks.h"
#include "core/bands.h"
#include "core/chirps.h"
#include "core/find.h"

namespace tb {

namespace {

constexpr std::int64_t interviewAnswer = 1;  // Chirp::filmResponse of a talk show answer

// The hype of an interview grows with the number of fans.
struct AudienceBand {
  std::int64_t upTo;  // fans
  std::int64_t least;
  std::int64_t spread;  // the hype is least + RandomRange(spread)
};

constexpr std::array<AudienceBand, 7> audienceBands = {{
    {.upTo = 999, .least = 0, .spread = 5},
    {.upTo = 9'999, .least = 3, .spread = 5},
    {.upTo = 99'999, .least = 5, .spread = 5},
    {.upTo = 999'999, .least = 7, .spread = 7},
    {.upTo = 9'999'999, .least = 12, .spread = 7},
    {.upTo = 99'999'999, .least = 16, .spread = 15},
    {.upTo = 9'999'999'999, .least = 20, .spread = 16},
}};

// Zero above the last band of fans.
std::int64_t drawInterviewHype(Game& game) {
  const AudienceBand* const band = bandOf(audienceBands, game.world.totalFans);
  return band == nullptr ? 0 : band->least + RandomRange(game.random, band->spread);
}

void saveQuote(WorldState& world, const Audition& project, const Interview& interview,
               const std::string& answer) {
  world.saveAllQuotes.push_back({.filmId = project.filmId,
                                 .filmName = project.title,
                                 .character = project.characterName,
                                 .quote = answer,
                                 .question = interview.question});
}

void postAnswer(Game& game, const Audition& project, const std::string& answer) {
  Chirp post = playerChirp(game, "[on " + project.title + "] " + answer);
  post.filmResponse = interviewAnswer;
  post.filmId = project.filmId;
  addChirp(game.world, std::move(post));
}

}  // namespace

Interview openInterview(Game& game, const Audition& project) {
  Interview interview{.talkShow = std::string(drawFreshRow(game, bank::talkShows))};
  interview.question = fill(drawFreshRow(game, bank::promotionQuestions), {{"title", project.title}});
  interview.totalHype = drawInterviewHype(game);
  return interview;
}

std::string suggestedAnswer(Game& game) { return std::string(drawFreshRow(game, bank::promotionAnswers)); }

Refusal promoteFilm(Game& game, std::int64_t filmId, const Interview& interview, const std::string& answer) {
  const std::string said = trimmed(answer);
  if (said.empty()) {
    return Notice{.title = "🎤 Say Something 🎤", .message = "\nThe host is waiting for your answer."};
  }
  const auto index = find(game.world.saveAllAuditionList, &Audition::filmId, filmId);
  if (!index) return {};
  Audition& project = game.world.saveAllAuditionList.edit(*index);
  if (project.promoteHypeCount != 0) {
    return Notice{.title = "🎤 Already Promoted 🎤",
                  .message = "\nYou have given your interview for this title."};
  }
  postAnswer(game, project, said);
  saveQuote(game.world, project, interview, said);
  project.promoteHypeCount = 1;
  project.hypeRating += static_cast<double>(interview.totalHype);
  return {};
}

}  // namespace tb
