// The printer. Each function throws RuntimeError 482 when it fails, and when the machine has no printer unless a file
// is printed to.
#pragma once

#include <string>
#include <vector>

namespace orby {

class Control;
struct Scene;

class Printer {
 public:
  virtual ~Printer() = default;

  // Lets the user choose the printer for later prints. `fileName` is the name offered for a PDF file, without its
  // extension. Throws RuntimeError 32755 when cancelled.
  virtual void Choose(const std::string& fileName) = 0;
  // Prepares a print to the destination of the last one without asking. If that was a file for a print of another name,
  // the print goes to a file of this name in its folder.
  virtual void ChooseAsBefore(const std::string& fileName) = 0;
  // Lets the user choose the printer, without a print afterwards.
  virtual void SetUp() = 0;
  // Prints each text on a sheet of its own, in the printer font and without breaking lines. Returns the path of the
  // file that was printed to, or an empty path for paper. Only the first print after Choose replaces a file. Later ones
  // take a new name.
  virtual std::string PrintPages(const std::vector<std::string>& pages, const std::string& title,
                                 const std::string& fontName) = 0;
  // Prints each scene on a sheet of its own, as large as it fits. Scenes wider than they are high lie across the paper.
  virtual void PrintScenes(const std::vector<Scene>& pages, const std::string& title) = 0;
  // Prints the chart as it is on view on one sheet, below these lines. The first one is the title of the print.
  virtual void PrintChart(const Control& chart, const std::vector<std::string>& heading) = 0;
};

}  // namespace orby
