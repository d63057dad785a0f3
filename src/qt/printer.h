// The printer of the desktop, or a PDF file, which needs none.
#pragma once

#include <QPrinter>
#include <memory>

#include "platform/printer.h"

namespace orby {

class QtPrinter : public Printer {
 public:
  void Choose(const std::string& fileName) override;
  void ChooseAsBefore(const std::string& fileName) override;
  void SetUp() override;
  std::string PrintPages(const std::vector<std::string>& pages, const std::string& title,
                         const std::string& fontName) override;
  void PrintChart(const Control& chart, const std::string& title) override;

  // What is printed to, made when it is first asked for.
  QPrinter& Device();

 private:
  class Job;

  // Throws RuntimeError 32755 when cancelled.
  void ShowDialog();

  std::unique_ptr<QPrinter> device_;
  bool mayReplace_ = false;  // the user has agreed to the file name in the dialog
  std::string chosenFor_;    // what the file name was proposed for; empty: the user gave it without a print
};

}  // namespace orby
