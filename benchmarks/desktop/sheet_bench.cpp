#include "desktop/sheet_bench.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "desktop/starts.h"
#include "dialogs/project_sheet.h"
#include "shell/start_up.h"

namespace orby {
namespace {

constexpr int Rounds = 31;

// What one way of making a document took.
struct Taken {
  std::vector<qint64> Nanoseconds;
  std::size_t Bytes = 0;

  qint64 MedianMicroseconds() {
    const auto middle = Nanoseconds.begin() + static_cast<std::ptrdiff_t>(Nanoseconds.size() / 2);
    std::ranges::nth_element(Nanoseconds, middle);
    return *middle / 1000;
  }
};

template <class Make>
void TimeOnce(Taken& taken, const Make& make) {
  QElapsedTimer since;
  since.start();
  const std::size_t bytes = make();
  taken.Nanoseconds.push_back(since.nsecsElapsed());
  taken.Bytes = bytes;
}

std::size_t EmptyPages(std::size_t pages) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setPageSize(QPageSize(QPageSize::A4));
  QPainter painter(&writer);
  for (std::size_t page = 1; page < pages; ++page) writer.newPage();
  painter.end();
  return static_cast<std::size_t>(bytes.size());
}

}  // namespace

int MeasureSheet() {
  Run run;
  StartApart(run.program, nullptr);
  Design& design = run.program.project.WorkParms;
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    for (SupportSystem* system : support->Systems()) system->Use = 1;
  }
  const SheetPaper paper{.Size = A4, .Date = "2023-05-07"};
  const std::size_t pages = PagesOfSheet(run.program, SheetOfProject(run.program), paper).Pages.size();
  const auto sheet = [&] { return SheetAsPdf(run.program, SheetOfProject(run.program), paper).size(); };
  const auto empty = [&] { return EmptyPages(pages); };
  // The first document loads the fonts.
  sheet();
  empty();
  Taken own;
  Taken bare;
  for (int i = 0; i < Rounds; ++i) {
    TimeOnce(own, sheet);
    TimeOnce(bare, empty);
  }
  std::printf("%lld %lld %zu %zu %zu\n", static_cast<long long>(own.MedianMicroseconds()),
              static_cast<long long>(bare.MedianMicroseconds()), pages, own.Bytes, bare.Bytes);
  return EXIT_SUCCESS;
}

}  // namespace orby
