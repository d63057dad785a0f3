#include "qt/scene_painter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "drawings/inks.h"
#include "qt/texts.h"

namespace orby {
namespace {

// A light text means a dark background.
Ground GroundOf(const QColor& text) { return text.lightness() > 127 ? Ground::Dark : Ground::Light; }

QColor ColourOf(Ink ink, const QColor& text) {
  if (ink == Ink::Text) return text;
  if (ink == Ink::None) return Qt::transparent;
  return QColor::fromRgb(InkColour(ink, GroundOf(text)));
}

QColor Faded(QColor colour, double opacity) {
  colour.setAlphaF(static_cast<float>(colour.alphaF() * opacity));
  return colour;
}

QPointF PointOf(const ScenePoint& point) { return {point.X, point.Y}; }

QPainterPath PathOf(const std::vector<PathStep>& steps) {
  using enum PathStep::Kind;
  QPainterPath path;
  for (const PathStep& step : steps) {
    switch (step.What) {
      case Move: path.moveTo(PointOf(step.To)); break;
      case Line: path.lineTo(PointOf(step.To)); break;
      case Curve: path.cubicTo(PointOf(step.FirstControl), PointOf(step.SecondControl), PointOf(step.To)); break;
      case Circle: {
        const double radius = step.FirstControl.X - step.To.X;
        path.addEllipse(PointOf(step.To), radius, radius);
        break;
      }
      case Close: path.closeSubpath(); break;
    }
  }
  path.setFillRule(Qt::WindingFill);
  return path;
}

QPen PenOf(const SceneStroke& stroke, const QColor& text) {
  if (stroke.Colour == Ink::None) return Qt::NoPen;
  QPen pen(Faded(ColourOf(stroke.Colour, text), stroke.Opacity), stroke.Width);
  pen.setCapStyle(stroke.IsRound ? Qt::RoundCap : Qt::FlatCap);
  pen.setJoinStyle(stroke.IsRound ? Qt::RoundJoin : Qt::SvgMiterJoin);
  // Lengths of the dashes in widths of the pen.
  if (stroke.IsDashed) pen.setDashPattern({4 / stroke.Width, 3 / stroke.Width});
  return pen;
}

QBrush BrushOf(const SceneFill& fill, const QColor& text) {
  if (fill.Colour == Ink::None) return Qt::NoBrush;
  return Faded(ColourOf(fill.Colour, text), fill.Opacity);
}

// Fonts have whole sizes.
int FontSizeOf(double size) { return std::max(1, static_cast<int>(size)); }

QFont FontOf(const TextStyle& style) {
  QFont font("sans-serif");
  font.setStyleHint(QFont::SansSerif);  // where no font has this name
  font.setPixelSize(FontSizeOf(style.Size));
  font.setBold(style.IsBold);
  font.setItalic(style.IsItalic);
  return font;
}

void PaintLabel(QPainter& painter, const SceneLabel& label) {
  const QString text = ToQt(label.Text);
  const QFont font = FontOf({.Size = label.Size, .IsBold = label.IsBold, .IsItalic = label.IsItalic});
  const double share = label.Side == Anchor::Start ? 0 : label.Side == Anchor::Middle ? 0.5 : 1;
  // Measuring a text takes as long as painting it.
  const double before = share == 0 ? 0 : share * QFontMetricsF(font).horizontalAdvance(text);
  painter.save();
  painter.setFont(font);
  painter.translate(PointOf(label.At));
  painter.rotate(label.Turn);
  if (const double scale = label.Size / FontSizeOf(label.Size); scale != 1) painter.scale(scale, scale);
  painter.drawText(QPointF(-before, 0), text);
  painter.restore();
}

}  // namespace

double TextWidths::Of(const std::string& text, const TextStyle& style) {
  const int size = FontSizeOf(style.Size);
  const auto font = fonts_.try_emplace({size, style.IsBold, style.IsItalic}, FontOf(style)).first;
  return font->second.horizontalAdvance(ToQt(text)) * style.Size / size;
}

void PaintScene(QPainter& painter, const Scene& scene, const QRectF& target, const QColor& text) {
  if (scene.Width <= 0 || scene.Height <= 0) return;
  const double scale = std::min(target.width() / scene.Width, target.height() / scene.Height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(target.center());
  painter.scale(scale, scale);
  painter.translate(-scene.Width / 2, -scene.Height / 2);
  for (const SceneOutline& outline : scene.Outlines) {
    painter.setPen(PenOf(outline.Line, text));
    painter.setBrush(BrushOf(outline.Inside, text));
    painter.drawPath(PathOf(outline.Steps));
  }
  painter.setPen(text);
  for (const SceneLabel& label : scene.Labels) PaintLabel(painter, label);
  painter.restore();
}

}  // namespace orby
