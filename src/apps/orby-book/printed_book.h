// A book on paper: laid out on pages of A4, with page numbers, links and sharp drawings.
#pragma once

#include <QByteArray>
#include <QString>

#include "apps/orby-book/book_source.h"

namespace orby {

// The bytes of the PDF file. cover: HTML of a first page of its own, behind which the contents stand; empty for a
// document without both. Throws std::runtime_error for a picture that cannot be read or a link that leads nowhere.
QByteArray PrintBook(const BookSource& book, const QString& cover);

}  // namespace orby
