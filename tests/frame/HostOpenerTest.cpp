// A host's own file opener: its definition in the executable takes precedence over the stand-in's, and this one tells
// how the library calls it before it passes the call on. It serves this whole test program.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "blocks/CZEBCMPGeneralParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "platform/ZEB3DTool.h"
#include "tests/support/OtherCharacters.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TemporaryFile.hpp"

namespace {

struct OpenCall {
  std::string file;
  int mode, first, second;
  bool streamWasOpen;

  bool operator==(const OpenCall&) const = default;
};

std::vector<OpenCall> openCalls;
bool opensPlainly = false;  // does what any host may do instead of asking the stand-in

using Opener = void (*)(CZEBFileIO*, std::ifstream&, const char*, ZEBOpenMode, int, int);

Opener standIn() {
  // CZEBFileIO::ZEBOpenFile(std::ifstream&, const char*, ZEBOpenMode, int, int)
  void* const symbol =
      dlsym(RTLD_NEXT, "_ZN10CZEBFileIO11ZEBOpenFileERSt14basic_ifstreamIcSt11char_traitsIcEEPKc11ZEBOpenModeii");
  return reinterpret_cast<Opener>(symbol);
}

}  // namespace

void CZEBFileIO::ZEBOpenFile(std::ifstream& stream, const char* fileName, ZEBOpenMode mode, int first, int second) {
  openCalls.push_back({fileName, mode, first, second, stream.is_open()});
  if (opensPlainly) return stream.open(fileName);
  standIn()(this, stream, fileName, mode, first, second);
}

namespace {

using zebtest::TemporaryFile;

class HostOpener : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(standIn(), nullptr);
    openCalls.clear();
    opensPlainly = false;
  }
  static std::vector<OpenCall> one(const std::string& file) { return {{file, 1, 500, 10, false}}; }
};

TEST_F(HostOpener, IsAskedOnceForTheFileInTheModeOfReading) {
  const TemporaryFile file("[General]\nVentMode = 1\n[/General]\n[FEM]\n[/FEM]\n");
  CZEBKNCMPCompParm set(0, 0);
  EXPECT_EQ(set.setSolidFillBlock(file.path()), 1);
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
  EXPECT_EQ(openCalls, one(file.path()));
}

TEST_F(HostOpener, IsAskedOnceForAFileThatIsMissing) {
  CZEBKNCMPCompParm set(0, 0);
  EXPECT_EQ(set.setSolidFillBlock("no/such/file.cmp"), 1);
  EXPECT_EQ(openCalls, one("no/such/file.cmp"));
}

TEST_F(HostOpener, ThatKnowsNoLocalesMeetsAClassicStream) {
  const TemporaryFile file("[General]\nVentMode = 1\n[/General]\n");
  const zebtest::GlobalLocale global(std::locale(std::locale::classic(), new zebtest::OtherCharacters));
  opensPlainly = true;
  CZEBKNCMPCompParm set(0, 0);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
}

TEST_F(HostOpener, IsAskedOnRank0Only) {
  const TemporaryFile file("[General]\nVentMode = 1\n[/General]\n[Whiteboard]\nHeatFluxHistory\n[/Whiteboard]\n");
  zeb::RecordingCommunicator first(2);
  CZEBKNCMPCompParm rank0(0, 0), rank1(0, 0);
  rank0.setZEBCom(&first);
  rank0.setSolidFillBlock(file.path());
  EXPECT_EQ(openCalls, one(file.path()));

  openCalls.clear();
  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  rank1.setZEBCom(&second);
  rank1.setSolidFillBlock(file.path());
  EXPECT_EQ(rank1.getGeneralParm()->iVentMode(), 1);
  EXPECT_TRUE(openCalls.empty());
}

}  // namespace
