// Prints on a printer of the desktop or to a PDF file, which needs no printer.
#pragma once

#include <QPrinter>
#include <memory>

#include "platform/printer.h"

namespace orby {

// Lets the user choose what the device prints on: a printer or a PDF file. A desktop that has no printers, and whose
// dialog for them offers no files, only asks for a file. Returns false if the user cancels.
bool AskForPaper(QPrinter& device, QWidget* parent);

class QtPrinter : public Printer {
 public:
  void Choose(const std::string& fileName) override;
  void ChooseAsBefore(const std::string& fileName) override;
  void SetUp() override;
  std::string PrintPages(const std::vector<std::string>& pages, const std::string& title,
                         const std::string& fontName) override;
  void PrintScenes(const std::vector<Scene>& pages, const std::string& title) override;
  void PrintChart(const Control& chart, const std::vector<std::string>& heading) override;

  // Returns the print device, created on first use.
  QPrinter& Device();

 private:
  class Job;

  // Throws RuntimeError 32755 if the user cancels.
  void ShowDialog();

  std::unique_ptr<QPrinter> device_;
  bool mayReplace_ = false;  // the user confirmed the file name in the dialog
  // The document for which the file name was suggested. Empty if the user chose the name outside of a print.
  std::string chosenFor_;
};

}  // namespace orby
