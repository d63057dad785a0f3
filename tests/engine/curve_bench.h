// The design of a new project and its curves, for the tests of curves.
#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "engine/curves.h"
#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {

struct CurveBench : testing::Test {
  Design design = EnglishDesign();
  CurveSweep sweep;

  void UseMetricDesign() { design = MetricDesign(); }
  void Generate(Integer index) { sweep = GenerateCurve(design, index); }

  using Point = std::pair<Single, Single>;
  Point PointAt(std::size_t column) const {
    return {sweep.Points.CurvePoints[0].at(column), sweep.Points.CurvePoints[1].at(column)};
  }
  Point LastPoint() const { return PointAt(Points() - 1); }
  std::size_t Points() const { return static_cast<std::size_t>(sweep.Points.CurvePointCount); }
  std::size_t Columns() const { return sweep.Points.CurvePoints[0].size(); }
  int ErrorOf(Integer index) {
    return ErrorNumberOf([&] {
      Generate(index);
      if (sweep.Failure) throw RuntimeError(*sweep.Failure);
    });
  }
};

}  // namespace orby::test
