// Fuzzes project files: opens the bytes, saves the project, and opens and saves it again.
#include "files/project_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "files/description_reader.h"
#include "support/recording_platform.h"

namespace {

using orby::Program;

const std::string Path = "/designs/panel.orb";

void Expect(bool holds) {
  if (!holds) std::abort();
}

std::string Save(Program& program, orby::test::RecordingPlatform& platform) {
  orby::FileSave(program);
  return platform.files.files[Path];
}

// Returns true if no line can become the end marker or several lines when it is read as an item.
bool IsPlain(std::string_view description) {
  return description.find(orby::EndOfDescription) == std::string_view::npos &&
         description.find('"') == std::string_view::npos;
}

bool ReadsBackAsAnItem(std::string_view text) {
  return !text.starts_with(' ') && !text.starts_with('"') && text.find_first_of(",\r\n") == std::string_view::npos;
}

// Returns true if the project reads back unchanged from its format.
bool CanBeHeld(const Program& program, const std::string& saved) {
  constexpr orby::Integer FewLines = 30000;
  const orby::Design& record = program.project.WorkParms;
  if (program.project.DescLines > FewLines || !IsPlain(program.project.ProjectDescription) ||
      !IsPlain(program.project.ProjectTitle)) {
    return false;
  }
  for (const auto* text : {&record.Primary.Desc, &record.Entries.Bolt.Desc, &record.Intersections.Bolt.Desc}) {
    if (!ReadsBackAsAnItem(*text)) return false;
  }
  // Bytes in Windows-1252 that are valid UTF-8 by chance read back as other characters.
  const std::string text = orby::TextFromFileBytes(saved);
  for (const auto* held : {&program.project.ProjectTitle, &program.project.ProjectDescription, &record.Primary.Desc,
                           &record.Entries.Bolt.Desc, &record.Intersections.Bolt.Desc,
                           &record.Entries.Standing.TypeName, &record.Intersections.Standing.TypeName}) {
    if (text.find(*held) == std::string::npos) return false;
  }
  return true;
}

// Returns the data lines without that of the support mode of entries, which reads back as that of intersections.
std::string DataLines(const std::string& saved) {
  constexpr int SupportModeLine = 59;
  std::string_view rest = saved;
  rest.remove_prefix(saved.find(orby::EndOfDescription));
  std::string lines;
  for (int number = 0; !rest.empty(); ++number) {
    const std::string_view line = orby::TakeLine(rest);
    if (number != SupportModeLine) lines.append(line).push_back('\n');
  }
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orby::test::RecordingPlatform platform;
  Program program(platform.AsPlatform());
  program.project.CurrentFile = Path;
  platform.files.files[Path] = std::string(data, data + size);
  try {
    orby::FileOpen(program);
  } catch (const orby::RuntimeError&) {
    return 0;
  }
  const std::string first = Save(program, platform);
  if (!CanBeHeld(program, first)) return 0;

  Expect(orby::FileOpen(program));
  const std::string second = Save(program, platform);

  Expect(DataLines(first) == DataLines(second));
  return 0;
}
