// Writes a JSON text member by member, in the order of the calls.
#pragma once

#include <string>
#include <string_view>

namespace orby {

class JsonWriter {
 public:
  // What is opened is closed by Close. One line: so are all parts of it.
  void OpenObject(bool inOneLine = false) { Open("{}", inOneLine); }
  void OpenArray(bool inOneLine = false) { Open("[]", inOneLine); }
  void Close();

  // The name of the next member of an object.
  void Name(std::string_view name);

  void Text(std::string_view text);
  // Writes the shortest text that reads back to the same double. Writes null for what is no finite number.
  void Number(double value);
  void Flag(bool isTrue);
  void Null();
  // Writes a value that is JSON already.
  void Made(std::string_view json);

  // Write a member of an object.
  void Text(std::string_view name, std::string_view text);
  void Number(std::string_view name, double value);
  void Flag(std::string_view name, bool isTrue);

  // Returns the text with a line end.
  std::string Take();

 private:
  void Open(std::string_view brackets, bool inOneLine);
  void BeginValue();
  void BreakLine();
  void Quoted(std::string_view text);

  std::string json_;
  std::string closing_;         // the brackets that are open
  std::size_t linesUntil_ = 0;  // 0, or the number of brackets when one line began
  bool isFirst_ = true;
  bool isNamed_ = false;
};

}  // namespace orby
