// A program whose previewed design is that of a new project, as the tests of curves begin.
#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "engine/curves.h"
#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {

struct CurveBench : testing::Test {
  RecordingPlatform platform;
  Program program{platform.Doors()};
  Design& design = program.WorkParmsCopy;

  CurveBench() { design = EnglishDesign(); }

  void UseMetricDesign() {
    design = MetricDesign();
    program.WorkParms.Units = Metric;
  }

  using Point = std::pair<Single, Single>;
  Point PointAt(std::size_t column) const {
    return {program.curve.CurvePoints[0].at(column), program.curve.CurvePoints[1].at(column)};
  }
  Point LastPoint() const { return PointAt(Points() - 1); }
  std::size_t Points() const { return static_cast<std::size_t>(program.curve.CurvePointCount); }
  std::size_t Columns() const { return program.curve.CurvePoints[0].size(); }
  int ErrorOf(Integer index) {
    return ErrorNumberOf([&] { GenerateCurve(program, index); });
  }
};

}  // namespace orby::test
