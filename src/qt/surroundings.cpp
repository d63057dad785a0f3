#include "qt/surroundings.h"

#include <QClipboard>
#include <QDateTime>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QLocale>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <array>

#include "qt/bound_form.h"
#include "qt/boundary.h"
#include "qt/chart_view.h"
#include "qt/picture_files.h"
#include "qt/texts.h"

namespace orby {
namespace {

std::optional<std::string> Folder(QStandardPaths::StandardLocation location) {
  const QString path = QStandardPaths::writableLocation(location);
  if (path.isEmpty()) return std::nullopt;
  return PathFromQt(path);
}

std::vector<std::string> FontsAfter(const QFont& first) {
  std::vector<std::string> names{FromQt(first.family())};
  for (const QString& family : QFontDatabase::families()) names.push_back(FromQt(family));
  return names;
}

}  // namespace

// The first font is the substitute for missing ones: the desktop's font on the screen, and a monospaced one on paper,
// so that columns are aligned.
std::vector<std::string> QtFonts::ScreenFonts() { return FontsAfter(QGuiApplication::font()); }
std::vector<std::string> QtFonts::PrinterFonts() {
  return FontsAfter(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

std::vector<std::string> QtFonts::FixedPitchFonts() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (QFontDatabase::isFixedPitch(family)) names.push_back(FromQt(family));
  }
  return names;
}

std::string QtLocale::DecimalSeparator() { return FromQt(QLocale::system().decimalPoint()); }

bool QtLocale::UsesLetter() {
  using L = QLocale;
  constexpr std::array Territories{L::Belize,     L::Canada,     L::Chile,     L::Colombia,    L::CostaRica,
                                   L::Guatemala,  L::Mexico,     L::Nicaragua, L::Panama,      L::Philippines,
                                   L::PuertoRico, L::ElSalvador, L::Venezuela, L::UnitedStates};
  return std::ranges::find(Territories, L::system().territory()) != Territories.end();
}

Date QtClock::Today() { return Now().date; }

Moment QtClock::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate day = now.date();
  const QTime time = now.time();
  return {{day.year(), day.month(), day.day()}, time.hour(), time.minute(), time.second()};
}

void QtClock::CallLater(int milliseconds, std::function<void()> act) {
  QTimer::singleShot(milliseconds, qApp, [act = std::move(act)] { RunGuarded(act); });
}

std::optional<std::string> QtUserFolders::Documents() { return Folder(QStandardPaths::DocumentsLocation); }
std::optional<std::string> QtUserFolders::Desktop() { return Folder(QStandardPaths::DesktopLocation); }
std::optional<std::string> QtUserFolders::Data() { return Folder(QStandardPaths::GenericDataLocation); }

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }
void QtClipboard::SetText(const std::string& text) { QGuiApplication::clipboard()->setText(ToQt(text)); }

void QtClipboard::SetPicture(const Control& chart) {
  if (const auto* view = dynamic_cast<const ChartView*>(WidgetOnScreen(chart))) {
    QGuiApplication::clipboard()->setPixmap(view->Picture(view->width(), view->height()));
  }
}

void QtClipboard::SetPicture(const Form& form) {
  if (QWidget* window = WindowOnScreen(form)) QGuiApplication::clipboard()->setPixmap(window->grab());
}

void QtClipboard::SetPicture(const Scene& scene) {
  const std::string png = QtPictureFiles().AsPng(scene);
  QGuiApplication::clipboard()->setImage(QImage::fromData(QByteArray::fromStdString(png)));
}

}  // namespace orby
