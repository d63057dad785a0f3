#include "engine/unit_calculator.h"

#include <gmock/gmock.h>

#include "base/number_text.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Eq;
using testing::Optional;

struct Conversion {
  const char* name;
  UnitGroup group;
  double value;
  std::size_t unit;
  std::vector<std::string> results;
};

void PrintTo(const Conversion& conversion, std::ostream* out) { *out << conversion.name; }

class ConvertedUnits : public testing::TestWithParam<Conversion> {};

TEST_P(ConvertedUnits, UseTheFactorsOfTheirGroup) {
  std::vector<std::string> texts;
  for (const auto& value : ConvertUnits(GetParam().group, GetParam().value, GetParam().unit)) {
    texts.push_back(NumberText(value.value()));
  }

  EXPECT_THAT(texts, ElementsAreArray(GetParam().results));
}

const Conversion Conversions[] = {
    {"Inches", UnitGroup::Length, 63, 0, {"63", "5.25", "160.02", "1.6002"}},
    {"Feet", UnitGroup::Length, 1, 1, {"12", "1", "30.48", "0.3048"}},
    {"Centimetres", UnitGroup::Length, 177.8, 2, {"70", "5.83333333333333", "177.8", "1.778"}},
    {"Metres", UnitGroup::Length, 6.2, 3, {"244.094488188976", "20.3412073490814", "620", "6.2"}},
    {"PoundsForce", UnitGroup::Load, 1500, 0, {"1500", "0.75", "6.67233073408983", "6.67233073408983E-03", "1.5"}},
    {"ShortTons", UnitGroup::Load, 27, 1, {"54000", "27", "240.203906427234", "0.240203906427234", "54"}},
    {"KiloNewtons", UnitGroup::Load, 240, 2, {"53954.16", "26.97708", "240", "0.24", "53.95416"}},
    {"MegaNewtons", UnitGroup::Load, 1.2, 3, {"269770.8", "134.8854", "1200", "1.2", "269.7708"}},
    {"Kips", UnitGroup::Load, 52, 4, {"52000", "26", "231.307465448447", "0.231307465448447", "52"}},
    {"PoundsPerInch", UnitGroup::LoadGradient, 75, 0, {"75", "900", "13.1345093190745", "1.31345093190745E-02"}},
    {"PoundsPerFoot", UnitGroup::LoadGradient, 2400, 1, {"200", "2400", "35.0253581841986", "3.50253581841986E-02"}},
    {"KiloNewtonsPerMetre", UnitGroup::LoadGradient, 335, 2, {"1912.899781", "22954.797372", "335", "0.335"}},
    {"MegaNewtonsPerMetre", UnitGroup::LoadGradient, 0.5, 3, {"2855.0743", "34260.8916", "500", "0.5"}},
    {"Psi", UnitGroup::Stress, 145, 0, {"145", "0.145", "20880", "999739.807485", "0.999739807485"}},
    {"Ksi", UnitGroup::Stress, 75, 1, {"75000", "75", "10800000", "517106796.975", "517.106796975"}},
    {"Psf",
     UnitGroup::Stress,
     2000,
     2,
     {"13.8888888888889", "1.38888888888889E-02", "2000", "95760.5179583333", "9.57605179583333E-02"}},
    {"Pascals",
     UnitGroup::Stress,
     101325,
     3,
     {"14.6959487758723", "1.46959487758723E-02", "2116.21662372561", "101325", "0.101325"}},
    {"MegaPascals",
     UnitGroup::Stress,
     520,
     4,
     {"75419.6236215504", "75.4196236215504", "10860425.8015033", "520000000", "520"}},
    {"PsiPerInch",
     UnitGroup::StressGradient,
     0.09375,
     0,
     {"0.09375", "1.125", "25448.1691424705", "2.54481691424705E-02"}},
    {"PsiPerFoot",
     UnitGroup::StressGradient,
     1.1,
     1,
     {"9.16666666666667E-02", "1.1", "24882.6542726378", "2.48826542726378E-02"}},
    {"PascalsPerMetre",
     UnitGroup::StressGradient,
     25000,
     2,
     {"9.20989634609318E-02", "1.10518756153118", "25000", "0.025"}},
    {"MegaPascalsPerMetre",
     UnitGroup::StressGradient,
     0.025,
     3,
     {"9.20989634609318E-02", "1.10518756153118", "25000", "0.025"}},
};

INSTANTIATE_TEST_SUITE_P(Of, ConvertedUnits, testing::ValuesIn(Conversions),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(AConvertedValue, IsUnchangedInItsOwnUnit) {
  EXPECT_EQ(ConvertUnits(UnitGroup::LoadGradient, 0.3, 1)[1], 0.3);
  EXPECT_EQ(ConvertUnits(UnitGroup::Stress, 1.1, 3)[3], 1.1);
}

TEST(AConvertedValue, OfZeroIsZero) {
  EXPECT_THAT(ConvertUnits(UnitGroup::StressGradient, 0, 2), ElementsAre(0, 0, 0, 0));
}

TEST(AConvertedValue, BeyondTheRangeOfADoubleIsMissing) {
  const auto stress = ConvertUnits(UnitGroup::Stress, 1E306, 0);

  EXPECT_THAT(stress, ElementsAre(Optional(1E306), Optional(1E303), Optional(DoubleEq(1.44E308)), Eq(std::nullopt),
                                  Eq(std::nullopt)))
      << "megapascals are computed from pascals";
}

TEST(AConvertedValue, IsUnchangedEvenWhenTheFirstUnitIsMissing) {
  EXPECT_THAT(ConvertUnits(UnitGroup::Length, 1E308, 1),
              ElementsAre(Eq(std::nullopt), Optional(1E308), Eq(std::nullopt), Eq(std::nullopt)));
}

}  // namespace
}  // namespace orby::test
