// The texts of the figures that the parameters dialog shows during typing.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "base/number_text.h"
#include "core/shared_texts.h"
#include "engine/analysis.h"

namespace orby {

// The text of one figure. It is written again only after the figure has changed.
class FigureText {
 public:
  explicit FigureText(NumberPattern pattern) : pattern_(pattern) {}

  // Returns the text of a figure, "--" for none.
  const std::string& Of(std::optional<Single> figure);
  // Returns the text of the last figure.
  const std::string& Last() const { return text_; }

 private:
  NumberPattern pattern_;
  std::optional<Single> figure_;
  std::string text_{NoResult};
};

// Secondary support of entries or of intersections.
struct SupportTexts {
  explicit SupportTexts(NumberPattern pattern);

  FigureText RockLoad;
  std::array<FigureText, SystemCount> Capacities;
  std::array<FigureText, SystemCount> Factors;

  void Take(const SupportFigures& figures);
};

// All figures of the dialog.
struct LiveTexts {
  LiveTexts();

  FigureText SugPSUP;
  FigureText SugLength;
  FigureText SuggestedSpan;
  FigureText ActualPSUP;
  SupportTexts Entries;
  SupportTexts Intersections;

  void Take(const Figures& figures);
};

}  // namespace orby
