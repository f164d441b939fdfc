// The example files, found when the tests run.
#pragma once

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/TemporaryFile.hpp"

namespace zebtest {

/// All examples/*/*EXTENSION in the order of their names. Throws when there is none: nothing would be tested.
inline std::vector<std::string> examples(const std::string& extension) {
  std::vector<std::string> files;
  for (const auto& folder : std::filesystem::directory_iterator(ZEB_EXAMPLES_DIR)) {
    if (!folder.is_directory()) continue;
    for (const auto& file : std::filesystem::directory_iterator(folder.path())) {
      if (file.path().extension() == extension) files.push_back(file.path().string());
    }
  }
  if (files.empty()) throw std::runtime_error("no example *" + extension);
  std::sort(files.begin(), files.end());
  return files;
}

inline std::string example(const std::string& name) {
  return std::string(ZEB_EXAMPLES_DIR) + "/" + name.substr(0, name.find('.')) + "/" + name;
}

}  // namespace zebtest
