// The printer. Every failure is RuntimeError 482; so is a machine without a printer, but where a file is printed to.
#pragma once

#include <string>
#include <vector>

namespace orby {

class Control;

class Printer {
 public:
  virtual ~Printer() = default;

  // Lets the user choose the printer for what is printed from now on. Throws RuntimeError 32755 when cancelled.
  virtual void Choose() = 0;
  // The same without anything being about to be printed.
  virtual void SetUp() = 0;
  // One text a sheet, in the printer font, its lines as they stand.
  virtual void PrintPages(const std::vector<std::string>& pages, const std::string& documentName,
                          const std::string& fontName) = 0;
  virtual void PrintChart(const Control& chart) = 0;
};

}  // namespace orby
