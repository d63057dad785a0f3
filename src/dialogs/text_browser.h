// The text file browser: shows any file as text, in its own pane or in the external viewer.
//
// A file is read in pieces, so that the user can go on working. Choosing another file or closing the window stops the
// reading.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class TextBrowser : public ProgramForm {
 public:
  Label lblDrive{*this, "lblDrive", "Select Drive:"};
  Combo Drive1{*this, "Drive1", ComboKind::ListOnly};
  Label lblFolder{*this, "lblFolder", "Select Folder:"};
  List Dir1{*this, "Dir1"};  // the folders from the drive to the current one, then its subfolders
  Label lblFile{*this, "lblFile", "Select File:"};
  List File1{*this, "File1"};
  Label lblPattern{*this, "lblPattern", "Pattern:"};
  TextBox Text2{*this, "Text2"};

  Label lblCurrentFile{*this, "lblCurrentFile", "Current file:"};
  TextBox Label1{*this, "Label1", TextKind::Output};
  Label lblView{*this, "lblView", "View of Selected File"};
  TextPane RichTextBox1{*this, "RichTextBox1"};

  CheckBox Check1{*this, "Check1", "Use external viewer"};
  ProgressBar prgLoading{*this, "prgLoading"};

  // commands
  Button cmdSetFont{*this, "cmdSetFont", "Set &Font", [this] { ChooseFont(); }};
  Button Command1{*this, "Command1", "Close", [this] { Close(); }};

  explicit TextBrowser(Program& program);

  // Longer files are refused.
  static constexpr std::uint64_t MostBytes = std::uint64_t{1} << 30U;
  // The size of one piece.
  static constexpr std::size_t PieceBytes = std::size_t{1} << 21U;

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  // A file that is being read into the pane.
  struct Loading {
    std::unique_ptr<InputFile> file;
    std::uint64_t length = 0;
  };

  // folders
  void GoToLastFolder();
  void ChangeDrive();
  void ChangeFolder(int item);
  // Throws the file system's RuntimeError and then changes nothing.
  void OpenFolder(const std::string& folder);
  void ShowFolders(const std::vector<std::string>& folders);
  void SelectDrive();
  void ShowFiles();

  // the chosen file
  void ViewFile(int item);
  void ReportTooLong();
  void ViewOutside(const std::string& path);
  void StartLoading(const std::string& path);
  void LoadNextPiece(const Loading& loading);
  void LoadLater();
  void StopLoading();

  void ShowViewer();
  void ChooseFont();

  std::vector<std::string> drives_;
  std::string folder_;                    // the current folder
  std::vector<std::string> folderPaths_;  // by item of Dir1
  std::vector<std::string> filePaths_;    // by item of File1
  std::shared_ptr<Loading> loading_;      // a scheduled read does nothing after this is gone
};

}  // namespace orby
