// Runs the real orby-cli on files in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orby::test {

struct Outcome {
  int exitCode = -1;
  std::string out;
  std::string err;
};

class CompanionTest : public testing::Test {
 protected:
  CompanionTest();
  ~CompanionTest() override;

  Outcome Run(const std::vector<std::string>& words) const;
  // Runs another program, found as the shell finds it.
  Outcome RunProgram(const std::string& program, const std::vector<std::string>& words) const;
  // Limits the size of files to this number of 512-byte blocks.
  Outcome RunWithSmallFiles(int blocks, const std::vector<std::string>& words) const;

  // Returns a path in the test's folder.
  std::string Path(const std::string& name) const { return folder_ + "/" + name; }
  std::string Write(const std::string& name, const std::string& bytes) const;
  static std::string Read(const std::string& path);
  static bool Exists(const std::string& path);
  static std::string Example(const std::string& name) { return std::string(EXAMPLES_DIR) + "/" + name + ".ORB"; }

  // Returns the names in the test's folder, sorted, except for the captured output.
  std::vector<std::string> Names() const;

 private:
  Outcome Start(std::vector<std::string> arguments) const;

  std::string folder_;
};

// The designs in examples/, without extension.
inline const std::vector<std::string> Examples{
    "development-entry", "belt-entry-trusses",     "gateroad-standing-supports", "intersection-secondary-bolts",
    "weak-roof",         "australian-grade-metric"};

}  // namespace orby::test
