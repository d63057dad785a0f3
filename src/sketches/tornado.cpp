#include "sketches/tornado.h"

#include <algorithm>
#include <cmath>

namespace orby {
namespace {

constexpr double Edge = 10;
constexpr double NameShare = 0.42;  // of the width
constexpr double TextRoom = 52;     // for the figure beside a bar
constexpr double TallestRow = 30;
constexpr double SmallestRow = 17;
constexpr double TitleHeight = 26;
constexpr Ink LowInk = Ink::FirstKept;
constexpr Ink HighInk = Ink::Curve;

class TornadoDrafting {
 public:
  TornadoDrafting(const Tornado& tornado, const SheetSize& sheet)
      : tornado_(tornado),
        draft_(sheet),
        area_{sheet.Width * NameShare + TextRoom, Edge + TitleHeight, sheet.Width - Edge - TextRoom,
              sheet.Height - Edge - 2 * LegendLine} {
    const double fitting = std::floor(std::max(area_.Height(), 0.0) / SmallestRow);
    shown_ = std::min(tornado.Bars.size(), static_cast<std::size_t>(fitting));
    if (shown_ > 0) row_ = std::min(TallestRow, area_.Height() / static_cast<double>(shown_));
    for (const TornadoBar& bar : tornado.Bars) {
      for (const double value : {bar.AtLow, bar.AtHigh}) reach_ = std::max(reach_, std::abs(value - tornado.Centre));
    }
  }

  Sketch Make() {
    draft_.WriteBold(tornado_.Title, {Edge, Edge + TextSize}, Anchor::Start);
    for (std::size_t i = 0; i < shown_; ++i) DrawBar(tornado_.Bars[i], area_.Top + row_ * static_cast<double>(i));
    const double centre = XOf(tornado_.Centre);
    const double bottom = area_.Top + row_ * static_cast<double>(shown_);
    draft_.Write({tornado_.CentreText}, {centre, area_.Top - 4}, Anchor::Middle, 2 * TextRoom);
    if (shown_ > 0) {
      draft_.Draw(std::move(Trace().Segment({centre, area_.Top}, {centre, bottom})), ThinLine);
      draft_.Legend({{LowInk, "at the low end"}, {HighInk, "at the high end"}},
                    draft_.Sheet().Bottom - Edge - 2 * LegendLine);
    }
    if (const std::size_t left = tornado_.Bars.size() - shown_; left > 0) {
      draft_.Fact(NotDrawnInWords(left));
    }
    return draft_.Take();
  }

 private:
  double XOf(double value) const {
    const double middle = (area_.Left + area_.Right) / 2;
    return reach_ > 0 ? middle + (value - tornado_.Centre) / reach_ * area_.Width() / 2 : middle;
  }

  void DrawBar(const TornadoBar& bar, double top) {
    const double middle = top + row_ / 2;
    draft_.Write({bar.Name}, {Edge, middle + TextSize * 0.35}, Anchor::Start,
                 draft_.Sheet().Width() * NameShare - Edge);
    DrawHalf(bar.AtLow, bar.LowText, {top + row_ * 0.12, middle}, LowInk);
    DrawHalf(bar.AtHigh, bar.HighText, {middle, top + row_ * 0.88}, HighInk);
    draft_.Fact(EndsInWords(bar.Name, bar.LowText, bar.HighText));
  }

  struct Band {
    double Top;
    double Bottom;
  };

  void DrawHalf(double value, const std::string& text, const Band& band, Ink ink) {
    const double centre = XOf(tornado_.Centre);
    const double end = XOf(value);
    draft_.Draw(std::move(Trace().Rectangle({std::min(centre, end), band.Top, std::max(centre, end), band.Bottom})), {},
                {ink});
    const bool isLeft = end < centre;
    draft_.Write({text}, {isLeft ? end - 4 : end + 4, (band.Top + band.Bottom) / 2 + TextSize * 0.3},
                 isLeft ? Anchor::End : Anchor::Start, TextRoom - 6);
  }

  const Tornado& tornado_;
  Drafting draft_;
  Box area_;
  std::size_t shown_ = 0;
  double row_ = 0;
  double reach_ = 0;
};

}  // namespace

std::string EndsInWords(const std::string& name, const std::string& lowText, const std::string& highText) {
  return name + ": " + lowText + " at the low end, " + highText + " at the high end";
}

std::string NotDrawnInWords(std::size_t count) { return std::to_string(count) + " more are not drawn"; }

Sketch TornadoSketch(const Tornado& tornado, const SheetSize& sheet) { return TornadoDrafting(tornado, sheet).Make(); }

}  // namespace orby
