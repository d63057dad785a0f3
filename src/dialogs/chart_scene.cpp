#include "dialogs/chart_scene.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "controls/chart_fit.h"
#include "dialogs/kept_curves.h"

namespace orby {
namespace {

constexpr double Margin = 12;  // around everything
constexpr double Gap = 6;      // between texts and lines
constexpr double LineHeight = 16;
constexpr double LineShare = 1.0 / 3;  // of the width of a series, as in the window
constexpr double TickLength = 5;
constexpr double OwnHalf = 5.5;
constexpr double LegendSample = 24;
constexpr int MostTicksAcross = 9;
constexpr int MostTicksUp = 8;

constexpr SceneStroke AxisLine{.Colour = Ink::Text, .Width = 1};
constexpr SceneStroke GridLine{.Colour = Ink::Muted, .Width = 0.6, .Opacity = 0.7};
constexpr SceneStroke ReferenceLine{.Colour = Ink::Limit, .Width = 1.5, .IsDashed = true};
constexpr SceneFill Paper{Ink::Paper};

// The chart on its sheet: where the plot is, and where values are in it.
class Plotter {
 public:
  Plotter(const Chart& chart, const SheetSize& sheet)
      : chart_(chart), extent_(WholeExtent(chart)), draft_(sheet), plot_(draft_.Sheet()) {
    ticksX_ = TicksIn(extent_.x, MostTicksAcross);
    ticksY_ = TicksIn(extent_.y, MostTicksUp);
    plot_.Left += Margin + LineHeight + Gap + WidestTickUp() + TickLength;
    plot_.Top += Margin + (chart.Heading().empty() ? 0 : LineHeight + Gap);
    plot_.Right -= Margin + Gap;
    plot_.Bottom -= Margin + 2 * LineHeight + Gap + TickLength;
    if (HasLegendBelow(chart)) plot_.Bottom -= HeightOfLegend() + Gap;
  }

  Scene Take() {
    Axes();
    References();
    AllSeries();
    OwnPoint();
    if (!HasPoints()) {
      draft_.Write({"There are no points in the range of this curve"}, plot_.Middle(), Anchor::Middle, plot_.Width());
    }
    if (chart_.HasLegend()) Legend();
    return draft_.Take().Picture;
  }

 private:
  double AtX(double value) const { return plot_.Left + extent_.x.ShareOf(value) * plot_.Width(); }
  double AtY(double value) const { return plot_.Bottom - extent_.y.ShareOf(value) * plot_.Height(); }
  ScenePoint At(double x, double y) const { return {AtX(x), AtY(y)}; }

  bool HasPoints() const {
    return std::ranges::any_of(chart_.Series(), [](const ChartSeries& series) { return !series.x.empty(); });
  }

  static std::vector<std::string> TextsOf(const std::vector<double>& ticks) {
    std::vector<std::string> texts;
    texts.reserve(ticks.size());
    for (const double tick : ticks) texts.push_back(TickText(tick, ticks.size() > 1 ? ticks[1] - ticks[0] : 1));
    return texts;
  }

  double WidestTickUp() const {
    double widest = 0;
    for (const std::string& text : TextsOf(ticksY_)) widest = std::max(widest, WidthOf(text));
    return widest;
  }

  void Axes() {
    Trace grid;
    Trace ticks;
    for (const double tick : ticksX_) {
      if (chart_.AxisX().grid) grid.Segment({AtX(tick), plot_.Top}, {AtX(tick), plot_.Bottom});
      ticks.Segment({AtX(tick), plot_.Bottom}, {AtX(tick), plot_.Bottom + TickLength});
    }
    for (const double tick : ticksY_) {
      if (chart_.AxisY().grid) grid.Segment({plot_.Left, AtY(tick)}, {plot_.Right, AtY(tick)});
      ticks.Segment({plot_.Left - TickLength, AtY(tick)}, {plot_.Left, AtY(tick)});
    }
    draft_.Draw(std::move(grid), GridLine);
    draft_.Draw(std::move(ticks), AxisLine);
    draft_.Draw(Trace().Rectangle(plot_), AxisLine);
    Titles();
  }

  void Titles() {
    const std::vector<std::string> across = TextsOf(ticksX_);
    const double numbersAt = plot_.Bottom + TickLength + LineHeight;
    for (std::size_t i = 0; i < across.size(); ++i) {
      draft_.Write({across[i]}, {AtX(ticksX_[i]), numbersAt - 3}, Anchor::Middle, plot_.Width() / MostTicksAcross);
    }
    const std::vector<std::string> up = TextsOf(ticksY_);
    for (std::size_t i = 0; i < up.size(); ++i) {
      draft_.Write({up[i]}, {plot_.Left - TickLength - 3, AtY(ticksY_[i]) + TextSize / 3}, Anchor::End, plot_.Left);
    }
    const ScenePoint middle = plot_.Middle();
    draft_.Write({chart_.AxisX().title}, {middle.X, numbersAt + LineHeight}, Anchor::Middle, plot_.Width());
    draft_.Write({chart_.AxisY().title}, {Margin + TextSize, middle.Y}, Anchor::Middle, plot_.Height(), -90);
    if (!chart_.Heading().empty()) draft_.WriteBold(chart_.Heading(), {middle.X, Margin + TextSize}, Anchor::Middle);
  }

  // Writes a name over lines, which are faded around it.
  void WriteName(const std::string& name, const ScenePoint& at, Anchor side, double room) {
    constexpr SceneFill Faded{Ink::Paper, 0.85};
    const double width = std::min(WidthOf(name), room);
    const double left = side == Anchor::Start ? at.X : side == Anchor::End ? at.X - width : at.X - width / 2;
    draft_.Draw(Trace().Rectangle({left, at.Y - TextSize, left + width, at.Y + 3}), {}, Faded);
    draft_.Write({name}, at, side, room);
  }

  // Names of several lines stand side by side, because the lines may be close together.
  void References() {
    constexpr double Step = 0.32;  // of the width of the plot
    int near = 0;
    int far = 0;
    for (const ChartLine& line : chart_.References()) {
      if (!IsNear(chart_, line)) {
        const std::string where = line.isOfX ? " (outside)" : " (above)";
        WriteName(line.name + where, {plot_.Middle().X, plot_.Top + LineHeight * ++far}, Anchor::Middle, plot_.Width());
      } else if (line.isOfX) {
        const double at = AtX(line.value);
        const bool isRight = extent_.x.ShareOf(line.value) > 0.5;
        draft_.Draw(Trace().Segment({at, plot_.Top}, {at, plot_.Bottom}), ReferenceLine);
        WriteName(line.name, {isRight ? at - Gap : at + Gap, plot_.Top + LineHeight},
                  isRight ? Anchor::End : Anchor::Start, plot_.Width() / 2);
        ++near;
      } else {
        const double at = AtY(line.value);
        const bool isHigh = extent_.y.ShareOf(line.value) > 0.9;
        draft_.Draw(Trace().Segment({plot_.Left, at}, {plot_.Right, at}), ReferenceLine);
        WriteName(line.name,
                  {plot_.Right - Gap - Step * (near++ % 3) * plot_.Width(), isHigh ? at + LineHeight : at - Gap},
                  Anchor::End, Step * plot_.Width());
      }
    }
  }

  void AllSeries() {
    std::size_t kept = 0;
    for (const ChartSeries& series : chart_.Series()) {
      const Ink ink = InkOf(series, kept);
      Trace line;
      Trace symbols;
      for (std::size_t i = 0; i < series.x.size(); ++i) {
        const ScenePoint point = At(series.x[i], series.y[i]);
        if (i == 0) {
          line.Move(point.X, point.Y);
        } else {
          line.Line(point.X, point.Y);
        }
        symbols.Circle(point, series.symbolSize / 2.0);
      }
      if (series.hasLine && series.x.size() > 1) draft_.Draw(std::move(line), StrokeOf(series, ink));
      // A single point is no line.
      if (series.hasSymbols || series.x.size() == 1) draft_.Draw(std::move(symbols), {}, {ink});
      if (series.own) Square(At(series.own->x, series.own->y), ink);
    }
    for (const ChartSeries& series : chart_.Series()) Number(series);
  }

  // `kept` counts the kept curves.
  static Ink InkOf(const ChartSeries& series, std::size_t& kept) {
    if (series.isKept) return KeptInk(kept++);
    const std::size_t place = PlaceOf(series);
    return place == 0 ? Ink::Curve : KeptInk(place - 1);
  }

  // Numbered curves have a colour for each of four, first with whole lines and then with dashed ones.
  static constexpr int NumberedInks = MostKept + 1;
  static std::size_t PlaceOf(const ChartSeries& series) {
    return static_cast<std::size_t>(std::max(series.number - 1, 0) % NumberedInks);
  }
  static SceneStroke StrokeOf(const ChartSeries& series, Ink ink) {
    const bool isDashed = series.isKept || series.number > NumberedInks;
    return {.Colour = ink, .Width = series.width * LineShare, .IsDashed = isDashed};
  }

  // Each number stands at another share of its curve, so that those of equal curves are apart.
  void Number(const ChartSeries& series) {
    if (series.number == 0 || series.x.empty()) return;
    const auto parts = static_cast<double>(chart_.Series().size() + 1);
    const double place = series.number / parts * static_cast<double>(series.x.size() - 1);
    const auto point = static_cast<std::size_t>(place);
    const std::size_t next = std::min(point + 1, series.x.size() - 1);
    const double share = place - static_cast<double>(point);
    const ScenePoint at =
        At(std::lerp(series.x[point], series.x[next], share), std::lerp(series.y[point], series.y[next], share));
    const double beside = series.x.size() == 1 ? TextSize : 0;  // a single point stays visible
    WriteName(std::to_string(series.number), {at.X + beside, at.Y + TextSize / 3}, Anchor::Middle, plot_.Width());
  }

  void Square(const ScenePoint& at, Ink ink) {
    draft_.Draw(Trace().Rectangle({at.X - OwnHalf, at.Y - OwnHalf, at.X + OwnHalf, at.Y + OwnHalf}),
                {.Colour = ink, .Width = 2});
  }

  void OwnPoint() {
    const auto& own = chart_.Own();
    if (!own) return;
    const ScenePoint at = At(own->x, own->y);
    const ChartCorner side = SideOfOwnName(chart_, extent_);
    Square(at, Ink::OwnPoint);
    const double below = OwnHalf + Gap + TextSize;
    draft_.Write(
        {own->name},
        {side.isRight ? at.X + OwnHalf + Gap : at.X - OwnHalf - Gap, side.isTop ? at.Y - OwnHalf - Gap : at.Y + below},
        side.isRight ? Anchor::Start : Anchor::End, plot_.Width() / 2);
  }

  double HeightOfLegend() const { return LineHeight * static_cast<double>(chart_.Series().size()) + Gap; }

  void Legend() {
    double widest = 0;
    for (const ChartSeries& series : chart_.Series()) widest = std::max(widest, WidthOf(series.legend));
    const double width = std::min(widest + LegendSample + 3 * Gap, plot_.Width() - 2 * Gap);
    const double height = HeightOfLegend();
    const ChartCorner corner = FreeCorner(chart_, extent_);
    double left = corner.isRight ? plot_.Right - Gap - width : plot_.Left + Gap;
    double top = corner.isTop ? plot_.Top + Gap : plot_.Bottom - Gap - height;
    if (HasLegendBelow(chart_)) {
      left = plot_.Middle().X - width / 2;
      top = draft_.Sheet().Bottom - Margin - height;
    }
    draft_.Draw(Trace().Rectangle({left, top, left + width, top + height}), {.Colour = Ink::Muted, .Width = 0.8},
                Paper);
    double baseline = top + LineHeight - 2;
    std::size_t kept = 0;
    for (const ChartSeries& series : chart_.Series()) {
      const Ink ink = InkOf(series, kept);
      const double at = baseline - TextSize / 3;
      draft_.Draw(Trace().Segment({left + Gap, at}, {left + Gap + LegendSample, at}), StrokeOf(series, ink));
      draft_.Write({series.legend}, {left + 2 * Gap + LegendSample, baseline}, Anchor::Start,
                   width - LegendSample - 3 * Gap);
      baseline += LineHeight;
    }
  }

  const Chart& chart_;
  ChartExtent extent_;
  Drafting draft_;
  Box plot_;
  std::vector<double> ticksX_;
  std::vector<double> ticksY_;
};

}  // namespace

Scene ChartScene(const Chart& chart, const SheetSize& sheet) { return Plotter(chart, sheet).Take(); }

}  // namespace orby
