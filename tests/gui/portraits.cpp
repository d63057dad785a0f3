// Paints every window of the program, in both unit systems, light and dark, and its icon. Beside each picture stands
// where its texts and marks are:
//
//   portraits folder [size of the text in points]
//
// QT_SCALE_FACTOR sets the scale.
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryFile>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>

#include "core/dialog_helpers.h"
#include "design/catalogs.h"
#include "dialogs/backups_window.h"
#include "dialogs/chart_scene.h"
#include "dialogs/convert_dialog.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/curve_command.h"
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
#include "dialogs/project_report.h"
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
#include "files/new_project.h"
#include "files/project_file.h"
#include "gui/gui_bench.h"
#include "gui/painted_boxes.h"
#include "qt/boundary.h"
#include "qt/chart_view.h"
#include "qt/contrast.h"
#include "qt/help_viewer.h"
#include "qt/help_window.h"
#include "qt/main_view.h"
#include "qt/message_boxes.h"
#include "qt/picture_files.h"
#include "qt/pictures.h"
#include "reports/calculation_report.h"
#include "reports/input_echo.h"
#include "shell/main_window.h"

namespace orby::test {
namespace {

QPalette DarkPalette() {
  const QColor window(0x2b, 0x2b, 0x2b);
  const QColor base(0x1f, 0x1f, 0x1f);
  const QColor text(0xe6, 0xe6, 0xe6);
  QPalette dark(QColor(0x3a, 0x3a, 0x3a), window);
  dark.setColor(QPalette::Base, base);
  dark.setColor(QPalette::AlternateBase, window);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(role, text);
    dark.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
  }
  dark.setColor(QPalette::Highlight, QColor(0x2f, 0x7f, 0xc1));
  return dark;
}

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Photographer {
 public:
  Photographer(const QString& folder, const QString& series) : folder_(folder), series_(series) {}

  void Take(QWidget& window, const std::string& name) const {
    Settle();
    window.grab().save(PathOf(name, ".png"));
    QFile boxes(PathOf(name, ".json"));
    if (boxes.open(QIODevice::WriteOnly)) boxes.write(QJsonDocument(PaintedBoxes(window)).toJson());
  }
  // Takes a chart as it is saved.
  void Take(const Chart& chart, const std::string& name) const {
    const std::string picture = QtPictureFiles().AsPng(ChartScene(chart));
    QImage::fromData(QByteArray::fromStdString(picture)).save(PathOf(name, ".png"));
  }

 private:
  QString PathOf(const std::string& name, const char* ending) const {
    return folder_.filePath(series_ + "-" + QString::fromStdString(name) + ending);
  }

  QDir folder_;
  QString series_;
};

QTabWidget* TabsIn(const QWidget& page) {
  for (auto* tabs : page.findChildren<QTabWidget*>()) {
    if (tabs->isVisible()) return tabs;
  }
  return nullptr;
}

// Takes every page of the tabs, and of the tabs on the pages.
void TakePages(const Photographer& photographer, QDialog& window, QTabWidget& tabs, const std::string& name) {
  for (int page = 0; page < tabs.count(); ++page) {
    if (!tabs.isTabEnabled(page)) continue;
    tabs.setCurrentIndex(page);
    Settle();
    const std::string pageName = name + "-" + std::to_string(page);
    if (QTabWidget* inner = TabsIn(*tabs.widget(page))) {
      TakePages(photographer, window, *inner, pageName);
    } else {
      photographer.Take(window, pageName);
    }
  }
}

// Prices of all table bolts in the first four stocked lengths.
PriceLists SomePrices() {
  Catalogs catalogs;
  SetBuiltInCatalogs(catalogs);
  PriceLists lists = BuiltInPrices();
  for (PriceList& list : lists) {
    for (std::size_t bolt = 0; bolt < catalogs.BoltTableENG.size(); ++bolt) {
      for (std::size_t length = 0; length < 4; ++length) {
        list.Prices.push_back({PricedSupport::Bolt, catalogs.BoltTableENG[bolt].Name, list.BoltLengths[length],
                               4.25F + static_cast<Single>(bolt) * 0.5F + static_cast<Single>(length) * 1.25F});
      }
    }
    list.Prices.push_back({PricedSupport::Truss, "", 0, 385});
    list.Prices.push_back({PricedSupport::Standing, "Wood Post (6in)", 0, 42});
  }
  return lists;
}

// The program with an open example. Shows all windows one after the other.
class Sitting {
 public:
  Sitting(const Photographer& photographer, UnitSystem units) : photographer_(photographer), program_(AsPlatform()) {
    SetBuiltInCatalogs(program_.session.catalogs);
    program_.session.settings.UnitsDefault = units;
    program_.session.settings.DisplayFontName = "Arial";
    program_.session.settings.ShowDisclaim = 0;
    program_.session.folders.ProgramTemporary = "/home/user/Documents/Orby/Temp/";
    program_.session.IniFilePath = "/home/user/Documents/Orby/ORBY.INI";
    FileNew(program_, Keeping::Nothing);
    const std::string file = units == Metric ? "australian-grade-metric.ORB" : "intersection-secondary-bolts.ORB";
    const std::string path = "/home/user/Documents/Orby/" + file;
    platform_.files.files[path] = BytesOf(std::string(EXAMPLES_DIR) + "/" + file);
    for (const QString& name : QDir(EXAMPLES_DIR).entryList({"*.ORB"})) {
      platform_.files.files["/program/examples/" + name.toStdString()] =
          BytesOf(std::string(EXAMPLES_DIR) + "/" + name.toStdString());
    }
    window_ = std::make_unique<MainWindow>(program_);
    window_->Open();
    platform_.screen.ShowMain(*window_, false);
    FurnishMainWindow(platform_.screen, *window_);
    photographer_.Take(platform_.screen.Main(), "main-begin");
    program_.session.options.ShowInputScreenOnLoad = 0;
    platform_.fileDialogs.answers.push_back(path);
    window_->mnuFileItem.ClickItem(FileItem::Open);
    BuildResults(program_, program_.project.WorkParms);
    program_.windows.WorkParmsCopy = program_.project.WorkParms;
  }
  ~Sitting() { window_->Close(); }
  Sitting(const Sitting&) = delete;
  Sitting& operator=(const Sitting&) = delete;

  void TakeAll() {
    TakeMain();
    TakeDescription();
    TakeParameters();
    TakeMarkedFields();
    TakeStudy();
    TakeSheet();
    TakeSignedReport();
    TakeWhatMatters();
    TakeHowSure();
    TakeSideBySide();
    TakeDesignChart();
    TakeDesigns();
    TakeDialog<CostDialog>("cost");
    TakeEstimator();
    TakeOptions();
    TakeSettings();
    TakeReport();
    TakeDialog<ConvertDialog>("convert");
    TakeCalculator();
    TakeBrowser();
    TakeHelp();
    TakeMessages();
    TakeBackups();
  }

 private:
  Platform AsPlatform() {
    RealDoors real;
    real.boxes = &boxes_;
    return platform_.AsPlatform(real);
  }

  // Takes the main window, then without its history, and in its smallest size.
  void TakeMain() {
    QMainWindow& main = platform_.screen.Main();
    photographer_.Take(main, "main");
    window_->mnuUtilItem.ClickItem(UtilityItem::ToggleHistory);
    photographer_.Take(main, "main-alone");
    window_->mnuUtilItem.ClickItem(UtilityItem::ToggleHistory);
    const QSize size = main.size();
    main.resize(main.minimumSizeHint());
    photographer_.Take(main, "main-small");
    main.resize(size);
  }

  // Takes the window without backups, then with a backup of each kind.
  void TakeBackups() {
    program_.session.folders.ProgramData = "/home/user/Documents/Orby/";
    TakeDialog<BackupsWindow>("backups-empty");
    KeepDamaged(program_, "ORBY_RECOVERY_1\r\nCurrentFile=/home/user/Documents/Orby/north panel.ORB\r\n");
    KeepBackup(program_, program_.project.CurrentFile, BytesOf(std::string(EXAMPLES_DIR) + "/belt-entry-trusses.ORB"),
               BackupReason::ChangedOnDisk);
    KeepDropped(program_, program_.project, BackupReason::Dropped);
    TakeDialog<BackupsWindow>("backups");
  }

  template <class Model>
  void TakeDialog(const std::string& name) {
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, name);
      window.close();
    });
    Model dialog(program_);
    ShowForm(program_, dialog);
  }

  void TakeDescription() {
    program_.project.ProjectDescription =
        "North mains, panel 3.\r\nRoof of thinly bedded shale; the cutters start at the crosscuts.";
    TakeDialog<DescriptionDialog>("description");
  }

  void TakeParameters() {
    scripts_.Add([&](QDialog& window) {
      for (auto* box : window.findChildren<QCheckBox*>()) {
        if (box->objectName() != "chkCMRRManual") box->setChecked(true);
      }
      auto& tabs = Find<QTabWidget>(window, "SSTab1");
      for (const char* member : {"_0", "_1"}) {
        for (auto* option : window.findChildren<QRadioButton*>()) {
          if (option->objectName().endsWith(member)) option->setChecked(true);
        }
        Settle();
        TakePages(photographer_, window, tabs, std::string("parameters") + member);
      }
      Click(window, "Command1");
    });
    ParametersDialog dialog(program_);
    ShowForm(program_, dialog);
  }

  // Takes texts that are partly read, and numbers out of range.
  void TakeMarkedFields() {
    scripts_.Add([&](QDialog& window) {
      TypeInto(window, "txtDepthofCover", "1,5");
      TypeInto(window, "txtEntryWidth", "45");
      TypeInto(window, "txtUnitWeight", "99");
      photographer_.Take(window, "parameters-marked");
      Click(window, "Command1");
    });
    ParametersDialog dialog(program_);
    ShowForm(program_, dialog);
  }

  // Takes the pages of the study of a design that is short of support, with some prices.
  void TakeStudy() {
    program_.session.prices = SomePrices();
    scripts_.Add([&](QDialog& window) {
      TypeInto(window, "txtRowSpacingPrimary", program_.project.WorkParms.Units == Metric ? "6" : "8.5");
      scripts_.Add([&](QDialog& study) {
        auto& tabs = Find<QTabWidget>(study, "tabStudy");
        tabs.setCurrentIndex(1);
        Click(study, "cmdSearch");
        while (Find<QPushButton>(study, "cmdStop").isEnabled()) {
          platform_.clock.Pass();
          Settle();
        }
        TakePages(photographer_, study, tabs, "would-hold");
        study.close();
      });
      Click(window, "cmdWouldHold");
      photographer_.Take(window, "parameters-short");
      Click(window, "Command1");
    });
    ParametersDialog dialog(program_);
    ShowForm(program_, dialog);
  }

  // Takes the calculation sheet, with a text that was looked for.
  void TakeSheet() {
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, "sheet");
      TypeInto(window, "txtFind", "stability");
      Click(window, "cmdFind");
      photographer_.Take(window, "sheet-found");
      window.close();
    });
    ShowSheet(program_, SheetOfProject(program_));
  }

  void TakeWhatMatters() {
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, "what-matters");
      Find<QComboBox>(window, "cmbChart").setCurrentText("Spider");
      photographer_.Take(window, "what-matters-spider");
      window.close();
    });
    ShowWhatMatters(program_);
  }

  // Takes the map of a figure, the number that holds with a point that is read out, and a fault.
  void TakeDesignChart() {
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, "design-chart");
      Find<QComboBox>(window, "cmbSubject").setCurrentText("Greatest Roof Bolt Row Spacing that holds");
      Settle();
      while (!Find<QPushButton>(window, "cmdPrint").isEnabled()) {
        platform_.clock.Pass();
        Settle();
      }
      auto& chart = Find<QWidget>(window, "picChart");
      chart.setFocus();
      for (int i = 0; i < 9; ++i) QTest::keyClick(&chart, i % 3 == 0 ? Qt::Key_Up : Qt::Key_Right);
      Settle();
      photographer_.Take(window, "design-chart-number");
      TypeInto(window, "txtUpLow", "90");
      photographer_.Take(window, "design-chart-fault");
      window.close();
    });
    ShowDesignChart(program_);
  }

  void TakeSignedReport() {
    scripts_.Add([&](QDialog& window) {
      TypeInto(window, "txtCompany", "Brannock Coal");
      TypeInto(window, "txtMine", "Cinder Hollow Mine");
      TypeInto(window, "txtSection", "3 East, crosscuts 14 to 22");
      TypeInto(window, "txtAuthor", "M. Delacroix-Harrington");
      TypeInto(window, "txtRevision", "B");
      photographer_.Take(window, "signed-report");
      Click(window, "chkSheet");
      window.findChild<QTabWidget*>("tabReport")->setCurrentIndex(1);
      photographer_.Take(window, "signed-report-contents");
      window.close();
    });
    ShowSignedReport(program_);
  }

  // Takes the examples and a damaged file as they are opened, sorted by a figure with more columns, and filtered.
  void TakeDesigns() {
    const std::string folder = "/home/user/mine/";
    platform_.files.folders.insert({"/home/user/mine", "/home/user/mine/north mains"});
    int number = 0;
    for (const QString& name : QDir(EXAMPLES_DIR).entryList({"*.ORB"})) {
      const std::string inside = ++number % 2 == 0 ? "north mains/" : "";
      platform_.files.files[folder + inside + name.toStdString()] =
          BytesOf(std::string(EXAMPLES_DIR) + "/" + name.toStdString());
    }
    platform_.files.files[folder + "notes.ORB"] = "Dear diary";
    program_.session.designsFolder = folder;
    DesignsWindow designs(program_);
    scripts_.Add([&](QDialog& window) {
      const auto wait = [&] {
        while (designs.IsBusy()) {
          platform_.clock.Pass();
          Settle();
        }
        Settle();
      };
      wait();
      photographer_.Take(window, "designs");
      Click(window, "chkVerdicts");
      Find<QComboBox>(window, "cmbUnits").setCurrentText("Metric");
      Find<QComboBox>(window, "cmbSort").setCurrentText("Depth of Cover");
      wait();
      photographer_.Take(window, "designs-sorted");
      Find<QComboBox>(window, "cmbState").setCurrentText("Falls short");
      wait();
      photographer_.Take(window, "designs-short");
      window.close();
    });
    ShowForm(program_, designs);
    program_.session.designsFolder.clear();
  }

  // Takes the pages of a study with measured ratings, and each chart of its result.
  void TakeHowSure() {
    const bool isMetric = program_.project.WorkParms.Units == Metric;
    scripts_.Add([&](QDialog& window) {
      const auto choose = [&](std::string_view list, const QString& text) {
        Find<QComboBox>(window, list).setCurrentText(text);
        Settle();
      };
      choose("cmbInput", isMetric ? "depth of cover (m)" : "depth of cover (ft)");
      TypeInto(window, "txtSecond", isMetric ? "25" : "80");
      TypeInto(window, "txtLowest", isMetric ? "90" : "300");
      Click(window, "cmdAdd");
      choose("cmbInput", isMetric ? "rock load height in entries (m)" : "rock load height in entries (ft)");
      choose("cmbLaw", "triangular");
      TypeInto(window, "txtFirst", isMetric ? "1" : "3");
      TypeInto(window, "txtThird", isMetric ? "3" : "10");
      TypeInto(window, "txtLowest", "");
      Click(window, "cmdAdd");
      choose("cmbInput", "roof rating");
      choose("cmbLaw", "measured values");
      Find<QPlainTextEdit>(window, "txtValues").setPlainText("38\n41\n42\n42\n45\n47\n50\n52\n55\n61\n");
      Click(window, "cmdAdd");
      TypeInto(window, "txtRank", "-0.3");
      Click(window, "cmdSetRank");
      Click(window, "cmdRun");
      while (Find<QPushButton>(window, "cmdStop").isEnabled()) {
        platform_.clock.Pass();
        Settle();
      }
      TakePages(photographer_, window, Find<QTabWidget>(window, "tabSure"), "how-sure");
      for (const auto& [name, chart] :
           {std::pair("cumulative", "Cumulative curve"), std::pair("ranks", "Rank correlations"),
            std::pair("convergence", "Convergence"), std::pair("scatter", "Scatter")}) {
        choose("cmbChart", chart);
        photographer_.Take(window, std::string("how-sure-") + name);
      }
      window.close();
    });
    ShowHowSure(program_, unsavedStudy_);
  }

  // Takes the project beside variants with other supports and numbers, first two of them, then eight.
  void TakeSideBySide() {
    Design variant = program_.project.WorkParms;
    for (int i = 1; i < 8; ++i) {
      variant.Place.DepthofCover *= 1.1F;
      variant.Primary.Length *= 1.06F;
      variant.Primary.RowSpacing *= 0.95F;
      KeepVariant(program_, variant);
      if (i == 1) ShowSides("side-by-side-two");
    }
    program_.windows.compared.Variants[1].Name = "Longer bolts in closer rows under the deepest part of the panel";
    ShowSides("side-by-side");
    program_.windows.compared = {};
  }
  void ShowSides(const std::string& name) {
    scripts_.Add([&](QDialog& window) {
      TakePages(photographer_, window, Find<QTabWidget>(window, "tabSide"), name);
      window.close();
    });
    ShowSideBySide(program_);
  }

  // Takes a form that this button closes.
  void TakeForm(Form& form, const std::string& name, std::string_view button) {
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, name);
      Click(window, button);
    });
    ShowForm(program_, form);
  }

  void TakeSettings() {
    program_.session.settings.DataPath = "/home/user/Documents/MyStrataDesk/ORBY/";
    SettingsDialog settings(program_, nullptr);
    TakeForm(settings, "settings", "cmdCancel");
    FontDialog font(program_, {"DejaVu Sans Mono", 14}, {"Arial", "Courier New", "DejaVu Sans", "DejaVu Sans Mono"});
    TakeForm(font, "font", "cmdCancel");
    program_.session.settings.ShowDisclaim = 1;
    Disclaimer disclaimer(program_);
    TakeForm(disclaimer, "disclaimer", "Command1");
    ResourceFiles resources(program_);
    TakeForm(resources, "resources", "Command1");
    UpdateDialog updates(program_);
    TakeForm(updates, "updates", "Command1");
  }

  void TakeOptions() {
    scripts_.Add([&](QDialog& window) {
      TakePages(photographer_, window, Find<QTabWidget>(window, "SSTab1"), "options");
      Click(window, "cmdCancel");
    });
    OptionsDialog dialog(program_);
    ShowForm(program_, dialog);
  }

  void TakeEstimator() {
    scripts_.Add([&](QDialog& window) {
      for (auto* region : window.findChildren<QRadioButton*>()) {
        region->setChecked(true);
        photographer_.Take(window, "estimator-" + region->objectName().right(1).toStdString());
      }
      Click(window, "Command1");
    });
    EstimatorDialog dialog(program_);
    ShowForm(program_, dialog);
  }

  void TakeReport() {
    TakeDialog<PreviewWindow>("preview");
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, "results-0");
      Click(window, "Command4");
      photographer_.Take(window, "results-1");
      Click(window, "cmdGraph");
      photographer_.Take(window, "results-list");
      Press(Qt::Key_F, Qt::ControlModifier);
      Type("system");
      Press(Qt::Key_Return);
      photographer_.Take(window, "results-find");
      window.close();
    });
    ShowResults(program_);
    TakeGraphs();
  }

  void TakeGraphs() {
    GraphWindow graph(program_);
    for (const Integer curve : {Integer{1}, Integer{5}, Integer{8}}) {
      TakeCurve(program_, program_.windows.WorkParmsCopy, curve);
      graph.ShowCurve(curve);
      photographer_.Take(*WindowOnScreen(graph), "graph-" + std::to_string(curve));
      photographer_.Take(graph.graph1, "saved-graph-" + std::to_string(curve));
    }
    graph.GraphOptionsItem.ClickItem(0);
    Settle();
    const auto& chart = Find<ChartView>(*WindowOnScreen(graph), "graph1");
    graph.graph1.MouseMove(chart.HitAt(chart.PlaceOf(0, 7).toPoint()));
    photographer_.Take(*WindowOnScreen(graph), "graph-point");
    scripts_.Add([&](QDialog& window) {
      Click(window, "Option1_1");
      photographer_.Take(window, "graph-options");
      Click(window, "Command1");
    });
    graph.GraphOptionsItem.ClickItem(1);
    TakeKeptCurves(graph);
    graph.Close();
    Settle();
  }

  // Takes the curves of three designs in one chart.
  void TakeKeptCurves(GraphWindow& graph) {
    Design design = program_.windows.WorkParmsCopy;
    for (const Single larger : {1.0F, 1.08F, 1.15F}) {
      design.Place.ActualSpanDiagonals *= larger;
      TakeCurve(program_, design, 1);
      graph.ShowCurve(1);
      if (larger < 1.1F) graph.cmdKeep.Press();
    }
    photographer_.Take(*WindowOnScreen(graph), "graph-kept");
    photographer_.Take(graph.graph1, "saved-graph-kept");
    graph.cmdForget.Press();
  }

  void TakeCalculator() {
    scripts_.Add([&](QDialog& window) {
      Type("6.2");
      TakePages(photographer_, window, Find<QTabWidget>(window, "SSTab1"), "units");
      Click(window, "Command1");
    });
    UnitCalculator calculator(program_);
    ShowForm(program_, calculator);
  }

  // Takes the browser in a subfolder, while it reads a file.
  void TakeBrowser() {
    platform_.files.folders = {"",
                               "/home",
                               "/home/user",
                               "/home/user/Documents",
                               "/home/user/Documents/Orby",
                               "/home/user/Documents/Orby/Mines",
                               "/home/user/Documents/Orby/Temp"};
    std::string report;
    while (report.size() < 2 * TextBrowser::PieceBytes) report += program_.session.OutBuf[0];
    platform_.files.files["/home/user/Documents/Orby/echo.ORB"] = report;
    program_.session.settings.DataPath = "/home/user/Documents/Orby/";
    program_.session.textBrowse.BrowseFontName = "Courier New";
    scripts_.Add([&](QDialog& window) {
      Find(window, "File1").setFocus();
      Press(Qt::Key_Home);
      Press(Qt::Key_Down);
      Press(Qt::Key_Enter);
      platform_.clock.Pass();
      photographer_.Take(window, "browser");
      Click(window, "Check1");
      photographer_.Take(window, "browser-outside");
      Click(window, "Command1");
    });
    TextBrowser browser(program_);
    ShowForm(program_, browser);
  }

  void TakeHelp() {
    QtHelpViewer viewer;
    viewer.ShowContents(HELP_DIR "/ORBY.CHM");
    HelpWindow& window = *viewer.Window();
    photographer_.Take(window, "help-contents");
    window.Browser().GoTo("parameters-primary.html");
    Press(Qt::Key_F, Qt::ControlModifier);
    Type("bolt");
    photographer_.Take(window, "help-find");
    auto& panes = Find<QTabWidget>(window, "helpPanes");
    panes.setCurrentIndex(1);
    photographer_.Take(window, "help-index");
    panes.setCurrentIndex(2);
    panes.currentWidget()->setFocus();
    Type("cable bolt");
    Press(Qt::Key_Return);
    photographer_.Take(window, "help-search");
    viewer.Close();
    Settle();
  }

  void TakeMessages() {
    program_.project.FileSaved = false;
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, "message-question");
      Press(Qt::Key_Escape);
    });
    window_->MayClose();
    program_.project.FileSaved = true;
    scripts_.Add([&](QDialog& window) {
      photographer_.Take(window, "message-range");
      Press(Qt::Key_Enter);
    });
    program_.windows.titles.RangeErrorTitle = "Parameters Range Error";
    RangeCheck(program_, "9999", 0, 100, "CMRR");
  }

  const Photographer& photographer_;
  ModalScripts scripts_;
  GuiPlatform platform_;
  QtMessageBoxes boxes_;
  Program program_;
  UnsavedStudy unsavedStudy_;
  std::unique_ptr<MainWindow> window_;
};

// Paints the program's icon in the sizes of an .ico file.
void PaintIcons(const QString& folder) {
  for (const int size : {16, 24, 32, 48, 64, 256}) {
    ThemedIcon("orby").pixmap(size).save(QDir(folder).filePath(QString("icon-%1.png").arg(size)));
  }
}

int TakePortraits(const QString& folder) {
  QDir().mkpath(folder);
  PaintIcons(folder);
  const QPalette light = QApplication::palette();
  for (const bool dark : {false, true}) {
    QApplication::setPalette(dark ? DarkPalette() : light);
    MakeSelectionReadable();
    for (const UnitSystem units : {English, Metric}) {
      const QString series = QString(units == Metric ? "metric" : "english") + (dark ? "-dark" : "-light");
      const Photographer photographer(folder, series);
      Sitting sitting(photographer, units);
      sitting.TakeAll();
    }
  }
  return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}

}  // namespace
}  // namespace orby::test

// A screen of 1366 x 768 at the scale in use, if there is no real one.
class UsualScreen {
 public:
  UsualScreen() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !file_.open()) return;
    const double scale = std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
    const QJsonObject screen{{"name", "usual"},       {"x", 0},   {"y", 0},           {"width", 1366 * scale},
                             {"height", 768 * scale}, {"dpr", 1}, {"logicalDpi", 96}, {"logicalBaseDpi", 96}};
    file_.write(QJsonDocument(QJsonObject{{"screens", QJsonArray{screen}}}).toJson());
    file_.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file_.fileName().toUtf8());
  }

 private:
  QTemporaryFile file_;
};

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const UsualScreen screen;
  const QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 2) {
    std::cerr << "usage: portraits folder [size of the text in points]\n";
    return 2;
  }
  if (arguments.size() > 2) {
    QFont font = QApplication::font();
    font.setPointSizeF(arguments[2].toDouble());
    QApplication::setFont(font);
  }
  orby::SetErrorHandler([](const orby::RuntimeError& error) { ADD_FAILURE() << "error " << error.number(); });
  return orby::test::TakePortraits(arguments[1]);
}
