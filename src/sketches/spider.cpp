#include "sketches/spider.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "sketches/plot_axes.h"
#include "sketches/tornado.h"

namespace orby {
namespace {

constexpr double SpiderEdge = 10;
constexpr double HeadHeight = 24;
constexpr double LeaderLength = 14;  // between the plot and the names
constexpr double LeaderGap = 4;
constexpr double SpiderNameShare = 0.42;  // of the width
constexpr double SmallestPlot = 20;
constexpr double UpTickDistance = 28;  // at least
constexpr double PresentHalf = 4.5;
constexpr double NamePitch = 15;
constexpr double WholeWay = 100;
constexpr int AcrossTicks = 5;

constexpr std::array SpiderInks{Ink::Curve, Ink::FirstKept, Ink::SecondKept, Ink::ThirdKept};
static_assert(MostSpiderLines == 2 * SpiderInks.size());

constexpr SceneStroke PresentLine{.Colour = Ink::Muted, .Width = 1, .IsDashed = true};

// Lines that coincide often follow each other. Then one of them is solid, and the other one is dashed above it.
SceneStroke StrokeOf(std::size_t line) {
  const bool isOdd = line % 2 == 1;
  const bool isInSecondHalf = line >= SpiderInks.size();
  return {.Colour = SpiderInks.at(line % SpiderInks.size()), .Width = 2, .IsDashed = isOdd != isInSecondHalf};
}

// Leads from the end of a line to its name.
SceneStroke LeaderOf(std::size_t line) { return {.Colour = StrokeOf(line).Colour, .Width = 0.8}; }

// Returns the range of the lines and the present figure, with a small margin.
ChartRange FiguresOf(std::span<const SpiderLine> lines, double present) {
  constexpr double Margin = 0.06;
  ChartRange range{present, present};
  for (const SpiderLine& line : lines) {
    for (const ScenePoint& point : line.Points) {
      if (!std::isfinite(point.Y)) continue;
      range = {std::min(range.lower, point.Y), std::max(range.upper, point.Y)};
    }
  }
  const double margin = range.Size() > 0 ? range.Size() * Margin : std::max(std::abs(present) * Margin, Margin);
  return {range.lower - margin, range.upper + margin};
}

// Returns the last point that has a figure, or nothing.
const ScenePoint* EndOfLine(const SpiderLine& line) {
  const auto found = std::ranges::find_if(line.Points.rbegin(), line.Points.rend(),
                                          [](const ScenePoint& point) { return std::isfinite(point.Y); });
  return found == line.Points.rend() ? nullptr : &*found;
}

// Returns heights in the same order that are at least a pitch apart, near to the wanted ones and inside the limits, if
// these have room. Requires that the wanted ones rise.
std::vector<double> MovedApart(const std::vector<double>& wanted, double least, double most) {
  // Heights that are too near to each other form a block around their middle.
  struct Block {
    double Sum;  // of the starts that its heights want
    std::size_t Count;
    double Start() const { return Sum / static_cast<double>(Count); }
    double Height() const { return NamePitch * static_cast<double>(Count); }
  };
  std::vector<Block> blocks;
  for (const double height : wanted) {
    Block block{height, 1};
    while (!blocks.empty() && blocks.back().Start() + blocks.back().Height() > block.Start()) {
      const Block before = blocks.back();
      block = {before.Sum + block.Sum - before.Height() * static_cast<double>(block.Count), before.Count + block.Count};
      blocks.pop_back();
    }
    blocks.push_back(block);
  }
  std::vector<double> heights;
  heights.reserve(wanted.size());
  for (const Block& block : blocks) {
    for (std::size_t place = 0; place < block.Count; ++place) {
      const double above = NamePitch * static_cast<double>(heights.size());
      const double below = NamePitch * static_cast<double>(wanted.size() - 1) - above;
      const double height = block.Start() + NamePitch * static_cast<double>(place);
      heights.push_back(std::max(std::min(height, most - below), least + above));
    }
  }
  return heights;
}

class SpiderDrafting {
 public:
  SpiderDrafting(const Spider& spider, const SheetSize& sheet) : spider_(spider), draft_(sheet), plot_(draft_.Sheet()) {
    plot_.Top += SpiderEdge + HeadHeight;
    plot_.Bottom -= SpiderEdge + 3 * LegendLine + PlotAxis::TickLength;
    const auto names = static_cast<std::size_t>(std::max(plot_.Height(), 0.0) / NamePitch);
    shown_ = {spider.Lines.data(), std::min({spider.Lines.size(), MostSpiderLines, names})};
    for (const SpiderLine& line : shown_) nameRoom_ = std::max(nameRoom_, WidthOf(line.Name));
    nameRoom_ = std::min(nameRoom_, sheet.Width * SpiderNameShare);
    plot_.Right -= SpiderEdge + nameRoom_ + LeaderLength + LeaderGap;
  }

  Sketch Make() {
    draft_.WriteBold(spider_.Title, {SpiderEdge, SpiderEdge + TextSize}, Anchor::Start);
    if (!spider_.PresentText.empty()) draft_.Fact(PresentWords());
    if (!shown_.empty()) Plot();
    for (const SpiderLine& line : shown_) draft_.Fact(EndsInWords(line.Name, line.LowText, line.HighText));
    Foot();
    return draft_.Take();
  }

 private:
  std::string PresentWords() const { return "this design: " + spider_.PresentText; }

  void Plot() {
    const int mostUp = std::clamp(static_cast<int>(plot_.Height() / UpTickDistance), 2, PlotAxis::MostTicks);
    const PlotAxis up(FiguresOf(shown_, spider_.Present), mostUp);
    plot_.Left += SpiderEdge + up.WidestText() + PlotAxis::TickLength;
    if (plot_.Width() < SmallestPlot) return;
    const PlotAxis across({-WholeWay, WholeWay}, AcrossTicks);
    const auto at = [&](const ScenePoint& point) {
      return ScenePoint{plot_.Left + across.ShareOf(point.X) * plot_.Width(),
                        plot_.Bottom - up.ShareOf(point.Y) * plot_.Height()};
    };
    const ScenePoint present = at({0, spider_.Present});
    draft_.Draw(Trace()
                    .Segment({present.X, plot_.Top}, {present.X, plot_.Bottom})
                    .Segment({plot_.Left, present.Y}, {plot_.Right, present.Y}),
                PresentLine);
    DrawAxes(draft_, plot_, across, up);
    draft_.Write({"Way from the present value to the low or high end (%)", "Way to low or high end (%)"},
                 {plot_.Middle().X, EndOfNumbers(plot_) + LegendLine - 3}, Anchor::Middle, 2 * AcrossRoom());
    for (const bool isDashed : {false, true}) {
      // The most important line is on top.
      for (std::size_t i = shown_.size(); i-- > 0;) {
        if (StrokeOf(i).IsDashed == isDashed) draft_.Draw(TraceOf(shown_[i], at), StrokeOf(i));
      }
    }
    Names(at);
    DrawOwnMark(draft_, present, PresentHalf);
  }

  // The title of the axis may reach below the numbers of the other one.
  double AcrossRoom() const {
    const double middle = plot_.Middle().X;
    return std::min(middle, draft_.Sheet().Right - middle) - SpiderEdge;
  }

  template <class PlaceOf>
  static Trace TraceOf(const SpiderLine& line, PlaceOf at) {
    Trace trace;
    bool isBroken = true;
    for (const ScenePoint& point : line.Points) {
      const bool isThere = std::isfinite(point.Y);
      if (isThere) {
        const ScenePoint place = at(point);
        isBroken ? trace.Move(place.X, place.Y) : trace.Line(place.X, place.Y);
      }
      isBroken = !isThere;
    }
    return trace;
  }

  // Each name stands at the height where its line ends, or as near to it as the other names allow.
  template <class PlaceOf>
  void Names(PlaceOf at) {
    struct End {
      std::size_t Line;
      ScenePoint Place;
    };
    std::vector<End> ends;
    ends.reserve(shown_.size());
    for (std::size_t i = 0; i < shown_.size(); ++i) {
      if (const ScenePoint* end = EndOfLine(shown_[i])) ends.push_back({i, at(*end)});
    }
    std::ranges::stable_sort(ends, {}, [](const End& end) { return end.Place.Y; });
    std::vector<double> wanted;
    wanted.reserve(ends.size());
    for (const End& end : ends) wanted.push_back(end.Place.Y);
    const std::vector<double> heights = MovedApart(wanted, plot_.Top, plot_.Bottom);
    const double left = plot_.Right + LeaderLength;
    for (std::size_t i = 0; i < ends.size(); ++i) {
      draft_.Draw(Trace().Segment(ends[i].Place, {left, heights[i]}), LeaderOf(ends[i].Line));
      draft_.Write({shown_[ends[i].Line].Name}, {left + LeaderGap, heights[i] + TextSize * 0.35}, Anchor::Start,
                   nameRoom_);
    }
  }

  // Writes the figure of the design, and how many lines are left out.
  void Foot() {
    const Box whole = draft_.Sheet();
    const double baseline = whole.Bottom - SpiderEdge;
    const double room = whole.Width() / 2 - SpiderEdge;
    if (!spider_.PresentText.empty()) {
      const double indent = shown_.empty() ? 0 : 4 * PresentHalf;
      if (!shown_.empty()) DrawOwnMark(draft_, {SpiderEdge + PresentHalf, baseline - TextSize * 0.35}, PresentHalf);
      draft_.Write({PresentWords()}, {SpiderEdge + indent, baseline}, Anchor::Start, room - indent);
    }
    const std::size_t left = spider_.Lines.size() - shown_.size() + spider_.More;
    if (left == 0) return;
    draft_.Write({NotDrawnInWords(left)}, {whole.Right - SpiderEdge, baseline}, Anchor::End, room);
    draft_.Fact(NotDrawnInWords(left));
  }

  const Spider& spider_;
  Drafting draft_;
  Box plot_;
  std::span<const SpiderLine> shown_;
  double nameRoom_ = 0;
};

}  // namespace

Sketch SpiderSketch(const Spider& spider, const SheetSize& sheet) { return SpiderDrafting(spider, sheet).Make(); }

}  // namespace orby
