#include "apps/orby-cli/command_line.h"

#include <charconv>

#include "base/number_text.h"

namespace orby::cli {
namespace {

// Returns the number that the whole text is.
std::optional<std::uint64_t> WholeNumber(const std::optional<std::string>& text) {
  if (!text) return std::nullopt;
  std::uint64_t number = 0;
  const char* end = text->data() + text->size();
  const auto [read, error] = std::from_chars(text->data(), end, number);
  if (error != std::errc() || read != end) return std::nullopt;
  return number;
}

// Takes a number of percent, above 0 and at most 100.
bool TakePercent(const std::optional<std::string>& text, double& percent) {
  if (!text) return false;
  const LeadingNumber number = ReadNumber(*text);
  percent = number.value;
  return number.isWholeText && percent > 0 && percent <= 100;
}

// Returns the words of the command line one by one.
class Words {
 public:
  explicit Words(const std::vector<std::string>& words) : words_(words) {}

  bool Done() const { return at_ == words_.size(); }
  const std::string& Take() { return words_[at_++]; }
  std::optional<std::string> TakeValue() {
    if (Done()) return std::nullopt;
    return Take();
  }

 private:
  const std::vector<std::string>& words_;
  std::size_t at_ = 0;
};

// Returns false if the option does not exist or lacks its value.
bool TakeOption(const std::string& option, Words& words, CommandLine& line) {
  if (option == "--help" || option == "-h") return line.Help = true;
  if (option == "--validate") return line.Validate = true;
  if (option == "--aus") return line.AustralianTable = true;
  if (option == "--name") return (line.Name = words.TakeValue()).has_value();
  if (option == "--config") return (line.Config = words.TakeValue()).has_value();
  if (option == "--to") return (line.To = words.TakeValue()).has_value();
  if (option == "--as") return (line.As = words.TakeValue()).has_value();
  if (option == "--samples") return (line.Samples = WholeNumber(words.TakeValue())).has_value();
  if (option == "--seed") return (line.Seed = WholeNumber(words.TakeValue())).has_value();
  if (option == "--change") return TakePercent(words.TakeValue(), line.Change);
  if (option == "--json") return line.Json = true;
  if (option == "--csv") return line.Csv = true;
  if (option == "--page") {
    const auto page = words.TakeValue();
    if (page != "0" && page != "1") return false;
    line.Page = *page == "0" ? 0 : 1;
    return true;
  }
  return false;
}

bool IsOption(const std::string& word) { return word.size() > 1 && word.front() == '-'; }

}  // namespace

std::optional<CommandLine> ParseCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  Words rest(words);
  bool optionsEnded = false;
  while (!rest.Done()) {
    const std::string& word = rest.Take();
    if (!optionsEnded && word == "--") {
      optionsEnded = true;
    } else if (!optionsEnded && IsOption(word)) {
      if (!TakeOption(word, rest, line)) return std::nullopt;
    } else if (line.Command.empty()) {
      line.Command = word;
    } else {
      line.Operands.push_back(word);
    }
  }
  return line;
}

}  // namespace orby::cli
