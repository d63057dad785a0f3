#include "drawings/scene_svg.h"

#include "base/markup_text.h"
#include "base/number_text.h"
#include "drawings/inks.h"

namespace orby {
namespace {

std::string Number(double value) {
  constexpr NumberPattern Hundredths{"0.##"};
  std::string text = FormatNumber(value, Hundredths);
  if (text.ends_with('.')) text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string Point(const ScenePoint& point) { return Number(point.X) + " " + Number(point.Y); }

std::string Colour(Ink ink) {
  if (ink == Ink::None) return "none";
  constexpr std::string_view Digits = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) {
    text += Digits[InkColour(ink, Ground::Light) >> static_cast<unsigned>(shift) & 15U];
  }
  return text;
}

// Two half circles: an arc cannot end where it begins.
std::string CircleText(const PathStep& circle) {
  const double radius = circle.FirstControl.X - circle.To.X;
  const std::string half = "A" + Number(radius) + " " + Number(radius) + " 0 0 1 ";
  return "M" + Point(circle.FirstControl) + half + Point({circle.To.X - radius, circle.To.Y}) + half +
         Point(circle.FirstControl) + "Z";
}

std::string PathText(const std::vector<PathStep>& steps) {
  using enum PathStep::Kind;
  std::string text;
  for (const PathStep& step : steps) {
    switch (step.What) {
      case Move: text += "M" + Point(step.To); break;
      case Line: text += "L" + Point(step.To); break;
      case Curve:
        text += "C" + Point(step.FirstControl) + " " + Point(step.SecondControl) + " " + Point(step.To);
        break;
      case Circle: text += CircleText(step); break;
      case Close: text += "Z"; break;
    }
  }
  return text;
}

std::string StrokeText(const SceneStroke& stroke) {
  std::string text = Attribute("stroke", Colour(stroke.Colour));
  if (stroke.Colour == Ink::None) return text;
  text += Attribute("stroke-width", Number(stroke.Width));
  if (stroke.Opacity < 1) text += Attribute("stroke-opacity", Number(stroke.Opacity));
  if (stroke.IsRound) text += Attribute("stroke-linecap", "round") + Attribute("stroke-linejoin", "round");
  if (stroke.IsDashed) text += Attribute("stroke-dasharray", "4 3");
  return text;
}

std::string OutlineText(const SceneOutline& outline) {
  std::string text = "<path" + Attribute("d", PathText(outline.Steps));
  text += Attribute("fill", Colour(outline.Inside.Colour));
  if (outline.Inside.Opacity < 1) text += Attribute("fill-opacity", Number(outline.Inside.Opacity));
  return text + StrokeText(outline.Line) + "/>\n";
}

// XML has no other way to write these characters, and none at all to write control characters.
std::string LabelText(const SceneLabel& label) {
  constexpr std::string_view Anchors[] = {"start", "middle", "end"};
  std::string text = "<text" + Attribute("x", Number(label.At.X)) + Attribute("y", Number(label.At.Y));
  text += Attribute("text-anchor", Anchors[static_cast<std::size_t>(label.Side)]);
  text += Attribute("font-size", Number(label.Size));
  if (label.IsBold) text += Attribute("font-weight", "bold");
  if (label.Turn != 0) {
    text += Attribute("transform", "rotate(" + Number(label.Turn) + " " + Point(label.At) + ")");
  }
  return text + ">" + EscapedMarkup(label.Text) + "</text>\n";
}

}  // namespace

std::string SceneSvg(const Scene& scene) {
  const std::string width = Number(scene.Width);
  const std::string height = Number(scene.Height);
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"";
  text += Attribute("width", width) + Attribute("height", height);
  text += Attribute("viewBox", "0 0 " + width + " " + height) + ">\n";
  text += "<rect" + Attribute("width", width) + Attribute("height", height) + Attribute("fill", "#ffffff") + "/>\n";
  for (const SceneOutline& outline : scene.Outlines) text += OutlineText(outline);
  text += "<g" + Attribute("font-family", "sans-serif") + Attribute("fill", Colour(Ink::Text)) + ">\n";
  for (const SceneLabel& label : scene.Labels) text += LabelText(label);
  return text + "</g>\n</svg>\n";
}

}  // namespace orby
