#include "sketches/sketches.h"

#include <algorithm>
#include <cmath>

#include "engine/formulas.h"
#include "sketches/section.h"

namespace orby {
namespace {

constexpr double SectionShare = 0.6;  // of the height, above a plan
constexpr double CrossingShare = 0.42;
constexpr double Gap = 8;

SheetSize AtLeastSmallest(const SheetSize& sheet) {
  const auto side = [](double wanted, double least) { return std::isfinite(wanted) ? std::max(wanted, least) : least; };
  return {side(sheet.Width, SmallestSheet.Width), side(sheet.Height, SmallestSheet.Height)};
}

// Writes the legend at the bottom of the sheet. Returns the rest of the sheet.
Box AboveLegend(Drafting& drafting, const std::vector<LegendEntry>& legend) {
  Box rest = drafting.Sheet();
  rest.Bottom -= static_cast<double>(legend.size()) * LegendLine + 2;
  drafting.Legend(legend, rest.Bottom);
  rest.Bottom -= Gap;
  return rest;
}

LegendEntry RockEntry(const DrawnRock& rock) {
  return {Ink::Rock, "Rock load height " + rock.Height.Text + ", fall angle " + rock.Angle +
                         (rock.IsComputed ? "" : ", no rock load")};
}

Box UpperPart(const Box& box, double share) { return {box.Left, box.Top, box.Right, box.Top + box.Height() * share}; }

Box LowerPart(const Box& box, double share) {
  return {box.Left, box.Top + box.Height() * share + Gap, box.Right, box.Bottom};
}

// `below` is the part of the legend below the supports.
Sketch EntryDrawing(const RoofSupport& design, SectionView view, const std::vector<LegendEntry>& below,
                    const SheetSize& sheet) {
  view.Width = LengthOf(design.Place.EntryWidth, design.Units);
  view.WidthName = "Entry width";
  view.Cover = LengthOf(design.Place.DepthofCover, design.Units);
  view.Spacing = LengthOf(design.Place.EntryWidth / design.Primary.BoltsperRow, design.Units);
  Drafting drafting(AtLeastSmallest(sheet));
  drafting.Fact("Entry width " + view.Width.Text);
  drafting.Fact("Depth of cover " + view.Cover.Text);
  std::vector<LegendEntry> legend;
  for (const DrawnSupport& support : view.Supports) legend.push_back({support.Colour, support.Words});
  legend.insert(legend.end(), below.begin(), below.end());
  const Box rest = AboveLegend(drafting, legend);
  const Across across = DrawSection(drafting, UpperPart(rest, SectionShare), view);
  DrawRoofPlan(drafting, LowerPart(rest, SectionShare), across, view.Supports);
  return drafting.Take();
}

DrawnRock EntryRockOf(const RoofSupport& design, const SketchFigures& figures) {
  return RockOver(LengthOf(design.Place.EntryWidth, design.Units).Metres,
                  LengthOf(design.Entries.RockLoadHeight, design.Units), design.Entries.RockFallAngle,
                  figures.HasEntryRock);
}

CrossingView CrossingOf(const RoofSupport& design, const SketchFigures& figures) {
  CrossingView view;
  view.Width = LengthOf(design.Place.EntryWidth, design.Units);
  view.Span = LengthOf(design.Place.ActualSpanDiagonals, design.Units);
  if (figures.Suggested) view.SuggestedSpan = ComputedLength(figures.Suggested->SuggestedSpan, design.Units);
  return view;
}

std::vector<LegendEntry> SpanEntries(const CrossingView& view) {
  const std::string suggested = view.SuggestedSpan.IsThere() ? view.SuggestedSpan.Text : "--";
  return {{Ink::Bolt, "Sum of the diagonals d1 + d2 = " + view.Span.Text},
          {Ink::Limit, "Suggested sum of the diagonals " + suggested}};
}

void AddFacts(Drafting& drafting, const CrossingView& view) { drafting.Fact("Entry width " + view.Width.Text); }

// Returns the side of the square of the diagonals, or the sum as typed if it has none.
Length SideOfSquare(const RoofSupport& design) {
  const Single span = design.Place.ActualSpanDiagonals;
  if (!std::isfinite(span) || span <= 0) return LengthOf(span, design.Units);
  return ComputedLength(static_cast<Single>(SideOfSpan(span)), design.Units);
}

// Returns the supports as a section along the entry shows them: one row of the square over which they are spread.
std::vector<DrawnSupport> OneRow(std::vector<DrawnSupport> supports) {
  for (DrawnSupport& support : supports) {
    if (support.Count > 0) support.Count = std::ceil(std::sqrt(support.Count));
  }
  return supports;
}

}  // namespace

SketchFigures SketchFiguresOf(const RoofSupport& design, const Catalogs& catalogs) noexcept {
  return {LiveSuggestion(design).ValueOr({}), EntryFigures(design, catalogs).RockLoad.ValueOr({}).has_value(),
          IntersectionFigures(design, catalogs).RockLoad.ValueOr({}).has_value()};
}

Sketch PrimarySketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet) {
  SectionView view;
  view.Rock = EntryRockOf(design, figures);
  view.Supports = {PrimaryBolts(design, Ink::Bolt)};
  std::vector<LegendEntry> legend{RockEntry(view.Rock)};
  if (figures.Suggested) {
    const Length suggested = ComputedLength(figures.Suggested->SugLength, design.Units);
    view.SuggestedReach = suggested.Metres;
    legend.push_back({Ink::Limit, "Suggested bolt length " + suggested.Text});
  }
  return EntryDrawing(design, std::move(view), legend, sheet);
}

Sketch EntrySketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet) {
  SectionView view;
  view.Rock = EntryRockOf(design, figures);
  view.Supports = {PrimaryBolts(design, Ink::Muted)};
  for (DrawnSupport& system : EntrySystems(design)) view.Supports.push_back(std::move(system));
  std::vector<LegendEntry> legend{RockEntry(view.Rock)};
  return EntryDrawing(design, std::move(view), legend, sheet);
}

Scene EntryMiniature(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet) {
  SectionView view;
  view.IsBare = true;
  view.Width = LengthOf(design.Place.EntryWidth, design.Units);
  view.Rock = EntryRockOf(design, figures);
  view.Supports = {PrimaryBolts(design, Ink::Bolt)};
  for (DrawnSupport& system : EntrySystems(design)) view.Supports.push_back(std::move(system));
  Drafting drafting(sheet);
  DrawSection(drafting, drafting.Sheet(), view);
  return drafting.Take().Picture;
}

Sketch DiagonalsSketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet) {
  const CrossingView view = CrossingOf(design, figures);
  Drafting drafting(AtLeastSmallest(sheet));
  AddFacts(drafting, view);
  DrawCrossingPlan(drafting, AboveLegend(drafting, SpanEntries(view)), view);
  return drafting.Take();
}

Sketch IntersectionSketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet) {
  CrossingView plan = CrossingOf(design, figures);
  const SecondarySupport& support = design.Intersections;
  const Length height = LengthOf(support.RockLoadHeight, design.Units);
  const double side = SideOfSpan(static_cast<Single>(plan.Span.Metres));
  const bool isComputed = figures.HasIntersectionRock;
  plan.ShowsRock = true;
  plan.AlongEntry = RockOver(side, height, support.RockFallAngle, isComputed);
  plan.AlongCrosscut = RockOver(side, height, support.RockFallAngleXcut, isComputed);
  plan.Supports = IntersectionSystems(design);

  SectionView section;
  section.Width = SideOfSquare(design);
  section.WidthName = "Side of the square";
  section.Cover = LengthOf(design.Place.DepthofCover, design.Units);
  section.Rock = plan.AlongEntry;
  section.Supports = OneRow(plan.Supports);

  Drafting drafting(AtLeastSmallest(sheet));
  AddFacts(drafting, plan);
  std::vector<LegendEntry> legend = SpanEntries(plan);
  for (const DrawnSupport& system : plan.Supports) legend.push_back({system.Colour, system.Words});
  LegendEntry rock = RockEntry(plan.AlongEntry);
  rock.Text = "Rock load height " + height.Text + ", fall angles " + plan.AlongEntry.Angle + " and " +
              plan.AlongCrosscut.Angle + (isComputed ? "" : ", no rock load");
  legend.push_back(std::move(rock));
  const Box rest = AboveLegend(drafting, legend);
  DrawSection(drafting, UpperPart(rest, CrossingShare), section);
  DrawCrossingPlan(drafting, LowerPart(rest, CrossingShare), plan);
  return drafting.Take();
}

}  // namespace orby
