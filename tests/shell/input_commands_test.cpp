// The commands of the Input menu, and the recovery of a design that is being edited.

#include "dialogs/cost_dialog.h"
#include "dialogs/description_dialog.h"
#include "dialogs/designs_window.h"
#include "dialogs/how_sure_window.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/sheet_window.h"
#include "files/recovery_file.h"
#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

struct InputMenu : MainWindowTest {
  void Choose(EditItem item) { window.mnuEditItem.ClickItem(item); }

  // Plays the user in the next forms.
  template <class Dialog>
  void InDialog(std::function<void(Dialog&)> user) {
    platform.windows.onModal = [user = std::move(user)](Form& form) { user(dynamic_cast<Dialog&>(form)); };
  }

  // Types a text, and then notifies the form as the view does after each action.
  static void Type(Form& form, TextBox& box, const std::string& text) {
    box.SetText(text);
    form.Acted();
  }

  std::optional<UnsavedProject> Kept() {
    return Exists(RecoveryPath) ? ReadRecovery(FileAt(RecoveryPath)) : std::nullopt;
  }
};

TEST_F(InputMenu, ShowsEachDialog) {
  std::vector<std::string> names;
  platform.windows.onModal = [&](Form& form) { names.emplace_back(form.Name()); };

  for (const EditItem item : {EditItem::Description, EditItem::Parameters, EditItem::Cost}) Choose(item);
  window.Toolbar1.ClickItem(ToolButton::Description);
  window.Toolbar1.ClickItem(ToolButton::Parameters);

  EXPECT_THAT(names, ElementsAre("frmTULKDesc", "frmPENVParm", "frmTULKCost", "frmTULKDesc", "frmPENVParm"));
}

TEST_F(InputMenu, IsNotNeededForAStudyWhichOpensTheParametersItself) {
  std::vector<std::string> names;
  platform.windows.onModal = [&](Form& form) {
    names.emplace_back(form.Name());
    if (form.Name() == "frmPENVParm") platform.clock.Pass();
  };

  window.mnuStudyItem.ClickItem(StudyItem::WhatWouldHold);

  EXPECT_THAT(names, ElementsAre("frmPENVParm", "frmWouldHold"));
}

TEST_F(InputMenu, ShowsTheCalculationSheetOfTheProject) {
  std::vector<std::string> names;
  std::string firstPage;
  platform.windows.onModal = [&](Form& form) {
    names.emplace_back(form.Name());
    firstPage = dynamic_cast<SheetWindow&>(form).picPages.Words();
  };

  window.mnuStudyItem.ClickItem(StudyItem::CalculationSheet);

  EXPECT_THAT(names, ElementsAre("frmSheet"));
  EXPECT_THAT(firstPage, StartsWith("Calculation sheet "));
}

TEST_F(InputMenu, SaysWhyAProjectHasNoCalculationSheet) {
  program.project.WorkParms.Primary.Options = BoltSource{7};
  platform.windows.onModal = [&](Form& form) { ADD_FAILURE() << form.Name() << " was shown"; };

  window.mnuStudyItem.ClickItem(StudyItem::CalculationSheet);

  EXPECT_THAT(platform.boxes.Texts(), Not(IsEmpty()));
}

TEST_F(InputMenu, KeepsTheInputsOfAStudyOfANewProjectUntilTheProgramEnds) {
  std::vector<int> rows;
  platform.windows.onModal = [&](Form& form) {
    auto& shown = dynamic_cast<HowSureWindow&>(form);
    rows.push_back(shown.grdInputs.Rows());
    shown.Second.Field.SetText("4");
    shown.cmdAdd.Press();
  };

  window.mnuStudyItem.ClickItem(StudyItem::HowSure);
  window.mnuStudyItem.ClickItem(StudyItem::HowSure);

  EXPECT_THAT(rows, ElementsAre(1, 2));
}

TEST_F(InputMenu, OpensTheProjectThatWasChosenAmongTheDesignsOfAFolder) {
  EditPanel3();
  InDialog<DesignsWindow>([](DesignsWindow& designs) { designs.Chosen = Panel4; });

  window.mnuStudyItem.ClickItem(StudyItem::DesignsInFolder);

  EXPECT_EQ(program.project.CurrentFile, Panel4);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 980);
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Save changes to: " + Panel3 + "?"));
}

TEST_F(InputMenu, LeavesTheProjectIfNoneOfTheDesignsIsChosen) {
  EditPanel3();
  InDialog<DesignsWindow>([](DesignsWindow& designs) { designs.Close(); });

  window.mnuStudyItem.ClickItem(StudyItem::DesignsInFolder);

  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 800);
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(InputMenu, OpensNoStudyAfterTheParametersHaveClosed) {
  std::vector<std::string> names;
  platform.windows.onModal = [&](Form& form) { names.emplace_back(form.Name()); };

  window.mnuStudyItem.ClickItem(StudyItem::WhatWouldHold);
  platform.clock.Pass();

  EXPECT_THAT(names, ElementsAre("frmPENVParm"));
}

TEST_F(InputMenu, HidesTheMainWindowWhileTheParametersAreOpen) {
  bool shown = true;
  bool waiting = true;
  InDialog<ParametersDialog>([&](ParametersDialog&) {
    shown = platform.windows.mainWindowShown;
    waiting = platform.windows.waitCursor;
  });

  Choose(EditItem::Parameters);

  EXPECT_FALSE(shown);
  EXPECT_FALSE(waiting);
  EXPECT_TRUE(platform.windows.mainWindowShown);
}

TEST_F(InputMenu, KeepsTheMainWindowWhileTheDescriptionIsOpen) {
  bool shown = false;
  InDialog<DescriptionDialog>([&](DescriptionDialog&) { shown = platform.windows.mainWindowShown; });

  Choose(EditItem::Description);

  EXPECT_TRUE(shown);
  EXPECT_FALSE(platform.windows.waitCursor);
}

// Records each change of the cursor.
struct CursorWindows : RecordingWindows {
  void SetWaitCursor(bool waiting) override {
    cursors.push_back(waiting);
    RecordingWindows::SetWaitCursor(waiting);
  }

  std::vector<bool> cursors;
};

TEST_F(InputMenu, ShowsTheWaitCursorWhileADialogIsLoaded) {
  CursorWindows windows;
  Program waited = StartedProgram(platform.AsPlatformWith(windows));
  MainWindow other(waited);
  bool isWaiting = true;
  windows.onModal = [&](Form&) { isWaiting = windows.waitCursor; };

  for (const EditItem item : {EditItem::Description, EditItem::Parameters, EditItem::Cost}) {
    windows.cursors.clear();
    other.mnuEditItem.ClickItem(item);

    ASSERT_FALSE(windows.cursors.empty()) << NumberOf(item);
    EXPECT_TRUE(windows.cursors.front()) << NumberOf(item);
    EXPECT_FALSE(isWaiting) << NumberOf(item);
  }
}

TEST_F(InputMenu, MarksACommittedChangeInTheCaption) {
  InDialog<CostDialog>([](CostDialog& dialog) { dialog.Command2.Press(); });

  Choose(EditItem::Cost);

  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: Untitled*");
}

TEST_F(InputMenu, KeepsTheCaptionAfterCancel) {
  InDialog<CostDialog>([](CostDialog& dialog) { dialog.Command1.Press(); });

  Choose(EditItem::Cost);

  EXPECT_EQ(window.Caption(), "Orby Roof Support Workbench: Untitled");
}

TEST_F(InputMenu, OpensTheParametersAfterTheDescriptionsNextForm) {
  std::vector<std::string> names;
  platform.windows.onModal = [&](Form& form) {
    names.emplace_back(form.Name());
    if (auto* dialog = dynamic_cast<DescriptionDialog*>(&form)) dialog->Command4.Press();
  };

  Choose(EditItem::Description);

  EXPECT_THAT(names, ElementsAre("frmTULKDesc", "frmPENVParm"));
}

TEST_F(InputMenu, OpensTheDialogThatTheResultsReturnTo) {
  std::vector<std::string> names;
  platform.windows.onModal = [&](Form& form) { names.emplace_back(form.Name()); };

  program.windows.OpenInputDialog(InputDialog::Parameters);
  program.windows.OpenInputDialog(InputDialog::Cost);

  EXPECT_THAT(names, ElementsAre("frmPENVParm", "frmTULKCost"));
}

TEST_F(InputMenu, IsNotReturnedToAfterItsWindowIsDestroyed) {
  Program other = StartedProgram(platform);
  { const MainWindow gone(other); }

  EXPECT_FALSE(other.windows.OpenInputDialog);
  EXPECT_FALSE(other.session.history.Changed);
}

TEST_F(InputMenu, ShowsADesignWithoutADepth) {
  program.project.WorkParms.Place.DepthofCover = 0;
  InDialog<ParametersDialog>([](ParametersDialog& dialog) { EXPECT_EQ(dialog.txtSugPSUP.Text(), "--"); });

  Choose(EditItem::Parameters);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

TEST_F(InputMenu, ReportsADesignThatCannotBeShownAndContinues) {
  program.project.WorkParms.Primary.Options = BoltSource{2};

  Choose(EditItem::Parameters);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error: SetArrayIndex. Check input/form data.",
                                                  "Error occurred: Subscript out of range (9). Procedure Terminated"));
  EXPECT_TRUE(platform.windows.mainWindowShown);
  EXPECT_FALSE(program.windows.DialogOpen);
}

TEST_F(InputMenu, ReportsADescriptionThatCannotBeShownAndContinues) {
  program.project.WorkParms.Basis = StrengthBasis{-1};

  Choose(EditItem::Description);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error: SetArrayIndex. Check input/form data.",
                                                  "Error occurred: Subscript out of range (9). Procedure Terminated"));
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(InputMenu, ReportsAnOpenedDesignThatCannotBeShown) {
  program.session.options.ShowInputScreenOnLoad = 1;
  Program other(platform.AsPlatform());
  StartApart(other, nullptr);
  other.project.WorkParms.Primary.Options = BoltSource{2};
  platform.files.files[Panel3] = ProjectFileBytes(other.project);

  OpenByDialog(Panel3);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error: SetArrayIndex. Check input/form data.",
                                                  "Error occurred: Subscript out of range (9). Procedure Terminated"));
  EXPECT_EQ(program.project.CurrentFile, Panel3);
  EXPECT_TRUE(platform.windows.mainWindowShown);
  EXPECT_FALSE(program.windows.DialogOpen);
}

// ---- unsaved work ---------------------------------------------------------------------------------------------------

struct EditedWork : InputMenu {};

TEST_F(EditedWork, IsKeptAsSoonAsItIsCommitted) {
  OpenByDialog(Panel3);
  InDialog<ParametersDialog>([](ParametersDialog& dialog) {
    dialog.txtDepthofCover.SetText("810");
    dialog.Command2.Press();
  });

  Choose(EditItem::Parameters);

  ASSERT_TRUE(Kept().has_value());
  EXPECT_EQ(Kept()->WorkParms.Place.DepthofCover, 810);
  EXPECT_EQ(Kept()->CurrentFile, Panel3);
}

TEST_F(EditedWork, OfAnOpenDialogIsKeptWithinASecond) {
  InDialog<ParametersDialog>([&](ParametersDialog& dialog) {
    Type(dialog, dialog.txtDepthofCover, "81");
    Type(dialog, dialog.txtDepthofCover, "810");
    EXPECT_FALSE(Kept().has_value());
    platform.clock.Pass();
    ASSERT_TRUE(Kept().has_value());
    EXPECT_EQ(Kept()->WorkParms.Place.DepthofCover, 810);
    EXPECT_FALSE(Kept()->FileEmpty);
    EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400) << "nothing is committed";
  });

  Choose(EditItem::Parameters);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

TEST_F(EditedWork, OfTheCostDialogIsKeptWithinASecond) {
  InDialog<CostDialog>([&](CostDialog& dialog) {
    Type(dialog, dialog.txtBoltCost, "4.25");
    platform.clock.Pass();
    ASSERT_TRUE(Kept().has_value());
    EXPECT_EQ(Kept()->WorkParms.Cost.BoltCost, 4.25F);
  });

  Choose(EditItem::Cost);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

TEST_F(EditedWork, IsNotKeptIfTheUserChangesNothing) {
  OpenByDialog(Panel3);
  InDialog<ParametersDialog>([&](ParametersDialog& dialog) {
    dialog.SSTab1.ClickTab(0);
    dialog.Acted();
    platform.clock.Pass();
    EXPECT_FALSE(Kept().has_value());
  });

  Choose(EditItem::Parameters);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

TEST_F(EditedWork, IsKeptAsItWasBeforeTheActionThatEndsTheRun) {
  InDialog<ParametersDialog>([&](ParametersDialog& dialog) {
    Type(dialog, dialog.txtDepthofCover, "810");
    dialog.txtStabilityFactor.SetText("1E38");
    dialog.chkPrimSupport.SetValue(1);
    dialog.cmdresults.Press();  // throws, so the view does not notify the form
  });

  EXPECT_EQ(ErrorNumberOf([&] { Choose(EditItem::Parameters); }), 6);
  window.LeaveAtOnce();

  ASSERT_TRUE(Kept().has_value());
  EXPECT_EQ(Kept()->WorkParms.Place.DepthofCover, 810);
  EXPECT_EQ(Kept()->WorkParms.Primary.StabilityFactor, 1);
}

TEST_F(EditedWork, KeepsTheLastValidNumberOfEachField) {
  InDialog<ParametersDialog>([&](ParametersDialog& dialog) {
    Type(dialog, dialog.txtDepthofCover, "810");
    Type(dialog, dialog.txtCMRR, "52");
    Type(dialog, dialog.txtCMRR, "99999");
    Type(dialog, dialog.txtEntryWidth, "1E40");
    Type(dialog, dialog.txtUnitWeight, "158");
    platform.clock.Pass();
    ASSERT_TRUE(Kept().has_value());
    EXPECT_EQ(Kept()->WorkParms.Place.DepthofCover, 810);
    EXPECT_EQ(Kept()->WorkParms.Place.CMRR, 52);
    EXPECT_EQ(Kept()->WorkParms.Place.EntryWidth, 20);
    EXPECT_EQ(Kept()->WorkParms.Place.UnitWeight, 158);
  });

  Choose(EditItem::Parameters);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

TEST_F(EditedWork, IsDiscardedWithACancelledDialog) {
  OpenByDialog(Panel3);
  InDialog<ParametersDialog>([&](ParametersDialog& dialog) {
    Type(dialog, dialog.txtDepthofCover, "810");
    platform.clock.Pass();
    ASSERT_TRUE(Kept().has_value());
    Type(dialog, dialog.txtDepthofCover, "820");
    dialog.Command1.Press();
    dialog.Acted();
  });

  Choose(EditItem::Parameters);
  platform.clock.Pass();

  EXPECT_FALSE(Exists(RecoveryPath));
}

TEST_F(EditedWork, OfTheDescriptionIsKeptWithItsTitle) {
  InDialog<DescriptionDialog>([](DescriptionDialog& dialog) {
    dialog.Text1.SetText("Panel 3, gateroad");
    dialog.Text2.SetText("North mains\r\n\r\n  as driven");
    dialog.Command2.Press();
  });

  Choose(EditItem::Description);

  ASSERT_TRUE(Kept().has_value());
  EXPECT_EQ(Kept()->ProjectTitle, "Panel 3, gateroad");
  EXPECT_EQ(Kept()->ProjectDescription, "North mains\r\n\r\n  as driven");
}

}  // namespace
}  // namespace orby::test
