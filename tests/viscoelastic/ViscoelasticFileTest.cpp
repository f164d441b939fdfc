// The viscoelastic file as it is read: the head's tests and carry-overs, the model's change, the tag blocks, the strain
// rates.
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/Tsv.hpp"
#include "tests/viscoelastic/ViscoelasticSupport.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

namespace {

using zebtest::fileWith;
using zebtest::printedBy;
using zebtest::readText;
using zebtest::TsvRow;
using zebtest::valueOf;

// A head in which every value is taken and no two are the same.
const std::map<int, std::string> kDistinctHead = {
    {2, "150 2.5 0"}, {3, "11 0.25 12.5"}, {4, "12.25 0.5 0"}, {5, "3 20000.5"},
    {6, "-10 500 0"}, {7, "1.5 0.75 3.5"}, {8, "4 0.4 2"},     {9, "0"}};
constexpr const char* kDistinctBody =
    "<VE_Solver>\nVE_Para1 = 0.65\n</VE_Solver>\n"
    "<WhiteMetzner_Gai>\nWM_Switch = 6\nWM_Para1 = 0.125\nWM_Para2 = 0.875\n</WhiteMetzner_Gai>\n"
    "<Complete_PTT>\nPTT_Xi = 0.375\n</Complete_PTT>\n";

// --- The block --------------------------------------------------------------------------------------------------

TEST(ViscoelasticBlock, HoldsItsDefaults) {
  const CZEBCMPVEParm block;
  int checked = 0;
  for (const TsvRow& row : zebtest::readTsv("ve_members.tsv")) {
    const std::string getter = row.at("getter"), value = row.at("default");
    if (getter == "-" || value == "-" || value == "bounding") continue;
    const double expected = value == "false" ? 0.0 : std::stod(value);
    EXPECT_EQ(valueOf(block, getter), expected) << getter;
    ++checked;
  }
  EXPECT_GT(checked, 0);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_InputShearRate(), nullptr);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_InputStrainRate(), nullptr);
}

TEST(ViscoelasticBlock, BoundsFollowModelAndTemperaturePoint) {
  const std::pair<int, const char*> models[] = {
      {1, "model1"}, {2, "model2"}, {3, "other"}, {0, "other"}, {19, "other"}};
  for (const auto& [model, column] : models) {
    CZEBCMPVEParm block;
    block.setVEModel(model);
    block.setTgPoint(87.5);
    EXPECT_EQ(block.InitBoundingParameters(), 1);
    for (const TsvRow& row : zebtest::readTsv("ve_bounding.tsv")) {
      const std::string value = row.at(column);
      const std::string getter = "getCtrlParam_" + row.at("member").substr(3);
      EXPECT_EQ(valueOf(block, getter), value == "m_dTgPoint" ? 87.5 : std::stod(value)) << getter << " " << model;
    }
  }
}

TEST(ViscoelasticBlock, SettersReturnOneAndLeaveTheBoundsAlone) {
  CZEBCMPVEParm block;
  EXPECT_FALSE(zeb::wantsViscoelasticFile(block));
  EXPECT_EQ(block.setIstoCalcRS(true), 1);
  EXPECT_EQ(block.setVEModel(2), 1);
  EXPECT_EQ(block.setTgPoint(120.0), 1);
  EXPECT_TRUE(zeb::wantsViscoelasticFile(block));
  EXPECT_EQ(block.getVEModel(), 2);
  EXPECT_EQ(block.getCtrlParam_TLowBond(), -1.0);
  EXPECT_EQ(block.getCtrlParam_ShrateLowBond1(), 1.0);
}

TEST(ViscoelasticBlock, ShowsTheRelaxationFactorsLowBits) {
  // The low half of the number's eight bytes as a signed int.
  // clang-format off
  const struct { const char* factor; const char* shown; } cases[] = {
      {"0.1", "-1717986918"},   // 3FB99999 9999999A
      {"0.3", "858993459"},     // 3FD33333 33333333
      {"0.5", "0"},             // 3FE00000 00000000
      {"0.65", "-858993459"},   // 3FE4CCCC CCCCCCCD
      {"0.7", "1717986918"},    // 3FE66666 66666666
      {"-0.7", "1717986918"},   // BFE66666 66666666
      {"0.001", "-755914244"},  // 3F50624D D2F1A9FC
      {"1", "0"},               // 3FF00000 00000000
  };
  // clang-format on
  for (const auto& test : cases) {
    CZEBCMPVEParm block;
    readText(block, fileWith({}, "<VE_Solver>\nVE_Para1 = " + std::string(test.factor) + "\n</VE_Solver>\n"));
    EXPECT_NE(zebtest::dumpOf(block).find("\nm_dRelaxTau                 = " + std::string(test.shown) + "\n\n"),
              std::string::npos)
        << test.factor << zebtest::dumpOf(block);
  }
}

// --- The head ---------------------------------------------------------------------------------------------------

// The line of the head that holds `value` in one field and nothing that is taken in the others.
std::string lineWith(int number, int field, const std::string& value) {
  std::string fields[3] = {number == 6 ? "-60" : "0", "0", "0"};
  fields[field - 1] = value;
  return fields[0] + " " + fields[1] + (number == 5 ? "" : " " + fields[2]);
}

TEST(ViscoelasticHead, StoresWhatExceedsItsThreshold) {
  int checked = 0;
  for (const TsvRow& row : zebtest::readTsv("ve_head.tsv")) {
    const int line = std::stoi(row.at("line")), field = std::stoi(row.at("field"));
    const std::string getter = row.at("getter"), test = row.at("test");
    if (line < 2 || line > 7 || getter == "-") continue;
    const double threshold = std::stod(test.substr(1));
    const double scale = row.at("scale") == "-" ? 1.0 : std::stod(row.at("scale"));
    const double before = valueOf(CZEBCMPVEParm(), getter);

    CZEBCMPVEParm block;
    EXPECT_EQ(readText(block, fileWith({{line, lineWith(line, field, std::to_string(threshold))}})), 1);
    EXPECT_EQ(valueOf(block, getter), before) << getter << " takes its threshold";
    EXPECT_EQ(readText(block, fileWith({{line, lineWith(line, field, std::to_string(threshold + 0.5))}})), 1);
    EXPECT_EQ(valueOf(block, getter), (threshold + 0.5) * scale) << getter;
    ++checked;
  }
  EXPECT_GT(checked, 0);
}

TEST(ViscoelasticHead, ConfirmedModelIsTakenAndAnnouncedByName) {
  for (const TsvRow& row : zebtest::readTsv("ve_models.tsv")) {
    const int number = std::stoi(row.at("number"));
    if (number < 0 || number > 19 || number == 1) continue;
    CZEBCMPVEParm block;
    const std::string printed = printedBy([&] {
      EXPECT_EQ(readText(block, fileWith({{8, std::to_string(number) + " 0 0"}, {9, "0"}})), 1);
    });
    EXPECT_EQ(block.getVEModel(), number);
    EXPECT_EQ(printed, "Switch from White Metzner model to " + zebtest::unquoted(row.at("name")) + " model");
    EXPECT_EQ(block.getCtrlParam_ShrateLowBond1(), 1.0) << "the bounds do not follow";
  }
}

TEST(ViscoelasticHead, OldModelIsNamedEvenWhenItIsUnknown) {
  for (const int old : {-1, 0, 16, 17, 18, 20}) {
    CZEBCMPVEParm block;
    block.setVEModel(old);
    EXPECT_EQ(printedBy([&] {
                readText(block, fileWith({{8, "19 0 0"}, {9, "3"}}));
              }),
              "Switch from Unknown(\?\?\?\?) model to Modified Extended Pom-Pom model");
  }
}

TEST(ViscoelasticHead, SameModelNeedsNoConfirmationAndNoMessage) {
  CZEBCMPVEParm block;
  block.setVEModel(25);
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readText(block, fileWith({{8, "25 0.5 0"}, {9, "-1"}})), 1); }), "");
  EXPECT_EQ(block.getGradientParam_SmoothFactor(), 0.5);
}

TEST(ViscoelasticHead, RefusalSetsTheBoundsByTheCurrentModel) {
  CZEBCMPVEParm block;
  block.setVEModel(2);
  block.setTgPoint(90.0);
  EXPECT_EQ(readText(block, "1007\n"), -1);
  EXPECT_EQ(block.getCtrlParam_ShrateLowBond2(), 50.0);
  EXPECT_EQ(block.getCtrlParam_TLowBond(), 90.0);
}

TEST(ViscoelasticHead, SmallWeightOfALaterFileTurnsTheModificationOff) {
  CZEBCMPVEParm block;
  readText(block, fileWith({{8, "1 0.5 0"}}));
  readText(block, fileWith({{8, "1 0.001 0"}}));
  EXPECT_FALSE(block.getGradientParam_ModifyGradient());
  EXPECT_EQ(block.getGradientParam_SmoothFactor(), 0.0);
}

TEST(ViscoelasticHead, PlotModeSwitchesNothingOff) {
  CZEBCMPVEParm block;
  readText(block, fileWith({{8, "1 0 2"}}));
  readText(block, fileWith({{8, "1 0 0"}}));
  EXPECT_TRUE(block.getMatFunPlotParam_isPlotMaterialFun());
  EXPECT_TRUE(block.getMatFunPlotParam_isPlotMaterialFun_ideal());
}

TEST(ViscoelasticHead, RefusalResetsTheBoundsAndKeepsWhatElseAnEarlierFileSet) {
  CZEBCMPVEParm block;
  printedBy([&] { readText(block, fileWith(kDistinctHead, kDistinctBody)); });
  const auto later = fileWith({{3, "77 77 77"}, {8, "2 0.9 0"}, {9, "-1"}}, "<Complete_PTT>\nPTT_Xi = 9\n");
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readText(block, later), -1); }), "");
  EXPECT_EQ(block.getVEModel(), 4);
  EXPECT_EQ(block.getGradientParam_SmoothFactor(), 0.4);
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.65);
  EXPECT_EQ(block.getCompletePTTParam_Xi(), 0.375);
  EXPECT_EQ(block.getCtrlParam_ShrateUpBond1(), 1000.0);
  EXPECT_EQ(block.getCtrlParam_ModifyLamdaStressUB(), 1.0) << "that of a model other than 1 and 2";
  EXPECT_EQ(block.getCtrlParam_TLowBond(), -1.0);
}

// --- The tag blocks ---------------------------------------------------------------------------------------------

TEST(ViscoelasticTags, EveryKeyOfEveryBlockIsStoredUnconverted) {
  int checked = 0;
  for (const TsvRow& row : zebtest::readTsv("ve_keys.tsv")) {
    const std::string tag = zebtest::unquoted(row.at("tag")), key = zebtest::unquoted(row.at("key"));
    if (key == "StrainRate") continue;
    const bool isInt = row.at("lookup") == "int";
    const std::string body = tag + "\n" + key + " = -3" + (isInt ? "" : ".25") + "\n</" + tag.substr(1) + "\n";
    CZEBCMPVEParm block;
    EXPECT_EQ(readText(block, fileWith({}, body)), 1);
    EXPECT_EQ(valueOf(block, row.at("getter")), isInt ? -3.0 : -3.25) << tag << key;
    ++checked;
  }
  EXPECT_GT(checked, 0);
}

}  // namespace
