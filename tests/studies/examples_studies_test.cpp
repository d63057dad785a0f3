// What would make the supports of the examples hold.
#include <fstream>

#include "core/catalog_choice.h"
#include "files/project_file.h"
#include "files/shown_design.h"
#include "studies/least_change.h"
#include "studies/pattern_search.h"
#include "studies/study_designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

class ExampleStudies : public testing::TestWithParam<std::string> {
 protected:
  ExampleStudies() {
    SetBuiltInCatalogs(program_.session.catalogs);
    Project& project = program_.project;
    project.CurrentFile = "/" + GetParam() + ".ORB";
    std::ifstream file(std::string(EXAMPLES_DIR) + project.CurrentFile, std::ios::binary);
    platform_.files.files[project.CurrentFile] = {std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(FileOpen(program_));
    Catalogs& catalogs = program_.session.catalogs;
    design = AsShown(project.WorkParms, LoadBoltTable(project, catalogs), catalogs);
    prices = AllPrices(design.Units);
  }

  const Catalogs& Offered() const { return program_.session.catalogs; }
  std::vector<Verdict> JudgedIn(const Design& changed, const StudiedSupport& support) const {
    std::vector<Verdict> judged;
    const Verdicts verdicts = Judge(changed, Analyze(changed, Offered()));
    for (const Verdict& verdict : verdicts.All()) {
      if (SupportOf(verdict) == support) judged.push_back(verdict);
    }
    return judged;
  }
  bool HoldsIn(const Design& changed, const StudiedSupport& support) const {
    return std::ranges::all_of(JudgedIn(changed, support), LetsHold);
  }

  Design design;
  PriceList prices;

 private:
  RecordingPlatform platform_;
  Program program_{platform_.AsPlatform()};
};

TEST_P(ExampleStudies, TheNamedChangesHold) {
  for (const StudiedSupport& support : StudiedSupports(design)) {
    for (const Lever lever : LeversOf(design, support)) {
      const LeverChange change = LeastChange(design, Offered(), prices, support, lever);
      EXPECT_EQ(change.Outcome == LeverOutcome::Holds, HoldsIn(design, support));
      if (change.Outcome != LeverOutcome::Changed) continue;
      EXPECT_TRUE(HoldsIn(change.After, support));
      EXPECT_TRUE(std::ranges::equal(change.Judged.Found.All(), JudgedIn(change.After, support)));
    }
  }
}

TEST_P(ExampleStudies, ThePatternsFoundHold) {
  for (const StudiedSupport& support : StudiedSupports(design)) {
    PatternSearch search(design, Offered(), prices, support, UsualLimits(design, support));
    EXPECT_GT(search.Total(), 0U);
    while (!search.Step(1000)) {
    }
    const FoundPatterns found = search.Found();
    // The Australian bolts have no price here.
    for (const auto* list : {&found.Ranked, &found.NotPriced}) {
      for (const FoundPattern& pattern : *list) {
        Design changed = design;
        SetPattern(changed, Offered(), support, pattern.Values);
        ASSERT_TRUE(HoldsIn(changed, support));
        ASSERT_EQ(pattern.Cost, CostOf(changed, Offered(), prices, support));
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleStudies,
                         testing::Values("development-entry", "belt-entry-trusses", "gateroad-standing-supports",
                                         "intersection-secondary-bolts", "weak-roof", "australian-grade-metric"));

}  // namespace
}  // namespace orby::test
