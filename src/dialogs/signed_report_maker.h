// The signed report of a project: its sheet, drawings to scale of the design, and curves around it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/program.h"
#include "sheet/signed_report.h"

namespace orby {

// Makes the report anew when the choices change. Drawings and curves are computed once.
class SignedReportMaker {
 public:
  // Throws as SheetOfProject does. The program must exist as long as reports are made.
  explicit SignedReportMaker(const Program& program);

  // Returns the report with these choices. A curve that cannot be computed says why.
  SignedReport Make(const SignedReportSettings& settings, const std::string& date);

  // Returns the title of the document: "Roof support design report: Cinder Hollow, fault zone".
  std::string Title() const;

 private:
  const Program& program_;
  Design shown_;
  Design previewed_;
  DesignSheet sheet_;
  std::vector<ReportPicture> drawings_;                  // empty until they are wanted
  std::array<std::optional<ReportPicture>, 10> curves_;  // those that were wanted
};

}  // namespace orby
