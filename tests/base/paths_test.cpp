#include "base/paths.h"

#include <gtest/gtest.h>

#include <string_view>

namespace orby {
namespace {

TEST(Paths, BothSeparatorsEndAFolder) {
  EXPECT_TRUE(EndsInSeparator("/home/mine/"));
  EXPECT_TRUE(EndsInSeparator("C:\\Mine\\"));
  EXPECT_FALSE(EndsInSeparator("/home/mine"));
  EXPECT_FALSE(EndsInSeparator(""));
}

TEST(Paths, ASeparatorIsAddedOnlyToAPathWithoutOne) {
  EXPECT_EQ(WithSeparator("/home/mine"), "/home/mine/");
  EXPECT_EQ(WithSeparator("/home/mine/"), "/home/mine/");
  EXPECT_EQ(WithSeparator("C:\\Mine\\"), "C:\\Mine\\");
}

TEST(Paths, TheAddedSeparatorIsTheOneThatThePathUses) {
  EXPECT_EQ(WithSeparator("C:\\Mine"), "C:\\Mine\\");
  EXPECT_EQ(WithSeparator("C:/Mine"), "C:/Mine/");
  EXPECT_EQ(WithSeparator("C:"), "C:\\");
  EXPECT_EQ(WithSeparator("\\\\server\\plans"), "\\\\server\\plans\\");
  EXPECT_EQ(WithSeparator("Mine"), "Mine/");
}

TEST(Paths, TheTopOfADiskIsARoot) {
  for (const char* root : {"/", "C:", "C:\\", "z:/"}) EXPECT_TRUE(IsRoot(root)) << root;
  for (const char* other : {"", "/home", "C:\\Mine", "ab"}) EXPECT_FALSE(IsRoot(other)) << other;
}

TEST(Paths, StepsUpLeadOutOfTheFolderBeforeThem) {
  EXPECT_EQ(WithoutStepsUp("/home/mine/MyStrataDesk/ORBY/../../Downloads/"), "/home/mine/Downloads/");
  EXPECT_EQ(WithoutStepsUp("C:\\Mine\\Orby\\../../Downloads/"), "C:\\Downloads/");
  EXPECT_EQ(WithoutStepsUp("a/.."), "");
  EXPECT_EQ(WithoutStepsUp("../../a"), "../../a");
  EXPECT_EQ(WithoutStepsUp("/../a"), "/../a");
  EXPECT_EQ(WithoutStepsUp("C:\\..\\a"), "C:\\..\\a");
  EXPECT_EQ(WithoutStepsUp("/home/a..b/..c"), "/home/a..b/..c");
}

TEST(Paths, OneTrailingSeparatorIsRemoved) {
  EXPECT_EQ(WithoutSeparator("/home/mine/"), "/home/mine");
  EXPECT_EQ(WithoutSeparator("C:\\Mine\\"), "C:\\Mine");
  EXPECT_EQ(WithoutSeparator("/home/mine"), "/home/mine");
  EXPECT_EQ(WithoutSeparator(""), "");
}

TEST(Paths, TheNameFollowsTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(NameAfterSeparator("/home/mine/North.ORB"), "North.ORB");
  EXPECT_EQ(NameAfterSeparator("C:\\Mine\\North.ORB"), "North.ORB");
  EXPECT_EQ(NameAfterSeparator("/home\\mine/a\\North.ORB"), "North.ORB");
  EXPECT_EQ(NameAfterSeparator("North.ORB"), "North.ORB");
  EXPECT_EQ(NameAfterSeparator("/home/mine/"), "");
  EXPECT_EQ(NameAfterSeparator(""), "");
}

TEST(Paths, TheExtensionStartsAtTheFirstPoint) {
  EXPECT_EQ(WithoutExtension("North.ORB"), "North");
  EXPECT_EQ(WithoutExtension("North.old.ORB"), "North");
  EXPECT_EQ(WithoutExtension("North"), "North");
  EXPECT_EQ(WithoutExtension(""), "");
}

TEST(Paths, AnInitialPointStartsNoExtension) { EXPECT_EQ(WithoutExtension(".hidden.ORB"), ".hidden.ORB"); }

TEST(ShortenedPath, FiftyCharactersAreShownWhole) {
  constexpr std::string_view path = "/home/mine/Projects/North Section/Belt Entry 4.ORB";
  ASSERT_EQ(path.size(), 50U);

  EXPECT_EQ(ShortenedPath(path), path);
}

TEST(ShortenedPath, FiftyOneCharactersAreShownAsFifty) {
  constexpr std::string_view path = "/home/mine/Projects/North Section/Belt Entry 14.ORB";
  ASSERT_EQ(path.size(), 51U);

  EXPECT_EQ(ShortenedPath(path), "/home/mine...jects/North Section/Belt Entry 14.ORB");
}

TEST(ShortenedPath, CountsCharactersNotBytes) {
  const std::string_view fifty = "/home/Süd/Projekte/Fördersohle Ö/Strecke Nr. 4.ORB";
  ASSERT_EQ(fifty.size(), 53U);

  EXPECT_EQ(ShortenedPath(fifty), fifty);
  EXPECT_EQ(ShortenedPath("/home/Süd/Projekte/Fördersohle Öst/Strecke Nr. 04.ORB"),
            "/home/Süd/...te/Fördersohle Öst/Strecke Nr. 04.ORB");
}

}  // namespace
}  // namespace orby
