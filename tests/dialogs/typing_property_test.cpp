// Whatever is typed, pasted or stored, no field ends the run.
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "base/number_text.h"
#include "design/field.h"
#include "dialogs/cost_dialog.h"
#include "parameters_fixture.h"
#include "support/number_texts.h"

namespace orby::test {
namespace {

bool IsFigureOrDash(const std::string& text) {
  return text == "--" || text == "---" || text.empty() || LooseNumber(text).has_value();
}

// Sets each field in tab order, and also presses each character as a key.
void TypeEverywhere(Form& form) {
  for (Control* control : form.Controls()) {
    const std::string text = *FieldTexts();
    if (auto* box = dynamic_cast<TextBox*>(control); box != nullptr && box->Kind() != TextKind::Output) {
      box->SetText(text);
      for (const char key : text) box->KeyPress(static_cast<unsigned char>(key));
    } else if (auto* combo = dynamic_cast<Combo*>(control)) {
      combo->SetText(text);
    }
  }
}

struct NewRun {
  explicit NewRun(UnitSystem units) {
    SetBuiltInCatalogs(program.session.catalogs);
    program.session.settings.UnitsDefault = units;
    FileNew(program, Keeping::Nothing);
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

RC_GTEST_PROP(TypingProperty, ShowsAFigureOrADashInTheParametersWhateverIsTyped, ()) {
  NewRun run(*rc::gen::elementOf(std::vector{English, Metric}));
  ParametersDialog dialog(run.program);
  dialog.Open();
  Edit(dialog, AllSystems);
  for (OptionArray* options : {&dialog.PrimaryBoltControls.Options, &dialog.PrimaryBoltControls.DiameterMode,
                               &dialog.EntryBoltControls.Options, &dialog.InterCableControls.CapMode,
                               &dialog.InterCableControls.Capacity, &dialog.InterBoltControls.Options}) {
    options->SetValue(*rc::gen::inRange(0, 2), true);
  }

  TypeEverywhere(dialog);
  dialog.ShowEntries();
  dialog.ShowIntersections();
  dialog.Command2.Press();

  for (const Control* control : dialog.Controls()) {
    const auto* box = dynamic_cast<const TextBox*>(control);
    if (box != nullptr && box->Kind() == TextKind::Output && box != &dialog.txtMessage) {
      RC_ASSERT(IsFigureOrDash(box->Text()));
    }
  }
}

RC_GTEST_PROP(TypingProperty, ShowsAFigureOrADashInTheCostsWhateverIsTyped, ()) {
  NewRun run(English);
  CostDialog dialog(run.program);
  dialog.Open();

  TypeEverywhere(dialog);

  RC_ASSERT(IsFigureOrDash(dialog.txtAdvanceShiftCalc.Text()));
  RC_ASSERT(IsFigureOrDash(dialog.txtCleanProductionCalc.Text()));
  dialog.Command2.Press();
}

RC_GTEST_PROP(TypingProperty, KeepsTheLastNumberThatADesignCanHold, ()) {
  NewRun run(English);
  ParametersDialog dialog(run.program);
  dialog.Open();
  Design kept = run.program.project.WorkParms;
  int last = 400;

  for (int i = 0; i < 10; ++i) {
    if (*rc::gen::arbitrary<bool>()) {
      last = *rc::gen::inRange(-20, 5000);
      dialog.txtDepthofCover.SetText(std::to_string(last));
    } else {
      dialog.txtDepthofCover.SetText(*rc::gen::element<std::string>("1E39", "-1E39", "1E400", "9E999 ft"));
    }
    dialog.ReadEdits(kept);

    RC_ASSERT(kept.Place.DepthofCover == static_cast<Single>(last));
  }
}

RC_GTEST_PROP(StoredDesignProperty, OpensWithWhateverNumbers, ()) {
  NewRun run(*rc::gen::elementOf(std::vector{English, Metric}));
  Design& design = run.program.project.WorkParms;
  const auto stored =
      rc::gen::oneOf(rc::gen::element<Single>(0, -1, 20, 3.4E38F, -3.4E38F, 1E-38F),
                     rc::gen::map(rc::gen::inRange(-100, 2000), [](int n) { return static_cast<Single>(n) / 10; }));
  const std::vector<SingleField> fields{[](auto& d) { return &d.Place.DepthofCover; },
                                        [](auto& d) { return &d.Place.UnitWeight; },
                                        [](auto& d) { return &d.Place.ActualSpanDiagonals; },
                                        [](auto& d) { return &d.Place.EntryWidth; },
                                        [](auto& d) { return &d.Primary.StabilityFactor; },
                                        [](auto& d) { return &d.Primary.Length; },
                                        [](auto& d) { return &d.Primary.BoltsperRow; },
                                        [](auto& d) { return &d.Primary.RowSpacing; },
                                        [](auto& d) { return &d.Entries.RockLoadHeight; },
                                        [](auto& d) { return &d.Entries.RockFallAngle; },
                                        [](auto& d) { return &d.Entries.Truss.Spacing; },
                                        [](auto& d) { return &d.Entries.Bolt.RowSpacing; },
                                        [](auto& d) { return &d.Entries.Bolt.BoltsperRow; },
                                        [](auto& d) { return &d.Entries.Standing.RowSpacing; },
                                        [](auto& d) { return &d.Entries.Cable.RowSpacing; },
                                        [](auto& d) { return &d.Intersections.RockLoadHeight; },
                                        [](auto& d) { return &d.Intersections.RockFallAngle; },
                                        [](auto& d) { return &d.Intersections.RockFallAngleXcut; },
                                        [](auto& d) { return &d.Intersections.Cable.Number; },
                                        [](auto& d) { return &d.Intersections.Truss.Number; },
                                        [](auto& d) { return &d.Entries.Cable.Diam; }};
  for (const auto field : fields) {
    field.In(design) = *stored;
  }
  const std::vector<IntegerField> uses{
      [](auto& d) { return &d.Entries.Truss.Use; },      [](auto& d) { return &d.Entries.Bolt.Use; },
      [](auto& d) { return &d.Entries.Standing.Use; },   [](auto& d) { return &d.Intersections.Truss.Use; },
      [](auto& d) { return &d.Intersections.Bolt.Use; }, [](auto& d) { return &d.Intersections.Standing.Use; }};
  for (const auto use : uses) {
    use.Set(design, 1);
  }
  design.Place.CMRR = *rc::gen::arbitrary<Integer>();
  ParametersDialog dialog(run.program);

  dialog.Open();

  RC_ASSERT(IsFigureOrDash(dialog.txtSugPSUP.Text()));
  RC_ASSERT(dialog.SaveWorkParms() || !run.platform.boxes.shown.empty());
}

}  // namespace
}  // namespace orby::test
