// A platform without a screen or a disk: it answers from scripts, records what was asked, and fails on demand.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "platform/platform.h"

namespace orby::test {

// Boxes answer from the queue, OK when it is empty.
class RecordingBoxes : public MessageBoxes {
 public:
  int Show(const MessageBox& box) override {
    shown.push_back(box);
    if (answers.empty()) return box_result::Ok;
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const auto& box : shown) texts.push_back(box.text);
    return texts;
  }

  std::vector<MessageBox> shown;
  std::deque<int> answers;
};

// Files in memory. Any step of a file's life can be made to fail with a run-time error.
class MemoryFiles : public FileSystem {
 public:
  enum class Step { Find, Read, Create, Write, Close, Remove };

  // The step fails with this error, as soon as it has succeeded `after` times.
  void Fail(Step step, int errorNumber, int after = 0) { failures[step] = {errorNumber, after}; }

  bool Finds(const std::string& path, bool foldersToo) override {
    Meet(Step::Find);
    return files.contains(path) || (foldersToo && (path == "/tmp" || path == "/program"));
  }

  std::string ReadFile(const std::string& path) override {
    Meet(Step::Read);
    const auto found = files.find(path);
    if (found == files.end()) throw RuntimeError(error_number::FileNotFound);
    return found->second;
  }

  std::unique_ptr<OutputFile> CreateFile(const std::string& path) override {
    Meet(Step::Create);
    files[path].clear();
    created.push_back(path);
    return std::make_unique<MemoryOutput>(*this, path);
  }

  void RemoveFile(const std::string& path) override {
    Meet(Step::Remove);
    if (files.erase(path) == 0) throw RuntimeError(error_number::FileNotFound);
  }

  std::string TemporaryFolder() override { return "/tmp"; }
  std::string ProgramFolder() override { return "/program"; }

  std::map<std::string, std::string> files;
  std::vector<std::string> created;

 private:
  struct Failure {
    int errorNumber = 0;
    int after = 0;
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

  void Meet(Step step) {
    const auto found = failures.find(step);
    if (found == failures.end()) return;
    if (found->second.after-- > 0) return;
    throw RuntimeError(found->second.errorNumber);
  }

  std::map<Step, Failure> failures;
};

// File dialogs answer from the queue; an empty queue, or an empty name, is a cancelled dialog.
class ScriptedFileDialogs : public FileDialogs {
 public:
  std::string AskOpenName(const FileQuestion& question) override { return Answer(question); }
  std::string AskSaveName(const FileQuestion& question) override { return Answer(question); }

  std::vector<FileQuestion> asked;
  std::deque<std::string> answers;

 private:
  std::string Answer(const FileQuestion& question) {
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
  void ShowResults() override {
    ++resultsShown;
    if (onResults) onResults();
  }
  void CenterForm(Form&) override { ++centered; }
  void SetWaitCursor(bool waiting) override { waitCursor = waiting; }

  std::function<void(Form&)> onModal;
  std::function<void()> onResults;
  int modalForms = 0;
  int resultsShown = 0;
  int centered = 0;
  bool waitCursor = false;
};

class ListedFonts : public Fonts {
 public:
  std::vector<std::string> ScreenFonts() override { return screen; }
  std::vector<std::string> PrinterFonts() override { return printer; }

  std::vector<std::string> screen;
  std::vector<std::string> printer;
};

class ScriptedLocale : public Locale {
 public:
  std::string DecimalSeparator() override { return separator; }

  std::string separator = ".";
};

struct RecordingPlatform {
  RecordingBoxes boxes;
  MemoryFiles files;
  ScriptedFileDialogs fileDialogs;
  RecordingWindows windows;
  ListedFonts fonts;
  ScriptedLocale locale;

  Platform Doors() { return {boxes, files, fileDialogs, windows, fonts, locale}; }
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
