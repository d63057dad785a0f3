// A form for tests: it counts its openings and closings and has no controls of its own.
#pragma once

#include "controls/form.h"

namespace orby::test {

struct PlainForm : Form {
  PlainForm() : Form("frmPlain", "Plain") {}

  void OnOpen() override { ++opened; }
  void OnClose() override { ++closed; }

  int opened = 0;
  int closed = 0;
};

}  // namespace orby::test
