// The copy of a setup file that is checked and then started.
#include "qt/private_copy.h"

#include <sys/stat.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include "gui/cache_in_folder.h"
#include "gui/gui_bench.h"
#include "qt/texts.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::EndsWith;
using testing::StartsWith;

struct APrivateCopy : testing::Test {
  APrivateCopy() { folder.Store("ORBY2.exe", published); }

  static std::string SumOf(const std::string& bytes) {
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256).toHex().toStdString();
  }
  std::optional<std::string> Copy() const { return PrivateCopy(folder.At("ORBY2.exe"), SumOf(published)); }
  static mode_t ModeOf(const std::string& path) {
    struct stat facts {};
    stat(path.c_str(), &facts);
    return facts.st_mode & 0777;
  }
  static std::string Read(const std::string& path) {
    QFile file(ToQt(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "unreadable";
  }
  // Returns the existing folders of copies.
  QStringList Kept() const {
    QStringList kept;
    QDir cache(ToQt(folder.At("cache")));
    for (const QString& program : cache.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      kept += QDir(cache.filePath(program)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
    return kept;
  }

  const std::string published = std::string(3'000'000, 's') + "etup";
  TemporaryFolder folder;
  CacheInFolder moved{ToQt(folder.At("cache"))};
};

TEST_F(APrivateCopy, HasTheNameAndTheBytesOfTheFile) {
  const auto copy = Copy();

  ASSERT_TRUE(copy);
  EXPECT_THAT(*copy, StartsWith(folder.At("cache")));
  EXPECT_THAT(*copy, EndsWith("/ORBY2.exe"));
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

TEST_F(APrivateCopy, IsNotAccessibleToOtherUsers) {
  const auto copy = Copy();

  ASSERT_TRUE(copy);
  const std::string own = copy->substr(0, copy->rfind('/'));
  EXPECT_EQ(ModeOf(*copy), 0500U);
  EXPECT_EQ(ModeOf(own), 0700U);
  EXPECT_EQ(ModeOf(own.substr(0, own.rfind('/'))), 0700U);
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

TEST_F(APrivateCopy, FailsForAPipeAFolderOrAMissingFile) {
  ASSERT_EQ(mkfifo(folder.At("pipe").c_str(), 0600), 0);
  const auto errorOf = [](const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(PrivateCopy(path, SumOf("x"))); });
  };

  EXPECT_EQ(errorOf(folder.At("pipe")), 75);
  EXPECT_EQ(errorOf(folder.Path()), 75);
  EXPECT_EQ(errorOf(folder.At("missing.exe")), 75);
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(APrivateCopy, FailsIfNoFolderCanBeCreated) {
  folder.Store("cache", "a file");

  EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(Copy()); }), 75);
}

}  // namespace
}  // namespace orby::test
