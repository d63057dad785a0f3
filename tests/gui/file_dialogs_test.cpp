// The file dialogs, on a folder of the disk.
#include "qt/file_dialogs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "base/runtime_error.h"
#include "gui/gui_bench.h"
#include "qt/texts.h"

namespace orby::test {
namespace {

using testing::Eq;

class AskingForAFile : public GuiTest {
 protected:
  AskingForAFile() {
    for (const char* name : {"belt.ORB", "design", "notes.txt"}) {
      QFile file(folder.filePath(name));
      if (!file.open(QIODevice::WriteOnly)) throw std::logic_error("no file to ask for");
    }
  }

  FileQuestion Question() const {
    return {"Select a Project",
            "",
            FromQt(folder.path()),
            {{"Orby Roof Support Workbench (*.ORB)", "*.ORB"}, {"All Files (*.*)", "*"}},
            "ORB"};
  }
  FileQuestion QuestionAbove() const {
    FileQuestion question = Question();
    question.folder = FromQt(QFileInfo(folder.path()).path());
    return question;
  }
  // Whether a path leads to a file of the folder. Where names have no case, it may have another one than the file.
  bool IsFile(const std::string& path, const QString& name) const {
    return QFileInfo(ToQt(path)) == QFileInfo(folder.filePath(name));
  }
  std::string PathOf(const QString& name) const { return PathFromQt(folder.filePath(name)); }

  // Types a name and presses Enter.
  void AnswerWith(const std::string& name) {
    scripts.Add([name](QDialog& window) {
      Find<QLineEdit>(window, "fileNameEdit").setFocus();
      Type(name);
      Press(Qt::Key_Return);
    });
  }
  // Types while the completion list has taken the focus from the field for a moment.
  void AnswerWithoutKeyboardAfter(const QString& first, const QString& rest) {
    scripts.Add([first, rest](QDialog& window) {
      auto& name = Find<QLineEdit>(window, "fileNameEdit");
      name.setFocus();
      Type(FromQt(first));
      Find<QComboBox>(window, "fileTypeCombo").setFocus();
      QTest::keyClicks(&name, rest);
      name.setFocus();
      Press(Qt::Key_Return);
      if (window.isVisible()) window.reject();
    });
  }
  // Answers the message box over the dialog and stores its text.
  void AnswerBox(std::string& text, QMessageBox::StandardButton button) {
    scripts.Add([&text, button](QDialog& window) {
      auto& box = dynamic_cast<QMessageBox&>(window);
      text = box.text().toStdString();
      box.button(button)->click();
    });
  }

  QTemporaryDir folder;
  QtFileDialogs dialogs;
};

TEST_F(AskingForAFile, OpensAFileByItsExactName) {
  for (const char* name : {"belt.ORB", "design", "notes.txt"}) {
    AnswerWith(name);

    EXPECT_EQ(dialogs.AskOpenName(Question()), PathOf(name));
  }
}

TEST_F(AskingForAFile, AddsTheExtensionIfNoFileHasTheBareName) {
  AnswerWith("belt");
  EXPECT_TRUE(IsFile(dialogs.AskOpenName(Question()), "belt.ORB"));

  AnswerWith(PathOf("belt"));
  EXPECT_TRUE(IsFile(dialogs.AskOpenName(QuestionAbove()), "belt.ORB"));
}

TEST_F(AskingForAFile, OpensTheBareNameEvenIfAFileWithTheExtensionExists) {
  ASSERT_TRUE(QFile::copy(folder.filePath("belt.ORB"), folder.filePath("design.ORB")));
  AnswerWith("design");

  EXPECT_EQ(dialogs.AskOpenName(Question()), PathOf("design"));
}

TEST_F(AskingForAFile, FindsTheExtensionInLowerCase) {
  ASSERT_TRUE(QFile::rename(folder.filePath("belt.ORB"), folder.filePath("belt.orb")));
  AnswerWith("belt");

  EXPECT_EQ(dialogs.AskOpenName(Question()), PathOf("belt.orb"));
}

TEST_F(AskingForAFile, AddsTheExtensionToANameToSave) {
  AnswerWith("panel3");
  EXPECT_EQ(dialogs.AskSaveName(Question()), PathOf("panel3.ORB"));

  AnswerWith("panel3.txt");
  EXPECT_EQ(dialogs.AskSaveName(Question()), PathOf("panel3.txt"));
}

TEST_F(AskingForAFile, AddsTheExtensionOfTheChosenTypeToANameToSave) {
  FileQuestion question = Question();
  question.filters = {{"Picture (*.png)", "*.png"}, {"Drawing (*.svg)", "*.svg"}, {"All Files (*.*)", "*"}};
  question.defaultExtension = "png";
  // Goes down in the list of types, and types a name if there is one.
  const auto answer = [](int down, const std::string& name) {
    return [down, name](QDialog& window) {
      Find<QComboBox>(window, "fileTypeCombo").setFocus();
      for (int i = 0; i < down; ++i) Press(Qt::Key_Down);
      Find<QLineEdit>(window, "fileNameEdit").setFocus();
      if (!name.empty()) Type(name);
      Press(Qt::Key_Return);
    };
  };

  scripts.Add(answer(1, "curve"));
  EXPECT_EQ(dialogs.AskSaveName(question), PathOf("curve.svg"));
  scripts.Add(answer(2, "curve"));
  EXPECT_EQ(dialogs.AskSaveName(question), PathOf("curve.png"));

  question.fileName = "curve.png";
  scripts.Add(answer(1, ""));
  EXPECT_EQ(dialogs.AskSaveName(question), PathOf("curve.svg"));
}

TEST_F(AskingForAFile, AsksBeforeOverwritingAFileWithTheAddedExtension) {
  std::string question;
  AnswerWith("belt");
  AnswerBox(question, QMessageBox::Yes);

  EXPECT_EQ(dialogs.AskSaveName(Question()), PathOf("belt.ORB"));

  EXPECT_THAT(question, testing::HasSubstr("belt.ORB already exists"));
}

TEST_F(AskingForAFile, OpensOnlyAnExistingFile) {
  std::string remark;
  scripts.Add([&](QDialog& window) {
    AnswerBox(remark, QMessageBox::Ok);
    Find<QLineEdit>(window, "fileNameEdit").setFocus();
    Type("missing.ORB");
    Press(Qt::Key_Return);
    window.reject();
  });

  EXPECT_EQ(ErrorNumberOf([&] { dialogs.AskOpenName(Question()); }), error_number::Cancelled);

  EXPECT_THAT(remark, testing::HasSubstr("missing.ORB"));
}

TEST_F(AskingForAFile, NamesAMissingFileWithItsExtension) {
  std::string remark;
  scripts.Add([&](QDialog& window) {
    AnswerBox(remark, QMessageBox::Ok);
    Find<QLineEdit>(window, "fileNameEdit").setFocus();
    Type("missing");
    Press(Qt::Key_Return);
    window.reject();
  });

  EXPECT_EQ(ErrorNumberOf([&] { dialogs.AskOpenName(Question()); }), error_number::Cancelled);

  EXPECT_THAT(remark, testing::HasSubstr("missing.ORB"));
}

// The changes that the user can make in the dialog.
struct Changes {
  bool deletes = false;
  bool renames = false;
  bool makesFolders = false;
};

Changes ChangesIn(const QDialog& window) {
  const auto enabled = [&](const char* action) { return Find<QAction>(window, action).isEnabled(); };
  const auto& view = Find<QAbstractItemView>(window, "listView");
  const auto file = view.model()->index(0, 0, view.rootIndex());
  return {enabled("qt_delete_action"), view.model()->flags(file).testFlag(Qt::ItemIsEditable),
          Find<QAbstractButton>(window, "newFolderButton").isEnabled()};
}

TEST_F(AskingForAFile, ChangesNothingOnTheDisk) {
  const std::vector<std::function<std::string()>> questions{[&] { return dialogs.AskOpenName(Question()); },
                                                            [&] { return dialogs.AskSaveName(Question()); },
                                                            [&] { return dialogs.AskFolder("Folder", PathOf("")); }};
  for (const auto& ask : questions) {
    Changes possible;
    scripts.Add([&](QDialog& window) {
      EXPECT_TRUE(dynamic_cast<QFileDialog&>(window).testOption(QFileDialog::ReadOnly));
      possible = ChangesIn(window);
      window.reject();
    });

    EXPECT_EQ(ErrorNumberOf(ask), error_number::Cancelled);

    EXPECT_FALSE(possible.deletes);
    EXPECT_FALSE(possible.renames);
    EXPECT_FALSE(possible.makesFolders);
  }
}

TEST_F(AskingForAFile, DeletesNoFileByTheDeleteKey) {
  scripts.Add([&](QDialog& window) {
    auto& view = Find<QAbstractItemView>(window, "listView");
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 0, view.rootIndex()));
    Press(Qt::Key_Delete);
    if (window.isVisible()) window.reject();
  });

  EXPECT_EQ(ErrorNumberOf([&] { dialogs.AskOpenName(Question()); }), error_number::Cancelled);

  EXPECT_TRUE(QFile::exists(folder.filePath("belt.ORB")));
}

TEST_F(AskingForAFile, OpensTheTypedPathIfTheFieldLostTheFocusAfterAFolder) {
  AnswerWithoutKeyboardAfter(folder.path(), "/belt.ORB");

  EXPECT_EQ(dialogs.AskOpenName(QuestionAbove()), PathOf("belt.ORB"));
}

TEST_F(AskingForAFile, ReturnsTheTypedFolderIfTheFieldLostTheFocusAfterItsParent) {
  ASSERT_TRUE(QDir(folder.path()).mkdir("panel"));
  AnswerWithoutKeyboardAfter(folder.path(), "/panel");

  EXPECT_EQ(dialogs.AskFolder("Select a Folder", QuestionAbove().folder), PathOf("panel"));
}

TEST_F(AskingForAFile, ShowsTheTitleTheFolderTheFiltersAndTheSuggestedName) {
  FileQuestion question = Question();
  question.fileName = "offered.ORB";
  scripts.Add([&](QDialog& window) {
    auto& dialog = dynamic_cast<QFileDialog&>(window);
    EXPECT_EQ(dialog.windowTitle(), "Select a Project");
    EXPECT_EQ(dialog.directory().path(), folder.path());
    EXPECT_EQ(dialog.nameFilters().size(), 2);
    EXPECT_TRUE(dialog.selectedNameFilter().startsWith("Orby Roof Support Workbench (*.ORB)"));
    const auto& name = Find<QLineEdit>(window, "fileNameEdit");
    EXPECT_EQ(name.text(), "offered.ORB");
    EXPECT_EQ(name.maxLength(), 300);
    window.reject();
  });

  EXPECT_EQ(ErrorNumberOf([&] { dialogs.AskSaveName(question); }), error_number::Cancelled);
}

}  // namespace
}  // namespace orby::test
