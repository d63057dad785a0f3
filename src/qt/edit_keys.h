// Undo, redo and "As Saved" for the fields of a form: shortcuts, and the menu of each field.
#pragma once

#include <QObject>
#include <QWidget>
#include <unordered_map>

#include "controls/form.h"
#include "qt/bindings.h"

namespace orby {

class EditKeys : public QObject {
 public:
  // Requires a form that keeps its edits. Both must outlive this object.
  EditKeys(Form& form, BindingHost& host);

  // Adds a widget of a control to those with shortcuts and a menu.
  void Watch(Control& control, QWidget& widget);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Undo();
  void Redo();
  void ShowMenu(Control& control, QWidget& widget, const QPoint& at);

  Form& form_;
  BindingHost& host_;
  std::unordered_map<const QObject*, Control*> watched_;
};

}  // namespace orby
