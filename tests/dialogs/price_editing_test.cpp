// The prices in the window "What Would Hold".
#include "config/price_section.h"
#include "dialogs/parameters_fixture.h"
#include "dialogs/would_hold_window.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Prices : AParametersDialog {
  Prices() { program.session.IniFilePath = "/home/user/ORBY.INI"; }

  void Open() {
    dialog.Open();
    window.Open();
    window.tabStudy.ClickTab(study_page::Prices);
    window.EndAct();
  }
  const PriceList& List() const { return program.session.prices[PlaceOf(program.project.WorkParms.Units)]; }
  static std::vector<std::string> Row(const Grid& grid, int row) {
    std::vector<std::string> texts;
    for (int column = 0; column < grid.Columns(); ++column) texts.push_back(grid.Cell(row, column));
    return texts;
  }
  // Types into a cell and ends the act, as the view does.
  void TypeInto(Grid& grid, int row, int column, const std::string& text) {
    grid.ClickCell(row, column);
    grid.Overlay()->SetText(text);
    window.EndAct();
  }
  static int RowOf(const Grid& grid, std::string_view name) {
    for (int row = 1; row < grid.Rows(); ++row) {
      if (grid.Cell(row, 0) == name) return row;
    }
    throw std::logic_error("no row " + std::string(name));
  }
  std::string File() { return platform.files.files[program.session.IniFilePath]; }

  WouldHoldWindow window{program, dialog};
};

TEST_F(Prices, AreABlankTableOfBoltsByStockedLengthAtFirst) {
  Open();

  EXPECT_THAT(Row(window.grdBoltPrices, 0),
              ElementsAre("Roof bolt", "4 ft", "5 ft", "6 ft", "7 ft", "8 ft", "10 ft", "12 ft"));
  EXPECT_THAT(Row(window.grdBoltPrices, 6), ElementsAre("#6 rebar - grade 60", "", "", "", "", "", "", ""));
  EXPECT_EQ(window.grdBoltPrices.Rows(), 11);
  EXPECT_EQ(window.txtLengths.Text(), "4, 5, 6, 7, 8, 10, 12");
  EXPECT_EQ(window.lblLengthsRead.Caption(), "Read as 4, 5, 6, 7, 8, 10, 12 ft");
}

TEST_F(Prices, AreOfTheUnitSystemOfTheProject) {
  StartDesign(Metric);
  program.session.prices[PlaceOf(Metric)].Prices = {{PricedSupport::Cable, "15.2", 0, 80}};
  Open();

  EXPECT_EQ(window.grdBoltPrices.Cell(0, 1), "1.2 m");
  EXPECT_EQ(window.lblLengthsRead.Caption(), "Read as 1.2, 1.5, 1.8, 2.1, 2.4, 3, 3.6 m");
  EXPECT_EQ(window.grdOtherPrices.Cell(RowOf(window.grdOtherPrices, "Cable bolt, 15.2 mm"), 1), "80");
}

TEST_F(Prices, OfSecondarySupportAreThoseOfTheCatalogs) {
  Open();

  EXPECT_THAT(Row(window.grdOtherPrices, 0), ElementsAre("Support", "Price ($)"));
  EXPECT_THAT(Row(window.grdOtherPrices, 1), ElementsAre("Cable bolt, 0.6 in", ""));
  EXPECT_THAT(Row(window.grdOtherPrices, RowOf(window.grdOtherPrices, "Truss")), ElementsAre("Truss", ""));
  EXPECT_THAT(Row(window.grdOtherPrices, window.grdOtherPrices.Rows() - 1),
              ElementsAre("Concrete Crib (24in x 24in)", ""));
}

TEST_F(Prices, AreTakenWithEachKey) {
  Open();

  TypeInto(window.grdBoltPrices, 6, 3, "8.5");
  EXPECT_EQ(List().Find(PricedSupport::Bolt, "#6 rebar - grade 60", 6), 8.5F);

  TypeInto(window.grdBoltPrices, 6, 3, "8.75");
  TypeInto(window.grdOtherPrices, RowOf(window.grdOtherPrices, "Truss"), 1, "140");

  EXPECT_THAT(List().Prices, ElementsAre(Price{PricedSupport::Bolt, "#6 rebar - grade 60", 6, 8.75F},
                                         Price{PricedSupport::Truss, "", 0, 140}));
}

TEST_F(Prices, AreRemovedByABlankCell) {
  program.session.prices[0].Prices = {{PricedSupport::Truss, "", 0, 140},
                                      {PricedSupport::Bolt, "#6 rebar - grade 60", 6, 8.5F}};
  Open();
  const int truss = RowOf(window.grdOtherPrices, "Truss");
  ASSERT_EQ(window.grdOtherPrices.Cell(truss, 1), "140");

  for (const char* text : {"", "0", "-3", "1E400"}) {
    TypeInto(window.grdOtherPrices, truss, 1, "140");
    TypeInto(window.grdOtherPrices, truss, 1, text);

    EXPECT_THAT(List().Prices, ElementsAre(Price{PricedSupport::Bolt, "#6 rebar - grade 60", 6, 8.5F})) << text;
  }
}

TEST_F(Prices, FollowTheStockedLengths) {
  Open();
  TypeInto(window.grdBoltPrices, 6, 3, "8.5");

  window.txtLengths.SetText("9, 6; 5.5");
  window.EndAct();

  EXPECT_THAT(List().BoltLengths, ElementsAre(5.5F, 6, 9));
  EXPECT_EQ(window.lblLengthsRead.Caption(), "Read as 5.5, 6, 9 ft");
  EXPECT_THAT(Row(window.grdBoltPrices, 6), ElementsAre("#6 rebar - grade 60", "", "8.5", ""));
}

TEST_F(Prices, OfALengthThatIsNoLongerStockedComeBackWithIt) {
  Open();
  TypeInto(window.grdBoltPrices, 6, 3, "8.5");
  window.txtLengths.SetText("4, 5");
  window.EndAct();
  TypeInto(window.grdBoltPrices, 6, 1, "7");

  window.txtLengths.SetText("4, 5, 6");
  window.EndAct();

  EXPECT_THAT(Row(window.grdBoltPrices, 6), ElementsAre("#6 rebar - grade 60", "7", "", "8.5"));
}

TEST_F(Prices, KeepTheLastLengthsWhileThereAreNone) {
  Open();

  window.txtLengths.SetText("");
  window.EndAct();

  EXPECT_THAT(List().BoltLengths, ElementsAre(4, 5, 6, 7, 8, 10, 12));
  EXPECT_EQ(window.lblLengthsRead.Caption(), "Read as 4, 5, 6, 7, 8, 10, 12 ft");
}

TEST_F(Prices, AreWrittenWhenTheWindowCloses) {
  Open();
  TypeInto(window.grdBoltPrices, 1, 1, "3.25");
  EXPECT_THAT(File(), IsEmpty());

  window.Close();

  EXPECT_THAT(File(), HasSubstr("PriceCountENG=1\r\nPriceENG1=Bolt 4 3.25 \"#5 smooth - grade 55\"\r\n"));
}

TEST_F(Prices, OfTheLastCellAreWrittenToo) {
  Open();
  window.grdBoltPrices.ClickCell(1, 1);
  window.txtBoltPrice.SetText("3.25");

  window.Close();

  EXPECT_THAT(File(), HasSubstr("Bolt 4 3.25 "));
}

TEST_F(Prices, AreNotWrittenWithoutAChange) {
  Open();

  window.Close();

  EXPECT_FALSE(platform.files.files.contains(program.session.IniFilePath));
}

TEST_F(Prices, OfTwoSupportsOfOneNameAreOne) {
  StandingSupports& supports = program.session.catalogs.StandSupports;
  supports.DefaultStandSupportType[1] = supports.DefaultStandSupportType[0];
  Open();

  TypeInto(window.grdOtherPrices, RowOf(window.grdOtherPrices, supports.DefaultStandSupportType[0]), 1, "300");

  EXPECT_EQ(List().Find(PricedSupport::Standing, supports.DefaultStandSupportType[0]), 300);
}

}  // namespace
}  // namespace orby::test
