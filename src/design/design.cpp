#include "design/design.h"

namespace orby {

Bolt SelectedBolt(const BoltSelection& set) {
  if (set.Options != 1) return {set.TableDiameter, set.TableGrade};
  return {set.DiameterMode == 0 ? set.DiameterStd : set.DiameterManual,
          set.GradeMode == 0 ? set.GradeStd : set.GradeManual};
}

}  // namespace orby
