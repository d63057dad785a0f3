#include "engine/primary_support.h"

#include <gtest/gtest.h>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

constexpr SiteInputs EnglishSite{1, 45, 400, 60, 20};
constexpr SiteInputs MetricSite{1, 45, 150, 20, 6.2F};

SiteInputs With(SiteInputs site, Single SiteInputs::*member, Single value) {
  site.*member = value;
  return site;
}

constexpr WorkingSite SiteWith(Feet span) { return {1, 45, Feet(400), span, Feet(20)}; }

TEST(Suggestion, IsComputedForTheEnglishDefaults) {
  const Suggestion suggestion = SuggestSupport(SiteWith(Feet(60)), English);

  EXPECT_EQ(suggestion.SuggestedSpan.Value, 63.2F);
  EXPECT_EQ(suggestion.MinSpan.Value, 32.2842712F);
  EXPECT_EQ(suggestion.SugPSUP, 7.6068387F);
  EXPECT_EQ(suggestion.SugLength.Value, 4.89856911F);
}

TEST(Suggestion, WarnsOfASpanOutsideItsTwoLimits) {
  const WorkingSite fine = SiteWith(Feet(60));
  const WorkingSite tooLarge = SiteWith(Feet(63.3F));
  const WorkingSite tooSmall = SiteWith(Feet(31));
  const WorkingSite both{1, 15, Feet(400), Feet(60), Feet(41)};

  EXPECT_FALSE(SuggestSupport(fine, English).SpanIsTooLarge(fine));
  EXPECT_FALSE(SuggestSupport(fine, English).SpanAndWidthMismatch(fine));
  EXPECT_TRUE(SuggestSupport(tooLarge, English).SpanIsTooLarge(tooLarge));
  EXPECT_TRUE(SuggestSupport(tooSmall, English).SpanAndWidthMismatch(tooSmall));
  EXPECT_TRUE(SuggestSupport(both, English).SpanIsTooLarge(both));
  EXPECT_TRUE(SuggestSupport(both, English).SpanAndWidthMismatch(both));
}

TEST(Suggestion, DoesNotWarnOfASpanAtItsLimits) {
  const WorkingSite atSuggested = SiteWith(Feet(63.2F));
  const WorkingSite atSmallest = SiteWith(Feet(32.2842712F));

  EXPECT_FALSE(SuggestSupport(atSuggested, English).SpanIsTooLarge(atSuggested));
  EXPECT_FALSE(SuggestSupport(atSmallest, English).SpanAndWidthMismatch(atSmallest));
}

TEST(WorkingUnits, AreEnglishForProjectsOfEitherSystem) {
  EXPECT_EQ(InFeet(150, Metric).Value, 492.125977F);
  EXPECT_EQ(InFeet(400, English).Value, 400.0F);
  EXPECT_EQ(InEnglishUnits({20, 520}, Metric).Diameter.Value, 0.787401557F);
  EXPECT_EQ(InEnglishUnits({20, 520}, Metric).Grade.Value, 75.4196243F);
  EXPECT_EQ(InEnglishUnits({0.75F, 75}, English).Diameter.Value, 0.75F);
  EXPECT_EQ(InEnglishUnits({0.75F, 75}, English).Grade.Value, 75.0F);
}

TEST(LiveSuggestion, IsComputedForTheEnglishDefaults) {
  const auto live = SuggestLive(EnglishSite, English);

  ASSERT_TRUE(live);
  EXPECT_EQ(live->SuggestedSpan, 63.2F);
  EXPECT_EQ(live->SugPSUP, 7.6068387F);
  EXPECT_EQ(live->SugLength, 4.89856911F);
  EXPECT_FALSE(live->SpanIsTooLarge);
  EXPECT_FALSE(live->SpanAndWidthMismatch);
}

TEST(LiveSuggestion, IsInMetresForTheMetricDefaults) {
  const auto live = SuggestLive(MetricSite, Metric);

  ASSERT_TRUE(live);
  EXPECT_EQ(live->SuggestedSpan, 19.2633610F);
  EXPECT_EQ(live->SugPSUP, 10.2036600F);
  EXPECT_EQ(live->SugLength, 1.68934369F);
}

TEST(LiveSuggestion, WarnsOfTheSpanInEnglishDesigns) {
  const auto tooLarge = SuggestLive({1.3F, 55, 900, 70, 18}, English);
  const auto mismatch = SuggestLive({1, 45, 400, 31, 20}, English);

  ASSERT_TRUE(tooLarge);
  EXPECT_EQ(tooLarge->SugPSUP, 9.12592030F);
  EXPECT_TRUE(tooLarge->SpanIsTooLarge);
  EXPECT_FALSE(tooLarge->SpanAndWidthMismatch);
  ASSERT_TRUE(mismatch);
  EXPECT_EQ(mismatch->SugPSUP, 3.0F);
  EXPECT_FALSE(mismatch->SpanIsTooLarge);
  EXPECT_TRUE(mismatch->SpanAndWidthMismatch);
}

TEST(LiveSuggestion, DoesNotWarnOfTheSpanInMetricDesigns) {
  const auto tooLarge = SuggestLive(With(MetricSite, &SiteInputs::Span, 25), Metric);
  const auto tooSmall = SuggestLive(With(MetricSite, &SiteInputs::Span, 12), Metric);

  ASSERT_TRUE(tooLarge);
  EXPECT_EQ(tooLarge->SugPSUP, 15.9432173F);
  EXPECT_FALSE(tooLarge->SpanIsTooLarge);
  ASSERT_TRUE(tooSmall);
  EXPECT_EQ(tooSmall->SugPSUP, 3.67331743F);
  EXPECT_FALSE(tooSmall->SpanAndWidthMismatch);
}

struct SiteGuard {
  Single SiteInputs::*member;
  Single value;
  bool computes;
};

void ExpectGuards(const SiteInputs& site, UnitSystem units, std::initializer_list<SiteGuard> guards) {
  int row = 0;
  for (const auto& [member, value, computes] : guards) {
    EXPECT_EQ(SuggestLive(With(site, member, value), units).has_value(), computes) << "row " << row << ": " << value;
    ++row;
  }
}

TEST(LiveSuggestion, IsMissingForImplausibleInputInEnglishDesigns) {
  ExpectGuards(EnglishSite, English,
               {{&SiteInputs::StabilityFactor, 0, false},
                {&SiteInputs::StabilityFactor, 0.99F, false},
                {&SiteInputs::StabilityFactor, 1, true},
                {&SiteInputs::StabilityFactor, 1.01F, true},
                {&SiteInputs::CMRR, -0.01F, false},
                {&SiteInputs::CMRR, 0, true},
                {&SiteInputs::CMRR, 100, true},
                {&SiteInputs::CMRR, 100.01F, false},
                {&SiteInputs::Width, -1, false},
                {&SiteInputs::Width, 0, false},
                {&SiteInputs::Width, 0.01F, true},
                {&SiteInputs::Span, 19.99F, false},
                {&SiteInputs::Span, 20, false},
                {&SiteInputs::Span, 20.01F, true},
                {&SiteInputs::Depth, -0.01F, false},
                {&SiteInputs::Depth, 0.01F, true}});
}

TEST(LiveSuggestion, IsMissingForImplausibleInputInMetricDesigns) {
  ExpectGuards(MetricSite, Metric,
               {{&SiteInputs::StabilityFactor, 0.99F, false},
                {&SiteInputs::StabilityFactor, 1, true},
                {&SiteInputs::CMRR, -0.01F, false},
                {&SiteInputs::CMRR, 0, true},
                {&SiteInputs::CMRR, 100, true},
                {&SiteInputs::CMRR, 100.01F, false},
                {&SiteInputs::Width, 0, false},
                {&SiteInputs::Width, 0.01F, true},
                {&SiteInputs::Span, 6.19F, false},
                {&SiteInputs::Span, 6.2F, false},
                {&SiteInputs::Span, 6.21F, true},
                {&SiteInputs::Depth, -0.01F, false},
                {&SiteInputs::Depth, 0.01F, true}});
}

TEST(LiveSuggestion, FailsAtADepthOfZero) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestLive(With(EnglishSite, &SiteInputs::Depth, 0), English)); }),
            5);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(SuggestLive(With(MetricSite, &SiteInputs::Depth, 0), Metric)); }), 5);
}

constexpr PatternInputs EnglishPattern{6, 4, 0.75F, 75, 4, 20};
constexpr PatternInputs MetricPattern{2, 4, 20, 520, 1.2F, 6.2F};

PatternInputs With(PatternInputs pattern, Single PatternInputs::*member, Single value) {
  pattern.*member = value;
  return pattern;
}

TEST(LivePsup, IsComputedForTheDefaults) {
  EXPECT_EQ(ActualLive(EnglishPattern, English, Grades(Yield)), 9.94019508F);
  EXPECT_EQ(ActualLive(MetricPattern, Metric, Grades(Yield)), 12.0364599F);
}

TEST(LivePsup, UsesTheYieldStrengthOfUltimateGrades) {
  EXPECT_EQ(ActualLive(With(EnglishPattern, &PatternInputs::Grade, 100), English, Grades(Ultimate)), 9.94019508F);
  EXPECT_EQ(ActualLive(With(EnglishPattern, &PatternInputs::Grade, 110), English, Grades(Ultimate)), 11.0446622F);
  // 690 MPa are 100.08 ksi, which is not in the English list.
  EXPECT_EQ(ActualLive(With(MetricPattern, &PatternInputs::Grade, 690), Metric, Grades(Ultimate)), 11.5396614F);
}

TEST(LivePsup, IsComputedForTheThickestBoltsAndTheFullestRows) {
  EXPECT_EQ(ActualLive(With(EnglishPattern, &PatternInputs::BoltsPerRow, 10), English, Grades(Yield)), 24.8504868F);
  EXPECT_EQ(ActualLive(With(EnglishPattern, &PatternInputs::Diameter, 1.25F), English, Grades(Yield)), 27.6116543F);
  EXPECT_EQ(ActualLive(With(MetricPattern, &PatternInputs::BoltsPerRow, 10), Metric, Grades(Yield)), 30.0911503F);
  EXPECT_EQ(ActualLive(With(MetricPattern, &PatternInputs::Diameter, 31.75F), Metric, Grades(Yield)), 30.3337612F);
}

struct PatternGuard {
  Single PatternInputs::*member;
  Single value;
  bool computes;
};

void ExpectGuards(const PatternInputs& pattern, UnitSystem units, std::initializer_list<PatternGuard> guards) {
  int row = 0;
  for (const auto& [member, value, computes] : guards) {
    EXPECT_EQ(ActualLive(With(pattern, member, value), units, Grades(Yield)).has_value(), computes)
        << "row " << row << ": " << value;
    ++row;
  }
}

TEST(LivePsup, IsMissingForImplausibleInputInEnglishDesigns) {
  ExpectGuards(EnglishPattern, English,
               {{&PatternInputs::BoltsPerRow, -1, false},
                {&PatternInputs::BoltsPerRow, 0, false},
                {&PatternInputs::BoltsPerRow, 0.1F, true},
                {&PatternInputs::BoltsPerRow, 10, true},
                {&PatternInputs::BoltsPerRow, 10.5F, false},
                {&PatternInputs::Length, -1, false},
                {&PatternInputs::Length, 0, false},
                {&PatternInputs::Length, 0.01F, true},
                {&PatternInputs::Diameter, 0.499F, false},
                {&PatternInputs::Diameter, 0.5F, false},
                {&PatternInputs::Diameter, 0.50000006F, true},
                {&PatternInputs::Diameter, 0.501F, true},
                {&PatternInputs::Diameter, 1.25F, true},
                {&PatternInputs::Diameter, 1.25000012F, false},
                {&PatternInputs::Diameter, 1.251F, false},
                {&PatternInputs::Grade, -75, false},
                {&PatternInputs::Grade, 0, false},
                {&PatternInputs::Grade, 0.1F, true},
                {&PatternInputs::RowSpacing, -4, false},
                {&PatternInputs::RowSpacing, 0, false},
                {&PatternInputs::RowSpacing, 0.01F, true},
                {&PatternInputs::EntryWidth, -20, false},
                {&PatternInputs::EntryWidth, 0, false},
                {&PatternInputs::EntryWidth, 0.01F, true}});
}

TEST(LivePsup, IsMissingForImplausibleInputInMetricDesigns) {
  ExpectGuards(MetricPattern, Metric,
               {{&PatternInputs::BoltsPerRow, 0, false},
                {&PatternInputs::BoltsPerRow, 10, true},
                {&PatternInputs::BoltsPerRow, 10.5F, false},
                {&PatternInputs::Length, 0, false},
                {&PatternInputs::Length, 0.01F, true},
                {&PatternInputs::Diameter, 0.75F, false},
                {&PatternInputs::Diameter, 12.7F, false},
                {&PatternInputs::Diameter, 12.7000008F, true},
                {&PatternInputs::Diameter, 12.71F, true},
                {&PatternInputs::Diameter, 31.75F, true},
                {&PatternInputs::Diameter, 31.7500019F, false},
                {&PatternInputs::Diameter, 31.76F, false},
                {&PatternInputs::Grade, 0, false},
                {&PatternInputs::Grade, 0.1F, true},
                {&PatternInputs::RowSpacing, 0, false},
                {&PatternInputs::RowSpacing, 0.01F, true},
                {&PatternInputs::EntryWidth, 0, false},
                {&PatternInputs::EntryWidth, 0.01F, true}});
}

}  // namespace
}  // namespace orby::test
