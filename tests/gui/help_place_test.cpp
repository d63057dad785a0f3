// The position of the help beside the dialog that it explains.
#include "qt/help_place.h"

#include <gtest/gtest.h>

#include <QDebug>

namespace orby::test {
namespace {

constexpr QRect Desk(0, 0, 1920, 1050);
constexpr QRect Laptop(0, 0, 1366, 738);
constexpr QSize Wanted(1100, 780);
constexpr QSize Least(490, 310);

TEST(HelpPlace, IsBesideTheDialogInItsOwnSizeIfTheScreenHasRoom) {
  const QRect dialog(20, 100, 780, 600);

  EXPECT_EQ(HelpPlace({Desk, dialog, {}}, Wanted, Least), QRect(800, 100, 1100, 780));
}

TEST(HelpPlace, IsOnTheSideOfTheDialogThatHasMoreRoom) {
  const QRect dialog(1100, 100, 800, 600);

  EXPECT_EQ(HelpPlace({Desk, dialog, {}}, Wanted, Least), QRect(0, 100, 1100, 780));
}

TEST(HelpPlace, IsSmallerIfThatKeepsTheDialogVisible) {
  const QRect dialog(600, 200, 800, 650);

  const QRect place = HelpPlace({Desk, dialog, {}}, Wanted, Least);

  EXPECT_EQ(place, QRect(0, 200, 600, 780));
  EXPECT_FALSE(place.intersects(dialog));
}

TEST(HelpPlace, IsBelowADialogThatIsAsWideAsTheScreen) {
  const QRect dialog(0, 0, 1366, 380);

  EXPECT_EQ(HelpPlace({Laptop, dialog, {}}, Wanted, Least), QRect(0, 380, 1100, 358));
}

TEST(HelpPlace, KeepsTheFieldVisibleIfTheDialogLeavesNoRoom) {
  const QRect dialog(253, 60, 862, 640);
  const QRect field(420, 177, 125, 22);

  const QRect place = HelpPlace({Laptop, dialog, field}, Wanted, Least);

  EXPECT_FALSE(place.intersects(field));
  EXPECT_TRUE(Laptop.contains(place));
  EXPECT_EQ(place.right(), Laptop.right());
}

TEST(HelpPlace, KeepsEachFieldOfADialogVisible) {
  const QRect dialog(253, 60, 862, 640);
  for (int y = dialog.top() + 40; y < dialog.bottom() - 40; y += 30) {
    for (int x = dialog.left() + 20; x < dialog.right() - 150; x += 60) {
      const QRect field(x, y, 125, 22);

      const QRect place = HelpPlace({Laptop, dialog, field}, Wanted, Least);

      EXPECT_FALSE(place.intersects(field)) << x << ", " << y;
      EXPECT_TRUE(Laptop.contains(place)) << x << ", " << y;
      EXPECT_GE(place.width(), Least.width()) << x << ", " << y;
      EXPECT_GE(place.height(), Least.height()) << x << ", " << y;
    }
  }
}

TEST(HelpPlace, IsInTheCornerIfNoPositionAvoidsTheField) {
  const QRect whole(0, 0, 1366, 738);

  EXPECT_EQ(HelpPlace({Laptop, whole, whole}, Wanted, Least).bottomRight(), Laptop.bottomRight());
}

TEST(HelpPlace, IsRelativeToTheOriginOfTheScreen) {
  const QRect second(1920, 30, 1366, 738);

  EXPECT_EQ(HelpPlace({second, QRect(1920, 30, 700, 600), {}}, Wanted, Least), QRect(2620, 30, 666, 738));
}

}  // namespace
}  // namespace orby::test
