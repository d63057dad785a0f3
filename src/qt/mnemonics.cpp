#include "qt/mnemonics.h"

#include <QTabWidget>
#include <algorithm>
#include <array>

#include "qt/texts.h"

namespace orby {
namespace {

// The tab pages around a widget, the outermost first. Two captions can be visible together if the pages of one are a
// prefix of the pages of the other.
using Pages = std::vector<const QWidget*>;

Pages PagesAround(const QWidget* widget) {
  Pages pages;
  for (const QWidget* at = widget; at != nullptr; at = at->parentWidget()) {
    const auto* stack = at->parentWidget();
    const auto* tabs = stack == nullptr ? nullptr : dynamic_cast<const QTabWidget*>(stack->parentWidget());
    if (tabs != nullptr && tabs->indexOf(at) >= 0) pages.insert(pages.begin(), at);
  }
  return pages;
}

bool CanMeet(const Pages& a, const Pages& b) {
  const auto common = static_cast<Pages::difference_type>(std::min(a.size(), b.size()));
  return std::equal(a.begin(), a.begin() + common, b.begin());
}

struct Taken {
  Pages pages;
  QChar letter;
  const CaptionSlot* slot = nullptr;  // null if the letter is marked in the caption
};

// The Enter and Escape keys press these buttons.
bool NeedsNoLetter(std::string_view caption) {
  constexpr std::array<std::string_view, 2> Keys{"OK", "Cancel"};
  return std::ranges::find(Keys, caption) != Keys.end();
}

// Returns the first free initial of a word, else the first free letter.
QChar FreeLetter(const QString& caption, const std::vector<Taken>& taken, const Pages& pages) {
  const auto isFree = [&](QChar letter) {
    return std::ranges::none_of(
        taken, [&](const Taken& entry) { return entry.letter == letter && CanMeet(entry.pages, pages); });
  };
  for (const bool wordStartsOnly : {true, false}) {
    for (qsizetype i = 0; i < caption.size(); ++i) {
      const bool startsWord = i == 0 || !caption[i - 1].isLetter();
      if (!caption[i].isLetter() || (wordStartsOnly && !startsWord)) continue;
      if (isFree(caption[i].toLower())) return caption[i].toLower();
    }
  }
  return {};
}

// Moves the only holder of a letter to another free letter, and returns the letter that becomes free.
QChar FreedLetter(const QString& caption, std::vector<Taken>& taken, const Pages& pages) {
  for (const QChar letter : caption.toLower()) {
    const auto holds = [&](const Taken& entry) { return entry.letter == letter && CanMeet(entry.pages, pages); };
    if (std::ranges::count_if(taken, holds) != 1) continue;
    const auto holder = std::ranges::find_if(taken, holds);
    if (holder->slot == nullptr) continue;
    const QChar other = FreeLetter(ToQt(holder->slot->caption), taken, holder->pages);
    if (other.isNull()) continue;
    holder->letter = other;
    return letter;
  }
  return {};
}

}  // namespace

QChar OwnLetter(const QString& caption) {
  const qsizetype at = caption.indexOf('&');
  return at >= 0 && at + 1 < caption.size() && caption[at + 1] != '&' ? caption[at + 1].toLower() : QChar();
}

void Mnemonics::Assign(const std::vector<CaptionSlot>& captions) {
  std::vector<Taken> taken;
  std::vector<std::pair<Pages, const CaptionSlot*>> open;
  for (const CaptionSlot& slot : captions) {
    const QChar own = OwnLetter(ToQt(slot.caption));
    Pages pages = PagesAround(slot.place);
    if (!own.isNull()) {
      taken.push_back({std::move(pages), own, nullptr});
    } else if (!NeedsNoLetter(slot.caption)) {
      open.emplace_back(std::move(pages), &slot);
    }
  }
  std::ranges::stable_sort(open, {}, [](const auto& entry) { return entry.first.size(); });
  for (auto& [pages, slot] : open) {
    const QString caption = ToQt(slot->caption);
    QChar letter = FreeLetter(caption, taken, pages);
    if (letter.isNull()) letter = FreedLetter(caption, taken, pages);
    if (!letter.isNull()) taken.push_back({std::move(pages), letter, slot});
  }
  for (const Taken& entry : taken) {
    if (entry.slot != nullptr) letters_[{entry.slot->key, entry.slot->index}] = entry.letter;
  }
}

QString Mnemonics::Marked(const QObject* key, int index, std::string_view caption) const {
  QString text = ToQt(caption);
  const auto found = letters_.find({key, index});
  if (found == letters_.end()) return text;
  for (const bool wordStartsOnly : {true, false}) {
    for (qsizetype i = 0; i < text.size(); ++i) {
      const bool startsWord = i == 0 || !text[i - 1].isLetter();
      if (text[i].toLower() == found->second && (startsWord || !wordStartsOnly)) return text.insert(i, '&');
    }
  }
  return text;
}

}  // namespace orby
