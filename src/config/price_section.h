// The section [ORBYPrices] of the configuration file: the price lists of both unit systems.
#pragma once

#include "config/ini_file.h"
#include "design/prices.h"

namespace orby {

// Reads the price lists. Lengths that are missing or unusable leave those of the list. A price that is damaged, or not
// above 0, is left out. A list whose number of prices is missing keeps its prices.
void ReadPrices(PriceLists& lists, const IniText& ini);

// Writes the lengths of each list, the number of its prices, and one line for each price:
// "Bolt 6 8.5 "#6 rebar - grade 60"", the support, its length, the dollars and the name.
void WritePrices(const PriceLists& lists, IniText& ini);

}  // namespace orby
