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
  EXPECT_EQ(checked, 32);
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

TEST(ViscoelasticBlock, DumpsWithItsQuirks) {
  EXPECT_EQ(zebtest::dumpOf(CZEBCMPVEParm()),
            "\n---------VECMP Parameters---------\n"
            "m_bIstoCalcRS               = 0\n"
            "m_iVEModel                  = 1\n"
            "m_iVECMPVersion             = 1006\n"
            "m_iNVE_Model                = 19\n"
            "m_dRelaxTau                 = 1717986918\n"
            "\n"
            "m_iNVE_Model                = -1\n"
            "m_dModifyLamdaLowT          = 1\n"
            "m_dShrateUpBond1            = 1000\n"
            "m_dShrateUpBond2            = 5000\n"
            "m_dModifyLamdaShrateUB      = 0.1\n"
            "m_dStressUpBond             = 2e+08\n"
            "m_dModifyLamdaStressUB      = 0.01\n"
            "m_dFreezeLamda              = 1000\n"
            "m_dFreezeViscosity          = 1e+06\n"
            "m_dPackPressureLowBond      = 0\n"
            "m_dPackShrateUpBond         = 10000\n"
            "m_dShrateLowBond1           = 1\n"
            "m_dShrateLowBond2           = 1000\n"
            "m_dModifyLamdaShrateLB      = 10\n"
            "\n"
            "m_iUseWMGaiModel            = 1\n"
            "m_dWM_els                   = 0.1\n"
            "m_dWM_LimitRatio            = 0.8\n"
            "m_dSmoothFactor             = 0\n"
            "\n"
            "m_dXi                       = 0\n");
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
  EXPECT_EQ(checked, 14);
}

TEST(ViscoelasticHead, PackingPressureBoundMayBeNegative) {
  CZEBCMPVEParm block;
  readText(block, fileWith({{6, "-10 0 0"}}));
  EXPECT_EQ(block.getCtrlParam_PackPressureLowBond(), -1e8);
  readText(block, fileWith({{6, "-60 0 0"}}));
  EXPECT_EQ(block.getCtrlParam_PackPressureLowBond(), -1e8);
}

TEST(ViscoelasticHead, ShortLineTakesTheEarlierLinesValues) {
  CZEBCMPVEParm block;
  readText(block, fileWith({{2, "150 2 30"}, {3, "40"}}));
  EXPECT_EQ(block.getCtrlParam_TLowBond(), 150.0);
  EXPECT_EQ(block.getCtrlParam_ModifyLamdaLowT(), 2.0);
  EXPECT_EQ(block.getCtrlParam_ShrateUpBond1(), 40.0);
  EXPECT_EQ(block.getCtrlParam_ModifyLamdaShrateUB(), 2.0);
  EXPECT_EQ(block.getCtrlParam_ShrateUpBond2(), 30.0);
}

TEST(ViscoelasticHead, LineFiveLeavesTheThirdValueOfLineFour) {
  CZEBCMPVEParm block;
  readText(block, fileWith({{4, "20 0.5 33"}, {5, "900 20000 7"}, {6, "5"}, {7, "2 x"}}));
  EXPECT_EQ(block.getCtrlParam_PackPressureLowBond(), 5e7);
  EXPECT_EQ(block.getCtrlParam_PackShrateUpBond(), 20000.0);
  EXPECT_EQ(block.getCtrlParam_ShrateLowBond1(), 2.0);
  EXPECT_EQ(block.getCtrlParam_ModifyLamdaShrateLB(), 20000.0);
  EXPECT_EQ(block.getCtrlParam_ShrateLowBond2(), 33.0);
}

TEST(ViscoelasticHead, EmptyLineTwoHoldsZeros) {
  CZEBCMPVEParm block;
  EXPECT_EQ(readText(block, fileWith({{2, ""}, {3, ""}})), 1);
  EXPECT_EQ(block.getCtrlParam_TLowBond(), -1.0);
  EXPECT_EQ(block.getCtrlParam_ModifyLamdaLowT(), 1.0);
  EXPECT_EQ(block.getCtrlParam_ShrateUpBond1(), 1000.0);
}

TEST(ViscoelasticHead, NotANumberExceedsNoThreshold) {
  CZEBCMPVEParm block;
  EXPECT_EQ(readText(block, fileWith({{3, "nan nan nan"}, {8, "1 nan 0"}})), 1);
  EXPECT_EQ(block.getCtrlParam_ShrateUpBond1(), 1000.0);
  EXPECT_EQ(block.getCtrlParam_ShrateUpBond2(), 5000.0);
  EXPECT_EQ(block.getGradientParam_SmoothFactor(), 0.0);
}

TEST(ViscoelasticHead, FileThatEndsAfterTheVersionIsValid) {
  CZEBCMPVEParm block;
  const auto before = zebtest::stateOf(block);
  EXPECT_EQ(readText(block, "1006"), 1);
  EXPECT_EQ(zebtest::stateOf(block), before);
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

TEST(ViscoelasticHead, RefusedFileLeavesNothing) {
  const struct {
    const char* what;
    std::map<int, std::string> lines;
  } refused[] = {
      {"unconfirmed", {{8, "4 0.5 2"}, {9, "-1"}}},
      {"confirmation missing", {{8, "4 0.5 2"}, {9, ""}}},
      {"negative model", {{8, "-1 0.5 2"}, {9, "0"}}},
      {"model beyond the last", {{8, "20 0.5 2"}, {9, "0"}}},
      {"older version", {{1, "1005"}}},
      {"no version", {{1, "version 1006"}}},
      {"empty first line", {{1, ""}}},
  };
  for (const auto& [what, lines] : refused) {
    std::map<int, std::string> all = {{2, "150 2 0"},   {3, "200 0.5 300"}, {4, "5 0.5 0"},
                                      {5, "500 20000"}, {6, "-10 500 0"},   {7, "3 4 5"}};
    all.insert(lines.begin(), lines.end());
    CZEBCMPVEParm block;
    const auto before = zebtest::stateOf(block);
    const std::string printed = printedBy(
        [&] { EXPECT_EQ(readText(block, fileWith(all, "<VE_Solver>\nVE_Para1 = 0.2\n</VE_Solver>\n")), -1); });
    EXPECT_EQ(printed, "") << what;
    EXPECT_EQ(zebtest::stateOf(block), before) << what;
  }
  CZEBCMPVEParm block;
  EXPECT_EQ(readText(block, ""), -1);
}

TEST(ViscoelasticHead, RefusalSetsTheBoundsByTheCurrentModel) {
  CZEBCMPVEParm block;
  block.setVEModel(2);
  block.setTgPoint(90.0);
  EXPECT_EQ(readText(block, "1007\n"), -1);
  EXPECT_EQ(block.getCtrlParam_ShrateLowBond2(), 50.0);
  EXPECT_EQ(block.getCtrlParam_TLowBond(), 90.0);
}

TEST(ViscoelasticHead, SmoothingWeightHasItsRule) {
  const struct {
    int model;
    const char* weight;
    bool modifies;
    double stored;
  } cases[] = {{1, "0.005", false, 0.0}, {1, "0.01", false, 0.0}, {1, "0.5", true, 0.5}, {1, "3.0", true, 1.0},
               {1, "-2", false, 0.0},    {6, "0.5", false, 0.5},  {6, "3.0", false, 1.0}};
  for (const auto& c : cases) {
    CZEBCMPVEParm block;
    printedBy([&] { readText(block, fileWith({{8, std::to_string(c.model) + " " + c.weight + " 0"}, {9, "0"}})); });
    EXPECT_EQ(block.getGradientParam_ModifyGradient(), c.modifies) << c.model << " " << c.weight;
    EXPECT_EQ(block.getGradientParam_SmoothFactor(), c.stored) << c.model << " " << c.weight;
  }
  CZEBCMPVEParm again;
  readText(again, fileWith({{8, "1 0.5 0"}}));
  readText(again, fileWith({{8, "1 0.001 0"}}));
  EXPECT_FALSE(again.getGradientParam_ModifyGradient());
  EXPECT_EQ(again.getGradientParam_SmoothFactor(), 0.0);
}

TEST(ViscoelasticHead, PlotModeSetsItsSwitches) {
  for (const int mode : {-1, 0, 1, 2, 3}) {
    CZEBCMPVEParm block;
    readText(block, fileWith({{8, "1 0 " + std::to_string(mode)}}));
    EXPECT_EQ(block.getMatFunPlotParam_isPlotMaterialFun(), mode == 1 || mode == 2) << mode;
    EXPECT_EQ(block.getMatFunPlotParam_isPlotMaterialFun_ideal(), mode == 2) << mode;
  }
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
  EXPECT_EQ(checked, 21);
}

TEST(ViscoelasticTags, KeysCountOnlyInTheirBlock) {
  CZEBCMPVEParm block;
  readText(block, fileWith({},
                           "VE_Para1 = 0.1\n<VE_Solver>\nPTT_Xi = 3\n</VE_Solver>\nVE_Para1 = 0.2\n"
                           "<PLOT_MATERIAL>\nDeltaTime = 5\n</PLOT_MATERIAL>\n"));
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.7);
  EXPECT_EQ(block.getCompletePTTParam_Xi(), 0.0);
  EXPECT_EQ(block.getMatFunPlotParam_DeltaTime(), 5.0);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_DeltaTime(), 0.01);
}

TEST(ViscoelasticTags, TagMayStandAnywhereInItsLine) {
  CZEBCMPVEParm block;
  readText(block, fileWith({}, "see <Complete_PTT> below\nPTT_Xi = 0.3\nend </Complete_PTT>.\n"));
  EXPECT_EQ(block.getCompletePTTParam_Xi(), 0.3);
}

TEST(ViscoelasticTags, EveryTagOfALineIsFollowedInOrder) {
  CZEBCMPVEParm block;
  readText(block, fileWith({},
                           "<Complete_PTT> <VE_Solver>\nVE_Para1 = 0.2\nPTT_Xi = 9\n</VE_Solver>\n"
                           "PTT_Xi = 0.4\nVE_Para1 = 9\n</Complete_PTT>\n"));
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.2);
  EXPECT_EQ(block.getCompletePTTParam_Xi(), 0.4);
}

TEST(ViscoelasticTags, UnclosedBlockEndsWithTheFile) {
  CZEBCMPVEParm block;
  EXPECT_EQ(readText(block, fileWith({}, "<VE_Solver>\nVE_Para1 = 0.2\n<Complete_PTT>\nPTT_Xi = 0.4\nVE_Para1 = 0.3")),
            1);
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.3);
  EXPECT_EQ(block.getCompletePTTParam_Xi(), 0.0);
}

TEST(ViscoelasticTags, TransientShearBlockIsSkipped) {
  CZEBCMPVEParm block;
  const auto before = zebtest::stateOf(block);
  EXPECT_EQ(readText(block, fileWith({},
                                     "<PLOT_TRANSIENT_SHEAR_MATERIAL>\nFlagIsPlotShearVis_Transient = 1\n"
                                     "RefTemperature = 1\nTotalSetofInputSRate = 2\nShearRate = 1\nShearRate = 2\n"
                                     "</PLOT_TRANSIENT_SHEAR_MATERIAL>\n")),
            1);
  EXPECT_EQ(zebtest::stateOf(block), before);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_InputShearRate(), nullptr);
}

TEST(ViscoelasticTags, PlotFlagOfOneSetsTheSwitchAndIsPrinted) {
  CZEBCMPVEParm block;
  const std::string printed = printedBy([&] {
    readText(block, fileWith({},
                             "<PLOT_MATERIAL>\nFlagIsPlotShearVis = 0\nFlagIsPlotElongVis = 1\n"
                             "RefTemperature = 240.5\nDeltaTemperature = 15\nDeltaTime = 1e-7\nTargetTime = 1234567\n"
                             "SRateLowerBound = 0.05\nSRateUpperBound = 5000\n</PLOT_MATERIAL>\n"));
  });
  EXPECT_TRUE(block.getMatFunPlotParam_isPlotMaterialFun());
  EXPECT_FALSE(block.getMatFunPlotParam_isPlotMaterialFun_ideal());
  EXPECT_EQ(printed,
            "\n*********************\n"
            "FlagIsPlotShearVis = 0\n"
            "FlagIsPlotElongVis = 1\n"
            "RefTemperature    = 240.5\n"
            "DeltaTemperature    = 15\n"
            "DeltaTime          = 1e-07\n"
            "TargetTime         = 1.23457e+06\n"
            "SRateLowerBound    = 0.05\n"
            "SRateUpperBound    = 5000\n"
            "*********************\n");
}

TEST(ViscoelasticTags, PlotFlagOfTwoSetsNothing) {
  CZEBCMPVEParm block;
  EXPECT_EQ(
      printedBy([&] { readText(block, fileWith({}, "<PLOT_MATERIAL>\nFlagIsPlotShearVis = 2\n</PLOT_MATERIAL>\n")); }),
      "");
  EXPECT_FALSE(block.getMatFunPlotParam_isPlotMaterialFun());
}

}  // namespace
