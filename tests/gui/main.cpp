#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  // The sizes that are tested are those of this font on every machine.
  QApplication::setFont(QFont("DejaVu Sans", 9));
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
