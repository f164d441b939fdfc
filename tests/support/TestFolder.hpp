// A folder of its own for the files that a test writes, removed with everything in it at the test's end.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace zeb::test {

class TestFolder {
 public:
  TestFolder() {
    const std::string name = "zeb-standalone-" + std::to_string(std::random_device()());
    path_ = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(path_);
  }
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  std::string path() const { return path_.string(); }
  std::string path(const std::string& name) const { return (path_ / name).string(); }

  std::string write(const std::string& name, const std::string& content) const {
    std::ofstream(path(name), std::ios::binary) << content;
    return path(name);
  }

 private:
  std::filesystem::path path_;
};

}  // namespace zeb::test
