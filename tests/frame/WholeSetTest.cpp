// A parameter set from end to end: the whole dump, and the companion file beside the CMP file.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "frame/CZEBCMPInternalTool.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

namespace fs = std::filesystem;

TEST(WholeDump, GoesFromIteratToEpoxyThroughThirtyEightBlocks) {
  CZEBKNCMPCompParm set(0, 0);
  const zeb::OutputCapture capture;
  EXPECT_EQ(set.OutputParameters(), 1);
  const std::string& text = capture.text();
  EXPECT_TRUE(text.starts_with("\n---------Iterat Parameters---------\nm_ilsolvU\t\t\t\t\t\t\t= 2\n"));
  EXPECT_TRUE(text.ends_with(
      "\n---------EpoxyVE Parameters---------\nm_iIsRIMVE\t\t= 0\nm_iRIMVEModel\t= 0\nm_dEpoxy_VE_G\t= 10000\n"));
  int headings = 0;
  for (auto at = text.find("\n---------"); at != text.npos; at = text.find("\n---------", at + 1)) ++headings;
  EXPECT_EQ(headings, 38);
  EXPECT_EQ(text.find("Cool Parameters"), text.npos);
}

class CompanionFile : public testing::Test {
 protected:
  CompanionFile() {
    fs::create_directories(folder / "dir.v2");
    set.getVEParm()->setIstoCalcRS(true);
  }
  ~CompanionFile() override { fs::remove_all(folder); }

  fs::path folder = zebtest::TemporaryFile("").path() + ".folder";
  CZEBKNCMPCompParm set{0, 0};
};

TEST_F(CompanionFile, HasTheNameUpToTheLastDot) {
  EXPECT_EQ(set.setSolidFillBlock((folder / "a.b.cmp").string()), 1);
  EXPECT_TRUE(fs::exists(folder / "a.b.vecmp"));
  EXPECT_FALSE(fs::exists(folder / "a.vecmp"));
}

TEST_F(CompanionFile, MayLoseTheNameOfAFileWithoutExtensionInAFolderWithOne) {
  EXPECT_EQ(set.setSolidFillBlock((folder / "dir.v2" / "cover").string()), 1);
  EXPECT_TRUE(fs::exists(folder / "dir.vecmp"));
}

TEST_F(CompanionFile, IsNeitherReadNorWrittenUnasked) {
  set.getVEParm()->setIstoCalcRS(false);
  EXPECT_EQ(set.setSolidFillBlock((folder / "a.cmp").string()), 1);
  EXPECT_FALSE(fs::exists(folder / "a.vecmp"));
}

TEST_F(CompanionFile, NeedsAnExtensionAndSaysSoAfterTheCMPFileIsRead) {
  const auto before = fs::current_path();
  fs::current_path(folder);
  std::ofstream("cover") << "[Outlet]\nIsOutlet = 1\n[/Outlet]\n";
  std::string message;
  try {
    set.setSolidFillBlock("cover");
  } catch (const std::out_of_range& error) {
    message = error.what();
  }
  fs::current_path(before);
  EXPECT_EQ(message, "invalid string position");
  EXPECT_EQ(set.getOutletParm()->iIsOutlet(), 1);
}

}  // namespace
