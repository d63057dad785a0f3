// Fields of comma-separated values, as RFC 4180 has them.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Appends a field. A text with a comma, a quote or a line end stands in quotes, with its own quotes doubled.
void AppendCsvField(std::string& csv, std::string_view text);

}  // namespace orby
