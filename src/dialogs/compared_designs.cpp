#include "dialogs/compared_designs.h"

#include <algorithm>

#include "base/number_text.h"
#include "reports/printing.h"

namespace orby {
namespace {

const KeptVariant* VariantOf(const Program& program, Integer number) {
  const std::vector<KeptVariant>& variants = program.windows.compared.Variants;
  const auto found = std::ranges::find(variants, number, &KeptVariant::Number);
  return found == variants.end() ? nullptr : &*found;
}

}  // namespace

const KeptVariant& KeepVariant(Program& program, const Design& design) {
  ComparedDesigns& compared = program.windows.compared;
  KeptVariant variant;
  static_cast<UnsavedProject&>(variant) = program.project;
  variant.WorkParms = design;
  variant.Number = ++compared.LastVariant;
  variant.Name = "Variant " + NumberText(variant.Number);
  if (HasRoom(compared)) compared.Chosen.push_back({.Variant = variant.Number, .File = {}});
  return compared.Variants.emplace_back(std::move(variant));
}

void ForgetVariant(ComparedDesigns& compared, Integer number) {
  std::erase_if(compared.Variants, [&](const KeptVariant& variant) { return variant.Number == number; });
  std::erase_if(compared.Chosen, [&](const ComparedSource& source) { return source.Variant == number; });
}

bool IsCompared(const ComparedDesigns& compared, const ComparedSource& source) {
  return std::ranges::find(compared.Chosen, source) != compared.Chosen.end();
}

bool HasRoom(const ComparedDesigns& compared) { return compared.Chosen.size() < MostCompared; }

std::string NameOf(const Program& program, const ComparedSource& source) {
  if (const KeptVariant* variant = VariantOf(program, source.Variant)) return variant->Name;
  return NameOfFile(source.File.empty() ? program.project.CurrentFile : source.File);
}

ComparedDesign ReadCompared(const Program& program, const ComparedSource& source) {
  const RowMaker maker(program);
  ComparedDesign design{.Name = NameOf(program, source), .Row = {}};
  if (!source.File.empty()) {
    design.Row = maker.RowOfFile(program.platform.files, source.File);
  } else if (const KeptVariant* variant = VariantOf(program, source.Variant)) {
    Project project;
    static_cast<UnsavedProject&>(project) = *variant;
    design.Row = maker.RowOfProject(variant->CurrentFile, project);
  } else {
    design.Row = maker.RowOfProject(program.project.CurrentFile, program.project);
  }
  return design;
}

std::vector<ComparedDesign> ReadAllCompared(const Program& program) {
  std::vector<ComparedDesign> designs;
  designs.reserve(program.windows.compared.Chosen.size());
  for (const ComparedSource& source : program.windows.compared.Chosen) {
    designs.push_back(ReadCompared(program, source));
  }
  return designs;
}

}  // namespace orby
