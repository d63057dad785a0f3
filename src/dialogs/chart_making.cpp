#include "dialogs/chart_making.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/number_text.h"
#include "controls/chart_fit.h"
#include "reports/sensitivity_report.h"
#include "reports/study_report.h"
#include "sheet/sheet_content.h"
#include "studies/lever_table.h"

namespace orby {
namespace {

// Numbers are searched in finer steps than they are built in, so that contour lines are smooth.
constexpr PrintedSteps FineSteps{100};
// The greatest number is searched further than it is built, because lines between points would bend where it ends.
constexpr Single BeyondBuilt = 2;
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

struct CapacityLever {
  StudiedSupport Support;
  SingleField Field;
};

const CapacityLever Capacities[] = {
    {{Opening::Entries, PricedSupport::Cable}, [](auto& d) { return &d.Entries.Cable.CapacityManual; }},
    {{Opening::Entries, PricedSupport::Truss}, [](auto& d) { return &d.Entries.Truss.Capacity; }},
    {{Opening::Entries, PricedSupport::Standing}, [](auto& d) { return &d.Entries.Standing.Capacity; }},
    {{Opening::Intersections, PricedSupport::Cable}, [](auto& d) { return &d.Intersections.Cable.CapacityManual; }},
    {{Opening::Intersections, PricedSupport::Truss}, [](auto& d) { return &d.Intersections.Truss.Capacity; }},
    {{Opening::Intersections, PricedSupport::Standing}, [](auto& d) { return &d.Intersections.Standing.Capacity; }},
};

// Whole tons, or tens of kN.
std::vector<Single> BuiltCapacities(UnitSystem units) {
  constexpr int Count = 400;
  const int step = units == Metric ? 10 : 1;
  std::vector<Single> values;
  values.reserve(Count);
  for (int i = 1; i <= Count; ++i) values.push_back(static_cast<Single>(i * step));
  return values;
}

// Collects the numbers of a design that can be chosen.
class NumberSubjects {
 public:
  NumberSubjects(const Design& design, const Catalogs& catalogs, const PriceList& prices)
      : design_(design), prices_(prices), used_(NumbersInUse(design)) {
    const Verdicts verdicts = Judge(design, Analyze(design, catalogs));
    judged_.assign(verdicts.All().begin(), verdicts.All().end());
  }

  void AddOf(const StudiedSupport& support, std::vector<ChartSubject>& subjects) {
    const SupportLevers& levers = LeversInTable(support);
    const PatternLimits widest = WidestLimits(design_.Units, support);
    for (const Lever lever : {Lever::Spacing, Lever::Number, Lever::Length}) {
      const auto& field = levers.Of(lever).Field;
      if (!field) continue;
      Add(support, *field, lever == Lever::Spacing,
          BuiltValues(support, lever, RangeOf(widest, lever), design_.Units, prices_), subjects);
    }
    for (const CapacityLever& capacity : Capacities) {
      if (capacity.Support == support) Add(support, capacity.Field, false, BuiltCapacities(design_.Units), subjects);
    }
  }

 private:
  void Add(const StudiedSupport& support, const SingleField& field, bool isGreatest, std::vector<Single> built,
           std::vector<ChartSubject>& subjects) {
    const auto found = std::ranges::find(used_, field, &DesignNumber::Field);
    if (found == used_.end() || built.size() < 2) return;
    ChartSubject subject;
    subject.Number = *found;
    subject.Name = (isGreatest ? "Greatest " : "Least ") + NameOf(**found) + " that holds";
    subject.Chosen = {.Field = field,
                      .From = built.front(),
                      .To = isGreatest ? BeyondBuilt * built.back() : built.back(),
                      .Steps = FineSteps,
                      .IsGreatest = isGreatest};
    subject.Built = std::move(built);
    for (const Verdict& verdict : judged_) {
      if (SupportOf(verdict) == support) subject.Judged.push_back({verdict.Where, verdict.What});
    }
    if (!subject.Judged.empty()) subjects.push_back(std::move(subject));
  }

  const Design& design_;
  const PriceList& prices_;
  std::vector<const DesignNumber*> used_;
  std::vector<Verdict> judged_;
};

bool IsCounted(const DesignNumber& number) { return number.Label.starts_with("Number "); }

VariedAxis AxisOf(const ChartSide& side, std::size_t points) {
  return {side.Number->Field, EvenValues(side.From, side.To, points)};
}

ComputedChart ComputeOn(const Design& design, const Catalogs& catalogs, const ChartRequest& request,
                        const VariedAxis& across, const VariedAxis& up, ChartProgress* progress) {
  ComputedChart made;
  made.Values.reserve(across.Values.size() * up.Values.size());
  const ChartSubject& subject = request.Subject;
  if (subject.Figure == nullptr) {
    const auto numbers =
        ChartNumberThatHolds(design, catalogs, subject.Judged, *subject.Chosen, across, up, 0, progress);
    for (const auto& number : numbers) made.Values.push_back(number ? *number : NoNumber);
    return made;
  }
  const StudiedVerdict judged = request.Judged.value_or(StudiedVerdict{});
  FigureChart chart = ChartFigure(design, catalogs, *subject.Figure, judged, across, up, 0, progress);
  for (const FigureValue& value : chart.Values) made.Values.push_back(value.IsThere() ? value.Value : NoNumber);
  made.Results = std::move(chart.Results);
  return made;
}

std::string SideTitle(const ChartSide& side, UnitSystem units) {
  return WithUnitOf(NameOf(*side.Number), side.Number->Unit, units);
}

// Returns the value of a number that can be built with which its support holds.
std::optional<Single> BuiltFor(const ChartSubject& subject, double fine) {
  if (subject.Chosen->IsGreatest) {
    const auto above = std::ranges::upper_bound(subject.Built, static_cast<Single>(fine));
    return above == subject.Built.begin() ? std::nullopt : std::optional(*(above - 1));
  }
  const auto found = std::ranges::lower_bound(subject.Built, static_cast<Single>(fine));
  return found == subject.Built.end() ? std::nullopt : std::optional(*found);
}

std::string SearchedText(const ChartSubject& subject, UnitSystem units) {
  return "no " + std::string(subject.Number->Label) + " from " + NumberText(subject.Built.front()) + " to " +
         WithUnit(NumberText(subject.Built.back()), UnitOf(subject.Number->Unit, units));
}

// Returns the judgements that fall short even at the safe end of the number: ": Length of bolts short".
std::string WhatFallsShort(const Design& design, const Catalogs& catalogs, const ChartRequest& request, Single across,
                           Single up) {
  const ChartSubject& subject = request.Subject;
  VariedDesign varied(design, catalogs);
  varied.Set(request.Across.Number->Field, across);
  varied.Set(request.Up.Number->Field, up);
  varied.Set(subject.Number->Field, subject.Chosen->IsGreatest ? subject.Built.front() : subject.Built.back());
  varied.Refresh();
  std::string text;
  for (const StudiedVerdict& judged : subject.Judged) {
    const Holding result = varied.ResultOf(judged);
    if (LetsChosenHold(judged, result)) continue;
    text.append(text.empty() ? ": " : ", ").append(VerdictName(judged)).append(" ").append(StateText(result));
  }
  return text;
}

MapTurn TurnOfNumber(const Design& design, const ChartSubject& subject, const ContourGrid& grid) {
  const Single present = subject.Number->Field.In(design);
  MapTurn turn{.Lines = ContourLines(grid, present), .Text = {}, .Left = "holds", .Right = "falls short"};
  if (!subject.Chosen->IsGreatest) std::swap(turn.Left, turn.Right);
  const std::string value =
      WithUnit(NumberText(present), UnitOf(subject.Number->Unit, design.Units)) + ", as in this design";
  turn.Text = turn.Lines.empty() ? value + ": no line in the chart" : value;
  return turn;
}

MapTurn TurnOfJudgement(const StudiedVerdict& judged, const ComputedChart& computed, const ChartRequest& request) {
  ContourGrid grid{request.Points, request.Points, {}};
  grid.Values.reserve(computed.Results.size());
  std::size_t holding = 0;
  std::size_t unjudged = 0;
  for (const Holding result : computed.Results) {
    const bool holds = LetsChosenHold(judged, result);
    const bool isJudged = result != Holding::Uncomputed;
    if (holds) ++holding;
    if (!isJudged) ++unjudged;
    grid.Values.push_back(!isJudged ? NoNumber : holds ? 1 : 0);
  }
  const ContourCuts cuts{computed.Turns.ToNextX, computed.Turns.ToNextY};
  MapTurn turn{
      .Lines = ContourLines(grid, 0.5, &cuts), .Text = VerdictName(judged), .Left = "holds", .Right = "falls short"};
  const std::size_t count = grid.Values.size();
  if (!turn.Lines.empty()) {
    turn.Text += " turns";
  } else if (unjudged == count) {
    turn.Text += " cannot be judged";
  } else {
    turn.Text += holding > 0 ? " holds" : " falls short";
    turn.Text += unjudged == 0 ? " everywhere" : " where it can be judged";
  }
  return turn;
}

// Returns the distance of the values that are read out.
double ReadingStep(const ChartSide& side) {
  constexpr int MostReadings = 101;  // along a side
  const std::vector<double> ticks = TicksIn({side.From, side.To}, MostReadings);
  return ticks.size() > 1 ? ticks[1] - ticks[0] : static_cast<double>(side.To) - side.From;
}

std::string SideReading(const ChartSide& side, Single value, UnitSystem units) {
  return NameOf(*side.Number) + " " + WithUnit(NumberText(value), UnitOf(side.Number->Unit, units));
}

}  // namespace

double ChartSide::PlaceOf(Single value, std::size_t points) const {
  return ChartRange{From, To}.ShareOf(value) * static_cast<double>(points - 1);
}

double ChartSide::ValueAt(double place, std::size_t points) const {
  return std::lerp(static_cast<double>(From), static_cast<double>(To), place / static_cast<double>(points - 1));
}

Single ChartSide::Reading(double value) const {
  const double step = ReadingStep(*this);
  const double rounded = TextValue(TickText(std::round(value / step) * step, step));
  return std::clamp(static_cast<Single>(rounded), From, To);
}

Single ChartSide::NextReading(double value, int way) const { return Reading(value + way * ReadingStep(*this)); }

std::vector<ChartSubject> ChartSubjects(const Design& design, const Catalogs& catalogs, const PriceList& prices) {
  std::vector<ChartSubject> subjects;
  for (const StudiedFigure* figure : FiguresInUse(design)) {
    ChartSubject subject;
    subject.Name = NameOf(*figure, design.Units);
    subject.Figure = figure;
    subjects.push_back(std::move(subject));
  }
  NumberSubjects numbers(design, catalogs, prices);
  for (const StudiedSupport& support : StudiedSupports(design)) numbers.AddOf(support, subjects);
  return subjects;
}

std::vector<StudiedVerdict> JudgementsOn(const Design& design, const Catalogs& catalogs) {
  std::vector<StudiedVerdict> judged;
  const Verdicts verdicts = Judge(design, Analyze(design, catalogs));
  for (const Verdict& verdict : verdicts.All()) judged.push_back({verdict.Where, verdict.What});
  return judged;
}

ChartSide SideAround(const Design& design, const DesignNumber& number) {
  constexpr int MostEnds = 11;
  const double value = number.Field.In(design);
  if (!(value > 0)) return {&number, 0, 1};
  const std::vector<double> ends = TicksIn({value * 0.5, value * 1.5}, MostEnds);
  return {&number, static_cast<Single>(ends.front()), static_cast<Single>(ends.back())};
}

std::size_t WorkOf(const ChartRequest& request) {
  const std::size_t points = request.Points * request.Points;
  if (request.Subject.Figure != nullptr) return points;
  const ChosenNumber& chosen = *request.Subject.Chosen;
  const double steps = (static_cast<double>(chosen.To) - chosen.From) * chosen.Steps.PerUnit;
  return points * static_cast<std::size_t>(2 + std::log2(std::max(steps, 1.0)));
}

ComputedChart Compute(const Design& design, const Catalogs& catalogs, const ChartRequest& request,
                      ChartProgress* progress) {
  const VariedAxis across = AxisOf(request.Across, request.Points);
  const VariedAxis up = AxisOf(request.Up, request.Points);
  ComputedChart made = ComputeOn(design, catalogs, request, across, up, progress);
  const bool isCancelled = progress != nullptr && progress->IsCancelled;
  if (request.Subject.Figure != nullptr && request.Judged && !isCancelled) {
    made.Turns = FindTurns(design, catalogs, *request.Judged, made.Results, across, up);
  }
  return made;
}

DesignMap MapOf(const Design& design, const ChartRequest& request, ComputedChart computed) {
  const ChartSubject& subject = request.Subject;
  const UnitSystem units = design.Units;
  DesignMap map;
  map.Title = subject.Name;
  map.Across = {SideTitle(request.Across, units), request.Across.From, request.Across.To};
  map.Up = {SideTitle(request.Up, units), request.Up.From, request.Up.To};
  map.Grid = {request.Points, request.Points, std::move(computed.Values)};
  if (subject.Figure != nullptr) {
    map.Figure = subject.Name;
    map.Blank = "cannot be computed";
    if (request.Judged) map.Turn = TurnOfJudgement(*request.Judged, computed, request);
  } else {
    map.Figure = WithUnitOf(NameOf(*subject.Number), subject.Number->Unit, units);
    map.IsCounted = IsCounted(*subject.Number);
    map.Most = subject.Built.back();
    map.Blank = SearchedText(subject, units) + " holds";
    map.Turn = TurnOfNumber(design, subject, map.Grid);
  }
  const ScenePoint own{request.Across.PlaceOf(request.Across.Number->Field.In(design), request.Points),
                       request.Up.PlaceOf(request.Up.Number->Field.In(design), request.Points)};
  const auto last = static_cast<double>(request.Points - 1);
  if (own.X >= 0 && own.X <= last && own.Y >= 0 && own.Y <= last) map.Own = own;
  return map;
}

std::string ReadingAt(const Design& design, const Catalogs& catalogs, const ChartRequest& request, Single across,
                      Single up) {
  const ChartSubject& subject = request.Subject;
  const ComputedChart made = ComputeOn(design, catalogs, request, {request.Across.Number->Field, {across}},
                                       {request.Up.Number->Field, {up}}, nullptr);
  const double value = made.Values.front();
  std::string text =
      SideReading(request.Across, across, design.Units) + ", " + SideReading(request.Up, up, design.Units) + ": ";
  if (subject.Figure == nullptr) {
    const std::optional<Single> built = std::isnan(value) ? std::nullopt : BuiltFor(subject, value);
    if (!built) {
      text += SearchedText(subject, design.Units) + " holds";
      return text + WhatFallsShort(design, catalogs, request, across, up);
    }
    return text + (subject.Chosen->IsGreatest ? "greatest " : "least ") + NameOf(*subject.Number) + " " +
           WithUnit(NumberText(*built), UnitOf(subject.Number->Unit, design.Units));
  }
  text.append(subject.Figure->Name).append(" ");
  if (std::isnan(value)) {
    text += "cannot be computed";
  } else {
    text += WithUnit(EffectText({static_cast<Single>(value), 0}), UnitOf(subject.Figure->Unit, design.Units));
  }
  if (request.Judged) {
    text.append("; ").append(VerdictName(*request.Judged)).append(": ");
    text.append(StateText(made.Results.front()));
  }
  return text;
}

}  // namespace orby
