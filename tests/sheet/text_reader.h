// What readers of texts share: the rest of the text, and what stands at its start after blanks.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orby::test {

class TextReader {
 public:
  explicit TextReader(std::string_view text) : rest_(text) {}

 protected:
  [[noreturn]] void Fail(const std::string& what) const {
    throw std::invalid_argument(what + " at: " + std::string(rest_.substr(0, 40)));
  }
  void Skip() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" \n\r\t"), rest_.size())); }
  bool Take(std::string_view sign) {
    Skip();
    if (!rest_.starts_with(sign)) return false;
    rest_.remove_prefix(sign.size());
    return true;
  }
  void Need(std::string_view sign) {
    if (!Take(sign)) Fail("no " + std::string(sign));
  }
  void NeedEnd() {
    Skip();
    if (!rest_.empty()) Fail("left over");
  }

  std::string_view rest_;
};

}  // namespace orby::test
