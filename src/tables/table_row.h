// A row of a table of designs: one project with all its figures and judgements.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"
#include "engine/analysis.h"
#include "engine/cost.h"
#include "engine/verdicts.h"

namespace orby {

struct TableRow {
  std::string File;
  std::string Title;
  std::string Reason;  // why the file has no design; all that follows is then of no use

  Design Shown;         // as the parameters dialog opens on it
  Figures Live;         // of the dialog
  Verdicts Judged;      // of the dialog
  Figures Reported;     // of the report
  int ReportError = 0;  // the number of the run-time error that the report ends with; 0: none
  Computed<CostTable> CostOfBolts;

  bool IsRead() const { return Reason.empty(); }
};

// Makes rows. Its functions may be called on any thread.
class RowMaker {
 public:
  // Takes the catalogs, the values of new designs and the choice of the Australian bolts from the program.
  explicit RowMaker(const Program& program);

  // Returns the row of a file. One that cannot be read has the message of the reader as its reason. Throws nothing but
  // std::bad_alloc.
  TableRow RowOfFile(FileSystem& files, const std::string& path) const;
  // Returns the row of the bytes of a project file.
  TableRow RowOfBytes(std::string file, std::string_view bytes) const;
  // Returns the row of an open project.
  TableRow RowOfProject(std::string file, const Project& project) const;

 private:
  void FillFromBytes(TableRow& row, std::string_view bytes) const;
  void Fill(TableRow& row, const Project& project) const;

  Project fresh_;  // before a file is read
  Catalogs catalogs_;
  Catalogs australian_;
};

}  // namespace orby
