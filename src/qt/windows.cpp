#include "qt/windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QLayout>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <array>
#include <stdexcept>

#include <ui_backups_window.h>
#include <ui_convert_dialog.h>
#include <ui_cost_dialog.h>
#include <ui_description_dialog.h>
#include <ui_design_chart_window.h>
#include <ui_designs_window.h>
#include <ui_disclaimer.h>
#include <ui_estimator_dialog.h>
#include <ui_font_dialog.h>
#include <ui_graph_options_dialog.h>
#include <ui_graph_window.h>
#include <ui_how_sure_window.h>
#include <ui_main_window.h>
#include <ui_options_dialog.h>
#include <ui_parameters_dialog.h>
#include <ui_preview_window.h>
#include <ui_resource_files.h>
#include <ui_results_window.h>
#include <ui_settings_dialog.h>
#include <ui_sheet_window.h>
#include <ui_side_by_side_window.h>
#include <ui_signed_report_window.h>
#include <ui_summary_pane.h>
#include <ui_text_browser.h>
#include <ui_unit_calculator_window.h>
#include <ui_update_dialog.h>
#include <ui_what_matters_window.h>
#include <ui_would_hold_window.h>
#include "core/dialog_helpers.h"
#include "qt/drawing_view.h"
#include "qt/frame_reader.h"
#include "qt/window_frame.h"
#include "qt/window_places.h"

namespace orby {
namespace {

constexpr int ShareUnit = 1000;  // pixels for one unit of stretch, more than any window has

// A window that asks its form before it closes.
template <class Base>
class AskingWindow : public Base {
 public:
  using Base::Base;

  void SetView(BoundForm* view) { view_ = view; }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (view_ == nullptr || !view_->Model().IsOpen()) return Base::closeEvent(event);
    event->ignore();
    view_->CloseByUser();
  }

 private:
  BoundForm* view_ = nullptr;
};

class DialogWindow : public AskingWindow<QDialog> {
 public:
  using AskingWindow::AskingWindow;

  // The Escape key closes like the window's close button.
  void reject() override { close(); }
};

using MainOrGraphWindow = AskingWindow<QMainWindow>;

template <class Layout, class Window>
std::unique_ptr<QWidget> Make(QWidget* parent) {
  auto window = std::make_unique<Window>(parent);
  Layout layout;
  layout.setupUi(window.get());
  return window;
}

struct LayoutEntry {
  std::string_view form;
  std::unique_ptr<QWidget> (*make)(QWidget* parent);
};

constexpr std::array Layouts{
    LayoutEntry{"frmMain", Make<Ui::frmMain, MainOrGraphWindow>},
    LayoutEntry{"frmPENVParm", Make<Ui::frmPENVParm, DialogWindow>},
    LayoutEntry{"frmTULKCost", Make<Ui::frmTULKCost, DialogWindow>},
    LayoutEntry{"frmTULKDesc", Make<Ui::frmTULKDesc, DialogWindow>},
    LayoutEntry{"frmCMRREst", Make<Ui::frmCMRREst, DialogWindow>},
    LayoutEntry{"frmResTxtPlt", Make<Ui::frmResTxtPlt, DialogWindow>},
    LayoutEntry{"frmPreview", Make<Ui::frmPreview, DialogWindow>},
    LayoutEntry{"frmGraph", Make<Ui::frmGraph, MainOrGraphWindow>},
    LayoutEntry{"frmGraphOpt", Make<Ui::frmGraphOpt, DialogWindow>},
    LayoutEntry{"frmTULKOpts", Make<Ui::frmTULKOpts, DialogWindow>},
    LayoutEntry{"frmConvert", Make<Ui::frmConvert, DialogWindow>},
    LayoutEntry{"frmUnits", Make<Ui::frmUnits, DialogWindow>},
    LayoutEntry{"frmTextBrow", Make<Ui::frmTextBrow, DialogWindow>},
    LayoutEntry{"frmUpdate", Make<Ui::frmUpdate, DialogWindow>},
    LayoutEntry{"frmSet", Make<Ui::frmSet, DialogWindow>},
    LayoutEntry{"frmFont", Make<Ui::frmFont, DialogWindow>},
    LayoutEntry{"frmDisclaimer", Make<Ui::frmDisclaimer, DialogWindow>},
    LayoutEntry{"frmSummary", Make<Ui::frmSummary, QWidget>},
    LayoutEntry{"frmBackups", Make<Ui::frmBackups, DialogWindow>},
    LayoutEntry{"frmSheet", Make<Ui::frmSheet, DialogWindow>},
    LayoutEntry{"frmSignedReport", Make<Ui::frmSignedReport, DialogWindow>},
    LayoutEntry{"frmWhatMatters", Make<Ui::frmWhatMatters, DialogWindow>},
    LayoutEntry{"frmDesignChart", Make<Ui::frmDesignChart, DialogWindow>},
    LayoutEntry{"frmWouldHold", Make<Ui::frmWouldHold, DialogWindow>},
    LayoutEntry{"frmHowSure", Make<Ui::frmHowSure, DialogWindow>},
    LayoutEntry{"frmSideBySide", Make<Ui::frmSideBySide, DialogWindow>},
    LayoutEntry{"frmDesigns", Make<Ui::frmDesigns, DialogWindow>},
    LayoutEntry{"frmResource", Make<Ui::frmResource, DialogWindow>},
};

void TieClosing(QWidget& window, BoundForm& view) {
  if (auto* dialog = dynamic_cast<DialogWindow*>(&window)) {
    dialog->SetView(&view);
  } else {
    dynamic_cast<MainOrGraphWindow&>(window).SetView(&view);
  }
}

// Updates layouts, innermost first, for texts and fonts that came after they were measured.
void UpdateLayouts(QWidget& widget) {
  for (QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) UpdateLayouts(*child);
  widget.updateGeometry();
  if (widget.layout() == nullptr) return;
  widget.layout()->invalidate();
  widget.layout()->activate();
}

// Divides the window by the stretch factors of its parts. By itself, the toolkit starts from the sizes that they hint.
void DivideByStretch(QWidget& window) {
  for (auto* divider : window.findChildren<QSplitter*>()) {
    QList<int> shares;
    for (int i = 0; i < divider->count(); ++i) {
      shares.append(divider->widget(i)->sizePolicy().horizontalStretch() * ShareUnit);
    }
    divider->setSizes(shares);
  }
}

// Centres the window on the screen, no larger than the screen including its frame.
void Place(QWidget& window) {
  const QRect screen = window.screen()->availableGeometry();
  const QMargins frame = FrameOf(window);
  window.resize(WholeSize(window).boundedTo(screen.size().shrunkBy(frame)));
  const QSize whole = window.size().grownBy(frame);
  const Position at = CenterForm({whole.width(), whole.height()}, {screen.width(), screen.height()});
  window.move(screen.left() + at.left, screen.top() + at.top);
}

// Returns the owner for a graph: the dialog in use, else the main window if it is visible. Both outlive the graph.
QWidget* WindowInUse(QWidget* mainWindow) {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return mainWindow != nullptr && mainWindow->isVisible() ? mainWindow : nullptr;
}

// Returns the owner for a dialog: a window on top of the dialog in use, such as a graph, while it has the focus; else
// the same window as for a graph.
QWidget* WindowBelow(QWidget* mainWindow) {
  const QWidget* modal = QApplication::activeModalWidget();
  QWidget* active = QApplication::activeWindow();
  const bool standsOnModal =
      modal != nullptr && active != nullptr && active->isVisible() && active->parentWidget() == modal;
  return standsOnModal ? active : WindowInUse(mainWindow);
}

}  // namespace

std::unique_ptr<QWidget> MakeWindow(const Form& form, QWidget* parent) {
  const auto* entry = std::ranges::find(Layouts, form.Name(), &LayoutEntry::form);
  if (entry == Layouts.end()) throw std::logic_error("no layout for " + std::string(form.Name()));
  // Must run before the first frame is created, because the toolkit asks for a frame's reader as soon as it has a
  // title, and keeps it.
  InstallFrameReader();
  InstallDrawingReader();
  return entry->make(parent);
}

// A base size in a layout is the extra space that a widget would like to have.
QSize WholeSize(QWidget& window) {
  for (QWidget* child : window.findChildren<QWidget*>()) child->ensurePolished();
  window.ensurePolished();
  QSize size = window.sizeHint().expandedTo(QSize(WidthOfTitle(window), 0));
  for (const QWidget* child : window.findChildren<QWidget*>()) {
    const QSize needed = child->sizeHint().expandedTo(child->minimumSize());
    if (!child->baseSize().isEmpty()) size += (child->baseSize() - needed).expandedTo(QSize(0, 0));
  }
  if (const auto* scroll = window.findChild<QScrollArea*>("viewScroll")) {
    UpdateLayouts(*scroll->widget());
    size += scroll->widget()->sizeHint() - scroll->sizeHint();
  }
  return size;
}

QtWindows::QtWindows() = default;
QtWindows::~QtWindows() = default;

QtWindows::Shown QtWindows::MakeBound(Form& form, QWidget* parent) {
  Shown shown;
  shown.window = MakeWindow(form, parent);
  shown.view = std::make_unique<BoundForm>(form, *shown.window);
  shown.view->HelpRequested = [this, &form](const Control* control) {
    if (HelpRequested) HelpRequested(form, control);
  };
  return shown;
}

QtWindows::Shown QtWindows::MakeShown(Form& form, QWidget* parent) {
  Shown shown = MakeBound(form, parent);
  TieClosing(*shown.window, *shown.view);
  Place(*shown.window);
  DivideByStretch(*shown.window);
  if (Places != nullptr) TakePlace(*shown.window, form.Name(), *Places);
  shown.opened = PlaceOf(*shown.window);
  return shown;
}

void QtWindows::Keep(const Shown& shown) const {
  if (Places != nullptr) KeepPlace(*shown.window, shown.view->Model().Name(), shown.opened, *Places);
}

void QtWindows::ShowMain(Form& form, bool maximized) {
  main_ = MakeShown(form, nullptr);
  main_.view->Finished = [this] {
    Keep(main_);
    QApplication::quit();
  };
  if (maximized || main_.window->isMaximized()) {
    main_.window->showMaximized();
  } else {
    main_.window->show();
  }
}

QWidget& QtWindows::ShowInside(Form& form, QWidget& place) {
  Shown& shown = parts_.emplace_back(MakeBound(form, &place));
  place.layout()->addWidget(shown.window.get());
  return *shown.window;
}

QMainWindow& QtWindows::Main() const { return dynamic_cast<QMainWindow&>(*main_.window); }

void QtWindows::ShowModal(Form& form) {
  const QPointer<QWidget> below(WindowBelow(main_.window.get()));
  Shown shown = MakeShown(form, below);
  auto& dialog = dynamic_cast<QDialog&>(*shown.window);
  shown.view->Finished = [&dialog] { dialog.done(QDialog::Accepted); };
  dialog.setModal(true);
  dialog.show();
  shown.view->ShowFocus();
  if (form.IsOpen()) dialog.exec();
  Keep(shown);
  // A main window that has returned meanwhile must not cover the window in use.
  shown.window->hide();
  if (below == nullptr || !below->isVisible()) return;
  below->raise();
  below->activateWindow();
}

void QtWindows::Show(Form& form) {
  auto found = modeless_.find(&form);
  if (found == modeless_.end()) {
    found = modeless_.emplace(&form, MakeShown(form, WindowInUse(main_.window.get()))).first;
    // Window managers keep only dialogs above their owner.
    found->second.window->setWindowFlag(Qt::Dialog);
    found->second.view->Finished = [this, &form] {
      // The window may be closed by one of its own events. Until it is destroyed, no other window may use it as owner.
      auto node = modeless_.extract(&form);
      Keep(node.mapped());
      node.mapped().window->hide();
      node.mapped().window.release()->deleteLater();
      node.mapped().view.release()->deleteLater();
    };
  }
  QWidget& window = *found->second.window;
  window.show();
  window.raise();
  window.activateWindow();
}

// Keeps the position on the screen. A window that is shown, or is already visible, is activated.
void QtWindows::ShowMainWindow(bool visible) {
  if (!main_.window) return;
  if (main_.window->isVisible() != visible) {
    const QByteArray place = main_.window->saveGeometry();
    main_.window->setVisible(visible);
    main_.window->restoreGeometry(place);
  }
  if (!visible) return;
  main_.window->raise();
  main_.window->activateWindow();
}

void QtWindows::SetWaitCursor(bool waiting) {
  if (waiting == waiting_) return;
  waiting_ = waiting;
  if (waiting) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

}  // namespace orby
