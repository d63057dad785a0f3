#include "dialogs/would_hold_window.h"

#include <algorithm>

#include "config/price_section.h"
#include "core/catalog_choice.h"
#include "core/dialog_helpers.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/study_texts.h"

namespace orby {
namespace {

constexpr std::string_view NothingToStudy =
    "No support is analysed and in use. Choose an analysis on the General tab, and a support system on its tab.";
constexpr std::string_view NothingChosen = "Choose a support from the list.";
constexpr std::string_view NeedsStandingSpacing =
    " Trusses in entries are computed only with a row spacing of the standing supports above 0.";

}  // namespace

WouldHoldWindow::WouldHoldWindow(Program& program, ParametersDialog& parameters, std::optional<StudiedSupport> support)
    : WouldHoldControls(program), parameters_(parameters), first_(support) {
  cmbSupport.Change = [this] { TakeSupport(); };
  cmdApply.Click = [this] { Apply(); };
  grdChanges.Change = [this] { ShowApply(); };
  patterns_.Ended = [this] { ShowApply(); };
}

void WouldHoldWindow::OnOpen() {
  const UnitSystem units = program_.project.WorkParms.Units;
  stored_ = Prices();
  used_ = Prices();
  design_ = parameters_.TypedDesign();
  LoadBoltTable(program_.project, program_.session.catalogs);
  AppendUnits(*this, units);
  txtLengths.SetText(LengthsText(stored_[PlaceOf(units)].BoltLengths));
  prices_.Fill();
  ShowLengthsRead();
  FillSupports();
  Follow();
  RequestFocus(grdChanges);
  program_.platform.windows.CenterForm(*this);
}

void WouldHoldWindow::FillSupports() {
  supports_ = StudiedSupports(design_);
  std::vector<ComboItem> items;
  for (const StudiedSupport& support : supports_) items.push_back({SupportText(support)});
  cmbSupport.Fill(std::move(items));
  cmbSupport.SetEnabled(!supports_.empty());
  if (supports_.empty()) return TakeSupport();
  const auto wanted = first_ ? std::ranges::find(supports_, *first_) : supports_.end();
  const auto isShort = [this](const StudiedSupport& support) {
    return !Assess(design_, program_.session.catalogs, support).Holds();
  };
  const auto found = wanted != supports_.end() ? wanted : std::ranges::find_if(supports_, isShort);
  cmbSupport.SetListIndex(found == supports_.end() ? 0 : static_cast<int>(found - supports_.begin()));
}

const StudiedSupport* WouldHoldWindow::Support() const {
  return cmbSupport.HasSelection() ? &supports_.at(static_cast<std::size_t>(cmbSupport.ListIndex())) : nullptr;
}

void WouldHoldWindow::TakeSupport() {
  changesAreShown_ = false;
  changes_.Clear();
  if (const StudiedSupport* support = Support()) {
    patterns_.Start(design_, *support);
  } else {
    patterns_.Disable();
  }
  ShowPresent();
}

void WouldHoldWindow::ShowPresent() {
  const StudiedSupport* support = Support();
  if (support == nullptr) return lblPresent.SetCaption(supports_.empty() ? NothingToStudy : NothingChosen);
  const Catalogs& catalogs = program_.session.catalogs;
  const PatternCost cost = CostOf(design_, catalogs, Prices()[PlaceOf(design_.Units)], *support);
  const Assessment present = Assess(design_, catalogs, *support);
  std::string text = "As it is: " + DecidingText(present, design_.Units) + ". Cost" +
                     CostUnit(*support, design_.Units) + ": " + CostText(cost) + ".";
  if (present.Holds()) text += " It holds, so nothing needs to change.";
  if (LacksStandingSpacing(design_, *support)) text += NeedsStandingSpacing;
  lblPresent.SetCaption(text);
}

void WouldHoldWindow::Follow() {
  if (tabStudy.Tab() == study_page::Prices) TakePrices();
  if (Prices() != used_) {
    used_ = Prices();
    changesAreShown_ = false;
    patterns_.Clear();
    ShowPresent();
  }
  patterns_.FollowLimits();
  if (tabStudy.Tab() == study_page::Changes && !changesAreShown_ && Support() != nullptr) {
    changes_.Show(design_, *Support());
    changesAreShown_ = true;
  }
  ShowApply();
}

void WouldHoldWindow::TakePrices() {
  prices_.TakeLengths(LengthsFrom(txtLengths.Text()));
  prices_.Take();
  ShowLengthsRead();
}

void WouldHoldWindow::ShowLengthsRead() {
  const UnitSystem units = program_.project.WorkParms.Units;
  lblLengthsRead.SetCaption("Read as " + LengthsText(Prices()[PlaceOf(units)].BoltLengths) + " " +
                            std::string(UnitName(UnitSuffix::Length, units)));
}

std::optional<Design> WouldHoldWindow::Chosen() const {
  switch (tabStudy.Tab()) {
    case study_page::Changes: {
      const Design* changed = changes_.Selected();
      return changed == nullptr ? std::nullopt : std::optional(*changed);
    }
    case study_page::Patterns: return patterns_.Selected();
    default: return std::nullopt;
  }
}

void WouldHoldWindow::ShowApply() { cmdApply.SetEnabled(Chosen().has_value()); }

void WouldHoldWindow::Apply() {
  const std::optional<Design> chosen = Chosen();
  if (!chosen) return;
  parameters_.TakeEdits(*chosen);
  Close();
}

void WouldHoldWindow::OnClose() {
  TakePrices();
  if (Prices() == stored_) return;
  EditIniFile(program_, program_.session.IniFilePath, [this](IniText& ini) { WritePrices(Prices(), ini); });
}

}  // namespace orby
