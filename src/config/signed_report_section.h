// The section [ORBYSignedReport] of the configuration file: the title block of signed reports, their parts and the
// remarks on the last project.
#pragma once

#include "config/ini_file.h"
#include "core/settings.h"

namespace orby {

// Reads the choices. What is missing or damaged keeps its value.
void ReadSignedReport(SignedReportSettings& settings, const IniText& ini);

// Writes all choices. Texts stand in quotation marks, so that blanks at their ends come back; remarks have a key for
// each of their lines.
void WriteSignedReport(const SignedReportSettings& settings, IniText& ini);

}  // namespace orby
