#include "controls/controls.h"

#include <algorithm>

#include "base/attempt.h"
#include "base/number_text.h"

namespace orby {
namespace {

// Returns the selection after a list got these items.
int IndexWithin(int listIndex, const std::vector<ComboItem>& items) {
  return listIndex < static_cast<int>(items.size()) ? listIndex : Combo::Nothing;
}

}  // namespace

void CheckBox::SetValue(Integer value) {
  if (value == value_) return;
  value_ = value;
  Touch();
  Fire(Click);
}

OptionArray::OptionArray(Form& form, std::string_view name, std::initializer_list<OptionCaption> captions)
    : Control(form, name) {
  members_.reserve(captions.size());
  for (const auto& caption : captions) members_.push_back({std::string(caption.text), caption.suffix});
}

void OptionArray::SetAllEnabled(bool enabled) {
  for (std::size_t i = 0; i < members_.size(); ++i) SetMemberEnabled(i, enabled);
}

void OptionArray::SetValue(int index, bool value) {
  Member& member = members_[CheckedIndex(index, members_.size())];
  if (member.value == value) return;
  if (!value) {
    member.value = false;
    Touch();
    return;
  }
  for (auto& other : members_) other.value = false;
  member.value = true;
  Touch();
  if (Click) Click(static_cast<Integer>(index));
}

Integer GetArrayIndex(const OptionArray& options) {
  Integer index = 0;
  for (std::size_t i = 0; i < options.Count(); ++i) {
    if (options.Value(i)) index = static_cast<Integer>(i);
  }
  return index;
}

void Combo::Fill(std::vector<ComboItem> items) {
  items_ = std::move(items);
  listIndex_ = IndexWithin(listIndex_, items_);
  Touch();
}

void Combo::SetText(std::string text) {
  // Of several items with this text, the selected one stays selected.
  if (HasSelection() && items_[static_cast<std::size_t>(listIndex_)].text == text) {
    return Assign(std::move(text), listIndex_);
  }
  const auto found =
      std::find_if(items_.begin(), items_.end(), [&text](const ComboItem& item) { return item.text == text; });
  Assign(std::move(text), found == items_.end() ? Nothing : static_cast<int>(found - items_.begin()));
}

double Combo::Value() const {
  if (!value_) value_ = TextValue(text_);
  return *value_;
}

NumberReading Combo::Reading() const {
  std::optional<LeadingNumber> number;
  if (!Succeeds([&] { number = ReadNumber(text_); })) return NumberReading::TooLarge;
  return ReadingOf(text_, *number);
}

FieldMark Combo::Mark() const {
  if (!TakesNumber()) return FieldMark::None;
  switch (Reading()) {
    case NumberReading::TooLarge: return FieldMark::OutOfRange;
    case NumberReading::Partial: return FieldMark::PartlyRead;
    case NumberReading::Whole:
    case NumberReading::Blank: break;
  }
  return FieldMark::None;
}

void Combo::SetListIndex(int index) {
  if (index == Nothing) {
    Assign(text_, Nothing);
  } else {
    Assign(items_[CheckedIndex(index, items_.size())].text, index);
  }
}

void Combo::Restore(std::string text, int index) {
  if (index != Nothing) static_cast<void>(CheckedIndex(index, items_.size()));
  Assign(std::move(text), index);
}

void Combo::Assign(std::string text, int listIndex) {
  if (text == text_ && listIndex == listIndex_) return;
  text_ = std::move(text);
  value_.reset();
  listIndex_ = listIndex;
  Touch();
  Fire(Change);
}

CaptionArray::CaptionArray(Form& form, std::string_view name, std::initializer_list<std::string_view> captions)
    : Control(form, name) {
  for (const auto caption : captions) items_.push_back({std::string(caption)});
}

void TabSet::SetTab(int tab) {
  if (tab == tab_) return;
  tab_ = static_cast<int>(CheckedIndex(tab, static_cast<std::size_t>(Count())));
  Touch();
  Fire(Click);
}

void TabSet::ClickTab(int tab) {
  if (TabEnabled(tab)) SetTab(tab);
}

void List::Fill(std::vector<ComboItem> items) {
  items_ = std::move(items);
  listIndex_ = Combo::Nothing;
  Touch();
}

void List::ClickItem(int index) {
  listIndex_ = static_cast<int>(CheckedIndex(index, items_.size()));
  Touch();
  Fire(Click);
}

void List::PointAt(int index) { Mirror(listIndex_, static_cast<int>(CheckedIndex(index, items_.size()))); }

void ActionArray::ClickItem(int index) const {
  const Item& item = At(index);
  if (Enabled() && item.enabled && item.visible && Click) Click(static_cast<Integer>(index));
}

void Slider::SetValue(int value) {
  value = std::clamp(value, minimum_, maximum_);
  if (value == value_) return;
  value_ = value;
  Touch();
  Fire(Change);
}

void ProgressBar::SetValue(int value) { Mirror(value_, std::clamp(value, 0, Whole)); }

void TextPane::Clear(std::size_t expected) {
  bytes_ = {};
  bytes_.reserve(expected);
  Touch();
}

void TextPane::Append(std::string_view bytes) {
  bytes_ += bytes;
  Touch();
}

}  // namespace orby
