#include "sketches/map_sketch.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"
#include "controls/chart_fit.h"
#include "sketches/plot_axes.h"

namespace orby {
namespace {

constexpr double Edge = 10;
constexpr double MapGap = 6;
constexpr double TitleHeight = 24;
constexpr double WidestLegend = 190;
constexpr double LegendShare = 0.34;  // of the width of the sheet
constexpr double TallestBand = 22;
constexpr double BandWidth = 22;
constexpr double OwnHalf = 5.5;
constexpr double ReadRadius = 5;
constexpr double SideDistance = 15;  // of a word from the line that turns
constexpr int MostLevels = 10;

constexpr SceneStroke LevelLine{.Colour = Ink::Text, .Width = 0.9, .Opacity = 0.75};
constexpr SceneStroke TurnCasing{.Colour = Ink::Paper, .Width = 6, .IsRound = true};
constexpr SceneStroke TurnLine{.Colour = Ink::Bad, .Width = 3, .IsRound = true};
constexpr SceneStroke ReadLine{.Colour = Ink::Text, .Width = 0.8, .IsDashed = true};
constexpr SceneFill UnderText{Ink::Paper, 0.85};

// Breaks a text at blanks into lines that fit the room.
std::vector<std::string> LinesIn(const std::string& text, double room) {
  std::vector<std::string> lines;
  std::size_t from = 0;
  while (from < text.size()) {
    const std::size_t blank = std::min(text.find(' ', from), text.size());
    const std::string word = text.substr(from, blank - from);
    if (!lines.empty() && WidthOf(lines.back() + " " + word) <= room) {
      lines.back().append(" ").append(word);
    } else {
      lines.push_back(word);
    }
    from = blank + 1;
  }
  return lines;
}

bool Overlap(const Box& one, const Box& other) {
  return one.Left < other.Right && other.Left < one.Right && one.Top < other.Bottom && other.Top < one.Bottom;
}

const ContourLine* LongestOf(const std::vector<ContourLine>& lines) {
  const auto found = std::ranges::max_element(lines, {}, [](const ContourLine& line) { return line.Points.size(); });
  return found == lines.end() ? nullptr : &*found;
}

}  // namespace

MapSketch::MapSketch(DesignMap map) : map_(std::move(map)) {
  for (const double value : map_.Grid.Values) {
    if (std::isnan(value)) {
      hasBlanks_ = true;
      continue;
    }
    least_ = hasValues_ ? std::min(least_, value) : value;
    greatest_ = hasValues_ ? std::max(greatest_, value) : value;
    hasValues_ = true;
  }
  greatest_ = std::min(greatest_, std::max(map_.Most, least_));
  if (greatest_ > least_) levels_ = TicksIn({least_, greatest_}, MostLevels);
  std::erase_if(levels_, [&](double level) {
    return !(level > least_ && level < greatest_) || (map_.IsCounted && level != std::round(level));
  });
  whole_ = RegionAbove(map_.Grid, EveryLevel);
  regions_.reserve(levels_.size());
  lines_.reserve(levels_.size());
  for (const double level : levels_) {
    regions_.push_back(RegionAbove(map_.Grid, level));
    lines_.push_back(ContourLines(map_.Grid, level));
  }
}

class MapDrafting {
 public:
  MapDrafting(const MapSketch& sketch, const SheetSize& sheet)
      : sketch_(sketch),
        map_(sketch.map_),
        draft_(sheet),
        plot_(draft_.Sheet()),
        across_({map_.Across.From, map_.Across.To}),
        up_({map_.Up.From, map_.Up.To}) {
    legend_ = std::min(WidestLegend, sheet.Width * LegendShare);
    plot_.Left += Edge + LegendLine + MapGap + up_.WidestText() + PlotAxis::TickLength;
    plot_.Top += Edge + TitleHeight;
    plot_.Right -= Edge + legend_ + 2 * MapGap;
    plot_.Bottom -= Edge + 2 * LegendLine + MapGap + PlotAxis::TickLength;
  }

  const Box& Plot() const { return plot_; }
  bool HasRoom() const { return plot_.Width() > 20 && plot_.Height() > 20; }

  Sketch Make(const std::optional<MapReading>& reading) {
    if (reading) draft_.Fact(reading->Text);
    draft_.Fact(map_.Title);
    if (HasRoom()) {
      Bands();
      Frame();
      if (map_.Own) taken_.push_back(Around(At(*map_.Own), 2 * OwnHalf));
      Lines();
      Turn();
      Own();
      if (reading) Reading(*reading);
      Legend();
    }
    Facts();
    return draft_.Take();
  }

 private:
  ScenePoint At(const ScenePoint& point) const {
    return {plot_.Left + point.X / static_cast<double>(map_.Grid.Columns - 1) * plot_.Width(),
            plot_.Bottom - point.Y / static_cast<double>(map_.Grid.Rows - 1) * plot_.Height()};
  }

  static Box Around(const ScenePoint& at, double half) { return {at.X - half, at.Y - half, at.X + half, at.Y + half}; }

  Trace TraceOf(const std::vector<ContourLine>& lines) const {
    Trace trace;
    for (const ContourLine& line : lines) {
      for (std::size_t i = 0; i < line.Points.size(); ++i) {
        const ScenePoint at = At(line.Points[i]);
        if (i == 0) {
          trace.Move(at.X, at.Y);
        } else {
          trace.Line(at.X, at.Y);
        }
      }
      if (line.IsClosed) trace.Close();
    }
    return trace;
  }

  // Each region covers those of the lower levels so far that the colours change evenly.
  void Bands() {
    draft_.Draw(TraceOf(sketch_.whole_), {}, {Ink::MapLow});
    const std::size_t count = sketch_.levels_.size();
    for (std::size_t i = 0; i < count; ++i) {
      draft_.Draw(TraceOf(sketch_.regions_[i]), {}, {Ink::MapHigh, 1 / static_cast<double>(count - i)});
    }
  }

  void Frame() {
    DrawAxes(draft_, plot_, across_, up_);
    draft_.Write({map_.Across.Title}, {plot_.Middle().X, EndOfNumbers(plot_) + LegendLine}, Anchor::Middle,
                 plot_.Width());
    draft_.Write({map_.Up.Title}, {Edge + TextSize, plot_.Middle().Y}, Anchor::Middle, plot_.Height(), -90);
    draft_.WriteBold(map_.Title, {Edge, Edge + TextSize}, Anchor::Start);
  }

  // Writes a text where nothing else is, at the first of these places of a line. Returns false if there is no such
  // place.
  template <class PlaceOf>
  bool WriteBeside(const ContourLine& line, const std::string& text, PlaceOf placeOf) {
    constexpr std::array Shares{0.5, 0.35, 0.65, 0.2, 0.8, 0.1, 0.9};
    const double half = WidthOf(text) / 2 + 2;
    for (const double share : Shares) {
      const auto index = static_cast<std::size_t>(share * static_cast<double>(line.Points.size() - 1));
      const ScenePoint middle = placeOf(line, index, half);
      const Box box{middle.X - half, middle.Y - TextSize * 0.6, middle.X + half, middle.Y + TextSize * 0.6};
      const bool isInside = plot_.Contains({box.Left, box.Top}) && plot_.Contains({box.Right, box.Bottom});
      if (!isInside || std::ranges::any_of(taken_, [&](const Box& other) { return Overlap(box, other); })) continue;
      taken_.push_back(box);
      draft_.Draw(Trace().Rectangle(box), {}, UnderText);
      draft_.Write({text}, {middle.X, middle.Y + TextSize * 0.35}, Anchor::Middle, 2 * half);
      return true;
    }
    return false;
  }

  void Lines() {
    for (std::size_t i = 0; i < sketch_.levels_.size(); ++i) draft_.Draw(TraceOf(sketch_.lines_[i]), LevelLine);
    for (std::size_t i = 0; i < sketch_.levels_.size(); ++i) {
      const ContourLine* longest = LongestOf(sketch_.lines_[i]);
      if (longest == nullptr) continue;
      WriteBeside(*longest, LevelText(i),
                  [this](const ContourLine& line, std::size_t index, double) { return At(line.Points[index]); });
    }
  }

  std::string LevelText(std::size_t level) const { return TickTextAmong(sketch_.levels_, sketch_.levels_[level]); }

  void Turn() {
    draft_.Draw(TraceOf(map_.Turn.Lines), TurnCasing);
    draft_.Draw(TraceOf(map_.Turn.Lines), TurnLine);
    const ContourLine* longest = LongestOf(map_.Turn.Lines);
    if (longest == nullptr || longest->Points.size() < 2) return;
    WriteAtSide(*longest, map_.Turn.Left, 1);
    WriteAtSide(*longest, map_.Turn.Right, -1);
  }

  // Writes a word on the left of a line, or with -1 on its right.
  void WriteAtSide(const ContourLine& along, const std::string& text, double side) {
    if (text.empty()) return;
    WriteBeside(along, text, [this, side](const ContourLine& line, std::size_t index, double half) {
      const ScenePoint from = At(line.Points[index > 0 ? index - 1 : 0]);
      const ScenePoint to = At(line.Points[std::min(index + 1, line.Points.size() - 1)]);
      const double length = std::max(std::hypot(to.X - from.X, to.Y - from.Y), 1e-9);
      const ScenePoint left{(to.Y - from.Y) / length * side, (from.X - to.X) / length * side};
      const ScenePoint at = At(line.Points[index]);
      return ScenePoint{at.X + left.X * (SideDistance + half), at.Y + left.Y * SideDistance};
    });
  }

  void Own() {
    if (map_.Own) DrawOwnMark(draft_, At(*map_.Own), OwnHalf);
  }

  void Reading(const MapReading& reading) {
    const ScenePoint at = At(reading.At);
    draft_.Draw(
        Trace().Segment({at.X, plot_.Top}, {at.X, plot_.Bottom}).Segment({plot_.Left, at.Y}, {plot_.Right, at.Y}),
        ReadLine);
    draft_.Draw(Trace().Circle(at, ReadRadius), {.Colour = Ink::Paper, .Width = 4});
    draft_.Draw(Trace().Circle(at, ReadRadius), {.Colour = Ink::Text, .Width = 2});
  }

  void Legend() {
    const double left = plot_.Right + 2 * MapGap;
    const Box whole = draft_.Sheet();
    double top = WriteLines(map_.Figure, left, plot_.Top - TextSize / 2);
    const double below = EntriesHeight();
    top =
        BandsOfLegend(left, top + MapGap, std::max(whole.Bottom - Edge - below - top - 3 * MapGap, TextSize)) + MapGap;
    const auto entry = [&](const std::string& text, auto mark) {
      if (text.empty()) return;
      mark(ScenePoint{left + BandWidth / 2, top + TextSize / 2});
      top = WriteLines(text, left + BandWidth + MapGap, top - TextSize / 3) + MapGap;
    };
    entry(map_.Turn.Text, [&](const ScenePoint& at) {
      if (map_.Turn.Lines.empty()) return;
      const ScenePoint half{BandWidth / 2, 0};
      draft_.Draw(Trace().Segment({at.X - half.X, at.Y}, {at.X + half.X, at.Y}), TurnLine);
    });
    entry(OwnText(), [&](const ScenePoint& at) {
      if (map_.Own) DrawOwnMark(draft_, at, OwnHalf);
    });
    entry(BlankText(), [&](const ScenePoint& at) {
      const Box box{at.X - BandWidth / 2, at.Y - TextSize / 2, at.X + BandWidth / 2, at.Y + TextSize / 2};
      draft_.Draw(Trace().Rectangle(box), {.Colour = Ink::Muted, .Width = 1});
    });
  }

  std::string OwnText() const { return map_.Own ? "this design" : "this design is outside the chart"; }
  std::string BlankText() const { return sketch_.hasBlanks_ ? "blank: " + map_.Blank : std::string(); }

  // Writes a text in lines below `top`. Returns where they end.
  double WriteLines(const std::string& text, double left, double top) {
    const double room = draft_.Sheet().Right - Edge - left;
    for (const std::string& line : LinesIn(text, room)) {
      top += LegendLine;
      draft_.Write({line}, {left, top - 3}, Anchor::Start, room);
    }
    return top;
  }

  double EntriesHeight() const {
    double height = 0;
    for (const std::string& text : {map_.Turn.Text, OwnText(), BlankText()}) {
      if (text.empty()) continue;
      const std::size_t lines = LinesIn(text, legend_ - BandWidth - MapGap).size();
      height += LegendLine * static_cast<double>(lines) + MapGap;
    }
    return height;
  }

  // The greatest values are on top. Returns where the bands end.
  double BandsOfLegend(double left, double top, double room) {
    if (!sketch_.hasValues_) return top;
    const std::size_t count = sketch_.levels_.size();
    const double height = std::min(TallestBand, room / static_cast<double>(count + 1));
    for (std::size_t band = count + 1; band-- > 0;) {
      const Box box{left, top, left + BandWidth, top + height};
      draft_.Draw(Trace().Rectangle(box), {}, {Ink::MapLow});
      if (band > 0) {
        draft_.Draw(Trace().Rectangle(box), {}, {Ink::MapHigh, static_cast<double>(band) / static_cast<double>(count)});
      }
      draft_.Draw(Trace().Rectangle(box), {.Colour = Ink::Muted, .Width = 0.8});
      // Values that would touch each other are left out.
      const bool isWritten = height >= TextSize || band % 2 == 1;
      if (band > 0 && isWritten) {
        draft_.Write({LevelText(band - 1)}, {left + BandWidth + MapGap, box.Bottom + TextSize / 3}, Anchor::Start,
                     legend_ - BandWidth - MapGap);
      }
      top += height;
    }
    if (count == 0) {
      draft_.Write({NumberText(static_cast<Single>(sketch_.least_))},
                   {left + BandWidth + MapGap, top - height / 2 + TextSize / 3}, Anchor::Start,
                   legend_ - BandWidth - MapGap);
    }
    return top;
  }

  void Facts() {
    if (sketch_.hasValues_) {
      draft_.Fact("From " + NumberText(static_cast<Single>(sketch_.least_)) + " to " +
                  NumberText(static_cast<Single>(sketch_.greatest_)));
    }
    std::string levels;
    for (std::size_t i = 0; i < sketch_.levels_.size(); ++i) {
      levels.append(i == 0 ? "Contour lines at " : ", ").append(LevelText(i));
    }
    for (const std::string& text : {levels, map_.Turn.Text, map_.Own ? std::string() : OwnText(), BlankText()}) {
      if (!text.empty()) draft_.Fact(text);
    }
  }

  const MapSketch& sketch_;
  const DesignMap& map_;
  Drafting draft_;
  Box plot_;
  PlotAxis across_;
  PlotAxis up_;
  double legend_ = 0;
  std::vector<Box> taken_;  // by texts and marks
};

Sketch MapSketch::On(const SheetSize& sheet, const std::optional<MapReading>& reading) const {
  return MapDrafting(*this, sheet).Make(reading);
}

std::optional<ScenePoint> MapSketch::PointAt(const ScenePoint& place, const SheetSize& sheet) const {
  const MapDrafting drafting(*this, sheet);
  const Box plot = drafting.Plot();
  if (!drafting.HasRoom() || !plot.Contains(place)) return std::nullopt;
  return ScenePoint{(place.X - plot.Left) / plot.Width() * static_cast<double>(map_.Grid.Columns - 1),
                    (plot.Bottom - place.Y) / plot.Height() * static_cast<double>(map_.Grid.Rows - 1)};
}

}  // namespace orby
