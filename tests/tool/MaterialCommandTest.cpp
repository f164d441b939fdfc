// compparm material, run as a process: what it shows of a record, what it says about names and files that are no use.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/tool/RunTool.hpp"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using zebtest::kMaterials;
using zebtest::runTool;
using zebtest::TemporaryFile;
using zebtest::ToolRun;

// A small material whose parts can be replaced.
struct Parts {
  std::string texts = R"(["name"])";
  std::string tables = R"([{"a":1,"b":2,"values":[0.5,1.5,2.5]},{"a":0,"b":0,"values":[]},{"a":3,"b":4,"values":[]}])";
  std::string model = "[9,8,2,7]";
  std::string rest = R"(,"coefficients":[0.25,0.125],"last":6.5)";

  std::string json() const {
    return R"({"header":[1,-2,3,4,5,6],"texts":)" + texts + R"(,"tables":)" + tables + R"(,"model":)" + model + rest +
           "}";
  }
};

ToolRun runOn(const std::string& content, std::vector<std::string> options = {}) {
  const TemporaryFile file(content, ".json");
  options.insert(options.begin(), {"material", file.path()});
  return runTool(options);
}

// --- What is shown -----------------------------------------------------------------------------------------------

TEST(MaterialCommand, ShowsRecordTablesAndCurves) {
  Parts parts;
  parts.rest += R"(,"testCurves":[{"a":3,"b":4,"entries":[{"value":1.25,"ints":[11,12,13],"doubles":[0.5,0,1]},)"
                R"({"value":2,"ints":[0,0,-1],"doubles":[]}]},{"a":5,"b":6,"entries":[]}])";
  const ToolRun run = runOn(parts.json());
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(run.out, HasSubstr("  header        1  -2  3  4  5  6\n"));
  EXPECT_THAT(run.out, HasSubstr("  text 1        \"name\"\n  text 2        \"\"\n"));
  EXPECT_THAT(run.out, HasSubstr("  model         9  8  2  7\n"
                                 "  coefficients  0.25  0.125\n"
                                 "  last value    6.5\n"));
  EXPECT_THAT(run.out, HasSubstr("Table 1  A 1, B 2, 3 values\n  0.5  1.5\n  2.5\n"));
  EXPECT_THAT(run.out, HasSubstr("Table 3  A 3, B 4, 0 values\n"));
  EXPECT_THAT(run.out, HasSubstr("Empty tables: 2 4 5 6 7 8 9 10 11 12 13 14 15 16 17\n"));
  EXPECT_THAT(run.out, HasSubstr("Test curve 1  A 3, B 4, 2 entries\n"
                                 "  1.25         | 11  12  13 | 0.5  0  1\n"
                                 "  2            | 0  0  -1 | all 0\n"
                                 "Test curve 2  A 5, B 6, 0 entries\n"));
}

TEST(MaterialCommand, ShowsAsManyCoefficientsAsTheModelSelects) {
  const struct {
    const char* model;
    const char* expected;
  } cases[] = {{"[0,0,1,0]", "  coefficients  1\n"},
               {"[0,0,2,0]", "  coefficients  1  2\n"},
               {"[0,0,3,0]", "  coefficients  1  2  3  4  5\n"},
               {"[0,0,4,0]", "  coefficients  none\n"},
               {"[0,0,-1,0]", "  coefficients  none\n"}};
  for (const auto& c : cases) {
    Parts parts;
    parts.model = c.model;
    parts.rest = R"(,"coefficients":[1,2,3,4,5,6])";
    EXPECT_THAT(runOn(parts.json()).out, HasSubstr(c.expected)) << c.model;
  }
}

TEST(MaterialCommand, TextsReachNoTerminalUnescaped) {
  Parts parts;
  parts.texts = R"(["a\u001b[31mred\nnext\t\u0007 \"x\" ü"])";
  const ToolRun run = runOn(parts.json());
  EXPECT_THAT(run.out, HasSubstr(R"(  text 1        "a\u001b[31mred\nnext\t\u0007 \"x\" ü")"));
  EXPECT_THAT(run.out, Not(HasSubstr("\x1b")));
}

TEST(MaterialCommand, TellsThatTextsStayOnRank0OnlyWhereThereAreOtherRanks) {
  constexpr const char* kNote = "(on rank 0 only)";
  EXPECT_THAT(runOn(Parts().json()).out, Not(HasSubstr(kNote)));
  const ToolRun run = runOn(Parts().json(), {"--ranks", "4"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("  text 1        \"name\"\n  text 2        \"\"  (on rank 0 only)\n"));
  EXPECT_THAT(run.out, HasSubstr("Loaded on 4 ranks: all hold the same record, tables and curves."
                                 " Texts 2 to 7 stay on rank 0 and are not compared.\n"));
}

TEST(MaterialCommand, JsonHoldsEveryPartOfTheFile) {
  for (const char* name : {"pa66-gf30", "epoxy-encapsulant"}) {
    const json file = json::parse(zebtest::contentOf(kMaterials + "/" + name + ".json"));
    const ToolRun run = runTool({"material", name, "--folder", kMaterials, "--ranks", "4", "--format", "json"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const json shown = json::parse(run.out);
    for (const char* part : {"header", "model", "coefficients", "last"}) EXPECT_EQ(shown.at(part), file.at(part));
    for (std::size_t i = 0; i < 7; ++i) {
      const json& text = file.at("texts").at(i);
      EXPECT_EQ(shown.at("texts").at(i), text.is_null() ? json("") : text);
    }
    ASSERT_EQ(shown.at("tables").size(), 17u);
    for (std::size_t i = 0; i < file.at("tables").size(); ++i) {
      for (const char* part : {"a", "b", "values"}) {
        EXPECT_EQ(shown.at("tables").at(i).at(part), file.at("tables").at(i).at(part)) << i;
      }
    }
    ASSERT_EQ(shown.at("testCurves").size(), file.at("testCurves").size());
    for (std::size_t i = 0; i < file.at("testCurves").size(); ++i) {
      const json& curve = file.at("testCurves").at(i);
      EXPECT_EQ(shown.at("testCurves").at(i).at("a"), curve.at("a"));
      ASSERT_EQ(shown.at("testCurves").at(i).at("entries").size(), curve.at("entries").size());
      for (std::size_t entry = 0; entry < curve.at("entries").size(); ++entry) {
        json expected = curve.at("entries").at(entry);
        while (expected.at("doubles").size() < 21) expected.at("doubles").push_back(0.0);
        EXPECT_EQ(shown.at("testCurves").at(i).at("entries").at(entry), expected);
      }
    }
    EXPECT_EQ(shown.at("ranks").at("count"), 4);
    EXPECT_EQ(shown.at("ranks").at("same"), true);
  }
}

// --- What cannot be used -----------------------------------------------------------------------------------------

TEST(MaterialCommand, MistypedNameIsAnsweredWithTheNamesThereAre) {
  const ToolRun run = runTool({"material", "pa66gf30", "--folder", kMaterials});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err,
            "compparm: material 'pa66gf30' not found in " + kMaterials + "; there are: epoxy-encapsulant, pa66-gf30\n");
}

TEST(MaterialCommand, WithoutFolderTheNameIsLookedForInTheWorkingFolder) {
  const ToolRun run = runTool({"material", "pa66-gf30"}, kMaterials);
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("\"PA66-GF30 generic\""));
}

TEST(MaterialCommand, BrokenFileIsNamedWithItsFault) {
  const std::string good = Parts().json();
  Parts noModel, twice;
  noModel.model = R"("none")";
  twice.rest += R"(,"last":7.5)";
  const struct {
    std::string content;
    const char* fault;
  } cases[] = {{good.substr(0, good.size() / 2), "parse error at line 1, column "},
               {"", "parse error"},
               {good + "}", "parse error"},
               {noModel.json(), "': model: must be a list"},
               {twice.json(), "': has the name \"last\" twice"},
               {"[Outlet]\nAirPressure = 0.2\n[/Outlet]\n", "parse error at line 1, column 2"}};
  for (const auto& c : cases) {
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{}, {"--ranks", "4"}, {"--format", "json"}}) {
      const TemporaryFile file(c.content, ".json");
      std::vector<std::string> arguments{"material", file.path()};
      arguments.insert(arguments.end(), options.begin(), options.end());
      const ToolRun run = runTool(arguments);
      EXPECT_EQ(run.exitCode, 2) << c.content;
      EXPECT_EQ(run.out, "");
      EXPECT_EQ(run.err.rfind("compparm: material file '" + file.path() + "': ", 0), 0u) << run.err;
      EXPECT_THAT(run.err, HasSubstr(c.fault));
      EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    }
  }
}

}  // namespace
