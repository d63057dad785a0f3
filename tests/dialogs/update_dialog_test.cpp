#include "dialogs/update_dialog.h"

#include "support/update_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string NewSetup = DownloadsFolder + "ORBY1.0.01.exe";
const std::string CopyOfNewSetup = "/private/ORBY1.0.01.exe";
const std::string NewVersion = "1.0.01\r\n";
const std::string NewVersionWithSum = "1.0.01," + SumOfSetup + "\r\n";
const std::string OtherSum = "60303ae22b998861bce3b28f33eec1be758a213c86c93c076dbe9f558c11c752";

struct AnUpdateDialog : UpdateTest {
  AnUpdateDialog() { dialog.Open(); }

  void Check(const std::string& bytes) {
    dialog.cmdCheck.Press();
    Bring(bytes);
  }

  // Checks for a version, answers Yes, and delivers the file with this checksum.
  void DownloadNewVersion(const std::string& versionFile, const std::string& sum) {
    platform.boxes.answers = {BoxResult::Yes};
    Check(versionFile);
    Bring("setup", sum);
    platform.boxes.shown.clear();
  }

  const std::string& Status() const { return dialog.lblStatus.Caption(); }

  UpdateDialog dialog{program};
};

// ---- first contents ------------------------------------------------------------------------------------------------

TEST_F(AnUpdateDialog, HasItsCaptions) {
  EXPECT_EQ(dialog.Name(), "frmUpdate");
  EXPECT_EQ(dialog.Caption(), "Program Updates");
  EXPECT_EQ(dialog.cmdCheck.Caption(), "Check for Updates");
  EXPECT_EQ(dialog.cmdDownUpdate.Caption(), "Download Update");
  EXPECT_EQ(dialog.cmdInstall.Caption(), "Install Update");
  EXPECT_EQ(dialog.chkShow.Caption(), "Disable check for program updates");
  EXPECT_EQ(dialog.cmdWebPage.Caption(), "Program Web Page");
  EXPECT_EQ(dialog.Command1.Caption(), "Close");
}

TEST_F(AnUpdateDialog, ShowsTheVersionAndItsDate) {
  EXPECT_EQ(dialog.lblInfo.Caption(),
            "Current Program Version: 1.0.00 for Orby Roof Support Workbench\r\n"
            "Current Revision Date: 05-Jul-2023");
}

TEST_F(AnUpdateDialog, ShowsTheAgeOfTheVersion) {
  EXPECT_EQ(dialog.lblUpdate.Caption(),
            "This version was released 20 days ago. Although major updates may not be scheduled, interim updates may "
            "be released with bug fixes. Check for an updated version by visiting the program web page below or click "
            "on 'Check for updates'.  ");
  EXPECT_EQ(dialog.lblManual.Caption(),
            "You may manually update the program by downloading and installing the new setup file.");
}

TEST_F(AnUpdateDialog, ShowsNothingAboutTheServerYet) {
  EXPECT_EQ(dialog.lblLastVer.Caption(), "");
  EXPECT_EQ(dialog.lblStatus.Caption(), "");
  EXPECT_EQ(dialog.lblbytes.Caption(), "");
  EXPECT_EQ(dialog.ProgressBar1.Value(), 0);
  EXPECT_THAT(platform.downloads.asked, IsEmpty());
}

// ---- the check at start --------------------------------------------------------------------------------------------

TEST_F(AnUpdateDialog, SwitchesTheCheckAtStartOffAndOn) {
  EXPECT_FALSE(dialog.chkShow.Checked());

  dialog.chkShow.SetValue(1);
  EXPECT_EQ(program.session.settings.RemindAnnualUpdates, 0);

  dialog.chkShow.SetValue(0);
  EXPECT_EQ(program.session.settings.RemindAnnualUpdates, 1);
}

TEST_F(AnUpdateDialog, ShowsThatTheCheckAtStartIsOff) {
  program.session.settings.RemindAnnualUpdates = 0;
  UpdateDialog other(program);

  other.Open();

  EXPECT_TRUE(other.chkShow.Checked());
}

TEST_F(AnUpdateDialog, SavesTheSettingsWhenItCloses) {
  dialog.chkShow.SetValue(1);

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_THAT(platform.files.files[program.session.IniFilePath], HasSubstr("RemindAnnualUpdates=0\r\n"));
}

// ---- checking for a version ----------------------------------------------------------------------------------------

TEST_F(AnUpdateDialog, FetchesTheVersionFileOnRequest) {
  dialog.cmdCheck.Press();

  ASSERT_EQ(platform.downloads.asked.size(), 1U);
  EXPECT_EQ(LastAsked().request.address, UpdateFiles + "orby_version.txt");
  EXPECT_EQ(LastAsked().request.path, VersionFileAt);
}

TEST_F(AnUpdateDialog, ChecksEvenIfTheCheckAtStartIsOff) {
  program.session.settings.RemindAnnualUpdates = 0;

  dialog.cmdCheck.Press();

  EXPECT_EQ(platform.downloads.asked.size(), 1U);
}

TEST_F(AnUpdateDialog, DoesOneThingAtATime) {
  dialog.cmdCheck.Press();

  EXPECT_FALSE(dialog.cmdCheck.Enabled());
  EXPECT_FALSE(dialog.cmdDownUpdate.Enabled());
  EXPECT_FALSE(dialog.cmdInstall.Enabled());
  EXPECT_TRUE(dialog.Command1.Enabled());

  Bring("1.0.00");

  EXPECT_TRUE(dialog.cmdCheck.Enabled());
  EXPECT_TRUE(dialog.cmdDownUpdate.Enabled());
  EXPECT_TRUE(dialog.cmdInstall.Enabled());
}

TEST_F(AnUpdateDialog, IsUpToDateWithTheSameVersion) {
  Check("1.0.00\r\n");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Program is up to date"));
  EXPECT_EQ(dialog.lblLastVer.Caption(), "Server Version: 1.0.00 / Current Version: 1.0.00");
  EXPECT_EQ(Status(), "");
}

TEST_F(AnUpdateDialog, IsUpToDateWithAnOlderVersion) {
  Check("0.9.12");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Program is up to date"));
}

TEST_F(AnUpdateDialog, AsksWhetherToDownloadANewerVersion) {
  platform.boxes.answers = {BoxResult::No};

  Check(NewVersion);

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown[0].text, "A new version is available. Download?");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxStyle(BoxButtons::YesNoCancel, BoxIcon::Question));
  EXPECT_EQ(dialog.lblLastVer.Caption(), "Server Version: 1.0.01 / Current Version: 1.0.00");
  EXPECT_EQ(platform.downloads.asked.size(), 1U);
}

TEST_F(AnUpdateDialog, DownloadsAtOnceOnYesAndNotOnCancel) {
  platform.boxes.answers = {BoxResult::Cancel, BoxResult::Yes};

  Check(NewVersion);
  EXPECT_EQ(platform.downloads.asked.size(), 1U);

  Check(NewVersion);
  ASSERT_EQ(platform.downloads.asked.size(), 3U);
  EXPECT_EQ(LastAsked().request.address, UpdateFiles + "ORBY1.0.01.exe");
}

TEST_F(AnUpdateDialog, SaysThatTheInformationIsInvalid) {
  for (const std::string bytes : {"", "\r\n", "../../.bashrc", "\"\",1.0.01"}) {
    platform.boxes.shown.clear();

    Check(bytes);

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid information for new version. Check with developer."))
        << bytes;
    EXPECT_EQ(dialog.lblLastVer.Caption(), "");
  }
}

TEST_F(AnUpdateDialog, SaysThatTheInformationIsInvalidIfTheFileIsMissing) {
  dialog.cmdCheck.Press();
  Fail(FetchEnd::Failed);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid information for new version. Check with developer."));
}

TEST_F(AnUpdateDialog, HasNoConnectionWithoutAServer) {
  program.session.UpdateServer.clear();
  UpdateDialog other(program);
  other.Open();

  other.cmdCheck.Press();
  other.cmdDownUpdate.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internet Connection Failed", "Internet Connection Failed"));
  EXPECT_THAT(platform.downloads.asked, IsEmpty());
  EXPECT_FALSE(other.cmdWebPage.Enabled());
}

TEST_F(AnUpdateDialog, SaysThatThisMachineCannotFetch) {
  dialog.cmdCheck.Press();
  Fail(FetchEnd::NoService);

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("An error occurred calling InternetOpen function", "Internet Connection Failed"));
  EXPECT_TRUE(dialog.cmdCheck.Enabled());
}

TEST_F(AnUpdateDialog, SaysThatThereIsNoNetwork) {
  platform.downloads.works = false;

  dialog.cmdCheck.Press();

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("An error occurred calling InternetOpen function", "Internet Connection Failed"));
  EXPECT_TRUE(dialog.cmdCheck.Enabled());
  EXPECT_EQ(Status(), "");
}

TEST_F(AnUpdateDialog, SaysThatTheServerDoesNotAnswer) {
  dialog.cmdCheck.Press();
  Fail(FetchEnd::NoConnection);

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("An error occurred calling InternetOpenUrl function", "Internet Connection Failed"));
}

// ---- downloading ---------------------------------------------------------------------------------------------------

TEST_F(AnUpdateDialog, DownloadsTheSetupFileIntoTheFolderForDownloads) {
  platform.boxes.answers = {BoxResult::No};
  Check(NewVersion);

  dialog.cmdDownUpdate.Press();

  ASSERT_EQ(platform.downloads.asked.size(), 2U);
  EXPECT_EQ(LastAsked().request.address, UpdateFiles + "ORBY1.0.01.exe");
  EXPECT_EQ(LastAsked().request.path, NewSetup);
  EXPECT_TRUE(LastAsked().request.resumes);
  EXPECT_EQ(LastAsked().request.mostBytes, 2'000'000'000U);
  EXPECT_TRUE(platform.files.folders.contains("/home/user/Downloads"));
  EXPECT_FALSE(dialog.cmdDownUpdate.Enabled());
}

TEST_F(AnUpdateDialog, AsksForTheVersionBeforeTheDownloadIfItIsUnknown) {
  dialog.cmdDownUpdate.Press();
  EXPECT_EQ(LastAsked().request.path, VersionFileAt);

  Bring("1.0.00");

  EXPECT_EQ(LastAsked().request.path, DownloadsFolder + "ORBY1.0.00.exe");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(AnUpdateDialog, ShowsTheProgressOfTheDownload) {
  DownloadNewVersion(NewVersion, {});
  dialog.cmdDownUpdate.Press();

  EXPECT_EQ(dialog.ProgressBar1.Value(), 0);
  EXPECT_EQ(dialog.lblbytes.Caption(), "");

  LastAsked().events.Progress(1'234'000, 5'678'000);
  EXPECT_EQ(dialog.ProgressBar1.Value(), 21);
  EXPECT_EQ(dialog.lblbytes.Caption(), "1,234 of 5,678 kB");

  LastAsked().events.Progress(1'999'999'999, 2'000'000'000);
  EXPECT_EQ(dialog.ProgressBar1.Value(), 99);
  EXPECT_EQ(dialog.lblbytes.Caption(), "2,000,000 of 2,000,000 kB");
}

TEST_F(AnUpdateDialog, ShowsOnlyTheReceivedBytesIfTheTotalIsUnknown) {
  DownloadNewVersion(NewVersion, {});
  dialog.cmdDownUpdate.Press();

  LastAsked().events.Progress(800, 0);
  EXPECT_EQ(dialog.lblbytes.Caption(), "1 kB");

  LastAsked().events.Progress(123'456'789, 0);
  EXPECT_EQ(dialog.ProgressBar1.Value(), 0);
  EXPECT_EQ(dialog.lblbytes.Caption(), "123,457 kB");
}

TEST_F(AnUpdateDialog, ShowsThePathOfTheDownload) {
  DownloadNewVersion(NewVersion, {});

  EXPECT_EQ(Status(), "Download completed. Program at: /home/user/Downloads/ORBY1.0.01.exe");
  EXPECT_EQ(dialog.ProgressBar1.Value(), 100);
  EXPECT_TRUE(dialog.cmdInstall.Enabled());
}

TEST_F(AnUpdateDialog, ReportsABrokenDownload) {
  platform.boxes.answers = {BoxResult::Yes};
  Check(NewVersion);
  platform.boxes.shown.clear();

  Fail(FetchEnd::Failed);

  EXPECT_EQ(Status(),
            "Download failed: https://updates.example.org/wp-content/uploads/2020/04/ORBY1.0.01.exe is not there, or "
            "did not arrive as a whole. Try again later.");
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(Status()));
  EXPECT_TRUE(dialog.cmdDownUpdate.Enabled());
}

TEST_F(AnUpdateDialog, ReportsThatTheServerOfADownloadIsGone) {
  platform.boxes.answers = {BoxResult::Yes};
  Check(NewVersion);
  platform.boxes.shown.clear();

  Fail(FetchEnd::NoConnection);

  EXPECT_EQ(Status(), "Internet Connection Failed");
  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("An error occurred calling InternetOpenUrl function", "Internet Connection Failed"));
}

TEST_F(AnUpdateDialog, ReportsThatThereIsNoDownloadFolder) {
  platform.files.Fail(MemoryFiles::Step::MakeFolder, error_number::PermissionDenied);
  platform.boxes.answers = {BoxResult::Yes};

  Check(NewVersion);

  EXPECT_EQ(Status(), "Download failed: no files can be kept in /home/user/Downloads/");
  EXPECT_EQ(platform.downloads.asked.size(), 1U);
  EXPECT_TRUE(dialog.cmdDownUpdate.Enabled());
}

TEST_F(AnUpdateDialog, StopsTheDownloadWhenItIsClosed) {
  platform.boxes.answers = {BoxResult::Yes};
  Check(NewVersion);

  dialog.Command1.Press();

  EXPECT_TRUE(LastAsked().stopped);
}

TEST_F(AnUpdateDialog, DeletesAFileThatIsNotThePublishedOne) {
  platform.boxes.answers = {BoxResult::Yes};
  Check(NewVersionWithSum);
  platform.boxes.shown.clear();

  Bring("something else", OtherSum);

  EXPECT_EQ(Status(),
            "Download failed: the file that arrived is not the one that was published, and was deleted: "
            "/home/user/Downloads/ORBY1.0.01.exe");
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(Status()));
  EXPECT_FALSE(platform.files.files.contains(NewSetup));
}

TEST_F(AnUpdateDialog, AcceptsTheChecksumInAnyCase) {
  DownloadNewVersion("1.0.01,9F86D081884C7D659A2FEAA0C55AD015A3BF4F1B2B0B822CD15D6C15B0F00A08", SumOfSetup);

  EXPECT_EQ(Status(), "Download completed. Program at: /home/user/Downloads/ORBY1.0.01.exe");
  EXPECT_TRUE(platform.files.files.contains(NewSetup));
}

// ---- installing ----------------------------------------------------------------------------------------------------

TEST_F(AnUpdateDialog, StartsACheckedCopyOfTheSetupFileAndEndsTheProgram) {
  DownloadNewVersion(NewVersionWithSum, SumOfSetup);

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("ORBY will now close to install the new update. You may be asked to grant permission to "
                          "Windows to allow installation of the new version. "));
  EXPECT_THAT(platform.documents.opened, ElementsAre(CopyOfNewSetup));
  EXPECT_EQ(ended, 1);
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(AnUpdateDialog, StartsTheDownloadedFileIfTheServerStatesNoChecksum) {
  DownloadNewVersion(NewVersion, OtherSum);

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, ElementsAre(CopyOfNewSetup));
  EXPECT_EQ(ended, 1);
}

TEST_F(AnUpdateDialog, NeverStartsAFileThatWasReplacedAfterItsDownload) {
  for (const std::string& versionFile : {NewVersion, NewVersionWithSum}) {
    DownloadNewVersion(versionFile, SumOfSetup);
    platform.downloads.sums[NewSetup] = OtherSum;

    dialog.cmdInstall.Press();

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Update file: /home/user/Downloads/ORBY1.0.01.exe is not the one "
                                                    "that was published. Please download it again."));
    EXPECT_THAT(platform.documents.opened, IsEmpty());
    EXPECT_EQ(ended, 0);
  }
}

TEST_F(AnUpdateDialog, StartsNoFileThatCannotBeCopiedForItsCheck) {
  DownloadNewVersion(NewVersionWithSum, SumOfSetup);
  platform.downloads.copyError = error_number::DiskFull;

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Update file: /home/user/Downloads/ORBY1.0.01.exe could not be copied for its check."));
  EXPECT_THAT(platform.documents.opened, IsEmpty());
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(AnUpdateDialog, StaysOpenIfTheSetupFileDoesNotStart) {
  DownloadNewVersion(NewVersionWithSum, SumOfSetup);
  platform.documents.opens = false;

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(HasSubstr("ORBY will now close"), "Operation Failed"));
  EXPECT_EQ(ended, 0);
  EXPECT_TRUE(dialog.IsOpen());
}

TEST_F(AnUpdateDialog, SaysThatThereIsNoSetupFile) {
  platform.boxes.answers = {BoxResult::No};
  Check(NewVersion);
  platform.boxes.shown.clear();

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Update file: /home/user/Downloads/ORBY1.0.01.exe not found"));
  EXPECT_THAT(platform.documents.opened, IsEmpty());
}

TEST_F(AnUpdateDialog, SaysThatThereIsNoSetupFileBeforeAnyVersionIsKnown) {
  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Update file: /home/user/Downloads/ORBY.exe not found"));
}

TEST_F(AnUpdateDialog, NeverStartsAFileWithAWrongChecksum) {
  DownloadNewVersion(NewVersionWithSum, OtherSum);
  platform.files.files[NewSetup] = "put back by somebody";

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, IsEmpty());
  EXPECT_EQ(ended, 0);
}

TEST_F(AnUpdateDialog, NeverStartsAFileWithAWrongChecksumThatCannotBeDeleted) {
  platform.files.Fail(MemoryFiles::Step::Remove, error_number::PermissionDenied);
  DownloadNewVersion(NewVersionWithSum, OtherSum);
  EXPECT_EQ(Status(),
            "Download failed: the file that arrived is not the one that was published. Delete it: "
            "/home/user/Downloads/ORBY1.0.01.exe");

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, IsEmpty());
}

TEST_F(AnUpdateDialog, StartsAFileOfAnotherDayIfTheServerStatesNoChecksum) {
  platform.files.files[NewSetup] = "of last week";
  platform.boxes.answers = {BoxResult::No};
  Check(NewVersion);

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, ElementsAre(NewSetup));
}

TEST_F(AnUpdateDialog, StartsAFileOfAnotherDayOnlyIfItHasTheStatedChecksum) {
  platform.files.files[NewSetup] = "of last week";
  platform.downloads.sums[NewSetup] = OtherSum;
  platform.boxes.answers = {BoxResult::No};
  Check(NewVersionWithSum);
  platform.boxes.shown.clear();

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Update file: /home/user/Downloads/ORBY1.0.01.exe is not the one "
                                                  "that was published. Please download it again."));
  EXPECT_THAT(platform.documents.opened, IsEmpty());

  platform.downloads.sums[NewSetup] = SumOfSetup;
  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, ElementsAre(CopyOfNewSetup));
}

TEST_F(AnUpdateDialog, NeverStartsAFileAfterItsNextDownloadBroke) {
  DownloadNewVersion(NewVersion, {});
  dialog.cmdDownUpdate.Press();
  Fail(FetchEnd::Failed);

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, IsEmpty());
}

TEST_F(AnUpdateDialog, NeverStartsAFileAfterTheServerStatesAnotherChecksum) {
  DownloadNewVersion(NewVersionWithSum, SumOfSetup);
  platform.boxes.answers = {BoxResult::No};
  Check("1.0.01," + OtherSum);

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, IsEmpty());
}

TEST_F(AnUpdateDialog, StillStartsTheFileAfterAnotherCheckOfTheSameVersion) {
  DownloadNewVersion(NewVersionWithSum, SumOfSetup);
  platform.boxes.answers = {BoxResult::No};
  Check(NewVersionWithSum);

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, ElementsAre(CopyOfNewSetup));
}

TEST_F(AnUpdateDialog, NeverStartsAFileReplacedBeforeAnotherCheckOfTheSameVersion) {
  DownloadNewVersion(NewVersion, SumOfSetup);
  platform.downloads.sums[NewSetup] = OtherSum;
  platform.boxes.answers = {BoxResult::No};
  Check(NewVersion);

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, IsEmpty());
}

TEST_F(AnUpdateDialog, DoesNotCompareAnotherVersionWithTheLastDownloadsChecksum) {
  DownloadNewVersion(NewVersion, SumOfSetup);
  platform.files.files[DownloadsFolder + "ORBY1.0.02.exe"] = "another setup";
  platform.boxes.answers = {BoxResult::No};
  Check("1.0.02\r\n");

  dialog.cmdInstall.Press();

  EXPECT_THAT(platform.documents.opened, ElementsAre(DownloadsFolder + "ORBY1.0.02.exe"));
}

// ---- a check that failed -------------------------------------------------------------------------------------------

struct AFailedCheck : AnUpdateDialog {
  AFailedCheck() { DownloadNewVersion(NewVersionWithSum, SumOfSetup); }

  void ExpectNothingToInstall() {
    EXPECT_FALSE(dialog.cmdInstall.Enabled());
    EXPECT_TRUE(dialog.cmdCheck.Enabled());
    EXPECT_TRUE(dialog.cmdDownUpdate.Enabled());
    EXPECT_EQ(dialog.lblLastVer.Caption(), "");
  }
};

TEST_F(AFailedCheck, LeavesNothingToInstallAfterABadAnswer) {
  Check("<html>");

  ExpectNothingToInstall();
}

TEST_F(AFailedCheck, LeavesNothingToInstallIfTheServerDoesNotAnswer) {
  for (const FetchEnd end : {FetchEnd::NoConnection, FetchEnd::NoService, FetchEnd::Failed}) {
    dialog.cmdCheck.Press();
    Fail(end);

    ExpectNothingToInstall();
  }
}

TEST_F(AFailedCheck, LeavesNothingToInstallWithoutANetworkOrAServer) {
  platform.downloads.works = false;
  dialog.cmdCheck.Press();
  ExpectNothingToInstall();

  program.session.UpdateServer.clear();
  dialog.cmdCheck.Press();
  ExpectNothingToInstall();
}

TEST_F(AFailedCheck, MakesTheNextDownloadAskForTheVersionAgain) {
  Check("<html>");

  dialog.cmdDownUpdate.Press();

  EXPECT_EQ(LastAsked().request.path, VersionFileAt);
}

TEST_F(AFailedCheck, IsClearedByTheNextAnswer) {
  Check("<html>");
  platform.boxes.answers = {BoxResult::No};
  Check(NewVersionWithSum);

  EXPECT_TRUE(dialog.cmdInstall.Enabled());
  dialog.cmdInstall.Press();
  EXPECT_THAT(platform.documents.opened, ElementsAre(CopyOfNewSetup));
}

TEST_F(AFailedCheck, IsClearedForADownloadAfterTheNextAnswer) {
  Check("<html>");
  platform.boxes.answers = {BoxResult::Yes};
  Check(NewVersionWithSum);

  Bring("setup", SumOfSetup);

  EXPECT_TRUE(dialog.cmdInstall.Enabled());
}

TEST_F(AnUpdateDialog, RecordsInTheHistoryASecondFieldThatIsNoChecksum) {
  platform.boxes.answers = {BoxResult::No};

  Check("1.0.01,05-Jul-2024\r\n");

  EXPECT_EQ(platform.boxes.shown[0].text, "A new version is available. Download?");
  EXPECT_THAT(program.session.history.Text,
              HasSubstr("1. Second field of the version file is no checksum and is ignored\r\n"));
}

// ---- the web page --------------------------------------------------------------------------------------------------

TEST_F(AnUpdateDialog, OpensTheWebPage) {
  dialog.cmdWebPage.Press();

  EXPECT_THAT(platform.documents.opened, ElementsAre("https://updates.example.org/roof-support/"));
}

TEST_F(AnUpdateDialog, ReportsThatThereIsNoBrowser) {
  platform.documents.opens = false;

  dialog.cmdWebPage.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Operation Failed"));
}

}  // namespace
}  // namespace orby::test
