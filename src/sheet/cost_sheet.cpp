// The cost of bolting.
#include <array>

#include "engine/cost.h"
#include "sheet/sheet_parts.h"

namespace orby {
namespace {

constexpr std::array<std::string_view, CostHeads> HeadNames{"Consumables", "Operating labor", "Maintenance",
                                                            "Transportation", "Machine ownership"};
constexpr std::size_t AdvanceColumn = 1;
constexpr std::size_t ColumnCount = std::tuple_size_v<CostRow>;
constexpr std::array<std::string_view, ColumnCount> ColumnNames{"Cost of a bolt", "Cost of the advance",
                                                                "Cost of a shift", "Cost of a ton"};

class CostSheet {
 public:
  CostSheet(DesignSheet& sheet, const CostInputs& inputs)
      : writer_(sheet, "cost", "Cost of bolting"),
        in_(inputs),
        table_(Attempt([&] { return AnalyseCost(inputs); })),
        bolts_(InputNumber(inputs.NboltsShift)),
        perRow_(InputNumber(inputs.NBoltsRow)),
        spacing_(InputNumber(inputs.RowSpacing)) {}

  void Write() {
    shiftsPerYear_ =
        writer_.Step(Law::ShiftsPerYear, "Shifts per year", {InputNumber(in_.ShiftsWeek), InputNumber(in_.WeeksYear)});
    Production();
    CostPerBolt();
    for (std::size_t head = 0; head < CostHeads; ++head) Columns(head);
    Totals();
    if (table_.IsThere()) AddTable();
  }

 private:
  static constexpr SheetNumber Nothing() { return {0, "0"}; }

  void Production() {
    SheetNumber calculated = Nothing();
    if (in_.RowSpacing > 0) {
      const SheetNumber advance = writer_.Step(Law::Advance, "Advance of a shift", {perRow_, spacing_, bolts_});
      calculated = writer_.Step(Law::CleanProduction, "Clean coal of a shift", {advance, InputNumber(in_.AdvanceRate)});
    }
    production_ = in_.Production == 1 ? calculated : InputNumber(in_.CleanProduction);
    if (in_.Production != 1) writer_.Remark("The production that was typed is used, not the one by the advance.");
  }

  void CostPerBolt() {
    bolt_.fill(Nothing());
    if (in_.NBoltsRow <= 0 || in_.NboltsShift <= 0) {
      return writer_.Remark("Without bolts in a row and in a shift all costs are 0.");
    }
    const SheetNumber labor = InputNumber(in_.TotalLabor);
    bolt_[0] =
        Head(0, Law::Consumables,
             {InputNumber(in_.BoltCost), InputNumber(in_.PlateCost), InputNumber(in_.ResinCost),
              InputNumber(in_.HeaderCost), InputNumber(in_.BitCost), bolts_, InputNumber(in_.StrapCost), perRow_});
    bolt_[1] = Head(1, Law::OperatingLabor, {labor, InputNumber(in_.NOperShift), InputNumber(in_.HoursShift), bolts_});
    if (shiftsPerYear_.Value > 0) {
      bolt_[2] = Head(2, Law::Maintenance,
                      {labor, InputNumber(in_.MaintainHrs), InputNumber(in_.WeeksYear), InputNumber(in_.MaintainCost),
                       shiftsPerYear_, bolts_});
    }
    bolt_[3] = Head(3, Law::Transportation, {InputNumber(in_.TranspCost), bolts_});
    if (shiftsPerYear_.Value > 0 && in_.YearsDepr > 0) {
      bolt_[4] =
          Head(4, Law::Ownership, {InputNumber(in_.CapitalCost), InputNumber(in_.YearsDepr), shiftsPerYear_, bolts_});
    }
  }

  SheetNumber Head(std::size_t head, Law law, const std::vector<SheetNumber>& numbers) {
    return Cell(head, 0, law, numbers);
  }

  SheetNumber Cell(std::size_t head, std::size_t column, Law law, const std::vector<SheetNumber>& numbers) {
    SheetNumber cost =
        writer_.Step(law, std::string(ColumnNames[column]) + ": " + std::string(HeadNames[head]), numbers);
    if (table_.IsThere()) Show(table_.Value().Heads[head][column], column);
    return cost;
  }

  void Show(Single cost, std::size_t column) {
    writer_.Figure(cost);
    writer_.ShowAs("cost table", FormatNumber(cost, "0.00"),
                   column == AdvanceColumn ? SheetUnit::DollarsPerLength : SheetUnit::Dollars);
  }

  void Columns(std::size_t head) {
    std::array<SheetNumber, ColumnCount>& row = cells_[head];
    row.fill(Nothing());
    row[0] = bolt_[head];
    if (row[0].Value == 0) return;
    if (in_.RowSpacing > 0) row[1] = Cell(head, 1, Law::CostPerAdvance, {perRow_, row[0], spacing_});
    row[2] = Cell(head, 2, Law::CostPerShift, {bolts_, row[0]});
    if (production_.Value > 0) row[3] = Cell(head, 3, Law::CostPerTon, {row[2], production_});
  }

  void Totals() {
    for (std::size_t column = 0; column < ColumnCount; ++column) {
      std::vector<SheetNumber> heads;
      for (const auto& row : cells_) heads.push_back(row[column]);
      writer_.Step(Law::TotalCost, std::string(ColumnNames[column]) + ": Total", heads);
      if (table_.IsThere()) Show(table_.Value().Totals[column], column);
    }
  }

  void AddTable() {
    SheetTable table;
    const std::string length(UnitText(SheetUnit::Length, writer_.Units()));
    table.Heads = {"Cost", "$/bolt", "$/" + length, "$/shift", "$/ton"};
    const auto add = [&](std::string_view name, const CostRow& costs) {
      std::vector<std::string> row{std::string(name)};
      for (const Single cost : costs) row.push_back(FormatNumber(cost, "0.00"));
      table.Rows.push_back(std::move(row));
    };
    for (std::size_t head = 0; head < CostHeads; ++head) add(HeadNames[head], table_.Value().Heads[head]);
    add("Total", table_.Value().Totals);
    table.LastIsTotal = true;
    writer_.Table(std::move(table));
  }

  SheetWriter writer_;
  const CostInputs& in_;
  Computed<CostTable> table_;
  SheetNumber bolts_;
  SheetNumber perRow_;
  SheetNumber spacing_;
  SheetNumber shiftsPerYear_;
  SheetNumber production_;
  std::array<SheetNumber, CostHeads> bolt_;
  std::array<std::array<SheetNumber, ColumnCount>, CostHeads> cells_;
};

}  // namespace

void AddCost(DesignSheet& sheet, const SheetContext& context) { CostSheet(sheet, context.Designs.Shown.Cost).Write(); }

}  // namespace orby
