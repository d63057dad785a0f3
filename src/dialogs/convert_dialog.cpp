#include "dialogs/convert_dialog.h"

#include <utility>

#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "files/conversion.h"

namespace orby {
namespace {

enum class FileOption : Integer { KeepOriginalProject, LoadConvertedProject };

}  // namespace

ConvertDialog::ConvertDialog(Program& program, std::function<void()> converted)
    : ProgramForm(program, "frmConvert", "File Conversion Utility"), converted_(std::move(converted)) {}

void ConvertDialog::OnOpen() {
  PrepareForm(program_, MessageModule::Conversion);
  AddHistoryLine(program_, "Loading File Conversion Form");
  const UnitSystem other = program_.project.WorkParms.Units == English ? Metric : English;
  Option1.SetMemberEnabled(PlaceOf(English), other == English);
  Option1.SetMemberEnabled(PlaceOf(Metric), other == Metric);
  SetArrayIndex(program_, Option1, NumberOf(other));
  // The converted project always becomes the open one.
  SetArrayIndex(program_, Option2, NumberOf(FileOption::LoadConvertedProject));
}

void ConvertDialog::Convert() {
  try {
    ConvertProject(program_, Chosen<UnitSystem>(Option1));
  } catch (const RuntimeError& error) {
    failure_ = error;
  }
  // After a failed conversion, the fields converted so far stay converted.
  converted_();
  ShowMessage(program_, failure_ ? "Error in the Conversion Procedure. Call technical support"
                                 : "Conversion Completed: The conversion form will be closed");
  Close();
}

}  // namespace orby
