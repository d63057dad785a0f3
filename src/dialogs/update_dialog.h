// The update dialog: asks the server for its version, downloads that version's setup program, and starts it.
//
// The setup file must have the SHA-256 that the server states, or else the one of the download in this run. The dialog
// checks and starts a private copy, so that nobody can replace the file in between. If neither checksum is known, a
// setup file from an earlier day is started unchecked, unless a new download of it failed.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/version_fetch.h"
#include "files/update_source.h"

namespace orby {

class UpdateDialog : public ProgramForm {
 public:
  Label lblInfo{*this, "lblInfo", {}};
  Label lblUpdate{*this, "lblUpdate", {}};
  Label lblManual{*this, "lblManual",
                  "You may manually update the program by downloading and installing the new setup file."};
  Button cmdWebPage{*this, "cmdWebPage", "Program Web Page", [this] { OpenWebPage(); }};
  Label lblLastVer{*this, "lblLastVer", {}};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  Label lblbytes{*this, "lblbytes", {}};
  Label lblStatus{*this, "lblStatus", {}};
  CheckBox chkShow{*this, "chkShow", "Disable check for program updates"};

  // commands
  Button cmdCheck{*this, "cmdCheck", "Check for Updates"};
  Button cmdDownUpdate{*this, "cmdDownUpdate", "Download Update", [this] { Download(); }};
  Button cmdInstall{*this, "cmdInstall", "Install Update", [this] { Install(); }};
  Button Command1{*this, "Command1", "Close", [this] { Close(); }};

  // offered: the server's version, if it is already known.
  explicit UpdateDialog(Program& program, std::optional<OfferedVersion> offered = std::nullopt);

 protected:
  void OnOpen() override;
  // Stops a download. The next one resumes it.
  void OnClose() override;

 private:
  using Step = std::function<void()>;

  // Asks the server for its version and then runs `next`, unless that fails.
  void AskServer(const Step& next);
  bool Accept(const VersionAnswer& answer);
  // Discards what the server has said before.
  void ForgetAnswer();
  void Compare();

  void Download();
  void FetchSetup();
  void SetupProgress(std::uint64_t received, std::uint64_t total);
  void SetupArrived(const std::string& path, const FetchOutcome& outcome);
  void EndDownload(const std::string& status);

  void Install();
  // Returns the file to start instead of the setup file. Returns an empty path after a message if there is none.
  std::string FileToStart(const std::string& setupFile);
  void OpenWebPage();

  void ReportNoConnection(FetchEnd end);
  // Disables the commands while a fetch is running.
  void SetBusy(bool busy);

  std::optional<OfferedVersion> offered_;
  bool checkFailed_ = false;   // the server's last answer was unusable, so there is nothing to install
  std::string downloadedSum_;  // SHA-256 of the setup file downloaded in this run; empty if there is none
  bool downloadFailed_ = false;
  std::unique_ptr<Fetch> fetch_;
};

}  // namespace orby
