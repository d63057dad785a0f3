// The list of number fields with which the desktop test of typing checks that it has reached all of them.
#include <QDir>
#include <algorithm>
#include <set>
#include <sstream>

#include "gui/forms.h"
#include "gui/gui_bench.h"
#include "gui/help_bench.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::ElementsAreArray;

// Fields for input that are no numbers.
const std::set<std::string> Texts{
    "frmPENVParm txtRegion",  // used by the estimator, never visible
    "frmPENVParm txtOption",  // the same
    "frmPENVParm txtSupportTypeSecEntry",
    "frmPENVParm txtSupportTypeSecInter",
    "frmPENVParm cmbSupportTypeSecEntry",
    "frmPENVParm cmbSupportTypeSecInter",
    "frmTULKDesc Text1",  // title and description of the project
    "frmTULKDesc Text2",
    "frmSet Text1",  // extension, folder and viewer of files
    "frmSet Text2",
    "frmSet Text4",
    "frmTextBrow Text2",  // the pattern of the files
    "frmSheet txtFind",   // a text to look for
    "frmSignedReport txtCompany",
    "frmSignedReport txtMine",
    "frmSignedReport txtSection",
    "frmSignedReport txtAuthor",
    "frmSignedReport txtChecker",
    "frmSignedReport txtRevision",
    "frmSignedReport txtRemarks",
    "frmSideBySide txtName",
    "frmHowSure txtFirst",  // numbers that may be blank, and are read only if they are all of their text
    "frmHowSure txtSecond",
    "frmHowSure txtThird",
    "frmHowSure txtFourth",
    "frmHowSure txtLowest",
    "frmHowSure txtHighest",
    "frmHowSure txtValues",
    "frmHowSure txtRank",
    "frmHowSure txtSamples",
    "frmHowSure txtSeed",
    "frmHowSure txtBatch",
    "frmHowSure txtConfidence",
    "frmHowSure txtStopWidth",
    "frmDesigns txtFolder",
    "frmDesigns txtContaining",  // a part of a cell
    "frmWouldHold txtLengths",   // a list of lengths
    "frmGraphOpt Text1",         // titles of a graph, its curves and its axes
    "frmGraphOpt Text2_0",
    "frmGraphOpt Text2_1",
    "frmGraphOpt Text2_2",
    "frmGraphOpt Text2_3",
    "frmGraphOpt Text2_4",
    "frmGraphOpt Text2_5",
    "frmGraphOpt Text2_6",
    "frmGraphOpt Text2_7",
    "frmGraphOpt Text2_8",
    "frmGraphOpt Text2_9",
    "frmGraphOpt Text3_0",
    "frmGraphOpt Text3_1",
    "frmGraphOpt Text3_2",
};

using NumberFields = GuiTest;

TEST_F(NumberFields, AreAllInTheListOfTheTypingTest) {
  std::set<std::string> fields;
  for (const FormMaker& maker : FormMakers) {
    const auto form = maker.make(program);
    for (const Control* control : form->Controls()) {
      const auto* box = dynamic_cast<const TextBox*>(control);
      const auto* combo = dynamic_cast<const Combo*>(control);
      const bool isField = (box != nullptr && box->Kind() != TextKind::Output) ||
                           (combo != nullptr && combo->Kind() == ComboKind::FreeText);
      const std::string name = std::string(maker.name) + " " + std::string(control->Name());
      if (isField && !Texts.contains(name)) fields.insert(name);
    }
  }

  std::set<std::string> listed;
  std::istringstream lines(ReadTestData("number_fields.txt"));
  for (std::string line; std::getline(lines, line);) listed.insert(line);

  EXPECT_THAT(listed, ElementsAreArray(fields));
}

// The sentence is the first line of the field's hint after its caption.
TEST_F(NumberFields, AreAllExplainedByTheFirstSentenceOfTheirHelp) {
  Sentences sentences;
  const QDir pages(ToQt(HelpFolder + "/pages"));
  for (const QString& name : pages.entryList({"*.html"}, QDir::Files)) {
    sentences.merge(FirstSentences(FileBytes(FromQt(pages.filePath(name))).toStdString()));
  }

  std::istringstream lines(ReadTestData("number_fields.txt"));
  for (std::string line; std::getline(lines, line);) {
    std::string topic = line;
    topic[topic.find(' ')] = '.';
    const auto own = sentences.find(topic);
    const auto found = own != sentences.end() ? own : sentences.find(topic.substr(0, topic.find_last_of('_')));
    ASSERT_NE(found, sentences.end()) << topic;
    const std::string& sentence = found->second;
    EXPECT_GE(std::ranges::count(sentence, ' '), 2) << topic << ": " << sentence;
    for (const char* start : {"In ", "Range", "Default", "See ", "The same"}) {
      EXPECT_FALSE(sentence.starts_with(start)) << topic << ": " << sentence;
    }
  }
}

}  // namespace
}  // namespace orby::test
