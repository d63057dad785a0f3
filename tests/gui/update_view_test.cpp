// The update dialog as its user sees it, with a server on this machine and real files.
#include <QCheckBox>
#include <QCryptographicHash>
#include <QDir>
#include <QProgressBar>
#include <QTemporaryDir>

#include "dialogs/update_dialog.h"
#include "gui/cache_in_folder.h"
#include "gui/gui_bench.h"
#include "gui/web_server.h"
#include "machine/disk_files.h"
#include "qt/downloads.h"
#include "qt/texts.h"
#include "qt/update_server.h"
#include "shell/update_check.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const QByteArray VersionFile = "/wp-content/uploads/2020/04/orby_version.txt";
const QByteArray SetupFile = "/wp-content/uploads/2020/04/ORBY1.0.01.exe";
const QByteArray SetupBytes(10'000, 's');

struct UpdateDoors {
  DiskFiles files{"/program"};
  QtDownloads downloads;
  QTemporaryDir home;
  CacheInFolder cache{home.filePath("cache")};
};

class UpdateView : protected UpdateDoors, public GuiTest {
 protected:
  UpdateView() : GuiTest({.downloads = &downloads, .files = &files}) {
    QDir(home.path()).mkpath("Documents/MyStrataDesk/ORBY");
    program.session.UpdateServer = server.Address({});
    program.session.folders.Group = InHome("Documents/MyStrataDesk/");
    program.session.folders.ProgramData = InHome("Documents/MyStrataDesk/ORBY/");
    program.session.IniFilePath = InHome("Documents/MyStrataDesk/ORBY/ORBY.INI");
    program.EndAtOnce = [this] { ++ended; };
    server.ServeFile(SetupFile, SetupBytes, "ETag: \"setup\"");
  }

  std::string InHome(const char* path) const { return PathFromQt(home.filePath(path)); }
  std::string NewSetup() const { return InHome("Downloads/ORBY1.0.01.exe"); }

  void OfferVersion(const QByteArray& text) { server.ServeFile(VersionFile, text); }
  static QByteArray SumOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
  }

  template <class Condition>
  static void WaitFor(const Condition& condition) {
    if (!QTest::qWaitFor(condition, Patience)) throw std::runtime_error("waited in vain");
  }
  void WaitForBoxes(std::size_t count) {
    WaitFor([&] { return platform.boxes.shown.size() == count; });
  }
  static void WaitForText(const QWidget& window, const char* name, const std::string& text) {
    WaitFor([&] { return TextOn(window, name) == text; });
  }
  static void WaitForIdle(const QWidget& window) {
    WaitFor([&] { return Find(window, "cmdCheck").isEnabled(); });
  }

  void UseDialog(ModalScripts::Script script) {
    UpdateDialog dialog(program);
    Use(dialog, [script = std::move(script)](QDialog& window) {
      script(window);
      Press(Qt::Key_Escape);
    });
  }
  // Checks for a version and returns the texts of the boxes.
  std::vector<std::string> CheckOnce() {
    platform.boxes.shown.clear();
    UseDialog([](QDialog& window) {
      PressLetterOf(window, "cmdCheck");
      WaitForIdle(window);
    });
    return platform.boxes.Texts();
  }

  WebServer server;
  int ended = 0;
};

TEST_F(UpdateView, ShowsTheVersionAndItsAge) {
  platform.clock.today = {2023, 8, 5};

  UseDialog([](QDialog& window) {
    EXPECT_EQ(window.windowTitle(), "Program Updates");
    EXPECT_THAT(TextOn(window, "lblInfo"), HasSubstr("Current Revision Date: 05-Jul-2023"));
    EXPECT_THAT(TextOn(window, "lblUpdate"), HasSubstr("released 31 days ago."));
    EXPECT_FALSE(Find<QCheckBox>(window, "chkShow").isChecked());
    EXPECT_EQ(FocusName(), "cmdCheck");
  });
}

TEST_F(UpdateView, IsUpToDateWithTheSameVersionAndAnOlderOne) {
  for (const QByteArray text : {"1.0.00", "1.0.00\r\n", "1.0.00\n", "0.9.99\r\n"}) {
    OfferVersion(text);

    EXPECT_THAT(CheckOnce(), ElementsAre("Program is up to date")) << text.toStdString();
  }
}

TEST_F(UpdateView, AsksAboutANewerVersion) {
  OfferVersion("1.0.01\r\n");
  platform.boxes.answers = {BoxResult::No};

  UseDialog([this](QDialog& window) {
    PressLetterOf(window, "cmdCheck");
    WaitForBoxes(1);
    EXPECT_EQ(TextOn(window, "lblLastVer"), "Server Version: 1.0.01 / Current Version: 1.0.00");
  });

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("A new version is available. Download?"));
  EXPECT_FALSE(files.FindsFile(NewSetup()));
}

TEST_F(UpdateView, SaysThatTheInformationIsInvalid) {
  const std::string invalid = "Invalid information for new version. Check with developer.";
  OfferVersion("");
  EXPECT_THAT(CheckOnce(), ElementsAre(invalid));
  OfferVersion("<html><body>Welcome</body></html>");
  EXPECT_THAT(CheckOnce(), ElementsAre(invalid));
  server.ServeEndless(VersionFile);
  EXPECT_THAT(CheckOnce(), ElementsAre(invalid));
  server.ServeRedirection(VersionFile, "http://example.invalid/");
  EXPECT_THAT(CheckOnce(), ElementsAre(invalid));
}

TEST_F(UpdateView, SaysThatTheServerDoesNotAnswer) {
  program.session.UpdateServer = WebServer().Address({});

  EXPECT_THAT(CheckOnce(),
              ElementsAre("An error occurred calling InternetOpenUrl function", "Internet Connection Failed"));
}

TEST_F(UpdateView, OffersNothingWithoutAServer) {
  program.session.UpdateServer.clear();

  UseDialog([](QDialog& window) {
    EXPECT_FALSE(Find(window, "cmdWebPage").isEnabled());
    Press(Qt::Key_Return);  // checks for updates
  });

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internet Connection Failed"));
}

TEST_F(UpdateView, DownloadsANewerVersionAndInstallsIt) {
  OfferVersion("1.0.01," + SumOf(SetupBytes).toUpper() + "\r\n");
  platform.boxes.answers = {BoxResult::Yes};

  UseDialog([this](QDialog& window) {
    PressLetterOf(window, "cmdCheck");
    WaitForText(window, "lblStatus", "Download completed. Program at: " + NewSetup());
    EXPECT_EQ(Find<QProgressBar>(window, "ProgressBar1").value(), 100);
    EXPECT_EQ(TextOn(window, "lblbytes"), "10 of 10 kB");
    PressLetterOf(window, "cmdInstall");
  });

  EXPECT_EQ(files.ReadFile(NewSetup()), SetupBytes.toStdString());
  ASSERT_EQ(platform.documents.opened.size(), 1U);
  const std::string started = platform.documents.opened[0];
  EXPECT_THAT(started, AllOf(StartsWith(PathFromQt(CacheInFolder::OfProgram())), HasSubstr("setup-"),
                             EndsWith("ORBY1.0.01.exe")));
  EXPECT_EQ(files.ReadFile(started), SetupBytes.toStdString());
  EXPECT_EQ(ended, 1);
}

TEST_F(UpdateView, NeverStartsAFileThatWasReplacedAfterItsDownload) {
  OfferVersion("1.0.01," + SumOf(SetupBytes));

  UseDialog([this](QDialog& window) {
    PressLetterOf(window, "cmdDownUpdate");
    WaitForText(window, "lblStatus", "Download completed. Program at: " + NewSetup());
    files.ReplaceFile(NewSetup(), std::string(10'000, 'x'));
    PressLetterOf(window, "cmdInstall");
  });

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Update file: " + NewSetup() +
                                                  " is not the one that was published. Please download it again."));
  EXPECT_THAT(platform.documents.opened, IsEmpty());
  EXPECT_EQ(ended, 0);
}

TEST_F(UpdateView, DeletesAndNeverStartsAFileThatIsNotThePublishedOne) {
  OfferVersion("1.0.01," + SumOf("what was published"));

  UseDialog([this](QDialog& window) {
    PressLetterOf(window, "cmdDownUpdate");
    WaitForBoxes(1);
    EXPECT_EQ(TextOn(window, "lblStatus"), platform.boxes.shown[0].text);
    PressLetterOf(window, "cmdInstall");
  });

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Download failed: the file that arrived is not the one that was "
                                                  "published, and was deleted: " +
                                                      NewSetup(),
                                                  "Update file: " + NewSetup() + " not found"));
  EXPECT_FALSE(files.FindsFile(NewSetup()));
  EXPECT_THAT(platform.documents.opened, IsEmpty());
  EXPECT_EQ(ended, 0);
}

TEST_F(UpdateView, ReportsABrokenDownload) {
  OfferVersion("1.0.01");
  server.ServeBroken(SetupFile, SetupBytes, 4000, "ETag: \"setup\"");

  UseDialog([this](QDialog& window) {
    PressLetterOf(window, "cmdDownUpdate");
    WaitForBoxes(1);
    EXPECT_THAT(TextOn(window, "lblStatus"), HasSubstr("Download failed: http://127.0.0.1:"));
    PressLetterOf(window, "cmdInstall");
  });

  EXPECT_EQ(platform.boxes.shown[1].text, "Update file: " + NewSetup() + " not found");
  EXPECT_THAT(platform.documents.opened, IsEmpty());
}

TEST_F(UpdateView, StaysResponsiveDuringASlowDownloadAndResumesItLater) {
  OfferVersion("1.0.01," + SumOf(SetupBytes));
  server.ServeSlowly(SetupFile, SetupBytes.size());

  UseDialog([this](QDialog& window) {
    const auto& bar = Find<QProgressBar>(window, "ProgressBar1");
    PressLetterOf(window, "cmdDownUpdate");
    WaitFor([this] { return server.IsAskedSlowly(); });
    server.Send(SetupBytes.left(2500));
    WaitForText(window, "lblbytes", "3 of 10 kB");
    EXPECT_EQ(bar.value(), 25);
    EXPECT_FALSE(Find(window, "cmdInstall").isEnabled());

    PressLetterOf(window, "chkShow");
    EXPECT_TRUE(Find<QCheckBox>(window, "chkShow").isChecked());

    server.Send(SetupBytes.mid(2500, 3500));
    WaitForText(window, "lblbytes", "6 of 10 kB");
    EXPECT_EQ(bar.value(), 60);
  });

  WaitFor([this] { return server.IsLeft(); });
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_FALSE(files.FindsFile(NewSetup()));
  EXPECT_EQ(files.FileLength(NewSetup() + ".part"), 6000U);
  EXPECT_EQ(program.session.settings.RemindAnnualUpdates, 0);

  server.ServeFile(SetupFile, SetupBytes, "ETag: \"slow\"");
  UseDialog([this](QDialog& window) {
    PressLetterOf(window, "cmdDownUpdate");
    WaitForText(window, "lblStatus", "Download completed. Program at: " + NewSetup());
  });

  EXPECT_EQ(server.Requests().back().headers.value("range"), "bytes=6000-");
  EXPECT_EQ(files.ReadFile(NewSetup()), SetupBytes.toStdString());
}

TEST_F(UpdateView, OpensTheWebPage) {
  UseDialog([](QDialog& window) { PressLetterOf(window, "cmdWebPage"); });

  EXPECT_THAT(platform.documents.opened, ElementsAre(server.Address("/roof-support/")));
}

TEST(TheUpdateServer, IsTakenFromTheEnvironment) {
  const QByteArray before = qgetenv("ORBY_UPDATE_SERVER");
  qputenv("ORBY_UPDATE_SERVER", " https://updates.example.org ");
  const std::string named = UpdateServer();
  qputenv("ORBY_UPDATE_SERVER", "");
  const std::string none = UpdateServer();
  before.isNull() ? qunsetenv("ORBY_UPDATE_SERVER") : qputenv("ORBY_UPDATE_SERVER", before);

  EXPECT_EQ(named, "https://updates.example.org");
  EXPECT_EQ(none, "");
}

// ---- the check at the start ----------------------------------------------------------------------------------------

TEST_F(UpdateView, OpensAtStartIfTheUserWantsTheNewerVersion) {
  OfferVersion("1.0.01\r\n");
  platform.boxes.answers = {BoxResult::Yes};
  UpdateCheck check(program);
  std::string title;
  scripts.Add([&](QDialog& window) {
    title = window.windowTitle().toStdString();
    Press(Qt::Key_Escape);
  });

  check.Start();

  WaitFor([this] { return scripts.Left() == 0; });
  Settle();
  EXPECT_EQ(title, "Program Updates");
  EXPECT_THAT(program.session.history.Text, HasSubstr("Server/Current: 1.0.01/1.0.00"));
}

TEST_F(UpdateView, DoesNotOpenAtStartForTheSameVersion) {
  OfferVersion("1.0.00\r\n");
  UpdateCheck check(program);

  check.Start();

  WaitFor([this] { return !program.session.history.Text.empty(); });
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(UpdateView, DoesNotOpenAtStartIfTheServerSendsTooMuch) {
  server.ServeEndless(VersionFile);
  UpdateCheck check(program);

  check.Start();

  WaitFor([this] { return !server.Requests().empty(); });
  WaitFor([this] { return server.BodyBytes() > 65536; });
  Settle();
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "");
}

}  // namespace
}  // namespace orby::test
