// The search for patterns in the window "What Would Hold".
#include "dialogs/would_hold_fixture.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

struct Patterns : WouldHold {
  Patterns() {
    for (const Single length : {Single{5}, Single{6}}) {
      SetPrice({PricedSupport::Bolt, "#6 rebar - grade 60", length, 4 + length});
      SetPrice({PricedSupport::Bolt, "#7 rebar - grade 60", length, 6 + length});
    }
  }
  // Studies the patterns of the primary bolts.
  void OnThePage(const std::function<void(WouldHoldWindow&)>& user) {
    Study([&](WouldHoldWindow& window) {
      Turn(window, study_page::Patterns);
      user(window);
    });
  }
  // Runs the delayed calls until the search has ended.
  void FinishSearch(const WouldHoldWindow& window) {
    for (int calls = 0; calls < 1000 && window.Patterns.cmdStop.Enabled(); ++calls) platform.clock.Pass();
  }
  void SearchAll(WouldHoldWindow& window) {
    window.Patterns.cmdSearch.Press();
    FinishSearch(window);
    window.EndAct();
  }
  // Makes a search that one piece ends.
  static void SetNarrowLimits(WouldHoldWindow& window) {
    Edit(window, "txtLengthFrom=5|txtLengthTo=6|txtNumberFrom=4|txtNumberTo=5|txtSpacingFrom=3|txtSpacingTo=5");
    window.EndAct();
  }
};

TEST_F(Patterns, BeginWithTheUsualLimits) {
  Open();

  OnThePage([](const WouldHoldWindow& window) {
    EXPECT_EQ(window.Patterns.Number.From.Text(), "3");
    EXPECT_EQ(window.Patterns.Number.To.Text(), "8");
    EXPECT_EQ(window.Patterns.Spacing.From.Text(), "2");
    EXPECT_EQ(window.Patterns.Spacing.To.Text(), "6");
    EXPECT_TRUE(window.Patterns.cmdSearch.Enabled());
    EXPECT_FALSE(window.cmdApply.Enabled());
  });
}

TEST_F(Patterns, AreRankedByCostAndThoseWithoutAPriceAreLast) {
  Open();

  OnThePage([&](WouldHoldWindow& window) {
    SetNarrowLimits(window);
    SearchAll(window);

    EXPECT_THAT(Row(window.Patterns.grdPatterns, 0),
                ElementsAre("Cost ($/ft)", "Margin (%)", "Bolt", "Length (ft)", "Per row", "Spacing (ft)", "Front"));
    const auto costs = Column(window.Patterns.grdPatterns, 0);
    const auto unpriced = std::ranges::find(costs, "not priced");
    ASSERT_NE(unpriced, costs.begin());
    ASSERT_NE(unpriced, costs.end());
    EXPECT_TRUE(std::is_sorted(costs.begin(), unpriced,
                               [](const auto& a, const auto& b) { return TextValue(a) < TextValue(b); }));
    EXPECT_THAT(std::vector(unpriced, costs.end()), Each("not priced"));
    EXPECT_THAT(Column(window.Patterns.grdPatterns, 6), Contains("front"));
    EXPECT_THAT(window.Patterns.lblFound.Caption(), HasSubstr(" patterns hold, "));
    EXPECT_EQ(window.Patterns.prgSearch.Value(), 100);
  });
}

TEST_F(Patterns, AreInTheChartWithTheFrontAndTheSelectedOne) {
  Open();

  OnThePage([&](WouldHoldWindow& window) {
    SetNarrowLimits(window);
    SearchAll(window);

    const Chart& chart = window.Patterns.chtPatterns;
    ASSERT_EQ(chart.Series().size(), 2U);
    EXPECT_EQ(chart.AxisX().title, "Margin (%)");
    EXPECT_EQ(chart.AxisY().title, "Cost ($/ft)");
    const auto& costs = chart.Series()[1].y;
    EXPECT_TRUE(std::ranges::is_sorted(costs)) << "the front costs more for more margin";
    for (const int row : {1, 2, 7}) {
      Select(window, window.Patterns.grdPatterns, row);
      ASSERT_TRUE(chart.ReadPoint());
      EXPECT_EQ(chart.ReadPoint()->series, 0);
      const auto point = static_cast<std::size_t>(chart.ReadPoint()->point);
      EXPECT_EQ(FormatNumber(chart.Series()[0].y[point], "0.00"), window.Patterns.grdPatterns.Cell(row, 0));
      EXPECT_EQ(FormatNumber(chart.Series()[0].x[point], "0.0"), window.Patterns.grdPatterns.Cell(row, 1));
    }
    EXPECT_TRUE(std::ranges::is_sorted(chart.Series()[0].x)) << "a chart counts its points from the left";
    Select(window, window.Patterns.grdPatterns, window.Patterns.grdPatterns.Rows() - 1);
    EXPECT_EQ(chart.ReadPoint(), std::nullopt) << "it has no price";
  });
}

TEST_F(Patterns, GoIntoTheFields) {
  Open();
  std::vector<std::string> row;

  OnThePage([&](WouldHoldWindow& window) {
    SetNarrowLimits(window);
    SearchAll(window);
    Select(window, window.Patterns.grdPatterns, 1);
    row = Row(window.Patterns.grdPatterns, 1);
    window.cmdApply.Press();
  });

  EXPECT_EQ(dialog.PrimaryBoltControls.Table.Cell(dialog.PrimaryBoltControls.Table.Row(), 1), row[2]);
  EXPECT_EQ(Text("txtBoltLengthPrimary"), row[3]);
  EXPECT_EQ(Text("txtBoltsperRowPrimary"), row[4]);
  EXPECT_EQ(Text("txtRowSpacingPrimary"), row[5]);
  EXPECT_THAT(Judgements(), Each(Not(StartsWith("Short: "))));

  dialog.UndoEdit();
  EXPECT_EQ(Text("txtRowSpacingPrimary"), "14");
  EXPECT_EQ(Text("VSFlexGridPrimary"), "6");
}

TEST_F(Patterns, AreSearchedBetweenTheEventsOfTheWindow) {
  Open();

  OnThePage([&](WouldHoldWindow& window) {
    window.Patterns.cmdSearch.Press();
    EXPECT_TRUE(window.Patterns.cmdStop.Enabled());
    EXPECT_FALSE(window.Patterns.cmdSearch.Enabled());
    EXPECT_GT(window.Patterns.prgSearch.Value(), 0);
    EXPECT_LT(window.Patterns.prgSearch.Value(), 100);

    FinishSearch(window);

    EXPECT_FALSE(window.Patterns.cmdStop.Enabled());
    EXPECT_TRUE(window.Patterns.cmdSearch.Enabled());
    EXPECT_TRUE(window.cmdApply.Enabled());
  });
}

TEST_F(Patterns, ShowWhatWasFoundBeforeAStop) {
  Open();

  OnThePage([&](WouldHoldWindow& window) {
    window.Patterns.cmdSearch.Press();
    window.Patterns.cmdStop.Press();

    EXPECT_THAT(window.Patterns.lblFound.Caption(), HasSubstr("The search was stopped before its end."));
    EXPECT_TRUE(window.Patterns.cmdSearch.Enabled());
    const std::string text = window.Patterns.lblFound.Caption();
    platform.clock.Pass();
    EXPECT_EQ(window.Patterns.lblFound.Caption(), text);
  });
}

TEST_F(Patterns, AreSearchedNoLongerOnceTheWindowHasClosed) {
  Open();

  OnThePage([](const WouldHoldWindow& window) { window.Patterns.cmdSearch.Press(); });

  platform.clock.Pass();
  EXPECT_THAT(platform.clock.waiting, IsEmpty());
}

TEST_F(Patterns, AreDroppedWhenTheirLimitsOrPricesChange) {
  Open();

  OnThePage([&](WouldHoldWindow& window) {
    SetNarrowLimits(window);
    SearchAll(window);
    Edit(window, "txtSpacingTo=4.5");
    window.EndAct();
    EXPECT_EQ(window.Patterns.grdPatterns.Rows(), 1);
    EXPECT_FALSE(window.cmdApply.Enabled());
    EXPECT_EQ(window.Patterns.lblFound.Caption(), "Press Search to find the patterns that hold.");

    SearchAll(window);
    ASSERT_GT(window.Patterns.grdPatterns.Rows(), 1);
    Turn(window, study_page::Prices);
    window.grdBoltPrices.ClickCell(1, 1);
    window.txtBoltPrice.SetText("3");
    window.EndAct();
    EXPECT_EQ(window.Patterns.grdPatterns.Rows(), 1);
  });
}

TEST_F(Patterns, RefuseLimitsThatCannotBeSearched) {
  struct Fault {
    std::string_view edits;
    std::string_view field;
    std::string_view words;
  };
  Open();

  OnThePage([&](WouldHoldWindow& window) {
    for (const Fault& fault :
         {Fault{"txtSpacingTo=400", "txtSpacingFrom", "Invalid limits: Row spacing. Valid range 1 to 20 ft"},
          Fault{"txtNumberFrom=6|txtNumberTo=5", "txtNumberFrom", "Invalid limits: Bolts per row. "},
          Fault{"txtLengthFrom=5.2|txtLengthTo=5.8", "txtLengthFrom", "with a stocked length between them"},
          Fault{"txtSpacingFrom=1E40", "txtSpacingFrom", "Invalid limits: Row spacing"}}) {
      SetNarrowLimits(window);
      Edit(window, fault.edits);
      window.EndAct();
      platform.boxes.shown.clear();

      window.Patterns.cmdSearch.Press();

      EXPECT_THAT(platform.boxes.Texts(), ElementsAre(HasSubstr(fault.words))) << fault.edits;
      ASSERT_NE(window.FocusRequest(), nullptr);
      EXPECT_EQ(window.FocusRequest()->Name(), fault.field) << fault.edits;
      EXPECT_EQ(window.Patterns.grdPatterns.Rows(), 1);
    }
  });
}

TEST_F(Patterns, MarkLimitsOutOfRange) {
  Open();

  OnThePage([](WouldHoldWindow& window) {
    Edit(window, "txtSpacingTo=400|txtNumberFrom=4");

    EXPECT_EQ(window.Patterns.Spacing.To.Mark(), FieldMark::OutOfRange);
    EXPECT_EQ(window.Patterns.Number.From.Mark(), FieldMark::None);
    EXPECT_THAT(window.HintOf(window.Patterns.Spacing.To), Contains("Out of range: 1 to 20 ft"));
  });
}

TEST_F(Patterns, DoNotMarkTheLimitsThatTheyBeginWith) {
  for (const UnitSystem units : {English, Metric}) {
    StartDesign(units);
    ParametersDialog other(program);
    other.Open();
    Edit(other, "chkSecondSupEntries=1|chkSecondSupInter=1");
    Edit(other, AllSystems);
    WouldHoldWindow window(program, other);
    window.Open();
    ASSERT_EQ(window.cmbSupport.Items().size(), 9U);
    for (int support = 0; support < 9; ++support) {
      window.cmbSupport.SetListIndex(support);
      for (LimitControls* limit : {&window.Patterns.Length, &window.Patterns.Number, &window.Patterns.Spacing}) {
        for (const LabelledBox* box : limit->Both()) {
          EXPECT_EQ(box->Mark(), FieldMark::None) << window.cmbSupport.Text() << " " << box->Name();
        }
      }
    }
  }
}

TEST_F(Patterns, OfASupportWithoutALeverHaveNoLimitsForIt) {
  Open(
      "chkPrimSupport=0|chkSecondSupEntries=1|chkSecondSupInter=0|chkSecEntries_0=0|chkSecEntries_1=1|chkSecEntries_2="
      "0|"
      "chkSecEntries_3=0");

  OnThePage([&](WouldHoldWindow& window) {
    ASSERT_EQ(window.cmbSupport.Text(), "Entries: trusses");
    EXPECT_FALSE(window.Patterns.Length.From.Enabled());
    EXPECT_FALSE(window.Patterns.Number.To.Enabled());
    EXPECT_TRUE(window.Patterns.Spacing.From.Enabled());
    EXPECT_EQ(window.Patterns.Length.From.Mark(), FieldMark::None);
    EXPECT_THAT(Row(window.Patterns.grdPatterns, 0),
                ElementsAre("Cost ($/ft)", "Margin (%)", "", "Spacing (ft)", "Front"));
  });
}

TEST_F(Patterns, HaveMetricHeadsInAMetricProject) {
  StartDesign(Metric);
  Open("chkSecondSupEntries=0|chkSecondSupInter=1|chkSecInter_0=1|chkSecInter_1=0|chkSecInter_2=0|chkSecInter_3=0");

  OnThePage([](WouldHoldWindow& window) {
    window.cmbSupport.SetText("Primary roof bolts");
    window.EndAct();
    EXPECT_THAT(Row(window.Patterns.grdPatterns, 0),
                AllOf(Contains("Cost ($/m)"), Contains("Length (m)"), Contains("Spacing (m)")));
    window.cmbSupport.SetText("Intersections: cable bolts");
    window.EndAct();
    EXPECT_THAT(Row(window.Patterns.grdPatterns, 0), AllOf(Contains("Cost ($ per intersection)"), Contains("Number")));
  });
}

}  // namespace
}  // namespace orby::test
