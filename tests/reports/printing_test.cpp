#include "reports/printing.h"

#include <gmock/gmock.h>

#include "reports/calculation_report.h"
#include "reports/designs.h"
#include "reports/golden_designs.h"
#include "reports/input_echo.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::SizeIs;

constexpr std::size_t TextLines = 55;  // below the header

std::string LinesNumbered(std::size_t count) {
  std::string text;
  for (std::size_t i = 1; i <= count; ++i) text += "line " + std::to_string(i) + "\r\n";
  return text;
}

std::vector<std::string> TextOn(const std::string& sheet) {
  const std::vector<std::string> lines = LinesOf(sheet);
  return {lines.begin() + 5, lines.end()};
}

TEST(Printing, HasAHeaderOnEverySheet) {
  Desk desk;
  desk.program.project.CurrentFile = "/designs/belt-entry-trusses.ORB";
  desk.machine.clock.today = {2031, 12, 31};

  const auto sheets = PrintSheets(desk.program, LinesNumbered(TextLines + 1));

  ASSERT_THAT(sheets, SizeIs(2));
  EXPECT_EQ(sheets[1],
            "File Name: belt-entry-trusses.ORB                                      Page: 2\r\n"
            "Current Units: ft, in, lbs, psi, pcf                     Date/Time: 12/31/2031\r\n"
            "Orby Roof Support Workbench, Version: 1.0.00\r\n"
            "------------------------------------------------------------------------------\r\n"
            "\r\n"
            "line 56\r\n");
}

TEST(Printing, ShowsMetricUnitsAndADayOfOneDigit) {
  Desk desk(Metric);
  desk.machine.clock.today = {2031, 3, 9};

  const auto sheets = PrintSheets(desk.program, "roof bolts\r\n");

  EXPECT_THAT(
      LinesOf(sheets.at(0)),
      ElementsAre("File Name: Untitled                                                    Page: 1",
                  "Current Units: m, cm, kN, MPa, kN/m3                       Date/Time: 3/9/2031",
                  "Orby Roof Support Workbench, Version: 1.0.00",
                  "------------------------------------------------------------------------------", "", "roof bolts"));
}

TEST(Printing, ShortensALongFileNameBeforeThePageNumber) {
  Desk desk;
  desk.program.project.CurrentFile = "/designs/northern panel three, second headgate, revised after the fall.ORB";

  const auto sheets = PrintSheets(desk.program, {});

  EXPECT_EQ(LinesOf(sheets.at(0))[0], "File Name: northern p... headgate, revised after the fall.ORB          Page: 1");
}

TEST(Printing, HasSixtyLinesOnAFullSheet) {
  Desk desk;

  const auto full = PrintSheets(desk.program, LinesNumbered(TextLines));
  const auto over = PrintSheets(desk.program, LinesNumbered(2 * TextLines + 1));

  ASSERT_THAT(full, SizeIs(1));
  EXPECT_THAT(LinesOf(full[0]), SizeIs(60));
  ASSERT_THAT(over, SizeIs(3));
  EXPECT_THAT(LinesOf(over[1]), SizeIs(60));
  EXPECT_EQ(TextOn(over[1]).front(), "line 56");
  EXPECT_THAT(TextOn(over[2]), ElementsAre("line 111"));
}

TEST(Printing, HasOnlyAHeaderForAnEmptyText) {
  Desk desk;

  const auto sheets = PrintSheets(desk.program, {});

  ASSERT_THAT(sheets, SizeIs(1));
  EXPECT_THAT(LinesOf(sheets[0]), SizeIs(5));
}

TEST(Printing, KeepsEmptyLinesAndALastLineWithoutAnEnd) {
  Desk desk;

  const auto sheets = PrintSheets(desk.program, "\r\n[GEOLOGY]\r\n\r\nCMRR");

  EXPECT_THAT(TextOn(sheets.at(0)), ElementsAre("", "[GEOLOGY]", "", "CMRR"));
}

TEST(Printing, ContinuesATooWideLineOnTheNextLine) {
  Desk desk;
  const std::string wide = std::string(77, 'x') + "\xC3\xA9" + "rest of the title";

  const auto sheets = PrintSheets(desk.program, wide + "\r\n" + std::string(78, 'y') + "\r\n");

  EXPECT_THAT(TextOn(sheets.at(0)),
              ElementsAre(std::string(77, 'x') + "\xC3\xA9", "rest of the title", std::string(78, 'y')));
}

// Returns the text on the last sheet.
std::vector<std::string> LastSheet(const Desk& desk, const std::string& text) {
  return TextOn(PrintSheets(desk.program, text).back());
}

TEST(Printing, MovesAHeadingInTheLastLineToTheNextSheet) {
  Desk desk;

  const auto sheets = PrintSheets(desk.program, LinesNumbered(TextLines - 1) + "[GEOLOGY PARAMETERS]\r\nCMRR\r\n");

  ASSERT_THAT(sheets, SizeIs(2));
  EXPECT_EQ(TextOn(sheets[0]).back(), "line 54");
  EXPECT_THAT(TextOn(sheets[1]), ElementsAre("[GEOLOGY PARAMETERS]", "CMRR"));
}

TEST(Printing, KeepsAHeadingOnASheetWithRoomForTheLineBelowIt) {
  Desk desk;

  const auto sheets = PrintSheets(desk.program, LinesNumbered(TextLines - 2) + "[GEOLOGY PARAMETERS]\r\nCMRR\r\n");

  ASSERT_THAT(sheets, SizeIs(1));
  EXPECT_EQ(TextOn(sheets[0]).back(), "CMRR");
}

TEST(Printing, KeepsSuccessiveHeadingsWithTheLineBelowThem) {
  Desk desk;
  const std::string headings = "[ORBY CALCULATIONS]\r\n\r\n[INTERSECTION SPAN INFORMATION]\r\nSpan\r\n";

  EXPECT_THAT(LastSheet(desk, LinesNumbered(TextLines - 3) + headings),
              ElementsAre("[ORBY CALCULATIONS]", "", "[INTERSECTION SPAN INFORMATION]", "Span"));
  EXPECT_THAT(PrintSheets(desk.program, LinesNumbered(TextLines - 4) + headings), SizeIs(1));
}

TEST(Printing, StartsANewSheetForHeadingsThatJustFillItWithTheLineBelowThem) {
  Desk desk;
  std::string headings;
  for (std::size_t i = 1; i < TextLines; ++i) headings += "[Panel]\r\n";

  const auto filled = PrintSheets(desk.program, "line 1\r\n" + headings + "CMRR\r\n");
  ASSERT_THAT(filled, SizeIs(2));
  EXPECT_THAT(TextOn(filled[0]), ElementsAre("line 1"));
  EXPECT_EQ(TextOn(filled[1]).back(), "CMRR");

  const auto overfilled = PrintSheets(desk.program, "line 1\r\n" + headings + "[Panel]\r\nCMRR\r\n");
  EXPECT_EQ(TextOn(overfilled[0]).at(1), "[Panel]") << "they do not fit on one sheet";
}

TEST(Printing, FillsItsSheetsWithATextOfOnlyHeadings) {
  Desk desk;
  std::string text;
  for (std::size_t i = 0; i < 2 * TextLines; ++i) text += "[Panel]\r\n";

  EXPECT_THAT(PrintSheets(desk.program, text), SizeIs(2));
}

TEST(Printing, OffersTheNameOfTheFileWithoutItsExtension) {
  Desk desk;
  EXPECT_EQ(PrintedName(desk.program.project), "Untitled");

  desk.program.project.CurrentFile = "/designs/panel 3.5.ORB";
  EXPECT_EQ(PrintedName(desk.program.project), "panel 3.5");
}

TEST(Printing, NamesThePrintByFileAndTitle) {
  Desk desk;
  desk.program.project.CurrentFile = "/designs/weak-roof.ORB";
  desk.program.project.ProjectTitle = "  Headgate 4 ";

  PrintText(desk.program, "roof bolts\r\n");

  EXPECT_EQ(desk.machine.printer.title, "weak-roof.ORB - Headgate 4");
}

TEST(Printing, NamesThePrintByTheTypedTitleAfterOpeningHasShiftedIt) {
  Desk desk;
  desk.program.project.CurrentFile = "/designs/weak-roof.ORB";
  desk.program.project.ProjectTitle = " 0 ";
  desk.program.project.ProjectDescription = "Headgate 4\r\n##StartDesc##\r\nBelt entry\r\n";

  PrintText(desk.program, "roof bolts\r\n");

  EXPECT_EQ(desk.machine.printer.title, "weak-roof.ORB - Headgate 4");
}

TEST(Printing, JoinsPagesWithoutALineBetweenThem) {
  Desk desk;
  desk.program.session.OutBuf = {"inputs\r\n", "calculations\r\n", "", "", ""};

  EXPECT_EQ(JoinedPages(desk.program.session, 0, 1), "inputs\r\ncalculations\r\n");
  EXPECT_EQ(JoinedPages(desk.program.session, 1, 1), "calculations\r\n");
  EXPECT_EQ(ErrorNumberOf([&] { JoinedPages(desk.program.session, 0, 5); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { JoinedPages(desk.program.session, -1, 1); }), 9);
}

TEST(Printing, PrintsTheSheetsInThePrinterFont) {
  Desk desk;
  desk.program.project.CurrentFile = "/designs/weak-roof.ORB";
  desk.machine.fonts.printer = {"Arial", "Courier New"};

  PrintText(desk.program, LinesNumbered(TextLines + 1));

  EXPECT_THAT(desk.machine.printer.pages, SizeIs(2));
  EXPECT_THAT(desk.machine.printer.pages.at(1), EndsWith("line 56\r\n"));
  EXPECT_EQ(desk.machine.printer.title, "weak-roof.ORB");
  EXPECT_EQ(desk.machine.printer.fontName, "Courier New");
}

TEST(Printing, FailsWithoutAPrinter) {
  Desk desk;
  desk.machine.printer.error = error_number::Printer;

  EXPECT_EQ(ErrorNumberOf([&] { PrintText(desk.program, "roof bolts\r\n"); }), 482);
}

TEST(Printing, PrintsAWholeReport) {
  const std::string name = "every_system_english";
  Desk desk;
  OpenGolden(desk, name);
  const Design& design = desk.program.project.WorkParms;
  LoadOutBuf0(desk.program, design);
  TakeCalculationPage(desk.program, CalculationReport(design, desk.program.session.catalogs));

  std::string printed;
  for (const std::string& sheet : PrintSheets(desk.program, JoinedPages(desk.program.session, 0, 1)))
    printed += sheet + "\f";

  EXPECT_EQ(printed, ReadTestData("reports/every_system_english_printed.txt"));
}

}  // namespace
}  // namespace orby::test
