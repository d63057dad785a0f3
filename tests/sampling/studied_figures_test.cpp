// The figures of a study are those of the analysis.
#include <gmock/gmock.h>

#include <set>

#include "sampling/samples.h"
#include "sampling/studied_figures.h"

namespace orby::test {
namespace {

FigureValue ValueIn(const Figures& figures, std::string_view key) { return FigureWithKey(key)->Of(figures); }

TEST(StudiedFigures, AreThoseOfTheAnalysis) {
  const Figures figures = Analyze(FullDesign(), BuiltInLists());

  EXPECT_EQ(ValueIn(figures, "suggested-span").Value, figures.Suggested.Value().SuggestedSpan);
  EXPECT_EQ(ValueIn(figures, "suggested-psup").Value, figures.Suggested.Value().SugPSUP);
  EXPECT_EQ(ValueIn(figures, "suggested-bolt-length").Value, figures.Suggested.Value().SugLength);
  EXPECT_EQ(ValueIn(figures, "actual-psup").Value, figures.Primary.Value().ActualPSUP);
  EXPECT_EQ(ValueIn(figures, "rdi").Value, figures.Primary.Value().RDI);
  EXPECT_EQ(ValueIn(figures, "prsup").Value, figures.Primary.Value().PRSUP);
  EXPECT_EQ(ValueIn(figures, "bolt-capacity").Value, figures.Primary.Value().Capacity);
  EXPECT_EQ(ValueIn(figures, "entry-cable-srdi").Value, figures.EntryReinforcement.Value().CableSRDI);
  EXPECT_EQ(ValueIn(figures, "entry-cable-prsup").Value, figures.EntryReinforcement.Value().CablePRSUP);
  EXPECT_EQ(ValueIn(figures, "entry-bolt-srdi").Value, figures.EntryReinforcement.Value().BoltSRDI);
  EXPECT_EQ(ValueIn(figures, "entry-bolt-prsup").Value, figures.EntryReinforcement.Value().BoltPRSUP);
  EXPECT_EQ(ValueIn(figures, "entry-highest-rock").Value, figures.EntryReinforcement.Value().HighestRock);
  EXPECT_EQ(ValueIn(figures, "intersection-highest-rock").Value, figures.IntersectionReinforcement.Value().HighestRock);
}

TEST(StudiedFigures, OfSystemsAreThoseOfTheAnalysis) {
  const Figures figures = Analyze(FullDesign(), BuiltInLists());
  const std::array systems{"cable", "truss", "bolt", "standing"};

  EXPECT_EQ(ValueIn(figures, "entry-rock-load").Value, figures.Entries.RockLoad.Value().value());
  EXPECT_EQ(ValueIn(figures, "intersection-rock-load").Value, figures.Intersections.RockLoad.Value().value());
  for (std::size_t i = 0; i < SystemCount; ++i) {
    const std::string system = systems[i];
    const SupportResult entry = figures.Entries.Systems[i].Value().value();
    const SupportResult crossing = figures.Intersections.Systems[i].Value().value();
    EXPECT_EQ(ValueIn(figures, "entry-" + system + "-capacity").Value, entry.Capacity);
    EXPECT_EQ(ValueIn(figures, "entry-" + system + "-factor").Value, entry.StabilityFactor);
    EXPECT_EQ(ValueIn(figures, "intersection-" + system + "-capacity").Value, crossing.Capacity);
    EXPECT_EQ(ValueIn(figures, "intersection-" + system + "-factor").Value, crossing.StabilityFactor);
  }
}

TEST(StudiedFigures, HaveKeysOfTheirOwn) {
  std::set<std::string_view> keys;
  for (const StudiedFigure& figure : StudiedFigures()) {
    keys.insert(figure.Key);
    EXPECT_EQ(FigureWithKey(figure.Key), &figure);
  }
  EXPECT_EQ(keys.size(), StudiedFigures().size());
  EXPECT_EQ(FigureWithKey("cost"), nullptr);
}

TEST(StudiedFigures, WithoutAValueTellWhy) {
  Design design = FullDesign();
  design.Entries.Cable.Use = 0;
  design.Intersections.RockLoadHeight = 0;
  const Figures figures = Analyze(design, BuiltInLists());

  const FigureValue density = ValueIn(figures, "entry-bolt-srdi");
  const FigureValue load = ValueIn(figures, "intersection-rock-load");

  EXPECT_FALSE(density.IsThere());
  EXPECT_EQ(density.Error, 11);
  EXPECT_FALSE(load.IsThere());
  EXPECT_EQ(load.Error, 0);
}

TEST(StudiedFigures, OfSupportThatIsNotUsedAreNotFollowed) {
  Design design = FullDesign();
  design.Entries.Analysed = 0;
  design.Intersections.Truss.Use = 0;

  EXPECT_TRUE(FigureWithKey("actual-psup")->IsUsed(design));
  EXPECT_FALSE(FigureWithKey("entry-rock-load")->IsUsed(design));
  EXPECT_FALSE(FigureWithKey("entry-cable-factor")->IsUsed(design));
  EXPECT_FALSE(FigureWithKey("intersection-truss-factor")->IsUsed(design));
  EXPECT_TRUE(FigureWithKey("intersection-cable-factor")->IsUsed(design));
}

}  // namespace
}  // namespace orby::test
