// Sets a formula as it is written by hand: fractions, roots, indices and powers, brackets that are as high as what they
// hold.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "drawings/scene.h"
#include "sheet/expression.h"

namespace orby {

// Returns the width of a text in the unit of its size.
using TextWidth = std::function<double(const std::string& text, const TextStyle& style)>;

// Labels and lines around a base line: x from the left, y downwards from the base line.
struct FormulaBox {
  double Width = 0;
  double Ascent = 0;   // above the base line
  double Descent = 0;  // below it
  std::vector<SceneLabel> Labels;
  std::vector<SceneOutline> Lines;

  double Height() const { return Ascent + Descent; }
};

// Returns the box of a formula. Numbers stand in the places of those symbols for which `numbers` returns a text.
FormulaBox SetFormula(const Expression& formula, double size, const TextWidth& width,
                      const std::function<std::string(std::string_view letter)>& numbers = {});

// Returns the box of a letter with its index: "s_min".
FormulaBox SetSymbol(std::string_view letter, double size, const TextWidth& width);

// Returns the box of a number; "4.2e-07" becomes a power of ten.
FormulaBox SetNumber(const std::string& text, const TextStyle& style, const TextWidth& width);

// Returns the box of a text that ends in a unit, with the exponent of the unit raised: "24.5 kN/m3".
FormulaBox SetUnit(const std::string& text, const TextStyle& style, const TextWidth& width);

// Returns the box of a text, "upright".
FormulaBox SetText(const std::string& text, const TextStyle& style, const TextWidth& width);

// Returns the boxes side by side on one base line.
FormulaBox SideBySide(std::vector<FormulaBox> boxes, double gap = 0);

// Returns the box moved and made smaller or larger, for a place on a page.
FormulaBox Placed(FormulaBox box, const ScenePoint& at, double scale = 1);

}  // namespace orby
