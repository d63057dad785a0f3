#include "apps/orby-cli/command_line.h"

#include "base/number_text.h"

namespace orby::cli {
namespace {

std::optional<std::uint64_t> CountFrom(const std::optional<std::string>& text) {
  return text ? WholeTextCount(*text) : std::nullopt;
}

// Takes a number of percent, above 0 and at most 100.
bool TakePercent(const std::optional<std::string>& text, double& percent) {
  const std::optional<double> number = text ? WholeTextNumber(*text) : std::nullopt;
  percent = number.value_or(0);
  return percent > 0 && percent <= 100;
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

// A table has one format.
bool TakeFormat(std::string_view format, CommandLine& line) {
  if (!line.Format.empty()) return false;
  line.Format = format;
  return true;
}

bool TakeTableOption(const std::string& option, Words& words, CommandLine& line) {
  if (option == "--csv") return TakeFormat("csv", line);
  if (option == "--json") return TakeFormat("json", line);
  if (option == "--xlsx") return TakeFormat("xlsx", line) && (line.Workbook = words.TakeValue()).has_value();
  if (option == "--columns") return (line.Columns = words.TakeValue()).has_value();
  if (option == "--units") {
    line.Units = words.TakeValue();
    return line.Units == "english" || line.Units == "metric";
  }
  return false;
}

// Returns false if the option does not exist or lacks its value.
bool TakeOption(const std::string& option, Words& words, CommandLine& line) {
  if (option == "--help" || option == "-h") return line.Help = true;
  if (option == "--validate") return line.Validate = true;
  if (option == "--aus") return line.AustralianTable = true;
  if (option == "--name") return (line.Name = words.TakeValue()).has_value();
  if (option == "--config") return (line.Config = words.TakeValue()).has_value();
  if (option == "--to") return (line.To = words.TakeValue()).has_value();
  if (option == "--as") return (line.As = words.TakeValue()).has_value();
  if (option == "--samples") return (line.Samples = CountFrom(words.TakeValue())).has_value();
  if (option == "--seed") return (line.Seed = CountFrom(words.TakeValue())).has_value();
  if (option == "--change") return TakePercent(words.TakeValue(), line.Change);
  if (option == "--page") {
    const auto page = words.TakeValue();
    if (page != "0" && page != "1") return false;
    line.Page = *page == "0" ? 0 : 1;
    return true;
  }
  return TakeTableOption(option, words, line);
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
