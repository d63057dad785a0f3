#include "core/project_record.h"

namespace orby {

Bolt SelectedBolt(const ProjectRecord& record, const BoltFields& set) {
  if (record.*set.Options != 1) return {record.*set.TableDiameter, record.*set.TableGrade};
  return {record.*set.DiameterMode == 0 ? record.*set.DiameterStd : record.*set.DiameterManual,
          record.*set.GradeMode == 0 ? record.*set.GradeStd : record.*set.GradeManual};
}

}  // namespace orby
