// A new temporary folder for a test. The destructor removes it with its contents.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace orby::test {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device number;
    const std::filesystem::path parent = std::filesystem::temp_directory_path();
    do {
      path_ = (parent / ("orby-test-" + std::to_string(number()))).string();
    } while (!std::filesystem::create_directory(path_));
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& Path() const { return path_; }
  std::string At(const std::string& name) const { return path_ + "/" + name; }

  void Store(const std::string& name, const std::string& bytes) const {
    std::ofstream(At(name), std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(At(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // Returns the names of its files and folders, sorted.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }

 private:
  std::string path_;
};

}  // namespace orby::test
