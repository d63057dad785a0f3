#include "config/signed_report_section.h"

#include <array>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"

namespace orby {
namespace {

constexpr std::string_view ReportSection = "ORBYSignedReport";
constexpr std::string_view PaperKey = "Paper";
constexpr std::string_view ProjectKey = "RemarksProject";
constexpr std::string_view LineCountKey = "RemarkLines";
constexpr std::string_view LineKey = "Remark";  // followed by the number of the line, from 1
constexpr std::string_view CurveKey = "Curve";  // followed by the number of the curve, from 1
constexpr IniRange LineCount{0, 1000};

// By PaperChoice.
constexpr std::array<std::string_view, 3> PaperWords{"Locale", "A4", "Letter"};

struct PartKey {
  std::string_view Key;
  bool SignedReportSettings::*Part;
};
constexpr std::array<PartKey, 3> PartKeys{{{"Drawings", &SignedReportSettings::HasDrawings},
                                           {"Cost", &SignedReportSettings::HasCost},
                                           {"CalculationSheet", &SignedReportSettings::HasSheet}}};

std::string Numbered(std::string_view key, std::size_t number) { return std::string(key) + std::to_string(number); }

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

void ReadFlag(bool& flag, const IniText& ini, std::string_view key) {
  const auto text = ini.Find(ReportSection, key);
  if (text == "0" || text == "-1") flag = text == "-1";
}

}  // namespace

void ReadSignedReport(SignedReportSettings& settings, const IniText& ini) {
  for (const TitleField& field : TitleFields) {
    if (const auto text = ini.Find(ReportSection, field.Name)) settings.Titles.*field.Text = *text;
  }
  const auto paper = std::ranges::find(PaperWords, ini.Find(ReportSection, PaperKey).value_or(""));
  if (paper != PaperWords.end()) settings.Paper = static_cast<PaperChoice>(paper - PaperWords.begin());
  for (const PartKey& part : PartKeys) ReadFlag(settings.*part.Part, ini, part.Key);
  for (std::size_t i = 0; i < settings.HasCurve.size(); ++i) {
    ReadFlag(settings.HasCurve[i], ini, Numbered(CurveKey, i + 1));
  }
  if (const auto project = ini.Find(ReportSection, ProjectKey)) settings.RemarksOf = *project;
  if (!ini.Find(ReportSection, LineCountKey)) return;
  settings.Remarks.clear();
  const Integer lines = ReadIniInteger(ini, ReportSection, LineCountKey, LineCount);
  for (Integer number = 1; number <= lines; ++number) {
    if (number > 1) settings.Remarks += LineEnd;
    settings.Remarks += ini.Find(ReportSection, Numbered(LineKey, static_cast<std::size_t>(number))).value_or("");
  }
}

void WriteSignedReport(const SignedReportSettings& settings, IniText& ini) {
  for (const TitleField& field : TitleFields) {
    WriteIniValue(ini, ReportSection, field.Name, Quoted(settings.Titles.*field.Text));
  }
  WriteIniValue(ini, ReportSection, PaperKey, PaperWords.at(static_cast<std::size_t>(settings.Paper)));
  for (const PartKey& part : PartKeys) WriteIniValue(ini, ReportSection, part.Key, settings.*part.Part);
  for (std::size_t i = 0; i < settings.HasCurve.size(); ++i) {
    WriteIniValue(ini, ReportSection, Numbered(CurveKey, i + 1), settings.HasCurve[i]);
  }
  WriteIniValue(ini, ReportSection, ProjectKey, Quoted(settings.RemarksOf));
  std::string_view rest = settings.Remarks;
  int lines = 0;
  while (!rest.empty() && lines < LineCount.Maximum) {
    const std::string_view line = TakeLine(rest);
    WriteIniValue(ini, ReportSection, Numbered(LineKey, static_cast<std::size_t>(++lines)), Quoted(line));
  }
  WriteIniValue(ini, ReportSection, LineCountKey, lines);
}

}  // namespace orby
