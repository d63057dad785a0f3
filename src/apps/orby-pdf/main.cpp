// Writes the calculation sheet of a project as a PDF file, without a window.
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
#include "dialogs/project_sheet.h"
#include "files/project_file.h"
#include "machine/program.h"
#include "qt/picture_files.h"
#include "qt/texts.h"
#include "shell/start_up.h"

namespace {

constexpr const char* Usage = R"(usage: orby-pdf [--letter] [--date TEXT] [--name TEXT] FILE OUT

Writes the calculation sheet of the project FILE as the PDF file OUT.

  --letter      pages of 8.5 x 11 in instead of A4
  --date TEXT   the date on the sheet instead of that of today
  --name TEXT   the file name on the sheet

exit status: 0 done, 1 usage, 2 not a project file, 3 run-time error.
)";

constexpr int UsageError = 1;
constexpr int NoProject = 2;
constexpr int RunTimeError = 3;

struct Order {
  orby::PageSize Size = orby::A4;
  std::optional<std::string> Date;
  std::optional<std::string> Name;
  std::vector<std::string> Files;
};

// Returns nothing if the words are not a valid command line.
std::optional<Order> OrderOf(const std::vector<std::string>& words) {
  Order order;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--letter") {
      order.Size = orby::Letter;
    } else if (words[i] == "--date" && i + 1 < words.size()) {
      order.Date = words[++i];
    } else if (words[i] == "--name" && i + 1 < words.size()) {
      order.Name = words[++i];
    } else if (words[i].starts_with("--")) {
      return std::nullopt;
    } else {
      order.Files.push_back(words[i]);
    }
  }
  if (order.Files.size() != 2) return std::nullopt;
  return order;
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
  const std::string pdf = orby::SheetAsPdf(program, orby::SheetOfProject(program), {order.Size, date});
  script.files.ReplaceFile(order.Files[1], pdf);
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
