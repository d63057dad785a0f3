// The restart that a run passes to the next one after an error ended it.
#include "qt/start_again.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "gui/gui_bench.h"

namespace orby::test {
namespace {

struct StartAgainTest : testing::Test {
  // Starts a program that writes down the restart that it gets, and returns that.
  std::string ToldBy(const Restart& restart) {
    const QString told = folder.filePath("told");
    const QString script = folder.filePath("program");
    QFile file(script);
    if (!file.open(QIODevice::WriteOnly)) return "no script";
    file.write("#!/bin/sh\nprintf '%s.%s' \"$ORBY_START_AGAIN\" $# > \"" + told.toUtf8() + ".part\"\nmv \"" +
               told.toUtf8() + ".part\" \"" + told.toUtf8() + "\"\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    file.close();
    if (!StartAgain(script, restart)) return "not started";
    if (!QTest::qWaitFor([&] { return QFile::exists(told); })) return "not told";
    QFile answer(told);
    return answer.open(QIODevice::ReadOnly) ? answer.readAll().toStdString() : "not read";
  }

  QTemporaryDir folder;
};

TEST_F(StartAgainTest, PassesTheSlotToTheNextRunWithoutAnArgument) { EXPECT_EQ(ToldBy({3, {}}), "3.0"); }

TEST_F(StartAgainTest, PassesTheBytesOfAFilesPathToTheNextRun) {
  EXPECT_EQ(ToldBy({0, "/designs/\xE9 \"3\".orb"}), "/designs/\xE9 \"3\".orb.0");
}

TEST_F(StartAgainTest, IsNotPassedOnToProgramsThatTheNextRunStarts) {
  qputenv("ORBY_START_AGAIN", "3");

  const auto restart = TakeRestart();

  ASSERT_TRUE(restart.has_value());
  EXPECT_EQ(restart->Slot, 3);
  EXPECT_FALSE(qEnvironmentVariableIsSet("ORBY_START_AGAIN"));
  EXPECT_FALSE(TakeRestart().has_value());
}

TEST_F(StartAgainTest, FailsIfTheProgramIsMissing) { EXPECT_FALSE(StartAgain(folder.filePath("gone"), {3, {}})); }

}  // namespace
}  // namespace orby::test
