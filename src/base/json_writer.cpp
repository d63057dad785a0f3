#include "base/json_writer.h"

#include <array>
#include <charconv>
#include <cmath>

namespace orby {

void JsonWriter::Open(std::string_view brackets, bool inOneLine) {
  BeginValue();
  json_ += brackets.front();
  closing_ += brackets.back();
  isFirst_ = true;
  if (inOneLine && linesUntil_ == 0) linesUntil_ = closing_.size();
}

void JsonWriter::Close() {
  const char bracket = closing_.back();
  const bool isInOneLine = linesUntil_ != 0;
  if (linesUntil_ == closing_.size()) linesUntil_ = 0;
  closing_.pop_back();
  if (!isFirst_ && !isInOneLine) BreakLine();
  json_ += bracket;
  isFirst_ = false;
}

void JsonWriter::Name(std::string_view name) {
  BeginValue();
  Quoted(name);
  json_ += ": ";
  isNamed_ = true;
}

void JsonWriter::Text(std::string_view text) {
  BeginValue();
  Quoted(text);
}

void JsonWriter::Number(double value) {
  if (!std::isfinite(value)) return Null();
  BeginValue();
  std::array<char, 32> text{};
  json_.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr);
}

void JsonWriter::Flag(bool isTrue) {
  BeginValue();
  json_ += isTrue ? "true" : "false";
}

void JsonWriter::Null() {
  BeginValue();
  json_ += "null";
}

void JsonWriter::Made(std::string_view json) {
  BeginValue();
  json_ += json;
}

void JsonWriter::Text(std::string_view name, std::string_view text) {
  Name(name);
  Text(text);
}

void JsonWriter::Number(std::string_view name, double value) {
  Name(name);
  Number(value);
}

void JsonWriter::Flag(std::string_view name, bool isTrue) {
  Name(name);
  Flag(isTrue);
}

std::string JsonWriter::Take() {
  json_ += '\n';
  return std::move(json_);
}

void JsonWriter::BeginValue() {
  if (isNamed_) {
    isNamed_ = false;
    return;
  }
  if (!isFirst_) json_ += ',';
  if (linesUntil_ == 0 && !closing_.empty()) {
    BreakLine();
  } else if (!isFirst_) {
    json_ += ' ';
  }
  isFirst_ = false;
}

void JsonWriter::BreakLine() {
  json_ += '\n';
  json_.append(2 * closing_.size(), ' ');
}

void JsonWriter::Quoted(std::string_view text) {
  constexpr std::string_view Digits = "0123456789abcdef";
  constexpr unsigned char FirstPrinted = 0x20;
  json_ += '"';
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json_ += '\\';
      json_ += c;
    } else if (c == '\n') {
      json_ += "\\n";
    } else if (byte < FirstPrinted) {
      json_.append("\\u00").append({Digits[byte >> 4U], Digits[byte & 0xFU]});
    } else {
      json_ += c;
    }
  }
  json_ += '"';
}

}  // namespace orby
