#include "dialogs/font_dialog.h"

#include <algorithm>
#include <utility>

#include "base/arithmetic.h"
#include "base/number_limits.h"
#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"

namespace orby {
namespace {

constexpr NumberLimits Sizes = Between(7, 24);  // in points

constexpr std::string_view Sample = "AaBbCcDdEe 0123456789";

std::vector<std::string> SortedWithoutDoubles(std::vector<std::string> names) {
  std::ranges::sort(names);
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

}  // namespace

FontDialog::FontDialog(Program& program, FontChoice present, std::vector<std::string> offered)
    : ProgramForm(program, "frmFont", "Font"),
      present_(std::move(present)),
      offered_(SortedWithoutDoubles(std::move(offered))) {
  txtSize.Range = [] { return FieldRange{Sizes}; };
  lstFont.Click = [this] { ShowSample(); };
  txtSize.Change = [this] { ShowSample(); };
  chkBold.Click = [this] { ShowSample(); };
  chkItalic.Click = [this] { ShowSample(); };
}

void FontDialog::OnOpen() {
  txtSample.SetText(std::string(Sample));
  std::vector<ComboItem> items;
  for (const std::string& name : offered_) items.push_back({name});
  lstFont.Fill(std::move(items));
  txtSize.SetText(NumberText(present_.size));
  chkBold.SetValue(present_.bold ? 1 : 0);
  chkItalic.SetValue(present_.italic ? 1 : 0);
  const int index = FontIndexOf(present_.name, offered_);
  if (index >= 0) lstFont.ClickItem(index);
  ShowSample();
}

// A size out of range counts as the nearest allowed one, because the user may still be typing. A size that no Single
// can hold counts as the smallest.
FontChoice FontDialog::Chosen() const {
  const int index = lstFont.ListIndex();
  const double size = std::clamp(FittingNumber(txtSize.Text()).value_or(Sizes.least), Sizes.least, Sizes.most);
  return {index < 0 ? present_.name : offered_[static_cast<std::size_t>(index)], static_cast<int>(RoundHalfEven(size)),
          chkBold.Checked(), chkItalic.Checked()};
}

void FontDialog::ShowSample() { txtSample.SetFont(Chosen()); }

void FontDialog::Accept() {
  const FontChoice chosen = Chosen();
  if (FontIndexOf(chosen.name, program_.platform.fonts.ScreenFonts()) < 0) {
    ShowMessage(program_, "Invalid font selection");
    RequestFocus(lstFont);
    return;
  }
  if (!RangeCheck(program_, txtSize.Text(), Sizes.least, Sizes.most, txtSize.LabelCaption())) {
    RequestFocus(txtSize);
    return;
  }
  Accepted = chosen;
  Close();
}

std::optional<FontChoice> AskFont(Program& program, const FontChoice& present,
                                  const std::vector<std::string>& offered) {
  FontDialog dialog(program, present, offered);
  ShowForm(program, dialog);
  return dialog.Accepted;
}

std::vector<std::string> ReadableFonts(Program& program) {
  std::vector<std::string> readable = program.platform.fonts.FixedPitchFonts();
  const std::vector<std::string> installed = program.platform.fonts.ScreenFonts();
  for (const std::string_view name : DisplayFonts) {
    const int index = FontIndexOf(name, installed);
    if (index >= 0) readable.push_back(installed[static_cast<std::size_t>(index)]);
  }
  return SortedWithoutDoubles(std::move(readable));
}

}  // namespace orby
