// Where the pages of a printed book end: what belongs together stays on one page.
#pragma once

#include <QTextDocument>

namespace orby {

// Sets back what follows the heading of a definition, as far as the paper asks for: Qt takes it in dots of the printer.
// dots: those of the printer in one pixel of a screen.
void IndentDefinitions(QTextDocument& document, double dots);

// Begins new pages so that no heading, no first or last line of a paragraph and no sentence before its picture or table
// is left alone, and no row of a table is split. The document must have its size of pages. dots: see above.
void KeepTogether(QTextDocument& document, double dots);

}  // namespace orby
