// A drawing as data: outlines and texts in coordinates of its own, x to the right and y downwards.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orby {

struct ScenePoint {
  double X = 0;
  double Y = 0;

  bool operator==(const ScenePoint&) const = default;
};

// The colours of a drawing by what they are for. Text is the colour of texts around the drawing, light or dark.
// Limit is the colour of suggested values. Good, Doubtful and Bad are those of judgements. The next five are those of
// charts: the curve, curves kept for comparison, and the point of the design. Those of maps go from MapLow to MapHigh;
// texts are clear on all between. Paper is the background.
enum class Ink {
  None,
  Paper,
  Text,
  Muted,
  Rock,
  Bolt,
  Cable,
  Truss,
  Standing,
  Limit,
  Good,
  Doubtful,
  Bad,
  Curve,
  FirstKept,
  SecondKept,
  ThirdKept,
  OwnPoint,
  MapLow,
  MapHigh
};

struct PathStep {
  enum class Kind { Move, Line, Curve, Circle, Close };

  Kind What = Kind::Close;
  ScenePoint To;             // of a circle: its centre
  ScenePoint FirstControl;   // of a cubic curve; of a circle: its rightmost point
  ScenePoint SecondControl;  // of a cubic curve

  bool operator==(const PathStep&) const = default;
};

struct SceneFill {
  Ink Colour = Ink::None;
  double Opacity = 1;

  bool operator==(const SceneFill&) const = default;
};

struct SceneStroke {
  Ink Colour = Ink::None;
  double Width = 1;
  double Opacity = 1;
  bool IsRound = false;  // at its ends and corners
  bool IsDashed = false;

  bool operator==(const SceneStroke&) const = default;
};

struct SceneOutline {
  std::vector<PathStep> Steps;
  SceneFill Inside;
  SceneStroke Line;

  bool operator==(const SceneOutline&) const = default;
};

enum class Anchor { Start, Middle, End };

struct SceneLabel {
  std::string Text;
  ScenePoint At;  // on the base line of the text
  Anchor Side = Anchor::Start;
  double Size = 13;
  bool IsBold = false;
  double Turn = 0;  // degrees clockwise around At
  bool IsItalic = false;

  bool operator==(const SceneLabel&) const = default;
};

// How a text is set, without its place.
struct TextStyle {
  double Size = 13;
  bool IsBold = false;
  bool IsItalic = false;
};

// Outlines are painted in their order, and labels over them.
struct Scene {
  double Width = 0;
  double Height = 0;
  std::vector<SceneOutline> Outlines;
  std::vector<SceneLabel> Labels;

  bool operator==(const Scene&) const = default;
};

// Returns the steps of a path text: "M" move, "L" line, "C" cubic curve with its two control points, each followed by
// coordinates separated by spaces, and "Z" close. A letter holds for all points up to the next one.
// Throws std::invalid_argument for any other text.
std::vector<PathStep> PathSteps(std::string_view text);

}  // namespace orby
