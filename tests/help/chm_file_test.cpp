// Compiled help files: only an undamaged file opens, and only its existing files are read.
#include "help/chm_file.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "support/temporary_folder.h"

namespace orby::test {
namespace {

const std::string HelpFolder = HELP_DIR;
const std::string CommittedHelp = HelpFolder + "/ORBY.CHM";

std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(HelpFile, DoesNotReadAMissingPageOrAFolder) {
  const auto file = ChmFile::Open(CommittedHelp);
  ASSERT_NE(file, nullptr);

  EXPECT_EQ(file->Read("no-such-page.html"), std::nullopt);
  EXPECT_EQ(file->Read(""), std::nullopt);
  EXPECT_EQ(file->Read(std::string(600, 'x')), std::nullopt);
  EXPECT_EQ(file->Read("pictures"), std::nullopt);
}

class HelpFileOnDisk : public testing::Test {
 protected:
  // Returns true if a file of these bytes opens.
  bool Opens(const std::string& bytes, const std::string& name = "copy.chm") {
    folder.Store(name, bytes);
    return ChmFile::Open(folder.At(name)) != nullptr;
  }

  const TemporaryFolder folder;
  const std::string whole = ReadBytes(CommittedHelp);
};

TEST_F(HelpFileOnDisk, OpensWhenItIsUndamaged) { EXPECT_TRUE(Opens(whole)); }

TEST_F(HelpFileOnDisk, OpensInAFolderWithLettersOfEveryScript) {
  std::filesystem::create_directory(std::filesystem::path(folder.Path()) / u8"S\u00FCd \u0416 \u4E2D");

  EXPECT_TRUE(Opens(whole,
                    "S\xC3\xBC"
                    "d \xD0\x96 \xE4\xB8\xAD/copy.chm"));
}

TEST_F(HelpFileOnDisk, OpensInTwoProgramsAtOnce) {
  const auto first = ChmFile::Open(CommittedHelp);
  const auto second = ChmFile::Open(CommittedHelp);

  EXPECT_NE(first, nullptr);
  EXPECT_NE(second, nullptr);
}

TEST_F(HelpFileOnDisk, DoesNotOpenWhenItIsMissing) {
  EXPECT_EQ(ChmFile::Open(folder.At("none.chm")), nullptr);
  EXPECT_EQ(ChmFile::Open(folder.Path()), nullptr);
}

TEST_F(HelpFileOnDisk, DoesNotOpenWhenItIsCutAnywhere) {
  for (const std::size_t length : {0U, 3U, 95U, 96U, 97U, 4096U, 5000U}) {
    EXPECT_FALSE(Opens(whole.substr(0, length))) << length;
  }
  for (std::size_t part = 1; part < 40; ++part) {
    EXPECT_FALSE(Opens(whole.substr(0, whole.size() * part / 40))) << part;
  }
  EXPECT_FALSE(Opens(whole.substr(0, whole.size() - 1)));
  EXPECT_FALSE(Opens(whole + '\0'));
}

TEST_F(HelpFileOnDisk, DoesNotOpenWithAChangedBit) {
  std::mt19937 random(7);  // NOLINT: the same places in each run
  std::uniform_int_distribution<std::size_t> place(0, whole.size() - 1);
  for (unsigned i = 0; i < 100; ++i) {
    // Half of the changes are in the directory at the start, which a reader uses most.
    const std::size_t at = i % 2 == 0 ? place(random) : place(random) % 5000;
    std::string turned = whole;
    turned[at] = static_cast<char>(static_cast<unsigned char>(turned[at]) ^ (1U << i % 8));
    EXPECT_FALSE(Opens(turned)) << at;
  }
}

TEST_F(HelpFileOnDisk, DoesNotOpenWhenItIsAnotherKindOfFile) {
  EXPECT_FALSE(Opens("ITSF"));
  EXPECT_FALSE(Opens(std::string(5000, 'x')));
  EXPECT_FALSE(Opens(ReadBytes(HelpFolder + "/contents.txt")));
}

TEST(CheckSum, IsTheStandardCrc32) {
  EXPECT_EQ(CheckSum("123456789"), 0xCBF43926U);
  EXPECT_EQ(CheckSum("6789", CheckSum("12345")), 0xCBF43926U);
  EXPECT_EQ(CheckSum(""), 0U);
}

}  // namespace
}  // namespace orby::test
