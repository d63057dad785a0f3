// The sections of a calculation sheet as blocks of pages.
#pragma once

#include <vector>

#include "sheet/page_parts.h"
#include "sheet/sheet.h"

namespace orby {

// Returns the blocks of all sections, numbered from 1.
std::vector<PageBlock> SheetBlocks(const DesignSheet& sheet, const PageParts& parts);

// Returns a table of inputs with their sources.
std::vector<PageBlock> InputBlocks(const std::vector<const SheetInput*>& inputs, const PageParts& parts);

// Returns a table of numbers.
std::vector<PageBlock> TableBlocks(const SheetTable& table, const PageParts& parts);

}  // namespace orby
