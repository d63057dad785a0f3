// Printing to a real PDF file.
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <algorithm>

#include "gui/pdf_bench.h"
#include "gui/report_bench.h"
#include "qt/printer.h"
#include "qt/surroundings.h"
#include "reports/printing.h"

namespace orby::test {
namespace {

using testing::EndsWith;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// A desktop without any printer.
struct NoPrinters {
  NoPrinters() { qputenv("CUPS_SERVER", "/nowhere/cups.sock"); }
};

class Printing : private NoPrinters, public ReportTest {
 protected:
  Printing() : ReportTest({.printer = &printer}) {
    program.session.settings.ShortRecentFiles = 1;
    program.project.CurrentFile = "/designs/panel3.orb";
  }

  // Makes all later prints go to this file.
  void PrintToFile() {
    printer.Device().setOutputFormat(QPrinter::PdfFormat);
    printer.Device().setOutputFileName(path);
  }

  QTemporaryDir folder;
  const QString path = folder.filePath("report.pdf");
  QtPrinter printer;
};

// Returns a picture of the first page with this number of dots per inch.
QImage Rendered(const QString& path, int resolution) {
  QImage picture;
  const std::string bytes = Answer("pdftoppm", {"-r", QString::number(resolution), "-f", "1", "-l", "1", path});
  picture.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
  return picture;
}

// Returns the part of the picture that is not white.
QRect InkOn(const QImage& picture) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y).lightness() < 128) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

std::string NumberedLines(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += "Line " + std::to_string(i) + " of the report\r\n";
  return text;
}

TEST_F(Printing, LaysWidePagesAcrossThePaper) {
  PrintToFile();
  const SceneLabel label{.Text = "Designs side by side", .At = {100, 100}};

  printer.PrintScenes({{.Width = 842, .Height = 595, .Outlines = {}, .Labels = {label}}}, "wide");
  printer.PrintScenes({{.Width = 595, .Height = 842, .Outlines = {}, .Labels = {label}}}, "upright");

  const QImage wide = Rendered(path, 30);
  EXPECT_GT(wide.width(), wide.height());
  const QImage upright = Rendered(folder.filePath("report (2).pdf"), 30);
  EXPECT_LT(upright.width(), upright.height());
}

TEST_F(Printing, PrintsEveryLineAsText) {
  PrintToFile();

  PrintText(program, NumberedLines(40));

  const std::vector<std::string> pages = PdfPages(path);
  ASSERT_THAT(pages, testing::SizeIs(1));
  for (int i = 1; i <= 40; ++i) {
    EXPECT_THAT(pages[0], HasSubstr("Line " + std::to_string(i) + " of the report\n"));
  }
}

TEST_F(Printing, PrintsAHeaderOnEachPage) {
  PrintToFile();

  PrintText(program, NumberedLines(130));

  const std::vector<std::string> pages = PdfPages(path);
  ASSERT_THAT(pages, testing::SizeIs(3));
  for (int page = 1; page <= 3; ++page) {
    const std::string& text = pages[static_cast<std::size_t>(page - 1)];
    EXPECT_THAT(text, HasSubstr("File Name: panel3.orb"));
    EXPECT_THAT(text, HasSubstr("Page: " + std::to_string(page) + "\n"));
    EXPECT_THAT(text, HasSubstr("Current Units: ft, in, lbs, psi, pcf"));
    EXPECT_THAT(text, HasSubstr("Date/Time: 3/9/2031\n"));
    EXPECT_THAT(text, HasSubstr("Orby Roof Support Workbench, Version: 1.0.00"));
  }
  EXPECT_THAT(pages[1], HasSubstr("Line 56 of the report\n"));
  EXPECT_THAT(pages[2], HasSubstr("Line 130 of the report\n"));
}

// If none of the wanted fonts exists, columns are still aligned.
TEST(PrinterFonts, BeginWithAMonospacedFont) {
  const std::vector<std::string> names = QtFonts().PrinterFonts();

  ASSERT_FALSE(names.empty());
  const QFontMetricsF metrics(QFont(QString::fromStdString(names.front())));
  EXPECT_EQ(metrics.horizontalAdvance("iiiiiiii"), metrics.horizontalAdvance("WWWWWWWW"));
}

TEST(ScreenFonts, BeginWithTheDesktopsOwnFont) {
  const std::vector<std::string> names = QtFonts().ScreenFonts();

  ASSERT_FALSE(names.empty());
  EXPECT_EQ(names.front(), QApplication::font().family().toStdString());
}

TEST_F(Printing, FitsTheWholeWidthOfALineOnThePaper) {
  PrintToFile();
  const std::string widest = std::string(77, '-') + "|";

  PrintText(program, widest + "\r\n");

  EXPECT_THAT(PdfPages(path).at(0), HasSubstr(widest));
}

// Prints the graph of three points.
class ChartPrinting : public Printing {
 protected:
  ChartPrinting() {
    PrintToFile();
    program.windows.curve.CurvePoints[0] = {200, 240, 300};
    program.windows.curve.CurvePoints[1] = {3.25F, 4.5F, 5.75F};
    program.windows.curve.CurvePointCount = 3;
    graph.ShowCurve(1);
    Settle();
  }
  ~ChartPrinting() override {
    graph.Close();
    Settle();
  }

  GraphWindow graph{program};
};

TEST_F(ChartPrinting, PrintsTheTitlesAsText) {
  printer.PrintChart(graph.graph1, {"Suggested PSUP"});

  const std::vector<std::string> pages = PdfPages(path);
  ASSERT_THAT(pages, testing::SizeIs(1));
  EXPECT_THAT(pages[0], HasSubstr("Depth of Cover (ft)"));
  EXPECT_THAT(pages[0], HasSubstr("Sug.PSUP"));
}

TEST_F(ChartPrinting, PrintsItsHeadingAboveTheChart) {
  program.project.ProjectTitle = "Belt entry of panel 3";

  printer.PrintChart(graph.graph1, ChartHeading(program, "Suggested PSUP vs Depth of Cover"));

  const std::string page = PdfPages(path).at(0);
  EXPECT_LT(page.find("Suggested PSUP vs Depth of Cover"), page.find("File Name: panel3.orb - Belt entry of panel 3"));
  EXPECT_LT(page.find("File Name: panel3.orb - Belt entry of panel 3"), page.find("Date/Time: 3/9/2031"));
  EXPECT_LT(page.find("Date/Time: 3/9/2031"), page.find("Depth of Cover (ft)"));
}

TEST_F(ChartPrinting, KeepsTheSizeOfALaterReport) {
  PrintText(program, NumberedLines(40));
  const QImage before = Rendered(path, 60);
  printer.Device().setOutputFileName(folder.filePath("chart.pdf"));
  printer.PrintChart(graph.graph1, {"Suggested PSUP"});
  const QString after = folder.filePath("after.pdf");
  printer.Device().setOutputFileName(after);

  PrintText(program, NumberedLines(40));

  EXPECT_FALSE(before.isNull());
  EXPECT_EQ(Rendered(after, 60), before);
}

TEST_F(ChartPrinting, NamesTheChartInTheProperties) {
  printer.PrintChart(graph.graph1, {"Suggested PSUP vs Depth of Cover"});

  EXPECT_THAT(Answer("pdfinfo", {path}), testing::ContainsRegex("Title: +Suggested PSUP vs Depth of Cover\n"));
}

TEST_F(Printing, NamesProjectAndProgramInTheProperties) {
  PrintToFile();
  program.project.ProjectTitle = " Belt entry of panel 3 ";

  PrintText(program, "A line\r\n");

  const std::string properties = Answer("pdfinfo", {path});
  EXPECT_THAT(properties, testing::ContainsRegex("Title: +panel3.orb - Belt entry of panel 3\n"));
  EXPECT_THAT(properties, testing::ContainsRegex("Creator: +Orby Roof Support Workbench 1.0.00\n"));
}

TEST_F(Printing, LeavesAMarginAroundFullSheets) {
  PrintToFile();
  const std::string widest = std::string(78, 'W') + "\r\n";
  std::string text;
  for (int line = 0; line < 55; ++line) text += widest;

  PrintText(program, text);

  const QImage sheet = Rendered(path, 254);  // ten dots per millimetre
  const QRect ink = InkOn(sheet);
  EXPECT_THAT(PdfPages(path), testing::SizeIs(1));
  EXPECT_GE(ink.left(), 199);
  EXPECT_LE(ink.left(), 210);
  EXPECT_GE(sheet.width() - 1 - ink.right(), 199);
  EXPECT_GE(ink.top(), 149);
  EXPECT_LE(ink.top(), 180);
  EXPECT_GE(sheet.height() - 1 - ink.bottom(), 149);
}

TEST_F(Printing, TurnsThePaperForAWidePageOnly) {
  PrintToFile();
  const Scene wide{.Width = 842, .Height = 595, .Outlines = {}, .Labels = {{.Text = "the wall", .At = {400, 300}}}};
  const Scene upright{.Width = 595, .Height = 842, .Outlines = {}, .Labels = {{.Text = "a sheet", .At = {300, 400}}}};

  printer.PrintScenes({wide}, "chart");
  printer.PrintScenes({upright}, "sheet");

  const QImage chart = Rendered(path, 20);
  const QImage sheet = Rendered(folder.filePath("report (2).pdf"), 20);
  EXPECT_GT(chart.width(), chart.height());
  EXPECT_GT(sheet.height(), sheet.width());
}

TEST_F(Printing, UsesANewNameIfTheUserDidNotConfirmTheReplacement) {
  PrintToFile();
  PrintText(program, "The first report\r\n");

  const std::string second = PrintText(program, "The second report\r\n");
  const std::string third = PrintText(program, "The third report\r\n");

  EXPECT_EQ(second, folder.filePath("report (2).pdf").toStdString());
  EXPECT_EQ(third, folder.filePath("report (3).pdf").toStdString());
  EXPECT_THAT(PdfPages(path).at(0), HasSubstr("The first report"));
  EXPECT_THAT(PdfPages(folder.filePath("report (2).pdf")).at(0), HasSubstr("The second report"));
}

TEST_F(Printing, ReplacesTheFileThatTheUserConfirmedInTheDialog) {
  PrintToFile();
  PrintText(program, "The first report\r\n");
  scripts.Add([&](QDialog& dialog) {
    // The dialog asks about an existing file by its name only, so the file is moved away.
    QFile::rename(path, folder.filePath("away.pdf"));
    dialog.accept();
  });
  printer.Choose("report");
  QFile::rename(folder.filePath("away.pdf"), path);

  EXPECT_EQ(PrintText(program, "The second report\r\n"), path.toStdString());
  EXPECT_THAT(PdfPages(path).at(0), HasSubstr("The second report"));
}

// The user accepts the dialog with the suggested name.
struct ChosenPrinting : Printing {
  void Choose(const std::string& fileName) {
    scripts.Add([](QDialog& dialog) { dialog.accept(); });
    printer.Choose(fileName);
  }
  std::string PathOf(const QString& name) const { return folder.filePath(name).toStdString(); }
};

TEST_F(ChosenPrinting, OfAnotherCommandDoesNotReplaceAChosenFileThatWasNotPrinted) {
  PrintToFile();
  Choose("panel3");
  QFile file(folder.filePath("panel3.pdf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();

  printer.ChooseAsBefore("panel3");

  EXPECT_EQ(PrintText(program, "A line\r\n"), PathOf("panel3 (2).pdf"));
}

TEST_F(ChosenPrinting, OfAnotherProjectUsesThatProjectsName) {
  PrintToFile();
  Choose("panel3");
  PrintText(program, "A line\r\n");

  printer.ChooseAsBefore("panel4");

  EXPECT_EQ(PrintText(program, "A line\r\n"), PathOf("panel4.pdf"));
}

TEST_F(ChosenPrinting, KeepsANameFromThePrinterSetup) {
  PrintToFile();
  Choose("panel3");
  scripts.Add([](QDialog& dialog) { dialog.accept(); });
  printer.SetUp();

  printer.ChooseAsBefore("panel4");

  EXPECT_EQ(PrintText(program, "A line\r\n"), PathOf("panel3.pdf"));
}

TEST_F(Printing, SuggestsTheProjectsNameInTheFolderOfTheLastFile) {
  PrintToFile();
  QString proposed;
  scripts.Add([&](QDialog& dialog) {
    for (const auto* field : dialog.findChildren<QLineEdit*>()) {
      if (field->text().endsWith(".pdf")) proposed = field->text();
    }
    dialog.reject();
  });

  EXPECT_EQ(ErrorNumberOf([&] { printer.Choose("panel 3.5"); }), 32755);

  EXPECT_EQ(proposed, folder.filePath("panel 3.5.pdf"));
  EXPECT_EQ(printer.Device().outputFileName(), path);
}

TEST_F(Printing, PrintsTheSecondReportToItsOwnFile) {
  PrintToFile();
  PrintText(program, "The first report\r\n");
  printer.Device().setOutputFileName(folder.filePath("second.pdf"));

  PrintText(program, "The second report\r\n");

  EXPECT_THAT(PdfPages(path).at(0), HasSubstr("The first report"));
  EXPECT_THAT(PdfPages(folder.filePath("second.pdf")).at(0), Not(HasSubstr("The first report")));
}

TEST_F(Printing, FailsWithoutAPrinter) {
  EXPECT_EQ(ErrorNumberOf([&] { PrintText(program, "A line\r\n"); }), 482);
}

TEST_F(Printing, FailsIfTheFileCannotBeWritten) {
  printer.Device().setOutputFormat(QPrinter::PdfFormat);
  printer.Device().setOutputFileName(folder.filePath("missing/report.pdf"));

  EXPECT_EQ(ErrorNumberOf([&] { PrintText(program, "A line\r\n"); }), 482);
}

TEST_F(Printing, IsCancelledInItsDialog) {
  scripts.Add([](QDialog& window) {
    EXPECT_NE(qobject_cast<QPrintDialog*>(&window), nullptr);
    window.reject();
  });

  EXPECT_EQ(ErrorNumberOf([&] { printer.Choose("panel3"); }), 32755);
}

TEST_F(Printing, RecordsInTheHistoryThatItWasCancelled) {
  scripts.Add([&](QDialog& results) {
    scripts.Add([](QDialog& dialog) { dialog.reject(); });
    PressLetterOf(results, "Command3");
    results.close();
  });

  ShowResults(program);

  EXPECT_THAT(program.session.history.Text, HasSubstr("Current page printed\r\n"));
  EXPECT_THAT(program.session.history.Text, EndsWith("Printing aborted\r\n"));
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(Printing, PrintsAllPagesOfTheResultsThroughItsDialog) {
  PrintToFile();
  scripts.Add([&](QDialog& results) {
    scripts.Add([](QDialog& dialog) { dialog.accept(); });
    PressLetterOf(results, "Command6");
    results.close();
  });

  ShowResults(program);

  std::string text;
  for (const std::string& page : PdfPages(folder.filePath("panel3.pdf"))) text += page;
  EXPECT_THAT(text, HasSubstr("[GEOLOGY PARAMETERS]\n"));
  EXPECT_THAT(text, HasSubstr("[ORBY CALCULATIONS]\n"));
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

}  // namespace
}  // namespace orby::test
