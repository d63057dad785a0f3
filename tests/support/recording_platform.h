// A platform without a screen or a disk: it answers from scripts, records what was asked, and fails on demand.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/paths.h"
#include "base/runtime_error.h"
#include "controls/control.h"
#include "controls/form.h"
#include "platform/platform.h"

namespace orby::test {

// Boxes answer from the queue, OK when it is empty.
class RecordingBoxes : public MessageBoxes {
 public:
  BoxResult Show(const MessageBox& box) override {
    shown.push_back(box);
    if (answers.empty()) return BoxResult::Ok;
    const BoxResult answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const auto& box : shown) texts.push_back(box.text);
    return texts;
  }

  std::vector<MessageBox> shown;
  std::deque<BoxResult> answers;
};

// The power goes at a step of the files: nothing after it happens, and nothing below the test catches this.
struct PowerCut {};

// Files in memory. Any step of a file's life can be made to fail with a run-time error, or to be the last before the
// power goes.
class MemoryFiles : public FileSystem {
 public:
  static constexpr int Always = -1;

  enum class Step {
    Find,
    Read,
    Create,
    Reserve,
    Write,
    Cut,
    Flush,
    Close,
    Remove,
    Rename,
    MakeFolder,
    EnterFolder,
    ListFolders
  };

  // The step fails with this error, as soon as it has succeeded `after` times; so many times, or always.
  void Fail(Step step, int errorNumber, int after = 0, int count = Always) {
    failures[step] = {errorNumber, after, count};
  }
  // No step fails any more.
  void Mend() { failures.clear(); }

  // The step after so many others fails with this error, whatever it is.
  void FailNext(int errorNumber, int after) { nextFailure = {errorNumber, after, 1}; }
  // That step and all that follow it fail.
  void FailFrom(int errorNumber, int after) { nextFailure = {errorNumber, after, Always}; }
  // The power goes at the step after so many others.
  void CutPower(int after) { nextFailure = {PowerIsCut, after, 1}; }
  // Whether that step has come.
  bool HasFailed() const { return nextFailure.hasFailed; }

  bool Finds(const std::string& path, bool foldersToo) override {
    Meet(Step::Find);
    return files.contains(path) || (foldersToo && folders.contains(WithoutSeparator(path)));
  }

  std::string ReadFile(const std::string& path) override {
    Meet(Step::Read);
    const auto found = files.find(path);
    if (found == files.end()) throw RuntimeError(error_number::FileNotFound);
    return found->second;
  }

  std::unique_ptr<InputFile> OpenFile(const std::string& path) override {
    return std::make_unique<MemoryInput>(*this, ReadFile(path));
  }
  std::uint64_t FileLength(const std::string& path) override { return ReadFile(path).size(); }
  std::optional<Moment> WrittenAt(const std::string& path) override {
    const auto found = times.find(path);
    return found == times.end() ? std::nullopt : std::optional(found->second);
  }

  std::unique_ptr<OutputFile> CreateFile(const std::string& path) override {
    Meet(Step::Create);
    files[path].clear();
    created.push_back(path);
    return std::make_unique<MemoryOutput>(*this, path);
  }

  std::unique_ptr<OutputFile> OpenInPlace(const std::string& path, std::uint64_t) override {
    Meet(Step::Create);
    const bool isNew = files.try_emplace(path).second;
    try {
      Meet(Step::Reserve);
    } catch (const RuntimeError&) {
      if (isNew) files.erase(path);
      throw;
    }
    created.push_back(path);
    return std::make_unique<MemoryInPlace>(*this, path);
  }

  void RemoveFile(const std::string& path) override {
    Meet(Step::Remove);
    if (files.erase(path) == 0) throw RuntimeError(error_number::FileNotFound);
    onDisk.erase(path);
  }

  void RenameFile(const std::string& path, const std::string& newPath) override {
    Meet(Step::Rename);
    files[newPath] = ReadFile(path);
    files.erase(path);
    // The disk has the new name at once, the bytes only if they were waited for.
    onDisk[newPath] = onDisk[path];
    onDisk.erase(path);
  }

  void ReplaceFile(const std::string& path, std::string_view bytes) override {
    const std::string beside = path + ".tmp";
    try {
      const auto file = CreateFile(beside);
      file->Write(bytes);
      Meet(Step::Flush);
      onDisk[beside] = files[beside];
      file->Close();
      RenameFile(beside, path);
    } catch (const RuntimeError&) {
      files.erase(beside);
      throw;
    }
  }

  void MakeFileLike(const std::string& path, const std::string& model) override {
    Meet(Step::Create);
    files[path].clear();
    likeOthers[path] = model;
  }
  std::string BehindLinks(const std::string& path) override {
    const auto link = links.find(path);
    return link == links.end() ? path : link->second;
  }

  void MakeFolder(const std::string& path) override {
    Meet(Step::MakeFolder);
    folders.emplace(WithoutSeparator(path));
  }
  void MakePrivateFolder(const std::string& path) override {
    MakeFolder(path);
    privateFolders.emplace(WithoutSeparator(path));
  }

  bool CanWriteTo(const std::string& folder) override { return !readOnly.contains(WithoutSeparator(folder)); }
  std::vector<std::string> FilesIn(const std::string& folder) override {
    std::vector<std::string> found;
    for (const auto& [path, bytes] : files) {
      const std::string_view name = NameBehindSeparator(path);
      if (path.substr(0, path.size() - name.size()) == WithSeparator(folder)) found.push_back(path);
    }
    return found;
  }
  std::vector<std::string> FoldersIn(const std::string& folder) override {
    Meet(Step::ListFolders);
    if (!folders.contains(WithoutSeparator(folder))) throw RuntimeError(error_number::PathNotFound);
    std::vector<std::string> found;
    for (const std::string& path : folders) {
      const std::string_view name = NameBehindSeparator(path);
      if (!name.empty() && path.substr(0, path.size() - name.size()) == WithSeparator(folder)) found.emplace_back(name);
    }
    return found;
  }
  std::vector<std::string> Drives() override { return drives; }
  void SetWorkingFolder(const std::string& path) override {
    Meet(Step::EnterFolder);
    workingFolder = path;
  }
  std::string AbsolutePath(const std::string& path) override {
    return path.starts_with('/') ? path : workingFolder + "/" + path;
  }

  std::unique_ptr<FileMark> TryMark(const std::string& path) override {
    if (marked.contains(path)) return nullptr;
    files.try_emplace(path);
    return std::make_unique<MemoryMark>(*this, path);
  }

  std::string TemporaryFolder() override { return "/tmp"; }
  std::string ProgramFolder() override { return "/program"; }

  std::map<std::string, std::string> files;
  std::map<std::string, std::string> onDisk;  // what is sure to be there after a power cut
  std::map<std::string, Moment> times;        // when they were written last
  std::set<std::string, std::less<>> folders{"/tmp", "/program"};
  std::set<std::string, std::less<>> readOnly;  // folders
  std::set<std::string, std::less<>> privateFolders;
  std::map<std::string, std::string> links;       // where they lead to; only BehindLinks looks at them
  std::map<std::string, std::string> likeOthers;  // files that were made like another one
  std::set<std::string> marked;                   // files in use by a program
  std::vector<std::string> drives{"/"};
  std::string workingFolder = "/section";
  std::vector<std::string> created;
  std::size_t bytesRead = 0;  // from files that were read piece by piece

 private:
  struct Failure {
    int errorNumber = 0;
    int after = 0;
    int times = Always;
    bool hasFailed = false;

    bool IsMet() {
      if (errorNumber == 0 || after-- > 0 || times == 0) return false;
      if (times > 0) --times;
      hasFailed = true;
      return true;
    }
  };

  class MemoryOutput : public OutputFile {
   public:
    MemoryOutput(MemoryFiles& owner, std::string path) : owner_(owner), path_(std::move(path)) {}
    void Write(std::string_view bytes) override {
      owner_.Meet(Step::Write);
      owner_.files[path_] += bytes;
    }
    void Close() override { owner_.Meet(Step::Close); }

   private:
    MemoryFiles& owner_;
    std::string path_;
  };

  // A write that fails has written the first half.
  class MemoryInPlace : public OutputFile {
   public:
    MemoryInPlace(MemoryFiles& owner, std::string path) : owner_(owner), path_(std::move(path)) {}
    void Write(std::string_view bytes) override {
      Put(bytes.substr(0, bytes.size() / 2));
      owner_.Meet(Step::Write);
      Put(bytes.substr(bytes.size() / 2));
    }
    void Close() override {
      owner_.Meet(Step::Cut);
      owner_.files[path_].resize(written_);
      owner_.Meet(Step::Flush);
      owner_.onDisk[path_] = owner_.files[path_];
      owner_.Meet(Step::Close);
    }

   private:
    void Put(std::string_view bytes) {
      std::string& file = owner_.files[path_];
      file.replace(std::min(written_, file.size()), bytes.size(), bytes);
      written_ += bytes.size();
    }

    MemoryFiles& owner_;
    std::string path_;
    std::size_t written_ = 0;
  };

  class MemoryInput : public InputFile {
   public:
    MemoryInput(MemoryFiles& owner, std::string bytes) : owner_(owner), bytes_(std::move(bytes)) {}
    std::string Read(std::size_t most) override {
      owner_.Meet(Step::Read);
      const std::string piece = bytes_.substr(place_, most);
      place_ += piece.size();
      owner_.bytesRead += piece.size();
      return piece;
    }

   private:
    MemoryFiles& owner_;
    std::string bytes_;
    std::size_t place_ = 0;
  };

  class MemoryMark : public FileMark {
   public:
    MemoryMark(MemoryFiles& owner, std::string path) : owner_(owner), path_(std::move(path)) {
      owner_.marked.insert(path_);
    }
    ~MemoryMark() override { owner_.marked.erase(path_); }
    MemoryMark(const MemoryMark&) = delete;
    MemoryMark& operator=(const MemoryMark&) = delete;

   private:
    MemoryFiles& owner_;
    std::string path_;
  };

  void Meet(Step step) {
    for (Failure* failure : {&nextFailure, &failures[step]}) {
      if (!failure->IsMet()) continue;
      if (failure->errorNumber == PowerIsCut) throw PowerCut();
      throw RuntimeError(failure->errorNumber);
    }
  }

  static constexpr int PowerIsCut = -1;

  std::map<Step, Failure> failures;
  Failure nextFailure;  // of whatever step; none: no error number
};

// File dialogs answer from the queue; an empty queue, or an empty name, is a cancelled dialog.
class ScriptedFileDialogs : public FileDialogs {
 public:
  std::string AskOpenName(const FileQuestion& question) override { return Answer("open", question); }
  std::string AskSaveName(const FileQuestion& question) override { return Answer("save", question); }
  std::string AskFolder(const std::string& title, const std::string& folder) override {
    FileQuestion question;
    question.title = title;
    question.folder = folder;
    return Answer("folder", question);
  }

  std::vector<FileQuestion> asked;
  std::vector<std::string> kinds;  // of what was asked: "open", "save", "folder"
  std::deque<std::string> answers;

 private:
  std::string Answer(const char* kind, const FileQuestion& question) {
    kinds.emplace_back(kind);
    asked.push_back(question);
    if (answers.empty() || answers.front().empty()) throw RuntimeError(error_number::Cancelled);
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

// Modal forms are handed to the script of the test, which plays the user; without one they are closed at once.
class RecordingWindows : public Windows {
 public:
  void ShowModal(Form& form) override {
    ++modalForms;
    if (onModal) onModal(form);
  }
  void Show(Form& form) override { shown.push_back(&form); }
  void ShowMainWindow(bool visible) override { mainWindowShown = visible; }
  void CenterForm(Form&) override { ++centered; }
  void SetWaitCursor(bool waiting) override { waitCursor = waiting; }

  std::function<void(Form&)> onModal;
  int modalForms = 0;
  std::vector<Form*> shown;
  bool mainWindowShown = true;
  int centered = 0;
  bool waitCursor = false;
};

class ListedFonts : public Fonts {
 public:
  std::vector<std::string> ScreenFonts() override {
    ++asked;
    return screen;
  }
  std::vector<std::string> PrinterFonts() override { return printer; }
  std::vector<std::string> FixedPitchFonts() override { return fixedPitch; }

  std::vector<std::string> screen;
  std::vector<std::string> printer;
  std::vector<std::string> fixedPitch;
  int asked = 0;  // for the fonts of the screen
};

class ScriptedLocale : public Locale {
 public:
  std::string DecimalSeparator() override { return separator; }

  std::string separator = ".";
};

// A time that changes only when the test says so, and acts that wait until the test lets time pass.
class StandingClock : public Clock {
 public:
  Date Today() override { return today; }
  Moment Now() override { return {today, hour, minute, second}; }
  void CallLater(int milliseconds, std::function<void()> act) override {
    waiting.push_back({milliseconds, std::move(act)});
  }

  // Runs what waits, in the order in which it was asked for.
  void Pass() {
    for (auto& [milliseconds, act] : std::exchange(waiting, {})) act();
  }

  Date today{2031, 3, 9};
  int hour = 14;
  int minute = 5;
  int second = 7;
  std::vector<std::pair<int, std::function<void()>>> waiting;
};

class ScriptedUserFolders : public UserFolders {
 public:
  std::optional<std::string> Documents() override { return documents; }
  std::optional<std::string> Desktop() override { return desktop; }
  std::optional<std::string> Data() override { return data; }

  std::optional<std::string> documents = "/home/user/Documents";
  std::optional<std::string> desktop = "/home/user/Desktop";
  std::optional<std::string> data = "/home/user/.local/share";
};

class RecordingClipboard : public Clipboard {
 public:
  void Clear() override { text.clear(); }
  void SetText(const std::string& given) override { text = given; }
  void SetPicture(const Control& chart) override { pictured = chart.Name(); }
  void SetPicture(const Form& form) override { pictured = form.Name(); }

  std::string text;
  std::string pictured;
};

// Every step fails with the error that is set.
class RecordingPrinter : public Printer {
 public:
  void Choose(const std::string& fileName) override {
    ++chosen;
    proposedName = fileName;
    Meet();
  }
  void ChooseAsBefore(const std::string& fileName) override { nameOfUnasked = fileName; }
  void SetUp() override {
    ++setUp;
    Meet();
  }
  std::string PrintPages(const std::vector<std::string>& given, const std::string& name,
                         const std::string& font) override {
    Meet();
    pages = given;
    title = name;
    fontName = font;
    return file;
  }
  void PrintChart(const Control& chart, const std::string& name) override {
    Meet();
    printedChart = chart.Name();
    title = name;
  }

  std::vector<std::string> pages;
  std::string title;
  std::string fontName;
  std::string printedChart;
  std::string proposedName;
  std::string nameOfUnasked;
  std::string file;  // that is printed to
  int chosen = 0;
  int setUp = 0;
  int error = 0;

 private:
  void Meet() const {
    if (error != 0) throw RuntimeError(error);
  }
};

class RecordingDocuments : public Documents {
 public:
  bool Open(const std::string& path) override {
    opened.push_back(path);
    return opens;
  }
  void OpenSheet(const Sheet& given, const std::string& path) override {
    sheet = given;
    opened.push_back(path);
    if (!opens) throw RuntimeError(error_number::Automation, ". " + path);
  }

  bool Start(const std::string& program, const std::vector<std::string>& arguments) override {
    return Take(started, program, arguments);
  }
  bool RunToEnd(const std::string& program, const std::vector<std::string>& arguments) override {
    return Take(ran, program, arguments);
  }

  Sheet sheet;
  std::vector<std::string> opened;
  std::vector<std::vector<std::string>> started;  // programs with their arguments
  std::vector<std::vector<std::string>> ran;
  bool opens = true;

 private:
  bool Take(std::vector<std::vector<std::string>>& list, const std::string& program,
            const std::vector<std::string>& arguments) const {
    list.push_back({program});
    list.back().insert(list.back().end(), arguments.begin(), arguments.end());
    return opens;
  }
};

// Records what was asked for, one text a call: "contents /program/ORBY.CHM", "topic /program/ORBY.CHM frmGraph".
class RecordingHelp : public HelpViewer {
 public:
  bool ShowContents(const std::string& path) override { return Take("contents " + path); }
  bool ShowIndex(const std::string& path) override { return Take("index " + path); }
  bool ShowTopic(const std::string& path, const std::string& topic) override {
    return Take("topic " + path + " " + topic);
  }
  void Close() override { shown.emplace_back("close"); }

  std::vector<std::string> shown;
  bool opens = true;

 private:
  bool Take(std::string call) {
    shown.push_back(std::move(call));
    return opens;
  }
};

// Fetches that the test carries on and ends.
class ScriptedDownloads : public Downloads {
 public:
  struct Asked {
    FetchRequest request;
    FetchEvents events;
    bool stopped = false;  // the fetch was destroyed
  };

  std::unique_ptr<Fetch> Start(const FetchRequest& request, FetchEvents events) override {
    if (!works) return nullptr;
    asked.push_back({request, std::move(events)});
    return std::make_unique<ScriptedFetch>(asked.back());
  }
  // The copy of "/downloads/setup" is "/private/setup".
  std::optional<std::string> CheckedCopy(const std::string& path, const std::string& sha256) override {
    if (copyError != 0) throw RuntimeError(copyError);
    if (sums[path] != sha256) return std::nullopt;
    return "/private/" + std::string(NameBehindSeparator(path));
  }

  std::deque<Asked> asked;
  std::map<std::string, std::string> sums;  // of the files as they are, by their paths
  int copyError = 0;
  bool works = true;

 private:
  class ScriptedFetch : public Fetch {
   public:
    explicit ScriptedFetch(Asked& asked) : asked_(asked) {}
    ~ScriptedFetch() override { asked_.stopped = true; }
    ScriptedFetch(const ScriptedFetch&) = delete;
    ScriptedFetch& operator=(const ScriptedFetch&) = delete;

   private:
    Asked& asked_;
  };
};

class RecordingFileTypes : public FileTypes {
 public:
  void Associate(const std::string& extension, const std::string& programName) override {
    associated.push_back(extension + " with " + programName);
  }

  std::vector<std::string> associated;
};

struct RecordingPlatform {
  RecordingBoxes boxes;
  MemoryFiles files;
  ScriptedFileDialogs fileDialogs;
  RecordingWindows windows;
  ListedFonts fonts;
  ScriptedLocale locale;
  StandingClock clock;
  ScriptedUserFolders userFolders;
  RecordingClipboard clipboard;
  RecordingPrinter printer;
  RecordingDocuments documents;
  RecordingHelp help;
  ScriptedDownloads downloads;
  RecordingFileTypes fileTypes;

  Platform Doors() { return DoorsWith(); }
  // With others, as other message boxes or another file system, in the place of its own of that kind.
  template <class... Others>
  Platform DoorsWith(Others&... others) {
    return {Door<MessageBoxes>(boxes, others...),
            Door<FileSystem>(files, others...),
            Door<FileDialogs>(fileDialogs, others...),
            Door<Windows>(windows, others...),
            Door<Fonts>(fonts, others...),
            Door<Locale>(locale, others...),
            Door<Clock>(clock, others...),
            Door<UserFolders>(userFolders, others...),
            Door<Clipboard>(clipboard, others...),
            Door<Printer>(printer, others...),
            Door<Documents>(documents, others...),
            Door<HelpViewer>(help, others...),
            Door<Downloads>(downloads, others...),
            Door<FileTypes>(fileTypes, others...)};
  }

 private:
  template <class Kind>
  static Kind& Door(Kind& own) {
    return own;
  }
  template <class Kind, class First, class... Rest>
  static Kind& Door(Kind& own, First& first, Rest&... rest) {
    if constexpr (std::is_base_of_v<Kind, First>) {
      return first;
    } else {
      return Door<Kind>(own, rest...);
    }
  }
};

// Runs the act and gives the number of the run-time error it throws, or 0.
template <class Act>
int ErrorNumberOf(const Act& act) {
  try {
    act();
    return 0;
  } catch (const RuntimeError& error) {
    return error.number();
  }
}

}  // namespace orby::test
