#include "shell/examples.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/attempt.h"
#include "base/paths.h"
#include "config/user_folders.h"
#include "core/description.h"
#include "files/project_reader.h"
#include "sketches/sketches.h"

namespace orby {
namespace {

constexpr SheetSize PictureSize{96, 64};

// Returns nothing for a file of an unknown format. Throws the RuntimeError of a damaged file.
std::optional<Example> ReadExample(Program& program, const std::string& path) {
  const std::string bytes = program.platform.files.ReadFile(path);
  const ItemReader items(bytes);
  const auto format = FormatOf(items);
  if (!format) return std::nullopt;
  Project project;
  project.FileVersion = *format;
  ReadProject(project, items);
  const Design& design = project.WorkParms;
  return Example{path, TitleToShow(project),
                 EntryMiniature(design, SketchFiguresOf(design, program.session.catalogs), PictureSize)};
}

}  // namespace

std::vector<Example> FindExamples(Program& program) {
  std::vector<Example> examples;
  for (const std::string& path : ExampleFiles(program)) {
    if (auto example = OrNothing([&] { return ReadExample(program, path); })) examples.push_back(std::move(*example));
  }
  std::ranges::sort(examples, {}, [](const Example& example) { return NameAfterSeparator(example.Path); });
  return examples;
}

}  // namespace orby
