// Drawings of designs with any numbers at all.
#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <limits>

#include "sketches/drawn.h"

namespace orby::test {
namespace {

constexpr Single Infinite = std::numeric_limits<Single>::infinity();

rc::Gen<Single> AnyNumber() {
  return rc::gen::oneOf(
      rc::gen::element(0.0F, -0.0F, -6.0F, Infinite, -Infinite, Unfit, 3.4e38F, -3.4e38F, 1e-38F, 1e9F),
      rc::gen::map(rc::gen::inRange(0, 400), [](int tenths) { return static_cast<Single>(tenths) / 10; }),
      rc::gen::map(rc::gen::inRange(-60, 60), [](int power) { return std::ldexp(1.0F, power); }));
}

Design AnyDesign() {
  Design design = EnglishPlace();
  design.Units = *rc::gen::element(English, Metric);
  const auto change = [](Single& number) {
    if (*rc::gen::inRange(0, 3) != 0) number = *AnyNumber();
  };
  for (Single* number : {&design.Place.CMRR, &design.Place.DepthofCover, &design.Place.UnitWeight,
                         &design.Place.ActualSpanDiagonals, &design.Place.EntryWidth}) {
    change(*number);
  }
  for (BoltSelection* set : design.BoltSets()) {
    for (Single* number : {&set->Length, &set->BoltsperRow, &set->RowSpacing, &set->Number}) change(*number);
  }
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    for (SupportSystem* system : support->Systems()) system->Use = *rc::gen::element<Integer>(0, 1);
    for (Single* number :
         {&support->RockLoadHeight, &support->RockFallAngle, &support->RockFallAngleXcut, &support->Cable.Length,
          &support->Cable.BoltsPerRow, &support->Cable.RowSpacing, &support->Cable.Number, &support->Truss.LengthMember,
          &support->Truss.Angle, &support->Truss.Spacing, &support->Truss.Number, &support->Standing.NumberPerRow,
          &support->Standing.RowSpacing, &support->Standing.Number}) {
      change(*number);
    }
  }
  return design;
}

std::vector<Sketch> SketchesWithWords(const Design& design, const SheetSize& sheet) {
  const SketchFigures figures = FiguresOf(design);
  return {PrimarySketch(design, figures, sheet), EntrySketch(design, figures, sheet),
          DiagonalsSketch(design, figures, sheet), IntersectionSketch(design, figures, sheet)};
}

// With the small one of a list, which has no words.
std::vector<Sketch> AllSketches(const Design& design, const SheetSize& sheet) {
  std::vector<Sketch> sketches = SketchesWithWords(design, sheet);
  sketches.push_back({EntryMiniature(design, FiguresOf(design), sheet), {}});
  return sketches;
}

SheetSize AnySheet() {
  const auto side = [] { return static_cast<double>(*rc::gen::inRange(0, 900)); };
  return {side(), side()};
}

// The place of a text on the sheet, with letters of 0.58 of its size on average.
Box PlaceOfText(const SceneLabel& label) {
  const auto letters = static_cast<double>(
      std::ranges::count_if(label.Text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
  const double width = letters * 0.58 * label.Size;
  const double share = label.Side == Anchor::Start ? 0 : label.Side == Anchor::Middle ? 0.5 : 1;
  const double ascent = 0.75 * label.Size;
  if (label.Turn != 0) {
    return {label.At.X - ascent, label.At.Y - width * (1 - share), label.At.X, label.At.Y + width * share};
  }
  return {label.At.X - width * share, label.At.Y - ascent, label.At.X + width * (1 - share), label.At.Y};
}

bool Overlap(const Box& one, const Box& other) {
  return one.Left < other.Right && other.Left < one.Right && one.Top < other.Bottom && other.Top < one.Bottom;
}

RC_GTEST_PROP(Sketches, StayInsideThePictureWhateverTheNumbers, ()) {
  const Design design = AnyDesign();
  for (const Sketch& sketch : AllSketches(design, AnySheet())) {
    const Scene& scene = sketch.Picture;
    const auto isInside = [&](const ScenePoint& at) {
      return at.X >= 0 && at.X <= scene.Width && at.Y >= 0 && at.Y <= scene.Height;
    };
    RC_ASSERT(!scene.Outlines.empty());
    for (const SceneOutline& outline : scene.Outlines) {
      for (const PathStep& step : outline.Steps) {
        RC_ASSERT(isInside(step.To));
        RC_ASSERT(isInside(step.FirstControl));
        RC_ASSERT(isInside(step.SecondControl));
        RC_ASSERT(step.What != PathStep::Kind::Circle || step.FirstControl.X >= step.To.X);
      }
    }
    for (const SceneLabel& label : scene.Labels) RC_ASSERT(isInside(label.At));
  }
}

RC_GTEST_PROP(Sketches, HaveNoTextsOverEachOtherWhateverTheNumbers, ()) {
  const Design design = AnyDesign();
  for (const Sketch& sketch : AllSketches(design, AnySheet())) {
    const auto& labels = sketch.Picture.Labels;
    for (std::size_t i = 0; i < labels.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        if (!Overlap(PlaceOfText(labels[i]), PlaceOfText(labels[j]))) continue;
        RC_FAIL("\"" + labels[i].Text + "\" over \"" + labels[j].Text + "\"");
      }
    }
  }
}

RC_GTEST_PROP(Sketches, DrawNoMoreThanCanBeTold, ()) {
  for (const Sketch& sketch : AllSketches(AnyDesign(), AnySheet())) {
    std::size_t steps = 0;
    for (const SceneOutline& outline : sketch.Picture.Outlines) steps += outline.Steps.size();
    RC_ASSERT(steps < 400'000U);
  }
}

RC_GTEST_PROP(Sketches, SayEveryNumberInWords, ()) {
  for (const Sketch& sketch : SketchesWithWords(AnyDesign(), AnySheet())) {
    RC_ASSERT(!sketch.Facts.empty());
    for (const std::string& fact : sketch.Facts) {
      RC_ASSERT(fact.find("nan") == std::string::npos && fact.find("inf") == std::string::npos);
    }
  }
}

}  // namespace
}  // namespace orby::test
