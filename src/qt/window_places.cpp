#include "qt/window_places.h"

#include <QApplication>
#include <QScreen>
#include <QSplitter>
#include <algorithm>

#include "qt/texts.h"
#include "qt/window_frame.h"

namespace orby {
namespace {

constexpr std::size_t PlaceSize = 5;            // left, top, width, height, maximized
constexpr const char* MovedMark = "orbyMoved";  // of a divider that the user has moved

bool IsOnAScreen(const QRect& frame) {
  const auto screens = QApplication::screens();
  return std::ranges::any_of(screens,
                             [&](const QScreen* screen) { return screen->availableGeometry().contains(frame); });
}

std::string DividerName(std::string_view form, const QSplitter& divider) {
  return std::string(form).append(".").append(FromQt(divider.objectName()));
}

void TakeDivision(QSplitter& divider, const std::string& name, const WindowPlaces& places) {
  QObject::connect(&divider, &QSplitter::splitterMoved, &divider, [&divider] { divider.setProperty(MovedMark, true); });
  const auto found = places.find(name);
  if (found == places.end() || std::ssize(found->second) != divider.count()) return;
  const auto& sizes = found->second;
  if (std::ranges::all_of(sizes, [](int size) { return size > 0; })) divider.setSizes({sizes.begin(), sizes.end()});
}

}  // namespace

QRect PlaceOf(const QWidget& window) {
  const bool isNormal = !window.isMaximized() && !window.isFullScreen();
  if (isNormal) return {window.pos(), window.size()};
  const QRect normal = window.normalGeometry();
  const QMargins frame = FrameOf(window);
  return {normal.topLeft() - QPoint(frame.left(), frame.top()), normal.size()};
}

void TakePlace(QWidget& window, std::string_view form, const WindowPlaces& places) {
  for (auto* divider : window.findChildren<QSplitter*>()) TakeDivision(*divider, DividerName(form, *divider), places);
  const auto found = places.find(form);
  if (found == places.end() || found->second.size() != PlaceSize) return;
  const auto& place = found->second;
  if (place[2] <= 0 || place[3] <= 0) return;
  const QMargins frame = FrameOf(window);
  const QRect wanted(QPoint(place[0], place[1]), QSize(place[2], place[3]).grownBy(frame));
  const QRect screen = window.screen()->availableGeometry();
  window.resize(wanted.size().boundedTo(screen.size()).shrunkBy(frame));
  QRect whole(QPoint(), window.size().grownBy(frame));
  whole.moveCenter(screen.center());
  window.move(IsOnAScreen(wanted) ? wanted.topLeft() : whole.topLeft());
  if (place[4] == 1) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void KeepPlace(const QWidget& window, std::string_view form, const QRect& opened, WindowPlaces& places) {
  for (const auto* divider : window.findChildren<QSplitter*>()) {
    const QList<int> sizes = divider->sizes();
    const bool isDivided = std::ranges::all_of(sizes, [](int size) { return size > 0; });
    if (divider->property(MovedMark).toBool() && isDivided) {
      places.insert_or_assign(DividerName(form, *divider), std::vector<int>(sizes.begin(), sizes.end()));
    }
  }
  const QRect place = PlaceOf(window);
  const bool wasMaximized = places.contains(form) && places.find(form)->second.back() == 1;
  if (place.isEmpty() || (place == opened && window.isMaximized() == wasMaximized)) return;
  places.insert_or_assign(std::string(form), std::vector<int>{place.left(), place.top(), place.width(), place.height(),
                                                              window.isMaximized() ? 1 : 0});
}

}  // namespace orby
