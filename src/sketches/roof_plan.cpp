// The plan of the roof of an entry, to scale.
#include <algorithm>
#include <cmath>

#include "sketches/section.h"

namespace orby {
namespace {

constexpr double LeastRowGap = 4;
constexpr double FirstRow = 8;  // below the top of the plan

class RoofPlan {
 public:
  RoofPlan(Drafting& drafting, const Box& box, const Across& across)
      : drafting_(drafting), box_(box), plot_(WithoutDimensions(box)), across_(across) {}

  void Draw(const std::vector<DrawnSupport>& supports) {
    const Box left{plot_.Left, plot_.Top, across_.Left, plot_.Bottom};
    const Box right{across_.Right, plot_.Top, plot_.Right, plot_.Bottom};
    drafting_.Draw(Trace().Rectangle(left).Rectangle(right), {}, Coal);
    SceneStroke sides = RockLine;
    sides.IsDashed = !across_.IsKnown;
    drafting_.Draw(Trace()
                       .Segment({across_.Left, plot_.Top}, {across_.Left, plot_.Bottom})
                       .Segment({across_.Right, plot_.Top}, {across_.Right, plot_.Bottom}),
                   sides);
    for (const DrawnSupport& support : supports) DrawRows(support);
    if (!supports.empty()) DrawSpacing(supports[0], plot_.Left - 6, Anchor::End);
    if (supports.size() > 1) DrawSpacing(supports[1], plot_.Right + 8, Anchor::Start);
  }

 private:
  double Gap(const DrawnSupport& support) const { return support.Spacing.Metres * across_.Scale; }
  // Rows of each kind start a little lower than those of the kind before, so that both show.
  static double Start(const DrawnSupport& support) { return FirstRow + static_cast<double>(support.Kind); }

  // Returns how many rows the plan has room for. Rows closer than the least gap are not drawn one by one.
  int Rows(const DrawnSupport& support) const {
    const double gap = Gap(support);
    if (gap <= 0) return 0;
    return 1 + static_cast<int>((plot_.Height() - Start(support) - HalfPost) / std::max(gap, LeastRowGap));
  }

  void DrawRows(const DrawnSupport& support) {
    const int count = support.Kind == SupportKind::Trusses ? 1 : UnitsAcross(across_, support.Count);
    const int rows = Rows(support);
    if (rows == 0) return DrawUnknownRow(support);
    const double gap = std::max(Gap(support), LeastRowGap);
    Trace marks;
    for (int row = 0; row < rows; ++row) {
      const double y = plot_.Top + Start(support) + row * gap;
      for (int i = 0; i < count; ++i) Mark(marks, support.Kind, PlaceOf(across_, i, count) + AsideOf(support.Kind), y);
    }
    const bool isFilled = support.Kind == SupportKind::PrimaryBolts || support.Kind == SupportKind::Bolts;
    drafting_.Draw(std::move(marks), {.Colour = support.Colour, .Width = 1.5},
                   isFilled ? SceneFill{support.Colour} : SceneFill{});
  }

  void Mark(Trace& marks, SupportKind kind, double x, double y) const {
    switch (kind) {
      case SupportKind::Trusses: marks.Segment({across_.Left, y}, {across_.Right, y}); break;
      case SupportKind::Standing: marks.Rectangle({x - HalfPost, y - HalfPost, x + HalfPost, y + HalfPost}); break;
      case SupportKind::PrimaryBolts:
      case SupportKind::Cables:
      case SupportKind::Bolts: marks.Circle({x, y}, DotRadius); break;
    }
  }

  // Without a spacing, a dashed line stands for all rows.
  void DrawUnknownRow(const DrawnSupport& support) {
    const double y = plot_.Top + Start(support);
    drafting_.Draw(Trace().Segment({across_.Left, y}, {across_.Right, y}),
                   {.Colour = support.Colour, .Width = 1.5, .IsDashed = true});
  }

  void DrawSpacing(const DrawnSupport& support, double line, Anchor side) {
    const double first = plot_.Top + Start(support);
    const double gap = Gap(support);
    const bool isShown = gap > 0 && gap < plot_.Bottom - first;
    if (isShown && gap >= LeastRowGap) drafting_.Dimension({line, first}, {line, first + gap});
    if (gap > 0 && !isShown) {
      drafting_.Draw(Trace().Segment({line, first}, {line, plot_.Bottom - 9}).Break({line, plot_.Bottom - 8}),
                     ThinLine);
    }
    const double x = side == Anchor::End ? line - 3 : line + 4;
    const double room = side == Anchor::End ? x - box_.Left : box_.Right - x;
    const double middle = isShown ? first + gap / 2 : first + 12;
    drafting_.Write({"Rows " + support.Spacing.Text, support.Spacing.Text}, {x, middle + 4}, side, room);
  }

  Drafting& drafting_;
  Box box_;
  Box plot_;
  const Across& across_;
};

}  // namespace

void DrawRoofPlan(Drafting& drafting, const Box& box, const Across& across, const std::vector<DrawnSupport>& supports) {
  RoofPlan(drafting, box, across).Draw(supports);
}

}  // namespace orby
