// A field for a text or a number, and how its text is read.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/font_choice.h"
#include "base/number_limits.h"
#include "base/number_text.h"
#include "base/unit_suffix.h"
#include "controls/control.h"
#include "controls/event.h"

namespace orby {

enum class TextKind {
  Free,    // any text
  Number,  // keys go through the numeric key filter
  Output,  // only shown, never typed into; fires nothing
};

// How much of a text its number is.
enum class NumberReading {
  Whole,     // all of it
  Partial,   // its beginning, or nothing: "1,5" is read as 1
  Blank,     // there is no text
  TooLarge,  // no number of a project can be so large
};

// Returns how much of a text a number is, which starts it.
NumberReading ReadingOf(std::string_view text, const LeadingNumber& number);

// What the checks of a dialog accept in a field.
struct FieldRange {
  NumberLimits limits;
  bool isInForce = true;  // whether the checks refuse other numbers now
};

// What is marked in a number field. The mark changes nothing in how the field is read and checked.
enum class FieldMark {
  None,
  PartlyRead,  // the text is not wholly a number, or blank although it is checked
  OutOfRange,  // the checks would refuse it
};

// What is shown beside the text of an output.
struct OutputSign {
  std::string_view Judgement;      // the picture of the judgement on it, empty for none
  bool IsOfEarlierInputs = false;  // the fields as they stand would give another text, or none

  bool operator==(const OutputSign&) const = default;
};

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string_view name, TextKind kind = TextKind::Free, UnitSuffix suffix = UnitSuffix::None)
      : Control(form, name), kind_(kind), suffix_(suffix) {}

  TextKind Kind() const { return kind_; }
  // Sets the kind of text that later keys are checked against.
  void SetKind(TextKind kind) { kind_ = kind; }
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  // Returns the number at the start of the text. Throws RuntimeError 6 when it is outside the range of a Double.
  double Value() const;
  // The quantity whose unit the number has.
  UnitSuffix Suffix() const { return suffix_; }

  // The caption of a field that has no label: that of the column whose cell it edits. Empty otherwise.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { caption_ = std::move(caption); }

  // Returns true for a field whose text is read as a number.
  bool TakesNumber() const { return kind_ == TextKind::Number || Range; }
  // Returns true for a field whose text is a number, typed or only shown.
  bool IsNumberField() const { return TakesNumber() || (kind_ == TextKind::Output && showsNumber_); }
  // Says that an output shows texts such as names.
  void SetShowsText() { showsNumber_ = false; }
  NumberReading Reading() const;
  // Returns the mark of the text as it is now. It depends on other fields too, as the checks do.
  FieldMark Mark() const;

  // Returns the numbers that the checks accept. Empty for a field that is not checked.
  std::function<FieldRange()> Range;

  const OutputSign& Sign() const { return sign_; }
  void SetSign(OutputSign sign) { Mirror(sign_, sign); }

  // Returns `key` if the text accepts it, and 0 if it is ignored.
  int KeyPress(int key) const;

  std::size_t SelectionStart() const { return selectionStart_; }
  std::size_t SelectionLength() const { return selectionLength_; }  // in characters
  void Select(std::size_t start, std::size_t length);

  const FontChoice& Font() const { return font_; }
  void SetFont(FontChoice font) { Mirror(font_, std::move(font)); }

  Event Change;  // the text has changed

 private:
  const LeadingNumber& Number() const;

  std::string text_;
  mutable std::optional<LeadingNumber> number_;  // of the text, once it has been read
  TextKind kind_;
  UnitSuffix suffix_;
  std::string caption_;
  OutputSign sign_;
  bool showsNumber_ = true;
  FontChoice font_;
  std::size_t selectionStart_ = 0;
  std::size_t selectionLength_ = 0;
};

}  // namespace orby
