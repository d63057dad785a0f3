// The section across an opening, to scale.
#include <algorithm>
#include <cmath>

#include "sketches/section.h"

namespace orby {
namespace {

constexpr double LeftColumn = 64;    // with the depth of cover and the bolt length
constexpr double RightColumn = 54;   // with the height of the rock
constexpr double WidestShare = 0.7;  // of the opening, of the width of the picture
constexpr double LeastShare = 0.22;
constexpr double LeastGap = 4;  // between two units of a row
constexpr double BoltWidth = 2.2;

class Section {
 public:
  Section(Drafting& drafting, const Box& box, const SectionView& view)
      : drafting_(drafting), box_(box), plot_(view.IsBare ? box : WithoutDimensions(box)), view_(view) {
    const double opening = std::clamp(0.22 * box.Height(), view.IsBare ? 12.0 : 30.0, 60.0);
    floor_ = box.Bottom - (view.IsBare ? 4 : 20);
    roof_ = floor_ - opening;
    top_ = std::min(box.Top + (view.IsBare ? 4 : 30), roof_ - 10);
    FindScale();
  }

  Across Draw() {
    DrawGround();
    DrawRock();
    for (const DrawnSupport& support : view_.Supports) DrawSupport(support);
    DrawSuggestion();
    if (!view_.IsBare) DrawDimensions();
    return across_;
  }

 private:
  // The opening gets at most the widest share of the picture. It gets less if the roof needs more height, down to the
  // least share: what is longer then is broken off.
  void FindScale() {
    const double width = view_.Width.IsThere() ? view_.Width.Metres : SomeWidth;
    double reach = view_.Rock.Limited;
    for (const DrawnSupport& support : view_.Supports) {
      reach = std::max(reach, support.Reach.Metres * std::cos(support.Tilt.value_or(0)));
    }
    const double byWidth = plot_.Width() * WidestShare / width;
    const double byHeight = reach > 0 ? 0.92 * (roof_ - top_) / reach : byWidth;
    const double scale = std::max(std::min(byWidth, byHeight), plot_.Width() * LeastShare / width);
    const double middle = plot_.Middle().X;
    across_ = {middle - width * scale / 2, middle + width * scale / 2, scale, view_.Width.IsThere()};
  }

  // Returns the height of the picture at this distance above the roof, not above the break.
  double Above(double metres) const { return std::max(top_, roof_ - metres * across_.Scale); }
  bool IsBroken(double metres) const { return roof_ - metres * across_.Scale < top_; }

  void DrawGround() {
    const Box left{plot_.Left, roof_, across_.Left, floor_};
    const Box right{across_.Right, roof_, plot_.Right, floor_};
    drafting_.Draw(Trace().Rectangle(left).Rectangle(right), {}, Coal);
    if (!view_.IsBare) DrawSurface();
    drafting_.Draw(
        Trace().Move(plot_.Left, roof_).Line(plot_.Right, roof_).Move(plot_.Left, floor_).Line(plot_.Right, floor_),
        RockLine);
    SceneStroke sides = RockLine;
    sides.IsDashed = !across_.IsKnown;
    drafting_.Draw(Trace()
                       .Move(across_.Left, roof_)
                       .Line(across_.Left, floor_)
                       .Move(across_.Right, roof_)
                       .Line(across_.Right, floor_),
                   sides);
  }

  void DrawSurface() {
    const Trace surface = Trace().Move(plot_.Left, box_.Top + 6).Line(plot_.Right, box_.Top + 6);
    drafting_.Draw(surface, RockLine);
    drafting_.Draw(Waves(box_.Top + 16), FaintLine);
    drafting_.Draw(Waves(box_.Top + 21), FaintLine);
  }

  // The cover is not to scale.
  Trace Waves(double height) const {
    constexpr int Waves = 12;
    Trace trace;
    trace.Move(plot_.Left, height);
    for (int i = 1; i <= Waves; ++i) {
      trace.Line(plot_.Left + plot_.Width() * i / Waves, height + (i % 2 == 0 ? 0 : 4));
    }
    return trace;
  }

  // A rock without a height shows as a dashed block of some height.
  void DrawRock() {
    const DrawnRock& rock = view_.Rock;
    const bool hasShape = rock.Limited > 0;
    const double height = hasShape ? Above(rock.Limited) : roof_ - 0.4 * (roof_ - top_);
    const double share = hasShape ? (roof_ - height) / (rock.Limited * across_.Scale) : 0;
    const double topWidth =
        hasShape ? across_.Width() + (rock.Top * across_.Scale - across_.Width()) * share : across_.Width();
    const double middle = (across_.Left + across_.Right) / 2;
    const bool isSolid = rock.IsComputed && hasShape;
    Trace body;
    body.Move(across_.Left, roof_)
        .Line(middle - topWidth / 2, height)
        .Line(middle + topWidth / 2, height)
        .Line(across_.Right, roof_)
        .Close();
    drafting_.Draw(std::move(body), {.Colour = Ink::Rock, .Width = 1.5, .IsDashed = !isSolid},
                   isSolid ? SceneFill{Ink::Rock, 0.2} : SceneFill{});
  }

  void DrawSupport(const DrawnSupport& support) {
    switch (support.Kind) {
      case SupportKind::Standing: return DrawStanding(support);
      case SupportKind::Trusses: return DrawTruss(support);
      case SupportKind::PrimaryBolts:
      case SupportKind::Cables:
      case SupportKind::Bolts: return DrawBolts(support);
    }
  }

  void DrawBolts(const DrawnSupport& support) {
    const int count = UnitsAcross(across_, support.Count);
    if (!support.Reach.IsThere()) return;
    const double end = Above(support.Reach.Metres);
    Trace rods;
    Trace plates;
    Trace breaks;
    for (int i = 0; i < count; ++i) {
      const double x = PlaceOf(across_, i, count) + AsideOf(support.Kind);
      rods.Segment({x, roof_ + 2}, {x, end});
      plates.Segment({x - 4, roof_ + 3}, {x + 4, roof_ + 3});
      if (IsBroken(support.Reach.Metres)) breaks.Break({x, end + 4});
    }
    drafting_.Draw(std::move(rods), {.Colour = support.Colour, .Width = BoltWidth});
    drafting_.Draw(std::move(plates), {.Colour = support.Colour, .Width = 3});
    drafting_.Draw(std::move(breaks), {.Colour = support.Colour, .Width = 1});
  }

  // The angled members lean outwards over the ribs, and a tie joins their lower ends.
  void DrawTruss(const DrawnSupport& support) {
    if (!support.Tilt || !support.Reach.IsThere() || support.Count <= 0) return;
    const double inset = 0.12 * across_.Width();
    const double up = std::cos(*support.Tilt);
    const double out = std::sin(*support.Tilt);
    const double length = support.Reach.Metres * across_.Scale;
    double shown = length;
    if (up > 0) shown = std::min(shown, (roof_ - top_) / up);
    if (out > 0) shown = std::min(shown, (across_.Left + inset - plot_.Left) / out);
    Trace members;
    Trace breaks;
    for (const double side : {-1.0, 1.0}) {
      const ScenePoint foot{side < 0 ? across_.Left + inset : across_.Right - inset, roof_};
      const ScenePoint end{foot.X + side * out * shown, foot.Y - up * shown};
      members.Segment(foot, end);
      if (shown < length) breaks.Break(end);
    }
    drafting_.Draw(std::move(members), {.Colour = support.Colour, .Width = BoltWidth});
    drafting_.Draw(Trace().Segment({across_.Left + inset, roof_ + 6}, {across_.Right - inset, roof_ + 6}),
                   {.Colour = support.Colour, .Width = 1.5});
    drafting_.Draw(std::move(breaks), {.Colour = support.Colour, .Width = 1});
  }

  void DrawStanding(const DrawnSupport& support) {
    const int count = UnitsAcross(across_, support.Count);
    Trace posts;
    for (int i = 0; i < count; ++i) {
      const double x = PlaceOf(across_, i, count) + AsideOf(support.Kind);
      posts.Segment({x, roof_ + 1}, {x, floor_ - 1});
    }
    drafting_.Draw(std::move(posts), {.Colour = support.Colour, .Width = 4});
  }

  void DrawSuggestion() {
    if (view_.SuggestedReach <= 0 || IsBroken(view_.SuggestedReach)) return;
    const double height = Above(view_.SuggestedReach);
    drafting_.Draw(Trace().Segment({across_.Left, height}, {across_.Right, height}),
                   {.Colour = Ink::Limit, .Width = 1.5});
  }

  void DrawDimensions() {
    DrawCover();
    DrawReach();
    DrawRockHeight();
    DrawSpacing();
    const double line = floor_ + 7;
    drafting_.Dimension({across_.Left, line}, {across_.Right, line});
    // The line is short beside a long name, so the text is below it, as wide as the picture.
    drafting_.Write({view_.WidthName + " " + view_.Width.Text, view_.Width.Text}, {plot_.Middle().X, floor_ + 20},
                    Anchor::Middle, plot_.Width());
  }

  void DrawCover() {
    const double line = box_.Left + 18;
    const double surface = box_.Top + 6;
    drafting_.Draw(
        Trace().Segment({line - 4, roof_}, {plot_.Left, roof_}).Segment({line - 4, surface}, {plot_.Left, surface}),
        ThinLine);
    drafting_.Dimension({line, surface}, {line, roof_});
    drafting_.Write({"Depth of cover " + view_.Cover.Text, "Cover " + view_.Cover.Text, view_.Cover.Text},
                    {box_.Left + 12, (surface + roof_) / 2}, Anchor::Middle, roof_ - surface, -90);
  }

  // The length of the first bolts.
  void DrawReach() {
    if (view_.Supports.empty()) return;
    const DrawnSupport& first = view_.Supports.front();
    const double line = plot_.Left - 6;
    const double text = first.Reach.IsThere() ? (Above(first.Reach.Metres) + roof_) / 2 : roof_ - 12;
    if (first.Reach.IsThere()) drafting_.Dimension({line, roof_}, {line, Above(first.Reach.Metres)});
    drafting_.Write({first.Reach.Text}, {line - 3, text + 4}, Anchor::End, line - 3 - (box_.Left + 21));
  }

  void DrawRockHeight() {
    const double line = plot_.Right + 8;
    const double text = plot_.Right + 12;
    const double room = box_.Right - text;
    const bool hasShape = view_.Rock.Limited > 0;
    const double height = hasShape ? Above(view_.Rock.Limited) : roof_ - 20;
    if (hasShape) drafting_.Dimension({line, roof_}, {line, height});
    drafting_.Write({view_.Rock.Height.Text}, {text, (height + roof_) / 2 + 4}, Anchor::Start, room);
    drafting_.Write({view_.Rock.Angle}, {text, roof_ + 17}, Anchor::Start, room);
  }

  // The distance between two bolts of a row.
  void DrawSpacing() {
    if (view_.Supports.empty() || !across_.IsKnown) return;
    const DrawnSupport& first = view_.Supports.front();
    const int count = UnitsAcross(across_, first.Count);
    if (count < 2 || first.Kind == SupportKind::Standing || first.Kind == SupportKind::Trusses) return;
    const int middle = count / 2;
    const double line = roof_ + 11;
    const double aside = AsideOf(first.Kind);
    drafting_.Dimension({PlaceOf(across_, middle - 1, count) + aside, line},
                        {PlaceOf(across_, middle, count) + aside, line});
    if (view_.Spacing.IsThere()) {
      drafting_.Write({view_.Spacing.Text}, {(across_.Left + across_.Right) / 2, line + 14}, Anchor::Middle,
                      across_.Width() - 8);
    }
  }

  Drafting& drafting_;
  Box box_;
  Box plot_;
  const SectionView& view_;
  double top_ = 0;  // where what is longer is broken off
  double roof_ = 0;
  double floor_ = 0;
  Across across_;
};

}  // namespace

double PlaceOf(const Across& across, int unit, int count) {
  return across.Left + across.Width() * (unit + 0.5) / count;
}

double AsideOf(SupportKind kind) {
  switch (kind) {
    case SupportKind::Cables: return -4;
    case SupportKind::Bolts: return 4;
    case SupportKind::Standing: return 8;
    case SupportKind::PrimaryBolts:
    case SupportKind::Trusses: break;
  }
  return 0;
}

int UnitsAcross(const Across& across, double count) { return DrawnCount(count, across.Width() / LeastGap); }

Box WithoutDimensions(const Box& box) { return {box.Left + LeftColumn, box.Top, box.Right - RightColumn, box.Bottom}; }

Across DrawSection(Drafting& drafting, const Box& box, const SectionView& view) {
  return Section(drafting, box, view).Draw();
}

}  // namespace orby
