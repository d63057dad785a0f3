#include <gmock/gmock.h>

#include <QApplication>
#include <QDirIterator>
#include <QFont>
#include <QFontDatabase>

namespace {

// Gives the program the fonts below the folder that the variable TEST_FONTS names: on Windows the platform without a
// screen has none of its own. "Courier New" is one of those that it stands in for there.
void TakeFonts() {
  const QString folder = qEnvironmentVariable("TEST_FONTS");
  if (folder.isEmpty()) return;
  for (QDirIterator fonts(folder, {"*.ttf"}, QDir::Files, QDirIterator::Subdirectories); fonts.hasNext();) {
    QFontDatabase::addApplicationFont(fonts.next());
  }
  QFont::insertSubstitution("Courier New", "Liberation Mono");
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  TakeFonts();
  QApplication::setStyle("Fusion");
  // The sizes that are tested are those of this font on every machine.
  QApplication::setFont(QFont("DejaVu Sans", 9));
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
