// The environment of a monkey: its own home with files to use, and no access to anything else.
#pragma once

#include <cstdint>
#include <string>

namespace orby::monkey {

// Folders that only this monkey uses. They are removed with this object.
class World {
 public:
  explicit World(std::uint64_t seed);
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  const std::string& Root() const { return root_; }

  // Sets the environment variables of a program in this world.
  void SetVariables() const;

  // Creates design files, intact and damaged in several ways, and other files.
  void MakeFiles(std::uint64_t seed) const;

 private:
  std::string root_;
};

// Restricts this process and its children to writing below this folder and to no network. Returns false if the system
// cannot enforce this.
bool ConfineTo(const std::string& folder);

}  // namespace orby::monkey
