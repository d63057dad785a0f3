#include "apps/orby-cli/study_command.h"

#include <cstdio>

#include "apps/orby-cli/study_json_output.h"
#include "files/shown_design.h"
#include "files/study_file.h"
#include "machine/program.h"
#include "reports/study_report.h"

namespace orby::cli {
namespace {

// Shows the share that is done in one line of the terminal, which it clears at the end.
class ProgressLine {
 public:
  ~ProgressLine() {
    if (shown_ >= 0) std::fputs("\r                \r", stderr);
  }

  bool Show(const StudyProgress& progress) {
    const int percent = static_cast<int>(100.0 * progress.BatchesDone / progress.BatchesPlanned);
    if (isTerminal_ && percent != shown_) {
      shown_ = percent;
      std::fprintf(stderr, "\r%3d %% sampled", percent);
      std::fflush(stderr);
    }
    return true;
  }

 private:
  bool isTerminal_ = ErrorsGoToTerminal();
  int shown_ = -1;
};

StudyOutput Refusal(ExitCode code, const std::string& message) { return {code, "", message + "\n"}; }

StudyResult RunWithProgress(const Design& design, const Catalogs& catalogs, const Study& study) {
  ProgressLine line;
  return RunStudy(design, catalogs, study, 0, [&](const StudyProgress& progress) { return line.Show(progress); });
}

}  // namespace

StudyOutput RunStoredStudy(Program& program, const std::string& file, const CommandLine& line) {
  const LoadedStudy loaded =
      LoadStudy(program.platform.files, file, program.project.WorkParms.Units, DamagedStudy::Leave);
  if (!loaded.Message.empty()) return Refusal(ExitCode::Refused, loaded.Message);
  if (!loaded.Stored) return Refusal(ExitCode::Refused, "There is no study " + StudyPath(file) + ".");
  Study study = loaded.Stored->Settings;
  study.Samples = line.Samples.value_or(study.Samples);
  study.Seed = line.Seed.value_or(study.Seed);
  if (const std::string fault = FaultOf(study); !fault.empty()) {
    return Refusal(ExitCode::Invalid, "The study " + StudyPath(file) + " is not possible. " + fault);
  }
  const Catalogs& catalogs = program.session.catalogs;
  const Design design = AsReported(program.project, catalogs);
  const StudyResult result = RunWithProgress(design, catalogs, study);
  if (line.Format == "json") return {ExitCode::Done, StudyJson(result, study, design.Units), ""};
  return {ExitCode::Done, line.Format == "csv" ? StudyCsv(result, study) : StudyText(result, study, design.Units), ""};
}

}  // namespace orby::cli
