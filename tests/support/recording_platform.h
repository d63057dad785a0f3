// A platform without a screen or a disk. It answers from scripts, records the calls, and fails on demand.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/runtime_error.h"
#include "drawings/scene.h"
#include "platform/platform.h"
#include "support/memory_files.h"

namespace orby::test {

// Message boxes that answer from the queue, and with OK when it is empty.
class RecordingBoxes : public MessageBoxes {
 public:
  BoxResult Show(const MessageBox& box) override;

  std::vector<std::string> Texts() const;

  std::vector<MessageBox> shown;
  std::deque<BoxResult> answers;
};

// File dialogs that answer from the queue. An empty queue, or an empty name, cancels the dialog.
class ScriptedFileDialogs : public FileDialogs {
 public:
  std::string AskOpenName(const FileQuestion& question) override;
  std::string AskSaveName(const FileQuestion& question) override;
  std::string AskFolder(const std::string& title, const std::string& folder) override;

  std::vector<FileQuestion> asked;
  std::vector<std::string> kinds;  // of the questions: "open", "save", "folder"
  std::deque<std::string> answers;

 private:
  std::string Answer(const char* kind, const FileQuestion& question);
};

// Windows whose modal forms are passed to a function of the test, which acts as the user. Without one they are closed
// at once.
class RecordingWindows : public Windows {
 public:
  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowMainWindow(bool visible) override;
  void CenterForm(Form&) override;
  void SetWaitCursor(bool waiting) override;

  std::function<void(Form&)> onModal;
  int modalForms = 0;
  std::vector<Form*> shown;
  bool mainWindowShown = true;
  int centered = 0;
  bool waitCursor = false;
};

class ListedFonts : public Fonts {
 public:
  std::vector<std::string> ScreenFonts() override;
  std::vector<std::string> PrinterFonts() override;
  std::vector<std::string> FixedPitchFonts() override;

  std::vector<std::string> screen;
  std::vector<std::string> printer;
  std::vector<std::string> fixedPitch;
  int asked = 0;  // how often ScreenFonts was called
};

class ScriptedLocale : public Locale {
 public:
  std::string DecimalSeparator() override;
  bool UsesLetter() override { return usesLetter; }

  std::string separator = ".";
  bool usesLetter = false;
};

// A clock that stands still until the test changes it. Delayed calls wait for Pass.
class StandingClock : public Clock {
 public:
  Date Today() override;
  Moment Now() override;
  void CallLater(int milliseconds, std::function<void()> act) override;

  // Makes the delayed calls in their order.
  void Pass();

  Date today{2031, 3, 9};
  int hour = 14;
  int minute = 5;
  int second = 7;
  std::vector<std::pair<int, std::function<void()>>> waiting;
};

class ScriptedUserFolders : public UserFolders {
 public:
  std::optional<std::string> Documents() override;
  std::optional<std::string> Desktop() override;
  std::optional<std::string> Data() override;

  std::optional<std::string> documents = "/home/user/Documents";
  std::optional<std::string> desktop = "/home/user/Desktop";
  std::optional<std::string> data = "/home/user/.local/share";
};

class RecordingClipboard : public Clipboard {
 public:
  void Clear() override;
  void SetText(const std::string& given) override;
  void SetPicture(const Control& chart) override;
  void SetPicture(const Form& form) override;
  void SetPicture(const Scene& given) override;

  std::string text;
  Scene scene;
  std::string pictured;
};

// A printer whose functions fail with `error` if it is set.
class RecordingPrinter : public Printer {
 public:
  void Choose(const std::string& fileName) override;
  void ChooseAsBefore(const std::string& fileName) override;
  void SetUp() override;
  std::string PrintPages(const std::vector<std::string>& given, const std::string& name,
                         const std::string& font) override;
  void PrintScenes(const std::vector<Scene>& given, const std::string& name) override;
  void PrintChart(const Control& chart, const std::vector<std::string>& lines) override;

  std::vector<std::string> pages;
  std::vector<Scene> scenes;
  std::string title;
  std::string fontName;
  std::string printedChart;
  std::vector<std::string> chartHeading;
  std::string proposedName;
  std::string nameOfUnasked;
  std::string file;  // the file that is printed to
  int chosen = 0;
  int setUp = 0;
  int error = 0;

 private:
  void Meet() const;
};

class RecordingDocuments : public Documents {
 public:
  bool Open(const std::string& path) override;
  void OpenSheet(const Sheet& given, const std::string& path) override;

  bool Start(const std::string& program, const std::vector<std::string>& arguments) override;
  bool RunToEnd(const std::string& program, const std::vector<std::string>& arguments) override;

  Sheet sheet;
  std::vector<std::string> opened;
  std::vector<std::vector<std::string>> started;  // programs with their arguments
  std::vector<std::vector<std::string>> ran;
  bool opens = true;

 private:
  bool Take(std::vector<std::vector<std::string>>& list, const std::string& program,
            const std::vector<std::string>& arguments) const;
};

// Records each call as a text: "contents /program/ORBY.CHM", "topic /program/ORBY.CHM frmGraph".
class RecordingHelp : public HelpViewer {
 public:
  bool ShowContents(const std::string& path) override;
  bool ShowIndex(const std::string& path) override;
  bool ShowTopic(const std::string& path, const std::string& topic) override;
  std::string FirstSentence(const std::string& path, const std::string& topic) override;
  void Close() override;

  std::vector<std::string> shown;
  std::map<std::string, std::string> sentences;  // by topic
  bool opens = true;

 private:
  bool Take(std::string call);
};

// Fetches whose events the test sends.
class ScriptedDownloads : public Downloads {
 public:
  struct Asked {
    FetchRequest request;
    FetchEvents events;
    bool stopped = false;  // the fetch was destroyed
  };

  std::unique_ptr<Fetch> Start(const FetchRequest& request, FetchEvents events) override;
  // The copy of "/downloads/setup" is "/private/setup".
  std::optional<std::string> CheckedCopy(const std::string& path, const std::string& sha256) override;

  std::deque<Asked> asked;
  std::map<std::string, std::string> sums;  // actual sums of the files, by path
  int copyError = 0;
  bool works = true;

 private:
  class ScriptedFetch : public Fetch {
   public:
    explicit ScriptedFetch(Asked& asked);
    ~ScriptedFetch() override;
    ScriptedFetch(const ScriptedFetch&) = delete;
    ScriptedFetch& operator=(const ScriptedFetch&) = delete;

   private:
    Asked& asked_;
  };
};

class RecordingFileTypes : public FileTypes {
 public:
  void Associate(const std::string& extension, const std::string& programName) override;

  std::vector<std::string> associated;
};

// Pictures whose bytes are only "PNG", or "PDF of" and the title.
class RecordingPictures : public PictureFiles {
 public:
  std::string AsPng(const Scene& scene) override;
  std::string AsPdf(const Scene& scene, const std::string& title) override;
  std::string PagesAsPdf(const std::vector<Scene>& pages, const std::string& title) override;
  // Six tenths of the size for each character.
  double WidthOf(const std::string& text, const TextStyle& style) override;

  std::vector<Scene> scenes;
};

struct RecordingPlatform {
  RecordingPlatform();
  ~RecordingPlatform();
  RecordingPlatform(const RecordingPlatform&) = delete;
  RecordingPlatform& operator=(const RecordingPlatform&) = delete;

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
  RecordingPictures pictures;

  Platform AsPlatform();
  // Returns the platform with `others`, such as other message boxes or another file system, instead of its own.
  template <class... Others>
  Platform AsPlatformWith(Others&... others) {
    return {Given<MessageBoxes>(boxes, others...),
            Given<FileSystem>(files, others...),
            Given<FileDialogs>(fileDialogs, others...),
            Given<Windows>(windows, others...),
            Given<Fonts>(fonts, others...),
            Given<Locale>(locale, others...),
            Given<Clock>(clock, others...),
            Given<UserFolders>(userFolders, others...),
            Given<Clipboard>(clipboard, others...),
            Given<Printer>(printer, others...),
            Given<Documents>(documents, others...),
            Given<HelpViewer>(help, others...),
            Given<Downloads>(downloads, others...),
            Given<FileTypes>(fileTypes, others...),
            Given<PictureFiles>(pictures, others...)};
  }

 private:
  template <class Kind>
  static Kind& Given(Kind& own) {
    return own;
  }
  template <class Kind, class First, class... Rest>
  static Kind& Given(Kind& own, First& first, Rest&... rest) {
    if constexpr (std::is_base_of_v<Kind, First>) {
      return first;
    } else {
      return Given<Kind>(own, rest...);
    }
  }
};

// Calls `act` and returns the number of the run-time error that it throws, or 0.
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
