#include "reports/golden_designs.h"

#include <map>

namespace orby::test {
namespace {

void PickFromTable(BoltSelection& set, std::string_view name, Single diameter, Single grade) {
  set.Desc = name;
  set.TableDiameter = diameter;
  set.TableGrade = grade;
}

void EnglishDefaults(Program& program) {
  Design& record = program.project.WorkParms;
  PickBolt(record, 0.75F, 75);
  record.Entries.RockLoad = 10;
  record.Entries.Cable.SupportCap = 10.6F;
  record.Entries.Cable.StabFactor = 1.06F;
  record.Intersections.RockLoad = 183;
  record.Intersections.Cable.SupportCap = 264;
  record.Intersections.Cable.StabFactor = 1.44F;
}

void MetricDefaults(Program& program) {
  Design& record = program.project.WorkParms;
  PickBolt(record, 20, 520);
  record.Entries.RockLoad = 335.1F;
  record.Entries.Cable.SupportCap = 472;
  record.Entries.Cable.StabFactor = 1.41F;
  record.Intersections.RockLoad = 2212.88F;
  record.Intersections.Cable.SupportCap = 2360;
  record.Intersections.Cable.StabFactor = 1.07F;
}

void FillEnglishEntries(Design& record) {
  record.Entries.RockLoadHeight = 5.5F;
  record.Entries.RockFallAngle = 25;
  record.Entries.Cable.Length = 12;
  record.Entries.Cable.CapMode = 1;
  record.Entries.Cable.Capacity = 1;
  record.Entries.Cable.CapacityManual = 31.5F;
  record.Entries.Cable.BoltsPerRow = 3;
  record.Entries.Cable.RowSpacing = 4.5F;
  record.Entries.Truss.LengthMember = 7.5F;
  record.Entries.Truss.Angle = 40;
  record.Entries.Truss.Capacity = 32;
  record.Entries.Truss.Spacing = 5;
  record.Entries.Bolt.BoltsperRow = 3;
  record.Entries.Bolt.RowSpacing = 5;
  record.Entries.Bolt.Length = 8;
  record.Entries.Standing.TypeName = "Wood Post (8in)";
  record.Entries.Standing.Capacity = 66;
  record.Entries.Standing.NumberPerRow = 1;
  record.Entries.Standing.RowSpacing = 6;
  record.Entries.RockLoad = 7.26F;
  record.Entries.Cable.SupportCap = 21;
  record.Entries.Cable.StabFactor = 2.9F;
  record.Entries.Truss.SupportCap = 9.8F;
  record.Entries.Truss.StabFactor = 1.35F;
  record.Entries.Bolt.SupportCap = 16.2F;
  record.Entries.Bolt.StabFactor = 2.2344F;
  record.Entries.Standing.SupportCap = 11;
  record.Entries.Standing.StabFactor = 1.515F;
}

void FillEnglishIntersections(Design& record) {
  record.Intersections.RockLoadHeight = 6;
  record.Intersections.RockFallAngle = 28;
  record.Intersections.RockFallAngleXcut = 35;
  record.Intersections.Cable.Length = 14;
  record.Intersections.Cable.Diam = 0.7F;
  record.Intersections.Cable.Number = 12;
  record.Intersections.Truss.LengthMember = 9;
  record.Intersections.Truss.Angle = 50;
  record.Intersections.Truss.Capacity = 28.5F;
  record.Intersections.Truss.Number = 3;
  record.Intersections.Bolt.Length = 7;
  record.Intersections.Bolt.Number = 14;
  record.Intersections.Standing.TypeName = "Pumpable Crib (24in)";
  record.Intersections.Standing.Capacity = 135;
  record.Intersections.Standing.Number = 2;
  record.Intersections.RockLoad = 301.25F;
  record.Intersections.Cable.SupportCap = 428.4F;
  record.Intersections.Cable.StabFactor = 1.42F;
  record.Intersections.Truss.SupportCap = 131;
  record.Intersections.Truss.StabFactor = 0.43F;
  record.Intersections.Bolt.SupportCap = 193.3F;
  record.Intersections.Bolt.StabFactor = 0.64F;
  record.Intersections.Standing.SupportCap = 270;
  record.Intersections.Standing.StabFactor = 0.9F;
}

void EverySystemEnglish(Program& program) {
  program.project.CurrentFile =
      "/mines/cedar hollow/second north longwall headgate/intersections under the old works.ORB";
  program.project.ProjectTitle = "Cedar Hollow, second north headgate";
  program.project.ProjectDescription =
      "Roof of laminated siltstone under a thin rider seam; cables follow the belt.\r\n \r\n"
      "Checked against the survey of the crosscuts.\r\n";
  Design& record = program.project.WorkParms;
  record.Place.CMRR = 52;
  record.Place.CMRRRegionIndex = 1;
  record.Place.CMRRRockTypeIndex = 3;
  record.Place.DepthofCover = 650;
  record.Place.UnitWeight = 165.5F;
  record.Place.ActualSpanDiagonals = 62.5F;
  record.Place.EntryWidth = 18.5F;
  record.Primary.StabilityFactor = 1.2F;
  record.Primary.Length = 6.5F;
  record.Primary.BoltsperRow = 5;
  record.Primary.RowSpacing = 3.5F;
  UseEverySystem(record);
  FillEnglishEntries(record);
  FillEnglishIntersections(record);
  PickFromTable(record.Primary, "#6 smooth - grade 75", 0.75F, 75);
  PickFromTable(record.Entries.Bolt, "#7 rebar - grade 60", 0.875F, 60);
  PickFromTable(record.Intersections.Bolt, "#5 rebar - grade 60", 0.625F, 60);
}

void FillMetricEntries(Design& record) {
  record.Entries.RockLoadHeight = 1.8F;
  record.Entries.RockFallAngle = 20;
  record.Entries.Cable.Length = 4.3F;
  record.Entries.Cable.BoltsPerRow = 2;
  record.Entries.Cable.RowSpacing = 2.4F;
  record.Entries.Cable.Diam = 28.6F;
  record.Entries.Truss.Spacing = 1.5F;
  record.Entries.Bolt.Length = 2.4F;
  record.Entries.Bolt.BoltsperRow = 3;
  record.Entries.Bolt.RowSpacing = 1.5F;
  record.Entries.Standing.TypeName = "Propsetter (10in)";
  record.Entries.Standing.Capacity = 640;
  record.Entries.Standing.NumberPerRow = 1;
  record.Entries.Standing.RowSpacing = 2;
  record.Entries.RockLoad = 222.1F;
  record.Entries.Cable.SupportCap = 808.3F;
  record.Entries.Cable.StabFactor = 3.64F;
  record.Entries.Truss.SupportCap = 282.8F;
  record.Entries.Truss.StabFactor = 1.27F;
  record.Entries.Bolt.SupportCap = 509.6F;
  record.Entries.Bolt.StabFactor = 2.29F;
  record.Entries.Standing.SupportCap = 320;
  record.Entries.Standing.StabFactor = 1.44F;
}

void FillMetricIntersections(Design& record) {
  record.Intersections.RockLoadHeight = 2;
  record.Intersections.RockFallAngle = 22;
  record.Intersections.RockFallAngleXcut = 0;
  record.Intersections.Cable.Length = 6.1F;
  record.Intersections.Cable.CapMode = 1;
  record.Intersections.Cable.CapacityStd = 620;
  record.Intersections.Cable.CapacityManual = 605;
  record.Intersections.Cable.Number = 8;
  record.Intersections.Bolt.Length = 2.4F;
  record.Intersections.Bolt.Number = 12;
  record.Intersections.Standing.TypeName = "CAN (24in)";
  record.Intersections.Standing.Capacity = 845;
  record.Intersections.Standing.Number = 3;
  record.Intersections.RockLoad = 1638.455F;
  record.Intersections.Cable.SupportCap = 4960;
  record.Intersections.Cable.StabFactor = 3.03F;
  record.Intersections.Truss.SupportCap = 848.5F;
  record.Intersections.Truss.StabFactor = 0.52F;
  record.Intersections.Bolt.SupportCap = 1557;
  record.Intersections.Bolt.StabFactor = 0.95F;
  record.Intersections.Standing.SupportCap = 2535;
  record.Intersections.Standing.StabFactor = 1.55F;
}

void EverySystemMetric(Program& program) {
  program.project.CurrentFile = "Cedar Hollow.ORB";
  program.project.ProjectTitle = "Cedar Hollow, second north headgate";
  program.project.ProjectDescription = "Belt entry";
  Design& record = program.project.WorkParms;
  record.Place.CMRR = 48;
  record.Place.CMRRRegionIndex = 4;
  record.Place.CMRRRockTypeIndex = 7;
  record.Place.DepthofCover = 220;
  record.Place.UnitWeight = 26;
  record.Place.ActualSpanDiagonals = 18.6F;
  record.Place.EntryWidth = 5.4F;
  record.Primary.StabilityFactor = 1.3F;
  record.Primary.Length = 2.1F;
  record.Primary.BoltsperRow = 6;
  record.Primary.RowSpacing = 1.25F;
  UseEverySystem(record);
  FillMetricEntries(record);
  FillMetricIntersections(record);
  PickFromTable(record.Primary, "#7 special rebar - grade 75", 20.4F, 517.1F);
  PickFromTable(record.Entries.Bolt, "#7 rebar - grade 60", 22.2F, 413.7F);
  PickFromTable(record.Intersections.Bolt, "#5 rebar - grade 60", 15.9F, 413.7F);
}

void UseUltimateGrades(Design& record) {
  record.Place.CMRRManual = 1;
  record.Entries.Bolt.Use = 1;
  record.Intersections.Bolt.Use = 1;
  record.Entries.Bolt.GradeMode = 1;
  record.Intersections.Bolt.DiameterMode = 1;
}

void UltimateEnglish(Program& program) {
  Design& record = program.project.WorkParms;
  PickBolt(record, 0.75F, 100);
  UseUltimateGrades(record);
  record.Entries.Bolt.GradeManual = 95;
  record.Intersections.Bolt.GradeStd = 116;
  record.Intersections.Bolt.DiameterManual = 0.8F;
  record.Entries.RockLoadHeight = 4.5F;
  record.Entries.RockLoad = 6.8F;
  record.Entries.Cable.SupportCap = 10.6F;
  record.Entries.Cable.StabFactor = 1.55F;
  record.Entries.Bolt.SupportCap = 13.1F;
  record.Entries.Bolt.StabFactor = 1.93F;
  record.Intersections.RockLoad = 108;
  record.Intersections.Cable.SupportCap = 264;
  record.Intersections.Cable.StabFactor = 2.44F;
  record.Intersections.Bolt.SupportCap = 291.6F;
  record.Intersections.Bolt.StabFactor = 2.7F;
}

void UltimateMetric(Program& program) {
  Design& record = program.project.WorkParms;
  PickBolt(record, 20, 690);
  UseUltimateGrades(record);
  record.Entries.Bolt.GradeManual = 650;
  record.Intersections.Bolt.GradeStd = 800;
  record.Intersections.Bolt.DiameterManual = 21.7F;
  record.Entries.RockLoadHeight = 1.5F;
  record.Entries.RockLoad = 202.3F;
  record.Entries.Cable.SupportCap = 472;
  record.Entries.Cable.StabFactor = 2.33F;
  record.Entries.Bolt.SupportCap = 680.7F;
  record.Entries.Bolt.StabFactor = 3.36F;
  record.Intersections.RockLoad = 1349.6F;
  record.Intersections.Cable.SupportCap = 2360;
  record.Intersections.Cable.StabFactor = 1.75F;
  record.Intersections.Bolt.SupportCap = 2958.7F;
  record.Intersections.Bolt.StabFactor = 2.19F;
}

void AllWarningsEnglish(Program& program) {
  Design& record = program.project.WorkParms;
  UseEverySystem(record);
  PickBolt(record, 0.5F, 40);
  record.Place.CMRR = 25;
  record.Place.DepthofCover = 800;
  record.Place.ActualSpanDiagonals = 58;
  record.Place.EntryWidth = 40;
  record.Primary.StabilityFactor = 2;
  record.Primary.Length = 4;
  record.Primary.BoltsperRow = 2;
  record.Primary.RowSpacing = 6;
  record.Entries.RockLoadHeight = 40;
  record.Intersections.RockLoadHeight = 50;
  record.Entries.RockLoad = 56.1F;
  record.Entries.Cable.SupportCap = 10.6F;
  record.Entries.Cable.StabFactor = 0.19F;
  record.Entries.Truss.SupportCap = 10.6F;
  record.Entries.Truss.StabFactor = 0.19F;
  record.Entries.Bolt.SupportCap = 6.9F;
  record.Entries.Bolt.StabFactor = 0.12F;
  record.Entries.Standing.SupportCap = 12.5F;
  record.Entries.Standing.StabFactor = 0.22F;
  record.Intersections.RockLoad = 199.4F;
  record.Intersections.Cable.SupportCap = 264;
  record.Intersections.Cable.StabFactor = 1.32F;
  record.Intersections.Truss.SupportCap = 84.9F;
  record.Intersections.Truss.StabFactor = 0.43F;
  record.Intersections.Bolt.SupportCap = 68.7F;
  record.Intersections.Bolt.StabFactor = 0.34F;
  record.Intersections.Standing.SupportCap = 200;
  record.Intersections.Standing.StabFactor = 1;
}

void AllWarningsMetric(Program& program) {
  Design& record = program.project.WorkParms;
  UseEverySystem(record);
  PickBolt(record, 12, 280);
  record.Place.CMRR = 25;
  record.Place.DepthofCover = 30;
  record.Place.ActualSpanDiagonals = 18;
  record.Place.EntryWidth = 12;
  record.Primary.Length = 4;
  record.Primary.RowSpacing = 2;
  record.Entries.RockLoadHeight = 11;
  record.Intersections.RockLoadHeight = 9;
  record.Entries.RockLoad = 1558.8F;
  record.Entries.Cable.SupportCap = 472;
  record.Entries.Cable.StabFactor = 0.3F;
  record.Entries.Truss.SupportCap = 106.1F;
  record.Entries.Truss.StabFactor = 0.07F;
  record.Entries.Bolt.SupportCap = 105.6F;
  record.Entries.Bolt.StabFactor = 0.07F;
  record.Entries.Standing.SupportCap = 333.3F;
  record.Entries.Standing.StabFactor = 0.21F;
  record.Intersections.RockLoad = 930.6F;
  record.Intersections.Cable.SupportCap = 2360;
  record.Intersections.Cable.StabFactor = 2.54F;
  record.Intersections.Truss.SupportCap = 848.5F;
  record.Intersections.Truss.StabFactor = 0.91F;
  record.Intersections.Bolt.SupportCap = 316.7F;
  record.Intersections.Bolt.StabFactor = 0.34F;
  record.Intersections.Standing.SupportCap = 2000;
  record.Intersections.Standing.StabFactor = 2.15F;
}

void EverythingOff(Program& program) {
  program.session.options.PrintModuleHeader = 0;
  program.project.WorkParms.Primary.Analysed = 0;
  program.project.WorkParms.Entries.Analysed = 0;
  program.project.WorkParms.Intersections.Analysed = 0;
}

struct Golden {
  UnitSystem units;
  StrengthBasis strengthMode;
  void (*build)(Program& program);
};

const std::map<std::string, Golden>& Goldens() {
  using enum StrengthBasis;
  static const std::map<std::string, Golden> goldens{{"english_defaults", {English, Yield, EnglishDefaults}},
                                                     {"metric_defaults", {Metric, Yield, MetricDefaults}},
                                                     {"every_system_english", {English, Yield, EverySystemEnglish}},
                                                     {"every_system_metric", {Metric, Yield, EverySystemMetric}},
                                                     {"ultimate_english", {English, Ultimate, UltimateEnglish}},
                                                     {"ultimate_metric", {Metric, Ultimate, UltimateMetric}},
                                                     {"all_warnings_english", {English, Yield, AllWarningsEnglish}},
                                                     {"all_warnings_metric", {Metric, Yield, AllWarningsMetric}},
                                                     {"everything_off", {English, Yield, EverythingOff}}};
  return goldens;
}

}  // namespace

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const auto& [name, golden] : Goldens()) names.push_back(name);
  return names;
}

void BuildGolden(Desk& desk, const std::string& name) { Goldens().at(name).build(desk.program); }
UnitSystem GoldenUnits(const std::string& name) { return Goldens().at(name).units; }
StrengthBasis GoldenStrengthMode(const std::string& name) { return Goldens().at(name).strengthMode; }

}  // namespace orby::test
