// Exit codes, messages and key lines of every command, run as a process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>

#include "frame/MoldingTypes.hpp"
#include "tests/support/Tsv.hpp"
#include "tests/support/WithoutPrivileges.hpp"
#include "tests/tool/RunTool.hpp"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using zebtest::kMaterials;
using zebtest::runTool;
using zebtest::TemporaryFile;
using zebtest::ToolRun;

constexpr const char* kOutlet = "[Outlet]\nAirPressure = 0.2\n[/Outlet]\n";
constexpr const char* kOtherOutlet = "[Outlet]\nIsOutlet = 0\nAirPressure = 0.3\n[/Outlet]\n";
constexpr const char* kMoments =
    "<FILL_OUTPUT_TIMES>\n"
    "FlagFillMultiOutputType = 1\n"
    "ValueNoFillOutputTime = 3\n"
    "1 = 1.0\n"
    "2 = 5.005\n"
    "3 = 9.0\n"
    "</FILL_OUTPUT_TIMES>\n";

// --- What cannot be used: exit code 2, nothing on the standard output, a message that names the cause --------------

struct Refusal {
  const char* name;
  std::vector<std::string> arguments;  // see below
  const char* message;
};

class Refused : public testing::TestWithParam<Refusal> {};

TEST_P(Refused, EndsWithAMessage) {
  const TemporaryFile file(kOutlet);
  const TemporaryFile settings(kMoments, ".cmx");
  const std::string fifo = file.path() + ".fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  const TemporaryFile binary(std::string("\x89PNG\0\0", 6));
  const std::string loop = file.path() + ".loop";
  std::filesystem::create_symlink(loop, loop);
  const std::map<std::string, std::string> paths{
      {"FILE", file.path()}, {"CMX", settings.path()}, {"BINARY", binary.path()},
      {"LOOP", loop},        {"FIFO", fifo},           {"FOLDER", std::filesystem::temp_directory_path().string()}};
  std::vector<std::string> arguments = GetParam().arguments;
  for (std::string& argument : arguments) {
    if (paths.count(argument) > 0) argument = paths.at(argument);
  }
  const ToolRun run = runTool(arguments);
  std::filesystem::remove(fifo);
  std::filesystem::remove(loop);
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, HasSubstr(GetParam().message));
}

// So that a failure shows the case's name, not its bytes.
void PrintTo(const Refusal& refusal, std::ostream* out) { *out << refusal.name; }

TEST(RanksOption, IsRefusedWhereMpirunHasStartedRanks) {
  const TemporaryFile file(kOutlet);
  for (const char* variable : {"OMPI_COMM_WORLD_SIZE", "PMI_SIZE", "MPI_LOCALNRANKS", "PMIX_RANK"}) {
    ASSERT_EQ(setenv(variable, "2", 1), 0);
    const ToolRun run = runTool({"show", file.path(), "--ranks", "8"});
    unsetenv(variable);
    EXPECT_EQ(run.exitCode, 2) << variable;
    EXPECT_THAT(run.err, HasSubstr("--ranks: mpirun has started ranks of its own")) << variable;
  }
}

const std::string kCodes = "or a code 0 to " + std::to_string(zeb::moldingTypes().size() - 1);

INSTANTIATE_TEST_SUITE_P(
    Tool, Refused,
    testing::Values(
        Refusal{"NoArguments", {}, "which command? show, check"},
        Refusal{"NoFile", {"show"}, "FILE is required; compparm show --help tells more"},
        Refusal{"UnknownCommand", {"nosuch"}, "there is no command nosuch; there are show, check"},
        Refusal{"MisspeltCommand", {"shwo", "FILE"}, "there is no command shwo; did you mean show?"},
        Refusal{"MisspeltOption", {"show", "FILE", "--chnged"}, "show has no option --chnged; did you mean --changed?"},
        Refusal{"MisspeltOptionWithValue", {"diff", "FILE", "FILE", "--tolerence=1"}, "did you mean --tolerance?"},
        Refusal{"MisspeltOptionWithoutFile", {"explain", "--viscoelastc"}, "did you mean --viscoelastic?"},
        Refusal{"MisspeltMolding", {"diff", "FILE", "--against-molding", "RTN"}, "did you mean RTM?"},
        Refusal{"MisspeltBlock", {"show", "FILE", "--block", "Outlt"}, "did you mean Outlet?"},
        Refusal{"MisspeltSection", {"template", "--sections", "StableFlg"}, "did you mean StableFlag?"},
        Refusal{"MisspeltKey", {"explain", "FILE", "AirPresure"}, "did you mean AirPressure"},
        Refusal{"KeyOfAnotherKind", {"explain", "FILE", "FlagSlipBC"}, "; --as cmx knows it"},
        Refusal{"Loop", {"show", "LOOP"}, "Too many levels of symbolic links"},
        Refusal{"LongName", {"show", std::string(5000, 'x')}, "File name too long"},
        Refusal{"CannotBeRead", {"show", "/proc/self/mem"}, "/proc/self/mem: cannot be read"},
        Refusal{"Binary", {"show", "BINARY"}, "holds NUL bytes and no section"},
        Refusal{"MoldingOfACmx", {"explain", "CMX", "Level1", "--molding", "RTM"}, "have no meaning for a CMX file"},
        Refusal{"RawOfACmx", {"show", "CMX", "--raw"}, "the library has no dump for a CMX file"},
        Refusal{"DiffOfTwoKinds", {"diff", "FILE", "CMX"}, "they have no parameters in common"},
        Refusal{"ToleranceThatIsNoNumber", {"diff", "FILE", "FILE", "--tolerance", "nan"}, "expects a number"},
        Refusal{"DiffOfOne", {"diff", "FILE"}, "diff needs a second file"},
        Refusal{"TemplateOfACmxForAMolding", {"template", "--as", "cmx", "--molding", "IM"}, "does not depend"},
        Refusal{"MissingFile", {"show", "no-such-file.cmp"}, "no-such-file.cmp: no such file"},
        Refusal{"Folder", {"show", "FOLDER"}, "is a directory"},
        Refusal{"NamedPipe", {"show", "FIFO"}, "is not a regular file"},
        Refusal{"DiffWithNamedPipe", {"diff", "FILE", "FIFO"}, "is not a regular file"},
        Refusal{"ExplainOfANamedPipe", {"explain", "FIFO", "VentMode"}, "is not a regular file"},
        Refusal{"Device", {"show", "/dev/null"}, "/dev/null: is not a regular file"},
        Refusal{"UnknownBlock", {"show", "FILE", "--block", "Nope"}, "no block or section is named Nope"},
        Refusal{"UnknownMolding", {"show", "FILE", "--molding", "NOPE"}, "--molding: expects one of IM, FAIM"},
        Refusal{"MoldingCodeTooHigh",
                {"show", "FILE", "--molding", std::to_string(zeb::moldingTypes().size())},
                kCodes.c_str()},
        Refusal{"MoldingCodeNegative", {"show", "FILE", "--molding=-1"}, kCodes.c_str()},
        Refusal{"NoRanks", {"show", "FILE", "--ranks", "0"}, "--ranks"},
        Refusal{"RanksOfBothKinds", {"show", "FILE", "--ranks", "8", "--mpi"}, "--ranks excludes --mpi"},
        Refusal{"UnknownKind", {"show", "FILE", "--as", "nope"}, "--as"},
        Refusal{"RawWithFormat", {"show", "FILE", "--raw", "--format", "json"}, "--raw excludes --format"},
        Refusal{"CheckMissingFile", {"check", "no-such-file.cmp"}, "no-such-file.cmp: no such file"},
        Refusal{"ExplainUnknownName", {"explain", "FILE", "Qqqqqqqqqq"}, "no key or member of a CMP file is named Qqq"},
        Refusal{"ExplainMissingFile", {"explain", "no-such-file.cmp", "AirPressure"}, "no such file"},
        Refusal{"DiffMissingFile", {"diff", "FILE", "no-such-file.cmp"}, "no-such-file.cmp: no such file"},
        Refusal{"ScheduleOfACmp", {"schedule", "FILE", "--fill-time", "10", "--split", "4"}, "is a CMP file"},
        Refusal{"ScheduleSplit", {"schedule", "CMX", "--fill-time", "10", "--split", "2"}, "at least 3 steps"},
        Refusal{"ScheduleTime", {"schedule", "CMX", "--fill-time", "0", "--split", "4"}, "must be above 0 s"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(Tool, RefusesAFileThatMayNotBeRead) {
  const zebtest::WithoutPrivileges nobody;
  if (!nobody.holds() || eaccess(ZEB_COMPPARM, X_OK) != 0) GTEST_SKIP() << "nobody but root may run the tool here";
  const TemporaryFile file(kOutlet);
  ASSERT_EQ(runTool({"check", file.path()}).exitCode, 0);
  std::filesystem::permissions(file.path(), std::filesystem::perms::none);
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"check", file.path()},
                                                    {"show", file.path()},
                                                    {"explain", file.path(), "AirPressure"},
                                                    {"diff", file.path(), file.path()}}) {
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.exitCode, 2) << arguments[0];
    EXPECT_EQ(run.err, "compparm: " + file.path() + ": Permission denied\n") << arguments[0];
    EXPECT_EQ(run.out, "") << arguments[0];
  }
}

TEST(Tool, TellsOfAFullDeviceWhateverItPrints) {
  const TemporaryFile file(kOutlet);
  const std::vector<std::string> commands[] = {
      {"--help"},   {"--version"},        {"show", "--help"},           {"manual"},           {"complete", ""},
      {"template"}, {"check", "--rules"}, {"list", "--format", "json"}, {"show", file.path()}};
  for (std::vector<std::string> words : commands) {
    words.insert(words.begin(), {"-c", "exec \"$0\" \"$@\" > /dev/full", ZEB_COMPPARM});
    const ToolRun run = zebtest::runProgram("/bin/sh", words);
    EXPECT_EQ(run.exitCode, 2) << words[3];
    EXPECT_EQ(run.err, "compparm: cannot write to standard output\n") << words[3];
  }
}

TEST(Tool, EmptyFileHoldsTheDefaults) {
  const TemporaryFile file("");
  const ToolRun run = runTool({"show", file.path(), "--changed"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("The file holds no section that its reader knows"));
  EXPECT_THAT(run.out, HasSubstr("0 values differ from the default.\n"));
}

TEST(Tool, ReadsABinaryFileWhereAskedTo) {
  const TemporaryFile file(std::string("\x89PNG\0\0", 6));
  const ToolRun run = runTool({"show", file.path(), "--as", "cmp"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("The file holds no section that its reader knows"));
}

TEST(Tool, ColoursATerminalUnlessToldNotTo) {
  const TemporaryFile file(kOutlet);
  EXPECT_THAT(zebtest::runToolOnTerminal({"show", file.path()}, ""), HasSubstr("\x1b["));
  EXPECT_THAT(zebtest::runToolOnTerminal({"show", file.path()}, "NO_COLOR=1"), Not(HasSubstr("\x1b[")));
}

TEST(Tool, WritesControlCharactersOfAFileOut) {
  const TemporaryFile file("[General]\nValueInitChargeFiberExchangeName = \x1b[31mred\n[/General]\n");
  const ToolRun shown = runTool({"show", file.path(), "--block", "General"});
  const ToolRun explained = runTool({"explain", file.path(), "General.ValueInitChargeFiberExchangeName"});
  EXPECT_THAT(shown.out + explained.out, Not(HasSubstr("\x1b")));
  EXPECT_THAT(explained.out, HasSubstr("\\x1b[31mred"));
}

TEST(Tool, WritesNoEscapeCodesIntoPipes) {
  const TemporaryFile left(kOutlet), right(kOtherOutlet), moments(kMoments, ".cmx");
  const TemporaryFile unclosed("[Outlet]\nIsOutlet = 1\n");
  const std::vector<std::vector<std::string>> calls{{"show", left.path()},
                                                    {"check", unclosed.path()},
                                                    {"explain", left.path(), "AirPressure"},
                                                    {"diff", left.path(), right.path()},
                                                    {"schedule", moments.path(), "--fill-time", "10", "--split", "4"},
                                                    {"material", "pa66-gf30", "--folder", kMaterials},
                                                    {"list", "AirPressure"},
                                                    {"show", "no-such-file.cmp"}};
  for (const auto& call : calls) {
    const ToolRun run = runTool(call);
    EXPECT_FALSE((run.out + run.err).empty()) << call[0];
    EXPECT_THAT(run.out + run.err, Not(HasSubstr("\x1b"))) << call[0];
  }
}

// --- explain -----------------------------------------------------------------------------------------------------

TEST(Explain, TellsTheLineTheConversionAndTheValue) {
  const TemporaryFile file(kOutlet);
  for (const char* name : {"AirPressure", "m_dAirPressure", "dAirPressure", "Outlet.m_dAirPressure"}) {
    const ToolRun run = runTool({"explain", file.path(), name});
    EXPECT_EQ(run.exitCode, 0) << name << run.err;
    EXPECT_THAT(run.out, HasSubstr("Outlet.m_dAirPressure  key AirPressure  in [Outlet]\n")) << name;
    EXPECT_THAT(run.out, HasSubstr("line 2  AirPressure = 0.2\n")) << name;
    EXPECT_THAT(run.out, HasSubstr("final value  2e+06\n")) << name;
  }
}

TEST(Explain, KnowsTheKindOfAFileByItsContent) {
  const TemporaryFile file("<SOLID_FILL>\nValueGravityX = 9.8\nLevel1 = 3\n</SOLID_FILL>\n", ".cmx");
  const ToolRun run = runTool({"explain", file.path(), "ValueGravyX"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("SOLID_FILL.m_dGravX  key ValueGravyX or ValueGravityX  in <SOLID_FILL>\n"));
  EXPECT_THAT(run.out, HasSubstr("line 2  ValueGravityX = 9.8\n"));
  const json document = json::parse(runTool({"explain", file.path(), "Level1", "--format", "json"}).out);
  EXPECT_EQ(document.at("kind"), "cmx");
  EXPECT_EQ(document.at("parameters").at(0).at("value"), 3);
}

TEST(Explain, TellsAnArrayWithKeysForItsElementsAsOne) {
  const TemporaryFile file(
      "[UNFSetting]\nFillType = 2\nnDispenserPoint = 2\nPoint_y1 = 0.5\nPoint_x2 = 3\n[/UNFSetting]\n");
  const ToolRun whole = runTool({"explain", file.path(), "m_pdDispenserPoint"});
  EXPECT_EQ(whole.exitCode, 0) << whole.err;
  EXPECT_THAT(whole.out, StartsWith("UNFSetting.m_pdDispenserPoint  keys Point_x1, Point_y1, Point_x2, "));
  EXPECT_THAT(whole.out, HasSubstr("line 4  Point_y1 = 0.5\n      parsed \"0.5\"\n"
                                   "      -> [0, 0, 0, 0, 0.5, 0, 0, 0]\n"
                                   "  line 5  Point_x2 = 3\n      parsed \"3\"\n"
                                   "      -> [0, 0, 0, 0, 0.5, 0, 3, 0]\n"
                                   "  final value  [0, 0, 0, 0, 0.5, 0, 3, 0]\n"));
  const json document = json::parse(runTool({"explain", file.path(), "m_pdDispenserPoint", "--format", "json"}).out);
  ASSERT_EQ(document.at("parameters").size(), 1u);
  EXPECT_EQ(document.at("parameters").at(0).at("keys").size(), 10u);
  EXPECT_EQ(document.at("parameters").at(0).at("type"), "doubles");
  const ToolRun element = runTool({"explain", file.path(), "Point_x2"});
  EXPECT_THAT(element.out, StartsWith("UNFSetting.m_pdDispenserPoint  key Point_x2  in [UNFSetting]\n"));
  EXPECT_THAT(element.out, Not(HasSubstr("line 4")));
}

TEST(Explain, CountsTheStepsThatAreNotKept) {
  const auto explainedWith = [](int lines) {
    std::string text = "[ShortShot]\n";
    for (int i = 0; i < lines; ++i) text += "TimeLimit = 2\n";
    return runTool({"explain", TemporaryFile(text).path(), "TimeLimit"}).out;
  };
  EXPECT_THAT(explainedWith(2000), Not(HasSubstr("not kept")));
  EXPECT_THAT(explainedWith(2001), HasSubstr("\n  ... 1 step that is not kept\n"));
  EXPECT_THAT(explainedWith(2002), HasSubstr("\n  ... 2 steps that are not kept\n"));
}

TEST(Explain, KnowsTheNamesInTheLinesOfAList) {
  const TemporaryFile file("[RTM]\nIsVentInlet = 1\nNVentInlet = 1\nVentInletID = 7\n[/RTM]\n");
  EXPECT_THAT(runTool({"explain", file.path(), "NVentInlet"}).out, HasSubstr("final value  1\n"));
  EXPECT_THAT(runTool({"explain", file.path(), "RTM.VentInletID"}).out, HasSubstr("final value  [7]\n"));
  EXPECT_THAT(runTool({"explain", file.path(), "Weightings"}).out, StartsWith("MultiGate.m_pdInletWeightings  "));
  EXPECT_EQ(runTool({"explain", file.path(), "ShowOverflowGateData"}).exitCode, 0);  // the key ends with a blank
}

TEST(Explain, ReadsNoValueBehindASwitch) {
  const TemporaryFile file("[Whiteboard]\nHeatFluxHistory = 0\n[/Whiteboard]\n");
  EXPECT_THAT(runTool({"explain", file.path(), "HeatFluxHistory"}).out,
              HasSubstr("parsed \"HeatFluxHistory\"\n      -> true\n"));
}

TEST(Explain, NamesNoLineOfACompanionWithoutLines) {
  const TemporaryFile file("");
  EXPECT_THAT(runTool({"explain", file.path(), "m_iVEModel", "--viscoelastic"}).out,
              HasSubstr(".vecmp  \n      not read: the file cannot be opened"));
}

TEST(Explain, SaysWhichValuesAreDerived) {
  const TemporaryFile file("");
  const std::string companion = file.path().substr(0, file.path().rfind('.')) + ".vecmp";
  std::ofstream(companion) << "1006\n100 200 0\n0.1 0.1 0.1\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n1 0.5 0\n-1\n"
                              "<PLOT_MATERIAL>\nFlagIsPlotShearVis = 1\n</PLOT_MATERIAL>\n";
  const ToolRun run = runTool({"explain", file.path(), "m_bPlotMaterialFun", "--viscoelastic"});
  EXPECT_THAT(run.out, HasSubstr("  derived  from other members, or set by the host\n  final value  true\n"));
  const ToolRun shown = runTool({"show", file.path(), "--viscoelastic", "--changed"});
  EXPECT_THAT(shown.out, testing::ContainsRegex("m_bPlotMaterialFun +true +derived \\(default false\\)"));
  std::filesystem::remove(companion);
}

TEST(Show, TellsTheShortLineThatSetsAFieldTo0) {
  const TemporaryFile file("[VER] 1023\n3\n");
  EXPECT_THAT(runTool({"show", file.path(), "--changed"}).out,
              testing::ContainsRegex("m_dVisTempLimiter +0 +line 2 \\(default 5\\)"));
}

TEST(Diff, TellsThatAViscoelasticFileIsNotTaken) {
  const TemporaryFile file(kOutlet);
  const ToolRun run = runTool({"diff", file.path(), "--against-molding", "IM", "--viscoelastic"});
  EXPECT_THAT(run.err, HasSubstr("the viscoelastic file is not taken: "));
}

TEST(Help, ExplainsNamesThatExist) {
  const std::string help = runTool({"explain", "--help"}).out;
  const TemporaryFile cmp(""), cmx("<SOLID_FILL>\n</SOLID_FILL>\n", ".cmx");
  const std::regex example("compparm explain part[.](cmp|cmx) ([A-Za-z0-9.]+)( --as std)?");
  int examples = 0;
  for (std::sregex_iterator at(help.begin(), help.end(), example), end; at != end; ++at, ++examples) {
    std::vector<std::string> arguments{"explain", (*at)[1] == "cmp" ? cmp.path() : cmx.path(), (*at)[2]};
    if ((*at)[3].length() > 0) arguments.insert(arguments.end(), {"--as", "std"});
    EXPECT_EQ(runTool(arguments).exitCode, 0) << at->str();
  }
  EXPECT_GE(examples, 5);
}

TEST(Explain, TellsOfTheCompanionFile) {
  const TemporaryFile file(kOutlet);
  EXPECT_THAT(runTool({"explain", file.path(), "VE_Para1"}).out,
              HasSubstr("it stands in the companion file, which --viscoelastic reads"));
}

TEST(Explain, TellsOfMembersThatNoFileCanSet) {
  const TemporaryFile file(kOutlet);
  EXPECT_THAT(runTool({"explain", file.path(), "m_iNVE_Model"}).out,
              HasSubstr("no line of the file sets it: it has neither key nor place in a file"));
}

TEST(Explain, TellsOfTheLastWeight) {
  const TemporaryFile file(
      "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.4\nWeightings = 0.9\n"
      "[/MultiGate]\n");
  EXPECT_THAT(runTool({"explain", file.path(), "m_pdInletWeightings"}).out,
              HasSubstr("line 5: Weightings = 0.9\n        the last one is one minus the others, whatever its line "
                        "says\n      -> [0.4, 0.6]\n"));
}

TEST(Explain, ReadsAsTheStandardSolver) {
  const TemporaryFile file("[VER] 1013\n7 2 2 2 2 2\n");
  const ToolRun standard = runTool({"explain", file.path(), "ilsolvU", "--as", "std"});
  EXPECT_EQ(standard.exitCode, 0) << standard.err;
  EXPECT_THAT(standard.out, HasSubstr("line 2  7 2 2 2 2 2\n      line 1, field 1 of the head: parsed \"7\"\n"));
  const ToolRun other = runTool({"explain", file.path(), "m_ilsolvU"});
  EXPECT_THAT(other.out, HasSubstr("line 1  [VER] 1013\n      not read: version 1013; the head is read behind version "
                                   "1023 alone\n"));
}

// --- diff --------------------------------------------------------------------------------------------------------

TEST(Diff, SameParametersEndWithZero) {
  const TemporaryFile left(kOutlet);
  const TemporaryFile right("\n\n[Outlet]\nAirPressure = 2.0e-1\n[/Outlet]\n");
  const ToolRun run = runTool({"diff", left.path(), right.path()});
  EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
  EXPECT_THAT(run.out, HasSubstr("0 parameters differ.\n"));
}

TEST(Diff, DifferentParametersEndWithOne) {
  const TemporaryFile left(kOutlet), right(kOtherOutlet);
  const ToolRun run = runTool({"diff", left.path(), right.path()});
  EXPECT_EQ(run.exitCode, 1) << run.err;
  EXPECT_THAT(run.out, HasSubstr("Outlet.m_dAirPressure  AirPressure\n  - 2e+06  line 2\n  + 3e+06  line 3\n"));
  EXPECT_THAT(run.out, HasSubstr("1 parameter differs.\n"));
}

TEST(Diff, ComparesAnalysisSettings) {
  const TemporaryFile left("<SOLID_FILL>\nLevel1 = 3\n</SOLID_FILL>\n", ".cmx");
  const TemporaryFile right("<SOLID_FILL>\nLevel1 = 4\n</SOLID_FILL>\n", ".cmx");
  const ToolRun run = runTool({"diff", left.path(), right.path()});
  EXPECT_EQ(run.exitCode, 1) << run.err;
  EXPECT_THAT(run.out, HasSubstr("SOLID_FILL.m_iUseTemperatureDLL_Level1  Level1\n  - 3  line 2\n  + 4  line 2\n"));
  EXPECT_THAT(run.out, HasSubstr("1 parameter differs.\n"));
}

TEST(Diff, ComparesWhatTheStandardSolverSees) {
  // FillType belongs to a section that this solver does not know.
  const TemporaryFile left("[VER] 1013\n2 2\n"), right("[VER] 1013\n2 3\n[UNFSetting]\nFillType = 1\n");
  const ToolRun run = runTool({"diff", left.path(), right.path(), "--as", "std"});
  EXPECT_EQ(run.exitCode, 1) << run.err;
  EXPECT_THAT(run.out, HasSubstr("Head.ilsolvV\n  - 2  line 2\n  + 3  line 2\n1 parameter differs.\n"));
}

TEST(Diff, ComparesMoldingTypesOfOneFile) {
  // 0.05 times 0.02, and the melt-front scheme switched off.
  const TemporaryFile file(kOutlet);
  const ToolRun run = runTool({"diff", file.path(), "--against-molding", "RTM", "--format", "json"});
  ASSERT_EQ(run.exitCode, 1) << run.err;
  const json differences = json::parse(run.out).at("differences");
  ASSERT_EQ(differences.size(), 2u);
  EXPECT_EQ(differences[0].at("member"), "m_ddtNorLowerBound");
  EXPECT_EQ(differences[0].at("b").at("value").get<double>(), 0.05 * 0.02);
  EXPECT_EQ(differences[1].at("member"), "m_iMFTScheme");
  EXPECT_EQ(differences[1].at("b").at("value"), 0);
}

// --- template, list ---------------------------------------------------------------------------------------

TEST(Template, ReadsBackAsTheDefaults) {
  struct Kind {
    std::vector<std::string> options;
    const char* extension;
    std::vector<std::string> reading;  // only a CMP file has repairs to switch off
  };
  const std::vector<Kind> kinds{{{"template"}, ".cmp", {"--no-repair"}}, {{"template", "--as", "cmx"}, ".cmx", {}}};
  for (const Kind& kind : kinds) {
    const ToolRun written = runTool(kind.options);
    ASSERT_EQ(written.exitCode, 0) << written.err;
    ASSERT_GT(written.out.size(), 1000u);
    const TemporaryFile file(written.out, kind.extension);
    std::vector<std::string> arguments{"show", file.path(), "--changed"};
    arguments.insert(arguments.end(), kind.reading.begin(), kind.reading.end());
    const ToolRun read = runTool(arguments);
    EXPECT_EQ(read.exitCode, 0) << read.err;
    EXPECT_THAT(read.out, HasSubstr("\n0 values differ from the default.\n")) << kind.extension;
  }
}

TEST(Template, OfEveryMoldingTypeChecksClean) {
  for (const int molding : zebtest::moldingCodes()) {
    const std::string code = std::to_string(molding);
    const TemporaryFile file(runTool({"template", "--molding", code}).out);
    const ToolRun checked = runTool({"check", file.path(), "--molding", code});
    EXPECT_EQ(checked.exitCode, 0) << code << '\n' << checked.out << checked.err;
    const ToolRun read = runTool({"show", file.path(), "--molding", code, "--no-repair", "--changed"});
    EXPECT_THAT(read.out, HasSubstr("\n0 values differ from the default.\n")) << code;
  }
}

TEST(Template, OfSomeSectionsChecksClean) {
  const std::vector<std::vector<std::string>> choices{{},
                                                      {"VER"},
                                                      {"VER", "General"},
                                                      {"MultiGate", "UNFSetting", "AutoVPCtrl"},
                                                      {"Whiteboard"},
                                                      {"Fiber", "Foam"},
                                                      {"FastCool", "StdCool", "3DCoolingChannel"}};
  for (const auto& sections : choices) {
    std::vector<std::string> arguments{"template"};
    if (!sections.empty()) arguments.push_back("--sections");
    arguments.insert(arguments.end(), sections.begin(), sections.end());
    const TemporaryFile file(runTool(arguments).out);
    const ToolRun checked = runTool({"check", file.path()});
    EXPECT_EQ(checked.exitCode, 0) << testing::PrintToString(sections) << '\n' << checked.out << checked.err;
  }
}

TEST(List, EndsWithOneWhereNothingIsFound) {
  EXPECT_EQ(runTool({"list", "AirPressure"}).exitCode, 0);
  const ToolRun run = runTool({"list", "zzzqqq"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, HasSubstr("0 parameters."));
}

}  // namespace
