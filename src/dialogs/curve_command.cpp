#include "dialogs/curve_command.h"

#include <utility>

#include "core/messages.h"
#include "engine/analysis.h"

namespace orby {
namespace {

std::optional<Single> ActualPSUPOf(const Design& design, const Catalogs& catalogs) {
  const Computed<PrimaryFigures> primary = Analyze(design, catalogs).Primary;
  if (!primary.IsThere()) return std::nullopt;
  return primary.Value().ActualPSUP;
}

}  // namespace

std::string_view NoticeText(CurveNotice notice) {
  switch (notice) {
    // The text says 51 whatever the limit is. At 400 ft it is about 51.5.
    case CurveNotice::RatingLimitTrimmed: return "Upper limit for CMRR trimmed to 51";
    case CurveNotice::SpanAdjusted: break;
  }
  return "Lower limit for IntersectionSpan adjusted > 0";
}

std::vector<CurveReference> ReferencesFor(const Design& design, const Catalogs& catalogs, Integer index) {
  return ReferencesOf(design, ActualPSUPOf(design, catalogs), index);
}

void TakeCurve(Program& program, const Design& design, Integer index) {
  CurveSweep sweep = GenerateCurve(design, index);
  if (sweep.Notice) ShowMessage(program, std::string(NoticeText(*sweep.Notice)));
  if (sweep.Failure) throw RuntimeError(*sweep.Failure);
  static_cast<Curve&>(program.windows.curve) = std::move(sweep.Points);
  DrawnCurve& curve = program.windows.curve;
  curve.CurveIndex = index;
  curve.Own = DesignPoint(design, index);
  curve.References = ReferencesFor(design, program.session.catalogs, index);
}

}  // namespace orby
