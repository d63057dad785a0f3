#include "sheet/sheet_json.h"

#include <charconv>

#include "base/json_writer.h"
#include "core/program.h"
#include "core/version.h"
#include "reports/verdict_text.h"
#include "sheet/formula_text.h"
#include "sheet/help_titles.h"
#include "sheet/operation_names.h"
#include "sheet/sheet_content.h"

namespace orby {
namespace {

// Returns the number that the whole text is.
std::optional<double> NumberIn(std::string_view text) {
  if (text.find_first_not_of("0123456789.+-E") != std::string_view::npos) return {};
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return value;
}

class JsonOutput {
 public:
  std::string Take() { return json_.Take(); }

  void Sheet(const DesignSheet& sheet) {
    json_.OpenObject();
    json_.Number("format", SheetFormat);
    Program();
    Project(sheet.Project);
    json_.Text("units", sheet.Units == Metric ? "metric" : "english");
    json_.Text("boltGrades", sheet.Basis == StrengthBasis::Yield ? "yield" : "ultimate");
    json_.Name("sections");
    json_.OpenArray();
    for (std::size_t i = 0; i < sheet.Sections.size(); ++i) Section(sheet, i);
    json_.Close();
    json_.Close();
  }

  // ---- parts -------------------------------------------------------------------------------------------------------

  void Inputs(const std::vector<const SheetInput*>& inputs) {
    for (const SheetInput* input : inputs) {
      OpenPart("input");
      json_.Text("label", input->Label);
      if (const auto value = NumberIn(input->Text)) json_.Number("value", *value);
      json_.Text("text", input->Text);
      json_.Text("unit", input->Unit);
      json_.Text("source", input->Source);
      json_.Close();
    }
  }

  void Step(const SheetStep& step, const std::string& number) {
    OpenPart("step");
    json_.Text("number", number);
    json_.Text("title", step.Title);
    if (step.Law != nullptr) Law(step);
    Result(step);
    if (!step.Value) json_.Text("failure", step.Failure);
    json_.Name("shown");
    json_.OpenArray();
    for (const ShownResult& shown : step.Shown) {
      json_.OpenObject(true);
      json_.Text("where", shown.Where);
      json_.Text("text", shown.Text);
      json_.Close();
    }
    json_.Close();
    json_.Name("notes");
    Texts(step.Notes, false);
    json_.Close();
  }

  void Judgement(const SheetJudgement& judgement) {
    OpenPart("judgement");
    json_.Text("result", HoldingKey(judgement.Judged.Result));
    json_.Text("text", judgement.Line);
    json_.Close();
  }

  void Remark(const SheetRemark& remark) {
    OpenPart("remark");
    json_.Text("text", remark.Text);
    json_.Close();
  }

  void Table(const SheetTable& table) {
    OpenPart("table");
    json_.Name("heads");
    Texts(table.Heads, true);
    json_.Name("rows");
    json_.OpenArray();
    for (const auto& row : table.Rows) Texts(row, true);
    json_.Close();
    json_.Close();
  }

 private:
  void Program() {
    json_.Name("program");
    json_.OpenObject(true);
    json_.Text("name", ProgramTitle);
    json_.Text("version", VersionText());
    json_.Close();
  }

  void Project(const SheetProject& project) {
    json_.Name("project");
    json_.OpenObject();
    json_.Text("title", project.Title);
    json_.Text("description", project.Description);
    json_.Text("file", project.File);
    if (!project.Sum.empty()) json_.Text("sha256", project.Sum);
    json_.Close();
  }

  void Section(const DesignSheet& sheet, std::size_t index) {
    const SheetSection& section = sheet.Sections[index];
    json_.OpenObject();
    json_.Number("number", static_cast<double>(index + 1));
    json_.Text("key", section.Key);
    json_.Text("title", section.Title);
    json_.Name("symbols");
    json_.OpenArray();
    for (const InsertedNumber& symbol : SymbolsOf(section, sheet.Units)) {
      json_.OpenObject(true);
      OfSymbol(symbol);
      json_.Close();
    }
    json_.Close();
    json_.Name("parts");
    json_.OpenArray();
    WriteParts(section, index + 1, *this);
    json_.Close();
    json_.Close();
  }

  void OpenPart(std::string_view kind) {
    json_.OpenObject();
    json_.Text("kind", kind);
  }

  void OfSymbol(const InsertedNumber& symbol) {
    json_.Text("symbol", symbol.Letter);
    json_.Text("meaning", symbol.Meaning);
    json_.Text("unit", symbol.Unit);
  }

  void Law(const SheetStep& step) {
    json_.Text("relation", step.Law->Key);
    json_.Text("formulaText", FormulaText(step.Law->Formula));
    json_.Name("formula");
    Formula(step.Law->Formula);
    json_.Flag("roundedToSingle", step.Law->IsRounded);
    if (!step.Law->Validity.empty()) json_.Text("validFor", step.Law->Validity);
    if (!step.Law->HelpPage.empty()) {
      json_.Text("help", step.Law->HelpPage);
      json_.Text("helpTitle", HelpTitle(step.Law->HelpPage));
    }
    json_.Name("numbers");
    json_.OpenArray();
    for (const InsertedNumber& number : step.Numbers) {
      json_.OpenObject(true);
      OfSymbol(number);
      if (IsKnown(number)) {
        json_.Number("value", number.Value);
        json_.Text("text", number.Text);
      }
      json_.Close();
    }
    json_.Close();
    json_.Text("insertedText", InsertedText(step));
  }

  void Formula(const Expression& formula) {
    json_.OpenObject(true);
    json_.Text("operation", OperationName(formula.What));
    if (!formula.Letter.empty()) json_.Text("symbol", formula.Letter);
    if (formula.What == Operation::Number || formula.What == Operation::Constant) json_.Number("value", formula.Value);
    if (!formula.Parts.empty()) {
      json_.Name("parts");
      json_.OpenArray();
      for (const Expression& part : formula.Parts) Formula(part);
      json_.Close();
    }
    json_.Close();
  }

  void Result(const SheetStep& step) {
    json_.Name("result");
    json_.OpenObject(true);
    json_.Text("symbol", step.Letter);
    json_.Text("unit", step.Unit);
    if (step.Value) {
      json_.Number("value", *step.Value);
      json_.Text("text", step.Text);
    }
    json_.Close();
  }

  void Texts(const std::vector<std::string>& texts, bool inOneLine) {
    json_.OpenArray(inOneLine);
    for (const std::string& text : texts) json_.Text(text);
    json_.Close();
  }

  JsonWriter json_;
};

}  // namespace

std::string SheetJson(const DesignSheet& sheet) {
  JsonOutput output;
  output.Sheet(sheet);
  return output.Take();
}

}  // namespace orby
