// Properties of every plausible design.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cmath>

#include "engine/designs.h"
#include "engine/primary_support.h"
#include "engine/secondary_support.h"

namespace orby::test {
namespace {

// Generates a typed value in lowest..highest, in hundredths.
rc::Gen<Single> Typed(int lowest, int highest) {
  return rc::gen::map(rc::gen::inRange(lowest * 100, highest * 100 + 1),
                      [](int hundredths) { return static_cast<Single>(hundredths) / 100; });
}

bool AgreesWithin(double share, double a, double b) { return std::abs(a - b) <= share * std::abs(a); }

Single InMetres(Single feet) { return static_cast<Single>(feet * 0.3048); }

RC_GTEST_PROP(SuggestedPsupProperty, FallsAsTheRoofGetsStronger, ()) {
  const Single stability = *Typed(1, 3);
  const Single span = *Typed(40, 80);
  const Single depth = *Typed(1, 5000);
  const int rating = *rc::gen::inRange(21, 100);
  const auto psupAt = [&](int cmrr) {
    return SuggestedPSUP({stability, static_cast<Single>(cmrr), Feet(depth), Feet(span)}, Feet(63.2F));
  };

  RC_ASSERT(psupAt(rating + 1) <= psupAt(rating));
  RC_ASSERT(psupAt(rating + 1) < psupAt(rating) || psupAt(rating + 1) == 3);
}

RC_GTEST_PROP(SuggestedPsupProperty, GrowsWithTheDepth, ()) {
  const Single span = *Typed(40, 80);
  const Single depth = *Typed(1, 5000);
  const auto rating = static_cast<Single>(*rc::gen::inRange(21, 100));

  const auto psupAt = [&](Single feet) { return SuggestedPSUP({1, rating, Feet(feet), Feet(span)}, Feet(63.2F)); };

  RC_ASSERT(psupAt(depth) <= psupAt(depth + 10));
}

RC_GTEST_PROP(RockLoadProperty, GrowsWithTheWidth, ()) {
  const RockInputs rock{*Typed(100, 200), *Typed(1, 40), *Typed(0, 89), 0, *Typed(5, 40), 0};
  RockInputs wider = rock;
  wider.Width = rock.Width + 1;

  RC_ASSERT(*EntryRockLoad(rock, English) < *EntryRockLoad(wider, English));
}

RC_GTEST_PROP(RockLoadProperty, GrowsWithTheUnitWeight, ()) {
  const Single angle = *Typed(0, 60);
  const RockInputs rock{*Typed(100, 200), *Typed(1, 40), angle, angle, *Typed(5, 30), *Typed(40, 80)};
  RockInputs heavier = rock;
  heavier.UnitWeight = rock.UnitWeight + 1;

  RC_ASSERT(*EntryRockLoad(rock, English) < *EntryRockLoad(heavier, English));
  RC_ASSERT(*IntersectionRockLoad(rock, English) < *IntersectionRockLoad(heavier, English));
}

RC_GTEST_PROP(RockLoadProperty, IsNeverNegative, ()) {
  const FallAngle angle(*Typed(-200, 200));
  const Feet width(*Typed(-100, 100));
  const Pcf unitWeight(*Typed(-200, 200));
  const WorkingRock rock{unitWeight, Feet(*Typed(-100, 100)), angle, width, width};

  RC_ASSERT(RockLoadIntersection(rock) >= 0);
  RC_ASSERT(RockLoadEntry(rock).Load >= 0);
}

RC_GTEST_PROP(RockLoadProperty, IsTheSameInTheDialogAndTheCurvesForEqualAnglesBelowTheLimit, ()) {
  const Single angle = *Typed(0, 45);
  const RockInputs rock{*Typed(100, 200), *Typed(1, 7), angle, angle, *Typed(15, 25), *Typed(60, 80)};
  const WorkingRock ofCurves{Pcf(rock.UnitWeight), Feet(rock.Height), FallAngle(angle), Feet(rock.Width),
                             Feet(rock.Span)};

  const Single entry = RockLoadEntry(ofCurves).Load;
  const Single intersection = RockLoadIntersection(ofCurves);

  RC_ASSERT(AgreesWithin(1E-6, entry, *EntryRockLoad(rock, English)));
  RC_ASSERT(AgreesWithin(1E-6, intersection, *IntersectionRockLoad(rock, English)));
}

RC_GTEST_PROP(LimitedHeightProperty, IsNeverAboveTheGivenHeight, ()) {
  const Single asked = *Typed(0, 100);
  const FallAngle angle(*Typed(0, 89));

  const LimitedLoad limited = RockLoadEntry({Pcf(162), Feet(asked), angle, Feet(20), {}});

  RC_ASSERT(limited.Height.Value <= asked);
  RC_ASSERT(MaxRockHeightIntersection({asked, 60, angle, angle}) <= asked);
}

RC_GTEST_PROP(StabilityFactorProperty, TimesTheRockLoadIsTheCapacity, ()) {
  const Single rockLoad = *Typed(1, 500);
  const CountedSystem counted{*Typed(1, 100), *Typed(1, 10), *Typed(1, 10)};
  const TrussSystem trusses{*Typed(1, 100), *Typed(0, 89), *Typed(1, 10), *Typed(1, 10)};
  const BoltSystem bolts{{*Typed(1, 2), *Typed(36, 120)}, *Typed(1, 10), *Typed(1, 10)};

  for (const StrengthBasis mode : {Yield, Ultimate}) {
    for (const SupportResult& system :
         {SupportEntry(rockLoad, counted), SupportEntry(rockLoad, trusses),
          SupportEntry(rockLoad, bolts, English, Grades(mode)), SupportIntersection(rockLoad, counted),
          SupportIntersection(rockLoad, trusses), SupportIntersection(rockLoad, bolts, English, Grades(mode))}) {
      RC_ASSERT(AgreesWithin(1E-6, system.Capacity, static_cast<double>(system.StabilityFactor) * rockLoad));
    }
  }
}

RC_GTEST_PROP(UnitsProperty, AMetricDesignHasTheSameSuggestions, ()) {
  const SiteInputs feet{*Typed(1, 3), static_cast<Single>(*rc::gen::inRange(0, 101)), *Typed(1, 5000), *Typed(41, 80),
                        *Typed(10, 40)};
  const SiteInputs metres{feet.StabilityFactor, feet.CMRR, InMetres(feet.Depth), InMetres(feet.Span),
                          InMetres(feet.Width)};

  const auto english = SuggestLive(feet, English);
  const auto metric = SuggestLive(metres, Metric);

  RC_ASSERT(AgreesWithin(1E-5, english->SuggestedSpan * 0.3048, metric->SuggestedSpan));
  RC_ASSERT(AgreesWithin(1E-4, english->SugPSUP, metric->SugPSUP));
  RC_ASSERT(AgreesWithin(1E-5, english->SugLength * 0.3048, metric->SugLength));
}

RC_GTEST_PROP(UnitsProperty, AMetricPatternHasTheSamePsup, ()) {
  const PatternInputs feet{*Typed(2, 10),   *Typed(1, 10), static_cast<Single>(*rc::gen::inRange(55, 120)) / 100,
                           *Typed(36, 120), *Typed(2, 6),  *Typed(10, 30)};
  const PatternInputs metres{InMetres(feet.Length),
                             feet.BoltsPerRow,
                             static_cast<Single>(feet.Diameter * 25.4),
                             static_cast<Single>(feet.Grade * 6.894757293),
                             InMetres(feet.RowSpacing),
                             InMetres(feet.EntryWidth)};

  RC_ASSERT(AgreesWithin(1E-5, *ActualLive(feet, English, Grades(Yield)), *ActualLive(metres, Metric, Grades(Yield))));
}

// The factors of weight and of force differ slightly, so that loads agree only within a hundredth of a percent.
RC_GTEST_PROP(UnitsProperty, AMetricDesignHasTheSameRockLoad, ()) {
  const Single angle = *Typed(0, 60);
  const RockInputs feet{*Typed(100, 180), *Typed(1, 20), angle, angle, *Typed(10, 40), *Typed(41, 80)};
  const RockInputs metres{static_cast<Single>(feet.UnitWeight / 6.3663022639200495),
                          InMetres(feet.Height),
                          angle,
                          angle,
                          InMetres(feet.Width),
                          InMetres(feet.Span)};

  const Single tonsPerFoot = *EntryRockLoad(feet, English);
  const Single tons = *IntersectionRockLoad(feet, English);

  RC_ASSERT(AgreesWithin(1E-4, tonsPerFoot * 8.896443 / 0.3048, *EntryRockLoad(metres, Metric)));
  RC_ASSERT(AgreesWithin(1E-4, tons * 8.896443, *IntersectionRockLoad(metres, Metric)));
}

}  // namespace
}  // namespace orby::test
