// Takes the bytes of a text file apart: numbers and texts separated by commas and line ends, and whole lines.
//
// A line ends with CR LF, LF or CR. The file is UTF-8 when its bytes are valid UTF-8 as a whole, else Windows-1252; an
// item is decoded on its way out, so that a huge file is never copied.
// Every read throws RuntimeError 62 when nothing is left of the file, and RuntimeError 7 when what it takes is longer
// than LongestItem.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/types.h"

namespace orby {

// Bytes of an item. Nothing a user keeps comes near it; a file that does is no project.
inline constexpr std::size_t LongestItem = std::size_t{16} * 1024 * 1024;

class ByteSet;

class ItemReader {
 public:
  // The bytes must outlive the reader. A copy of the reader reads on by itself from where the reader stands.
  explicit ItemReader(std::string_view bytes);

  // Numbers: blanks and line ends in front are skipped; the item ends at a blank, comma or line end; blanks and one
  // comma or line end behind it are taken too. An item that is no number counts as far as it reads as one, else 0.
  // Throw RuntimeError 6 when the number does not fit the type.
  Integer ReadInteger();
  Single ReadSingle();

  // Text: blanks in front are skipped, line ends are not. A text in double quotes runs to the closing quote, or to the
  // end of the file when there is none, and blanks behind it are skipped; any other runs to the next comma or line end
  // and keeps the blanks at its end. One comma or line end behind the text is taken too.
  std::string ReadText();

  // Everything up to the next line end, which is taken too.
  std::string ReadLine();

 private:
  std::string_view TakeNumberItem();
  std::string_view TakeQuoted();
  std::string_view TakeUntil(const ByteSet& delimiters);
  void SkipBlanks();
  void TakeDelimiter();
  bool TakeLineEnd();
  void RequireMore() const;
  std::string Decoded(std::string_view bytes) const;

  std::string_view rest_;
  bool isUtf8_;
};

}  // namespace orby
