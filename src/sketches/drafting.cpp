#include "sketches/drafting.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace orby {
namespace {

constexpr double LetterWidth = 0.6;  // of the size of a text, on average
constexpr double SmallestText = 6;
constexpr double ArrowLength = 6;
constexpr double ArrowWidth = 2.2;
constexpr double LegendMark = 14;

// Room that most traces and drawings need. Growing takes longer than all the rest of a drawing.
constexpr std::size_t FirstSteps = 12;
constexpr std::size_t FirstOutlines = 48;
constexpr std::size_t FirstLabels = 32;

}  // namespace

double WidthOf(const std::string& text, double size) {
  return static_cast<double>(CharacterCount(text)) * LetterWidth * size;
}

PathStep& Trace::Add(PathStep::Kind kind, double x, double y) {
  if (steps_.capacity() == 0) steps_.reserve(FirstSteps);
  steps_.push_back({kind, {x, y}, {}, {}});
  return steps_.back();
}

Trace& Trace::Move(double x, double y) {
  Add(PathStep::Kind::Move, x, y);
  return *this;
}

Trace& Trace::Line(double x, double y) {
  Add(PathStep::Kind::Line, x, y);
  return *this;
}

Trace& Trace::Close() {
  Add(PathStep::Kind::Close, 0, 0);
  return *this;
}

Trace& Trace::Segment(const ScenePoint& from, const ScenePoint& to) { return Move(from.X, from.Y).Line(to.X, to.Y); }

Trace& Trace::Rectangle(const Box& box) {
  return Move(box.Left, box.Top)
      .Line(box.Right, box.Top)
      .Line(box.Right, box.Bottom)
      .Line(box.Left, box.Bottom)
      .Close();
}

Trace& Trace::Circle(const ScenePoint& centre, double radius) {
  Add(PathStep::Kind::Circle, centre.X, centre.Y).FirstControl = {centre.X + radius, centre.Y};
  return *this;
}

Trace& Trace::Break(const ScenePoint& at) {
  constexpr double Half = 4;
  constexpr double Gap = 3;
  return Segment({at.X - Half, at.Y + Half}, {at.X + Half, at.Y})
      .Segment({at.X - Half, at.Y + Half + Gap}, {at.X + Half, at.Y + Gap});
}

Drafting::Drafting(const SheetSize& sheet) : scene_{sheet.Width, sheet.Height, {}, {}} {
  scene_.Outlines.reserve(FirstOutlines);
  scene_.Labels.reserve(FirstLabels);
}

ScenePoint Drafting::Inside(const ScenePoint& point) const {
  const auto within = [](double value, double most) { return std::min(value > 0 ? value : 0, most); };
  return {within(point.X, scene_.Width), within(point.Y, scene_.Height)};
}

void Drafting::Draw(Trace trace, const SceneStroke& line, const SceneFill& inside) {
  if (trace.IsEmpty()) return;
  std::vector<PathStep> steps = trace.Take();
  for (PathStep& step : steps) {
    step.To = Inside(step.To);
    step.FirstControl = Inside(step.FirstControl);
    step.SecondControl = Inside(step.SecondControl);
  }
  scene_.Outlines.push_back({std::move(steps), inside, line});
}

void Drafting::Write(Wordings wordings, const ScenePoint& at, Anchor side, double room, double turn) {
  const std::string* chosen = wordings.begin();
  while (chosen + 1 != wordings.end() && WidthOf(*chosen, TextSize) > room) ++chosen;
  const double width = WidthOf(*chosen, TextSize);
  const double size = width <= room ? TextSize : std::floor(TextSize * room / width);
  // A text that nobody can read is left out. The facts have it.
  if (size < SmallestText) return;
  scene_.Labels.push_back({.Text = *chosen, .At = Inside(at), .Side = side, .Size = size, .Turn = turn});
}

void Drafting::WriteBold(const std::string& text, const ScenePoint& at, Anchor side) {
  scene_.Labels.push_back({.Text = text, .At = Inside(at), .Side = side, .Size = TextSize, .IsBold = true});
}

void Drafting::Dimension(const ScenePoint& from, const ScenePoint& to) {
  const double length = std::hypot(to.X - from.X, to.Y - from.Y);
  if (!(length > 0)) return;
  const ScenePoint along{(to.X - from.X) / length, (to.Y - from.Y) / length};
  const double arrow = std::min(ArrowLength, length / 2);
  Trace arrows;
  for (const auto& [end, way] : {std::pair(from, 1.0), std::pair(to, -1.0)}) {
    const ScenePoint base{end.X + way * along.X * arrow, end.Y + way * along.Y * arrow};
    arrows.Move(end.X, end.Y)
        .Line(base.X - along.Y * ArrowWidth, base.Y + along.X * ArrowWidth)
        .Line(base.X + along.Y * ArrowWidth, base.Y - along.X * ArrowWidth)
        .Close();
  }
  Draw(Trace().Segment(from, to), ThinLine);
  Draw(std::move(arrows), {}, {Ink::Text});
}

void Drafting::Legend(const std::vector<LegendEntry>& entries, double top) {
  constexpr double Indent = LegendMark + 6;
  double line = top;
  for (const LegendEntry& entry : entries) {
    const double baseline = line + TextSize;
    Draw(Trace().Segment({0, baseline - 4}, {LegendMark, baseline - 4}), {.Colour = entry.Colour, .Width = 3});
    Write({entry.Text}, {Indent, baseline}, Anchor::Start, scene_.Width - Indent);
    Fact(entry.Text);
    line += LegendLine;
  }
}

}  // namespace orby
