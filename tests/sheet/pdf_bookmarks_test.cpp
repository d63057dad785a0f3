// Bookmarks in the bytes of a PDF.
#include "sheet/pdf_bookmarks.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

// A file of two pages, as writers without compression write it.
std::string TwoPages() {
  std::string pdf = "%PDF-1.4\n";
  std::string table = "0000000000 65535 f \n";
  const auto add = [&](const std::string& object) {
    std::string offset = std::to_string(pdf.size());
    offset.insert(0, 10 - offset.size(), '0');
    table += offset + " 00000 n \n";
    pdf += object + "\nendobj\n";
  };
  add("1 0 obj\n<< /Title (Two pages) >>");
  add("2 0 obj\n<<\n/Type /Catalog\n/Pages 3 0 R\n>>");
  add("3 0 obj\n<< /Type /Pages /Kids [4 0 R 5 0 R ] /Count 2 >>");
  add("4 0 obj\n<< /Type /Page /Parent 3 0 R >>");
  add("5 0 obj\n<< /Type /Page /Parent 3 0 R >>");
  const std::string start = std::to_string(pdf.size());
  return pdf + "xref\n0 6\n" + table + "trailer\n<<\n/Size 6\n/Info 1 0 R\n/Root 2 0 R\n>>\nstartxref\n" + start +
         "\n%%EOF\n";
}

const std::vector<PageEntry> Two{{"Span", 0, 51}, {"Größe", 1, 100}};

TEST(Bookmarks, FollowTheBytesOfTheFile) {
  const std::string pdf = TwoPages();
  const std::string marked = WithBookmarks(pdf, Two, A4);

  EXPECT_THAT(marked, StartsWith(pdf));
  EXPECT_THAT(marked,
              HasSubstr("2 0 obj\n<<\n/Type /Catalog\n/Pages 3 0 R\n/Outlines 6 0 R\n/PageMode /UseOutlines\n>>"));
  EXPECT_THAT(marked, HasSubstr("/Title <FEFF005300700061006E> /Parent 6 0 R /Dest [4 0 R /XYZ 0 791 0] /Next 8 0 R"));
  EXPECT_THAT(marked,
              HasSubstr("/Title <FEFF0047007200F600DF0065> /Parent 6 0 R /Dest [5 0 R /XYZ 0 742 0] /Prev 7 0 R"));
  EXPECT_THAT(marked, HasSubstr("/Size 9\n/Info 1 0 R\n/Root 2 0 R\n/Prev "));
}

TEST(Bookmarks, StandWhereTheirTableSays) {
  const std::string marked = WithBookmarks(TwoPages(), Two, A4);
  const std::size_t mark = marked.rfind("startxref\n");
  const std::size_t table = std::stoul(marked.substr(mark + 10));

  EXPECT_EQ(marked.substr(table, 5), "xref\n");
  for (const char* object : {"2 1\n", "6 1\n", "7 1\n", "8 1\n"}) {
    const std::size_t entry = marked.find(object, table);
    ASSERT_NE(entry, std::string::npos) << object;
    const std::size_t offset = std::stoul(marked.substr(entry + 4, 10));
    EXPECT_EQ(marked.substr(offset, 7), std::string(1, object[0]) + " 0 obj");
  }
}

TEST(Bookmarks, LeaveAFileWithoutEntriesAsItIs) { EXPECT_EQ(WithBookmarks(TwoPages(), {}, A4), TwoPages()); }

TEST(Bookmarks, RefuseAFileThatIsNoPlainPdf) {
  EXPECT_THROW(WithBookmarks("", Two, A4), std::invalid_argument);
  EXPECT_THROW(WithBookmarks("startxref\n12\n", Two, A4), std::invalid_argument);
  std::string other = TwoPages();
  other.replace(other.find("xref\n0 6"), 4, "xxxx");
  EXPECT_THROW(WithBookmarks(other, Two, A4), std::invalid_argument);
  std::string cut = TwoPages();
  cut.replace(cut.find("0000000009"), 10, "9999999999");
  EXPECT_THROW(WithBookmarks(cut.replace(cut.find("/Root 2"), 7, "/Root 1"), Two, A4), std::invalid_argument);
}

}  // namespace
}  // namespace orby::test
