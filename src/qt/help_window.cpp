#include "qt/help_window.h"

#include <QAction>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>

#include "help/chm_file.h"
#include "qt/pictures.h"
#include "qt/printer.h"
#include "qt/texts.h"

namespace orby {
namespace {

// In characters and lines of the font.
constexpr int FirstColumns = 166;
constexpr int FirstLines = 46;
constexpr int PanesColumns = 60;
constexpr int ZoomStep = 1;  // points

// The help page about this window.
constexpr const char* OwnPage = "help-window.html";

// Returns the initial size, no larger than the screen.
QSize FirstSize(const QWidget& window) {
  const QFontMetrics font = window.fontMetrics();
  const QSize wanted(font.averageCharWidth() * FirstColumns, font.lineSpacing() * FirstLines);
  return wanted.boundedTo(window.screen()->availableSize());
}

}  // namespace

HelpWindow::HelpWindow(std::unique_ptr<ChmFile> file)
    : file_(std::move(file)), book_([this](const std::string& name) { return file_->Read(name); }) {
  setObjectName("helpWindow");
  setWindowTitle("Help");
  setAttribute(Qt::WA_DeleteOnClose);
  auto* splitter = new QSplitter(this);
  panes_ = new QTabWidget(splitter);
  panes_->setObjectName("helpPanes");
  browser_ = new HelpBrowser(*file_, splitter);
  browser_->setObjectName("helpPage");
  browser_->setAccessibleName("Page");
  splitter->setStretchFactor(1, 1);
  const QSize size = FirstSize(*this);
  const int panesWidth = fontMetrics().averageCharWidth() * PanesColumns;
  splitter->setSizes({panesWidth, size.width() - panesWidth});
  setCentralWidget(splitter);
  MakePanes(*panes_);
  MakeToolBar();
  MakeFindBar();
  connect(browser_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& url) { contents_->Mark(HelpBrowser::PlaceAt(url)); });
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &HelpWindow::Escape);
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, [this] { GoTo(OwnPage); });
  resize(size);
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::MakePanes(QTabWidget& panes) {
  contents_ = new ContentsPane(book_, &panes);
  index_ = new IndexPane(book_, &panes);
  search_ = new SearchPane(book_, &panes);
  panes.addTab(contents_, "&Contents");
  panes.addTab(index_, "&Index");
  panes.addTab(search_, "&Search");
  for (HelpPane* pane : {static_cast<HelpPane*>(contents_), static_cast<HelpPane*>(index_)}) {
    pane->Chosen = [this](const std::string& place) { GoTo(place); };
  }
  search_->Chosen = [this](const std::string& place) {
    GoTo(place);
    browser_->find(search_->Words().section(' ', 0, 0, QString::SectionSkipEmpty));
  };
}

QAction& HelpWindow::AddButton(const char* icon, const QString& caption, const QKeySequence& keys,
                               const std::function<void()>& act) {
  QAction* action = buttons_->addAction(ThemedIcon(icon), caption, this, act);
  action->setShortcut(keys);
  action->setToolTip(caption + " (" + keys.toString(QKeySequence::NativeText) + ")");
  return *action;
}

void HelpWindow::MakeToolBar() {
  buttons_ = addToolBar("Buttons");
  buttons_->setMovable(false);
  buttons_->setContextMenuPolicy(Qt::PreventContextMenu);
  buttons_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  QAction& back = AddButton("back", "Back", {"Alt+Left"}, [this] { browser_->backward(); });
  QAction& forward = AddButton("forward", "Forward", {"Alt+Right"}, [this] { browser_->forward(); });
  AddButton("contents", "Contents", {"Alt+Home"}, [this] { GoHome(); });
  buttons_->addSeparator();
  AddButton("find", "Find...", {"Ctrl+F"}, [this] { ShowFindBar(); });
  AddButton("zoom_in", "Larger", {"Ctrl++"}, [this] { browser_->zoomIn(ZoomStep); });
  AddButton("zoom_out", "Smaller", {"Ctrl+-"}, [this] { browser_->zoomOut(ZoomStep); });
  buttons_->addSeparator();
  AddButton("print", "Print...", {"Ctrl+P"}, [this] { Print(); });
  // On most keyboards "+" is on the key of "=".
  connect(new QShortcut(QKeySequence("Ctrl+="), this), &QShortcut::activated, this,
          [this] { browser_->zoomIn(ZoomStep); });
  back.setEnabled(false);
  forward.setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, &back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, &forward, &QAction::setEnabled);
}

void HelpWindow::MakeFindBar() {
  findBar_ = new QToolBar("Find", this);
  findBar_->setMovable(false);
  findBar_->setContextMenuPolicy(Qt::PreventContextMenu);
  addToolBar(Qt::BottomToolBarArea, findBar_);
  findLine_ = new QLineEdit(findBar_);
  findLine_->setObjectName("helpFind");
  findLine_->setPlaceholderText("Find on this page");
  findLine_->setAccessibleName(findLine_->placeholderText());
  findBar_->addWidget(findLine_);
  QAction* next = findBar_->addAction("Next", this, [this] { FindNext(); });
  QAction* previous = findBar_->addAction("Previous", this, [this] { FindNext(QTextDocument::FindBackward); });
  next->setShortcut(QKeySequence("F3"));
  previous->setShortcut(QKeySequence("Shift+F3"));
  findBar_->hide();
  connect(findLine_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
}

void HelpWindow::ShowContents() {
  panes_->setCurrentWidget(contents_);
  show();
  GoHome();
  contents_->setFocus();
}

void HelpWindow::ShowIndex() {
  panes_->setCurrentWidget(index_);
  show();
  if (browser_->Place().empty()) GoHome();
  index_->setFocus();
}

void HelpWindow::ShowTopic(const std::string& topic) {
  show();
  GoTo(book_.PlaceOf(topic));
  browser_->setFocus();
}

void HelpWindow::GoTo(const std::string& place) { browser_->GoTo(place); }
void HelpWindow::GoHome() { GoTo(book_.FirstPage()); }

void HelpWindow::ShowFindBar() {
  findBar_->show();
  findLine_->setFocus(Qt::ShortcutFocusReason);
  findLine_->selectAll();
}

// After the last match the search starts again from the other end.
void HelpWindow::FindNext(QTextDocument::FindFlags flags) {
  const QString text = findLine_->text();
  if (text.isEmpty() || browser_->find(text, flags)) return;
  browser_->moveCursor((flags & QTextDocument::FindBackward) != 0 ? QTextCursor::End : QTextCursor::Start);
  browser_->find(text, flags);
}

void HelpWindow::Escape() {
  if (!findBar_->isVisible()) {
    close();
    return;
  }
  findBar_->hide();
  browser_->setFocus();
}

void HelpWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(browser_->documentTitle() + ".pdf");
  if (!AskForPaper(printer, this)) return;
  printer.setDocName(browser_->documentTitle());
  browser_->print(&printer);
}

}  // namespace orby
