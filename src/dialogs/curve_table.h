// Curves as a table of comma-separated values.
#pragma once

#include <string>
#include <vector>

#include "controls/chart.h"

namespace orby {

// Returns the table, as RFC 4180 has it: a header, then a record for each point, and two columns for each series. The
// names of kept series are in their headers. Numbers have 7 digits and a point. Columns of shorter series end with
// empty fields.
std::string CurveTable(const std::string& xHeader, const std::string& yHeader, const std::vector<ChartSeries>& all);

}  // namespace orby
