#pragma once

// How each kind of node looks as text.

#include <map>
#include <string>

#include "screens/view.h"
#include "shells/console/canvas.h"
#include "shells/console/painter.h"

namespace tb::console {

// Collects what stands under each number while the page is drawn, so that what the player can use is just
// what the player sees.
struct Targets {
  std::map<view::Handle, Target> all;

  // The mark of the number, "[3]"; empty for handle 0.
  std::string add(view::Handle handle, Target target);
};

// A tab or an icon, and a button, as part of a line.
[[nodiscard]] Runs tabRuns(Targets& targets, const view::Tab& tab);
[[nodiscard]] Runs buttonRuns(Targets& targets, const view::Button& button);

// A button on a line of its own, with the reason below it when it is off.
void drawButton(Canvas& canvas, Targets& targets, const view::Button& button);

class NodePainter {
 public:
  NodePainter(Canvas& canvas, Targets& targets) : canvas_(canvas), targets_(targets) {}

  void draw(const view::Node& node);

  // True when a countdown that still runs was drawn.
  [[nodiscard]] bool counting() const { return counting_; }

 private:
  // One for each kind: a new kind does not compile until it is drawn.
  void kind(const view::Text& text);
  void kind(const view::Tiles& tiles);
  void kind(const view::Meter& meter);
  void kind(const view::Stars& stars);
  void kind(const view::Button& button);
  void kind(const view::Buttons& buttons);
  void kind(const view::Row& row);
  void kind(const view::Field& field);
  void kind(const view::Slider& slider);
  void kind(const view::Choice& choice);
  void kind(const view::Chart& chart);
  void kind(const view::Picture& picture);
  void kind(const view::Bubble& bubble);
  void kind(const view::TimelineEntry& entry);
  void kind(const view::Countdown& countdown);
  void kind(const view::Section& section);
  void kind(const view::Card& card);
  void kind(const view::SwipeCard& swipe);
  void kind(const view::PagedList& list);
  void kind(const view::ListPage& list);

  void gauge(const std::string& label, double share, const std::string& text, Ink ink, std::string margin);
  void several(const std::vector<view::Node>& nodes);

  Canvas& canvas_;
  Targets& targets_;
  bool counting_ = false;
  int depth_ = 0;  // of sections, cards and lists around what is drawn
};

}  // namespace tb::console
