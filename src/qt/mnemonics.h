// The mnemonic letters of fields and buttons: captions that are visible together get different letters.
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
  // Assigns the letters. Captions with a letter of their own ("&Open...") keep it. The others choose in the given
  // order, but captions outside of tabs come first. A caption gets no letter if none is left.
  void Assign(const std::vector<CaptionSlot>& captions);

  // Returns the caption with its letter marked for the toolkit.
  QString Marked(const QObject* key, int index, std::string_view caption) const;

 private:
  std::map<std::pair<const QObject*, int>, QChar> letters_;
};

// Returns the letter after the "&" of a caption in lower case, or a null character if there is none.
QChar OwnLetter(const QString& caption);

}  // namespace orby
