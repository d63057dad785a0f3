// Every form of the program with its window.
#pragma once

#include <QMainWindow>
#include <QWidget>
#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "dialogs/backups_window.h"
#include "dialogs/convert_dialog.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/description_dialog.h"
#include "dialogs/design_chart_window.h"
#include "dialogs/designs_window.h"
#include "dialogs/disclaimer.h"
#include "dialogs/estimator_dialog.h"
#include "dialogs/font_dialog.h"
#include "dialogs/graph_options_dialog.h"
#include "dialogs/graph_window.h"
#include "dialogs/how_sure_window.h"
#include "dialogs/options_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/preview_window.h"
#include "dialogs/resource_files.h"
#include "dialogs/results_window.h"
#include "dialogs/settings_dialog.h"
#include "dialogs/sheet_window.h"
#include "dialogs/side_by_side_window.h"
#include "dialogs/signed_report_window.h"
#include "dialogs/text_browser.h"
#include "dialogs/unit_calculator_window.h"
#include "dialogs/update_dialog.h"
#include "dialogs/what_matters_window.h"
#include "dialogs/would_hold_window.h"
#include "shell/main_window.h"

namespace orby::test {

struct FormMaker {
  std::string_view name;
  std::unique_ptr<Form> (*make)(Program& program);
};

inline void PrintTo(const FormMaker& maker, std::ostream* out) { *out << maker.name; }

template <class Model>
std::unique_ptr<Form> Plain(Program& program) {
  return std::make_unique<Model>(program);
}

// The options of a graph with a chart for them to change.
struct ChartOfItsOwn {
  explicit ChartOfItsOwn(Program& program) : graph(program) {}
  GraphWindow graph;
};
class OptionsOfAChart : private ChartOfItsOwn, public GraphOptionsDialog {
 public:
  explicit OptionsOfAChart(Program& program) : ChartOfItsOwn(program), GraphOptionsDialog(program, graph.graph1) {}
};

// The study of the design in a dialog.
struct OpenParameters {
  explicit OpenParameters(Program& program) : parameters(program) { parameters.Open(); }
  ParametersDialog parameters;
};
class StudyOfADesign : private OpenParameters, public WouldHoldWindow {
 public:
  explicit StudyOfADesign(Program& program) : OpenParameters(program), WouldHoldWindow(program, parameters) {}
};

inline constexpr std::array FormMakers{
    FormMaker{"frmMain",
              [](Program& program) {
                program.session.settings.ShowDisclaim = 0;  // it would ask before the window is open
                return Plain<MainWindow>(program);
              }},
    FormMaker{"frmSummary",
              [](Program& program) -> std::unique_ptr<Form> {
                return std::make_unique<SummaryPane>(program, SummaryCommands{});
              }},
    FormMaker{"frmPENVParm", Plain<ParametersDialog>},
    FormMaker{"frmTULKCost", Plain<CostDialog>},
    FormMaker{"frmTULKDesc", Plain<DescriptionDialog>},
    FormMaker{"frmCMRREst", Plain<EstimatorDialog>},
    FormMaker{"frmResTxtPlt", Plain<ResultsWindow>},
    FormMaker{"frmPreview", Plain<PreviewWindow>},
    FormMaker{"frmSheet",
              [](Program& program) -> std::unique_ptr<Form> {
                return std::make_unique<SheetWindow>(program, SheetOfProject(program));
              }},
    FormMaker{"frmSignedReport", Plain<SignedReportWindow>},
    FormMaker{"frmWhatMatters", Plain<WhatMattersWindow>},
    FormMaker{"frmDesignChart", Plain<DesignChartWindow>},
    FormMaker{"frmHowSure",
              [](Program& program) -> std::unique_ptr<Form> {
                static UnsavedStudy unsaved;
                return std::make_unique<HowSureWindow>(program, unsaved);
              }},
    FormMaker{"frmSideBySide", Plain<SideBySideWindow>},
    FormMaker{"frmDesigns", Plain<DesignsWindow>},
    FormMaker{"frmGraph", Plain<GraphWindow>},
    FormMaker{"frmConvert", Plain<ConvertDialog>},
    FormMaker{"frmUnits", Plain<UnitCalculator>},
    FormMaker{"frmTextBrow", Plain<TextBrowser>},
    FormMaker{"frmUpdate", Plain<UpdateDialog>},
    FormMaker{"frmTULKOpts", Plain<OptionsDialog>},
    FormMaker{"frmGraphOpt",
              [](Program& program) -> std::unique_ptr<Form> { return std::make_unique<OptionsOfAChart>(program); }},
    FormMaker{
        "frmSet",
        [](Program& program) -> std::unique_ptr<Form> { return std::make_unique<SettingsDialog>(program, nullptr); }},
    FormMaker{"frmFont",
              [](Program& program) -> std::unique_ptr<Form> {
                return std::make_unique<FontDialog>(program, FontChoice{}, std::vector<std::string>{"Courier New"});
              }},
    FormMaker{"frmDisclaimer", Plain<Disclaimer>},
    FormMaker{"frmBackups", Plain<BackupsWindow>},
    FormMaker{"frmResource", Plain<ResourceFiles>},
    FormMaker{"frmWouldHold",
              [](Program& program) -> std::unique_ptr<Form> { return std::make_unique<StudyOfADesign>(program); }},
};

}  // namespace orby::test
