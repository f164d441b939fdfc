// The file-backed material engine: records from files, where they are found, and errors instead of crashes.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/ZEBMatrEngine.h"
#include "standalone/MaterialEngine.h"
#include "tests/support/TestFolder.hpp"

namespace zeb::test {
namespace {

constexpr const char* kHeader = R"("header":[1,-2,3,4,5,2147483647])";
constexpr const char* kTexts = R"("texts":["name",null,""])";
constexpr const char* kTables = R"("tables":[{"a":7,"b":-8,"values":[1.5,2,-3e-3]},{"a":1,"b":0,"values":[]}])";
constexpr const char* kModel = R"("model":[9,8,2,-7])";
constexpr const char* kRest = R"("coefficients":[0.5,0.25,4],"last":6.5)";
constexpr const char* kCurves =
    R"("testCurves":[{"a":3,"b":4,"entries":[{"value":1.25,"ints":[11,12,13],"doubles":[0.5,1]},)"
    R"({"value":2,"ints":[0,0,-1],"doubles":[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21]}]},)"
    R"({"a":0,"b":1,"entries":[]}])";

std::string object(const std::vector<std::string>& members) {
  std::string text;
  for (const std::string& member : members) text += (text.empty() ? "{" : ",") + member;
  return text + "}";
}

std::string wholeMaterial() { return object({kHeader, kTexts, kTables, kModel, kRest, kCurves}); }

class MaterialEngine : public ::testing::Test {
 protected:
  TestFolder folder;
  std::vector<std::string> foldersBefore = materialFolders();

  ~MaterialEngine() override { setMaterialFolders(foldersBefore); }

  ZebMaterial* load(const std::string& json) { return ZebGetMaterial(folder.write("material.json", json)); }

  std::string errorOf(const std::string& json) {
    ZebMaterial* const material = load(json);
    EXPECT_EQ(material, nullptr);
    ZebReleaseMaterial(material);
    const std::string error = lastMaterialError();
    const std::string start = "material file '" + folder.path("material.json") + "': ";
    EXPECT_EQ(error.substr(0, start.size()), start);
    return error.substr(std::min(start.size(), error.size()));
  }
};

TEST_F(MaterialEngine, FillsEveryFieldOfTheRecord) {
  ZebMaterial* const material = load(wholeMaterial());
  ASSERT_NE(material, nullptr) << lastMaterialError();
  EXPECT_EQ(lastMaterialError(), "");
  EXPECT_EQ(std::vector<int>(material->iHeader, material->iHeader + 6), (std::vector<int>{1, -2, 3, 4, 5, 2147483647}));
  EXPECT_STREQ(material->szText[0], "name");
  EXPECT_EQ(material->szText[1], nullptr);
  EXPECT_STREQ(material->szText[2], "");
  for (int i = 3; i < 7; ++i) EXPECT_EQ(material->szText[i], nullptr);
  EXPECT_EQ(material->table[0].iA, 7);
  EXPECT_EQ(material->table[0].iB, -8);
  ASSERT_EQ(material->table[0].iCount, 3);
  EXPECT_EQ(std::vector<double>(material->table[0].pdValue, material->table[0].pdValue + 3),
            (std::vector<double>{1.5, 2, -3e-3}));
  EXPECT_EQ(material->table[1].iA, 1);
  for (int i = 1; i < 17; ++i) {
    EXPECT_EQ(material->table[i].iCount, 0);
    EXPECT_NE(material->table[i].pdValue, nullptr) << "room for count + 1 values";
  }
  EXPECT_EQ(std::vector<int>(material->iModel, material->iModel + 4), (std::vector<int>{9, 8, 2, -7}));
  EXPECT_EQ(std::vector<double>(material->pdCoefficient, material->pdCoefficient + 6),
            (std::vector<double>{0.5, 0.25, 4, 0, 0, 0}));
  EXPECT_EQ(material->dLast, 6.5);
  ZebReleaseMaterial(material);
}

TEST_F(MaterialEngine, HandsOutItsTestCurves) {
  ZebMaterial* const material = load(wholeMaterial());
  ASSERT_NE(material, nullptr) << lastMaterialError();
  int unused = -5;
  int count = -5;
  EXPECT_EQ(ZebGetMTCInfo(material, unused, count), 1);
  ASSERT_EQ(count, 2);
  const ZEB_MTC* const curve = ZebGetMTCData(material, 0);
  ASSERT_NE(curve, nullptr);
  EXPECT_EQ(curve->iA, 3);
  EXPECT_EQ(curve->iB, 4);
  ASSERT_EQ(curve->iCount, 2);
  EXPECT_EQ(curve->pdValue[0], 1.25);
  EXPECT_EQ(curve->pdValue[1], 2);
  EXPECT_EQ(std::vector<int>(curve->pEntry[0].iValue, curve->pEntry[0].iValue + 3), (std::vector<int>{11, 12, 13}));
  EXPECT_EQ(curve->pEntry[0].dValue[0], 0.5);
  EXPECT_EQ(curve->pEntry[0].dValue[1], 1);
  for (int i = 2; i < 21; ++i) EXPECT_EQ(curve->pEntry[0].dValue[i], 0);
  for (int i = 0; i < 21; ++i) EXPECT_EQ(curve->pEntry[1].dValue[i], i + 1);
  ASSERT_NE(ZebGetMTCData(material, 1), nullptr);
  EXPECT_EQ(ZebGetMTCData(material, 1)->iCount, 0);
  for (const int outside : {-1, 2, 2147483647}) EXPECT_EQ(ZebGetMTCData(material, outside), nullptr);
  ZebReleaseMaterial(material);
}

TEST_F(MaterialEngine, AcceptsNullEverywhere) {
  int unused = -5;
  int count = -5;
  EXPECT_EQ(ZebGetMTCInfo(nullptr, unused, count), -1);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(ZebGetMTCData(nullptr, 0), nullptr);
  ZebReleaseMaterial(nullptr);
}

TEST_F(MaterialEngine, NeedsOnlyHeaderTextsTablesAndModel) {
  ZebMaterial* const material = load(R"({"header":[0,0,0,0,0,0],"texts":[],"tables":[],"model":[0,0,4,0]})");
  ASSERT_NE(material, nullptr) << lastMaterialError();
  EXPECT_EQ(material->pdCoefficient[5], 0);
  EXPECT_EQ(material->dLast, 0);
  int unused = 0;
  int count = -1;
  ZebGetMTCInfo(material, unused, count);
  EXPECT_EQ(count, 0);
  ZebReleaseMaterial(material);
}

TEST_F(MaterialEngine, CutsLongTextsBetweenCharacters) {
  const struct {
    std::string text;
    std::size_t expectedLength;
  } cases[] = {
      {std::string(254, 'x'), 254},
      {std::string(255, 'x'), 254},
      {std::string(100000, 'x'), 254},
      {std::string(253, 'x') + "\u00e4", 253},
      {std::string(252, 'x') + "\u00e4y", 254},
      {std::string(252, 'x') + "\u20acy", 252},
      {std::string(251, 'x') + "\u20acy", 254},
      {std::string(251, 'x') + "\U0001F600", 251},
  };
  for (const auto& each : cases) {
    const std::string texts = R"("texts":[null,null,null,null,null,null,")" + each.text + "\"]";
    ZebMaterial* const material = load(object({kHeader, texts, kTables, kModel, kRest}));
    ASSERT_NE(material, nullptr) << lastMaterialError();
    EXPECT_EQ(std::string(material->szText[6]), each.text.substr(0, each.expectedLength));
    ZebReleaseMaterial(material);
  }
}

TEST_F(MaterialEngine, HoldsSeveralMaterialsAtOnce) {
  ZebMaterial* const first = load(wholeMaterial());
  ZebMaterial* const second = load(object({kHeader, R"("texts":["second"])", kTables, kModel, kRest}));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_STREQ(first->szText[0], "name");
  ZebReleaseMaterial(first);
  EXPECT_STREQ(second->szText[0], "second");
  ZebReleaseMaterial(second);
}

TEST_F(MaterialEngine, FindsMaterialsByPathAndInFolders) {
  std::filesystem::create_directories(folder.path("one"));
  std::filesystem::create_directories(folder.path("two"));
  const auto write = [this](const std::string& file, const std::string& text) {
    folder.write(file, object({kHeader, "\"texts\":[\"" + text + "\"]", kTables, kModel, kRest}));
  };
  write("one/both.json", "one");
  write("two/both.json", "two");
  write("two/only.json", "two only");
  write("two/plain", "no suffix");
  setMaterialFolders({folder.path("missing"), folder.path("one"), folder.path("two")});
  const struct {
    std::string name;
    const char* expected;
  } cases[] = {
      {"both", "one"},
      {"only", "two only"},
      {folder.path("two/both.json"), "two"},
      {folder.path("two/plain"), "no suffix"},
  };
  for (const auto& each : cases) {
    ZebMaterial* const material = ZebGetMaterial(each.name);
    ASSERT_NE(material, nullptr) << lastMaterialError();
    EXPECT_STREQ(material->szText[0], each.expected);
    ZebReleaseMaterial(material);
  }
}

TEST_F(MaterialEngine, SaysWhereItLookedForAMaterial) {
  setMaterialFolders({folder.path("one"), folder.path("two")});
  const struct {
    std::string name;
    std::string expected;
  } cases[] = {
      {"PA6", "material 'PA6' not found in " + folder.path("one") + ", " + folder.path("two")},
      {"PA6.json", "material file 'PA6.json' not found"},
      {folder.path("PA6"), "material file '" + folder.path("PA6") + "' not found"},
      {"", "no material named"},
      {std::string("P\0A", 3), "the material's name holds a NUL"},
      {folder.path() + "/", "material file '" + folder.path() + "/': is not a file"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(ZebGetMaterial(each.name), nullptr);
    EXPECT_EQ(lastMaterialError(), each.expected);
  }
  setMaterialFolders({});
  EXPECT_EQ(ZebGetMaterial("PA6"), nullptr);
  EXPECT_EQ(lastMaterialError(), "material 'PA6' not found: no material folders");
  EXPECT_EQ(ZebGetMaterial(std::string(100000, 'n')), nullptr);
}

TEST_F(MaterialEngine, NamesTheFirstTenMaterialsThatThereAre) {
  setMaterialFolders({folder.path()});
  std::string names;
  for (char letter = 'a'; letter <= 'k'; ++letter) {
    EXPECT_EQ(ZebGetMaterial("x"), nullptr);
    EXPECT_EQ(lastMaterialError(), "material 'x' not found in " + folder.path() + names);
    folder.write(std::string(1, letter) + ".json", "");
    if (letter < 'k') names += (names.empty() ? "; there are: " : ", ") + std::string(1, letter);
  }
  EXPECT_EQ(ZebGetMaterial("x"), nullptr);
  EXPECT_EQ(lastMaterialError(), "material 'x' not found in " + folder.path() + names + ", ...");
}

TEST_F(MaterialEngine, NamesWhatIsWrongAndWhere) {
  const auto with = [](const char* replaced, const std::string& by) {
    std::vector<std::string> members = {kHeader, kTexts, kTables, kModel, kRest, kCurves};
    for (std::string& member : members) {
      if (member == replaced) member = by;
    }
    return object(members);
  };
  const auto entry = [&with](const std::string& text) {
    return with(kCurves, R"("testCurves":[{"a":0,"b":0,"entries":[)" + text + "]}]");
  };
  const struct {
    std::string json;
    std::string expected;
  } cases[] = {
      {"[]", "must be an object"},
      {"null", "must be an object"},
      {"7", "must be an object"},
      {object({kTexts, kTables, kModel}), "lacks \"header\""},
      {object({kHeader, kTables, kModel}), "lacks \"texts\""},
      {object({kHeader, kTexts, kModel}), "lacks \"tables\""},
      {object({kHeader, kTexts, kTables}), "lacks \"model\""},
      {with(kHeader, R"("header":[1,2,3,4,5])"), "header: must have 6 elements, has 5"},
      {with(kHeader, R"("header":{"a":1})"), "header: must be a list"},
      {with(kHeader, R"("header":[1,2,3,4,5,2147483648])"), "header[5]: does not fit a 32-bit integer"},
      {with(kHeader, R"("header":[-2147483649,2,3,4,5,6])"), "header[0]: does not fit a 32-bit integer"},
      {with(kHeader, R"("header":[1,18446744073709551615,3,4,5,6])"), "header[1]: does not fit a 32-bit integer"},
      {with(kHeader, R"("header":[1,2,3,4,5,6.5])"), "header[5]: must be an integer"},
      {with(kHeader, R"("header":[1,2,"3",4,5,6])"), "header[2]: must be an integer"},
      {with(kHeader, R"("header":[1,2,null,4,5,6])"), "header[2]: must be an integer"},
      {with(kTexts, R"("texts":[1])"), "texts[0]: must be a string or null"},
      {with(kTexts, R"("texts":["","","","","","","",""])"), "texts: must have 0 to 7 elements, has 8"},
      {with(kTables, R"("tables":[{"a":1,"b":2}])"), "tables[0]: lacks \"values\""},
      {with(kTables, R"("tables":[{"a":1,"b":2,"values":[1,"NaN"]}])"), "tables[0].values[1]: must be a number"},
      {with(kTables, R"("tables":[{"a":1,"b":2,"values":[true]}])"), "tables[0].values[0]: must be a number"},
      {with(kTables, R"("tables":[{"a":1,"b":2,"values":3}])"), "tables[0].values: must be a list"},
      {with(kTables, R"("tables":[{"a":1,"b":2,"count":9,"values":[]}])"), "tables[0]: has the unknown name \"count\""},
      {with(kTables, R"("tables":[[]])"), "tables[0]: must be an object"},
      {with(kTables, R"("tables":[{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{}])"),
       "tables: must have 0 to 17 elements, has 18"},
      {with(kModel, R"("model":[1,2,3,4])"), "coefficients: must have 5 to 6 elements, has 3"},
      {with(kRest, R"("last":1)"), "lacks \"coefficients\""},
      {with(kRest, R"("coefficients":[1,2,3,4,5,6,7])"), "coefficients: must have 2 to 6 elements, has 7"},
      {with(kRest, R"("coefficients":[1,{}])"), "coefficients[1]: must be a number"},
      {with(kRest, R"("coefficients":[1,2],"last":"x")"), "last: must be a number"},
      {with(kRest, R"("coefficients":[1,2],"comment":1)"), "comment: must be a string"},
      {with(kRest, R"("coefficients":[1,2],"Last":1)"), "has the unknown name \"Last\""},
      {with(kCurves, R"("testCurves":{})"), "testCurves: must be a list"},
      {with(kCurves, R"("testCurves":[3])"), "testCurves[0]: must be an object"},
      {with(kCurves, R"("testCurves":[{"a":1e3,"b":0,"entries":[]}])"), "testCurves[0].a: must be an integer"},
      {entry(R"({"ints":[1,2,3],"doubles":[]})"), "testCurves[0].entries[0]: lacks \"value\""},
      {entry(R"({"value":1,"ints":[1,2],"doubles":[]})"), "testCurves[0].entries[0].ints: must have 3 elements, has 2"},
      {entry(R"({"value":1,"ints":[1,2,3],"doubles":[1,2,3,4,5,6,7,8,9,0,1,2,3,4,5,6,7,8,9,0,1,2]})"),
       "testCurves[0].entries[0].doubles: must have 0 to 21 elements, has 22"},
  };
  for (const auto& each : cases) EXPECT_EQ(errorOf(each.json), each.expected) << each.json;
}

TEST_F(MaterialEngine, RefusesWhatIsNotJson) {
  const std::string open(100000, '[');
  const std::string cases[] = {
      "",
      " ",
      "{",
      "NaN",
      "{\"header\":[NaN]}",
      "{\"last\":1e999}",
      "{\"last\":Infinity}",
      "{\"texts\":[\"\xff\"]}",
      "{\"texts\":[\"\\ud800\"]}",
      std::string("\0", 1),
      std::string("{\"a\0\":1}", 8),
      "\x1f\x8b\x08",
      "{\"" + std::string(100000, 'k') + "\":1",
      wholeMaterial() + "x",
      wholeMaterial() + wholeMaterial(),
      open,
      open + std::string(100000, ']'),
  };
  for (const std::string& each : cases) {
    const std::string error = errorOf(each);
    EXPECT_NE(error, "");
    EXPECT_LE(error.size(), 200u);
    for (const char character : error) EXPECT_TRUE(character >= ' ' && character <= '~') << error;
  }
  EXPECT_EQ(errorOf(open), "is nested too deeply");
}

TEST_F(MaterialEngine, RefusesEveryFileThatIsCutShort) {
  const std::string whole = wholeMaterial();
  for (std::size_t length = 0; length < whole.size(); ++length)
    ASSERT_NE(errorOf(whole.substr(0, length)), "") << length;
}

TEST_F(MaterialEngine, SurvivesEveryByteReplaced) {
  const std::string whole = wholeMaterial();
  for (std::size_t place = 0; place < whole.size(); ++place) {
    for (const char byte : {'"', '-', ']', '\xff'}) {
      std::string damaged = whole;
      damaged[place] = byte;
      ZebMaterial* const material = load(damaged);
      EXPECT_EQ(material == nullptr, lastMaterialError() != "");
      ZebReleaseMaterial(material);
    }
  }
}

TEST_F(MaterialEngine, LimitsTheLengthOfLists) {
  std::string values(2 * 1000001 - 1, '1');
  for (std::size_t i = 1; i < values.size(); i += 2) values[i] = ',';
  const auto table = [](const std::string& list) { return R"("tables":[{"a":1,"b":1,"values":[)" + list + "]}]"; };
  EXPECT_EQ(errorOf(object({kHeader, kTexts, table(values), kModel, kRest})),
            "tables[0].values: must have 0 to 1000000 elements, has 1000001");
  ZebMaterial* const material = load(object({kHeader, kTexts, table(values.substr(2)), kModel, kRest}));
  ASSERT_NE(material, nullptr) << lastMaterialError();
  EXPECT_EQ(material->table[0].iCount, 1000000);
  ZebReleaseMaterial(material);
}

TEST_F(MaterialEngine, RefusesFilesAboveTheLimit) {
  const std::string file = folder.write("huge.json", "{");
  std::filesystem::resize_file(file, 64u * 1024 * 1024 + 1);
  EXPECT_EQ(ZebGetMaterial(file), nullptr);
  EXPECT_EQ(lastMaterialError(), "material file '" + file + "': is larger than 64 MB");
}

TEST_F(MaterialEngine, LoadsTheExamplesWithTheirModelsAndCurves) {
  setMaterialFolders({ZEB_EXAMPLES_DIR "/materials"});
  const struct {
    const char* name;
    const char* firstText;
    int modelSelector;
    std::vector<double> coefficients;
    int curves;
  } cases[] = {
      {"pa66-gf30", "PA66-GF30 generic", 3, {9.0e-3, 1.0, 0.0, 0.027, 1.5, 0}, 2},
      {"epoxy-encapsulant", "Epoxy encapsulant generic", 2, {0.35, 4.0, 0, 0, 0, 0}, 2},
  };
  for (const auto& each : cases) {
    ZebMaterial* const material = ZebGetMaterial(each.name);
    ASSERT_NE(material, nullptr) << lastMaterialError();
    EXPECT_STREQ(material->szText[0], each.firstText);
    EXPECT_EQ(material->iModel[2], each.modelSelector);
    EXPECT_EQ(std::vector<double>(material->pdCoefficient, material->pdCoefficient + 6), each.coefficients);
    int tablesInUse = 0;
    for (const ZebMatParam& table : material->table) tablesInUse += table.iCount > 0 ? 1 : 0;
    EXPECT_EQ(tablesInUse, material->iHeader[3]);
    int unused = 0;
    int curves = 0;
    ZebGetMTCInfo(material, unused, curves);
    EXPECT_EQ(curves, each.curves);
    EXPECT_EQ(curves, material->iHeader[4]);
    for (int i = 0; i < curves; ++i) EXPECT_GT(ZebGetMTCData(material, i)->iCount, 0);
    ZebReleaseMaterial(material);
  }
}

}  // namespace
}  // namespace zeb::test
