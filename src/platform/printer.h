// The printer. Every failure is RuntimeError 482; so is a machine without a printer, but where a file is printed to.
#pragma once

#include <string>
#include <vector>

namespace orby {

class Control;

class Printer {
 public:
  virtual ~Printer() = default;

  // Lets the user choose the printer for what is printed from now on. fileName: what a PDF file is proposed to be
  // called, without its extension. Throws RuntimeError 32755 when cancelled.
  virtual void Choose(const std::string& fileName) = 0;
  // Prepares a print without a question: it goes where the last one went. A file that was chosen for a print of another
  // name gives way to one of this name in its folder.
  virtual void ChooseAsBefore(const std::string& fileName) = 0;
  // Lets the user choose without anything being about to be printed.
  virtual void SetUp() = 0;
  // Prints one text a sheet, in the printer font, its lines as they stand. Returns the file that was printed to, empty
  // for paper. Only the first print after Choose replaces a file; others take a new name.
  virtual std::string PrintPages(const std::vector<std::string>& pages, const std::string& title,
                                 const std::string& fontName) = 0;
  virtual void PrintChart(const Control& chart, const std::string& title) = 0;
};

}  // namespace orby
