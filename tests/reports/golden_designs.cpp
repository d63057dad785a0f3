#include "reports/golden_designs.h"

#include <map>

namespace orby::test {
namespace {

void PickFromTable(ProjectRecord& record, const BoltFields& set, std::string_view name, Single diameter, Single grade) {
  record.*set.Desc = name;
  record.*set.TableDiameter = diameter;
  record.*set.TableGrade = grade;
}

void EnglishDefaults(Program& program) {
  ProjectRecord& record = program.WorkParms;
  PickBolt(record, 0.75F, 75);
  record.RockLoadEntry1 = 10;
  record.SupportCapEntry1 = 10.6F;
  record.StabFactorEntry1 = 1.06F;
  record.RockLoadInter1 = 183;
  record.SupportCapInter1 = 264;
  record.StabFactorInter1 = 1.44F;
}

void MetricDefaults(Program& program) {
  ProjectRecord& record = program.WorkParms;
  PickBolt(record, 20, 520);
  record.RockLoadEntry1 = 335.1F;
  record.SupportCapEntry1 = 472;
  record.StabFactorEntry1 = 1.41F;
  record.RockLoadInter1 = 2212.88F;
  record.SupportCapInter1 = 2360;
  record.StabFactorInter1 = 1.07F;
}

void FillEnglishEntries(ProjectRecord& record) {
  record.RockLoadHeight = 5.5F;
  record.RockFallAngle = 25;
  record.CableLengthSecEntry = 12;
  record.CableCapModeSecEntry = 1;
  record.CableCapacitySecEntry = 1;
  record.CableCapacityManualSecEntry = 31.5F;
  record.CableBoltsPerRowSecEntry = 3;
  record.CableRowSpacingSecEntry = 4.5F;
  record.TrussLengthMemberSecEntry = 7.5F;
  record.TrussAngleSecEntry = 40;
  record.TrussCapacitySecEntry = 32;
  record.TrussSpacingSecEntry = 5;
  record.BoltsperRowSecEntry = 3;
  record.RowSpacingSecEntry = 5;
  record.BoltLengthSecEntry = 8;
  record.SupportTypeNameSecEntry = "Wood Post (8in)";
  record.SupportCapSecEntry = 66;
  record.NumberSupPerRowSecEntry = 1;
  record.SupportRowSpacingSecEntry = 6;
  record.RockLoadEntry1 = 7.26F;
  record.SupportCapEntry1 = 21;
  record.StabFactorEntry1 = 2.9F;
  record.SupportCapEntry2 = 9.8F;
  record.StabFactorEntry2 = 1.35F;
  record.SupportCapEntry3 = 16.2F;
  record.StabFactorEntry3 = 2.2344F;
  record.SupportCapEntry4 = 11;
  record.StabFactorEntry4 = 1.515F;
}

void FillEnglishIntersections(ProjectRecord& record) {
  record.RockLoadHeightInter = 6;
  record.RockFallAngleEntry = 28;
  record.RockFallAngleXcut = 35;
  record.CableLengthSecInter = 14;
  record.CableDiamSecInter = 0.7F;
  record.CableNumberSecInter = 12;
  record.TrussLengthMemberSecInter = 9;
  record.TrussAngleSecInter = 50;
  record.TrussCapacitySecInter = 28.5F;
  record.TrussNumberSecInter = 3;
  record.BoltLengthSecInter = 7;
  record.BoltNumberSecInter = 14;
  record.SupportTypeNameSecInter = "Pumpable Crib (24in)";
  record.SupportCapSecInter = 135;
  record.SupportNumberSecInter = 2;
  record.RockLoadInter1 = 301.25F;
  record.SupportCapInter1 = 428.4F;
  record.StabFactorInter1 = 1.42F;
  record.SupportCapInter2 = 131;
  record.StabFactorInter2 = 0.43F;
  record.SupportCapInter3 = 193.3F;
  record.StabFactorInter3 = 0.64F;
  record.SupportCapInter4 = 270;
  record.StabFactorInter4 = 0.9F;
}

void EverySystemEnglish(Program& program) {
  program.CurrentFile = "/mines/cedar hollow/second north longwall headgate/intersections under the old works.ORB";
  program.ProjectTitle = "Cedar Hollow, second north headgate";
  program.ProjectDescription =
      "Roof of laminated siltstone under a thin rider seam; cables follow the belt.\r\n \r\n"
      "Checked against the survey of the crosscuts.\r\n";
  ProjectRecord& record = program.WorkParms;
  record.CMRR = 52;
  record.CMRRRegionIndex = 1;
  record.CMRRRockTypeIndex = 3;
  record.DepthofCover = 650;
  record.UnitWeight = 165.5F;
  record.ActualSpanDiagonals = 62.5F;
  record.EntryWidth = 18.5F;
  record.StabilityFactor = 1.2F;
  record.BoltLengthPrimary = 6.5F;
  record.BoltsperRowPrimary = 5;
  record.RowSpacingPrimary = 3.5F;
  UseEverySystem(record);
  FillEnglishEntries(record);
  FillEnglishIntersections(record);
  PickFromTable(record, PrimaryBolt, "#6 smooth - grade 75", 0.75F, 75);
  PickFromTable(record, SecEntryBolt, "#7 rebar - grade 60", 0.875F, 60);
  PickFromTable(record, SecInterBolt, "#5 rebar - grade 60", 0.625F, 60);
}

void FillMetricEntries(ProjectRecord& record) {
  record.RockLoadHeight = 1.8F;
  record.RockFallAngle = 20;
  record.CableLengthSecEntry = 4.3F;
  record.CableBoltsPerRowSecEntry = 2;
  record.CableRowSpacingSecEntry = 2.4F;
  record.CableDiamSecEntry = 28.6F;
  record.TrussSpacingSecEntry = 1.5F;
  record.BoltLengthSecEntry = 2.4F;
  record.BoltsperRowSecEntry = 3;
  record.RowSpacingSecEntry = 1.5F;
  record.SupportTypeNameSecEntry = "Propsetter (10in)";
  record.SupportCapSecEntry = 640;
  record.NumberSupPerRowSecEntry = 1;
  record.SupportRowSpacingSecEntry = 2;
  record.RockLoadEntry1 = 222.1F;
  record.SupportCapEntry1 = 808.3F;
  record.StabFactorEntry1 = 3.64F;
  record.SupportCapEntry2 = 282.8F;
  record.StabFactorEntry2 = 1.27F;
  record.SupportCapEntry3 = 509.6F;
  record.StabFactorEntry3 = 2.29F;
  record.SupportCapEntry4 = 320;
  record.StabFactorEntry4 = 1.44F;
}

void FillMetricIntersections(ProjectRecord& record) {
  record.RockLoadHeightInter = 2;
  record.RockFallAngleEntry = 22;
  record.RockFallAngleXcut = 0;
  record.CableLengthSecInter = 6.1F;
  record.CableCapModeSecInter = 1;
  record.CableCapacityStdSecInter = 620;
  record.CableCapacityManualSecInter = 605;
  record.CableNumberSecInter = 8;
  record.BoltLengthSecInter = 2.4F;
  record.BoltNumberSecInter = 12;
  record.SupportTypeNameSecInter = "CAN (24in)";
  record.SupportCapSecInter = 845;
  record.SupportNumberSecInter = 3;
  record.RockLoadInter1 = 1638.455F;
  record.SupportCapInter1 = 4960;
  record.StabFactorInter1 = 3.03F;
  record.SupportCapInter2 = 848.5F;
  record.StabFactorInter2 = 0.52F;
  record.SupportCapInter3 = 1557;
  record.StabFactorInter3 = 0.95F;
  record.SupportCapInter4 = 2535;
  record.StabFactorInter4 = 1.55F;
}

void EverySystemMetric(Program& program) {
  program.CurrentFile = "Cedar Hollow.ORB";
  program.ProjectTitle = "Cedar Hollow, second north headgate";
  program.ProjectDescription = "Belt entry";
  ProjectRecord& record = program.WorkParms;
  record.CMRR = 48;
  record.CMRRRegionIndex = 4;
  record.CMRRRockTypeIndex = 7;
  record.DepthofCover = 220;
  record.UnitWeight = 26;
  record.ActualSpanDiagonals = 18.6F;
  record.EntryWidth = 5.4F;
  record.StabilityFactor = 1.3F;
  record.BoltLengthPrimary = 2.1F;
  record.BoltsperRowPrimary = 6;
  record.RowSpacingPrimary = 1.25F;
  UseEverySystem(record);
  FillMetricEntries(record);
  FillMetricIntersections(record);
  PickFromTable(record, PrimaryBolt, "#7 special rebar - grade 75", 20.4F, 517.1F);
  PickFromTable(record, SecEntryBolt, "#7 rebar - grade 60", 22.2F, 413.7F);
  PickFromTable(record, SecInterBolt, "#5 rebar - grade 60", 15.9F, 413.7F);
}

void UseUltimateGrades(ProjectRecord& record) {
  record.CMRRManual = 1;
  record.SecEntryUseBolt = 1;
  record.SecInterUseBolt = 1;
  record.BoltGradeModeSecEntry = 1;
  record.BoltDiameterModeSecInter = 1;
}

void UltimateEnglish(Program& program) {
  ProjectRecord& record = program.WorkParms;
  PickBolt(record, 0.75F, 100);
  UseUltimateGrades(record);
  record.BoltGradeManualSecEntry = 95;
  record.BoltGradeStdSecInter = 116;
  record.BoltDiameterManualSecInter = 0.8F;
  record.RockLoadHeight = 4.5F;
  record.RockLoadEntry1 = 6.8F;
  record.SupportCapEntry1 = 10.6F;
  record.StabFactorEntry1 = 1.55F;
  record.SupportCapEntry3 = 13.1F;
  record.StabFactorEntry3 = 1.93F;
  record.RockLoadInter1 = 108;
  record.SupportCapInter1 = 264;
  record.StabFactorInter1 = 2.44F;
  record.SupportCapInter3 = 291.6F;
  record.StabFactorInter3 = 2.7F;
}

void UltimateMetric(Program& program) {
  ProjectRecord& record = program.WorkParms;
  PickBolt(record, 20, 690);
  UseUltimateGrades(record);
  record.BoltGradeManualSecEntry = 650;
  record.BoltGradeStdSecInter = 800;
  record.BoltDiameterManualSecInter = 21.7F;
  record.RockLoadHeight = 1.5F;
  record.RockLoadEntry1 = 202.3F;
  record.SupportCapEntry1 = 472;
  record.StabFactorEntry1 = 2.33F;
  record.SupportCapEntry3 = 680.7F;
  record.StabFactorEntry3 = 3.36F;
  record.RockLoadInter1 = 1349.6F;
  record.SupportCapInter1 = 2360;
  record.StabFactorInter1 = 1.75F;
  record.SupportCapInter3 = 2958.7F;
  record.StabFactorInter3 = 2.19F;
}

void AllWarningsEnglish(Program& program) {
  ProjectRecord& record = program.WorkParms;
  UseEverySystem(record);
  PickBolt(record, 0.5F, 40);
  record.CMRR = 25;
  record.DepthofCover = 800;
  record.ActualSpanDiagonals = 58;
  record.EntryWidth = 40;
  record.StabilityFactor = 2;
  record.BoltLengthPrimary = 4;
  record.BoltsperRowPrimary = 2;
  record.RowSpacingPrimary = 6;
  record.RockLoadHeight = 40;
  record.RockLoadHeightInter = 50;
  record.RockLoadEntry1 = 56.1F;
  record.SupportCapEntry1 = 10.6F;
  record.StabFactorEntry1 = 0.19F;
  record.SupportCapEntry2 = 10.6F;
  record.StabFactorEntry2 = 0.19F;
  record.SupportCapEntry3 = 6.9F;
  record.StabFactorEntry3 = 0.12F;
  record.SupportCapEntry4 = 12.5F;
  record.StabFactorEntry4 = 0.22F;
  record.RockLoadInter1 = 199.4F;
  record.SupportCapInter1 = 264;
  record.StabFactorInter1 = 1.32F;
  record.SupportCapInter2 = 84.9F;
  record.StabFactorInter2 = 0.43F;
  record.SupportCapInter3 = 68.7F;
  record.StabFactorInter3 = 0.34F;
  record.SupportCapInter4 = 200;
  record.StabFactorInter4 = 1;
}

void AllWarningsMetric(Program& program) {
  ProjectRecord& record = program.WorkParms;
  UseEverySystem(record);
  PickBolt(record, 12, 280);
  record.CMRR = 25;
  record.DepthofCover = 30;
  record.ActualSpanDiagonals = 18;
  record.EntryWidth = 12;
  record.BoltLengthPrimary = 4;
  record.RowSpacingPrimary = 2;
  record.RockLoadHeight = 11;
  record.RockLoadHeightInter = 9;
  record.RockLoadEntry1 = 1558.8F;
  record.SupportCapEntry1 = 472;
  record.StabFactorEntry1 = 0.3F;
  record.SupportCapEntry2 = 106.1F;
  record.StabFactorEntry2 = 0.07F;
  record.SupportCapEntry3 = 105.6F;
  record.StabFactorEntry3 = 0.07F;
  record.SupportCapEntry4 = 333.3F;
  record.StabFactorEntry4 = 0.21F;
  record.RockLoadInter1 = 930.6F;
  record.SupportCapInter1 = 2360;
  record.StabFactorInter1 = 2.54F;
  record.SupportCapInter2 = 848.5F;
  record.StabFactorInter2 = 0.91F;
  record.SupportCapInter3 = 316.7F;
  record.StabFactorInter3 = 0.34F;
  record.SupportCapInter4 = 2000;
  record.StabFactorInter4 = 2.15F;
}

void EverythingOff(Program& program) {
  program.options.PrintModuleHeader = 0;
  program.WorkParms.PrimSupport = 0;
  program.WorkParms.SecondSupEntries = 0;
  program.WorkParms.SecondSupInter = 0;
}

struct Golden {
  Integer units;
  Integer strengthMode;
  void (*build)(Program& program);
};

const std::map<std::string, Golden>& Goldens() {
  static const std::map<std::string, Golden> goldens{{"english_defaults", {English, 0, EnglishDefaults}},
                                                     {"metric_defaults", {Metric, 0, MetricDefaults}},
                                                     {"every_system_english", {English, 0, EverySystemEnglish}},
                                                     {"every_system_metric", {Metric, 0, EverySystemMetric}},
                                                     {"ultimate_english", {English, 1, UltimateEnglish}},
                                                     {"ultimate_metric", {Metric, 1, UltimateMetric}},
                                                     {"all_warnings_english", {English, 0, AllWarningsEnglish}},
                                                     {"all_warnings_metric", {Metric, 0, AllWarningsMetric}},
                                                     {"everything_off", {English, 0, EverythingOff}}};
  return goldens;
}

}  // namespace

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const auto& [name, golden] : Goldens()) names.push_back(name);
  return names;
}

void BuildGolden(Desk& desk, const std::string& name) { Goldens().at(name).build(desk.program); }
Integer GoldenUnits(const std::string& name) { return Goldens().at(name).units; }
Integer GoldenStrengthMode(const std::string& name) { return Goldens().at(name).strengthMode; }

}  // namespace orby::test
