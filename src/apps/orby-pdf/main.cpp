// Writes the calculation sheet or the signed report of a project as a PDF file, without a window.
#include <QDate>
#include <QGuiApplication>
#include <QHashSeed>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "apps/orby-cli/script_platform.h"
#include "base/number_text.h"
#include "base/text.h"
#include "dialogs/project_sheet.h"
#include "dialogs/signed_report_maker.h"
#include "files/project_file.h"
#include "machine/program.h"
#include "qt/picture_files.h"
#include "qt/texts.h"
#include "shell/start_up.h"

namespace {

constexpr const char* Usage = R"(usage: orby-pdf [OPTION]... FILE OUT

Writes the calculation sheet of the project FILE as the PDF file OUT.

  --letter         pages of 8.5 x 11 in instead of A4
  --date TEXT      the date on the pages instead of that of today
  --name TEXT      the file name on the pages
  --report         writes the report to sign instead, with drawings and cost

of the report:
  --sheet          with the calculation sheet as an appendix
  --curve NUMBER   with this curve of the list of graphs, 1 to 10; may be repeated
  --remarks TEXT   with remarks
  --company TEXT, --mine TEXT, --section TEXT, --author TEXT, --checker TEXT, --revision TEXT
                   the texts of its title block

exit status: 0 done, 1 usage, 2 not a project file, 3 run-time error.
)";

constexpr int UsageError = 1;
constexpr int NoProject = 2;
constexpr int RunTimeError = 3;

struct Order {
  bool IsReport = false;
  orby::PageSize Size = orby::A4;
  std::optional<std::string> Date;
  std::optional<std::string> Name;
  orby::SignedReportSettings Report;
  std::vector<std::string> Files;
};

using Words = std::vector<std::string>;

bool TakeFlag(Order& order, const std::string& word) {
  if (word == "--letter") {
    order.Size = orby::Letter;
  } else if (word == "--report") {
    order.IsReport = true;
  } else if (word == "--sheet") {
    order.Report.HasSheet = true;
  } else {
    return false;
  }
  return true;
}

// Returns false for an option that does not exist or that does not accept the text.
bool TakeOption(Order& order, const std::string& word, const std::string& text) {
  if (word == "--date") {
    order.Date = text;
  } else if (word == "--name") {
    order.Name = text;
  } else if (word == "--remarks") {
    order.Report.Remarks = text;
  } else if (word == "--curve") {
    const auto number = orby::WholeTextCount(text);
    if (!number || *number < 1 || *number > order.Report.HasCurve.size()) return false;
    order.Report.HasCurve.at(*number - 1) = true;
  } else {
    for (const orby::TitleField& field : orby::TitleFields) {
      if (!orby::SameWithoutCase("--" + std::string(field.Name), word)) continue;
      order.Report.Titles.*field.Text = text;
      return true;
    }
    return false;
  }
  return true;
}

// Returns nothing if the words are not a valid command line.
std::optional<Order> OrderOf(const Words& words) {
  Order order;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!words[i].starts_with("--")) {
      order.Files.push_back(words[i]);
    } else if (!TakeFlag(order, words[i])) {
      if (i + 1 == words.size() || !TakeOption(order, words[i], words[i + 1])) return std::nullopt;
      ++i;
    }
  }
  if (order.Files.size() != 2) return std::nullopt;
  return order;
}

std::string PdfOf(const orby::Program& program, const Order& order, const std::string& date) {
  if (!order.IsReport) return orby::SheetAsPdf(program, orby::SheetOfProject(program), {order.Size, date});
  orby::SignedReportMaker maker(program);
  const orby::PagedSheet paged = orby::PagesOf(maker.Make(order.Report, date), order.Size, orby::WidthsOf(program));
  return orby::PagesAsPdf(program, paged, maker.Title());
}

int Write(const Order& order) {
  orby::cli::ScriptPlatform script;
  orby::QtPictureFiles pictures;
  orby::Platform platform{script.boxes,     script.files, script.fileDialogs, script.windows,   script.fonts,
                          script.locale,    script.clock, script.userFolders, script.clipboard, script.printer,
                          script.documents, script.help,  script.downloads,   script.fileTypes, pictures};
  orby::Program program(platform);
  orby::StartApart(program, nullptr);
  program.project.CurrentFile = order.Files[0];
  if (!FileOpen(program)) return NoProject;
  if (order.Name) program.project.CurrentFile = *order.Name;
  const std::string date = order.Date.value_or(orby::FromQt(QDate::currentDate().toString(Qt::ISODate)));
  script.files.ReplaceFile(order.Files[1], PdfOf(program, order, date));
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  orby::PrepareProgram();
  const auto order = OrderOf(orby::ProgramArguments(argc, argv));
  if (!order) {
    std::fputs(Usage, stderr);
    return UsageError;
  }
  try {
    // The writer of PDF files lists the fonts in the order of a hash.
    QHashSeed::setDeterministicGlobalSeed();
    // Texts are set without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return Write(*order);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orby-pdf: %s\n", error.what());
    return RunTimeError;
  }
}
