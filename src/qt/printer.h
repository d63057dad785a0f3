// The printer of the desktop, or a PDF file, which needs none.
#pragma once

#include <QPrinter>
#include <memory>

#include "platform/printer.h"

namespace orby {

class QtPrinter : public Printer {
 public:
  void Choose() override;
  void SetUp() override;
  void PrintPages(const std::vector<std::string>& pages, const std::string& documentName,
                  const std::string& fontName) override;
  void PrintChart(const Control& chart) override;

  // What is printed to, made when it is first asked for.
  QPrinter& Device();

 private:
  QPrinter& ReadyDevice();

  std::unique_ptr<QPrinter> device_;
};

}  // namespace orby
