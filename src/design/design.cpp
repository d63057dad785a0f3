#include "design/design.h"

namespace orby {

Bolt SelectedBolt(const BoltSelection& set) {
  if (set.Options != BoltSource::Manual) return {set.TableDiameter, set.TableGrade};
  return {set.DiameterMode == ValueSource::Standard ? set.DiameterStd : set.DiameterManual,
          set.GradeMode == ValueSource::Standard ? set.GradeStd : set.GradeManual};
}

}  // namespace orby
