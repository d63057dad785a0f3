#include "machine/plain_numbers.h"

#include <clocale>

namespace orby {

struct PlainNumbers::Locale {
  locale_t plain;
  locale_t before;
};

PlainNumbers::PlainNumbers() {
  locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  locale_ = std::make_unique<Locale>(Locale{plain, uselocale(plain)});
}

PlainNumbers::~PlainNumbers() {
  uselocale(locale_->before);
  freelocale(locale_->plain);
}

}  // namespace orby
