// A printer that fails only at its first attempt.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/recording_platform.h"

namespace orby::test {

class JammedPrinter : public RecordingPrinter {
 public:
  std::string PrintPages(const std::vector<std::string>& given, const std::string& name,
                         const std::string& font) override {
    Jam();
    return RecordingPrinter::PrintPages(given, name, font);
  }
  void PrintChart(const Control& chart, const std::vector<std::string>& lines) override {
    Jam();
    RecordingPrinter::PrintChart(chart, lines);
  }

 private:
  void Jam() {
    if (std::exchange(jammed_, false)) throw RuntimeError(error_number::Printer);
  }

  bool jammed_ = true;
};

}  // namespace orby::test
