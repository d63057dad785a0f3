#include "sheet/pdf_bookmarks.h"

#include <charconv>
#include <stdexcept>
#include <string_view>

namespace orby {
namespace {

[[noreturn]] void Refuse(const char* what) { throw std::invalid_argument(what); }

std::size_t NumberAt(std::string_view text) {
  while (text.starts_with(' ') || text.starts_with('\n') || text.starts_with('\r')) text.remove_prefix(1);
  std::size_t number = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc()) Refuse("no number in the PDF");
  return number;
}

// Returns what follows a word in a text.
std::string_view After(std::string_view text, std::string_view word) {
  const std::size_t at = text.find(word);
  if (at == std::string_view::npos) Refuse("a part of the PDF is missing");
  return text.substr(at + word.size());
}

// A file as its last table of cross references tells it.
class PdfFile {
 public:
  explicit PdfFile(std::string_view bytes) : bytes_(bytes) {
    const std::size_t mark = bytes.rfind("startxref");
    if (mark == std::string_view::npos) Refuse("no table in the PDF");
    Table = NumberAt(After(bytes.substr(mark), "startxref"));
    if (Table >= bytes.size() || !bytes.substr(Table).starts_with("xref")) Refuse("no plain table in the PDF");
    const std::string_view trailer = After(bytes.substr(Table), "trailer");
    Size = NumberAt(After(trailer, "/Size"));
    Root = NumberAt(After(trailer, "/Root"));
    Info = NumberAt(After(trailer, "/Info"));
  }

  // Returns the dictionary of an object, from "<<" to the last ">>".
  std::string_view Dictionary(std::size_t object) const {
    const std::string_view entry = TableEntry(object);
    std::string_view body = bytes_.substr(std::min(NumberAt(entry), bytes_.size()));
    body = body.substr(0, body.find("endobj"));
    const std::size_t first = body.find("<<");
    const std::size_t last = body.rfind(">>");
    if (first == std::string_view::npos || last == std::string_view::npos) Refuse("no dictionary in the PDF");
    return body.substr(first, last + 2 - first);
  }

  std::vector<std::size_t> Pages() const {
    const std::string_view kids = After(Dictionary(NumberAt(After(Dictionary(Root), "/Pages"))), "/Kids");
    std::string_view list = After(kids, "[");
    list = list.substr(0, list.find(']'));
    std::vector<std::size_t> pages;
    while (list.find('R') != std::string_view::npos) {
      pages.push_back(NumberAt(list));
      list.remove_prefix(list.find('R') + 1);
    }
    return pages;
  }

  std::size_t Table = 0;
  std::size_t Size = 0;
  std::size_t Root = 0;
  std::size_t Info = 0;

 private:
  // The table has a line of 20 bytes for each object, from 0 on.
  std::string_view TableEntry(std::size_t object) const {
    constexpr std::size_t LineBytes = 20;
    const std::string_view lines = After(After(bytes_.substr(Table), "xref\n0 "), "\n");
    if (object >= Size || (object + 1) * LineBytes > lines.size()) Refuse("no such object in the PDF");
    return lines.substr(object * LineBytes, LineBytes);
  }

  std::string_view bytes_;
};

// Returns a text as a string of a PDF: UTF-16 in hexadecimal digits.
std::string HexText(std::string_view text) {
  constexpr std::string_view Digits = "0123456789ABCDEF";
  std::string hex = "<FEFF";
  const auto add = [&](unsigned unit) {
    for (int shift = 12; shift >= 0; shift -= 4) hex += Digits[unit >> static_cast<unsigned>(shift) & 15U];
  };
  constexpr unsigned FirstBeyond = 0x10000;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i]);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    unsigned code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t j = 1; j < length && i + j < text.size(); ++j) {
      code = code << 6U | (static_cast<unsigned char>(text[i + j]) & 0x3FU);
    }
    i += length;
    if (code < FirstBeyond) {
      add(code);
    } else {
      add(0xD800U + ((code - FirstBeyond) >> 10U));
      add(0xDC00U + ((code - FirstBeyond) & 0x3FFU));
    }
  }
  return hex + ">";
}

std::string Reference(std::size_t object) { return std::to_string(object) + " 0 R"; }

// Appends objects and the table that tells where they are.
class Appendix {
 public:
  explicit Appendix(std::string pdf) : pdf_(std::move(pdf)) {
    if (!pdf_.ends_with('\n')) pdf_ += '\n';
  }

  void Add(std::size_t object, const std::string& dictionary) {
    std::string offset = std::to_string(pdf_.size());
    offset.insert(0, 10 - offset.size(), '0');
    table_ += std::to_string(object) + " 1\n" + offset + " 00000 n \n";
    pdf_ += std::to_string(object) + " 0 obj\n" + dictionary + "\nendobj\n";
  }

  std::string Take(const PdfFile& file, std::size_t size) {
    const std::string start = std::to_string(pdf_.size());
    pdf_ += "xref\n" + table_ + "trailer\n<<\n/Size " + std::to_string(size) + "\n/Info " + Reference(file.Info) +
            "\n/Root " + Reference(file.Root) + "\n/Prev " + std::to_string(file.Table) + "\n>>\nstartxref\n" + start +
            "\n%%EOF\n";
    return std::move(pdf_);
  }

 private:
  std::string pdf_;
  std::string table_;
};

}  // namespace

std::string WithBookmarks(std::string pdf, const std::vector<PageEntry>& entries, const PageSize& size) {
  if (entries.empty()) return pdf;
  const PdfFile file(pdf);
  const std::vector<std::size_t> pages = file.Pages();
  const std::size_t outlines = file.Size;
  const std::size_t first = outlines + 1;
  std::string root(file.Dictionary(file.Root));
  root.replace(root.rfind(">>"), 2, "/Outlines " + Reference(outlines) + "\n/PageMode /UseOutlines\n>>");

  Appendix appendix(pdf);
  appendix.Add(file.Root, root);
  appendix.Add(outlines, "<< /Type /Outlines /First " + Reference(first) + " /Last " +
                             Reference(first + entries.size() - 1) + " /Count " + std::to_string(entries.size()) +
                             " >>");
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto& [title, page, top] = entries[i];
    const auto fromBottom = static_cast<long>(size.Height - top);
    std::string item = "<< /Title " + HexText(title) + " /Parent " + Reference(outlines) + " /Dest [" +
                       Reference(pages.at(page)) + " /XYZ 0 " + std::to_string(fromBottom) + " 0]";
    if (i > 0) item += " /Prev " + Reference(first + i - 1);
    if (i + 1 < entries.size()) item += " /Next " + Reference(first + i + 1);
    appendix.Add(first + i, item + " >>");
  }
  return appendix.Take(file, first + entries.size());
}

}  // namespace orby
