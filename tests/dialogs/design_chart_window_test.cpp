// The window with a chart over two numbers of the project.
#include "dialogs/design_chart_window.h"

#include <thread>

#include "dialogs/parameters_fixture.h"
#include "engine/designs.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// Depth 400 ft, rating 45, diagonals of 60 ft, four bolts of 6 ft every 4 ft.
struct AFullProject : AParametersDialog {
  AFullProject() {
    program.project.WorkParms = FullDesign();
    program.project.CurrentFile = "/home/user/panel 3.ORB";
  }
};

struct ADesignChart : AFullProject {
  ADesignChart() {
    window.Open();
    window.picChart.SetSheet({760, 460});
  }

  void Choose(std::string_view subject) {
    window.cmbSubject.SetText(std::string(subject));
    AwaitChart();
  }
  void AwaitChart() {
    while (window.lblRead.Caption().starts_with("Computing")) {
      platform.clock.Pass();
      std::this_thread::yield();
    }
  }
  std::string Words() { return window.picChart.Words(); }
  void Press(std::initializer_list<DrawingKey> keys) {
    for (const DrawingKey key : keys) window.picChart.Key(key);
  }
  // The words of the page, which are those of its labels.
  std::string PageWords() const {
    std::string words;
    for (const SceneLabel& label : platform.printer.scenes.at(0).Labels) words += label.Text + '\n';
    return words;
  }

  DesignChartWindow window{program};
};

TEST_F(ADesignChart, OpensOnTheSuggestedPsupOverDepthAndRating) {
  EXPECT_EQ(window.cmbSubject.Text(), "Suggested PSUP");
  EXPECT_EQ(window.cmbJudged.Text(), "Actual PSUP");
  EXPECT_EQ(window.cmbAcross.Text(), "Depth of Cover (ft)");
  EXPECT_EQ(window.txtAcrossLow.Text(), "200");
  EXPECT_EQ(window.txtAcrossHigh.Text(), "600");
  EXPECT_EQ(window.cmbUp.Text(), "CMRR");
  EXPECT_EQ(window.txtUpLow.Text(), "25");
  EXPECT_EQ(window.txtUpHigh.Text(), "65");
}

TEST_F(ADesignChart, ReadsOutTheDesignAtFirst) {
  EXPECT_EQ(window.lblRead.Caption(),
            "This design: Depth of Cover 400 ft, CMRR 45: Suggested PSUP 7.607; Actual PSUP: holds");
}

TEST_F(ADesignChart, TellsItsContourLinesAndTheTurnInWords) {
  EXPECT_THAT(Words(), AllOf(StartsWith("Suggested PSUP"), HasSubstr("Contour lines at "),
                             HasSubstr("Actual PSUP turns"), Not(HasSubstr("blank"))));
}

TEST_F(ADesignChart, SaysSoIfAJudgementHoldsEverywhere) {
  window.txtUpLow.SetText("60");

  EXPECT_THAT(Words(), HasSubstr("Actual PSUP holds everywhere"));
}

TEST_F(ADesignChart, MovesOverThePointsByTheArrowKeys) {
  Press({DrawingKey::Right, DrawingKey::Right, DrawingKey::Down});
  EXPECT_THAT(window.lblRead.Caption(), StartsWith("Depth of Cover 410 ft, CMRR 44.5: Suggested PSUP "));
  EXPECT_THAT(Words(), StartsWith(window.lblRead.Caption())) << "what is read comes first";

  Press({DrawingKey::Left, DrawingKey::Up, DrawingKey::Up});
  EXPECT_THAT(window.lblRead.Caption(), StartsWith("Depth of Cover 405 ft, CMRR 45.5: "));

  Press({DrawingKey::Home});
  EXPECT_THAT(window.lblRead.Caption(), StartsWith("This design: "));
}

TEST_F(ADesignChart, StopsAtItsEdges) {
  for (int i = 0; i < 200; ++i) Press({DrawingKey::Right, DrawingKey::Down});

  EXPECT_THAT(window.lblRead.Caption(), StartsWith("Depth of Cover 600 ft, CMRR 25: "));
}

TEST_F(ADesignChart, ReadsOutThePointUnderThePointer) {
  window.picChart.Point({2, 2});
  EXPECT_THAT(window.lblRead.Caption(), StartsWith("This design: ")) << "outside the chart";

  window.picChart.Point({300, 200});

  EXPECT_THAT(window.lblRead.Caption(), AllOf(StartsWith("Depth of Cover "), HasSubstr(" ft, CMRR ")));
}

// The figures of the field of the dialog, at another depth and rating.
TEST_F(ADesignChart, ReadsWhatTheDesignWouldHave) {
  for (int i = 0; i < 20; ++i) Press({DrawingKey::Right});
  for (int i = 0; i < 10; ++i) Press({DrawingKey::Down});
  const std::string reading = window.lblRead.Caption();
  window.Close();
  program.project.WorkParms.Place.DepthofCover = 500;
  program.project.WorkParms.Place.CMRR = 40;
  DesignChartWindow changed(program);
  changed.Open();

  EXPECT_THAT(reading, StartsWith("Depth of Cover 500 ft, CMRR 40: "));
  EXPECT_EQ(changed.lblRead.Caption(), "This design: " + reading);
}

TEST_F(ADesignChart, TakesARangeAroundAnotherNumber) {
  window.cmbAcross.SetText("Roof Bolt Length (ft)");

  EXPECT_EQ(window.txtAcrossLow.Text(), "3");
  EXPECT_EQ(window.txtAcrossHigh.Text(), "9");
  EXPECT_THAT(window.lblRead.Caption(), StartsWith("This design: Roof Bolt Length 6 ft, CMRR 45: "));
}

struct Fault {
  std::string What;
  std::function<void(DesignChartWindow&)> Type;
  std::string Text;
};

TEST_F(ADesignChart, SaysWhatIsWrongWithTheFields) {
  const Fault faults[] = {
      {"no number", [](auto& w) { w.txtAcrossLow.SetText("2oo"); }, "Depth of Cover: \"2oo\" is not a number."},
      {"blank", [](auto& w) { w.txtUpHigh.SetText(""); }, "CMRR: \"\" is not a number."},
      {"too great", [](auto& w) { w.txtUpHigh.SetText("1e99"); }, "CMRR: \"1e99\" is not a number."},
      {"ends", [](auto& w) { w.txtAcrossLow.SetText("600"); },
       "Depth of Cover: the first number must be below the second one."},
      {"negative", [](auto& w) { w.txtAcrossLow.SetText("-5"); }, "Depth of Cover: a number below 0 makes no sense."},
      {"twice", [](auto& w) { w.cmbUp.SetText("Depth of Cover (ft)"); }, "Choose different numbers for both sides."},
      {"points", [](auto& w) { w.txtPoints.SetText("1"); },
       "The points along each side are a whole number from 2 to 200."},
      {"many points", [](auto& w) { w.txtPoints.SetText("201"); },
       "The points along each side are a whole number from 2 to 200."},
  };
  for (const Fault& fault : faults) {
    DesignChartWindow other(program);
    other.Open();
    other.picChart.SetSheet({760, 460});

    fault.Type(other);

    EXPECT_EQ(other.lblRead.Caption(), fault.Text) << fault.What;
    EXPECT_EQ(other.picChart.Words(), fault.Text) << fault.What;
    EXPECT_FALSE(other.cmdPrint.Enabled()) << fault.What;
    other.Close();
  }
}

TEST_F(ADesignChart, ComesBackWhenTheFieldsMakeSenseAgain) {
  window.txtAcrossLow.SetText("x");
  window.txtAcrossLow.SetText("100");

  EXPECT_THAT(window.lblRead.Caption(), StartsWith("This design: "));
  EXPECT_TRUE(window.cmdPrint.Enabled());
}

TEST_F(ADesignChart, OffersTheNumbersOfTheSupportsInUse) {
  std::vector<std::string> names;
  for (const ComboItem& item : window.cmbSubject.Items()) names.push_back(item.text);

  EXPECT_THAT(names, AllOf(Contains("Actual PSUP"), Contains("Greatest Roof Bolt Row Spacing that holds"),
                           Contains("Least Number of Roof Bolts per Row that holds"),
                           Contains("Least Roof Bolt Length that holds")));
}

// The design has a PSUP of 9.940 at 4 ft, and 7.607 are suggested: 5.227 ft would do.
TEST_F(ADesignChart, FindsTheGreatestSpacingThatCanBeBuilt) {
  Choose("Greatest Roof Bolt Row Spacing that holds");

  EXPECT_EQ(window.lblRead.Caption(),
            "This design: Depth of Cover 400 ft, CMRR 45: greatest Roof Bolt Row Spacing 5.2 ft");
  EXPECT_FALSE(window.cmbJudged.Enabled());
  EXPECT_THAT(Words(), AllOf(HasSubstr("4 ft, as in this design"),
                             HasSubstr("blank: no Roof Bolt Row Spacing from 1 to 20 ft holds")));
}

TEST_F(ADesignChart, FindsTheLeastNumberOfBolts) {
  Choose("Least Number of Roof Bolts per Row that holds");

  EXPECT_EQ(window.lblRead.Caption(),
            "This design: Depth of Cover 400 ft, CMRR 45: least Number of Roof Bolts per Row 4");
}

TEST_F(ADesignChart, SaysWhatFallsShortWhereNoNumberHolds) {
  window.txtUpLow.SetText("30");
  Choose("Greatest Roof Bolt Row Spacing that holds");
  for (int i = 0; i < 100; ++i) Press({DrawingKey::Down});

  EXPECT_THAT(window.lblRead.Caption(),
              AllOf(StartsWith("Depth of Cover 400 ft, CMRR 30: no Roof Bolt Row Spacing from 1 to 20 ft holds: "),
                    EndsWith(" short")));
}

TEST_F(ADesignChart, NamesOnlyWhatFallsShortAtTheSafeEndOfTheNumber) {
  window.Close();
  program.project.WorkParms.Primary.Length = 2;
  DesignChartWindow next(program);
  next.Open();
  next.cmbSubject.SetText("Greatest Roof Bolt Row Spacing that holds");
  while (next.lblRead.Caption().starts_with("Computing")) platform.clock.Pass();

  EXPECT_THAT(std::string(next.lblRead.Caption()), EndsWith(" holds: Bolt length short"));
}

TEST_F(ADesignChart, DoesNotVaryTheNumberItLooksFor) {
  window.cmbAcross.SetText("Roof Bolt Row Spacing (ft)");

  window.cmbSubject.SetText("Greatest Roof Bolt Row Spacing that holds");

  EXPECT_EQ(window.lblRead.Caption(),
            "Roof Bolt Row Spacing is what the chart looks for. Choose another number for that side.");
}

TEST_F(ADesignChart, EndsTheComputationOfOutdatedFields) {
  window.txtPoints.SetText("200");
  window.cmbSubject.SetText("Greatest Roof Bolt Row Spacing that holds");
  EXPECT_THAT(window.lblRead.Caption(), AllOf(StartsWith("Computing: "), EndsWith(" %")));
  EXPECT_FALSE(window.cmdPrint.Enabled());

  window.txtPoints.SetText("10");
  AwaitChart();

  EXPECT_THAT(window.lblRead.Caption(), StartsWith("This design: "));
  EXPECT_TRUE(window.cmdPrint.Enabled());
}

TEST_F(ADesignChart, MayBeClosedWhileItComputes) {
  window.txtPoints.SetText("200");
  window.cmbSubject.SetText("Greatest Roof Bolt Row Spacing that holds");

  window.Close();
  platform.clock.Pass();

  EXPECT_THAT(window.lblRead.Caption(), StartsWith("Computing: "));
}

TEST_F(ADesignChart, IsSavedAsAPicture) {
  platform.fileDialogs.answers = {"/home/user/chart.png", "/home/user/chart.svg", "/home/user/chart.pdf"};
  for (int i = 0; i < 3; ++i) window.cmdSavePicture.Press();

  EXPECT_EQ(platform.files.files["/home/user/chart.png"], "PNG");
  EXPECT_THAT(platform.files.files["/home/user/chart.svg"], AllOf(StartsWith("<"), HasSubstr(">Depth of Cover (ft)<")));
  EXPECT_THAT(platform.files.files["/home/user/chart.pdf"], HasSubstr("Design chart"));
}

TEST_F(ADesignChart, IsPrintedOnAPageInLandscapeWithATitleBlock) {
  program.session.signedReport.Titles = {"Brannock Coal", "Cinder Hollow", "3 East", "M. Delacroix", "T. Okonjo", "B"};
  window.cmdPrint.Press();

  ASSERT_THAT(platform.printer.scenes, SizeIs(1));
  EXPECT_EQ(platform.printer.scenes[0].Width, 842);
  EXPECT_EQ(platform.printer.scenes[0].Height, 595);
  for (const char* part : {"Suggested PSUP\n", "Brannock Coal\n", "Cinder Hollow\n", "3 East\n", "M. Delacroix\n",
                           "T. Okonjo\n", "B\n", "Roof Bolt Row Spacing (ft)\n", "this design\n"}) {
    EXPECT_THAT(PageWords(), HasSubstr(part));
  }
}

TEST_F(ADesignChart, LeavesOutOfItsTableWhatVaries) {
  window.cmdPrint.Press();

  const std::vector<SceneLabel>& labels = platform.printer.scenes.at(0).Labels;
  EXPECT_EQ(std::ranges::count(labels, "Depth of Cover (ft)", &SceneLabel::Text), 1) << "only on the axis";
  EXPECT_EQ(std::ranges::count(labels, "Unit Weight of Rock (pcf)", &SceneLabel::Text), 1);
}

TEST_F(ADesignChart, HasItsPageOnTheChosenPaper) {
  window.optPaper.SetValue(1, true);
  platform.fileDialogs.answers = {"/home/user/page.pdf"};

  window.cmdSavePage.Press();

  EXPECT_EQ(platform.pictures.scenes.at(0).Width, 792);
  EXPECT_EQ(platform.pictures.scenes.at(0).Height, 612);
  EXPECT_THAT(platform.files.files["/home/user/page.pdf"], HasSubstr("Suggested PSUP"));
}

TEST_F(ADesignChart, SaysThatNothingIsAnalysed) {
  window.Close();
  Design& design = program.project.WorkParms;
  design.Primary.Analysed = design.Entries.Analysed = design.Intersections.Analysed = 0;
  DesignChartWindow next(program);
  next.Open();

  EXPECT_EQ(next.lblRead.Caption(), "The project analyses no support.");
  EXPECT_FALSE(next.cmdSavePicture.Enabled());
  next.picChart.Key(DrawingKey::Up);
  next.picChart.Point({200, 200});
  EXPECT_EQ(next.lblRead.Caption(), "The project analyses no support.");
}

TEST_F(ADesignChart, ChangesNothingOfTheProject) {
  const Design before = program.project.WorkParms;

  Choose("Greatest Roof Bolt Row Spacing that holds");
  Press({DrawingKey::Right});
  window.Close();

  EXPECT_EQ(program.project.WorkParms, before);
}

// ---- numbers that hold ---------------------------------------------------------------------------------------------

// Compares with a search through all values that can be built, at points all over the chart.
TEST(NumbersThatHold, AreThoseOfASearchThroughAllThatCanBeBuilt) {
  const Catalogs lists = BuiltInLists();
  const Design design = FullDesign();
  const std::vector<ChartSubject> subjects = ChartSubjects(design, lists, BuiltInPrices()[0]);
  const std::vector<const DesignNumber*> numbers = NumbersInUse(design);
  const auto numberOf = [&](std::string_view label) {
    return *std::ranges::find(numbers, label, &DesignNumber::Label);
  };
  int compared = 0;
  int found = 0;
  for (const ChartSubject& subject : subjects) {
    if (subject.Figure != nullptr) continue;
    ChartRequest request{.Subject = subject,
                         .Judged = {},
                         .Across = {numberOf("Depth of Cover"), 200, 1200},
                         .Up = {numberOf("Sum of Intersection Diagonals"), 50, 90},
                         .Points = 2};
    if (subject.Number->Place == "entries") request.Up = {numberOf("Rock Load Height"), 2, 12};
    if (subject.Number->Place == "intersections") request.Across = {numberOf("Unit Weight of Rock"), 100, 200};
    for (int i = 0; i < 6; ++i) {
      const Single across =
          request.Across.From + (request.Across.To - request.Across.From) * static_cast<Single>(i) / 5;
      const Single up = request.Up.From + (request.Up.To - request.Up.From) * static_cast<Single>(i * 2 % 5) / 4;
      VariedDesign varied(design, lists);
      varied.Set(request.Across.Number->Field, across);
      varied.Set(request.Up.Number->Field, up);
      std::vector<Single> holding;
      for (const Single value : subject.Built) {
        varied.Set(subject.Number->Field, value);
        varied.Refresh();
        const bool holds = std::ranges::all_of(subject.Judged, [&](const StudiedVerdict& judged) {
          return LetsChosenHold(judged, varied.ResultOf(judged));
        });
        if (holds) holding.push_back(value);
      }
      const std::string reading = ReadingAt(design, lists, request, across, up);
      ++compared;
      if (holding.empty()) {
        EXPECT_THAT(reading, HasSubstr(" holds: ")) << subject.Name;
        continue;
      }
      ++found;
      const Single expected = subject.Chosen->IsGreatest ? holding.back() : holding.front();
      const std::string value = " " + NameOf(*subject.Number) + " " + NumberText(expected);
      EXPECT_THAT(reading + " ", HasSubstr(value + " ")) << subject.Name;
    }
  }
  EXPECT_GT(compared, 60);
  EXPECT_GT(found, 20);
}

}  // namespace
}  // namespace orby::test
