// The designs that the user compares in this run: files, the open project, and variants of a project. None of these
// functions changes the project.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"
#include "tables/comparison.h"

namespace orby {

// Keeps the design as a variant of the open project under a new name, such as "Variant 1", and compares it if there is
// room.
const KeptVariant& KeepVariant(Program& program, const Design& design);

// Removes the variant, also from the designs to compare.
void ForgetVariant(ComparedDesigns& compared, Integer number);

bool IsCompared(const ComparedDesigns& compared, const ComparedSource& source);
bool HasRoom(const ComparedDesigns& compared);

// Returns the name of the variant, or of the file without its folder and extension.
std::string NameOf(const Program& program, const ComparedSource& source);

// Returns the design with its figures. One that cannot be read has the reason. Throws nothing but std::bad_alloc.
ComparedDesign ReadCompared(const Program& program, const ComparedSource& source);

// Returns all chosen designs.
std::vector<ComparedDesign> ReadAllCompared(const Program& program);

}  // namespace orby
