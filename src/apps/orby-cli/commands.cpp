#include "apps/orby-cli/commands.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <set>

#include "apps/orby-cli/script_platform.h"
#include "apps/orby-cli/study_command.h"
#include "base/paths.h"
#include "base/runtime_error.h"
#include "core/messages.h"
#include "core/shared_texts.h"
#include "dialogs/convert_dialog.h"
#include "dialogs/curve_command.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/project_report.h"
#include "dialogs/project_sheet.h"
#include "dialogs/shown_design.h"
#include "files/project_file.h"
#include "reports/cost_report.h"
#include "reports/input_echo.h"
#include "reports/sensitivity_report.h"
#include "reports/verdict_text.h"
#include "sheet/sheet_html.h"
#include "sheet/sheet_json.h"
#include "sheet/sheet_markdown.h"
#include "sheet/sheet_text.h"
#include "shell/start_up.h"

namespace orby::cli {

const std::string_view UsageText = R"(usage: orby-cli COMMAND [OPTION]... FILE...

  report [--page 0|1] [--validate] FILE...   the pages of the calculation results
  cost FILE...                               the cost table
  curve N FILE                               the points of curve N (0 to 9), a line "x,y" each
  live FILE                                  the outputs of the parameters dialog as it opens
  verdicts FILE...                           whether the support holds and by how much, a line each judgement
  validate FILE                              what is wrong with the design, a line each
  save FILE OUT                              the project written anew to OUT
  convert FILE OUT                           the project in the other unit system, written to OUT
  sheet FILE OUT                             the calculation sheet, written to OUT as .html, .md, .txt or .json;
                                             "-" writes .json to standard output
  sheet --to FOLDER --as FORMAT FILE...      the same for several files: FORMAT is html, md, txt or json
  study [--json|--csv] FILE                  how sure the figures are: runs NAME.study.json beside NAME.ORB
  matters [--change PERCENT] FIGURE FILE     what a figure depends on, and where judgements change; FIGURE is a key of
                                             the figures in the JSON of a study, such as suggested-psup

  --name TEXT     the file name that the report shows
  --aus           the Australian bolt table (Metric projects)
  --samples N     of a study, instead of the number that it stores
  --seed S        likewise
  --change P      of "matters": by how much each number changes, 10 if not given
  --config INI    defaults and catalogs from this configuration file
  --help          this text

exit status: 0 done, 1 usage, 2 not a project file, 3 run-time error, 4 validation messages;
with several files the highest.
)";

namespace {

void Print(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) throw RuntimeError(error_number::DiskFull);
}

// One run of the program on one file.
struct FileRun {
  FileRun(ScriptPlatform& platformGiven, const Program& start, const CommandLine& lineGiven)
      : platform(platformGiven), program(start), line(lineGiven) {}

  ScriptPlatform& platform;
  Program program;
  const CommandLine& line;
};

// Returns false if the file is no project.
bool OpenProject(FileRun& run, const std::string& file) {
  run.program.project.CurrentFile = file;
  const bool opened = FileOpen(run.program);
  if (opened && run.line.Name) run.program.project.CurrentFile = *run.line.Name;
  return opened;
}

void SaveAs(FileRun& run, const std::string& file) {
  run.program.project.CurrentFile = file;
  FileSave(run.program);
}

// Builds the report pages and returns the design that Results shows. A design whose report fails has no curves either.
Design BuildPages(Program& program) {
  if (!HasKnownChoices(program.project.WorkParms)) ShowMessage(program, std::string(UnknownChoice));
  Design design = AsReported(program.project, program.session.catalogs);
  BuildResults(program, design);
  return design;
}

ExitCode Report(FileRun& run, const std::string&) {
  if (run.line.Validate) {
    ParametersDialog dialog(run.program);
    dialog.Open();
    if (!dialog.ValidateParameters()) return ExitCode::Invalid;
  }
  BuildPages(run.program);
  for (const int page : {0, 1}) {
    if (run.line.Page.value_or(page) == page) Print(run.program.session.OutBuf[static_cast<std::size_t>(page)]);
  }
  return ExitCode::Done;
}

ExitCode Cost(FileRun& run, const std::string&) {
  const Design design = InSevenDigits(run.program.project.WorkParms);
  const std::string table = CostReport(design.Cost, design.Units);
  LoadOutBuf0(run.program, design);  // fails like the table if the inputs cannot be written
  Print(table);
  return ExitCode::Done;
}

void AppendSingle(std::string& text, Single value) {
  std::array<char, 32> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 9).ptr;
  text.append(digits.data(), end);
}

ExitCode CurveOf(FileRun& run, const std::string& number) {
  const Design design = BuildPages(run.program);
  TakeCurve(run.program, design, static_cast<Integer>(number.front() - '0'));
  const Curve& curve = run.program.windows.curve;
  std::string text;
  for (std::size_t i = 0; i < static_cast<std::size_t>(curve.CurvePointCount); ++i) {
    AppendSingle(text, curve.CurvePoints[0][i]);
    text += ',';
    AppendSingle(text, curve.CurvePoints[1][i]);
    text += '\n';
  }
  Print(text);
  return ExitCode::Done;
}

void AppendOutput(std::string& text, const TextBox& box) {
  text += box.Name();
  text += '=';
  for (const char c : box.Text()) {
    if (c == '\r') {
      text += "\\r";
    } else if (c == '\n') {
      text += "\\n";
    } else {
      text += c;
    }
  }
  text += '\n';
}

ExitCode Live(FileRun& run, const std::string&) {
  ParametersDialog dialog(run.program);
  dialog.Open();
  std::string text;
  for (const Control* control : dialog.Controls()) {
    const auto* box = dynamic_cast<const TextBox*>(control);
    if (box != nullptr && box->Kind() == TextKind::Output) AppendOutput(text, *box);
  }
  text += dialog.txtMessage.Name();
  text += dialog.txtMessage.Visible() ? ".Visible=1\n" : ".Visible=0\n";
  Print(text);
  return ExitCode::Done;
}

// Prints the judgements that the parameters dialog shows as it opens.
ExitCode ListVerdicts(FileRun& run, const std::string&) {
  const Catalogs& catalogs = run.program.session.catalogs;
  const Design design = AsOpened(run.program.project, catalogs);
  const Verdicts verdicts = Judge(design, Analyze(design, catalogs));
  std::string text;
  for (const Verdict& verdict : verdicts.All()) text += VerdictLine(verdict, design.Units) + "\n";
  Print(text);
  return ExitCode::Done;
}

ExitCode Validate(FileRun& run, const std::string&) {
  ParametersDialog dialog(run.program);
  dialog.Open();
  run.platform.boxes.Keeps = true;
  const bool valid = dialog.ValidateParameters();
  for (const std::string& message : run.platform.boxes.Kept) Print(message + "\n");
  return valid ? ExitCode::Done : ExitCode::Invalid;
}

ExitCode Save(FileRun& run, const std::string& out) {
  SaveAs(run, out);
  return ExitCode::Done;
}

ExitCode Convert(FileRun& run, const std::string& out) {
  ConvertDialog dialog(run.program);
  dialog.Open();
  dialog.Command2.Press();
  if (dialog.Failure()) throw RuntimeError(*dialog.Failure());
  SaveAs(run, out);
  return ExitCode::Done;
}

ExitCode StudyOf(FileRun& run, const std::string&) {
  const StudyOutput output = RunStoredStudy(run.program, run.line.Operands.front(), run.line);
  std::fwrite(output.Message.data(), 1, output.Message.size(), stderr);
  Print(output.Text);
  return output.Code;
}

struct SheetFormatEntry {
  std::string_view Ending;
  std::string (*Write)(const DesignSheet& sheet);
};

constexpr std::array SheetFormats{SheetFormatEntry{"html", SheetHtml}, SheetFormatEntry{"md", SheetMarkdown},
                                  SheetFormatEntry{"txt", SheetText}, SheetFormatEntry{"json", SheetJson}};

// Returns the format of an ending, or null for another one.
const SheetFormatEntry* FormatOf(std::string_view ending) {
  const auto* found = std::ranges::find(SheetFormats, ending, &SheetFormatEntry::Ending);
  return found == SheetFormats.end() ? nullptr : found;
}

constexpr std::string_view StandardOutput = "-";

std::string_view EndingOf(std::string_view path) {
  const std::string_view name = NameAfterSeparator(path);
  const std::size_t point = name.rfind('.');
  return point == std::string_view::npos ? std::string_view() : name.substr(point + 1);
}

ExitCode WriteSheet(FileRun& run, const std::string& out) {
  const DesignSheet sheet = SheetOfProject(run.program);
  if (out == StandardOutput) {
    Print(SheetJson(sheet));
  } else {
    run.platform.files.ReplaceFile(out, FormatOf(EndingOf(out))->Write(sheet));
  }
  return ExitCode::Done;
}

ExitCode Matters(FileRun& run, const std::string& key) {
  const StudiedFigure* figure = FigureWithKey(key);
  if (figure == nullptr) {
    std::string message = "There is no figure \"" + key + "\". The figures are:\n";
    for (const StudiedFigure& known : StudiedFigures()) message.append(known.Key).append("\n");
    std::fputs(message.c_str(), stderr);
    return ExitCode::Usage;
  }
  const Catalogs& catalogs = run.program.session.catalogs;
  Print(SensitivityText(AsReported(run.program.project, catalogs), catalogs, *figure, run.line.Change / 100));
  return ExitCode::Done;
}

// Returns the path of the sheet of a file in a folder: FOLDER/NAME.html.
std::string SheetIn(const std::string& folder, std::string_view format, std::string_view file) {
  std::string name(NameAfterSeparator(file));
  const std::string_view ending = EndingOf(name);
  if (!ending.empty()) name.resize(name.size() - ending.size() - 1);
  return folder + "/" + name + "." + std::string(format);
}

// Several files that would have one sheet are refused, because the later one would replace the earlier one.
bool HaveSheetsOfTheirOwn(const CommandLine& line) {
  std::set<std::string> sheets;
  return std::ranges::all_of(
      line.Operands, [&](const std::string& file) { return sheets.insert(SheetIn(*line.To, *line.As, file)).second; });
}

bool IsCurveNumber(const std::string& word) { return word.size() == 1 && word[0] >= '0' && word[0] <= '9'; }

// The operands of a command: only files, or one file with another word before or after it.
enum class Shape { Files, OneFile, NumberFile, WordFile, FileOut, Sheets, OneStudy };

struct Command {
  std::string_view name;
  Shape shape;
  // Runs on an open project. extra: the other word, if the command has one.
  ExitCode (*run)(FileRun& run, const std::string& extra);
};

constexpr std::array Commands{
    Command{"report", Shape::Files, Report},         Command{"cost", Shape::Files, Cost},
    Command{"curve", Shape::NumberFile, CurveOf},    Command{"live", Shape::OneFile, Live},
    Command{"verdicts", Shape::Files, ListVerdicts}, Command{"validate", Shape::OneFile, Validate},
    Command{"save", Shape::FileOut, Save},           Command{"convert", Shape::FileOut, Convert},
    Command{"sheet", Shape::Sheets, WriteSheet},     Command{"study", Shape::OneStudy, StudyOf},
    Command{"matters", Shape::WordFile, Matters},
};

bool FitsSheets(const CommandLine& line) {
  const auto& operands = line.Operands;
  if (line.To) return line.As && FormatOf(*line.As) != nullptr && !operands.empty() && HaveSheetsOfTheirOwn(line);
  return !line.As && operands.size() == 2 &&
         (operands[1] == StandardOutput || FormatOf(EndingOf(operands[1])) != nullptr);
}

bool FitsShape(const CommandLine& line, Shape shape) {
  const auto& operands = line.Operands;
  switch (shape) {
    case Shape::Files: return !operands.empty();
    case Shape::OneFile: return operands.size() == 1;
    case Shape::NumberFile: return operands.size() == 2 && IsCurveNumber(operands[0]);
    case Shape::WordFile:
    case Shape::FileOut: return operands.size() == 2;
    case Shape::Sheets: return FitsSheets(line);
    case Shape::OneStudy: return operands.size() == 1 && !(line.Json && line.Csv);
  }
  return false;
}

ExitCode ReportError(const RuntimeError& error) {
  const std::string text = std::string(error.what()) + "\n";
  std::fwrite(text.data(), 1, text.size(), stderr);
  return ExitCode::RunTimeError;
}

ExitCode RunOnFile(const Command& command, FileRun run, const std::string& file, const std::string& extra) {
  try {
    return OpenProject(run, file) ? command.run(run, extra) : ExitCode::Refused;
  } catch (const RuntimeError& error) {
    return ReportError(error);
  }
}

ExitCode RunOnOperands(const Command& command, const CommandLine& line) {
  ScriptPlatform platform;
  Program start(platform.AsPlatform());
  if (line.Config) {
    const IniText configuration = IniText::FromFileBytes(platform.files.ReadFile(*line.Config));
    StartApart(start, &configuration);
  } else {
    StartApart(start, nullptr);
  }
  if (line.AustralianTable) start.project.UseAUSStandardTable = 1;

  const auto& operands = line.Operands;
  const auto run = [&](const std::string& file, const std::string& extra) {
    return RunOnFile(command, FileRun(platform, start, line), file, extra);
  };
  switch (command.shape) {
    case Shape::NumberFile:
    case Shape::WordFile: return run(operands[1], operands[0]);
    case Shape::FileOut: return run(operands[0], operands[1]);
    case Shape::Sheets:
      if (!line.To) return run(operands[0], operands[1]);
      break;
    default: break;
  }
  ExitCode worst = ExitCode::Done;
  for (const std::string& file : operands) {
    worst = std::max(worst, run(file, line.To ? SheetIn(*line.To, *line.As, file) : std::string()));
  }
  return worst;
}

}  // namespace

ExitCode RunCommand(const CommandLine& line) {
  const auto* command = std::find_if(Commands.begin(), Commands.end(),
                                     [&line](const Command& entry) { return entry.name == line.Command; });
  if (command == Commands.end() || !FitsShape(line, command->shape)) {
    std::fwrite(UsageText.data(), 1, UsageText.size(), stderr);
    return ExitCode::Usage;
  }
  try {
    const ExitCode code = RunOnOperands(*command, line);
    if (std::fflush(stdout) != 0) throw RuntimeError(error_number::DiskFull);
    return code;
  } catch (const RuntimeError& error) {
    return ReportError(error);
  }
}

}  // namespace orby::cli
