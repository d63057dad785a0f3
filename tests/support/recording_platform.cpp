#include "support/recording_platform.h"

#include "base/paths.h"
#include "base/text.h"
#include "controls/control.h"
#include "controls/form.h"

namespace orby::test {

BoxResult RecordingBoxes::Show(const MessageBox& box) {
  shown.push_back(box);
  if (answers.empty()) return BoxResult::Ok;
  const BoxResult answer = answers.front();
  answers.pop_front();
  return answer;
}

std::vector<std::string> RecordingBoxes::Texts() const {
  std::vector<std::string> texts;
  for (const auto& box : shown) texts.push_back(box.text);
  return texts;
}

std::string ScriptedFileDialogs::AskOpenName(const FileQuestion& question) { return Answer("open", question); }

std::string ScriptedFileDialogs::AskSaveName(const FileQuestion& question) { return Answer("save", question); }

std::string ScriptedFileDialogs::AskFolder(const std::string& title, const std::string& folder) {
  FileQuestion question;
  question.title = title;
  question.folder = folder;
  return Answer("folder", question);
}

std::string ScriptedFileDialogs::Answer(const char* kind, const FileQuestion& question) {
  kinds.emplace_back(kind);
  asked.push_back(question);
  if (answers.empty() || answers.front().empty()) throw RuntimeError(error_number::Cancelled);
  std::string answer = answers.front();
  answers.pop_front();
  return answer;
}

void RecordingWindows::ShowModal(Form& form) {
  ++modalForms;
  if (onModal) onModal(form);
}

void RecordingWindows::Show(Form& form) { shown.push_back(&form); }

void RecordingWindows::ShowMainWindow(bool visible) { mainWindowShown = visible; }

void RecordingWindows::CenterForm(Form&) { ++centered; }

void RecordingWindows::SetWaitCursor(bool waiting) { waitCursor = waiting; }

std::vector<std::string> ListedFonts::ScreenFonts() {
  ++asked;
  return screen;
}

std::vector<std::string> ListedFonts::PrinterFonts() { return printer; }

std::vector<std::string> ListedFonts::FixedPitchFonts() { return fixedPitch; }

std::string ScriptedLocale::DecimalSeparator() { return separator; }

Date StandingClock::Today() { return today; }

Moment StandingClock::Now() { return {today, hour, minute, second}; }

void StandingClock::CallLater(int milliseconds, std::function<void()> act) {
  waiting.push_back({milliseconds, std::move(act)});
}

void StandingClock::Pass() {
  for (auto& [milliseconds, act] : std::exchange(waiting, {})) act();
}

std::optional<std::string> ScriptedUserFolders::Documents() { return documents; }

std::optional<std::string> ScriptedUserFolders::Desktop() { return desktop; }

std::optional<std::string> ScriptedUserFolders::Data() { return data; }

void RecordingClipboard::Clear() { text.clear(); }

void RecordingClipboard::SetText(const std::string& given) { text = given; }

void RecordingClipboard::SetPicture(const Control& chart) { pictured = chart.Name(); }

void RecordingClipboard::SetPicture(const Form& form) { pictured = form.Name(); }

void RecordingClipboard::SetPicture(const Scene& given) { scene = given; }

void RecordingPrinter::Choose(const std::string& fileName) {
  ++chosen;
  proposedName = fileName;
  Meet();
}

void RecordingPrinter::ChooseAsBefore(const std::string& fileName) { nameOfUnasked = fileName; }

void RecordingPrinter::SetUp() {
  ++setUp;
  Meet();
}

std::string RecordingPrinter::PrintPages(const std::vector<std::string>& given, const std::string& name,
                                         const std::string& font) {
  Meet();
  pages = given;
  title = name;
  fontName = font;
  return file;
}

void RecordingPrinter::PrintScenes(const std::vector<Scene>& given, const std::string& name) {
  Meet();
  scenes = given;
  title = name;
}

void RecordingPrinter::PrintChart(const Control& chart, const std::vector<std::string>& lines) {
  Meet();
  printedChart = chart.Name();
  title = lines.front();
  chartHeading = lines;
}

void RecordingPrinter::Meet() const {
  if (error != 0) throw RuntimeError(error);
}

bool RecordingDocuments::Open(const std::string& path) {
  opened.push_back(path);
  return opens;
}

void RecordingDocuments::OpenSheet(const Sheet& given, const std::string& path) {
  sheet = given;
  opened.push_back(path);
  if (!opens) throw RuntimeError(error_number::Automation, ". " + path);
}

bool RecordingDocuments::Start(const std::string& program, const std::vector<std::string>& arguments) {
  return Take(started, program, arguments);
}

bool RecordingDocuments::RunToEnd(const std::string& program, const std::vector<std::string>& arguments) {
  return Take(ran, program, arguments);
}

bool RecordingDocuments::Take(std::vector<std::vector<std::string>>& list, const std::string& program,
                              const std::vector<std::string>& arguments) const {
  list.push_back({program});
  list.back().insert(list.back().end(), arguments.begin(), arguments.end());
  return opens;
}

bool RecordingHelp::ShowContents(const std::string& path) { return Take("contents " + path); }

bool RecordingHelp::ShowIndex(const std::string& path) { return Take("index " + path); }

bool RecordingHelp::ShowTopic(const std::string& path, const std::string& topic) {
  return Take("topic " + path + " " + topic);
}

std::string RecordingHelp::FirstSentence(const std::string&, const std::string& topic) {
  const auto found = sentences.find(topic);
  return found == sentences.end() ? std::string() : found->second;
}

void RecordingHelp::Close() { shown.emplace_back("close"); }

bool RecordingHelp::Take(std::string call) {
  shown.push_back(std::move(call));
  return opens;
}

std::unique_ptr<Fetch> ScriptedDownloads::Start(const FetchRequest& request, FetchEvents events) {
  if (!works) return nullptr;
  asked.push_back({request, std::move(events)});
  return std::make_unique<ScriptedFetch>(asked.back());
}

std::optional<std::string> ScriptedDownloads::CheckedCopy(const std::string& path, const std::string& sha256) {
  if (copyError != 0) throw RuntimeError(copyError);
  if (sums[path] != sha256) return std::nullopt;
  return "/private/" + std::string(NameAfterSeparator(path));
}

ScriptedDownloads::ScriptedFetch::ScriptedFetch(Asked& asked) : asked_(asked) {}

ScriptedDownloads::ScriptedFetch::~ScriptedFetch() { asked_.stopped = true; }

void RecordingFileTypes::Associate(const std::string& extension, const std::string& programName) {
  associated.push_back(extension + " with " + programName);
}

std::string RecordingPictures::AsPng(const Scene& scene) {
  scenes.push_back(scene);
  return "PNG";
}

std::string RecordingPictures::AsPdf(const Scene& scene, const std::string& title) {
  scenes.push_back(scene);
  return "PDF of " + title;
}

std::string RecordingPictures::PagesAsPdf(const std::vector<Scene>& pages, const std::string& title) {
  scenes.insert(scenes.end(), pages.begin(), pages.end());
  return "PDF of " + title;
}

double RecordingPictures::WidthOf(const std::string& text, const TextStyle& style) {
  return 0.6 * style.Size * static_cast<double>(CharacterCount(text));
}

RecordingPlatform::RecordingPlatform() = default;

RecordingPlatform::~RecordingPlatform() = default;

Platform RecordingPlatform::AsPlatform() { return AsPlatformWith(); }

}  // namespace orby::test
