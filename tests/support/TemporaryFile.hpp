// A file for the duration of a test, and what a file holds.
#pragma once

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace zebtest {

inline std::string contentOf(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& content, const std::string& extension = ".cmp") {
    static std::atomic<int> count{0};
    const std::string name = "zeb-test-" + std::to_string(getpid()) + "-" + std::to_string(count++) + extension;
    m_path = (std::filesystem::temp_directory_path() / name).string();
    write(content);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
  }

  void write(const std::string& content) { std::ofstream(m_path, std::ios::binary) << content; }
  const std::string& path() const { return m_path; }

 private:
  std::string m_path;
};

}  // namespace zebtest
