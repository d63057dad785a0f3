#include "sheet/page_layout.h"

#include <algorithm>
#include <iterator>

#include "sheet/page_flow.h"
#include "sheet/page_parts.h"
#include "sheet/sheet_blocks.h"
#include "sheet/sheet_content.h"

namespace orby {
namespace {

PageBlock TitleOf(const DesignSheet& sheet, const PageFoot& foot, const PageParts& parts) {
  Stack stack;
  stack.Add(parts.Text(std::string(SheetKind), page_style::Title), 0, 0);
  parts.AddWrapped(stack, SheetHeading(sheet), page_style::Heading, 0, parts.Across(), 8);
  stack.Space(8);
  const auto row = [&](const std::string& name, const std::string& value) {
    if (value.empty()) return;
    constexpr double Left = 116;
    const double top = stack.Height();
    parts.AddWrapped(stack, value, page_style::Usual, Left, parts.Across() - Left, 4);
    stack.AddAt(parts.Text(name, page_style::Strong), {0, top + 4 + parts.Text(name, page_style::Strong).Ascent});
  };
  for (const TitleFact& fact : TitleFacts(sheet)) row(std::string(fact.Label), fact.Text);
  row("Date", foot.Date);
  return stack.Take();
}

}  // namespace

PagedSheet PagesOf(const DesignSheet& sheet, const PageSize& size, const PageFoot& foot, const TextWidth& width) {
  const PageParts parts(PageFlow(size).TextWidth(), width);
  // The pages before the sections: title and contents. `first` is the number of the first page.
  const auto frontPages = [&](const std::vector<PageEntry>& contents, std::size_t first) {
    std::vector<PageBlock> blocks{TitleOf(sheet, foot, parts), parts.Heading("Contents", page_style::Heading, 18, {})};
    for (const PageEntry& entry : contents) {
      Stack line;
      line.Add(parts.Text(entry.Title, page_style::Usual), 0, 4);
      line.AddAt(RightAligned(parts.Text(std::to_string(entry.Page + first), page_style::Usual)),
                 {parts.Across(), line.Height() - 2});
      blocks.push_back(line.Take());
    }
    PageFlow flow(size);
    flow.Place(blocks);
    return flow.Take();
  };
  PageFlow body(size);
  body.Place(SheetBlocks(sheet, parts));
  PagedSheet pages = body.Take();
  // The front pages are as many whatever the numbers on them are.
  const std::size_t before = frontPages(pages.Contents, 0).Pages.size();
  for (PageEntry& entry : pages.Contents) entry.Page += before;
  PagedSheet front = frontPages(pages.Contents, 1);
  std::ranges::move(front.Pages, std::inserter(pages.Pages, pages.Pages.begin()));
  AddFeet(pages.Pages, foot.Left, width);
  return pages;
}

}  // namespace orby
