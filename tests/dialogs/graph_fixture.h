// A typical design, the graph window, and the points of a curve.
#pragma once

#include <gmock/gmock.h>

#include "core/program.h"
#include "dialogs/graph_window.h"
#include "support/recording_platform.h"

namespace orby::test {

struct GraphBench : testing::Test {
  GraphBench() {
    program.session.folders.ProgramTemporary = "/tmp/orby/";
    program.session.IniFilePath = "/home/user/ORBY.INI";
    // Suggested PSUP over depths of cover. The last column is empty.
    program.windows.curve.CurvePoints[0] = {200, 240, 280.5F, 0};
    program.windows.curve.CurvePoints[1] = {3.25F, 4.125F, 5.005F, 0};
    program.windows.curve.CurvePointCount = 3;
  }

  const ChartSeries& Drawn() const { return window.graph1.Series().front(); }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  GraphWindow window{program};
};

}  // namespace orby::test
