// Finishes a PDF file that the toolkit has written: links inside it, and no date, so that the same book gives the same
// bytes.
#pragma once

#include <QByteArray>
#include <functional>
#include <optional>

namespace orby {

struct PdfPlace {
  int page = 0;    // from 0
  double top = 0;  // points above the foot of the page
};

// placeOf: where the link of an index leads. The file keeps its length, and so the offsets of all its parts. Throws
// std::runtime_error when a link leads nowhere.
void FinishPdf(QByteArray& file, const std::function<std::optional<PdfPlace>(int link)>& placeOf);

}  // namespace orby
