#include "qt/help_place.h"

#include <algorithm>
#include <array>

namespace orby {
namespace {

// One of the four parts of the screen beside a rectangle, and the side of that part that is nearest to the rectangle.
struct Strip {
  QRect room;
  Qt::Alignment near;
};

std::array<Strip, 4> StripsBeside(const QRect& screen, const QRect& thing) {
  return {{{{QPoint(thing.right() + 1, screen.top()), screen.bottomRight()}, Qt::AlignLeft | Qt::AlignTop},
           {{screen.topLeft(), QPoint(thing.left() - 1, screen.bottom())}, Qt::AlignRight | Qt::AlignTop},
           {{QPoint(screen.left(), thing.bottom() + 1), screen.bottomRight()}, Qt::AlignHCenter | Qt::AlignTop},
           {{screen.topLeft(), QPoint(screen.right(), thing.top() - 1)}, Qt::AlignHCenter | Qt::AlignBottom}}};
}

// Where in the room the window is: next to the thing, or as far from it as can be.
enum class Side { Near, Far };

int Area(const QSize& size) { return size.width() * size.height(); }

// Returns a null rectangle if the window does not fit beside `thing`.
QRect PlaceBeside(const QRect& thing, const QRect& screen, QSize wanted, QSize least, Side side) {
  QRect best;
  for (const Strip& strip : StripsBeside(screen, thing)) {
    const QSize size = wanted.boundedTo(strip.room.size());
    if (size.width() < least.width() || size.height() < least.height() || Area(size) <= Area(best.size())) continue;
    best = QRect(QPoint(), size);
    const bool toTheLeft = strip.near.testFlag(Qt::AlignLeft) != (side == Side::Far);
    const bool toTheTop = strip.near.testFlag(Qt::AlignTop) != (side == Side::Far);
    const bool isColumn = !strip.near.testFlag(Qt::AlignHCenter);
    if (isColumn) {
      toTheLeft ? best.moveLeft(strip.room.left()) : best.moveRight(strip.room.right());
      best.moveTop(std::clamp(thing.top(), screen.top(), screen.bottom() + 1 - size.height()));
    } else {
      toTheTop ? best.moveTop(strip.room.top()) : best.moveBottom(strip.room.bottom());
      best.moveLeft(std::clamp(thing.left(), screen.left(), screen.right() + 1 - size.width()));
    }
  }
  return best;
}

}  // namespace

QRect HelpPlace(const HelpNeighbours& neighbours, QSize wanted, QSize least) {
  const QRect& screen = neighbours.screen;
  wanted = wanted.boundedTo(screen.size());
  if (!neighbours.dialog.isNull()) {
    const QRect beside = PlaceBeside(neighbours.dialog, screen, wanted, least, Side::Near);
    if (!beside.isNull()) return beside;
  }
  if (!neighbours.field.isNull()) {
    // As far away as possible, because the user also needs the surroundings of the field.
    const QRect beside = PlaceBeside(neighbours.field, screen, wanted, least, Side::Far);
    if (!beside.isNull()) return beside;
  }
  QRect corner(QPoint(), wanted);
  corner.moveBottomRight(screen.bottomRight());
  return corner;
}

}  // namespace orby
