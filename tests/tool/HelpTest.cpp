// What the tool tells about itself: help, completion, manual page and the pages under docs/ agree with the program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>

#include "tests/support/WrittenFile.hpp"
#include "tests/tool/RunTool.hpp"

namespace {

using testing::Contains;
using testing::HasSubstr;
using zebtest::kRoot;
using zebtest::linesOf;
using zebtest::runTool;
using zebtest::ToolRun;

std::vector<std::string> matches(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at) found.push_back((*at)[1]);
  return found;
}

std::vector<std::string> completed(std::vector<std::string> words) {
  words.insert(words.begin(), "complete");
  return linesOf(runTool(words).out);
}

// As the general help lists them, each on a line of its own.
std::vector<std::string> commands() {
  const std::string help = runTool({"--help"}).out;
  const auto begin = help.find("Subcommands:");
  return matches(help.substr(begin, help.find("Examples:") - begin), "\n  ([a-z]+) +[A-Z]");
}

// As the command's help lists them in front of its examples.
std::vector<std::string> optionsOf(const std::string& command) {
  const std::string help = runTool({command, "--help"}).out;
  return matches(help.substr(0, help.find("Examples:")), "\n  (?:-h,)?(--?[A-Za-z][-a-z]*)");
}

TEST(Help, ListsTheCommands) {
  const std::vector<std::string> all = commands();
  for (const char* command : {"show", "check", "explain", "diff", "schedule", "material", "template", "list"}) {
    EXPECT_THAT(all, Contains(command));
  }
  EXPECT_EQ(all.size(), 8u);
}

TEST(Help, TeachesEveryCommandByExamplesThatFitIt) {
  for (const std::string& command : commands()) {
    const ToolRun run = runTool({command, "--help"});
    EXPECT_EQ(run.exitCode, 0);
    const auto at = run.out.find("Examples:");
    ASSERT_NE(at, run.out.npos) << command;
    const std::string examples = run.out.substr(at);
    EXPECT_THAT(examples, HasSubstr("\n  compparm " + command));
    const std::vector<std::string> options = optionsOf(command);
    for (const std::string& option : matches(examples, " (--?[A-Za-z][-a-z]*)")) {
      EXPECT_THAT(options, Contains(option)) << command;
    }
  }
}

TEST(Completion, KnowsEveryCommandAndOption) {
  const std::vector<std::string> all = commands();
  for (const std::string& command : all) EXPECT_THAT(completed({""}), Contains(command));
  for (const std::string& command : all) {
    const std::vector<std::string> options = completed({command, "-"});
    for (const std::string& option : optionsOf(command)) EXPECT_THAT(options, Contains(option)) << command;
  }
}

TEST(Completion, KnowsWhatAWordCanBecome) {
  using Words = std::vector<std::string>;
  struct Case {
    Words words, expected;
  };
  for (const Case& c : {
           Case{{"sh"}, {"show"}},
           Case{{"show", "--ma"}, {"--material"}},
           Case{{"show", "--molding", "R"}, {"RIM", "RTM"}},
           Case{{"diff", "a.cmp", "--against-molding", "U"}, {"UNF"}},
           Case{{"show", "--material", ""}, {"0", "1"}},
           Case{{"show", "a.cmp", "--as", ""}, {"cmp", "cmx", "std"}},
           Case{{"template", "--as", ""}, {"cmp", "cmx"}},
           Case{{"schedule", "a.cmx", "--format", "=", "p"}, {"plot"}},
           Case{{"show", "a.cmp", "--block", "General", "Outl"}, {"Outlet"}},
           Case{{"template", "--sections", "FILL_OUT"}, {"FILL_OUTPUT_TIMES"}},
           Case{{"explain", "a.cmp", "AirP"}, {"AirPressure"}},
           Case{{"check", "a.cmp", "--no-rule", "equals"}, {"equals-default"}},
           Case{{"show", "examples"}, {}},
           Case{{"nosuch", "--"}, {}},
       }) {
    EXPECT_EQ(completed(c.words), c.expected) << testing::PrintToString(c.words);
  }
}

TEST(Completion, WorksInTheShell) {
  const std::string script = "source '" + kRoot +
                             "/tools/compparm/completion.bash' && COMP_WORDS=('" ZEB_COMPPARM
                             "' show --chan) COMP_CWORD=2 && _compparm && echo \"${COMPREPLY[*]}\"";
  const ToolRun run = zebtest::runProgram("/bin/bash", {"-c", script});
  EXPECT_EQ(run.out, "--changed\n") << run.err;
}

TEST(ManualPage, InTheRepositoryIsCurrent) { zebtest::expectCurrent("docs/compparm.1", runTool({"manual"}).out); }

TEST(ManualPage, NamesEveryCommandAndOption) {
  const std::string page =
      std::regex_replace(zebtest::contentOf(kRoot + "/docs/compparm.1"), std::regex(R"(\\-)"), "-");
  for (const std::string& command : commands()) {
    const auto begin = page.find(".SS compparm " + command + "\n");
    ASSERT_NE(begin, page.npos) << command;
    const std::string section = page.substr(begin, page.find(".SS ", begin + 1) - begin);
    for (const std::string& option : optionsOf(command)) {
      EXPECT_THAT(section, HasSubstr("fB" + option + "\\fR")) << command;
    }
  }
}

void collectKeys(const nlohmann::json& value, std::set<std::string>& keys) {
  if (value.is_object()) {
    for (const auto& [key, member] : value.items()) {
      keys.insert(key);
      collectKeys(member, keys);
    }
  }
  if (value.is_array()) {
    for (const auto& element : value) collectKeys(element, keys);
  }
}

TEST(JsonPage, DescribesEveryKey) {
  const std::string cover = "examples/thin-wall-cover/thin-wall-cover",
                    broken = "examples/broken-cover/broken-cover.cmp";
  const std::vector<std::vector<std::string>> calls{{"show", cover + ".cmp", "--viscoelastic", "--ranks", "2"},
                                                    {"show", cover + ".cmx"},
                                                    {"explain", cover + ".cmp", "TimeLimit", "--molding", "GAIM"},
                                                    {"explain", cover + ".cmp", "m_piVentInletID"},
                                                    {"explain", cover + ".cmp", "m_ilsolvU"},
                                                    {"explain", cover + ".cmp", "m_pdDispenserPoint"},
                                                    {"explain", broken, "VentMode"},
                                                    {"diff", cover + ".cmp", "--against-molding", "GAIM"},
                                                    {"schedule", cover + ".cmx", "--fill-time", "0.2", "--split", "10"},
                                                    {"list", "gravity"}};
  const std::string page = zebtest::contentOf(kRoot + "/docs/json.md");
  for (std::vector<std::string> call : calls) {
    call.insert(call.end(), {"--format", "json"});
    const ToolRun run = runTool(call, kRoot);
    EXPECT_LE(run.exitCode, 1) << run.err;
    std::set<std::string> keys;
    collectKeys(nlohmann::json::parse(run.out), keys);
    EXPECT_FALSE(keys.empty());
    const auto at = page.find("\n## " + call[0] + "\n");
    ASSERT_NE(at, page.npos) << call[0];
    const std::string section = page.substr(at, page.find("\n## ", at + 1) - at);
    for (const std::string& key : keys) EXPECT_THAT(section, HasSubstr("`" + key + "`")) << call[0];
  }
}

}  // namespace
