#pragma once

// The fields of every struct and the values of every enumeration of the view vocabulary. The JSON of a page
// (page_json.h) and its TypeScript types (view_types.h) are generated from these lists. A missing field,
// value or kind of node does not compile.
//
// Operations are listed but not written, because their handles are. PagedList is not listed, because layOut()
// replaces it.

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/record_fields.h"
#include "screens/view.h"

namespace tb {

// The name of a struct or an enumeration inside tb::view.
template <class T>
inline constexpr std::string_view viewName{};

// A field that is not written to JSON.
template <class T>
inline constexpr bool isOperation =
    std::is_same_v<T, Operation> || std::is_same_v<T, TextOperation> || std::is_same_v<T, NumberOperation>;

// A node's `kind` in JSON: "timelineEntry" for a TimelineEntry.
[[nodiscard]] inline std::string kindOf(std::string_view name) {
  std::string kind(name);
  kind.front() = static_cast<char>(kind.front() - 'A' + 'a');
  return kind;
}

template <class T>
inline constexpr bool isVector = false;
template <class T>
inline constexpr bool isVector<std::vector<T>> = true;

}  // namespace tb

#define VIEW_STRUCT(Type, ...)            \
  RECORD_FIELDS(view::Type, __VA_ARGS__); \
  template <>                             \
  inline constexpr std::string_view viewName<view::Type> = #Type

#define VIEW_WORDS(...) __VA_OPT__(TB_EXPAND(VIEW_WORDS_STEP(__VA_ARGS__)))
#define VIEW_WORDS_STEP(word, ...) \
  case word:                       \
    return #word;                  \
    __VA_OPT__(VIEW_WORDS_AGAIN TB_PARENTHESES(__VA_ARGS__))
#define VIEW_WORDS_AGAIN() VIEW_WORDS_STEP

// Defines wordOf(value), the value's name; empty for an invalid value. The switch lets the compiler check
// completeness.
#define VIEW_ENUM(Type, ...)                                      \
  template <>                                                     \
  inline constexpr std::string_view viewName<view::Type> = #Type; \
  constexpr std::string_view wordOf(view::Type value) {           \
    using enum view::Type;                                        \
    switch (value) { VIEW_WORDS(__VA_ARGS__) }                    \
    return {};                                                    \
  }                                                               \
  static_assert(true)

namespace tb {

VIEW_ENUM(Tone, plain, quiet, good, warning, accent);
VIEW_ENUM(Band, none, poor, fair, good, great);
VIEW_ENUM(Icon, none, home, work, social, life, wealth, backstage, settings, energy, rose);
VIEW_ENUM(PictureKind, avatar, poster, logo, house, vehicle, card, photo, icon);
VIEW_ENUM(PosterFormat, feature, series, commercial, student, shortFilm);
VIEW_ENUM(Text::Style, body, large, caption, quotation, heading);
VIEW_ENUM(Button::Weight, normal, primary, quiet, destructive, done);
VIEW_ENUM(Row::Step, none, open, taken);
VIEW_ENUM(Chart::Kind, line, bar, pie, histogram);
VIEW_ENUM(Place::Move, none, up, down, level, entered);
VIEW_ENUM(Moment::Scene, deal, curtain, marquee, envelope, glow, tabloid);
VIEW_ENUM(Page::Head, full, line);

VIEW_STRUCT(Picture, kind, name, description, title, genre, format, season, billed, age);
VIEW_STRUCT(Text, text, style, tone);
VIEW_STRUCT(StatTile, label, value, detail, tone, band, icon);
VIEW_STRUCT(Tiles, tiles);
VIEW_STRUCT(Balance, label, net, tone, income, expenses);
VIEW_STRUCT(Meter, label, value, maximum, text, band);
VIEW_STRUCT(Stars, label, value, outOf);
VIEW_STRUCT(Price, amount, icon);
VIEW_STRUCT(Button, label, press, price, offReason, refusal, name, weight, handle);
VIEW_STRUCT(Buttons, buttons);
VIEW_STRUCT(Row, label, value, detail, picture, tone, step, band, press, action, handle);
VIEW_STRUCT(Headline, stamp, text, detail, value, picture, tone, isLead, press, handle);
VIEW_STRUCT(Post, note, author, when, text, picture, comments, reposts, likes, isVerified, mine, actions,
            press, handle);
VIEW_STRUCT(Place, place, move, moved, label, detail, value, picture, tone, press, handle);
VIEW_STRUCT(Field, label, value, type, hint, maximumLength, severalLines, handle);
VIEW_STRUCT(Slider, label, value, minimum, maximum, step, text, slide, handle);
VIEW_STRUCT(Choice::Option, label, chosen, press, picture, handle);
VIEW_STRUCT(Choice, label, options, several);
VIEW_STRUCT(Chart::Point, label, value, text);
VIEW_STRUCT(Chart::Tick, value, text);
VIEW_STRUCT(Chart, kind, title, points, scale, summary);
VIEW_STRUCT(Bubble, speaker, text, mine, letterTime, delay);
VIEW_STRUCT(TimelineEntry, when, text);
VIEW_STRUCT(Countdown, label, secondsLeft, secondsInAll);
VIEW_STRUCT(Section, heading, nodes);
VIEW_STRUCT(Fold, key, label, nodes, isOpen, handle);
VIEW_STRUCT(Card, title, subtitle, picture, nodes, press, handle);
VIEW_STRUCT(SwipeCard, card, left, right);
VIEW_STRUCT(ListPage, nodes, position, turns);
VIEW_STRUCT(Tab, label, icon, current, press, isOff, handle);
VIEW_STRUCT(PassingLine, text, number);
VIEW_STRUCT(Dialog, title, message, answers);
VIEW_STRUCT(Moment, scene, title, line, picture, number);
VIEW_STRUCT(Page, title, subtitle, heading, head, icons, figures, nodes, main, tabs, close, dialog, moment,
            passing, offersSaves, screen);

}  // namespace tb
