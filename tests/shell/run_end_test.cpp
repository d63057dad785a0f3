// The message after a run-time error that ends the run, and what the next run restores.
#include "shell/run_end.h"

#include <map>
#include <optional>

#include "core/act.h"
#include "dialogs/parameters_dialog.h"
#include "files/backups.h"
#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

RuntimeError FailedIn(Act act, const std::string& object = {}) {
  try {
    While(act, object, [] { throw RuntimeError(error_number::DivisionByZero); });
  } catch (const RuntimeError& error) {
    return error;
  }
  return RuntimeError(0);
}

TEST(RunEndBox, NamesTheErrorThenTheActionAndSaysThatTheProjectIsKept) {
  const MessageBox box = RunEndBox(FailedIn(Act::Report), RunEnd{KeptWork::All, {3, {}}});

  EXPECT_EQ(box.text,
            "Run-time error '11':\r\n\r\nDivision by zero\r\n\r\n"
            "The error happened while the report was made.\r\n\r\n"
            "Your project is kept with its unsaved changes.\r\n"
            "Start Again brings it back now; after OK the next start offers it.");
  EXPECT_EQ(box.title, "Orby Roof Support Workbench");
}

TEST(RunEndBox, OffersToStartAgainInASecondButton) {
  const MessageBox box = RunEndBox(FailedIn(Act::Report), RunEnd{});

  EXPECT_EQ(box.style, BoxStyle(BoxButtons::OkRetry, BoxIcon::Critical));
  EXPECT_THAT(box.captions, ElementsAre("OK", "Start Again"));
}

struct ActCase {
  Act act;
  const char* object;
  const char* sentence;
};

TEST(RunEndBox, NamesEachActionInPlainWords) {
  const std::vector<ActCase> cases{
      {Act::Start, "", "The error happened while the program was started."},
      {Act::OpenFile, "/designs/panel3.orb", "The error happened while /designs/panel3.orb was opened."},
      {Act::ShowDialog, "", "The error happened while the input dialog was opened."},
      {Act::TakeParameters, "", "The error happened while the parameters were taken over."},
      {Act::TakeCosts, "", "The error happened while the costs were taken over."},
      {Act::Report, "", "The error happened while the report was made."},
      {Act::Curve, "Suggested PSUP vs CMRR",
       "The error happened while the curve \"Suggested PSUP vs CMRR\" was drawn."},
  };
  for (const ActCase& entry : cases) {
    EXPECT_THAT(RunEndBox(FailedIn(entry.act, entry.object), RunEnd{}).text, HasSubstr(entry.sentence));
  }
}

TEST(RunEndBox, SpeaksOfTheLastStepIfTheActionHasNoName) {
  const MessageBox box = RunEndBox(RuntimeError(error_number::Overflow), RunEnd{});

  EXPECT_THAT(box.text, HasSubstr("'6':\r\n\r\nOverflow\r\n\r\nThe error happened during your last step.\r\n"));
}

TEST(RunEndBox, NamesTheInnermostOfTwoActions) {
  std::string words;
  try {
    While(Act::OpenFile, "/designs/panel3.orb",
          [] { While(Act::Report, [] { throw RuntimeError(error_number::Overflow); }); });
  } catch (const RuntimeError& error) {
    words = error.circumstance();
  }

  EXPECT_EQ(words, "while the report was made");
}

struct KeptCase {
  RunEnd end;
  const char* sentences;
};

TEST(RunEndBox, DoesNotClaimThatALostProjectIsKept) {
  const std::vector<KeptCase> cases{
      {{KeptWork::Earlier, {1, {}}},
       "Your project is kept, but without your last changes: they could not be written.\r\n"
       "Start Again brings it back now; after OK the next start offers it."},
      {{KeptWork::Nothing, {0, "/designs/panel3.orb"}},
       "Your unsaved changes are not kept: they could not be written.\r\nStart Again opens its file again."},
      {{KeptWork::Nothing, {}},
       "Your unsaved changes are not kept: they could not be written.\r\nStart Again begins with a new project."},
      {{KeptWork::NoneNeeded, {0, "/designs/panel3.orb"}},
       "Your project has no unsaved changes.\r\nStart Again opens its file again."},
  };
  for (const KeptCase& entry : cases) {
    EXPECT_THAT(RunEndBox(RuntimeError(error_number::Overflow), entry.end).text, testing::EndsWith(entry.sentences));
  }
}

TEST(RunEndBox, OffersNoStartAgainBeforeAProjectIsOpen) {
  const MessageBox box = RunEndBox(FailedIn(Act::Start), std::nullopt);

  EXPECT_EQ(box.style, BoxIcon::Critical);
  EXPECT_EQ(box.text,
            "Run-time error '11':\r\n\r\nDivision by zero\r\n\r\nThe error happened while the program was started.");
}

TEST(RestartNote, IsReadBackAsItWasWritten) {
  for (const Restart& restart : {Restart{1, {}}, Restart{9, {}}, Restart{0, "/designs/panel 3.orb"}, Restart{}}) {
    const Restart read = ReadRestartNote(RestartNote(restart));

    EXPECT_EQ(read.Slot, restart.Slot);
    EXPECT_EQ(read.File, restart.File);
  }
}

// A run that ends with an error, and the run that is started again after it.
struct StartedAgain : MainWindowTest {
  // Ends the run while the parameters dialog is open with this depth typed.
  RunEnd EndWhileEditing(const std::string& depth) {
    RunEnd end;
    platform.windows.onModal = [&](Form& form) {
      auto& dialog = dynamic_cast<ParametersDialog&>(form);
      dialog.txtDepthofCover.SetText(depth);
      dialog.Acted();
      end = window.LeaveAtOnce();
      atEnd = platform.files.files;
    };
    window.mnuEditItem.ClickItem(EditItem::Parameters);
    platform.windows.onModal = nullptr;
    return end;
  }

  // Opens the window of the next run with this restart.
  void StartAgain(const Restart& restart) {
    next.files.files = atEnd;
    restarted.session.settings.LoadLastInputFile = 1;
    restarted.session.settings.DisplayHistoryWin = 1;
    restarted.session.recentFiles.MaxLastFiles = 1;
    restarted.session.recentFiles.Entries[0] = {Panel4, 1, Panel4};
    nextWindow.emplace(restarted, restart);
    nextWindow->Open();
    nextWindow->OpenFirstFiles("");
  }

  std::map<std::string, std::string> atEnd;
  RecordingPlatform next;
  Program restarted = StartedProgram(next);
  std::optional<MainWindow> nextWindow;
};

TEST_F(StartedAgain, TheProgramRestoresTheUnsavedProjectWithoutAQuestion) {
  OpenByDialog(Panel3);
  const RunEnd end = EndWhileEditing("810");

  StartAgain(end.Next);

  EXPECT_EQ(end.Kept, KeptWork::All);
  EXPECT_THAT(next.boxes.shown, IsEmpty());
  EXPECT_EQ(restarted.project.WorkParms.Place.DepthofCover, 810);
  EXPECT_EQ(nextWindow->Caption(), "Orby Roof Support Workbench: /designs/panel3.orb*");
}

TEST_F(StartedAgain, TheProgramRecordsInItsHistoryWhatItRestored) {
  OpenByDialog(Panel3);

  StartAgain(EndWhileEditing("810").Next);

  EXPECT_THAT(restarted.session.history.Text,
              HasSubstr("Recovered: /designs/panel3.orb, with its unsaved changes\r\n"));
  EXPECT_THAT(restarted.session.history.Text, Not(HasSubstr("Opening: /designs/panel4.orb")));
}

TEST_F(StartedAgain, TheProgramRestoresItsOwnWorkAndNotThatOfAnotherRun) {
  Program other = StartedProgram(platform);
  MainWindow otherWindow(other);  // takes the second slot, as a program running beside this one
  other.project.WorkParms.Place.DepthofCover = 333;
  other.project.FileSaved = false;
  const RunEnd end = otherWindow.LeaveAtOnce();
  atEnd = platform.files.files;
  atEnd[RecoveryPath] = atEnd.at(TemporaryPath + "~recover2.tmp");

  StartAgain(end.Next);

  EXPECT_EQ(end.Next.Slot, 2);
  EXPECT_EQ(restarted.project.WorkParms.Place.DepthofCover, 333);
  EXPECT_TRUE(next.files.marked.contains(TemporaryPath + "~recover2.lck"));
  EXPECT_FALSE(next.files.marked.contains(TemporaryPath + "~recover1.lck"));
}

TEST_F(StartedAgain, TheProgramOpensAProjectWithoutUnsavedChangesFromItsFile) {
  OpenByDialog(Panel3);
  const RunEnd end = window.LeaveAtOnce();
  atEnd = platform.files.files;

  StartAgain(end.Next);

  EXPECT_EQ(end.Kept, KeptWork::NoneNeeded);
  EXPECT_THAT(next.boxes.shown, IsEmpty());
  EXPECT_EQ(restarted.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_TRUE(restarted.project.FileSaved);
  EXPECT_EQ(nextWindow->Caption(), "Orby Roof Support Workbench: /designs/panel3.orb");
}

TEST_F(StartedAgain, TheProgramOffersTheLostWorkOfAnotherRunInItsSlot) {
  OpenByDialog(Panel3);
  const RunEnd end = window.LeaveAtOnce();
  EditPanel3();
  window.LeaveAtOnce();
  atEnd = platform.files.files;  // this recovery file stands for one of another program that was killed

  restarted.session.folders.ProgramData = ProgramDataPath;
  next.boxes.answers = {BoxResult::No};

  StartAgain(end.Next);

  ASSERT_EQ(next.boxes.shown.size(), 1U);
  EXPECT_THAT(next.boxes.shown.front().captions, ElementsAre("Recover", "Open panel3.orb instead"));
  EXPECT_EQ(restarted.project.WorkParms.Place.DepthofCover, 725);
  const auto backups = ListBackups(restarted);
  ASSERT_EQ(backups.size(), 1U);
  EXPECT_EQ(ReadRecovery(next.files.files.at(backups.front().Path))->WorkParms.Place.DepthofCover, 800);
}

TEST_F(StartedAgain, TheProgramOffersTheLostWorkOfAnotherRunIfItsOwnSlotIsTaken) {
  EditPanel3();
  window.LeaveAtOnce();
  atEnd = platform.files.files;
  next.files.marked.insert(TemporaryPath + "~recover2.lck");
  next.boxes.answers = {BoxResult::Yes};

  StartAgain({2, {}});

  EXPECT_EQ(restarted.project.WorkParms.Place.DepthofCover, 800);
  EXPECT_FALSE(restarted.project.FileSaved);
}

TEST_F(StartedAgain, TheProgramBeginsANewProjectIfNoneWasBegun) {
  const RunEnd end = window.LeaveAtOnce();
  atEnd = platform.files.files;

  StartAgain(end.Next);

  EXPECT_EQ(end.Kept, KeptWork::NoneNeeded);
  EXPECT_THAT(next.boxes.shown, IsEmpty());
  EXPECT_EQ(restarted.project.CurrentFile, "Untitled");
}

TEST_F(StartedAgain, TheProgramCanRestoreTheWorkAsSoonAsItIsReleased) {
  window.LeaveAtOnce();
  ASSERT_TRUE(platform.files.marked.contains(TemporaryPath + "~recover1.lck"));

  window.Release();

  EXPECT_THAT(platform.files.marked, IsEmpty());
}

TEST_F(StartedAgain, TheMessageSaysThatTheChangesCouldNotBeWritten) {
  OpenByDialog(Panel3);
  platform.files.Fail(MemoryFiles::Step::Write, error_number::DiskFull);

  const RunEnd end = EndWhileEditing("810");

  EXPECT_EQ(end.Kept, KeptWork::Nothing);
  EXPECT_EQ(end.Next.Slot, 0);
  EXPECT_EQ(end.Next.File, Panel3);
}

TEST_F(StartedAgain, TheMessageSaysThatOnlyEarlierChangesCouldBeWritten) {
  EditPanel3();
  window.LeaveAtOnce();
  platform.files.Fail(MemoryFiles::Step::Write, error_number::DiskFull);

  const RunEnd end = EndWhileEditing("810");

  EXPECT_EQ(end.Kept, KeptWork::Earlier);
  EXPECT_EQ(end.Next.Slot, 1);
}

TEST_F(StartedAgain, TheMessageSaysThatNothingIsKeptWithoutAFolder) {
  RecordingPlatform bare;
  Program program2 = StartedProgram(bare);
  program2.session.folders.ProgramTemporary.clear();
  MainWindow window2(program2);
  program2.project.FileSaved = false;

  EXPECT_EQ(window2.LeaveAtOnce().Kept, KeptWork::Nothing);
}

// The message names the action that failed.

TEST_F(StartedAgain, AFileThatCannotBeOpenedIsNamed) {
  std::string words;
  try {
    window.OpenFirstFiles("/designs/missing.orb");
  } catch (const RuntimeError& error) {
    words = error.circumstance();
  }

  EXPECT_EQ(words, "while /designs/missing.orb was opened");
}

TEST_F(StartedAgain, AReportThatCannotBeMadeIsNamed) {
  std::string words;
  platform.windows.onModal = [&](Form& form) {
    auto& dialog = dynamic_cast<ParametersDialog&>(form);
    dialog.txtRockFallAngle.SetText("0");
    try {
      dialog.cmdresults.Press();
    } catch (const RuntimeError& error) {
      words = error.circumstance();
    }
  };

  window.mnuEditItem.ClickItem(EditItem::Parameters);

  EXPECT_EQ(words, "while the report was made");
}

}  // namespace
}  // namespace orby::test
