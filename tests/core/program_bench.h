// A program on a recording platform, for the tests of this folder.
#pragma once

#include <gmock/gmock.h>

#include "core/program.h"
#include "support/recording_platform.h"

namespace orby::test {

struct ProgramBench : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

inline auto IsBox(const std::string& text, BoxStyle style, const std::string& title) {
  using testing::AllOf;
  using testing::Field;
  return AllOf(Field("text", &MessageBox::text, text), Field("style", &MessageBox::style, style),
               Field("title", &MessageBox::title, title));
}

}  // namespace orby::test
