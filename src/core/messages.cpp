#include "core/messages.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"

namespace orby {
namespace {

constexpr std::array<std::string_view, 13> ModulePrefixes{"Project Description: ",
                                                          "Project Parameters: ",
                                                          "",
                                                          "",
                                                          "",
                                                          "",
                                                          "Program Options: ",
                                                          "",
                                                          "",
                                                          "Settings: ",
                                                          "",
                                                          "",
                                                          ""};

enum class ErrorKind { Printer, Device, Arithmetic, Path, Cancelled, DataBase, Other };

struct KnownError {
  int number;
  ErrorKind kind;
};

constexpr int UnknownDataBaseError = static_cast<int>(0x80040E14);

constexpr std::array KnownErrors{KnownError{482, ErrorKind::Printer},
                                 KnownError{483, ErrorKind::Printer},
                                 KnownError{484, ErrorKind::Printer},
                                 KnownError{24, ErrorKind::Device},
                                 KnownError{25, ErrorKind::Device},
                                 KnownError{27, ErrorKind::Device},
                                 KnownError{53, ErrorKind::Device},
                                 KnownError{57, ErrorKind::Device},
                                 KnownError{61, ErrorKind::Device},
                                 KnownError{62, ErrorKind::Device},
                                 KnownError{70, ErrorKind::Device},
                                 KnownError{71, ErrorKind::Device},
                                 KnownError{72, ErrorKind::Device},
                                 KnownError{5, ErrorKind::Arithmetic},
                                 KnownError{6, ErrorKind::Arithmetic},
                                 KnownError{7, ErrorKind::Arithmetic},
                                 KnownError{52, ErrorKind::Path},
                                 KnownError{55, ErrorKind::Path},
                                 KnownError{64, ErrorKind::Path},
                                 KnownError{68, ErrorKind::Path},
                                 KnownError{75, ErrorKind::Path},
                                 KnownError{76, ErrorKind::Path},
                                 KnownError{error_number::Cancelled, ErrorKind::Cancelled},
                                 KnownError{UnknownDataBaseError, ErrorKind::DataBase}};

ErrorKind KindOf(int number) {
  const auto* row = std::find_if(KnownErrors.begin(), KnownErrors.end(),
                                 [number](const KnownError& entry) { return entry.number == number; });
  return row == KnownErrors.end() ? ErrorKind::Other : row->kind;
}

bool OffersRetry(ErrorKind kind) { return kind == ErrorKind::Printer || kind == ErrorKind::Device; }

// When the user is not asked or does not retry.
Decision DecisionOn(ErrorKind kind) {
  switch (kind) {
    case ErrorKind::Printer:
    case ErrorKind::Device: return Decision::Continue;
    case ErrorKind::Cancelled: return Decision::Cancelled;
    case ErrorKind::DataBase: return Decision::DataBase;
    default: return Decision::GiveUp;
  }
}

// Removes all but the last two lines of a history.
void TrimHistory(std::string& text) {
  std::size_t lineEnds = 0;
  for (std::size_t at = text.find(LineEnd); at != std::string::npos; at = text.find(LineEnd, at + 2)) ++lineEnds;
  std::size_t start = 0;
  for (; lineEnds > 2; --lineEnds) start = text.find(LineEnd, start) + LineEnd.size();
  text.erase(0, start);
}

void AppendHistoryLine(History& history, Integer maxDisplaySize, std::string_view text) {
  constexpr Integer LastLineNumber = 16384;
  if (CharacterCount(history.Text) >= static_cast<std::size_t>(maxDisplaySize)) TrimHistory(history.Text);
  if (++history.HistoryLineCounter > LastLineNumber) history.HistoryLineCounter = 1;
  history.Text += NumberText(history.HistoryLineCounter);
  history.Text += ". ";
  history.Text += text;
  history.Text += LineEnd;
}

}  // namespace

BoxResult ShowMessage(Program& program, const std::string& text, BoxStyle style, const std::string& title,
                      const std::string& helpFile, int helpContext) {
  return ShowMessage(program, MessageBox{text, style, title, helpFile, helpContext, {}});
}

BoxResult ShowMessage(Program& program, MessageBox box) {
  AddHistoryLine(program, (box.title.empty() ? "Message" : box.title) + ": " + box.text);
  if (box.title.empty()) box.title = ProgramTitle;
  return program.platform.boxes.Show(box);
}

void SetMessageTitles(Program& program, MessageModule module) {
  const auto row = static_cast<std::size_t>(module) - 1;
  if (row >= ModulePrefixes.size()) throw RuntimeError(error_number::Subscript);
  const std::string prefix(ModulePrefixes[row]);
  program.windows.titles = {
      "Message",        prefix + "Range Error", prefix + "Range Warning", prefix + "Invalid Character",
      prefix + "Error", prefix + "Logic Error"};
}

void ContextHelpHint(Program& program) {
  ShowMessage(program, "Position the cursor on any item on the form and press F1 for context-sensitive Help",
              BoxIcon::Exclamation, "Help");
}

void AddHistoryLine(Program& program, std::string_view text) {
  History& history = program.session.history;
  if (program.session.settings.DisplayHistoryWin == 1)
    AppendHistoryLine(history, program.session.settings.MaxDisplaySize, text);
  if (history.Changed) history.Changed();
}

Decision ErrorDecision(Program& program, const RuntimeError& error, Reporting reporting) {
  const ErrorKind kind = KindOf(error.number());
  const Decision decision = DecisionOn(kind);
  if (reporting == Reporting::Silent) return decision;

  const std::string description(error.description());
  if (kind == ErrorKind::Cancelled) {
    AddHistoryLine(program, description);
    return decision;
  }
  const std::string number = NumberText(error.number());
  // A number that is not negative has a blank in the place of its sign.
  AddHistoryLine(program, "Error " + std::string(error.number() < 0 ? "" : " ") + number + ":" + description);
  const std::string told = "Error occurred: " + description + " (" + number + ")";
  if (!OffersRetry(kind)) {
    ShowMessage(program, told + ". Procedure Terminated", BoxButtons::Ok);
    return decision;
  }
  const BoxResult answer = ShowMessage(program, told, BoxButtons::RetryCancel, program.windows.titles.ErrorTitle);
  return answer == BoxResult::Retry ? Decision::Retry : decision;
}

}  // namespace orby
