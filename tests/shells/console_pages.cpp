#include "tests/shells/console_pages.h"

#include <cmath>
#include <format>

namespace tb::test {

using namespace view;

namespace {

Section figures() {
  return {
      .heading = "FIGURES",
      .nodes = {
          Text{.text = "Week 12", .style = view::Text::Style::large},
          Text{.text = "You are the toast of the town, and the town knows it: three offers came in before "
                       "breakfast.\n\nOne of them pays."},
          Text{.text = "A voice like warm gravel.", .style = view::Text::Style::quotation},
          Tiles{{{.label = "Cash", .value = "$1,234,567", .detail = "+$300 this week"},
                 {.label = "Fans", .value = "12.3K"},
                 {.label = "Talent", .value = "38"},
                 {.label = "Age", .value = "21"},
                 {.label = "Earned this year", .value = "$80K", .tone = Tone::good}}},
          Balance{.label = "Net of the week",
                  .net = "+$1,380",
                  .tone = Tone::good,
                  .income = "$1,450",
                  .expenses = "$70"},
          Meter{.label = "Energy", .value = 72, .maximum = 100, .text = "72 of 100"},
          Meter{.label = "Voice", .value = 140, .maximum = 100, .text = "140", .band = Band::great},
          Stars{.label = "Critics", .value = 3.5, .outOf = 5},
          Countdown{.label = "Closing", .secondsLeft = 64.2, .secondsInAll = 120}}};
}

Headline booking(bool isLead) {
  return {.stamp = "BOOKED",
          .text = "You auditioned for The Long Night and the cast director offered you the role.",
          .detail = "Lead • Feature Film",
          .value = isLead ? "" : "+$1,200",
          .picture = {{.kind = PictureKind::poster, .name = "night", .description = "a lamp"}},
          .tone = Tone::good,
          .isLead = isLead,
          .press = nothing};
}

Section news() {
  return {
      .heading = "NEWS",
      .nodes = {booking(true), booking(false), Headline{.text = "You never heard back.", .tone = Tone::quiet},
                Fold{.key = "silences", .label = "4 never wrote back"}}};
}

Section crowd() {
  return {.heading = "CROWD",
          .nodes = {Post{.author = "popcornDuchess",
                         .when = "3h",
                         .text = "the trailer gave away everything except my keys, @ushers",
                         .picture = {{.kind = PictureKind::avatar, .name = "woman (3).png"}},
                         .comments = "12",
                         .reposts = "1.2K",
                         .likes = "8.1K",
                         .isVerified = true},
                    Post{.note = "Pinned",
                         .author = "Ada Quinn",
                         .when = "now",
                         .text = "Thank you.",
                         .comments = "0",
                         .reposts = "0",
                         .likes = "0",
                         .mine = true,
                         .actions = {{.label = "Unpin", .press = nothing}},
                         .press = nothing},
                    Place{.place = "1",
                          .move = Place::Move::up,
                          .moved = "up 3",
                          .label = "The Salt Wives",
                          .detail = "4 weeks in the Top 10",
                          .value = "41M",
                          .tone = Tone::accent,
                          .press = nothing},
                    Place{.place = "2", .label = "Suds Up"}}};
}

Section uses() {
  return {
      .heading = "TO DO",
      .nodes = {
          Button{.label = "Sign up", .press = nothing, .price = {"$1,200"}},
          Button{.label = "Buy the theatre",
                 .press = nothing,
                 .price = {"$4,000,000"},
                 .offReason = "You need more cash."},
          Buttons{{{.label = "Accept", .press = nothing}, {.label = "Decline", .press = nothing}}},
          Buttons{{{.label = "Fly", .press = nothing, .offReason = "The airport is closed."},
                   {.label = "Drive", .press = nothing, .price = {.amount = "12", .icon = Icon::energy}}}},
          Row{.label = "Real estate",
              .value = "$2.4M",
              .detail = "Two houses, one of them paid",
              .press = nothing},
          Row{.label = "Lost to age", .value = "0", .tone = Tone::quiet},
          Row{.label = "Audition in 2 weeks",
              .detail = "Cold Harbor Radio • Support",
              .press = nothing,
              .action =
                  {{.label = "Rehearse", .press = nothing, .price = {.amount = "4", .icon = Icon::energy}}}},
          Row{.label = "The Salt Wives",
              .press = nothing,
              .action = {{.label = "Submitted", .press = nothing, .weight = Button::Weight::done}}},
          Row{.label = "Suds Up",
              .action = {{.label = "Submit",
                          .press = nothing,
                          .price = {.amount = "20", .icon = Icon::energy},
                          .refusal = "Union members only"}}},
          Row{.label = "Find work", .step = Row::Step::taken},
          Row{.label = "Send showreels", .step = Row::Step::open, .press = nothing},
          Row{.label = "The Long Night of the Unfinished Screenplays",
              .value = "Casting closes in three weeks from today",
              .picture =
                  {{.kind = PictureKind::poster, .name = "night", .description = "a desk lamp in the rain"}},
              .press = nothing},
          Field{.label = "Stage name",
                .value = "Ada Lark",
                .type = [](Stage&, const std::string&) {},
                .hint = "As on the poster"},
          Field{.label = "Biography", .type = [](Stage&, const std::string&) {}, .severalLines = true},
          Slider{.label = "Budget",
                 .value = 25'000'000,
                 .minimum = 0,
                 .maximum = 40'000'000,
                 .step = 500'000,
                 .text = "$25M",
                 .slide = [](Stage&, double) {}},
          Choice{.label = "Genre",
                 .options = {{.label = "Drama", .chosen = true, .press = nothing},
                             {.label = "Comedy", .press = nothing},
                             {.label = "Science Fiction", .press = nothing}}},
          Choice{.label = "Extras",
                 .options = {{.label = "Valet", .chosen = true, .press = nothing},
                             {.label = "Band", .press = nothing}},
                 .several = true}}};
}

Chart chart(Chart::Kind kind, std::string title, const std::vector<double>& values) {
  Chart made{.kind = kind, .title = std::move(title), .summary = "It went as it went."};
  for (const double value : values) {
    made.points.push_back({.label = std::format("W{}", made.points.size() + 1),
                           .value = value,
                           .text = std::format("{:g}", value)});
  }
  if (kind == Chart::Kind::line) made.scale = {{-4, "-4"}, {0, "0"}, {4, "4"}, {8, "8"}};
  return made;
}

Section charts() {
  return {.heading = "CHARTS",
          .nodes = {chart(Chart::Kind::line, "Balance by week", {0, 1, 2, 4, 7.5, 8, 5, 2, -1, -4}),
                    chart(Chart::Kind::bar, "Box office", {12, 30, 7}),
                    chart(Chart::Kind::histogram, "Scores", {1, 4, 9, 3}),
                    chart(Chart::Kind::pie, "Income", {50, 30, 20})}};
}

Section people() {
  return {
      .heading = "PEOPLE",
      .nodes = {
          Picture{.kind = PictureKind::house, .name = "villa", .description = "a villa above the bay"},
          Bubble{.speaker = "Ada", .text = "Dinner? I know a place that does not mind being stared at."},
          Bubble{.speaker = "You", .text = "Only if they serve ラーメン 🍜.", .mine = true},
          TimelineEntry{
              .when = "WEEK 3",
              .text =
                  "Booked a principal role in a series that nobody has heard of yet, but everybody will."},
          TimelineEntry{.when = "SEPTEMBER 12, 2031", .text = "Married."},
          Card{.title = "The Long Night",
               .subtitle = "Feature Film",
               .picture = {{.kind = PictureKind::poster, .name = "p", .description = "a lamp"}},
               .nodes = {Text{.text = "A night that does not end."},
                         Section{.heading = "Role", .nodes = {Row{.label = "Lead", .value = "$90K"}}},
                         Button{.label = "Audition",
                                .press = nothing,
                                .price = {.amount = "10", .icon = Icon::energy}}},
               .press = nothing},
          Card{.title = "18 years old", .picture = {{.kind = PictureKind::avatar, .name = "ada"}}},
          SwipeCard{.card = {.title = "Robin, 29", .nodes = {Text{.text = "Climbs."}}},
                    .left = {.label = "Pass", .press = nothing},
                    .right = {.label = "Like", .press = nothing}},
          PagedList{
              .key = "log",
              .size = 5,
              .nodeAt =
                  [](std::size_t index) { return Node(Row{.label = std::format("Entry {}", index + 1)}); },
              .pageLength = 3},
          PagedList{.key = "none", .whenEmpty = "Nothing yet."}}};
}

}  // namespace

Page gallery() {
  return {.title = "Ada Lark",
          .subtitle = "MARCH\n20, 2026",
          .icons = {{.label = "The Backstage", .icon = Icon::backstage, .press = nothing},
                    {.label = "Settings", .icon = Icon::settings, .press = nothing}},
          .figures = {{.label = "Cash", .value = "$4,210"}, {.label = "Energy", .value = "⚡️ 62"}},
          .nodes = {figures(), news(), crowd(), uses(), charts(), people()},
          .main = {{.label = "End Week", .press = nothing, .weight = Button::Weight::primary}},
          .tabs = {{.label = "Home", .icon = Icon::home, .current = true, .press = nothing},
                   {.label = "Work", .icon = Icon::work, .press = nothing},
                   {.label = "Social", .icon = Icon::social, .press = nothing},
                   {.label = "Life", .icon = Icon::life, .press = nothing},
                   {.label = "Wealth", .icon = Icon::wealth, .press = nothing}},
          .close = {{.label = "Back", .press = nothing}},
          .moment = {{.title = "BOOKED", .line = "The Long Night • Lead"}}};
}

}  // namespace tb::test
