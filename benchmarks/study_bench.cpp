#include "study_bench.h"

namespace orby {

StudyResult RunMeasuredStudy(const Design& design, const Catalogs& catalogs) {
  Study study;
  study.Inputs = {
      {"roof rating", [](auto& d) { return &d.Place.CMRR; }, {NormalLaw{50, 6}, 25, 90}},
      {"depth of cover", [](auto& d) { return &d.Place.DepthofCover; }, {LognormalLaw{600, 120}}},
      {"unit weight", [](auto& d) { return &d.Place.UnitWeight; }, {NormalLaw{162, 4}}},
      {"sum of the diagonals", [](auto& d) { return &d.Place.ActualSpanDiagonals; }, {TriangularLaw{58, 62, 70}}},
      {"entry width", [](auto& d) { return &d.Place.EntryWidth; }, {UniformLaw{19, 21}}},
      {"primary row spacing", [](auto& d) { return &d.Primary.RowSpacing; }, {NormalLaw{4, 0.2}, 3, 5}},
      {"rock load height", [](auto& d) { return &d.Entries.RockLoadHeight; }, {BetaLaw{2, 3, 3, 9}}},
      {"rock fall angle", [](auto& d) { return &d.Entries.RockFallAngle; }, {UniformLaw{20, 40}}},
      {"truss capacity", [](auto& d) { return &d.Entries.Truss.Capacity; }, {EmpiricalLaw{{28, 29, 30, 30, 31, 33}}}},
      {"height in intersections", [](auto& d) { return &d.Intersections.RockLoadHeight; }, {TriangularLaw{4, 6, 10}}},
  };
  study.Spearman = SquareMatrix::Identity(study.Inputs.size());
  study.Spearman(0, 6) = study.Spearman(6, 0) = -0.5;
  study.Samples = 1'000'000;
  return RunStudy(design, catalogs, study);
}

}  // namespace orby
