#include "base/file_pattern.h"

#include <gmock/gmock.h>

namespace orby::test {
namespace {

TEST(FilePattern, WithoutStarsMatchesOnlyThatName) {
  EXPECT_TRUE(MatchesFilePattern("panel3.ORB", "panel3.ORB"));
  EXPECT_FALSE(MatchesFilePattern("panel33.ORB", "panel3.ORB"));
  EXPECT_FALSE(MatchesFilePattern("panel.ORB", "panel3.ORB"));
}

TEST(FilePattern, IgnoresTheCaseOfLetters) {
  EXPECT_TRUE(MatchesFilePattern("panel3.orb", "*.ORB"));
  EXPECT_TRUE(MatchesFilePattern("PANEL3.ORB", "panel?.orb"));
}

TEST(FilePattern, MatchesAnyCharactersForAStar) {
  EXPECT_TRUE(MatchesFilePattern("panel3.ORB", "p*3.*"));
  EXPECT_TRUE(MatchesFilePattern("p3.ORB", "p*3.*"));
  EXPECT_TRUE(MatchesFilePattern("a.b.txt", "*.txt"));
  EXPECT_TRUE(MatchesFilePattern("aabab", "*ab"));
  EXPECT_TRUE(MatchesFilePattern("readme", "*"));
  EXPECT_TRUE(MatchesFilePattern("readme", "read**me"));
  EXPECT_FALSE(MatchesFilePattern("panel3.ORB.bak", "*.ORB"));
  EXPECT_FALSE(MatchesFilePattern("", "*a"));
}

TEST(FilePattern, MatchesOneCharacterForAQuestionMark) {
  EXPECT_TRUE(MatchesFilePattern("panel3.ORB", "panel?.ORB"));
  EXPECT_TRUE(MatchesFilePattern("pan\u00E9l.ORB", "pan?l.ORB"));
  EXPECT_FALSE(MatchesFilePattern("panel.ORB", "panel?.ORB"));
  EXPECT_FALSE(MatchesFilePattern("panel33.ORB", "panel?.ORB"));
}

TEST(FilePattern, StarPointStarMatchesEveryFile) {
  EXPECT_TRUE(MatchesFilePattern("Makefile", "*.*"));
  EXPECT_TRUE(MatchesFilePattern("panel3.ORB", "*.*"));
}

TEST(FilePattern, ThatIsBlankMatchesEveryFile) {
  EXPECT_TRUE(MatchesFilePattern("Makefile", ""));
  EXPECT_TRUE(MatchesFilePattern("Makefile", "  "));
  EXPECT_TRUE(MatchesFilePattern("Makefile", " ; "));
}

TEST(FilePattern, MatchesIfOneOfSeveralMatches) {
  EXPECT_TRUE(MatchesFilePattern("panel3.ORB", "*.txt;*.ORB"));
  EXPECT_TRUE(MatchesFilePattern("notes.txt", "*.txt; *.ORB;"));
  EXPECT_TRUE(MatchesFilePattern("panel3.ORB", "*.txt; *.ORB "));
  EXPECT_FALSE(MatchesFilePattern("photo.png", "*.txt;*.ORB"));
}

}  // namespace
}  // namespace orby::test
