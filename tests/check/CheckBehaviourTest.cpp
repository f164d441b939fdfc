// What the rules say where several of them meet, and what they keep silent about.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/check/CheckSupport.hpp"
#include "tests/support/TestFolder.hpp"

namespace {

using testing::HasSubstr;
using zebtest::Checking;
using zebtest::findingsIn;
using zebtest::told;

struct Case {
  const char* name;
  std::string content;
  std::vector<std::string> found;  // "line rule", in order
  zeb::FileKind kind = zeb::FileKind::kCmp;
};

void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }

class CheckBehaviour : public testing::TestWithParam<Case> {};

TEST_P(CheckBehaviour, FindsThisAndNothingElse) {
  std::vector<std::string> actual;
  const auto findings = findingsIn(GetParam().content, {.kind = GetParam().kind});
  for (const auto& finding : findings) {
    actual.push_back(std::to_string(finding.place.line) + " " + zebtest::idOf(finding));
  }
  EXPECT_EQ(actual, GetParam().found) << told(findings);
}

std::string in(const std::string& section, const std::string& lines) {
  return "[" + section + "]\n" + lines + "[/" + section + "]\n";
}
std::string tagged(const std::string& section, const std::string& lines) {
  return "<" + section + ">\n" + lines + "</" + section + ">\n";
}

// The head of version 1023 in 19 lines, of 1013 in the first 17 of them.
const std::string kShortHead =
    "2 2 2 2 2 2\n1 1 1 10\n1\n20 10 2 2 1 1\n100000 50 0.0005 0\n0.01\n0.8 0.8 0.8 1 0 0.8\n5 5 5 100 10 5\n"
    "0.1 0.1 0.1 0.1 0.0001 0.001\n0.7 0.7 0.7 0.6 1 0.9\nx\n0\nx\n1 1\nx\n14 0 0.5\nx\n";
const std::string kHead = kShortHead + "0 1 10000 5 0 -1 -1 0.1 0 200\n2 0 0 0 0 0 0 0 0 10000\n";

INSTANTIATE_TEST_SUITE_P(
    Keys, CheckBehaviour,
    testing::Values(
        Case{"ALineThatStoresNothingRepeatsNothing",
             in("ShortShot", "TimeLimit = 2\nTimeLimit = two\n"),
             {"3 unparsed-value"}},
        Case{"TheOtherSpellingRepeatsTheKey",
             in("General", "FaceVisByHarmonicMean = 1\nVisInterMethod = 0\n"),
             {"3 key-repeated"}},
        Case{"AZeroFractionLosesNothing", in("General", "TempSubdt = 2.0\n"), {}},
        Case{"AFractionBeforeAnExponentDoes", in("General", "TempSubdt = 2.0e3\n"), {"2 int-fraction"}},
        Case{"ATextMayHoldEqualsAndHashes", in("General", "FirstMeshName = a=b#c.m3f\n"), {}},
        Case{"TheLastEqualsIsNotTheValue", in("ShortShot", "TimeLimit = = 3\n"), {"2 several-equals"}},
        Case{"ACommentWithoutAValueSetsNothing", in("ShortShot", "# see TimeLimit\n"), {}},
        Case{"ACommentEmptiesAText", in("General", "# the FirstMeshName follows\n"), {"2 comment-sets-key"}},
        Case{"ALaterLineOfTheOtherKeyHeals",
             in("General", "FixCompressionFaceCK = 1\nCompressionFaceCK = x\n"),
             {"2 several-keys", "3 unparsed-value"}},
        Case{"ProseOutsideOfSectionsIsFree",
             "TimeLimits in general = 5\nnothing = 1\n" + in("Outlet", "IsOutlet = 1\n"),
             {}},
        Case{"ABareWordThatWouldSwitchIsNot", "HeatFluxHistory\n", {"1 key-outside-section"}},
        Case{"TheBareWordsOfTheWhiteboard", in("Whiteboard", "HeatFluxHistory\nElemagComsol 1.5 20 coil.txt\n"), {}},
        Case{"AKeyBesideTheOpening", "[ShortShot] TimeLimit = 2\n[/ShortShot]\n", {"1 key-outside-section"}},
        Case{"AKeyBesideTheClosing", "[ShortShot]\nTimeLimit = 2 [/ShortShot]\n", {"2 key-outside-section"}},
        Case{"TwoKeysInALine",
             in("ShortShot", "TimeLimit = 2 FRLimit = 0.1\n"),
             {"2 several-keys", "2 several-equals"}}),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Gates, CheckBehaviour,
    testing::Values(
        Case{"TheDefaultBehindAClosedGateIsNoLoss", in("AutoVPCtrl", "AutoVPMode = 0\nEstCavityPres = 0.1\n"), {}},
        Case{"SoIsTheDefaultAboveTheGate", in("AutoVPCtrl", "EstCavityPres = 0.1\nAutoVPMode = 1\n"), {}},
        Case{"AGateThatClosedAgain",
             in("AutoVPCtrl", "AutoVPMode = 1\nAutoVPMode = 0\nEstCavityPres = 2\n"),
             {"3 key-repeated", "4 key-gated"}},
        Case{"AGateThatIsSetBelowButStaysShut",
             in("AutoVPCtrl", "EstCavityPres = 2\nAutoVPMode = 0\n"),
             {"2 key-gated"}},
        Case{"AGateThatDoesNotParse",
             in("AutoVPCtrl", "AutoVPMode = on\nEstCavityPres = 2\n"),
             {"2 unparsed-value", "3 key-gated"}},
        Case{"AGateLeftOpenByTheFirstCopy",
             in("AutoVPCtrl", "AutoVPMode = 1\n") + in("AutoVPCtrl", "EstCavityPres = 2\n"),
             {"4 section-repeated"}},
        Case{"PointsBehindAClosedGate",
             in("UNFSetting", "FillType = 1\nPoint_x1 = 0\nPoint_y1 = 3\n"),
             {"4 key-gated"}}),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Sections, CheckBehaviour,
    testing::Values(
        Case{"TwoOpeningsInALine", "[ShortShot] [Outlet]\n[/ShortShot]\n[/Outlet]\n", {"1 section-inside-section"}},
        Case{"AnOpeningWithoutItsBracket", "[Outlet\nIsOutlet = 1\n[/Outlet]\n", {"1 unknown-section"}},
        Case{"AClosingWithoutItsBracket", "[Outlet]\nIsOutlet = 1\n[/Outlet\n", {"3 wrong-closing-tag"}},
        Case{"ASectionThatOnlyMentionsItsName", "# [VER] is the version\n", {}},
        Case{"AHeadInAComment", "# 1023 [VER]\n" + kHead, {"1 comment-opens-section"}},
        Case{"AnUnknownSectionHidesItsKeys",
             "[Nonsense]\nTimeLimit = 2\n[/Nonsense]\nTimeLimit = 2\n",
             {"1 unknown-section", "4 key-outside-section"}},
        Case{"AHeadThatSwallowsAnOpening",
             "[VER] 1023\n" + kShortHead + in("ShortShot", "TimeLimit = 2\n"),
             {"19 positional-too-short"}},
        Case{"ABracketInAFreeLineOfTheHead",
             "[VER] 1023\n" + std::string(kHead).replace(kHead.find("x\n"), 1, "[residual checks]"),
             {}},
        Case{
            "AZeroThatMeansTheDefault", "[VER] 1023\n" + std::string(kHead).replace(kHead.find(" 200\n"), 4, " 0"), {}},
        Case{"ANegativeWeightOfTheHead",
             "[VER] 1023\n" + std::string(kHead).replace(kHead.find("\n2 0 0"), 2, "\n-2"),
             {"20 value-replaced"}},
        Case{"AnEmptyFile", "", {}}),
    [](const auto& test) { return std::string(test.param.name); });

// What is known of a section ends with it.
INSTANTIATE_TEST_SUITE_P(
    SectionsBehindOthers, CheckBehaviour,
    testing::Values(Case{"TheSecondCopyRepeatsNoKey",
                         in("Outlet", "IsOutlet = 1\n") + in("Outlet", "IsOutlet = 1\n"),
                         {"4 section-repeated"}},
                    Case{"OtherKeysAreToldOnce",
                         in("General", "FixCompressionFaceCK = 1\n") + in("Outlet", "IsOutlet = 1\n"),
                         {"2 several-keys"}},
                    Case{"ASectionInsideHidesNoLineOfTheNext",
                         in("ShortShot", "[Outlet]\n") + in("General", "Nonsense = 1\n"),
                         {"2 section-inside-section", "5 unknown-key"}},
                    Case{"ASectionInsideExplainsNothingOfTheNext",
                         in("ShortShot", in("Outlet", "")) + "[Outlet]\nIsOutlet = 1\n[/Outlt]\n",
                         {"2 section-inside-section", "7 wrong-closing-tag"}},
                    Case{"AWrongClosingExplainsNothingOfTheNext",
                         in("Outlet", "[/Outlt]\n") + "[ShortShot]\nTimeLimit = 2\n",
                         {"2 wrong-closing-tag", "4 unclosed-section"}},
                    Case{"AnUnknownSectionEndsWhereAnotherOpens",
                         "[Nonsense]\n" + in("Outlet", "IsOutlet = 1\n") + "TimeLimit = 2\n",
                         {"1 unknown-section", "5 key-outside-section"}},
                    Case{"AShortPositionalSectionExplainsNothingOfTheNext",
                         in("3DCoolingChannel", "1002\n0\n10\n10\n0.5 0.5\n0.5 0.5\n") +
                             in("3DCoolingChannel", "1002\nx\n10\n10\n0.5 0.5\n0.5 0.5\n1 10\n"),
                         {"8 positional-too-short", "9 section-repeated", "11 positional-fields"}},
                    Case{"ATagInAFreeLineExplainsNothingOfTheNext",
                         "[VER] 1023\n" + std::string(kHead).replace(kHead.find("x\n"), 1, "[General]") +
                             in("3DCoolingChannel", "1002\nx\n10\n10\n0.5 0.5\n0.5 0.5\n1 10\n"),
                         {"23 positional-fields"}}),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Lists, CheckBehaviour,
    testing::Values(
        Case{"VentInlets", in("RTM", "IsVentInlet = 1\nNVentInlet = 2\nVentInletID = 3\nVentInletID = 4\n"), {}},
        Case{"TooFewVentInlets", in("RTM", "IsVentInlet = 1\nNVentInlet = 2\nVentInletID = 3\n"), {"3 list-too-short"}},
        Case{"TooManyVentInlets",
             in("RTM", "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = 3\nVentInletID = 4\n"),
             {"5 list-too-long"}},
        Case{"VentInletsWithoutTheirCount", in("RTM", "IsVentInlet = 1\nUsePCG = 1\n"), {"3 list-too-short"}},
        Case{"ARefusedNumberOfVentInlets", in("RTM", "IsVentInlet = 1\nNVentInlet = -2\n"), {"3 count-refused"}},
        Case{"AVentInletWithAFraction",
             in("RTM", "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = 3.5\n"),
             {"4 int-fraction"}},
        Case{"AWeightWithADecimalComma",
             in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0,5\nWeightings = 1\n"),
             {"4 text-after-value"}},
        Case{"PointsThatAreMissing",
             in("UNFSetting", "FillType = 2\nnDispenserPoint = 2\nPoint_x1 = 1\nPoint_y1 = 2\nPoint_y2 = 3\n"),
             {"3 list-too-short"}},
        Case{"AllPointsOfACount",
             in("UNFSetting", "FillType = 2\nnDispenserPoint = 1\nPoint_x1 = 1\nPoint_y1 = 2\n"),
             {}},
        Case{"ACountAboveTheFivePointsThatAFileCanSet",
             in("UNFSetting",
                "FillType = 2\nnDispenserPoint = 7\nPoint_x1 = 1\nPoint_y1 = 1\nPoint_x2 = 2\nPoint_y2 = 2\n"
                "Point_x3 = 3\nPoint_y3 = 3\nPoint_x4 = 4\nPoint_y4 = 4\nPoint_x5 = 5\nPoint_y5 = 5\n"),
             {}},
        Case{"PointsAboveASecondCount",
             in("UNFSetting",
                "FillType = 2\nnDispenserPoint = 1\nPoint_x1 = 1\nPoint_y1 = 2\nnDispenserPoint = 1\nPoint_x1 = 1\n"),
             {"6 key-repeated", "6 list-too-short"}},
        Case{"EveryUnusableLine",
             in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 3\nWeightings = 1\nx\nx\n"),
             {"5 list-too-short", "6 list-too-short"}},
        Case{"TheClosingLineOnce",
             in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 3\nWeightings = 1\n[/MultiGate]\n"),
             {"5 list-consumed-close", "6 list-too-short"}},
        Case{"AListThatTheFileCutsShort",
             "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 3\nWeightings = 0.5\n",
             {"1 unclosed-section", "3 list-too-short"}}),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    AnalysisSettings, CheckBehaviour,
    testing::Values(
        Case{"Clean",
             tagged("FILL_OUTPUT_TIMES", "ValueNoFillOutputTime = 2\n1 = 0.5\n2 = 0.9\n"),
             {},
             zeb::FileKind::kCmx},
        Case{"MisspeltKey", tagged("SOLID_FILL", "ValueGravtyX = 1\n"), {"2 unknown-key"}, zeb::FileKind::kCmx},
        Case{"UnknownBlock", tagged("SOLID_FIL", "ValueGravityX = 1\n"), {"1 unknown-section"}, zeb::FileKind::kCmx},
        Case{"KeyOutside", "ValueGravityX = 1\n", {"1 key-outside-section"}, zeb::FileKind::kCmx},
        Case{"AValueThatStandsForAnother",
             tagged("FILL_OUTPUT_TIMES", "FlagFillMultiOutputType = 3\n"),
             {"2 value-replaced"},
             zeb::FileKind::kCmx},
        Case{"Unclosed", "<SOLID_FILL>\nValueGravityX = 1\n", {"1 unclosed-section"}, zeb::FileKind::kCmx},
        Case{"WrongClosing",
             "<SOLID_FILL>\n</SOLID_FIL>\n</SOLID_FILL>\n",
             {"2 wrong-closing-tag"},
             zeb::FileKind::kCmx},
        Case{"MomentTooMuch",
             tagged("FILL_OUTPUT_TIMES", "ValueNoFillOutputTime = 1\n1 = 0.5\n2 = 0.9\n"),
             {"4 list-too-long"},
             zeb::FileKind::kCmx},
        Case{"MomentTooMuchOfAnyNumber",
             tagged("FILL_OUTPUT_TIMES", "ValueNoFillOutputTime = 1\n1 = 0.5\n90 = 0.9\n"),
             {"4 list-too-long"},
             zeb::FileKind::kCmx},
        Case{"MomentTooFew",
             tagged("FILL_OUTPUT_TIMES", "ValueNoFillOutputTime = 2\n1 = 0.5\n"),
             {"4 list-consumed-close"},
             zeb::FileKind::kCmx},
        Case{"MomentWithoutBlanks",
             tagged("FILL_OUTPUT_TIMES", "ValueNoFillOutputTime = 1\n1=0.5\n"),
             {"3 list-too-short"},
             zeb::FileKind::kCmx},
        Case{"Gates",
             tagged("FILL_ADVANCED_HRSteady", "ValueNoHRGate = 2\nValueHRGateType = 1\n1 = 0.5\n2 = 0.4\n"),
             {},
             zeb::FileKind::kCmx},
        Case{"AGateTooFewTakesAKey",
             tagged("FILL_ADVANCED_HRSteady", "ValueNoHRGate = 2\nValueHRGateType = 1\n1 = 0.5\nValueFlowRate = 3\n"),
             {"5 list-too-short"},
             zeb::FileKind::kCmx},
        Case{"SeveralKeys",
             tagged("FILL_ADVANCED_SlipBC", "FlagSlipBCDebug = 1\n"),
             {"2 several-keys"},
             zeb::FileKind::kCmx},
        Case{"BothSpellingsOfGravity",
             tagged("SOLID_FILL", "ValueGravyX = 1\nValueGravityX = 2\n"),
             {"3 key-repeated"},
             zeb::FileKind::kCmx}),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    StandardSolver, CheckBehaviour,
    testing::Values(
        Case{"Clean", "[VER] 1013\n" + kShortHead + in("General", "AutoHTC = 1\n"), {}, zeb::FileKind::kStd},
        Case{"ASectionOfTheOthers", in("Outlet", "IsOutlet = 1\n"), {}, zeb::FileKind::kStd},
        Case{"AKeyOfTheOthers", in("General", "TempSubdt = 1\n"), {}, zeb::FileKind::kStd},
        Case{"AShortHead", "[VER] 1013\n" + kShortHead.substr(0, 23), {"1 positional-too-short"}, zeb::FileKind::kStd},
        Case{"AFieldOfTheHead",
             "[VER] 1013\n" + std::string(kShortHead).replace(kShortHead.find("0.01\n"), 4, "x.01"),
             {"7 positional-fields"},
             zeb::FileKind::kStd},
        Case{"AnotherVersion", "[VER] 1012\n", {"1 version-unknown"}, zeb::FileKind::kStd}),
    [](const auto& test) { return std::string(test.param.name); });

// --- Messages -----------------------------------------------------------------------------------------------------

TEST(CheckMessages, NameNearKeysAndTheSectionThatHasTheKey) {
  const auto findings = findingsIn(in("Outlet", "AirPresure = 1\nTimeLimit = 2\nb1 = 3\n"));
  ASSERT_EQ(findings.size(), 3u) << told(findings);
  EXPECT_EQ(findings[0].hint, "did you mean AirPressure?");
  EXPECT_EQ(findings[1].hint, "it belongs to [ShortShot]");
  EXPECT_EQ(findings[2].hint, "it belongs to [PVTc], [FIBER_ARD]");
}

TEST(CheckComments, BeginWithAnyOfTheUsualMarks) {
  for (const std::string mark : {"#", ";", "*", "//"}) {
    const std::string line = mark + " TimeLimit = 2\n";
    const auto findings = findingsIn(line + in("ShortShot", line));
    ASSERT_EQ(findings.size(), 1u) << told(findings);
    EXPECT_EQ(findings[0].message, "the comment sets TimeLimit to 2");
  }
}

TEST(CheckMessages, TellSinceWhenTheGateIsShut) {
  const auto findings = findingsIn(in("UNFSetting", "FillType = 2\n") + in("AutoVPCtrl", "EstCavityPres = 2\n"));
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].message, "EstCavityPres is ignored: AutoVPMode is 0 by default; EstCavityPres keeps 0.1");
}

TEST(CheckMessages, CountCharactersNotBytes) {
  const auto findings = findingsIn("\xC3\xBC\xC3\xB6 [Outlet] # \xC3\xA4\n[/Outlet]\n[/Outlet]\n");
  ASSERT_EQ(findings.size(), 1u);
  const auto inside = findingsIn(in("ShortShot", "\xC3\xBC TimeLimit = 2\n"));
  ASSERT_EQ(inside.size(), 1u);
  EXPECT_EQ(inside[0].place.column, 3);
}

TEST(CheckMessages, PointToAFieldBehindBlanks) {
  const auto findings = findingsIn("[VER] 1023\n" + std::string(kHead).replace(kHead.find("\n2 0 0"), 2, "\n  -2"));
  ASSERT_EQ(findings.size(), 1u) << told(findings);
  EXPECT_EQ(findings[0].place.column, 3);
}

TEST(CheckMessages, ShowThePlaceInALongLine) {
  const std::string line = std::string(150, ' ') + "TimeLimit = 2" + std::string(150, ' ') + "x";
  const auto findings = findingsIn(in("ShortShot", line + "\n"));
  ASSERT_EQ(findings.size(), 2u) << told(findings);
  EXPECT_EQ(findings[0].place.column, 164);  // behind "= 2"
  EXPECT_LE(findings[0].place.text.size(), 120u);
  EXPECT_THAT(findings[0].place.text, HasSubstr("TimeLimit = 2"));
  EXPECT_EQ(findings[1].place.column, 255);
}

TEST(CheckLimits, KeepsTheFirstFindingsOfARuleInEachFile) {
  std::string content = "[ShortShot]\n";
  for (int i = 0; i < 1000; ++i) content += "Nonsense = 1\n";
  content += "[/ShortShot]\nTimeLimit = 1\n";
  const zebtest::TemporaryFile first(content), second(content);
  zeb::DiagnosticList found;
  zeb::checkFile(first.path(), zeb::FileKind::kCmp, {}, found);
  zeb::checkFile(second.path(), zeb::FileKind::kCmp, {}, found);
  EXPECT_EQ(found.all().size(), 2u * (zeb::DiagnosticList::kMostPerRule + 1));
  EXPECT_EQ(found.dropped(), 2 * (1000 - zeb::DiagnosticList::kMostPerRule));
}

// --- The viscoelastic file ----------------------------------------------------------------------------------------

// A title of the head, in line 11, that looks like an opening.
std::string headWithTitle(const std::string& title) {
  std::string text = "[VER] 1023\n" + kHead;
  return text.replace(text.find("\nx\n") + 1, 1, title);
}

const std::string kChannelLines = "1002\n0\n10\n10\n0.5 0.5\n0.5 0.5\n1 10\n";

INSTANTIATE_TEST_SUITE_P(
    Odd, CheckBehaviour,
    testing::Values(
        Case{"AFreeLineOfAWholeHeadMayHoldATag", headWithTitle("[General]"), {}},
        Case{"AFreeLineOfAShortHeadMayNot",
             "[VER] 1023\n" + kShortHead.substr(0, kShortHead.find("\nx\n") + 1) + in("General", "TempSubdt = 2\n"),
             {"12 positional-too-short"}},
        Case{"ASectionMayEndBehindItsVersion", "[3DCoolingChannel]\n1002\n", {"1 positional-too-short"}},
        Case{"ASectionMayEndBehindItsOpening", "[3DCoolingChannel]\n", {"1 positional-too-short"}},
        Case{"ALineWithoutAVersion", "[3DCoolingChannel]\nx\n" + kChannelLines, {"2 positional-version"}},
        Case{"ACloseInACommentIsWhyTheNextOneIsStray",
             "[General]\n# up to [/General]\n[/General]\n",
             {"2 comment-closes-section", "3 close-without-open"}},
        Case{"AnAnnouncedListMayBeMissing", in("RTM", "IsVentInlet = 1\n"), {"2 list-too-short"}},
        Case{"AListThatIsNotWantedMayBe", in("RTM", "IsVentInlet = 0\n"), {}},
        Case{"AListWithoutItsCountIsNotRead",
             in("RTM", "IsVentInlet = 1\nUseAirP = 1\nNVentInlet = 0\n"),
             {"3 list-too-short", "4 list-too-long"}},
        Case{"ASwitchSaidToBeOnIsOn", in("Whiteboard", "SensorHeatFlux = 1\nHeatFluxHistory on\n"), {}},
        Case{"ASwitchWithWordsBehindIt", in("Whiteboard", "ElemagComsol 1.5 20.0 coil.txt\n"), {}},
        Case{"ASwitchWhoseWordsAreLost", in("Whiteboard", "ElemagComsol = 1.5 20.0 coil.txt\n"), {"2 presence-value"}},
        Case{"QuotationMarksStay", in("General", "FirstMeshName = \"a.m3f\"\n"), {"2 extras-in-text"}},
        Case{"TheFirstLoneReturnIsTold", "# a\rb\rc\n", {"1 carriage-return"}},
        Case{"ThreeStandsForTwo",
             tagged("FILL_OUTPUT_TIMES", "FlagFillMultiOutputType = 3\n"),
             {"2 value-replaced"},
             zeb::FileKind::kCmx},
        Case{"AnEmptyFileIsAFile", "", {}},
        Case{"ATextIsNoParameterFile", "\nDear reader,\nthis is a letter.\n", {"2 nothing-read"}},
        Case{"ACmpFileReadAsCmx", in("Outlet", "IsOutlet = 1\n"), {"1 nothing-read"}, zeb::FileKind::kCmx},
        Case{"KeysOfTheOtherSolverAreNone", in("General", "IsTurbFlow = 1\n"), {}},
        Case{"KeysOfTheOtherSolversAreNone",
             in("General", "TempSubdt = 2\n") + in("MultiGate", "MultipleGateMethod = 1\nWeightings = 1\n") +
                 "[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/PLOT_DYNAMIC]\n",
             {},
             zeb::FileKind::kStd},
        Case{"WhatNoSolverReadsIsOne", in("General", "TempSubdtt = 2\n"), {"2 inexact-key"}, zeb::FileKind::kCmp}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(CheckHints, NameTheBlankThatAKeyNeeds) {
  const auto findings = findingsIn(in("FAIM", "ShowOverflowGateData=1\n"));
  ASSERT_EQ(findings.size(), 1u) << told(findings);
  EXPECT_EQ(findings[0].hint, "a blank must stand between ShowOverflowGateData and '='");
}

TEST(CheckMessages, NameTheElementsThatAListLacks) {
  const auto findings = findingsIn(
      in("UNFSetting", "FillType = 2\nnDispenserPoint = 2\nPoint_x1 = 1\nPoint_y1 = 2\nnDispenserPoint = 2\n"));
  ASSERT_EQ(findings.size(), 2u) << told(findings);
  EXPECT_EQ(
      findings[0].message,
      "nDispenserPoint was set in line 3 already; this line wins with 2 and sets the elements from above back to 0");
  EXPECT_EQ(findings[1].message, "Point_x1 and 3 more elements of the list are not set and stay 0");
}

TEST(CheckHints, SpeakOfLetterCaseOnlyWhereItIsWrong) {
  EXPECT_THAT(findingsIn("[outlet]\n").at(0).hint, HasSubstr("case-sensitive"));
  EXPECT_EQ(findingsIn("[Outlt]\n").at(0).hint, "did you mean [Outlet]?");
}

TEST(CheckHints, NameTheBlanksThatAnEntryNeeds) {
  const auto hint = [](const std::string& entry) {
    const auto findings =
        findingsIn("<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 1\n" + entry + "\n</FILL_OUTPUT_TIMES>\n",
                   {.kind = zeb::FileKind::kCmx});
    return findings.size() == 1 ? findings[0].hint : told(findings);
  };
  EXPECT_EQ(hint("1=0.5"), "put a blank on each side of '='");
  EXPECT_EQ(hint("1 =0.5"), "put a blank on each side of '='");
  EXPECT_EQ(hint("1\t=\thalf"), "make count and entries agree");
  EXPECT_EQ(hint("1 = 0.5"), "");
}

TEST(CheckHints, NameTheVersion) {
  EXPECT_EQ(findingsIn("[3DCoolingChannel]\n1003\n").at(0).hint, "write 1002 in the line behind [3DCoolingChannel]");
}

TEST(CheckRawFile, PointsToTheFirstLoneReturn) { EXPECT_EQ(findingsIn("# a\rb\rc\n").at(0).place.column, 4); }

constexpr const char* kCompanion =
    "1006\n100 200 0\n11 0.1 12\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n1 0.5 0\n-1\n";

std::vector<zeb::Diagnostic> findingsWith(const std::string& content, const std::string& companion, int molding) {
  const zebtest::TemporaryFile file(content);
  const std::string name = file.path().substr(0, file.path().rfind('.')) + ".vecmp";
  std::ofstream(name, std::ios::binary) << companion;
  Checking checking;
  checking.options.viscoelastic = true;
  checking.options.molding = molding;
  auto findings = zebtest::findingsOf(file.path(), checking);
  std::filesystem::remove(name);
  return findings;
}

std::vector<std::string> companionFindings(const std::string& content, const std::string& companion, int molding = 0) {
  std::vector<std::string> texts;
  for (const auto& finding : findingsWith(content, companion, molding)) {
    texts.push_back((finding.file.ends_with(".vecmp") ? "vecmp " : "cmp ") + std::to_string(finding.place.line) + " " +
                    zebtest::idOf(finding));
  }
  return texts;
}

// Line and text that the refusal of the companion points to.
std::string companionExcerpt(const std::string& companion) {
  for (const auto& finding : findingsWith("", companion, 0)) {
    if (finding.rule == &zeb::kViscoelasticRefused) {
      return std::to_string(finding.place.line) + " " + finding.place.text;
    }
  }
  return "no refusal";
}

using Texts = std::vector<std::string>;

TEST(CheckCompanion, BytesAreLookedAtToo) {
  const std::string companion = std::string(kCompanion) + "# " + std::string(300, 'x') + "\n# \xFF\n# a\r\nlast";
  EXPECT_EQ(companionFindings("", companion), (Texts{"vecmp 10 line-too-long", "vecmp 11 not-utf8",
                                                     "vecmp 12 carriage-return", "vecmp 13 no-final-newline"}));
}

TEST(CheckCompanion, KeysAndTagsAreLookedAtToo) {
  const std::string blocks =
      "<VE_Solver>\nVE_Para1 = 0.5\nVE_Parra1 = 0.5\n</VE_Solver>\n<VE_Solvr>\n</VE_Solvr>\nVE_Para1 = 1\n";
  EXPECT_EQ(companionFindings("", kCompanion + blocks),
            (Texts{"vecmp 12 unknown-key", "vecmp 14 unknown-section", "vecmp 16 key-outside-section"}));
}

TEST(CheckCompanion, FindingsStayWithTheirFile) {
  const std::string cmp = in("ShortShot", "TimeLimit = 2\n") + "[Outlet]\nIsOutlet = 1";
  EXPECT_EQ(
      companionFindings(cmp, std::string(kCompanion).replace(5, 3, "x"), 6),
      (Texts{"cmp 2 repaired-value", "cmp 4 unclosed-section", "cmp 5 no-final-newline", "vecmp 2 positional-fields"}));
}

TEST(CheckCompanion, ValuesThatTheHeadDoesNotTake) {
  const std::string lines = "1006\n10 0 0\n10.5 -1 9\n0.1 0.1 0\n1 10000\n-49 -50 0\n0 0 0\n1 0.5 0\n-1\n";
  EXPECT_EQ(companionFindings("", lines),
            (Texts{"vecmp 2 value-replaced", "vecmp 3 value-replaced", "vecmp 3 value-replaced",
                   "vecmp 5 value-replaced", "vecmp 6 value-replaced"}));
  const auto findings = findingsWith("", lines, 0);
  ASSERT_FALSE(findings.empty());
  EXPECT_EQ(findings[0].message, "10 is not taken for m_dTLowBond");
  EXPECT_EQ(findings[0].hint, "Lower bound of the temperature; only a value above 10 is taken.");
  EXPECT_EQ(findings[1].place.column, 6);
  EXPECT_EQ(findings[4].place.column, 5);
}

TEST(CheckCompanion, AFieldMayBecomeInfiniteInTheUnitOfItsMember) {
  std::string companion = kCompanion;
  companion.replace(companion.find("\n0.1 0.1 0\n") + 1, 3, "1e302");
  EXPECT_EQ(companionFindings("", companion), Texts{"vecmp 4 not-finite"});
}

TEST(CheckCompanion, PointsToTheFieldAndNotToTheSameTextBeforeIt) {
  const auto findings =
      findingsWith("", "1006\n100 200 0\n11 0.1 1\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n1 0.5 0\n-1\n", 0);
  ASSERT_EQ(findings.size(), 1u) << told(findings);
  EXPECT_EQ(findings[0].place.line, 3);
  EXPECT_EQ(findings[0].place.column, 8);
}

TEST(CheckCompanion, ShortHeadLinesTellWhatTheyTakeOver) {
  const auto findings =
      findingsWith("", "1006\n100 200 0\n11 0.1 12\n0.1\n1 20000\n20 20 0\n0.1 0.1 0.1\n1 0.5 0\n-1\n", 0);
  ASSERT_EQ(findings.size(), 1u) << told(findings);
  EXPECT_EQ(findings[0].message,
            "line 4 of the head: 1 of 3 fields can be read; for the others those of the line above count");
}

TEST(CheckCompanion, TheFileMayEndBehindAShortLineOfTheModel) {
  const std::string companion = kCompanion;
  EXPECT_EQ(companionFindings("", companion.substr(0, companion.find("1 0.5 0")) + "1 2\n"),
            (Texts{"vecmp 0 positional-too-short", "vecmp 8 positional-fields"}));
}

TEST(CheckCompanion, AMissingOneIsAFinding) {
  const zebtest::TemporaryFile file("");
  Checking checking;
  checking.options.viscoelastic = true;
  const auto findings = zebtest::findingsOf(file.path(), checking);
  ASSERT_EQ(findings.size(), 1u) << told(findings);
  EXPECT_EQ(zebtest::idOf(findings[0]), "viscoelastic-refused");
  EXPECT_EQ(findings[0].place.line, 0);
  EXPECT_THAT(findings[0].message, testing::EndsWith("a solver writes a default file in its place"));
}

TEST(CheckCompanion, OneThatCannotBeReadIsAFindingAndStays) {
  const zeb::test::TestFolder folder;
  std::filesystem::create_directory(folder.path("part.vecmp"));
  Checking checking;
  checking.options.viscoelastic = true;
  const auto findings = zebtest::findingsOf(folder.write("part.cmp", ""), checking);
  ASSERT_EQ(findings.size(), 1u) << told(findings);
  EXPECT_EQ(zebtest::idOf(findings[0]), "viscoelastic-refused");
  EXPECT_THAT(findings[0].message, testing::EndsWith("a solver leaves it as it is"));
}

// The list of strain rates that a solver writes into its default file: none is wanted, one stands there.
TEST(CheckCompanion, EntriesOfAListThatIsSwitchedOffAreNoMistake) {
  const std::string list =
      "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nTotalSetofInputSRate = -1\nStrainRate = 0.01\n"
      "</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n";
  EXPECT_EQ(companionFindings("", kCompanion + list), Texts());
}

TEST(CheckCompanion, ARefusalShowsTheLineThatDecided) {
  const std::string lines2To7 = "100 200 0\n0.1 0.1 0.1\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n";
  EXPECT_EQ(companionExcerpt("1005\n" + lines2To7 + "1 0.5 0\n-1\n"), "1 1005");
  EXPECT_EQ(companionExcerpt("1006\n" + lines2To7 + "99 0.5 0\n-1\n"), "8 99 0.5 0");
  EXPECT_EQ(companionExcerpt("1006\n" + lines2To7 + "99 0.5 0\n"), "8 99 0.5 0");
  EXPECT_EQ(companionExcerpt("1006\n" + lines2To7 + "2 0.5 0\n-1\n"), "9 -1");
  EXPECT_EQ(companionExcerpt("1006\n" + lines2To7 + "2 0.5 0\n"), "8 2 0.5 0");
}

TEST(CheckCompanion, AnEmptyOneIsRefusedAsAWhole) {
  EXPECT_EQ(companionFindings("", ""), (Texts{"vecmp 0 positional-too-short", "vecmp 0 viscoelastic-refused"}));
}

TEST(CheckCompanion, AListOfStrainRatesMayTakeTheClosingLine) {
  const std::string list =
      "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nTotalSetofInputSRate = 2\nStrainRate = 1\nStrainRate = 2\n"
      "</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n";
  EXPECT_EQ(companionFindings("", kCompanion + list), Texts());
  EXPECT_EQ(companionFindings("", kCompanion + list + "\n<VE_Solver>\n"), (Texts{"vecmp 16 list-too-long"}));
  std::string cut = list;
  cut.replace(cut.find("StrainRate = 2\n"), 15, "");
  EXPECT_EQ(companionFindings("", kCompanion + cut), (Texts{"vecmp 13 list-consumed-close"}));
}

}  // namespace
