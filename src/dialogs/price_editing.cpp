#include "dialogs/price_editing.h"

#include <algorithm>
#include <utility>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "core/catalog_choice.h"
#include "core/dialog_helpers.h"
#include "dialogs/study_texts.h"

namespace orby {
namespace {

constexpr int PriceColumn = 0;

std::string PriceText(std::optional<Single> dollars) { return dollars ? NumberText(*dollars) : std::string(); }

bool IsSamePiece(const Price& a, const Price& b) {
  return a.What == b.What && a.Name == b.Name && a.Length == b.Length;
}

// Sets the price of a piece, or removes it if the text has none.
void Put(PriceList& list, Price piece, const std::string& text) {
  piece.Dollars = ToSingle(FittingNumber(text).value_or(0));
  const auto known = std::ranges::find_if(list.Prices, [&](const Price& price) { return IsSamePiece(price, piece); });
  const bool isKnown = known != list.Prices.end();
  if (!(piece.Dollars > 0)) {
    if (isKnown) list.Prices.erase(known);
  } else if (isKnown) {
    known->Dollars = piece.Dollars;
  } else {
    list.Prices.push_back(std::move(piece));
  }
}

}  // namespace

PriceEditing::PriceEditing(Program& program, Grid& bolts, TextBox& boltBox, Grid& others, TextBox& otherBox)
    : program_(program), boltGrid_(bolts, boltBox, {}), otherGrid_(others, otherBox, {TextKind::Number}) {
  for (Grid* grid : {&bolts, &others}) grid->SetStretchedColumn(0);
}

PriceList& PriceEditing::List() const { return program_.session.prices[PlaceOf(program_.project.WorkParms.Units)]; }

// Supports of one name have one price.
void PriceEditing::FindOthers() {
  others_.clear();
  const Catalogs& catalogs = program_.session.catalogs;
  const UnitSystem units = program_.project.WorkParms.Units;
  for (const PricedSupport what : {PricedSupport::Cable, PricedSupport::Truss, PricedSupport::Standing}) {
    const StudiedSupport support{Opening::Entries, what};
    if (what == PricedSupport::Truss) others_.push_back({{.What = what, .Name = {}}, "Truss"});
    for (std::size_t item = 0; item < ItemCount(catalogs, units, support); ++item) {
      const Price piece{.What = what, .Name = ItemName(catalogs, units, support, item)};
      const auto isSame = [&](const OtherPiece& listed) { return IsSamePiece(listed.Piece, piece); };
      if (std::ranges::any_of(others_, isSame)) continue;
      const std::string text = ItemText(catalogs, units, support, item);
      others_.push_back({piece, what == PricedSupport::Cable ? "Cable bolt, " + text : text});
    }
  }
}

void PriceEditing::Fill() {
  FillBolts();
  FillOthers();
}

void PriceEditing::FillBolts() {
  const PriceList& list = List();
  const std::string unit(UnitName(UnitSuffix::Length, program_.project.WorkParms.Units));
  OverlayEditing::Texts header{"Roof bolt"};
  for (const Single length : list.BoltLengths) header.push_back(NumberText(length) + " " + unit);
  std::vector<OverlayEditing::Texts> rows;
  boltNames_.clear();
  for (const BoltTableRow& bolt : LoadBoltTable(program_.project, program_.session.catalogs)) {
    OverlayEditing::Texts row{bolt.Name};
    for (const Single length : list.BoltLengths) {
      row.push_back(PriceText(list.Find(PricedSupport::Bolt, bolt.Name, length)));
    }
    rows.push_back(std::move(row));
    boltNames_.push_back(bolt.Name);
  }
  boltGrid_.FillNamed(header, rows);
}

void PriceEditing::FillOthers() {
  FindOthers();
  std::vector<OverlayEditing::Texts> rows;
  for (const OtherPiece& other : others_) {
    rows.push_back({other.Text, PriceText(List().Find(other.Piece.What, other.Piece.Name))});
  }
  otherGrid_.FillNamed({"Support", "Price ($)"}, rows);
}

void PriceEditing::Take() {
  boltGrid_.Flush();
  otherGrid_.Flush();
  PriceList& list = List();
  for (std::size_t row = 0; row < boltNames_.size(); ++row) {
    for (std::size_t column = 0; column < list.BoltLengths.size(); ++column) {
      Put(list, {.What = PricedSupport::Bolt, .Name = boltNames_[row], .Length = list.BoltLengths[column]},
          boltGrid_.Text(static_cast<int>(row), static_cast<int>(column)));
    }
  }
  for (std::size_t row = 0; row < others_.size(); ++row) {
    Put(list, others_[row].Piece, otherGrid_.Text(static_cast<int>(row), PriceColumn));
  }
}

void PriceEditing::TakeLengths(const std::vector<Single>& lengths) {
  if (lengths.empty() || lengths == List().BoltLengths) return;
  Take();
  List().BoltLengths = lengths;
  FillBolts();
}

}  // namespace orby
