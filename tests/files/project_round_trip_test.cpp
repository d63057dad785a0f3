// Any design reads back unchanged, apart from the known losses of the format.

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "any_single.h"
#include "base/number_text.h"
#include "core/description.h"
#include "files/description_reader.h"
#include "project_fixture.h"
#include "saved_fields.h"

namespace orby::test {
namespace {

// A line of letters, blanks, quotes, commas, accented letters and ideographs.
rc::Gen<std::string> AnyLine(const std::string& without) {
  std::vector<std::string> characters;
  for (const char* character : {"a", "Z", "4", "-", " ", ",", "\"", "#", "\xC3\xBC", "\xE2\x82\xAC", "\xE4\xB8\xAD"}) {
    if (without.find(character) == std::string::npos) characters.emplace_back(character);
  }
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(characters)),
                      [](const std::vector<std::string>& parts) {
                        std::string line;
                        for (const auto& part : parts) line += part;
                        return line;
                      });
}

void FillWithAnything(Design& record) {
  for (const auto& saved : SavedFields) {
    if (const auto* integer = std::get_if<IntegerField>(&saved.field)) {
      integer->Set(record, *rc::gen::arbitrary<Integer>());
    } else if (const auto* single = std::get_if<SingleField>(&saved.field)) {
      single->In(record) = *AnySingle();
    } else {
      const bool isItem = std::string_view(saved.name).starts_with("BoltDesc");
      std::get<TextField>(saved.field).In(record) = *AnyLine(isItem ? " ,\"" : "");
    }
  }
  // A record stores the rating as a whole number.
  record.Place.CMRR = *rc::gen::arbitrary<Integer>();
}

RC_GTEST_PROP(ProjectRoundTrip, KeepsEveryField, ()) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  FillWithAnything(project.program.project.WorkParms);
  project.program.project.ProjectTitle = *AnyLine("");
  project.program.project.ProjectDescription = *AnyLine("\"#");
  const Design before = project.program.project.WorkParms;

  RC_ASSERT(project.Save());
  RC_ASSERT(project.Open());

  for (const auto& saved : SavedFields) {
    std::string expected = ValueText(before, saved.field);
    if (std::string_view(saved.name) == "SupportTypeModeSecEntry")
      expected = NumberText(NumberOf(before.Intersections.Standing.TypeMode));
    if (std::string_view(saved.name) == "SupportTypeModeSecInter") expected = "0";
    if (ValueText(project.program.project.WorkParms, saved.field) != expected) RC_FAIL(std::string(saved.name));
  }
}

RC_GTEST_PROP(ProjectRoundTrip, KeepsEachLineOfADescription, ()) {
  TestProject project;
  const auto lines = *rc::gen::container<std::vector<std::string>>(AnyLine(" ,\"#"));
  for (const auto& line : lines) project.program.project.ProjectDescription += line + "\r\n";
  SaveDescription(project.program);
  const std::string saved = project.program.project.ProjectDescription;
  const std::string bytes = "##StartDesc##\r\n" + saved + "\r\n##EndDesc##\r\n45\r\n";
  ItemReader reader(bytes);
  project.program.project.FileVersion = 103;

  LoadDescription(project.program.project, reader, DescriptionMode::Marked);

  RC_ASSERT(project.program.project.ProjectDescription == (saved.empty() ? "" : saved + "\r\n"));
  RC_ASSERT(reader.ReadInteger() == 45);
}

}  // namespace
}  // namespace orby::test
