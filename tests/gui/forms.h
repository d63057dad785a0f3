// Every form of the program, with its window.
#pragma once

#include <QMainWindow>
#include <QWidget>
#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/description_dialog.h"
#include "dialogs/estimator_dialog.h"
#include "dialogs/graph_options_dialog.h"
#include "dialogs/graph_window.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/preview_window.h"
#include "dialogs/results_window.h"
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

// The options of a graph, with a chart of their own to change.
struct ChartOfItsOwn {
  explicit ChartOfItsOwn(Program& program) : graph(program) {}
  GraphWindow graph;
};
class OptionsOfAChart : private ChartOfItsOwn, public GraphOptionsDialog {
 public:
  explicit OptionsOfAChart(Program& program) : ChartOfItsOwn(program), GraphOptionsDialog(program, graph.graph1) {}
};

inline constexpr std::array FormMakers{
    FormMaker{"frmMain", Plain<MainWindow>},
    FormMaker{"frmPENVParm", Plain<ParametersDialog>},
    FormMaker{"frmTULKCost", Plain<CostDialog>},
    FormMaker{"frmTULKDesc", Plain<DescriptionDialog>},
    FormMaker{"frmCMRREst", Plain<EstimatorDialog>},
    FormMaker{"frmResTxtPlt", Plain<ResultsWindow>},
    FormMaker{"frmPreview", Plain<PreviewWindow>},
    FormMaker{"frmGraph", Plain<GraphWindow>},
    FormMaker{"frmGraphOpt",
              [](Program& program) -> std::unique_ptr<Form> { return std::make_unique<OptionsOfAChart>(program); }},
};

}  // namespace orby::test
