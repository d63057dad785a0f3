#include "base/markup_text.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

TEST(EscapedText, HasNoMarkup) {
  EXPECT_EQ(EscapedMarkup("<b title=\"A&B's\">"), "&lt;b title=&quot;A&amp;B&#39;s&quot;&gt;");
}

TEST(EscapedText, HasBlanksForControlCharacters) {
  EXPECT_EQ(EscapedMarkup("one\ttwo\nthree\x1F"
                          "four\x7F"),
            "one two three four ");
}

TEST(EscapedText, KeepsLettersBeyondAscii) { EXPECT_EQ(EscapedMarkup("Grube Lüderich, 35°"), "Grube Lüderich, 35°"); }

TEST(EscapedText, IsAppended) {
  std::string markup = "<td>";

  AppendEscapedMarkup(markup, "Depth > 300");

  EXPECT_EQ(markup, "<td>Depth &gt; 300");
}

}  // namespace
}  // namespace orby::test
