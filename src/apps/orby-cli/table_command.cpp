#include "apps/orby-cli/table_command.h"

#include <cstdio>
#include <string>
#include <utility>

#include "apps/orby-cli/print.h"
#include "base/attempt.h"
#include "tables/design_table.h"

namespace orby::cli {
namespace {

constexpr std::string_view ListOfColumns = "list";

// Prints a line for each column: its key, a tab, and its head with the English unit.
ExitCode ListColumns() {
  std::string text = "groups: " + std::string(GroupNames) + "\n";
  for (const Column& column : AllColumns()) text += column.Key + "\t" + HeadText(column, English) + "\n";
  Print(text);
  return ExitCode::Done;
}

// Terminals have no room for all columns.
std::optional<Columns> ColumnsFor(const CommandLine& line, std::string& unknown) {
  const std::string usual = line.Format.empty() ? "overview" : "all";
  return ChosenColumns(line.Columns.value_or(usual), unknown);
}

// A file that nobody needs after its use.
class PassingFile {
 public:
  PassingFile(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}
  ~PassingFile() {
    Succeeds([&] { files_.RemoveFile(path_); });
  }
  PassingFile(const PassingFile&) = delete;
  PassingFile& operator=(const PassingFile&) = delete;

  const std::string& Path() const { return path_; }

 private:
  FileSystem& files_;
  std::string path_;
};

// A spreadsheet is made beside the old file, which it replaces when it is complete.
void WriteSpreadsheet(FileSystem& files, const DesignTable& table, const std::string& out) {
  std::string path = out + ".part";
  for (int number = 1; files.Finds(path); ++number) path = out + ".part" + std::to_string(number);
  const PassingFile beside(files, path);
  WriteTableWorkbook(table, beside.Path());
  files.ReplaceFile(out, files.ReadFile(beside.Path()));
}

void WriteTable(FileSystem& files, const DesignTable& table, const CommandLine& line) {
  if (line.Format == "json") {
    Print(TableAsJson(table));
  } else if (line.Format == "xlsx") {
    WriteSpreadsheet(files, table, *line.Workbook);
  } else {
    Print(TableAsText(table));
  }
}

std::optional<UnitSystem> UnitsOf(const CommandLine& line) {
  if (!line.Units) return std::nullopt;
  return *line.Units == "metric" ? Metric : English;
}

}  // namespace

bool FitsTable(const CommandLine& line) { return line.Columns == ListOfColumns || !line.Operands.empty(); }

ExitCode MakeTable(Program& start, const CommandLine& line) {
  if (line.Columns == ListOfColumns) return ListColumns();
  std::string unknown;
  std::optional<Columns> columns = ColumnsFor(line, unknown);
  if (!columns) {
    const std::string text = "unknown column: " + unknown + "\n";
    std::fwrite(text.data(), 1, text.size(), stderr);
    return ExitCode::Usage;
  }
  FileSystem& files = start.platform.files;
  const RowMaker maker(start);
  const std::vector<FoundProject> projects = ProjectsOf(files, line.Operands);
  const auto codeFor = [](bool allAreRead) { return allAreRead ? ExitCode::Done : ExitCode::RowsWithoutDesign; };
  if (line.Format == "csv") {
    const CsvOfFiles csv = FilesAsCsv(maker, files, projects, *columns, UnitsOf(line));
    Print(csv.Text);
    return codeFor(csv.AllAreRead);
  }
  DesignTable table;
  table.Rows = ReadRows(maker, files, projects);
  table.Shown = std::move(*columns);
  table.Units = UnitsOf(line).value_or(CommonUnits(table.Rows));
  WriteTable(files, table, line);
  return codeFor(AllAreRead(table.Rows));
}

}  // namespace orby::cli
