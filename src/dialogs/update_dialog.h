// The dialog of program updates: asks the server for its version, fetches the setup program of that version, starts it.
//
// What is started has the SHA-256 that the server tells, or else that of what was downloaded in this run: the check and
// the start are of a copy that nobody can exchange in between. Without either sum a file of another day is started as
// it is, unless it was to be replaced and could not be.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/update_source.h"
#include "dialogs/version_fetch.h"

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

  // offered: what the server is known to offer, if it has been asked.
  explicit UpdateDialog(Program& program, std::optional<OfferedVersion> offered = std::nullopt);

 protected:
  void OnOpen() override;
  // A download under way is stopped; what has arrived waits for the next one.
  void OnClose() override;

 private:
  using Step = std::function<void()>;

  // Asks the server for its version; `next` runs when it has given one.
  void AskServer(const Step& next);
  bool Accept(const VersionAnswer& answer);
  // Nothing that the server has said before counts any more.
  void ForgetAnswer();
  void Compare();

  void Download();
  void FetchSetup();
  void SetupProgress(std::uint64_t received, std::uint64_t total);
  void SetupArrived(const std::string& path, const FetchOutcome& outcome);
  void EndDownload(const std::string& status);

  void Install();
  // The file that may be started in the place of the setup file; empty when there is none, which has been told.
  std::string FileToStart(const std::string& setupFile);
  void OpenWebPage();

  void TellNoConnection(FetchEnd end);
  // While something is being fetched nothing else can be begun.
  void SetBusy(bool busy);

  std::optional<OfferedVersion> offered_;
  bool checkFailed_ = false;   // the last answer, so that there is nothing to install
  std::string downloadedSum_;  // of the setup file that was downloaded in this run; empty: none
  bool downloadFailed_ = false;
  std::unique_ptr<Fetch> fetch_;
};

}  // namespace orby
