#include "dialogs/project_report.h"

#include "base/attempt.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/preview.h"
#include "platform/no_desktop.h"
#include "reports/calculation_report.h"
#include "reports/input_echo.h"

namespace orby {
namespace {

// A program that holds what the calculations are made from, and shows nothing of what it does.
class ProgramApart {
 public:
  explicit ProgramApart(const Program& program) : apart_(Quiet(program.platform)) {
    apart_.project.WorkParms = program.project.WorkParms;
    apart_.project.UseAUSStandardTable = program.project.UseAUSStandardTable;
    apart_.session.catalogs = program.session.catalogs;
  }

  Program& operator*() { return apart_; }

 private:
  Platform Quiet(const Platform& doors) {
    return {boxes_,          doors.files, doors.fileDialogs, windows_,        doors.fonts,
            doors.locale,    doors.clock, doors.userFolders, doors.clipboard, doors.printer,
            doors.documents, doors.help,  doors.downloads,   doors.fileTypes};
  }

  NoMessageBoxes boxes_;
  NoWindows windows_;
  Program apart_;
};

// Makes the design the one that the dialog shows: it computes the loads, capacities and factors that the report prints.
void TakeShownDesign(Program& program) {
  ParametersDialog dialog(program);
  dialog.Open();
  if (!dialog.CopyToWorkParmsCopy()) throw RuntimeError(error_number::Overflow);
  program.project.WorkParms.Support() = program.windows.WorkParmsCopy.Support();
}

}  // namespace

void BuildProjectReport(Program& program) {
  if (RestoreShownResults(program)) return LoadOutBuf0(program);
  ProgramApart programApart(program);
  Program& apart = *programApart;
  const bool isComputed = Succeeds([&] {
    TakeShownDesign(apart);
    CalculationReport(apart);
  });
  if (!isComputed) NoCalculationReport(apart);
  program.session.OutBuf[1] = apart.session.OutBuf[1];
  const Preview preview(program.project.WorkParms.Support(), apart.project.WorkParms.Support());
  LoadOutBuf0(program);
}

}  // namespace orby
