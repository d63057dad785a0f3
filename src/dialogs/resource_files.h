// The window of the documents that come with the program.
#pragma once

#include <array>
#include <string_view>

#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

struct Resource {
  std::string_view file;  // in the resource folder
  std::string_view title;
};

inline constexpr std::string_view ResourceFolder = "resources/";  // in the program's folder

inline constexpr std::array<Resource, 8> Resources{{
    {"bolt-design.pdf", "Designing a Roof Bolt Pattern"},
    {"pull-tests.pdf", "Pull Tests on Roof Bolts"},
    {"roof-screening.pdf", "Screening Coal Mine Roof"},
    {"bolting-history.pdf", "How Roof Bolting Developed"},
    {"weak-ground.pdf", "Working under Weak Roof"},
    {"intersections.pdf", "Supporting Intersections"},
    {"standing-supports.pdf", "Standing Supports"},
    {"reading-curves.pdf", "Reading the Curves"},
}};

class ResourceFiles : public ProgramForm {
 public:
  // By resource. The form replaces these captions with the titles.
  std::array<Button, Resources.size()> cmdView{
      Button{*this, "cmdView_0", "Resource 1"}, Button{*this, "cmdView_1", "Resource 2"},
      Button{*this, "cmdView_2", "Resource 3"}, Button{*this, "cmdView_3", "Resource 4"},
      Button{*this, "cmdView_4", "Resource 5"}, Button{*this, "cmdView_5", "Resource 6"},
      Button{*this, "cmdView_6", "Resource 7"}, Button{*this, "cmdView_7", "Resource 8"}};

  // commands
  Button Command1{*this, "Command1", "Close", [this] { Close(); }};

  explicit ResourceFiles(Program& program);

 protected:
  void OnOpen() override;
};

}  // namespace orby
