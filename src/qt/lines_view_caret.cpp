// The caret and the selection of the view of lines: keys, mouse, copying and searching.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <memory>

#include "base/text_excerpt.h"
#include "qt/lines_view.h"
#include "qt/texts.h"

namespace orby {
namespace {

// The bytes of a long text that are handled between two events of the window.
constexpr std::size_t CopiedBytes = std::size_t{1} << 20U;
constexpr std::size_t SearchedBytes = std::size_t{1} << 22U;

enum class Step { Left, Right, Up, Down, PageUp, PageDown, LineStart, LineEnd, Top, Bottom };

struct KeyOfStep {
  QKeySequence::StandardKey moves;
  QKeySequence::StandardKey selects;
  Step step;
};

constexpr std::array KeysOfSteps{
    KeyOfStep{QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar, Step::Left},
    KeyOfStep{QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, Step::Right},
    KeyOfStep{QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, Step::Up},
    KeyOfStep{QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, Step::Down},
    KeyOfStep{QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage, Step::PageUp},
    KeyOfStep{QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, Step::PageDown},
    KeyOfStep{QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, Step::LineStart},
    KeyOfStep{QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, Step::LineEnd},
    KeyOfStep{QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument, Step::Top},
    KeyOfStep{QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, Step::Bottom}};

bool IsUpOrDown(Step step) {
  return step == Step::Up || step == Step::Down || step == Step::PageUp || step == Step::PageDown;
}

bool IsOfWord(char32_t character) { return QChar::isLetterOrNumber(character) || character == '_'; }

}  // namespace

// ---- the caret -----------------------------------------------------------------------------------------------------

void LinesView::Select(const TextRange& range) {
  selection_ = range;
  const QModelIndex row = lines_.index(lines_.RowOf(range.Caret));
  setCurrentIndex(row);
  scrollTo(row, EnsureVisible);
  ScrollAcrossToCaret();
  viewport()->update();
}

void LinesView::ScrollAcrossToCaret() {
  if (lines_.rowCount() == 0) return;
  const ShownRow shown = RowOnView(lines_.RowOf(selection_.Caret));
  const int x = XOf(shown, shown.ColumnOf(selection_.Caret));
  const int beside = 2 * fontMetrics().averageCharWidth();
  Widen(fontMetrics().horizontalAdvance(shown.text) + beside);
  updateGeometries();
  QScrollBar& bar = *horizontalScrollBar();
  bar.setValue(std::clamp(bar.value(), x + beside - viewport()->width(), std::max(x - beside, 0)));
}

void LinesView::MoveCaret(std::size_t place, bool selects) { Select({selects ? selection_.Anchor : place, place}); }

// Returns the place one character to the left (-1) or to the right (1), across line ends.
std::size_t LinesView::Beside(int direction) const {
  const int row = lines_.RowOf(selection_.Caret);
  const std::vector<std::size_t> places = RowOnView(row).places;
  if (direction > 0) {
    const auto next = std::ranges::upper_bound(places, selection_.Caret);
    if (next != places.end()) return *next;
    return row + 1 < lines_.rowCount() ? RowOnView(row + 1).places.front() : places.back();
  }
  const auto at = std::ranges::lower_bound(places, selection_.Caret);
  if (at != places.begin()) return *std::prev(at);
  return row > 0 ? RowOnView(row - 1).places.back() : places.front();
}

// Returns the place this many rows further down, at the horizontal position where the caret began to move up and down.
std::size_t LinesView::Below(int rows) {
  const int row = lines_.RowOf(selection_.Caret);
  const ShownRow shown = RowOnView(row);
  if (goalX_ < 0) goalX_ = XOf(shown, shown.ColumnOf(selection_.Caret));
  const auto goal = static_cast<int>(std::clamp<qint64>(qint64{row} + rows, 0, lines_.rowCount() - 1));
  if (goal == row) return rows < 0 ? shown.places.front() : shown.places.back();
  const int y = (goal - verticalScrollBar()->value()) * LineHeight();
  return PlaceAt({goalX_ - horizontalOffset(), y});
}

void LinesView::keyPressEvent(QKeyEvent* event) {
  const auto isKeyOf = [event](const KeyOfStep& key) {
    return event->matches(key.moves) || event->matches(key.selects);
  };
  const auto* const key = std::ranges::find_if(KeysOfSteps, isKeyOf);
  event->accept();
  if (key != KeysOfSteps.end()) {
    if (lines_.rowCount() == 0) return;
    if (!IsUpOrDown(key->step)) goalX_ = -1;
    const std::vector<std::size_t> places = RowOnView(lines_.RowOf(selection_.Caret)).places;
    std::size_t place = 0;
    switch (key->step) {
      case Step::Left: place = Beside(-1); break;
      case Step::Right: place = Beside(1); break;
      case Step::Up: place = Below(-1); break;
      case Step::Down: place = Below(1); break;
      case Step::PageUp: place = Below(-LinesOnView()); break;
      case Step::PageDown: place = Below(LinesOnView()); break;
      case Step::LineStart: place = places.front(); break;
      case Step::LineEnd: place = places.back(); break;
      case Step::Top: place = RowOnView(0).places.front(); break;
      case Step::Bottom: place = RowOnView(lines_.rowCount() - 1).places.back(); break;
    }
    return MoveCaret(place, event->matches(key->selects));
  }
  if (event->matches(QKeySequence::Copy)) return CopySelection();
  if (event->matches(QKeySequence::SelectAll)) return SelectAllOfIt();
  event->ignore();
}

void LinesView::SelectAllOfIt() {
  if (lines_.rowCount() == 0) return;
  selection_ = {RowOnView(0).places.front(), lines_.Text().size()};
  viewport()->update();
}

// ---- the mouse -----------------------------------------------------------------------------------------------------

void LinesView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || lines_.rowCount() == 0) return;
  goalX_ = -1;
  MoveCaret(PlaceAt(event->position().toPoint()), event->modifiers().testFlag(Qt::ShiftModifier));
}

void LinesView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton) || lines_.rowCount() == 0) return;
  Select({selection_.Anchor, PlaceAt(event->position().toPoint())});
}

// Selects the word under the pointer, or the characters between two words.
void LinesView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid()) return;
  const ShownRow shown = RowOnView(index.row());
  const auto characters = shown.text.toUcs4();
  const auto count = static_cast<int>(characters.size());
  const int x = event->position().toPoint().x() + horizontalOffset();
  int first = 0;
  while (first < count && XOf(shown, first + 1) <= x) ++first;
  if (first == count) return;
  const auto isAlike = [&, kind = IsOfWord(characters[first])](int at) { return IsOfWord(characters[at]) == kind; };
  int last = first;
  while (first > 0 && isAlike(first - 1)) --first;
  while (last < count && isAlike(last)) ++last;
  const auto placeOf = [&shown](int column) {
    return shown.places[std::min(static_cast<std::size_t>(column), shown.places.size() - 1)];
  };
  Select({placeOf(first), placeOf(last)});
}

// ---- copying and searching -----------------------------------------------------------------------------------------

void LinesView::Progress(std::size_t left, std::size_t all) const {
  constexpr std::size_t Whole = 100;
  if (Progressed) Progressed(static_cast<int>(left == 0 ? Whole : Whole - 1 - left * (Whole - 1) / all));
}

bool LinesView::Stop() {
  if (!task_.IsRunning()) return false;
  task_.Stop();
  Progress(0, 1);
  return true;
}

void LinesView::CopySelection() {
  if (selection_.IsEmpty()) return;
  const auto excerpt = std::make_shared<TextExcerpt>(selection_.First(), selection_.Last());
  const auto text = std::make_shared<QString>();
  task_.Start([this, excerpt, text, all = excerpt->Left()] {
    *text += ToQt(excerpt->Next(lines_.Text(), CopiedBytes));
    if (excerpt->IsOver()) QGuiApplication::clipboard()->setText(*text);
    Progress(excerpt->Left(), all);
    return !excerpt->IsOver();
  });
}

void LinesView::Find(const QString& wanted, TextSearch::Direction direction) {
  const bool isForward = direction == TextSearch::Direction::Forward;
  const std::size_t from = selection_.First() + (isForward && !selection_.IsEmpty() ? 1 : 0);
  const auto search = std::make_shared<TextSearch>(FromQt(wanted), lines_.Text().size(), from, direction);
  task_.Start([this, search, from, isForward, all = search->Left()] {
    const auto match = search->Next(lines_.Text(), SearchedBytes);
    const bool goesOn = !match && !search->IsOver();
    Progress(goesOn ? search->Left() : 0, all);
    if (goesOn) return true;
    if (match) Select({match->place, match->place + match->length});
    const bool isAround = match && (isForward ? match->place < from : match->place >= from);
    if (Searched) Searched(!match ? Finding::NotFound : isAround ? Finding::FoundAroundTheEnd : Finding::Found);
    return false;
  });
}

}  // namespace orby
