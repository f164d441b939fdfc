// Corner cases of the viscoelastic block and its file: keys inside other keys, what the list of strain rates swallows,
// the default files of the other models, the quirk of the dump, jobs that write at the same time.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TestFolder.hpp"
#include "tests/viscoelastic/ViscoelasticSupport.hpp"

namespace {

using zeb::test::TestFolder;
using zebtest::dumpOf;
using zebtest::fileWith;
using zebtest::kDefaultFile;
using zebtest::printedBy;
using zebtest::readText;
using zebtest::stateOf;

std::string contentOf(const std::string& fileName) {
  std::ifstream file(fileName, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// A head in which every value is taken and no two are the same.
const std::map<int, std::string> kDistinctHead = {
    {2, "150 2.5 0"}, {3, "11 0.25 12.5"}, {4, "12.25 0.5 0"}, {5, "3 20000.5"},
    {6, "-10 500 0"}, {7, "1.5 0.75 3.5"}, {8, "4 0.4 2"},     {9, "0"}};
constexpr const char* kDistinctBody =
    "<VE_Solver>\nVE_Para1 = 0.65\n</VE_Solver>\n"
    "<WhiteMetzner_Gai>\nWM_Switch = 6\nWM_Para1 = 0.125\nWM_Para2 = 0.875\n</WhiteMetzner_Gai>\n"
    "<Complete_PTT>\nPTT_Xi = 0.375\n</Complete_PTT>\n";

// --- The dump ---------------------------------------------------------------------------------------------------

TEST(ViscoelasticDump, ShowsEveryMemberBehindItsLabel) {
  CZEBCMPVEParm block;
  block.setIstoCalcRS(true);
  printedBy([&] { EXPECT_EQ(readText(block, fileWith(kDistinctHead, kDistinctBody)), 1); });
  EXPECT_EQ(dumpOf(block),
            "\n---------VECMP Parameters---------\n"
            "m_bIstoCalcRS               = 1\n"
            "m_iVEModel                  = 4\n"
            "m_iVECMPVersion             = 1006\n"
            "m_iNVE_Model                = 19\n"
            "m_dRelaxTau                 = -858993459\n"
            "\n"
            "m_iNVE_Model                = 150\n"
            "m_dModifyLamdaLowT          = 2.5\n"
            "m_dShrateUpBond1            = 11\n"
            "m_dShrateUpBond2            = 12.5\n"
            "m_dModifyLamdaShrateUB      = 0.25\n"
            "m_dStressUpBond             = 1.225e+08\n"
            "m_dModifyLamdaStressUB      = 0.5\n"
            "m_dFreezeLamda              = 3\n"
            "m_dFreezeViscosity          = 20000.5\n"
            "m_dPackPressureLowBond      = -1e+08\n"
            "m_dPackShrateUpBond         = 500\n"
            "m_dShrateLowBond1           = 1.5\n"
            "m_dShrateLowBond2           = 3.5\n"
            "m_dModifyLamdaShrateLB      = 0.75\n"
            "\n"
            "m_iUseWMGaiModel            = 6\n"
            "m_dWM_els                   = 0.125\n"
            "m_dWM_LimitRatio            = 0.875\n"
            "m_dSmoothFactor             = 0.4\n"
            "\n"
            "m_dXi                       = 0.375\n");
}

TEST(ViscoelasticDump, ShowsTheRelaxationFactorsLowBits) {
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
    EXPECT_NE(dumpOf(block).find("\nm_dRelaxTau                 = " + std::string(test.shown) + "\n\n"),
              std::string::npos)
        << test.factor << dumpOf(block);
  }
}

TEST(ViscoelasticBlock, CopiesTakeEveryMember) {
  CZEBCMPVEParm block;
  block.setIstoCalcRS(true);
  block.setTgPoint(90.0);
  const std::string plots =
      "<PLOT_MATERIAL>\nFlagIsPlotShearVis = 2\nRefTemperature = 3\n</PLOT_MATERIAL>\n"
      "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nRefTemperature = 4\nTotalSetofInputSRate = 1\nStrainRate = 5\n";
  printedBy([&] { readText(block, fileWith(kDistinctHead, kDistinctBody + plots)); });
  const CZEBCMPVEParm copied(block);
  CZEBCMPVEParm assigned;
  assigned = block;
  EXPECT_EQ(stateOf(copied), stateOf(block));
  EXPECT_EQ(stateOf(assigned), stateOf(block));
}

// --- The head ---------------------------------------------------------------------------------------------------

TEST(ViscoelasticHead, VersionIsANumberInFrontOfAnything) {
  for (const char* line : {"  1006", "1006 of the file", "1006.9", "+1006"}) {
    CZEBCMPVEParm block;
    EXPECT_EQ(readText(block, fileWith({{1, line}})), 1) << line;
  }
  for (const char* line : {"10060", "0x3EE", "-1006", "x1006"}) {
    CZEBCMPVEParm block;
    EXPECT_EQ(readText(block, fileWith({{1, line}})), -1) << line;
  }
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

// --- Keys inside other keys -------------------------------------------------------------------------------------

TEST(ViscoelasticTags, TransientSpellingsOfTheFlagsSetThePlainOnes) {
  CZEBCMPVEParm block;
  readText(block, fileWith({},
                           "<PLOT_MATERIAL>\nFlagIsPlotShearVis_Transient = 2\nFlagIsPlotElongVis_Transient = 3\n"
                           "</PLOT_MATERIAL>\n"));
  EXPECT_EQ(block.getMatFunPlotParam_FlagIsPlotShearVis(), 2);
  EXPECT_EQ(block.getMatFunPlotParam_FlagIsPlotElongVis(), 3);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_FlagIsPlotShearVis(), -1);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_FlagIsPlotElongVis_Transient(), -1);
}

TEST(ViscoelasticTags, PlainSpellingOfTheFlagSetsNoTransientOne) {
  CZEBCMPVEParm block;
  const auto before = stateOf(block);
  readText(block, fileWith({},
                           "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nFlagIsPlotElongVis = 1\n"
                           "FlagIsPlotShearVis_Transient = 1\nStrainRate = 3\n</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n"));
  EXPECT_EQ(stateOf(block), before);
}

TEST(ViscoelasticTags, OneLineSetsEveryKeyThatStandsInIt) {
  CZEBCMPVEParm block;
  EXPECT_EQ(printedBy([&] {
              readText(block, fileWith({},
                                       "<PLOT_MATERIAL>\nDeltaTime SRateUpperBound FlagIsPlotElongVis = 1.5\n"
                                       "</PLOT_MATERIAL>\n"));
            }),
            "\n*********************\nFlagIsPlotShearVis = 0\nFlagIsPlotElongVis = 1\nRefTemperature    = 200\n"
            "DeltaTemperature    = 20\nDeltaTime          = 1.5\nTargetTime         = 20\nSRateLowerBound    = 0.01\n"
            "SRateUpperBound    = 1.5\n*********************\n");
}

TEST(ViscoelasticTags, PlotFlagStaysOnForABlockThatDoesNotNameIt) {
  CZEBCMPVEParm block;
  const std::string body =
      "<PLOT_MATERIAL>\nFlagIsPlotShearVis = 1\n</PLOT_MATERIAL>\n<PLOT_MATERIAL>\nDeltaTime = 2\n</PLOT_MATERIAL>\n";
  const std::string printed = printedBy([&] { readText(block, fileWith({}, body)); });
  EXPECT_NE(printed.find("DeltaTime          = 0.01\n"), printed.npos);
  EXPECT_NE(printed.find("DeltaTime          = 2\n"), printed.npos) << "told again";
}

TEST(ViscoelasticTags, ClosingTagOfAnotherBlockClosesNothing) {
  CZEBCMPVEParm block;
  readText(block,
           fileWith({}, "<VE_Solver>\n</Complete_PTT>\n<VE_Solver>\nVE_Para1 = 0.2\n</VE_Solver>\nVE_Para1 = 3"));
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.2);
}

TEST(ViscoelasticTags, NothingElseInTheClosingLineIsRead) {
  CZEBCMPVEParm block;
  readText(block, fileWith({}, "<VE_Solver>\nVE_Para1 = 0.2 </VE_Solver>\n<Complete_PTT> PTT_Xi = 2\n</Complete_PTT>"));
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.7);
  EXPECT_EQ(block.getCompletePTTParam_Xi(), 0.0) << "nor in the opening line";
}

// --- The strain rates -------------------------------------------------------------------------------------------

TEST(ViscoelasticStrainRates, ListSwallowsEveryLaterBlockAndKey) {
  const std::string opening = "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nRefTemperature = 240\nTotalSetofInputSRate = 3\n";
  const std::string swallowed =
      "DeltaTime = 5\nFlagIsPlotElongVis_Transient = 1\nTotalSetofInputSRate = 9\nStrainRate = 0.5\n"
      "</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n" +
      std::string(kDistinctBody) +
      "<PLOT_MATERIAL>\nFlagIsPlotShearVis = 1\nStrainRate = 1.5\n</PLOT_MATERIAL>\n"
      "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nTargetTime = 7\n the StrainRate of set 3 = 2.5\nStrainRate = 3.5\n"
      "</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n";
  CZEBCMPVEParm block, other;
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readText(block, fileWith({}, opening + swallowed)), 1); }), "");
  readText(other, fileWith({}, opening + "StrainRate = 0.5\nStrainRate = 1.5\nStrainRate = 2.5\n"));
  EXPECT_EQ(stateOf(block), stateOf(other));
  EXPECT_EQ(block.getMatFunPlotParam_Transient_NSetofInput_StrainRate(), 3);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_RefTem(), 240.0);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_InputStrainRate()[3], 2.5);
}

TEST(ViscoelasticStrainRates, BlocksInFrontOfTheListAreRead) {
  CZEBCMPVEParm block;
  readText(block, fileWith({}, std::string(kDistinctBody) +
                                   "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nTotalSetofInputSRate = 1\nStrainRate = 2\n"));
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.65);
  EXPECT_EQ(block.getCompletePTTParam_Xi(), 0.375);
}

TEST(ViscoelasticStrainRates, OnlyThoseBehindTheCountsLineAreTaken) {
  CZEBCMPVEParm block;
  readText(block, fileWith({},
                           "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nStrainRate = 7\n"
                           "TotalSetofInputSRate StrainRate SRateUpperBound = 2\nStrainRate = 8\n"));
  EXPECT_EQ(block.getMatFunPlotParam_Transient_SRateUB(), 2.0);
  const double* rates = block.getMatFunPlotParam_Transient_InputStrainRate();
  ASSERT_NE(rates, nullptr);
  EXPECT_EQ(rates[0], 0.0);
  EXPECT_EQ(rates[1], 8.0);
  EXPECT_EQ(rates[2], 0.0);
}

TEST(ViscoelasticStrainRates, ElongationFlagBehindTheCountComesTooLate) {
  CZEBCMPVEParm block;
  EXPECT_EQ(printedBy([&] {
              readText(block, fileWith({},
                                       "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nTotalSetofInputSRate = 1\n"
                                       "FlagIsPlotElongVis_Transient = 1\nStrainRate = 8\n"));
            }),
            "");
  EXPECT_FALSE(block.getMatFunPlotParam_Transient_isPlotMaterialFun());
}

TEST(ViscoelasticStrainRates, CountTooLargeIsToldByRank0Only) {
  const TestFolder folder;
  const std::string name = folder.write(
      "thing.vecmp", fileWith({}, "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nTotalSetofInputSRate = 1000001\n"));
  const auto printedOn = [&](CZEBCom& com) {
    CZEBCMPVEParm block;
    return printedBy([&] { EXPECT_EQ(zeb::readViscoelasticFile(name, block, {.com = &com}, nullptr), 1); });
  };
  zeb::RecordingCommunicator first(2);
  const std::string told = printedOn(first);
  EXPECT_EQ(told.find('\n'), told.size() - 1);
  EXPECT_NE(told.find("TotalSetofInputSRate = 1000001"), told.npos);
  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  EXPECT_EQ(printedOn(second), "");
}

// --- The default file -------------------------------------------------------------------------------------------

// Everything behind the head is the same for all models.
std::string defaultFileOf(const std::string& head) {
  const std::string text = kDefaultFile;
  return head + text.substr(text.find("-1\n"));
}

TEST(DefaultViscoelasticFile, HasTheBoundsOfItsModel) {
  const char* const kModel2Head =
      "1006\n"
      "0.000000 1.000000 0.000000\n"
      "1000.000000 1.000000 5000.000000\n"
      "20.000000 0.010000 20.000000\n"
      "1000.000000 1000000.000000\n"
      "0.000000 10000.000000 0.000000\n"
      "10.000000 1.000000 50.000000\n"
      "2 0.000000 0\n";
  const std::string kModel3Head =
      "1006\n"
      "0.000000 1.000000 0.000000\n"
      "1000.000000 1.000000 5000.000000\n"
      "20.000000 1.000000 20.000000\n"
      "1000.000000 1000000.000000\n"
      "0.000000 10000.000000 0.000000\n"
      "10.000000 1.000000 50.000000\n";
  const std::pair<int, std::string> heads[] = {
      {2, kModel2Head}, {3, kModel3Head + "3 0.000000 0\n"}, {19, kModel3Head + "19 0.000000 0\n"}};
  for (const auto& [model, head] : heads) {
    const TestFolder folder;
    const std::string name = folder.path("thing.vecmp");
    CZEBCMPVEParm block;
    block.setVEModel(model);
    block.setTgPoint(120.0);
    EXPECT_EQ(zeb::readViscoelasticFile(name, block, zeb::LineSource{}, nullptr), -1);
    EXPECT_EQ(contentOf(name), defaultFileOf(head)) << model;
    const auto before = stateOf(block);
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(zeb::readViscoelasticFile(name, block, zeb::LineSource{}, nullptr), 1); }), "");
    EXPECT_EQ(block.getCtrlParam_TLowBond(), 120.0);
    EXPECT_EQ(stateOf(block).size(), before.size());
  }
}

TEST(DefaultViscoelasticFile, TakesThePlaceOfAnInvalidOneWithTheModelThatWasSet) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", fileWith({{8, "4 0.5 0"}, {9, "-1"}}));
  CZEBCMPVEParm block;
  block.setVEModel(2);
  EXPECT_EQ(zeb::readViscoelasticFile(name, block, zeb::LineSource{}, nullptr), -1);
  EXPECT_EQ(block.getVEModel(), 2);
  EXPECT_NE(contentOf(name).find("\n2 0.000000 0\n-1\n"), std::string::npos);
}

TEST(DefaultViscoelasticFile, NewerInvalidFileTakesThePlaceOfAnOlderBackup) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", "newer\n");
  folder.write("thing.vecmp.bak", "older\n");
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, CZEBCMPVEParm()), 1);
  EXPECT_EQ(contentOf(name), kDefaultFile);
  EXPECT_EQ(contentOf(name + ".bak"), "newer\n");
}

TEST(DefaultViscoelasticFile, BackupIsTheFileItself) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", "nonsense\n");
  const auto written = std::filesystem::last_write_time(name) - std::chrono::hours(5);
  std::filesystem::last_write_time(name, written);
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, CZEBCMPVEParm()), 1);
  EXPECT_EQ(std::filesystem::last_write_time(name + ".bak"), written);
}

TEST(DefaultViscoelasticFile, UntouchedDefaultOfAnotherModelDoesNotPushTheUsersFileOut) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", "nonsense\n");
  for (const int model : {1, 3, 2}) {
    CZEBCMPVEParm block;
    block.setVEModel(model);
    EXPECT_EQ(zeb::readViscoelasticFile(name, block, zeb::LineSource{}, nullptr), -1);
    EXPECT_NE(contentOf(name).find("\n" + std::to_string(model) + " 0.000000 0\n"), std::string::npos);
    EXPECT_EQ(contentOf(name + ".bak"), "nonsense\n") << model;
  }
}

TEST(DefaultViscoelasticFile, JobsThatWriteAtTheSameTimeKeepTheUsersFile) {
  constexpr int kRounds = 50, kJobs = 4;
  for (int round = 0; round < kRounds; ++round) {
    const TestFolder folder;
    const std::string name = folder.write("thing.vecmp", "nonsense\n");
    std::vector<int> results(kJobs);
    std::vector<std::thread> jobs;
    for (int job = 0; job < kJobs; ++job) {
      jobs.emplace_back([&, job] {
        CZEBCMPVEParm block;
        block.setVEModel(job % 2 + 1);
        block.InitBoundingParameters();
        results[static_cast<std::size_t>(job)] = zeb::writeDefaultViscoelasticFile(name, block);
      });
    }
    for (std::thread& job : jobs) job.join();
    ASSERT_EQ(results, (std::vector<int>(kJobs, 1)));
    ASSERT_EQ(contentOf(name + ".bak"), "nonsense\n") << "round " << round;
    ASSERT_EQ(contentOf(name).substr(0, 5), "1006\n");
    const auto files = std::filesystem::directory_iterator(folder.path());
    ASSERT_EQ(std::distance(begin(files), end(files)), 2) << "no temporary is left";
  }
}

}  // namespace
