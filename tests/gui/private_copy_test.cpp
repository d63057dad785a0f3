// The copy of a setup file that is checked and then started.
#include <QFileInfo>

#include "gui/private_copy_bench.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::StartsWith;

TEST_F(APrivateCopy, HasTheNameAndTheBytesOfTheFile) {
  const auto copy = Copy();

  ASSERT_TRUE(copy);
  EXPECT_EQ(QFileInfo(ToQt(*copy)).fileName(), "ORBY2.exe");
  EXPECT_THAT(*copy, StartsWith(PathFromQt(CacheInFolder::OfProgram())));
  EXPECT_EQ(Read(*copy), published);
}

TEST_F(APrivateCopy, DoesNotChangeIfTheFileIsReplacedAfterTheCheck) {
  const auto copy = Copy();
  folder.Store("ORBY2.exe", "something else");

  ASSERT_TRUE(copy);
  EXPECT_EQ(Read(*copy), published);
}

TEST_F(APrivateCopy, DoesNotChangeIfTheOpenFileIsWrittenToAfterTheCheck) {
  QFile writer(ToQt(folder.At("ORBY2.exe")));
  ASSERT_TRUE(writer.open(QIODevice::ReadWrite));

  const auto copy = Copy();
  writer.write("something else");
  writer.flush();

  ASSERT_TRUE(copy);
  EXPECT_EQ(Read(*copy), published);
}

TEST_F(APrivateCopy, IsNotMadeOfAFileWithAnotherChecksum) {
  folder.Store("ORBY2.exe", published + "s");

  EXPECT_FALSE(Copy());

  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(APrivateCopy, ReplacesTheEarlierCopy) {
  const auto first = Copy();
  const auto second = Copy();

  ASSERT_TRUE(first && second);
  EXPECT_EQ(Kept().size(), 1);
  EXPECT_EQ(Read(*second), published);
}

TEST_F(APrivateCopy, AcceptsTheChecksumInAnyCase) {
  const std::string sum = QString::fromStdString(SumOf(published)).toUpper().toStdString();

  EXPECT_TRUE(PrivateCopy(folder.At("ORBY2.exe"), sum));
}

TEST_F(APrivateCopy, FailsForAFolderOrAMissingFile) {
  const QStringList before = Kept();
  const auto errorOf = [](const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(PrivateCopy(path, SumOf("x"))); });
  };

  EXPECT_EQ(errorOf(folder.Path()), 75);
  EXPECT_EQ(errorOf(folder.At("missing.exe")), 75);
  EXPECT_EQ(Kept(), before);
}

}  // namespace
}  // namespace orby::test
