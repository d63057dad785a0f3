// The controls that dialogs are made of. Setting a property in code fires the same event as the user's act, at once;
// setting what is there already fires nothing. Filling a list or a grid fires nothing.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/font_choice.h"
#include "base/types.h"
#include "base/unit_suffix.h"
#include "controls/control.h"
#include "controls/event.h"
#include "controls/form.h"

namespace orby {

class Label : public Control {
 public:
  // The suffix of a unit is appended to the caption.
  Label(Form& form, std::string_view name, std::string_view caption, UnitSuffix suffix = UnitSuffix::None)
      : Control(form, name), caption_(caption), suffix_(suffix) {}

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { Mirror(caption_, std::string(caption)); }
  UnitSuffix Suffix() const { return suffix_; }

 private:
  std::string caption_;
  UnitSuffix suffix_;
};

// A frame around other controls. Its caption may end in a unit as a label's does.
class Frame : public Label {
 public:
  using Label::Label;
};

// A menu of the menu bar; its entries are those of an ActionArray.
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
  // The user's press; a disabled button does not answer.
  void Press() const {
    if (Enabled() && Click) Click();
  }

  Event Click;

 private:
  std::string caption_;
};

enum class TextKind {
  Free,    // any text
  Number,  // keys pass the numeric key filter
  Output,  // shown only, never typed into; fires nothing
};

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string_view name, TextKind kind = TextKind::Free) : Control(form, name), kind_(kind) {}

  TextKind Kind() const { return kind_; }
  // What the keys typed from now on are judged by.
  void SetKind(TextKind kind) { kind_ = kind; }
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  // The text's leading number.
  double Value() const;

  // The key that reaches the text when this one is typed, 0 when it is swallowed.
  int KeyPress(int key) const;

  std::size_t SelectionStart() const { return selectionStart_; }
  std::size_t SelectionLength() const { return selectionLength_; }  // in characters
  void Select(std::size_t start, std::size_t length);

  const FontChoice& Font() const { return font_; }
  void SetFont(FontChoice font) { Mirror(font_, std::move(font)); }

  Event Change;  // the text differs from before

 private:
  std::string text_;
  mutable std::optional<double> value_;  // of the text, since it was asked for
  TextKind kind_;
  FontChoice font_;
  std::size_t selectionStart_ = 0;
  std::size_t selectionLength_ = 0;
};

// The label of a field. It bears the field's name: "lblCMRR" labels "txtCMRR", and "lblText7" labels "Text7".
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
      : FieldLabel(form, name, caption, suffix), TextBox(form, name, kind) {}
  LabelledBox(Form& form, std::string_view name, std::string_view caption, UnitSuffix suffix = UnitSuffix::None)
      : LabelledBox(form, name, TextKind::Free, caption, suffix) {}
};

enum class ClickKind {
  Quiet,   // a click changes values
  MayAsk,  // a click may open a dialog and wait for it
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

  Event Click;  // the value differs from before

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
  // A member that turns true turns the others false and is clicked. Throws RuntimeError 9 outside the array.
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

// The index of the last member that is on; 0 when none is.
Integer GetArrayIndex(const OptionArray& options);

// The same for a choice whose options stand in the order of its values.
template <class Choice>
Choice Chosen(const OptionArray& options) {
  return Choice{GetArrayIndex(options)};
}

struct ComboItem {
  std::string text;
  double data = 0;  // a whole number
};

// A list to choose from with a text of its own. The text and the selected item are two states: a text that is no item
// stays, with nothing selected.
enum class ComboKind {
  FreeText,  // a text counts key by key
  ListOnly,  // a text is meant to be an item: it counts once it has been typed to its end
};

class Combo : public Control {
 public:
  Combo(Form& form, std::string_view name, ComboKind kind = ComboKind::FreeText) : Control(form, name), kind_(kind) {}

  ComboKind Kind() const { return kind_; }

  static constexpr int Nothing = -1;

  const std::vector<ComboItem>& Items() const { return items_; }
  // A selection beyond the end of the new list is dropped.
  void Fill(std::vector<ComboItem> items);

  const std::string& Text() const { return text_; }
  // Selects the item that is exactly equal, or none; of several the first, unless one of them is selected.
  void SetText(std::string text);
  // Empties the text and keeps the selection.
  void BlankText() { Assign({}, listIndex_); }
  // The text's leading number.
  double Value() const;

  int ListIndex() const { return listIndex_; }
  bool HasSelection() const { return listIndex_ != Nothing; }
  // Selects an item, the text following it; Nothing keeps the text. Throws RuntimeError 9 outside the list.
  void SetListIndex(int index);

  Event Change;  // the text or the selected item differs from before

 private:
  void Assign(std::string text, int listIndex);

  ComboKind kind_;
  std::vector<ComboItem> items_;
  std::string text_;
  mutable std::optional<double> value_;  // of the text, since it was asked for
  int listIndex_ = Nothing;
};

// What bears captions that can be reached one by one, counted from 0. Each routine throws RuntimeError 9 outside the
// array.
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

// Pages of which one is on view.
class TabSet : public CaptionArray {
 public:
  using CaptionArray::CaptionArray;

  bool TabEnabled(int tab) const { return ItemEnabled(tab); }
  void SetTabEnabled(int tab, bool enabled) { SetItemEnabled(tab, enabled); }

  int Tab() const { return tab_; }
  // Code may go to a disabled tab. Throws RuntimeError 9 outside the set.
  void SetTab(int tab);
  // The user's click, which a disabled tab does not answer.
  void ClickTab(int tab);

  Event Click;  // another tab is on view

 private:
  int tab_ = 0;
};

enum class ListKind {
  Commands,  // an item does something: the arrow keys only pass over it
  Choices,   // an item is chosen: by the arrow keys too
};

// A plain list of which one item is selected.
class List : public Control {
 public:
  List(Form& form, std::string_view name, ListKind kind = ListKind::Commands) : Control(form, name), kind_(kind) {}

  ListKind Kind() const { return kind_; }
  const std::vector<ComboItem>& Items() const { return items_; }
  // Nothing is selected afterwards.
  void Fill(std::vector<ComboItem> items);
  int ListIndex() const { return listIndex_; }
  // The user's click on an item; fires each time. Throws RuntimeError 9 outside the list.
  void ClickItem(int index);

  Event Click;

 private:
  ListKind kind_;
  std::vector<ComboItem> items_;
  int listIndex_ = Combo::Nothing;
};

// The entries of a menu or the buttons of a tool bar. A caption of "-" is a separator, an empty one no entry at all.
class ActionArray : public CaptionArray {
 public:
  using CaptionArray::CaptionArray;

  static constexpr std::string_view Separator = "-";

  bool ItemVisible(int index) const { return At(index).visible; }
  void SetItemVisible(int index, bool visible) { Mirror(At(index).visible, visible); }
  bool ItemChecked(int index) const { return At(index).checked; }
  void SetItemChecked(int index, bool checked) { Mirror(At(index).checked, checked); }

  // The user's choice of an entry; one that is disabled or not shown does not answer.
  void ClickItem(int index) const;

  std::function<void(Integer index)> Click;
};

// A whole number between two others.
class Slider : public Control {
 public:
  Slider(Form& form, std::string_view name, int minimum, int maximum)
      : Control(form, name), minimum_(minimum), maximum_(maximum), value_(minimum) {}

  int Minimum() const { return minimum_; }
  int Maximum() const { return maximum_; }
  int Value() const { return value_; }
  // A value outside the range becomes its nearer end.
  void SetValue(int value);

  Event Change;  // the value differs from before

 private:
  int minimum_;
  int maximum_;
  int value_;
};

// How far a long piece of work has come.
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

// A text that may be as long as a file, shown line by line as it stands: bytes, not yet known to be text.
class TextPane : public Control {
 public:
  using Control::Control;

  const std::string& Bytes() const { return bytes_; }
  // Empties the pane and gets ready for so many bytes.
  void Clear(std::size_t expected = 0);
  void Append(std::string_view bytes);

  const FontChoice& Font() const { return font_; }
  void SetFont(FontChoice font) { Mirror(font_, std::move(font)); }

 private:
  std::string bytes_;
  FontChoice font_;
};

// A stored picture of which only the visibility changes.
class Picture : public Control {
 public:
  using Control::Control;
};

}  // namespace orby
