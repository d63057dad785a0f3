// The monkey inside a run of the program. It does one action after another, between the events of the program.
#pragma once

#include <QMessageBox>
#include <QObject>
#include <memory>

#include "monkey/comeback.h"
#include "monkey/ledger.h"

namespace orby::monkey {

class Monkey : public QObject {
 public:
  // byItself: the program has started itself again after the previous run.
  Monkey(Ledger& ledger, RunRecord& record, bool byItself);

  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PostNext();
  void Begin();
  void Turn();
  void Act();
  void TakeEnd(QMessageBox& box);
  void Log(const std::string& what);

  Ledger& ledger_;
  RunRecord& record_;
  bool begun_ = false;
  bool refused_ = false;  // in this run
  std::unique_ptr<Comeback> comeback_;
};

}  // namespace orby::monkey
