// The program's drawings in light and dark themes.
#include "qt/pictures.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <array>
#include <string_view>

#include "drawings/pictures.h"
#include "qt/picture_view.h"
#include "qt/scene_painter.h"

namespace orby::test {
namespace {

// Returns true if the drawing has a pixel of exactly this colour.
bool HasColor(const QImage& image, const QColor& color) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == color) return true;
    }
  }
  return false;
}

QImage Drawn(std::string_view name, const QColor& lines) {
  QImage image(400, 400, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  PaintScene(painter, PictureScene(name), image.rect(), lines);
  return image;
}

// Sets the palette of the desktop during a test.
class Desktop {
 public:
  explicit Desktop(const QColor& text) : before_(QApplication::palette()) {
    QPalette palette = before_;
    palette.setColor(QPalette::WindowText, text);
    QApplication::setPalette(palette);
  }
  ~Desktop() { QApplication::setPalette(before_); }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

 private:
  QPalette before_;
};

class EveryPicture : public testing::TestWithParam<std::string_view> {};

TEST_P(EveryPicture, DrawsItsLinesInTheColourOfTheText) {
  const QColor lines(0xfe, 0xdc, 0xba);
  const QImage image = Drawn(GetParam(), lines);

  constexpr std::array<std::string_view, 6> Coloured{"orby", "check", "earlier", "holds", "short", "uncomputed"};
  const bool isColoured = std::ranges::find(Coloured, GetParam()) != Coloured.end();
  EXPECT_EQ(HasColor(image, lines), !isColoured) << "the program's icon and the marks have colours of their own";
  EXPECT_FALSE(HasColor(image, Qt::black));
}

INSTANTIATE_TEST_SUITE_P(Pictures, EveryPicture, testing::ValuesIn(PictureNames()),
                         [](const auto& entry) { return std::string(entry.param); });

TEST(Pictures, MarkADifferentRegionEach) {
  std::vector<QImage> regions;
  for (int region = 0; region < 6; ++region) {
    regions.push_back(Drawn("region_" + std::to_string(region), Qt::black));
  }

  for (std::size_t i = 0; i < regions.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(regions[i], regions[j]) << i << " and " << j;
  }
}

TEST(Icons, AreDrawnInTheColourOfTheDesktopsText) {
  const QIcon icon = ThemedIcon("save");
  const QColor dark(0x11, 0x22, 0x33);
  const QColor light(0xdd, 0xee, 0xff);
  QImage onLight;
  QImage onDark;

  {
    const Desktop desktop(dark);
    onLight = icon.pixmap(QSize(64, 64), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
  }
  {
    const Desktop desktop(light);
    onDark = icon.pixmap(QSize(64, 64), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
  }

  EXPECT_TRUE(HasColor(onLight, dark));
  EXPECT_FALSE(HasColor(onLight, light));
  EXPECT_TRUE(HasColor(onDark, light));
  EXPECT_FALSE(HasColor(onDark, dark));
}

TEST(Icons, AreDrawnInEveryRequestedSize) {
  for (const int size : {16, 24, 96}) {
    EXPECT_EQ(ThemedIcon("open").pixmap(QSize(size, size), 2.0).size(), QSize(2 * size, 2 * size));
  }
}

TEST(PictureOfADialog, FollowsTheThemeWhileItIsShown) {
  PictureView view;
  view.setProperty("picture", "region_3");
  view.resize(400, 400);
  const QColor light(0xdd, 0xee, 0xff);
  const bool before = HasColor(view.grab().toImage(), light);

  QPalette palette = view.palette();
  palette.setColor(QPalette::WindowText, light);
  palette.setColor(QPalette::Window, Qt::black);
  view.setPalette(palette);

  EXPECT_FALSE(before);
  EXPECT_TRUE(HasColor(view.grab().toImage(), light));
}

}  // namespace
}  // namespace orby::test
