// The commands that the pages show are run: what stands below them is what they print. "…" stands for what is left out.
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "tests/tool/RunTool.hpp"

namespace {

namespace fs = std::filesystem;
using zebtest::kRoot;
using zebtest::linesOf;

const std::string kPrompt = "$ ./compparm ";
const std::string kElided = "…";

using Lines = std::vector<std::string>;

// What the page is to show of the command's output: as many lines as it shows now, where it leaves the rest out.
Lines outputOf(const std::string& command, const Lines& shown) {
  std::istringstream words(command);
  std::vector<std::string> arguments;
  for (std::string word; words >> word;) arguments.push_back(word);
  const zebtest::ToolRun run = zebtest::runTool(arguments, kRoot);
  Lines lines = linesOf(run.out + run.err);
  const bool isElided = !shown.empty() && shown.back() == kElided;
  if (isElided && lines.size() >= shown.size()) {
    lines.resize(shown.size() - 1);
    lines.push_back(kElided);
  }
  return lines;
}

struct Page {
  Lines lines;
  int commands = 0;
};

Page withRealOutput(const Lines& page) {
  Page result;
  bool inBlock = false;
  for (std::size_t i = 0; i < page.size(); ++i) {
    const bool isFence = page[i].starts_with("```");
    if (isFence) inBlock = !inBlock;
    result.lines.push_back(page[i]);
    if (!inBlock || !page[i].starts_with(kPrompt)) continue;
    Lines shown;
    while (i + 1 < page.size() && !page[i + 1].starts_with("```") && !page[i + 1].starts_with("$ ")) {
      shown.push_back(page[++i]);
    }
    while (!shown.empty() && shown.back().empty()) shown.pop_back();  // between two commands
    const std::string command = result.lines.back().substr(kPrompt.size());
    for (const std::string& line : outputOf(command, shown)) result.lines.push_back(line);
    const bool anotherFollows = i + 1 < page.size() && page[i + 1].starts_with(kPrompt);
    if (anotherFollows) result.lines.emplace_back();
    ++result.commands;
  }
  return result;
}

std::string textOf(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + '\n';
  return text;
}

class Tour : public testing::TestWithParam<std::string> {};

TEST_P(Tour, ShowsRealOutput) {
  const fs::path path = fs::path(kRoot) / GetParam();
  const std::string before = zebtest::contentOf(path.string());
  const Page page = withRealOutput(linesOf(before));
  EXPECT_GT(page.commands, 0);
  const std::string after = textOf(page.lines);
  const char* update = std::getenv("UPDATE_GOLDEN");
  if (update != nullptr && std::string(update) == "1") {
    std::ofstream(path, std::ios::binary) << after;
    return;
  }
  EXPECT_EQ(before, after) << "UPDATE_GOLDEN=1 rewrites it";
}

INSTANTIATE_TEST_SUITE_P(Pages, Tour,
                         testing::Values("README.md", "examples/broken-cover/README.md",
                                         "examples/gas-assisted-handle/README.md", "examples/standard-flow/README.md",
                                         "examples/thin-wall-cover/README.md", "examples/underfill-chip/README.md"),
                         [](const auto& test) {
                           std::string name = test.param;
                           std::erase_if(name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
                           return name;
                         });

}  // namespace
