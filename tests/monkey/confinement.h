// The small world of a monkey: a home of its own with files to play with, and no way out of it.
#pragma once

#include <cstdint>
#include <string>

namespace orby::monkey {

// Folders that only this monkey uses. They go with it.
class World {
 public:
  explicit World(std::uint64_t seed);
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  const std::string& Root() const { return root_; }

  // The variables that a program in this world sees.
  void SetVariables() const;

  // Design files of the program, as they are and damaged in several ways, and other files.
  void MakeFiles(std::uint64_t seed) const;

 private:
  std::string root_;
};

// From here on this process and those that it starts write below this folder alone, and reach no network. False on a
// system that cannot hold them to it.
bool ConfineTo(const std::string& folder);

}  // namespace orby::monkey
