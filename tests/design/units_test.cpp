#include "design/units.h"

#include <gtest/gtest.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct LabelPair {
  const char* english;
  const char* metric;
};

constexpr LabelPair Expected[] = {
    {" (ft)", " (m)"},                  // 0
    {" (psi)", " (MPa)"},               // 1
    {" (pcf)", " (kN/m3)"},             // 2
    {" (in)", " (cm)"},                 // 3
    {" (psf)", " (kPa)"},               // 4
    {" (lbs)", " (kN)"},                // 5
    {" (tons)", " (tn)"},               // 6
    {" (ft)", " (cm)"},                 // 7
    {" (ksi)", " (MPa)"},               // 8
    {" (tons)", " (MN)"},               // 9
    {" (tons/ft)", " (MN/m)"},          // 10
    {" (in)", " (mm)"},                 // 11
    {" (tons)", " (kN)"},               // 12
    {" (tons/ft)", " (kN/m)"},          // 13
    {" (million psi)", " (GPa)"},       // 14
    {" (kips/ft)", " (kN/m)"},          // 15
    {" (kip-ft/ft^2)", " (kN-m/m^2)"},  // 16
    {" (ton-ft/ft^2)", " (kN-m/m^2)"},  // 17
};

TEST(UnitLabels, AreFixedForEveryQuantityInBothSystems) {
  for (int row = 0; row < 18; ++row) {
    EXPECT_EQ(UnitLabel(UnitSuffix{row}, English), Expected[row].english) << "row " << row;
    EXPECT_EQ(UnitLabel(UnitSuffix{row}, Metric), Expected[row].metric) << "row " << row;
  }
}

TEST(UnitLabels, NameTheQuantitiesOfADesign) {
  EXPECT_EQ(UnitLabel(UnitSuffix::Length, English), " (ft)");
  EXPECT_EQ(UnitLabel(UnitSuffix::Stress, Metric), " (MPa)");
  EXPECT_EQ(UnitLabel(UnitSuffix::UnitWeight, English), " (pcf)");
  EXPECT_EQ(UnitLabel(UnitSuffix::Force, Metric), " (kN)");
  EXPECT_EQ(UnitLabel(UnitSuffix::LineLoad, English), " (tons/ft)");
  EXPECT_EQ(UnitLabel(UnitSuffix::Grade, English), " (ksi)");
  EXPECT_EQ(UnitLabel(UnitSuffix::Diameter, Metric), " (mm)");
  EXPECT_EQ(UnitLabel(UnitSuffix::ProductionMass, Metric), " (tn)");
  EXPECT_EQ(UnitLabel(UnitSuffix::ProductionRate, Metric), " (MN/m)");
}

TEST(UnitLabels, OutsideTheTableAreRefused) {
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(UnitLabel(UnitSuffix{-1}, English)); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(UnitLabel(UnitSuffix{18}, English)); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(UnitLabel(UnitSuffix{0}, UnitSystem{-1})); }), 9);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(UnitLabel(UnitSuffix{0}, UnitSystem{2})); }), 9);
}

TEST(UnitSystem, HasASummaryOfItsUnits) {
  EXPECT_EQ(UnitSummary(English), "ft, in, lbs, psi, pcf");
  EXPECT_EQ(UnitSummary(Metric), "m, cm, kN, MPa, kN/m3");
}

TEST(UnitSystem, HasTheFactorsOfExistingDesigns) {
  EXPECT_EQ(FeetPerMetre, 3.280839895013123);
  EXPECT_EQ(MillimetresPerInch, 25.4);
  EXPECT_EQ(MPaPerKsi, 6.894757293);
  EXPECT_EQ(KilonewtonsPerTon, 8.896443);
  EXPECT_EQ(KilonewtonsPerPound, 0.004448220489393218);
  EXPECT_EQ(PcfPerKilonewtonCubicMetre, 6.3663022639200495);
}

TEST(Units, FactorsLeadFromEnglishToMetric) {
  EXPECT_NEAR(400 * MetricPerEnglish(UnitSuffix::Length), 121.92, 1e-9);
  EXPECT_NEAR(0.75 * MetricPerEnglish(UnitSuffix::Diameter), 19.05, 1e-9);
  EXPECT_NEAR(75 * MetricPerEnglish(UnitSuffix::Grade), 517.1068, 1e-4);
  EXPECT_NEAR(162 * MetricPerEnglish(UnitSuffix::UnitWeight), 25.4465, 1e-4);
  EXPECT_NEAR(30 * MetricPerEnglish(UnitSuffix::Force), 266.8933, 1e-4);
  EXPECT_NEAR(10 * MetricPerEnglish(UnitSuffix::LineLoad), 291.8781, 1e-4);
  EXPECT_NEAR(1000 * MetricPerEnglish(UnitSuffix::Stress), 6.894757, 1e-6);
  EXPECT_NEAR(100 * MetricPerEnglish(UnitSuffix::ProductionMass), 90.71847, 1e-5);
  EXPECT_NEAR(10 * MetricPerEnglish(UnitSuffix::ProductionRate), 0.2918781, 1e-7);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(MetricPerEnglish(UnitSuffix::None)); }), 9);
}

}  // namespace
}  // namespace orby::test
