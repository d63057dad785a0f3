// Drawings as the bytes of PNG and PDF files.
#include "qt/picture_files.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "drawings/scene.h"
#include "gui/gui_bench.h"
#include "gui/pdf_bench.h"
#include "qt/texts.h"

namespace orby::test {
namespace {

using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;

// A square in the colour of bolts on the left half of the sheet, and a text.
Scene Half() {
  Scene scene{200, 100, {}, {}};
  scene.Outlines.push_back({PathSteps("M0 0L100 0 100 100 0 100Z"), {Ink::Bolt}, {}});
  scene.Labels.push_back({.Text = "Depth of Cover (ft)", .At = {110, 50}, .Size = 9});
  return scene;
}

TEST(PictureFiles, HoldADrawingOnWhiteInTwoPixelsForAUnit) {
  QImage image;
  ASSERT_TRUE(image.loadFromData(QByteArray::fromStdString(QtPictureFiles().AsPng(Half())), "PNG"));

  EXPECT_EQ(image.size(), QSize(400, 200));
  EXPECT_EQ(image.pixelColor(100, 100), QColor(0x2f, 0x7f, 0xc1));
  EXPECT_EQ(image.pixelColor(390, 190), QColor(Qt::white));
  EXPECT_NEAR(image.dotsPerMeterX(), 7559, 1);
}

TEST(PictureFiles, HoldAPageOfTheSizeOfTheDrawingWithItsTexts) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("chart.pdf");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray::fromStdString(QtPictureFiles().AsPdf(Half(), "Suggested PSUP vs Depth of Cover")));
  file.close();

  EXPECT_THAT(PdfPages(path), ElementsAre(HasSubstr("Depth of Cover (ft)")));
  const std::string properties = Answer("pdfinfo", {path});
  EXPECT_THAT(properties, ContainsRegex("Title: +Suggested PSUP vs Depth of Cover\n"));
  EXPECT_THAT(properties, ContainsRegex("Page size: +150 x 75 pts"));
}

}  // namespace
}  // namespace orby::test
