// The controls of dialogs. Setting a property in code fires the same event as the user's action, before the setter
// returns. Setting a property to the value that it has fires nothing. Filling a list or a grid fires nothing.
#pragma once

#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/types.h"
#include "base/unit_suffix.h"
#include "controls/control.h"
#include "controls/event.h"
#include "controls/form.h"
#include "controls/text_box.h"

namespace orby {

class Label : public Control {
 public:
  // AppendUnits appends the unit of `suffix` to the caption.
  Label(Form& form, std::string_view name, std::string_view caption, UnitSuffix suffix = UnitSuffix::None)
      : Control(form, name), caption_(caption), suffix_(suffix) {}

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { Mirror(caption_, std::string(caption)); }
  UnitSuffix Suffix() const { return suffix_; }

 private:
  std::string caption_;
  UnitSuffix suffix_;
};

// A frame around other controls. Its caption may end in a unit, like that of a label.
class Frame : public Label {
 public:
  using Label::Label;
};

// A menu of the menu bar. Its entries are in an ActionArray.
class Menu : public Label {
 public:
  using Label::Label;
};

class Button : public Control {
 public:
  Button(Form& form, std::string_view name, std::string_view caption, Event click = {})
      : Control(form, name), Click(std::move(click)), caption_(caption) {}

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { Mirror(caption_, std::string(caption)); }
  // Presses the button as the user does. Does nothing when it is disabled.
  void Press() const {
    if (Enabled() && Click) Click();
  }

  Event Click;

 private:
  std::string caption_;
};

// The label of a field. It is named after the field: "lblCMRR" labels "txtCMRR", and "lblText7" labels "Text7".
class FieldLabel {
 public:
  const std::string& LabelCaption() const { return label_.Caption(); }

 protected:
  FieldLabel(Form& form, std::string_view field, std::string_view caption, UnitSuffix suffix)
      : name_("lbl" + std::string(field.substr(field.starts_with("txt") ? 3 : 0))),
        label_(form, name_, caption, suffix) {}

 private:
  std::string name_;
  Label label_;
};

// A text box and the label before it.
class LabelledBox : public FieldLabel, public TextBox {
 public:
  LabelledBox(Form& form, std::string_view name, TextKind kind, std::string_view caption,
              UnitSuffix suffix = UnitSuffix::None)
      : FieldLabel(form, name, caption, suffix), TextBox(form, name, kind, suffix) {}
  LabelledBox(Form& form, std::string_view name, std::string_view caption, UnitSuffix suffix = UnitSuffix::None)
      : LabelledBox(form, name, TextKind::Free, caption, suffix) {}
};

enum class ClickKind {
  Quiet,   // a click changes values
  MayAsk,  // a click may open a dialog and wait until it is closed
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string_view name, std::string_view caption, ClickKind kind = ClickKind::Quiet)
      : Control(form, name), kind_(kind), caption_(caption) {}

  ClickKind Kind() const { return kind_; }
  const std::string& Caption() const { return caption_; }
  Integer Value() const { return value_; }  // 0 or 1
  bool Checked() const { return value_ == 1; }
  void SetValue(Integer value);

  Event Click;  // the value has changed

 private:
  ClickKind kind_;
  std::string caption_;
  Integer value_ = 0;
};

struct OptionCaption {
  std::string_view text;
  UnitSuffix suffix = UnitSuffix::None;
};

// A group of exclusive choices, counted from 0.
class OptionArray : public Control {
 public:
  OptionArray(Form& form, std::string_view name, std::initializer_list<OptionCaption> captions);

  std::size_t Count() const { return members_.size(); }
  const std::string& Caption(std::size_t index) const { return members_[index].caption; }
  void SetCaption(std::size_t index, std::string_view caption) {
    Mirror(members_[index].caption, std::string(caption));
  }
  UnitSuffix Suffix(std::size_t index) const { return members_[index].suffix; }
  bool MemberEnabled(std::size_t index) const { return members_[index].enabled; }
  void SetMemberEnabled(std::size_t index, bool enabled) { Mirror(members_[index].enabled, enabled); }
  void SetAllEnabled(bool enabled);

  bool Value(std::size_t index) const { return members_[index].value; }
  // Sets one option. An option that becomes true sets the others to false and fires Click. Throws RuntimeError 9
  // outside the array.
  void SetValue(int index, bool value);

  std::function<void(Integer index)> Click;

 private:
  struct Member {
    std::string caption;
    UnitSuffix suffix = UnitSuffix::None;
    bool enabled = true;
    bool value = false;
  };
  std::vector<Member> members_;
};

// Returns the index of the last option that is true, or 0 when none is.
Integer GetArrayIndex(const OptionArray& options);

// Returns the choice whose value is GetArrayIndex(options). Requires options in the order of the values.
template <class Choice>
Choice Chosen(const OptionArray& options) {
  return Choice{GetArrayIndex(options)};
}

struct ComboItem {
  std::string text;
  double data = 0;          // a whole number
  std::string_view mark{};  // the picture before the text, in a list
};

// Returns an item for each element of a range, named by a function of it.
template <class Range, class NameOf = std::identity>
std::vector<ComboItem> ItemsNamed(const Range& range, NameOf nameOf = {}) {
  std::vector<ComboItem> items;
  items.reserve(std::size(range));
  for (const auto& element : range) items.push_back({.text = std::string(std::invoke(nameOf, element)), .mark = {}});
  return items;
}

// A list with a text field. The text and the selected item are separate: a text that equals no item stays, and no item
// is selected.
enum class ComboKind {
  FreeText,  // the text takes effect with every key
  ListOnly,  // the text should be an item, and takes effect after it is complete
};

class Combo : public Control {
 public:
  Combo(Form& form, std::string_view name, ComboKind kind = ComboKind::FreeText) : Control(form, name), kind_(kind) {}
  // A list of numbers of this quantity.
  Combo(Form& form, std::string_view name, UnitSuffix suffix)
      : Control(form, name), kind_(ComboKind::FreeText), suffix_(suffix) {}

  ComboKind Kind() const { return kind_; }

  static constexpr int Nothing = -1;

  const std::vector<ComboItem>& Items() const { return items_; }
  // Replaces the items. A selection beyond the end of the new list is removed.
  void Fill(std::vector<ComboItem> items);

  const std::string& Text() const { return text_; }
  // Sets the text and selects the item that equals it, or none. Of several equal items it selects the first, unless one
  // of them is selected already.
  void SetText(std::string text);
  // Sets a text and a selection that the list had before. Throws RuntimeError 9 outside the list.
  void Restore(std::string text, int index);
  // Clears the text and keeps the selection.
  void BlankText() { Assign({}, listIndex_); }
  // Returns the number at the start of the text.
  double Value() const;

  UnitSuffix Suffix() const { return suffix_; }
  bool TakesNumber() const { return suffix_ != UnitSuffix::None; }
  NumberReading Reading() const;
  // Returns the mark of the text. A blank one is only not chosen yet.
  FieldMark Mark() const;

  int ListIndex() const { return listIndex_; }
  bool HasSelection() const { return listIndex_ != Nothing; }
  // Selects an item and sets the text to it. Nothing removes the selection and keeps the text. Throws RuntimeError 9
  // outside the list.
  void SetListIndex(int index);

  Event Change;  // the text or the selected item has changed

 private:
  void Assign(std::string text, int listIndex);

  ComboKind kind_;
  UnitSuffix suffix_ = UnitSuffix::None;
  std::vector<ComboItem> items_;
  std::string text_;
  mutable std::optional<double> value_;  // number of the text, once it has been read
  int listIndex_ = Nothing;
};

// A control with several captions, counted from 0. Each function throws RuntimeError 9 outside the array.
class CaptionArray : public Control {
 public:
  CaptionArray(Form& form, std::string_view name, std::initializer_list<std::string_view> captions);

  int Count() const { return static_cast<int>(items_.size()); }
  const std::string& Caption(int index) const { return At(index).caption; }
  void SetCaption(int index, std::string_view caption) { Mirror(At(index).caption, std::string(caption)); }
  bool ItemEnabled(int index) const { return At(index).enabled; }
  void SetItemEnabled(int index, bool enabled) { Mirror(At(index).enabled, enabled); }

 protected:
  struct Item {
    std::string caption;
    bool enabled = true;
    bool visible = true;
    bool checked = false;
  };
  const Item& At(int index) const { return items_[CheckedIndex(index, items_.size())]; }
  Item& At(int index) { return items_[CheckedIndex(index, items_.size())]; }

 private:
  std::vector<Item> items_;
};

// Pages of which one is shown.
class TabSet : public CaptionArray {
 public:
  using CaptionArray::CaptionArray;

  bool TabEnabled(int tab) const { return ItemEnabled(tab); }
  void SetTabEnabled(int tab, bool enabled) { SetItemEnabled(tab, enabled); }

  int Tab() const { return tab_; }
  // Shows a tab, also a disabled one. Throws RuntimeError 9 outside the set.
  void SetTab(int tab);
  // Shows a tab as the user's click does. Does nothing when the tab is disabled.
  void ClickTab(int tab);

  Event Click;  // another tab is shown

 private:
  int tab_ = 0;
};

enum class ListKind {
  Commands,  // a click on an item runs a command; the arrow keys only move over the items
  Choices,   // a click or an arrow key chooses an item
};

// A list in which one item can be selected.
class List : public Control {
 public:
  List(Form& form, std::string_view name, ListKind kind = ListKind::Commands) : Control(form, name), kind_(kind) {}

  ListKind Kind() const { return kind_; }
  const std::vector<ComboItem>& Items() const { return items_; }
  // Replaces the items. No item is selected afterwards.
  void Fill(std::vector<ComboItem> items);
  // Moves the items out, for a change of some of them. Fill must follow.
  std::vector<ComboItem> TakeItems() { return std::exchange(items_, {}); }
  int ListIndex() const { return listIndex_; }
  // Clicks an item as the user does. Fires also for the selected item. Throws RuntimeError 9 outside the list.
  void ClickItem(int index);

  // Moves the selection without a click, as the arrow keys do in a list of commands. Throws RuntimeError 9 outside the
  // list.
  void PointAt(int index);

  Event Click;

 private:
  ListKind kind_;
  std::vector<ComboItem> items_;
  int listIndex_ = Combo::Nothing;
};

// The entries of a menu or the buttons of a tool bar. A caption of "-" makes a separator. An empty caption makes no
// entry.
class ActionArray : public CaptionArray {
 public:
  using CaptionArray::CaptionArray;

  static constexpr std::string_view Separator = "-";

  bool ItemVisible(int index) const { return At(index).visible; }
  void SetItemVisible(int index, bool visible) { Mirror(At(index).visible, visible); }
  bool ItemChecked(int index) const { return At(index).checked; }
  void SetItemChecked(int index, bool checked) { Mirror(At(index).checked, checked); }

  // Chooses an entry as the user does. Does nothing when the entry is disabled or hidden.
  void ClickItem(int index) const;

  std::function<void(Integer index)> Click;
};

// A slider for a whole number in a range.
class Slider : public Control {
 public:
  Slider(Form& form, std::string_view name, int minimum, int maximum)
      : Control(form, name), minimum_(minimum), maximum_(maximum), value_(minimum) {}

  int Minimum() const { return minimum_; }
  int Maximum() const { return maximum_; }
  int Value() const { return value_; }
  // A value outside the range becomes its nearer end.
  void SetValue(int value);

  Event Change;  // the value has changed

 private:
  int minimum_;
  int maximum_;
  int value_;
};

// The progress of a long task.
class ProgressBar : public Control {
 public:
  using Control::Control;

  static constexpr int Whole = 100;

  int Value() const { return value_; }  // percent
  // A value outside 0..100 becomes its nearer end.
  void SetValue(int value);

 private:
  int value_ = 0;
};

// Shows the lines of a long file. The text is given as bytes of unknown encoding.
class TextPane : public Control {
 public:
  using Control::Control;

  const std::string& Bytes() const { return bytes_; }
  // Removes the text and reserves memory for `expected` bytes.
  void Clear(std::size_t expected = 0);
  void Append(std::string_view bytes);

  const FontChoice& Font() const { return font_; }
  void SetFont(FontChoice font) { Mirror(font_, std::move(font)); }

 private:
  std::string bytes_;
  FontChoice font_;
};

// A fixed picture, which can only be shown and hidden.
class Picture : public Control {
 public:
  using Control::Control;
};

}  // namespace orby
