#include "dialogs/text_browser.h"

#include <algorithm>
#include <new>

#include "base/attempt.h"
#include "base/file_pattern.h"
#include "base/paths.h"
#include "config/settings_sections.h"
#include "core/dialog_helpers.h"
#include "core/file_helpers.h"
#include "core/messages.h"
#include "dialogs/font_dialog.h"

namespace orby {
namespace {

constexpr std::string_view TemporaryCopy = "~tmpbr.tmp";
constexpr std::size_t Indent = 2;  // spaces per folder level

// Returns the drive of the path: the innermost drive that is a prefix of it.
std::string DriveOf(const std::vector<std::string>& drives, const std::string& path) {
  std::string found;
  for (const std::string& drive : drives) {
    if (WithSeparator(path).starts_with(WithSeparator(drive)) && drive.size() > found.size()) found = drive;
  }
  return found;
}

// Returns the folders from the drive down to the path, including both.
std::vector<std::string> FolderChain(const std::string& drive, const std::string& path) {
  std::vector<std::string> chain{drive};
  const std::string whole = WithSeparator(path);
  for (std::size_t end = WithSeparator(drive).size(); end < whole.size(); ++end) {
    if (IsSeparator(whole[end])) chain.push_back(whole.substr(0, end));
  }
  return chain;
}

// Returns the folder that contains the path. The root contains itself.
std::string FolderAbove(const std::string& path) {
  const std::string above = path.substr(0, path.size() - NameAfterSeparator(path).size());
  return IsRoot(above) ? above : std::string(WithoutSeparator(above));
}

// Returns the path without a trailing separator, except for the root.
std::string FolderName(const std::string& path) { return IsRoot(path) ? path : std::string(WithoutSeparator(path)); }

std::vector<ComboItem> NamesOf(const std::vector<std::string>& paths) {
  std::vector<ComboItem> names;
  names.reserve(paths.size());
  for (const std::string& path : paths) names.push_back({std::string(NameAfterSeparator(path))});
  return names;
}

FontChoice StoredFont(const TextBrowseSettings& stored) {
  return {stored.BrowseFontName, static_cast<int>(stored.BrowseFontSize), stored.BrowseFontBold != 0,
          stored.BrowseFontItalic != 0};
}

void StoreFont(const FontChoice& font, TextBrowseSettings& stored) {
  const auto flag = [](bool on) { return static_cast<Integer>(on ? -1 : 0); };
  stored.BrowseFontName = font.name;
  stored.BrowseFontSize = static_cast<Single>(font.size);
  stored.BrowseFontBold = flag(font.bold);
  stored.BrowseFontItalic = flag(font.italic);
}

}  // namespace

TextBrowser::TextBrowser(Program& program) : ProgramForm(program, "frmTextBrow", "View Source Files") {
  Label1.SetShowsText();
  Drive1.Change = [this] { ChangeDrive(); };
  Dir1.Click = [this] { ChangeFolder(Dir1.ListIndex()); };
  File1.Click = [this] { ViewFile(File1.ListIndex()); };
  Text2.Change = [this] { ShowFiles(); };
  Check1.Click = [this] { ShowViewer(); };
}

void TextBrowser::OnOpen() {
  PrepareForm(program_, MessageModule::TextBrowser);
  const TextBrowseSettings& stored = program_.session.textBrowse;
  prgLoading.SetVisible(false);
  GoToLastFolder();
  Text2.SetText(stored.BrowseDefaultFilter.empty() ? "*." + program_.session.settings.FileExtension
                                                   : stored.BrowseDefaultFilter);
  RichTextBox1.SetFont(StoredFont(stored));
  Check1.SetValue(stored.BrowseUseNotepad);
  ShowViewer();
}

void TextBrowser::OnClose() {
  StopLoading();
  TextBrowseSettings& stored = program_.session.textBrowse;
  stored.LastFolder = folder_;
  stored.BrowseDefaultFilter = Text2.Text();
  stored.BrowseUseNotepad = Check1.Value();
  StoreFont(RichTextBox1.Font(), stored);
  WriteDefaults(program_, StoredSettings::TextBrowse);
}

// ---- drives and folders --------------------------------------------------------------------------------------------

// If a folder no longer exists, opens the nearest parent that does.
void TextBrowser::GoToLastFolder() {
  const std::string& last = program_.session.textBrowse.LastFolder;
  drives_ = program_.platform.files.Drives();
  std::vector<ComboItem> items;
  for (const std::string& drive : drives_) items.push_back({drive});
  Drive1.Fill(std::move(items));
  std::string folder = FolderName(last.empty() ? program_.session.settings.DataPath : last);
  while (!Succeeds([&] { OpenFolder(folder); })) {
    const std::string above = FolderAbove(folder);
    if (above == folder) return;
    folder = above;
  }
}

void TextBrowser::ChangeDrive() {
  const std::string& chosen = Drive1.Text();
  if (chosen == DriveOf(drives_, folder_)) return;
  if (Drive1.HasSelection() && Succeeds([&] { OpenFolder(chosen); })) return;
  ShowMessage(program_,
              "Windows is unable to read selected drive. Make sure the door is closed and the disk is formatted and "
              "free of errors");
  SelectDrive();
}

void TextBrowser::ChangeFolder(int item) {
  const std::string chosen = folderPaths_[static_cast<std::size_t>(item)];
  if (chosen == folder_) return;
  if (RunTrapped(program_, [&] { OpenFolder(chosen); }) == StepOutcome::Done) return;
  const auto present = std::ranges::find(folderPaths_, folder_);
  Dir1.ClickItem(static_cast<int>(present - folderPaths_.begin()));
}

void TextBrowser::OpenFolder(const std::string& folder) {
  const std::vector<std::string> folders = program_.platform.files.FoldersIn(folder);
  folder_ = folder;
  SelectDrive();
  ShowFolders(folders);
  ShowFiles();
}

void TextBrowser::SelectDrive() { Drive1.SetText(DriveOf(drives_, folder_)); }

void TextBrowser::ShowFolders(const std::vector<std::string>& folders) {
  folderPaths_ = FolderChain(DriveOf(drives_, folder_), folder_);
  std::vector<ComboItem> items{{folderPaths_.front()}};
  for (std::size_t depth = 1; depth < folderPaths_.size(); ++depth) {
    items.push_back({std::string(depth * Indent, ' ').append(NameAfterSeparator(folderPaths_[depth]))});
  }
  const std::size_t present = items.size() - 1;
  for (const std::string& name : folders) {
    items.push_back({std::string((present + 1) * Indent, ' ') + name});
    folderPaths_.push_back(WithSeparator(folder_) + name);
  }
  Dir1.Fill(std::move(items));
  Dir1.ClickItem(static_cast<int>(present));
}

void TextBrowser::ShowFiles() {
  if (folder_.empty()) return;  // none of the machine's folders could be read
  filePaths_ = program_.platform.files.FilesIn(folder_);
  std::erase_if(filePaths_, [this](const std::string& path) {
    return !MatchesFilePattern(NameAfterSeparator(path), Text2.Text());
  });
  File1.Fill({});
  File1.Fill(NamesOf(filePaths_));
}

// ---- the chosen file -----------------------------------------------------------------------------------------------

void TextBrowser::ViewFile(int item) {
  const std::string path = filePaths_[static_cast<std::size_t>(item)];
  StopLoading();
  RichTextBox1.Clear();
  Label1.SetText(path);
  RunTrapped(program_, [&] {
    const bool isTooLong = FileExists(program_, path) && program_.platform.files.FileLength(path) > MostBytes;
    if (isTooLong) {
      ReportTooLong();
    } else if (Check1.Checked()) {
      ViewOutside(path);
    } else {
      StartLoading(path);
    }
  });
}

void TextBrowser::ReportTooLong() {
  ShowMessage(program_, "The file is too long to be viewed here, it has more than 1 GB: " + Label1.Text());
}

void TextBrowser::ViewOutside(const std::string& path) {
  const std::string copy = program_.session.folders.ProgramTemporary + std::string(TemporaryCopy);
  program_.platform.windows.SetWaitCursor(true);
  const bool copied = CopyTextFile(program_, path, copy);
  program_.platform.windows.SetWaitCursor(false);
  const std::string& viewer = program_.session.settings.ExternalEditor;
  if (!copied || program_.platform.documents.Start(viewer, {copy})) return;
  ShowMessage(program_, "Shell operation failed. Check status of External Viewer: " + viewer);
}

void TextBrowser::StartLoading(const std::string& path) {
  auto loading = std::make_shared<Loading>();
  loading->length = program_.platform.files.FileLength(path);
  loading->file = program_.platform.files.OpenFile(path);
  try {
    RichTextBox1.Clear(loading->length);
  } catch (const std::bad_alloc&) {
    throw RuntimeError(error_number::OutOfMemory);
  }
  loading_ = std::move(loading);
  prgLoading.SetValue(0);
  prgLoading.SetVisible(true);
  LoadLater();
}

void TextBrowser::LoadLater() {
  program_.platform.clock.CallLater(0, [this, waiting = std::weak_ptr(loading_)] {
    const auto loading = waiting.lock();
    if (loading == nullptr) return;
    const bool isDone = RunTrapped(program_, [&] { LoadNextPiece(*loading); }) == StepOutcome::Done;
    if (loading_ != loading) return;
    if (!isDone) return StopLoading();
    LoadLater();
  });
}

// Checks the length again: a file may have grown since the first check, and some report no length.
void TextBrowser::LoadNextPiece(const Loading& loading) {
  const std::string piece = loading.file->Read(PieceBytes);
  const std::uint64_t length = RichTextBox1.Bytes().size() + piece.size();
  if (piece.empty()) return StopLoading();
  if (length > MostBytes) {
    StopLoading();
    return ReportTooLong();
  }
  RichTextBox1.Append(piece);
  prgLoading.SetValue(static_cast<int>(length * ProgressBar::Whole / std::max(loading.length, length)));
}

void TextBrowser::StopLoading() {
  loading_.reset();
  prgLoading.SetVisible(false);
}

// ---- display -------------------------------------------------------------------------------------------------------

void TextBrowser::ShowViewer() {
  lblView.SetVisible(!Check1.Checked());
  RichTextBox1.SetVisible(!Check1.Checked());
  cmdSetFont.SetEnabled(!Check1.Checked());
}

void TextBrowser::ChooseFont() {
  const auto chosen = AskFont(program_, RichTextBox1.Font(), ReadableFonts(program_));
  if (chosen) RichTextBox1.SetFont(*chosen);
}

}  // namespace orby
