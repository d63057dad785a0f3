#include "sheet/example_sheets.h"

#include "files/project_reader.h"
#include "sheet/sheet_html.h"
#include "sheet/sheet_json.h"
#include "sheet/sheet_markdown.h"
#include "sheet/sheet_text.h"
#include "sheet/sheets.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

DesignSheet SheetOfExample(const std::string& name) {
  const std::string bytes = ReadTestData("../../examples/" + name);
  Project project;
  project.FileVersion = FormatOf(ItemReader(bytes)).value();
  ReadProject(project, ItemReader(bytes));
  project.CurrentFile = "/designs/" + name;
  const SheetOf made(project.WorkParms);
  DesignSheet sheet = made.Made;
  sheet.Project = {.File = project.CurrentFile,
                   .Title = project.ProjectTitle,
                   .Description = project.ProjectDescription,
                   .Sum = "5e1f0c7d6b2a49388f7e6d5c4b3a29180716253443526170899a8b7c6d5e4f30"};
  return sheet;
}

Design FailingDesign() {
  Design design = FullDesign();
  design.Place.DepthofCover = 0;
  design.Entries.Cable.Use = 0;
  design.Intersections.RockLoadHeight = 0;
  return design;
}

Design WeakestRoof() {
  Design design = FullDesign();
  design.Place.CMRR = 15;
  design.Entries.RockFallAngle = design.Intersections.RockFallAngleXcut = 0;
  return design;
}

}  // namespace

const std::string OddTitle = "Südstrecke <b>5</b> & \"Ä\" | *fett* _unten_ 'é' \\ [a](b) `c` # $x$";

std::vector<NamedSheet> GoldenSheets() {
  return {{"english", SheetOfExample("development-entry.ORB")},
          {"metric", SheetOfExample("australian-grade-metric.ORB")}};
}

std::vector<NamedSheet> SheetsOfAllKinds() {
  std::vector<NamedSheet> sheets = GoldenSheets();
  for (const char* name : {"belt-entry-trusses", "gateroad-standing-supports", "intersection-secondary-bolts"}) {
    sheets.push_back({name, SheetOfExample(std::string(name) + ".ORB")});
  }
  sheets.push_back({"full", SheetOf(FullDesign()).Made});
  sheets.push_back({"failing", SheetOf(FailingDesign()).Made});
  sheets.push_back({"weakest", SheetOf(WeakestRoof()).Made});
  DesignSheet odd = SheetOf(FullDesign()).Made;
  odd.Project = {.File = "/designs/<odd> & \"file\".orb",
                 .Title = OddTitle,
                 .Description = "- " + OddTitle + "\r\n1. ]]>\x01 tab\t-->\n",
                 .Sum = {}};
  sheets.push_back({"odd", odd});
  DesignSheet longTitle = SheetOf(MetricDesign()).Made;
  longTitle.Project.Title.clear();
  for (int i = 0; i < 60; ++i) longTitle.Project.Title += "Gleitbogenausbaustrecke" + std::to_string(i) + " ";
  sheets.push_back({"long-title", longTitle});
  DesignsOfSheets designs(12);
  for (int i = 0; i < 12; ++i) sheets.push_back({"any-" + std::to_string(i), SheetOf(designs.Next()).Made});
  return sheets;
}

const std::vector<SheetFormat>& SheetFormats() {
  static const std::vector<SheetFormat> Formats{
      {".txt", SheetText}, {".md", SheetMarkdown}, {".html", SheetHtml}, {".json", SheetJson}};
  return Formats;
}

}  // namespace orby::test
