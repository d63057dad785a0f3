#include "controls/text_box.h"

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/text.h"

namespace orby {

NumberReading ReadingOf(std::string_view text, const LeadingNumber& number) {
  if (!Succeeds([&] { static_cast<void>(ToSingle(number.value)); })) return NumberReading::TooLarge;
  if (number.isWholeText) return NumberReading::Whole;
  return Trim(text).empty() ? NumberReading::Blank : NumberReading::Partial;
}

void TextBox::SetText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  number_.reset();
  Touch();
  if (kind_ != TextKind::Output) Fire(Change);
}

const LeadingNumber& TextBox::Number() const {
  if (!number_) number_ = ReadNumber(text_);
  return *number_;
}

double TextBox::Value() const { return Number().value; }

NumberReading TextBox::Reading() const {
  if (!Succeeds([this] { static_cast<void>(Number()); })) return NumberReading::TooLarge;
  return ReadingOf(text_, Number());
}

FieldMark TextBox::Mark() const {
  if (!TakesNumber()) return FieldMark::None;
  const NumberReading reading = Reading();
  if (reading == NumberReading::TooLarge) return FieldMark::OutOfRange;
  if (!Range) return reading == NumberReading::Partial ? FieldMark::PartlyRead : FieldMark::None;
  const FieldRange range = Range();
  if (range.isInForce && !range.limits.Include(Value())) return FieldMark::OutOfRange;
  return reading == NumberReading::Whole ? FieldMark::None : FieldMark::PartlyRead;
}

int TextBox::KeyPress(int key) const { return kind_ == TextKind::Number ? NumericKeyFilter(key, text_) : key; }

void TextBox::Select(std::size_t start, std::size_t length) {
  selectionStart_ = start;
  selectionLength_ = length;
  Touch();
}

}  // namespace orby
