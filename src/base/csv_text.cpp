#include "base/csv_text.h"

namespace orby {

void AppendCsvField(std::string& csv, std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    csv += text;
    return;
  }
  csv += '"';
  for (const char c : text) {
    if (c == '"') csv += '"';
    csv += c;
  }
  csv += '"';
}

}  // namespace orby
