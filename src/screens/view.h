#pragma once

// The view vocabulary: the nodes of a page. A screen says what things are; a shell decides how they look. It
// contains no drawing code and no game rules.
//
// A page is rebuilt after every action of the player. Nodes hold their operations; layOut()
// (screens/layout.h) numbers them, and a shell passes the number of the used item to the App.

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace tb {

class Stage;  // the stack of screens (screens/stage.h), passed to operations

// Runs when the player presses, types or slides.
using Operation = std::function<void(Stage&)>;
using TextOperation = std::function<void(Stage&, const std::string&)>;
using NumberOperation = std::function<void(Stage&, double)>;

}  // namespace tb

namespace tb::view {

// The number of an operation on a laid-out page; 0 when there is none or it is off.
using Handle = int;

// The meaning of a text or figure, shown as color. Its words must say the same, for screen readers.
enum class Tone : std::uint8_t {
  plain,
  quiet,    // less important: captions, hints
  good,     // gain, success
  warning,  // expenses, losses, danger
  accent,
};

// Bands of a score from 0 to 100, for its tint: below 25, 25 to 49, 50 to 79, 80 and above. None for other
// figures.
enum class Band : std::uint8_t { none, poor, fair, good, great };

// A small icon beside a text or a figure. Each shell draws it in its own way.
enum class Icon : std::uint8_t { none, home, work, social, life, wealth, backstage, settings, energy, rose };

enum class PictureKind : std::uint8_t { avatar, poster, logo, house, vehicle, card, photo, icon };

// The type of title on a poster; each has its own style.
enum class PosterFormat : std::uint8_t { feature, series, commercial, student, shortFilm };

// A picture drawn from its fields; equal fields always give the same picture.
struct Picture {
  PictureKind kind = PictureKind::photo;
  std::string name;
  std::string description;  // for screen readers; empty when adjacent text says the same
  // For posters only.
  std::string title;  // lettered on the poster; empty for none
  std::string genre;  // from the catalogue; for an empty or unknown one the image name decides
  PosterFormat format = PosterFormat::feature;
  int season = 0;      // of a series, when 2 or more
  std::string billed;  // the performer's name if billed; else empty
  // For avatars only: in years; 0 for unknown.
  int age = 0;
};

struct Text {
  enum class Style : std::uint8_t {
    body,
    large,
    caption,
    quotation,
    heading,  // above the nodes up to the next heading
  };
  std::string text;  // "\n" breaks the line
  Style style = Style::body;
  Tone tone = Tone::plain;
};

// A figure in a large font.
struct StatTile {
  std::string label;
  std::string value;  // formatted
  std::string detail;
  Tone tone = Tone::plain;
  Band band = Band::none;  // takes the place of the tone
  Icon icon = Icon::none;  // what it is counted in
};

// Tiles side by side.
struct Tiles {
  std::vector<StatTile> tiles;
};

// The net amount, large, above income and expenses on one line: "$450 | $50". Expenses are in the warning
// color.
struct Balance {
  std::string label;  // of the net amount
  std::string net;    // formatted, as are the others
  Tone tone = Tone::plain;
  std::string income;
  std::string expenses;
};

// A level: energy, progress, a score.
struct Meter {
  std::string label;
  double value = 0;  // 0 to maximum; a higher value fills the meter
  double maximum = 100;
  std::string text;  // such as "72 of 100"
  Band band = Band::none;
};

// A rating out of `outOf` stars, with halves.
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
  std::string offReason;  // if not empty, the button is off for this reason
  // If not empty, the rule would refuse now, for this brief reason. The button can still be pressed and then
  // shows the full notice.
  std::string refusal;
  // The name for screen readers when the label is unclear without its context: "Train Charisma to 2" for
  // "Train to 2" on a trait's card.
  std::string name;
  enum class Weight : std::uint8_t {
    normal,
    primary,
    quiet,
    destructive,
    done,  // already used
  };
  Weight weight = Weight::normal;
  Handle handle = 0;
};

// Buttons side by side.
struct Buttons {
  std::vector<Button> buttons;
};

// A line of a list: title, value, an operation when pressed, and an inline button.
struct Row {
  std::string label;
  std::string value;
  std::string detail;
  std::vector<Picture> picture;  // none or one
  Tone tone = Tone::plain;
  enum class Step : std::uint8_t { none, open, taken };
  Step step = Step::none;      // marks the row as an open or a completed step
  Band band = Band::none;      // of the value, if it is a score
  Operation press;             // may be empty
  std::vector<Button> action;  // none or one
  Handle handle = 0;
};

// A news item: a stamp, a text, and an operation when pressed.
struct Headline {
  std::string stamp;  // a word or two in capitals; may be empty
  std::string text;
  std::string detail;
  std::string value;             // a figure in the news
  std::vector<Picture> picture;  // none or one
  Tone tone = Tone::plain;       // of the stamp and the value
  bool isLead = false;           // the first one on the page, drawn large
  Operation press;               // may be empty
  Handle handle = 0;
};

// A post of a feed.
struct Post {
  std::string note;  // above it, such as "Pinned"; may be empty
  std::string author;
  std::string when;
  std::string text;              // words that start with "@" are highlighted
  std::vector<Picture> picture;  // of the author: none or one
  std::string comments;          // formatted, as are the next two
  std::string reposts;
  std::string likes;
  bool isVerified = false;
  bool mine = false;            // by the player
  std::vector<Button> actions;  // below it
  Operation press;              // may be empty
  Handle handle = 0;
};

// An entry of a chart, with its place.
struct Place {
  std::string place;
  enum class Move : std::uint8_t { none, up, down, level, entered };
  Move move = Move::none;  // since the last chart
  std::string moved;       // in words: "up 3"
  std::string label;
  std::string detail;
  std::string value;
  std::vector<Picture> picture;  // none or one
  Tone tone = Tone::plain;
  Operation press;  // may be empty
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
  std::string text;  // the formatted value
  NumberOperation slide;
  Handle handle = 0;
};

// A choice of one or several options; pressing an option runs its operation.
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
  bool several = false;  // true: any number can be chosen; false: exactly one
};

struct Chart {
  enum class Kind : std::uint8_t { line, bar, pie, histogram };
  struct Point {
    std::string label;  // of the point on the axis, or of the slice
    double value = 0;
    std::string text;  // the formatted value
  };
  struct Tick {
    double value = 0;
    std::string text;
  };
  Kind kind = Kind::line;
  std::string title;
  std::vector<Point> points;
  std::vector<Tick> scale;  // of the value axis, lowest first; empty for a pie
  std::string summary;      // for screen readers, one or two sentences
};

struct Bubble {
  std::string speaker;
  std::string text;
  bool mine = false;  // by the player
  // Of a text whose letters appear one by one: the seconds per letter, and those before the first one. All at
  // once with a time of 0, in a terminal, and with reduced motion.
  double letterTime = 0;
  double delay = 0;
};

struct TimelineEntry {
  std::string when;
  std::string text;
};

// A countdown in real time, advanced by App::tick.
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

// A row that expands to show more nodes.
struct Fold {
  std::string key;  // unique on the screen; identifies the fold when the page is rebuilt
  std::string label;
  std::vector<Node> nodes;  // after layout: empty while it is closed
  bool isOpen = false;      // set by layOut()
  Handle handle = 0;
};

// A card with two buttons, which can also be swiped.
struct SwipeCard {
  Card card;
  Button left;
  Button right;
};

// A list of any length. Only the visible nodes are created.
struct PagedList {
  std::string key;  // unique on the screen; identifies the list when the page is rebuilt
  std::size_t size = 0;
  std::function<Node(std::size_t index)> nodeAt;
  std::string whenEmpty;  // shown when the list is empty
  std::size_t pageLength = 20;
};

// The visible page of a PagedList after layout, with its paging buttons.
struct ListPage {
  std::vector<Node> nodes;
  std::string position;       // "21–40 of 312"; empty when everything is visible
  std::vector<Button> turns;  // none, or previous and next
};

struct Node {
  std::variant<Text, Tiles, Balance, Meter, Stars, Button, Buttons, Row, Headline, Post, Place, Field, Slider,
               Choice, Chart, Picture, Bubble, TimelineEntry, Countdown, Section, Fold, Card, SwipeCard,
               PagedList, ListPage>
      node;
  // For each kind. Defined in view.cpp, as what follows: a variant of so many kinds is slow to compile, and
  // every screen makes and moves nodes.
  template <class Kind>
  Node(Kind kind);

  Node(const Node& other);
  Node(Node&& other) noexcept;
  Node& operator=(const Node& other);
  Node& operator=(Node&& other) noexcept;
  ~Node();
};

// A link that is always visible: a tab at the bottom or an icon at the top right.
struct Tab {
  std::string label;
  Icon icon = Icon::none;
  bool current = false;
  Operation press;
  bool isOff = false;  // visible but not usable on this screen
  Handle handle = 0;
};

// A message about the last action that appears over the page and disappears by itself. The number
// distinguishes consecutive equal texts.
struct PassingLine {
  std::string text;
  int number = 0;
};

// A modal message over the page.
struct Dialog {
  std::string title;
  std::string message;
  std::vector<Button> answers;
};

// An animation of less than a second over the page, for a first or large event. It is played once, any press
// skips it, and the page has the same information.
struct Moment {
  enum class Scene : std::uint8_t {
    deal,      // a poster appears and is stamped
    curtain,   // a curtain opens over a poster
    marquee,   // the title in lights
    envelope,  // an envelope opens, and the line comes out
    glow,      // a portrait lights up
    tabloid,   // a front page spins in
  };
  Scene scene = Scene::marquee;
  std::string title;  // a word or two in capitals
  std::string line;
  std::vector<Picture> picture;  // none or one
  int number = 0;                // number of the moment since launch, set by the Stage
};

struct Page {
  std::string title;
  std::string subtitle;
  // The name of the tab, when the title names the whole screen.
  std::string heading;
  enum class Head : std::uint8_t {
    full,
    line,  // title, subtitle and figures on one line if there is room
  };
  Head head = Head::full;
  std::vector<Tab> icons;         // at the top right
  std::vector<StatTile> figures;  // always visible: cash, energy
  std::vector<Node> nodes;
  // None or one: the page's main action, at the same position on every page, within reach of the thumb.
  std::vector<Button> main;
  std::vector<Tab> tabs;
  std::vector<Button> close;         // none or one: the back button, set by the App
  std::vector<Dialog> dialog;        // none or one
  std::vector<Moment> moment;        // none or one, set by the App, for one page only
  std::vector<PassingLine> passing;  // none or one, set by the App
  bool offersSaves = false;          // the shell may offer export and import of saves here
  // Identifies the screen instance, set by the App: different screens have different numbers even if their
  // titles are equal.
  int screen = 0;
};

}  // namespace tb::view
