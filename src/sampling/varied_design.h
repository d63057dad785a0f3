// A design in which numbers are replaced and judged again.
#pragma once

#include <cmath>
#include <optional>

#include "base/arithmetic.h"
#include "design/catalog_lists.h"
#include "design/field.h"
#include "sampling/studied_figures.h"

namespace orby {

// The numbers that are printed for an input: whole multiples of a part of its unit.
struct PrintedSteps {
  int PerUnit = 1;

  // They compare as Singles, because the Single 63.3 is a little less than that.
  long FirstFrom(double value) const { return Nearest(value) + (ValueOf(Nearest(value)) < ToSingle(value) ? 1 : 0); }
  long LastUpTo(double value) const { return Nearest(value) - (ValueOf(Nearest(value)) > ToSingle(value) ? 1 : 0); }
  Single ValueOf(long step) const { return ToSingle(static_cast<double>(step) / PerUnit); }

 private:
  long Nearest(double value) const { return std::lround(value * PerUnit); }
};

class VariedDesign {
 public:
  VariedDesign(const Design& design, const Catalogs& catalogs) : design_(design), catalogs_(catalogs) {}

  void Set(const SingleField& field, Single value) { field.In(design_) = value; }
  // Analyses the design as it now is.
  void Refresh() {
    figures_ = Analyze(design_, catalogs_);
    verdicts_ = Judge(design_, figures_);
  }

  const Figures& Analysed() const { return figures_; }
  std::span<const Verdict> Judged() const { return verdicts_.All(); }
  // Returns the result of a judgement. Uncomputed if the design has no such judgement.
  Holding ResultOf(const StudiedVerdict& judged) const {
    for (const Verdict& verdict : verdicts_.All()) {
      if (verdict.What == judged.What && verdict.Where == judged.Where) return verdict.Result;
    }
    return Holding::Uncomputed;
  }

 private:
  Design design_;
  const Catalogs& catalogs_;
  Figures figures_;
  Verdicts verdicts_;
};

}  // namespace orby
