// A platform without a desktop. Nothing is shown, asked, printed or opened.
#pragma once

#include "base/runtime_error.h"
#include "platform/platform.h"

namespace orby {

class NoMessageBoxes : public MessageBoxes {
 public:
  BoxResult Show(const MessageBox&) override { return BoxResult::Cancel; }
};

class NoWindows : public Windows {
 public:
  void ShowModal(Form&) override {}
  void Show(Form&) override {}
  void ShowMainWindow(bool) override {}
  void CenterForm(Form&) override {}
  void SetWaitCursor(bool) override {}
};

class NoFileDialogs : public FileDialogs {
 public:
  std::string AskOpenName(const FileQuestion&) override { throw RuntimeError(error_number::Cancelled); }
  std::string AskSaveName(const FileQuestion&) override { throw RuntimeError(error_number::Cancelled); }
  std::string AskFolder(const std::string&, const std::string&) override {
    throw RuntimeError(error_number::Cancelled);
  }
};

class NoFonts : public Fonts {
 public:
  std::vector<std::string> ScreenFonts() override { return {}; }
  std::vector<std::string> PrinterFonts() override { return {}; }
  std::vector<std::string> FixedPitchFonts() override { return {}; }
};

class NoClock : public Clock {
 public:
  Date Today() override { return {}; }
  Moment Now() override { return {}; }
  void CallLater(int, std::function<void()>) override {}
};

class NoUserFolders : public UserFolders {
 public:
  std::optional<std::string> Documents() override { return std::nullopt; }
  std::optional<std::string> Desktop() override { return std::nullopt; }
  std::optional<std::string> Data() override { return std::nullopt; }
};

class NoClipboard : public Clipboard {
 public:
  void Clear() override {}
  void SetText(const std::string&) override {}
  void SetPicture(const Control&) override {}
  void SetPicture(const Form&) override {}
  void SetPicture(const Scene&) override {}
};

class NoPrinter : public Printer {
 public:
  void Choose(const std::string&) override { throw RuntimeError(error_number::Printer); }
  void ChooseAsBefore(const std::string&) override {}
  void SetUp() override { throw RuntimeError(error_number::Printer); }
  std::string PrintPages(const std::vector<std::string>&, const std::string&, const std::string&) override {
    throw RuntimeError(error_number::Printer);
  }
  void PrintScenes(const std::vector<Scene>&, const std::string&) override {
    throw RuntimeError(error_number::Printer);
  }
  void PrintChart(const Control&, const std::vector<std::string>&) override {
    throw RuntimeError(error_number::Printer);
  }
};

class NoPictureFiles : public PictureFiles {
 public:
  std::string AsPng(const Scene&) override { throw RuntimeError(error_number::OutOfMemory); }
  std::string AsPdf(const Scene&, const std::string&) override { throw RuntimeError(error_number::OutOfMemory); }
  std::string PagesAsPdf(const std::vector<Scene>&, const std::string&) override {
    throw RuntimeError(error_number::OutOfMemory);
  }
  double WidthOf(const std::string&, const TextStyle&) override { return 0; }
};

class NoDocuments : public Documents {
 public:
  bool Open(const std::string&) override { return false; }
  void OpenSheet(const Sheet&, const std::string&) override { throw RuntimeError(error_number::Automation); }
  bool Start(const std::string&, const std::vector<std::string>&) override { return false; }
  bool RunToEnd(const std::string&, const std::vector<std::string>&) override { return false; }
};

class NoHelpViewer : public HelpViewer {
 public:
  bool ShowContents(const std::string&) override { return false; }
  bool ShowIndex(const std::string&) override { return false; }
  bool ShowTopic(const std::string&, const std::string&) override { return false; }
  std::string FirstSentence(const std::string&, const std::string&) override { return {}; }
  void Close() override {}
};

class NoFileTypes : public FileTypes {
 public:
  void Associate(const std::string&, const std::string&) override {}
};

class NoDownloads : public Downloads {
 public:
  std::unique_ptr<Fetch> Start(const FetchRequest&, FetchEvents) override { return nullptr; }
  std::optional<std::string> CheckedCopy(const std::string&, const std::string&) override { return std::nullopt; }
};

}  // namespace orby
