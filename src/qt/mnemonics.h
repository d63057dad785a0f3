// The letters by which the keyboard reaches fields and buttons: each caption gets one that no other caption on view
// has.
#pragma once

#include <QString>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

#include "qt/bindings.h"

namespace orby {

class Mnemonics {
 public:
  // Captions that bring their own letter ("&Open...") keep it. The rest choose in the order given, those outside of
  // tabs first; where no letter is left there is none.
  void Assign(const std::vector<CaptionSlot>& captions);

  // The caption with its letter marked for the toolkit.
  QString Marked(const QObject* key, int index, std::string_view caption) const;

 private:
  std::map<std::pair<const QObject*, int>, QChar> letters_;
};

// The letter that follows the "&" of a caption, in lower case; a null character without one.
QChar OwnLetter(const QString& caption);

}  // namespace orby
