#include "screens/view.h"

#include <utility>

namespace tb::view {

template <class Kind>
Node::Node(Kind kind) : node(std::move(kind)) {}

template Node::Node(Text);
template Node::Node(Tiles);
template Node::Node(Balance);
template Node::Node(Meter);
template Node::Node(Stars);
template Node::Node(Button);
template Node::Node(Buttons);
template Node::Node(Row);
template Node::Node(Headline);
template Node::Node(Post);
template Node::Node(Place);
template Node::Node(Field);
template Node::Node(Slider);
template Node::Node(Choice);
template Node::Node(Chart);
template Node::Node(Picture);
template Node::Node(Bubble);
template Node::Node(TimelineEntry);
template Node::Node(Countdown);
template Node::Node(Section);
template Node::Node(Fold);
template Node::Node(Card);
template Node::Node(SwipeCard);
template Node::Node(PagedList);
template Node::Node(ListPage);

Node::Node(const Node& other) = default;
Node::Node(Node&& other) noexcept = default;
Node& Node::operator=(const Node& other) = default;
Node& Node::operator=(Node&& other) noexcept = default;
Node::~Node() = default;

}  // namespace tb::view
