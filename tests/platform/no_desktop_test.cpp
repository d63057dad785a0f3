// A program without a desktop: every question is cancelled and nothing opens.
#include "platform/no_desktop.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::IsEmpty;

TEST(WithoutADesktop, EveryMessageIsCancelled) {
  NoMessageBoxes boxes;

  EXPECT_EQ(boxes.Show({}), BoxResult::Cancel);
}

TEST(WithoutADesktop, EveryFileDialogIsCancelled) {
  NoFileDialogs dialogs;

  EXPECT_EQ(ErrorNumberOf([&] { dialogs.AskOpenName({}); }), error_number::Cancelled);
  EXPECT_EQ(ErrorNumberOf([&] { dialogs.AskSaveName({}); }), error_number::Cancelled);
  EXPECT_EQ(ErrorNumberOf([&] { dialogs.AskFolder("Folder", "/"); }), error_number::Cancelled);
}

TEST(WithoutADesktop, ThereIsNoPrinter) {
  NoPrinter printer;

  EXPECT_EQ(ErrorNumberOf([&] { printer.Choose("report"); }), error_number::Printer);
  EXPECT_EQ(ErrorNumberOf([&] { printer.SetUp(); }), error_number::Printer);
  EXPECT_EQ(ErrorNumberOf([&] { printer.PrintPages({"page"}, "Report", "Courier"); }), error_number::Printer);
}

TEST(WithoutADesktop, NoOtherProgramStarts) {
  NoDocuments documents;

  EXPECT_FALSE(documents.Open("/manual.pdf"));
  EXPECT_FALSE(documents.Start("viewer", {}));
  EXPECT_FALSE(documents.RunToEnd("viewer", {}));
  EXPECT_EQ(ErrorNumberOf([&] { documents.OpenSheet({}, "/curve.xlsx"); }), error_number::Automation);
}

TEST(WithoutADesktop, TheHelpDoesNotOpen) {
  NoHelpViewer help;

  EXPECT_FALSE(help.ShowContents("/ORBY.CHM"));
  EXPECT_FALSE(help.ShowIndex("/ORBY.CHM"));
  EXPECT_FALSE(help.ShowTopic("/ORBY.CHM", "frmGraph"));
}

TEST(WithoutADesktop, NothingIsFetched) {
  NoDownloads downloads;

  EXPECT_EQ(downloads.Start({}, {}), nullptr);
  EXPECT_EQ(downloads.CheckedCopy("/setup", "0"), std::nullopt);
}

TEST(WithoutADesktop, ThereAreNeitherFontsNorFoldersOfTheUser) {
  NoFonts fonts;
  NoUserFolders folders;

  EXPECT_THAT(fonts.ScreenFonts(), IsEmpty());
  EXPECT_THAT(fonts.PrinterFonts(), IsEmpty());
  EXPECT_THAT(fonts.FixedPitchFonts(), IsEmpty());
  EXPECT_EQ(folders.Documents(), std::nullopt);
  EXPECT_EQ(folders.Desktop(), std::nullopt);
  EXPECT_EQ(folders.Data(), std::nullopt);
}

}  // namespace
}  // namespace orby::test
