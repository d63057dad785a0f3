// Builds a scene out of lines, texts and dimensions. Every coordinate that reaches the scene lies inside it.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "drawings/scene.h"

namespace orby {

struct SheetSize {
  double Width = 0;
  double Height = 0;

  bool operator==(const SheetSize&) const = default;
};

// A drawing, and its main dimensions in words.
struct Sketch {
  Scene Picture;
  std::vector<std::string> Facts;

  // The words of two sketches differ more often than their lines, and are fewer.
  bool operator==(const Sketch& other) const { return Facts == other.Facts && Picture == other.Picture; }
};

struct Box {
  double Left = 0;
  double Top = 0;
  double Right = 0;
  double Bottom = 0;

  double Width() const { return Right - Left; }
  double Height() const { return Bottom - Top; }
  ScenePoint Middle() const { return {(Left + Right) / 2, (Top + Bottom) / 2}; }
  bool Contains(const ScenePoint& at) const { return at.X >= Left && at.X <= Right && at.Y >= Top && at.Y <= Bottom; }
};

// The steps of one outline, which may have several parts.
class Trace {
 public:
  Trace& Move(double x, double y);
  Trace& Line(double x, double y);
  Trace& Close();
  Trace& Segment(const ScenePoint& from, const ScenePoint& to);
  Trace& Rectangle(const Box& box);
  Trace& Circle(const ScenePoint& centre, double radius);
  // Two short slanted lines, where something is longer than the picture.
  Trace& Break(const ScenePoint& at);

  bool IsEmpty() const { return steps_.empty(); }
  std::vector<PathStep> Take() { return std::move(steps_); }

 private:
  PathStep& Add(PathStep::Kind kind, double x, double y);

  std::vector<PathStep> steps_;
};

inline constexpr double TextSize = 12;
inline constexpr double LegendLine = 16;  // height

// Returns about how wide a text is, whatever the font.
double WidthOf(const std::string& text, double size = TextSize);

// Texts of one label, the longest first. The first one that fits is used. If none fits, the last one gets smaller.
using Wordings = std::initializer_list<std::string>;

struct LegendEntry {
  Ink Colour = Ink::None;
  std::string Text;
};

class Drafting {
 public:
  explicit Drafting(const SheetSize& sheet);

  Box Sheet() const { return {0, 0, scene_.Width, scene_.Height}; }

  void Draw(Trace trace, const SceneStroke& line, const SceneFill& inside = {});
  // Places a text that is not wider than `room`.
  void Write(Wordings wordings, const ScenePoint& at, Anchor side, double room, double turn = 0);
  void WriteBold(const std::string& text, const ScenePoint& at, Anchor side);
  // A line with an arrow at both ends, horizontal or vertical.
  void Dimension(const ScenePoint& from, const ScenePoint& to);
  // Writes the entries as lines from `top` on, each with a mark in its colour, and adds them to the facts.
  void Legend(const std::vector<LegendEntry>& entries, double top);
  void Fact(std::string fact) { facts_.push_back(std::move(fact)); }

  Sketch Take() { return {std::move(scene_), std::move(facts_)}; }

 private:
  ScenePoint Inside(const ScenePoint& point) const;

  Scene scene_;
  std::vector<std::string> facts_;
};

// The strokes of the drawings.
inline constexpr SceneStroke RockLine{.Colour = Ink::Text, .Width = 1.5};
inline constexpr SceneStroke ThinLine{.Colour = Ink::Text, .Width = 0.8};
inline constexpr SceneStroke FaintLine{.Colour = Ink::Muted, .Width = 1};
inline constexpr SceneFill Coal{Ink::Muted, 0.18};

}  // namespace orby
