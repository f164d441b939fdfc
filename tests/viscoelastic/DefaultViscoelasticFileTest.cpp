// The viscoelastic file on disk: the default one byte for byte, what becomes of the user's, disks that fail, and
// several ranks.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "engine/ReadObserver.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/TestFolder.hpp"
#include "tests/viscoelastic/ViscoelasticSupport.hpp"

namespace {

using zeb::test::TestFolder;
using zebtest::contentOf;
using zebtest::fileWith;
using zebtest::kDefaultFile;
using zebtest::printedBy;

constexpr const char* kCannotOpen = "Can not open viscoelastic cmp file! \n";

std::vector<std::string> filesIn(const TestFolder& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

using Names = std::vector<std::string>;

int readFile(const std::string& name, CZEBCMPVEParm& block) {
  return zeb::readViscoelasticFile(name, block, zeb::LineSource{}, nullptr);
}

/// No file of this process may grow beyond so many bytes meanwhile: what a full disk looks like.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_before);
    rlimit limit = m_before;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
  }

 private:
  rlimit m_before{};
  void (*m_handler)(int);
};

// --- The default file -------------------------------------------------------------------------------------------

TEST(DefaultViscoelasticFile, TakesTheMissingFilesPlace) {
  const TestFolder folder;
  const std::string name = folder.path("thing.vecmp");
  CZEBCMPVEParm block;
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readFile(name, block), -1); }), "");
  EXPECT_EQ(contentOf(name), kDefaultFile);
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp"}));
}

TEST(DefaultViscoelasticFile, HoldsTheBlocksHeadInItsUnits) {
  const TestFolder folder;
  const std::string name = folder.path("thing.vecmp");
  CZEBCMPVEParm block;
  printedBy([&] {
    zebtest::readText(block, fileWith({{2, "150 2.5 0"},
                                       {3, "11 0.25 12.5"},
                                       {4, "12.25 0.5 0"},
                                       {5, "3 20000.125"},
                                       {6, "-10 500 0"},
                                       {7, "0.5 0.75 1.5"},
                                       {8, "4 0.4 2"},
                                       {9, "0"}}));
  });
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, block), 1);
  const std::string head =
      "1006\n"
      "0.000000 2.500000 0.000000\n"
      "11.000000 0.250000 12.500000\n"
      "12.250000 0.500000 12.250000\n"
      "3.000000 20000.125000\n"
      "-10.000000 500.000000 -10.000000\n"
      "0.500000 0.750000 1.500000\n"
      "4 0.400000 0\n"
      "-1\n"
      "\n"
      "<VE_Solver>\n";
  EXPECT_EQ(contentOf(name).substr(0, head.size()), head);
}

TEST(DefaultViscoelasticFile, ReadBackLeavesEveryMemberAsItWas) {
  const TestFolder folder;
  const std::string name = folder.path("thing.vecmp");
  CZEBCMPVEParm block;
  block.setTgPoint(105.0);
  block.InitBoundingParameters();
  EXPECT_EQ(readFile(name, block), -1);
  auto before = zebtest::stateOf(block);
  // The one value that differs from the default: the flag stands in the file as 0.
  const auto flag = std::find(before.begin(), before.end(), "m_iTransient_FlagIsPlotElongVis -1");
  ASSERT_NE(flag, before.end());
  *flag = "m_iTransient_FlagIsPlotElongVis 0";
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readFile(name, block), 1); }), "");
  EXPECT_EQ(zebtest::stateOf(block), before);
  EXPECT_EQ(block.getCtrlParam_TLowBond(), 105.0);
  EXPECT_EQ(contentOf(name), kDefaultFile);
}

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
    const auto before = zebtest::stateOf(block);
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(zeb::readViscoelasticFile(name, block, zeb::LineSource{}, nullptr), 1); }), "");
    EXPECT_EQ(block.getCtrlParam_TLowBond(), 120.0);
    EXPECT_EQ(zebtest::stateOf(block).size(), before.size());
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

TEST(DefaultViscoelasticFile, NoBackupIsOverwritten) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", "first\n");
  std::filesystem::create_directory(folder.path("thing.vecmp.bak.1"));
  for (const char* users : {"first\n", "second\n", "third\n"}) {
    folder.write("thing.vecmp", users);
    EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, CZEBCMPVEParm()), 1);
    EXPECT_EQ(contentOf(name), kDefaultFile);
  }
  EXPECT_EQ(contentOf(name + ".bak"), "first\n");
  EXPECT_EQ(contentOf(name + ".bak.2"), "second\n");
  EXPECT_EQ(contentOf(name + ".bak.3"), "third\n");
  EXPECT_EQ(filesIn(folder).size(), 5u);
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
  for (const int model : {1, 3, 19, 0, 2}) {
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

// Each file that the user saves bears another text; all but those that the user replaced are to be found.
TEST(DefaultViscoelasticFile, FilesThatAUserSavesMeanwhileAreKept) {
  constexpr int kRounds = 100, kJobs = 2;
  const std::string starts[] = {"", "nonsense\n", kDefaultFile};
  for (int round = 0; round < kRounds; ++round) {
    const TestFolder folder;
    const std::string name = folder.path("thing.vecmp"), saved = "saved in round " + std::to_string(round) + "\n";
    const std::string& start = starts[round % 3];
    if (!start.empty()) folder.write("thing.vecmp", start);
    std::vector<std::thread> jobs;
    std::atomic<int> ready = 0;
    const auto meet = [&] {
      for (++ready; ready <= kJobs;) std::this_thread::yield();
    };
    for (int job = 0; job < kJobs; ++job) {
      jobs.emplace_back([&, job] {
        CZEBCMPVEParm block;
        block.setVEModel(job + 2);
        block.InitBoundingParameters();
        meet();
        EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, block), 1);
      });
    }
    folder.write("thing.new", saved);
    meet();
    for (int pause = round % 10 * 10; pause > 0; --pause) std::this_thread::yield();
    std::filesystem::rename(folder.path("thing.new"), name);
    for (std::thread& job : jobs) job.join();
    int found = 0;
    for (const std::string& file : filesIn(folder)) {
      found += contentOf(folder.path(file)) == saved ? 1 : 0;
      for (const char* ours : {".tmp", ".old"}) EXPECT_EQ(file.find(ours), file.npos) << file;
    }
    ASSERT_EQ(found, 1) << "round " << round;
  }
}

// --- The user's file --------------------------------------------------------------------------------------------

TEST(DefaultViscoelasticFile, KeepsTheUsersUnconfirmedFile) {
  const TestFolder folder;
  const std::string users = fileWith({{8, "4 0 0"}, {9, "-1"}}, "my notes\n");
  const std::string name = folder.write("thing.vecmp", users);
  CZEBCMPVEParm block;
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readFile(name, block), -1); }), "");
  EXPECT_EQ(block.getVEModel(), 1);
  EXPECT_EQ(contentOf(name), kDefaultFile);
  EXPECT_EQ(contentOf(name + ".bak"), users);
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp", "thing.vecmp.bak"}));
}

TEST(DefaultViscoelasticFile, LeavesAValidFileAlone) {
  const TestFolder folder;
  const std::string users = fileWith({{8, "4 0 0"}, {9, "0"}});
  const std::string name = folder.write("thing.vecmp", users);
  CZEBCMPVEParm block;
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readFile(name, block), 1); }),
            "Switch from White Metzner model to Giesekus model");
  EXPECT_EQ(contentOf(name), users);
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp"}));
}

TEST(DefaultViscoelasticFile, WrittenTwiceDoesNotPushTheUsersFileOutOfTheBackup) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", "nonsense\n");
  const CZEBCMPVEParm block;
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, block), 1);
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, block), 1);
  EXPECT_EQ(contentOf(name), kDefaultFile);
  EXPECT_EQ(contentOf(name + ".bak"), "nonsense\n");
}

TEST(DefaultViscoelasticFile, ReadsLinesThatEndInCrLf) {
  const TestFolder folder;
  std::string text;
  for (const char c : std::string(kDefaultFile)) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
  CZEBCMPVEParm block;
  EXPECT_EQ(readFile(folder.write("thing.vecmp", text), block), 1);
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp"}));
}

// --- Disks that fail --------------------------------------------------------------------------------------------

TEST(DefaultViscoelasticFile, MissingFolderIsReportedAndTheRunGoesOn) {
  const TestFolder folder;
  CZEBCMPVEParm block;
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(readFile(folder.path("nowhere/thing.vecmp"), block), -1); }), kCannotOpen);
  EXPECT_EQ(zebtest::stateOf(block), zebtest::stateOf(CZEBCMPVEParm()));
  EXPECT_EQ(filesIn(folder), Names{});
}

TEST(DefaultViscoelasticFile, FullDiskLeavesTheUsersFileAndNoTemporary) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", "1005\n");
  CZEBCMPVEParm block;
  const std::string printed = printedBy([&] {
    const FullDisk full(200);
    EXPECT_EQ(readFile(name, block), -1);
  });
  EXPECT_EQ(printed, kCannotOpen);
  EXPECT_EQ(contentOf(name), "1005\n");
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp"}));
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, block), 1) << "there is room again";
}

TEST(DefaultViscoelasticFile, FolderOfThatNameIsNotMovedAside) {
  const TestFolder folder;
  const std::string name = folder.path("thing.vecmp");
  std::filesystem::create_directory(name);
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, CZEBCMPVEParm()), -1); }), kCannotOpen);
  EXPECT_TRUE(std::filesystem::is_directory(name));
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp"}));
}

TEST(DefaultViscoelasticFile, LinkThatLeadsNowhereIsNotReplaced) {
  const TestFolder folder;
  const std::string name = folder.path("thing.vecmp");
  std::filesystem::create_symlink("elsewhere.vecmp", name);
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, CZEBCMPVEParm()), -1); }), kCannotOpen);
  EXPECT_TRUE(std::filesystem::is_symlink(name));
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp"}));
}

// --- What is left of processes that died ------------------------------------------------------------------------

std::string hostName() {
  char name[256] = {};
  EXPECT_EQ(gethostname(name, sizeof name - 1), 0);
  return name;
}

// A process that has been, and is no more.
std::string deadProcess() {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  EXPECT_EQ(waitpid(child, nullptr, 0), child);
  return std::to_string(child);
}

TEST(DefaultViscoelasticFile, OnlyOldTemporariesOfDeadProcessesOfThisHostAreRemoved) {
  const std::string dead = deadProcess(), host = hostName(), own = std::to_string(getpid());
  const struct {
    std::string name;
    int minutes;
    bool stays;
  } files[] = {
      {"thing.vecmp.tmp." + host + '.' + dead, 61, false},
      {"thing.vecmp.tmp." + host + '.' + dead + ".7", 61, false},
      {"thing.vecmp.tmp." + host + '.' + dead, 59, true},
      {"thing.vecmp.tmp." + host + '.' + own, 61, true},
      {"thing.vecmp.tmp." + host + ".1", 61, true},  // it lives, and is another user's
      {"thing.vecmp.tmp." + host + ".-1", 61, true},
      {"thing.vecmp.tmp." + host + ".0", 61, true},
      {"thing.vecmp.tmp." + host + ".99999999999", 61, true},
      {"thing.vecmp.tmp." + host + '.' + dead + ".txt", 61, true},
      {"thing.vecmp.tmp." + host + '.' + dead + '.', 61, true},
      {"thing.vecmp.tmp." + host + '.' + dead + ".1.2", 61, true},
      {"thing.vecmp.tmp." + host + '.', 61, true},
      {"thing.vecmp.tmp.not-" + host + '.' + dead, 61, true},
      {"other.vecmp.tmp." + host + '.' + dead, 61, true},
      {"thing.vecmp.old." + host + '.' + dead, 61, true},  // a user's file that a process died with
      {"thing.vecmp.tmp0", 61, true},
  };
  for (const auto& file : files) {
    const TestFolder folder;
    const std::string name = folder.write(file.name, "half of anot");
    std::filesystem::last_write_time(
        name, std::filesystem::file_time_type::clock::now() - std::chrono::minutes(file.minutes));
    EXPECT_EQ(zeb::writeDefaultViscoelasticFile(folder.path("thing.vecmp"), CZEBCMPVEParm()), 1);
    EXPECT_EQ(contentOf(folder.path("thing.vecmp")), kDefaultFile);
    EXPECT_EQ(std::filesystem::exists(name), file.stays) << file.name << " of " << file.minutes << " minutes";
    EXPECT_EQ(filesIn(folder).size(), file.stays ? 2u : 1u) << file.name;
  }
}

TEST(DefaultViscoelasticFile, ManyLeftoversDoNotStopIt) {
  const TestFolder folder;
  const std::string own = "thing.vecmp.tmp." + hostName() + '.' + std::to_string(getpid());
  folder.write(own, "");
  for (int number = 0; number <= 200; ++number) {
    folder.write("thing.vecmp.tmp" + std::to_string(number), "");
    folder.write(own + '.' + std::to_string(number), "");
  }
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(folder.path("thing.vecmp"), CZEBCMPVEParm()), 1);
  EXPECT_EQ(contentOf(folder.path("thing.vecmp")), kDefaultFile);
}

// --- Several ranks ----------------------------------------------------------------------------------------------

struct RankRun {
  CZEBCMPVEParm block;
  int result = 0;
  std::string printed;
};

RankRun runOn(CZEBCom* com, const std::string& fileName, int printLevel = 0) {
  RankRun run;
  run.printed = printedBy([&] {
    const zeb::LineSource source{.com = com, .printLevel = printLevel};
    run.result = zeb::readViscoelasticFile(fileName, run.block, source, nullptr);
  });
  return run;
}

const char* kBody =
    "<VE_Solver>\nVE_Para1 = 0.65\n</VE_Solver>\n<PLOT_MATERIAL>\nFlagIsPlotShearVis = 1\n</PLOT_MATERIAL>\n"
    "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nFlagIsPlotElongVis_Transient = 1\nTotalSetofInputSRate = 2\n"
    "StrainRate = 0.5\nStrainRate = 5\n</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n";

TEST(ViscoelasticRanks, EveryRankEndsLikeASerialRun) {
  const struct {
    const char* what;
    std::string text;
    int result;
  } files[] = {
      {"complete", fileWith({{3, "200 0.5 300"}, {8, "4 0.3 1"}, {9, "0"}}, kBody), 1},
      {"default", kDefaultFile, 1},
      {"cut in the head", "1006\n20 1\n", 1},
      {"unconfirmed", fileWith({{3, "200 0.5 300"}, {8, "4 0.3 1"}, {9, "-1"}}, kBody), -1},
      {"wrong version", "1005\n", -1},
      {"empty", "", -1},
      {"count too large", fileWith({}, "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nTotalSetofInputSRate = 9999999\n"), 1},
  };
  for (const auto& file : files) {
    const TestFolder folder;
    const RankRun serial = runOn(nullptr, folder.write("serial.vecmp", file.text));
    zeb::RecordingCommunicator recording(3);
    const RankRun first = runOn(&recording, folder.write("thing.vecmp", file.text));
    zeb::ReplayingCommunicator replaying(recording.log(), 2, 3);
    const RankRun other = runOn(&replaying, folder.path("other.vecmp"));

    EXPECT_EQ(serial.result, file.result) << file.what;
    EXPECT_EQ(first.result, file.result) << file.what;
    EXPECT_EQ(other.result, file.result) << file.what;
    EXPECT_TRUE(replaying.finished()) << file.what;
    EXPECT_EQ(zebtest::stateOf(first.block), zebtest::stateOf(serial.block)) << file.what;
    EXPECT_EQ(zebtest::stateOf(other.block), zebtest::stateOf(serial.block)) << file.what;
    EXPECT_FALSE(std::filesystem::exists(folder.path("other.vecmp"))) << "only rank 0 writes";
  }
}

TEST(ViscoelasticRanks, MissingFileIsKnownToEveryRankByOneBroadcast) {
  const TestFolder folder;
  zeb::RecordingCommunicator recording(2);
  EXPECT_EQ(runOn(&recording, folder.path("thing.vecmp")).result, -1);
  EXPECT_EQ(recording.log().calls(), (std::vector<std::string>{"Broadi -1"}));
  zeb::ReplayingCommunicator replaying(recording.log(), 1, 2);
  EXPECT_EQ(runOn(&replaying, folder.path("other.vecmp")).result, -1);
  EXPECT_TRUE(replaying.finished());
  EXPECT_EQ(filesIn(folder), (Names{"thing.vecmp"}));
}

TEST(ViscoelasticRanks, FailureToWriteIsReportedOnRank0Only) {
  const TestFolder folder;
  zeb::RecordingCommunicator recording(2);
  EXPECT_EQ(runOn(&recording, folder.path("nowhere/thing.vecmp")).printed, kCannotOpen);
  zeb::ReplayingCommunicator replaying(recording.log(), 1, 2);
  const RankRun other = runOn(&replaying, folder.path("nowhere/thing.vecmp"));
  EXPECT_EQ(other.result, -1);
  EXPECT_EQ(other.printed, "");
}

TEST(ViscoelasticRanks, PlotValuesAreShownOnEveryRankTheSwitchOnRank0) {
  const TestFolder folder;
  zeb::RecordingCommunicator recording(2);
  const std::string name = folder.write("thing.vecmp", fileWith({{8, "4 0 0"}, {9, "0"}}, kBody));
  const std::string first = runOn(&recording, name).printed;
  zeb::ReplayingCommunicator replaying(recording.log(), 1, 2);
  const std::string other = runOn(&replaying, name).printed;
  EXPECT_EQ(other.find("\n*********************\nFlagIsPlotShearVis = 1\n"), 0u);
  EXPECT_NE(other.find("#2 StrainRate                = 5\n"), other.npos);
  EXPECT_EQ(first, "Switch from White Metzner model to Giesekus model" + other);
}

TEST(ViscoelasticRanks, PrintLevelTracesNameAndLinesOnRank0) {
  const TestFolder folder;
  const std::string name = folder.write("thing.vecmp", "1005\n");
  zeb::RecordingCommunicator recording(2);
  EXPECT_EQ(runOn(&recording, name, 1).printed, "VE CMP file name = " + name + "\n - CPUID:0 string: 1005\n");
  zeb::ReplayingCommunicator replaying(recording.log(), 1, 2);
  EXPECT_EQ(runOn(&replaying, name, 1).printed, "");
  EXPECT_EQ(runOn(nullptr, folder.write("serial.vecmp", "1005\n"), 1).printed, "");
}

TEST(ViscoelasticRanks, LineIsCutAlikeWhereItIsLongerThanABroadcast) {
  const TestFolder folder;
  // Behind 250 blanks only "1006" is left of the number.
  const std::string text = fileWith({{1, std::string(250, ' ') + "10067"}});
  zeb::RecordingCommunicator recording(2);
  EXPECT_EQ(runOn(&recording, folder.write("thing.vecmp", text)).result, 1);
  EXPECT_EQ(runOn(nullptr, folder.write("serial.vecmp", text)).result, -1);
}

}  // namespace
