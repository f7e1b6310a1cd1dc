#include "career/new_title.h"

#include <gtest/gtest.h>

#include "film/catalogue.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using NewTitle = test::RuleTest;

TEST_F(NewTitle, ReplacesMadeTitles) {
  const std::span<const Movie> table = movies();
  const auto nobody = [](const Movie&) { return false; };
  const auto drawn = [&](std::size_t row) -> const std::string& {
    return newTitle(table, table[row], madeTitles(world), nobody).title;
  };
  EXPECT_EQ(drawn(61), table[61].title);
  world.saveAllFilmList = {{.title = table[61].title}};  // the last feature film in the table
  world.saveAllAuditionList = {{.title = table[0].title, .funnelStage = funnel::booked},
                               {.title = table[1].title, .funnelStage = funnel::submitted}};
  EXPECT_EQ(drawn(61), table[1].title);  // a submission does not count as made
  EXPECT_EQ(drawn(0), table[1].title);
  EXPECT_EQ(newTitle(table, table[0], madeTitles(world),
                     [&](const Movie& movie) { return movie.title == table[1].title; })
                .title,
            table[2].title);
  for (const Movie& movie : table) world.saveAllFilmList.push_back({.title = movie.title});
  EXPECT_EQ(drawn(5), table[5].title);  // all are made, so it repeats
}

}  // namespace
}  // namespace tb
