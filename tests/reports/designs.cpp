#include "reports/designs.h"

#include "base/text.h"
#include "design/catalogs.h"
#include "files/new_project.h"

namespace orby::test {

Desk::Desk(UnitSystem units, StrengthBasis strengthMode) : program(machine.AsPlatform()) {
  SetBuiltInCatalogs(program.session.catalogs);
  program.session.settings.UnitsDefault = units;
  program.session.options.BoltGradeAsUltimateDefault = strengthMode;
  FileNew(program, Keeping::Nothing);
}

void PickBolt(Design& record, Single diameter, Single grade) {
  for (BoltSelection* set : record.BoltSets()) {
    set->Options = BoltSource::Manual;
    set->DiameterMode = ValueSource::Standard;
    set->DiameterStd = diameter;
    set->GradeMode = ValueSource::Standard;
    set->GradeStd = grade;
  }
}

void UseEverySystem(Design& record, Integer flag) {
  record.Entries.Cable.Use = record.Entries.Truss.Use = record.Entries.Bolt.Use = record.Entries.Standing.Use = flag;
  record.Intersections.Cable.Use = record.Intersections.Truss.Use = record.Intersections.Bolt.Use =
      record.Intersections.Standing.Use = flag;
}

std::vector<std::string> LinesOf(const std::string& page) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end = page.find(LineEnd); end != std::string::npos; end = page.find(LineEnd, start)) {
    lines.push_back(page.substr(start, end - start));
    start = end + LineEnd.size();
  }
  if (start < page.size()) lines.push_back(page.substr(start));
  return lines;
}

std::string ValueOf(const std::string& page, std::string_view label) {
  const std::string start = PadDots(label, 58);
  for (const std::string& line : LinesOf(page)) {
    if (line.starts_with(start)) return line.substr(start.size());
  }
  return "no such line";
}

std::vector<std::string> SectionOf(const std::string& page, std::string_view heading) {
  std::vector<std::string> section;
  bool inside = false;
  for (const std::string& line : LinesOf(page)) {
    if (inside && line.starts_with("[") && !line.starts_with("[Warning")) break;
    if (inside) section.push_back(line);
    if (line == heading) inside = true;
  }
  return section;
}

}  // namespace orby::test
