#pragma once

// The view vocabulary: what a screen is made of. A screen says what things are; a shell decides how they
// look. Nothing here draws, and nothing here knows a rule.
//
// A page is built anew after every action of the player. Operations stand in the nodes themselves; laying a
// page out (screens/layout.h) numbers them, and a shell hands the number of what the player used back to the
// App.

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace tb {

class Stage;  // what an operation works on: the game and the stack of screens (screens/stage.h)

// What happens when the player presses, types or slides.
using Operation = std::function<void(Stage&)>;
using TextOperation = std::function<void(Stage&, const std::string&)>;
using NumberOperation = std::function<void(Stage&, double)>;

}  // namespace tb

namespace tb::view {

// The number under which a laid-out page knows an operation; 0 where there is none, or it is off.
using Handle = int;

// What a text or figure says about itself; a shell tints by it and a screen reader hears it from the words.
enum class Tone : std::uint8_t {
  plain,
  quiet,    // of less weight: captions, hints
  good,     // gain, success
  warning,  // expenses, losses, danger
  accent,
};

// The band of a score from 0 to 100, by which it is tinted wherever it stands; none for any other figure.
enum class Band : std::uint8_t { none, poor, fair, good, great };

// A small sign beside words or a figure. Each shell draws it in its own way.
enum class Icon : std::uint8_t { none, home, work, social, life, wealth, backstage, settings, energy };

enum class PictureKind : std::uint8_t { avatar, poster, logo, house, vehicle, card, photo, icon };

// What a poster is made for; each has a look of its own.
enum class PosterFormat : std::uint8_t { feature, series, commercial, student, shortFilm };

// Drawn from its fields: the same picture for the same fields, every time, everywhere.
struct Picture {
  PictureKind kind = PictureKind::photo;
  std::string name;
  std::string description;  // for those who do not see it; empty when the text beside it says the same
  // Of a poster; the others leave them as they are.
  std::string title;  // as it is lettered; empty for none
  std::string genre;  // one of the catalogue's; any other, or none, leaves the choice to the name
  PosterFormat format = PosterFormat::feature;
  int season = 0;      // of a series, from 2 on
  std::string billed;  // the performer, where the part is one that a poster names; else empty
  // Of an avatar: in years; 0 for an age that nobody knows.
  int age = 0;
};

struct Text {
  enum class Style : std::uint8_t {
    body,
    large,
    caption,
    quotation,
    heading,  // over what follows it, until the next one
  };
  std::string text;  // "\n" breaks the line
  Style style = Style::body;
  Tone tone = Tone::plain;
};

// A figure that is worth a large number.
struct StatTile {
  std::string label;
  std::string value;  // formatted
  std::string detail;
  Tone tone = Tone::plain;
  Band band = Band::none;  // takes the place of the tone
  Icon icon = Icon::none;  // what it is counted in
};

// Tiles that belong side by side.
struct Tiles {
  std::vector<StatTile> tiles;
};

// What is left, large, and under it what came in and what went out, in one line: "$450 | $50". The expenses
// stand in the warning colour.
struct Balance {
  std::string label;  // of what is left
  std::string net;    // formatted, as are the others
  Tone tone = Tone::plain;
  std::string income;
  std::string expenses;
};

// How much of something is there: energy, progress, a score.
struct Meter {
  std::string label;
  double value = 0;  // 0 to maximum; a value above it fills the meter
  double maximum = 100;
  std::string text;  // the figure in words, such as "72 of 100"
  Band band = Band::none;
};

// Stars out of `outOf`, halves included.
struct Stars {
  std::string label;
  double value = 0;
  int outOf = 5;
};

// What a button costs.
struct Price {
  std::string amount;      // formatted; empty for nothing
  Icon icon = Icon::none;  // of what is paid with, where the amount does not say it
};

struct Button {
  std::string label;
  Operation press;
  Price price;
  std::string offReason;  // not empty: the button is off, and this is why
  // Not empty: the rule behind it refuses now, and this is why, in a few words. It can be pressed all the
  // same and then says the whole of it.
  std::string refusal;
  // What a screen reader calls it where the label does not say what it is about: "Train Charisma to 2" for
  // "Train to 2" on the card of that trait.
  std::string name;
  enum class Weight : std::uint8_t {
    normal,
    primary,
    quiet,
    destructive,
    done,  // used already, and says so
  };
  Weight weight = Weight::normal;
  Handle handle = 0;
};

// Buttons that stand side by side.
struct Buttons {
  std::vector<Button> buttons;
};

// One line of a list: what, how much, where a press leads, and what can be done about it in place.
struct Row {
  std::string label;
  std::string value;
  std::string detail;
  std::vector<Picture> picture;  // none or one
  Tone tone = Tone::plain;
  enum class Step : std::uint8_t { none, open, taken };
  Step step = Step::none;      // of a list of steps, with a mark that tells those taken from the others
  Band band = Band::none;      // of the value, where it is a score
  Operation press;             // may be empty
  std::vector<Button> action;  // none or one
  Handle handle = 0;
};

// A piece of news: a stamp, what happened, and where a press leads.
struct Headline {
  std::string stamp;  // a word or two in capitals; may be empty
  std::string text;
  std::string detail;
  std::string value;             // a figure that the news is about
  std::vector<Picture> picture;  // none or one
  Tone tone = Tone::plain;       // of the stamp and the value
  bool isLead = false;           // the one that the page opens with, drawn large
  Operation press;               // may be empty
  Handle handle = 0;
};

struct Field {
  std::string label;
  std::string value;
  TextOperation type;
  std::string hint;
  int maximumLength = 80;  // in characters
  bool severalLines = false;
  Handle handle = 0;
};

struct Slider {
  std::string label;
  double value = 0;
  double minimum = 0;
  double maximum = 100;
  double step = 1;
  std::string text;  // the value as the player reads it
  NumberOperation slide;
  Handle handle = 0;
};

// One or several of a few options; pressing an option runs its operation.
struct Choice {
  struct Option {
    std::string label;
    bool chosen = false;
    Operation press;
    std::vector<Picture> picture = {};  // none or one
    Handle handle = 0;
  };
  std::string label;
  std::vector<Option> options;
  bool several = false;  // any number may be chosen, else exactly one
};

struct Chart {
  enum class Kind : std::uint8_t { line, bar, pie, histogram };
  struct Point {
    std::string label;  // of the place on the axis, or of the slice
    double value = 0;
    std::string text;  // the value in the game's number style
  };
  struct Tick {
    double value = 0;
    std::string text;
  };
  Kind kind = Kind::line;
  std::string title;
  std::vector<Point> points;
  std::vector<Tick> scale;  // of the value axis, lowest first; none for a pie
  std::string summary;      // what the chart shows, in a sentence or two
};

struct Bubble {
  std::string speaker;
  std::string text;
  bool mine = false;  // said by the player
};

struct TimelineEntry {
  std::string when;
  std::string text;
};

// Time that runs while the player looks; App::tick moves it.
struct Countdown {
  std::string label;
  double secondsLeft = 0;
  double secondsInAll = 0;
};

struct Node;

struct Section {
  std::string heading;
  std::vector<Node> nodes;
};

struct Card {
  std::string title;
  std::string subtitle;
  std::vector<Picture> picture;  // none or one
  std::vector<Node> nodes;
  Operation press;  // the whole card, may be empty
  Handle handle = 0;
};

// A row that opens to further nodes, and closes over them again.
struct Fold {
  std::string key;  // tells the folds of one screen apart, so that each stays open when drawn again
  std::string label;
  std::vector<Node> nodes;  // once laid out: empty while it is closed
  bool isOpen = false;      // filled in as the page is laid out
  Handle handle = 0;
};

// A card that is answered with one of two buttons, or by pushing it aside.
struct SwipeCard {
  Card card;
  Button left;
  Button right;
};

// A list of any length. Only the nodes that are on show are made.
struct PagedList {
  std::string key;  // tells the lists of one screen apart, so that each keeps its place when drawn again
  std::size_t size = 0;
  std::function<Node(std::size_t index)> nodeAt;
  std::string whenEmpty;  // a sentence in place of an empty list
  std::size_t pageLength = 20;
};

// What a PagedList is laid out as: the rows on show and the ways on and back.
struct ListPage {
  std::vector<Node> nodes;
  std::string position;       // "21–40 of 312"; empty when all is on show
  std::vector<Button> turns;  // none, or the ways back and on
};

struct Node {
  std::variant<Text, Tiles, Balance, Meter, Stars, Button, Buttons, Row, Headline, Field, Slider, Choice,
               Chart, Picture, Bubble, TimelineEntry, Countdown, Section, Fold, Card, SwipeCard, PagedList,
               ListPage>
      node;
  template <class T>
  Node(T kind) : node(std::move(kind)) {}
};

// A way to another screen that is always in reach: tabs at the bottom, icons at the top right.
struct Tab {
  std::string label;
  Icon icon = Icon::none;
  bool current = false;
  Operation press;
  bool isOff = false;  // can't be used on this screen; its place is kept
  Handle handle = 0;
};

// What was done just now, in a line that shows itself over the page and goes by itself. The number tells it
// from one before it with the same words.
struct PassingLine {
  std::string text;
  int number = 0;
};

// A message over the page; it has to be answered before anything else.
struct Dialog {
  std::string title;
  std::string message;
  std::vector<Button> answers;
};

// A scene of less than a second over the page, for a first or large thing. It is shown once and skipped by
// any press; nothing waits for it, and the page says the same in its own words.
struct Moment {
  enum class Scene : std::uint8_t {
    deal,     // the poster is dealt and stamped
    curtain,  // the curtain parts over the poster
    marquee,  // the title in lights
  };
  Scene scene = Scene::marquee;
  std::string title;  // a word or two in capitals
  std::string line;
  std::vector<Picture> picture;  // none or one
  int number = 0;                // counts the moments since launch, filled in by the Stage
};

struct Page {
  std::string title;
  std::string subtitle;
  // What this part of the screen is called, where the title names the whole: a tab of the hub.
  std::string heading;
  enum class Head : std::uint8_t {
    full,
    line,  // title, subtitle and figures share one line, as far as there is room
  };
  Head head = Head::full;
  std::vector<Tab> icons;         // at the top right
  std::vector<StatTile> figures;  // that are always in view: cash, energy
  std::vector<Node> nodes;
  // None or one: what the player comes to the page for, at one spot within reach of the thumb on every page.
  std::vector<Button> main;
  std::vector<Tab> tabs;
  std::vector<Button> close;   // none or one: the way back, filled in by the App for screens that can be left
  std::vector<Dialog> dialog;  // none or one
  std::vector<Moment> moment;  // none or one, filled in by the App for the one page after it was played
  std::vector<PassingLine> passing;  // none or one, filled in by the App
  bool offersSaves = false;  // where the platform lets the player take saves out and in, it does so here
  // Which screen this is, filled in by the App: the same number is the same screen, whatever it is called by
  // now, and another number is another one, though it may bear the same title.
  int screen = 0;
};

}  // namespace tb::view
