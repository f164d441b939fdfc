// The list of strain rates at the end of the viscoelastic file, and what an observer learns of the whole file.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "engine/ReadObserver.hpp"
#include "tests/viscoelastic/ViscoelasticSupport.hpp"

namespace {

using zebtest::fileWith;
using zebtest::printedBy;
using zebtest::readText;

// --- The strain rates -------------------------------------------------------------------------------------------

std::string transient(const std::string& lines) {
  return fileWith({}, "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\n" + lines);
}

TEST(ViscoelasticStrainRates, LargestCountIsAccepted) {
  CZEBCMPVEParm block;
  EXPECT_EQ(printedBy([&] { readText(block, transient("TotalSetofInputSRate = 1000000\nStrainRate = 1\n")); }), "");
  EXPECT_EQ(block.getMatFunPlotParam_Transient_NSetofInput_StrainRate(), 1000000);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_InputStrainRate()[1000000], 0.0);
}

TEST(ViscoelasticStrainRates, ArrayIsMadeOnlyOnce) {
  CZEBCMPVEParm block;
  readText(block, transient("TotalSetofInputSRate = 1\nStrainRate = 5\n"));
  const double* first = block.getMatFunPlotParam_Transient_InputStrainRate();
  const std::string printed = printedBy([&] {
    readText(block, transient("TotalSetofInputSRate = 3\nStrainRate = 6\nStrainRate = 7\n"
                              "FlagIsPlotElongVis_Transient = 1\n</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n"
                              "<VE_Solver>\nVE_Para1 = 0.2\n"));
  });
  EXPECT_EQ(block.getMatFunPlotParam_Transient_InputStrainRate(), first);
  EXPECT_EQ(first[1], 5.0);
  EXPECT_EQ(block.getMatFunPlotParam_Transient_NSetofInput_StrainRate(), 3);
  EXPECT_EQ(block.getRelaxationFactor_Tau(), 0.2) << "no list, so the closing tag counts";
  EXPECT_NE(printed.find("TotalSetofInputSRate         = 3\n#1 StrainRate                = 5\n***"), printed.npos)
      << printed;
}

TEST(ViscoelasticStrainRates, CopiesShareTheArray) {
  CZEBCMPVEParm assigned;
  const double* rates = nullptr;
  {
    CZEBCMPVEParm block;
    readText(block, transient("TotalSetofInputSRate = 1\nStrainRate = 5\n"));
    rates = block.getMatFunPlotParam_Transient_InputStrainRate();
    const CZEBCMPVEParm copy(block);
    EXPECT_EQ(copy.getMatFunPlotParam_Transient_InputStrainRate(), rates);
    assigned = copy;
  }
  EXPECT_EQ(assigned.getMatFunPlotParam_Transient_InputStrainRate(), rates);
  EXPECT_EQ(rates[1], 5.0);
}

// --- What an observer learns ------------------------------------------------------------------------------------

class Watcher final : public zeb::ReadObserver {
 public:
  void keyFound(const zeb::KeyEvent& event) override {
    const char* outcomes[] = {"stored", "unparsed", "gated", "not stored", "refused"};
    events.push_back(std::to_string(event.lineNumber) + " " + std::string(event.row.field.member) + " " +
                     std::string(event.value) + " " + outcomes[static_cast<int>(event.outcome)]);
  }
  void viscoelasticRefused(int lineNumber, std::string_view reason) override {
    EXPECT_FALSE(reason.empty());
    events.push_back("refused " + std::to_string(lineNumber));
  }
  void lineOutside(int lineNumber, std::string_view) override {
    events.push_back("outside " + std::to_string(lineNumber));
  }
  void sectionUnclosed(const zeb::Section&, int) override { events.push_back("unclosed"); }

  std::vector<std::string> events;
};

std::vector<std::string> eventsOf(const std::string& text) {
  CZEBCMPVEParm block;
  Watcher watcher;
  printedBy([&] { readText(block, text, &watcher); });
  return watcher.events;
}

using Events = std::vector<std::string>;

TEST(ViscoelasticObserver, LearnsWhichHeadLineSetAMember) {
  EXPECT_EQ(eventsOf(fileWith({{2, "150 0 0"}, {4, " 20 0.5"}, {8, "4 0.3 1"}, {9, "0"}})),
            (Events{"1 m_iVECMPVersion 1006 stored", "2 m_dTLowBond 150 stored", "4 m_dStressUpBond  20 stored",
                    "4 m_dModifyLamdaStressUB  0.5 stored", "8 m_iVEModel 4 stored", "8 m_bPlotMaterialFun  1 stored",
                    "8 m_bModifyGradient  0.3 stored", "8 m_dSmoothFactor  0.3 stored"}));
}

TEST(ViscoelasticObserver, LearnsWhyAFileIsRefused) {
  EXPECT_EQ(eventsOf("1005\n"), (Events{"refused 1"}));
  EXPECT_EQ(eventsOf(fileWith({{8, "4 0 0"}, {9, "-1"}})).back(), "refused 9");
  EXPECT_EQ(eventsOf(fileWith({{8, "20 0 0"}, {9, "0"}})).back(), "refused 8");
}

TEST(ViscoelasticObserver, TakesTheSkippedBlockForKnownAndTheListForClosed) {
  EXPECT_EQ(
      eventsOf(transient("TotalSetofInputSRate = 1\nStrainRate = 2\n</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n")).back(),
      "11 m_nTransient_InputStrainRate 1 stored");
  EXPECT_EQ(eventsOf(transient("TotalSetofInputSRate = 1\nStrainRate = 2\n")).back(), "unclosed");
  EXPECT_EQ(eventsOf(fileWith({},
                              "<PLOT_TRANSIENT_SHEAR_MATERIAL>\nShearRate = 1\n"
                              "</PLOT_TRANSIENT_SHEAR_MATERIAL>\nlost\n"))
                .back(),
            "outside 13");
  const Events refused = eventsOf(transient("TotalSetofInputSRate = 2000000\nStrainRate = 2\n"));
  EXPECT_NE(std::find(refused.begin(), refused.end(), "11 m_nTransient_InputStrainRate 2000000 refused"),
            refused.end());
}

}  // namespace
