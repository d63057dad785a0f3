// The plan of an intersection, to scale. The entry runs from left to right.
#include <algorithm>
#include <cmath>

#include "engine/formulas.h"
#include "sketches/section.h"

namespace orby {
namespace {

constexpr int MostUnits = 400;

class CrossingPlan {
 public:
  CrossingPlan(Drafting& drafting, const Box& box, const CrossingView& view)
      : drafting_(drafting), box_(box), view_(view), middle_(box.Middle()) {
    width_ = view.Width.IsThere() ? view.Width.Metres : SomeWidth;
    side_ = SideOfSpan(static_cast<Single>(view.Span.Metres));
    radius_ = view.SuggestedSpan.Metres / 4;
    // The corners of the pillars are always on view. What is much wider than the entry is cut off at the edge.
    const double half = std::clamp(1.4 * std::max(side_ / 2, radius_), 0.85 * width_, 2.5 * width_);
    scale_ = std::min(box.Width(), box.Height()) / 2 / half;
  }

  void Draw() {
    for (const double x : {-1.0, 1.0}) {
      for (const double y : {-1.0, 1.0}) DrawPillar(x, y);
    }
    if (view_.ShowsRock) DrawRock();
    DrawCircle();
    for (const DrawnSupport& support : view_.Supports) DrawUnits(support);
    DrawDiagonals();
    DrawTexts();
  }

 private:
  ScenePoint At(double x, double y) const { return {middle_.X + x * scale_, middle_.Y + y * scale_}; }

  // Cuts a point of the square of the diagonals off at the edge of the picture.
  double Cut(double metres) const {
    return std::min(metres, 0.98 * std::min(box_.Width(), box_.Height()) / 2 / scale_);
  }

  // A corner of a pillar is cut off as far as the diagonal reaches.
  void DrawPillar(double x, double y) {
    const double half = width_ / 2;
    const double reach = side_ > width_ ? Cut(side_ / 2) : half;
    const double chamfer = std::max(half, 2 * reach - half);
    const ScenePoint alongEntry = At(x * chamfer, y * half);
    const ScenePoint alongCrosscut = At(x * half, y * chamfer);
    const ScenePoint edge{x < 0 ? box_.Left : box_.Right, y < 0 ? box_.Top : box_.Bottom};
    const auto within = [&](const ScenePoint& point) {
      return ScenePoint{std::clamp(point.X, box_.Left, box_.Right), std::clamp(point.Y, box_.Top, box_.Bottom)};
    };
    const ScenePoint first = within(alongEntry);
    const ScenePoint second = within(alongCrosscut);
    drafting_.Draw(Trace()
                       .Move(edge.X, first.Y)
                       .Line(first.X, first.Y)
                       .Line(second.X, second.Y)
                       .Line(second.X, edge.Y)
                       .Line(edge.X, edge.Y)
                       .Close(),
                   {}, Coal);
    SceneStroke ribs = RockLine;
    ribs.IsDashed = !view_.Width.IsThere();
    drafting_.Draw(Trace().Move(edge.X, first.Y).Line(first.X, first.Y).Line(second.X, second.Y).Line(second.X, edge.Y),
                   ribs);
  }

  // The base of the rock is the square of the diagonals. Its top is smaller by the fall angles.
  void DrawRock() {
    const bool hasShape = side_ > 0 && view_.AlongEntry.Limited > 0;
    const double base = Cut(side_ > 0 ? side_ / 2 : width_ / 2);
    const bool isSolid = hasShape && view_.AlongEntry.IsComputed;
    const SceneStroke line{.Colour = Ink::Rock, .Width = 1.5, .IsDashed = !isSolid};
    drafting_.Draw(Trace().Rectangle(Around(base, base)), line, isSolid ? SceneFill{Ink::Rock, 0.15} : SceneFill{});
    if (!hasShape) return;
    const double x = Cut(view_.AlongEntry.Top / 2);
    const double y = Cut(view_.AlongCrosscut.Top / 2);
    Trace top;
    top.Rectangle(Around(x, y));
    for (const double right : {-1.0, 1.0}) {
      for (const double down : {-1.0, 1.0}) top.Segment(At(right * base, down * base), At(right * x, down * y));
    }
    drafting_.Draw(std::move(top), {.Colour = Ink::Rock, .Width = 1, .IsDashed = !isSolid});
  }

  Box Around(double x, double y) const {
    const ScenePoint first = At(-x, -y);
    const ScenePoint second = At(x, y);
    return {first.X, first.Y, second.X, second.Y};
  }

  // Diagonals of the suggested sum end on this circle. Without a suggestion it is dashed, at the ends of the actual
  // ones.
  void DrawCircle() {
    const bool isKnown = radius_ > 0;
    const double radius = isKnown ? radius_ : view_.Span.Metres / 4;
    if (radius <= 0) return;
    const bool isCut = Cut(radius) < radius;
    drafting_.Draw(Trace().Circle(middle_, Cut(radius) * scale_),
                   {.Colour = Ink::Limit, .Width = 1.5, .IsDashed = !isKnown || isCut});
  }

  void DrawDiagonals() {
    if (side_ <= 0) return;
    const double half = Cut(side_ / 2);
    drafting_.Draw(Trace().Segment(At(-half, -half), At(half, half)).Segment(At(half, -half), At(-half, half)),
                   {.Colour = Ink::Bolt, .Width = 2});
    if (half < side_ / 2) {
      Trace breaks;
      for (const double x : {-half, half}) {
        for (const double y : {-half, half}) breaks.Break(At(x * 0.9, y * 0.9));
      }
      drafting_.Draw(std::move(breaks), {.Colour = Ink::Bolt, .Width = 1});
    }
  }

  // The design has the number of units and not their places: they are spread evenly over the square.
  void DrawUnits(const DrawnSupport& support) {
    const int count = DrawnCount(support.Count, MostUnits);
    if (count == 0) return;
    const bool isInLines = support.Kind == SupportKind::Trusses;
    const int columns = isInLines ? 1 : static_cast<int>(std::ceil(std::sqrt(count)));
    const int rows = (count + columns - 1) / columns;
    const double half = Cut(side_ > 0 ? side_ / 2 : width_ / 2);
    const auto place = [half](int unit, int units) { return half * ((2 * unit + 1.0) / units - 1); };
    Trace marks;
    for (int unit = 0; unit < count; ++unit) {
      const int row = unit / columns;
      const ScenePoint at = At(place(unit % columns, columns), place(row, rows));
      MarkUnit(marks, support.Kind, {at.X + AsideOf(support.Kind), at.Y}, half * scale_);
    }
    drafting_.Draw(std::move(marks), {.Colour = support.Colour, .Width = 1.5},
                   support.Kind == SupportKind::Bolts ? SceneFill{support.Colour} : SceneFill{});
  }

  // A truss reaches `half` of the square to both sides.
  static void MarkUnit(Trace& marks, SupportKind kind, const ScenePoint& at, double half) {
    switch (kind) {
      case SupportKind::Trusses: marks.Segment({at.X - half, at.Y}, {at.X + half, at.Y}); break;
      case SupportKind::Standing:
        marks.Rectangle({at.X - HalfPost, at.Y - HalfPost, at.X + HalfPost, at.Y + HalfPost});
        break;
      case SupportKind::PrimaryBolts:
      case SupportKind::Cables:
      case SupportKind::Bolts: marks.Circle(at, DotRadius); break;
    }
  }

  void DrawTexts() {
    const double opening = width_ * scale_;
    const double circle = radius_ > 0 ? radius_ : view_.Span.Metres / 4;
    const double reach = std::max({Cut(side_ / 2), Cut(circle), width_ / 2}) * scale_;
    const double beside = middle_.X - reach - box_.Left - 8;  // room beside the square and the circle
    const double line = box_.Left + 8;
    drafting_.Dimension({line, middle_.Y - opening / 2}, {line, middle_.Y + opening / 2});
    drafting_.Write({"Entry width " + view_.Width.Text, view_.Width.Text}, {line + 5, middle_.Y + 4}, Anchor::Start,
                    beside - 10);
    drafting_.Write({"Entry"}, {box_.Right - 4, middle_.Y + 4}, Anchor::End, beside - 4);
    drafting_.Write({"Crosscut"}, {middle_.X, box_.Top + 14}, Anchor::Middle,
                    box_.Top + 16 < middle_.Y - reach ? opening - 6 : 0);
    const double pillar = middle_.X - opening / 2 - box_.Left;
    for (const double x : {box_.Left + pillar / 2, box_.Right - pillar / 2}) {
      for (const double y : {box_.Top + 14, box_.Bottom - 6}) {
        drafting_.Write({"Pillar"}, {x, y}, Anchor::Middle, pillar - 8);
      }
    }
    const double half = Cut(side_ / 2) * scale_;
    if (half < 56) return;
    drafting_.WriteBold("d1", {middle_.X - half * 0.6 + 10, middle_.Y - half * 0.6}, Anchor::Start);
    drafting_.WriteBold("d2", {middle_.X + half * 0.6 - 10, middle_.Y - half * 0.6}, Anchor::End);
  }

  Drafting& drafting_;
  Box box_;
  const CrossingView& view_;
  ScenePoint middle_;
  double width_ = 0;
  double side_ = 0;
  double radius_ = 0;
  double scale_ = 1;
};

}  // namespace

void DrawCrossingPlan(Drafting& drafting, const Box& box, const CrossingView& view) {
  CrossingPlan(drafting, box, view).Draw();
}

}  // namespace orby
