// A small window with one control of each type, and the actions of a screen reader.
#pragma once

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>

#include "controls/grid.h"
#include "gui/gui_bench.h"

namespace orby::test {

inline QAccessibleInterface& ReaderOf(QObject& object) {
  auto* reader = QAccessible::queryAccessibleInterface(&object);
  if (reader == nullptr) throw std::logic_error("nothing for readers at " + object.objectName().toStdString());
  return *reader;
}

inline QAccessibleEditableTextInterface& EditableText(QWidget& field) {
  return *ReaderOf(field).editableTextInterface();
}

// Replaces the whole text, as SetTextContents does.
inline void SetText(QWidget& field, const QString& text) {
  EditableText(field).replaceText(0, ReaderOf(field).textInterface()->characterCount(), text);
  Settle();
}

inline void SelectRow(QWidget& list, int row) {
  ReaderOf(list).tableInterface()->selectRow(row);
  Settle();
}

inline void Do(QAccessibleInterface& reader, const QString& action) {
  ASSERT_TRUE(reader.actionInterface()->actionNames().contains(action)) << action.toStdString();
  reader.actionInterface()->doAction(action);
  Settle();
}

inline void PressButton(QWidget& button) {
  Do(ReaderOf(button), QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !dynamic_cast<QAbstractButton&>(button).isDown(); }));
  Settle();
}

// One control of each type. They record what happens to them.
class BenchForm : public Form {
 public:
  BenchForm() : Form("frmBench", "Survey") {
    cmbHeight.Fill({{"2.4"}, {"2.7"}, {"3.0"}});
    cmbSeam.Fill({{"Upper"}, {"Middle"}, {"Lower"}});
    lstSheets.Fill({{"Plan"}, {"Section"}, {"Index"}});
    lstShifts.Fill({{"Day"}, {"Night"}, {"Weekend"}});
    grdBolts.SetSize(4, 2, 1);
    for (int row = 1; row < 4; ++row) grdBolts.SetCell(row, 1, "Bolt " + std::to_string(row));
    stbPages.SetTabEnabled(2, false);
    txtLocked.SetEnabled(false);
    txtName.Change = [this] { Note("name " + txtName.Text()); };
    txtLocked.Change = [this] { Note("locked"); };
    txtNotes.Change = [this] { Note("notes " + txtNotes.Text()); };
    cmbHeight.Change = [this] { Note("height " + cmbHeight.Text()); };
    cmbSeam.Change = [this] { Note("seam " + cmbSeam.Text()); };
    lstSheets.Click = [this] { Note("sheet " + std::to_string(lstSheets.ListIndex())); };
    lstShifts.Click = [this] { Note("shift " + std::to_string(lstShifts.ListIndex())); };
    grdBolts.Change = [this] { Note("bolt " + std::to_string(grdBolts.Row())); };
    stbPages.Click = [this] { Note("page " + std::to_string(stbPages.Tab())); };
    chkWet.Click = [this] { Note("wet " + std::to_string(chkWet.Value())); };
    optUnits.Click = [this](Integer index) { Note("units " + std::to_string(index)); };
    cmdDraw.Click = [this] { Note("draw"); };
    mnuFile.Click = [this](Integer index) { Note("file " + std::to_string(index)); };
    tlbMain.Click = [this](Integer index) { Note("tool " + std::to_string(index)); };
    hsbSize.Change = [this] { Note("size " + std::to_string(hsbSize.Value())); };
  }

  TextBox txtName{*this, "txtName"};
  TextBox txtLocked{*this, "txtLocked"};
  TextBox txtResult{*this, "txtResult", TextKind::Output};
  TextBox txtNotes{*this, "txtNotes"};
  TextBox txtReport{*this, "txtReport", TextKind::Output};
  Combo cmbHeight{*this, "cmbHeight"};
  Combo cmbSeam{*this, "cmbSeam", ComboKind::ListOnly};
  List lstSheets{*this, "lstSheets"};
  List lstShifts{*this, "lstShifts", ListKind::Choices};
  Grid grdBolts{*this, "grdBolts"};
  TabSet stbPages{*this, "stbPages", {"Roof", "Ribs", "Floor"}};
  CheckBox chkWet{*this, "chkWet", "Wet roof"};
  OptionArray optUnits{*this, "optUnits", {{"Feet"}, {"Metres"}}};
  Button cmdDraw{*this, "cmdDraw", "Draw"};
  ActionArray mnuFile{*this, "mnuFile", {"Open", "Close"}};
  ActionArray tlbMain{*this, "tlbMain", {"Print", "Copy"}};
  Slider hsbSize{*this, "hsbSize", 3, 20};

  std::vector<std::string> happened;

 protected:
  void OnOpen() override {}
  void OnClose() override {}

 private:
  void Note(std::string what) { happened.push_back(std::move(what)); }
};

class Readers : public testing::Test {
 protected:
  Readers() {
    mnuFile = new QMenu(&window);
    AddActions(*mnuFile, "mnuFile");
    auto& bar = Add<QToolBar>("tlbMain");
    AddActions(bar, "tlbMain");
    for (const char* name : {"txtName", "txtLocked", "txtResult"}) Add<QLineEdit>(name);
    for (const char* name : {"txtNotes", "txtReport"}) Add<QPlainTextEdit>(name);
    for (const char* name : {"cmbHeight", "cmbSeam"}) Add<QComboBox>(name).setEditable(true);
    for (const char* name : {"lstSheets", "lstShifts"}) Add<QListWidget>(name);
    Add<QTableWidget>("grdBolts");
    auto& pages = Add<QTabWidget>("stbPages");
    for (int i = 0; i < 3; ++i) pages.addTab(new QWidget, QString());
    Add<QCheckBox>("chkWet");
    for (const char* name : {"optUnits_0", "optUnits_1"}) Add<QRadioButton>(name);
    Add<QPushButton>("cmdDraw");
    Add<QSlider>("hsbSize");
    form.Open();
    view = std::make_unique<BoundForm>(form, window);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Settle();
  }

  template <class Widget>
  Widget& Add(const char* name) {
    auto* widget = new Widget(&window);
    widget->setObjectName(name);
    return *widget;
  }

  void AddActions(QWidget& place, const QString& name) {
    for (int i = 0; i < 2; ++i) {
      auto* action = new QAction(&window);
      action->setObjectName(name + "_" + QString::number(i));
      place.addAction(action);
    }
  }

  QWidget& Widget(std::string_view name) { return Find(window, name); }
  QWidget& LineOf(std::string_view combo) { return *Find<QComboBox>(window, combo).lineEdit(); }
  QAccessibleInterface& TabOf(int tab) { return *ReaderOf(*Find<QTabWidget>(window, "stbPages").tabBar()).child(tab); }

  QDialog window;
  QMenu* mnuFile = nullptr;
  BenchForm form;
  std::unique_ptr<BoundForm> view;
};

}  // namespace orby::test
