#include "screens/week/front_page_nodes.h"

#include "core/format.h"
#include "core/number_style.h"
#include "screens/love/love_parts.h"
#include "screens/moments.h"
#include "screens/offers/email_inbox_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/open_project.h"
#include "screens/work/project_words.h"
#include "week/news_desk.h"

namespace tb {

using namespace view;

namespace {

// A busy career has dozens of lines a week, most of them small residuals.
constexpr std::size_t rowsAtOnce = 12;

std::vector<Picture> pictureOf(const WorldState& world, const Story& story) {
  if (story.about.kind == NewsKind::birth && !world.saveAllChildList.empty()) {
    return {childPicture(world, world.saveAllChildList.back())};
  }
  if (story.project.empty()) return {};
  return {posterOf(world, story.project.front())};
}

std::string partAndType(const Story& story) {
  if (story.project.empty()) return "";
  const Audition& project = story.project.front();
  const std::string type = typeName(project.typeOfFilm);
  return project.didAct < 1 || project.role.empty() ? type : tb::format("{} • {}", project.role, type);
}

// What the line leaves out: the title, where the line says only "a commercial"; the part, on the headline;
// the job that ended; and that the amount of a payment is the player's share, since the line may name the
// gross.
std::string detailWords(const WorldState& world, const Story& story, bool isLead) {
  if (story.about.kind == NewsKind::jobEnded) return world.weeklyJobTitle;
  const bool isPayment = story.about.kind == NewsKind::payday && story.about.amount > 0;
  const std::string part = isPayment ? "Paid to you" : isLead ? partAndType(story) : "";
  if (story.project.empty() || story.text.contains(story.project.front().title)) return part;
  const std::string title = titleWithSeason(story.project.front());
  return part.empty() ? title : tb::format("{} • {}", title, part);
}

std::string amountWords(const Locale& locale, double amount) {
  if (amount == 0) return "";
  return (amount > 0 ? "+" : "") + cash(locale, amount);
}

std::string momentLine(const Story& story) {
  if (story.project.empty()) return story.text;
  const Audition& project = story.project.front();
  const std::string title = titleWithSeason(project);
  switch (story.about.kind) {
    case NewsKind::offer:
      return project.role.empty() ? title : tb::format("{} • {}", title, project.role);
    case NewsKind::opening:
    case NewsKind::premiere:
      return title;
    default:
      return story.text;
  }
}

// Mail leads to the inbox, other news to its project.
Operation leadingToStory(const WorldState& world, const News& about) {
  const bool isMail = about.kind == NewsKind::mail || about.kind == NewsKind::agent;
  if (isMail && about.filmId == 0) return opens<EmailInboxViewController>();
  return leadingToProject(world, about.filmId);
}

}  // namespace

Headline headlineNode(const Game& game, const Story& story, bool isLead) {
  const News& about = story.about;
  return {.stamp = std::string(newsRule(about.kind).stamp),
          .text = story.text,
          .detail = detailWords(game.world, story, isLead),
          .value = amountWords(game.locale, about.amount),
          .picture = pictureOf(game.world, story),
          .tone = toneOf(about.kind),
          .isLead = isLead,
          .press = leadingToStory(game.world, about)};
}

std::vector<Node> rowNodes(const Game& game, const FrontPage& page) {
  std::vector<Node> nodes;
  if (page.rows.size() <= rowsAtOnce) {
    for (const Story& story : page.rows) nodes.push_back(headlineNode(game, story, false));
  } else {
    nodes.push_back(PagedList{
        .key = "news",
        .size = page.rows.size(),
        .nodeAt = [&game, &page](std::size_t index) { return headlineNode(game, page.rows[index], false); },
        .pageLength = rowsAtOnce});
  }
  if (page.folded.empty()) return nodes;
  Fold fold{.key = "refusals", .label = foldedWords(page.folded)};
  for (const Story& story : page.folded) fold.nodes.push_back(headlineNode(game, story, false));
  nodes.push_back(std::move(fold));
  return nodes;
}

void playStory(Stage& stage, const Story& story) {
  const WorldState& world = stage.game().world;
  if (!isMoment(world, story.about, {})) return;
  stage.play(momentOf(story.about.kind, momentLine(story), pictureOf(world, story)));
}

void playHeadline(Stage& stage, const FrontPage& page) {
  if (!page.isMoment) return;
  const Story& story = page.headline.front();
  stage.play(momentOf(story.about.kind, momentLine(story), pictureOf(stage.game().world, story)));
}

}  // namespace tb
