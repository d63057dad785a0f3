#include "dialogs/curve_command.h"

#include <utility>

#include "core/messages.h"

namespace orby {
namespace {

std::string_view NoticeText(CurveNotice notice) {
  switch (notice) {
    // The text says 51 whatever the limit is. At 400 ft it is about 51.5.
    case CurveNotice::RatingLimitTrimmed: return "Upper limit for CMRR trimmed to 51";
    case CurveNotice::SpanAdjusted: break;
  }
  return "Lower limit for IntersectionSpan adjusted > 0";
}

}  // namespace

void TakeCurve(Program& program, const Design& design, Integer index) {
  CurveSweep sweep = GenerateCurve(design, index);
  if (sweep.Notice) ShowMessage(program, std::string(NoticeText(*sweep.Notice)));
  if (sweep.Failure) throw RuntimeError(*sweep.Failure);
  static_cast<Curve&>(program.windows.curve) = std::move(sweep.Points);
  program.windows.curve.CurveIndex = index;
}

}  // namespace orby
