// The lists of bolts in the options dialog.
#include <algorithm>
#include <string>
#include <string_view>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "design/catalogs.h"
#include "dialogs/fault_texts.h"
#include "dialogs/options_dialog.h"

namespace orby {
namespace {

struct BoltCatalog {
  std::array<CatalogList Catalogs::*, bolt_list::Count> Lists;  // null if the catalog has no such list
  void (*SetBuiltIn)(Catalogs& catalogs);
};

constexpr std::array<BoltCatalog, bolt_catalog::Count> BoltCatalogs{{
    {{&Catalogs::DefaultBoltGradeArrayENG, &Catalogs::DefaultBoltUTSArrayENG, &Catalogs::DefaultBoltDiamArrayENG},
     SetDefaultBoltsENG},
    {{&Catalogs::DefaultBoltGradeArrayMET, &Catalogs::DefaultBoltUTSArrayMET, &Catalogs::DefaultBoltDiamArrayMET},
     SetDefaultBoltsMET},
    // The members' names are swapped: the DiamArray holds the strengths and the UTSArray the diameters.
    {{nullptr, &Catalogs::DefaultBoltDiamArrayMETAUS, &Catalogs::DefaultBoltUTSArrayMETAUS}, SetDefaultBoltsMET},
}};

// The names of the lists in messages: inside a sentence and at its start.
struct ListName {
  std::string_view Inside;
  std::string_view First;
};

constexpr std::array<ListName, bolt_list::Count> ListNames{
    {{"grade", "Grade"}, {"UTS", "UTS"}, {"diameter", "Diameter"}}};

std::size_t ChosenList(const BoltListControls& controls) {
  return static_cast<std::size_t>(GetArrayIndex(controls.optBolt));
}

// Returns the reason why the text cannot join the list, or an empty text. A full list takes precedence over a
// duplicate.
std::string Objection(const BoltListControls& controls, std::size_t list) {
  const std::string& text = controls.txtItem.Text();
  const auto& items = controls.lists[list]->Items();
  if (Trim(text).empty()) return "Please enter a value in the text box above.";
  if (items.size() >= BoltListCapacity) {
    return "Maximum " + std::string(ListNames[list].Inside) + " entries have been reached. Please delete a value first";
  }
  if (std::ranges::find(items, text, &ComboItem::text) != items.end()) {
    return std::string(ListNames[list].First) + " entry exists. New value not added";
  }
  if (!FittingNumber(text)) return fault_text::TooLarge(ListNames[list].First, text);
  return {};
}

}  // namespace

void OptionsDialog::TieBolts(std::size_t catalog) {
  BoltListControls& controls = bolts[catalog];
  controls.cmdAddBolt.Click = [this, catalog] { AddBolt(catalog); };
  controls.cmdDeleteBolt.Click = [this, catalog] { DeleteBolt(catalog); };
  controls.cmdSetDefaultBolt.Click = [this, catalog] { ResetBolts(catalog); };
  for (std::size_t list = 0; list < bolt_list::Count; ++list) {
    if (!controls.lists[list]) continue;
    controls.lists[list]->Click = [this, catalog, list] { ChooseBolts(catalog, list); };
  }
}

// Selects the list, so that Delete acts on the entry selected last and not on one that another list still highlights.
void OptionsDialog::ChooseBolts(std::size_t catalog, std::size_t list) {
  SetArrayIndex(program_, bolts[catalog].optBolt, static_cast<Integer>(list));
}

void OptionsDialog::FillBolts(std::size_t catalog) {
  for (std::size_t list = 0; list < bolt_list::Count; ++list) {
    if (!bolts[catalog].lists[list]) continue;
    const CatalogList& values = program_.session.catalogs.*BoltCatalogs[catalog].Lists[list];
    std::vector<ComboItem> items;
    for (std::size_t entry = 0; entry < values.Count(); ++entry) items.push_back({NumberText(values[entry])});
    bolts[catalog].lists[list]->Fill(std::move(items));
  }
}

void OptionsDialog::ChooseFirstBolts(std::size_t catalog) {
  BoltListControls& controls = bolts[catalog];
  SetArrayIndex(program_, controls.optBolt, controls.lists[bolt_list::Grade] ? bolt_list::Grade : bolt_list::UTS);
}

void OptionsDialog::AddBolt(std::size_t catalog) {
  BoltListControls& controls = bolts[catalog];
  const std::size_t chosen = ChosenList(controls);
  if (const std::string objection = Objection(controls, chosen); !objection.empty()) {
    ShowMessage(program_, objection);
    return;
  }
  List& list = *controls.lists[chosen];
  std::vector<ComboItem> items = list.Items();
  items.push_back({controls.txtItem.Text()});
  list.Fill(std::move(items));
  list.ClickItem(static_cast<int>(list.Items().size()) - 1);
}

// Keeps the selected position, or selects the last entry.
void OptionsDialog::DeleteBolt(std::size_t catalog) {
  BoltListControls& controls = bolts[catalog];
  const std::size_t chosen = ChosenList(controls);
  List& list = *controls.lists[chosen];
  if (list.ListIndex() == Combo::Nothing) {
    ShowMessage(program_, "Please select a " + std::string(ListNames[chosen].Inside) + " value to delete");
    return;
  }
  const int deleted = list.ListIndex();
  std::vector<ComboItem> items = list.Items();
  items.erase(items.begin() + deleted);
  const int last = static_cast<int>(items.size()) - 1;
  list.Fill(std::move(items));
  if (last >= 0) list.ClickItem(std::min(deleted, last));
}

// The built-in values of the other catalogs are not taken over.
void OptionsDialog::ResetBolts(std::size_t catalog) {
  Catalogs builtIn = program_.session.catalogs;
  BoltCatalogs[catalog].SetBuiltIn(builtIn);
  for (const auto list : BoltCatalogs[catalog].Lists) {
    if (list != nullptr) program_.session.catalogs.*list = builtIn.*list;
  }
  FillBolts(catalog);
}

void OptionsDialog::StoreBolts(Catalogs& catalogs) const {
  for (std::size_t catalog = 0; catalog < bolts.size(); ++catalog) {
    for (std::size_t list = 0; list < bolt_list::Count; ++list) {
      if (!bolts[catalog].lists[list]) continue;
      const auto& items = bolts[catalog].lists[list]->Items();
      CatalogList& values = catalogs.*BoltCatalogs[catalog].Lists[list];
      for (std::size_t i = 0; i < items.size(); ++i) values.Set(i, ToSingle(TextValue(items[i].text)));
      values.HighestIndex = static_cast<Integer>(static_cast<int>(items.size()) - 1);
    }
  }
}

}  // namespace orby
