// Opening files in the programs of the desktop. Two scripts stand in for the desktop's tools.
#include "qt/documents.h"

#include <QFile>
#include <QTextStream>

#include "gui/report_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;

// A desktop without any tools. The test adds them.
class FakeDesktop {
 public:
  FakeDesktop() : path_(qgetenv("PATH")) { qputenv("PATH", folder_.path().toUtf8()); }
  ~FakeDesktop() { qputenv("PATH", path_); }
  FakeDesktop(const FakeDesktop&) = delete;
  FakeDesktop& operator=(const FakeDesktop&) = delete;

  // Adds the tool that names the desktop's program for spreadsheets; empty for none.
  void AddTypes(const QString& program) { AddScript("xdg-mime", "echo '" + program + "'"); }
  void AddOpener() { AddScript("xdg-open", "printf '%s' \"$1\" > '" + OpenedFile() + "'"); }
  // Adds a tool that opens the file and runs until the file is closed.
  void AddLastingOpener() { AddScript("xdg-open", "printf '%s' \"$1\" > '" + OpenedFile() + "'; /bin/sleep 3"); }
  void AddFailingOpener() { AddScript("xdg-open", "exit 3"); }

  // Returns the file that was opened last. Waits for it, because the tool runs by itself.
  std::string Opened() const {
    QByteArray opened;
    const auto isThere = [&] {
      QFile file(OpenedFile());
      if (file.open(QIODevice::ReadOnly)) opened = file.readAll();
      return !opened.isEmpty();
    };
    return QTest::qWaitFor(isThere) ? opened.toStdString() : std::string();
  }

  QString File(const QString& name) const { return folder_.filePath(name); }

 private:
  QString OpenedFile() const { return folder_.filePath("opened"); }
  void AddScript(const QString& name, const QString& command) const {
    QFile script(folder_.filePath(name));
    if (!script.open(QIODevice::WriteOnly)) throw std::logic_error("no script");
    QTextStream(&script) << "#!/bin/sh\n" << command << "\n";
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  QTemporaryDir folder_;
  QByteArray path_;
};

class OpeningDocuments : public testing::Test {
 protected:
  // Returns the number and text of the error when a sheet is opened.
  std::pair<int, std::string> ErrorOfSheet() {
    try {
      documents.OpenSheet({"", "Depth of Cover (ft)", "Suggested PSUP", {{"X-coord", "Sug.PSUP", {200}, {3.25}}}},
                          sheet);
      return {};
    } catch (const RuntimeError& error) {
      return {error.number(), std::string(error.description())};
    }
  }

  FakeDesktop desktop;
  const std::string sheet = desktop.File("ORBY curve.xlsx").toStdString();
  QtDocuments documents;
};

TEST_F(OpeningDocuments, PassesAFileToTheDesktop) {
  desktop.AddOpener();

  EXPECT_TRUE(documents.Open("/program/ORBY.PDF"));

  EXPECT_THAT(desktop.Opened(), Eq("/program/ORBY.PDF"));
}

TEST_F(OpeningDocuments, FailsIfTheDesktopHasNoTool) { EXPECT_FALSE(documents.Open("/program/ORBY.PDF")); }

TEST_F(OpeningDocuments, FailsIfTheDesktopHasNoProgramForTheFile) {
  desktop.AddFailingOpener();

  EXPECT_FALSE(documents.Open("/program/ORBY.PDF"));
}

TEST_F(OpeningDocuments, ReturnsWhileTheFileIsStillOpen) {
  desktop.AddLastingOpener();

  EXPECT_TRUE(documents.Open("/program/ORBY.PDF"));

  EXPECT_THAT(desktop.Opened(), Eq("/program/ORBY.PDF"));
}

TEST_F(OpeningDocuments, WritesASheetAndOpensIt) {
  desktop.AddTypes("calc.desktop");
  desktop.AddOpener();

  EXPECT_EQ(ErrorOfSheet().first, 0);

  EXPECT_THAT(desktop.Opened(), Eq(sheet));
  EXPECT_TRUE(QFile::exists(ToQt(sheet)));
}

TEST_F(OpeningDocuments, SaysWhereTheSheetIsIfNoProgramOpensIt) {
  desktop.AddTypes("");
  desktop.AddOpener();

  const auto [number, words] = ErrorOfSheet();

  EXPECT_EQ(number, 429);
  EXPECT_THAT(words, HasSubstr(sheet));
  EXPECT_TRUE(QFile::exists(ToQt(sheet)));
}

TEST_F(OpeningDocuments, SaysWhereTheSheetIsOnADesktopWithoutTools) {
  const auto [number, words] = ErrorOfSheet();

  EXPECT_EQ(number, 429);
  EXPECT_THAT(words, HasSubstr(sheet));
}

// ---- the export of the graph ----------------------------------------------------------------------------------------

class GraphExport : public GraphViewTest {
 protected:
  GraphExport() : GraphViewTest({.documents = &documents}) {
    program.session.folders.ProgramTemporary = desktop.File("").toStdString() + "/";
  }
  // Chooses the item by the arrow keys, because it has no letter.
  void Export() {
    Press(Qt::Key_F, Qt::AltModifier);
    PressInMenu(Qt::Key_Down);
    PressInMenu(Qt::Key_Return);
  }

  FakeDesktop desktop;
  QtDocuments documents;
};

TEST_F(GraphExport, OpensTheCurveInASpreadsheet) {
  desktop.AddTypes("calc.desktop");
  desktop.AddOpener();

  Export();

  const std::string opened = desktop.Opened();
  EXPECT_THAT(opened, testing::EndsWith("/ORBY Suggested PSUP vs Depth of Cover.xlsx"));
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Exported 1 Curve"));
}

TEST_F(GraphExport, SaysWhereTheFileIsWithoutASpreadsheetProgram) {
  platform.boxes.answers = {BoxResult::Cancel};

  Export();

  ASSERT_THAT(platform.boxes.shown, testing::Not(IsEmpty()));
  EXPECT_THAT(platform.boxes.shown[0].text, HasSubstr("ORBY Suggested PSUP vs Depth of Cover.xlsx"));
}

}  // namespace
}  // namespace orby::test
