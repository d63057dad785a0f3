#include "reports/golden_designs.h"

#include <algorithm>
#include <stdexcept>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "files/project_file.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

constexpr std::size_t FirstFigure = 2;  // column of the first figure

std::vector<TableRow> Table() { return ReadTable("reports/golden_designs.tsv"); }

// Sets the figures of secondary support, which the parameters dialog computes and project files do not contain.
void FillFigures(Design& design, const std::vector<std::string>& fields) {
  auto field = fields.begin() + FirstFigure;
  const auto next = [&field] { return ToSingle(TextValue(*field++)); };
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    support->RockLoad = next();
    for (SupportSystem* system : support->Systems()) {
      system->SupportCap = next();
      system->StabFactor = next();
    }
  }
}

void OpenProject(Desk& desk, const std::string& bytes) {
  desk.program.project.CurrentFile = "/designs/golden.orb";
  desk.machine.files.files[desk.program.project.CurrentFile] = bytes;
  if (!FileOpen(desk.program)) throw std::runtime_error("no project file");
}

}  // namespace

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const TableRow& row : Table()) names.push_back(row.fields.front());
  return names;
}

void OpenGolden(Desk& desk, const std::string& name) {
  const auto table = Table();
  const auto row = std::ranges::find(table, name, [](const TableRow& entry) { return entry.fields.front(); });
  if (row == table.end()) throw std::runtime_error("no golden design is called " + name);
  OpenProject(desk, ReadTestData("reports/" + name + ".orb"));
  desk.program.project.CurrentFile = row->fields[1];
  FillFigures(desk.program.project.WorkParms, row->fields);
  if (name == "everything_off") desk.program.session.options.PrintModuleHeader = 0;
}

}  // namespace orby::test
