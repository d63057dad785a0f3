#include "dialogs/update_dialog.h"

#include <utility>

#include "base/attempt.h"
#include "base/number_text.h"
#include "base/text.h"
#include "config/settings_sections.h"
#include "core/dates.h"
#include "core/file_helpers.h"
#include "core/messages.h"
#include "core/shared_texts.h"
#include "core/version.h"

namespace orby {
namespace {

constexpr std::uint64_t MostSetupBytes = 2'000'000'000;

constexpr std::string_view NoConnection = "Internet Connection Failed";

constexpr std::string_view ReleaseMonth = "07";
constexpr std::string_view ReleaseDay = "05";
constexpr std::string_view ReleaseYear = "2023";

int WholeNumber(std::string_view text) { return static_cast<int>(TextValue(text)); }

Date ReleaseDate() { return {WholeNumber(ReleaseYear), WholeNumber(ReleaseMonth), WholeNumber(ReleaseDay)}; }

std::string InfoText() {
  return "Current Program Version: " + VersionText() + " for " + std::string(ProgramTitle) + std::string(LineEnd) +
         "Current Revision Date: " + DayMonthYear(ReleaseDate());
}

std::string AgeText(Date today) {
  return "This version was released " + NumberText(DaysBetween(ReleaseDate(), today)) +
         " days ago. Although major updates may not be scheduled, interim updates may be released with bug fixes. "
         "Check for an updated version by visiting the program web page below or click on 'Check for updates'.  ";
}

// Returns the thousands of bytes, rounded up, such as "12,345".
std::string Thousands(std::uint64_t bytes) {
  const std::uint64_t thousands = (bytes + 999) / 1000;
  std::string digits = NumberText(static_cast<double>(thousands));
  for (std::size_t at = digits.size(); at > 3;) {
    at -= 3;
    digits.insert(at, ",");
  }
  return digits;
}

std::string ProgressText(std::uint64_t received, std::uint64_t total) {
  return Thousands(received) + (total == 0 ? "" : " of " + Thousands(total)) + " kB";
}

}  // namespace

UpdateDialog::UpdateDialog(Program& program, std::optional<OfferedVersion> offered)
    : ProgramForm(program, "frmUpdate", "Program Updates"), offered_(std::move(offered)) {
  cmdCheck.Click = [this] { AskServer([this] { Compare(); }); };
  chkShow.Click = [this] { program_.session.settings.RemindAnnualUpdates = chkShow.Checked() ? 0 : 1; };
}

void UpdateDialog::OnOpen() {
  lblInfo.SetCaption(InfoText());
  lblUpdate.SetCaption(AgeText(program_.platform.clock.Today()));
  chkShow.SetValue(program_.session.settings.RemindAnnualUpdates == 0 ? 1 : 0);
  cmdWebPage.SetEnabled(HasUpdateServer(program_.session));
}

void UpdateDialog::OnClose() {
  fetch_.reset();
  WriteDefaults(program_, StoredSettings::Settings);
}

void UpdateDialog::SetBusy(bool busy) {
  for (Button* button : {&cmdCheck, &cmdDownUpdate}) button->SetEnabled(!busy);
  cmdInstall.SetEnabled(!busy && !checkFailed_);
}

void UpdateDialog::ReportNoConnection(FetchEnd end) {
  ShowMessage(program_, end == FetchEnd::NoService ? "An error occurred calling InternetOpen function"
                                                   : "An error occurred calling InternetOpenUrl function");
  ShowMessage(program_, std::string(NoConnection));
}

// ---- the server's version ------------------------------------------------------------------------------------------

void UpdateDialog::AskServer(const Step& next) {
  if (!HasUpdateServer(program_.session)) {
    ForgetAnswer();
    ShowMessage(program_, std::string(NoConnection));
    return;
  }
  SetBusy(true);
  lblStatus.SetCaption("Checking for updates...");
  fetch_ = FetchVersion(program_, [this, next](const VersionAnswer& answer) {
    fetch_.reset();
    lblStatus.SetCaption({});
    SetBusy(false);
    if (Accept(answer)) next();
  });
  if (fetch_) return;
  lblStatus.SetCaption({});
  SetBusy(false);
  ForgetAnswer();
  ReportNoConnection(FetchEnd::NoService);
}

void UpdateDialog::ForgetAnswer() {
  offered_.reset();
  downloadedSum_.clear();
  checkFailed_ = true;
  lblLastVer.SetCaption({});
  cmdInstall.SetEnabled(false);
}

bool UpdateDialog::Accept(const VersionAnswer& answer) {
  if (!answer.offered) ForgetAnswer();
  if (answer.end == FetchEnd::NoService || answer.end == FetchEnd::NoConnection) {
    ReportNoConnection(answer.end);
    return false;
  }
  if (!answer.offered) {
    ShowMessage(program_, "Invalid information for new version. Check with developer.");
    return false;
  }
  if (offered_ != answer.offered) downloadedSum_.clear();
  offered_ = answer.offered;
  checkFailed_ = false;
  cmdInstall.SetEnabled(true);
  lblLastVer.SetCaption("Server Version: " + offered_->version + " / Current Version: " + VersionText());
  return true;
}

void UpdateDialog::Compare() {
  constexpr BoxStyle Style{BoxButtons::YesNoCancel, BoxIcon::Question};
  if (!IsNewer(*offered_)) {
    ShowMessage(program_, "Program is up to date");
  } else if (ShowMessage(program_, "A new version is available. Download?", Style) == BoxResult::Yes) {
    FetchSetup();
  }
}

// ---- the setup file ------------------------------------------------------------------------------------------------

void UpdateDialog::Download() {
  if (offered_) {
    FetchSetup();
  } else {
    AskServer([this] { FetchSetup(); });
  }
}

void UpdateDialog::FetchSetup() {
  downloadedSum_.clear();
  downloadFailed_ = true;  // until the download completes
  ProgressBar1.SetValue(0);
  lblbytes.SetCaption({});
  const std::string folder = DownloadFolder(program_.session);
  if (!Succeeds([&] { program_.platform.files.MakeFolder(folder); })) {
    return EndDownload("Download failed: no files can be kept in " + folder);
  }
  const std::string path = SetupFilePath(program_.session, offered_->version);
  FetchEvents events;
  events.Progress = [this](std::uint64_t received, std::uint64_t total) { SetupProgress(received, total); };
  events.Finished = [this, path](const FetchOutcome& outcome) {
    fetch_.reset();
    SetBusy(false);
    SetupArrived(path, outcome);
  };
  SetBusy(true);
  lblStatus.SetCaption("Downloading " + SetupFileAddress(program_.session, offered_->version));
  fetch_ = program_.platform.downloads.Start({.address = SetupFileAddress(program_.session, offered_->version),
                                              .path = path,
                                              .mostBytes = MostSetupBytes,
                                              .resumes = true},
                                             std::move(events));
  if (fetch_) return;
  SetBusy(false);
  SetupArrived(path, {FetchEnd::NoService, {}});
}

void UpdateDialog::SetupProgress(std::uint64_t received, std::uint64_t total) {
  if (total != 0) ProgressBar1.SetValue(static_cast<int>(received * ProgressBar::Whole / total));
  lblbytes.SetCaption(ProgressText(received, total));
}

void UpdateDialog::SetupArrived(const std::string& path, const FetchOutcome& outcome) {
  if (outcome.end == FetchEnd::NoService || outcome.end == FetchEnd::NoConnection) {
    lblStatus.SetCaption(NoConnection);
    return ReportNoConnection(outcome.end);
  }
  if (outcome.end != FetchEnd::Done) {
    return EndDownload("Download failed: " + SetupFileAddress(program_.session, offered_->version) +
                       " is not there, or did not arrive as a whole. Try again later.");
  }
  if (!offered_->sha256.empty() && !SameWithoutCase(outcome.sha256, offered_->sha256)) {
    const bool isDeleted = Succeeds([&] { program_.platform.files.RemoveFile(path); });
    return EndDownload(std::string("Download failed: the file that arrived is not the one that was published") +
                       (isDeleted ? ", and was deleted: " : ". Delete it: ") + path);
  }
  downloadedSum_ = outcome.sha256;
  downloadFailed_ = false;
  ProgressBar1.SetValue(ProgressBar::Whole);
  lblStatus.SetCaption("Download completed. Program at: " + path);
}

void UpdateDialog::EndDownload(const std::string& status) {
  lblStatus.SetCaption(status);
  ShowMessage(program_, status, BoxIcon::Exclamation);
}

std::string UpdateDialog::FileToStart(const std::string& setupFile) {
  const auto refuse = [&](std::string_view reason) {
    ShowMessage(program_, "Update file: " + setupFile + std::string(reason));
    return std::string();
  };
  if (!FileExists(program_, setupFile)) return refuse(" not found");
  const std::string sum = offered_ && !offered_->sha256.empty() ? offered_->sha256 : downloadedSum_;
  if (sum.empty()) {
    if (offered_ && !downloadFailed_) return setupFile;
    return refuse(" has not been checked. Please download it again.");
  }
  program_.platform.windows.SetWaitCursor(true);
  std::optional<std::string> copy;
  const bool isCopied = Succeeds([&] { copy = program_.platform.downloads.CheckedCopy(setupFile, sum); });
  program_.platform.windows.SetWaitCursor(false);
  if (!isCopied) return refuse(" could not be copied for its check.");
  return copy ? *copy : refuse(" is not the one that was published. Please download it again.");
}

void UpdateDialog::Install() {
  const std::string file = FileToStart(SetupFilePath(program_.session, offered_ ? offered_->version : std::string()));
  if (file.empty()) return;
  ShowMessage(program_,
              "ORBY will now close to install the new update. You may be asked to grant permission to Windows to "
              "allow installation of the new version. ");
  if (program_.platform.documents.Open(file)) {
    program_.EndAtOnce();
  } else {
    ShowMessage(program_, std::string(OperationFailed));
  }
}

void UpdateDialog::OpenWebPage() {
  if (!program_.platform.documents.Open(WebPageAddress(program_.session))) {
    ShowMessage(program_, std::string(OperationFailed));
  }
}

}  // namespace orby
