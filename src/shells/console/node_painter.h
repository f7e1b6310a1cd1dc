#pragma once

// Draws each kind of node as text.

#include <string>
#include <vector>

#include "screens/view.h"
#include "shells/console/canvas.h"
#include "shells/console/targets.h"

namespace tb::console {

class NodePainter {
 public:
  NodePainter(Canvas& canvas, Targets& targets) : canvas_(canvas), targets_(targets) {}

  void draw(const view::Node& node);

  // True when a running countdown was drawn.
  [[nodiscard]] bool counting() const { return counting_; }

 private:
  // One overload per kind: a new kind does not compile without one.
  void kind(const view::Text& text);
  void kind(const view::Tiles& tiles);
  void kind(const view::Balance& balance);
  void kind(const view::Meter& meter);
  void kind(const view::Stars& stars);
  void kind(const view::Button& button);
  void kind(const view::Buttons& buttons);
  void kind(const view::Row& row);
  void kind(const view::Headline& headline);
  void kind(const view::Post& post);
  void kind(const view::Place& place);
  void kind(const view::Field& field);
  void kind(const view::Slider& slider);
  void kind(const view::Choice& choice);
  void kind(const view::Chart& chart);
  void kind(const view::Picture& picture);
  void kind(const view::Bubble& bubble);
  void kind(const view::TimelineEntry& entry);
  void kind(const view::Countdown& countdown);
  void kind(const view::Section& section);
  void kind(const view::Fold& fold);
  void kind(const view::Card& card);
  void kind(const view::SwipeCard& swipe);
  void kind(const view::PagedList& list);
  void kind(const view::ListPage& list);

  void labelled(const std::string& label, Runs drawn, std::string margin);
  void gauge(const std::string& label, double share, const std::string& text, Ink ink, std::string margin);
  void several(const std::vector<view::Node>& nodes);

  Canvas& canvas_;
  Targets& targets_;
  bool counting_ = false;
  int depth_ = 0;  // nesting in sections, cards and lists
};

}  // namespace tb::console
