#include "dialogs/description_dialog.h"

#include "base/attempt.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/history_texts.h"
#include "files/backups.h"
#include "files/new_project.h"

namespace orby {
namespace {

// Offers one choice of two. The present one is always enabled; the other is disabled while the project's choices are
// locked.
void Offer(Program& program, OptionArray& options, Integer present) {
  options.SetAllEnabled(!program.project.UnitsLocked);
  SetArrayIndex(program, options, present);
  options.SetMemberEnabled(static_cast<std::size_t>(present), true);
}

// A different choice starts a new design with the defaults for that choice.
template <class Choice>
void Choose(Program& program, Choice& choice, Choice chosen) {
  if (chosen == choice) return;
  choice = chosen;
  FileNew(program, Keeping::NameAndUnits);
}

}  // namespace

DescriptionDialog::DescriptionDialog(Program& program) : ProgramForm(program, "frmTULKDesc", "Project Description") {
  // The Australian table has metric bolts only.
  Option1.Click = [this](Integer index) {
    const UnitSystem units{index};
    if (units == English) Check1.SetValue(0);
    Check1.SetEnabled(units == Metric);
  };
  Command4.Click = [this] {
    OpensParameters = true;
    Accept();
  };
}

void DescriptionDialog::OnOpen() {
  PrepareForm(program_, MessageModule::Description);
  AddHistoryLine(program_, history_text::EditingDescription);
  CommitOnClose = false;
  OpensParameters = false;
  Text1.SetText(program_.project.ProjectTitle);
  Text2.SetText(program_.project.ProjectDescription);
  ShowPutBack();
  Offer(program_, Option1, NumberOf(program_.project.WorkParms.Units));
  Offer(program_, Option2, NumberOf(program_.project.WorkParms.Basis));
  // In feet the box stays clear, even if an earlier metric project had it set.
  if (Check1.Enabled()) Check1.SetValue(program_.project.UseAUSStandardTable);
  program_.platform.windows.CenterForm(*this);
}

void DescriptionDialog::PutBack() {
  if (const auto before = TextsBeforeTheShift(Typed())) {
    Text1.SetText(before->Title);
    Text2.SetText(before->Description);
  }
  ShowPutBack();
  // The hidden button would otherwise keep the focus.
  RequestFocus(Text1);
}

void DescriptionDialog::ShowPutBack() { cmdPutBack.SetVisible(TextsBeforeTheShift(Typed()).has_value()); }

// Texts that the user has not changed need no warning: they came from a file or were reported before.
void DescriptionDialog::WarnOfLostLines() {
  if (Text1.Text() == program_.project.ProjectTitle && Text2.Text() == program_.project.ProjectDescription) return;
  std::optional<LostLine> lost;
  Succeeds([&] { lost = LineThatWouldNotComeBack(Typed()); });
  if (!lost) return;
  std::string text = "This line will not come back as it is typed when the project is opened again:";
  text.append(LineEnd).append(LineEnd).append(lost->Line).append(LineEnd).append(LineEnd).append(lost->Reason);
  ShowMessage(program_, text, BoxIcon::Exclamation, program_.windows.titles.MessageTitle);
}

void DescriptionDialog::Accept() {
  WarnOfLostLines();
  CommitOnClose = true;
  Close();
}

void DescriptionDialog::OnClose() {
  if (CommitOnClose) Commit();
  AddHistoryLine(program_, CommitOnClose ? history_text::DescriptionModified : history_text::DescriptionNotModified);
}

// A new design has neither title nor description. If the user typed new ones together with another choice, only the
// backups keep them.
void DescriptionDialog::Commit() {
  const bool hasNewTexts =
      Text1.Text() != program_.project.ProjectTitle || Text2.Text() != program_.project.ProjectDescription;
  const bool startsAnew = Chosen<UnitSystem>(Option1) != program_.project.WorkParms.Units ||
                          Chosen<StrengthBasis>(Option2) != program_.project.WorkParms.Basis;
  program_.project.ProjectTitle = Text1.Text();
  program_.project.ProjectDescription = Text2.Text();
  if (startsAnew && (hasNewTexts || !program_.project.FileSaved)) KeepChanges(program_, program_.project);
  Choose(program_, program_.project.WorkParms.Units, Chosen<UnitSystem>(Option1));
  Choose(program_, program_.project.WorkParms.Basis, Chosen<StrengthBasis>(Option2));
  program_.project.UseAUSStandardTable = Check1.Value();
  program_.project.FileSaved = false;
  program_.project.FileEmpty = false;
  program_.project.UnitsLocked = true;
}

}  // namespace orby
