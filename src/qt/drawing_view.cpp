#include "qt/drawing_view.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <array>
#include <chrono>

#include "qt/boundary.h"
#include "qt/scene_painter.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr double LineHeightOfSheets = 17;  // pixels, of the text around a sheet in its own size
constexpr int Margin = 6;                  // pixels, around the sheet
constexpr std::chrono::milliseconds Delay(30);

// Units of the scene. A smaller sheet than the smallest one is painted smaller.
constexpr QSizeF WantedSheet(340, 300);
constexpr QSizeF LeastSheet(170, 150);

struct MovingKey {
  int Pressed;
  DrawingKey Means;
};
constexpr std::array<MovingKey, 5> MovingKeys{{{Qt::Key_Left, DrawingKey::Left},
                                               {Qt::Key_Right, DrawingKey::Right},
                                               {Qt::Key_Up, DrawingKey::Up},
                                               {Qt::Key_Down, DrawingKey::Down},
                                               {Qt::Key_Home, DrawingKey::Home}}};

class DrawingReader : public QAccessibleWidget {
 public:
  explicit DrawingReader(DrawingView& view) : QAccessibleWidget(&view, QAccessible::Graphic), view_(view) {}

  QString text(QAccessible::Text kind) const override {
    const bool isWords = kind == QAccessible::Description && view_.accessibleDescription().isEmpty();
    return isWords ? view_.Words() : QAccessibleWidget::text(kind);
  }

 private:
  DrawingView& view_;
};

QAccessibleInterface* MakeDrawingReader(const QString& kind, QObject* object) {
  auto* view = kind == "QWidget" ? dynamic_cast<DrawingView*>(object) : nullptr;
  return view == nullptr ? nullptr : new DrawingReader(*view);
}

}  // namespace

void InstallDrawingReader() { QAccessible::installFactory(MakeDrawingReader); }

DrawingView::DrawingView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  repaint_.setSingleShot(true);
  repaint_.setInterval(Delay);
  connect(&repaint_, &QTimer::timeout, this, [this] {
    RunGuarded([this] {
      if (painted_ != drawing_->Edition()) update();
    });
  });
}

void DrawingView::ShowDrawing(Drawing& drawing) {
  drawing_ = &drawing;
  // Changes until then are painted together.
  if (!repaint_.isActive()) repaint_.start();
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

QString DrawingView::Words() const { return drawing_ == nullptr ? QString() : ToQt(drawing_->Words()); }

double DrawingView::Scale() const { return fontMetrics().height() / LineHeightOfSheets; }

QSize DrawingView::sizeHint() const { return (WantedSheet * Scale()).toSize() + QSize(2 * Margin, 2 * Margin); }

QSize DrawingView::minimumSizeHint() const { return (LeastSheet * Scale()).toSize() + QSize(2 * Margin, 2 * Margin); }

void DrawingView::TellSheet() const {
  const QSizeF size = QSizeF(contentsRect().marginsRemoved({Margin, Margin, Margin, Margin}).size()) / Scale();
  if (Resized) Resized({size.width(), size.height()});
}

void DrawingView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  TellSheet();
}

void DrawingView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) TellSheet();
}

void DrawingView::TellPlace(const QPointF& at) const {
  if (drawing_ == nullptr || !Pointed) return;
  const SheetSize& sheet = drawing_->Sheet();
  const QRectF target = rect().marginsRemoved({Margin, Margin, Margin, Margin});
  const double scale = std::min(target.width() / sheet.Width, target.height() / sheet.Height);
  if (!(scale > 0)) return;
  const QPointF fromMiddle = (at - target.center()) / scale;
  Pointed({fromMiddle.x() + sheet.Width / 2, fromMiddle.y() + sheet.Height / 2});
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) TellPlace(event->position());
  QWidget::mousePressEvent(event);
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
  TellPlace(event->position());
  QWidget::mouseMoveEvent(event);
}

void DrawingView::paintEvent(QPaintEvent*) {
  if (drawing_ == nullptr) return;
  painted_ = drawing_->Edition();
  QPainter painter(this);
  PaintScene(painter, drawing_->Picture(), rect().marginsRemoved({Margin, Margin, Margin, Margin}),
             palette().color(QPalette::WindowText));
  if (!hasFocus()) return;
  QStyleOptionFocusRect frame;
  frame.initFrom(this);
  frame.backgroundColor = palette().color(QPalette::Window);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

void DrawingView::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (std::size_t i = 0; i < DrawingCommands.size(); ++i) {
    QAction* entry = menu->addAction(ToQt(DrawingCommands[i]));
    const auto command = static_cast<DrawingCommand>(i);
    if (command == DrawingCommand::Copy) entry->setShortcut(QKeySequence::Copy);
    connect(entry, &QAction::triggered, this, [this, command] {
      if (Chosen) Chosen(command);
    });
  }
  menu->popup(event->globalPos());
}

void DrawingView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy) && Chosen) return Chosen(DrawingCommand::Copy);
  const auto move = std::ranges::find(MovingKeys, event->key(), &MovingKey::Pressed);
  if (Moved && move != MovingKeys.end()) return Moved(move->Means);
  QWidget::keyPressEvent(event);
}

}  // namespace orby
