// The viscoelastic file that is there but cannot be read, and the default one where a file system has no links.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "standalone/ThreadCommunicator.h"
#include "tests/failing/Failures.h"
#include "tests/ranks/RankReading.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/TestFolder.hpp"
#include "tests/support/WithoutPrivileges.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

namespace {

using zebtest::contentOf;
using zebtest::LinksAreRefused;
using zebtest::Reading;
using zebtest::ReadingOptions;
using zebtest::ReadsFailBehind;

const ReadingOptions kViscoelastic{.viscoelastic = true};

// Valid as a whole and in any part that has line 1; every line of the head changes something.
const char* const kUsers =
    "1006\n150 2.5 0\n11 0.25 12.5\n12.25 0.5 0\n3 20000.125\n-10 500 0\n0.5 0.75 1.5\n4 0.4 2\n0\n"
    "<VE_Solver>\nVE_Para1 = 0.65\n</VE_Solver>\n";

// The CMP file is missing, so that only the companion is read.
class UnreadableCompanion : public testing::Test {
 protected:
  // Serial and on ranks: one line, the values of an untouched set, the file as it was and no other.
  void expectLeftAlone(const std::string& what) {
    const Reading serial = zebtest::readAs(nullptr, m_cmp, kViscoelastic);
    EXPECT_EQ(serial.printed, "Error! " + what + "; nothing of it is taken, and it stays as it is.\n");
    EXPECT_EQ(serial.values, valuesOfDefaults());
    expectSameReading(zebtest::readOnRanks(m_cmp, 8, {1, 7}, kViscoelastic, false), serial);
    const auto files = std::filesystem::directory_iterator(m_folder.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
  }

  // With the viscoelastic file asked for and nothing read of it.
  std::string valuesOfDefaults() const {
    const zeb::test::TestFolder elsewhere;
    return zebtest::readAs(nullptr, elsewhere.path("part.cmp"), kViscoelastic).values;
  }

  zeb::test::TestFolder m_folder;
  std::string m_cmp = m_folder.path("part.cmp");
  std::string m_name = m_folder.path("part.vecmp");
};

TEST_F(UnreadableCompanion, ThatFailsWithinItsHeadIsLeftAlone) {
  m_folder.write("part.vecmp", kUsers);
  for (int lines = 0; lines < 9; ++lines) {
    SCOPED_TRACE(lines);
    const ReadsFailBehind failure(lines);
    expectLeftAlone("Reading " + m_name + " failed behind line " + std::to_string(lines));
    EXPECT_EQ(contentOf(m_name), kUsers);
  }
}

TEST_F(UnreadableCompanion, ThatIsInvalidInFrontOfTheFailureIsLeftAlone) {
  m_folder.write("part.vecmp", "1005\n1\n2\n3\n");
  const ReadsFailBehind failure(3);
  expectLeftAlone("Reading " + m_name + " failed behind line 3");
}

TEST_F(UnreadableCompanion, ThatMayNotBeOpenedIsLeftAlone) {
  m_folder.write("part.vecmp", kUsers);
  std::filesystem::permissions(m_name, std::filesystem::perms::none);
  std::filesystem::permissions(m_folder.path(), std::filesystem::perms::all);
  {
    const zebtest::WithoutPrivileges nobody;
    ASSERT_TRUE(nobody.holds());
    expectLeftAlone("Cannot open " + m_name);
  }
  std::filesystem::permissions(m_name, std::filesystem::perms::owner_read);
  EXPECT_EQ(contentOf(m_name), kUsers);
}

TEST_F(UnreadableCompanion, FolderIsLeftAlone) {
  std::filesystem::create_directory(m_name);
  expectLeftAlone("Cannot open " + m_name);
}

TEST_F(UnreadableCompanion, LinkThatLeadsNowhereIsLeftAlone) {
  std::filesystem::create_symlink("unmounted.vecmp", m_name);
  expectLeftAlone("Cannot open " + m_name);
  EXPECT_TRUE(std::filesystem::is_symlink(m_name));
}

TEST_F(UnreadableCompanion, ReadingThatFailsBehindTheHeadKeepsWhatWasRead) {
  m_folder.write("part.vecmp", kUsers);
  const std::string whole = zebtest::readAs(nullptr, m_cmp, kViscoelastic).values;
  m_folder.write("part.vecmp", std::string(kUsers).substr(0, std::string(kUsers).find("VE_Para1")));
  const std::string part = zebtest::readAs(nullptr, m_cmp, kViscoelastic).values;
  m_folder.write("part.vecmp", kUsers);
  ASSERT_NE(part, whole);
  const ReadsFailBehind failure(10);
  EXPECT_EQ(zebtest::readOnRanks(m_cmp, 3, {1, 2}, kViscoelastic, false).values, part);
  EXPECT_EQ(contentOf(m_name), kUsers);
}

// --- No links -----------------------------------------------------------------------------------------------------

TEST(WithoutLinks, TheDefaultTakesTheMissingFilesPlace) {
  const zeb::test::TestFolder folder;
  const LinksAreRefused refused;
  EXPECT_EQ(zeb::writeDefaultViscoelasticFile(folder.path("part.vecmp"), CZEBCMPVEParm()), 1);
  const std::string written = contentOf(folder.path("part.vecmp"));
  EXPECT_EQ(written, contentOf(ZEB_TEST_DATA_DIR "/default.vecmp"));
  const auto files = std::filesystem::directory_iterator(folder.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(WithoutLinks, TheUsersFileIsKept) {
  const zeb::test::TestFolder folder;
  const LinksAreRefused refused;
  const std::string name = folder.path("part.vecmp");
  for (const char* users : {"first\n", "second\n"}) {
    folder.write("part.vecmp", users);
    EXPECT_EQ(zeb::writeDefaultViscoelasticFile(name, CZEBCMPVEParm()), 1);
    EXPECT_EQ(contentOf(name), contentOf(ZEB_TEST_DATA_DIR "/default.vecmp"));
  }
  EXPECT_EQ(contentOf(name + ".bak"), "first\n");
  EXPECT_EQ(contentOf(name + ".bak.1"), "second\n");
}

}  // namespace
