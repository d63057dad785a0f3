#include "base/sha256.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

// The examples of the standard.
TEST(Sha256Sum, IsThatOfTheStandardsExamples) {
  EXPECT_EQ(Sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(Sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(Sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(Sha256(std::string(1'000'000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

// The end mark and the length need a block of their own from 56 bytes on.
TEST(Sha256Sum, ChangesWithEachByteAroundTheEndOfABlock) {
  std::string before;
  for (std::size_t length = 50; length < 70; ++length) {
    const std::string sum = Sha256(std::string(length, 'x'));
    EXPECT_EQ(sum.size(), 64U);
    EXPECT_NE(sum, before);
    before = sum;
  }
}

}  // namespace
}  // namespace orby::test
