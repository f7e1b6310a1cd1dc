#include "shells/web/page_json.h"

#include <gtest/gtest.h>
#include <limits>

#include "screens/view.h"

namespace tb {
namespace {

std::string withTitle(std::string title) {
  view::Page page;
  page.title = std::move(title);
  const std::string json = pageJson(page);
  return json.substr(0, json.find(",\"subtitle\""));
}

TEST(PageJson, EscapesAnyText) {
  EXPECT_EQ(withTitle("Café \"Noir\" 🎬"), R"({"title":"Café \"Noir\" 🎬")");
  EXPECT_EQ(withTitle("a\\b\nc\td\x01"), R"({"title":"a\\b\nc\u0009d\u0001")");
  EXPECT_EQ(withTitle("</script>{}[],:"), R"({"title":"</script>{}[],:")");
}

TEST(PageJson, WritesEveryFieldInOrder) {
  view::Page page;
  page.title = "T";
  page.icons.push_back(
      {.label = "Backstage", .icon = view::Icon::backstage, .press = [](Stage&) {}, .handle = 1});
  page.nodes.push_back(view::Meter{.label = "Energy", .value = 72.5, .text = "72 of 100"});
  page.nodes.push_back(view::Section{
      .heading = "Feed",
      .nodes = {view::Text{.text = "Nothing yet", .tone = view::Tone::quiet}},
  });
  page.screen = 2;
  page.dialog.push_back({.title = "Q", .message = "M", .answers = {{.label = "OK", .handle = 3}}});
  EXPECT_EQ(
      pageJson(page),
      R"({"title":"T","subtitle":"","heading":"","head":"full",)"
      R"("icons":[{"label":"Backstage","icon":"backstage","current":false,"isOff":false,"handle":1}],"figures":[],)"
      R"("nodes":[{"kind":"meter","content":{"label":"Energy","value":72.5,"maximum":100,)"
      R"("text":"72 of 100","band":"none"}},)"
      R"({"kind":"section","content":{"heading":"Feed","nodes":[)"
      R"({"kind":"text","content":{"text":"Nothing yet","style":"body","tone":"quiet"}}]}}],)"
      R"("main":[],"tabs":[],"close":[],"dialog":[{"title":"Q","message":"M","answers":[)"
      R"({"label":"OK","price":{"amount":"","icon":"none"},"offReason":"","refusal":"","name":"","weight":"normal","handle":3}]}],)"
      R"("moment":[],"passing":[],"offersSaves":false,"screen":2})");
}

TEST(PageJson, WritesAllDigitsAndValidJson) {
  view::Page page;
  page.nodes.push_back(view::Countdown{.label = "", .secondsLeft = 0.1, .secondsInAll = 1e300});
  page.nodes.push_back(view::Countdown{.label = "",
                                       .secondsLeft = std::numeric_limits<double>::quiet_NaN(),
                                       .secondsInAll = std::numeric_limits<double>::infinity()});
  const std::string json = pageJson(page);
  EXPECT_NE(json.find(R"("secondsLeft":0.1,"secondsInAll":1e+300)"), std::string::npos) << json;
  EXPECT_NE(json.find(R"("secondsLeft":0,"secondsInAll":0)"), std::string::npos) << json;
}

}  // namespace
}  // namespace tb
