// A table of many rows: its marks, its current row and what it tells its view.
#include "controls/row_table.h"

#include <gmock/gmock.h>

#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ARowTable : testing::Test {
  ARowTable() {
    table.SetHeads({"Panel", "Depth"});
    table.SetRows(5, {1}, 1);
    table.Change = [this] { ++changes; };
    table.Open = [this] { opened.push_back(table.Current()); };
  }

  PlainForm form;
  RowTable table{form, "tblPanels"};
  int changes = 0;
  std::vector<int> opened;
};

TEST_F(ARowTable, FiresWhenTheUserMarksOtherRows) {
  table.Mark({1, 3}, 3);
  EXPECT_THAT(table.Marked(), ElementsAre(1, 3));
  EXPECT_EQ(table.Current(), 3);
  table.Mark({1, 3}, 3);
  EXPECT_EQ(changes, 1);

  table.Mark({}, RowTable::Nothing);
  EXPECT_THAT(table.Marked(), IsEmpty());
  EXPECT_EQ(changes, 2);
}

TEST_F(ARowTable, OpensTheRowThatIsDoubleClicked) {
  table.OpenRow(4);

  EXPECT_THAT(opened, ElementsAre(4));
  EXPECT_THAT(table.Marked(), ElementsAre(4));
}

TEST_F(ARowTable, RefusesRowsAndHeadsThatItDoesNotHave) {
  EXPECT_EQ(ErrorNumberOf([&] { table.Mark({5}, 1); }), error_number::Subscript);
  EXPECT_EQ(ErrorNumberOf([&] { table.Mark({1}, 5); }), error_number::Subscript);
  EXPECT_EQ(ErrorNumberOf([&] { table.OpenRow(-1); }), error_number::Subscript);
  EXPECT_EQ(ErrorNumberOf([&] { table.ClickHead(2); }), error_number::Subscript);
}

TEST_F(ARowTable, TellsItsViewOfOtherRowsAlsoIfThereAreAsMany) {
  const RecordingView view(form);
  const unsigned before = table.RowsVersion();
  table.SetRows(5, {1}, 1);
  table.SetHeads({"Panel", "Depth"});
  table.SetSorting(1, true);
  table.SetSorting(1, true);

  EXPECT_THAT(view.told, ElementsAre("tblPanels", "tblPanels"));
  EXPECT_NE(table.RowsVersion(), before);
  EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace orby::test
