#include "screens/layout.h"

#include <algorithm>
#include <utility>

#include "core/format.h"

namespace tb {

namespace {

using namespace view;

ListPage cutList(const PagedList& list, const Stage& stage) {
  ListPage shown;
  if (list.size == 0) {
    if (!list.whenEmpty.empty()) shown.nodes.push_back(Text{.text = list.whenEmpty, .tone = Tone::quiet});
    return shown;
  }
  const std::size_t lastPage = (list.size - 1) / list.pageLength;
  const std::size_t page = std::min(stage.listPage(list.key), lastPage);
  const std::size_t first = page * list.pageLength;
  const std::size_t end = std::min(first + list.pageLength, list.size);
  for (std::size_t index = first; index < end; ++index) shown.nodes.push_back(list.nodeAt(index));
  if (lastPage == 0) return shown;

  const auto turnTo = [&](const char* label, bool possible, std::size_t target) {
    return Button{.label = label,
                  .press = [key = list.key, target](Stage& turned) { turned.turnList(key, target); },
                  .offReason = possible ? "" : "No more pages.",
                  .weight = Button::Weight::quiet};
  };
  shown.position = tb::format("{}–{} of {}", first + 1, end, list.size);
  shown.turns = {turnTo("Previous", page > 0, page - 1), turnTo("Next", page < lastPage, page + 1)};
  return shown;
}

class Layout {
 public:
  Layout(const Stage& stage, LaidOutPage& result) : stage_(stage), result_(result) {}

  void page(Page& page) {
    if (!page.dialog.empty()) {
      for (Button& answer : page.dialog.front().answers) visit(answer);
    }
    covered_ = !page.dialog.empty();
    for (Tab& icon : page.icons) icon.handle = pressable(icon.press);
    for (Button& close : page.close) visit(close);
    for (Node& node : page.nodes) visit(node);
    for (Button& main : page.main) visit(main);
    for (Tab& tab : page.tabs) tab.handle = tab.isOff ? 0 : pressable(tab.press);
  }

 private:
  Handle add(LaidOutPage::Use use) {
    if (covered_) return 0;
    result_.uses.push_back(std::move(use));
    return static_cast<Handle>(result_.uses.size());
  }
  Handle pressable(const Operation& press) { return press ? add({.press = press}) : 0; }

  void visit(Node& node) {
    if (const auto* list = std::get_if<PagedList>(&node.node)) node = cutList(*list, stage_);
    std::visit([this](auto& kind) { visit(kind); }, node.node);
  }
  void visitAll(std::vector<Node>& nodes) {
    for (Node& node : nodes) visit(node);
  }

  void visit(Button& button) { button.handle = button.offReason.empty() ? pressable(button.press) : 0; }
  void visit(Buttons& buttons) {
    for (Button& button : buttons.buttons) visit(button);
  }
  void visit(Row& row) {
    row.handle = pressable(row.press);
    for (Button& action : row.action) visit(action);
  }
  void visit(Headline& headline) { headline.handle = pressable(headline.press); }
  void visit(Post& post) {
    post.handle = pressable(post.press);
    for (Button& action : post.actions) visit(action);
  }
  void visit(Place& place) { place.handle = pressable(place.press); }
  void visit(Fold& fold) {
    fold.isOpen = stage_.isFoldOpen(fold.key);
    fold.handle = add({.press = [key = fold.key](Stage& stage) { stage.turnFold(key); }});
    if (!fold.isOpen) fold.nodes.clear();
    visitAll(fold.nodes);
  }
  void visit(Field& field) { field.handle = add({.type = field.type}); }
  void visit(Slider& slider) { slider.handle = add({.slide = slider.slide}); }
  void visit(Choice& choice) {
    for (Choice::Option& option : choice.options) option.handle = pressable(option.press);
  }
  void visit(Section& section) { visitAll(section.nodes); }
  void visit(Card& card) {
    card.handle = pressable(card.press);
    visitAll(card.nodes);
  }
  void visit(SwipeCard& swipe) {
    visit(swipe.card);
    visit(swipe.left);
    visit(swipe.right);
  }
  void visit(ListPage& list) {
    visitAll(list.nodes);
    for (Button& turn : list.turns) visit(turn);
  }
  // Nodes without operations.
  void visit(Text&) {}
  void visit(Tiles&) {}
  void visit(Balance&) {}
  void visit(Meter&) {}
  void visit(Stars&) {}
  void visit(Chart&) {}
  void visit(Picture&) {}
  void visit(Bubble&) {}
  void visit(TimelineEntry&) {}
  void visit(Countdown&) {}
  void visit(PagedList&) {}

  const Stage& stage_;
  LaidOutPage& result_;
  bool covered_ = false;
};

}  // namespace

LaidOutPage layOut(Page page, const Stage& stage) {
  LaidOutPage result;
  Layout(stage, result).page(page);
  result.page = std::move(page);
  return result;
}

}  // namespace tb
