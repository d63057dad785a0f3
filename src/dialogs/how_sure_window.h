// The window "How Sure": how probable it is that the judgements of the project fall short when its inputs scatter.
//
// It studies the project as the report shows it, and changes nothing in it. Its settings are kept in a file beside the
// project.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "dialogs/how_sure_controls.h"
#include "dialogs/study_charts.h"
#include "dialogs/study_inputs_page.h"
#include "dialogs/study_runner.h"
#include "dialogs/unsaved_study.h"

namespace orby {

class HowSureWindow : public HowSureControls {
 public:
  // `unsaved` has the settings for projects without a file. It must outlive the window. Throws as AsReported does.
  HowSureWindow(Program& program, UnsavedStudy& unsaved);

 protected:
  void OnOpen() override;
  void OnAct() override { ShowDone(); }
  // Stops the study and keeps the settings.
  void OnClose() override;

 private:
  void LoadSettings();
  void ShowSettings();
  struct SettingFault {
    const TextBox* Field = nullptr;
    std::string Text;
  };
  // Reads the fields of the sampling into a study. Returns what is wrong with the first one that cannot be read; its
  // setting stays as it was.
  SettingFault ReadSettings(Study& study) const;
  void KeepSettings();

  void Run();
  // Looks again at the study that runs.
  void Follow();
  void Finish();
  void ShowProgress();
  void ShowDone();

  void ShowResult();
  void ShowJudgements();
  void ShowFigures();
  void ShowPairs();
  void ShowChart();
  Sketch ChartOn(const SheetSize& sheet) const;

  Design design_;
  UnsavedStudy& unsaved_;
  StoredStudy stored_;  // as it was loaded or saved
  Study study_;
  bool isInFile_ = false;  // the project has a file, which the settings stand beside
  bool mayKeep_ = true;    // the file beside the project is not one that this program cannot read
  StudyInputsPage inputs_{program_, *this, design_, study_};
  std::shared_ptr<StudyRunner> runner_;  // while it runs
  std::optional<StudyResult> result_;
  Study ran_;  // the settings of the result
};

// Shows the window until the user closes it. Throws as AsReported does.
void ShowHowSure(Program& program, UnsavedStudy& unsaved);

}  // namespace orby
