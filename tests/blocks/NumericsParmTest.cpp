// The numerics blocks: defaults and dumps, the keys that are not named as their members, echoes, the section's end.
#include "blocks/CZEBCMPCompressibleFlowParm.h"
#include "blocks/CZEBCMPCtrlHRSystemParm.h"
#include "blocks/CZEBCMPFEMParm.h"
#include "blocks/CZEBCMPHRSchemesParm.h"
#include "blocks/CZEBCMPIBMParm.h"
#include "blocks/CZEBCMPMAFVMParm.h"
#include "blocks/CZEBCMPRegionVersionParm.h"
#include "blocks/CZEBCMPSAMGCtrlParm.h"
#include "blocks/CZEBCMPStableFlagParm.h"
#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"
#include "blocks/CZEBCMP_BaseRBF_Parm.h"
#include "blocks/CZEBCMP_FaceRBF_Parm.h"
#include "blocks/CZEBCMP_IBRBF_Parm.h"
#include "tests/blocks/ChangedLines.hpp"

namespace {

using zebtest::changedLines;
using zebtest::DefaultDump;
using zebtest::dumpOf;
using zebtest::dumpOfEmptySection;
using zebtest::LineCase;
using zebtest::printedBy;
using zebtest::readSectionInto;

// clang-format off
constexpr DefaultDump kDefaultDumps[] = {
    {"TimeStepSizeCtrl", &dumpOfEmptySection<CZEBCMPTimeStepSizeCtrlParm>,
     "\n---------TimeStepSizeCtrl Parameters---------\n"
     "m_iNewMethod\t\t= 1\n"
     "m_dInitialDt\t\t= 0.002\n"
     "m_iVof_Scheme\t\t= 0\n"
     "m_iHRVof\t\t\t= 0\n"
     "m_dFixDt\t\t\t= -1\n"
     "m_iMFType\t\t\t= 2\n"
     "m_iRTMVof\t\t\t= 0\n"
     "m_iRTMFrontNSubdt\t= 1\n"},
    {"HRSchemes", &dumpOfEmptySection<CZEBCMPHRSchemesParm>,
     "\n---------HRSchemes Parameters---------\n"
     "m_iHRMethod\t\t= 0\n"
     "m_dHRKr\t\t\t= 0.8\n"
     "m_iHRDtMethod \t\t= 0\n"
     "m_iHRPhaseField \t= 0\n"
     "m_dHRCompressiveC \t= 0.25\n"
     "m_dHRRatio\t\t\t= 0.1\n"
     "m_iHRSkewness\t\t= 0\n"
     "m_dFCRI \t\t\t= 0.9\n"
     "m_iNSmoothVolF \t= 2\n"},
    {"CtrlHRSystem", &dumpOfEmptySection<CZEBCMPCtrlHRSystemParm>,
     "\n---------CtrlHRSystemParm Parameters---------\n"
     "m_iHRShearRateCtrl\t\t= 1\n"
     "m_iHRDtCtrlMethod\t\t= 3\n"
     "m_dHRDtCtrlFactor\t\t= 1.1\n"
     "m_dHRDtCtrlFactor_2\t= 1.08\n"},
    {"StableFlag", &dumpOfEmptySection<CZEBCMPStableFlagParm>,
     "\n---------StableFlag Parameters---------\n"
     "m_nSmooth_dP\t\t\t\t\t\t= 2\n"
     "m_nPJMSmooth_dP\t\t\t\t\t= 0\n"
     "m_iRead_f2f\t\t\t\t\t\t= 0\n"
     "m_iGradType\t\t\t\t\t\t= 0\n"
     "m_iIterNum_MeltFrontTemperature\t= 10\n"},
    {"CompressibleFlow", &dumpOfEmptySection<CZEBCMPCompressibleFlowParm>,
     "\n---------CompressibleFlow Parameters---------\n"
     "m_iCompressible\t\t\t\t= 0\n"
     "m_iCompressible_SIMPLER_Niter\t= 20\n"
     "m_iCompressible_CM_Niter\t\t= 30\n"
     "m_dCompressible_SIMPLER_Tol\t= 0.002\n"
     "m_dCompressible_PISO_Tol\t\t= 0.002\n"
     "m_dCompressible_TolPres\t\t= 0.02\n"
     "m_dCompressible_U_Tol\t\t\t= 0.002\n"
     "m_dCompressible_V_Tol\t\t\t= 0.002\n"
     "m_dCompressible_W_Tol\t\t\t= 0.002\n"
     "m_dCompressible_U_Relax\t\t= 0.7\n"
     "m_dCompressible_V_Relax\t\t= 0.7\n"
     "m_dCompressible_W_Relax\t\t= 0.7\n"
     "m_dCompressible_CM_P_Tol\t\t= 5e-05\n"
     "m_dCompressible_CM_P_Relax\t\t= 0.6\n"
     "m_iUseNormalStressTerm\t\t\t= 0\n"
     "m_dAirdDdp\t\t\t\t\t\t= 0\n"
     "m_dVentAirDdp\t\t\t\t\t= 1e-08\n"},
    {"SAMGParaCtrl", &dumpOfEmptySection<CZEBCMPSAMGCtrlParm>,
     "\n---------SAMG Ctrl Parameters---------\n"
     "m_iDebugMode\t= 0\n"
     "m_n_Default\t= 17\n"
     "m_n_nrd\t\t= 12\n"
     "m_n_nru\t\t= -12\n"
     "m_n_RES_SCRATC = 100\n"},
    {"IBM", &dumpOfEmptySection<CZEBCMPIBMParm>,
     "\n---------IBM Parameters---------\n"
     "m_iIsIBM\t\t= 0\n"},
    {"FEM", &dumpOfEmptySection<CZEBCMPFEMParm>,
     "\n---------FEM Parameters---------\n"
     "m_iIsFEM\t\t\t\t= 0\n"},
    {"RegionVersion", &dumpOfEmptySection<CZEBCMPRegionVersionParm>,
     "\n---------RegionVersion Parameters---------\n"
     "m_iRegionVersion\t\t= 0\n"},
    {"MAFVM", &dumpOfEmptySection<CZEBCMPMAFVMParm>,
     "\n---------MAFVM Parameters---------\n"
     "m_iIsMAFVM\t\t\t\t= 0\n"
     "m_iIsMAFVM_Flow\t\t= 0\n"
     "m_iIsMAFVM_Thermal\t\t= 0\n"},
    {"FaceRBF", &dumpOfEmptySection<CZEBCMP_FaceRBF_Parm>,
     "\n---------FaceRBF Parameters---------\n"
     "m_iVersion\t\t\t= 1004\n"
     "m_iSpan\t\t\t= 1000\n"
     "m_iSearch_method\t= 4\n"
     "m_dSearch_distance\t= -1\n"
     "m_iSearch_number\t= 20\n"
     "m_iDebugMode\t\t= 0\n"},
    {"IBRBF", &dumpOfEmptySection<CZEBCMP_IBRBF_Parm>,
     "\n---------IBRBF Parameters---------\n"
     "m_iVersion\t\t\t= 1002\n"
     "m_iSpan\t\t\t= 500\n"
     "m_iSearch_method\t= 3\n"
     "m_dSearch_distance\t= -1\n"
     "m_iSearch_number\t= 20\n"
     "m_iDebugMode\t\t= 0\n"},
    {"BaseRBF", &dumpOfEmptySection<CZEBCMP_BaseRBF_Parm>,
     "\n---------BaseRBF Parameters---------\n"
     "m_iVersion\t\t\t= 1001\n"
     "m_iSpan\t\t\t= 500\n"
     "m_nShapeNormalize\t= 0\n"
     "m_iDebugMode\t\t= 0\n"},
};
// clang-format on

TEST(NumericsParm, EmptySectionLeavesTheDefaults) {
  for (const DefaultDump& block : kDefaultDumps) EXPECT_EQ(block.dump(block.section), block.expected) << block.section;
}

// clang-format off
constexpr LineCase kLineCases[] = {
    {"TimeStepSizeCtrl", &changedLines<CZEBCMPTimeStepSizeCtrlParm>, "FrontMethod = 3", "m_iVof_Scheme\t\t= 3\n"},
    {"TimeStepSizeCtrl", &changedLines<CZEBCMPTimeStepSizeCtrlParm>, "Vof_Scheme = 3", ""},
    {"HRSchemes", &changedLines<CZEBCMPHRSchemesParm>, "HRCompC = 0.5", "m_dHRCompressiveC \t= 0.5\n"},
    {"HRSchemes", &changedLines<CZEBCMPHRSchemesParm>, "HRCompressiveC = 0.5", ""},
    {"CtrlHRSystem", &changedLines<CZEBCMPCtrlHRSystemParm>, "HRDtCtrlFactor1 = 1.2", "m_dHRDtCtrlFactor\t\t= 1.2\n"},
    {"CtrlHRSystem", &changedLines<CZEBCMPCtrlHRSystemParm>, "HRDtCtrlFactor2 = 1.2", "m_dHRDtCtrlFactor_2\t= 1.2\n"},
    {"CtrlHRSystem", &changedLines<CZEBCMPCtrlHRSystemParm>, "HRDtCtrlFactor = 1.2", ""},
    {"StableFlag", &changedLines<CZEBCMPStableFlagParm>, "iGradType = 3", "m_iGradType\t\t\t\t\t\t= 3\n"},
    {"StableFlag", &changedLines<CZEBCMPStableFlagParm>, "GradType = 3", ""},
    {"StableFlag", &changedLines<CZEBCMPStableFlagParm>, "nPJMSmooth_dP = 7", "m_nPJMSmooth_dP\t\t\t\t\t= 7\n"},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "Compressible_UVW_Tol = 0.01",
     "m_dCompressible_U_Tol\t\t\t= 0.01\nm_dCompressible_V_Tol\t\t\t= 0.01\nm_dCompressible_W_Tol\t\t\t= 0.01\n"},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "Compressible_UVW_Relax = 0.5",
     "m_dCompressible_U_Relax\t\t= 0.5\nm_dCompressible_V_Relax\t\t= 0.5\nm_dCompressible_W_Relax\t\t= 0.5\n"},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "Compressible_SIMPLE_Niter = 5",
     "m_iCompressible_SIMPLER_Niter\t= 5\n"},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "Compressible_SIMPLER_Niter = 5", ""},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "Compressible_PISO_Tol = 0.5", ""},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "VentdDdp = 5e-9",
     "m_dVentAirDdp\t\t\t\t\t= 5e-09\n"},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "VentAirDdp = 5e-9", ""},
    {"SAMGParaCtrl", &changedLines<CZEBCMPSAMGCtrlParm>, "n_RES_SCRATCH = 7", "m_n_RES_SCRATC = 7\n"},
    {"SAMGParaCtrl", &changedLines<CZEBCMPSAMGCtrlParm>, "n_levelx = 7", ""},
    {"MAFVM", &changedLines<CZEBCMPMAFVMParm>, "IsFlow = 1", "m_iIsMAFVM_Flow\t\t= 1\n"},
    {"MAFVM", &changedLines<CZEBCMPMAFVMParm>, "IsThermal = 1", "m_iIsMAFVM_Thermal\t\t= 1\n"},
    {"FaceRBF", &changedLines<CZEBCMP_FaceRBF_Parm>, "Search_method = 1", ""},
    {"FaceRBF", &changedLines<CZEBCMP_FaceRBF_Parm>, "iSearch_method = 1", "m_iSearch_method\t= 1\n"},
    {"FaceRBF", &changedLines<CZEBCMP_FaceRBF_Parm>, "DebugMode = 2", "m_iDebugMode\t\t= 2\n"},
    {"FaceRBF", &changedLines<CZEBCMP_FaceRBF_Parm>, "Search_distance = 0.5", "m_dSearch_distance\t= 0.5\n"},
    {"IBRBF", &changedLines<CZEBCMP_IBRBF_Parm>, "Search_method = 1", ""},
    {"IBRBF", &changedLines<CZEBCMP_IBRBF_Parm>, "iSearch_method = 1", "m_iSearch_method\t= 1\n"},
    {"IBRBF", &changedLines<CZEBCMP_IBRBF_Parm>, "Debug = 2", "m_iDebugMode\t\t= 2\n"},
    {"BaseRBF", &changedLines<CZEBCMP_BaseRBF_Parm>, "Shape_Normalize = 1", "m_nShapeNormalize\t= 1\n"},
    {"BaseRBF", &changedLines<CZEBCMP_BaseRBF_Parm>, "Debug = 2", ""},
    {"BaseRBF", &changedLines<CZEBCMP_BaseRBF_Parm>, "DebugMode = 2", ""},
    // Several keys in one line all take its value.
    {"HRSchemes", &changedLines<CZEBCMPHRSchemesParm>, "HRMethod HRSkewness = 4",
     "m_iHRMethod\t\t= 4\nm_iHRSkewness\t\t= 4\n"},
    // No range, no clamp.
    {"HRSchemes", &changedLines<CZEBCMPHRSchemesParm>, "NSmoothVolF = -2000000000", "m_iNSmoothVolF \t= -2000000000\n"},
    {"TimeStepSizeCtrl", &changedLines<CZEBCMPTimeStepSizeCtrlParm>, "InitialDt = -1e300",
     "m_dInitialDt\t\t= -1e+300\n"},
};
// clang-format on

TEST(NumericsParm, KeySetsItsMembersAndNoOther) {
  for (const LineCase& test : kLineCases) {
    EXPECT_EQ(test.changed(test.section, test.line), test.expected) << test.section << ": " << test.line;
  }
}

TEST(CompressibleFlowParm, EveryStoredValueButTheSwitchIsEchoed) {
  // clang-format off
  const struct { const char* line; const char* echo; } cases[] = {
      {"CompressibleFlow = 1", ""},
      {"Compressible_SIMPLE_Niter = 21", "Compressible_SIMPLE_Niter = 21\n"},
      {"Compressible_CM_Niter = 31", "Compressible_CM_Niter = 31\n"},
      {"Compressible_SIMPLE_Tol = 0.003", "Compressible_SIMPLE_Tol = 0.003\n"},
      {"Compressible_TolPres = 0.03", "Compressible_TolPres = 0.03\n"},
      {"Compressible_UVW_Tol = 0.01", "Compressible_UVW_Tol    = 0.01\n"},
      {"Compressible_CM_P_Tol = 0.00001234567", "Compressible_P_Tol    = 1.23457e-05\n"},
      {"Compressible_UVW_Relax = 0.5", "Compressible_UVW_Relax    = 0.5\n"},
      {"Compressible_CM_P_Relax = 0.4", "Compressible_P_Relax    = 0.4\n"},
      {"UseNormalStressTerm = 1", "UseNormalStressTerm     = 1\n"},
      {"AirdDdp = 2", "AirdDdp     = 2\n"},
      {"VentdDdp = 5e-9", "m_dVentAirDdp     = 5e-09\n"},
      {"VentAirDdp = 5e-9", ""},
      {"AirdDdp = none", ""},
  };
  // clang-format on
  for (const auto& test : cases) {
    CZEBCMPCompressibleFlowParm block;
    EXPECT_EQ(printedBy([&] { readSectionInto(block, "CompressibleFlow", test.line); }), test.echo) << test.line;
  }
}

TEST(CompressibleFlowParm, EchoesOfOneLineComeInTheReadersOrder) {
  CZEBCMPCompressibleFlowParm block;
  EXPECT_EQ(printedBy([&] {
              readSectionInto(block, "CompressibleFlow", "VentdDdp UseNormalStressTerm Compressible_CM_P_Tol = 1\n");
            }),
            "Compressible_P_Tol    = 1\nUseNormalStressTerm     = 1\nm_dVentAirDdp     = 1\n");
}

TEST(NumericsParm, ValueThatDoesNotParseChangesNothing) {
  EXPECT_EQ(changedLines<CZEBCMPTimeStepSizeCtrlParm>("TimeStepSizeCtrl", "NewMethod = no\nFixDt =\nHRVof\n"), "");
}

TEST(NumericsParm, UnknownKeysBlankLinesAndCommentsAreIgnoredSilently) {
  CZEBCMPIBMParm block;
  EXPECT_EQ(printedBy([&] { readSectionInto(block, "IBM", "\n# a comment\nunknown = 1\nisibm = 1\n[/IBM]\n"); }), "");
  EXPECT_EQ(block.iIsIBM(), 0);
}

TEST(NumericsParm, ClosingTagEndsTheSectionAnywhereInItsLine) {
  CZEBCMPIBMParm block;
  EXPECT_EQ(readSectionInto(block, "IBM", "x [/IBM]\nIsIBM = 1\n"), "IsIBM = 1\n");
  EXPECT_EQ(block.iIsIBM(), 0);
}

TEST(NumericsParm, NothingElseInTheClosingLineIsRead) {
  CZEBCMPIBMParm block;
  readSectionInto(block, "IBM", "IsIBM = 1 [/IBM]\n");
  EXPECT_EQ(block.iIsIBM(), 0);
}

TEST(NumericsParm, UnclosedSectionTakesTheLinesOfLaterSectionsForItsOwn) {
  CZEBCMPRegionVersionParm block;
  EXPECT_EQ(printedBy([&] { readSectionInto(block, "RegionVersion", "[IBM]\nRegionVersion = 5\n[/IBM]"); }), "");
  EXPECT_EQ(block.iRegionVersion(), 5);
}

TEST(SAMGCtrlParm, LevelxIsZeroUntilReadAndNeverDumped) {
  CZEBCMPSAMGCtrlParm block;
  EXPECT_EQ(block.n_levelx(), 0);
  readSectionInto(block, "SAMGParaCtrl", "n_levelx = 9\n");
  EXPECT_EQ(block.n_levelx(), 9);
  EXPECT_EQ(dumpOf(block).find("levelx"), std::string::npos);
}

TEST(NumericsParm, SettersSetTheirMember) {
  CZEBCMPTimeStepSizeCtrlParm timeStep;
  timeStep.SetFixDt(0.25);
  timeStep.SetHRVof(4);
  timeStep.SetVof_Scheme(5);
  EXPECT_EQ(timeStep.dFixDt(), 0.25);
  EXPECT_EQ(timeStep.iHRVof(), 4);
  EXPECT_EQ(timeStep.iVof_Scheme(), 5);

  CZEBCMPHRSchemesParm schemes;
  schemes.SetHRMethod(6);
  EXPECT_EQ(schemes.iHRMethod(), 6);

  CZEBCMPStableFlagParm flags;
  flags.SetnSmooth_dP(7);
  flags.SetnPJMSmooth_dP(8);
  EXPECT_EQ(flags.nSmooth_dP(), 7);
  EXPECT_EQ(flags.nPJMSmooth_dP(), 8);

  CZEBCMPCompressibleFlowParm flow;
  flow.SetVentAirDdp(2e-7);
  EXPECT_EQ(flow.dVentAirDdp(), 2e-7);
}

TEST(NumericsParm, AssignmentCopiesEveryMember) {
  CZEBCMP_FaceRBF_Parm source;
  readSectionInto(source, "FaceRBF",
                  "Version = 1\nSpan = 2\niSearch_method = 3\nSearch_distance = 4.5\nSearch_number = 6\nDebug = 7\n");
  CZEBCMP_FaceRBF_Parm target;
  target = source;
  EXPECT_EQ(target.Version(), 1);
  EXPECT_EQ(target.Span(), 2);
  EXPECT_EQ(target.SearchMethod(), 3);
  EXPECT_EQ(target.SearchDistance(), 4.5);
  EXPECT_EQ(target.SearchNumber(), 6);
  EXPECT_EQ(target.DebugMode(), 7);
}

}  // namespace
