// Opening files and running other programs.
#pragma once

#include <string>
#include <vector>

namespace orby {

// Points in two columns with headers. The chart beside them plots y against x.
struct SheetSeries {
  std::string xHeader;
  std::string yHeader;
  std::vector<double> x;
  std::vector<double> y;
};

struct Sheet {
  std::string title;  // title of the chart
  std::string xTitle;
  std::string yTitle;
  std::vector<SheetSeries> series;  // each series takes the next two columns
};

class Documents {
 public:
  virtual ~Documents() = default;
  // Opens the file with the program that the desktop has for it. Returns false when there is none or it does not start.
  virtual bool Open(const std::string& path) = 0;
  // Writes the sheet as a spreadsheet file and opens it. Throws RuntimeError 429, which names the file, when there is
  // no program for it. Throws the RuntimeError of the file system when the file cannot be written.
  virtual void OpenSheet(const Sheet& sheet, const std::string& path) = 0;
  // Starts a program. `program` is a path, or a name that the system looks up. Returns false when it does not start.
  virtual bool Start(const std::string& program, const std::vector<std::string>& arguments) = 0;
  // Runs a program and waits a few seconds for its end. Returns false when it does not start, takes longer, or reports
  // a failure.
  virtual bool RunToEnd(const std::string& program, const std::vector<std::string>& arguments) = 0;
};

}  // namespace orby
