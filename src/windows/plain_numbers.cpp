#include "machine/plain_numbers.h"

#include <clocale>
#include <string>

namespace orby {

struct PlainNumbers::Locale {
  int scope;         // of setlocale before: this thread or the process
  std::string name;  // of the locale before
};

PlainNumbers::PlainNumbers() {
  const int scope = _configthreadlocale(_ENABLE_PER_THREAD_LOCALE);
  locale_ = std::make_unique<Locale>(scope, std::setlocale(LC_NUMERIC, nullptr));
  std::setlocale(LC_NUMERIC, "C");
}

PlainNumbers::~PlainNumbers() {
  std::setlocale(LC_NUMERIC, locale_->name.c_str());
  _configthreadlocale(locale_->scope);
}

}  // namespace orby
