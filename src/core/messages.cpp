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

constexpr int ErrorClassCount = 7;
constexpr int ClassOther = 4;
constexpr int ClassCancelled = 5;

struct ErrorClass {
  int number;
  int errorClass;
};

constexpr int UnknownDataBaseError = static_cast<int>(0x80040E14);

constexpr std::array ErrorClasses{ErrorClass{482, 0},
                                  ErrorClass{483, 0},
                                  ErrorClass{484, 0},  // printer
                                  ErrorClass{24, 1},
                                  ErrorClass{25, 1},
                                  ErrorClass{27, 1},
                                  ErrorClass{53, 1},
                                  ErrorClass{57, 1},  // device
                                  ErrorClass{61, 1},
                                  ErrorClass{62, 1},
                                  ErrorClass{70, 1},
                                  ErrorClass{71, 1},
                                  ErrorClass{72, 1},  //
                                  ErrorClass{5, 2},
                                  ErrorClass{6, 2},
                                  ErrorClass{7, 2},  // arithmetic
                                  ErrorClass{52, 3},
                                  ErrorClass{55, 3},
                                  ErrorClass{64, 3},
                                  ErrorClass{68, 3},
                                  ErrorClass{75, 3},  // names, paths
                                  ErrorClass{76, 3},
                                  ErrorClass{32755, ClassCancelled},
                                  ErrorClass{UnknownDataBaseError, 6}};

int ClassOf(int number) {
  const auto* row = std::find_if(ErrorClasses.begin(), ErrorClasses.end(),
                                 [number](const ErrorClass& entry) { return entry.number == number; });
  return row == ErrorClasses.end() ? ClassOther : row->errorClass;
}

struct ClassRule {
  bool offersRetry;
  Decision decision;  // when the user is not asked or does not retry
};

constexpr std::array<ClassRule, ErrorClassCount> ClassRules{{
    {true, Decision::Continue},
    {true, Decision::Continue},
    {false, Decision::GiveUp},
    {false, Decision::GiveUp},
    {false, Decision::GiveUp},
    {false, Decision::Cancelled},
    {false, Decision::DataBase},
}};

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

Decision ErrorDecision(Program& program, const RuntimeError& error, Telling telling) {
  const int errorClass = ClassOf(error.number());
  const ClassRule& rule = ClassRules[static_cast<std::size_t>(errorClass)];
  if (telling == Telling::Silent) return rule.decision;

  const std::string description(error.description());
  if (errorClass == ClassCancelled) {
    AddHistoryLine(program, description);
    return rule.decision;
  }
  const std::string number = NumberText(error.number());
  // A number that is not negative has a blank in the place of its sign.
  AddHistoryLine(program, "Error " + std::string(error.number() < 0 ? "" : " ") + number + ":" + description);
  const std::string told = "Error occurred: " + description + " (" + number + ")";
  if (!rule.offersRetry) {
    ShowMessage(program, told + ". Procedure Terminated", BoxButtons::Ok);
    return rule.decision;
  }
  const BoxResult answer = ShowMessage(program, told, BoxButtons::RetryCancel, program.windows.titles.ErrorTitle);
  return answer == BoxResult::Retry ? Decision::Retry : rule.decision;
}

}  // namespace orby
