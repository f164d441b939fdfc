// The list of strain rates at the end of the viscoelastic file, and what an observer learns of the whole file.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

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

}  // namespace
