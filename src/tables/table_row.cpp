#include "tables/table_row.h"

#include <utility>

#include "core/description.h"
#include "core/shared_texts.h"
#include "design/catalogs.h"
#include "files/new_project.h"
#include "files/project_file.h"
#include "files/shown_design.h"

namespace orby {
namespace {

// Returns the error of the first figure that the report of the design needs and that cannot be computed.
int ErrorOfReport(const RoofSupport& design, const Figures& figures) {
  if (!figures.Working.IsThere()) return figures.Working.Error();
  if (design.Primary.Analysed == 1) {
    if (!figures.Suggested.IsThere()) return figures.Suggested.Error();
    if (!figures.Primary.IsThere()) return figures.Primary.Error();
  }
  if (design.Entries.Analysed == 1 && !figures.EntryReinforcement.IsThere()) return figures.EntryReinforcement.Error();
  if (design.Intersections.Analysed == 1) return figures.IntersectionReinforcement.Error();
  return 0;
}

void Compute(TableRow& row, const Design& stored, const BoltTable& table, const Catalogs& catalogs) {
  if (!HasKnownChoices(stored)) {
    row.Reason = UnknownChoice;
    return;
  }
  row.Shown = AsShown(stored, table, catalogs);
  row.Live = Analyze(row.Shown, catalogs);
  row.Judged = Judge(row.Shown, row.Live);
  row.Reported = Analyze(AsPreviewed(row.Shown), catalogs);
  row.ReportError = ErrorOfReport(row.Shown, row.Reported);
  row.CostOfBolts = Attempt([&] { return AnalyseCost(row.Shown.Cost); });
}

// Sets the reason if `fill` throws an error.
template <class Fill>
TableRow RowOf(std::string file, const Fill& fill) {
  TableRow row;
  row.File = std::move(file);
  try {
    fill(row);
  } catch (const RuntimeError& error) {
    row.Reason = error.description();
  }
  return row;
}

}  // namespace

RowMaker::RowMaker(const Program& program) : catalogs_(program.session.catalogs), australian_(catalogs_) {
  SetBoltTableMET(catalogs_);
  SetBoltTableAUS(australian_);
  fresh_.UseAUSStandardTable = program.project.UseAUSStandardTable;
  fresh_.WorkParms.Units = program.session.settings.UnitsDefault;
  fresh_.WorkParms.Basis = program.session.options.BoltGradeAsUltimateDefault;
  FillNewValues(fresh_.WorkParms, program.session.defaults, catalogs_);
}

TableRow RowMaker::RowOfFile(FileSystem& files, const std::string& path) const {
  return RowOf(path, [&](TableRow& row) {
    if (const std::optional<std::string> bytes = ReadProjectBytes(files, path)) {
      FillFromBytes(row, *bytes);
    } else {
      row.Reason = InvalidFormat;
    }
  });
}

TableRow RowMaker::RowOfBytes(std::string file, std::string_view bytes) const {
  return RowOf(std::move(file), [&](TableRow& row) { FillFromBytes(row, bytes); });
}

TableRow RowMaker::RowOfProject(std::string file, const Project& project) const {
  return RowOf(std::move(file), [&](TableRow& row) { Fill(row, project); });
}

void RowMaker::FillFromBytes(TableRow& row, std::string_view bytes) const {
  const ItemReader reader(bytes);
  const std::optional<Integer> format = FormatOf(reader);
  if (!format) {
    row.Reason = InvalidFormat;
    return;
  }
  Project project = fresh_;
  project.FileVersion = *format;
  ReadProject(project, reader);
  Fill(row, project);
}

void RowMaker::Fill(TableRow& row, const Project& project) const {
  row.Title = TitleToShow(project);
  const Catalogs& catalogs = UsesAustralianTable(project) ? australian_ : catalogs_;
  const bool isMetric = project.WorkParms.Units == Metric;
  Compute(row, project.WorkParms, isMetric ? catalogs.BoltTableMET : catalogs.BoltTableENG, catalogs);
}

}  // namespace orby
