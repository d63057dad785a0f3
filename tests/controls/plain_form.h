// A form without controls, which counts how often it opens and closes, and a view that records changes.
#pragma once

#include <string>
#include <vector>

#include "controls/control.h"
#include "controls/form.h"

namespace orby::test {

struct PlainForm : Form {
  PlainForm() : Form("frmPlain", "Plain") {}

  void OnOpen() override { ++opened; }
  void OnClose() override { ++closed; }

  int opened = 0;
  int closed = 0;
};

// Records the name of each control that changes, and "closed" when the form closes.
class RecordingView : public FormView {
 public:
  explicit RecordingView(Form& form) : form_(form) { form.SetView(this); }
  ~RecordingView() override { form_.SetView(nullptr); }
  RecordingView(const RecordingView&) = delete;
  RecordingView& operator=(const RecordingView&) = delete;

  void ControlChanged(const Control& control) override { told.emplace_back(control.Name()); }
  void CaptionChanged() override {}
  void FocusRequested(Control&) override {}
  void Closed() override { told.emplace_back("closed"); }

  std::vector<std::string> told;

 private:
  Form& form_;
};

}  // namespace orby::test
