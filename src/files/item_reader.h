// Reads a text file item by item: numbers and texts separated by commas and line ends, and whole lines.
//
// A line ends with CR LF, LF or CR. The file is read as UTF-8 if all of its bytes are valid UTF-8, otherwise as
// Windows-1252. Each item is decoded when it is read, so that a huge file is never copied. Each read throws
// RuntimeError 62 at the end of the file, and RuntimeError 7 when the item is longer than LongestItem.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/types.h"

namespace orby {

// The largest size of an item in bytes. A file with a longer item is not a project.
inline constexpr std::size_t LongestItem = std::size_t{16} * 1024 * 1024;

class ByteSet;

class ItemReader {
 public:
  // Requires bytes that outlive the reader. A copy of the reader has a position of its own.
  explicit ItemReader(std::string_view bytes);

  // Read a number. Blanks and line ends before it are skipped. It ends at a blank, comma or line end, and the blanks
  // and one comma or line end after it are skipped. Of an item that is not a number the part that is one is read, or 0.
  // Throw RuntimeError 6 when the number does not fit the type.
  Integer ReadInteger();
  Single ReadSingle();

  // Reads a text. Blanks before it are skipped, line ends are not. A text in double quotes ends at the closing quote,
  // or at the end of the file when there is none; the blanks after it are skipped. Any other text ends at the next
  // comma or line end and keeps its trailing blanks. One comma or line end after the text is skipped.
  std::string ReadText();

  // Reads up to the next line end, and skips the line end.
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
