// Steps that several parts of a sheet share.
#include <algorithm>

#include "engine/formulas.h"
#include "engine/primary_support.h"
#include "sheet/sheet_parts.h"

namespace orby {
namespace {

constexpr SymbolMeaning YieldStrength{"G_y", "yield strength", SheetUnit::StressInKsi};
constexpr SymbolMeaning UltimateStrength{"G_u", "ultimate strength", SheetUnit::StressInKsi};

// One of the two ways from a strength to the other.
struct StrengthRule {
  CatalogList Catalogs::*List;
  Ksi (*Other)(Ksi grade, const Catalogs& catalogs);
  const SymbolMeaning& Symbol;
  Law Relation;
  std::string_view Title;
  std::string_view Note;
};

constexpr StrengthRule ToYield{.List = &Catalogs::DefaultBoltUTSArrayENG,
                               .Other = YieldFromUltimateKsi,
                               .Symbol = YieldStrength,
                               .Relation = Law::YieldGrade,
                               .Title = "Yield strength of ",
                               .Note = " ksi is in the list of ultimate strengths. This is its pair."};
constexpr StrengthRule ToUltimate{.List = &Catalogs::DefaultBoltGradeArrayENG,
                                  .Other = UltimateFromYieldKsi,
                                  .Symbol = UltimateStrength,
                                  .Relation = Law::UltimateGrade,
                                  .Title = "Ultimate strength of ",
                                  .Note = " ksi is in the list of yield grades. This is its pair."};

SheetNumber OtherStrength(SheetWriter& writer, const StrengthRule& rule, const std::string& bolt,
                          const SheetNumber& grade, const Catalogs& catalogs) {
  const std::string title = std::string(rule.Title) + bolt;
  if (!grade.Value || !(catalogs.*rule.List).FirstPlaceOf(*grade.Value))
    return writer.Step(rule.Relation, title, {grade});
  const Single paired = rule.Other(Ksi(static_cast<Single>(*grade.Value)), catalogs).Value;
  return writer.Found(title, rule.Symbol, paired, grade.Text + std::string(rule.Note));
}

}  // namespace

SheetNumber InFeetStep(SheetWriter& writer, const std::string& name, Single length) {
  const SheetNumber typed = InputNumber(length);
  return writer.Units() == Metric ? writer.Step(Law::FeetFromMetres, name + " in feet", {typed}) : typed;
}

WorkingBoltNumbers InInchesAndKsi(SheetWriter& writer, const std::string& bolt, const BoltSelection& set) {
  const Bolt selected = SelectedBolt(set);
  const SheetNumber diameter = InputNumber(selected.Diameter);
  const SheetNumber grade = InputNumber(selected.Grade);
  if (writer.Units() != Metric) return {diameter, grade};
  return {writer.Step(Law::InchesFromMillimetres, "Diameter of " + bolt + " in inches", {diameter}),
          writer.Step(Law::KsiFromMPa, "Grade of " + bolt + " in ksi", {grade})};
}

SheetNumber YieldStep(SheetWriter& writer, const std::string& bolt, const SheetNumber& grade,
                      const Catalogs& catalogs) {
  return OtherStrength(writer, ToYield, bolt, grade, catalogs);
}

SheetNumber UltimateStep(SheetWriter& writer, const std::string& bolt, const SheetNumber& grade,
                         const Catalogs& catalogs) {
  return OtherStrength(writer, ToUltimate, bolt, grade, catalogs);
}

void AddJudgements(SheetWriter& writer, const Verdicts& judged, Opening where, std::initializer_list<Aspect> aspects) {
  for (const Verdict& verdict : judged.All()) {
    if (verdict.Where == where && std::ranges::find(aspects, verdict.What) != aspects.end()) writer.Judgement(verdict);
  }
}

void StandardCheck(SheetWriter& writer, const std::string& bolt, const WorkingBoltNumbers& working) {
  const bool isMetric = writer.Units() == Metric;
  writer.Step(isMetric ? Law::StandardCapacityInKilonewtons : Law::StandardCapacity,
              "Capacity of " + bolt + ", against the standard", {working.Diameter, working.Grade});
  writer.Note("The standard asks for at least " + NumberText(SmallestCapacity(writer.Units())) + " " +
              std::string(UnitText(SheetUnit::Force, writer.Units())) + ".");
}

}  // namespace orby
