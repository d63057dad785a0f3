// Other programs of the desktop.
#pragma once

#include <string>
#include <vector>

namespace orby {

// Points in two columns under headers; the chart beside them shows one against the other.
struct SheetSeries {
  std::string xHeader;
  std::string yHeader;
  std::vector<double> x;
  std::vector<double> y;
};

struct Sheet {
  std::string title;  // of the chart
  std::string xTitle;
  std::string yTitle;
  std::vector<SheetSeries> series;  // each takes the next two columns
};

class Documents {
 public:
  virtual ~Documents() = default;
  // Opens the file with the program that the desktop has for it; false when there is none or it does not start.
  virtual bool Open(const std::string& path) = 0;
  // Writes the sheet as a spreadsheet file and opens it. Throws RuntimeError 429, which names the file, when there is
  // no program for it, and the file's RuntimeError when it cannot be written.
  virtual void OpenSheet(const Sheet& sheet, const std::string& path) = 0;
  // Starts a program, a path or a name that the system looks up; false when it does not start.
  virtual bool Start(const std::string& program, const std::vector<std::string>& arguments) = 0;
  // Runs a program to its end, a few seconds at most; false when it does not start, takes longer, or reports a failure.
  virtual bool RunToEnd(const std::string& program, const std::vector<std::string>& arguments) = 0;
};

}  // namespace orby
