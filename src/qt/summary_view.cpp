#include "qt/summary_view.h"

#include <QEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QTimer>

#include "qt/boundary.h"
#include "qt/pictures.h"
#include "qt/windows.h"
#include "shell/main_window.h"

namespace orby {
namespace {

class SummaryView : public QObject {
 public:
  SummaryView(QtWindows& windows, MainWindow& model)
      : QObject(&windows.Main()),
        windows_(windows),
        model_(model),
        place_(*windows.Main().findChild<QWidget*>("viewSummary")) {
    windows.Main().installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && watched == &windows_.Main()) {
      watched->removeEventFilter(this);
      QTimer::singleShot(0, this, [this] { RunGuarded([this] { Show(); }); });
    }
    // The shortcut of the menu opens the contents of the help. The parts of the summary have topics of their own.
    if (event->type() == QEvent::ShortcutOverride && dynamic_cast<QKeyEvent&>(*event).key() == Qt::Key_F1) {
      event->accept();
      return true;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  // Does nothing if the window has been closed meanwhile.
  void Show() {
    if (!model_.IsOpen()) return;
    SummaryPane& summary = model_.Summary();
    auto* list = windows_.ShowInside(summary, place_).findChild<QListWidget*>("lstExamples");
    for (QWidget* part : place_.findChildren<QWidget*>()) part->installEventFilter(this);
    summary.ExamplesRead = [this, list] { ShowPictures(*list); };
    summary.Open();
  }

  void ShowPictures(QListWidget& list) const {
    const auto& examples = model_.Summary().Examples();
    for (int row = 0; row < list.count(); ++row) {
      list.item(row)->setIcon(SceneIcon(examples.at(static_cast<std::size_t>(row)).Picture));
    }
  }

  QtWindows& windows_;
  MainWindow& model_;
  QWidget& place_;
};

}  // namespace

void ShowSummaryAfterPaint(QtWindows& windows, MainWindow& model) { new SummaryView(windows, model); }

}  // namespace orby
