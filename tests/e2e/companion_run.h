// Runs the real orby-cli on files of a folder of its own.
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
  // With files of at most so many blocks of 512 bytes.
  Outcome RunWithSmallFiles(int blocks, const std::vector<std::string>& words) const;

  // A path in the test's folder.
  std::string Path(const std::string& name) const { return folder_ + "/" + name; }
  std::string Write(const std::string& name, const std::string& bytes) const;
  static std::string Read(const std::string& path);
  static bool Exists(const std::string& path);
  static std::string Example(const std::string& name) { return std::string(EXAMPLES_DIR) + "/" + name + ".ORB"; }

  // The names in the test's folder, sorted, but for what the companion printed.
  std::vector<std::string> Names() const;

 private:
  Outcome Start(std::vector<std::string> arguments) const;

  std::string folder_;
};

// The designs under examples/, without extension.
inline const std::vector<std::string> Examples{
    "development-entry", "belt-entry-trusses",     "gateroad-standing-supports", "intersection-secondary-bolts",
    "weak-roof",         "australian-grade-metric"};

}  // namespace orby::test
