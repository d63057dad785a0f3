// The window "Designs in a Folder": all projects below a folder as rows of a table, sorted and filtered.
//
// Files are read, and rows are sorted, copied and saved, on other threads. The window looks after them a few dozen
// times a second.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/designs_controls.h"
#include "dialogs/folder_reader.h"
#include "dialogs/table_output.h"
#include "tables/row_choice.h"

namespace orby {

class DesignsWindow : public DesignsControls {
 public:
  explicit DesignsWindow(Program& program);
  ~DesignsWindow() override;

  // Set when the window closes: the project to open.
  std::optional<std::string> Chosen;

  // Returns the paths of the marked designs, in the order of the table.
  std::vector<std::string> SelectedFiles() const;
  // Returns true while files are read, or rows sorted, copied or saved.
  bool IsBusy() const { return reader_ != nullptr || arranging_ != nullptr || output_ != nullptr; }

 protected:
  void OnOpen() override;
  // Stops what is under way and keeps the folder.
  void OnClose() override;

 private:
  // A choice of rows that is under way.
  struct Arranging;

  void FillLists();
  void Browse();
  void ReadByUser();
  // Returns false if there is no such folder.
  bool Read(const std::string& folder);
  void Stop();

  // Looks again at what is under way, until all has ended.
  void Follow();
  void TakeRead();
  void TakeArranged();
  void TakeOutput();
  void ShowProgress();

  UnitSystem Units() const;
  RowState State() const;
  // Shows the chosen columns in the chosen units.
  void ShowColumns();
  void ShowSortingList(Columns shown);
  void ShowSorting();
  void SortByHead(int column);
  // Chooses and sorts the rows again. Until that is done, the table stays as it is.
  void Arrange();
  void ShowRows(std::vector<std::size_t> order);
  void ShowCounts();
  const TableRow& RowAt(int row) const { return *rows_[order_[static_cast<std::size_t>(row)]]; }
  RowTableCell CellAt(int row, int column) const;
  void TakeMarks();
  void KeepMarks();

  void OpenCurrent();
  // Shows the marked designs side by side.
  void Compare();
  void Copy();
  void SaveAs();
  // Starts to make a text or a file of these rows, and says what is done.
  void Put(TableOutput::Form form, std::vector<RowPointer> rows, std::string path);

  std::string folder_;  // with a trailing separator; empty: none was read
  std::vector<RowPointer> rows_;
  std::vector<std::size_t> order_;   // the rows on view, by their places in rows_
  std::vector<std::size_t> marked_;  // rows, by their places in rows_
  std::optional<std::size_t> current_;
  bool hasMarked_ = false;   // the user has marked rows of this folder
  std::size_t unread_ = 0;   // rows without a design
  std::size_t english_ = 0;  // designs
  Columns shown_;
  bool isShowing_ = false;  // the lists follow the columns

  std::shared_ptr<int> life_;  // while the window is open
  bool isWaiting_ = false;     // for the next look
  std::unique_ptr<FolderReader> reader_;
  std::unique_ptr<Arranging> arranging_;
  bool mustArrange_ = false;  // once the present choice has ended
  std::unique_ptr<TableOutput> output_;
};

}  // namespace orby
